/// touchstone2 ports: lists the port names of a file, or writes the file with others.
#ifndef TOUCHSTONE2_TOOL_PORTS_H
#define TOUCHSTONE2_TOOL_PORTS_H

#include <string>
#include <vector>

#include "command_line/command_line.h"
#include "outputs/writing.h"

namespace tool {

struct PortsOptions {
  std::string path;
  std::vector<std::string> set;  ///< "2=out"
  std::string names_path;        ///< a list of such lines; empty for none
  WriteOptions write;
};

/// @return the exit code
int ports(const PortsOptions& options);

/// Adds the command to `line`.
void add_ports_command(CommandLine& line);

}  // namespace tool

#endif
