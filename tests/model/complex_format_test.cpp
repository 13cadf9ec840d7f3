// The conversions bit by bit. The expected numbers were computed with 300 bits of precision,
// rounded at every step of the stated order; each function value among them lies well inside
// its rounding interval, so every usual C library gives it.

#include "model/complex_format.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "support/same_bits.h"

namespace touchstone2::detail {
namespace {

using test::same_bits;

constexpr auto None = ComplexFormat::Unspecified;
constexpr auto DB = ComplexFormat::DB;
constexpr auto MA = ComplexFormat::MA;
constexpr auto RI = ComplexFormat::RI;
constexpr auto Outside = static_cast<ComplexFormat>(77);

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ComplexFormatConversion, GivesTheseBits) {
  struct Row {
    ComplexFormat from, to;
    double x, y;
    double p, q;
  };
  const Row rows[] = {
      // From real and imaginary part.
      {RI, MA, 3.0, 4.0, 5.0, 53.13010235415597},  // ...598 in another order of operations
      {RI, MA, 0.1, 0.7, 0.7071067811865475, 81.86989764584402},  // likewise ...403
      {RI, MA, 0.25, -0.5, 0.5590169943749475, -63.43494882292201},
      {RI, MA, -1.0, 0.0, 1.0, 180.0},
      {RI, MA, -1.0, -0.0, 1.0, -180.0},
      {RI, MA, 0.0, 2.0, 2.0, 90.0},
      {RI, MA, 0.0, 0.0, 0.0, 0.0},
      {RI, MA, 0.0, -0.0, 0.0, -0.0},
      {RI, MA, 0x3p700, 0x4p700, 0x5p700, 53.13010235415597},  // squares would overflow
      {RI, DB, -6.0, 8.0, 20.0, 126.86989764584402},
      {RI, DB, 0.25, -0.5, -5.051499783199059, -63.43494882292201},
      {RI, DB, 0.0, 0.0, -6000.0, 0.0},
      {RI, DB, -0.0, 0.0, -6000.0, 180.0},

      // From magnitude and angle.
      {MA, DB, 1.0, -33.0, 0.0, -33.0},
      {MA, DB, 0.5, 12.345678901234567, -6.020599913279624, 12.345678901234567},
      {MA, DB, 1000.0, 7.0, 60.0, 7.0},
      {MA, DB, 0.0, 12.5, -6000.0, 12.5},
      {MA, DB, 1e-310, 12.5, -6000.0, 12.5},
      {MA, DB, -2.0, 12.5, -6000.0, 12.5},
      {MA, RI, 2.0, 90.0, 1.2246467991473532e-16, 2.0},
      {MA, RI, 1.0, 60.0, 0.5000000000000001, 0.8660254037844386},
      {MA, RI, 0.5, -33.0, 0.419335283972712, -0.2723195175075135},  // not ...51354
      {MA, RI, 0.7, -123.4, -0.38533651805949687, -0.5843935042843845},
      {MA, RI, 3.0, 0.0, 3.0, 0.0},
      {MA, RI, 3.0, -0.0, 3.0, -0.0},

      // From decibels and angle.
      {DB, MA, 20.0, 45.0, 10.0, 45.0},
      {DB, MA, -3.0, 12.345678901234567, 0.7079457843841379, 12.345678901234567},
      {DB, MA, 0.0, -0.0, 1.0, -0.0},
      {DB, RI, 0.0, 30.0, 0.8660254037844387, 0.49999999999999994},
      {DB, RI, 20.0, 180.0, -10.0, 1.2246467991473533e-15},
      {DB, RI, -6.5, 17.25, 0.451868889053241, 0.14030901953411168},  // not ...165
      {DB, MA, -kInfinity, 3.0, 0.0, 3.0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(::testing::Message()
                 << static_cast<int>(row.from) << " -> " << static_cast<int>(row.to) << " ("
                 << row.x << ", " << row.y << ")");
    const auto [p, q] = convert_complex(row.from, row.to, row.x, row.y);
    EXPECT_TRUE(same_bits(p, row.p));
    EXPECT_TRUE(same_bits(q, row.q));
  }
}

TEST(ComplexFormatConversion, EqualFormatsKeepEveryBit) {
  const double values[] = {
      0.0,   -0.0,      0.1,        -123.456789, 5e-324,
      1e308, kInfinity, -kInfinity, -1e-3,       std::numeric_limits<double>::quiet_NaN()};
  for (const ComplexFormat format : {None, DB, MA, RI, Outside}) {
    for (const double x : values) {
      for (const double y : values) {
        const auto [p, q] = convert_complex(format, format, x, y);
        EXPECT_TRUE(same_bits(p, x));
        EXPECT_TRUE(same_bits(q, y));
      }
    }
  }
}

TEST(ComplexFormatConversion, UnknownTargetCountsAsRiAndFromRiAsMa) {
  for (const ComplexFormat unknown : {None, Outside}) {
    for (const ComplexFormat from : {DB, MA}) {
      EXPECT_EQ(convert_complex(from, unknown, 0.5, -33.0), convert_complex(from, RI, 0.5, -33.0));
    }
    EXPECT_EQ(convert_complex(RI, unknown, 0.5, -33.0), convert_complex(RI, MA, 0.5, -33.0));
  }
}

TEST(ComplexFormatConversion, UnknownSourceCountsAsDb) {
  for (const ComplexFormat unknown : {None, Outside}) {
    for (const ComplexFormat to : {MA, RI}) {
      EXPECT_EQ(convert_complex(unknown, to, -6.5, 17.25), convert_complex(DB, to, -6.5, 17.25));
    }
    // Not the pair as it stands: the formats differ, and DB is no shortcut here.
    EXPECT_EQ(convert_complex(unknown, DB, -6.5, 17.25), convert_complex(DB, RI, -6.5, 17.25));
  }
  EXPECT_EQ(convert_complex(None, Outside, -6.5, 17.25), convert_complex(DB, RI, -6.5, 17.25));
}

TEST(ComplexFormatConversion, NotANumberStaysOne) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const ComplexFormat from : {DB, MA, RI}) {
    for (const ComplexFormat to : {DB, MA, RI}) {
      if (from == to) continue;
      EXPECT_TRUE(std::isnan(convert_complex(from, to, nan, nan).second));
    }
  }
}

}  // namespace
}  // namespace touchstone2::detail
