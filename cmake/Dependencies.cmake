# Each dependency is taken from the system where find_package knows it, else built from the source folder that
# FETCHCONTENT_SOURCE_DIR_<NAME> names; the presets set it to where scripts/setup.sh puts the sources.
include(FetchContent)

function(rulecanvas_require_source name)
  string(TOUPPER "FETCHCONTENT_SOURCE_DIR_${name}" variable)
  if(NOT EXISTS "${${variable}}/CMakeLists.txt")
    message(FATAL_ERROR "${name} is not installed and ${variable} names no source of it: run scripts/setup.sh, or set it")
  endif()
  message(STATUS "${name}: built from ${${variable}}")
endfunction()

function(rulecanvas_mark_as_system target)
  get_target_property(directories ${target} INTERFACE_INCLUDE_DIRECTORIES)
  set_target_properties(${target} PROPERTIES INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${directories}")
endfunction()

# JsonCpp's own build would leave output folders and a build type in the cache of whoever builds this library and would
# install its files with ours, so its three sources are compiled here.
function(rulecanvas_provide_jsoncpp)
  find_package(jsoncpp CONFIG QUIET)
  if(TARGET JsonCpp::JsonCpp)
    return()
  endif()
  rulecanvas_require_source(jsoncpp)
  set(source "${FETCHCONTENT_SOURCE_DIR_JSONCPP}")
  add_library(rulecanvas_jsoncpp STATIC EXCLUDE_FROM_ALL
    "${source}/src/lib_json/json_reader.cpp"
    "${source}/src/lib_json/json_value.cpp"
    "${source}/src/lib_json/json_writer.cpp")
  target_include_directories(rulecanvas_jsoncpp PUBLIC "$<BUILD_INTERFACE:${source}/include>")
  target_compile_options(rulecanvas_jsoncpp PRIVATE ${rulecanvas_interface_options})
  # The sources include <iostream> without using what it declares; its start-up code would link all file streams. This is
  # the include guard of the GNU library's.
  target_compile_definitions(rulecanvas_jsoncpp PRIVATE _GLIBCXX_IOSTREAM)
  rulecanvas_mark_as_system(rulecanvas_jsoncpp)
  add_library(JsonCpp::JsonCpp ALIAS rulecanvas_jsoncpp)
endfunction()

# A function, so that a dependency's own options can be set around the call without reaching this project.
function(rulecanvas_provide_googletest)
  find_package(GTest CONFIG QUIET)
  if(TARGET GTest::gtest)
    return()
  endif()
  set(BUILD_GMOCK OFF)
  set(INSTALL_GTEST OFF)
  rulecanvas_require_source(googletest)
  FetchContent_Declare(googletest)
  FetchContent_MakeAvailable(googletest)
  rulecanvas_mark_as_system(gtest)
  rulecanvas_mark_as_system(gtest_main)
endfunction()

rulecanvas_provide_jsoncpp()
if(RULECANVAS_TESTS)
  rulecanvas_provide_googletest()
endif()
if(RULECANVAS_BENCH)
  find_package(benchmark CONFIG QUIET)
endif()
