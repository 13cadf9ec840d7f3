#include <touchstone2/reader/port_count.h>

#include <cstddef>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

constexpr std::size_t kMax = std::numeric_limits<std::size_t>::max();

TEST(PortCount, SquareRootIsRoundedToTheNearest) {
  struct Row {
    std::size_t n;
    std::size_t expected;
  };
  const Row rows[] = {
      {0, 0},
      {1, 1},
      {2, 1},
      {3, 2},
      {4, 2},
      {6, 2},
      {7, 3},
      {9, 3},
      {12, 3},  // 3.46
      {13, 4},  // 3.61
      {15, 4},
      {16, 4},
      {20, 4},
      {21, 5},
      {10000, 100},
      {std::size_t{1} << 62, std::size_t{1} << 31},
      {kMax, std::size_t{1} << 32},  // unsigned, not -1
      {std::size_t{1} << 63, 3037000500U},
  };
  for (const Row& row : rows) EXPECT_EQ(find_sqrt(row.n), row.expected) << row.n;
}

TEST(PortCount, SquareRootOfASquareIsItsSide) {
  for (std::size_t side = 0; side < 70000; side += side < 1000 ? 1 : 997) {
    EXPECT_EQ(find_sqrt(side * side), side);
  }
}

TEST(PortCount, LowestBitTellsEvenFromOdd) {
  struct Row {
    std::size_t n;
    bool even;
  };
  const Row rows[] = {
      {0, true}, {1, false}, {2, true}, {7, false}, {8, true}, {kMax, false}, {kMax - 1, true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(is_even(row.n), row.even) << row.n;
    EXPECT_EQ(is_odd(row.n), !row.even) << row.n;
  }
}

}  // namespace
}  // namespace touchstone2
