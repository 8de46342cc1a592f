# Settings of this project's own build tree. A project that takes the library in as a part never sees them.

# One folder for the library and all programs: Windows programs find the DLL beside them.
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")

# Tests compare floats that they compute themselves with those of the library.
add_compile_options(${rulecanvas_interface_options})

if(RULECANVAS_SANITIZE)
  string(REPLACE ";" "," sanitizers "${RULECANVAS_SANITIZE}")
  add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${sanitizers})
  # The surface of a host in C or Python is a table and no object of a C++ class, which is the binary interface's purpose.
  add_compile_options(-fno-sanitize=vptr)
endif()
if(RULECANVAS_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(RULECANVAS_COVERAGE)
  add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
  add_link_options(-fprofile-instr-generate)
endif()
