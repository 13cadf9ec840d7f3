// How the writers put numbers into a stream: always the same bytes for the same number and
// precision, whatever the caller's stream is set to.
#ifndef TOUCHSTONE2_SRC_WRITER_PLAIN_NUMBERS_H
#define TOUCHSTONE2_SRC_WRITER_PLAIN_NUMBERS_H

#include <cstddef>
#include <ios>
#include <iosfwd>
#include <locale>

namespace touchstone2::detail {

// While one of these lives, the stream has the classic locale, default number notation and
// a blank as fill character. Afterwards it has its own again; precision and adjustment are
// left as the writing left them. They may be nested.
class PlainNumbers {
 public:
  explicit PlainNumbers(std::ostream& os);
  ~PlainNumbers();
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;

 private:
  std::ostream& os_;
  std::ios_base::fmtflags flags_;
  char fill_;
  std::locale locale_;
  bool changes_locale_;
};

// The functions below expect a PlainNumbers around them.

// With the stream's precision and no padding.
void write_number(std::ostream& os, double value);
void write_number(std::ostream& os, std::size_t value);

}  // namespace touchstone2::detail

#endif
