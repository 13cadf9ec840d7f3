#include <touchstone2/model/noise_params.h>

#include <limits>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "support/same_bits.h"

namespace touchstone2 {
namespace {

using test::same_bits;

NoiseParams two_rows() {
  NoiseParams noise(1e9);
  noise.add_freq_point(2.0, 0.5, 0.25, -30.0, 12.5);
  noise.add_freq_point(4.5, -0.75, 0.5, 60.0, 20.0);
  return noise;
}

TEST(NoiseParams, HasNoRowsAtFirst) {
  const NoiseParams noise(1e6);
  EXPECT_EQ(noise.freq_points(), 0U);
  EXPECT_EQ(noise.get_freq_scale_factor(), 1e6);
  EXPECT_EQ(noise.max_freq(), -1.0);
  EXPECT_EQ(noise.max_unscaled_freq(), -1.0);
  EXPECT_EQ(noise.min_unscaled_freq(), -1.0);
}

TEST(NoiseParams, IsNotPolymorphic) { static_assert(!std::is_polymorphic_v<NoiseParams>, ""); }

TEST(NoiseParams, KeepsRowsInTheirOrder) {
  const NoiseParams noise = two_rows();
  ASSERT_EQ(noise.freq_points(), 2U);
  EXPECT_TRUE(same_bits(noise.get_unscaled_freq(0), 2.0));
  EXPECT_TRUE(same_bits(noise.get_freq(0), 2e9));
  EXPECT_TRUE(same_bits(noise.get_min_noise_db(0), 0.5));
  EXPECT_TRUE(same_bits(noise.get_reflection_magnitude(0), 0.25));
  EXPECT_TRUE(same_bits(noise.get_reflection_phase(0), -30.0));
  EXPECT_TRUE(same_bits(noise.get_impedance(0), 12.5));
  EXPECT_TRUE(same_bits(noise.get_unscaled_freq(1), 4.5));
  EXPECT_TRUE(same_bits(noise.get_freq(1), 4.5e9));
  EXPECT_TRUE(same_bits(noise.get_min_noise_db(1), -0.75));
  EXPECT_TRUE(same_bits(noise.get_reflection_magnitude(1), 0.5));
  EXPECT_TRUE(same_bits(noise.get_reflection_phase(1), 60.0));
  EXPECT_TRUE(same_bits(noise.get_impedance(1), 20.0));
}

TEST(NoiseParams, FrequencyInHzIsOneRoundedProduct) {
  NoiseParams noise(1000.0);
  noise.add_freq_point(2.3, 0.0, 0.0, 0.0, 0.0);
  EXPECT_TRUE(same_bits(noise.get_freq(0), 2300.0));
  EXPECT_TRUE(same_bits(noise.max_freq(), 2300.0));
}

// The first and the last row, whatever their frequencies are: nothing is sorted.
TEST(NoiseParams, RangeIsThatOfFirstAndLastRow) {
  NoiseParams noise(1e3);
  noise.add_freq_point(5.0, 0.0, 0.0, 0.0, 0.0);
  noise.add_freq_point(9.0, 0.0, 0.0, 0.0, 0.0);
  noise.add_freq_point(1.0, 0.0, 0.0, 0.0, 0.0);
  EXPECT_EQ(noise.min_unscaled_freq(), 5.0);
  EXPECT_EQ(noise.max_unscaled_freq(), 1.0);
  EXPECT_EQ(noise.max_freq(), 1e3);
}

TEST(NoiseParams, ChecksNothing) {
  NoiseParams noise(1.0);
  noise.add_freq_point(-1.0, -2.0, -3.0, 1e6, -5.0);
  EXPECT_EQ(noise.get_unscaled_freq(0), -1.0);
  EXPECT_EQ(noise.get_min_noise_db(0), -2.0);
  EXPECT_EQ(noise.get_reflection_magnitude(0), -3.0);
  EXPECT_EQ(noise.get_reflection_phase(0), 1e6);
  EXPECT_EQ(noise.get_impedance(0), -5.0);
}

TEST(NoiseParams, CopiesAreIndependent) {
  NoiseParams noise = two_rows();
  const NoiseParams copy(noise);
  NoiseParams assigned(1.0);
  assigned.add_freq_point(7.0, 7.0, 7.0, 7.0, 7.0);
  assigned = noise;
  EXPECT_EQ(copy, noise);
  EXPECT_EQ(assigned, noise);

  noise.add_freq_point(8.0, 0.0, 0.0, 0.0, 0.0);
  EXPECT_EQ(copy.freq_points(), 2U);
  EXPECT_EQ(assigned.freq_points(), 2U);
  EXPECT_NE(copy, noise);
}

TEST(NoiseParams, EqualWhenFactorCountAndEveryNumberAre) {
  struct Row {
    const char* name;
    double factor;
    double row[5];
    bool equal;
  };
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const Row rows[] = {
      {"the same", 1e9, {1, 2, 3, 4, 5}, true},
      {"factor", 1e6, {1, 2, 3, 4, 5}, false},
      {"factor is no number", nan, {1, 2, 3, 4, 5}, false},
      {"frequency", 1e9, {1.0000000000000002, 2, 3, 4, 5}, false},
      {"noise figure", 1e9, {1, 2.0000000000000004, 3, 4, 5}, false},
      {"magnitude", 1e9, {1, 2, 3.0000000000000004, 4, 5}, false},
      {"angle", 1e9, {1, 2, 3, 4.000000000000001, 5}, false},
      {"impedance", 1e9, {1, 2, 3, 4, 5.000000000000001}, false},
      {"frequency is no number", 1e9, {nan, 2, 3, 4, 5}, false},
      {"noise figure is no number", 1e9, {1, nan, 3, 4, 5}, false},
      {"magnitude is no number", 1e9, {1, 2, nan, 4, 5}, false},
      {"angle is no number", 1e9, {1, 2, 3, nan, 5}, false},
      {"impedance is no number", 1e9, {1, 2, 3, 4, nan}, false},
  };
  NoiseParams noise(1e9);
  noise.add_freq_point(1, 2, 3, 4, 5);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    NoiseParams other(row.factor);
    other.add_freq_point(row.row[0], row.row[1], row.row[2], row.row[3], row.row[4]);
    EXPECT_EQ(noise == other, row.equal);
    EXPECT_EQ(other == noise, row.equal);
    EXPECT_EQ(noise != other, !row.equal);
  }
}

TEST(NoiseParams, NegativeZeroEqualsZero) {
  NoiseParams zero(0.0);
  NoiseParams negative(-0.0);
  zero.add_freq_point(0.0, 0.0, 0.0, 0.0, 0.0);
  negative.add_freq_point(-0.0, -0.0, -0.0, -0.0, -0.0);
  EXPECT_EQ(zero, negative);
}

TEST(NoiseParams, OneRowLessIsUnequalBothWays) {
  NoiseParams longer = two_rows();
  const NoiseParams shorter = two_rows();
  longer.add_freq_point(5.0, 0.0, 0.0, 0.0, 0.0);
  EXPECT_NE(longer, shorter);
  EXPECT_NE(shorter, longer);
  EXPECT_NE(NoiseParams(1e9), shorter);
  EXPECT_EQ(NoiseParams(1e9), NoiseParams(1e9));
}

TEST(NoiseParams, NotANumberMakesItUnequalToItself) {
  NoiseParams noise(1e9);
  EXPECT_EQ(noise, noise);
  noise.add_freq_point(1.0, std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0, 0.0);
  EXPECT_FALSE(noise == noise);
  EXPECT_TRUE(noise != noise);
}

}  // namespace
}  // namespace touchstone2
