// The keywords of a version 2 file up to "[Network Data]". The scanner has put their texts in
// lower case; they are compared whole, so two blanks in a keyword make it another one.
#include <touchstone2/reader/parser.h>

#include <string_view>

#include "reader/scanner.h"

namespace touchstone2 {

void Parser::read_v2_file(bool header_only) {
  read_version_keyword();
  read_options_line();
  read_number_of_ports_keyword();
  if (header_only) {
    file_.set_valid();
    return;
  }
  read_middle_keywords();
  fill_implicit_fields();
  read_network_data_keyword();
  if (file_.get_number_of_ports() == 2) read_noise_data_keyword();
  read_end_keyword();
  skip_lines_at_end(/*options_flag=*/false);
  validate_file();
}

// The token must read "2.0" to the letter: neither "2" nor "2.00" will do.
void Parser::read_version_keyword() {
  if (current_token().text != "version") {
    throw ParserError(ErrorType::ExpectedVersionFirst, current_token());
  }
  next_token();
  skip_whitespace(ErrorType::ExpectedNumber);
  scan_number(ErrorType::ExpectedNumber);
  if (current_token().text != "2.0") {
    throw ParserError(ErrorType::UnsupportedVersion, current_token());
  }
  file_.set_version(FileVersion::V2);
  end_keyword_line();
}

void Parser::read_number_of_ports_keyword() {
  skip_blank_lines();
  if (current_token().type != Token::Type::keyword || current_token().text != "number of ports") {
    throw ParserError(ErrorType::ExpectedNumberOfPorts, current_token());
  }
  file_.set_number_of_ports(read_positive_integer(ErrorType::InvalidNumberOfPorts));
  end_keyword_line();
}

void Parser::read_middle_keywords() {
  struct OptionalKeyword {
    std::string_view text;
    void (Parser::*read)();
  };
  static constexpr OptionalKeyword kOptionalKeywords[] = {
      {"two-port data order", &Parser::read_two_port_data_order_keyword},
      {"number of frequencies", &Parser::read_number_of_frequencies_keyword},
      {"number of noise frequencies", &Parser::read_number_of_noise_frequencies_keyword},
      {"reference", &Parser::read_reference_keyword},
      {"matrix format", &Parser::read_matrix_format_keyword},
      {"mixed-mode order", &Parser::read_mixed_mode_order_keyword},
      {"begin information", &Parser::read_information_section},
  };
  struct MisplacedKeyword {
    std::string_view text;
    ErrorType code;
  };
  static constexpr MisplacedKeyword kMisplacedKeywords[] = {
      {"end information", ErrorType::ExpectedBeginInformation},
      {"noise data", ErrorType::ExpectedNetworkData},
      {"end", ErrorType::ExpectedNetworkData},
      {"number of ports", ErrorType::KeywordGivenTwice},
      {"version", ErrorType::KeywordGivenTwice},
  };

  const auto read_optional_keyword = [this](const std::string& text) {
    for (const OptionalKeyword& keyword : kOptionalKeywords) {
      if (keyword.text == text) return (this->*keyword.read)();
    }
    for (const MisplacedKeyword& keyword : kMisplacedKeywords) {
      if (keyword.text == text) throw ParserError(keyword.code, current_token());
    }
    throw ParserError(ErrorType::UnrecognizedKeyword, current_token());
  };

  for (;;) {
    skip_blank_lines();
    if (current_token().type != Token::Type::keyword) {
      throw ParserError(ErrorType::ExpectedNetworkData, current_token());
    }
    if (current_token().text == "network data") return;
    read_optional_keyword(current_token().text);
  }
}

void Parser::read_two_port_data_order_keyword() {
  if (file_.get_two_port_data_order() != TwoPortDataOrder::Unspecified) {
    throw ParserError(ErrorType::KeywordGivenTwice, current_token());
  }
  if (file_.get_number_of_ports() != 2) {
    throw ParserError(ErrorType::TwoPortDataOrderNeedsTwoPorts, current_token());
  }
  next_token();
  skip_whitespace(ErrorType::InvalidTwoPortDataOrder);
  scan_string(ErrorType::InvalidTwoPortDataOrder);
  if (current_token().text == "12_21") {
    file_.set_two_port_data_order(TwoPortDataOrder::Order_12_21);
  } else if (current_token().text == "21_12") {
    file_.set_two_port_data_order(TwoPortDataOrder::Order_21_12);
  } else {
    throw ParserError(ErrorType::InvalidTwoPortDataOrder, current_token());
  }
  end_keyword_line();
}

void Parser::read_number_of_frequencies_keyword() {
  if (file_.get_number_of_frequencies() != 0) {
    throw ParserError(ErrorType::KeywordGivenTwice, current_token());
  }
  file_.set_number_of_frequencies(read_positive_integer(ErrorType::InvalidNumberOfFrequencies));
  end_keyword_line();
}

void Parser::read_number_of_noise_frequencies_keyword() {
  if (file_.get_number_of_noise_frequencies() != 0) {
    throw ParserError(ErrorType::KeywordGivenTwice, current_token());
  }
  file_.set_number_of_noise_frequencies(
      read_positive_integer(ErrorType::InvalidNumberOfNoiseFrequencies));
  end_keyword_line();
}

// The values may run over any number of lines, with blank lines and comments between them;
// only the next keyword ends them, and it stays current.
void Parser::read_reference_keyword() {
  if (file_.uses_reference_impedance_per_port()) {
    throw ParserError(ErrorType::KeywordGivenTwice, current_token());
  }
  next_token();

  std::vector<double> ohms;
  while (next_list_item()) {
    scan_number(ErrorType::ExpectedNumber);
    ohms.push_back(as_real(current_token(), /*warn=*/true));
    if (ohms.back() <= 0.0) {
      throw ParserError(ErrorType::InvalidReferenceImpedance, current_token());
    }
    next_token();
  }
  if (ohms.empty()) throw ParserError(ErrorType::ExpectedNumber, current_token());
  if (ohms.size() != file_.get_number_of_ports()) {
    throw WrongReferenceImpedanceCountError(ohms.size(), file_.get_number_of_ports(),
                                            current_token());
  }
  file_.set_reference_impedance_per_port(ohms);
}

void Parser::read_matrix_format_keyword() {
  if (file_.get_matrix_format() != MatrixFormat::Unspecified) {
    throw ParserError(ErrorType::KeywordGivenTwice, current_token());
  }
  next_token();
  skip_whitespace(ErrorType::InvalidMatrixFormat);
  scan_string(ErrorType::InvalidMatrixFormat);
  if (current_token().text == "full") {
    file_.set_matrix_format(MatrixFormat::Full);
  } else if (current_token().text == "upper") {
    file_.set_matrix_format(MatrixFormat::Upper);
  } else if (current_token().text == "lower") {
    file_.set_matrix_format(MatrixFormat::Lower);
  } else {
    throw ParserError(ErrorType::InvalidMatrixFormat, current_token());
  }
  end_keyword_line();
}

// Nothing inside the section is kept, keywords and comments included. A missing end is reported
// where the section begins.
void Parser::read_information_section() {
  if (file_.has_information_section()) {
    throw ParserError(ErrorType::KeywordGivenTwice, current_token());
  }
  const Token begin = current_token();
  next_token();
  skip_newline();
  while (current_token().type != Token::Type::keyword ||
         current_token().text != "end information") {
    if (current_token().type == Token::Type::end_of_file) {
      throw ParserError(ErrorType::ExpectedEndInformation, begin);
    }
    next_token();
  }
  next_token();
  file_.set_has_information_section();
  skip_newline();
}

// Used between the records of a version 1 file.
void Parser::read_other_comments() {
  for (;;) {
    switch (current_token().type) {
      case Token::Type::comment:
        file_.append_other_comment_line(current_token().text);
        [[fallthrough]];
      case Token::Type::whitespace:
      case Token::Type::newline:
        next_token();
        break;
      case Token::Type::options_mark:
      case Token::Type::keyword:
      case Token::Type::number:
      case Token::Type::string:
      case Token::Type::end_of_file:
        return;
    }
  }
}

// Entered with the keyword current; leaves the number current. `code` is raised below 1.
std::size_t Parser::read_positive_integer(ErrorType code) {
  next_token();
  skip_whitespace(ErrorType::ExpectedInteger);
  scan_number(ErrorType::ExpectedInteger);
  const std::int32_t value = as_int(current_token(), /*warn=*/true);
  if (value < 1) throw ParserError(code, current_token());
  return static_cast<std::size_t>(value);
}

// Entered with the keyword's last token current; leaves the first token after the line current.
void Parser::end_keyword_line() {
  next_token();
  skip_newline();
}

// Entered behind a keyword or an item of a list that may run over several lines. True when the
// list goes on: the current token is then the next item, or whatever stands in its place. Only
// a keyword or the end of the file ends the list.
bool Parser::next_list_item() {
  const auto at_end = [this] {
    return current_token().type == Token::Type::keyword ||
           current_token().type == Token::Type::end_of_file;
  };
  if (at_end()) return false;
  if (skip_whitespace_or_newline() != Token::Type::whitespace) skip_blank_lines();
  if (current_token().type == Token::Type::whitespace) next_token();
  return !at_end();
}

}  // namespace touchstone2
