/// touchstone2 diff: says what two files differ in.
#ifndef TOUCHSTONE2_TOOL_DIFF_H
#define TOUCHSTONE2_TOOL_DIFF_H

#include <string>

#include "command_line/command_line.h"
#include "comparison/numbers.h"

namespace tool {

struct DiffOptions {
  std::string path_a;
  std::string path_b;
  Tolerance tolerance;
  bool strict = false;
  bool json = false;
};

/// @return the exit code
/// @throws std::exception  when the attempt to read a file fails
int diff(const DiffOptions& options);

/// Adds the command to `line`.
void add_diff_command(CommandLine& line);

}  // namespace tool

#endif
