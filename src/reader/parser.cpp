// The driver of a read and the token helpers that every reader uses. The keyword and data
// readers are members of Parser too, one concern per file.
#include <touchstone2/reader/parser.h>
#include <touchstone2/reader/read_progress.h>

#include "reader/number_text.h"
#include "reader/scanner.h"

namespace touchstone2 {

Parser::Parser(File& file, MessageHandler& handler) : file_(file), handler_(handler) {}

Parser::Parser(File& file, MessageHandler& handler, std::string_view bytes)
    : file_(file), handler_(handler), bytes_(bytes) {}

Parser::~Parser() = default;

bool Parser::read_file() { return read_file_private(/*header_only=*/false); }

bool Parser::read_file_header() { return read_file_private(/*header_only=*/true); }

// The one place that catches. The file is released before the error is reported, and also when
// an exception of another kind (no memory, a handler's own) passes through.
bool Parser::read_file_private(bool header_only) {
  try {
    open_scanner();
    read_from_first_token(header_only);
    scanner_.reset();
  } catch (const ParserError& parser_error) {
    scanner_.reset();
    error(parser_error);
  } catch (...) {
    scanner_.reset();
    throw;
  }
  return file_.is_valid();
}

void Parser::set_progress(ReadProgress* progress) { progress_ = progress; }

void Parser::open_scanner() {
  if (progress_ != nullptr) {
    progress_->bytes.store(0, std::memory_order_relaxed);
    progress_->line = 0;
    progress_->line_offset = 0;
  }
  scanner_ = bytes_ ? std::make_unique<Scanner>(file_, handler_, *bytes_)
                    : std::make_unique<Scanner>(file_, handler_);
  scanner_->report_progress_to(progress_);
}

void Parser::read_from_first_token(bool header_only) {
  for (;;) {
    switch (next_token().type) {
      case Token::Type::newline:
        break;
      case Token::Type::comment:
        file_.append_leading_comment_line(current_token().text);
        break;
      case Token::Type::whitespace:
        if (next_token().type != Token::Type::options_mark) {
          throw ParserError(ErrorType::NotATouchstoneFile, current_token());
        }
        return read_v1_file(header_only);
      case Token::Type::options_mark:
        return read_v1_file(header_only);
      case Token::Type::keyword:
        return read_v2_file(header_only);
      case Token::Type::number:
      case Token::Type::string:
        throw ParserError(ErrorType::NotATouchstoneFile, current_token());
      case Token::Type::end_of_file:
        throw ParserError(ErrorType::OnlyCommentsOrBlankLines, current_token());
    }
  }
}

void Parser::error(const ParserError& error) const { handler_.report_error(file_, error); }

void Parser::warning(const ParserWarning& warning) const {
  handler_.report_warning(file_, warning);
}

// The check for a missing line end is made at every advance, so a reader that advances at the
// end of such a file twice reports it twice.
const Token& Parser::next_token() {
  if (!scanner_->next() && current_token().text.empty()) {
    warning(ParserWarning(ErrorType::MissingFinalEndOfLine, current_token()));
  }
  return current_token();
}

const Token& Parser::current_token() const { return scanner_->token(); }

void Parser::skip_blank_lines() {
  for (;;) {
    switch (current_token().type) {
      case Token::Type::newline:
      case Token::Type::comment:
        next_token();
        break;
      case Token::Type::whitespace:
      case Token::Type::keyword:
      case Token::Type::number:
      case Token::Type::string:
        return;
      case Token::Type::options_mark:
        throw ParserError(ErrorType::InvalidSecondaryOptionsLine, current_token());
      case Token::Type::end_of_file:
        throw ParserError(ErrorType::ExpectedEnd, current_token());
    }
  }
}

// After a comment the current token is the comment's line end.
void Parser::skip_newline() {
  switch (current_token().type) {
    case Token::Type::newline:
    case Token::Type::comment:
      next_token();
      return;
    case Token::Type::end_of_file:
      return;
    case Token::Type::whitespace:
    case Token::Type::options_mark:
    case Token::Type::keyword:
    case Token::Type::number:
    case Token::Type::string:
      break;
  }
  throw ParserError(ErrorType::ExpectedEndOfLine, current_token());
}

void Parser::skip_whitespace(ErrorType code) {
  switch (current_token().type) {
    case Token::Type::whitespace:
      next_token();
      return;
    case Token::Type::newline:
    case Token::Type::comment:
    case Token::Type::end_of_file:
      throw ParserError(code, current_token());
    case Token::Type::options_mark:
    case Token::Type::keyword:
    case Token::Type::number:
    case Token::Type::string:
      break;
  }
  throw ParserError(ErrorType::ExpectedWhitespace, current_token());
}

// Returns the type that was current before the advance; the end of the file counts as a line
// end.
Token::Type Parser::skip_whitespace_or_newline() {
  const Token::Type type = current_token().type;
  switch (type) {
    case Token::Type::whitespace:
    case Token::Type::newline:
    case Token::Type::comment:
      next_token();
      return type;
    case Token::Type::end_of_file:
      return Token::Type::newline;
    case Token::Type::options_mark:
    case Token::Type::keyword:
    case Token::Type::number:
    case Token::Type::string:
      break;
  }
  throw ParserError(ErrorType::ExpectedWhitespace, current_token());
}

void Parser::scan_number(ErrorType code) const {
  if (current_token().type != Token::Type::number) throw ParserError(code, current_token());
}

void Parser::scan_string(ErrorType code) const {
  if (current_token().type != Token::Type::string) throw ParserError(code, current_token());
}

std::int32_t Parser::as_int(const Token& token, bool warn) const {
  const auto integer = detail::parse_integer(token.text);
  if (!integer) throw ParserError(ErrorType::ExpectedInteger, token);
  // A clipped integer is never zero, so the warning is always that of a large number.
  if (integer->clipped && warn) warning(ClippingLargeNumberWarning(integer->value, token));
  return integer->value;
}

double Parser::as_real(const Token& token, bool warn) const {
  const detail::RealText real = detail::parse_real(token.text);
  if (!warn) return real.value;
  switch (real.range) {
    case detail::RealRange::normal:
      break;
    case detail::RealRange::too_large:
      warning(ClippingLargeNumberWarning(real.value, token));
      break;
    case detail::RealRange::too_small:
      warning(ClippingSmallNumberWarning(real.value, token));
      break;
  }
  return real.value;
}

double Parser::as_real(const TokenPlace& number, bool warn) const {
  const detail::RealText real = detail::parse_real(number.text());
  if (real.range == detail::RealRange::normal) return real.value;
  return as_real(number.to_token(Token::Type::number), warn);
}

}  // namespace touchstone2
