# Warnings for this project's own code, in its own build tree only; third-party headers are system headers and stay out
# of it.
# -Wnon-virtual-dtor is absent on purpose: the drawing surface is an abstract class without a virtual destructor,
# because compilers lay virtual destructors out differently and hosts may be built by another one.

set(common_warnings
  -Wall
  -Wextra
  -Werror
  -Wcast-align
  -Wconversion
  -Wformat=2
  -Wimplicit-fallthrough
  -Wold-style-cast
  -Woverloaded-virtual
  -Wshadow
  -Wsign-conversion
  -Wundef
  -Wunused
)
if(NOT WIN32)
  # For Windows it would reject what hosts of the other compiler need: function pointers with the convention of members.
  list(APPEND common_warnings -Wpedantic)
endif()
set(gcc_warnings
  -Wduplicated-branches
  -Wduplicated-cond
  -Wlogical-op
)

add_compile_options(
  "$<$<COMPILE_LANGUAGE:CXX>:${common_warnings}>"
  "$<$<COMPILE_LANG_AND_ID:CXX,GNU>:${gcc_warnings}>"
)
