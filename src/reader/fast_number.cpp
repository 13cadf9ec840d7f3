// The slower turn: the bounds of the literal by plain loops, its value by the exact reader.
#include "reader/fast_number.h"

#include <string_view>

#include "reader/number_text.h"

namespace touchstone2::detail {

namespace {

constexpr std::size_t kMostBytes = 64;

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

}  // namespace

// Cut off behind the bytes that may be looked at, so that the loops above end.
const char* parse_long_number(const char* text, double& value) {
  char bounded[kMostBytes + 1];
  std::memcpy(bounded, text, kMostBytes);
  bounded[kMostBytes] = '\0';
  const char* const end = find_literal_end(bounded);
  if (end == nullptr || !ends_plain_number(*end)) return nullptr;
  const auto length = static_cast<std::size_t>(end - bounded);
  const RealText real = parse_real(std::string_view(bounded, length));
  if (real.range != RealRange::normal) return nullptr;
  value = real.value;
  return text + length;
}

}  // namespace touchstone2::detail
