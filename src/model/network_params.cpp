// The matrices, their two storage layouts and the cell handle.
#include <touchstone2/model/network_params.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "model/complex_format.h"

namespace touchstone2 {

namespace {

// From here on 2 * N * (N + 1) numbers are more than any vector holds; below it the product
// cannot overflow.
constexpr std::size_t kPortLimit = std::size_t{1} << 31;

}  // namespace

NetworkParams::NetworkParams(std::size_t ports, double freq_scale_factor, ComplexFormat format)
    : number_of_ports_(ports), freq_scale_factor_(freq_scale_factor), format_(format) {}

NetworkParams::NetworkParams(const NetworkParams& other) = default;
NetworkParams& NetworkParams::operator=(const NetworkParams& other) = default;
NetworkParams::~NetworkParams() = default;

std::size_t NetworkParams::rows() const { return number_of_ports_; }

std::size_t NetworkParams::cols() const { return number_of_ports_; }

ComplexFormat NetworkParams::format() const { return format_; }

std::size_t NetworkParams::freq_points() const { return points_.size(); }

double NetworkParams::freq_scale_factor() const { return freq_scale_factor_; }

double NetworkParams::get_freq(std::size_t freq_index) const {
  return points_[freq_index].freq * freq_scale_factor_;
}

double NetworkParams::get_unscaled_freq(std::size_t freq_index) const {
  return points_[freq_index].freq;
}

double NetworkParams::max_freq() const {
  return points_.empty() ? -1.0 : points_.back().freq * freq_scale_factor_;
}

double NetworkParams::max_unscaled_freq() const {
  return points_.empty() ? -1.0 : points_.back().freq;
}

std::size_t NetworkParams::add_freq_point(double freq) {
  if (number_of_ports_ >= kPortLimit) throw std::length_error("touchstone2: too many ports");
  // The index of the cell one past the last row counts one row of cells too many. It is the
  // size all the same: equality looks at the spare cells.
  const std::size_t cells = calculate_index(number_of_ports_, number_of_ports_);
  points_.push_back(FreqPoint{freq, std::vector<double>(2 * cells)});
  return points_.size() - 1;
}

NetworkParams::Cell NetworkParams::cell(std::size_t freq_index, std::size_t row, std::size_t col) {
  if (freq_index >= points_.size()) throw std::out_of_range("freqIndex");
  if (row >= number_of_ports_) throw std::out_of_range("row");
  if (col >= number_of_ports_) throw std::out_of_range("col");
  return Cell(*this, freq_index, row, col);
}

const NetworkParams::Cell NetworkParams::cell(std::size_t freq_index, std::size_t row,
                                              std::size_t col) const {
  return const_cast<NetworkParams&>(*this).cell(freq_index, row, col);
}

double* NetworkParams::get_cell_pointer(std::size_t freq_index, std::size_t row, std::size_t col) {
  return points_[freq_index].values.data() + 2 * calculate_index(row, col);
}

const double* NetworkParams::get_cell_pointer(std::size_t freq_index, std::size_t row,
                                              std::size_t col) const {
  return points_[freq_index].values.data() + 2 * calculate_index(row, col);
}

bool NetworkParams::operator==(const NetworkParams& other) const {
  const auto same_point = [](const FreqPoint& a, const FreqPoint& b) {
    return a.freq == b.freq && a.values == b.values;
  };
  return number_of_ports_ == other.number_of_ports_ &&
         freq_scale_factor_ == other.freq_scale_factor_ && format_ == other.format_ &&
         std::equal(points_.begin(), points_.end(), other.points_.begin(), other.points_.end(),
                    same_point);
}

bool NetworkParams::operator!=(const NetworkParams& other) const { return !(*this == other); }

NetworkParams::Cell::Cell(NetworkParams& owner, std::size_t freq_index, std::size_t row,
                          std::size_t col)
    : owner_(owner), freq_index_(freq_index), row_(row), col_(col) {}

void NetworkParams::Cell::set(double a, double b) {
  double* const pair = owner_.get_cell_pointer(freq_index_, row_, col_);
  pair[0] = a;
  pair[1] = b;
}

void NetworkParams::Cell::set_from_format(ComplexFormat from, double a, double b) {
  const auto [first, second] = detail::convert_complex(from, owner_.format(), a, b);
  set(first, second);
}

std::pair<double, double> NetworkParams::Cell::as_format(ComplexFormat to) const {
  const double* const pair = owner_.get_cell_pointer(freq_index_, row_, col_);
  return detail::convert_complex(owner_.format(), to, pair[0], pair[1]);
}

FullNetworkParams::FullNetworkParams(std::size_t ports, double freq_scale_factor,
                                     ComplexFormat format)
    : NetworkParams(ports, freq_scale_factor, format) {}

FullNetworkParams::FullNetworkParams(const FullNetworkParams& other) = default;
FullNetworkParams& FullNetworkParams::operator=(const FullNetworkParams& other) = default;
FullNetworkParams::~FullNetworkParams() = default;

bool FullNetworkParams::isSymmetric() const { return false; }

std::size_t FullNetworkParams::calculate_index(std::size_t row, std::size_t col) const {
  return row * rows() + col;
}

SymmetricNetworkParams::SymmetricNetworkParams(std::size_t ports, double freq_scale_factor,
                                               ComplexFormat format)
    : NetworkParams(ports, freq_scale_factor, format) {}

SymmetricNetworkParams::SymmetricNetworkParams(const SymmetricNetworkParams& other) = default;
SymmetricNetworkParams& SymmetricNetworkParams::operator=(const SymmetricNetworkParams& other) =
    default;
SymmetricNetworkParams::~SymmetricNetworkParams() = default;

bool SymmetricNetworkParams::isSymmetric() const { return true; }

std::size_t SymmetricNetworkParams::calculate_index(std::size_t row, std::size_t col) const {
  const std::size_t m = std::max(row, col);
  const std::size_t n = std::min(row, col);
  return m * (m + 1) / 2 + n;
}

bool doubles_are_equal(double a, double b) { return std::fabs(a - b) < 1e-6; }

}  // namespace touchstone2
