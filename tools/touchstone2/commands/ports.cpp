// A list of names has the form in which names are listed, so that the names of one file can be
// given to another.

#include "commands/ports.h"

#include <touchstone2/model/file.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "inputs/folder.h"
#include "inputs/path_text.h"
#include "inputs/port_list.h"
#include "terminal/console.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::File;

constexpr const char* kFooter =
    R"(Without -o the names are listed, one line PORT=NAME for each port, counted from 1;
control characters are shown as \x1b and the like. With -o the file is written in its
own version, its names in lines "! Port[1] = in" whatever form they had before.

A list for --from has the same lines; ports that it leaves out keep their names, and
--set goes before it. A name is made of printable ASCII characters without blanks
(they would be read back as "_") and "!"; an empty one removes the name.

)";

constexpr const char* kExamples = R"(

Examples:
  touchstone2 ports coupler.s4p
  touchstone2 ports coupler.s4p --set 2=out --set 3=coupled -o named.s4p
  touchstone2 ports coupler.s4p >names.txt
  touchstone2 ports other.s4p --from names.txt -o other.s4p --force)";

std::vector<std::string> lines_of(const std::string& path) {
  std::ifstream named;
  std::istringstream standard_input;
  if (path == "-") {
    standard_input.str(read_standard_input());
  } else {
    const std::filesystem::path list = to_path(path);
    named.open(openable(list), std::ios::binary);
    // Some standard libraries open a folder and find it empty.
    if (!named || is_folder(list)) throw std::runtime_error("cannot read '" + path + "'");
  }
  std::istream& text = path == "-" ? static_cast<std::istream&>(standard_input) : named;
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
  }
  if (text.bad()) throw std::runtime_error("cannot read '" + path + "'");
  return lines;
}

PortEntry parse_named_port(const std::string& where, const std::string& text) {
  PortEntry entry = parse_port_entry(where, text);
  if (!entry.name) throw std::runtime_error(where + " '" + text + "': write PORT=NAME");
  return entry;
}

std::vector<PortEntry> entries_of_list(const std::string& path) {
  std::vector<PortEntry> entries;
  const std::vector<std::string> lines = lines_of(path);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].empty()) continue;
    entries.push_back(parse_named_port(path + ":" + std::to_string(i + 1) + ":", lines[i]));
  }
  return entries;
}

void replace_names(std::vector<std::string>& names, const std::string& where,
                   const std::vector<PortEntry>& entries) {
  check_ports(where, entries, names.size());
  for (const PortEntry& entry : entries) names[entry.port - 1] = *entry.name;
}

std::string list_of(const std::vector<std::string>& names) {
  std::string list;
  for (std::size_t port = 0; port < names.size(); ++port) {
    list += std::to_string(port + 1) + "=" + printable(names[port]) + "\n";
  }
  return list;
}

void check(const PortsOptions& options) {
  const bool names_given = !options.set.empty() || !options.names_path.empty();
  if (names_given && options.write.path.empty()) {
    throw std::runtime_error("--set and --from need an output: -o OUT");
  }
  if (options.path == "-" && options.names_path == "-") {
    throw std::runtime_error("standard input cannot be both the file and the list of names");
  }
  if (!options.write.path.empty()) check_write_options(options.write);
}

}  // namespace

int ports(const PortsOptions& options) {
  check(options);
  std::vector<PortEntry> set;
  for (const std::string& text : options.set) set.push_back(parse_named_port("--set", text));
  std::vector<PortEntry> listed;
  if (!options.names_path.empty()) listed = entries_of_list(options.names_path);

  SourceFile source(options.path);
  if (!read_for_writing(source)) return kRefused;
  std::vector<std::string> names = source.file().get_port_names();
  if (options.write.path.empty()) {
    write_output(list_of(names));
    return kDone;
  }
  replace_names(names, options.names_path, listed);
  replace_names(names, "--set", set);
  File result = source.file();
  result.set_port_names(names);
  return write_result(source, result, result.get_version(), options.write);
}

void add_ports_command(CommandLine& line) {
  const auto options = std::make_shared<PortsOptions>();
  Command command = line.add_command("ports", "List port names, or write a file with others",
                                     std::string(kFooter) + kWritingHelp + kExamples);
  command.option("FILE", options->path, "A file, or - for standard input").is_required();
  command.option("--set", options->set, "Name a port, as 2=out; may be repeated")
      .shows_value_as("PORT=NAME")
      .takes_one_value_each_time();
  command.option("--from", options->names_path, "Take names from a list, or - for standard input")
      .shows_value_as("NAMES");
  add_write_options(command, options->write);
  command.runs([options] { return ports(*options); });
}

}  // namespace tool
