// Where a token lies in the bytes: what is kept of the many numbers of one record, so that a
// later check can still report at each of them.
#ifndef TOUCHSTONE2_SRC_READER_TOKEN_PLACE_H
#define TOUCHSTONE2_SRC_READER_TOKEN_PLACE_H

#include <touchstone2/reader/token.h>

#include <cstddef>
#include <string_view>

namespace touchstone2 {

// Good as long as the bytes are. 32 bytes, a third of a Token: a record of a large network has
// millions of numbers.
struct TokenPlace {
  const char* first;
  std::size_t length;
  std::size_t line;    // from 1
  std::size_t column;  // from 1

  std::string_view text() const { return {first, length}; }  // letters as in the file

  // The token as the scanner delivered it, letters in lower case.
  Token to_token(Token::Type type) const;
};

}  // namespace touchstone2

#endif
