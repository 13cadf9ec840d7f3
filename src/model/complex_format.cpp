// The order of the floating-point operations is part of the result: dividing by pi and then
// multiplying by 180 does not give the same last bit as multiplying by 180/pi.
#include "model/complex_format.h"

#include <algorithm>
#include <cmath>

namespace touchstone2::detail {

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kSmallestMagnitude = 1e-300;  // keeps a zero magnitude finite: -6000 dB

double decibels(double magnitude) {
  return 20 * std::log10(std::max(magnitude, kSmallestMagnitude));
}

}  // namespace

std::pair<double, double> convert_complex(ComplexFormat from, ComplexFormat to, double x,
                                          double y) {
  if (from == to) return {x, y};
  if (from == ComplexFormat::RI) {
    const double magnitude = std::hypot(x, y);
    const double deg = std::atan2(y, x) / kPi * 180;
    return {to == ComplexFormat::DB ? decibels(magnitude) : magnitude, deg};
  }

  const double rad = y / 180 * kPi;
  if (from == ComplexFormat::MA) {
    if (to == ComplexFormat::DB) return {decibels(x), y};
    return {std::cos(rad) * x, std::sin(rad) * x};
  }
  const double magnitude = std::pow(10, x / 20);
  if (to == ComplexFormat::MA) return {magnitude, y};
  return {std::cos(rad) * magnitude, std::sin(rad) * magnitude};
}

}  // namespace touchstone2::detail
