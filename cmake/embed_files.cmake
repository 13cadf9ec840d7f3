# Writes a C++ source that holds files byte for byte, as one function:
#
#   touchstone2_embed_files(<source> HEADER <header> FUNCTION <name> FILES <file>...)
#
# <header> declares tool::EmbeddedFile and "std::span<const EmbeddedFile> <name>()" in
# the namespace tool. The source is written when CMake runs, which it does again
# after a change of any of the files; it is touched only if its text has changed.
function(touchstone2_embed_files source)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADER;FUNCTION" "FILES")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${arg_FILES})

  set(entries "")
  foreach(file IN LISTS arg_FILES)
    cmake_path(GET file FILENAME name)
    file(READ "${file}" hex HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" literal "${hex}")
    # 20 bytes a line, so that editors and compilers can take it.
    string(REPEAT "...." 20 line)
    string(REGEX REPLACE "(${line})" "\\1\"\n     \"" literal "${literal}")
    string(APPEND entries "    {\"${name}\",\n     \"${literal}\"sv},\n")
  endforeach()

  file(CONFIGURE OUTPUT "${source}" @ONLY CONTENT
[[// Made by CMake out of the files named below.
#include "@arg_HEADER@"

namespace tool {

namespace {

using namespace std::string_view_literals;

constexpr EmbeddedFile kFiles[] = {
@entries@};

}  // namespace

std::span<const EmbeddedFile> @arg_FUNCTION@() { return kFiles; }

}  // namespace tool
]])
endfunction()
