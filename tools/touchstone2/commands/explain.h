/// touchstone2 explain: says what a diagnostic means and what to do about it.
#ifndef TOUCHSTONE2_TOOL_EXPLAIN_H
#define TOUCHSTONE2_TOOL_EXPLAIN_H

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tool {

struct ExplainOptions {
  std::vector<std::string> codes;
  bool list = false;  ///< all codes with their titles; `codes` is empty then
};

/// @return the exit code
int explain(const ExplainOptions& options);

/// Adds the subcommand to `app`; when it is chosen, parsing runs it and stores its exit code
/// in `exit_code`, which must outlive `app`.
void add_explain_command(CLI::App& app, int& exit_code);

}  // namespace tool

#endif
