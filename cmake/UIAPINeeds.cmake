# What the build needs from elsewhere. Everything that is missing is reported at once, with what to do about it.

set(UIAPI_MISSING "")

# uiapi_find(<package> <Debian packages> [arguments of find_package...]): the parts of Qt as components, so that they are
# looked for beside the Qt that was found.
macro(uiapi_find package debian)
  find_package(${package} ${ARGN} QUIET)
  if(NOT ${package}_FOUND)
    string(JOIN " " _uiapi_wanted ${package} ${ARGN})
    string(APPEND UIAPI_MISSING "\n  ${_uiapi_wanted}: on Debian install ${debian}; elsewhere add its folder to "
      "CMAKE_PREFIX_PATH or set ${package}_DIR")
    if(${package}_CONSIDERED_VERSIONS)
      string(APPEND UIAPI_MISSING " (found: ${${package}_CONSIDERED_VERSIONS})")
    endif()
  endif()
endmacro()

uiapi_find(Qt5 qtbase5-dev 5.15 COMPONENTS Core Gui Network Widgets)
uiapi_find(Qt5 qttools5-dev 5.15 COMPONENTS LinguistTools)
uiapi_find(glog libgoogle-glog-dev)
uiapi_find(jsoncpp libjsoncpp-dev)
if(UIAPI_HOST STREQUAL "")
  uiapi_find(Qt5 qtbase5-dev 5.15 COMPONENTS Sql)
elseif(UIAPI_HOST_PACKAGE)
  find_package(${UIAPI_HOST_PACKAGE} QUIET)
  if(NOT ${UIAPI_HOST_PACKAGE}_FOUND)
    string(APPEND UIAPI_MISSING "\n  ${UIAPI_HOST_PACKAGE}, the package of the host's engine (UIAPI_HOST_PACKAGE): install "
      "it, and add its folder to CMAKE_PREFIX_PATH or set ${UIAPI_HOST_PACKAGE}_DIR")
  endif()
endif()
if(UIAPI_BUILD_TESTS)
  uiapi_find(GTest "libgtest-dev and libgmock-dev, or set UIAPI_BUILD_TESTS=OFF")
  uiapi_find(Qt5 qtbase5-dev 5.15 COMPONENTS Test)
endif()
if(UIAPI_BUILD_BENCH)
  uiapi_find(benchmark "libbenchmark-dev, or set UIAPI_BUILD_BENCH=OFF")
endif()

if(UIAPI_MISSING)
  message(FATAL_ERROR "The build needs what was not found:${UIAPI_MISSING}")
endif()
if(UIAPI_HOST AND NOT TARGET ${UIAPI_HOST})
  message(FATAL_ERROR "UIAPI_HOST is \"${UIAPI_HOST}\", and there is no such target: name the target of the host's engine, "
    "and in UIAPI_HOST_PACKAGE the package that defines it.")
endif()
