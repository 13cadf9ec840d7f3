# What is built, and how it is instrumented. A project that takes this one in
# with add_subdirectory gets the library and nothing else.

option(TOUCHSTONE2_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(TOUCHSTONE2_TOOLS "Build the command-line tool" ${PROJECT_IS_TOP_LEVEL})
option(TOUCHSTONE2_BINDING "Build the module for the host application's scripts"
       ${PROJECT_IS_TOP_LEVEL})
set(TOUCHSTONE2_WUX_LIBRARY "" CACHE FILEPATH
    "The host's script runtime; without it the module is built for the tests only")
option(TOUCHSTONE2_EXAMPLES "Build the example programs" ${PROJECT_IS_TOP_LEVEL})
option(TOUCHSTONE2_INSTALL "Provide the install rules" ${PROJECT_IS_TOP_LEVEL})
option(TOUCHSTONE2_DEBIAN "Install and pack as Debian packages want it" OFF)
option(TOUCHSTONE2_BENCH "Build the benchmarks" OFF)
option(TOUCHSTONE2_FUZZ "Build the fuzz targets" OFF)
option(TOUCHSTONE2_WERROR "Treat warnings as errors" OFF)
option(TOUCHSTONE2_COVERAGE "Count executed lines (gcc, clang)" OFF)
set(TOUCHSTONE2_SANITIZE "" CACHE STRING
    "Sanitizers for everything built here, as -fsanitize= takes them: address,undefined")

if(PROJECT_IS_TOP_LEVEL)
  option(BUILD_SHARED_LIBS "Build a shared library; OFF gives a static one" ON)
  if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Type of build" FORCE)
  endif()
endif()

# These two are for the whole directory tree and not for single targets: a
# sanitizer has to see every object of a process, the test framework's too.
if(TOUCHSTONE2_SANITIZE)
  add_compile_options("-fsanitize=${TOUCHSTONE2_SANITIZE}" -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options("-fsanitize=${TOUCHSTONE2_SANITIZE}")
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # gcc loses track among the sanitizer's own code and warns of what is initialized.
    add_compile_options(-Wno-maybe-uninitialized)
  endif()
endif()
if(TOUCHSTONE2_COVERAGE)
  add_compile_options(--coverage -fprofile-abs-path)
  add_link_options(--coverage)
endif()
