/// touchstone2 diff: says what two files differ in.
#ifndef TOUCHSTONE2_TOOL_DIFF_H
#define TOUCHSTONE2_TOOL_DIFF_H

#include <string>

#include "comparison/numbers.h"

namespace CLI {
class App;
}

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

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_diff_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
