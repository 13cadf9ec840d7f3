// The digits of value = mantissa * 2^e are those of the whole number nearest to
// value * 10^(precision - 1 - E), where E is the exponent of the first digit. One product of the
// mantissa with a 128-bit approximation of the power of ten gives it, together with 64 bits of
// what is cut off. Unless these lie next to one half, where the approximation's error could
// decide the rounding, the digits are certain. Otherwise std::to_chars, which is exact, decides.
#include "writer/number_format.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "model/decimal.h"

namespace touchstone2::detail {

namespace {

constexpr std::uint64_t kPowersOfTen[] = {1,
                                          10,
                                          100,
                                          1000,
                                          10000,
                                          100000,
                                          1000000,
                                          10000000,
                                          100000000,
                                          1000000000,
                                          10000000000,
                                          100000000000,
                                          1000000000000,
                                          10000000000000,
                                          100000000000000,
                                          1000000000000000,
                                          10000000000000000,
                                          100000000000000000};

char* format_exactly(char* out, double value, int precision) {
  return std::to_chars(out, out + kNumberRoom, value, std::chars_format::general, precision).ptr;
}

// floor(log2(5^q)) for |q| <= 55.
int log2_of_power_of_five(int q) { return (q * 152170) >> 16; }

// Whole part and the first 64 bits behind the point.
struct Scaled {
  std::uint64_t whole;
  std::uint64_t fraction;
};

// mantissa * 2^binary_exponent * 10^q for a mantissa with its top bit set and a result from 1
// to below 2^62. The error is below 2^-58 of the whole's unit.
Scaled scale(std::uint64_t mantissa, int binary_exponent, int q) {
  const int index = q + kMostDecimalExponent;
  const UInt128 power = kPowersOfFive[static_cast<std::size_t>(index)];
  const UInt128 high = multiply_64x64(mantissa, power.high);
  const UInt128 low = multiply_64x64(mantissa, power.low);
  // The top 128 bits of the product of 64 and 128 bits.
  const std::uint64_t middle = high.low + low.high;
  const std::uint64_t top = high.high + (middle < high.low ? 1 : 0);
  // 5^q is power * 2^(log2 - 127), so the product's top bits count 2^shift each from bit 0 of
  // `top` on.
  const int shift = binary_exponent + q + log2_of_power_of_five(q) + 1;
  const int drop = -shift;  // bits of `top` behind the point, 1 to 63
  return {top >> drop, (top << (64 - drop)) | (middle >> drop)};
}

// The nearest doubles to 10^k for k from -56 to 56. Entry i belongs to k = i - 56.
constexpr int kMostTabledExponent = kMostDecimalExponent + 1;

constexpr auto make_tens() {
  std::array<double, 2 * kMostTabledExponent + 1> tens{};
  double power = 1.0;
  for (std::size_t k = 0; k <= kMostTabledExponent; ++k) {
    tens[kMostTabledExponent + k] = power;
    tens[kMostTabledExponent - k] = 1.0 / power;
    power *= 10.0;
  }
  return tens;
}

constexpr auto kTens = make_tens();

struct Digits {
  std::uint64_t value;  // exactly `precision` digits
  int exponent;         // of the first digit
};

// False when std::to_chars has to decide, as for zero, infinity and everything else whose first
// digit is far from the point.
bool find_digits(double magnitude, int precision, Digits& digits) {
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const int biased = static_cast<int>(bits >> 52);
  const std::uint64_t mantissa = (std::uint64_t{1} << 63) | (bits << 11);
  const int binary_exponent = biased - 1023 - 63;
  // floor(log10(2^(biased - 1023))): the exponent of the first digit, or one too small. Which of
  // the two, a comparison tells that need not be exact: it is looked at again below.
  int exponent = ((biased - 1023) * 78913) >> 18;
  if (exponent < -kMostTabledExponent || exponent >= kMostTabledExponent) return false;
  const int next = exponent + 1 + kMostTabledExponent;
  exponent += magnitude >= kTens[static_cast<std::size_t>(next)];
  const int q = precision - 1 - exponent;
  if (q < -kMostDecimalExponent || q > kMostDecimalExponent) return false;

  const Scaled scaled = scale(mantissa, binary_exponent, q);
  if (scaled.whole >= kPowersOfTen[precision] || scaled.whole < kPowersOfTen[precision - 1]) {
    return false;
  }
  constexpr std::uint64_t kHalf = std::uint64_t{1} << 63;
  constexpr std::uint64_t kMargin = std::uint64_t{1} << 8;  // 2^-56
  if (scaled.fraction - (kHalf - kMargin) < 2 * kMargin) return false;
  digits.value = scaled.whole + (scaled.fraction >> 63);
  digits.exponent = exponent;
  if (digits.value == kPowersOfTen[precision]) {
    digits.value = kPowersOfTen[precision - 1];
    ++digits.exponent;
  }
  return true;
}

constexpr char kPairs[] =
    "0001020304050607080910111213141516171819202122232425262728293031323334353637383940414243444546"
    "4748495051525354555657585960616263646566676869707172737475767778798081828384858687888990919293"
    "949596979899";

void write_pair(char* out, std::uint64_t pair) { std::memcpy(out, kPairs + 2 * pair, 2); }

// All digits of a number below 10^8, zeros in front included.
void write_eight(char* out, std::uint32_t value) {
  const std::uint32_t high = value / 10000;
  const std::uint32_t low = value % 10000;
  write_pair(out, high / 100);
  write_pair(out + 2, high % 100);
  write_pair(out + 4, low / 100);
  write_pair(out + 6, low % 100);
}

constexpr int kTextSize = 24;

// All decimal digits of value, with zeros in front.
void write_digits(char* out, std::uint64_t value) {
  write_eight(out + 16, static_cast<std::uint32_t>(value % 100000000));
  value /= 100000000;
  write_eight(out + 8, static_cast<std::uint32_t>(value % 100000000));
  write_eight(out, static_cast<std::uint32_t>(value / 100000000));
}

int count_trailing_zeros(const char* text) {
  if constexpr (std::endian::native == std::endian::little) {
    std::uint64_t last = 0;
    std::memcpy(&last, text + kTextSize - 8, sizeof last);
    last ^= 0x3030303030303030;
    if (last != 0) return std::countl_zero(last) >> 3;
  }
  int count = 0;
  while (text[kTextSize - 1 - count] == '0') ++count;
  return count;
}

// Of two digits, as all are that find_digits finds.
char* write_exponent(char* out, int exponent) {
  out[0] = 'e';
  out[1] = exponent < 0 ? '-' : '+';
  write_pair(out + 2, static_cast<std::uint64_t>(std::abs(exponent)));
  return out + 4;
}

// The "%g" layout: zeros at the end left out, an exponent only for very small and large values.
// Copies are of a fixed size, longer than need be: their targets hold no text yet.
char* write_layout(char* out, const Digits& digits, int precision) {
  char text[2 * kTextSize] = {};
  write_digits(text, digits.value);
  const char* const first = text + kTextSize - precision;
  const int count = precision - count_trailing_zeros(text);
  const int exponent = digits.exponent;
  if (exponent < -4 || exponent >= precision) {
    out[0] = first[0];
    out[1] = '.';
    std::memcpy(out + 2, first + 1, kTextSize);
    return write_exponent(count > 1 ? out + 1 + count : out + 1, exponent);
  }
  if (exponent < 0) {
    std::memset(out, '0', 8);
    out[1] = '.';
    std::memcpy(out + 1 - exponent, first, kTextSize);
    return out + 1 - exponent + count;
  }
  // Zeros in front of the point belong to the number.
  const int whole = exponent + 1;
  std::memcpy(out, first, kTextSize);
  std::memcpy(out + whole + 1, first + whole, kTextSize);
  if (count <= whole) return out + whole;
  out[whole] = '.';
  return out + count + 1;
}

}  // namespace

char* format_number(char* out, double value, int precision) {
  Digits digits{};
  if (!find_digits(std::fabs(value), precision, digits)) {
    return format_exactly(out, value, precision);
  }
  *out = '-';
  return write_layout(out + (value < 0.0 ? 1 : 0), digits, precision);
}

}  // namespace touchstone2::detail
