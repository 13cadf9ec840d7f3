#include "writer/number_format.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace touchstone2::detail {
namespace {

// False when the result is not printf's, or when a byte behind its room was touched.
bool as_printf(double value, int precision) {
  char expected[64];
  const int length = std::snprintf(expected, sizeof expected, "%.*g", precision, value);
  char found[kNumberRoom + 1];
  found[kNumberRoom] = '#';
  char* const end = format_number(found, value, precision);
  const std::string text(found, end);
  EXPECT_EQ(text, std::string(expected, static_cast<std::size_t>(length))) << precision;
  EXPECT_EQ(found[kNumberRoom], '#') << text;
  return !::testing::Test::HasFailure();
}

bool as_printf_at_every_precision(double value) {
  bool same = true;
  for (int precision = 1; precision <= 17; ++precision) same = as_printf(value, precision) && same;
  return same;
}

double nearest(const std::string& text) {
  return std::strtod(text.c_str(), nullptr);  // the process's locale is the C locale
}

TEST(NumberFormat, SpecialValues) {
  for (const double value :
       {0.0, -0.0, std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
        std::numeric_limits<double>::min(), std::numeric_limits<double>::max(),
        std::numeric_limits<double>::denorm_min(), -std::numeric_limits<double>::denorm_min()}) {
    ASSERT_TRUE(as_printf_at_every_precision(value));
  }
}

TEST(NumberFormat, WholeNumbersAndShortFractions) {
  for (const double value :
       {1.0,  -1.0, 10.0, 12.0,     100.0, 123456789.0, 9.5,     99.5,       999999.5,
        0.5,  0.25, 0.1,  0.05,     0.001, 0.0001,      0.00001, 0.00009999, 1e15,
        1e16, 1e17, 1e18, 123456.5, 2.5,   3.5,         0.125,   1.0625}) {
    ASSERT_TRUE(as_printf_at_every_precision(value));
  }
}

TEST(NumberFormat, PowersOfTenAndOfTwoWithTheirNeighbours) {
  for (int exponent = -308; exponent <= 308; ++exponent) {
    const double value = nearest("1e" + std::to_string(exponent));
    for (const double near : {value, std::nextafter(value, 0.0), std::nextafter(value, 1e308)}) {
      ASSERT_TRUE(as_printf_at_every_precision(near));
    }
  }
  for (int exponent = -1022; exponent < 1024; exponent += 3) {
    ASSERT_TRUE(as_printf_at_every_precision(std::ldexp(1.0, exponent)));
  }
}

TEST(NumberFormat, RandomBits) {
  std::mt19937_64 random(7);
  for (int repeat = 0; repeat < 200'000; ++repeat) {
    const double value = std::bit_cast<double>(random());
    if (std::isnan(value)) continue;
    ASSERT_TRUE(as_printf(value, static_cast<int>(1 + random() % 17)));
  }
}

TEST(NumberFormat, DecimalsOfEveryLengthWithTheirNeighbours) {
  std::mt19937_64 random(8);
  for (int repeat = 0; repeat < 200'000; ++repeat) {
    std::string text;
    for (std::size_t count = 1 + random() % 17; count > 0; --count) {
      text += static_cast<char>('0' + random() % 10);
    }
    const double value = nearest(text + "e" + std::to_string(static_cast<int>(random() % 40) - 25));
    const double near =
        random() % 4 == 0 ? std::nextafter(value, random() % 2 == 0 ? 0.0 : 1e300) : value;
    ASSERT_TRUE(as_printf(near, static_cast<int>(1 + random() % 17)));
  }
}

// Exactly between two texts: the exact conversion has to decide.
TEST(NumberFormat, Ties) {
  std::mt19937_64 random(9);
  for (int repeat = 0; repeat < 100'000; ++repeat) {
    const double value =
        static_cast<double>(random() % 2'000'001) / static_cast<double>(1U << (random() % 20));
    ASSERT_TRUE(as_printf(value, static_cast<int>(1 + random() % 17)));
  }
}

}  // namespace
}  // namespace touchstone2::detail
