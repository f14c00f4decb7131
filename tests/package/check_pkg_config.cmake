# Compiles and runs the consumer as a Makefile would: with what pkg-config says, and the -fPIC that Qt asks for.
cmake_minimum_required(VERSION 3.25)
set(ENV{PKG_CONFIG_PATH} "${STAGE}/${LIBRARIES}/pkgconfig")
execute_process(COMMAND "${PKG_CONFIG}" --cflags --libs "uiapicommon = ${VERSION}"
  OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
execute_process(COMMAND "${COMPILER}" -std=c++17 -fPIC "-DPACKAGE_VERSION=\"${VERSION}\"" "${SOURCES}/main.cpp"
  "${SOURCES}/pages.cpp" "${SOURCES}/signatures.cpp" -o pkg-config-consumer ${flags} "-Wl,-rpath,${STAGE}/${LIBRARIES}"
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ./pkg-config-consumer COMMAND_ERROR_IS_FATAL ANY)
