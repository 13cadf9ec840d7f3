// The diagnostic classes. Each derived class composes its message into one text of its own per
// thread, so that the pointer what() returns outlives the object and two threads never race.
#include <touchstone2/reader/diagnostics.h>

#include <cstring>

#include "reader/message_text.h"

namespace touchstone2 {

namespace detail {

DiagnosticRecord::DiagnosticRecord(ErrorType error_code) noexcept : code(error_code) {}

DiagnosticRecord::DiagnosticRecord(ErrorType error_code, const Token& token) noexcept
    : code(error_code), line(token.line), column(token.column) {
  std::strncpy(token_text, token.text.c_str(), kTokenTextSize - 1);
}

namespace {

char first_character(const Token& token) { return token.text.empty() ? '\0' : token.text[0]; }

}  // namespace

}  // namespace detail

using detail::MessageText;

ParserError::ParserError(ErrorType code)
    : std::runtime_error("Touchstone parser error"), record_(code) {}
ParserError::ParserError(ErrorType code, const Token& token)
    : std::runtime_error("Touchstone parser error"), record_(code, token) {}
ParserError::ParserError(const ParserError& other) noexcept = default;
ParserError::ParserError(ParserError&& other) noexcept = default;
ParserError& ParserError::operator=(const ParserError& other) noexcept = default;
ParserError& ParserError::operator=(ParserError&& other) noexcept = default;
ParserError::~ParserError() = default;

const char* ParserError::what() const noexcept { return error_message(record_.code); }
ErrorType ParserError::code() const { return record_.code; }
std::size_t ParserError::line() const { return record_.line; }
std::size_t ParserError::column() const { return record_.column; }
const char* ParserError::token_text() const { return record_.token_text; }

ParserWarning::ParserWarning(ErrorType code)
    : std::runtime_error("Touchstone parser warning"), record_(code) {}
ParserWarning::ParserWarning(ErrorType code, const Token& token)
    : std::runtime_error("Touchstone parser warning"), record_(code, token) {}
ParserWarning::ParserWarning(const ParserWarning& other) noexcept = default;
ParserWarning::ParserWarning(ParserWarning&& other) noexcept = default;
ParserWarning& ParserWarning::operator=(const ParserWarning& other) noexcept = default;
ParserWarning& ParserWarning::operator=(ParserWarning&& other) noexcept = default;
ParserWarning::~ParserWarning() = default;

const char* ParserWarning::what() const noexcept { return error_message(record_.code); }
ErrorType ParserWarning::code() const { return record_.code; }
std::size_t ParserWarning::line() const { return record_.line; }
std::size_t ParserWarning::column() const { return record_.column; }
const char* ParserWarning::token_text() const { return record_.token_text; }

InvalidCharacterError::InvalidCharacterError(const Token& token)
    : ParserError(ErrorType::InvalidCharacter, token), character_(detail::first_character(token)) {}
char InvalidCharacterError::character() const { return character_; }
const char* InvalidCharacterError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "invalid character '" << character_ << "'";
  return text.c_str();
}

WrongReferenceImpedanceCountError::WrongReferenceImpedanceCountError(std::size_t found,
                                                                     std::size_t ports,
                                                                     const Token& token)
    : ParserError(ErrorType::WrongReferenceImpedanceCount, token), found_(found), ports_(ports) {}
std::size_t WrongReferenceImpedanceCountError::found() const { return found_; }
std::size_t WrongReferenceImpedanceCountError::ports() const { return ports_; }
const char* WrongReferenceImpedanceCountError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "the number of reference impedances (" << found_ << ") must match the number of ports ("
       << ports_ << ")";
  return text.c_str();
}

WrongMixedModeDescriptorCountError::WrongMixedModeDescriptorCountError(std::size_t found,
                                                                       std::size_t ports,
                                                                       const Token& token)
    : ParserError(ErrorType::WrongMixedModeDescriptorCount, token), found_(found), ports_(ports) {}
std::size_t WrongMixedModeDescriptorCountError::found() const { return found_; }
std::size_t WrongMixedModeDescriptorCountError::ports() const { return ports_; }
const char* WrongMixedModeDescriptorCountError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "the number of mixed-mode port descriptors (" << found_
       << ") must match the number of ports (" << ports_ << ")";
  return text.c_str();
}

MixedModeDescriptorsMissedPortError::MixedModeDescriptorsMissedPortError(std::size_t port,
                                                                         const Token& token)
    : ParserError(ErrorType::MixedModeDescriptorsMissPort, token), port_(port) {}
std::size_t MixedModeDescriptorsMissedPortError::port() const { return port_; }
const char* MixedModeDescriptorsMissedPortError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "mixed-mode port descriptors did not describe port " << port_;
  return text.c_str();
}

MixedModeDescriptorOverlapError::MixedModeDescriptorOverlapError(std::size_t port,
                                                                 const Token& token)
    : ParserError(ErrorType::MixedModeDescriptorOverlap, token), port_(port) {}
std::size_t MixedModeDescriptorOverlapError::port() const { return port_; }
const char* MixedModeDescriptorOverlapError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "overlapping mixed-mode port descriptors for port " << port_;
  return text.c_str();
}

Mismatched_C_D_DescriptorPortsError::Mismatched_C_D_DescriptorPortsError(std::size_t port,
                                                                         const Token& token)
    : ParserError(ErrorType::MismatchedCommonDifferentialPorts, token), port_(port) {}
std::size_t Mismatched_C_D_DescriptorPortsError::port() const { return port_; }
const char* Mismatched_C_D_DescriptorPortsError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "common-mode and differential-mode descriptors for port " << port_
       << " must reference the same pair of ports";
  return text.c_str();
}

DifferentialPortsImpedanceError::DifferentialPortsImpedanceError(std::size_t first_port,
                                                                 double first_impedance,
                                                                 std::size_t second_port,
                                                                 double second_impedance)
    : ParserError(ErrorType::DifferentialPortsImpedance),
      first_port_(first_port),
      first_impedance_(first_impedance),
      second_port_(second_port),
      second_impedance_(second_impedance) {}
std::size_t DifferentialPortsImpedanceError::first_port() const { return first_port_; }
double DifferentialPortsImpedanceError::first_impedance() const { return first_impedance_; }
std::size_t DifferentialPortsImpedanceError::second_port() const { return second_port_; }
double DifferentialPortsImpedanceError::second_impedance() const { return second_impedance_; }
const char* DifferentialPortsImpedanceError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "different reference impedance for mixed-mode ports (port " << first_port_ << ": "
       << first_impedance_ << " Ohms, port " << second_port_ << ": " << second_impedance_
       << " Ohms)";
  return text.c_str();
}

FrequencyOrderingError::FrequencyOrderingError(double frequency, double earlier_frequency,
                                               const Token& token)
    : ParserError(ErrorType::FrequencyOrder, token),
      frequency_(frequency),
      earlier_frequency_(earlier_frequency) {}
double FrequencyOrderingError::frequency() const { return frequency_; }
double FrequencyOrderingError::earlier_frequency() const { return earlier_frequency_; }
const char* FrequencyOrderingError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "frequency points must be listed in increasing order, but " << frequency_
       << " is not greater than " << earlier_frequency_;
  return text.c_str();
}

FrequencyCountError::FrequencyCountError(std::size_t found, std::size_t expected,
                                         const Token& token)
    : ParserError(ErrorType::WrongFrequencyCount, token), found_(found), expected_(expected) {}
std::size_t FrequencyCountError::found() const { return found_; }
std::size_t FrequencyCountError::expected() const { return expected_; }
const char* FrequencyCountError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "wrong number of frequency points (found " << found_ << " but expected " << expected_
       << ")";
  return text.c_str();
}

IncorrectNumberOfNetworkValuesError::IncorrectNumberOfNetworkValuesError(std::size_t found_values,
                                                                         std::size_t expected_pairs,
                                                                         const Token& token)
    : ParserError(ErrorType::IncorrectNumberOfNetworkValues, token),
      found_values_(found_values),
      expected_pairs_(expected_pairs) {}
std::size_t IncorrectNumberOfNetworkValuesError::found_values() const { return found_values_; }
std::size_t IncorrectNumberOfNetworkValuesError::expected_pairs() const { return expected_pairs_; }
const char* IncorrectNumberOfNetworkValuesError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "incorrect number of values for network data (found " << found_values_ / 2;
  if (found_values_ % 2 != 0) text << ".5";
  text << " complex pair" << (found_values_ == 2 ? "" : "s");
  if (expected_pairs_ != 0) {
    text << " but expected " << expected_pairs_ << " complex pair"
         << (expected_pairs_ == 1 ? "" : "s");
  }
  text << ")";
  return text.c_str();
}

NetworkDataNotSquareError::NetworkDataNotSquareError(std::size_t pairs, const Token& token)
    : ParserError(ErrorType::NetworkDataNotSquare, token), pairs_(pairs) {}
std::size_t NetworkDataNotSquareError::pairs() const { return pairs_; }
const char* NetworkDataNotSquareError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "detected " << pairs_
       << " number pairs of network data, but network data must fit a NxN matrix";
  return text.c_str();
}

KeywordOrderingError::KeywordOrderingError(const Token& token)
    : ParserError(ErrorType::KeywordOutOfOrder, token) {}
const char* KeywordOrderingError::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "keyword [" << token_text() << "] is out of order";
  return text.c_str();
}

InvalidCharacterWarning::InvalidCharacterWarning(const Token& token)
    : ParserWarning(ErrorType::InvalidCharacter, token),
      character_(detail::first_character(token)) {}
char InvalidCharacterWarning::character() const { return character_; }
const char* InvalidCharacterWarning::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "invalid character '" << character_
       << "' in a comment line.\n"
          "    Non-US-ASCII characters violate the Touchstone Specification\n"
          "    and may result in file reading failure.";
  return text.c_str();
}

ClippingLargeNumberWarning::ClippingLargeNumberWarning(double value, const Token& token)
    : ParserWarning(ErrorType::ClippingLargeNumber, token), value_(value) {}
double ClippingLargeNumberWarning::value() const { return value_; }
const char* ClippingLargeNumberWarning::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "clipping a very large number to " << value_;
  return text.c_str();
}

ClippingSmallNumberWarning::ClippingSmallNumberWarning(double value, const Token& token)
    : ParserWarning(ErrorType::ClippingSmallNumber, token), value_(value) {}
double ClippingSmallNumberWarning::value() const { return value_; }
const char* ClippingSmallNumberWarning::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "clipping a very small number to " << value_;
  return text.c_str();
}

NonphysicalNoiseWarning::NonphysicalNoiseWarning(double min_noise_db, const Token& token)
    : ParserWarning(ErrorType::NonphysicalNoise, token), min_noise_db_(min_noise_db) {}
double NonphysicalNoiseWarning::min_noise_db() const { return min_noise_db_; }
const char* NonphysicalNoiseWarning::what() const noexcept {
  thread_local MessageText text;
  text.clear();
  text << "nonphysical noise behavior (" << min_noise_db_ << " dB) described";
  return text.c_str();
}

}  // namespace touchstone2
