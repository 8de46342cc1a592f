# What the binary interface and the equality of all builds ask of the compiler. It belongs to the library's own targets:
# whoever builds the library, by whatever toolchain file, gets the DLL that was tested.
if(MSVC)
  message(FATAL_ERROR "The library is built by GCC or Clang for MinGW; programs of Microsoft's compiler link its rulecanvas.lib")
endif()

# No multiplication and addition may be fused on one target only.
set(flags -ffp-contract=off)
set(rulecanvas_architecture "")
if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(rulecanvas_architecture x86)
  # Hosts built by the other compiler enter with a stack aligned to 4 bytes only; floats are computed as on the other
  # targets.
  list(APPEND flags -mstackrealign -msse2 -mfpmath=sse)
elseif(WIN32)
  set(rulecanvas_architecture x64)
endif()

set(rulecanvas_interface_options "")
foreach(flag IN LISTS flags)
  list(APPEND rulecanvas_interface_options "$<$<COMPILE_LANGUAGE:C,CXX>:${flag}>")
endforeach()
