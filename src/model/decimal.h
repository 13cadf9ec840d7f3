// A decimal number of at most 19 digits to the nearest double, without big-number arithmetic.
#ifndef TOUCHSTONE2_SRC_MODEL_DECIMAL_H
#define TOUCHSTONE2_SRC_MODEL_DECIMAL_H

#include <array>
#include <bit>
#include <cstdint>

namespace touchstone2::detail {

// The exponents for which decimal_to_double may know the answer: the powers of five up to 5^55
// fit into 128 bits. Numbers of electrical networks lie well inside.
inline constexpr int kMostDecimalExponent = 55;

struct UInt128 {
  std::uint64_t high;
  std::uint64_t low;
};

// For compilers without a type of 128 bits.
constexpr UInt128 multiply_by_halves(std::uint64_t a, std::uint64_t b) {
  const std::uint64_t a_low = a & 0xFFFFFFFF, a_high = a >> 32;
  const std::uint64_t b_low = b & 0xFFFFFFFF, b_high = b >> 32;
  const std::uint64_t low = a_low * b_low;
  const std::uint64_t middle = a_high * b_low + (low >> 32);
  const std::uint64_t middle2 = a_low * b_high + (middle & 0xFFFFFFFF);
  return {a_high * b_high + (middle >> 32) + (middle2 >> 32), (middle2 << 32) | (low & 0xFFFFFFFF)};
}

constexpr UInt128 multiply_64x64(std::uint64_t a, std::uint64_t b) {
#ifdef __SIZEOF_INT128__
  __extension__ using Wide = unsigned __int128;
  const Wide product = static_cast<Wide>(a) * b;
  return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
  return multiply_by_halves(a, b);
#endif
}

// The first 128 bits of 5^q for every q from -55 to 55, the topmost bit set: exact for q >= 0,
// rounded up for q < 0. Entry i belongs to q = i - 55.
extern const std::array<UInt128, 2 * kMostDecimalExponent + 1> kPowersOfFive;

inline constexpr double kExactPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                               1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                               1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Stores the double nearest to digits * 10^exponent, ties to even, and returns true; or returns
// false when the answer is not certain or not a normal double. Both are rare.
//
// The first branch is exact because both operands are (Clinger, "How to read floating point
// numbers accurately", 1990). The second takes the product with a 128-bit approximation of the
// power and looks whether its error can reach the rounding (Lemire, "Number parsing at a
// gigabyte per second", 2021).
//
// Requires |exponent| <= kMostDecimalExponent.
inline bool decimal_to_double(std::uint64_t digits, int exponent, double& result) {
  if (digits < (std::uint64_t{1} << 53) && exponent >= -22 && exponent <= 22) {
    const double value = static_cast<double>(digits);
    result =
        exponent < 0 ? value / kExactPowersOfTen[-exponent] : value * kExactPowersOfTen[exponent];
    return true;
  }
  if (digits == 0) {
    result = 0.0;
    return true;
  }

  const int shift = std::countl_zero(digits);
  const std::uint64_t normalized = digits << shift;
  const int index = exponent + kMostDecimalExponent;
  const UInt128 power = kPowersOfFive[static_cast<std::size_t>(index)];
  UInt128 product = multiply_64x64(normalized, power.high);
  if ((product.high & 0x1FF) == 0x1FF) {
    const std::uint64_t carry = multiply_64x64(normalized, power.low).high;
    product.low += carry;
    if (product.low < carry) ++product.high;
  }
  if (product.low == ~std::uint64_t{0} && exponent < -27) return false;

  // 54 bits, one more than a double holds, to round from.
  const int top_bit = static_cast<int>(product.high >> 63);
  const int drop = top_bit + 9;
  std::uint64_t mantissa = product.high >> drop;
  // floor(exponent * log2(10)) + 63, exact in this range.
  const int binary_exponent = ((217706 * exponent) >> 16) + 63 + top_bit - shift;
  // Exactly between two doubles: only where the power is exact, and then to even.
  if (product.low <= 1 && exponent >= -4 && exponent <= 23 && (mantissa & 3) == 1 &&
      mantissa << drop == product.high) {
    mantissa &= ~std::uint64_t{1};
  }
  mantissa = (mantissa + (mantissa & 1)) >> 1;
  // A carry out of the 53 bits lands in the exponent, as it should.
  result =
      std::bit_cast<double>((static_cast<std::uint64_t>(binary_exponent + 1022) << 52) + mantissa);
  return true;
}

}  // namespace touchstone2::detail

#endif
