// The noise table: plain storage, nothing is checked here.
#include <touchstone2/model/noise_params.h>

#include <algorithm>

namespace touchstone2 {

NoiseParams::NoiseParams(double freq_scale_factor) : freq_scale_factor_(freq_scale_factor) {}

void NoiseParams::add_freq_point(double freq, double min_noise_db, double reflection_magnitude,
                                 double reflection_phase, double impedance) {
  points_.push_back(
      NoisePoint{freq, min_noise_db, reflection_magnitude, reflection_phase, impedance});
}

std::size_t NoiseParams::freq_points() const { return points_.size(); }

double NoiseParams::get_freq_scale_factor() const { return freq_scale_factor_; }

double NoiseParams::get_freq(std::size_t index) const {
  return points_[index].freq * freq_scale_factor_;
}

double NoiseParams::get_unscaled_freq(std::size_t index) const { return points_[index].freq; }

double NoiseParams::get_min_noise_db(std::size_t index) const {
  return points_[index].min_noise_db;
}

double NoiseParams::get_reflection_magnitude(std::size_t index) const {
  return points_[index].reflection_magnitude;
}

double NoiseParams::get_reflection_phase(std::size_t index) const {
  return points_[index].reflection_phase;
}

double NoiseParams::get_impedance(std::size_t index) const { return points_[index].impedance; }

double NoiseParams::max_freq() const {
  return points_.empty() ? -1.0 : points_.back().freq * freq_scale_factor_;
}

double NoiseParams::max_unscaled_freq() const {
  return points_.empty() ? -1.0 : points_.back().freq;
}

double NoiseParams::min_unscaled_freq() const {
  return points_.empty() ? -1.0 : points_.front().freq;
}

bool NoiseParams::operator==(const NoiseParams& other) const {
  const auto same_point = [](const NoisePoint& a, const NoisePoint& b) {
    return a.freq == b.freq && a.min_noise_db == b.min_noise_db &&
           a.reflection_magnitude == b.reflection_magnitude &&
           a.reflection_phase == b.reflection_phase && a.impedance == b.impedance;
  };
  return freq_scale_factor_ == other.freq_scale_factor_ &&
         std::equal(points_.begin(), points_.end(), other.points_.begin(), other.points_.end(),
                    same_point);
}

bool NoiseParams::operator!=(const NoiseParams& other) const { return !(*this == other); }

}  // namespace touchstone2
