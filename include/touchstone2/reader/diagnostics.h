/// The errors and warnings that reading a file can give.
///
/// An error ends the read; a warning does not. Both carry a code, the position of the
/// offending token and its text, and are handed to the caller's MessageHandler. They own no
/// heap memory of their own, so copying one while an exception is in flight cannot fail.
///
/// The text that what() of a derived class returns stands in one place per class and thread:
/// it is replaced by the next what() on any object of that class on the same thread, and an
/// earlier pointer then shows the later text. Copy it to keep it.
#ifndef TOUCHSTONE2_READER_DIAGNOSTICS_H
#define TOUCHSTONE2_READER_DIAGNOSTICS_H

#include <touchstone2/export.h>
#include <touchstone2/reader/error_type.h>
#include <touchstone2/reader/token.h>

#include <cstddef>
#include <stdexcept>

namespace touchstone2 {

namespace detail {

/// What every diagnostic carries.
struct DiagnosticRecord {
  static constexpr std::size_t kTokenTextSize = 128;

  explicit DiagnosticRecord(ErrorType code) noexcept;
  DiagnosticRecord(ErrorType code, const Token& token) noexcept;

  ErrorType code;
  std::size_t line = 0;
  std::size_t column = 0;
  char token_text[kTokenTextSize] = {};  // cut to 127 characters, always terminated
};

}  // namespace detail

/// Base of all errors: the file cannot be read further.
class TOUCHSTONE2_EXPORT ParserError : public std::runtime_error {
 public:
  /// An error without a position: line 0, column 0, empty token text.
  explicit ParserError(ErrorType code);

  /// An error at the position of `token`; its text is copied, cut to 127 characters.
  ParserError(ErrorType code, const Token& token);

  /// @{
  /// Copying allocates nothing and cannot fail.
  ParserError(const ParserError& other) noexcept;
  ParserError(ParserError&& other) noexcept;
  ParserError& operator=(const ParserError& other) noexcept;
  ParserError& operator=(ParserError&& other) noexcept;
  /// @}

  ~ParserError() override;

  /// The message, without position or code. See the top of this header for how long it lives.
  const char* what() const noexcept override;

  ErrorType code() const;      ///< the number behind "E" or "W"
  std::size_t line() const;    ///< from 1; 0 when there is no position
  std::size_t column() const;  ///< from 1, in bytes; 0 when there is no position

  /// The offending token's text, cut to 127 characters; lives as long as this object.
  const char* token_text() const;

 private:
  detail::DiagnosticRecord record_;
};

/// Base of all warnings: reading goes on. Neither base is a kind of the other.
class TOUCHSTONE2_EXPORT ParserWarning : public std::runtime_error {
 public:
  /// A warning without a position: line 0, column 0, empty token text.
  explicit ParserWarning(ErrorType code);

  /// A warning at the position of `token`; its text is copied, cut to 127 characters.
  ParserWarning(ErrorType code, const Token& token);

  /// @{
  /// Copying allocates nothing and cannot fail.
  ParserWarning(const ParserWarning& other) noexcept;
  ParserWarning(ParserWarning&& other) noexcept;
  ParserWarning& operator=(const ParserWarning& other) noexcept;
  ParserWarning& operator=(ParserWarning&& other) noexcept;
  /// @}

  ~ParserWarning() override;

  /// The message, without position or code. See the top of this header for how long it lives.
  const char* what() const noexcept override;

  ErrorType code() const;      ///< the number behind "E" or "W"
  std::size_t line() const;    ///< from 1; 0 when there is no position
  std::size_t column() const;  ///< from 1, in bytes; 0 when there is no position

  /// The offending token's text, cut to 127 characters; lives as long as this object.
  const char* token_text() const;

 private:
  detail::DiagnosticRecord record_;
};

/// 2003: a byte that is not allowed outside comments.
class TOUCHSTONE2_EXPORT InvalidCharacterError : public ParserError {
 public:
  /// The character is the first byte of the token's text.
  explicit InvalidCharacterError(const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  char character() const;                      ///< first byte of the token's text

 private:
  char character_;
};

/// 2022: "[Reference]" does not give one impedance per port.
class TOUCHSTONE2_EXPORT WrongReferenceImpedanceCountError : public ParserError {
 public:
  /// What was counted, and the token at which it is reported.
  WrongReferenceImpedanceCountError(std::size_t found, std::size_t ports, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t found() const;                   ///< impedances given
  std::size_t ports() const;                   ///< ports declared

 private:
  std::size_t found_;
  std::size_t ports_;
};

/// 2315: "[Mixed-Mode Order]" does not give one descriptor per port.
class TOUCHSTONE2_EXPORT WrongMixedModeDescriptorCountError : public ParserError {
 public:
  /// What was counted, and the token at which it is reported.
  WrongMixedModeDescriptorCountError(std::size_t found, std::size_t ports, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t found() const;                   ///< descriptors given
  std::size_t ports() const;                   ///< ports declared

 private:
  std::size_t found_;
  std::size_t ports_;
};

/// 2316: a port lacks its single-ended descriptor or one of its two mixed-mode ones.
class TOUCHSTONE2_EXPORT MixedModeDescriptorsMissedPortError : public ParserError {
 public:
  /// The port counts from 1; the token is where it is reported.
  MixedModeDescriptorsMissedPortError(std::size_t port, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t port() const;                    ///< from 1

 private:
  std::size_t port_;
};

/// 2317: two descriptors claim the same mode of one port.
class TOUCHSTONE2_EXPORT MixedModeDescriptorOverlapError : public ParserError {
 public:
  /// The port counts from 1; the token is where it is reported.
  MixedModeDescriptorOverlapError(std::size_t port, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values

  /// From 1. Of a pair it is the partner of the port that was already taken.
  std::size_t port() const;

 private:
  std::size_t port_;
};

/// 2318: the common-mode and differential-mode descriptors of a port name different pairs, or
/// the same pair in another order.
class TOUCHSTONE2_EXPORT Mismatched_C_D_DescriptorPortsError : public ParserError {
 public:
  /// The port counts from 1; the token is where it is reported.
  Mismatched_C_D_DescriptorPortsError(std::size_t port, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t port() const;                    ///< from 1

 private:
  std::size_t port_;
};

/// 2319: the two ports of a mixed-mode pair have different reference impedances. Built
/// without a token on purpose: it has no position.
class TOUCHSTONE2_EXPORT DifferentialPortsImpedanceError : public ParserError {
 public:
  /// Ports count from 1, impedances are in ohms.
  DifferentialPortsImpedanceError(std::size_t first_port, double first_impedance,
                                  std::size_t second_port, double second_impedance);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t first_port() const;              ///< from 1
  double first_impedance() const;              ///< ohms
  std::size_t second_port() const;             ///< from 1
  double second_impedance() const;             ///< ohms

 private:
  std::size_t first_port_;
  double first_impedance_;
  std::size_t second_port_;
  double second_impedance_;
};

/// 2311: a frequency is not greater than the one before it. Both are in the file's unit.
class TOUCHSTONE2_EXPORT FrequencyOrderingError : public ParserError {
 public:
  /// Both frequencies in the file's unit; the token is that of the first.
  FrequencyOrderingError(double frequency, double earlier_frequency, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  double frequency() const;                    ///< the offending one
  double earlier_frequency() const;            ///< the one before it

 private:
  double frequency_;
  double earlier_frequency_;
};

/// 2310: a version 2 file holds another number of frequency points than it declares.
class TOUCHSTONE2_EXPORT FrequencyCountError : public ParserError {
 public:
  /// What was counted, and the token at which it is reported.
  FrequencyCountError(std::size_t found, std::size_t expected, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t found() const;                   ///< points in the data
  std::size_t expected() const;                ///< points declared

 private:
  std::size_t found_;
  std::size_t expected_;
};

/// 2308: a record of network data is too short or too long. What was found is counted in
/// single numbers, what was expected in complex pairs; the message shows both as pairs.
class TOUCHSTONE2_EXPORT IncorrectNumberOfNetworkValuesError : public ParserError {
 public:
  /// @param found_values    numbers found, the frequency not counted
  /// @param expected_pairs  complex pairs expected; 0 when nothing is known
  /// @param token           token at which it is reported
  IncorrectNumberOfNetworkValuesError(std::size_t found_values, std::size_t expected_pairs,
                                      const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t found_values() const;            ///< numbers, the frequency not counted
  std::size_t expected_pairs() const;          ///< complex pairs; 0 when nothing is known

 private:
  std::size_t found_values_;
  std::size_t expected_pairs_;
};

/// 2306: the first record of a version 1 file does not fill a square matrix.
class TOUCHSTONE2_EXPORT NetworkDataNotSquareError : public ParserError {
 public:
  /// What was counted, and the token at which it is reported.
  NetworkDataNotSquareError(std::size_t pairs, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  std::size_t pairs() const;                   ///< complex pairs of the record

 private:
  std::size_t pairs_;
};

/// 2210: a keyword stands where it may not.
class TOUCHSTONE2_EXPORT KeywordOrderingError : public ParserError {
 public:
  /// The token is the keyword, without its brackets.
  explicit KeywordOrderingError(const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
};

/// 2003 as a warning: a byte in a comment that is neither a tab nor printable US-ASCII.
class TOUCHSTONE2_EXPORT InvalidCharacterWarning : public ParserWarning {
 public:
  /// The character is the first byte of the token's text.
  explicit InvalidCharacterWarning(const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  char character() const;                      ///< first byte of the token's text

 private:
  char character_;
};

/// 2301: a number beyond the range of a double was stored as the greatest one.
class TOUCHSTONE2_EXPORT ClippingLargeNumberWarning : public ParserWarning {
 public:
  /// The value that was stored, and the number's token.
  ClippingLargeNumberWarning(double value, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  double value() const;                        ///< after clipping

 private:
  double value_;
};

/// 2302: a number below the normal range of a double was stored as the smallest normal one.
class TOUCHSTONE2_EXPORT ClippingSmallNumberWarning : public ParserWarning {
 public:
  /// The value that was stored, and the number's token.
  ClippingSmallNumberWarning(double value, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  double value() const;                        ///< after clipping

 private:
  double value_;
};

/// 2321: a negative minimum noise figure, kept as it stands.
class TOUCHSTONE2_EXPORT NonphysicalNoiseWarning : public ParserWarning {
 public:
  /// The noise figure in dB, and the number's token.
  NonphysicalNoiseWarning(double min_noise_db, const Token& token);
  const char* what() const noexcept override;  ///< the message with its values
  double min_noise_db() const;                 ///< dB

 private:
  double min_noise_db_;
};

}  // namespace touchstone2

#endif
