/// Two-port noise data of one file: one row per noise frequency.
///
/// One thread at a time may change an object; any number may read it while nobody does.
#ifndef TOUCHSTONE2_MODEL_NOISE_PARAMS_H
#define TOUCHSTONE2_MODEL_NOISE_PARAMS_H

#include <touchstone2/export.h>

#include <cstddef>
#include <vector>

namespace touchstone2 {

/// Rows are kept in the order in which they are added. Row indices count from 0 and are not
/// checked.
class TOUCHSTONE2_EXPORT NoiseParams {
 public:
  /// @param freq_scale_factor  factor from the unit of the stored frequencies to Hz
  explicit NoiseParams(double freq_scale_factor);

  /// Appends one row; nothing is checked.
  /// @param freq                  frequency in the file's unit
  /// @param min_noise_db          minimum noise figure in dB
  /// @param reflection_magnitude  magnitude of the optimum source reflection coefficient
  /// @param reflection_phase      its angle in degrees
  /// @param impedance             effective noise resistance in ohms
  void add_freq_point(double freq, double min_noise_db, double reflection_magnitude,
                      double reflection_phase, double impedance);

  std::size_t freq_points() const;       ///< number of rows
  double get_freq_scale_factor() const;  ///< factor from the unit of the frequencies to Hz

  double get_freq(std::size_t index) const;                  ///< Hz
  double get_unscaled_freq(std::size_t index) const;         ///< the file's unit
  double get_min_noise_db(std::size_t index) const;          ///< dB
  double get_reflection_magnitude(std::size_t index) const;  ///< linear
  double get_reflection_phase(std::size_t index) const;      ///< degrees
  double get_impedance(std::size_t index) const;             ///< ohms

  double max_freq() const;           ///< last row's frequency in Hz; -1.0 without rows
  double max_unscaled_freq() const;  ///< last row's frequency as stored; -1.0 without rows
  double min_unscaled_freq() const;  ///< first row's frequency as stored; -1.0 without rows

  /// Equal factors and equal rows, every number compared exactly (a NaN equals nothing).
  bool operator==(const NoiseParams& other) const;

  /// The opposite of ==.
  bool operator!=(const NoiseParams& other) const;

 private:
  struct NoisePoint {
    double freq;  // in the file's unit
    double min_noise_db;
    double reflection_magnitude;
    double reflection_phase;
    double impedance;
  };

  double freq_scale_factor_;
  std::vector<NoisePoint> points_;
};

}  // namespace touchstone2

#endif
