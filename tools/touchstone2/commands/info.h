/// touchstone2 info: says what one file holds.
#ifndef TOUCHSTONE2_TOOL_INFO_H
#define TOUCHSTONE2_TOOL_INFO_H

#include <string>

namespace CLI {
class App;
}

namespace tool {

struct InfoOptions {
  std::string path;
  bool json = false;
};

/// @return the exit code
/// @throws std::exception  when the attempt to read the file fails
int info(const InfoOptions& options);

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_info_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
