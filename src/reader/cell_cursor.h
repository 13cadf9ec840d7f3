// The order in which a record lists the cells of its matrix.
#ifndef TOUCHSTONE2_SRC_READER_CELL_CURSOR_H
#define TOUCHSTONE2_SRC_READER_CELL_CURSOR_H

#include <cstddef>

namespace touchstone2 {

// Starts at (0, 0) and walks the cells of an N x N matrix; row and column count from 0.
class CellCursor {
 public:
  enum class Order {
    row_by_row,
    column_by_column,  // 2-port data in the order 11, 21, 12, 22
    upper_triangle,    // row by row, diagonal first
    lower_triangle,    // row by row, diagonal last
  };

  CellCursor(Order order, std::size_t number_of_ports)
      : order_(order), number_of_ports_(number_of_ports) {}

  std::size_t row() const { return row_; }
  std::size_t column() const { return column_; }

  // How many cells a record lists. Cannot overflow below 2^31 ports.
  std::size_t cells() const {
    const bool triangle = order_ == Order::upper_triangle || order_ == Order::lower_triangle;
    return triangle ? number_of_ports_ * (number_of_ports_ + 1) / 2
                    : number_of_ports_ * number_of_ports_;
  }

  void advance() {
    switch (order_) {
      case Order::row_by_row:
        if (++column_ == number_of_ports_) start_row(row_ + 1, 0);
        break;
      case Order::column_by_column:
        if (++row_ == number_of_ports_) start_row(0, column_ + 1);
        break;
      case Order::upper_triangle:
        if (++column_ == number_of_ports_) start_row(row_ + 1, row_ + 1);
        break;
      case Order::lower_triangle:
        if (column_ == row_) {
          start_row(row_ + 1, 0);
        } else {
          ++column_;
        }
        break;
    }
  }

 private:
  void start_row(std::size_t row, std::size_t column) {
    row_ = row;
    column_ = column;
  }

  Order order_;
  std::size_t number_of_ports_;
  std::size_t row_ = 0;
  std::size_t column_ = 0;
};

}  // namespace touchstone2

#endif
