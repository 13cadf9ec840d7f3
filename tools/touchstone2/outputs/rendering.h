/// The text of a file, written with just the digits that it needs and read back.
#ifndef TOUCHSTONE2_TOOL_RENDERING_H
#define TOUCHSTONE2_TOOL_RENDERING_H

#include <touchstone2/model/file.h>
#include <touchstone2/model/types.h>

#include <cstddef>
#include <optional>
#include <string>

namespace tool {

constexpr int kFewestAutomaticDigits = 14;
constexpr int kMostDigits = 17;  // enough for every double

struct Rendering {
  std::string text;
  int digits;
  std::size_t changed_numbers;  // in any bit, compared with what the file holds
};

/// Writes `file` and reads it back.
///
/// @param file    valid; its port-name lines are brought up to date
/// @param digits  significant digits of every number; none: the fewest from 14 to 17 that give
///                back every bit. If even 17 do not, because version 1 normalises, it is 17.
/// @throws Refusal  when the version cannot hold the file, or what is read back is not what the
///                  file holds, rounded to the digits
Rendering render(touchstone2::File& file, touchstone2::FileVersion version,
                 std::optional<int> digits);

}  // namespace tool

#endif
