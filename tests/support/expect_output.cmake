# Runs a program and compares what it prints with a file, in which the numbers of shapes read N; without a file it must
# print nothing.
#
# usage: cmake -D PROGRAM=command;argument... [-D EXPECTED=file] [-D EXIT_CODE=code] -P expect_output.cmake
cmake_minimum_required(VERSION 3.21)

if(NOT DEFINED EXIT_CODE)
  set(EXIT_CODE 0)
endif()
execute_process(COMMAND ${PROGRAM} OUTPUT_VARIABLE printed RESULT_VARIABLE exit_code)
string(REPLACE "\r" "" printed "${printed}")
string(REGEX REPLACE "\"ShapeID\":-?[0-9]+\\.0" "\"ShapeID\":N" printed "${printed}")

set(expected "")
if(EXPECTED)
  file(READ "${EXPECTED}" expected)
endif()
if(NOT printed STREQUAL expected)
  message(SEND_ERROR "expected (${EXPECTED}):\n${expected}\nprinted:\n${printed}")
endif()
if(NOT exit_code EQUAL EXIT_CODE)
  message(SEND_ERROR "the exit code is ${exit_code}, expected ${EXIT_CODE}")
endif()
