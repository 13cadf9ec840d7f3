// Digits are taken eight at a time: the bytes of a little-endian word are tested for digits all
// at once and combined by three multiplications. Most numbers have at most 19 digits and a
// small exponent; the others take a slower turn with the same result.
#include "reader/fast_number.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "model/decimal.h"
#include "reader/ascii.h"
#include "reader/number_text.h"

namespace touchstone2::detail {

namespace {

constexpr int kMostDigits = 19;  // always fit into 64 bits
constexpr int kMostSlowBytes = 64;

constexpr std::uint64_t kPowersOfTen[] = {1,      10,      100,      1000,     10000,
                                          100000, 1000000, 10000000, 100000000};

std::uint64_t load_eight(const char* text) {
  std::uint64_t word = 0;
  std::memcpy(&word, text, sizeof word);
  return word;
}

// How many of the eight bytes are digits before the first one that is not. A carry out of a
// byte that is no digit reaches only bytes behind it.
int count_digits(std::uint64_t word) {
  const std::uint64_t offset = word ^ 0x3030303030303030;
  const std::uint64_t others = ((offset + 0x7676767676767676) | offset) & 0x8080808080808080;
  return std::countr_zero(others) >> 3;  // 64 >> 3 when all eight are digits
}

// The value of the first `count` digits. Shifting them up leaves zeros in front of them; two
// shifts, because one by 64 is undefined.
std::uint64_t digits_value(std::uint64_t word, int count) {
  const int half_shift = 32 - 4 * count;
  word = (word << half_shift) << half_shift;
  word = ((word & 0x0F0F0F0F0F0F0F0F) * 2561) >> 8;
  word = ((word & 0x00FF00FF00FF00FF) * 6553601) >> 16;
  return ((word & 0x0000FFFF0000FFFF) * 42949672960001) >> 32;
}

// Appends a run of digits to `value`, which is wrong beyond 19 digits; looks at 32 bytes at most.
const char* take_digits(const char* text, std::uint64_t& value) {
  for (int chunk = 0; chunk < 4; ++chunk) {
    const std::uint64_t word = load_eight(text);
    const int count = count_digits(word);
    value = value * kPowersOfTen[count] + digits_value(word, count);
    text += count;
    if (count < 8) break;
  }
  return text;
}

bool ends_literal(char c) { return is_blank(c) || is_line_end(c); }

const char* skip_plain_digits(const char* text) {
  while (is_digit(*text)) ++text;
  return text;
}

// The end of a literal of the shape that the exact reader takes whole, or null.
const char* find_literal_end(const char* text) {
  if (*text == '-' || *text == '+') ++text;
  const char* const mantissa = text;
  text = skip_plain_digits(text);
  const bool has_point = *text == '.';
  if (has_point) text = skip_plain_digits(text + 1);
  if (text - mantissa == (has_point ? 1 : 0)) return nullptr;
  if (to_lower(*text) == 'e') {
    ++text;
    if (*text == '-' || *text == '+') ++text;
    const char* const digits = text;
    text = skip_plain_digits(text);
    if (text == digits) return nullptr;
  }
  return text;
}

// Literals with many digits or a great exponent. Cut off behind the bytes that may be looked
// at, so that the loops above end.
const char* parse_long_number(const char* text, double& value) {
  char bounded[kMostSlowBytes + 1];
  std::memcpy(bounded, text, kMostSlowBytes);
  bounded[kMostSlowBytes] = '\0';
  const char* const end = find_literal_end(bounded);
  if (end == nullptr || !ends_literal(*end)) return nullptr;
  const auto length = static_cast<std::size_t>(end - bounded);
  const RealText real = parse_real(std::string_view(bounded, length));
  if (real.range != RealRange::normal) return nullptr;
  value = real.value;
  return text + length;
}

}  // namespace

const char* parse_plain_number(const char* text, double& value) {
  if constexpr (std::endian::native != std::endian::little) return parse_long_number(text, value);

  // Signs come as they like: no branch may depend on them.
  const bool negative = *text == '-';
  const bool has_sign = negative | (*text == '+');
  const char* position = text + static_cast<int>(has_sign);
  std::uint64_t digits = 0;
  std::ptrdiff_t count = 0;
  if (is_digit(position[0]) && position[1] == '.') {
    digits = static_cast<std::uint64_t>(position[0] - '0');
    ++position;
    count = 1;
  } else {
    const char* const whole = position;
    position = take_digits(position, digits);
    count = position - whole;
  }
  int exponent = 0;
  if (*position == '.') {
    const char* const fraction = position + 1;
    // Zeros in front of the first digit other than zero do not count as digits.
    const bool starts_with_zero = digits == 0 && count == 1;
    position = take_digits(fraction, digits);
    exponent = static_cast<int>(fraction - position);
    count += position - fraction - static_cast<int>(starts_with_zero);
    if (starts_with_zero && count == 0) count = 1;
  }
  if (count == 0 || count > kMostDigits) return parse_long_number(text, value);

  if (!ends_literal(*position)) {
    if (to_lower(*position) != 'e') return nullptr;
    ++position;
    const bool negative_exponent = *position == '-';
    if (negative_exponent || *position == '+') ++position;
    const std::uint64_t word = load_eight(position);
    const int exponent_digits = count_digits(word);
    position += exponent_digits;
    if (exponent_digits == 0 || exponent_digits == 8 || !ends_literal(*position)) {
      return parse_long_number(text, value);
    }
    const int given = static_cast<int>(digits_value(word, exponent_digits));
    exponent += negative_exponent ? -given : given;
  }

  double magnitude = 0.0;
  if (exponent < -kMostDecimalExponent || exponent > kMostDecimalExponent ||
      !decimal_to_double(digits, exponent, magnitude)) {
    return parse_long_number(text, value);
  }
  value = std::bit_cast<double>(std::bit_cast<std::uint64_t>(magnitude) |
                                static_cast<std::uint64_t>(negative) << 63);
  return position;
}

}  // namespace touchstone2::detail
