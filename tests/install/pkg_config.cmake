# Moves a copy of the installed library elsewhere and builds the C host by what pkg-config says.
cmake_minimum_required(VERSION 3.21)

file(REMOVE_RECURSE "${WORK}")
file(COPY "${PREFIX}/" DESTINATION "${WORK}/moved")
set(ENV{PKG_CONFIG_PATH} "${WORK}/moved/${LIBRARY_DIR}/pkgconfig")
execute_process(COMMAND "${PKG_CONFIG}" --exact-version=${VERSION} rulecanvas COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND "${PKG_CONFIG}" --cflags --libs rulecanvas
  OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
if(SANITIZERS)
  list(APPEND flags -fsanitize=${SANITIZERS})
endif()

execute_process(
  COMMAND "${COMPILER}" "${EXAMPLES}/c_host/main.c" ${flags} "-Wl,-rpath,${WORK}/moved/${LIBRARY_DIR}"
    -o "${WORK}/c_host"
  COMMAND_ERROR_IS_FATAL ANY)
set(PROGRAM "${WORK}/c_host")
set(EXPECTED "${EXPECTED}/c_host.txt")
include("${CMAKE_CURRENT_LIST_DIR}/../support/expect_output.cmake")
