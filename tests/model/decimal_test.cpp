#include "model/decimal.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/same_bits.h"

namespace touchstone2::detail {
namespace {

double exact_value(std::uint64_t digits, int exponent) {
  const std::string text = std::to_string(digits) + "e" + std::to_string(exponent);
  return std::strtod(text.c_str(), nullptr);  // the process's locale is the C locale
}

void expect_nearest(std::uint64_t digits, int exponent) {
  double value = -1.0;
  if (!decimal_to_double(digits, exponent, value)) return;  // allowed to give up
  EXPECT_TRUE(test::same_bits(value, exact_value(digits, exponent))) << digits << "e" << exponent;
}

// Both ways, whichever of them this compiler takes.
TEST(Decimal, ProductsOf128Bits) {
  const std::uint64_t all = ~std::uint64_t{0};
  const struct {
    std::uint64_t a, b, high, low;
  } products[] = {
      {0, all, 0, 0},
      {1, all, 0, all},
      {2, all, 1, all - 1},
      {all, all, all - 1, 1},
      {0xFFFFFFFF, 0xFFFFFFFF, 0, 0xFFFFFFFE00000001},
      {std::uint64_t{1} << 32, std::uint64_t{1} << 32, 1, 0},
      {0x00000001FFFFFFFF, 0xFFFFFFFF00000001, 0x00000001FFFFFFFD, 0x00000002FFFFFFFF},
      {0x123456789ABCDEF0, 0x0FEDCBA987654321, 0x0121FA00AD77D742, 0x2236D88FE5618CF0},
  };
  for (const auto& p : products) {
    for (const auto& multiply : {multiply_64x64, multiply_by_halves}) {
      for (const UInt128 product : {multiply(p.a, p.b), multiply(p.b, p.a)}) {
        EXPECT_EQ(product.high, p.high) << p.a << " * " << p.b;
        EXPECT_EQ(product.low, p.low) << p.a << " * " << p.b;
      }
    }
  }
}

TEST(Decimal, PowersOfFive) {
  // 5 = 101b, 25 = 11001b, 1/5 = 0.110011...b rounded up.
  EXPECT_EQ(kPowersOfFive[55].high, 0x8000000000000000);
  EXPECT_EQ(kPowersOfFive[56].high, 0xA000000000000000);
  EXPECT_EQ(kPowersOfFive[57].high, 0xC800000000000000);
  EXPECT_EQ(kPowersOfFive[54].high, 0xCCCCCCCCCCCCCCCC);
  EXPECT_EQ(kPowersOfFive[54].low, 0xCCCCCCCCCCCCCCCD);
}

// Whole numbers of any size, the lowest 32 bits first.
using Whole = std::vector<std::uint32_t>;

Whole times_power_of_five(Whole number, int q) {
  for (; q > 0; --q) {
    std::uint64_t carry = 0;
    for (std::uint32_t& part : number) {
      carry += std::uint64_t{part} * 5;
      part = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
    if (carry != 0) number.push_back(static_cast<std::uint32_t>(carry));
  }
  return number;
}

Whole whole_of(UInt128 number) {
  return {static_cast<std::uint32_t>(number.low), static_cast<std::uint32_t>(number.low >> 32),
          static_cast<std::uint32_t>(number.high), static_cast<std::uint32_t>(number.high >> 32)};
}

void shift_up(Whole& number) {
  std::uint32_t bit = 0;
  for (std::uint32_t& part : number) {
    const std::uint32_t next = part >> 31;
    part = part << 1 | bit;
    bit = next;
  }
}

bool is_less(const Whole& a, const Whole& b) {  // of the same size
  return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

// For q < 0 the entry r is a power of two divided by 5^-q, rounded up: r times 5^-q exceeds that
// power of two, but by less than 5^-q.
TEST(Decimal, EveryPowerOfFive) {
  for (int q = -kMostDecimalExponent; q <= kMostDecimalExponent; ++q) {
    SCOPED_TRACE(q);
    const UInt128 entry = kPowersOfFive[static_cast<std::size_t>(q + kMostDecimalExponent)];
    EXPECT_EQ(entry.high >> 63, 1U);
    if (q >= 0) {
      Whole power = times_power_of_five({1}, q);
      ASSERT_LE(power.size(), 4U);
      power.resize(4);
      while ((power[3] >> 31) == 0) shift_up(power);
      EXPECT_EQ(whole_of(entry), power);
    } else {
      Whole excess = times_power_of_five(whole_of(entry), -q);
      excess.back() -= std::bit_floor(excess.back());
      Whole power = times_power_of_five({1}, -q);
      power.resize(excess.size());
      EXPECT_TRUE(is_less(excess, power));
    }
  }
}

TEST(Decimal, ZeroIsZeroWhateverTheExponent) {
  for (int exponent = -55; exponent <= 55; ++exponent) expect_nearest(0, exponent);
}

TEST(Decimal, EveryExponentWithEveryCountOfDigits) {
  std::mt19937_64 random(1);
  for (int exponent = -55; exponent <= 55; ++exponent) {
    for (int count = 1; count <= 19; ++count) {
      for (int repeat = 0; repeat < 20; ++repeat) {
        std::uint64_t digits = 0;
        for (int k = 0; k < count; ++k) digits = 10 * digits + random() % 10;
        expect_nearest(digits, exponent);
      }
    }
  }
}

// Whole numbers of more than 53 bits that lie exactly between two doubles, or next to that.
TEST(Decimal, TiesGoToTheEvenNeighbour) {
  std::mt19937_64 random(2);
  for (int repeat = 0; repeat < 100'000; ++repeat) {
    const std::uint64_t tie = (((std::uint64_t{1} << 52) | (random() >> 12)) << 1) | 1;
    const int shift = static_cast<int>(random() % 11);
    for (const int off : {-1, 0, 1}) {
      expect_nearest((tie << shift) + static_cast<std::uint64_t>(off),
                     static_cast<int>(random() % 5) - 4);
    }
  }
}

TEST(Decimal, CarryIntoTheNextPowerOfTwo) {
  expect_nearest(9007199254740991, 0);       // 2^53 - 1
  expect_nearest(18014398509481983, 0);      // 2^54 - 1, rounds up to 2^54
  expect_nearest(18446744073709551615U, 0);  // 2^64 - 1
}

}  // namespace
}  // namespace touchstone2::detail
