// The command-line tool: sets up the subcommands and turns every way to end into an exit
// code. The parser of the command line has exit codes of its own; they are not used.

#include <touchstone2/version.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "commands/check.h"
#include "commands/convert.h"
#include "commands/diff.h"
#include "commands/explain.h"
#include "commands/help_format.h"
#include "commands/info.h"
#include "commands/ports.h"
#include "commands/reorder.h"
#include "commands/subset.h"
#include "json/command_description.h"
#include "terminal/console.h"

namespace {

constexpr const char* kDescription =
    "Reads, checks, describes and changes Touchstone files (*.sNp, *.ts).";

constexpr const char* kFooter = R"(Examples:
  touchstone2 check measurements/
  touchstone2 explain E2311
  touchstone2 info amplifier.s2p
  touchstone2 diff before.s2p after.s2p
  touchstone2 ports coupler.s4p --set 1=in -o named.s4p
  touchstone2 convert amplifier.s2p --to v2 -o amplifier.ts
  touchstone2 check --help)";

// Thrown, as the parser's own CallForVersion is, so that nothing else of the line is looked at.
struct CallForDescription {};

std::string usage_text(const CLI::App& app, const CLI::ParseError& error) {
  if (!app.get_subcommands().empty()) return error.what();
  const std::vector<std::string> unknown = app.remaining();
  return unknown.empty() ? "no command given" : "no such command or option: " + unknown.front();
}

int usage_error(const CLI::App& app, const CLI::ParseError& error) {
  tool::complain(usage_text(app, error));
  tool::complain("try 'touchstone2 --help' or 'touchstone2 COMMAND --help'");
  return tool::kNotDone;
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

// The subcommands run inside app.parse.
int run(std::vector<std::string> arguments) {
  int exit_code = tool::kAllValid;
  CLI::App app(kDescription, "touchstone2");
  app.footer(kFooter);
  app.formatter(std::make_shared<tool::HelpFormat>());
  app.set_version_flag("--version", "touchstone2 " TOUCHSTONE2_VERSION_STRING,
                       "Print the version and exit");
  app.add_flag_callback("--describe-commands", [] { throw CallForDescription{}; })->group("");
  app.require_subcommand(1);
  tool::add_check_command(app, exit_code);
  tool::add_explain_command(app, exit_code);
  tool::add_info_command(app, exit_code);
  tool::add_diff_command(app, exit_code);
  tool::add_ports_command(app, exit_code);
  tool::add_convert_command(app, exit_code);
  tool::add_reorder_command(app, exit_code);
  tool::add_subset_command(app, exit_code);
  try {
    app.parse(std::move(arguments));
  } catch (const CLI::CallForHelp&) {
    tool::write_output(app.help());
  } catch (const CLI::CallForVersion& version) {
    tool::write_output(std::string(version.what()) + "\n");
  } catch (const CallForDescription&) {
    tool::write_output(tool::json_line(tool::commands_to_json(app)));
  } catch (const CLI::ParseError& error) {
    return usage_error(app, error);
  }
  return exit_code;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    tool::prepare_streams();
    return run(for_parser(tool::command_line_arguments(argc, argv)));
  } catch (const tool::ClosedPipe&) {
    return tool::kClosedPipe;
  } catch (const tool::Refusal& refusal) {
    tool::complain(refusal.what());
    return tool::kRefused;
  } catch (const std::bad_alloc&) {
    tool::complain("out of memory");
  } catch (const std::exception& error) {
    tool::complain(error.what());
  }
  return tool::kNotDone;
}
