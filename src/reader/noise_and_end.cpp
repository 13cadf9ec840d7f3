// Noise data of both generations, "[End]", and what may follow it.
#include <touchstone2/reader/parser.h>

#include "reader/scanner.h"

namespace touchstone2 {

// Called for files of 2 ports only; those of other counts meet the keyword in read_end_keyword.
void Parser::read_noise_data_keyword() {
  skip_blank_lines();
  if (current_token().type != Token::Type::keyword || current_token().text != "noise data") {
    return;
  }
  if (file_.get_number_of_noise_frequencies() == 0) {
    throw ParserError(ErrorType::ExpectedNumberOfNoiseFrequencies, current_token());
  }
  next_token();
  skip_newline();

  auto noise = std::make_unique<NoiseParams>(file_.get_frequency_multiplier());
  std::vector<TokenPlace> row;
  while (!scanner_->end_of_file_reached()) {
    row.clear();
    if (!scan_line_of_numbers(row, /*first_on_line=*/true, /*options_flag=*/false)) break;
    add_noise_row(*noise, row, /*impedance_factor=*/1.0);
  }
  if (noise->freq_points() != file_.get_number_of_noise_frequencies()) {
    throw FrequencyCountError(noise->freq_points(), file_.get_number_of_noise_frequencies(),
                              current_token());
  }
  file_.set_noise_params(noise.release());
}

// `pending` holds the first row when the network data have run into it, else nothing.
void Parser::read_v1_noise_data(std::vector<TokenPlace>& pending) {
  if (scanner_->end_of_file_reached() && pending.empty()) return;

  auto noise = std::make_unique<NoiseParams>(file_.get_frequency_multiplier());
  std::vector<TokenPlace> row;
  while (!(scanner_->end_of_file_reached() && pending.empty())) {
    row.clear();
    if (!pending.empty()) {
      row.swap(pending);
    } else if (!scan_line_of_numbers(row, /*first_on_line=*/false, /*options_flag=*/true)) {
      break;
    }
    // The file has the noise resistance normalised to its reference impedance.
    add_noise_row(*noise, row, file_.get_reference_impedance());
  }
  if (current_token().type == Token::Type::keyword) {
    throw ParserError(ErrorType::KeywordInVersion1File, current_token());
  }
  file_.set_number_of_noise_frequencies(noise->freq_points());
  file_.set_noise_params(noise.release());
}

// Every number is converted and checked before the next one is looked at, but magnitude and
// angle are converted together. A wrong count is reported at the token after the row.
void Parser::add_noise_row(NoiseParams& noise, const std::vector<TokenPlace>& row,
                           double impedance_factor) const {
  if (row.size() != kNoiseRowSize) {
    throw ParserError(ErrorType::IncorrectNumberOfNoiseValues, current_token());
  }
  const double freq = read_frequency(row[0], noise.max_unscaled_freq());
  const double min_noise_db = as_real(row[1], /*warn=*/true);
  if (min_noise_db < 0.0) {
    warning(NonphysicalNoiseWarning(min_noise_db, row[1].to_token(Token::Type::number)));
  }
  const double magnitude = as_real(row[2], /*warn=*/true);
  const double phase = as_real(row[3], /*warn=*/true);
  if (magnitude < 0.0) {
    throw ParserError(ErrorType::NegativeMagnitude, row[2].to_token(Token::Type::number));
  }
  const double impedance = as_real(row[4], /*warn=*/true);
  if (impedance < 0.0) {
    throw ParserError(ErrorType::NegativeImpedance, row[4].to_token(Token::Type::number));
  }
  noise.add_freq_point(freq, min_noise_db, magnitude, phase, impedance * impedance_factor);
}

void Parser::read_end_keyword() {
  skip_blank_lines();
  if (current_token().type != Token::Type::keyword) {
    throw ParserError(ErrorType::ExpectedEnd, current_token());
  }
  if (current_token().text == "noise data") {
    throw ParserError(ErrorType::NoiseDataNeedTwoPorts, current_token());
  }
  if (current_token().text != "end") throw KeywordOrderingError(current_token());
  end_keyword_line();
}

void Parser::skip_lines_at_end(bool options_flag) {
  for (;;) {
    switch (current_token().type) {
      case Token::Type::whitespace:
      case Token::Type::newline:
      case Token::Type::comment:
        next_token();
        break;
      case Token::Type::options_mark:
        skip_secondary_options_line(options_flag);
        break;
      case Token::Type::keyword:
      case Token::Type::number:
      case Token::Type::string:
        throw ParserError(ErrorType::ExtraLinesAtEnd, current_token());
      case Token::Type::end_of_file:
        return;
    }
  }
}

}  // namespace touchstone2
