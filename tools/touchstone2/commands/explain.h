/// touchstone2 explain: says what a diagnostic means and what to do about it.
#ifndef TOUCHSTONE2_TOOL_EXPLAIN_H
#define TOUCHSTONE2_TOOL_EXPLAIN_H

#include <string>
#include <vector>

#include "command_line/command_line.h"

namespace tool {

struct ExplainOptions {
  std::vector<std::string> codes;
  bool list = false;  ///< all codes with their titles; `codes` is empty then
};

/// @return the exit code
int explain(const ExplainOptions& options);

/// Adds the command to `line`.
void add_explain_command(CommandLine& line);

}  // namespace tool

#endif
