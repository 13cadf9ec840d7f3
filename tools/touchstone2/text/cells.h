/// Bytes of a file as a terminal shows them, cell by cell.
///
/// Everything that could steer a terminal or be invisible is shown as "\x1b": control characters,
/// bytes that are not UTF-8, characters that change the direction of a text.
#ifndef TOUCHSTONE2_TOOL_CELLS_H
#define TOUCHSTONE2_TOOL_CELLS_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// One character, or one byte that is none.
struct Glyph {
  std::string text;
  std::size_t begin;  ///< of its first byte in the bytes
  std::size_t cell;   ///< where it is shown, from 0
  std::size_t cells;  ///< how many it takes; 0 for a mark that joins the one before it
};

/// A line, without its end. Tabs become blanks up to the next multiple of eight cells.
std::vector<Glyph> to_glyphs(std::string_view line);

/// The text on one line of a terminal.
std::string visible(std::string_view text);

}  // namespace tool

#endif
