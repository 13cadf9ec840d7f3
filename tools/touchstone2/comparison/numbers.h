/// When two numbers of two files count as the same, and how far they lie apart otherwise.
#ifndef TOUCHSTONE2_TOOL_NUMBERS_H
#define TOUCHSTONE2_TOOL_NUMBERS_H

#include <touchstone2/model/types.h>

#include <utility>

namespace tool {

/// Both are bounds that still count as equal; 0 asks for the same number.
struct Tolerance {
  double values = 0.0;       ///< of relative_difference
  double frequencies = 0.0;  ///< relative to the greater frequency
};

/// The two numbers of a complex value; a real number has a second one of 0 and the format RI.
using Pair = std::pair<double, double>;

/// What the two numbers of both values mean, and where they come from.
struct NumberForm {
  touchstone2::ComplexFormat format = touchstone2::ComplexFormat::RI;
  /// At least one of the values was computed from what its file says: converted to `format`,
  /// or multiplied by the reference impedance. Differences as small as its rounding count as
  /// none: up to 1e-13 of the greater magnitude, and up to 1e-299, as -6000 dB stand for 0.
  bool rounded = false;
};

/// |a - b| relative to the greatest of |a|, |b| and `unit`, which is what a value of this kind
/// is measured in. It is 0 only for the same number (0 is -0, and angles a turn apart are the
/// same), or within the rounding that `form` allows. Infinities and NaNs are equal if both numbers
/// of the pairs are, and infinitely far from all else.
double relative_difference(const NumberForm& form, const Pair& a, const Pair& b, double unit);

/// Equal numbers, or both NaN.
bool are_same(const Pair& a, const Pair& b);

}  // namespace tool

#endif
