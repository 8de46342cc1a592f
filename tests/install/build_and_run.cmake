# Configures, builds and runs a project in an empty folder, as somebody does who has nothing but the library. Without
# hosts to run it is only configured.
#
# usage: cmake -D SOURCE=folder -D WORK=folder -D OPTIONS=-Dname=value;... -D HOSTS=program;... -D EXPECTED=folder
#              -D EMULATOR=command;... -P build_and_run.cmake
cmake_minimum_required(VERSION 3.21)

file(REMOVE_RECURSE "${WORK}")
execute_process(
  COMMAND "${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G Ninja -DCMAKE_BUILD_TYPE=Release ${OPTIONS}
  COMMAND_ERROR_IS_FATAL ANY)
if(NOT HOSTS)
  return()
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${WORK}/build" -j2 COMMAND_ERROR_IS_FATAL ANY)

file(GLOB programs "${WORK}/build/bin/*host" "${WORK}/build/bin/*host.exe")
set(ran "")
foreach(program IN LISTS programs)
  get_filename_component(host "${program}" NAME_WE)
  list(APPEND ran "${host}")
  execute_process(
    COMMAND "${CMAKE_COMMAND}" -D "PROGRAM=${EMULATOR};${program}" -D "EXPECTED=${EXPECTED}/${host}.txt"
      -P "${CMAKE_CURRENT_LIST_DIR}/../support/expect_output.cmake"
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()
if(NOT ran STREQUAL HOSTS)
  message(FATAL_ERROR "built and run were '${ran}', expected '${HOSTS}'")
endif()
