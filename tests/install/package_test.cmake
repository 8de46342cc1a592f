# Makes the zip file, unpacks it into an empty folder and looks whether all is there.
#
# usage: cmake -D SCRIPT=package.sh -D WORK=folder -D UNPACKED=folder -P package_test.cmake
cmake_minimum_required(VERSION 3.21)

file(REMOVE_RECURSE "${WORK}")
execute_process(COMMAND "${SCRIPT}" "${WORK}/zip" COMMAND_ERROR_IS_FATAL ANY)
file(GLOB zip "${WORK}/zip/*.zip")
file(ARCHIVE_EXTRACT INPUT "${zip}" DESTINATION "${WORK}")

set(expected
  include/rulecanvas/rulecanvas.h include/rulecanvas/host.hpp include/rulecanvas/version.h
  lib/cmake/RuleCanvas/RuleCanvasConfig.cmake lib/cmake/RuleCanvas/RuleCanvasConfigVersion.cmake
  doc/README.md doc/CHANGELOG.md doc/docs/into_a_project.md doc/docs/third_party/NOTICES.md)
foreach(architecture x86 x64)
  list(APPEND expected
    bin/${architecture}/rulecanvas.dll bin/${architecture}/rulecanvas-check.exe bin/${architecture}/rule_editor.exe
    lib/${architecture}/librulecanvas.dll.a lib/${architecture}/rulecanvas.lib
    lib/${architecture}/librulecanvas_kit.a lib/${architecture}/librulecanvas_jsoncpp.a) # which the kit needs
endforeach()
foreach(file IN LISTS expected)
  if(NOT EXISTS "${UNPACKED}/${file}")
    message(SEND_ERROR "not in the zip: ${file}")
  endif()
endforeach()

file(GLOB_RECURSE files RELATIVE "${UNPACKED}" "${UNPACKED}/*")
foreach(file IN LISTS files)
  if(file MATCHES "json|gtest|test" AND NOT file MATCHES "/librulecanvas_jsoncpp\\.a$")
    message(SEND_ERROR "in the zip, and nothing for users: ${file}")
  endif()
endforeach()
