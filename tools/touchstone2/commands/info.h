/// touchstone2 info: says what files hold.
#ifndef TOUCHSTONE2_TOOL_INFO_H
#define TOUCHSTONE2_TOOL_INFO_H

#include <string>
#include <vector>

#include "command_line/command_line.h"

namespace tool {

struct InfoOptions {
  std::vector<std::string> paths;
  bool short_lines = false;
  bool json = false;
};

/// @return the exit code
int info(const InfoOptions& options);

/// Adds the command to `line`.
void add_info_command(CommandLine& line);

}  // namespace tool

#endif
