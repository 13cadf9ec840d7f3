// Noise data of both generations, "[End]", and what may follow the data.
#include <touchstone2/touchstone2.h>

#include <string>
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

// The noise rows begin on line 10 behind a record at 10 GHz.
std::string with_noise(const std::string& rows, int declared = 2) {
  return "[Version] 2.0\n# GHz S MA R 50\n[Number of Ports] 2\n[Two-Port Data Order] 21_12\n"
         "[Number of Frequencies] 1\n[Number of Noise Frequencies] " +
         std::to_string(declared) + "\n[Network Data]\n10 1 0 1 0 1 0 1 0\n[Noise Data]\n" + rows;
}

// The noise rows begin on line 3 behind a record at 10 GHz.
std::string with_v1_noise(const std::string& rows) {
  return "# GHz S MA R 50\n10 1 0 1 0 1 0 1 0\n" + rows;
}

const std::string kTwoRows = "2 1.5 .3 120 .25\n3 2.5 .4 -10 .5\n";

TEST(NoiseData, OfAVersion2FileAreStoredAsWritten) {
  const ReadResult result = read_text(with_noise(kTwoRows + "[End]\n"));
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.brief_diagnostics(), Strings());
  ASSERT_NE(result.noise, nullptr);
  const NoiseParams& noise = *result.noise;
  ASSERT_EQ(noise.freq_points(), 2U);
  EXPECT_EQ(noise.get_freq_scale_factor(), 1e9);
  EXPECT_EQ(noise.get_unscaled_freq(0), 2.0);
  EXPECT_EQ(noise.get_freq(1), 3e9);
  EXPECT_EQ(noise.get_min_noise_db(0), 1.5);
  EXPECT_EQ(noise.get_reflection_magnitude(1), 0.4);
  EXPECT_EQ(noise.get_reflection_phase(1), -10.0);
  EXPECT_EQ(noise.get_impedance(0), 0.25);
  EXPECT_EQ(noise.get_impedance(1), 0.5);
}

TEST(NoiseData, OfAVersion1FileHaveTheirResistanceMultipliedByR) {
  const ReadResult result = read_text(with_v1_noise(kTwoRows));
  ASSERT_TRUE(result.ok);
  ASSERT_NE(result.noise, nullptr);
  EXPECT_EQ(result.noise->get_impedance(0), 12.5);
  EXPECT_EQ(result.noise->get_impedance(1), 25.0);
  EXPECT_EQ(result.noise->get_min_noise_db(1), 2.5);
  EXPECT_EQ(result.noise->get_freq(1), 3e9);
  EXPECT_EQ(result.file.get_number_of_noise_frequencies(), 2U);

  // One multiplication, rounded once: 0.07 x 75 is not 5.25.
  const ReadResult rounded = read_text("# R 75\n10 1 0 1 0 1 0 1 0\n1 1 0 0 0.07\n");
  ASSERT_NE(rounded.noise, nullptr);
  EXPECT_TRUE(test::same_bits(rounded.noise->get_impedance(0), 5.250000000000001));
}

TEST(NoiseData, OfAVersion2FileDiagnostics) {
  std::string keyword_line = with_noise("");
  keyword_line.pop_back();
  const TextCase cases[] = {
      {"comments and blank lines",
       with_noise("! c\n\n2 1 0 0 0 ! d\n\n ! e\n3 1 0 0 0\n! f\n[End]\n"),
       {}},
      {"zero everywhere", with_noise("0 0 0 0 0\n[End]\n", 1), {}},
      // Counts of rows.
      {"one too many", with_noise(kTwoRows + "4 1 0 0 0\n[End]\n"), {"E2310 13:1 'end'"}},
      {"one too few", with_noise("2 1 0 0 0\n[End]\n"), {"E2310 11:1 'end'"}},
      {"none", with_noise("[End]\n"), {"E2310 10:1 'end'"}},
      {"the end of the file at once", with_noise(""), {"E2310 10:1 '\n'"}},
      {"the end of the file behind a row", with_noise("2 1 0 0 0\n"), {"E2310 11:1 '\n'"}},
      {"the end of the file behind all rows", with_noise(kTwoRows), {"E2209 12:1 '\n'"}},
      // Where a row stands.
      {"indented", with_noise(" 2 1 0 0 0\n"), {"E2011 10:2 '2'"}},
      {"second row indented", with_noise("2 1 0 0 0\n\t3 1 0 0 0\n"), {"E2011 11:2 '3'"}},
      {"split", with_noise("2 1 0\n0 0\n"), {"E2309 11:1 '0'"}},
      {"split with an indent", with_noise("2 1 0\n 0 0\n"), {"E2309 11:1 ' '"}},
      // Counts of numbers, at the token behind the line.
      {"four numbers", with_noise("2 1 0 0\n[End]\n"), {"E2309 11:1 'end'"}},
      {"six numbers", with_noise("2 1 0 0 0 0\n\n[End]\n"), {"E2309 11:1 '\n'"}},
      {"four numbers and a comment", with_noise("2 1 0 0 ! c\n[End]\n"), {"E2309 10:12 '\n'"}},
      {"four numbers, no line end", with_noise("2 1 0 0"), {"W2005 10:8 ''", "E2309 10:8 ''"}},
      {"a count before all values", with_noise("-2 -1 -1 0\n[End]\n"), {"E2309 11:1 'end'"}},
      // Tokens.
      {"a word", with_noise("x\n"), {"E2007 10:1 'x'"}},
      {"a word in a row", with_noise("2 1 x 0 0\n"), {"E2007 10:5 'x'"}},
      {"words behind the keyword", keyword_line + " x\n", {"E2004 9:13 ' '"}},
      // Keywords.
      {"no number of noise frequencies",
       "[Version] 2.0\n#\n[Number of Ports] 2\n[Two-Port Data Order] 21_12\n"
       "[Number of Frequencies] 1\n[Network Data]\n10 1 0 1 0 1 0 1 0\n[Noise Data] x\n",
       {"E2207 8:1 'noise data'"}},
      {"twice", with_noise(kTwoRows + "[Noise Data]\n"), {"E2320 12:1 'noise data'"}},
      {"another keyword behind", with_noise(kTwoRows + "[Foo]\n"), {"E2210 12:1 'foo'"}},
      {"indented keyword behind", with_noise(kTwoRows + " [End]\n"), {"E2009 12:2 'end'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(NoiseData, OfOtherThanTwoPortsAreRefusedWhereTheEndIsExpected) {
  std::string record = "1";
  for (int i = 0; i < 16; ++i) record += " 0 0";
  const ReadResult result = read_text(
      "[Version] 2.0\n#\n[Number of Ports] 4\n[Number of Frequencies] 1\n"
      "[Number of Noise Frequencies] 1\n[Network Data]\n" +
      record + "\n[Noise Data]\n1 1 0 0 0\n[End]\n");
  EXPECT_EQ(result.brief_diagnostics(), Strings{"E2320 8:1 'noise data'"});
  ASSERT_EQ(result.diagnostics.size(), 1U);
  EXPECT_EQ(result.diagnostics[0].message,
            "noise data may only be specified for a 2-port data file");
  EXPECT_NE(result.file.get_network_params(), nullptr);
}

// The checks of a row are the same in both generations; only the line differs.
struct RowCase {
  const char* name;
  std::string row;
  Strings expected;  // without the line number
};

TEST(NoiseData, TheChecksOfARowAndTheirOrder) {
  const RowCase cases[] = {
      {"good", "4 1 .3 0 .1", {}},
      {"negative frequency", "-4 1 .3 0 .1", {"E2312 :1 '-4'"}},
      {"negative frequency first of all", "-4 1e999 -.3 0 -.1", {"E2312 :1 '-4'"}},
      {"the same frequency", "3 -1 .3 0 .1", {"E2311 :1 '3'"}},
      {"a lower frequency", "2.5 1 -.3 0 .1", {"E2311 :1 '2.5'"}},
      {"negative noise figure", "4 -.5 .3 0 .1", {"W2321 :3 '-.5'"}},
      {"negative magnitude", "4 1 -.3 0 .1", {"E2313 :5 '-.3'"}},
      {"negative resistance", "4 1 .3 0 -.1", {"E2314 :10 '-.1'"}},
      {"negative angle", "4 1 .3 -90 .1", {}},
      {"noise figure, then magnitude", "4 -1 -.3 0 -.1", {"W2321 :3 '-1'", "E2313 :6 '-.3'"}},
      {"magnitude before resistance", "4 1 -.3 0 -.1", {"E2313 :5 '-.3'"}},
      // Each number is converted at its own step, the angle with the magnitude.
      {"clipped frequency", "1e999 1 .3 0 .1", {"W2301 :1 '1e999'"}},
      {"clipped noise figure", "4 -1e999 .3 0 .1", {"W2301 :3 '-1e999'", "W2321 :3 '-1e999'"}},
      {"clipped magnitude", "4 1 1e999 0 .1", {"W2301 :5 '1e999'"}},
      {"angle before the magnitude's sign",
       "4 1 -.3 1E999 1e999",
       {"W2301 :9 '1e999'", "E2313 :5 '-.3'"}},
      {"clipped negative resistance",
       "4 1 .3 0 -1e-999",
       {"W2302 :10 '-1e-999'", "E2314 :10 '-1e-999'"}},
      {"minus zero everywhere", "4 -0 -0 -0 -0", {}},
  };
  for (const RowCase& c : cases) {
    const std::string rows = "3 1 .3 0 .1\n" + c.row + "\n";
    const auto expected_on = [&](const std::string& line) {
      Strings expected = c.expected;
      for (std::string& text : expected) text.insert(6, line);
      return expected;
    };
    test::expect_diagnostics({c.name, with_noise(rows + "[End]\n"), expected_on("11")});
    test::expect_diagnostics({c.name, with_v1_noise(rows), expected_on("4")});
  }
}

TEST(NoiseData, ANonphysicalNoiseFigureIsKept) {
  const ReadResult result = read_text(with_noise("2 -0.5 0.3 120 0.25\n[End]\n", 1));
  EXPECT_TRUE(result.ok);
  ASSERT_EQ(result.diagnostics.size(), 1U);
  EXPECT_EQ(result.brief_diagnostics()[0], "W2321 10:3 '-0.5'");
  EXPECT_EQ(result.diagnostics[0].message, "nonphysical noise behavior (-0.5 dB) described");
  EXPECT_EQ(result.noise->get_min_noise_db(0), -0.5);
}

TEST(NoiseData, MessagesOfCounts) {
  const ReadResult rows = read_text(with_noise(kTwoRows + "4 1 0 0 0\n[End]\n"));
  ASSERT_EQ(rows.diagnostics.size(), 1U);
  EXPECT_EQ(rows.diagnostics[0].message,
            "wrong number of frequency points (found 3 but expected 2)");
  EXPECT_EQ(rows.noise, nullptr);
  const ReadResult order = read_text(with_noise("2 1 0 0 0\n1.5 1 0 0 0\n"));
  ASSERT_EQ(order.diagnostics.size(), 1U);
  EXPECT_EQ(order.diagnostics[0].message,
            "frequency points must be listed in increasing order, but 1.5 is not greater than 2");
  const ReadResult out_of_order = read_text(with_noise(kTwoRows + "[Network DATA]\n"));
  ASSERT_EQ(out_of_order.diagnostics.size(), 1U);
  EXPECT_EQ(out_of_order.diagnostics[0].message, "keyword [network data] is out of order");
}

TEST(NoiseData, OfAVersion1FileDiagnostics) {
  const TextCase cases[] = {
      {"indented rows", with_v1_noise("  2 1 0 0 0\n\t3 1 0 0 0\n"), {}},
      {"four numbers", with_v1_noise("2 1 0 0 0\n3 1 0 0\n4 1 0 0 0\n"), {"E2309 5:1 '4'"}},
      {"six numbers", with_v1_noise("2 1 0 0 0\n3 1 0 0 0 0\n"), {"E2309 5:1 '\n'"}},
      {"a split second row", with_v1_noise("2 1 0 0 0\n3 1 0\n0 0\n"), {"E2309 5:1 '0'"}},
      {"a split first row is network data", with_v1_noise("2 1 0\n0 0\n"), {"E2308 3:1 '2'"}},
      {"a network record behind",
       with_v1_noise("2 1 0 0 0\n20 1 0 1 0 1 0 1 0\n"),
       {"E2309 5:1 '\n'"}},
      {"the first row is negative", with_v1_noise("-2 1 0 0 0\n"), {"E2312 3:1 '-2'"}},
      {"a word", with_v1_noise("2 1 0 0 0\nx\n"), {"E2007 4:1 'x'"}},
      {"a keyword", with_v1_noise("2 1 0 0 0\n[Noise Data]\n"), {"E2015 4:1 'noise data'"}},
      {"blank lines and comments",
       with_v1_noise("\n! c\n2 1 0 0 0 ! d\n\n ! e\n3 1 0 0 0\n! f\n"),
       {}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(NoiseData, AnErrorInARowKeepsTheNetworkDataAndNoNoise) {
  const ReadResult v1 = read_text(with_v1_noise("2 1 0 0 0\n3 1 -1 0 0\n"));
  EXPECT_FALSE(v1.ok);
  EXPECT_FALSE(v1.file.is_valid());
  EXPECT_NE(v1.file.get_network_params(), nullptr);
  EXPECT_EQ(v1.file.get_number_of_ports(), 2U);
  EXPECT_EQ(v1.file.get_number_of_frequencies(), 1U);
  EXPECT_EQ(v1.file.get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
  EXPECT_EQ(v1.noise, nullptr);
  EXPECT_EQ(v1.file.get_number_of_noise_frequencies(), 0U);
  EXPECT_TRUE(v1.file.get_reference_impedance_per_port().empty());  // comes last

  const ReadResult keyword = read_text(with_v1_noise("2 1 0 0 0\n[End]\n"));
  EXPECT_EQ(keyword.noise, nullptr);
  EXPECT_EQ(keyword.file.get_number_of_noise_frequencies(), 0U);

  const ReadResult v2 = read_text(with_noise("2 1 0 0 0\n3 1 -1 0 0\n[End]\n"));
  EXPECT_NE(v2.file.get_network_params(), nullptr);
  EXPECT_EQ(v2.noise, nullptr);
  EXPECT_EQ(v2.file.get_number_of_noise_frequencies(), 2U);  // as declared
}

// Line 7 is "[End]", unless a case brings its own.
std::string ended_by(const std::string& end) {
  return "[Version] 2.0\n#\n[Number of Ports] 1\n[Number of Frequencies] 1\n[Network Data]\n"
         "1 2 3\n" +
         end;
}

TEST(End, Diagnostics) {
  const TextCase cases[] = {
      {"alone", ended_by("[End]\n"), {}},
      {"any case", ended_by("[END]\n"), {}},
      {"comment behind", ended_by("[End] ! c\n"), {}},
      {"blank lines and comments before", ended_by("\n! c\n  \n[End]\n"), {}},
      {"blank lines and comments behind", ended_by("[End]\n\n! c\n \t\n ! d\n"), {}},
      {"bytes outside ASCII behind", ended_by("[End]\n!\xB5\n"), {"W2003 8:2 '\xB5'"}},
      {"missing", ended_by(""), {"E2209 7:1 '\n'"}},
      {"missing behind comments", ended_by("! c\n\n"), {"E2209 9:1 '\n'"}},
      {"another keyword", ended_by("[Foo]\n"), {"E2210 7:1 'foo'"}},
      {"an earlier keyword", ended_by("[Reference] 50\n"), {"E2210 7:1 'reference'"}},
      {"a blank in the keyword", ended_by("[End ]\n"), {"E2210 7:1 'end '"}},
      {"words behind", ended_by("[End] x\n"), {"E2004 7:6 ' '"}},
      {"glued", ended_by("[End]x\n"), {"E2004 7:6 'x'"}},
      {"numbers after", ended_by("[End]\n1 2 3\n"), {"E2030 8:1 '1'"}},
      {"a word after", ended_by("[End]\n\n! c\n  x\n"), {"E2030 10:3 'x'"}},
      {"a keyword after", ended_by("[End]\n[End]\n"), {"E2030 8:1 'end'"}},
      // Here a version 2 file allows no further options line either.
      {"an options line after", ended_by("[End]\n# GHz\n"), {"E2107 8:1 '#'"}},
      {"an indented options line after", ended_by("[End]\n! c\n  # GHz\n"), {"E2107 9:3 '#'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

}  // namespace
}  // namespace touchstone2
