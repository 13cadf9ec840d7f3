// The options line "# GHz S MA R 50": its grammar, its defaults, its errors, and further options
// lines. A version 1 header read needs nothing else, so most texts here are one line.
#include <touchstone2/touchstone2.h>

#include <string>
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
using Unit = FrequencyScaleFactor;
using Type = ParameterType;
using Format = ComplexFormat;

TEST(OptionsLine, StoresTheOptionsAndFillsTheDefaults) {
  struct Case {
    std::string text;
    Unit unit;
    Type type;
    Format format;
    double ohms;
    double multiplier;
  };
  const Case cases[] = {
      {"#\n", Unit::GHz, Type::S, Format::MA, 50.0, 1e9},
      {"# \t \n", Unit::GHz, Type::S, Format::MA, 50.0, 1e9},
      {"#! comment\n", Unit::GHz, Type::S, Format::MA, 50.0, 1e9},
      {"#\r\n", Unit::GHz, Type::S, Format::MA, 50.0, 1e9},
      {"# hz s db r 75\n", Unit::Hz, Type::S, Format::DB, 75.0, 1.0},
      {"# R 75 Hz\n", Unit::Hz, Type::S, Format::MA, 75.0, 1.0},
      {"#\tRI\tR\t75.5\tkHz\tY\n", Unit::kHz, Type::Y, Format::RI, 75.5, 1e3},
      {"# MHZ Z Ma\n", Unit::MHz, Type::Z, Format::MA, 50.0, 1e6},
      {"# ghz h\n", Unit::GHz, Type::H, Format::MA, 50.0, 1e9},
      {"# GHz G dB R 1E2\n", Unit::GHz, Type::G, Format::DB, 100.0, 1e9},
      {"# GHz S MA R 50 ! comment\n", Unit::GHz, Type::S, Format::MA, 50.0, 1e9},
      {"# GHz S MA R 50! comment\n", Unit::GHz, Type::S, Format::MA, 50.0, 1e9},
      {"# R +1.5\n", Unit::GHz, Type::S, Format::MA, 1.5, 1e9},
      {"# R 1..5\n", Unit::GHz, Type::S, Format::MA, 1.0, 1e9},  // what follows "1." is ignored
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const ReadResult result = read_text(c.text, Extent::header);
    EXPECT_EQ(result.brief_diagnostics(), Strings());
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.file.get_frequency_scale_factor(), c.unit);
    EXPECT_EQ(result.file.get_parameter_type(), c.type);
    EXPECT_EQ(result.file.get_complex_format(), c.format);
    EXPECT_TRUE(test::same_bits(result.file.get_reference_impedance(), c.ohms));
    EXPECT_TRUE(test::same_bits(result.file.get_frequency_multiplier(), c.multiplier));
    EXPECT_TRUE(result.file.get_leading_comments().empty());
    EXPECT_TRUE(result.file.get_other_comments().empty());
  }
}

TEST(OptionsLine, Diagnostics) {
  const TextCase cases[] = {
      {"a number for an option", "# GHz 50\n", {"E2103 1:7 '50'"}},
      {"an unknown word", "# GHz foo\n", {"E2103 1:7 'foo'"}},
      {"a longer word", "# GHzz\n", {"E2103 1:3 'ghzz'"}},
      {"r and number in one word", "# R50\n", {"E2103 1:3 'r50'"}},
      {"a second # between options", "# GHz # S\n", {"E2103 1:7 '#'"}},
      {"glued word", "#GHz\n", {"E2006 1:2 'ghz'"}},
      {"glued number", "#50\n", {"E2006 1:2 '50'"}},
      {"glued #", "##\n", {"E2006 1:2 '#'"}},
      {"glued keyword", "#[End]\n", {"E2009 1:2 'end'"}},
      {"keyword as option", "# GHz [End]\n", {"E2009 1:7 'end'"}},
      {"two units", "# GHz MHz\n", {"E2102 1:7 'mhz'"}},
      {"the same unit twice", "# GHz S GHz\n", {"E2102 1:9 'ghz'"}},
      {"two parameters", "# S Y\n", {"E2102 1:5 'y'"}},
      {"two formats", "# MA RI\n", {"E2102 1:6 'ri'"}},
      {"two impedances", "# r 50 r 75\n", {"E2102 1:10 '75'"}},
      {"the same impedance twice", "# R 50 R 50\n", {"E2102 1:10 '50'"}},
      {"no impedance", "# GHz R\n", {"E2104 1:8 '\n'"}},
      {"no impedance, no line end", "# GHz R", {"W2005 1:8 ''", "E2104 1:8 ''"}},
      {"a comment for the impedance", "# GHz R ! 50\n", {"E2104 1:9 ' 50'"}},
      {"a word for the impedance", "# GHz R fifty\n", {"E2104 1:9 'fifty'"}},
      {"a unit at the impedance", "# R 50Ohm\n", {"E2104 1:5 '50ohm'"}},
      {"zero", "# GHz R 0\n", {"E2105 1:9 '0'"}},
      {"minus zero", "# GHz R -0.0\n", {"E2105 1:9 '-0.0'"}},
      {"a negative impedance", "# GHz R -50\n", {"E2105 1:9 '-50'"}},
      {"a literal without digits is 0", "# R +.\n", {"E2105 1:5 '+.'"}},
      {"an exponent without digits", "# R 5e\n", {"E2007 1:5 '5e'"}},
      {"a lone sign", "# -\n", {"E2007 1:3 '-'"}},
      {"an invalid byte", "# GHz\xB5\n", {"E2003 1:3 '\xB5'"}},
      {"# behind blanks", "  # GHz\n", {"W2010 1:3 '#'"}},
      {"# behind a tab", "\t#\n", {"W2010 1:2 '#'"}},
      {"# behind blanks, with an error", " # x\n", {"W2010 1:2 '#'", "E2103 1:4 'x'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row, Extent::header);
}

TEST(OptionsLine, TheValueOfASecondImpedanceIsJudgedBeforeItsRepetition) {
  const TextCase cases[] = {
      {"negative", "# R 50 R -5\n", {"E2105 1:10 '-5'"}},
      {"missing", "# R 50 R\n", {"E2104 1:9 '\n'"}},
      {"clipped", "# R 50 R 1e999\n", {"W2301 1:10 '1e999'", "E2102 1:10 '1e999'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row, Extent::header);
}

TEST(OptionsLine, AClippedImpedanceIsStored) {
  const ReadResult large = read_text("# R 1e999\n", Extent::header);
  EXPECT_TRUE(large.ok);
  EXPECT_EQ(large.brief_diagnostics(), Strings{"W2301 1:5 '1e999'"});
  EXPECT_TRUE(test::same_bits(large.file.get_reference_impedance(), 1.7976931348623157e+308));

  const ReadResult small = read_text("# R 1e-999\n", Extent::header);
  EXPECT_TRUE(small.ok);
  EXPECT_EQ(small.brief_diagnostics(), Strings{"W2302 1:5 '1e-999'"});
  EXPECT_TRUE(test::same_bits(small.file.get_reference_impedance(), 2.2250738585072014e-308));

  const ReadResult negative = read_text("# R -1e-999\n", Extent::header);
  EXPECT_EQ(negative.brief_diagnostics(), (Strings{"W2302 1:5 '-1e-999'", "E2105 1:5 '-1e-999'"}));
}

TEST(OptionsLine, AnErrorKeepsTheOptionsBeforeItAndFillsNoDefaults) {
  const ReadResult result = read_text("# GHz S R 75 foo RI\n");
  EXPECT_EQ(result.brief_diagnostics(), Strings{"E2103 1:14 'foo'"});
  EXPECT_EQ(result.file.get_version(), FileVersion::V1);
  EXPECT_EQ(result.file.get_matrix_format(), MatrixFormat::Full);
  EXPECT_EQ(result.file.get_frequency_scale_factor(), Unit::GHz);
  EXPECT_EQ(result.file.get_parameter_type(), Type::S);
  EXPECT_EQ(result.file.get_complex_format(), Format::Unspecified);
  EXPECT_EQ(result.file.get_reference_impedance(), 75.0);
  EXPECT_FALSE(result.file.is_valid());

  const ReadResult nothing = read_text("# foo\n");
  EXPECT_EQ(nothing.file.get_frequency_scale_factor(), Unit::Unspecified);
  EXPECT_EQ(nothing.file.get_parameter_type(), Type::Unspecified);
  EXPECT_EQ(nothing.file.get_reference_impedance(), 0.0);

  const ReadResult twice = read_text("# MHz kHz\n");
  EXPECT_EQ(twice.file.get_frequency_scale_factor(), Unit::MHz);

  const ReadResult bad_impedance = read_text("# R 50 R 75\n");
  EXPECT_EQ(bad_impedance.file.get_reference_impedance(), 50.0);
  EXPECT_EQ(read_text("# R -1\n").file.get_reference_impedance(), 0.0);
}

TEST(OptionsLine, OfAVersion2FileFollowsTheVersion) {
  const std::string version = "[Version] 2.0\n";
  const std::string ports = "[Number of Ports] 1\n";
  const TextCase cases[] = {
      {"on the next line", version + "# GHz\n" + ports, {}},
      {"behind comments and blank lines", version + "! c\n\n  \n ! d\n#\n" + ports, {}},
      {"behind the version's comment", "[Version] 2.0 ! c\n#\n" + ports, {}},
      {"with a comment", version + "# GHz ! c\n" + ports, {}},
      {"a number", version + "1 2\n", {"E2101 2:1 '1'"}},
      {"a word", version + "GHz\n", {"E2101 2:1 'ghz'"}},
      {"a keyword", version + ports + "#\n", {"E2101 2:1 'number of ports'"}},
      {"blanks before the #", version + "  # GHz\n", {"E2101 2:1 '  '"}},
      {"the end of the file", version, {"E2101 2:1 '\n'"}},
      {"no line end", "[Version] 2.0", {"W2005 1:14 ''", "E2101 1:14 ''"}},
      {"twice", version + "#\n# GHz\n", {"E2107 3:1 '#'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row, Extent::header);

  const ReadResult result = read_text(version + "! c\n#\n! d\n" + ports, Extent::header);
  EXPECT_TRUE(result.file.get_leading_comments().empty());
  EXPECT_TRUE(result.file.get_other_comments().empty());
}

TEST(SecondaryOptionsLine, OfAVersion1FileIsIgnoredWithAWarning) {
  const TextCase cases[] = {
      {"before the first record", "#\n# MHz\n1 2 3\n", {"W2106 2:1 '#'"}},
      {"between records", "#\n1 2 3\n# MHz S foo ? 5 R -1\n2 3 4\n", {"W2106 3:1 '#'"}},
      {"glued", "#\n1 2 3\n#MHz#\n2 3 4\n", {"W2106 3:1 '#'"}},
      {"alone", "#\n1 2 3\n#\n2 3 4\n", {"W2106 3:1 '#'"}},
      {"two of them", "#\n1 2 3\n# a\n# b\n2 3 4\n", {"W2106 3:1 '#'", "W2106 4:1 '#'"}},
      {"inside a wrapped record",
       "#\n1 1 1 1 1 1 1\n# x\n1 1 1 1 1 1\n1 1 1 1 1 1\n",
       {"W2106 3:1 '#'"}},
      {"before noise data", "#\n2 1 0 1 0 1 0 1 0\n# x\n1 1 .5 0 .1\n", {"W2106 3:1 '#'"}},
      {"between noise rows",
       "#\n2 1 0 1 0 1 0 1 0\n1 1 .5 0 .1\n# x\n2 1 .5 0 .1\n",
       {"W2106 4:1 '#'"}},
      {"not in column 1", "#\n1 2 3\n  # x\n", {"E2004 3:3 '#'"}},
      {"not in column 1, between noise rows",
       "#\n2 1 0 1 0 1 0 1 0\n1 1 .5 0 .1\n # x\n",
       {"E2004 4:2 '#'"}},
      {"behind numbers", "#\n1 2 3 # x\n", {"E2007 2:7 '#'"}},
      {"its words are still scanned", "#\n# 5e\n", {"W2106 2:1 '#'", "E2007 2:3 '5e'"}},
      {"no keyword may stand in it", "#\n# [End]\n", {"W2106 2:1 '#'", "E2009 2:3 'end'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(SecondaryOptionsLine, ChangesNothing) {
  const ReadResult result =
      read_text("# MHz S RI R 75\n1 2 3\n# GHz Z MA R 50 ! c\n! dropped\n2 3 4\n! kept\n");
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.file.get_frequency_scale_factor(), Unit::MHz);
  EXPECT_EQ(result.file.get_parameter_type(), Type::S);
  EXPECT_EQ(result.file.get_complex_format(), Format::RI);
  EXPECT_EQ(result.file.get_reference_impedance(), 75.0);
  EXPECT_EQ(result.params().freq_points(), 2U);
  // Comments between such a line and the next numbers are passed over with it.
  EXPECT_EQ(result.file.get_other_comments(), Strings{" kept"});
}

TEST(SecondaryOptionsLine, OfAVersion2FileIsAnErrorWhereverItStands) {
  const std::string header = "[Version] 2.0\n#\n[Number of Ports] 2\n";  // lines 1 to 3
  const std::string keywords = header +
                               "[Number of Frequencies] 1\n[Number of Noise Frequencies] 1\n"
                               "[Two-Port Data Order] 12_21\n";               // to line 6
  const std::string data = keywords + "[Network Data]\n1 1 0 1 0 1 0 1 0\n";  // to line 8
  const std::string noise = data + "[Noise Data]\n1 1 .5 0 .1\n";             // to line 10
  const TextCase cases[] = {
      {"after the options line", "[Version] 2.0\n#\n# x\n", {"E2107 3:1 '#'"}},
      {"after the number of ports", header + "# x\n", {"E2107 4:1 '#'"}},
      {"between keywords", keywords + "# x\n", {"E2107 7:1 '#'"}},
      {"in the reference list", header + "[Reference] 1\n# x\n", {"E2107 5:1 '#'"}},
      {"in the descriptor list", header + "[Mixed-Mode Order] S1\n# x\n", {"E2107 5:1 '#'"}},
      {"before the records", keywords + "[Network Data]\n# x\n", {"E2107 8:1 '#'"}},
      {"inside a record", keywords + "[Network Data]\n1 1 0\n# x\n", {"E2107 9:1 '#'"}},
      {"inside a record, indented", keywords + "[Network Data]\n1 1 0\n  # x\n", {"E2004 9:3 '#'"}},
      {"after the records", data + "# x\n", {"E2107 9:1 '#'"}},
      {"before the noise rows", data + "[Noise Data]\n# x\n", {"E2107 10:1 '#'"}},
      {"before the noise rows, indented", data + "[Noise Data]\n # x\n", {"E2004 10:2 '#'"}},
      {"after the noise rows", noise + "# x\n", {"E2107 11:1 '#'"}},
      {"after [End]", noise + "[End]\n# x\n", {"E2107 12:1 '#'"}},
      {"after [End], indented", noise + "[End]\n  # x\n", {"E2107 12:3 '#'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

}  // namespace
}  // namespace touchstone2
