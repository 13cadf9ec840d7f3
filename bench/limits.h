// What the library is compared with: loops that do the conversions and nothing else.
#ifndef TOUCHSTONE2_BENCH_LIMITS_H
#define TOUCHSTONE2_BENCH_LIMITS_H

#include <touchstone2/touchstone2.h>

#include <cstddef>
#include <iosfwd>
#include <string_view>

#include "inputs.h"

namespace touchstone2::bench {

// Convert every number of the data into one vector per point, of the length that the model's
// have, and return the number of points. Nothing is checked but that there is a number. L1 uses
// std::from_chars, L2 the library's own conversion.
std::size_t read_limit_1(const Input& input, std::string_view bytes);
std::size_t read_limit_2(const Input& input, std::string_view bytes);

// Write the network data in the writer's layout and with its 14 digits, without asking what
// kind of file it is: W1 with operator<<, W2 with std::to_chars into a buffer.
void write_limit_1(const Input& input, const File& file, std::ostream& os);
void write_limit_2(const Input& input, const File& file, std::ostream& os);

}  // namespace touchstone2::bench

#endif
