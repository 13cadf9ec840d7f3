/// How far the numbers of two files lie apart.
#ifndef TOUCHSTONE2_TOOL_DATA_H
#define TOUCHSTONE2_TOOL_DATA_H

#include <touchstone2/model/file.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "comparison/frequency_pairs.h"
#include "comparison/numbers.h"

namespace tool {

/// What the numbers of a value are: RI, MA or DB for a complex one; decibels or ohms for a
/// single one, whose second number is 0.
enum class ValueForm { ri, ma, db, decibels, ohms };

/// "RI", "dB", "ohm".
std::string_view form_text(ValueForm form);
bool is_single(ValueForm form);

/// One parameter that differs, at the frequency where it differs most.
struct ValueDifference {
  std::string name;             ///< "S21", "S10,2", "NFmin"
  std::size_t frequencies = 0;  ///< at how many common frequencies it differs
  double difference = 0.0;      ///< see relative_difference
  double unscaled_freq = 0.0;   ///< as file A has it, in its unit
  ValueForm form = ValueForm::ri;
  Pair a;
  Pair b;
};

struct DataDifferences {
  bool values_compared = true;  ///< false: the values do not mean the same
  std::size_t common_frequencies = 0;
  LoneFrequencies only_in_a;
  LoneFrequencies only_in_b;
  std::size_t parameters = 0;            ///< how many differ
  std::vector<ValueDifference> largest;  ///< the first few of them, the greatest difference first

  bool empty() const { return only_in_a.count == 0 && only_in_b.count == 0 && parameters == 0; }
};

/// The matrices, in the format of both files or else as real and imaginary part.
DataDifferences compare_network(const touchstone2::File& a, const touchstone2::File& b,
                                const Tolerance& tolerance);

/// The noise data: minimum noise figure, optimum source reflection, noise resistance.
DataDifferences compare_noise(const touchstone2::File& a, const touchstone2::File& b,
                              const Tolerance& tolerance);

}  // namespace tool

#endif
