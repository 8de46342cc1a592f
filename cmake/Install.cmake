# What `cmake --install` lays down, and what `cpack` packs. Both architectures of Windows fit into one folder: what differs
# lies in folders named x86 and x64.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(binary_dir "${CMAKE_INSTALL_BINDIR}")
set(library_dir "${CMAKE_INSTALL_LIBDIR}")
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/RuleCanvas")
set(targets_dir "${package_dir}")
set(documents_dir "${CMAKE_INSTALL_DOCDIR}")
if(WIN32)
  foreach(folder binary library targets)
    string(APPEND ${folder}_dir "/${rulecanvas_architecture}")
  endforeach()
  set(documents_dir doc)
endif()

install(TARGETS rulecanvas EXPORT RuleCanvasTargets
  RUNTIME DESTINATION "${binary_dir}"
  LIBRARY DESTINATION "${library_dir}"
  ARCHIVE DESTINATION "${library_dir}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/rulecanvas" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
if(WIN32)
  install(FILES "${PROJECT_BINARY_DIR}/rulecanvas.lib" DESTINATION "${library_dir}")
endif()

# The kit is C++ of this compiler, so its archives serve MinGW only.
if(WIN32 AND TARGET rulecanvas_kit)
  set_target_properties(rulecanvas_kit_core PROPERTIES
    INTERFACE_INCLUDE_DIRECTORIES "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/kit/include>;$<INSTALL_INTERFACE:include>")
  foreach(part kit kit_core jsoncpp)
    if(TARGET rulecanvas_${part})
      set_target_properties(rulecanvas_${part} PROPERTIES EXPORT_NAME ${part})
      install(TARGETS rulecanvas_${part} EXPORT RuleCanvasTargets ARCHIVE DESTINATION "${library_dir}")
    endif()
  endforeach()
  install(DIRECTORY "${PROJECT_SOURCE_DIR}/kit/include/" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
endif()

foreach(program rulecanvas_check rule_editor)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME DESTINATION "${binary_dir}")
  endif()
endforeach()

# Builds what is installed, and no tests.
add_custom_target(rulecanvas_installed)
foreach(target rulecanvas rulecanvas_microsoft_library rulecanvas_kit rulecanvas_check rule_editor)
  if(TARGET ${target})
    add_dependencies(rulecanvas_installed ${target})
  endif()
endforeach()

install(EXPORT RuleCanvasTargets NAMESPACE RuleCanvas:: DESTINATION "${targets_dir}")
configure_package_config_file(
  "${PROJECT_SOURCE_DIR}/cmake/package/RuleCanvasConfig.cmake.in" "${PROJECT_BINARY_DIR}/package/RuleCanvasConfig.cmake"
  INSTALL_DESTINATION "${package_dir}" NO_SET_AND_CHECK_MACRO)
# On Windows the package itself knows for which architectures it is there.
set(architectures "")
if(WIN32)
  set(architectures ARCH_INDEPENDENT)
endif()
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/RuleCanvasConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion ${architectures})
install(FILES
  "${PROJECT_BINARY_DIR}/package/RuleCanvasConfig.cmake"
  "${PROJECT_BINARY_DIR}/package/RuleCanvasConfigVersion.cmake"
  DESTINATION "${package_dir}")

# The .pc file names its folders from where it lies, so that the package may be moved.
string(REGEX REPLACE "[^/]+" ".." prefix_of_libraries "${library_dir}/pkgconfig")
configure_file(
  "${PROJECT_SOURCE_DIR}/cmake/package/rulecanvas.pc.in" "${PROJECT_BINARY_DIR}/package/rulecanvas.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/package/rulecanvas.pc" DESTINATION "${library_dir}/pkgconfig")

install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" DESTINATION "${documents_dir}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" DESTINATION "${documents_dir}")
install(DIRECTORY
  "${PROJECT_SOURCE_DIR}/examples/minimal_host"
  "${PROJECT_SOURCE_DIR}/examples/c_host"
  DESTINATION "${documents_dir}/examples")

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_VENDOR RuleCanvas)
set(CPACK_PACKAGE_NAME rulecanvas)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_BINARY_DIR}")
string(TOLOWER "${CMAKE_SYSTEM_NAME}" system)
string(JOIN "-" CPACK_PACKAGE_FILE_NAME rulecanvas ${PROJECT_VERSION} ${system} ${rulecanvas_architecture})
set(CPACK_VERBATIM_VARIABLES ON)
if(PROJECT_IS_TOP_LEVEL)
  include(CPack)
endif()
