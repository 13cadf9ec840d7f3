/// What the comparisons of network and of noise data share: the walk along the frequencies, and
/// the memory of the greatest difference of each parameter.
#ifndef TOUCHSTONE2_TOOL_GREATEST_H
#define TOUCHSTONE2_TOOL_GREATEST_H

#include <touchstone2/model/file.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "comparison/data.h"
#include "comparison/frequency_pairs.h"

namespace tool {

/// The greatest difference of one parameter so far.
struct Greatest {
  double difference = 0.0;
  std::size_t frequencies = 0;  ///< at how many it differs
  IndexPair at;                 ///< where it is greatest

  void add(double found, const IndexPair& indices) {
    ++frequencies;
    if (found <= difference) return;
    difference = found;
    at = indices;
  }
};

/// Counts those that differ, and adds the greatest few of them with describe(index).
template <typename Describe>
void take_greatest(DataDifferences& differences, const std::vector<Greatest>& parameters,
                   Describe describe) {
  constexpr std::size_t kShown = 10;
  std::vector<std::size_t> indices;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    if (parameters[i].frequencies > 0) indices.push_back(i);
  }
  differences.parameters = indices.size();
  std::stable_sort(indices.begin(), indices.end(), [&](std::size_t i, std::size_t j) {
    return parameters[i].difference > parameters[j].difference;
  });
  indices.resize(std::min(kShown, indices.size()));
  for (const std::size_t i : indices) differences.largest.push_back(describe(i));
}

/// Calls compare(indices) for every frequency that both files have; keeps the others.
/// @param of_a  NetworkParams or NoiseParams of `a`, or null
template <typename Params, typename Compare>
void walk(DataDifferences& differences, const touchstone2::File& a, const Params* of_a,
          const touchstone2::File& b, const Params* of_b, double tolerance, Compare compare) {
  FrequencyPairs pairs(sweep_of(of_a, a.get_frequency_scale_factor()),
                       sweep_of(of_b, b.get_frequency_scale_factor()), tolerance);
  while (const auto indices = pairs.next()) compare(*indices);
  differences.common_frequencies = pairs.common();
  differences.only_in_a = pairs.only_in_a();
  differences.only_in_b = pairs.only_in_b();
}

}  // namespace tool

#endif
