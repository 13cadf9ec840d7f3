// A page or a line about each file. Comments and names come from the file and are shown with
// control characters made visible.

#include "commands/info.h"

#include <touchstone2/model/file.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "commands/input_reading.h"
#include "diagnostics/report.h"
#include "inputs/input_files.h"
#include "inputs/source_file.h"
#include "json/json_report.h"
#include "terminal/console.h"
#include "terminal/display.h"
#include "text/even_step.h"
#include "text/table.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::File;
using touchstone2::FrequencyScaleFactor;

constexpr const char* kFooter =
    R"(Tells version, ports, parameters, frequencies, references, noise, comments and port
names, a page for each file. Errors and warnings go to standard error; of a refused
file it is only said that it is. Control characters in comments and names are shown as
\x1b and the like. A PATH may be a file, a folder or "-" as for "check".

A step is told if it is the same everywhere as a decimal number: from 0.1, 0.2, 0.3, and
not from 0, 0.333, 0.667, 1.

With --short: path, version, ports, parameter and format, points, range, reference and
noise points, one line for each file.

JSON: one object a line with the members of "check --json" and, of a valid file, "file".
Bytes that are not UTF-8 become U+FFFD.

Exit code: 0 all files are valid; 1 a file was refused; 2 something could not be read:
wrong usage, a folder that cannot be read or holds no such files, no memory, output that
cannot be written; 141 the reader of standard output has gone away.

Examples:
  touchstone2 info amplifier.s2p
  touchstone2 info --short measurements/
  touchstone2 info --json filter.s2p)";

// One line "label   text"; the texts stand below each other.
void add_row(std::string& page, std::string_view label, std::string_view text) {
  constexpr std::size_t kTextColumn = 16;
  page.append(label).append(kTextColumn - label.size(), ' ').append(text).append("\n");
}

// NetworkParams or NoiseParams, or null.
template <typename Params>
std::size_t points_of(const Params* params) {
  return params == nullptr ? 0 : params->freq_points();
}

// "1 GHz to 20 GHz"; there is at least one point.
template <typename Params>
std::string range_text(const Params& params, FrequencyScaleFactor unit) {
  const std::size_t points = params.freq_points();
  std::string text = frequency_text(params.get_unscaled_freq(0), unit);
  if (points == 1) return text;
  return text + " to " + frequency_text(params.get_unscaled_freq(points - 1), unit);
}

// "20, 1 GHz to 20 GHz, step 1 GHz"; "none" without points.
template <typename Params>
std::string sweep_text(const Params* params, FrequencyScaleFactor unit) {
  const std::size_t points = points_of(params);
  if (points == 0) return "none";
  const std::string text = std::to_string(points) + ", " + range_text(*params, unit);
  const std::optional<double> step =
      even_step(points, [params](std::size_t index) { return params->get_unscaled_freq(index); });
  return step ? text + ", step " + frequency_text(*step, unit) : text;
}

bool are_all_equal(const std::vector<double>& values) {
  return std::adjacent_find(values.begin(), values.end(), std::not_equal_to<>()) == values.end();
}

// "75 50 ohm", or "50 ohm" when all ports have the same.
std::string ohms_text(const File& file) {
  const std::vector<double>& of_ports = file.get_reference_impedance_per_port();
  if (!file.uses_reference_impedance_per_port()) {
    return number_text(file.get_reference_impedance()) + " ohm";
  }
  if (are_all_equal(of_ports)) return number_text(of_ports.front()) + " ohm";
  std::string text;
  for (const double ohms : of_ports) text += number_text(ohms) + " ";
  return text + "ohm";
}

std::string reference_text(const File& file) {
  return ohms_text(file) + (file.uses_reference_impedance_per_port() ? " (port by port)" : "");
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

// The text with blanks in front of it or behind it.
std::string right(const std::string& text, std::size_t width) {
  return std::string(width - std::min(width, width_of(text)), ' ') + text;
}
std::string left(const std::string& text, std::size_t width) {
  return text + std::string(width - std::min(width, width_of(text)), ' ');
}

std::string short_ohms_text(const File& file) {
  constexpr std::size_t kLongest = 24;
  const std::string text = ohms_text(file);
  return text.size() > kLongest ? "by port" : text;
}

// The columns behind the path are as wide as usual files need them; a wider text moves the rest
// of its own line.
std::string columns_about(const File& file) {
  const auto* network = file.get_network_params();
  const auto unit = file.get_frequency_scale_factor();
  const std::size_t points = points_of(network);
  const std::size_t noise_points = points_of(file.get_noise_params());
  std::string line = left("v" + std::string(version_text(file.get_version())), 4);
  line += right(count_text(file.get_number_of_ports(), "port ", "ports"), 10) + "  ";
  line += std::string(parameter_text(file.get_parameter_type())) + " ";
  line += std::string(format_text(file.get_complex_format()));
  line += right(count_text(points, "point ", "points"), 13) + "  ";
  line += left(points == 0 ? "" : range_text(*network, unit), 20) + "  ";
  line += left(short_ohms_text(file), 9) + "  ";
  if (noise_points != 0) line += count_text(noise_points, "noise point", "noise points");
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

// Tells of the inputs one by one, each as soon as it is read.
class Teller {
 public:
  Teller(const InfoOptions& options, const std::vector<std::string>& paths) : options_(options) {
    for (const std::string& path : paths) {
      path_width_ = std::max(path_width_, width_of(printable(SourceFile(path).name())));
    }
  }

  Outcome tell(const std::string& path) {
    SourceFile source(path);
    return options_.json ? tell_as_json(source) : tell_as_text(source);
  }

  /// Of the first refused file, if the pages were texts.
  const std::string& error_code() const { return error_code_; }

 private:
  static Outcome tell_as_json(SourceFile& source) {
    Json object = versioned_object();
    const Outcome outcome = read_to_json(source, object);
    if (outcome == Outcome::failed) return outcome;
    if (outcome == Outcome::valid) object["file"] = file_to_json(source.file());
    write_output(json_line(object));
    return outcome;
  }

  Outcome tell_as_text(SourceFile& source) {
    const Outcome outcome = read_to_text(source, error_code_);
    if (outcome == Outcome::failed) return outcome;
    write_output(options_.short_lines ? line_about(source, outcome) : page_of(source, outcome));
    return outcome;
  }

  std::string line_about(const SourceFile& source, Outcome outcome) const {
    const std::string path = left(printable(source.name()), path_width_) + "  ";
    return path + (outcome == Outcome::valid ? columns_about(source.file()) : "refused") + "\n";
  }

  // Pages are separated by an empty line.
  std::string page_of(const SourceFile& source, Outcome outcome) {
    const std::string start = is_first_ ? "" : "\n";
    is_first_ = false;
    if (outcome == Outcome::valid) return start + page_about(source.file());
    return start + printable(source.name()) + ": refused\n";
  }

  const InfoOptions& options_;
  std::string error_code_;
  std::size_t path_width_ = 0;
  bool is_first_ = true;
};

}  // namespace

int info(const InfoOptions& options) {
  const InputList inputs = expand_paths(options.paths);
  for (const std::string& problem : inputs.problems) complain(problem);
  bool done = inputs.problems.empty();
  bool valid = true;
  Teller teller(options, inputs.paths);
  for (const std::string& path : inputs.paths) {
    const Outcome outcome = teller.tell(path);
    if (outcome == Outcome::failed) done = false;
    if (outcome == Outcome::refused) valid = false;
  }
  write_error(explain_hint(teller.error_code()));
  if (!done) return kNotDone;
  return valid ? kAllValid : kRefused;
}

void add_info_command(CommandLine& line) {
  const auto options = std::make_shared<InfoOptions>();
  Command command = line.add_command("info", "Say what files hold", kFooter);
  command.option("PATH", options->paths, "Files, folders, or - for standard input").is_required();
  const Option short_lines =
      command.flag("--short", options->short_lines, "Print one line for each file");
  command
      .flag("--json", options->json,
            "Print JSON Lines instead, and no diagnostics to standard error")
      .excludes(short_lines);
  command.runs([options] { return info(*options); });
}

}  // namespace tool
