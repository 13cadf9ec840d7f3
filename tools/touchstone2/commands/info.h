/// touchstone2 info: says what files hold.
#ifndef TOUCHSTONE2_TOOL_INFO_H
#define TOUCHSTONE2_TOOL_INFO_H

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tool {

struct InfoOptions {
  std::vector<std::string> paths;
  bool short_lines = false;
  bool json = false;
};

/// @return the exit code
int info(const InfoOptions& options);

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_info_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
