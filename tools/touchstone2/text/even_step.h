/// The step of a sweep.
#ifndef TOUCHSTONE2_TOOL_EVEN_STEP_H
#define TOUCHSTONE2_TOOL_EVEN_STEP_H

#include <cstddef>
#include <functional>
#include <optional>

namespace tool {

/// The difference of neighbours, if it is the same everywhere as a decimal number: 0.1, 0.2, 0.3
/// are evenly spaced, though the doubles are not. None for less than three values, for values
/// that were rounded to their digits (0, 0.333, 0.667, 1), and where 18 digits do not hold two
/// neighbours.
/// @param value  the value at an index, none of them negative
std::optional<double> even_step(std::size_t count, const std::function<double(std::size_t)>& value);

}  // namespace tool

#endif
