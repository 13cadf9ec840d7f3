/// Which frequency point of one file goes with which of another.
#ifndef TOUCHSTONE2_TOOL_FREQUENCY_PAIRS_H
#define TOUCHSTONE2_TOOL_FREQUENCY_PAIRS_H

#include <touchstone2/model/types.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace tool {

/// The frequencies of one table of data, in increasing order.
struct Sweep {
  std::size_t points = 0;
  touchstone2::FrequencyScaleFactor unit = touchstone2::FrequencyScaleFactor::Unspecified;
  std::function<double(std::size_t)> unscaled;  ///< in that unit
};

/// @param params  NetworkParams or NoiseParams; null for no points. Referred to.
template <typename Params>
Sweep sweep_of(const Params* params, touchstone2::FrequencyScaleFactor unit) {
  if (params == nullptr) return {0, unit, {}};
  return {params->freq_points(), unit,
          [params](std::size_t index) { return params->get_unscaled_freq(index); }};
}

/// Where both files have the same frequency.
struct IndexPair {
  std::size_t a = 0;
  std::size_t b = 0;
};

/// Frequencies that only one of the files has.
struct LoneFrequencies {
  std::size_t count = 0;
  touchstone2::FrequencyScaleFactor unit = touchstone2::FrequencyScaleFactor::Unspecified;
  std::vector<double> first_unscaled;  ///< the first few, in the file's unit
};

/// Walks through both sweeps once.
///
/// Frequencies are the same when their decimal values in Hz are: 1 GHz is 1000 MHz. With a
/// tolerance, a frequency goes with the nearest one of the other file if that lies within the
/// tolerance, so that a point that is missing in one file does not shift all that follow.
class FrequencyPairs {
 public:
  FrequencyPairs(Sweep a, Sweep b, double tolerance);

  /// The indices of the next frequency that both files have; none at the end.
  std::optional<IndexPair> next();

  std::size_t common() const { return common_; }
  const LoneFrequencies& only_in_a() const { return only_in_a_; }  ///< complete at the end
  const LoneFrequencies& only_in_b() const { return only_in_b_; }  ///< complete at the end

 private:
  double frequency(const Sweep& sweep, std::size_t index) const;
  bool are_partners(double of_a, double of_b) const;
  bool has_nearer(const Sweep& sweep, std::size_t index, double own, double other) const;
  void leave_a();
  void leave_b();

  Sweep a_;
  Sweep b_;
  double tolerance_;
  bool same_unit_;
  std::size_t next_a_ = 0;
  std::size_t next_b_ = 0;
  std::size_t common_ = 0;
  LoneFrequencies only_in_a_;
  LoneFrequencies only_in_b_;
};

}  // namespace tool

#endif
