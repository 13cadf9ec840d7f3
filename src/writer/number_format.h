// Doubles to text, the bytes that a stream writes in its default notation.
#ifndef TOUCHSTONE2_SRC_WRITER_NUMBER_FORMAT_H
#define TOUCHSTONE2_SRC_WRITER_NUMBER_FORMAT_H

namespace touchstone2::detail {

// What format_number may write over. The text itself, with up to 17 significant digits, has at
// most 24 bytes: "-1.2345678901234567e-308".
inline constexpr int kNumberRoom = 56;

// Writes `value` as printf's "%.*g" does in the "C" locale and returns the end. There is room
// for kNumberRoom at `out`; what is left behind the end is undefined. `precision` is from 1 to
// 17.
char* format_number(char* out, double value, int precision);

}  // namespace touchstone2::detail

#endif
