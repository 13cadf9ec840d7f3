// A file that cannot be compared is trouble, be it refused or unreadable: exit code 1 is for
// files that were compared and differ.

#include "commands/diff.h"

#include <cmath>
#include <memory>
#include <stdexcept>
#include <string_view>

#include <nlohmann/json.hpp>

#include "commands/input_reading.h"
#include "comparison/comparison.h"
#include "comparison/comparison_text.h"
#include "diagnostics/report.h"
#include "inputs/source_file.h"
#include "json/comparison_json.h"
#include "json/json_report.h"
#include "terminal/console.h"
#include "terminal/display.h"
#include "text/value_text.h"

namespace tool {

namespace {

constexpr const char* kFooter =
    R"(Content: ports, kind of parameter, reference impedances, mixed-mode order, port names,
frequencies, values, noise data. Form: version, unit, format, matrix, two-port order,
references given port by port, an information section, comments at the head. Of Y-, Z-,
H- and G-parameters without noise data the reference impedance is form. Files that
differ in form only are equal, unless --strict is given.

Frequencies are compared exactly, in Hz: 1 GHz is 1000 MHz. With --frequency-tol F a
frequency goes with the nearest one of the other file, if the two lie no further apart
than F times the greater one.

Values a and b are compared as complex numbers, ratios or in ohms or siemens, whatever
the format and the version. Their difference is

    |a - b| / max(U, |a|, |b|)

where U is 1 for ratios such as S-parameters, the reference impedance for impedances
and its inverse for admittances. Values are equal if the difference is at most TOL.
So TOL is relative for great values and absolute for small ones, and a difference that
is shown is the TOL that would do. The same holds for noise data (the noise figure in
dB); reference impedances are compared with U = 0.

Without --tol values have to be the same numbers. Where a file's numbers had to be
converted first (MA and RI; ohms and multiples of the reference) rounding is allowed:
|a - b| up to 1e-13 max(|a|, |b|) + 1e-299, as -6000 dB stand for zero.

JSON: one object with the files' diagnostics, equal, content, form, comments, network and
noise; docs/schemas/diff-1.json describes it.

Exit code: 0 the files are equal; 1 they differ; 2 a file was refused or could not be
read, wrong usage, no memory, or output that cannot be written; 141 the reader of
standard output has gone away.

Examples:
  touchstone2 diff before.s2p after.s2p
  touchstone2 diff simulated.s4p measured.s4p --tol 0.01 --frequency-tol 1e-9
  unzip -p archive.zip filter.s2p | touchstone2 diff - filter.s2p --json)";

void check_tolerance(const char* option, double value) {
  if (std::isfinite(value) && value >= 0.0) return;
  throw std::runtime_error(std::string(option) + " is a number from 0 upwards");
}

void check(const DiffOptions& options) {
  check_tolerance("--tol", options.tolerance.values);
  check_tolerance("--frequency-tol", options.tolerance.frequencies);
  if (options.path_a == "-" && options.path_b == "-") {
    throw std::runtime_error("standard input cannot be both files");
  }
}

bool are_equal(const Comparison& comparison, const DiffOptions& options) {
  return comparison.same_content() && (comparison.same_form() || !options.strict);
}

std::string_view verdict_on(const Comparison& comparison) {
  if (!comparison.same_content()) return "different";
  return comparison.same_form() ? "equal" : "equal but for the form";
}

int diff_as_json(SourceFile& a, SourceFile& b, const DiffOptions& options) {
  Json object = versioned_object();
  const Outcome of_a = read_to_json(a, object["a"]);
  const Outcome of_b = read_to_json(b, object["b"]);
  if (of_a == Outcome::failed || of_b == Outcome::failed) return kNotDone;
  object["tolerance"] = options.tolerance.values;
  object["frequency_tolerance"] = options.tolerance.frequencies;
  object["equal"] = nullptr;
  int exit_code = kNotDone;
  if (of_a == Outcome::valid && of_b == Outcome::valid) {
    const Comparison comparison = compare(a.file(), b.file(), options.tolerance);
    const bool equal = are_equal(comparison, options);
    object["equal"] = equal;
    add_comparison(object, comparison);
    exit_code = equal ? kEqual : kDifferent;
  }
  write_output(json_line(object));
  return exit_code;
}

int diff_as_text(SourceFile& a, SourceFile& b, const DiffOptions& options) {
  std::string first_error;
  const Outcome of_a = read_to_text(a, first_error);
  const Outcome of_b = read_to_text(b, first_error);
  write_error(explain_hint(first_error));
  if (of_a != Outcome::valid || of_b != Outcome::valid) return kNotDone;
  const Comparison comparison = compare(a.file(), b.file(), options.tolerance);
  std::string page = "A: " + printable(a.name()) + "\nB: " + printable(b.name()) + "\n\n";
  page.append(comparison_text(comparison)).append(verdict_on(comparison)).append("\n");
  write_output(page);
  return are_equal(comparison, options) ? kEqual : kDifferent;
}

}  // namespace

int diff(const DiffOptions& options) {
  check(options);
  SourceFile a(options.path_a);
  SourceFile b(options.path_b);
  return options.json ? diff_as_json(a, b, options) : diff_as_text(a, b, options);
}

void add_diff_command(CommandLine& line) {
  const auto options = std::make_shared<DiffOptions>();
  Command command = line.add_command("diff", "Say what two files differ in", kFooter);
  command.option("A", options->path_a, "A file, or - for standard input").is_required();
  command.option("B", options->path_b, "Another one").is_required();
  command
      .option("--tol", options->tolerance.values,
              "The greatest difference of values that counts as none; 0 if not given")
      .shows_value_as("TOL");
  command
      .option("--frequency-tol", options->tolerance.frequencies,
              "The same for frequencies, relative; 0 if not given")
      .shows_value_as("F");
  command.flag("--strict", options->strict, "Files that differ in form differ");
  command.flag("--json", options->json, "Print JSON instead, and no diagnostics to standard error");
  command.runs([options] { return diff(*options); });
}

}  // namespace tool
