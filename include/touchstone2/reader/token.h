/// One lexical unit of a Touchstone file. Diagnostics take their position and text from it.
#ifndef TOUCHSTONE2_READER_TOKEN_H
#define TOUCHSTONE2_READER_TOKEN_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace touchstone2 {

/// A plain record that stands on its own: nothing in it refers to the file's bytes.
struct Token {
  /// The numeric values are interface.
  enum class Type : std::uint32_t {
    whitespace = 0,    ///< a run of spaces and tabs before something else on the same line
    newline = 1,       ///< "\n", "\r" or "\r\n"; the text is always "\n"
    options_mark = 2,  ///< "#"
    keyword = 3,       ///< the text between "[" and "]", in lower case
    number = 4,        ///< a numeric literal, exponent letter in lower case
    string = 5,        ///< any other word, in lower case
    comment = 6,       ///< the bytes after "!" up to the line end, as they stand
    end_of_file = 7,   ///< text "\n" when the last byte is a line end, else empty
  };

  Type type = Type::whitespace;  ///< tells how to read the text
  std::size_t line = 0;          ///< line of the first byte, from 1; 0 for no position
  std::size_t column = 0;        ///< column of the first byte, from 1, one column a byte
  std::string text;              ///< see Type; lower case but for comments
};

}  // namespace touchstone2

#endif
