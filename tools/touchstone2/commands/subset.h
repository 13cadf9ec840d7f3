/// touchstone2 subset: writes a file with some of its ports.
#ifndef TOUCHSTONE2_TOOL_SUBSET_H
#define TOUCHSTONE2_TOOL_SUBSET_H

#include <string>

#include "outputs/writing.h"

namespace CLI {
class App;
}

namespace tool {

struct SubsetOptions {
  std::string path;
  std::string ports;  ///< "1=in,3=out"
  WriteOptions write;
};

/// @return the exit code
int subset(const SubsetOptions& options);

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_subset_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
