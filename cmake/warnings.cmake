# Compiler flags, carried by two INTERFACE targets that are never installed.

add_library(touchstone2_warnings INTERFACE)
if(MSVC)
  target_compile_options(touchstone2_warnings INTERFACE
    /W4 /permissive- $<$<BOOL:${TOUCHSTONE2_WERROR}>:/WX>)
else()
  target_compile_options(touchstone2_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${TOUCHSTONE2_WERROR}>:-Werror>)
  # gcc 12 sees an overlapping memcpy in "literal" + std::string where none is.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(touchstone2_warnings INTERFACE -Wno-restrict)
  endif()
endif()

# The order of floating-point operations is part of the library's result: no
# multiplication and addition may be fused into one rounding.
add_library(touchstone2_floating_point INTERFACE)
if(MSVC)
  target_compile_options(touchstone2_floating_point INTERFACE /fp:precise)
else()
  target_compile_options(touchstone2_floating_point INTERFACE -ffp-contract=off)
endif()
