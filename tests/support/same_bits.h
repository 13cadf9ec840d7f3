// Bit-exact comparison of doubles: tells 0.0 from -0.0 and a NaN from another one.
#ifndef TOUCHSTONE2_TESTS_SUPPORT_SAME_BITS_H
#define TOUCHSTONE2_TESTS_SUPPORT_SAME_BITS_H

#include <cstring>

#include <gtest/gtest.h>

namespace touchstone2::test {

inline ::testing::AssertionResult same_bits(double a, double b) {
  if (std::memcmp(&a, &b, sizeof a) == 0) {
    return ::testing::AssertionSuccess();
  }
  return ::testing::AssertionFailure() << ::testing::PrintToString(a) << " and "
                                       << ::testing::PrintToString(b) << " differ in their bits";
}

}  // namespace touchstone2::test

#endif
