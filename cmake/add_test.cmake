include(GoogleTest)

# Declares one GoogleTest executable; every case becomes a CTest of its own.
#
#   touchstone2_add_test(<name> SOURCES <file>... LIBRARIES <target>...)
#
# Under an emulator the whole executable is one CTest: there a process is costly
# to start, and now and then one does not start at all.
function(touchstone2_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  if(arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "touchstone2_add_test(${name}): what is ${arg_UNPARSED_ARGUMENTS}?")
  endif()
  if(NOT arg_SOURCES)
    message(STATUS "${name}: no test files are listed, so it is not built")
    return()
  endif()

  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES CXX_EXTENSIONS OFF)
  target_link_libraries(${name} PRIVATE
    ${arg_LIBRARIES} touchstone2_test_support touchstone2_warnings
    touchstone2_floating_point GTest::gmock GTest::gtest_main)
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name})
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60)
  endif()
endfunction()
