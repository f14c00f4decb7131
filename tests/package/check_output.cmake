# Runs a command and compares all that it prints, on either stream, with a text file. The time and the place of a log
# line are left out. LIBRARIES is searched for libraries first.
cmake_minimum_required(VERSION 3.25)
set(ENV{LD_LIBRARY_PATH} "${LIBRARIES}")
set(ENV{WINEPATH} "Z:${LIBRARIES};$ENV{WINEPATH}")
execute_process(COMMAND ${COMMAND} OUTPUT_VARIABLE output ERROR_VARIABLE errors RESULT_VARIABLE status)
string(REPLACE "\r" "" output "${output}")
string(REPLACE "\r" "" errors "${errors}")
string(REGEX REPLACE "QStandardPaths: [^\n]*\n" "" errors "${errors}") # of an account without a session
string(REGEX REPLACE "([EWI])[0-9]+ [0-9:.]+ +[0-9]+ ([A-Za-z]+):[0-9]+\\]" "\\1 \\2:" errors "${errors}")
file(READ "${EXPECTED}" expected)
if(NOT status EQUAL 0 OR NOT "${output}--\n${errors}" STREQUAL expected)
  message(FATAL_ERROR "${COMMAND} ended with ${status} and printed\n${output}--\n${errors}\ninstead of\n${expected}")
endif()
