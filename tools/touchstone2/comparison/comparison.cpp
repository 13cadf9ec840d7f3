// The parts, put together.

#include "comparison/comparison.h"

namespace tool {

Comparison compare(const touchstone2::File& a, const touchstone2::File& b,
                   const Tolerance& tolerance) {
  Comparison result;
  result.content = compare_content(a, b, tolerance.values);
  result.form = compare_form(a, b);
  result.comments = compare_comments(a, b);
  result.network = compare_network(a, b, tolerance);
  result.noise = compare_noise(a, b, tolerance);
  return result;
}

}  // namespace tool
