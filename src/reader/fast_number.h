// One plain number of a data line to a double, eight bytes at a time.
//
// The bytes of a little-endian word are tested for digits all at once and combined by three
// multiplications. Most numbers have at most 19 digits and a small exponent; the others take a
// slower turn with the same result. Inline, because a data line is nothing but such numbers.
#ifndef TOUCHSTONE2_SRC_READER_FAST_NUMBER_H
#define TOUCHSTONE2_SRC_READER_FAST_NUMBER_H

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "model/decimal.h"
#include "reader/ascii.h"

namespace touchstone2::detail {

// How many bytes behind its first one parse_plain_number may look at. Everything here expects
// as many to be there.
inline constexpr int kFastNumberReach = 96;

// Literals with many digits or a great exponent, for parse_plain_number.
const char* parse_long_number(const char* text, double& value);

// Eight bytes, and how many of them are digits before the first one that is not.
class EightBytes {
 public:
  explicit EightBytes(const char* text) {
    std::memcpy(&offsets_, text, sizeof offsets_);
    offsets_ ^= 0x3030303030303030;  // digits become 0 to 9
    // A carry out of a byte that is no digit reaches only bytes behind it.
    const std::uint64_t others = ((offsets_ + 0x7676767676767676) | offsets_) & 0x8080808080808080;
    count_ = std::countr_zero(others) >> 3;  // 64 >> 3 when all eight are digits
  }

  int count() const { return count_; }

  // The value of the digits; there must be one. Shifting them up leaves zeros in front.
  std::uint64_t value() const {
    std::uint64_t word = offsets_ << (64 - 8 * count_);
    word = word * 10 + (word >> 8);  // in every other byte: two digits
    return (((word & 0x000000FF000000FF) * 0x000F424000000064) +
            (((word >> 16) & 0x000000FF000000FF) * 0x0000271000000001)) >>
           32;
  }

 private:
  std::uint64_t offsets_;
  int count_;
};

inline constexpr std::uint64_t kTenToThe[] = {1,      10,      100,      1000,     10000,
                                              100000, 1000000, 10000000, 100000000};

// Appends a run of digits to `value`, which is wrong beyond 19 digits; looks at 32 bytes at most.
inline const char* take_digits(const char* text, std::uint64_t& value) {
  for (int chunk = 0; chunk < 4; ++chunk) {
    const EightBytes bytes(text);
    if (bytes.count() == 0) break;
    value = value * kTenToThe[bytes.count()] + bytes.value();
    text += bytes.count();
    if (bytes.count() < 8) break;
  }
  return text;
}

inline bool ends_plain_number(char c) { return is_blank(c) || is_line_end(c); }

// Reads a literal at `text`: a sign or none, digits with at most one point among them, an
// exponent or none; then a blank, a tab or a line end, which is not taken. Stores the nearest
// double, the same bits as parse_real gives, and returns the position behind the literal.
//
// Null for anything else: another byte, a shape that the exact reader would take in part only,
// a value outside the normal range, a literal of more than 64 bytes. Nothing is lost then; the
// exact reader has to look.
inline const char* parse_plain_number(const char* text, double& value) {
  if constexpr (std::endian::native != std::endian::little) return parse_long_number(text, value);

  // Signs come as they like: no branch may depend on them.
  const bool negative = *text == '-';
  const bool has_sign = negative | (*text == '+');
  const char* position = text + static_cast<int>(has_sign);
  std::uint64_t digits = 0;
  std::ptrdiff_t count = 1;
  if (is_digit(position[0]) && position[1] == '.') {
    digits = static_cast<std::uint64_t>(position[0] - '0');
    ++position;
  } else {
    const char* const whole = position;
    position = take_digits(position, digits);
    count = position - whole;
  }
  int exponent = 0;
  if (*position == '.') {
    const char* const fraction = position + 1;
    if (digits == 0 && count == 1) count = 0;  // a zero in front does not count
    position = take_digits(fraction, digits);
    exponent = static_cast<int>(fraction - position);
    count += position - fraction;
  }
  constexpr std::ptrdiff_t kMostDigits = 19;  // always fit into 64 bits
  if (count == 0 || count > kMostDigits) return parse_long_number(text, value);

  if (!ends_plain_number(*position)) {
    if (to_lower(*position) != 'e') return nullptr;
    ++position;
    const bool negative_exponent = *position == '-';
    if (negative_exponent || *position == '+') ++position;
    const EightBytes bytes(position);
    position += bytes.count();
    if (bytes.count() == 0 || bytes.count() == 8 || !ends_plain_number(*position)) {
      return parse_long_number(text, value);
    }
    const int given = static_cast<int>(bytes.value());
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

#endif
