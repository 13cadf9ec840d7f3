// Storage, the two layouts and the cell handle. The conversions themselves are tested in
// complex_format_test.cpp.

#include <touchstone2/model/network_params.h>

#include <limits>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "support/same_bits.h"

namespace touchstone2 {
namespace {

using test::same_bits;
using Pair = std::pair<double, double>;

constexpr auto DB = ComplexFormat::DB;
constexpr auto MA = ComplexFormat::MA;
constexpr auto RI = ComplexFormat::RI;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Opens what derived classes may use.
class OpenFull : public FullNetworkParams {
 public:
  using FullNetworkParams::calculate_index;
  using FullNetworkParams::FullNetworkParams;
  using NetworkParams::get_cell_pointer;
};

// The symmetric layout keeps its index private; every call goes through the base.
class OpenSymmetric : public SymmetricNetworkParams {
 public:
  using NetworkParams::get_cell_pointer;
  using SymmetricNetworkParams::SymmetricNetworkParams;

  // Needs one point.
  std::size_t cell_number(std::size_t row, std::size_t col) {
    return static_cast<std::size_t>(get_cell_pointer(0, row, col) - get_cell_pointer(0, 0, 0)) / 2;
  }
};

TEST(NetworkParams, HasTheGivenSizeAndNoPointsAtFirst) {
  const FullNetworkParams full(3, 1e9, MA);
  EXPECT_EQ(full.rows(), 3U);
  EXPECT_EQ(full.cols(), 3U);
  EXPECT_EQ(full.format(), MA);
  EXPECT_EQ(full.freq_scale_factor(), 1e9);
  EXPECT_EQ(full.freq_points(), 0U);
  EXPECT_EQ(full.max_freq(), -1.0);
  EXPECT_EQ(full.max_unscaled_freq(), -1.0);
  EXPECT_FALSE(full.isSymmetric());

  const SymmetricNetworkParams symmetric(2, 1.0, RI);
  EXPECT_EQ(symmetric.rows(), 2U);
  EXPECT_EQ(symmetric.cols(), 2U);
  EXPECT_EQ(symmetric.format(), RI);
  EXPECT_TRUE(symmetric.isSymmetric());
}

TEST(NetworkParams, IsAnAbstractBase) {
  static_assert(std::is_abstract_v<NetworkParams>, "");
  static_assert(std::has_virtual_destructor_v<NetworkParams>, "");
  static_assert(std::is_base_of_v<NetworkParams, FullNetworkParams>, "");
  static_assert(std::is_base_of_v<NetworkParams, SymmetricNetworkParams>, "");
  std::unique_ptr<NetworkParams> params = std::make_unique<SymmetricNetworkParams>(2U, 1.0, RI);
  params->add_freq_point(1.0);
  EXPECT_TRUE(params->isSymmetric());
}

TEST(NetworkParams, PointsAreNumberedAsTheyAreAdded) {
  FullNetworkParams params(1, 1000.0, RI);
  EXPECT_EQ(params.add_freq_point(2.3), 0U);
  EXPECT_EQ(params.add_freq_point(5.5), 1U);
  EXPECT_EQ(params.add_freq_point(4.0), 2U);
  EXPECT_EQ(params.freq_points(), 3U);
  EXPECT_TRUE(same_bits(params.get_unscaled_freq(0), 2.3));
  EXPECT_TRUE(same_bits(params.get_freq(0), 2300.0));
  EXPECT_TRUE(same_bits(params.get_freq(1), 5500.0));
  // The last one added, not the greatest.
  EXPECT_TRUE(same_bits(params.max_unscaled_freq(), 4.0));
  EXPECT_TRUE(same_bits(params.max_freq(), 4000.0));
}

TEST(NetworkParams, ValuesAreZeroAtFirst) {
  FullNetworkParams params(2, 1.0, RI);
  params.add_freq_point(1.0);
  for (std::size_t row = 0; row < 2; ++row) {
    for (std::size_t col = 0; col < 2; ++col) {
      const Pair value = params.cell(0, row, col).as_format(RI);
      EXPECT_TRUE(same_bits(value.first, 0.0));
      EXPECT_TRUE(same_bits(value.second, 0.0));
    }
  }
}

TEST(FullNetworkParams, CellsAreNumberedRowByRow) {
  for (const std::size_t ports : {1U, 2U, 3U, 4U, 7U}) {
    const OpenFull params(ports, 1.0, RI);
    std::size_t expected = 0;
    for (std::size_t row = 0; row < ports; ++row) {
      for (std::size_t col = 0; col < ports; ++col) {
        EXPECT_EQ(params.calculate_index(row, col), expected++);
      }
    }
  }
  EXPECT_EQ(OpenFull(4, 1.0, RI).calculate_index(2, 3), 11U);
  EXPECT_EQ(OpenFull(1, 1.0, RI).calculate_index(1, 1), 2U);
  EXPECT_EQ(OpenFull(4, 1.0, RI).calculate_index(4, 4), 20U);
}

TEST(FullNetworkParams, CellPointerIsTwoNumbersPerCellAhead) {
  OpenFull params(3, 1.0, RI);
  params.add_freq_point(1.0);
  params.add_freq_point(2.0);
  const OpenFull& constant = params;
  for (std::size_t point = 0; point < 2; ++point) {
    const double* const first = params.get_cell_pointer(point, 0, 0);
    for (std::size_t row = 0; row < 3; ++row) {
      for (std::size_t col = 0; col < 3; ++col) {
        EXPECT_EQ(params.get_cell_pointer(point, row, col), first + 2 * (3 * row + col));
        EXPECT_EQ(constant.get_cell_pointer(point, row, col), first + 2 * (3 * row + col));
      }
    }
  }
}

TEST(SymmetricNetworkParams, CellsAreNumberedByTheLowerTriangle) {
  OpenSymmetric params(4, 1.0, RI);
  params.add_freq_point(1.0);
  const std::size_t expected[4][4] = {
      {0, 1, 3, 6},
      {1, 2, 4, 7},
      {3, 4, 5, 8},
      {6, 7, 8, 9},
  };
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t col = 0; col < 4; ++col) {
      EXPECT_EQ(params.cell_number(row, col), expected[row][col]) << row << ", " << col;
    }
  }
}

TEST(SymmetricNetworkParams, RowAndColumnMayBeSwapped) {
  SymmetricNetworkParams params(4, 1.0, RI);
  params.add_freq_point(1.0);
  params.cell(0, 3, 1).set(0.5, -0.25);
  EXPECT_EQ(params.cell(0, 1, 3).as_format(RI), Pair(0.5, -0.25));
  params.cell(0, 1, 3).set(1.5, 2.5);
  EXPECT_EQ(params.cell(0, 3, 1).as_format(RI), Pair(1.5, 2.5));
  EXPECT_EQ(params.cell(0, 3, 3).as_format(RI), Pair(0.0, 0.0));
}

TEST(FullNetworkParams, TransposedCellsAreTwo) {
  FullNetworkParams params(2, 1.0, RI);
  params.add_freq_point(1.0);
  params.cell(0, 1, 0).set(0.5, -0.25);
  EXPECT_EQ(params.cell(0, 0, 1).as_format(RI), Pair(0.0, 0.0));
}

// The cells behind the matrix, one row of them, are there to be written by derived classes and
// count in comparisons. Writing to the last one shows under a checking allocator that it exists.
TEST(NetworkParams, SpareCellsExistAndAreCompared) {
  for (const std::size_t ports : {1U, 2U, 5U}) {
    OpenFull full(ports, 1.0, RI);
    OpenSymmetric symmetric(ports, 1.0, RI);
    full.add_freq_point(1.0);
    symmetric.add_freq_point(1.0);
    // N * (N + 1) cells and N * (N + 1) / 2 + N cells.
    const std::size_t full_cells = ports * (ports + 1);
    const std::size_t symmetric_cells = ports * (ports + 1) / 2 + ports;
    const OpenFull full_before(full);
    const OpenSymmetric symmetric_before(symmetric);
    full.get_cell_pointer(0, 0, 0)[2 * full_cells - 1] = 1.0;
    symmetric.get_cell_pointer(0, 0, 0)[2 * symmetric_cells - 1] = 1.0;
    EXPECT_FALSE(full == full_before) << ports;
    EXPECT_FALSE(symmetric == symmetric_before) << ports;
  }
}

// 1 x 2 = 1 x 2 / 2 + 1: with one port both layouts store the same two cells.
TEST(NetworkParams, LayoutIsNotCompared) {
  FullNetworkParams full(1, 1e6, RI);
  SymmetricNetworkParams symmetric(1, 1e6, RI);
  EXPECT_TRUE(full == symmetric);
  for (NetworkParams* params :
       {static_cast<NetworkParams*>(&full), static_cast<NetworkParams*>(&symmetric)}) {
    params->add_freq_point(2.0);
    params->cell(0, 0, 0).set(0.5, 0.25);
  }
  EXPECT_TRUE(full == symmetric);
  EXPECT_TRUE(symmetric == full);
  EXPECT_FALSE(full != symmetric);
}

TEST(NetworkParams, LayoutsOfTwoPortsHoldDifferentCountsOfNumbers) {
  FullNetworkParams full(2, 1e6, RI);
  SymmetricNetworkParams symmetric(2, 1e6, RI);
  EXPECT_TRUE(full == symmetric);  // no points, nothing to differ in
  full.add_freq_point(2.0);
  symmetric.add_freq_point(2.0);
  EXPECT_FALSE(full == symmetric);  // 12 numbers and 10
}

TEST(NetworkParams, CopiesAreDeep) {
  FullNetworkParams original(2, 1e9, MA);
  original.add_freq_point(1.0);
  original.cell(0, 1, 0).set(0.5, 45.0);
  const FullNetworkParams copy(original);
  FullNetworkParams assigned(1, 1.0, DB);
  assigned.add_freq_point(9.0);
  assigned = original;
  for (const FullNetworkParams* other : {&copy, static_cast<const FullNetworkParams*>(&assigned)}) {
    EXPECT_TRUE(*other == original);
    EXPECT_EQ(other->rows(), 2U);
    EXPECT_EQ(other->freq_scale_factor(), 1e9);
    EXPECT_EQ(other->format(), MA);
    EXPECT_EQ(other->cell(0, 1, 0).as_format(MA), Pair(0.5, 45.0));
  }
  original.cell(0, 1, 0).set(0.75, 45.0);
  EXPECT_EQ(copy.cell(0, 1, 0).as_format(MA), Pair(0.5, 45.0));
  EXPECT_EQ(assigned.cell(0, 1, 0).as_format(MA), Pair(0.5, 45.0));
  EXPECT_TRUE(copy != original);

  SymmetricNetworkParams symmetric(2, 1e9, MA);
  symmetric.add_freq_point(1.0);
  symmetric.cell(0, 1, 0).set(0.5, 45.0);
  const SymmetricNetworkParams symmetric_copy(symmetric);
  SymmetricNetworkParams symmetric_assigned(7, 2.0, RI);
  symmetric_assigned = symmetric;
  EXPECT_TRUE(symmetric_copy == symmetric);
  EXPECT_TRUE(symmetric_assigned == symmetric);
}

TEST(NetworkParams, EqualWhenEverythingIs) {
  struct Row {
    const char* name;
    std::size_t ports;
    double factor;
    ComplexFormat format;
    double freq;
    double first, second;
    bool equal;
  };
  const Row rows[] = {
      {"the same", 2, 1e9, RI, 0.0, 0.5, 0.0, true},
      {"negative zeros", 2, 1e9, RI, -0.0, 0.5, -0.0, true},
      {"ports", 3, 1e9, RI, 0.0, 0.5, 0.0, false},
      {"factor", 2, 1e6, RI, 0.0, 0.5, 0.0, false},
      {"factor is no number", 2, kNaN, RI, 0.0, 0.5, 0.0, false},
      {"format", 2, 1e9, MA, 0.0, 0.5, 0.0, false},
      {"frequency", 2, 1e9, RI, 5e-324, 0.5, 0.0, false},
      {"frequency is no number", 2, 1e9, RI, kNaN, 0.5, 0.0, false},
      {"first number of a cell", 2, 1e9, RI, 0.0, 0.5000000000000001, 0.0, false},
      {"second number of a cell", 2, 1e9, RI, 0.0, 0.5, 5e-324, false},
      {"a number is none", 2, 1e9, RI, 0.0, 0.5, kNaN, false},
  };
  FullNetworkParams params(2, 1e9, RI);
  params.add_freq_point(0.0);
  params.cell(0, 1, 1).set(0.5, 0.0);
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    FullNetworkParams other(row.ports, row.factor, row.format);
    other.add_freq_point(row.freq);
    other.cell(0, 1, 1).set(row.first, row.second);
    EXPECT_EQ(params == other, row.equal);
    EXPECT_EQ(other == params, row.equal);
    EXPECT_EQ(params != other, !row.equal);
  }
}

TEST(NetworkParams, OnePointLessIsUnequalBothWays) {
  FullNetworkParams shorter(1, 1.0, RI);
  shorter.add_freq_point(1.0);
  FullNetworkParams longer(shorter);
  longer.add_freq_point(2.0);
  EXPECT_FALSE(shorter == longer);
  EXPECT_FALSE(longer == shorter);
}

TEST(NetworkParams, NotANumberMakesItUnequalToItself) {
  FullNetworkParams in_value(1, 1.0, RI);
  EXPECT_TRUE(in_value == in_value);
  in_value.add_freq_point(1.0);
  in_value.cell(0, 0, 0).set(0.0, kNaN);
  EXPECT_FALSE(in_value == in_value);
  EXPECT_TRUE(in_value != in_value);

  FullNetworkParams in_factor(1, kNaN, RI);
  EXPECT_FALSE(in_factor == in_factor);

  FullNetworkParams in_freq(1, 1.0, RI);
  in_freq.add_freq_point(kNaN);
  EXPECT_FALSE(in_freq == in_freq);
}

// The text names the first bad argument, in the order of the arguments.
TEST(NetworkParams, CellNamesTheArgumentThatIsOutOfRange) {
  struct Row {
    std::size_t point, row, col;
    const char* expected;
  };
  const std::size_t huge = std::numeric_limits<std::size_t>::max();
  const Row rows[] = {
      {2, 0, 0, "freqIndex"},    {0, 3, 0, "row"},       {0, 0, 3, "col"},
      {2, 3, 3, "freqIndex"},    {2, 0, 3, "freqIndex"}, {0, 3, 3, "row"},
      {huge, 0, 0, "freqIndex"}, {1, huge, huge, "row"}, {1, 2, huge, "col"},
  };
  FullNetworkParams full(3, 1.0, RI);
  SymmetricNetworkParams symmetric(3, 1.0, RI);
  for (NetworkParams* params :
       {static_cast<NetworkParams*>(&full), static_cast<NetworkParams*>(&symmetric)}) {
    params->add_freq_point(1.0);
    params->add_freq_point(2.0);
    const NetworkParams& constant = *params;
    for (const Row& row : rows) {
      try {
        params->cell(row.point, row.row, row.col);
        ADD_FAILURE() << "no exception where " << row.expected << " is out of range";
      } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), row.expected);
      }
      try {
        constant.cell(row.point, row.row, row.col);
        ADD_FAILURE() << "no exception where " << row.expected << " is out of range";
      } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), row.expected);
      }
    }
    EXPECT_NO_THROW(params->cell(1, 2, 2));
  }
}

TEST(NetworkParams, CellOfAnObjectWithoutPointsIsOutOfRange) {
  FullNetworkParams params(2, 1.0, RI);
  try {
    params.cell(0, 5, 5);
    ADD_FAILURE();
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "freqIndex");
  }
}

TEST(NetworkParams, CellOfAConstantObjectIsConstant) {
  static_assert(std::is_same_v<decltype(std::declval<const NetworkParams&>().cell(0, 0, 0)),
                               const NetworkParams::Cell>,
                "set is not const and cannot be called on it");
  static_assert(
      std::is_same_v<decltype(std::declval<NetworkParams&>().cell(0, 0, 0)), NetworkParams::Cell>,
      "");
  static_assert(std::is_copy_constructible_v<NetworkParams::Cell>, "");
}

TEST(NetworkParams, TooManyPortsForAnyMatrixIsALengthError) {
  const std::size_t counts[] = {std::size_t{1} << 31, (std::size_t{1} << 31) + 1,
                                (std::size_t{1} << 31) - 1, std::size_t{1} << 32,
                                std::numeric_limits<std::size_t>::max()};
  for (const std::size_t ports : counts) {
    FullNetworkParams full(ports, 1.0, RI);
    EXPECT_THROW(full.add_freq_point(1.0), std::length_error) << ports;
    EXPECT_EQ(full.freq_points(), 0U);
    SymmetricNetworkParams symmetric(ports, 1.0, RI);
    EXPECT_THROW(symmetric.add_freq_point(1.0), std::length_error) << ports;
    EXPECT_EQ(symmetric.freq_points(), 0U);
  }
}

TEST(NetworkParams, NoPortsAreNoCells) {
  FullNetworkParams params(0, 1.0, RI);
  EXPECT_EQ(params.add_freq_point(1.0), 0U);
  EXPECT_TRUE(params == params);
  EXPECT_THROW(params.cell(0, 0, 0), std::out_of_range);
}

TEST(NetworkParamsCell, SetStoresThePairAsGiven) {
  for (const ComplexFormat format : {DB, MA, RI, ComplexFormat::Unspecified}) {
    FullNetworkParams params(2, 1.0, format);
    params.add_freq_point(1.0);
    params.add_freq_point(2.0);
    params.cell(1, 0, 1).set(-0.0, 400.0);
    const Pair value = params.cell(1, 0, 1).as_format(format);
    EXPECT_TRUE(same_bits(value.first, -0.0));
    EXPECT_TRUE(same_bits(value.second, 400.0));
    EXPECT_EQ(params.cell(0, 0, 1).as_format(format), Pair(0.0, 0.0));
  }
}

TEST(NetworkParamsCell, SetFromFormatConvertsToTheOwnersFormat) {
  FullNetworkParams params(1, 1.0, MA);
  params.add_freq_point(1.0);
  NetworkParams::Cell cell = params.cell(0, 0, 0);
  cell.set_from_format(RI, 3.0, 4.0);
  EXPECT_EQ(cell.as_format(MA), Pair(5.0, 53.13010235415597));
  cell.set_from_format(DB, 20.0, -0.0);
  EXPECT_EQ(cell.as_format(MA).first, 10.0);
  EXPECT_TRUE(same_bits(cell.as_format(MA).second, -0.0));
  cell.set_from_format(MA, -1.0, 720.0);
  EXPECT_EQ(cell.as_format(MA), Pair(-1.0, 720.0));
}

TEST(NetworkParamsCell, AsFormatConvertsFromTheOwnersFormat) {
  FullNetworkParams ri(1, 1.0, RI);
  ri.add_freq_point(1.0);
  EXPECT_EQ(ri.cell(0, 0, 0).as_format(DB), Pair(-6000.0, 0.0));
  ri.cell(0, 0, 0).set(3.0, 4.0);
  EXPECT_EQ(ri.cell(0, 0, 0).as_format(MA), Pair(5.0, 53.13010235415597));
  EXPECT_EQ(ri.cell(0, 0, 0).as_format(RI), Pair(3.0, 4.0));

  FullNetworkParams db(1, 1.0, DB);
  db.add_freq_point(1.0);
  db.cell(0, 0, 0).set(20.0, 12.345678901234567);
  EXPECT_EQ(db.cell(0, 0, 0).as_format(MA).first, 10.0);
  EXPECT_TRUE(same_bits(db.cell(0, 0, 0).as_format(MA).second, 12.345678901234567));
}

TEST(NetworkParamsCell, RefersToItsOwnerAndStaysGoodWhenPointsAreAdded) {
  FullNetworkParams params(2, 1.0, RI);
  params.add_freq_point(0.0);
  NetworkParams::Cell cell = params.cell(0, 1, 0);
  for (int i = 1; i < 1000; ++i) params.add_freq_point(i);
  cell.set(7.0, 8.0);
  EXPECT_EQ(params.cell(0, 1, 0).as_format(RI), Pair(7.0, 8.0));
  params.cell(0, 1, 0).set(9.0, 10.0);
  EXPECT_EQ(cell.as_format(RI), Pair(9.0, 10.0));
}

TEST(NetworkParamsCell, ConstructorDoesNotCheck) {
  FullNetworkParams params(1, 1.0, RI);
  EXPECT_NO_THROW(NetworkParams::Cell(params, 5, 6, 7));
  params.add_freq_point(1.0);
  NetworkParams::Cell(params, 0, 0, 0).set(1.0, 2.0);
  EXPECT_EQ(params.cell(0, 0, 0).as_format(RI), Pair(1.0, 2.0));
}

TEST(DoublesAreEqual, BelowAMillionth) {
  struct Row {
    double a, b;
    bool expected;
  };
  const double infinity = std::numeric_limits<double>::infinity();
  const Row rows[] = {
      {0.0, 0.0, true},         {0.0, -0.0, true},
      {0.0, 9e-7, true},        {0.0, -9e-7, true},
      {0.0, 1e-6, false},  // strict
      {0.0, -1e-6, false},      {0.0, 9.999999999999997e-7, true},
      {50.0, 50.0000005, true}, {50.0, 50.00001, false},
      {1e300, 1e300, true},     {infinity, infinity, false},  // the difference is no number
      {kNaN, kNaN, false},      {kNaN, 0.0, false},
      {0.0, kNaN, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(doubles_are_equal(row.a, row.b), row.expected) << row.a << ", " << row.b;
    EXPECT_EQ(doubles_are_equal(row.b, row.a), row.expected) << row.b << ", " << row.a;
  }
}

}  // namespace
}  // namespace touchstone2
