// Reading back what was written. Texts of options and keywords are compared as the tool shows
// them, numbers as bits: rounded with to_chars and read with strtod, which have nothing in
// common with the code of the writers and the reader.

#include "outputs/read_back.h"

#include <touchstone2/reader/parser.h>

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "diagnostics/report.h"
#include "terminal/console.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::ComplexFormat;
using touchstone2::File;
using touchstone2::FileVersion;
using touchstone2::NetworkParams;
using touchstone2::NoiseParams;
using touchstone2::ParameterType;

[[noreturn]] void refuse(const std::string& reason) {
  throw Refusal("cannot be written: " + reason);
}

bool same_bits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// The number that a correct reader makes of a correct text; NaN when there is no such number.
double rounded_to_digits(double value, int digits) {
  std::array<char, 64> text{};  // ends in a zero
  std::to_chars(text.data(), text.data() + text.size() - 1, value, std::chars_format::general,
                digits);
  const double result = std::strtod(text.data(), nullptr);  // the tool's locale is the C locale
  const bool overflows = std::isinf(result) && !std::isinf(value);
  return overflows ? std::numeric_limits<double>::quiet_NaN() : result;
}

// Compares numbers one by one and counts those that are not the same to the last bit.
class NumberComparison {
 public:
  explicit NumberComparison(TextForm form) : digits_(form.digits) {}

  void compare(const char* what, double meant, double found) {
    if (same_bits(meant, found)) return;
    ++changed_;
    if (!same_bits(rounded_to_digits(meant, digits_), found)) differ(what, meant, found);
  }

  // For a number whose text was a multiple of it, or in decibels its sum with `scale_db`. Allowed
  // are half a unit of the last digit, once in the number and once in the reference impedance, and
  // some roundings to a double on the way there and back.
  void compare_normalised(const char* what, double meant, double found, double scale_db) {
    if (same_bits(meant, found)) return;
    ++changed_;
    const double allowed =
        (std::pow(10.0, 1 - digits_) + kRoundings) * (std::abs(meant) + scale_db);
    if (!(std::abs(meant - found) <= allowed)) differ(what, meant, found);
  }

  std::size_t changed() const { return changed_; }

 private:
  static constexpr double kRoundings = 8 * std::numeric_limits<double>::epsilon();

  [[noreturn]] static void differ(const char* what, double meant, double found) {
    refuse(std::string(what) + " " + number_text(meant) + " would be read as " +
           number_text(found));
  }

  int digits_;
  std::size_t changed_ = 0;
};

// What the tool shows of everything but numbers, comments and names.
std::vector<std::pair<const char*, std::string>> facts_of(const File& file, FileVersion version) {
  const NetworkParams* const params = file.get_network_params();
  const NoiseParams* const noise = file.get_noise_params();
  const auto count_of = [](const auto* points) {
    return std::to_string(points == nullptr ? 0 : points->freq_points());
  };
  std::string descriptors;
  if (file.uses_mixed_mode()) {
    for (const auto& each : file.get_mixed_mode_descriptors()) {
      descriptors += " " + descriptor_text(each);
    }
  }
  return {
      {"unit", std::string(unit_text(file.get_frequency_scale_factor()))},
      {"parameter", std::string(parameter_text(file.get_parameter_type()))},
      {"format", std::string(format_text(file.get_complex_format()))},
      {"number of ports", std::to_string(file.get_number_of_ports())},
      {"number of frequencies", count_of(params)},
      {"number of noise frequencies", count_of(noise)},
      {"matrix format", std::string(matrix_text(file.get_matrix_format()))},
      // Version 1 has one order and no way to name another.
      {"two-port order",
       version == FileVersion::V1 ? "" : std::string(order_text(file.get_two_port_data_order()))},
      {"mixed-mode order", descriptors},
      {"reference port by port", file.uses_reference_impedance_per_port() ? "yes" : "no"},
  };
}

void compare_facts(const File& meant, const File& found, FileVersion version) {
  if (found.get_version() != version) refuse("the text is of another version");
  const auto meant_facts = facts_of(meant, version);
  const auto found_facts = facts_of(found, version);
  for (std::size_t i = 0; i < meant_facts.size(); ++i) {
    const auto& [what, value] = meant_facts[i];
    if (value == found_facts[i].second) continue;
    refuse(std::string(what) + " '" + value + "' would be read as '" + found_facts[i].second + "'");
  }
  if (meant.get_leading_comments() != found.get_leading_comments()) {
    refuse("the leading comments would be read as others");
  }
  if (meant.get_port_names() != found.get_port_names()) {
    refuse("the port names would be read as others");
  }
}

void compare_references(const File& meant, const File& found, NumberComparison& numbers) {
  numbers.compare("reference", meant.get_reference_impedance(), found.get_reference_impedance());
  if (!meant.uses_reference_impedance_per_port()) return;
  const std::vector<double>& meant_ohms = meant.get_reference_impedance_per_port();
  const std::vector<double>& found_ohms = found.get_reference_impedance_per_port();
  if (meant_ohms.size() != found_ohms.size()) refuse("there are too few reference impedances");
  for (std::size_t port = 0; port < meant_ohms.size(); ++port) {
    numbers.compare("reference", meant_ohms[port], found_ohms[port]);
  }
}

// What 20 log10(R) adds to decibels, else 0. A relative error of R is 8.7 times as many decibels.
double scale_in_db(const File& file) {
  if (file.get_complex_format() != ComplexFormat::DB) return 0.0;
  return std::abs(20 * std::log10(file.get_reference_impedance())) + 9;
}

void compare_network(const File& meant, const File& found, FileVersion version,
                     NumberComparison& numbers) {
  const NetworkParams* const a = meant.get_network_params();
  const NetworkParams* const b = found.get_network_params();
  if (a == nullptr || b == nullptr) return;  // the facts have told
  const bool normalised =
      version == FileVersion::V1 && meant.get_parameter_type() != ParameterType::S;
  const double scale_db = scale_in_db(meant);
  const auto compare_value = [&](double of_a, double of_b) {
    if (normalised) return numbers.compare_normalised("value", of_a, of_b, scale_db);
    numbers.compare("value", of_a, of_b);
  };
  for (std::size_t k = 0; k < a->freq_points(); ++k) {
    numbers.compare("frequency", a->get_unscaled_freq(k), b->get_unscaled_freq(k));
    for (std::size_t row = 0; row < a->rows(); ++row) {
      for (std::size_t col = 0; col < a->cols(); ++col) {
        const auto of_a = a->cell(k, row, col).as_format(a->format());
        const auto of_b = b->cell(k, row, col).as_format(b->format());
        compare_value(of_a.first, of_b.first);
        compare_value(of_a.second, of_b.second);
      }
    }
  }
}

void compare_noise(const File& meant, const File& found, FileVersion version,
                   NumberComparison& numbers) {
  const NoiseParams* const a = meant.get_noise_params();
  const NoiseParams* const b = found.get_noise_params();
  if (a == nullptr || b == nullptr) return;
  for (std::size_t k = 0; k < a->freq_points(); ++k) {
    numbers.compare("noise frequency", a->get_unscaled_freq(k), b->get_unscaled_freq(k));
    numbers.compare("noise figure", a->get_min_noise_db(k), b->get_min_noise_db(k));
    numbers.compare("noise value", a->get_reflection_magnitude(k), b->get_reflection_magnitude(k));
    numbers.compare("noise value", a->get_reflection_phase(k), b->get_reflection_phase(k));
    if (version == FileVersion::V1) {
      numbers.compare_normalised("noise resistance", a->get_impedance(k), b->get_impedance(k), 0.0);
    } else {
      numbers.compare("noise resistance", a->get_impedance(k), b->get_impedance(k));
    }
  }
}

// The first error, as check would show it without a name.
std::string reason_of(const CollectingHandler& handler) {
  for (const Diagnostic& diagnostic : handler.diagnostics()) {
    if (diagnostic.severity != Severity::error) continue;
    return "the text would be refused: E" + std::to_string(diagnostic.code) + ": " +
           diagnostic.message;
  }
  return "the text would be refused";
}

}  // namespace

bool has_normalised_numbers(const File& file, FileVersion version) {
  const NoiseParams* const noise = file.get_noise_params();
  const bool has_noise = noise != nullptr && noise->freq_points() != 0;
  return version == FileVersion::V1 && (file.get_parameter_type() != ParameterType::S || has_noise);
}

std::size_t count_changed_numbers(const File& meant, std::string_view text, TextForm form) {
  File found(meant.get_filename());
  CollectingHandler handler;
  const bool valid = touchstone2::Parser(found, handler, text).read_file();
  const std::unique_ptr<const NoiseParams> noise(found.get_noise_params());
  if (!valid) refuse(reason_of(handler));
  compare_facts(meant, found, form.version);
  NumberComparison numbers(form);
  compare_references(meant, found, numbers);
  compare_network(meant, found, form.version, numbers);
  compare_noise(meant, found, form.version, numbers);
  return numbers.changed();
}

}  // namespace tool
