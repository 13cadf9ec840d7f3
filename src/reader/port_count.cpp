// Small whole-number helpers of the version 1 reader.
#include <touchstone2/reader/port_count.h>

#include <cmath>

namespace touchstone2 {

std::size_t find_sqrt(std::size_t n) {
  // NOLINTNEXTLINE(bugprone-incorrect-roundings): a root is never negative
  return static_cast<std::size_t>(std::sqrt(static_cast<double>(n)) + 0.5);
}

bool is_even(std::size_t n) { return (n & 1U) == 0; }

bool is_odd(std::size_t n) { return (n & 1U) != 0; }

}  // namespace touchstone2
