// The fast way through network data: whole regular records from the bytes into the model.
//
// The token path is the one definition of what is right and the one source of diagnostics. What
// is here takes a record whole or touches nothing, and reports nothing. Anything unusual ends it
// in front of the record in question: a comment, a blank line, "#", "[", an odd byte, an odd
// literal, a value outside the normal range, a frequency that does not rise, a negative
// magnitude, a count that does not fit, the last hundred bytes.
#ifndef TOUCHSTONE2_SRC_READER_FAST_RECORDS_H
#define TOUCHSTONE2_SRC_READER_FAST_RECORDS_H

#include <touchstone2/model/file.h>

#include <cstddef>
#include <vector>

#include "reader/cell_cursor.h"
#include "reader/progress_mark.h"

namespace touchstone2 {

class FastRecords {
 public:
  // Appends to `params`. `file` gives what the values mean: its complex format, and for version
  // 1 its parameter type and reference impedance. `progress` hears of every record.
  FastRecords(const File& file, NetworkParams& params, CellCursor first_cell,
              ProgressMark progress);

  // Where the records that were taken end, and how many lines they fill.
  struct Taken {
    const char* end;
    std::size_t lines;
  };

  // Takes the records from `begin`, the first byte of a record, up to the first one that is not
  // regular. `end` is the end of all bytes. A result whose end is `begin` says that none was
  // taken.
  //
  // A version 2 record ends when it is complete. That of version 1 is known to end only when
  // the line behind it begins another one, so the last regular one of a run is left to the
  // token path.
  Taken take(const char* begin, const char* end);

 private:
  struct Record {
    double freq = 0.0;
    std::vector<double> values;  // in the order and with the length of the model's
  };

  bool has_room(const char* begin, const char* end);
  const char* read_record(const char* position, Record& record, std::size_t& lines) const;
  const char* skip_blanks(const char* position) const;
  void append(const Record& record);
  void denormalize(std::vector<double>& values) const;
  void reserve_points(std::size_t record_bytes, std::size_t bytes_left);

  const File& file_;
  NetworkParams& params_;
  const CellCursor first_cell_;
  const ProgressMark progress_;
  const bool version_1_;
  const bool one_line_only_;        // records of 1 and 2 ports in version 1
  const bool magnitudes_;           // the first number of a pair must not be negative
  std::vector<std::size_t> slots_;  // of each cell in the values; empty when they run as listed
  Record record_;
  Record next_;
  bool has_reserved_ = false;
  const char* stop_ = nullptr;  // no number may begin here or later
};

}  // namespace touchstone2

#endif
