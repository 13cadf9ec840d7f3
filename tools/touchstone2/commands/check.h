/// touchstone2 check: reads files and says which are valid.
#ifndef TOUCHSTONE2_TOOL_CHECK_H
#define TOUCHSTONE2_TOOL_CHECK_H

#include <cstddef>
#include <string>
#include <vector>

#include "command_line/command_line.h"

namespace tool {

struct CheckOptions {
  std::vector<std::string> paths;
  bool quiet = false;
  bool header_only = false;
  bool werror = false;
  bool json = false;
  std::string format = "text";
  std::size_t jobs = 0;  ///< 0: one for each core
};

/// @return the exit code
int check(const CheckOptions& options);

/// Adds the command to `line`.
void add_check_command(CommandLine& line);

}  // namespace tool

#endif
