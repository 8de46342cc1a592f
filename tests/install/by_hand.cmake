# Runs the shell commands of docs/into_a_project.md in the unpacked folder and then the programs that they made.
#
# usage: cmake -D UNPACKED=folder -D WINE=run-wine.sh -D EXPECTED=file -P by_hand.cmake
cmake_minimum_required(VERSION 3.21)

file(READ "${UNPACKED}/doc/docs/into_a_project.md" text)
if(NOT text MATCHES "```sh\n([^`]*)```")
  message(FATAL_ERROR "the document holds no shell commands")
endif()
execute_process(
  COMMAND sh -e -c "${CMAKE_MATCH_1}"
  WORKING_DIRECTORY "${UNPACKED}"
  COMMAND_ERROR_IS_FATAL ANY)

foreach(architecture x86 x64)
  set(PROGRAM "${WINE}" --64 "${UNPACKED}/bin/${architecture}/minimal_host.exe")
  include("${CMAKE_CURRENT_LIST_DIR}/../support/expect_output.cmake")
endforeach()
