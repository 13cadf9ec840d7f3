// Version 1 files: port counts and record ends found from the numbers alone, the line rules, and
// the way from normalised to absolute values.
#include <touchstone2/touchstone2.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"
#include "support/same_bits.h"

namespace touchstone2 {
namespace {

using test::Extent;
using test::read_text;
using test::ReadResult;
using test::TextCase;
using Strings = std::vector<std::string>;
using Pair = std::pair<double, double>;

const std::string kTwoPortRow = " 1 0 1 0 1 0 1 0\n";  // behind its frequency

TEST(Version1, EveryPortCountAndEveryWrapping) {
  // Pairs are numbered from 1 in the order of the text; the second number of each is negative.
  for (std::size_t ports = 1; ports <= 9; ++ports) {
    const std::size_t pairs = ports * ports;
    for (const std::size_t pairs_per_line : {pairs, ports, std::size_t{1}, std::size_t{4}}) {
      for (const bool frequency_alone : {false, true}) {
        // Records of 1 and 2 ports keep to one line.
        if (ports <= 2 && (pairs_per_line < pairs || frequency_alone)) continue;
        std::string text = "# MHz RI\n";
        for (int point = 1; point <= 2; ++point) {
          text += std::to_string(point);
          for (std::size_t i = 0; i < pairs; ++i) {
            const bool wrap = (i == 0) ? frequency_alone : i % pairs_per_line == 0;
            const std::string number = std::to_string(i + 1);
            text += (wrap ? "\n  " : " ") + number + " -" + number;
          }
          text += "\n";
        }
        SCOPED_TRACE(text);
        const ReadResult result = read_text(text);
        ASSERT_EQ(result.brief_diagnostics(), Strings());
        ASSERT_EQ(result.file.get_number_of_ports(), ports);
        EXPECT_EQ(result.file.get_number_of_frequencies(), 2U);
        EXPECT_EQ(result.params().freq_points(), 2U);
        EXPECT_EQ(result.params().get_freq(1), 2e6);
        EXPECT_FALSE(result.params().isSymmetric());
        EXPECT_EQ(result.file.get_two_port_data_order(),
                  ports == 2 ? TwoPortDataOrder::Order_21_12 : TwoPortDataOrder::Unspecified);
        for (std::size_t i = 0; i < pairs; ++i) {
          const std::size_t row = ports == 2 ? i % 2 : i / ports;
          const std::size_t col = ports == 2 ? i / 2 : i % ports;
          const auto value = static_cast<double>(i + 1);
          EXPECT_EQ(result.cell(1, row, col), Pair(value, -value));
        }
      }
    }
  }
}

TEST(Version1, AThreePortRecordOf7And6And6Numbers) {
  const ReadResult result = read_text("#\n1 1 0 2 0 3 0\n4 0 5 0 6 0\n7 0 8 0 9 0\n");
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.file.get_number_of_ports(), 3U);
  EXPECT_EQ(result.cell(0, 1, 0), Pair(4, 0));
  EXPECT_EQ(result.cell(0, 2, 2), Pair(9, 0));
}

TEST(Version1, ATwoPortRecordRunsDownTheColumns) {
  const ReadResult result = read_text("#\n1 11 -11 12 -12 13 -13 14 -14\n");
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.cell(0, 0, 0), Pair(11, -11));
  EXPECT_EQ(result.cell(0, 1, 0), Pair(12, -12));
  EXPECT_EQ(result.cell(0, 0, 1), Pair(13, -13));
  EXPECT_EQ(result.cell(0, 1, 1), Pair(14, -14));
  EXPECT_EQ(result.file.get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
}

TEST(Version1, FillsTheImplicitFields) {
  const ReadResult result = read_text("# R 75\n1" + kTwoPortRow);
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.file.get_version(), FileVersion::V1);
  EXPECT_EQ(result.file.get_matrix_format(), MatrixFormat::Full);
  EXPECT_EQ(result.file.get_reference_impedance_per_port(), (std::vector<double>{75, 75}));
  EXPECT_EQ(result.file.get_mixed_mode_descriptors(),
            (std::vector<MixedModeDescriptor>{{MixedModeKind::SingleEnded, 1, 0},
                                              {MixedModeKind::SingleEnded, 2, 0}}));
  EXPECT_FALSE(result.file.uses_reference_impedance_per_port());
  EXPECT_FALSE(result.file.uses_mixed_mode());
}

TEST(Version1, WithoutRecordsIsValidAndHasNoPorts) {
  for (const std::string& rest : {std::string(), std::string("\n! c\n"), std::string("# x\n")}) {
    for (const Extent extent : {Extent::whole, Extent::header}) {
      const ReadResult result = read_text("# GHz\n" + rest, extent);
      EXPECT_TRUE(result.ok);
      EXPECT_TRUE(result.file.is_valid());
      EXPECT_EQ(result.file.get_number_of_ports(), 0U);
      EXPECT_EQ(result.file.get_number_of_frequencies(), 0U);
      EXPECT_EQ(result.file.get_network_params(), nullptr);
      EXPECT_TRUE(result.file.get_reference_impedance_per_port().empty());
      EXPECT_TRUE(result.file.get_mixed_mode_descriptors().empty());
      EXPECT_EQ(result.file.get_two_port_data_order(), TwoPortDataOrder::Unspecified);
    }
  }
}

TEST(Version1, HeaderOnlyCountsThePortsAndStoresNoData) {
  const ReadResult result =
      read_text("# GHz R 75\n! c\n1" + kTwoPortRow + "2" + kTwoPortRow, Extent::header);
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.file.get_number_of_ports(), 2U);
  EXPECT_EQ(result.file.get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
  EXPECT_EQ(result.file.get_number_of_frequencies(), 0U);
  EXPECT_EQ(result.file.get_network_params(), nullptr);
  EXPECT_TRUE(result.file.get_reference_impedance_per_port().empty());
  EXPECT_TRUE(result.file.get_mixed_mode_descriptors().empty());
  EXPECT_EQ(result.file.get_other_comments(), Strings{" c"});
}

TEST(Version1, HeaderOnlyLooksAtTheFirstRecordAndTheLineBehindIt) {
  const TextCase cases[] = {
      {"garbage in the third line", "#\n1 2 3\n2 2 3\nfoo\n", {}},
      {"garbage in the second line", "#\n1 2 3\nfoo\n", {"E2007 3:1 'foo'"}},
      {"values are not looked at", "# MA\n-1 -2 3\n-1 2 3\n", {}},
      {"line rules are not looked at", "#\n1\n2 3\n", {}},
      {"a keyword behind", "#\n1 2 3\n[End]\n", {}},
      {"a keyword at once", "#\n[End]\n", {"E2015 2:1 'end'"}},
      {"not square", "#\n1 1 0 1 0\n", {"E2306 2:1 '1'"}},
      {"no values", "#\n1\n", {"E2307 2:1 '1'"}},
      {"G-parameters", "# G\n1 2 3\n", {"E2026 0:0 ''"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row, Extent::header);
}

TEST(Version1, Diagnostics) {
  const TextCase cases[] = {
      {"indented records", "#\n  1 2 3\n\t2 2 3\n", {}},
      {"blank lines", "#\n\n1 2 3\n\n  \n2 2 3\n\n", {}},
      {"more than four pairs on a line", "#\n1 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0\n", {}},
      // Shapes of the first record.
      {"2 pairs", "#\n1 1 0 1 0\n", {"E2306 2:1 '1'"}},
      {"3 pairs", "#\n1 1 0 1 0 1 0\n", {"E2306 2:1 '1'"}},
      {"8 pairs over two lines", "#\n1 1 0 1 0 1 0 1 0\n1 0 1 0 1 0 1 0\n", {"E2306 2:1 '1'"}},
      {"a record that swallows an even line", "#\n1 2 3\n2 2 3 4\n", {"E2306 2:1 '1'"}},
      {"no values", "#\n7\n8 1 0\n", {"E2307 2:1 '7'"}},
      {"an even first line", "#\n1 2\n", {"E2308 2:1 '1'"}},
      {"an even first line of four", "#\n1 2 3 4\n5 6 7\n", {"E2308 2:1 '1'"}},
      // Shapes of the records behind it.
      {"1-port, two pairs", "#\n1 2 3\n2 2 3 4 5\n", {"E2308 3:1 '2'"}},
      {"1-port, no pairs", "#\n1 2 3\n2\n", {"E2308 3:1 '2'"}},
      {"1-port, a pair on the next line too", "#\n1 2 3\n2 2 3\n4 5\n", {"E2308 3:1 '2'"}},
      {"3-port, too few",
       "#\n1 1 0 1 0 1 0\n1 0 1 0 1 0\n1 0 1 0 1 0\n2 1 0 1 0 1 0\n",
       {"E2308 5:1 '2'"}},
      {"2-port, five numbers above the last frequency",
       "#\n1" + kTwoPortRow + "2 1.5 .3 120 .25\n",
       {"E2308 3:1 '2'"}},
      // G- and H-parameters have 2 ports.
      {"1-port G", "# G\n1 2 3\n", {"E2026 0:0 ''"}},
      {"3-port H", "# H\n1 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0\n", {"E2027 0:0 ''"}},
      {"2-port G", "# G\n1" + kTwoPortRow, {}},
      {"2-port H", "# H\n1" + kTwoPortRow, {}},
      {"G after the shape", "# G\n1 1 0 1 0\n", {"E2306 2:1 '1'"}},
      {"G before the frequency", "# G\n-1 2 3\n", {"E2026 0:0 ''"}},
      // Frequencies, at the record's first token.
      {"zero", "#\n0 2 3\n", {}},
      {"negative", "#\n-1 2 3\n", {"E2312 2:1 '-1'"}},
      {"negative, indented, wrapped record",
       "#\n1 1 0 1 0 1 0\n1 0 1 0 1 0\n1 0 1 0 1 0\n"
       " -2 1 0 1 0 1 0\n1 0 1 0 1 0\n1 0 1 0 1 0\n",
       {"E2312 5:2 '-2'"}},
      {"the same twice", "#\n1 2 3\n1 2 3\n", {"E2311 3:1 '1'"}},
      {"decreasing", "#\n2 2 3\n1 2 3\n", {"E2311 3:1 '1'"}},
      {"clipped", "#\n1e999 2 3\n", {"W2301 2:1 '1e999'"}},
      // Lines of small records.
      {"1-port on two lines", "#\n1\n2 3\n", {"E2304 3:1 '2'"}},
      {"1-port on two lines, indented", "#\n1\n! c\n  2 3\n", {"E2304 4:3 '2'"}},
      {"2-port on two lines", "#\n1 1 0 1 0\n7 0 1 0\n", {"E2305 3:1 '7'"}},
      {"2-port on three lines", "#\n1 1 0\n7 0 1 0\n8 0\n", {"E2305 3:1 '7'"}},
      {"2-port, frequency alone", "#\n1\n7 0 1 0 1 0 1 0\n", {"E2305 3:1 '7'"}},
      {"the second record", "#\n1 2 3\n2\n3 4\n", {"E2304 4:1 '3'"}},
      {"after the frequency's checks", "#\n-1\n2 3\n", {"E2312 2:1 '-1'"}},
      {"before the values' checks", "# MA\n1 -1 0 1 0\n7 0 1 0\n", {"E2305 3:1 '7'"}},
      // Values.
      {"MA negative", "# MA\n1 -2 3\n", {"E2313 2:3 '-2'"}},
      {"MA negative in a later pair", "# MA\n1 1 0 1 0 -1 0 1 0\n", {"E2313 2:11 '-1'"}},
      {"MA negative angle", "# MA\n1 2 -3\n", {}},
      {"DB negative", "# DB\n1 -2 3\n", {}},
      {"RI negative", "# RI\n1 -2 -3\n", {}},
      {"both numbers of a pair are converted first",
       "# MA\n1 -2 1e999\n",
       {"W2301 2:6 '1e999'", "E2313 2:3 '-2'"}},
      {"clipped values", "# RI\n1 1E999 -1E-999\n", {"W2301 2:3 '1e999'", "W2302 2:9 '-1e-999'"}},
      // What stands between or behind records.
      {"a word", "#\nfoo\n", {"E2007 2:1 'foo'"}},
      {"a word among numbers", "#\n1 x 3\n", {"E2007 2:3 'x'"}},
      {"a word behind records", "#\n1 2 3\nfoo\n", {"E2007 3:1 'foo'"}},
      {"a number with a unit", "#\n1GHz 2 3\n", {"E2007 2:1 '1ghz'"}},
      {"an invalid byte", "#\n1 2 \xA0 3\n", {"E2003 2:5 '\xA0'"}},
      {"a keyword at once", "#\n! c\n[Network Data]\n", {"E2015 3:1 'network data'"}},
      {"a keyword behind the data", "#\n1 2 3\n[End]\n", {"E2015 3:1 'end'"}},
      {"a keyword behind a bad record", "#\n-1 2 3\n[End]\n", {"E2312 2:1 '-1'"}},
      {"a keyword behind numbers", "#\n1 2 3 [End]\n", {"E2009 2:7 'end'"}},
      {"a keyword behind noise rows",
       "#\n2" + kTwoPortRow + "1 1 .5 0 .1\n[End]\n",
       {"E2015 4:1 'end'"}},
      {"a keyword that cuts a record", "#\n1 1 0 1 0\n[End]\n", {"E2306 2:1 '1'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(Version1, MessagesOfCounts) {
  struct Case {
    std::string text;
    std::string message;
  };
  const Case cases[] = {
      {"#\n1 1 0 1 0 1 0 1 0 1 0 1 0 1 0 1 0\n",
       "detected 8 number pairs of network data, but network data must fit a NxN matrix"},
      {"#\n1 2\n", "incorrect number of values for network data (found 0.5 complex pairs)"},
      {"#\n1 2 3 4\n", "incorrect number of values for network data (found 1.5 complex pairs)"},
      {"#\n1" + kTwoPortRow + "2 1.5 .3 120 .25\n",
       "incorrect number of values for network data (found 2 complex pairs but expected 4 complex "
       "pairs)"},
      {"#\n1 2 3\n2\n",
       "incorrect number of values for network data (found 0 complex pairs but expected 1 complex "
       "pair)"},
      {"#\n10 2 3\n9.5 2 3\n",
       "frequency points must be listed in increasing order, but 9.5 is not greater than 10"},
  };
  for (const Case& c : cases) {
    const ReadResult result = read_text(c.text);
    ASSERT_EQ(result.diagnostics.size(), 1U) << c.text;
    EXPECT_EQ(result.diagnostics[0].message, c.message) << c.text;
  }
}

TEST(Version1, AnErrorInTheDataKeepsNeitherPortsNorData) {
  const ReadResult result = read_text("! a\n# MHz Y RI R 75\n! b\n1 2 3\n! c\n1 2 3\n");
  EXPECT_EQ(result.brief_diagnostics(), Strings{"E2311 6:1 '1'"});
  EXPECT_EQ(result.file.get_version(), FileVersion::V1);
  EXPECT_EQ(result.file.get_matrix_format(), MatrixFormat::Full);
  EXPECT_EQ(result.file.get_parameter_type(), ParameterType::Y);
  EXPECT_EQ(result.file.get_reference_impedance(), 75.0);
  EXPECT_EQ(result.file.get_leading_comments(), Strings{" a"});
  EXPECT_EQ(result.file.get_other_comments(), (Strings{" b", " c"}));
  EXPECT_EQ(result.file.get_number_of_ports(), 0U);
  EXPECT_EQ(result.file.get_number_of_frequencies(), 0U);
  EXPECT_EQ(result.file.get_network_params(), nullptr);
  EXPECT_TRUE(result.file.get_reference_impedance_per_port().empty());
  EXPECT_TRUE(result.file.get_mixed_mode_descriptors().empty());
  EXPECT_FALSE(result.file.is_valid());
}

TEST(Version1, CommentLinesBetweenRecordsAreKept) {
  const ReadResult one_port = read_text(
      "! leading\n# GHz ! options\n! a\n\n  ! b\n1 2 3 ! behind numbers\n!c\n2 2 3\n!d\n\n!e");
  EXPECT_TRUE(one_port.ok);
  EXPECT_EQ(one_port.file.get_leading_comments(), Strings{" leading"});
  EXPECT_EQ(one_port.file.get_other_comments(), (Strings{" a", " b", "c", "d", "e"}));

  const ReadResult wrapped = read_text("#\n1 1 0 1 0 1 0\n! a\n1 0 1 0 1 0\n! b\n1 0 1 0 1 0\n");
  EXPECT_TRUE(wrapped.ok);
  EXPECT_EQ(wrapped.file.get_other_comments(), (Strings{" a", " b"}));

  // From the first noise row on they are passed over.
  const ReadResult noise =
      read_text("#\n2" + kTwoPortRow + "! a\n1 1 .5 0 .1 ! x\n! y\n2 1 .5 0 .1\n! z\n");
  EXPECT_TRUE(noise.ok);
  EXPECT_EQ(noise.file.get_other_comments(), Strings{" a"});
}

TEST(Version1, NoiseDataBeginWhereTheFrequencyDrops) {
  struct Case {
    const char* name;
    std::string text;
    std::size_t points;
    std::size_t rows;
  };
  const Case cases[] = {
      {"below", "#\n10" + kTwoPortRow + "2 1.5 .3 120 .25\n", 1, 1},
      {"equal", "#\n10" + kTwoPortRow + "10 1.5 .3 120 .25\n", 1, 1},
      {"indented", "#\n10" + kTwoPortRow + "  2 1.5 .3 120 .25\n", 1, 1},
      {"behind two records", "#\n1" + kTwoPortRow + "2" + kTwoPortRow + "2 1 .3 0 0\n3 1 .3 0 0\n",
       2, 2},
      {"rows may rise above the network data", "#\n1" + kTwoPortRow + "1 1 .3 0 0\n99 1 .3 0 0\n",
       1, 2},
      {"no line end between", "#\n10" + kTwoPortRow + "\n\n! c\n# x\n2 1.5 .3 120 .25\n", 1, 1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const ReadResult result = read_text(c.text);
    ASSERT_TRUE(result.ok);
    EXPECT_EQ(result.params().freq_points(), c.points);
    ASSERT_NE(result.noise, nullptr);
    EXPECT_EQ(result.noise->freq_points(), c.rows);
    EXPECT_EQ(result.file.get_number_of_noise_frequencies(), c.rows);
  }

  // A file without noise rows has no noise object.
  const ReadResult none = read_text("#\n10" + kTwoPortRow);
  EXPECT_TRUE(none.ok);
  EXPECT_EQ(none.noise, nullptr);
  EXPECT_EQ(none.file.get_number_of_noise_frequencies(), 0U);
}

TEST(Version1, TheSearchForNoiseDataGivesNoWarnings) {
  const ReadResult result = read_text("# RI\n1e999" + kTwoPortRow + "1e999 1 .3 0 0\n");
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.brief_diagnostics(), (Strings{"W2301 2:1 '1e999'", "W2301 3:1 '1e999'"}));
}

TEST(Version1, ATwoPortRecordOnTwoLinesIsRefusedBeforeItsNoiseDataAreRead) {
  EXPECT_EQ(read_text("#\n10 1 0 1 0\n1 0 1 0\n2 1 .3 0 -1\n").brief_diagnostics(),
            Strings{"E2305 3:1 '1'"});
}

// One 2-port record, R = 75. S21 and S12 of hybrid parameters are plain ratios.
struct AbsoluteCase {
  const char* options;
  Pair n11;
  Pair n21;
  Pair n12;
  Pair n22;
};

TEST(Version1, NormalisedValuesBecomeAbsolute) {
  // The text is the same for all. Each expected number is the one operation that the rule names,
  // on the nearest doubles, rounded once per operation.
  const std::string record = "1 1.1 2.2 3.3 4.4 5.5 6.6 7.7 8.8\n";
  const Pair t11(1.1, 2.2);
  const Pair t21(3.3, 4.4);
  const Pair t12(5.5, 6.6);
  const Pair t22(7.7, 8.8);
  const AbsoluteCase cases[] = {
      {"S RI", t11, t21, t12, t22},
      {"S MA", t11, t21, t12, t22},
      {"S DB", t11, t21, t12, t22},
      {"Z RI", {82.5, 165.0}, {247.5, 330.0}, {412.5, 495.0}, {577.5, 660.0}},
      {"Z MA", {82.5, 2.2}, {247.5, 4.4}, {412.5, 6.6}, {577.5, 8.8}},
      {"Z DB",
       {38.601225267834, 2.2},
       {40.801225267834, 4.4},
       {43.001225267834, 6.6},
       {45.201225267834005, 8.8}},
      {"Y RI",
       {0.014666666666666668, 0.029333333333333336},
       {0.044, 0.05866666666666667},
       {0.07333333333333333, 0.088},
       {0.10266666666666667, 0.11733333333333335}},
      {"Y MA",
       {0.014666666666666668, 2.2},
       {0.044, 4.4},
       {0.07333333333333333, 6.6},
       {0.10266666666666667, 8.8}},
      {"Y DB",
       {-36.401225267834, 2.2},
       {-34.201225267834005, 4.4},
       {-32.001225267834, 6.6},
       {-29.801225267834003, 8.8}},
      {"H RI", {82.5, 165.0}, t21, t12, {0.10266666666666667, 0.11733333333333335}},
      {"H MA", {82.5, 2.2}, t21, t12, {0.10266666666666667, 8.8}},
      {"H DB", {38.601225267834, 2.2}, t21, t12, {-29.801225267834003, 8.8}},
      {"G RI", {0.014666666666666668, 0.029333333333333336}, t21, t12, {577.5, 660.0}},
      {"G MA", {0.014666666666666668, 2.2}, t21, t12, {577.5, 8.8}},
      {"G DB", {-36.401225267834, 2.2}, t21, t12, {45.201225267834005, 8.8}},
  };
  for (const AbsoluteCase& c : cases) {
    SCOPED_TRACE(c.options);
    const ReadResult result = read_text(std::string("# ") + c.options + " R 75\n" + record);
    ASSERT_TRUE(result.ok);
    const auto check = [&](std::size_t row, std::size_t col, Pair expected) {
      EXPECT_TRUE(test::same_bits(result.cell(0, row, col).first, expected.first));
      EXPECT_TRUE(test::same_bits(result.cell(0, row, col).second, expected.second));
    };
    check(0, 0, c.n11);
    check(1, 0, c.n21);
    check(0, 1, c.n12);
    check(1, 1, c.n22);
  }
}

TEST(Version1, AbsoluteValuesOfOneAndThreePorts) {
  EXPECT_EQ(read_text("# Z MA R 50\n1 1.2 30\n").cell(0, 0, 0), Pair(60, 30));
  EXPECT_TRUE(test::same_bits(read_text("# Z DB R 50\n1 3 30\n").cell(0, 0, 0).first,
                              36.979400086720375));  // 3 + 20 log10(50)
  const ReadResult three = read_text(
      "# Y RI R 50\n1 50 100 50 100 50 100\n50 100 50 100 50 100\n50 100 50 100 50 150\n");
  ASSERT_TRUE(three.ok);
  EXPECT_EQ(three.cell(0, 0, 0), Pair(1, 2));
  EXPECT_EQ(three.cell(0, 1, 2), Pair(1, 2));
  EXPECT_EQ(three.cell(0, 2, 2), Pair(1, 3));
}

}  // namespace
}  // namespace touchstone2
