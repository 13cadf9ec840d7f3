// Finds the digits by trying. The least that can do is guessed from the numbers first, so that
// most files are written and read back once.

#include "outputs/rendering.h"

#include <touchstone2/writer/v1_writer.h>
#include <touchstone2/writer/v2_writer.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "outputs/read_back.h"
#include "terminal/console.h"

namespace tool {

namespace {

using touchstone2::File;
using touchstone2::FileVersion;

template <typename Writer>
std::string text_by(Writer writer, int digits) {
  std::ostringstream stream;
  // The stream's precision is that of what precedes the first value, the writer's of the rest.
  stream.precision(digits);
  writer.setPrecision(digits);
  writer.write_file(stream);
  return std::move(stream).str();
}

std::string text_of(File& file, TextForm form) {
  try {
    if (form.version == FileVersion::V1) {
      return text_by(touchstone2::V1_Writer(file), form.digits);
    }
    return text_by(touchstone2::V2_Writer(file), form.digits);
  } catch (const std::runtime_error& error) {
    throw Refusal(error.what());
  }
}

// Of the shortest text that reads back as the same number.
int digits_of(double value) {
  std::array<char, 64> text;
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific);
  char* const mark = std::find(text.data(), end.ptr, 'e');
  return static_cast<int>(
      std::count_if(text.data(), mark, [](char c) { return c >= '0' && c <= '9'; }));
}

int digits_of_network(const touchstone2::NetworkParams& params) {
  int digits = 0;
  for (std::size_t k = 0; k < params.freq_points(); ++k) {
    digits = std::max(digits, digits_of(params.get_unscaled_freq(k)));
    for (std::size_t row = 0; row < params.rows() && digits < kMostDigits; ++row) {
      for (std::size_t col = 0; col < params.cols(); ++col) {
        const auto [a, b] = params.cell(k, row, col).as_format(params.format());
        digits = std::max({digits, digits_of(a), digits_of(b)});
      }
    }
  }
  return digits;
}

// No fewer digits can do. What is normalised needs other digits in the text than in the model.
int fewest_digits(const File& file, FileVersion version) {
  int digits = kFewestAutomaticDigits;
  if (has_normalised_numbers(file, version)) return digits;
  if (const auto* params = file.get_network_params()) {
    digits = std::max(digits, digits_of_network(*params));
  }
  return std::min(digits, kMostDigits);
}

}  // namespace

Rendering render(File& file, FileVersion version, std::optional<int> digits) {
  TextForm form{version, digits ? *digits : fewest_digits(file, version)};
  for (;; ++form.digits) {
    std::string text = text_of(file, form);
    const std::size_t changed = count_changed_numbers(file, text, form);
    if (digits || changed == 0 || form.digits == kMostDigits) {
      return {std::move(text), form.digits, changed};
    }
  }
}

}  // namespace tool
