// A page about one file. Comments and names come from the file and are shown with control
// characters made visible.

#include "commands/info.h"

#include <touchstone2/model/file.h>

#include <memory>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "diagnostics/report.h"
#include "inputs/source_file.h"
#include "json/json_report.h"
#include "terminal/console.h"
#include "terminal/display.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::File;

constexpr const char* kFooter =
    R"(Tells version, ports, parameters, frequencies, references, noise, comments and port
names. Errors and warnings go to standard error; of a refused file nothing else is
printed. Control characters in comments and names are shown as \x1b and the like.

JSON: one object with the members of "check --json" and, of a valid file, "file".
Bytes that are not UTF-8 become U+FFFD.

Exit code: 0 the file is valid; 1 it was refused; 2 wrong usage, no memory, or output
that cannot be written; 141 the reader of standard output has gone away.

Examples:
  touchstone2 info amplifier.s2p
  touchstone2 info --json filter.s2p)";

// One line "label   text"; the texts stand below each other.
void add_row(std::string& page, std::string_view label, std::string_view text) {
  constexpr std::size_t kTextColumn = 16;
  page.append(label).append(kTextColumn - label.size(), ' ').append(text).append("\n");
}

// "21, 1 GHz to 20 GHz"; "none" without points.
template <typename Params>
std::string sweep_text(const Params* params, touchstone2::FrequencyScaleFactor unit) {
  const std::size_t points = params == nullptr ? 0 : params->freq_points();
  if (points == 0) return "none";
  std::string text =
      std::to_string(points) + ", " + frequency_text(params->get_unscaled_freq(0), unit);
  if (points == 1) return text;
  return text + " to " + frequency_text(params->get_unscaled_freq(points - 1), unit);
}

std::string reference_text(const File& file) {
  if (!file.uses_reference_impedance_per_port()) {
    return number_text(file.get_reference_impedance()) + " ohm";
  }
  std::string text;
  for (const double ohms : file.get_reference_impedance_per_port()) text += number_text(ohms) + " ";
  return text + "ohm (port by port)";
}

void add_comments(std::string& page, std::string_view label,
                  const std::vector<std::string>& comments) {
  add_row(page, label, count_text(comments.size(), "line", "lines"));
  for (const std::string& line : comments) page += "  !" + printable(line) + "\n";
}

void add_port_names(std::string& page, const File& file) {
  const std::vector<std::string>& names = file.get_port_names();
  for (std::size_t port = 0; port < names.size(); ++port) {
    if (names[port].empty()) continue;
    add_row(page, "port " + std::to_string(port + 1), printable(names[port]));
  }
}

std::string page_about(const File& file) {
  const auto unit = file.get_frequency_scale_factor();
  std::string page;
  add_row(page, "file", printable(file.get_filename()));
  add_row(page, "version", version_text(file.get_version()));
  add_row(page, "ports", std::to_string(file.get_number_of_ports()));
  add_row(page, "parameter", parameter_text(file.get_parameter_type()));
  add_row(page, "format", format_text(file.get_complex_format()));
  add_row(page, "unit", unit_text(unit));
  add_row(page, "points", sweep_text(file.get_network_params(), unit));
  add_row(page, "noise points", sweep_text(file.get_noise_params(), unit));
  add_row(page, "reference", reference_text(file));
  add_row(page, "matrix", matrix_text(file.get_matrix_format()));
  if (file.get_number_of_ports() == 2) {
    add_row(page, "two-port order", order_text(file.get_two_port_data_order()));
  }
  add_row(page, "mixed mode", mixed_mode_text(file));
  add_row(page, "information", file.has_information_section() ? "yes" : "no");
  add_port_names(page, file);
  add_comments(page, "comments", file.get_leading_comments());
  if (!file.get_other_comments().empty()) {
    add_comments(page, "in the data", file.get_other_comments());
  }
  return page;
}

int info_as_json(SourceFile& source) {
  CollectingHandler handler;
  const bool valid = source.read(handler, Extent::whole);
  Json object = verdict_to_json(source.name(), valid, handler.diagnostics());
  if (valid) object["file"] = file_to_json(source.file());
  write_output(json_line(object));
  return valid ? kAllValid : kRefused;
}

int info_as_text(SourceFile& source) {
  if (!read_and_print(source, Extent::whole)) return kRefused;
  write_output(page_about(source.file()));
  return kAllValid;
}

}  // namespace

int info(const InfoOptions& options) {
  SourceFile source(options.path);
  return options.json ? info_as_json(source) : info_as_text(source);
}

void add_info_command(CLI::App& app, int& exit_code) {
  const auto options = std::make_shared<InfoOptions>();
  CLI::App* command = app.add_subcommand("info", "Say what a file holds");
  command->footer(kFooter);
  command->add_option("PATH", options->path, "A file, or - for standard input")->required();
  command->add_flag("--json", options->json,
                    "Print JSON instead, and no diagnostics to standard error");
  add_plain_option(*command);
  command->callback([options, &exit_code] { exit_code = info(*options); });
}

}  // namespace tool
