// The options line "# GHz S MA R 50", its defaults, and further options lines.
#include <touchstone2/reader/parser.h>

#include <string_view>

#include "reader/scanner.h"

namespace touchstone2 {

namespace {

template <typename Value>
struct OptionWord {
  std::string_view word;  // in lower case, as the scanner delivers it
  Value value;
};

constexpr OptionWord<FrequencyScaleFactor> kUnits[] = {
    {"hz", FrequencyScaleFactor::Hz},
    {"khz", FrequencyScaleFactor::kHz},
    {"mhz", FrequencyScaleFactor::MHz},
    {"ghz", FrequencyScaleFactor::GHz},
};

constexpr OptionWord<ParameterType> kParameters[] = {
    {"s", ParameterType::S}, {"y", ParameterType::Y}, {"z", ParameterType::Z},
    {"h", ParameterType::H}, {"g", ParameterType::G},
};

constexpr OptionWord<ComplexFormat> kFormats[] = {
    {"db", ComplexFormat::DB},
    {"ma", ComplexFormat::MA},
    {"ri", ComplexFormat::RI},
};

constexpr double kDefaultReferenceImpedance = 50.0;  // ohms

// The value of the word, or Unspecified when the table has none.
template <typename Value, std::size_t size>
Value find_option(const OptionWord<Value> (&table)[size], const Token& token) {
  for (const OptionWord<Value>& entry : table) {
    if (entry.word == token.text) return entry.value;
  }
  return Value::Unspecified;
}

template <typename Value>
void check_not_given(Value earlier, const Token& token) {
  if (earlier != Value::Unspecified) throw ParserError(ErrorType::OptionGivenTwice, token);
}

}  // namespace

// Leaves the token after the line end current, or the line end itself behind a comment. The
// comments met here are not kept.
void Parser::read_options_line() {
  while (current_token().type != Token::Type::options_mark) {
    if (current_token().type != Token::Type::newline &&
        current_token().type != Token::Type::comment) {
      throw ParserError(ErrorType::ExpectedOptionsLine, current_token());
    }
    next_token();
  }
  if (current_token().column != 1) {
    warning(ParserWarning(ErrorType::OptionsMarkNotAtLineStart, current_token()));
  }

  next_token();
  while (skip_whitespace_or_newline() == Token::Type::whitespace) {
    read_option();
    next_token();
  }
  set_option_defaults();
}

// Leaves the last token of the option current.
void Parser::read_option() {
  scan_string(ErrorType::InvalidOption);
  const Token& token = current_token();
  if (const auto unit = find_option(kUnits, token); unit != FrequencyScaleFactor::Unspecified) {
    check_not_given(file_.get_frequency_scale_factor(), token);
    file_.set_frequency_scale_factor(unit);
  } else if (const auto parameter = find_option(kParameters, token);
             parameter != ParameterType::Unspecified) {
    check_not_given(file_.get_parameter_type(), token);
    file_.set_parameter_type(parameter);
  } else if (const auto format = find_option(kFormats, token);
             format != ComplexFormat::Unspecified) {
    check_not_given(file_.get_complex_format(), token);
    file_.set_complex_format(format);
  } else if (token.text == "r") {
    read_reference_impedance_option();
  } else {
    throw ParserError(ErrorType::InvalidOption, token);
  }
}

// The value is judged before the repetition: "# R 50 R -5" has an invalid impedance.
void Parser::read_reference_impedance_option() {
  next_token();
  skip_whitespace(ErrorType::ReferenceImpedanceMissing);
  scan_number(ErrorType::ReferenceImpedanceMissing);
  const double ohms = as_real(current_token(), /*warn=*/true);
  if (ohms <= 0.0) throw ParserError(ErrorType::InvalidReferenceImpedance, current_token());
  if (file_.get_reference_impedance() != 0.0) {
    throw ParserError(ErrorType::OptionGivenTwice, current_token());
  }
  file_.set_reference_impedance(ohms);
}

void Parser::set_option_defaults() {
  if (file_.get_frequency_scale_factor() == FrequencyScaleFactor::Unspecified) {
    file_.set_frequency_scale_factor(FrequencyScaleFactor::GHz);
  }
  if (file_.get_parameter_type() == ParameterType::Unspecified) {
    file_.set_parameter_type(ParameterType::S);
  }
  if (file_.get_complex_format() == ComplexFormat::Unspecified) {
    file_.set_complex_format(ComplexFormat::MA);
  }
  if (file_.get_reference_impedance() == 0.0) {
    file_.set_reference_impedance(kDefaultReferenceImpedance);
  }
}

// Entered with the "#" current; leaves the line end current, or the end of the file. A file
// that ends in such a line without a line end is warned of twice: by the advance, and here.
void Parser::skip_secondary_options_line(bool allowed) {
  if (!allowed) throw ParserError(ErrorType::InvalidSecondaryOptionsLine, current_token());
  warning(ParserWarning(ErrorType::SecondaryOptionsLineIgnored, current_token()));
  do {
    next_token();
  } while (current_token().type != Token::Type::newline &&
           current_token().type != Token::Type::end_of_file);
  if (current_token().type == Token::Type::end_of_file) {
    warning(ParserWarning(ErrorType::MissingFinalEndOfLine, current_token()));
  }
}

}  // namespace touchstone2
