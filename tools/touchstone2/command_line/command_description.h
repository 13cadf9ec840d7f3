/// The tool's own commands as JSON: what the manual and the shell completions are made from.
#ifndef TOUCHSTONE2_TOOL_COMMAND_DESCRIPTION_H
#define TOUCHSTONE2_TOOL_COMMAND_DESCRIPTION_H

#include <string>

namespace CLI {
class App;
}

namespace tool {

/// One line of JSON: name, version, description, footer, options and commands; a command has the
/// same members but version and commands. An option has names ("-q,--quiet"; of a positional its
/// placeholder), positional, value (how its value is shown, "" for a flag), many, required,
/// excludes and description. Hidden options are left out.
std::string describe_commands(const CLI::App& app);

}  // namespace tool

#endif
