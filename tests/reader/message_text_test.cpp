#include "reader/message_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace touchstone2::detail {
namespace {

std::string text_of(double value) {
  MessageText text;
  text << value;
  return text.c_str();
}

TEST(MessageText, IsEmptyAtFirstAndAfterClear) {
  MessageText text;
  EXPECT_STREQ(text.c_str(), "");
  text << "something";
  text.clear();
  EXPECT_STREQ(text.c_str(), "");
}

TEST(MessageText, JoinsTextsCharactersAndCounts) {
  MessageText text;
  text << "a" << 'b' << std::size_t{0} << ' ' << std::numeric_limits<std::size_t>::max()
       << std::string_view("cd", 1) << "";
  EXPECT_STREQ(text.c_str(), "ab0 18446744073709551615c");
}

TEST(MessageText, CanGoOnAfterItWasAskedFor) {
  MessageText text;
  text << "one";
  const char* const first = text.c_str();
  text << " two";
  EXPECT_EQ(text.c_str(), first);
  EXPECT_STREQ(first, "one two");
}

TEST(MessageText, WritesDoublesWithSixDigits) {
  struct Row {
    double value;
    const char* expected;
  };
  const double infinity = std::numeric_limits<double>::infinity();
  const Row rows[] = {
      {0.0, "0"},
      {-0.0, "-0"},
      {50.0, "50"},
      {75.5, "75.5"},
      {-0.1, "-0.1"},
      {123456.0, "123456"},
      {1234567.0, "1.23457e+06"},
      {100000.0, "100000"},
      {999999.5, "1e+06"},
      {50.00001, "50"},
      {0.0001, "0.0001"},
      {0.00001, "1e-05"},
      {1e300, "1e+300"},
      {2.5, "2.5"},
      {1.0000005, "1"},
      {0.1234565, "0.123456"},     // the double lies below the tie
      {1234565.0, "1.23456e+06"},  // a tie goes to the even digit
      {1234575.0, "1.23458e+06"},
      {1.7976931348623157e308, "1.79769e+308"},
      {2.2250738585072014e-308, "2.22507e-308"},
      {-2.2250738585072014e-308, "-2.22507e-308"},
      {2147483647.0, "2.14748e+09"},
      {infinity, "inf"},
      {-infinity, "-inf"},
      {std::numeric_limits<double>::quiet_NaN(), "nan"},
  };
  for (const Row& row : rows) EXPECT_EQ(text_of(row.value), row.expected);
}

// The form is that of a stream nobody has touched, in the locale nobody has chosen.
TEST(MessageText, WritesDoublesAsAStreamDoes) {
  std::mt19937_64 random(20240607);
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t bits = random();
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    if (i % 2 != 0) value = static_cast<double>(bits % 1'000'000'000) / 1000.0;
    if (std::isnan(value)) continue;  // its sign is not shown by every library
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << value;
    ASSERT_EQ(text_of(value), stream.str());
  }
}

struct CommaAndGroups : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(MessageText, DoesNotAskTheLocale) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups));
  MessageText text;
  text << 1234.5 << ' ' << std::size_t{1234567};
  std::locale::global(before);
  EXPECT_STREQ(text.c_str(), "1234.5 1234567");
}

TEST(MessageText, DropsWhatDoesNotFit) {
  MessageText text;
  const std::string part(100, 'x');
  for (int i = 0; i < 5; ++i) text << part;
  text << "0123456789ABCDEF";  // 11 of them fit
  EXPECT_EQ(std::string(text.c_str()), std::string(500, 'x') + "0123456789A");
  text << 'y' << "z";
  EXPECT_EQ(std::strlen(text.c_str()), 511U);
  text.clear();
  text << "good again";
  EXPECT_STREQ(text.c_str(), "good again");
}

}  // namespace
}  // namespace touchstone2::detail
