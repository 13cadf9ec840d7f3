/// touchstone2 reorder: writes a file with its ports in another order.
#ifndef TOUCHSTONE2_TOOL_REORDER_H
#define TOUCHSTONE2_TOOL_REORDER_H

#include <string>

#include "command_line/command_line.h"
#include "outputs/writing.h"

namespace tool {

struct ReorderOptions {
  std::string path;
  std::string order;  ///< "4,3,2,1": port 1 of the output is port 4 of the input
  WriteOptions write;
};

/// @return the exit code
int reorder(const ReorderOptions& options);

/// Adds the command to `line`.
void add_reorder_command(CommandLine& line);

}  // namespace tool

#endif
