// Version 1 files: an options line and rows of numbers. Nothing states the number of ports, the
// number of frequencies or where noise data begin; the counts of numbers per line tell.
//
// A continuation line holds value pairs only, an even count; a line that begins a record holds a
// frequency besides, an odd one. The parity finds where a record ends, and the line that showed
// it is carried over in `pending`.
#include <touchstone2/reader/parser.h>
#include <touchstone2/reader/port_count.h>

#include "model/impedance_scaling.h"
#include "reader/cell_cursor.h"
#include "reader/fast_records.h"
#include "reader/scanner.h"

namespace touchstone2 {

namespace {

constexpr std::size_t kTwoPortRecordSize = 9;  // a frequency and four pairs

CellCursor first_v1_cell(std::size_t number_of_ports) {
  return CellCursor(
      number_of_ports == 2 ? CellCursor::Order::column_by_column : CellCursor::Order::row_by_row,
      number_of_ports);
}

// Moves the numbers from index `begin` on to `pending`, which is empty.
void carry_over(std::vector<TokenPlace>& record, std::size_t begin,
                std::vector<TokenPlace>& pending) {
  const auto first = record.begin() + static_cast<std::ptrdiff_t>(begin);
  pending.assign(first, record.end());
  record.erase(first, record.end());
}

}  // namespace

void Parser::read_v1_file(bool header_only) {
  file_.set_version(FileVersion::V1);
  file_.set_matrix_format(MatrixFormat::Full);
  read_options_line();
  std::vector<TokenPlace> pending;
  read_v1_network_data(pending, header_only);
  if (header_only) {
    file_.set_valid();
    return;
  }
  if (file_.get_number_of_ports() == 2) read_v1_noise_data(pending);
  skip_lines_at_end(/*options_flag=*/true);
  validate_v1_file();
}

// Leaves in `pending` the numbers of the first noise row when noise data follow.
void Parser::read_v1_network_data(std::vector<TokenPlace>& pending, bool header_only) {
  pending.clear();
  std::size_t number_of_ports = 0;
  std::unique_ptr<NetworkParams> params;
  std::optional<FastRecords> fast_records;
  std::vector<TokenPlace> record;
  bool noise_found = false;
  while (!noise_found && !(scanner_->end_of_file_reached() && pending.empty())) {
    if (fast_records && !pending.empty() && take_fast_records(*fast_records, pending[0])) {
      pending.clear();
    }
    record.clear();
    noise_found = gather_v1_record(record, pending, number_of_ports);
    if (record.empty()) {
      if (current_token().type == Token::Type::keyword) {
        throw ParserError(ErrorType::KeywordInVersion1File, current_token());
      }
      break;
    }
    if (number_of_ports == 0) {
      number_of_ports = count_v1_ports(record);
      if (header_only) break;
      params = std::make_unique<FullNetworkParams>(
          number_of_ports, file_.get_frequency_multiplier(), file_.get_complex_format());
      fast_records.emplace(file_, *params, first_v1_cell(number_of_ports),
                           scanner_->progress_mark());
    } else if (record.size() - 1 != 2 * number_of_ports * number_of_ports) {
      throw IncorrectNumberOfNetworkValuesError(record.size() - 1,
                                                number_of_ports * number_of_ports,
                                                record[0].to_token(Token::Type::number));
    }
    store_v1_record(*params, record);
  }

  if (!header_only && !params) return;
  file_.set_number_of_ports(number_of_ports);
  if (number_of_ports == 2) file_.set_two_port_data_order(TwoPortDataOrder::Order_21_12);
  if (params) {
    file_.set_number_of_frequencies(params->freq_points());
    file_.set_network_params(params.release());
  }
}

// Gathers the lines of one record. True when the line behind it begins the noise data: a row of
// five numbers behind a 2-port record whose frequency it does not exceed. `number_of_ports` is 0
// while the first record is gathered.
bool Parser::gather_v1_record(std::vector<TokenPlace>& record, std::vector<TokenPlace>& pending,
                              std::size_t number_of_ports) {
  for (;;) {
    const std::size_t before = record.size();
    if (!pending.empty()) {
      record.swap(pending);
    } else {
      if (scanner_->end_of_file_reached()) return false;
      read_other_comments();
      if (!scan_line_of_numbers(record, /*first_on_line=*/false, /*options_flag=*/true)) {
        return false;
      }
    }
    const std::size_t on_line = record.size() - before;

    const bool may_be_noise = number_of_ports == 0 || number_of_ports == 2;
    if (may_be_noise && before == kTwoPortRecordSize && on_line == kNoiseRowSize &&
        as_real(record[0], /*warn=*/false) >= as_real(record[before], /*warn=*/false)) {
      carry_over(record, before, pending);
      return true;
    }
    if (before != 0 && is_odd(on_line)) {
      carry_over(record, before, pending);
      return false;
    }
    if (is_even(record.size())) {
      throw IncorrectNumberOfNetworkValuesError(record.size() - 1,
                                                number_of_ports * number_of_ports,
                                                record[0].to_token(Token::Type::number));
    }
  }
}

// The number of ports that the first record shows, at least 1.
std::size_t Parser::count_v1_ports(const std::vector<TokenPlace>& record) const {
  const std::size_t pairs = (record.size() - 1) / 2;
  if (pairs == 0) {
    throw ParserError(ErrorType::FrequencyWithoutData, record[0].to_token(Token::Type::number));
  }
  const std::size_t ports = find_sqrt(pairs);
  if (ports * ports != pairs) {
    throw NetworkDataNotSquareError(pairs, record[0].to_token(Token::Type::number));
  }
  if (ports != 2 && file_.get_parameter_type() == ParameterType::G) {
    throw ParserError(ErrorType::GParametersNeedTwoPorts);
  }
  if (ports != 2 && file_.get_parameter_type() == ParameterType::H) {
    throw ParserError(ErrorType::HParametersNeedTwoPorts);
  }
  return ports;
}

// Lines of any length are accepted, also with more than four pairs; only the records of 1 and 2
// ports must keep to one line.
void Parser::store_v1_record(NetworkParams& params, const std::vector<TokenPlace>& record) const {
  const std::size_t ports = params.rows();
  const double freq = read_frequency(record[0], params.max_unscaled_freq());
  const std::size_t index = params.add_freq_point(freq);
  if (ports <= 2) {
    for (const TokenPlace& number : record) {
      if (number.line != record[0].line) {
        throw ParserError(ports == 1 ? ErrorType::OnePortRecordOnSeveralLines
                                     : ErrorType::TwoPortRecordOnSeveralLines,
                          number.to_token(Token::Type::number));
      }
    }
  }

  CellCursor cursor = first_v1_cell(ports);
  for (std::size_t i = 1; i < record.size(); i += 2) {
    auto [a, b] = read_pair(record[i], record[i + 1]);
    denormalize_v1_network_data(a, b, cursor.row(), cursor.column());
    params.cell(index, cursor.row(), cursor.column()).set(a, b);
    cursor.advance();
  }
}

// Converts one value of the file in place: normalised to the reference impedance as it stands
// there, absolute in the model.
void Parser::denormalize_v1_network_data(double& a, double& b, std::size_t row,
                                         std::size_t col) const {
  detail::denormalize_value(file_.get_parameter_type(), file_.get_complex_format(),
                            file_.get_reference_impedance(), row, col, a, b);
}

}  // namespace touchstone2
