// Character classes of the format. They never ask the process's locale.
#ifndef TOUCHSTONE2_SRC_READER_ASCII_H
#define TOUCHSTONE2_SRC_READER_ASCII_H

namespace touchstone2::detail {

constexpr bool is_digit(char c) { return c >= '0' && c <= '9'; }

constexpr bool is_blank(char c) { return c == ' ' || c == '\t'; }

constexpr bool is_line_end(char c) { return c == '\n' || c == '\r'; }

// Printable US-ASCII without and with the space. Bytes from 0x80 are none, whether char is
// signed or not.
constexpr bool is_graphic(char c) { return c >= '!' && c <= '~'; }
constexpr bool is_printable(char c) { return c >= ' ' && c <= '~'; }

// What ends a word or a number: a blank, a line end or the start of a comment.
constexpr bool ends_word(char c) { return is_blank(c) || is_line_end(c) || c == '!'; }

constexpr char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; }

}  // namespace touchstone2::detail

#endif
