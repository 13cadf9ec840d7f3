/// The command line: commands with their options, help, and what a command runs. Nothing outside of
/// this folder deals with the library that parses it.
#ifndef TOUCHSTONE2_TOOL_COMMAND_LINE_H
#define TOUCHSTONE2_TOOL_COMMAND_LINE_H

#include <cstddef>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace tool {

/// Thrown by a command that was not told enough or too much: the text, and a hint at --help.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An option or argument of a command; a handle, valid as long as the CommandLine.
class Option {
 public:
  explicit Option(CLI::Option& parsed) : parsed_(&parsed) {}

  /// How help shows the option's value: "FORMAT", "v1|v2".
  Option& shows_value_as(const std::string& name);
  Option& is_required();
  Option& excludes(const Option& other);
  Option& is_between(int least, int most);

  /// Of an option with a list: one value behind each mention, and all of them count.
  Option& takes_one_value_each_time();

 private:
  CLI::Option* parsed_;
};

/// A handle, valid as long as the CommandLine.
class Command {
 public:
  Command(CLI::App& parsed, int& exit_code) : parsed_(&parsed), exit_code_(&exit_code) {}

  /// @{
  /// An option ("-o,--output") or an argument ("FILE") whose value goes to `target`, which must
  /// live until the command line has been run. What `target` holds before is the default.
  Option option(const char* names, std::string& target, const char* description);
  Option option(const char* names, std::vector<std::string>& target, const char* description);
  Option option(const char* names, std::size_t& target, const char* description);
  Option option(const char* names, double& target, const char* description);
  /// @}

  /// An option without a value.
  Option flag(const char* names, bool& target, const char* description);

  /// What the command does; it returns the exit code.
  void runs(std::function<int()> action);

 private:
  CLI::App* parsed_;
  int* exit_code_;
};

class CommandLine {
 public:
  /// A tool with --help and --version.
  CommandLine(const char* description, const char* footer);
  ~CommandLine();

  /// A command, which has --help and, behind all of its options, --plain.
  /// @param footer  what its help ends with
  Command add_command(const char* name, const char* description, const std::string& footer);

  /// Runs the command that the arguments choose, or prints the help or the version.
  /// @return the command's exit code; kNotDone, and a complaint, for wrong usage
  /// @throws whatever the command throws but UsageError
  int run(std::vector<std::string> arguments);

 private:
  std::unique_ptr<CLI::App> app_;
  int exit_code_ = 0;
};

}  // namespace tool

#endif
