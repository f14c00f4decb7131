# Compares what a shared library exports with the list of its name in exports/, symbol by symbol, std:: aside: a
# symbol more fails as well as one missing. With UPDATE the list is written instead.
cmake_minimum_required(VERSION 3.25)
set(list "${CMAKE_CURRENT_LIST_DIR}/exports/${NAME}.txt")

if(LIBRARY MATCHES "\\.dll$")
  execute_process(COMMAND "${OBJDUMP}" -p "${LIBRARY}" COMMAND sed -n "/^.Ordinal.Name Pointer/,/^$/s/^.*[[] *[0-9]*] //p"
    COMMAND "${CXXFILT}" OUTPUT_VARIABLE symbols RESULTS_VARIABLE status)
else()
  execute_process(COMMAND "${NM}" -DC --defined-only "${LIBRARY}" OUTPUT_VARIABLE symbols RESULTS_VARIABLE status)
endif()
if(status MATCHES "[^0;]" OR symbols STREQUAL "")
  message(FATAL_ERROR "cannot list the symbols of ${LIBRARY}")
endif()
string(REGEX REPLACE "(^|\n)[0-9a-f]* +[A-Za-z] " "\\1" symbols "${symbols}")
# The standard library's own words for a string, which only lengthen the lines.
string(REPLACE "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >" "std::string"
  symbols "${symbols}")
string(REPLACE "[abi:cxx11]" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
list(FILTER symbols EXCLUDE REGEX "^((vtable|typeinfo|typeinfo name|guard variable) for )?std::")
list(FILTER symbols EXCLUDE REGEX "::qt_static_metacall\\(") # exported on Windows only, and nobody's to call
list(REMOVE_ITEM symbols "")
list(SORT symbols)
list(REMOVE_DUPLICATES symbols) # constructors and destructors stand twice
list(LENGTH symbols count)

if(UPDATE)
  list(JOIN symbols "\n" text)
  file(WRITE "${list}" "${text}\n")
  message(STATUS "${list}: ${count} symbols")
  return()
endif()

file(STRINGS "${list}" expected)
if(LIBRARY MATCHES "\\.dll$")
  list(FILTER expected EXCLUDE REGEX "^typeinfo name for |\\) const::none$") # data that a DLL keeps to itself
  list(TRANSFORM symbols REPLACE "unsigned long long" "unsigned long") # std::size_t
  list(TRANSFORM symbols REPLACE "([0-9]ul)l" "\\1")
endif()
set(stray ${symbols})
list(REMOVE_ITEM stray ${expected})
set(missing ${expected})
list(REMOVE_ITEM missing ${symbols})
foreach(what IN ITEMS stray missing)
  if(${what})
    list(JOIN ${what} "\n  " text)
    message(SEND_ERROR "${LIBRARY}: ${what}:\n  ${text}")
  endif()
endforeach()
message(STATUS "${count} exported symbols")
