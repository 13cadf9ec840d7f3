/// How standard error and standard output want their text: for people at a terminal, or plain lines
/// for programs.
#ifndef TOUCHSTONE2_TOOL_DISPLAY_H
#define TOUCHSTONE2_TOOL_DISPLAY_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

struct Display {
  bool rich = false;        ///< a terminal, and nobody asked for plain lines
  bool colour = false;      ///< only if rich
  bool can_erase = false;   ///< takes back what is written on a line; only if rich
  std::size_t columns = 0;  ///< of the terminal; meaningful only if rich
};

/// @{
/// Of standard error and of standard output; looked up once. COLUMNS goes before what the terminal
/// says. NO_COLOR, if it is not empty, and TERM=dumb take the colours away.
const Display& error_display();
const Display& output_display();
/// @}

/// Makes both displays plain ones. Call it before either is looked up.
void use_plain_displays();

enum class Style { bold, red, magenta, blue };

/// The text in bold and perhaps a colour, on a display that has colours; else the text.
std::string styled(const Display& display, Style style, std::string_view text);

}  // namespace tool

#endif
