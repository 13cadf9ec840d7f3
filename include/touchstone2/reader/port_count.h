/// From the length of a record to the number of ports. A record of a version 1 file is a
/// frequency and N x N pairs, so its count of numbers is odd and its count of pairs a square.
#ifndef TOUCHSTONE2_READER_PORT_COUNT_H
#define TOUCHSTONE2_READER_PORT_COUNT_H

#include <touchstone2/export.h>

#include <cstddef>

namespace touchstone2 {

/// The square root of n rounded to the nearest whole number; n need not be a square.
TOUCHSTONE2_EXPORT std::size_t find_sqrt(std::size_t n);

/// True for 0, 2, 4 and so on.
TOUCHSTONE2_EXPORT bool is_even(std::size_t n);

/// True for 1, 3, 5 and so on.
TOUCHSTONE2_EXPORT bool is_odd(std::size_t n);

}  // namespace touchstone2

#endif
