/// Where the result of a writing command goes: into a file, which is replaced as a whole or not
/// at all, or to standard output.
#ifndef TOUCHSTONE2_TOOL_OUTPUT_FILE_H
#define TOUCHSTONE2_TOOL_OUTPUT_FILE_H

#include <string>
#include <string_view>

#include "outputs/temporary_file.h"

namespace tool {

/// Complains early about an output that cannot be: one that exists and is to be kept, or that
/// is no ordinary file. "-" is standard output and always can be.
/// @throws std::runtime_error
void check_output(const std::string& path, Existing existing);

/// Writes the bytes to the file, or to standard output for "-". A file is written beside the
/// target and takes its place when it is complete; of a symbolic link the target is replaced
/// and the link stays.
/// @throws std::runtime_error, ClosedPipe; the target is then what it was before
void put_output(const std::string& path, std::string_view bytes, Existing existing);

}  // namespace tool

#endif
