// Tested by scanner_test.cpp. Two things look odd and are meant: a keyword's column is checked
// only after its bracket has closed, so that an unterminated one is reported as such wherever
// it starts; and a number that runs into letters becomes a word ("5GHz"), unless the letter is
// an exponent's "e", which wants digits ("5e" is an error).
#include "reader/scanner.h"

#include <touchstone2/model/file.h>
#include <touchstone2/reader/diagnostics.h>

#include "reader/ascii.h"

namespace touchstone2 {

using detail::ends_word;
using detail::is_blank;
using detail::is_digit;
using detail::is_line_end;
using detail::to_lower;

Token TokenPlace::to_token(Token::Type type) const {
  Token token{type, line, column, std::string(text())};
  for (char& c : token.text) c = to_lower(c);
  return token;
}

Scanner::Scanner(const File& file, MessageHandler& handler)
    : file_(file),
      handler_(handler),
      mapping_(std::in_place, file.get_filename()),
      begin_(mapping_->bytes().data()),
      end_(begin_ + mapping_->bytes().size()),
      position_(begin_),
      line_start_(begin_),
      token_start_(begin_) {}

Scanner::Scanner(const File& file, MessageHandler& handler, std::string_view bytes)
    : file_(file),
      handler_(handler),
      begin_(bytes.data()),
      end_(begin_ + bytes.size()),
      position_(begin_),
      line_start_(begin_),
      token_start_(begin_) {
  if (bytes.empty()) throw ParserError(ErrorType::FileEmpty);
}

TokenPlace Scanner::token_place() const {
  return {token_start_, static_cast<std::size_t>(position_ - token_start_), token_.line,
          token_.column};
}

void Scanner::report_progress_to(ReadProgress* progress) {
  progress_ = ProgressMark(progress, begin_);
  progress_.line_begins(line_start_, line_);
}

bool Scanner::next() {
  start_token(Token::Type::whitespace);
  if (!at_end() && is_blank(*position_) && scan_whitespace()) return true;
  if (at_end()) {
    scan_end_of_file();
    return false;
  }

  switch (*position_) {
    case '\n':
    case '\r':
      scan_newline();
      break;
    case '!':
      scan_comment();
      break;
    case '[':
      scan_keyword();
      break;
    case '#':
      scan_options_mark();
      break;
    case '+':
    case '-':
    case '.':
    case '0':
    case '1':
    case '2':
    case '3':
    case '4':
    case '5':
    case '6':
    case '7':
    case '8':
    case '9':
      scan_number();
      break;
    default:
      token_.type = Token::Type::string;
      scan_rest_of_word();
      break;
  }
  return true;
}

void Scanner::resume_at_line(const char* line_start, std::size_t line) {
  position_ = line_start;
  line_start_ = line_start;
  line_ = line;
  progress_.line_begins(line_start_, line_);
}

void Scanner::start_token(Token::Type type) {
  token_.type = type;
  token_.line = line_;
  token_.column = column();
  token_.text.clear();
  token_start_ = position_;
}

void Scanner::start_next_line() {
  ++line_;
  line_start_ = position_;
  progress_.line_begins(line_start_, line_);
}

// False when the run of blanks is followed by a line end, a comment or the end of the file: it
// is then dropped and the next token starts behind it.
bool Scanner::scan_whitespace() {
  while (!at_end() && is_blank(*position_)) ++position_;
  if (!at_end() && !ends_word(*position_)) {
    token_.text.assign(token_start_, position_);
    return true;
  }
  start_token(Token::Type::whitespace);
  return false;
}

void Scanner::scan_newline() {
  token_.type = Token::Type::newline;
  token_.text.assign(1, '\n');
  const bool carriage_return = *position_ == '\r';
  ++position_;
  if (carriage_return && !at_end() && *position_ == '\n') ++position_;
  start_next_line();
}

void Scanner::scan_comment() {
  token_.type = Token::Type::comment;
  ++position_;
  const char* const first = position_;
  for (; !at_end() && !is_line_end(*position_); ++position_) {
    if (!detail::is_printable(*position_) && *position_ != '\t') warn_of_invalid_character();
  }
  token_.text.assign(first, position_);
}

void Scanner::scan_number() {
  token_.type = Token::Type::number;
  do {
    ++position_;
  } while (!at_end() && (is_digit(*position_) || *position_ == '.'));
  token_.text.assign(token_start_, position_);
  if (!at_end() && to_lower(*position_) == 'e') scan_exponent();
  if (!at_end() && !ends_word(*position_)) {
    token_.type = Token::Type::string;
    scan_rest_of_word();
  }
  if (token_.text.size() == 1 && !is_digit(token_.text[0])) fail(ErrorType::ExpectedNumber);
}

void Scanner::scan_exponent() {
  token_.text += 'e';
  ++position_;
  if (!at_end() && (*position_ == '+' || *position_ == '-')) token_.text += *position_++;
  const char* const first_digit = position_;
  while (!at_end() && is_digit(*position_)) ++position_;
  if (position_ == first_digit) fail(ErrorType::ExpectedNumber);
  token_.text.append(first_digit, position_);
}

void Scanner::scan_rest_of_word() {
  for (; !at_end() && !ends_word(*position_); ++position_) {
    if (!detail::is_graphic(*position_)) fail_at_invalid_character();
    token_.text += to_lower(*position_);
  }
}

void Scanner::scan_keyword() {
  token_.type = Token::Type::keyword;
  for (++position_; !at_end() && *position_ != ']'; ++position_) {
    if (is_line_end(*position_) || *position_ == '!') fail(ErrorType::KeywordNotClosed);
    if (!detail::is_printable(*position_)) {
      token_.column = column();
      fail_at_invalid_character();
    }
    token_.text += to_lower(*position_);
  }
  if (at_end()) fail(ErrorType::KeywordNotClosed);
  ++position_;
  if (token_.column != 1) fail(ErrorType::KeywordNotAtLineStart);
}

void Scanner::scan_options_mark() {
  token_.type = Token::Type::options_mark;
  token_.text.assign(1, '#');
  ++position_;
}

void Scanner::scan_end_of_file() {
  token_.type = Token::Type::end_of_file;
  if (is_line_end(end_[-1])) token_.text.assign(1, '\n');
  end_of_file_reached_ = true;
}

void Scanner::warn_of_invalid_character() const {
  const Token byte{Token::Type::string, line_, column(), std::string(1, *position_)};
  handler_.report_warning(file_, InvalidCharacterWarning(byte));
}

void Scanner::fail(ErrorType code) const { throw ParserError(code, token_); }

// The token becomes the one bad byte; its position stays where the token starts.
void Scanner::fail_at_invalid_character() {
  token_.type = Token::Type::string;
  token_.text.assign(1, *position_);
  throw InvalidCharacterError(token_);
}

}  // namespace touchstone2
