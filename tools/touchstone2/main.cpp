// The command-line tool: sets up the commands and turns every way to end into an exit code.

#include <exception>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include "command_line/command_line.h"
#include "commands/check.h"
#include "commands/convert.h"
#include "commands/diff.h"
#include "commands/explain.h"
#include "commands/info.h"
#include "commands/ports.h"
#include "commands/reorder.h"
#include "commands/subset.h"
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

int run(std::vector<std::string> arguments) {
  tool::CommandLine line(kDescription, kFooter);
  tool::add_check_command(line);
  tool::add_explain_command(line);
  tool::add_info_command(line);
  tool::add_diff_command(line);
  tool::add_ports_command(line);
  tool::add_convert_command(line);
  tool::add_reorder_command(line);
  tool::add_subset_command(line);
  return line.run(std::move(arguments));
}

}  // namespace

int main(int argc, char** argv) {
  try {
    tool::prepare_streams();
    return run(tool::command_line_arguments(argc, argv));
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
