# Target "docs": the reference of the installed headers, as pages in docs/ of the build directory.
find_program(UIAPI_DOXYGEN doxygen)
if(NOT UIAPI_DOXYGEN)
  return()
endif()

get_target_property(_headers UIAPICommon_headers HEADER_SET)
get_target_property(_platform UIAPICommon HEADER_SET_platform)
set(_inputs ${_headers} ${_platform})
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
foreach(_page IN ITEMS README ARCHITECTURE CONTRIBUTING CHANGELOG docs/Checks docs/Extensions docs/FirstDialog docs/Log docs/Reports docs/Testing docs/Values)
  list(APPEND _inputs "${PROJECT_SOURCE_DIR}/${_page}.md")
endforeach()
list(TRANSFORM _inputs PREPEND "\"")
list(TRANSFORM _inputs APPEND "\"")
list(JOIN _inputs " \\\n  " _inputs)
file(WRITE "${PROJECT_BINARY_DIR}/docs/Doxyfile"
"@INCLUDE = \"${PROJECT_SOURCE_DIR}/docs/Doxyfile\"
PROJECT_NUMBER = ${PROJECT_VERSION}
OUTPUT_DIRECTORY = \"${PROJECT_BINARY_DIR}/docs\"
USE_MDFILE_AS_MAINPAGE = \"${PROJECT_SOURCE_DIR}/README.md\"
STRIP_FROM_PATH = \"${PROJECT_SOURCE_DIR}/src\" \"${PROJECT_SOURCE_DIR}/platform\" \"${PROJECT_SOURCE_DIR}\"
IMAGE_PATH = \"${PROJECT_SOURCE_DIR}/docs\"
INPUT = ${_inputs}
")
add_custom_target(docs COMMAND "${UIAPI_DOXYGEN}" "${PROJECT_BINARY_DIR}/docs/Doxyfile"
  WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" VERBATIM)
