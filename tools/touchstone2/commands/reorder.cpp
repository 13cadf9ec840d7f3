// Every port once, in a new order.

#include "commands/reorder.h"

#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "inputs/port_list.h"
#include "terminal/console.h"
#include "text/value_text.h"

namespace tool {

namespace {

constexpr const char* kFooter =
    R"(The order lists the ports of FILE, counted from 1: with 4,3,2,1 port 1 of OUT is port 4
of FILE. Matrices, reference impedances, mixed-mode descriptors and names follow. The
version is kept. H- and G-parameters tell the two ports apart and are refused in any
other order than 1,2.

)";

constexpr const char* kExamples = R"(

Examples:
  touchstone2 reorder coupler.s4p --order 4,3,2,1 -o turned.s4p)";

std::vector<PortEntry> parse_order(const std::string& text) {
  std::vector<PortEntry> order = parse_port_list("--order", text);
  for (const PortEntry& entry : order) {
    if (entry.name) throw std::runtime_error("--order: takes no names; ports --set gives them");
  }
  return order;
}

}  // namespace

int reorder(const ReorderOptions& options) {
  check_write_options(options.write);
  const std::vector<PortEntry> order = parse_order(options.order);
  SourceFile source(options.path);
  if (!read_for_writing(source)) return kRefused;
  const std::size_t count = source.file().get_number_of_ports();
  check_ports("--order", order, count);
  if (order.size() != count) {
    throw std::runtime_error("--order: lists " + std::to_string(order.size()) + " of " +
                             count_text(count, "port", "ports"));
  }

  const std::vector<std::string>& names = source.file().get_port_names();
  std::vector<std::pair<std::size_t, std::string>> selection;
  selection.reserve(count);
  for (const PortEntry& entry : order)
    selection.emplace_back(entry.port - 1, names[entry.port - 1]);
  const OwnedFile result = copy_of_ports(source.file(), selection);
  return write_result(source, *result.file, result.file->get_version(), options.write);
}

void add_reorder_command(CommandLine& line) {
  const auto options = std::make_shared<ReorderOptions>();
  Command command = line.add_command("reorder", "Write a file with its ports in another order",
                                     std::string(kFooter) + kWritingHelp + kExamples);
  command.option("FILE", options->path, "A file, or - for standard input").is_required();
  command.option("--order", options->order, "All ports in their new order, as 4,3,2,1")
      .shows_value_as("PORTS")
      .is_required();
  add_write_options(command, options->write).is_required();
  command.runs([options] { return reorder(*options); });
}

}  // namespace tool
