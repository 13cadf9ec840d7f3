/// Entry point of reading.
///
///     touchstone2::File file("cable.s2p");
///     touchstone2::StandardMessageHandler handler;
///     touchstone2::Parser parser(file, handler);
///     if (!parser.read_file()) return EXIT_FAILURE;   // the handler has said why
#ifndef TOUCHSTONE2_READER_PARSER_H
#define TOUCHSTONE2_READER_PARSER_H

#include <touchstone2/export.h>
#include <touchstone2/model/file.h>
#include <touchstone2/reader/message_handler.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace touchstone2 {

class CellCursor;
class FastRecords;
struct ReadProgress;
class Scanner;
struct TokenPlace;

/// Reads one file into one File and tells one MessageHandler what it finds.
///
/// Both are referred to, not owned, and must outlive the parser. A parser, its File and its
/// handler are used by one thread at a time; different parsers share nothing. Every call
/// opens the file anew and has released it when it returns, also by an exception.
///
/// A read adds to what the File holds: an option or keyword that the File has already counts
/// as given twice. Use a new File for a new read.
class Parser {
 public:
  /// Reads the file that `file` names.
  TOUCHSTONE2_EXPORT Parser(File& file, MessageHandler& handler);

  /// Reads `bytes`, which must outlive the parser's reads; the name of `file` is a label for
  /// diagnostics only. No bytes count as an empty file (1003).
  TOUCHSTONE2_EXPORT Parser(File& file, MessageHandler& handler, std::string_view bytes);

  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;
  TOUCHSTONE2_EXPORT ~Parser();

  /// Reads the whole file.
  ///
  /// @return File::is_valid() afterwards: true after a read without an error. After an error
  ///         the File keeps what came before it.
  /// @throws std::bad_alloc and what the handler throws; never a ParserError of the reader.
  TOUCHSTONE2_EXPORT bool read_file();

  /// Reads what precedes the data: of a version 2 file up to "[Number of Ports]", of a
  /// version 1 file the options line and as much of the data as tells the port count. The
  /// File is then valid, but has no data.
  TOUCHSTONE2_EXPORT bool read_file_header();

  /// Lets the reads that follow keep `progress` up to date, which must outlive them; null ends
  /// that. It is the only object of a read that another thread may look at meanwhile.
  TOUCHSTONE2_EXPORT void set_progress(ReadProgress* progress);

 private:
  // The driver, parser.cpp.
  bool read_file_private(bool header_only);
  void open_scanner();
  void read_from_first_token(bool header_only);
  void error(const ParserError& error) const;
  void warning(const ParserWarning& warning) const;

  // Token helpers, parser.cpp. An ErrorType argument is the code to raise when the expected
  // token is missing.
  const Token& next_token();
  const Token& current_token() const;
  void skip_blank_lines();
  void skip_newline();
  void skip_whitespace(ErrorType code);
  Token::Type skip_whitespace_or_newline();
  void scan_number(ErrorType code) const;
  void scan_string(ErrorType code) const;
  std::int32_t as_int(const Token& token, bool warn) const;
  double as_real(const Token& token, bool warn) const;
  double as_real(const TokenPlace& number, bool warn) const;

  // options_line.cpp
  void read_options_line();
  void read_option();
  void read_reference_impedance_option();
  void set_option_defaults();
  void skip_secondary_options_line(bool allowed);

  // v2_header.cpp
  void read_v2_file(bool header_only);
  void read_version_keyword();
  void read_number_of_ports_keyword();
  void read_middle_keywords();
  void read_two_port_data_order_keyword();
  void read_number_of_frequencies_keyword();
  void read_number_of_noise_frequencies_keyword();
  void read_reference_keyword();
  void read_matrix_format_keyword();
  void read_information_section();
  void read_other_comments();
  std::size_t read_positive_integer(ErrorType code);
  void end_keyword_line();
  bool next_list_item();

  // v2_mixed_mode.cpp
  void read_mixed_mode_order_keyword();

  // v2_network_data.cpp
  void read_network_data_keyword();
  bool scan_line_of_numbers(std::vector<TokenPlace>& numbers, bool first_on_line,
                            bool options_flag);
  double read_frequency(const TokenPlace& number, double earlier_frequency) const;
  std::pair<double, double> read_pair(const TokenPlace& first, const TokenPlace& second) const;
  void read_record(NetworkParams& params, CellCursor cursor);
  bool take_fast_records(FastRecords& records, const TokenPlace& first);

  // v1_network_data.cpp
  void read_v1_file(bool header_only);
  void read_v1_network_data(std::vector<TokenPlace>& pending, bool header_only);
  bool gather_v1_record(std::vector<TokenPlace>& record, std::vector<TokenPlace>& pending,
                        std::size_t number_of_ports);
  std::size_t count_v1_ports(const std::vector<TokenPlace>& record) const;
  void store_v1_record(NetworkParams& params, const std::vector<TokenPlace>& record) const;
  void denormalize_v1_network_data(double& a, double& b, std::size_t row, std::size_t col) const;

  // noise_and_end.cpp
  static constexpr std::size_t kNoiseRowSize = 5;
  void read_noise_data_keyword();
  void read_v1_noise_data(std::vector<TokenPlace>& pending);
  void add_noise_row(NoiseParams& noise, const std::vector<TokenPlace>& row,
                     double impedance_factor) const;
  void read_end_keyword();
  void skip_lines_at_end(bool options_flag);

  // validation.cpp
  void fill_implicit_fields();
  void validate_file();
  void validate_v1_file();

  File& file_;
  MessageHandler& handler_;
  std::optional<std::string_view> bytes_;  // none: map the file that file_ names
  std::unique_ptr<Scanner> scanner_;       // null outside a read
  ReadProgress* progress_ = nullptr;       // the caller's; null for none

  // Off in tests that hold the fast path through regular records against the ordinary one.
  friend struct FastPathSwitch;
  bool uses_fast_path_ = true;
};

}  // namespace touchstone2

#endif
