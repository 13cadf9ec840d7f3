// Values in magnitude and angle are subtracted as such: by way of real and imaginary part a
// difference in the last bit of an angle could be rounded away.

#include "comparison/numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tool {

namespace {

using touchstone2::ComplexFormat;

constexpr double kPi = 3.141592653589793;
constexpr double kNepersPerDecibel = 0.11512925464970229;  // ln(10) / 20

// The error of a few roundings, of angles of some turns and of decibels in the hundreds.
constexpr double kRounding = 1e-13;
constexpr double kZeroOfDecibels = 1e-299;

bool is_same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

double magnitude_of(ComplexFormat format, const Pair& value) {
  if (format == ComplexFormat::DB) return std::pow(10, value.first / 20);
  if (format == ComplexFormat::MA) return std::abs(value.first);
  return std::hypot(value.first, value.second);
}

double difference_of_magnitudes(ComplexFormat format, const Pair& a, const Pair& b) {
  if (format == ComplexFormat::MA) return a.first - b.first;
  return magnitude_of(format, b) * std::expm1((a.first - b.first) * kNepersPerDecibel);
}

// By the law of cosines, in the form that does not cancel.
double polar_distance(ComplexFormat format, const Pair& a, const Pair& b) {
  const double half_rad = std::remainder(a.second - b.second, 360.0) / 360 * kPi;
  const double mean = std::sqrt(magnitude_of(format, a)) * std::sqrt(magnitude_of(format, b));
  return std::hypot(difference_of_magnitudes(format, a, b), 2 * mean * std::sin(half_rad));
}

double distance(ComplexFormat format, const Pair& a, const Pair& b) {
  if (format != ComplexFormat::RI) return polar_distance(format, a, b);
  return std::hypot(a.first - b.first, a.second - b.second);
}

}  // namespace

bool are_same(const Pair& a, const Pair& b) {
  return is_same(a.first, b.first) && is_same(a.second, b.second);
}

double relative_difference(const NumberForm& form, const Pair& a, const Pair& b, double unit) {
  if (are_same(a, b)) return 0.0;
  const double apart = distance(form.format, a, b);
  const double magnitude = std::max(magnitude_of(form.format, a), magnitude_of(form.format, b));
  if (!std::isfinite(apart) || !std::isfinite(magnitude)) {
    return std::numeric_limits<double>::infinity();
  }
  if (form.rounded && apart <= kRounding * magnitude + kZeroOfDecibels) return 0.0;
  if (apart == 0.0) return 0.0;
  // However great the unit, what is not the same does not become it.
  return std::max(apart / std::max(magnitude, unit), std::numeric_limits<double>::denorm_min());
}

}  // namespace tool
