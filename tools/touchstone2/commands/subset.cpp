// Some ports in a given order. A port without a new name keeps its own.

#include "commands/subset.h"

#include <memory>
#include <utility>
#include <vector>

#include "inputs/port_list.h"
#include "terminal/console.h"

namespace tool {

namespace {

constexpr const char* kFooter =
    R"(The list names ports of FILE, counted from 1, in the order that they shall have in OUT,
each with a new name if it shall have one: 3=out,1 makes port 3 the first one, "out",
and port 1 the second one. The numbers are those of FILE: ports left out are matched in
S-parameters, shorted in Y-parameters and open in Z-parameters. H- and G-parameters
need both ports in their order. Noise data need both ports. The version is kept.

)";

constexpr const char* kExamples = R"(

Examples:
  touchstone2 subset coupler.s4p --ports 1=in,3=out -o pair.s2p
  touchstone2 subset coupler.s4p --ports 3 -o -)";

std::vector<std::pair<std::size_t, std::string>> selection_of(
    const std::vector<PortEntry>& entries, const std::vector<std::string>& names) {
  std::vector<std::pair<std::size_t, std::string>> selection;
  selection.reserve(entries.size());
  for (const PortEntry& entry : entries) {
    const std::size_t index = entry.port - 1;
    selection.emplace_back(index, entry.name ? *entry.name : names[index]);
  }
  return selection;
}

}  // namespace

int subset(const SubsetOptions& options) {
  check_write_options(options.write);
  const std::vector<PortEntry> entries = parse_port_list("--ports", options.ports);
  SourceFile source(options.path);
  if (!read_for_writing(source)) return kRefused;
  check_ports("--ports", entries, source.file().get_number_of_ports());
  const OwnedFile result =
      copy_of_ports(source.file(), selection_of(entries, source.file().get_port_names()));
  return write_result(source, *result.file, result.file->get_version(), options.write);
}

void add_subset_command(CommandLine& line) {
  const auto options = std::make_shared<SubsetOptions>();
  Command command = line.add_command("subset", "Write a file with some of its ports",
                                     std::string(kFooter) + kWritingHelp + kExamples);
  command.option("FILE", options->path, "A file, or - for standard input").is_required();
  command.option("--ports", options->ports, "Ports and their new names, as 1=in,3=out")
      .shows_value_as("PORTS")
      .is_required();
  add_write_options(command, options->write).is_required();
  command.runs([options] { return subset(*options); });
}

}  // namespace tool
