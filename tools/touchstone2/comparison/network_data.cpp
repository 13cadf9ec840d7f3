// Both files' matrices are compared where they lie. What is kept is a few words for each cell of
// one matrix.

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "comparison/data.h"
#include "comparison/facts.h"
#include "comparison/greatest.h"
#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::ComplexFormat;
using touchstone2::File;
using touchstone2::FileVersion;
using touchstone2::NetworkParams;
using touchstone2::ParameterType;

// In what a value is measured: 1 for ratios; impedances relative to the reference impedance,
// admittances to its inverse.
double unit_of(ParameterType type, std::size_t row, std::size_t col, double ohms) {
  if (!std::isnormal(ohms)) return 1.0;
  const bool hybrid = type == ParameterType::H || type == ParameterType::G;
  if (hybrid && row != col) return 1.0;
  const bool first_is_impedance = type == ParameterType::H;
  if (type == ParameterType::Z || (hybrid && (row == 0) == first_is_impedance)) return ohms;
  if (type == ParameterType::Y || hybrid) return 1 / ohms;
  return 1.0;
}

bool is_normalised(const File& file) {
  return file.get_version() == FileVersion::V1 && file.get_parameter_type() != ParameterType::S;
}

bool have_same_normalisation(const File& a, const File& b) {
  if (is_normalised(a) != is_normalised(b)) return false;
  return !is_normalised(a) || a.get_reference_impedance() == b.get_reference_impedance();
}

NumberForm form_of_network(const File& a, const File& b) {
  const ComplexFormat format = a.get_complex_format();
  if (format != b.get_complex_format()) return {ComplexFormat::RI, /*rounded=*/true};
  return {format, !have_same_normalisation(a, b)};
}

ValueForm value_form(ComplexFormat format) {
  if (format == ComplexFormat::DB) return ValueForm::db;
  return format == ComplexFormat::MA ? ValueForm::ma : ValueForm::ri;
}

// "S21", or "S10,2" where digits alone would not tell row from column.
std::string cell_name(const File& file, std::size_t row, std::size_t col) {
  std::string name(parameter_text(file.get_parameter_type()));
  name += std::to_string(row + 1);
  if (file.get_number_of_ports() > 9) name += ",";
  return name + std::to_string(col + 1);
}

// Compares the matrices of files that both have network data.
class MatrixComparison {
 public:
  MatrixComparison(const File& a, const File& b, double tolerance)
      : file_a_(a),
        file_b_(b),
        a_(*a.get_network_params()),
        b_(*b.get_network_params()),
        form_(form_of_network(a, b)),
        tolerance_(tolerance),
        cells_(a_.rows() * a_.cols()) {}

  void compare(const IndexPair& indices) {
    for (std::size_t row = 0; row < a_.rows(); ++row) {
      for (std::size_t col = 0; col < a_.cols(); ++col) compare_cell(indices, row, col);
    }
  }

  void take_differences(DataDifferences& differences) const {
    take_greatest(differences, cells_, [this](std::size_t cell) { return describe(cell); });
  }

 private:
  void compare_cell(const IndexPair& indices, std::size_t row, std::size_t col) {
    const Pair of_a = a_.cell(indices.a, row, col).as_format(form_.format);
    const Pair of_b = b_.cell(indices.b, row, col).as_format(form_.format);
    if (are_same(of_a, of_b)) return;
    const double difference = relative_difference(form_, of_a, of_b, unit(row, col));
    if (difference > tolerance_) cells_[row * a_.cols() + col].add(difference, indices);
  }

  double unit(std::size_t row, std::size_t col) const {
    const ParameterType type = file_a_.get_parameter_type();
    return std::max(unit_of(type, row, col, file_a_.get_reference_impedance()),
                    unit_of(type, row, col, file_b_.get_reference_impedance()));
  }

  ValueDifference describe(std::size_t cell) const {
    const Greatest& greatest = cells_[cell];
    const std::size_t row = cell / a_.cols();
    const std::size_t col = cell % a_.cols();
    return {cell_name(file_a_, row, col),
            greatest.frequencies,
            greatest.difference,
            a_.get_unscaled_freq(greatest.at.a),
            value_form(form_.format),
            a_.cell(greatest.at.a, row, col).as_format(form_.format),
            b_.cell(greatest.at.b, row, col).as_format(form_.format)};
  }

  const File& file_a_;
  const File& file_b_;
  const NetworkParams& a_;
  const NetworkParams& b_;
  NumberForm form_;
  double tolerance_;
  std::vector<Greatest> cells_;  // row by row
};

}  // namespace

DataDifferences compare_network(const File& a, const File& b, const Tolerance& tolerance) {
  const NetworkParams* const of_a = a.get_network_params();
  const NetworkParams* const of_b = b.get_network_params();
  DataDifferences differences;
  differences.values_compared = have_same_cells(a, b);
  std::optional<MatrixComparison> matrices;
  if (differences.values_compared && of_a != nullptr && of_b != nullptr) {
    matrices.emplace(a, b, tolerance.values);
  }
  walk(differences, a, of_a, b, of_b, tolerance.frequencies, [&](const IndexPair& indices) {
    if (matrices) matrices->compare(indices);
  });
  if (matrices) matrices->take_differences(differences);
  return differences;
}

}  // namespace tool
