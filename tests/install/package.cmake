# The zip file for both kinds of Windows; scripts/package.sh builds the 32-bit half when that has not been done.
set(package "${CMAKE_CURRENT_BINARY_DIR}/package")
set(unpacked "${package}/rulecanvas-${PROJECT_VERSION}-windows")
set(microsoft_runtime "${PROJECT_SOURCE_DIR}/tests/microsoft_host")
set(wine "${PROJECT_SOURCE_DIR}/scripts/run-wine.sh")

add_test(NAME package
  COMMAND "${CMAKE_COMMAND}" -D "WORK=${package}" -D "UNPACKED=${unpacked}"
    -D "SCRIPT=${PROJECT_SOURCE_DIR}/scripts/package.sh" -P "${CMAKE_CURRENT_SOURCE_DIR}/package_test.cmake")
set_tests_properties(package PROPERTIES LABELS "install;slow" FIXTURES_SETUP package TIMEOUT 900)

function(rulecanvas_test_package bits machine dlltool_machine)
  set(emulator "${wine}")
  if(bits EQUAL 64)
    list(APPEND emulator --64)
  endif()
  rulecanvas_test_consumer(package_mingw_${bits} "${unpacked}" "c_host;minimal_host" "${emulator}"
    "-DHOSTS=${unpacked}/doc/examples" -DCMAKE_SYSTEM_NAME=Windows
    -DCMAKE_C_COMPILER=${machine}-w64-mingw32-gcc-posix -DCMAKE_CXX_COMPILER=${machine}-w64-mingw32-g++-posix
    -DCMAKE_EXE_LINKER_FLAGS=-static)
  rulecanvas_test_consumer(package_microsoft_${bits} "${unpacked}" minimal_host "${emulator}"
    "-DHOSTS=${unpacked}/doc/examples"
    "-DCMAKE_TOOLCHAIN_FILE=${CMAKE_CURRENT_SOURCE_DIR}/microsoft/toolchain.cmake"
    -DMICROSOFT_TARGET=${machine} -DDLLTOOL_MACHINE=${dlltool_machine} "-DMICROSOFT_RUNTIME=${microsoft_runtime}")
  set_tests_properties(package_mingw_${bits} package_microsoft_${bits} PROPERTIES FIXTURES_REQUIRED package)
endfunction()
rulecanvas_test_package(32 i686 i386)
rulecanvas_test_package(64 x86_64 i386:x86-64)

# The commands of the document, as they stand there.
add_test(NAME package_by_hand
  COMMAND "${CMAKE_COMMAND}" -D "UNPACKED=${unpacked}" -D "WINE=${wine}"
    -D "EXPECTED=${PROJECT_SOURCE_DIR}/tests/examples/minimal_host.txt"
    -P "${CMAKE_CURRENT_SOURCE_DIR}/by_hand.cmake")
set_tests_properties(package_by_hand PROPERTIES LABELS install FIXTURES_REQUIRED package)
