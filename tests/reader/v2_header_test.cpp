// The keywords of a version 2 file up to "[Network Data]".
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

// Lines 1 to 3; the text under test begins on line 4.
std::string header(int ports) {
  return "[Version] 2.0\n# RI\n[Number of Ports] " + std::to_string(ports) + "\n";
}

// Completes a 1-port header to a file without a diagnostic.
const std::string kOnePortRest = "[Number of Frequencies] 1\n[Network Data]\n1 2 3\n[End]\n";

TEST(Version, Diagnostics) {
  const std::string rest = "#\n[Number of Ports] 1\n";
  const TextCase cases[] = {
      {"2.0", "[Version] 2.0\n" + rest, {}},
      {"any case", "[VERSION]\t2.0\n" + rest, {}},
      {"blanks around", "[version]   2.0  \n" + rest, {}},
      {"comment behind", "[Version] 2.0! c\n" + rest, {}},
      {"2", "[Version] 2\n", {"E2013 1:11 '2'"}},
      {"2.00", "[Version] 2.00\n", {"E2013 1:11 '2.00'"}},
      {"2.1", "[Version] 2.1\n", {"E2013 1:11 '2.1'"}},
      {"1.0", "[Version] 1.0\n", {"E2013 1:11 '1.0'"}},
      {"+2.0", "[Version] +2.0\n", {"E2013 1:11 '+2.0'"}},
      {"2.0e0", "[Version] 2.0E0\n", {"E2013 1:11 '2.0e0'"}},
      {"a word", "[Version] two\n", {"E2007 1:11 'two'"}},
      {"a number with a unit", "[Version] 2.0x\n", {"E2007 1:11 '2.0x'"}},
      {"#", "[Version] #\n", {"E2007 1:11 '#'"}},
      {"nothing", "[Version]\n", {"E2007 1:10 '\n'"}},
      {"nothing, no line end", "[Version]", {"W2005 1:10 ''", "E2007 1:10 ''"}},
      {"a comment", "[Version] ! c\n2.0\n", {"E2007 1:11 ' c'"}},
      {"glued", "[Version]2.0\n", {"E2006 1:10 '2.0'"}},
      {"glued #", "[Version]#\n", {"E2006 1:10 '#'"}},
      {"glued keyword", "[Version][End]\n", {"E2009 1:10 'end'"}},
      {"two values", "[Version] 2.0 2.0\n", {"E2004 1:14 ' '"}},
      {"another keyword", "[Number of Ports] 2\n", {"E2201 1:1 'number of ports'"}},
      {"a blank in the keyword", "[Version ] 2.0\n", {"E2201 1:1 'version '"}},
      {"a byte in the keyword", "[Ver\xB5sion] 2.0\n", {"E2003 1:5 '\xB5'"}},
      {"a tab in the keyword", "[Ver\tsion] 2.0\n", {"E2003 1:5 '\t'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row, Extent::header);
}

TEST(NumberOfPorts, Diagnostics) {
  const std::string start = "[Version] 2.0\n#\n";  // lines 1 and 2
  const TextCase cases[] = {
      {"1", start + "[Number of Ports] 1\n", {}},
      {"any case", start + "[NUMBER OF PORTS] 1\n", {}},
      {"a sign", start + "[Number of Ports] +4\n", {}},
      {"leading zeros", start + "[Number of Ports] 004\n", {}},
      {"behind comments and blank lines", start + "! c\n\n ! d\n[Number of Ports] 1 ! e\n", {}},
      {"0", start + "[Number of Ports] 0\n", {"E2016 3:19 '0'"}},
      {"negative", start + "[Number of Ports] -3\n", {"E2016 3:19 '-3'"}},
      {"4.0", start + "[Number of Ports] 4.0\n", {"E2008 3:19 '4.0'"}},
      {"4e0", start + "[Number of Ports] 4e0\n", {"E2008 3:19 '4e0'"}},
      {"12x", start + "[Number of Ports] 12x\n", {"E2008 3:19 '12x'"}},
      {"a word", start + "[Number of Ports] four\n", {"E2008 3:19 'four'"}},
      {"no digits", start + "[Number of Ports] +.\n", {"E2008 3:19 '+.'"}},
      {"nothing", start + "[Number of Ports]\n", {"E2008 3:18 '\n'"}},
      {"a comment", start + "[Number of Ports]! 4\n", {"E2008 3:18 ' 4'"}},
      {"glued", start + "[Number of Ports]4\n", {"E2006 3:18 '4'"}},
      {"two values", start + "[Number of Ports] 4 5\n", {"E2004 3:20 ' '"}},
      {"two blanks", start + "[Number  of Ports] 2\n", {"E2202 3:1 'number  of ports'"}},
      {"another keyword", start + "[Network Data]\n", {"E2202 3:1 'network data'"}},
      {"a number", start + "1 2 3\n", {"E2202 3:1 '1'"}},
      {"a word line", start + "Number of Ports 1\n", {"E2202 3:1 'number'"}},
      {"indented", start + "  [Number of Ports] 1\n", {"E2202 3:1 '  '"}},
      {"the end of the file", start, {"E2209 3:1 '\n'"}},
      {"too small for 32 bits",
       start + "[Number of Ports] -99999999999\n",
       {"W2301 3:19 '-99999999999'", "E2016 3:19 '-99999999999'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row, Extent::header);
}

TEST(NumberOfPorts, IsClippedTo32BitsWithAWarning) {
  const std::string start = "[Version] 2.0\n#\n[Number of Ports] ";
  const ReadResult limit = read_text(start + "2147483647\n", Extent::header);
  EXPECT_TRUE(limit.ok);
  EXPECT_TRUE(limit.diagnostics.empty());
  EXPECT_EQ(limit.file.get_number_of_ports(), 2147483647U);
  for (const char* const text : {"2147483648", "99999999999", "99999999999999999999999999"}) {
    const ReadResult result = read_text(start + text + "\n", Extent::header);
    EXPECT_TRUE(result.ok);
    ASSERT_EQ(result.diagnostics.size(), 1U);
    EXPECT_EQ(result.brief_diagnostics()[0], "W2301 3:19 '" + std::string(text) + "'");
    EXPECT_EQ(result.diagnostics[0].message, "clipping a very large number to 2.14748e+09");
    EXPECT_EQ(result.file.get_number_of_ports(), 2147483647U);
  }
}

TEST(TwoPortDataOrder, Diagnostics) {
  const std::string h = header(2);
  const TextCase cases[] = {
      {"a number", h + "[Two-Port Data Order] 12\n", {"E2019 4:23 '12'"}},
      {"another order", h + "[Two-Port Data Order] 12_12\n", {"E2019 4:23 '12_12'"}},
      {"a longer word", h + "[Two-Port Data Order] 12_21x\n", {"E2019 4:23 '12_21x'"}},
      {"nothing", h + "[Two-Port Data Order]\n", {"E2019 4:22 '\n'"}},
      {"#", h + "[Two-Port Data Order] #\n", {"E2019 4:23 '#'"}},
      {"glued", h + "[Two-Port Data Order]12_21\n", {"E2006 4:22 '12_21'"}},
      {"two values", h + "[Two-Port Data Order] 12_21 x\n", {"E2004 4:28 ' '"}},
      {"twice, before the argument is read",
       h + "[Two-Port Data Order] 12_21\n[Two-Port Data Order] x\n",
       {"E2208 5:1 'two-port data order'"}},
      {"4 ports", header(4) + "[Two-Port Data Order] 12_21\n", {"E2017 4:1 'two-port data order'"}},
      {"4 ports, before the argument is read",
       header(4) + "[Two-Port Data Order] x\n",
       {"E2017 4:1 'two-port data order'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(TwoPortDataOrder, IsStored) {
  EXPECT_EQ(read_text(header(2) + "[Two-Port Data Order] 12_21\n").file.get_two_port_data_order(),
            TwoPortDataOrder::Order_12_21);
  EXPECT_EQ(read_text(header(2) + "[two-port data order] 21_12\n").file.get_two_port_data_order(),
            TwoPortDataOrder::Order_21_12);
}

TEST(NumberOfFrequencies, Diagnostics) {
  const std::string h = header(1);
  const TextCase cases[] = {
      {"0", h + "[Number of Frequencies] 0\n", {"E2020 4:25 '0'"}},
      {"negative", h + "[Number of Frequencies] -1\n", {"E2020 4:25 '-1'"}},
      {"a real", h + "[Number of Frequencies] 1.0\n", {"E2008 4:25 '1.0'"}},
      {"a word", h + "[Number of Frequencies] x\n", {"E2008 4:25 'x'"}},
      {"nothing", h + "[Number of Frequencies]\n", {"E2008 4:24 '\n'"}},
      {"glued", h + "[Number of Frequencies]5\n", {"E2006 4:24 '5'"}},
      {"two values", h + "[Number of Frequencies] 5 6\n", {"E2004 4:26 ' '"}},
      {"twice, before the argument is read",
       h + "[Number of Frequencies] 5\n[Number of Frequencies] x\n",
       {"E2208 5:1 'number of frequencies'"}},
      {"clipped, and more is found",
       h + "[Number of Frequencies] 99999999999\n[Foo]\n",
       {"W2301 4:25 '99999999999'", "E2014 5:1 'foo'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
  EXPECT_EQ(read_text(h + "[Number of Frequencies] 99999999999\n").file.get_number_of_frequencies(),
            2147483647U);
}

TEST(NumberOfNoiseFrequencies, Diagnostics) {
  const std::string h = header(2);
  const TextCase cases[] = {
      {"0", h + "[Number of Noise Frequencies] 0\n", {"E2021 4:31 '0'"}},
      {"negative", h + "[Number of Noise Frequencies] -1\n", {"E2021 4:31 '-1'"}},
      {"a real", h + "[Number of Noise Frequencies] 1.0\n", {"E2008 4:31 '1.0'"}},
      {"nothing", h + "[Number of Noise Frequencies]\n", {"E2008 4:30 '\n'"}},
      {"glued", h + "[Number of Noise Frequencies]5\n", {"E2006 4:30 '5'"}},
      {"two values", h + "[Number of Noise Frequencies] 5 6\n", {"E2004 4:32 ' '"}},
      {"twice, before the argument is read",
       h + "[Number of Noise Frequencies] 5\n[Number of Noise Frequencies] x\n",
       {"E2208 5:1 'number of noise frequencies'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
  EXPECT_EQ(
      read_text(h + "[Number of Noise Frequencies] 7\n").file.get_number_of_noise_frequencies(),
      7U);
}

TEST(MatrixFormat, Diagnostics) {
  const std::string h = header(1);
  const TextCase cases[] = {
      {"another word", h + "[Matrix Format] diagonal\n", {"E2023 4:17 'diagonal'"}},
      {"a number", h + "[Matrix Format] 1\n", {"E2023 4:17 '1'"}},
      {"nothing", h + "[Matrix Format]\n", {"E2023 4:16 '\n'"}},
      {"glued", h + "[Matrix Format]Full\n", {"E2006 4:16 'full'"}},
      {"two values", h + "[Matrix Format] Full x\n", {"E2004 4:21 ' '"}},
      {"twice", h + "[Matrix Format] Full\n[Matrix Format] Full\n", {"E2208 5:1 'matrix format'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(MatrixFormat, IsStored) {
  EXPECT_EQ(read_text(header(1) + "[Matrix Format] FULL\n").file.get_matrix_format(),
            MatrixFormat::Full);
  EXPECT_EQ(read_text(header(1) + "[Matrix Format] Upper\n").file.get_matrix_format(),
            MatrixFormat::Upper);
  EXPECT_EQ(read_text(header(1) + "[Matrix Format] lower\n").file.get_matrix_format(),
            MatrixFormat::Lower);
}

TEST(Reference, Diagnostics) {
  const std::string h = header(3);
  const TextCase cases[] = {
      {"too few", h + "[Reference] 50 75\n[Network Data]\n", {"E2022 5:1 'network data'"}},
      {"too many", h + "[Reference] 1 2 3\n4\n[Foo]\n", {"E2022 6:1 'foo'"}},
      {"none", h + "[Reference]\n[Foo]\n", {"E2007 5:1 'foo'"}},
      {"none, no line end", h + "[Reference]", {"W2005 4:12 ''", "E2007 4:12 ''"}},
      {"none, the end of the file", h + "[Reference]\n", {"E2209 5:1 '\n'"}},
      {"zero", h + "[Reference] 50 0 50\n", {"E2105 4:16 '0'"}},
      {"negative", h + "[Reference] -50\n", {"E2105 4:13 '-50'"}},
      {"a word", h + "[Reference] 50 x\n", {"E2007 4:16 'x'"}},
      {"a word on the next line", h + "[Reference] 50\nx\n", {"E2007 5:1 'x'"}},
      {"#", h + "[Reference] 50 # x\n", {"E2007 4:16 '#'"}},
      {"# on an indented line", h + "[Reference] 50\n # x\n", {"E2007 5:2 '#'"}},
      {"glued", h + "[Reference]50\n", {"E2006 4:12 '50'"}},
      {"glued #", h + "[Reference]#\n", {"E2006 4:12 '#'"}},
      {"the right count, no line end", h + "[Reference] 1 2 3", {"W2005 4:18 ''", "E2209 4:18 ''"}},
      {"too few, no line end", h + "[Reference] 1 2", {"W2005 4:16 ''", "E2022 4:16 ''"}},
      {"too few, the end of the file", h + "[Reference] 1 2\n", {"E2209 5:1 '\n'"}},
      {"an indented keyword", h + "[Reference] 1 2 3\n  [Foo]\n", {"E2009 5:3 'foo'"}},
      {"twice, before the values are read",
       h + "[Reference] 1 2 3\n[Reference] x\n",
       {"E2208 5:1 'reference'"}},
      {"an invalid value is clipped first",
       h + "[Reference] -1e-999\n",
       {"W2302 4:13 '-1e-999'", "E2105 4:13 '-1e-999'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(Reference, TheCountErrorNamesBothCounts) {
  const ReadResult result = read_text(header(3) + "[Reference] 50 75\n[Network Data]\n");
  ASSERT_EQ(result.diagnostics.size(), 1U);
  EXPECT_EQ(result.diagnostics[0].message,
            "the number of reference impedances (2) must match the number of ports (3)");
  EXPECT_FALSE(result.file.uses_reference_impedance_per_port());
  EXPECT_TRUE(result.file.get_reference_impedance_per_port().empty());
}

TEST(Reference, MayRunOverAnyNumberOfLines) {
  const std::vector<double> expected = {50.0, 75.0, 100.0};
  for (const char* const list :
       {"[Reference] 50 75 100\n", "[Reference] 50\n75\n100\n", "[REFERENCE]\n50 75\n 100\n",
        "[Reference] ! c\n\n \t50 ! d\n\n! e\n  \n75\t1E2 ! f\n! g\n"}) {
    const ReadResult result = read_text(header(3) + list + "[Foo]\n");
    EXPECT_EQ(result.diagnostics.back().code, 2014) << list;
    EXPECT_EQ(result.file.get_reference_impedance_per_port(), expected) << list;
    EXPECT_TRUE(result.file.uses_reference_impedance_per_port());
    EXPECT_TRUE(result.file.get_other_comments().empty());
  }
}

TEST(Reference, ClippedValuesAreStored) {
  const ReadResult result = read_text(header(2) + "[Reference] 1E999 1e-999\n[Foo]\n");
  EXPECT_EQ(result.brief_diagnostics(),
            (Strings{"W2301 4:13 '1e999'", "W2302 4:19 '1e-999'", "E2014 5:1 'foo'"}));
  ASSERT_EQ(result.file.get_reference_impedance_per_port().size(), 2U);
  EXPECT_TRUE(
      test::same_bits(result.file.get_reference_impedance_per_port()[0], 1.7976931348623157e+308));
  EXPECT_TRUE(
      test::same_bits(result.file.get_reference_impedance_per_port()[1], 2.2250738585072014e-308));
}

TEST(InformationSection, Diagnostics) {
  const std::string h = header(1);
  const std::string begin = h + "[Begin Information]\n";
  const TextCase cases[] = {
      {"empty", begin + "[End Information]\n" + kOnePortRest, {}},
      {"an open bracket", begin + "text [\n", {"E2012 5:6 ''"}},
      {"words, keywords, comments and numbers inside",
       begin +
           "text # 5 x\n! c\n\n 1 2 x\n[Version] 2.0\n[Network Data]\n[Begin Information]\n"
           "# GHz\n[END INFORMATION] ! c\n" +
           kOnePortRest,
       {}},
      {"comment behind the keyword",
       h + "[Begin Information] ! c\n[End Information]\n" + kOnePortRest,
       {}},
      {"no end", begin + "x\n[End]\n", {"E2204 4:1 'begin information'"}},
      {"words behind the keyword", h + "[Begin Information] x\n", {"E2004 4:20 ' '"}},
      {"words behind the end", begin + "[End Information] x\n", {"E2004 5:18 ' '"}},
      {"twice",
       begin + "[End Information]\n[Begin Information]\n",
       {"E2208 6:1 'begin information'"}},
      {"its words are still scanned", begin + "a - b\n", {"E2007 5:3 '-'"}},
      {"a keyword that is not in column 1", begin + " [x]\n", {"E2009 5:2 'x'"}},
      {"bytes outside ASCII", begin + "\xC3\xBC\n", {"E2003 5:1 '\xC3'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(InformationSection, SetsItsFlagAndStoresNothing) {
  const ReadResult result = read_text(header(1) +
                                      "[Begin Information]\n! c\n[Reference] 10\n"
                                      "[End Information]\n" +
                                      kOnePortRest);
  EXPECT_TRUE(result.ok);
  EXPECT_TRUE(result.file.has_information_section());
  EXPECT_FALSE(result.file.uses_reference_impedance_per_port());
  EXPECT_TRUE(result.file.get_leading_comments().empty());
  EXPECT_TRUE(result.file.get_other_comments().empty());

  EXPECT_FALSE(read_text(header(1) + "[Begin Information]\n").file.has_information_section());
  EXPECT_TRUE(read_text(header(1) + "[Begin Information]\n[End Information] x\n")
                  .file.has_information_section());
}

TEST(MiddleKeywords, Diagnostics) {
  const std::string h = header(1);
  const TextCase cases[] = {
      {"unknown", h + "[Foo]\n", {"E2014 4:1 'foo'"}},
      {"empty", h + "[]\n", {"E2014 4:1 ''"}},
      {"a blank too many", h + "[Matrix  Format] Full\n", {"E2014 4:1 'matrix  format'"}},
      {"[Noise Data]", h + "[Noise Data]\n", {"E2205 4:1 'noise data'"}},
      {"[End]", h + "[End]\n", {"E2205 4:1 'end'"}},
      {"[End Information]", h + "[End Information]\n", {"E2203 4:1 'end information'"}},
      {"[Number of Ports]", h + "[Number of Ports] 1\n", {"E2208 4:1 'number of ports'"}},
      {"[Version]", h + "[Version] 2.0\n", {"E2208 4:1 'version'"}},
      {"a number", h + "1 2 3\n", {"E2205 4:1 '1'"}},
      {"a word", h + "Reference 50\n", {"E2205 4:1 'reference'"}},
      {"an indented keyword", h + "  [Reference] 50\n", {"E2205 4:1 '  '"}},
      {"a number behind a keyword", h + "[Matrix Format] Full\n! c\n\n5\n", {"E2205 7:1 '5'"}},
      {"the end of the file", h + "! c\n\n", {"E2209 6:1 '\n'"}},
      {"the end of the file, no line end", h + "! c", {"W2005 4:4 ''", "E2209 4:4 ''"}},
      {"an unclosed keyword", h + "[Matrix Format\n", {"E2012 4:1 'matrix format'"}},
      {"a keyword cut by a comment", h + "[Matrix ! x]\n", {"E2012 4:1 'matrix '"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(MiddleKeywords, MayComeInAnyOrder) {
  const Strings keywords = {
      "[Two-Port Data Order] 21_12\n",
      "[Number of Frequencies] 1\n",
      "[Number of Noise Frequencies] 1\n",
      "[Reference] 50 75\n",
      "[Matrix Format] Full\n",
      "[Mixed-Mode Order] S1 S2\n",
      "[Begin Information]\n[End Information]\n",
  };
  for (std::size_t first = 0; first < keywords.size(); ++first) {
    std::string forward = header(2);
    std::string backward = header(2);
    for (std::size_t i = 0; i < keywords.size(); ++i) {
      forward += keywords[(first + i) % keywords.size()] + "! c\n\n";
      backward += keywords[(first + keywords.size() - i) % keywords.size()];
    }
    for (const std::string& text : {forward, backward}) {
      const ReadResult result =
          read_text(text + "[Network Data]\n2 1 0 1 0 1 0 1 0\n[Noise Data]\n1 1 .5 0 .1\n[End]\n");
      EXPECT_EQ(result.brief_diagnostics(), Strings()) << text;
      EXPECT_EQ(result.file.get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
      EXPECT_EQ(result.file.get_number_of_frequencies(), 1U);
      EXPECT_EQ(result.file.get_number_of_noise_frequencies(), 1U);
      EXPECT_EQ(result.file.get_reference_impedance_per_port(), (std::vector<double>{50, 75}));
      EXPECT_TRUE(result.file.uses_mixed_mode());
      EXPECT_TRUE(result.file.has_information_section());
      EXPECT_TRUE(result.file.get_other_comments().empty());
    }
  }
}

}  // namespace
}  // namespace touchstone2
