// Bytes to tokens, in one forward pass. The scanner counts lines and columns, folds words to
// lower case and refuses bytes that the format does not allow; it knows no keyword's meaning.
#ifndef TOUCHSTONE2_SRC_READER_SCANNER_H
#define TOUCHSTONE2_SRC_READER_SCANNER_H

#include <touchstone2/reader/message_handler.h>
#include <touchstone2/reader/token.h>

#include <cstddef>
#include <optional>
#include <string_view>

#include "reader/mapped_file.h"
#include "reader/progress_mark.h"
#include "reader/token_place.h"

namespace touchstone2 {

class Scanner {
 public:
  // Maps the file that `file` names. Throws ParserError 1001, 1002, 1003.
  Scanner(const File& file, MessageHandler& handler);

  // Scans `bytes`, which must outlive the scanner. Throws ParserError 1003 for none.
  Scanner(const File& file, MessageHandler& handler, std::string_view bytes);

  Scanner(const Scanner&) = delete;
  Scanner& operator=(const Scanner&) = delete;

  // Tells `progress` of every line from here on; null for nobody.
  void report_progress_to(ReadProgress* progress);

  // Scans the next token; false for `end_of_file`, which then comes again at every call.
  // Throws InvalidCharacterError and ParserError 2007, 2009, 2012, which carry the token as
  // far as it was read; reports InvalidCharacterWarning.
  bool next();

  // The current token: type 0 without position before the first call of next.
  const Token& token() const { return token_; }

  // Where the current token lies in the bytes. Only for `number` and `string` tokens.
  TokenPlace token_place() const;

  bool end_of_file_reached() const { return end_of_file_reached_; }

  // Goes on at the first byte of a line, which has the given number, as if everything before
  // it had been scanned. Not for the end of the bytes.
  void resume_at_line(const char* line_start, std::size_t line);

  const ProgressMark& progress_mark() const { return progress_; }
  const char* end() const { return end_; }
  std::size_t size() const { return static_cast<std::size_t>(end_ - begin_); }

 private:
  bool at_end() const { return position_ == end_; }
  std::size_t column() const { return static_cast<std::size_t>(position_ - line_start_) + 1; }
  void start_token(Token::Type type);
  void start_next_line();

  bool scan_whitespace();
  void scan_newline();
  void scan_comment();
  void scan_number();
  void scan_exponent();
  void scan_rest_of_word();
  void scan_keyword();
  void scan_options_mark();
  void scan_end_of_file();
  void warn_of_invalid_character() const;
  [[noreturn]] void fail(ErrorType code) const;
  [[noreturn]] void fail_at_invalid_character();

  const File& file_;
  MessageHandler& handler_;
  std::optional<MappedFile> mapping_;  // none when the caller owns the bytes
  const char* begin_;
  const char* end_;
  const char* position_;
  const char* line_start_;   // column 1 of the current line
  const char* token_start_;  // first byte of the current token
  std::size_t line_ = 1;
  Token token_;
  ProgressMark progress_;
  bool end_of_file_reached_ = false;
};

}  // namespace touchstone2

#endif
