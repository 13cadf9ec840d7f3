/// touchstone2 convert: writes a file as version 1 or version 2.
#ifndef TOUCHSTONE2_TOOL_CONVERT_H
#define TOUCHSTONE2_TOOL_CONVERT_H

#include <string>

#include "command_line/command_line.h"
#include "outputs/writing.h"

namespace tool {

struct ConvertOptions {
  std::string path;
  std::string to;  ///< "v1", "v2", or empty for the version of the input
  WriteOptions write;
};

/// @return the exit code
int convert(const ConvertOptions& options);

/// Adds the command to `line`.
void add_convert_command(CommandLine& line);

}  // namespace tool

#endif
