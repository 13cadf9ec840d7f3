/// touchstone2 reorder: writes a file with its ports in another order.
#ifndef TOUCHSTONE2_TOOL_REORDER_H
#define TOUCHSTONE2_TOOL_REORDER_H

#include <string>

#include "outputs/writing.h"

namespace CLI {
class App;
}

namespace tool {

struct ReorderOptions {
  std::string path;
  std::string order;  ///< "4,3,2,1": port 1 of the output is port 4 of the input
  WriteOptions write;
};

/// @return the exit code
int reorder(const ReorderOptions& options);

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_reorder_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
