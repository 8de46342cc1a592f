# Installs a build into an empty folder and looks whether all is there.
#
# usage: cmake -D BUILD=folder -D PREFIX=folder -D VERSION=1.2.3 -P install.cmake
cmake_minimum_required(VERSION 3.21)

file(REMOVE_RECURSE "${PREFIX}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}" COMMAND_ERROR_IS_FATAL ANY)

string(REGEX MATCH "^[0-9]+" major "${VERSION}")
foreach(pattern
    lib*/librulecanvas.so lib*/librulecanvas.so.${major} lib*/librulecanvas.so.${VERSION}
    lib*/cmake/RuleCanvas/RuleCanvasConfig.cmake lib*/pkgconfig/rulecanvas.pc
    include/rulecanvas/rulecanvas.h include/rulecanvas/host.hpp
    bin/rulecanvas-check share/doc/rulecanvas/README.md share/doc/rulecanvas/docs/third_party/NOTICES.md)
  file(GLOB found "${PREFIX}/${pattern}")
  if(NOT found)
    message(SEND_ERROR "not installed: ${pattern}")
  endif()
endforeach()

file(GLOB_RECURSE files RELATIVE "${PREFIX}" "${PREFIX}/*")
foreach(file IN LISTS files)
  if(file MATCHES "json|gtest|test")
    message(SEND_ERROR "installed, and not ours to install: ${file}")
  endif()
endforeach()
