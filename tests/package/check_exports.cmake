# Compares what a shared library exports with the list of its name in exports/, symbol by symbol, std:: aside: a
# symbol more fails as well as one missing. With UPDATE the list is written instead.
cmake_minimum_required(VERSION 3.25)
set(list "${CMAKE_CURRENT_LIST_DIR}/exports/${NAME}.txt")

execute_process(COMMAND "${NM}" -DC --defined-only "${LIBRARY}" OUTPUT_VARIABLE symbols RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${NM} failed on ${LIBRARY}")
endif()
string(REGEX REPLACE "(^|\n)[0-9a-f]* +[A-Za-z] " "\\1" symbols "${symbols}")
# The standard library's own words for a string, which only lengthen the lines.
string(REPLACE "std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >" "std::string"
  symbols "${symbols}")
string(REPLACE "[abi:cxx11]" "" symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")
list(FILTER symbols EXCLUDE REGEX "^((vtable|typeinfo|typeinfo name|guard variable) for )?std::")
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
