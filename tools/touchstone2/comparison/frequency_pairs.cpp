// Both sweeps increase, so the lower of two frequencies without a partner is alone.

#include "comparison/frequency_pairs.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "text/value_text.h"

namespace tool {

namespace {

constexpr std::size_t kKept = 5;

void add(LoneFrequencies& list, double unscaled) {
  ++list.count;
  if (list.first_unscaled.size() < kKept) list.first_unscaled.push_back(unscaled);
}

}  // namespace

FrequencyPairs::FrequencyPairs(Sweep a, Sweep b, double tolerance)
    : a_(std::move(a)), b_(std::move(b)), tolerance_(tolerance), same_unit_(a_.unit == b_.unit) {
  only_in_a_.unit = a_.unit;
  only_in_b_.unit = b_.unit;
}

std::optional<IndexPair> FrequencyPairs::next() {
  while (next_a_ < a_.points && next_b_ < b_.points) {
    const double of_a = frequency(a_, next_a_);
    const double of_b = frequency(b_, next_b_);
    if (are_partners(of_a, of_b)) {
      ++common_;
      return IndexPair{next_a_++, next_b_++};
    }
    of_a < of_b ? leave_a() : leave_b();
  }
  while (next_a_ < a_.points) leave_a();
  while (next_b_ < b_.points) leave_b();
  return std::nullopt;
}

// In one unit as stored: equal texts are equal numbers. Otherwise in Hz.
double FrequencyPairs::frequency(const Sweep& sweep, std::size_t index) const {
  const double unscaled = sweep.unscaled(index);
  return same_unit_ ? unscaled : frequency_in_hz(unscaled, sweep.unit);
}

bool FrequencyPairs::are_partners(double of_a, double of_b) const {
  if (of_a == of_b) return true;
  if (std::abs(of_a - of_b) > tolerance_ * std::max(of_a, of_b)) return false;
  return of_a < of_b ? !has_nearer(a_, next_a_ + 1, of_a, of_b)
                     : !has_nearer(b_, next_b_ + 1, of_b, of_a);
}

// True when the frequency at `index` is nearer to `other` than `own` is.
bool FrequencyPairs::has_nearer(const Sweep& sweep, std::size_t index, double own,
                                double other) const {
  return index < sweep.points && std::abs(frequency(sweep, index) - other) < other - own;
}

void FrequencyPairs::leave_a() { add(only_in_a_, a_.unscaled(next_a_++)); }

void FrequencyPairs::leave_b() { add(only_in_b_, b_.unscaled(next_b_++)); }

}  // namespace tool
