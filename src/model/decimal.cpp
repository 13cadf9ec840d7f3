// The table of powers of five, computed by the compiler.
#include "model/decimal.h"

#include <cstddef>

namespace touchstone2::detail {

namespace {

// a * 2 + bit; the caller knows that it fits.
constexpr UInt128 shift_in(UInt128 a, std::uint64_t bit) {
  return {a.high << 1 | a.low >> 63, a.low << 1 | bit};
}

constexpr bool less(UInt128 a, UInt128 b) {
  return a.high != b.high ? a.high < b.high : a.low < b.low;
}

constexpr UInt128 subtract(UInt128 a, UInt128 b) {
  return {a.high - b.high - (a.low < b.low ? 1 : 0), a.low - b.low};
}

constexpr UInt128 times_five(UInt128 a) {
  const UInt128 low = multiply_64x64(a.low, 5);
  return {a.high * 5 + low.high, low.low};
}

constexpr UInt128 normalize(UInt128 a) {
  while ((a.high >> 63) == 0) a = shift_in(a, 0);
  return a;
}

// The first 128 bits of 1 / power, rounded up, by long division. 5^55 has 128 bits, so the
// remainder may need one more: it is compared before it is shifted.
constexpr UInt128 reciprocal(UInt128 power) {
  UInt128 quotient{0, 0};
  UInt128 remainder{0, 1};
  while ((quotient.high >> 63) == 0) {
    const bool carry = (remainder.high >> 63) != 0;
    remainder = shift_in(remainder, 0);
    const bool fits = carry || !less(remainder, power);
    if (fits) remainder = subtract(remainder, power);
    quotient = shift_in(quotient, fits ? 1 : 0);
  }
  // Never a whole number for a power of five above 1, so rounding up is adding one.
  if (++quotient.low == 0) ++quotient.high;
  return quotient;
}

constexpr auto make_powers_of_five() {
  std::array<UInt128, 2 * kMostDecimalExponent + 1> powers{};
  UInt128 power{0, 1};
  for (std::size_t q = 0; q <= kMostDecimalExponent; ++q) {
    powers[kMostDecimalExponent + q] = normalize(power);
    if (q > 0) powers[kMostDecimalExponent - q] = reciprocal(power);
    if (q < kMostDecimalExponent) power = times_five(power);
  }
  return powers;
}

}  // namespace

constexpr std::array<UInt128, 2 * kMostDecimalExponent + 1> kPowersOfFive = make_powers_of_five();

}  // namespace touchstone2::detail
