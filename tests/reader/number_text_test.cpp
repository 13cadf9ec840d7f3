// Texts to numbers. The expected doubles of the table were computed with exact fractions; the
// property tests hold the conversion against the C library's, which runs in the "C" locale here.

#include "reader/number_text.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/same_bits.h"

namespace touchstone2::detail {
namespace {

using test::same_bits;

constexpr auto kNormal = RealRange::normal;
constexpr auto kTooLarge = RealRange::too_large;
constexpr auto kTooSmall = RealRange::too_small;

constexpr double kLargest = 1.7976931348623157e+308;
constexpr double kSmallest = 2.2250738585072014e-308;

std::string zeros(std::size_t count) { return std::string(count, '0'); }

struct RealRow {
  std::string text;
  double value;
  RealRange range;
};

void expect_rows(const std::vector<RealRow>& rows) {
  for (const RealRow& row : rows) {
    SCOPED_TRACE(row.text.substr(0, 60));
    const RealText real = parse_real(row.text);
    EXPECT_TRUE(same_bits(real.value, row.value));
    EXPECT_EQ(real.range, row.range);
  }
}

TEST(NumberTextReal, Signs) {
  expect_rows({
      {"1.5", 1.5, kNormal},
      {"+1.5", 1.5, kNormal},
      {"-1.5", -1.5, kNormal},
      {"0", 0.0, kNormal},
      {"+0", 0.0, kNormal},
      {"-0", -0.0, kNormal},
      {"-0.000e5", -0.0, kNormal},
      {"-0e-999", -0.0, kNormal},
      {"+-1", 0.0, kNormal},
      {"-+1", 0.0, kNormal},
      {"--1", 0.0, kNormal},
  });
}

TEST(NumberTextReal, PointsMayStandAnywhere) {
  expect_rows({
      {".5", 0.5, kNormal},
      {"-.5", -0.5, kNormal},
      {"+.5", 0.5, kNormal},
      {"5.", 5.0, kNormal},
      {"-5.", -5.0, kNormal},
      {"5.e1", 50.0, kNormal},
      {".5e1", 5.0, kNormal},
      {"007", 7.0, kNormal},
      {"00.50", 0.5, kNormal},
      {"1.00000000000000000000000000000000000000000000", 1.0, kNormal},
  });
}

// The longest prefix that is a literal counts; without one the value is a positive zero.
TEST(NumberTextReal, TheRestIsIgnored) {
  expect_rows({
      {"1..2", 1.0, kNormal},
      {"1.2.3", 1.2, kNormal},
      {"1..2e3", 1.0, kNormal},
      {"1.5.2e3", 1.5, kNormal},
      {"1.5ghz", 1.5, kNormal},
      {"1,5", 1.0, kNormal},
      {"12_21", 12.0, kNormal},
      {"1e5.5", 1e5, kNormal},
      {"1e5e6", 1e5, kNormal},
      {"1e", 1.0, kNormal},
      {"1e+", 1.0, kNormal},
      {"1e-", 1.0, kNormal},
      {"1ex", 1.0, kNormal},
      {"1e999x", kLargest, kTooLarge},
      {"1d5", 1.0, kNormal},
      {"1-2", 1.0, kNormal},
      {"", 0.0, kNormal},
      {"+", 0.0, kNormal},
      {"-", 0.0, kNormal},
      {".", 0.0, kNormal},
      {"+.", 0.0, kNormal},
      {"-.", 0.0, kNormal},
      {"..5", 0.0, kNormal},
      {"-..5", 0.0, kNormal},
      {".e5", 0.0, kNormal},
      {"-e5", 0.0, kNormal},
      {"-.e999", 0.0, kNormal},
      {"x1", 0.0, kNormal},
      {std::string("1.5\0002", 5), 1.5, kNormal},
  });
}

// Numbers are converted where they lie, with the rest of the file behind them.
TEST(NumberTextReal, BytesBehindTheTextAreNotRead) {
  for (const std::string whole : {"12345", "1.5.5", "+1.25e-17", "-12E+100", ".5e3", "1e5e5",
                                  "123456789012345678901234567890e-12"}) {
    for (std::size_t count = 0; count < whole.size(); ++count) {
      const std::string alone = whole.substr(0, count);
      SCOPED_TRACE(alone);
      const RealText expected = parse_real(alone);
      const RealText found = parse_real(std::string_view(whole).substr(0, count));
      EXPECT_TRUE(same_bits(found.value, expected.value));
      EXPECT_EQ(found.range, expected.range);
    }
  }
}

TEST(NumberTextReal, Exponents) {
  expect_rows({
      {"1e5", 1e5, kNormal},
      {"1E5", 1e5, kNormal},
      {"1e+5", 1e5, kNormal},
      {"1E-5", 1e-5, kNormal},
      {"1e0", 1.0, kNormal},
      {"1e-0", 1.0, kNormal},
      {"1e0000000000000000000000000000000000005", 1e5, kNormal},
      {"1e22", 0x1.0f0cf064dd592p+73, kNormal},
      {"1e23", 0x1.52d02c7e14af6p+76, kNormal},
      {"8.5e22", 0x1.1ffdbf6b2b2ebp+76, kNormal},
      {"6.02214076e23", 0x1.fe185ca57c517p+78, kNormal},
      {"1e-5", 0x1.4f8b588e368f1p-17, kNormal},
      {"0.000001", 0x1.0c6f7a0b5ed8dp-20, kNormal},
      {"0e999", 0.0, kNormal},
      {"0e99999999999999999999999", 0.0, kNormal},
      {"0.00e-99999999999999999999999", 0.0, kNormal},
      {"-0.e9223372036854775808", -0.0, kNormal},
  });
}

// Many zeros before or behind the point, made good by the exponent.
TEST(NumberTextReal, ExponentsCountFromThePoint) {
  expect_rows({
      {"0." + zeros(400) + "1e401", 1.0, kNormal},
      {"-0." + zeros(400) + "25e401", -2.5, kNormal},
      {"1" + zeros(400) + "e-400", 1.0, kNormal},
      {"125" + zeros(400) + ".000e-402", 1.25, kNormal},
      {zeros(400) + "1", 1.0, kNormal},
      {"0." + zeros(69999) + "1e70000", 1.0, kNormal},
      {"0." + zeros(699999) + "1e700000", 1.0, kNormal},
      {"1" + zeros(700000) + "e-700000", 1.0, kNormal},
      {"0." + zeros(400) + "1", kSmallest, kTooSmall},
      {"1" + zeros(400), kLargest, kTooLarge},
      {"0." + zeros(400) + "1e5", kSmallest, kTooSmall},
      {"1" + zeros(400) + "e-5", kLargest, kTooLarge},
  });
}

TEST(NumberTextReal, TooLargeIsClippedToTheGreatestDouble) {
  expect_rows({
      {"1e999", kLargest, kTooLarge},
      {"-1e999", -kLargest, kTooLarge},
      {"+1e999", kLargest, kTooLarge},
      {"1e309", kLargest, kTooLarge},
      {"1.7976931348623157e308", kLargest, kNormal},
      {"-1.7976931348623157e308", -kLargest, kNormal},
      {"1.7976931348623158e308", kLargest, kNormal},  // rounds down to it
      {"1.7976931348623159e308", kLargest, kTooLarge},
      {"-1.7976931348623159e308", -kLargest, kTooLarge},
      {"179769313486231580793e289", kLargest, kTooLarge},
      {"1e9223372036854775807", kLargest, kTooLarge},
      {"1e9223372036854775808", kLargest, kTooLarge},
      {"-1e99999999999999999999999999", -kLargest, kTooLarge},
      {"0.1e99999999999999999999999999", kLargest, kTooLarge},
  });
}

// Zero and the subnormal numbers are out of reach, but for the literal zero.
TEST(NumberTextReal, TooSmallIsClippedToTheSmallestNormalDouble) {
  expect_rows({
      {"1e-999", kSmallest, kTooSmall},
      {"-1e-999", -kSmallest, kTooSmall},
      {"+1e-999", kSmallest, kTooSmall},
      {"5e-324", kSmallest, kTooSmall},
      {"4.9e-324", kSmallest, kTooSmall},
      {"-4.9e-324", -kSmallest, kTooSmall},
      {"2.4703282292062327e-324", kSmallest, kTooSmall},  // the nearest double is zero
      {"1e-320", kSmallest, kTooSmall},
      {"1e-308", kSmallest, kTooSmall},
      {"2.2250738585072011e-308", kSmallest, kTooSmall},  // the greatest subnormal
      {"2.2250738585072012e-308", kSmallest, kNormal},    // rounds up to the smallest normal
      {"-2.2250738585072012e-308", -kSmallest, kNormal},
      {"2.2250738585072014e-308", kSmallest, kNormal},
      {"2.225073858507202e-308", 0x1.0000000000001p-1022, kNormal},
      {"1e-9223372036854775807", kSmallest, kTooSmall},
      {"1e-9223372036854775808", kSmallest, kTooSmall},
      {"-1e-99999999999999999999999999", -kSmallest, kTooSmall},
      {"10000e-99999999999999999999999999", kSmallest, kTooSmall},
  });
}

// Half way between two doubles the even one wins; one digit more decides.
TEST(NumberTextReal, RoundsToTheNearest) {
  expect_rows({
      {"9007199254740992.9", 0x1p53, kNormal},
      {"9007199254740993", 0x1p53, kNormal},
      {"9007199254740993.0000000001", 0x1.0000000000001p53, kNormal},
      {"9007199254740993." + zeros(1000) + "1", 0x1.0000000000001p53, kNormal},
      {"9007199254740993." + zeros(1000) + "0", 0x1p53, kNormal},
      {"9007199254740995", 0x1.0000000000002p53, kNormal},
      {"-9007199254740995", -0x1.0000000000002p53, kNormal},
      {"900719925474099.3", 0x1.999999999999ap49, kNormal},
      {"90071992547409.93", 0x1.47ae147ae147cp46, kNormal},
      {"1.00000000000000011102230246251565404236316680908203124", 1.0, kNormal},
      {"1.00000000000000011102230246251565404236316680908203125", 1.0, kNormal},
      {"1.00000000000000011102230246251565404236316680908203126", 0x1.0000000000001p0, kNormal},
      {"123456789012345678", 0x1.b69b4ba630f35p56, kNormal},
      {"1234567890123456789", 0x1.12210f47de981p60, kNormal},
      {"9223372036854775807", 0x1p63, kNormal},
      {"9999999999999999999", 0x1.158e460913d00p63, kNormal},
      {"18446744073709551615", 0x1p64, kNormal},
      {"18446744073709551616", 0x1p64, kNormal},
      {"72057594037927933", 0x1p56, kNormal},
      {"0.1", 0x1.999999999999ap-4, kNormal},
      {"0.3", 0x1.3333333333333p-2, kNormal},
      {"50.0000005", 0x1.900000431bde8p5, kNormal},
      {"0.70710678118654752", 0x1.6a09e667f3bcdp-1, kNormal},
      {"3.141592653589793238462643383279", 0x1.921fb54442d18p1, kNormal},
  });
}

// What strtod and the rule about the normal range make of a literal.
RealText expected_of(const std::string& text) {
  const double value = std::strtod(text.c_str(), nullptr);
  const bool negative = text[0] == '-';
  if (std::isinf(value)) return {negative ? -kLargest : kLargest, kTooLarge};
  const std::string mantissa = text.substr(0, text.find_first_of("eE"));
  // Without a digit nothing is converted; not every C library gives a positive zero then.
  if (mantissa.find_first_of("0123456789") == std::string::npos) return {0.0, kNormal};
  const bool is_zero = mantissa.find_first_of("123456789") == std::string::npos;
  if (!is_zero && std::fabs(value) < DBL_MIN) {
    return {negative ? -kSmallest : kSmallest, kTooSmall};
  }
  return {value, kNormal};
}

void expect_as_strtod(const std::string& text) {
  const RealText real = parse_real(text);
  const RealText expected = expected_of(text);
  ASSERT_TRUE(same_bits(real.value, expected.value)) << text;
  ASSERT_EQ(real.range, expected.range) << text;
}

class Literals {
 public:
  explicit Literals(std::uint64_t seed) : random_(seed) {}

  std::uint64_t below(std::uint64_t limit) { return random_() % limit; }

  std::string digits(std::size_t count) {
    std::string text;
    while (text.size() < count) text += static_cast<char>('0' + below(10));
    return text;
  }

  std::string sign() { return below(3) == 0 ? (below(4) == 0 ? "+" : "-") : ""; }

  // Any shape; exponents around and beyond the range of a double.
  std::string any() {
    static constexpr std::size_t kMost[] = {3, 17, 20, 45};
    const std::size_t whole = below(kMost[below(4)] + 1);
    std::string text = sign() + digits(whole);
    const std::size_t decimals = below(kMost[below(4)] + 1);
    if (whole == 0 || decimals != 0 || below(2) == 0) text += '.' + digits(decimals);
    if (below(2) == 0) {
      text += below(2) == 0 ? 'e' : 'E';
      const auto exponent = static_cast<int>(below(700)) - 350;
      text += exponent >= 0 && below(2) == 0 ? "+" : "";
      text += std::to_string(below(2) == 0 ? exponent : exponent / 10);
    }
    return text;
  }

  // Every double, with as many digits as a writer may give it.
  std::string of_a_double() {
    double value = 0.0;
    do {
      const std::uint64_t bits = random_();
      std::memcpy(&value, &bits, sizeof value);
    } while (!std::isfinite(value));
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", static_cast<int>(below(20)), value);
    return text;
  }

  // At most 19 digits that lie exactly between two doubles, or beside that.
  std::string halfway() {
    static constexpr std::uint64_t kPowersOfFive[] = {1, 5, 25, 125, 625};
    const std::size_t decimals = below(5);
    const std::uint64_t between = (std::uint64_t{1} << 53) + below(std::uint64_t{1} << 53);
    const std::uint64_t value = (between | 1) * kPowersOfFive[decimals] + below(3) - 1;
    std::string text = std::to_string(value);
    if (decimals != 0) text.insert(text.size() - decimals, ".");
    return sign() + text + (below(4) == 0 ? "e" + std::to_string(below(24)) : "");
  }

 private:
  std::mt19937_64 random_;
};

TEST(NumberTextReal, AgreesWithTheCLibraryOnAnyLiteral) {
  Literals literals(1);
  for (int i = 0; i < 200'000 && !HasFatalFailure(); ++i) expect_as_strtod(literals.any());
}

TEST(NumberTextReal, AgreesWithTheCLibraryOnWrittenDoubles) {
  Literals literals(2);
  for (int i = 0; i < 100'000 && !HasFatalFailure(); ++i) expect_as_strtod(literals.of_a_double());
}

TEST(NumberTextReal, AgreesWithTheCLibraryHalfWayBetweenDoubles) {
  Literals literals(3);
  for (int i = 0; i < 200'000 && !HasFatalFailure(); ++i) expect_as_strtod(literals.halfway());
}

// Every count of digits before and behind the point up to 20, which is where the short way ends.
TEST(NumberTextReal, AgreesWithTheCLibraryAtEveryLength) {
  Literals literals(4);
  for (std::size_t whole = 0; whole <= 22; ++whole) {
    for (std::size_t decimals = 0; decimals <= 22; ++decimals) {
      if (whole + decimals == 0) continue;
      for (int i = 0; i < 100 && !HasFatalFailure(); ++i) {
        const std::string text = literals.digits(whole) + "." + literals.digits(decimals);
        expect_as_strtod(text);
        if (decimals == 0) expect_as_strtod(text.substr(0, whole));
        expect_as_strtod("-" + text);
      }
      expect_as_strtod(std::string(whole, '9') + "." + std::string(decimals, '9'));
      expect_as_strtod(std::string(whole, '0') + "." + std::string(decimals, '0') + "1");
    }
  }
}

struct CommaAndGroups : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(NumberText, DoesNotAskTheLocale) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups));
  EXPECT_EQ(parse_real("1.5").value, 1.5);
  EXPECT_EQ(parse_real("1,5").value, 1.0);
  EXPECT_EQ(parse_real("1.234567890123456789012").value, 1.2345678901234567);
  EXPECT_EQ(parse_real("1.5e-300").value, 1.5e-300);
  EXPECT_EQ(parse_integer("1234567")->value, 1234567);
  EXPECT_FALSE(parse_integer("1.234.567"));
  std::locale::global(before);
}

TEST(NumberTextInteger, WholeTextsAreConverted) {
  struct Row {
    std::string text;
    std::int32_t value;
    bool clipped;
  };
  const Row rows[] = {
      {"", 0, false},
      {"0", 0, false},
      {"-0", 0, false},
      {"+0", 0, false},
      {"12", 12, false},
      {"+12", 12, false},
      {"-3", -3, false},
      {"007", 7, false},
      {"-0000000000000000000000000000000000000000000012", -12, false},
      {"2147483646", 2147483646, false},
      {"2147483647", 2147483647, false},
      {"2147483648", 2147483647, true},
      {"4294967296", 2147483647, true},
      {"4294967297", 2147483647, true},
      {"99999999999", 2147483647, true},
      {"9223372036854775808", 2147483647, true},
      {"18446744073709551617", 2147483647, true},
      {"+99999999999999999999999999999999999999", 2147483647, true},
      {"-2147483647", -2147483647, false},
      {"-2147483648", std::numeric_limits<std::int32_t>::min(), false},
      {"-2147483649", std::numeric_limits<std::int32_t>::min(), true},
      {"-99999999999", std::numeric_limits<std::int32_t>::min(), true},
      {"-99999999999999999999999999999999999999", std::numeric_limits<std::int32_t>::min(), true},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    const auto integer = parse_integer(row.text);
    ASSERT_TRUE(integer);
    EXPECT_EQ(integer->value, row.value);
    EXPECT_EQ(integer->clipped, row.clipped);
  }
}

TEST(NumberTextInteger, TextsWithSomethingElseAreNone) {
  const std::string texts[] = {
      "+",
      "-",
      ".",
      "2.0",
      "2.",
      ".5",
      "1e5",
      "12x",
      "x",
      "1 ",
      "1-",
      "--1",
      "+-1",
      "1,000",
      "0x1",
      "1_1",
      "-.",
      "1+1",
      "1\n",
      "\265",
      "1..2",
      "12e99",
      "-x12",
      "2.000",
      "\331\243",
      "1:",
      "1/10",
      "/",
      std::string(1, '\0'),
  };
  for (const std::string& text : texts) EXPECT_FALSE(parse_integer(text)) << text;
}

}  // namespace
}  // namespace touchstone2::detail
