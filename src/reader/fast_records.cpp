// Held against the token path by fast_records_test.cpp.
//
// A record is read into a buffer that stays in the cache and then copied into the model, so
// that the model's fresh memory is touched once.
#include "reader/fast_records.h"

#include <algorithm>
#include <utility>

#include "model/impedance_scaling.h"
#include "reader/ascii.h"
#include "reader/fast_number.h"

namespace touchstone2 {

namespace {

// Where each listed cell lies in the values of a point; empty when one follows the other.
template <typename Index>
std::vector<std::size_t> find_slots(CellCursor cursor, const Index& index_of) {
  std::vector<std::size_t> slots;
  bool in_sequence = true;
  const std::size_t cells = cursor.cells();
  for (std::size_t i = 0; i < cells; ++i) {
    slots.push_back(index_of(cursor.row(), cursor.column()));
    in_sequence = in_sequence && slots.back() == i;
    cursor.advance();
  }
  if (in_sequence) slots.clear();
  return slots;
}

// Null for anything but "\n" or "\r\n".
const char* skip_line_end(const char* position) {
  if (*position == '\r') ++position;
  return *position == '\n' ? position + 1 : nullptr;
}

}  // namespace

FastRecords::FastRecords(const File& file, NetworkParams& params, CellCursor first_cell,
                         ProgressMark progress)
    : file_(file),
      params_(params),
      first_cell_(first_cell),
      progress_(progress),
      version_1_(file.get_version() == FileVersion::V1),
      one_line_only_(version_1_ && params.rows() <= 2),
      magnitudes_(file.get_complex_format() == ComplexFormat::MA) {}

FastRecords::Taken FastRecords::take(const char* begin, const char* end) {
  Taken taken{begin, 0};
  if (!has_room(begin, end)) return taken;

  const char* position = begin;
  std::size_t lines = 0;
  double earlier = params_.max_unscaled_freq();
  bool has_record = false;  // version 1: record_ waits for the line behind it
  for (;;) {
    Record& record = has_record ? next_ : record_;
    const std::size_t lines_before = lines;
    const char* const after = read_record(position, record, lines);
    if (after == nullptr || record.freq <= earlier) return taken;
    earlier = record.freq;
    if (!has_reserved_) {
      reserve_points(static_cast<std::size_t>(after - position),
                     static_cast<std::size_t>(end - position));
    }
    if (!version_1_) {
      append(record);
      taken = {after, lines};
    } else if (has_record) {
      append(record_);
      std::swap(record_, next_);
      taken = {position, lines_before};
    }
    has_record = version_1_;
    position = after;
    progress_.bytes_done(taken.end);
  }
}

// The port count may be a claim: nothing is allocated for records that the bytes cannot hold.
bool FastRecords::has_room(const char* begin, const char* end) {
  const auto bytes = static_cast<std::size_t>(end - begin);
  const auto reach = static_cast<std::size_t>(detail::kFastNumberReach);
  if (bytes <= reach || first_cell_.cells() > bytes / 4) return false;
  stop_ = end - reach;
  if (record_.values.empty()) {
    const std::size_t ports = params_.rows();
    const std::size_t spare_end = params_.calculate_index(ports, ports);
    slots_ = find_slots(first_cell_, [this](std::size_t row, std::size_t column) {
      return params_.calculate_index(row, column);
    });
    record_.values.assign(2 * spare_end, 0.0);
    if (version_1_) next_.values = record_.values;
  }
  return true;
}

// Returns the first byte of the line behind the record, or null for a record that is not
// regular. Adds the record's lines to `lines`.
const char* FastRecords::read_record(const char* position, Record& record,
                                     std::size_t& lines) const {
  const std::size_t expected = 2 * first_cell_.cells();
  const std::size_t* const slots = slots_.empty() ? nullptr : slots_.data();
  double* const values = record.values.data();
  if (version_1_) position = skip_blanks(position);
  if (position >= stop_) return nullptr;
  position = detail::parse_plain_number(position, record.freq);
  if (position == nullptr || record.freq < 0.0) return nullptr;

  // Behind the frequency every line of a version 1 record holds an even count of numbers.
  for (std::size_t index = 0; index < expected; ++index) {
    position = skip_blanks(position);
    if (detail::is_line_end(*position)) {
      if (one_line_only_ || (version_1_ && index % 2 != 0)) return nullptr;
      position = skip_line_end(position);
      if (position == nullptr) return nullptr;
      position = skip_blanks(position);
      ++lines;
    }
    if (position >= stop_) return nullptr;
    double value = 0.0;
    position = detail::parse_plain_number(position, value);
    if (position == nullptr) return nullptr;
    const std::size_t part = index % 2;
    if (magnitudes_ && part == 0 && value < 0.0) return nullptr;
    values[slots == nullptr ? index : 2 * slots[index / 2] + part] = value;
  }
  position = skip_blanks(position);
  position = skip_line_end(position);
  if (position == nullptr) return nullptr;
  ++lines;
  if (version_1_) denormalize(record.values);
  return position;
}

// Stops at the end of what may be looked at, too.
const char* FastRecords::skip_blanks(const char* position) const {
  while (detail::is_blank(*position) && position < stop_) ++position;
  return position;
}

void FastRecords::append(const Record& record) {
  params_.points_.push_back(NetworkParams::FreqPoint{record.freq, record.values});
}

// The same operations in the same order as on the token path.
void FastRecords::denormalize(std::vector<double>& values) const {
  const ParameterType type = file_.get_parameter_type();
  if (type == ParameterType::S) return;
  const ComplexFormat format = file_.get_complex_format();
  const double ohms = file_.get_reference_impedance();
  CellCursor cursor = first_cell_;
  for (std::size_t i = 0; i < first_cell_.cells(); ++i) {
    double* const pair = values.data() + 2 * (slots_.empty() ? i : slots_[i]);
    detail::denormalize_value(type, format, ohms, cursor.row(), cursor.column(), pair[0], pair[1]);
    cursor.advance();
  }
}

// As many as the bytes left hold if they are like this one. What is found out to be too much is
// never touched.
void FastRecords::reserve_points(std::size_t record_bytes, std::size_t bytes_left) {
  params_.points_.reserve(params_.points_.size() + bytes_left / record_bytes + 1);
  has_reserved_ = true;
}

}  // namespace touchstone2
