#include "reader/fast_number.h"

#include <cstdint>
#include <optional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "reader/number_text.h"
#include "support/same_bits.h"

namespace touchstone2::detail {
namespace {

struct Parsed {
  double value;
  std::size_t length;
};

// With as many bytes behind the text as parse_plain_number may look at, digits at that.
std::optional<Parsed> parse(const std::string& text) {
  const std::string padded = text + std::string(kFastNumberReach, '7');
  double value = -1.0;
  const char* const end = parse_plain_number(padded.data(), value);
  if (end == nullptr) return std::nullopt;
  return Parsed{value, static_cast<std::size_t>(end - padded.data())};
}

void expect_as_exact(const std::string& literal) {
  for (const char delimiter : {' ', '\t', '\n', '\r'}) {
    const auto parsed = parse(literal + delimiter);
    ASSERT_TRUE(parsed) << literal;
    EXPECT_EQ(parsed->length, literal.size()) << literal;
    EXPECT_TRUE(test::same_bits(parsed->value, parse_real(literal).value)) << literal;
  }
}

TEST(FastNumber, TakesPlainLiterals) {
  for (const char* literal : {"0",
                              "-0",
                              "+0",
                              "1",
                              "-1",
                              "+1",
                              "007",
                              "12345678",
                              "123456789",
                              "1.",
                              ".5",
                              "-.5",
                              "+.5",
                              "1.5",
                              "-1.25",
                              "0.1",
                              "3.14159265358979",
                              "0.30000000000000004",
                              "1e5",
                              "1E5",
                              "1e+05",
                              "1e-5",
                              "-1.5E-03",
                              "1e0000005",
                              "9007199254740993",
                              "12345678901234567890",
                              "0.00000000000000000001",
                              "1e55",
                              "1e-55",
                              "1e56",
                              "1e300",
                              "2.2250738585072014e-308",
                              "1.7976931348623157e308",
                              "123456789012345678901234567890.5",
                              "0.1000000000000000055511151231257827021181583404541015625",
                              "1e00000000005",
                              "-12345678901234567890",
                              "+12345678901234567890",
                              "-1.2345678901234567890123e-7",
                              "+1e-300"}) {
    expect_as_exact(literal);
  }
}

TEST(FastNumber, LeavesTheRestToTheExactReader) {
  for (const char* text :
       {"",    "\n",  ".",     "-",      "+",      "-.",     "e5",
        ".e5", "1e",  "1e+",   "1e5.",   "1.2.3",  "1..2",   "--1",
        "+-1", "1x",  "1,5",   "1!",     "1[",     "1#",     "0x1",
        "inf", "nan", "1e400", "-1e400", "1e-400", "4e-320", "1e99999999999999999999"}) {
    EXPECT_FALSE(parse(text + std::string(" "))) << text;
  }
}

TEST(FastNumber, WantsADelimiterOfDataLines) {
  for (int byte = 0; byte < 256; ++byte) {
    const char c = static_cast<char>(byte);
    const bool delimits = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    const bool continues = (c >= '0' && c <= '9') || c == '.';
    if (continues) continue;
    EXPECT_EQ(parse(std::string("1.5") + c + " ").has_value(), delimits) << byte;
  }
}

TEST(FastNumber, LiteralsOfMoreThan64BytesAreLeft) {
  EXPECT_TRUE(parse("0." + std::string(61, '1') + " "));
  EXPECT_FALSE(parse("0." + std::string(62, '1') + " "));
  EXPECT_FALSE(parse(std::string(90, '1')));
}

std::string random_literal(std::mt19937_64& random) {
  const auto digits = [&random](std::size_t most) {
    std::string text;
    for (std::size_t k = random() % (most + 1); k > 0; --k) {
      text += static_cast<char>('0' + random() % 10);
    }
    return text;
  };
  std::string text;
  if (random() % 3 == 0) text += random() % 2 == 0 ? "-" : "+";
  text += digits(random() % 2 == 0 ? 3 : 20);
  if (random() % 4 != 0) text += "." + digits(20);
  if (random() % 3 == 0) {
    text += random() % 2 == 0 ? "e" : "E";
    if (random() % 2 == 0) text += random() % 2 == 0 ? "-" : "+";
    text += digits(3);
  }
  return text;
}

// Whatever is taken is what the exact reader makes of the whole literal.
TEST(FastNumber, AgreesWithTheExactReaderOnRandomLiterals) {
  std::mt19937_64 random(3);
  int taken = 0;
  for (int repeat = 0; repeat < 300'000; ++repeat) {
    const std::string literal = random_literal(random);
    const auto parsed = parse(literal + " ");
    if (!parsed) continue;
    ++taken;
    const RealText exact = parse_real(literal);
    ASSERT_EQ(exact.range, RealRange::normal) << literal;
    ASSERT_EQ(parsed->length, literal.size()) << literal;
    ASSERT_TRUE(test::same_bits(parsed->value, exact.value)) << literal;
  }
  EXPECT_GT(taken, 200'000);
}

}  // namespace
}  // namespace touchstone2::detail
