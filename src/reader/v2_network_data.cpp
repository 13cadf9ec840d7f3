// "[Network Data]" of a version 2 file, and scan_line_of_numbers, which all data readers share.
//
// The sizes of a record follow from what the file declares. They are claims: a record is
// gathered first and counted, and only a complete one gets its matrix.
#include <touchstone2/reader/parser.h>

#include "reader/cell_cursor.h"
#include "reader/fast_records.h"
#include "reader/scanner.h"

namespace touchstone2 {

namespace {

CellCursor::Order cell_order(const File& file) {
  switch (file.get_matrix_format()) {
    case MatrixFormat::Upper:
      return CellCursor::Order::upper_triangle;
    case MatrixFormat::Lower:
      return CellCursor::Order::lower_triangle;
    case MatrixFormat::Full:
    case MatrixFormat::Unspecified:
      break;
  }
  return file.get_number_of_ports() == 2 &&
                 file.get_two_port_data_order() == TwoPortDataOrder::Order_21_12
             ? CellCursor::Order::column_by_column
             : CellCursor::Order::row_by_row;
}

std::unique_ptr<NetworkParams> make_network_params(const File& file) {
  const std::size_t ports = file.get_number_of_ports();
  const double multiplier = file.get_frequency_multiplier();
  const ComplexFormat format = file.get_complex_format();
  if (file.get_matrix_format() == MatrixFormat::Full) {
    return std::make_unique<FullNetworkParams>(ports, multiplier, format);
  }
  return std::make_unique<SymmetricNetworkParams>(ports, multiplier, format);
}

}  // namespace

// Leaves the keyword after the data current.
void Parser::read_network_data_keyword() {
  if (file_.get_number_of_frequencies() == 0) {
    throw ParserError(ErrorType::ExpectedNumberOfFrequencies, current_token());
  }
  next_token();
  skip_newline();

  std::unique_ptr<NetworkParams> params = make_network_params(file_);
  if (file_.get_number_of_ports() == 2 &&
      file_.get_two_port_data_order() == TwoPortDataOrder::Unspecified) {
    throw ParserError(ErrorType::TwoPortDataOrderMissing);  // without a position, on purpose
  }
  const CellCursor first_cell(cell_order(file_), file_.get_number_of_ports());

  FastRecords fast_records(file_, *params, first_cell, scanner_->progress_mark());
  for (skip_blank_lines(); current_token().type != Token::Type::keyword; skip_blank_lines()) {
    const bool may_be_regular =
        current_token().type == Token::Type::number && current_token().column == 1;
    if (may_be_regular && take_fast_records(fast_records, scanner_->token_place())) continue;
    read_record(*params, first_cell);
  }
  if (params->freq_points() != file_.get_number_of_frequencies()) {
    throw FrequencyCountError(params->freq_points(), file_.get_number_of_frequencies(),
                              current_token());
  }
  file_.set_network_params(params.release());
}

// Takes what regular records there are from the one that begins with `first`, and leaves the
// first token behind them current. False when there is none: nothing has happened then.
//
// The bytes may have been scanned a little further than `first`, but if a record is taken then
// only over tokens that report nothing, so that none of them is reported twice.
bool Parser::take_fast_records(FastRecords& records, const TokenPlace& first) {
  if (!uses_fast_path_) return false;
  const FastRecords::Taken taken = records.take(first.first, scanner_->end());
  if (taken.end == first.first) return false;
  scanner_->resume_at_line(taken.end, first.line + taken.lines);
  next_token();
  return true;
}

// Reads one frequency and its cells, which may run over several lines. A record that the end of
// the file cuts short is converted as far as it goes, for its diagnostics; the caller then finds
// that the file has no end.
void Parser::read_record(NetworkParams& params, CellCursor cursor) {
  if (current_token().type == Token::Type::whitespace) {
    throw ParserError(ErrorType::FrequencyNotAtLineStart, current_token());
  }
  scan_number(ErrorType::ExpectedNumber);
  const TokenPlace frequency = scanner_->token_place();
  const double freq = read_frequency(frequency, params.max_unscaled_freq());

  const std::size_t expected = 2 * cursor.cells() + 1;
  const auto wrong_count = [&](const std::vector<TokenPlace>& numbers) {
    return IncorrectNumberOfNetworkValuesError(numbers.size() - 1, cursor.cells(),
                                               frequency.to_token(Token::Type::number));
  };
  std::vector<TokenPlace> numbers;
  while (!scanner_->end_of_file_reached() && numbers.size() < expected) {
    if (!scan_line_of_numbers(numbers, /*first_on_line=*/numbers.empty(),
                              /*options_flag=*/false)) {
      throw wrong_count(numbers);
    }
  }
  if (numbers.size() > expected) throw wrong_count(numbers);

  const bool complete = numbers.size() == expected;
  const std::size_t index = complete ? params.add_freq_point(freq) : 0;
  for (std::size_t i = 1; i + 1 < numbers.size(); i += 2) {
    const auto [a, b] = read_pair(numbers[i], numbers[i + 1]);
    if (complete) params.cell(index, cursor.row(), cursor.column()).set(a, b);
    cursor.advance();
  }
}

// Converts the frequency of a record or noise row, in the file's unit, and checks it.
double Parser::read_frequency(const TokenPlace& number, double earlier_frequency) const {
  const double freq = as_real(number, /*warn=*/true);
  if (freq < 0.0) {
    throw ParserError(ErrorType::NegativeFrequency, number.to_token(Token::Type::number));
  }
  if (earlier_frequency >= freq) {
    throw FrequencyOrderingError(freq, earlier_frequency, number.to_token(Token::Type::number));
  }
  return freq;
}

// Both numbers are converted, with their warnings, before the sign of the first is looked at.
std::pair<double, double> Parser::read_pair(const TokenPlace& first,
                                            const TokenPlace& second) const {
  const double a = as_real(first, /*warn=*/true);
  const double b = as_real(second, /*warn=*/true);
  if (a < 0.0 && file_.get_complex_format() == ComplexFormat::MA) {
    throw ParserError(ErrorType::NegativeMagnitude, first.to_token(Token::Type::number));
  }
  return {a, b};
}

// Appends the numbers of the next line that has any. False when a keyword or the end of the file
// comes first.
bool Parser::scan_line_of_numbers(std::vector<TokenPlace>& numbers, bool first_on_line,
                                  bool options_flag) {
  while (current_token().type != Token::Type::number) {
    switch (current_token().type) {
      case Token::Type::whitespace:
      case Token::Type::newline:
      case Token::Type::comment:
        next_token();
        break;
      case Token::Type::options_mark:
        if (current_token().column != 1) {
          throw ParserError(ErrorType::ExpectedEndOfLine, current_token());
        }
        skip_secondary_options_line(options_flag);
        break;
      case Token::Type::string:
        throw ParserError(ErrorType::ExpectedNumber, current_token());
      case Token::Type::keyword:
      case Token::Type::end_of_file:
        return false;
      case Token::Type::number:
        break;
    }
  }
  if (first_on_line && current_token().column != 1) {
    throw ParserError(ErrorType::FrequencyNotAtLineStart, current_token());
  }
  do {
    scan_number(ErrorType::ExpectedNumber);
    numbers.push_back(scanner_->token_place());
    next_token();
  } while (skip_whitespace_or_newline() == Token::Type::whitespace);
  return true;
}

}  // namespace touchstone2
