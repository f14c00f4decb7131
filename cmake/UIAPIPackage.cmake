# cmake --install and find_package(UIAPICommon); the target "package" makes Debian packages and a tar archive.
include(CMakePackageConfigHelpers)

set(UIAPI_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/UIAPICommon")
set(UIAPI_INCLUDE_DIR "${CMAKE_INSTALL_INCLUDEDIR}") # the one directory on a consumer's path
set(_library
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT runtime
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT devel
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT devel)

install(TARGETS UIAPICommon EXPORT UIAPICommonTargets ${_library}
  FILE_SET HEADERS DESTINATION "${UIAPI_INCLUDE_DIR}"
  FILE_SET platform DESTINATION "${UIAPI_INCLUDE_DIR}"
  INCLUDES DESTINATION "${UIAPI_INCLUDE_DIR}")
install(TARGETS UIAPICommon_headers FILE_SET HEADERS DESTINATION "${UIAPI_INCLUDE_DIR}/UIAPICommon")
foreach(_header IN ITEMS UIAPICommon.h UIAPICommonExt.h)
  file(WRITE "${PROJECT_BINARY_DIR}/installed/${_header}" "#pragma once\n\n#include \"UIAPICommon/${_header}\"\n")
  install(FILES "${PROJECT_BINARY_DIR}/installed/${_header}" DESTINATION "${UIAPI_INCLUDE_DIR}")
endforeach()
if(TARGET KVCAM_API)
  install(TARGETS KVCAM_API EXPORT UIAPICommonTargets ${_library}
    INCLUDES DESTINATION "${UIAPI_INCLUDE_DIR}")
  install(TARGETS KVCAM_API_headers FILE_SET HEADERS DESTINATION "${UIAPI_INCLUDE_DIR}/KVCAM_API")
endif()
if(TARGET uiapi-workbench)
  set_target_properties(uiapi-workbench PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS uiapi-workbench RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT workbench)
  if(NOT WIN32) # there they stand beside the folder of the programs
    install(DIRECTORY samples DESTINATION "${CMAKE_INSTALL_DATADIR}/uiapicommon" COMPONENT workbench)
  endif()
endif()
install(FILES docs/analysis-report-2.schema.json DESTINATION "${CMAKE_INSTALL_DATADIR}/uiapicommon")
install(EXPORT UIAPICommonTargets NAMESPACE UIAPICommon:: DESTINATION "${UIAPI_CMAKE_DIR}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/UIAPICommonConfig.cmake.in" UIAPICommonConfig.cmake
  INSTALL_DESTINATION "${UIAPI_CMAKE_DIR}")
write_basic_package_version_file(UIAPICommonConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES
  "${PROJECT_BINARY_DIR}/UIAPICommonConfig.cmake"
  "${PROJECT_BINARY_DIR}/UIAPICommonConfigVersion.cmake"
  DESTINATION "${UIAPI_CMAKE_DIR}")

# For build systems other than CMake. A host's own engine is linked by its own package.
set(UIAPI_PC_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH UIAPI_PC_PREFIX "/${UIAPI_PC_DIR}" "/")
set(UIAPI_PC_ENGINE "")
if(TARGET KVCAM_API)
  set(UIAPI_PC_ENGINE " -lKVCAM_API")
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/uiapicommon.pc.in" installed/uiapicommon.pc @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/installed/uiapicommon.pc" DESTINATION "${UIAPI_PC_DIR}")

if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND PROJECT_IS_TOP_LEVEL)
  include(UIAPIDebian)
endif()
