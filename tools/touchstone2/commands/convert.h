/// touchstone2 convert: writes a file as version 1 or version 2.
#ifndef TOUCHSTONE2_TOOL_CONVERT_H
#define TOUCHSTONE2_TOOL_CONVERT_H

#include <string>

#include "outputs/writing.h"

namespace CLI {
class App;
}

namespace tool {

struct ConvertOptions {
  std::string path;
  std::string to;  ///< "v1", "v2", or empty for the version of the input
  WriteOptions write;
};

/// @return the exit code
int convert(const ConvertOptions& options);

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_convert_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
