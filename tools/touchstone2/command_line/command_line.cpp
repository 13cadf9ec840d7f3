// The parser of the command line has exit codes of its own; they are not used.

#include "command_line/command_line.h"

#include <touchstone2/version.h>

#include <algorithm>
#include <utility>

#include <CLI/CLI.hpp>

#include "command_line/command_description.h"
#include "command_line/help_format.h"
#include "terminal/console.h"
#include "terminal/display.h"

namespace tool {

namespace {

// Thrown, as the parser's own CallForVersion is, so that nothing else of the line is looked at.
struct CallForDescription {};

std::string usage_text(const CLI::App& app, const CLI::ParseError& error) {
  if (!app.get_subcommands().empty()) return error.what();
  const std::vector<std::string> unknown = app.remaining();
  return unknown.empty() ? "no command given" : "no such command or option: " + unknown.front();
}

int usage_error(const std::string& text) {
  complain(text);
  complain("try 'touchstone2 --help' or 'touchstone2 COMMAND --help'");
  return kNotDone;
}

// CLI::App::parse takes arguments in reverse order. It would take "[a]" for a list; "./[a]"
// names the same file.
std::vector<std::string> for_parser(std::vector<std::string> arguments) {
  for (std::string& argument : arguments) {
    const bool is_list = argument.starts_with('[') && argument.ends_with(']');
    if (is_list) argument.insert(0, "./");
  }
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

}  // namespace

Option& Option::shows_value_as(const std::string& name) {
  parsed_->type_name(name);
  return *this;
}

Option& Option::is_required() {
  parsed_->required();
  return *this;
}

Option& Option::excludes(const Option& other) {
  parsed_->excludes(other.parsed_);
  return *this;
}

Option& Option::is_between(int least, int most) {
  parsed_->check(CLI::Range(least, most));
  return *this;
}

Option& Option::takes_one_value_each_time() {
  parsed_->allow_extra_args(false)->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  return *this;
}

Option Command::option(const char* names, std::string& target, const char* description) {
  return Option(*parsed_->add_option(names, target, description));
}

Option Command::option(const char* names, std::vector<std::string>& target,
                       const char* description) {
  return Option(*parsed_->add_option(names, target, description));
}

Option Command::option(const char* names, std::size_t& target, const char* description) {
  return Option(*parsed_->add_option(names, target, description));
}

Option Command::option(const char* names, double& target, const char* description) {
  return Option(*parsed_->add_option(names, target, description));
}

Option Command::flag(const char* names, bool& target, const char* description) {
  return Option(*parsed_->add_flag(names, target, description));
}

void Command::runs(std::function<int()> action) {
  parsed_->callback(
      [action = std::move(action), exit_code = exit_code_] { *exit_code = action(); });
}

CommandLine::CommandLine(const char* description, const char* footer)
    : app_(std::make_unique<CLI::App>(description, "touchstone2")) {
  app_->footer(footer);
  app_->formatter(std::make_shared<HelpFormat>());
  app_->set_version_flag("--version", "touchstone2 " TOUCHSTONE2_VERSION_STRING,
                         "Print the version and exit");
  app_->add_flag_callback("--describe-commands", [] { throw CallForDescription{}; })->group("");
  app_->require_subcommand(1);
}

CommandLine::~CommandLine() = default;

Command CommandLine::add_command(const char* name, const char* description,
                                 const std::string& footer) {
  CLI::App* const command = app_->add_subcommand(name, description);
  command->footer(footer);
  return {*command, exit_code_};
}

// The commands run inside app_->parse.
int CommandLine::run(std::vector<std::string> arguments) {
  for (CLI::App* const command : app_->get_subcommands({})) {
    command->add_flag_callback("--plain", use_plain_displays,
                               "Print plain lines to a terminal, too, as to a file or a pipe");
  }
  try {
    app_->parse(for_parser(std::move(arguments)));
  } catch (const CLI::CallForHelp&) {
    write_output(app_->help());
  } catch (const CLI::CallForVersion& version) {
    write_output(std::string(version.what()) + "\n");
  } catch (const CallForDescription&) {
    write_output(describe_commands(*app_));
  } catch (const CLI::ParseError& error) {
    return usage_error(usage_text(*app_, error));
  } catch (const UsageError& error) {
    return usage_error(error.what());
  }
  return exit_code_;
}

}  // namespace tool
