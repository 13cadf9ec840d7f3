// Text to numbers, the only place where that happens. The meaning is that of the C library's
// strtol and strtod in the "C" locale: what they accept, what they ignore, what is out of
// range. The process's locale has no say.
#ifndef TOUCHSTONE2_SRC_READER_NUMBER_TEXT_H
#define TOUCHSTONE2_SRC_READER_NUMBER_TEXT_H

#include <cstdint>
#include <optional>
#include <string_view>

namespace touchstone2::detail {

enum class RealRange { normal, too_large, too_small };

struct RealText {
  double value;  // after clipping
  RealRange range;
};

// Converts the longest prefix of `text` that is a decimal literal and ignores what follows;
// without such a prefix the value is 0. The result is the nearest double.
//
//   "1.5" -> 1.5     "1..2" -> 1     "+.5" -> 0.5     "-0" -> -0.0     "-." -> 0
//   "1e999"   -> greatest double, too_large
//   "-1e-999" -> smallest normal double, negative, too_small
//
// too_small is every literal other than zero whose nearest double is zero or subnormal, on
// every platform alike. A clipped value is negative exactly when the text begins with "-".
RealText parse_real(std::string_view text);

struct IntegerText {
  std::int32_t value;  // after clipping
  bool clipped;
};

// The whole text as a decimal integer with an optional sign, clipped to 32 bits; nothing when
// anything is left over. An empty text is 0.
//
//   "12" -> 12     "-3" -> -3     "2.0" -> nothing     "99999999999" -> 2147483647, clipped
std::optional<IntegerText> parse_integer(std::string_view text);

}  // namespace touchstone2::detail

#endif
