// std::from_chars does the exact conversion. What it does not do is done around it: it refuses
// a leading "+", does not tell overflow from underflow, and takes subnormals silently.
#include "reader/number_text.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <string>
#include <system_error>

#include "model/decimal.h"
#include "reader/ascii.h"

namespace touchstone2::detail {

namespace {

constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::min();

// A literal without its sign, cut to what counts.
struct Literal {
  std::string_view text;
  bool is_zero = true;
  // Of a literal other than zero: the value lies in [10^(e-1), 10^(e+1)), which is enough to tell
  // overflow from underflow. Saturates far outside the range of a double.
  std::int64_t decimal_exponent = 0;
};

std::size_t skip_digits(std::string_view text, std::size_t position) {
  while (position < text.size() && is_digit(text[position])) ++position;
  return position;
}

// The value of the digits in text, at most some 10^11: enough for any exponent that matters.
std::int64_t saturated_value(std::string_view digits) {
  std::int64_t value = 0;
  for (const char digit : digits) {
    if (value < 10'000'000'000) value = 10 * value + (digit - '0');
  }
  return value;
}

std::optional<Literal> find_literal(std::string_view text) {
  const std::size_t point = skip_digits(text, 0);
  std::size_t end = point;
  if (end < text.size() && text[end] == '.') end = skip_digits(text, end + 1);
  const std::string_view mantissa = text.substr(0, end);

  const std::size_t first_digit = mantissa.find_first_of("0123456789");
  if (first_digit == std::string_view::npos) return std::nullopt;

  Literal literal;
  const std::size_t leading = mantissa.find_first_of("123456789");
  if (leading != std::string_view::npos) {
    literal.is_zero = false;
    literal.decimal_exponent =
        static_cast<std::int64_t>(point) - static_cast<std::int64_t>(leading);
  }

  if (end < text.size() && to_lower(text[end]) == 'e') {
    std::size_t digits = end + 1;
    const bool negative = digits < text.size() && text[digits] == '-';
    if (digits < text.size() && (text[digits] == '-' || text[digits] == '+')) ++digits;
    const std::size_t exponent_end = skip_digits(text, digits);
    if (exponent_end > digits) {
      const std::int64_t exponent = saturated_value(text.substr(digits, exponent_end - digits));
      literal.decimal_exponent += negative ? -exponent : exponent;
      end = exponent_end;
    }
  }
  literal.text = text.substr(0, end);
  return literal;
}

// Most numbers have few digits and a small exponent. Nothing for the others, and for what is no
// literal.
std::optional<double> parse_short_literal(std::string_view text) {
  std::uint64_t digits = 0;
  std::size_t position = 0;
  std::size_t point = std::string_view::npos;
  for (; position < text.size(); ++position) {
    const char c = text[position];
    if (is_digit(c)) {
      digits = 10 * digits + static_cast<std::uint64_t>(c - '0');
    } else if (c == '.' && point == std::string_view::npos) {
      point = position;
    } else {
      return std::nullopt;
    }
  }
  const bool has_point = point != std::string_view::npos;
  const std::size_t count = text.size() - (has_point ? 1 : 0);
  constexpr std::size_t kMostDigits = 19;  // that 64 bits can hold
  if (count == 0 || count > kMostDigits) return std::nullopt;
  const std::size_t decimals = has_point ? text.size() - point - 1 : 0;
  double value = 0.0;
  if (!decimal_to_double(digits, -static_cast<int>(decimals), value)) return std::nullopt;
  return value;
}

// The value of a literal without a sign: at least zero, infinite or zero when out of range.
#ifdef __cpp_lib_to_chars
double nearest_double(const Literal& literal) {
  double value = 0.0;
  const char* const first = literal.text.data();
  const auto result = std::from_chars(first, first + literal.text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    return literal.decimal_exponent > 0 ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return value;
}
#else
// Some standard libraries have std::from_chars for integers only. The C library's conversion
// gives the same bits when it is kept from asking the process's locale.
double nearest_double(const Literal& literal) {
  static const locale_t c_locale = ::newlocale(LC_ALL_MASK, "C", nullptr);
  return ::strtod_l(std::string(literal.text).c_str(), nullptr, c_locale);
}
#endif

}  // namespace

RealText parse_real(std::string_view text) {
  const bool negative = !text.empty() && text[0] == '-';
  const bool has_sign = negative || (!text.empty() && text[0] == '+');
  const std::string_view unsigned_text = text.substr(has_sign ? 1 : 0);
  if (const auto value = parse_short_literal(unsigned_text)) {
    return {negative ? -*value : *value, RealRange::normal};
  }

  const std::optional<Literal> literal = find_literal(unsigned_text);
  if (!literal) return {0.0, RealRange::normal};

  RealText real{nearest_double(*literal), RealRange::normal};
  if (std::isinf(real.value)) {
    real = {kLargest, RealRange::too_large};
  } else if (real.value < kSmallest && !literal->is_zero) {
    real = {kSmallest, RealRange::too_small};
  }
  if (negative) real.value = -real.value;
  return real;
}

std::optional<IntegerText> parse_integer(std::string_view text) {
  if (text.empty()) return IntegerText{0, false};
  const bool negative = text[0] == '-';
  const std::size_t first_digit = negative || text[0] == '+' ? 1 : 0;
  if (first_digit == text.size() || skip_digits(text, first_digit) != text.size()) {
    return std::nullopt;
  }

  const std::int64_t magnitude = saturated_value(text.substr(first_digit));
  const std::int64_t value = negative ? -magnitude : magnitude;
  constexpr std::int64_t kMin = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kMax = std::numeric_limits<std::int32_t>::max();
  if (value < kMin) return IntegerText{static_cast<std::int32_t>(kMin), true};
  if (value > kMax) return IntegerText{static_cast<std::int32_t>(kMax), true};
  return IntegerText{static_cast<std::int32_t>(value), false};
}

}  // namespace touchstone2::detail
