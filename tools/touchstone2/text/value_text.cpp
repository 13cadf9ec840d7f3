// Texts of the model's values. Frequencies are scaled as decimal digits and not as doubles:
// the file's unit is a power of ten and so is the unit that is shown.

#include "text/value_text.h"

#include <array>
#include <charconv>
#include <cstdlib>

namespace tool {

namespace {

using touchstone2::ComplexFormat;
using touchstone2::FileVersion;
using touchstone2::FrequencyScaleFactor;
using touchstone2::MatrixFormat;
using touchstone2::MixedModeKind;
using touchstone2::ParameterType;
using touchstone2::TwoPortDataOrder;

constexpr int kFrequencyDigits = 12;
constexpr std::array<std::string_view, 5> kPrefixes = {"", "k", "M", "G", "T"};

// Row 0 is "the file did not say".
using Words = std::array<std::string_view, 6>;
constexpr Words kUnits = {"", "Hz", "kHz", "MHz", "GHz"};
constexpr Words kParameters = {"", "S", "Y", "Z", "H", "G"};
constexpr Words kFormats = {"", "DB", "MA", "RI"};
constexpr Words kMatrixFormats = {"", "full", "upper", "lower"};
constexpr Words kOrders = {"", "12_21", "21_12"};

template <typename Enumeration>
std::string_view row_of(const Words& words, Enumeration value) {
  const auto row = static_cast<std::size_t>(value);
  return row < words.size() ? words[row] : std::string_view();
}

// A number as d.ddd * 10^exponent, the digits without trailing zeros.
struct Decimal {
  std::string digits;
  int exponent = 0;
};

Decimal parse_scientific(std::string_view text) {
  Decimal decimal;
  const std::size_t mark = text.find('e');
  for (const char c : text.substr(0, mark)) {
    if (c != '.') decimal.digits += c;
  }
  while (decimal.digits.size() > 1 && decimal.digits.back() == '0') decimal.digits.pop_back();
  std::string_view exponent = text.substr(mark + 1);
  if (exponent.front() == '+') exponent.remove_prefix(1);
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
  return decimal;
}

std::string_view fill(std::array<char, 64>& buffer, std::to_chars_result result) {
  return {buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())};
}

// 0, 3, 6 or 9: the units are numbered in that order.
int power_of_ten(FrequencyScaleFactor unit) {
  if (unit == FrequencyScaleFactor::Unspecified) return 0;
  return 3 * (static_cast<int>(unit) - static_cast<int>(FrequencyScaleFactor::Hz));
}

// The digits with the point after the first `whole` of them.
std::string with_point(std::string digits, std::size_t whole) {
  if (digits.size() < whole) digits.append(whole - digits.size(), '0');
  if (digits.size() > whole) digits.insert(whole, 1, '.');
  return digits;
}

bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }
bool is_printable_ascii(char c) { return c >= 0x20 && c < 0x7F; }

void append_byte(std::string& text, char c, bool as_it_is) {
  constexpr std::string_view kHex = "0123456789abcdef";
  if (as_it_is) {
    text += c;
  } else {
    const auto byte = static_cast<unsigned char>(c);
    text.append("\\x").append({kHex[byte >> 4], kHex[byte & 0x0F]});
  }
}

Decimal shortest_decimal(double value) {
  std::array<char, 64> buffer;
  return parse_scientific(fill(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                                     value, std::chars_format::scientific)));
}

// In engineering units. `unscaled` is the number that the decimal stands for.
std::string scaled_text(Decimal decimal, double unscaled, FrequencyScaleFactor unit) {
  if (decimal.digits == "0") return "0 Hz";
  decimal.exponent += power_of_ten(unit);
  const auto prefix = static_cast<std::size_t>(decimal.exponent / 3);
  if (decimal.exponent < 0 || prefix >= kPrefixes.size()) {
    return number_text(frequency_in_hz(unscaled, unit)) + " Hz";
  }
  const auto whole = static_cast<std::size_t>(decimal.exponent % 3 + 1);
  std::string text = with_point(std::move(decimal.digits), whole);
  return text.append(" ").append(kPrefixes[prefix]).append("Hz");
}

}  // namespace

std::string_view version_text(FileVersion version) {
  if (version == FileVersion::V1) return "1";
  return version == FileVersion::V2 ? "2.0" : "";
}

std::string_view unit_text(FrequencyScaleFactor unit) { return row_of(kUnits, unit); }
std::string_view parameter_text(ParameterType parameter) { return row_of(kParameters, parameter); }
std::string_view format_text(ComplexFormat format) { return row_of(kFormats, format); }
std::string_view matrix_text(MatrixFormat format) { return row_of(kMatrixFormats, format); }
std::string_view order_text(TwoPortDataOrder order) { return row_of(kOrders, order); }

std::string descriptor_text(const touchstone2::MixedModeDescriptor& descriptor) {
  const std::string first = std::to_string(descriptor.first_port);
  const std::string pair = first + "," + std::to_string(descriptor.second_port);
  switch (descriptor.kind) {
    case MixedModeKind::SingleEnded:
      return "S" + first;
    case MixedModeKind::Differential:
      return "D" + pair;
    case MixedModeKind::Common:
      return "C" + pair;
  }
  return "";
}

std::string mixed_mode_text(const touchstone2::File& file) {
  if (!file.uses_mixed_mode()) return "no";
  std::string text;
  for (const auto& descriptor : file.get_mixed_mode_descriptors()) {
    text += (text.empty() ? "" : " ") + descriptor_text(descriptor);
  }
  return text;
}

std::string number_text(double value) {
  std::array<char, 64> buffer;
  return std::string(
      fill(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), value)));
}

std::string rounded_text(double value) {
  constexpr int kDigits = 6;
  std::array<char, 64> buffer;
  return std::string(fill(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                                std::chars_format::general, kDigits)));
}

std::string count_text(std::size_t count, std::string_view one, std::string_view many) {
  std::string text = std::to_string(count) + " ";
  return text.append(count == 1 ? one : many);
}

std::string grouped(std::size_t number) {
  constexpr std::size_t kGroup = 3;
  std::string text = std::to_string(number);
  for (std::size_t end = text.size(); end > kGroup;) {
    end -= kGroup;
    text.insert(end, 1, ',');
  }
  return text;
}

std::string frequency_text(double unscaled, FrequencyScaleFactor unit) {
  std::array<char, 64> buffer;
  return scaled_text(
      parse_scientific(
          fill(buffer, std::to_chars(buffer.data(), buffer.data() + buffer.size(), unscaled,
                                     std::chars_format::scientific, kFrequencyDigits - 1))),
      unscaled, unit);
}

std::string exact_frequency_text(double unscaled, FrequencyScaleFactor unit) {
  return scaled_text(shortest_decimal(unscaled), unscaled, unit);
}

double frequency_in_hz(double unscaled, FrequencyScaleFactor unit) {
  const Decimal decimal = shortest_decimal(unscaled);
  const std::string text =
      with_point(decimal.digits, 1) + "e" + std::to_string(decimal.exponent + power_of_ten(unit));
  return std::strtod(text.c_str(), nullptr);  // the tool's locale is the C locale; may be infinite
}

std::string printable(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const bool is_control = is_ascii(c) && !is_printable_ascii(c);
    append_byte(result, c, !is_control || c == '\t');
  }
  return result;
}

std::string printable_ascii(std::string_view text) {
  std::string result;
  for (const char c : text) append_byte(result, c, is_printable_ascii(c));
  return result;
}

}  // namespace tool
