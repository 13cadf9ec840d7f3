// One plain number of a data line to a double, eight bytes at a time.
#ifndef TOUCHSTONE2_SRC_READER_FAST_NUMBER_H
#define TOUCHSTONE2_SRC_READER_FAST_NUMBER_H

namespace touchstone2::detail {

// How many bytes behind its first one parse_plain_number may look at. Everything here expects
// as many to be there.
inline constexpr int kFastNumberReach = 96;

// Reads a literal at `text`: a sign or none, digits with at most one point among them, an
// exponent or none; then a blank, a tab or a line end, which is not taken. Stores the nearest
// double, the same bits as parse_real gives, and returns the position behind the literal.
//
// Null for anything else: another byte, a shape that the exact reader would take in part only,
// a value outside the normal range, a literal of more than 64 bytes. Nothing is lost then; the
// exact reader has to look.
const char* parse_plain_number(const char* text, double& value);

}  // namespace touchstone2::detail

#endif
