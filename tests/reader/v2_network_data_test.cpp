// "[Network Data]" of a version 2 file: the order of the cells, records over several lines, and
// every way in which a record can be refused.
#include <touchstone2/touchstone2.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"
#include "support/same_bits.h"

namespace touchstone2 {
namespace {

using test::read_text;
using test::ReadResult;
using test::TextCase;
using Strings = std::vector<std::string>;
using Pair = std::pair<double, double>;

// The data begin on line 7. `fifth_line` is a keyword line of its own.
std::string file_with(const std::string& data, int ports = 1, int frequencies = 1,
                      const std::string& options = "RI",
                      const std::string& fifth_line = "[Matrix Format] Full") {
  return "[Version] 2.0\n# " + options + "\n[Number of Ports] " + std::to_string(ports) +
         "\n[Number of Frequencies] " + std::to_string(frequencies) + "\n" + fifth_line +
         "\n[Network Data]\n" + data;
}

std::string two_ports(const std::string& data, const std::string& options = "RI") {
  return file_with(data, 2, 1, options, "[Two-Port Data Order] 21_12");
}

TEST(NetworkData, TwoPortOrders) {
  const std::string data = "1 11 -11 12 -12 13 -13 14 -14\n[End]\n";
  const ReadResult columns = read_text(two_ports(data));
  ASSERT_TRUE(columns.ok);
  EXPECT_EQ(columns.cell(0, 0, 0), Pair(11, -11));
  EXPECT_EQ(columns.cell(0, 1, 0), Pair(12, -12));
  EXPECT_EQ(columns.cell(0, 0, 1), Pair(13, -13));
  EXPECT_EQ(columns.cell(0, 1, 1), Pair(14, -14));

  const ReadResult rows = read_text(file_with(data, 2, 1, "RI", "[Two-Port Data Order] 12_21"));
  ASSERT_TRUE(rows.ok);
  EXPECT_EQ(rows.cell(0, 0, 0), Pair(11, -11));
  EXPECT_EQ(rows.cell(0, 0, 1), Pair(12, -12));
  EXPECT_EQ(rows.cell(0, 1, 0), Pair(13, -13));
  EXPECT_EQ(rows.cell(0, 1, 1), Pair(14, -14));
}

TEST(NetworkData, ThreePortFullRunsRowByRow) {
  const ReadResult result =
      read_text(file_with("1 1 0 2 0 3 0 4 0 5 0 6 0 7 0 8 0 9 0\n[End]\n", 3));
  ASSERT_TRUE(result.ok);
  EXPECT_FALSE(result.params().isSymmetric());
  for (std::size_t row = 0; row < 3; ++row) {
    for (std::size_t col = 0; col < 3; ++col) {
      EXPECT_EQ(result.cell(0, row, col), Pair(static_cast<double>(3 * row + col + 1), 0.0));
    }
  }
}

TEST(NetworkData, UpperAndLowerTriangles) {
  const std::string data = "1 1 -1 2 -2 3 -3 4 -4 5 -5 6 -6\n[End]\n";
  const ReadResult upper = read_text(file_with(data, 3, 1, "RI", "[Matrix Format] Upper"));
  ASSERT_TRUE(upper.ok);
  EXPECT_TRUE(upper.params().isSymmetric());
  EXPECT_EQ(upper.cell(0, 0, 0), Pair(1, -1));
  EXPECT_EQ(upper.cell(0, 0, 1), Pair(2, -2));
  EXPECT_EQ(upper.cell(0, 0, 2), Pair(3, -3));
  EXPECT_EQ(upper.cell(0, 1, 1), Pair(4, -4));
  EXPECT_EQ(upper.cell(0, 1, 2), Pair(5, -5));
  EXPECT_EQ(upper.cell(0, 2, 2), Pair(6, -6));
  EXPECT_EQ(upper.cell(0, 2, 0), Pair(3, -3));

  const ReadResult lower = read_text(file_with(data, 3, 1, "RI", "[Matrix Format] Lower"));
  ASSERT_TRUE(lower.ok);
  EXPECT_TRUE(lower.params().isSymmetric());
  EXPECT_EQ(lower.cell(0, 0, 0), Pair(1, -1));
  EXPECT_EQ(lower.cell(0, 1, 0), Pair(2, -2));
  EXPECT_EQ(lower.cell(0, 1, 1), Pair(3, -3));
  EXPECT_EQ(lower.cell(0, 2, 0), Pair(4, -4));
  EXPECT_EQ(lower.cell(0, 2, 1), Pair(5, -5));
  EXPECT_EQ(lower.cell(0, 2, 2), Pair(6, -6));
  EXPECT_EQ(lower.cell(0, 0, 2), Pair(4, -4));

  // 1-port triangles are full matrices of one cell; a 2-port triangle needs the order keyword,
  // which then has no effect.
  EXPECT_TRUE(read_text(file_with("1 2 3\n[End]\n", 1, 1, "RI", "[Matrix Format] Upper")).ok);
  const ReadResult two = read_text(file_with("1 1 0 2 0 3 0\n[End]\n", 2, 1, "RI",
                                             "[Two-Port Data Order] 21_12\n[Matrix Format] Lower"));
  ASSERT_TRUE(two.ok);
  EXPECT_EQ(two.cell(0, 1, 0), Pair(2, 0));
  EXPECT_EQ(two.cell(0, 1, 1), Pair(3, 0));
}

TEST(NetworkData, FrequenciesAreStoredInTheFilesUnit) {
  const ReadResult result =
      read_text(file_with("0 1 2\n1.5 3 4\n2e1 5 6\n[End]\n", 1, 3, "MHz DB"));
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.params().freq_points(), 3U);
  EXPECT_EQ(result.params().freq_scale_factor(), 1e6);
  EXPECT_EQ(result.params().format(), ComplexFormat::DB);
  EXPECT_EQ(result.params().get_unscaled_freq(1), 1.5);
  EXPECT_EQ(result.params().get_freq(2), 20e6);
  EXPECT_EQ(result.cell(2, 0, 0), Pair(5, 6));
}

TEST(NetworkData, ARecordMayRunOverSeveralLines) {
  const std::string texts[] = {
      "1 1 0 2 0 3 0 4 0\n[End]\n",
      "1 1 0 2 0\n3 0 4 0\n[End]\n",
      "1\n1\n0\n2\n0\n3\n0\n4\n0\n[End]\n",
      "1 1\n  0 2 ! c\n\n! d\n \t0\t3 0 \n ! e\n4\n0! f\n! g\n\n[End]\n",
      "1 1 0\r2 0\r\n3 0 4 0\n[End]\n",
  };
  for (const std::string& text : texts) {
    const ReadResult result = read_text(two_ports(text));
    EXPECT_EQ(result.brief_diagnostics(), Strings()) << text;
    EXPECT_EQ(result.cell(0, 0, 0), Pair(1, 0)) << text;
    EXPECT_EQ(result.cell(0, 1, 0), Pair(2, 0)) << text;
    EXPECT_EQ(result.cell(0, 0, 1), Pair(3, 0)) << text;
    EXPECT_EQ(result.cell(0, 1, 1), Pair(4, 0)) << text;
    EXPECT_TRUE(result.file.get_other_comments().empty());
  }
}

TEST(NetworkData, AFourPortRecordMayBeWrappedAndIndented) {
  std::string data;
  for (int point = 1; point <= 2; ++point) {
    data += std::to_string(point);
    for (int i = 0; i < 16; ++i) {
      data += (i != 0 && i % 4 == 0 ? "\n   " : " ") + std::to_string(i) + " -" + std::to_string(i);
    }
    data += "\n";
  }
  const ReadResult result = read_text(file_with(data + "[End]\n", 4, 2));
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.cell(1, 0, 3), Pair(3, -3));
  EXPECT_EQ(result.cell(1, 3, 0), Pair(12, -12));
  EXPECT_EQ(result.cell(0, 3, 3), Pair(15, -15));
}

TEST(NetworkData, Diagnostics) {
  const TextCase cases[] = {
      {"one record", file_with("1 2 3\n[End]\n"), {}},
      {"blank lines and comments around", file_with("! c\n\n1 2 3 ! d\n ! e\n  \n[End]\n"), {}},
      // How a record begins.
      {"indented record", file_with(" 1 2 3\n[End]\n"), {"E2011 7:1 ' '"}},
      {"indented second record", file_with("1 2 3\n\t2 2 3\n", 1, 2), {"E2011 8:1 '\t'"}},
      {"indented keyword behind the data", file_with("1 2 3\n  [End]\n"), {"E2011 8:1 '  '"}},
      {"indented #", file_with("  # x\n"), {"E2011 7:1 '  '"}},
      {"a word", file_with("x 1 2\n"), {"E2007 7:1 'x'"}},
      {"a word where the second record begins",
       file_with("1 2 3\nx 2 3\n", 1, 2),
       {"E2007 8:1 'x'"}},
      {"a frequency with its unit", file_with("1GHz 2 3\n"), {"E2007 7:1 '1ghz'"}},
      {"#", file_with("1 2 3\n# GHz\n"), {"E2107 8:1 '#'"}},
      // Inside a record.
      {"a word for a number", file_with("1 x 3\n"), {"E2007 7:3 'x'"}},
      {"a word behind the numbers", file_with("1 2 3x\n"), {"E2007 7:5 '3x'"}},
      {"a word on a continuation line", file_with("1 2\nx\n"), {"E2007 8:1 'x'"}},
      {"an exponent without digits", file_with("1 2 5e\n"), {"E2007 7:5 '5e'"}},
      {"a lone point", file_with("1 . 3\n"), {"E2007 7:3 '.'"}},
      {"# behind numbers", file_with("1 2 #\n"), {"E2007 7:5 '#'"}},
      {"an invalid byte", file_with("1 2\xB5 3\n"), {"E2003 7:3 '\xB5'"}},
      {"a keyword behind numbers", file_with("1 2 3 [End]\n"), {"E2009 7:7 'end'"}},
      {"an unclosed keyword", file_with("1 2 3\n[End\n"), {"E2012 8:1 'end'"}},
      // The keyword's own line.
      {"words behind the keyword",
       "[Version] 2.0\n#\n[Number of Ports] 1\n"
       "[Number of Frequencies] 1\n[Network Data] 1 2 3\n",
       {"E2004 5:15 ' '"}},
      {"a number glued to the keyword",
       "[Version] 2.0\n#\n[Number of Ports] 1\n[Number of Frequencies] 1\n[Network Data]1\n",
       {"E2004 5:15 '1'"}},
      {"a comment behind the keyword",
       "[Version] 2.0\n#\n[Number of Ports] 1\n[Number of Frequencies] 1\n[Network Data] ! c\n"
       "1 2 3\n[End]\n",
       {}},
      // What has to come before.
      {"no number of frequencies",
       "[Version] 2.0\n#\n[Number of Ports] 2\n[Network Data] x\n",
       {"E2206 4:1 'network data'"}},
      {"no order for 2 ports", file_with("1 1 0 1 0 1 0 1 0\n[End]\n", 2), {"E2018 0:0 ''"}},
      {"no order, and no data", file_with("", 2), {"E2018 0:0 ''"}},
      {"no order, after the first token of the data", file_with("\xB5\n", 2), {"E2003 7:1 '\xB5'"}},
      {"no order, after the keyword's line",
       "[Version] 2.0\n#\n[Number of Ports] 2\n[Number of Frequencies] 1\n[Network Data] x\n",
       {"E2004 5:15 ' '"}},
      // Frequencies.
      {"zero first", file_with("0 2 3\n[End]\n"), {}},
      {"minus zero first", file_with("-0 2 3\n[End]\n"), {}},
      {"negative", file_with("-1 2 3\n"), {"E2312 7:1 '-1'"}},
      {"negative, before the rest is looked at", file_with("-1 x\n"), {"E2312 7:1 '-1'"}},
      {"negative and clipped",
       file_with("-1E-999 2 3\n"),
       {"W2302 7:1 '-1e-999'", "E2312 7:1 '-1e-999'"}},
      {"the same twice", file_with("1 2 3\n1.0 2 3\n", 1, 2), {"E2311 8:1 '1.0'"}},
      {"decreasing, before the rest is looked at",
       file_with("2 2 3\n1 x\n", 1, 2),
       {"E2311 8:1 '1'"}},
      {"two clipped ones are the same",
       file_with("1e999 2 3\n2e999 2 3\n", 1, 2),
       {"W2301 7:1 '1e999'", "W2301 8:1 '2e999'", "E2311 8:1 '2e999'"}},
      // Counts.
      {"too few values", file_with("1 2\n[End]\n"), {"E2308 7:1 '1'"}},
      {"frequency alone", file_with("1\n[End]\n"), {"E2308 7:1 '1'"}},
      {"too many values", file_with("1 2 3 4\n[End]\n"), {"E2308 7:1 '1'"}},
      {"too many values with the continuation", file_with("1 2\n3 4\n[End]\n"), {"E2308 7:1 '1'"}},
      {"any keyword ends a record", file_with("1 2\n[Foo]\n"), {"E2308 7:1 '1'"}},
      {"the second record", file_with("1 2 3\n2 2 3 4\n", 1, 2), {"E2308 8:1 '2'"}},
      {"values of a refused record are not converted",
       file_with("1 1e999 3 4\n[End]\n"),
       {"E2308 7:1 '1'"}},
      {"its frequency is",
       file_with("1e999 2\n[End]\n"),
       {"W2301 7:1 '1e999'", "E2308 7:1 '1e999'"}},
      {"fewer points than declared", file_with("1 2 3\n2 2 3\n[End]\n", 1, 3), {"E2310 9:1 'end'"}},
      {"more points than declared", file_with("1 2 3\n2 2 3\n[Foo]\n"), {"E2310 9:1 'foo'"}},
      {"no points", file_with("! c\n[End]\n"), {"E2310 8:1 'end'"}},
      // The keyword behind the data.
      {"another keyword", file_with("1 2 3\n[Foo]\n"), {"E2210 8:1 'foo'"}},
      {"the same keyword", file_with("1 2 3\n[Network Data]\n"), {"E2210 8:1 'network data'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(NetworkData, ARecordCutByTheEndOfTheFile) {
  const TextCase cases[] = {
      {"no record", file_with(""), {"E2209 7:1 '\n'"}},
      {"after a complete record", file_with("1 2 3\n"), {"E2209 8:1 '\n'"}},
      {"after a complete record, no line end",
       file_with("1 2 3"),
       {"W2005 7:6 ''", "E2209 7:6 ''"}},
      // Straight after a number's line the missing end is what counts...
      {"behind a number's line", file_with("1 2\n"), {"E2209 8:1 '\n'"}},
      {"behind a number", file_with("1 2"), {"W2005 7:4 ''", "E2209 7:4 ''"}},
      {"behind blanks", file_with("1 2\n  "), {"W2005 8:3 ''", "E2209 8:3 ''"}},
      {"behind a comment without a line end",
       file_with("1 2 ! c"),
       {"W2005 7:8 ''", "E2209 7:8 ''"}},
      // ...behind anything else the record's count.
      {"behind a blank line", file_with("1 2\n\n"), {"E2308 7:1 '1'"}},
      {"behind the line's comment", file_with("1 2 ! c\n"), {"E2308 7:1 '1'"}},
      {"behind a comment line", file_with("1 2\n! c\n"), {"E2308 7:1 '1'"}},
      {"behind a comment line without a line end",
       file_with("1 2\n! c"),
       {"W2005 8:4 ''", "E2308 7:1 '1'"}},
      // Its pairs are converted as far as they go, a lone last number is not.
      {"a clipped pair", two_ports("1 1e999 2 1e999\n"), {"W2301 7:3 '1e999'", "E2209 8:1 '\n'"}},
      {"a negative magnitude", two_ports("1 -1 2 3\n", "MA"), {"E2313 7:3 '-1'"}},
      {"a negative lone number", two_ports("1 1 2 -3\n", "MA"), {"E2209 8:1 '\n'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(NetworkData, OnlyMagnitudesMustNotBeNegative) {
  const TextCase cases[] = {
      {"MA magnitude", file_with("1 -2 3\n[End]\n", 1, 1, "MA"), {"E2313 7:3 '-2'"}},
      {"MA angle", file_with("1 2 -3\n[End]\n", 1, 1, "MA"), {}},
      {"MA minus zero", file_with("1 -0.0 3\n[End]\n", 1, 1, "MA"), {}},
      {"MA on a continuation line",
       two_ports("1 1 0 1 0\n  1 0 -7 0\n[End]\n", "MA"),
       {"E2313 8:7 '-7'"}},
      {"MA tiny",
       file_with("1 -1e-999 3\n[End]\n", 1, 1, "MA"),
       {"W2302 7:3 '-1e-999'", "E2313 7:3 '-1e-999'"}},
      {"DB", file_with("1 -2 -3\n[End]\n", 1, 1, "DB"), {}},
      {"RI", file_with("1 -2 -3\n[End]\n", 1, 1, "RI"), {}},
      // Both numbers of a pair are converted before the sign of the first is looked at.
      {"clipped angle",
       file_with("1 -2 1e999\n[End]\n", 1, 1, "MA"),
       {"W2301 7:6 '1e999'", "E2313 7:3 '-2'"}},
      {"the pair behind is not",
       two_ports("1 -2 0 1e999 0 1 0 1 0\n[End]\n", "MA"),
       {"E2313 7:3 '-2'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(NetworkData, MessagesOfCounts) {
  struct Case {
    std::string text;
    std::string message;
  };
  const Case cases[] = {
      {two_ports("1 1 2 3 4 5 6 7\n[End]\n"),
       "incorrect number of values for network data (found 3.5 complex pairs but expected 4 "
       "complex pairs)"},
      {two_ports("1 1 2\n[End]\n"),
       "incorrect number of values for network data (found 1 complex pair but expected 4 complex "
       "pairs)"},
      {file_with("1\n[End]\n"),
       "incorrect number of values for network data (found 0 complex pairs but expected 1 complex "
       "pair)"},
      {file_with("1 2 3 4\n[End]\n"),
       "incorrect number of values for network data (found 1.5 complex pairs but expected 1 "
       "complex pair)"},
      {file_with("1 2\n[End]\n", 3, 1, "RI", "[Matrix Format] Upper"),
       "incorrect number of values for network data (found 0.5 complex pairs but expected 6 "
       "complex pairs)"},
      {file_with("1 2\n[End]\n", 3, 1, "RI", "[Matrix Format] Lower"),
       "incorrect number of values for network data (found 0.5 complex pairs but expected 6 "
       "complex pairs)"},
      {file_with("1 2\n[End]\n", 3),
       "incorrect number of values for network data (found 0.5 complex pairs but expected 9 "
       "complex pairs)"},
      {file_with("1 2 3\n2 2 3\n[End]\n", 1, 3),
       "wrong number of frequency points (found 2 but expected 3)"},
      {file_with("2.5 2 3\n.5 2 3\n", 1, 2),
       "frequency points must be listed in increasing order, but 0.5 is not greater than 2.5"},
  };
  for (const Case& c : cases) {
    const ReadResult result = read_text(c.text);
    ASSERT_EQ(result.diagnostics.size(), 1U) << c.text;
    EXPECT_EQ(result.diagnostics[0].message, c.message) << c.text;
    EXPECT_EQ(result.file.get_network_params(), nullptr);  // nothing partial is kept
  }
}

TEST(NetworkData, ClippedValuesAreStored) {
  const ReadResult result =
      read_text(two_ports("1 1E999 -1e999 1e-999 -1e-999 4.9e-324 0e-999 -0 1..5\n[End]\n"));
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.brief_diagnostics(),
            (Strings{"W2301 7:3 '1e999'", "W2301 7:9 '-1e999'", "W2302 7:16 '1e-999'",
                     "W2302 7:23 '-1e-999'", "W2302 7:31 '4.9e-324'"}));
  ASSERT_EQ(result.diagnostics.size(), 5U);
  EXPECT_EQ(result.diagnostics[1].message, "clipping a very large number to -1.79769e+308");
  EXPECT_EQ(result.diagnostics[3].message, "clipping a very small number to -2.22507e-308");
  const auto check = [&](std::size_t row, std::size_t col, double a, double b) {
    EXPECT_TRUE(test::same_bits(result.cell(0, row, col).first, a));
    EXPECT_TRUE(test::same_bits(result.cell(0, row, col).second, b));
  };
  check(0, 0, 1.7976931348623157e+308, -1.7976931348623157e+308);
  check(1, 0, 2.2250738585072014e-308, -2.2250738585072014e-308);
  check(0, 1, 2.2250738585072014e-308, 0.0);
  check(1, 1, -0.0, 1.0);
}

TEST(NetworkData, ANonZeroNumberWhoseNearestDoubleIsSubnormalIsTooSmall) {
  // The midpoint between the greatest subnormal and the smallest normal double lies between
  // 2.2250738585072011e-308 and 2.2250738585072012e-308.
  const ReadResult below = read_text(file_with("1 2.2250738585072011e-308 0\n[End]\n"));
  EXPECT_EQ(below.brief_diagnostics(), Strings{"W2302 7:3 '2.2250738585072011e-308'"});
  EXPECT_TRUE(test::same_bits(below.cell(0, 0, 0).first, 2.2250738585072014e-308));
  const ReadResult above = read_text(file_with("1 2.2250738585072012e-308 0\n[End]\n"));
  EXPECT_EQ(above.brief_diagnostics(), Strings());
  EXPECT_TRUE(test::same_bits(above.cell(0, 0, 0).first, 2.2250738585072014e-308));
}

TEST(NetworkData, ANumberThatRoundsToTheGreatestDoubleIsNotClipped) {
  const ReadResult below = read_text(file_with("1 1.7976931348623158e308 0\n[End]\n"));
  EXPECT_EQ(below.brief_diagnostics(), Strings());
  const ReadResult above = read_text(file_with("1 1.7976931348623159e308 0\n[End]\n"));
  EXPECT_EQ(above.brief_diagnostics(), Strings{"W2301 7:3 '1.7976931348623159e308'"});
  for (const ReadResult* result : {&below, &above}) {
    EXPECT_TRUE(test::same_bits(result->cell(0, 0, 0).first, 1.7976931348623157e+308));
  }
}

}  // namespace
}  // namespace touchstone2
