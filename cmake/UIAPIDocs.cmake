# Target "docs": the reference of the installed headers, as pages in docs/ of the build directory.
find_program(UIAPI_DOXYGEN doxygen)
find_program(UIAPI_AWK NAMES awk gawk mawk)
if(NOT UIAPI_DOXYGEN OR NOT UIAPI_AWK)
  return()
endif()

get_target_property(_headers UIAPICommon_headers HEADER_SET)
get_target_property(_platform UIAPICommon HEADER_SET_platform)
# In the order in which a topic lists its functions: the fixed ones first.
set(_flat ${_headers})
list(FILTER _flat INCLUDE REGEX "/flat/")
list(REMOVE_ITEM _headers ${_flat})
set(_inputs ${_flat} ${_headers} ${_platform})
if(TARGET KVCAM_API)
  get_target_property(_headers KVCAM_API_headers HEADER_SET)
  list(APPEND _inputs ${_headers})
endif()
if(TARGET UIAPITestEngine)
  foreach(_target IN ITEMS UIAPITestEngine UIAPITestEngine_adapters)
    get_target_property(_headers ${_target} HEADER_SET)
    list(FILTER _headers EXCLUDE REGEX "Export\\.h$")
    list(APPEND _inputs ${_headers})
  endforeach()
endif()
# The pages in the order in which they are best read; one that is not named here comes after them.
set(_pages docs/FirstDialog.md docs/LengthField.md docs/Testing.md docs/Engine.md docs/Log.md docs/Values.md
  docs/Extensions.md docs/Checks.md docs/Reports.md)
file(GLOB _others RELATIVE "${PROJECT_SOURCE_DIR}" CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/docs/*.md")
list(REMOVE_ITEM _others ${_pages})
foreach(_page IN LISTS _pages _others ITEMS docs/reference/Topics.dox README.md CHANGELOG.md ARCHITECTURE.md
                                            CONTRIBUTING.md)
  list(APPEND _inputs "${PROJECT_SOURCE_DIR}/${_page}")
endforeach()
list(TRANSFORM _inputs PREPEND "\"")
list(TRANSFORM _inputs APPEND "\"")
list(JOIN _inputs " \\\n  " _inputs)
file(WRITE "${PROJECT_BINARY_DIR}/docs/Doxyfile"
"@INCLUDE = \"${PROJECT_SOURCE_DIR}/docs/reference/Doxyfile\"
PROJECT_NUMBER = ${PROJECT_VERSION}
OUTPUT_DIRECTORY = \"${PROJECT_BINARY_DIR}/docs\"
FILTER_PATTERNS = \"*.h=${UIAPI_AWK} -f docs/reference/header.awk\"
LAYOUT_FILE = \"${PROJECT_SOURCE_DIR}/docs/reference/DoxygenLayout.xml\"
HTML_EXTRA_STYLESHEET = \"${PROJECT_SOURCE_DIR}/docs/reference/style.css\"
STRIP_FROM_PATH = \"${PROJECT_SOURCE_DIR}/src\" \"${PROJECT_SOURCE_DIR}/platform\" \"${PROJECT_SOURCE_DIR}\"
IMAGE_PATH = \"${PROJECT_SOURCE_DIR}/docs\"
INPUT = ${_inputs}
")
add_custom_target(docs
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${PROJECT_BINARY_DIR}/docs/html" # pages that there are no more
  COMMAND "${UIAPI_DOXYGEN}" "${PROJECT_BINARY_DIR}/docs/Doxyfile"
  COMMAND "${CMAKE_COMMAND}" "-DPAGES=${PROJECT_BINARY_DIR}/docs/html" -P "${PROJECT_SOURCE_DIR}/docs/reference/finish.cmake"
  WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" VERBATIM)
