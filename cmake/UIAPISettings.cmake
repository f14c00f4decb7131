# Flags of every target of this project, on privately linked interface targets, so that nothing leaks into a project
# that includes this one.

add_library(uiapi_settings INTERFACE)
if(MSVC)
  target_compile_options(uiapi_settings INTERFACE /utf-8 /permissive- /Zc:__cplusplus /W4 $<$<BOOL:${UIAPI_WERROR}>:/WX>)
else()
  target_compile_options(uiapi_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
    -Wold-style-cast -Wdouble-promotion -Wformat=2
    $<$<CONFIG:Debug>:-Wnull-dereference> # optimising, GCC suspects its own standard library
    $<$<BOOL:${UIAPI_WERROR}>:-Werror>)
endif()
target_compile_definitions(uiapi_settings INTERFACE
  QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_DEPRECATED_WARNINGS
  $<$<BOOL:${WIN32}>:NOMINMAX>)

# Hardens optimised builds like a distribution's packages. (CMAKE_POSITION_INDEPENDENT_CODE makes executables
# position-independent; the linker must be checked for support first.)
if(CMAKE_SYSTEM_NAME STREQUAL "Linux" AND NOT UIAPI_SANITIZE)
  include(CheckPIESupported)
  check_pie_supported()
  set(_optimised "$<OR:$<CONFIG:Release>,$<CONFIG:RelWithDebInfo>,$<CONFIG:MinSizeRel>>")
  target_compile_options(uiapi_settings INTERFACE
    "$<${_optimised}:-fstack-protector-strong;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  target_link_options(uiapi_settings INTERFACE "$<${_optimised}:LINKER:-z,relro,-z,now>")
endif()

if(UIAPI_SANITIZE)
  set(_uiapi_sanitizers -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  target_compile_options(uiapi_settings INTERFACE ${_uiapi_sanitizers} -O1 -g1)
  target_link_options(uiapi_settings INTERFACE ${_uiapi_sanitizers})
endif()

# uiapi_room(SOURCES ... HEADERS ... PUBLIC_HEADERS ...): adds the sources of a room of src/ to the library. Public
# headers are installed as <UIAPICommon/room/Header.h>.
function(uiapi_room)
  cmake_parse_arguments(ROOM "" "" "SOURCES;HEADERS;PUBLIC_HEADERS" ${ARGN})
  target_sources(UIAPICommon_objects PRIVATE ${ROOM_SOURCES} ${ROOM_HEADERS} ${ROOM_PUBLIC_HEADERS})
  if(ROOM_PUBLIC_HEADERS)
    target_sources(UIAPICommon_headers INTERFACE FILE_SET HEADERS FILES ${ROOM_PUBLIC_HEADERS})
  endif()
endfunction()
