/// Markdown for terminals.
#ifndef TOUCHSTONE2_TOOL_PLAIN_TEXT_H
#define TOUCHSTONE2_TOOL_PLAIN_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

/// Paragraphs and "- " lists, wrapped so that lines have at most `width` characters; a longer
/// word has a line of its own. `code` becomes "code" and is never broken, of a link its text
/// stays. Ends with a line end. No other Markdown is known.
std::string plain_text(std::string_view markdown, std::size_t width);

}  // namespace tool

#endif
