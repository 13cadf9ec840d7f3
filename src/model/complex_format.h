// Conversion of one complex value between its three written forms.
#ifndef TOUCHSTONE2_SRC_MODEL_COMPLEX_FORMAT_H
#define TOUCHSTONE2_SRC_MODEL_COMPLEX_FORMAT_H

#include <touchstone2/model/types.h>

#include <utility>

namespace touchstone2::detail {

// The pair (x, y) in format `from`, expressed in format `to`. Equal formats return the pair
// bit for bit. A `from` of 0 or out of range is taken as DB; a `to` of 0 or out of range gives
// RI, or MA when `from` is RI. Both are meant: an unknown format is no error here.
std::pair<double, double> convert_complex(ComplexFormat from, ComplexFormat to, double x, double y);

}  // namespace touchstone2::detail

#endif
