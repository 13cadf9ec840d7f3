// Facts are compared as the texts that are shown, where two texts cannot mean the same.

#include "comparison/facts.h"

#include <algorithm>

#include "comparison/numbers.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::File;
using touchstone2::ParameterType;

constexpr std::size_t kShownOfList = 5;

std::string yes_or_no(bool value) { return value ? "yes" : "no"; }

std::string ohms_text(double ohms) { return number_text(ohms) + " ohm"; }

void compare_fact(FactDifferences& differences, std::string_view what, std::string_view a,
                  std::string_view b) {
  if (a != b) differences.shown.push_back({what, 0, std::string(a), std::string(b)});
}

// Entry by entry; `none` stands for one that a shorter list does not have.
void compare_lists(FactDifferences& differences, std::string_view what,
                   const std::vector<std::string>& a, const std::vector<std::string>& b,
                   const std::string& none) {
  std::size_t found = 0;
  for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i) {
    const std::string& of_a = i < a.size() ? a[i] : none;
    const std::string& of_b = i < b.size() ? b[i] : none;
    if (of_a == of_b) continue;
    if (found++ < kShownOfList) {
      differences.shown.push_back({what, i + 1, of_a, of_b});
    } else {
      ++differences.not_shown;
    }
  }
}

bool has_noise(const File& file) {
  const auto* noise = file.get_noise_params();
  return noise != nullptr && noise->freq_points() > 0;
}

// With the mark, so that an empty comment is not taken for none.
std::vector<std::string> comment_lines(const File& file) {
  std::vector<std::string> lines = file.get_leading_comments();
  for (std::string& line : lines) line.insert(0, 1, '!');
  return lines;
}

// S-parameters and the optimum reflection of noise data mean nothing without their reference.
// The others are held in ohms and siemens, whatever they were relative to.
bool references_matter(const File& a, const File& b) {
  return a.get_parameter_type() == ParameterType::S || has_noise(a) || has_noise(b);
}

// All ports single-ended in their order is what a file without mixed mode has.
bool have_same_mixed_mode(const File& a, const File& b) {
  if (!a.uses_mixed_mode() && !b.uses_mixed_mode()) return true;
  return a.get_mixed_mode_descriptors() == b.get_mixed_mode_descriptors();
}

bool same_ohms(double a, double b, double tolerance) {
  return relative_difference({}, {a, 0.0}, {b, 0.0}, /*unit=*/0.0) <= tolerance;
}

// Those within the tolerance get the same text.
void compare_references_by_port(FactDifferences& differences, const File& a, const File& b,
                                double tolerance) {
  const std::vector<double>& of_a = a.get_reference_impedance_per_port();
  const std::vector<double>& of_b = b.get_reference_impedance_per_port();
  std::vector<std::string> texts_a;
  std::vector<std::string> texts_b;
  for (std::size_t port = 0; port < std::min(of_a.size(), of_b.size()); ++port) {
    const bool same = same_ohms(of_a[port], of_b[port], tolerance);
    texts_a.push_back(same ? "" : ohms_text(of_a[port]));
    texts_b.push_back(same ? "" : ohms_text(of_b[port]));
  }
  compare_lists(differences, "reference", texts_a, texts_b, "");
}

void compare_references(FactDifferences& differences, const File& a, const File& b,
                        double tolerance) {
  if (a.uses_reference_impedance_per_port() || b.uses_reference_impedance_per_port()) {
    return compare_references_by_port(differences, a, b, tolerance);
  }
  const double of_a = a.get_reference_impedance();
  const double of_b = b.get_reference_impedance();
  if (same_ohms(of_a, of_b, tolerance)) return;
  differences.shown.push_back({"reference", 0, ohms_text(of_a), ohms_text(of_b)});
}

}  // namespace

FactDifferences compare_content(const File& a, const File& b, double tolerance) {
  const std::size_t ports_a = a.get_number_of_ports();
  const std::size_t ports_b = b.get_number_of_ports();
  FactDifferences differences;
  compare_fact(differences, "ports", std::to_string(ports_a), std::to_string(ports_b));
  compare_fact(differences, "parameter", parameter_text(a.get_parameter_type()),
               parameter_text(b.get_parameter_type()));
  if (!have_same_mixed_mode(a, b)) {
    compare_fact(differences, "mixed mode", mixed_mode_text(a), mixed_mode_text(b));
  }
  if (references_matter(a, b)) compare_references(differences, a, b, tolerance);
  if (ports_a == ports_b) {
    compare_lists(differences, "port name", a.get_port_names(), b.get_port_names(), "");
  }
  return differences;
}

FactDifferences compare_form(const File& a, const File& b) {
  FactDifferences differences;
  compare_fact(differences, "version", version_text(a.get_version()),
               version_text(b.get_version()));
  compare_fact(differences, "unit", unit_text(a.get_frequency_scale_factor()),
               unit_text(b.get_frequency_scale_factor()));
  compare_fact(differences, "format", format_text(a.get_complex_format()),
               format_text(b.get_complex_format()));
  if (!references_matter(a, b)) compare_references(differences, a, b, /*tolerance=*/0.0);
  compare_fact(differences, "reference by port", yes_or_no(a.uses_reference_impedance_per_port()),
               yes_or_no(b.uses_reference_impedance_per_port()));
  if (have_same_mixed_mode(a, b)) {
    compare_fact(differences, "mixed mode", mixed_mode_text(a), mixed_mode_text(b));
  }
  compare_fact(differences, "matrix", matrix_text(a.get_matrix_format()),
               matrix_text(b.get_matrix_format()));
  if (a.get_number_of_ports() == 2 && b.get_number_of_ports() == 2) {
    compare_fact(differences, "two-port order", order_text(a.get_two_port_data_order()),
                 order_text(b.get_two_port_data_order()));
  }
  compare_fact(differences, "information", yes_or_no(a.has_information_section()),
               yes_or_no(b.has_information_section()));
  return differences;
}

FactDifferences compare_comments(const File& a, const File& b) {
  FactDifferences differences;
  compare_lists(differences, "comment", comment_lines(a), comment_lines(b), "");
  return differences;
}

bool have_same_cells(const File& a, const File& b) {
  return a.get_number_of_ports() == b.get_number_of_ports() &&
         a.get_parameter_type() == b.get_parameter_type() && have_same_mixed_mode(a, b);
}

}  // namespace tool
