/// touchstone2 subset: writes a file with some of its ports.
#ifndef TOUCHSTONE2_TOOL_SUBSET_H
#define TOUCHSTONE2_TOOL_SUBSET_H

#include <string>

#include "command_line/command_line.h"
#include "outputs/writing.h"

namespace tool {

struct SubsetOptions {
  std::string path;
  std::string ports;  ///< "1=in,3=out"
  WriteOptions write;
};

/// @return the exit code
int subset(const SubsetOptions& options);

/// Adds the command to `line`.
void add_subset_command(CommandLine& line);

}  // namespace tool

#endif
