# Debian packages of the library, of what compiles against it and of the workbench, and one archive of everything:
# cmake --build --preset release --target package

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME uiapicommon)
set(CPACK_PACKAGE_CONTACT "UIAPICommon developers <uiapicommon@example.org>")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
# Both libraries have the version of the package in their names.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_COMPONENTS_ALL "")

set(_made "${PROJECT_BINARY_DIR}/installed")
string(TIMESTAMP _date "%a, %d %b %Y %H:%M:%S +0000" UTC)
file(WRITE "${_made}/changelog" "uiapicommon (${PROJECT_VERSION}) unstable; urgency=medium

  * CHANGELOG.md of libuiapicommon-dev tells what changed.

 -- ${CPACK_PACKAGE_CONTACT}  ${_date}
")
# _compressed(<file>): the compressed copy that Debian expects, without a time in it.
function(_compressed file)
  get_filename_component(name "${file}" NAME)
  execute_process(COMMAND gzip -9nc "${file}" OUTPUT_FILE "${_made}/${name}.gz" COMMAND_ERROR_IS_FATAL ANY)
endfunction()
_compressed("${_made}/changelog")
_compressed("${PROJECT_SOURCE_DIR}/cmake/debian/uiapi-workbench.1")

# _package(<component> <name> <section> <summary> [<dependencies>])
macro(_package component name section summary)
  string(TOUPPER "${component}" _key)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_DEBIAN_${_key}_PACKAGE_NAME "${name}")
  set(CPACK_DEBIAN_${_key}_PACKAGE_SECTION "${section}")
  set(CPACK_DEBIAN_${_key}_PACKAGE_DEPENDS "${ARGN}")
  set(CPACK_COMPONENT_${_key}_DESCRIPTION
    "user interface of a PCB CAM system: ${summary}\nValues, symbol names, checks, settings, layers, hot keys and fields\nfor the dialogs of a system that prepares printed circuit boards\nfor manufacture.")
  foreach(file IN ITEMS "${PROJECT_SOURCE_DIR}/cmake/debian/copyright" "${_made}/changelog.gz")
    install(FILES "${file}" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component})
  endforeach()
endmacro()

set(_runtime "libuiapicommon${UIAPI_SOVERSION}")
_package(runtime ${_runtime} libs "library")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")
_package(devel libuiapicommon-dev libdevel "headers, examples and samples"
  "${_runtime} (= ${PROJECT_VERSION}), qtbase5-dev (>= 5.15)")
install(FILES CHANGELOG.md README.md DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/libuiapicommon-dev")
install(DIRECTORY docs samples examples DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/libuiapicommon-dev"
  PATTERN reference EXCLUDE PATTERN windows EXCLUDE)
if(TARGET uiapi-workbench)
  _package(workbench uiapi-workbench electronics "workbench" "${_runtime} (= ${PROJECT_VERSION}), libqt5sql5-sqlite")
  set(_debian "${PROJECT_SOURCE_DIR}/cmake/debian")
  install(FILES "${_debian}/uiapi-workbench.desktop" DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT workbench)
  install(FILES "${_debian}/uiapi-workbench.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" COMPONENT workbench)
  install(FILES "${_made}/uiapi-workbench.1.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT workbench)
endif()
if(TARGET uiapi_designer)
  _package(designer uiapicommon-designer libdevel "plug-in for Qt Designer" "${_runtime} (= ${PROJECT_VERSION})")
  set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS qttools5-dev-tools)
endif()

# In a package the libraries are where the system looks; a search path of their own is against Debian's policy.
foreach(component IN ITEMS runtime workbench designer)
  install(CODE "
    if(CMAKE_INSTALL_PREFIX MATCHES \"/_CPack_Packages/[^/]+/DEB/\")
      file(GLOB files \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/*.so.*.*.*\" \"\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/*\"
        \"\${CMAKE_INSTALL_PREFIX}/${UIAPI_QT_PLUGIN_DIR}/designer/*\")
      foreach(file IN LISTS files)
        file(RPATH_REMOVE FILE \"\${file}\")
      endforeach()
    endif()" COMPONENT ${component})
endforeach()
include(CPack)
