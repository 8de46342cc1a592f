set(prefix "${CMAKE_CURRENT_BINARY_DIR}/prefix")
add_test(NAME install
  COMMAND "${CMAKE_COMMAND}" -D "PREFIX=${prefix}" -D "BUILD=${PROJECT_BINARY_DIR}" -D "VERSION=${PROJECT_VERSION}"
    -P "${CMAKE_CURRENT_SOURCE_DIR}/install.cmake")
set_tests_properties(install PROPERTIES LABELS install FIXTURES_SETUP prefix)

rulecanvas_test_consumer(install_find_package "${prefix}" "c_host;minimal_host" ""
  "-DHOSTS=${PROJECT_SOURCE_DIR}/examples" ${sanitizer_options})
set_tests_properties(install_find_package PROPERTIES FIXTURES_REQUIRED prefix)

# Moved, the package still finds itself.
find_program(RULECANVAS_PKG_CONFIG pkg-config REQUIRED)
string(REPLACE ";" "," sanitizers "${RULECANVAS_SANITIZE}")
add_test(NAME install_pkg_config
  COMMAND "${CMAKE_COMMAND}" -D "PREFIX=${prefix}" -D "LIBRARY_DIR=${CMAKE_INSTALL_LIBDIR}"
    -D "WORK=${CMAKE_CURRENT_BINARY_DIR}/pkg_config" -D "COMPILER=${CMAKE_C_COMPILER}"
    -D "PKG_CONFIG=${RULECANVAS_PKG_CONFIG}" -D "SANITIZERS=${sanitizers}" -D "VERSION=${PROJECT_VERSION}"
    -D "EXAMPLES=${PROJECT_SOURCE_DIR}/examples" -D "EXPECTED=${PROJECT_SOURCE_DIR}/tests/examples"
    -P "${CMAKE_CURRENT_SOURCE_DIR}/pkg_config.cmake")
set_tests_properties(install_pkg_config PROPERTIES LABELS install FIXTURES_REQUIRED prefix)

# Another project takes the sources in. Its build is its own: the presets' sanitizers have no part in it.
function(rulecanvas_test_as_part way hosts)
  add_test(NAME install_${way}
    COMMAND "${CMAKE_COMMAND}"
      -D "SOURCE=${CMAKE_CURRENT_SOURCE_DIR}/outer_project"
      -D "WORK=${CMAKE_CURRENT_BINARY_DIR}/${way}"
      -D "HOSTS=${hosts}"
      -D "EXPECTED=${PROJECT_SOURCE_DIR}/tests/examples"
      -D "OPTIONS=-DWAY=${way};-DRULECANVAS_SOURCE=${PROJECT_SOURCE_DIR};-DCMAKE_CXX_FLAGS_RELEASE=-O0"
      -P "${CMAKE_CURRENT_SOURCE_DIR}/build_and_run.cmake")
  set_tests_properties(install_${way} PROPERTIES LABELS install)
endfunction()

rulecanvas_test_as_part(add_subdirectory minimal_host)
set_tests_properties(install_add_subdirectory PROPERTIES LABELS "install;slow")
rulecanvas_test_as_part(fetch_content "")
