// Three quantities a row, one of them complex.

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "comparison/data.h"
#include "comparison/greatest.h"

namespace tool {

namespace {

using touchstone2::ComplexFormat;
using touchstone2::File;
using touchstone2::FileVersion;
using touchstone2::NoiseParams;

enum Quantity : std::size_t { kNoiseFigure, kReflection, kResistance, kQuantities };

constexpr std::array<std::string_view, kQuantities> kNames = {"NFmin", "GammaOpt", "Rn"};
constexpr std::array<ValueForm, kQuantities> kForms = {ValueForm::decibels, ValueForm::ma,
                                                       ValueForm::ohms};

std::array<Pair, kQuantities> row_of(const NoiseParams& noise, std::size_t index) {
  return {{{noise.get_min_noise_db(index), 0.0},
           {noise.get_reflection_magnitude(index), noise.get_reflection_phase(index)},
           {noise.get_impedance(index), 0.0}}};
}

// Version 1 has resistances relative to the reference impedance.
bool have_same_normalisation(const File& a, const File& b) {
  if (a.get_version() != b.get_version()) return false;
  return a.get_version() != FileVersion::V1 ||
         a.get_reference_impedance() == b.get_reference_impedance();
}

// Compares the rows of files that both have noise data.
class NoiseComparison {
 public:
  NoiseComparison(const File& a, const File& b, double tolerance)
      : a_(*a.get_noise_params()), b_(*b.get_noise_params()), tolerance_(tolerance) {
    units_[kResistance] = std::max(a.get_reference_impedance(), b.get_reference_impedance());
    forms_[kReflection].format = ComplexFormat::MA;
    forms_[kResistance].rounded = !have_same_normalisation(a, b);
  }

  void compare(const IndexPair& indices) {
    const auto of_a = row_of(a_, indices.a);
    const auto of_b = row_of(b_, indices.b);
    for (std::size_t i = 0; i < kQuantities; ++i) {
      const double difference = relative_difference(forms_[i], of_a[i], of_b[i], units_[i]);
      if (difference > tolerance_) quantities_[i].add(difference, indices);
    }
  }

  void take_differences(DataDifferences& differences) const {
    take_greatest(differences, quantities_, [this](std::size_t i) { return describe(i); });
  }

 private:
  ValueDifference describe(std::size_t i) const {
    const Greatest& greatest = quantities_[i];
    return {std::string(kNames[i]),
            greatest.frequencies,
            greatest.difference,
            a_.get_unscaled_freq(greatest.at.a),
            kForms[i],
            row_of(a_, greatest.at.a)[i],
            row_of(b_, greatest.at.b)[i]};
  }

  const NoiseParams& a_;
  const NoiseParams& b_;
  double tolerance_;
  std::array<NumberForm, kQuantities> forms_;
  std::array<double, kQuantities> units_ = {1.0, 1.0, 1.0};
  std::vector<Greatest> quantities_{kQuantities};
};

}  // namespace

DataDifferences compare_noise(const File& a, const File& b, const Tolerance& tolerance) {
  const NoiseParams* const of_a = a.get_noise_params();
  const NoiseParams* const of_b = b.get_noise_params();
  DataDifferences differences;
  std::optional<NoiseComparison> rows;
  if (of_a != nullptr && of_b != nullptr) rows.emplace(a, b, tolerance.values);
  walk(differences, a, of_a, b, of_b, tolerance.frequencies,
       [&](const IndexPair& indices) { rows->compare(indices); });
  if (rows) rows->take_differences(differences);
  return differences;
}

}  // namespace tool
