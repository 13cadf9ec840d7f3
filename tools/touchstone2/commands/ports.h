/// touchstone2 ports: lists the port names of a file, or writes the file with others.
#ifndef TOUCHSTONE2_TOOL_PORTS_H
#define TOUCHSTONE2_TOOL_PORTS_H

#include <string>
#include <vector>

#include "outputs/writing.h"

namespace CLI {
class App;
}

namespace tool {

struct PortsOptions {
  std::string path;
  std::vector<std::string> set;  ///< "2=out"
  std::string names_path;        ///< a list of such lines; empty for none
  WriteOptions write;
};

/// @return the exit code
int ports(const PortsOptions& options);

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_ports_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
