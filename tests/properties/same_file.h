// Whether one File says what another one says, number by number.
#ifndef TOUCHSTONE2_TESTS_PROPERTIES_SAME_FILE_H
#define TOUCHSTONE2_TESTS_PROPERTIES_SAME_FILE_H

#include <touchstone2/touchstone2.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "support/same_bits.h"

namespace touchstone2::test {

// The C library's idea of a number written with so many digits and read again.
inline double rounded(double value, int digits) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*g", digits, value);
  return std::strtod(text, nullptr);
}

// Compares a File with the one that its text, written with `digits`, was read into. Version,
// name, other comments and the information flag are not looked at.
class SameFile {
 public:
  SameFile(const File& meant, const File& found, FileVersion version, int digits)
      : meant_(meant), found_(found), version_(version), digits_(digits) {}

  void expect() {
    expect_head();
    if (::testing::Test::HasFailure()) return;
    expect_network();
    expect_noise();
  }

 private:
  void expect_head() {
    EXPECT_EQ(found_.get_version(), version_);
    EXPECT_EQ(found_.get_frequency_scale_factor(), meant_.get_frequency_scale_factor());
    EXPECT_EQ(found_.get_parameter_type(), meant_.get_parameter_type());
    EXPECT_EQ(found_.get_complex_format(), meant_.get_complex_format());
    expect_number(found_.get_reference_impedance(), meant_.get_reference_impedance());
    EXPECT_EQ(found_.get_number_of_ports(), meant_.get_number_of_ports());
    EXPECT_EQ(found_.get_number_of_frequencies(), meant_.get_number_of_frequencies());
    EXPECT_EQ(found_.get_number_of_noise_frequencies(), meant_.get_number_of_noise_frequencies());
    EXPECT_EQ(found_.get_matrix_format(), meant_.get_matrix_format());
    EXPECT_EQ(found_.uses_mixed_mode(), meant_.uses_mixed_mode());
    EXPECT_EQ(found_.get_mixed_mode_descriptors(), meant_.get_mixed_mode_descriptors());
    EXPECT_EQ(found_.get_port_names(), meant_.get_port_names());
    EXPECT_EQ(found_.get_leading_comments(), meant_.get_leading_comments());
    EXPECT_EQ(found_.uses_reference_impedance_per_port(),
              meant_.uses_reference_impedance_per_port());
    const std::vector<double>& ohms = meant_.get_reference_impedance_per_port();
    ASSERT_EQ(found_.get_reference_impedance_per_port().size(), ohms.size());
    for (std::size_t port = 0; port < ohms.size(); ++port) {
      expect_number(found_.get_reference_impedance_per_port()[port], ohms[port]);
    }
    // Version 1 has one order for two ports.
    if (meant_.get_number_of_ports() == 2 && version_ == FileVersion::V1) {
      EXPECT_EQ(found_.get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
    } else {
      EXPECT_EQ(found_.get_two_port_data_order(), meant_.get_two_port_data_order());
    }
  }

  void expect_network() {
    const NetworkParams& meant = *meant_.get_network_params();
    const NetworkParams& found = *found_.get_network_params();
    EXPECT_EQ(found.isSymmetric(), meant.isSymmetric());
    EXPECT_EQ(found.freq_scale_factor(), meant.freq_scale_factor());
    ASSERT_EQ(found.rows(), meant.rows());
    ASSERT_EQ(found.freq_points(), meant.freq_points());
    const bool normalised =
        version_ == FileVersion::V1 && meant_.get_parameter_type() != ParameterType::S;
    for (std::size_t k = 0; k < meant.freq_points(); ++k) {
      expect_number(found.get_unscaled_freq(k), meant.get_unscaled_freq(k));
      for (std::size_t row = 0; row < meant.rows(); ++row) {
        for (std::size_t col = 0; col < meant.cols(); ++col) {
          const auto a = meant.cell(k, row, col).as_format(meant.format());
          const auto b = found.cell(k, row, col).as_format(found.format());
          expect_value(b.first, a.first, normalised);
          expect_value(b.second, a.second, normalised);
        }
      }
    }
  }

  void expect_noise() {
    const NoiseParams* const meant = meant_.get_noise_params();
    const NoiseParams* const found = found_.get_noise_params();
    ASSERT_EQ(found == nullptr, meant == nullptr);
    if (meant == nullptr) return;
    ASSERT_EQ(found->freq_points(), meant->freq_points());
    for (std::size_t k = 0; k < meant->freq_points(); ++k) {
      expect_number(found->get_unscaled_freq(k), meant->get_unscaled_freq(k));
      expect_number(found->get_min_noise_db(k), meant->get_min_noise_db(k));
      expect_number(found->get_reflection_magnitude(k), meant->get_reflection_magnitude(k));
      expect_number(found->get_reflection_phase(k), meant->get_reflection_phase(k));
      expect_value(found->get_impedance(k), meant->get_impedance(k), version_ == FileVersion::V1);
    }
  }

  void expect_number(double found, double meant) {
    EXPECT_TRUE(same_bits(found, digits_ == 17 ? meant : rounded(meant, digits_)));
  }

  // Multiplying on one way and dividing on the other rounds once each, and so does adding and
  // subtracting decibels: some units in the last place of the greatest number involved. Besides,
  // half a unit of the last digit is lost twice, in the number and in the reference impedance; of
  // the latter a relative error is 8.7 times as many decibels.
  void expect_value(double found, double meant, bool normalised) {
    if (!normalised) return expect_number(found, meant);
    const double ohms = meant_.get_reference_impedance();
    const bool in_db = meant_.get_complex_format() == ComplexFormat::DB;
    const double decibels = in_db ? std::abs(20 * std::log10(ohms)) + 9 : 0.0;
    const double allowed = 4 * std::numeric_limits<double>::epsilon() +
                           (digits_ == 17 ? 0.0 : std::pow(10.0, 1 - digits_));
    EXPECT_LE(std::abs(found - meant), allowed * (std::abs(meant) + decibels))
        << found << " " << meant;
  }

  const File& meant_;
  const File& found_;
  FileVersion version_;
  int digits_;
};

}  // namespace touchstone2::test

#endif
