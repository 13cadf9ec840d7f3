// Values are taken as the shortest decimals that stand for them, which are those of the file
// unless it has more than 15 digits; decimals are subtracted as integers.

#include "text/even_step.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace tool {

namespace {

constexpr std::int64_t kLargest = 999'999'999'999'999'999;

// digits * 10^exponent, the digits without trailing zeros.
struct Decimal {
  std::int64_t digits = 0;
  int exponent = 0;

  bool operator==(const Decimal&) const = default;
};

Decimal without_trailing_zeros(Decimal decimal) {
  if (decimal.digits == 0) return {};
  for (; decimal.digits % 10 == 0; ++decimal.exponent) decimal.digits /= 10;
  return decimal;
}

Decimal decimal_of(double value) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                 std::chars_format::scientific)
                       .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = text.find('e');
  Decimal decimal;
  for (const char c : text.substr(0, mark)) {
    if (c != '.') decimal.digits = 10 * decimal.digits + (c - '0');
  }
  const bool has_sign_plus = text[mark + 1] == '+';
  std::from_chars(text.data() + mark + (has_sign_plus ? 2 : 1), end, decimal.exponent);
  if (mark > 1) decimal.exponent -= static_cast<int>(mark - 2);  // behind "d."
  return without_trailing_zeros(decimal);
}

// The same value with a lower exponent, if its digits fit.
std::optional<Decimal> scaled_to(Decimal decimal, int exponent) {
  if (decimal.digits == 0) return Decimal{0, exponent};
  for (; decimal.exponent > exponent; --decimal.exponent) {
    if (decimal.digits > kLargest / 10) return std::nullopt;
    decimal.digits *= 10;
  }
  return decimal;
}

std::optional<Decimal> difference(const Decimal& a, const Decimal& b) {
  const int exponent = std::min(a.exponent, b.exponent);
  const std::optional<Decimal> scaled_a = scaled_to(a, exponent);
  const std::optional<Decimal> scaled_b = scaled_to(b, exponent);
  if (!scaled_a || !scaled_b) return std::nullopt;
  return without_trailing_zeros({scaled_a->digits - scaled_b->digits, exponent});
}

double to_double(const Decimal& decimal) {
  const std::string text = std::to_string(decimal.digits) + "e" + std::to_string(decimal.exponent);
  return std::strtod(text.c_str(), nullptr);  // the tool's locale is the C locale
}

}  // namespace

std::optional<double> even_step(std::size_t count,
                                const std::function<double(std::size_t)>& value) {
  if (count < 3) return std::nullopt;
  std::optional<Decimal> step;
  Decimal last = decimal_of(value(0));
  for (std::size_t i = 1; i < count; ++i) {
    const Decimal next = decimal_of(value(i));
    const std::optional<Decimal> found = difference(next, last);
    if (!found || (step && *step != *found)) return std::nullopt;
    step = found;
    last = next;
  }
  return to_double(*step);
}

}  // namespace tool
