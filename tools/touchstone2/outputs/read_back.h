/// Whether a text that was written says what was meant.
#ifndef TOUCHSTONE2_TOOL_READ_BACK_H
#define TOUCHSTONE2_TOOL_READ_BACK_H

#include <touchstone2/model/file.h>
#include <touchstone2/model/types.h>

#include <cstddef>
#include <string_view>

namespace tool {

/// How a text was made: its generation, and the significant digits of its numbers.
struct TextForm {
  touchstone2::FileVersion version;
  int digits;
};

/// True when version 1 holds some numbers of the file relative to the reference impedance, which
/// costs a multiplication each way: Y-, Z-, H- and G-parameters, and noise resistances.
bool has_normalised_numbers(const touchstone2::File& file, touchstone2::FileVersion version);

/// Reads `text` and compares it with `meant`: options, port count, references, mixed mode,
/// matrix format, leading comments, port names and every number. A number must be the one that
/// is meant, rounded to the digits of the text; one that was normalised may be off by some units
/// in its last bit besides.
///
/// @return how many numbers differ in any bit from the ones that are meant
/// @throws Refusal  saying the first thing that differs
std::size_t count_changed_numbers(const touchstone2::File& meant, std::string_view text,
                                  TextForm form);

}  // namespace tool

#endif
