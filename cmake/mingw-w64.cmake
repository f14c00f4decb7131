# 64-bit Windows from Debian with mingw-w64 (posix threads). UIAPI_WINDOWS_PREFIX, a CMake or environment variable,
# names the folder that scripts/windows-prefix fills.
if(NOT DEFINED UIAPI_WINDOWS_PREFIX)
  set(UIAPI_WINDOWS_PREFIX "$ENV{UIAPI_WINDOWS_PREFIX}" CACHE PATH "Qt and the other libraries for Windows")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES UIAPI_WINDOWS_PREFIX)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_CROSSCOMPILING_EMULATOR wine)

list(APPEND CMAKE_PREFIX_PATH "${UIAPI_WINDOWS_PREFIX}")
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Catalogues are compiled with the tools of the build machine.
file(GLOB _linguist_tools /usr/lib/*/cmake/Qt5LinguistTools)
set(Qt5LinguistTools_DIR "${_linguist_tools}" CACHE PATH "Qt's translation tools of the building machine")
