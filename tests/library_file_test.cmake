# Looks into the library file itself: what it exports and imports, how it may be loaded, what it says about itself.
#
# usage: cmake -D LIBRARY=rulecanvas.dll -D HEADER=rulecanvas.h -D READOBJ=llvm-readobj -P library_file_test.cmake
cmake_minimum_required(VERSION 3.21)

execute_process(
  COMMAND "${READOBJ}" --file-headers --coff-exports --coff-imports --coff-resources "${LIBRARY}"
  OUTPUT_VARIABLE dump
  COMMAND_ERROR_IS_FATAL ANY)

# Puts what `pattern` captures, in order, into `result`.
function(collect result text pattern)
  string(REGEX MATCHALL "${pattern}" matches "${text}")
  list(TRANSFORM matches REPLACE "${pattern}" "\\1")
  list(SORT matches CASE INSENSITIVE)
  set(${result} "${matches}" PARENT_SCOPE)
endfunction()

function(expect_same what actual expected)
  set(missing ${expected})
  list(REMOVE_ITEM missing ${actual})
  set(surplus ${actual})
  list(REMOVE_ITEM surplus ${expected})
  foreach(kind missing surplus)
    list(LENGTH ${kind} count)
    if(count GREATER 0)
      list(SUBLIST ${kind} 0 5 first)
      message(SEND_ERROR "${what}: ${count} ${kind}, the first are ${first}")
    endif()
  endforeach()
endfunction()

file(READ "${HEADER}" header)
collect(declared "${header}" "RULECANVAS_CALL[ \n]+([A-Za-z]+)\\(")
list(LENGTH declared count)
if(NOT count EQUAL 29)
  message(SEND_ERROR "${HEADER} declares ${count} functions")
endif()

collect(exported "${dump}" "Export {[^}]*Name: ([^\n]*)")
expect_same("exports" "${exported}" "${declared}")

collect(imported "${dump}" "Import {[^}]*Name: ([^\n]*)")
expect_same("imported libraries" "${imported}" "KERNEL32.dll;msvcrt.dll")

foreach(needed IN ITEMS IMAGE_DLL_CHARACTERISTICS_DYNAMIC_BASE IMAGE_DLL_CHARACTERISTICS_NX_COMPAT "Type: VERSIONINFO")
  string(FIND "${dump}" "${needed}" place)
  if(place EQUAL -1)
    message(SEND_ERROR "not in the library file: ${needed}")
  endif()
endforeach()
