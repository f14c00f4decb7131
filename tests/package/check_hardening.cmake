# Reads off an optimised library whether it is hardened: full RELRO with immediate binding, stack protector. Checked
# versions of the C library's functions leave no sign in a library that calls none of them: for these the commands that
# compiled it are read.
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND "${READELF}" -W -l -d --dyn-syms "${LIBRARY}" OUTPUT_VARIABLE facts COMMAND_ERROR_IS_FATAL ANY)
file(READ "${COMMANDS}" commands)
string(APPEND facts "${commands}")
foreach(sign IN ITEMS "GNU_RELRO" "FLAGS[^\n]* BIND_NOW" "UND __stack_chk_fail" "-D_FORTIFY_SOURCE=2")
  if(NOT facts MATCHES "${sign}")
    message(SEND_ERROR "${LIBRARY} shows no ${sign}")
  endif()
endforeach()
