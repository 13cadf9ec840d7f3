/// Network data of one file: an N x N complex matrix for every frequency point.
///
/// Values are kept in the complex format in which the file wrote them, and frequencies in
/// the file's own unit, so that nothing is lost between reading and writing.
///
///     touchstone2::FullNetworkParams s(2, 1e9, touchstone2::ComplexFormat::RI);
///     std::size_t k = s.add_freq_point(2.5);                   // 2.5 GHz
///     s.cell(k, 1, 0).set(0.25, -0.5);                          // S21
///     auto [db, deg] = s.cell(k, 1, 0).as_format(touchstone2::ComplexFormat::DB);
///
/// One thread at a time may change an object; any number may read it while nobody does.
#ifndef TOUCHSTONE2_MODEL_NETWORK_PARAMS_H
#define TOUCHSTONE2_MODEL_NETWORK_PARAMS_H

#include <touchstone2/export.h>
#include <touchstone2/model/types.h>

#include <cstddef>
#include <utility>
#include <vector>

namespace touchstone2 {

class FastRecords;

/// Base of the two storage layouts. The order of its virtual functions and of its data
/// members is part of the binary interface.
class TOUCHSTONE2_EXPORT NetworkParams {
 public:
  class Cell;

  /// @param ports              number of ports N; every matrix is N x N
  /// @param freq_scale_factor  factor from the unit of the stored frequencies to Hz
  /// @param format             complex format of the stored pairs
  NetworkParams(std::size_t ports, double freq_scale_factor, ComplexFormat format);

  /// @{
  /// A copy has data of its own.
  NetworkParams(const NetworkParams& other);
  NetworkParams& operator=(const NetworkParams& other);
  /// @}

  virtual ~NetworkParams();

  /// True when (row, col) and (col, row) are one and the same cell.
  virtual bool isSymmetric() const = 0;

  std::size_t rows() const;          ///< number of ports
  std::size_t cols() const;          ///< number of ports
  ComplexFormat format() const;      ///< complex format of the stored pairs
  std::size_t freq_points() const;   ///< number of points
  double freq_scale_factor() const;  ///< factor from the unit of the stored frequencies to Hz

  /// Frequency of a point in Hz: the stored frequency times the scale factor.
  /// @pre freq_index < freq_points(); not checked.
  double get_freq(std::size_t freq_index) const;

  /// Frequency of a point as stored, in the file's unit.
  /// @pre freq_index < freq_points(); not checked.
  double get_unscaled_freq(std::size_t freq_index) const;

  /// Frequency in Hz of the point added last, which the reader makes the greatest one;
  /// -1.0 when there are no points.
  double max_freq() const;

  /// As max_freq, in the file's unit.
  double max_unscaled_freq() const;

  /// Appends a point whose values are all zero.
  /// @param freq  frequency in the file's unit; neither its order nor its sign is checked
  /// @return the index of the new point, counted from 0
  /// @throws std::length_error  when N is too great for any matrix to be stored
  std::size_t add_freq_point(double freq);

  /// @{
  /// Handle to one matrix element at one frequency point.
  ///
  /// Indices count from 0. `row` is the receiving port, `col` the driven one: S21 is
  /// cell(k, 1, 0). The handle refers to this object; it stays good when points are added
  /// and dies with the object. A copy of the handle that the const overload returns can
  /// write: keep it const.
  ///
  /// @throws std::out_of_range  "freqIndex", "row" or "col", whichever is bad first.
  Cell cell(std::size_t freq_index, std::size_t row, std::size_t col);
  const Cell cell(std::size_t freq_index, std::size_t row, std::size_t col) const;
  /// @}

  /// Equal port counts, factors, formats and points. Numbers are compared exactly, so a NaN
  /// makes an object unequal even to itself. The values of a point are compared whole, spare
  /// cells included; the layout itself is not looked at.
  bool operator==(const NetworkParams& other) const;

  /// The opposite of ==.
  bool operator!=(const NetworkParams& other) const;

 protected:
  /// @{
  /// Address of the first of the cell's two numbers; nothing is checked.
  double* get_cell_pointer(std::size_t freq_index, std::size_t row, std::size_t col);
  const double* get_cell_pointer(std::size_t freq_index, std::size_t row, std::size_t col) const;
  /// @}

  /// Number of cell (row, col), both from 0, within the values of one point.
  virtual std::size_t calculate_index(std::size_t row, std::size_t col) const = 0;

 private:
  friend class FastRecords;

  struct FreqPoint {
    double freq;  // in the file's unit
    // Two doubles per cell. One row of cells more than the matrix needs: equality compares
    // the spare cells too.
    std::vector<double> values;
  };

  std::size_t number_of_ports_;
  double freq_scale_factor_;
  ComplexFormat format_;
  std::vector<FreqPoint> points_;
};

/// Light handle to one cell: it refers to its NetworkParams and holds no value of its own.
class TOUCHSTONE2_EXPORT NetworkParams::Cell {
 public:
  /// Nothing is checked; NetworkParams::cell is the checked way to get one.
  Cell(NetworkParams& owner, std::size_t freq_index, std::size_t row, std::size_t col);

  /// Stores the pair as given, in the owner's complex format.
  void set(double a, double b);

  /// Converts the pair from `from` to the owner's complex format and stores it.
  void set_from_format(ComplexFormat from, double a, double b);

  /// The stored pair converted to `to`; bit for bit as stored when `to` is the owner's own
  /// format. A zero magnitude becomes -6000 dB. A format of 0 or out of range gives the
  /// pair as RI, or as MA when the owner's format is RI.
  std::pair<double, double> as_format(ComplexFormat to) const;

 private:
  NetworkParams& owner_;
  std::size_t freq_index_;
  std::size_t row_;
  std::size_t col_;
};

/// Every cell stored, row by row.
class TOUCHSTONE2_EXPORT FullNetworkParams : public NetworkParams {
 public:
  /// @{
  /// As those of NetworkParams.
  FullNetworkParams(std::size_t ports, double freq_scale_factor, ComplexFormat format);
  FullNetworkParams(const FullNetworkParams& other);
  FullNetworkParams& operator=(const FullNetworkParams& other);
  /// @}
  ~FullNetworkParams() override;

  bool isSymmetric() const override;

 protected:
  std::size_t calculate_index(std::size_t row, std::size_t col) const override;
};

/// One triangle stored, row by row; (row, col) and (col, row) give the same cell.
class TOUCHSTONE2_EXPORT SymmetricNetworkParams : public NetworkParams {
 public:
  /// @{
  /// As those of NetworkParams.
  SymmetricNetworkParams(std::size_t ports, double freq_scale_factor, ComplexFormat format);
  SymmetricNetworkParams(const SymmetricNetworkParams& other);
  SymmetricNetworkParams& operator=(const SymmetricNetworkParams& other);
  /// @}
  ~SymmetricNetworkParams() override;

  bool isSymmetric() const override;

 private:
  std::size_t calculate_index(std::size_t row, std::size_t col) const override;
};

/// True when |a - b| < 1e-6. An absolute tolerance, meant for reference impedances in ohms;
/// a NaN gives false. The equality operators of the model do not use it.
TOUCHSTONE2_EXPORT bool doubles_are_equal(double a, double b);

}  // namespace touchstone2

#endif
