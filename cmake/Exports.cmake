# Everything that names the exported functions is made from the one list in src/api/rulecanvas.def.
set(definition_file "${PROJECT_SOURCE_DIR}/src/api/rulecanvas.def")
set(version_script "${PROJECT_BINARY_DIR}/exports/rulecanvas.map")
set(import_definition "${PROJECT_BINARY_DIR}/exports/import.def")

set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${definition_file}")
file(STRINGS "${definition_file}" export_lines REGEX "^ +[A-Za-z]+ = [A-Za-z]+@[0-9]+$")
set(names "")
set(symbols "")
set(undecorated "")
foreach(line IN LISTS export_lines)
  string(REGEX MATCH "^ +([A-Za-z]+) = ([A-Za-z]+@[0-9]+)$" matched "${line}")
  string(APPEND names "    ${CMAKE_MATCH_1};\n")
  string(APPEND symbols "    ${CMAKE_MATCH_2}\n")
  string(APPEND undecorated "    ${CMAKE_MATCH_1}\n")
endforeach()
file(CONFIGURE OUTPUT "${version_script}" CONTENT "{\n  global:\n${names}  local:\n    *;\n};\n")
if(rulecanvas_architecture STREQUAL "x64")
  # Symbols carry no decoration there, so one list serves the linker and the import library.
  set(symbols "${undecorated}")
  set(definition_file "${import_definition}")
  set(machine i386:x86-64)
else()
  set(machine i386)
endif()
file(CONFIGURE OUTPUT "${import_definition}" CONTENT "LIBRARY rulecanvas.dll\nEXPORTS\n${symbols}")

# -k keeps the decoration in the symbol that a host links and drops it from the name that is looked up in the DLL. The
# linker's own import library would offer undecorated symbols only, which no declaration of a host refers to.
function(rulecanvas_decorate_import_library target)
  find_program(RULECANVAS_DLLTOOL NAMES i686-w64-mingw32-dlltool dlltool REQUIRED)
  add_custom_command(
    TARGET ${target} POST_BUILD
    COMMAND "${RULECANVAS_DLLTOOL}" -m i386 -k -d "${import_definition}" -l "$<TARGET_LINKER_FILE:${target}>"
    VERBATIM)
endfunction()

# Exports exactly the listed functions from the shared library `target`.
function(rulecanvas_export_functions target)
  if(NOT WIN32)
    target_link_options(${target} PRIVATE "LINKER:--version-script=${version_script}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${version_script}")
    return()
  endif()

  target_sources(${target} PRIVATE "${definition_file}")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${definition_file}")
  target_link_options(${target} PRIVATE "LINKER:--exclude-all-symbols,--enable-stdcall-fixup")
  if(rulecanvas_architecture STREQUAL "x86")
    rulecanvas_decorate_import_library(${target})
  endif()

  find_program(RULECANVAS_LLVM_DLLTOOL llvm-dlltool REQUIRED)
  set(microsoft_library "${PROJECT_BINARY_DIR}/rulecanvas.lib")
  add_custom_command(
    OUTPUT "${microsoft_library}"
    COMMAND "${RULECANVAS_LLVM_DLLTOOL}" -m ${machine} -k -d "${import_definition}" -l "${microsoft_library}"
    DEPENDS "${import_definition}"
    COMMENT "Import library for Microsoft's linker: rulecanvas.lib"
    VERBATIM)
  add_custom_target(${target}_microsoft_library ALL DEPENDS "${microsoft_library}")
endfunction()
