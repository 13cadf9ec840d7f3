// Numbers go through the stream's own operator<<, with everything on the stream that could
// change their bytes, the precision excepted, set to what a new stream has.
#include "writer/plain_numbers.h"

#include <ostream>

namespace touchstone2::detail {

namespace {

constexpr std::ios_base::fmtflags kNotation = std::ios_base::basefield | std::ios_base::floatfield |
                                              std::ios_base::showbase | std::ios_base::showpoint |
                                              std::ios_base::showpos | std::ios_base::uppercase;

}  // namespace

PlainNumbers::PlainNumbers(std::ostream& os)
    : os_(os),
      flags_(os.flags()),
      fill_(os.fill(' ')),
      locale_(os.getloc()),
      // Imbuing makes a file stream write out its buffer: not without need.
      changes_locale_(locale_ != std::locale::classic()) {
  os.setf(std::ios_base::dec, kNotation);
  os.width(0);
  if (changes_locale_) os.imbue(std::locale::classic());
}

PlainNumbers::~PlainNumbers() {
  if (changes_locale_) os_.imbue(locale_);
  os_.fill(fill_);
  os_.setf(flags_, kNotation);
}

void write_number(std::ostream& os, double value) { os << value; }

void write_number(std::ostream& os, std::size_t value) { os << value; }

}  // namespace touchstone2::detail
