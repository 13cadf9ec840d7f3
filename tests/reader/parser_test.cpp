// The driver of a read: what the first significant token decides, what stays in a File after an
// error, reading more than once, and handlers that throw.
#include <touchstone2/touchstone2.h>

#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"
#include "support/same_bits.h"
#include "support/temp_file.h"

namespace touchstone2 {
namespace {

using test::Extent;
using test::read_text;
using test::ReadResult;
using test::TextCase;
using Strings = std::vector<std::string>;

const std::string kVersion2Header =
    "[Version] 2.0\n# GHz S RI R 75\n[Number of Ports] 1\n[Number of Frequencies] 1\n";
const std::string kVersion2 = kVersion2Header + "[Network Data]\n1 2 3\n[End]\n";

TEST(Parser, TheFirstSignificantTokenDecides) {
  const TextCase cases[] = {
      {"only comments and blank lines", "! a\n\n!b\n", {"E2001 4:1 '\n'"}},
      {"only a comment without a line end", "! a", {"W2005 1:4 ''", "E2001 1:4 ''"}},
      {"only blanks", " \t", {"W2005 1:3 ''", "E2001 1:3 ''"}},
      {"all three line ends", "\n\r\n\r", {"E2001 4:1 '\n'"}},
      {"a number", "1.0 2.0\n", {"E2002 1:1 '1.0'"}},
      {"a word", "\n! c\nHello World\n", {"E2002 3:1 'hello'"}},
      {"blanks and a number", "  1.0\n", {"E2002 1:3 '1.0'"}},
      {"blanks and a word", "\tx\n", {"E2002 1:2 'x'"}},
      {"blanks and a keyword", "  [Version] 2.0\n", {"E2009 1:3 'version'"}},
      {"a keyword without its bracket", "[Version 2.0\n", {"E2012 1:1 'version 2.0'"}},
      {"a byte order mark", "\xEF\xBB\xBF# GHz\n", {"E2003 1:1 '\xEF'"}},
      {"a lone sign", "- 1\n", {"E2007 1:1 '-'"}},
      {"#", "# GHz\n1 2 3\n", {}},
      {"blanks and #", "  # GHz\n1 2 3\n", {"W2010 1:3 '#'"}},
      {"blank lines, comments, blanks and #", "\n ! c\n \t\n\t#\n", {"W2010 4:2 '#'"}},
      {"a keyword", kVersion2, {}},
      {"comments and a keyword", "! c\n\n" + kVersion2, {}},
      {"another keyword", "[End]\n", {"E2201 1:1 'end'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(Parser, CommentsBeforeTheFirstTokenAreLeadingOnes) {
  const Strings expected = {" One", "", "  Two\t", "!x # [y]"};
  for (const std::string& rest :
       {std::string("# GHz\n"), kVersion2, std::string("oops\n"), std::string()}) {
    const ReadResult result = read_text("! One\n!\n\n  !  Two\t\n!!x # [y]\n" + rest);
    EXPECT_EQ(result.file.get_leading_comments(), expected) << rest;
    EXPECT_TRUE(result.file.get_other_comments().empty()) << rest;
  }
}

TEST(Parser, BytesOutsideAsciiStayInACommentWithOneWarningEach) {
  const ReadResult result = read_text("! \xC2\xB5\t\x01\n#\n");
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.brief_diagnostics(),
            (Strings{"W2003 1:3 '\xC2'", "W2003 1:4 '\xB5'", "W2003 1:6 '\x01'"}));
  EXPECT_EQ(result.file.get_leading_comments(), Strings{" \xC2\xB5\t\x01"});
}

TEST(Parser, AMissingLastLineEndIsWarnedOfOnce) {
  const std::string v1 = "# GHz\n";
  const std::string amplifier = v1 + "2 1 0 1 0 1 0 1 0\n";
  const TextCase cases[] = {
      {"#", "#", {"W2005 1:2 ''"}},
      {"options line", "# GHz", {"W2005 1:6 ''"}},
      {"options line and blanks", "# GHz  ", {"W2005 1:8 ''"}},
      {"options line and comment", "# GHz ! c", {"W2005 1:10 ''"}},
      {"version 1 record", v1 + "1 2 3", {"W2005 2:6 ''"}},
      {"version 1 record and blanks", v1 + "1 2 3\n  ", {"W2005 3:3 ''"}},
      {"version 1 record and comment", v1 + "1 2 3 ! c", {"W2005 2:10 ''"}},
      {"comment line", v1 + "1 2 3\n! end", {"W2005 3:6 ''"}},
      {"2-port record", v1 + "2 1 0 1 0 1 0 1 0", {"W2005 2:18 ''"}},
      {"noise row", amplifier + "1 1 .5 0 .1", {"W2005 3:12 ''"}},
      {"noise row and comment line", amplifier + "1 1 .5 0 .1\n!", {"W2005 4:2 ''"}},
      {"[End]", kVersion2Header + "[Network Data]\n1 2 3\n[End]", {"W2005 7:6 ''"}},
      {"comment after [End]", kVersion2 + "! c", {"W2005 8:4 ''"}},
      {"blanks after [End]", kVersion2 + " ", {"W2005 8:2 ''"}},
      {"before an error", "# GHz R", {"W2005 1:8 ''", "E2104 1:8 ''"}},
      {"version 2, no data",
       kVersion2Header + "[Network Data]",
       {"W2005 5:15 ''", "E2209 5:15 ''"}},
      {"information section",
       kVersion2Header + "[Begin Information]\nx",
       {"W2005 6:2 ''", "E2204 5:1 'begin information'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(Parser, ASecondaryOptionsLineThatEndsTheFileDoublesTheWarning) {
  const TextCase cases[] = {
      {"between records of 1 port",
       "#\n1 2 3\n# x",
       {"W2106 3:1 '#'", "W2005 3:4 ''", "W2005 3:4 ''"}},
      {"without a word", "#\n1 2 3\n#", {"W2106 3:1 '#'", "W2005 3:2 ''", "W2005 3:2 ''"}},
      {"behind noise rows",
       "#\n2 1 0 1 0 1 0 1 0\n1 1 .5 0 .1\n#",
       {"W2106 4:1 '#'", "W2005 4:2 ''", "W2005 4:2 ''"}},
      {"with its line end", "#\n1 2 3\n# x\n", {"W2106 3:1 '#'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(Parser, Version2WithoutMatrixFormatIsReadAsFull) {
  const ReadResult result = read_text(kVersion2);
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.file.get_version(), FileVersion::V2);
  EXPECT_EQ(result.file.get_matrix_format(), MatrixFormat::Full);
  EXPECT_FALSE(result.params().isSymmetric());
}

TEST(Parser, HeaderOnlyStopsBeforeTheData) {
  const ReadResult v2 = read_text(kVersion2Header + "[Foo]\ngarbage", Extent::header);
  EXPECT_TRUE(v2.ok);
  EXPECT_TRUE(v2.file.is_valid());
  EXPECT_TRUE(v2.diagnostics.empty());
  EXPECT_EQ(v2.file.get_number_of_ports(), 1U);
  EXPECT_EQ(v2.file.get_reference_impedance(), 75.0);
  EXPECT_EQ(v2.file.get_number_of_frequencies(), 0U);  // the keyword comes later
  EXPECT_EQ(v2.file.get_matrix_format(), MatrixFormat::Unspecified);
  EXPECT_TRUE(v2.file.get_reference_impedance_per_port().empty());
  EXPECT_TRUE(v2.file.get_mixed_mode_descriptors().empty());
  EXPECT_EQ(v2.file.get_network_params(), nullptr);
}

TEST(Parser, ABrokenFileMayHaveAGoodHeader) {
  const std::string text = kVersion2Header + "[Network Data]\n1 x 3\n[End]\n";
  EXPECT_TRUE(read_text(text, Extent::header).ok);
  EXPECT_FALSE(read_text(text, Extent::whole).ok);
}

TEST(Parser, HeaderAndWholeReadAgreeOnWhatBothStore) {
  for (const std::string& text : {"! c\n" + kVersion2, std::string("! c\n# MHz Z DB R 75\n1 2 3\n"),
                                  std::string("# Hz\n2 1 0 1 0 1 0 1 0\n1 1 .5 0 .1\n")}) {
    const ReadResult header = read_text(text, Extent::header);
    const ReadResult whole = read_text(text, Extent::whole);
    EXPECT_TRUE(header.ok && whole.ok) << text;
    EXPECT_EQ(header.file.get_version(), whole.file.get_version());
    EXPECT_EQ(header.file.get_frequency_scale_factor(), whole.file.get_frequency_scale_factor());
    EXPECT_EQ(header.file.get_parameter_type(), whole.file.get_parameter_type());
    EXPECT_EQ(header.file.get_complex_format(), whole.file.get_complex_format());
    EXPECT_EQ(header.file.get_reference_impedance(), whole.file.get_reference_impedance());
    EXPECT_EQ(header.file.get_number_of_ports(), whole.file.get_number_of_ports());
    EXPECT_EQ(header.file.get_two_port_data_order(), whole.file.get_two_port_data_order());
    EXPECT_EQ(header.file.get_leading_comments(), whole.file.get_leading_comments());
  }
}

// A File and a parser over bytes, to be read more than once.
struct Session {
  explicit Session(std::string bytes)
      : text(std::move(bytes)), file("t"), parser(file, handler, text) {}
  Strings briefs() const {
    Strings lines;
    for (const test::Diagnostic& diagnostic : handler.diagnostics) {
      lines.push_back(test::brief(diagnostic));
    }
    return lines;
  }
  std::string text;
  File file;
  test::RecordingHandler handler;
  Parser parser;
};

TEST(Parser, ReadsTwiceIntoOneFile) {
  Session session("! c\n# RI\n1 2 3\n");
  EXPECT_TRUE(session.parser.read_file());
  // What the first read has stored counts as given; the valid flag stays all the same.
  EXPECT_TRUE(session.parser.read_file());
  EXPECT_EQ(session.briefs(), Strings{"E2102 2:3 'ri'"});
  EXPECT_EQ(session.file.get_leading_comments(), (Strings{" c", " c"}));

  Session bare("#\n1 2 3\n");
  EXPECT_TRUE(bare.parser.read_file());
  EXPECT_TRUE(bare.parser.read_file());
  EXPECT_TRUE(bare.handler.diagnostics.empty());
  EXPECT_EQ(bare.file.get_network_params()->freq_points(), 1U);
  EXPECT_EQ(bare.file.get_reference_impedance_per_port(), std::vector<double>{50.0});
  // The implicit descriptors are appended to what is there.
  EXPECT_EQ(bare.file.get_mixed_mode_descriptors().size(), 2U);
}

// Up to this count the implicit values are there even if the data turn out not to be.
TEST(Parser, ImplicitValuesOfManyPorts) {
  for (const std::size_t ports : {std::size_t{65'536}, std::size_t{65'537}}) {
    Session session("[Version] 2.0\n#\n[Number of Ports] " + std::to_string(ports) +
                    "\n[Number of Frequencies] 1\n[Network Data]\n1 2 3\n[End]\n");
    EXPECT_FALSE(session.parser.read_file());
    EXPECT_EQ(session.briefs(), Strings{"E2308 6:1 '1'"});
    const std::size_t filled = ports == 65'536 ? ports : 0;
    EXPECT_EQ(session.file.get_reference_impedance_per_port().size(), filled);
    EXPECT_EQ(session.file.get_mixed_mode_descriptors().size(), filled);
  }
}

TEST(Parser, AKeywordOfAnEarlierReadCountsAsGiven) {
  Session session(
      "[Version] 2.0\n#\n[Number of Ports] 1\n[Number of Frequencies] 1\n"
      "[Network Data]\n1 2 3\n[End]\n");
  EXPECT_TRUE(session.parser.read_file());
  EXPECT_TRUE(session.parser.read_file());
  EXPECT_EQ(session.briefs(), Strings{"E2208 4:1 'number of frequencies'"});
}

TEST(Parser, ReadsTheHeaderAndThenTheWhole) {
  Session session(
      "[Version] 2.0\n#\n[Number of Ports] 1\n[Number of Frequencies] 1\n"
      "[Network Data]\n1 2 3\n[End]\n");
  EXPECT_TRUE(session.parser.read_file_header());
  EXPECT_EQ(session.file.get_network_params(), nullptr);
  EXPECT_TRUE(session.parser.read_file());
  EXPECT_TRUE(session.handler.diagnostics.empty());
  ASSERT_NE(session.file.get_network_params(), nullptr);
  EXPECT_EQ(session.file.get_mixed_mode_descriptors().size(), 1U);
}

TEST(Parser, AFailingReadAfterAGoodHeaderReturnsTrue) {
  Session session("[Version] 2.0\n#\n[Number of Ports] 1\n[Foo]\n");
  EXPECT_TRUE(session.parser.read_file_header());
  EXPECT_TRUE(session.parser.read_file());
  EXPECT_EQ(session.briefs(), Strings{"E2014 4:1 'foo'"});
  EXPECT_TRUE(session.file.is_valid());
}

TEST(Parser, AFailedReadLeavesTheParserUsable) {
  Session session("[Foo]\n");
  EXPECT_FALSE(session.parser.read_file());
  EXPECT_FALSE(session.parser.read_file_header());
  EXPECT_FALSE(session.parser.read_file());
  EXPECT_EQ(session.briefs(), Strings(3, "E2201 1:1 'foo'"));
}

TEST(Parser, TwoParsersMayReadIntoOneFileByTurns) {
  test::RecordingHandler handler;
  File file("t");
  EXPECT_FALSE(Parser(file, handler, "oops").read_file());
  EXPECT_TRUE(Parser(file, handler, "# RI\n1 2 3\n").read_file());
  EXPECT_TRUE(file.is_valid());
}

TEST(Parser, AFileKeepsWhatCameBeforeTheError) {
  const std::string header =
      "! c\n[Version] 2.0\n# MHz Y RI R 75\n[Number of Ports] 2\n"
      "[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n[Number of Noise Frequencies] 1\n"
      "[Matrix Format] Full\n";
  const std::string data = "[Network Data]\n1 1 0 1 0 1 0 1 0\n";

  struct Stage {
    const char* name;
    std::string text;
    std::string error;
    std::size_t ports;
    std::size_t frequencies;
    std::vector<double> references;
    std::size_t descriptors;
    bool network;
    bool noise;
  };
  const Stage stages[] = {
      {"version", "! c\n[Version] 1.0\n", "E2013 2:11 '1.0'", 0, 0, {}, 0, false, false},
      {"ports",
       "! c\n[Version] 2.0\n#\n[Number of Ports] 0\n",
       "E2016 4:19 '0'",
       0,
       0,
       {},
       0,
       false,
       false},
      {"keywords", header + "[Foo]\n", "E2014 9:1 'foo'", 2, 1, {}, 0, false, false},
      {"references",
       header + "[Reference] 10 20\n[Foo]\n",
       "E2014 10:1 'foo'",
       2,
       1,
       {10, 20},
       0,
       false,
       false},
      {"references of a wrong count",
       header + "[Reference] 10\n[Foo]\n",
       "E2022 10:1 'foo'",
       2,
       1,
       {},
       0,
       false,
       false},
      {"descriptors",
       header + "[Mixed-Mode Order] S2 S1\n[Foo]\n",
       "E2014 10:1 'foo'",
       2,
       1,
       {},
       2,
       false,
       false},
      {"descriptors of a wrong count",
       header + "[Mixed-Mode Order] S2\n[Foo]\n",
       "E2315 9:20 's2'",
       2,
       1,
       {},
       0,
       false,
       false},
      {"implicit values",
       header + "[Network Data] x\n",
       "E2004 9:15 ' '",
       2,
       1,
       {75, 75},
       2,
       false,
       false},
      {"implicit values, references given",
       header + "[Reference] 10 20\n[Network Data] x\n",
       "E2004 10:15 ' '",
       2,
       1,
       {10, 20},
       2,
       false,
       false},
      {"a record",
       header + "[Network Data]\n1 1 x\n",
       "E2007 10:5 'x'",
       2,
       1,
       {75, 75},
       2,
       false,
       false},
      {"number of points",
       header + data + "2 1 0 1 0 1 0 1 0\n[End]\n",
       "E2310 12:1 'end'",
       2,
       1,
       {75, 75},
       2,
       false,
       false},
      {"after the network data",
       header + data + "[Foo]\n",
       "E2210 11:1 'foo'",
       2,
       1,
       {75, 75},
       2,
       true,
       false},
      {"a noise row",
       header + data + "[Noise Data]\n1 2 3\n[End]\n",
       "E2309 13:1 'end'",
       2,
       1,
       {75, 75},
       2,
       true,
       false},
      {"number of noise rows",
       header + data + "[Noise Data]\n[End]\n",
       "E2310 12:1 'end'",
       2,
       1,
       {75, 75},
       2,
       true,
       false},
      {"after the noise data",
       header + data + "[Noise Data]\n1 1 .5 0 .1\n",
       "E2209 13:1 '\n'",
       2,
       1,
       {75, 75},
       2,
       true,
       true},
      {"after [End]",
       header + data + "[Noise Data]\n1 1 .5 0 .1\n[End]\nx\n",
       "E2030 14:1 'x'",
       2,
       1,
       {75, 75},
       2,
       true,
       true},
      {"validation",
       header + data + "[Noise Data]\n2 1 .5 0 .1\n[End]\n",
       "E2029 0:0 ''",
       2,
       1,
       {75, 75},
       2,
       true,
       true},
  };
  for (const Stage& stage : stages) {
    SCOPED_TRACE(stage.name);
    const ReadResult result = read_text(stage.text);
    EXPECT_EQ(result.brief_diagnostics(), Strings{stage.error});
    EXPECT_FALSE(result.ok);
    EXPECT_FALSE(result.file.is_valid());
    EXPECT_EQ(result.file.get_leading_comments(), Strings{" c"});
    EXPECT_EQ(result.file.get_number_of_ports(), stage.ports);
    EXPECT_EQ(result.file.get_number_of_frequencies(), stage.frequencies);
    EXPECT_EQ(result.file.get_reference_impedance_per_port(), stage.references);
    EXPECT_EQ(result.file.get_mixed_mode_descriptors().size(), stage.descriptors);
    EXPECT_EQ(result.file.get_network_params() != nullptr, stage.network);
    EXPECT_EQ(result.file.get_noise_params() != nullptr, stage.noise);
    if (stage.ports == 2) {
      EXPECT_EQ(result.file.get_version(), FileVersion::V2);
      EXPECT_EQ(result.file.get_frequency_scale_factor(), FrequencyScaleFactor::MHz);
      EXPECT_EQ(result.file.get_parameter_type(), ParameterType::Y);
      EXPECT_EQ(result.file.get_complex_format(), ComplexFormat::RI);
      EXPECT_EQ(result.file.get_reference_impedance(), 75.0);
      EXPECT_EQ(result.file.get_two_port_data_order(), TwoPortDataOrder::Order_12_21);
      EXPECT_EQ(result.file.get_number_of_noise_frequencies(), 1U);
      EXPECT_EQ(result.file.get_matrix_format(), MatrixFormat::Full);
    }
  }
}

TEST(Parser, TheVersionIsStoredBeforeTheRestOfItsLineIsLookedAt) {
  const ReadResult result = read_text("[Version] 2.0 x\n");
  EXPECT_EQ(result.brief_diagnostics(), Strings{"E2004 1:14 ' '"});
  EXPECT_EQ(result.file.get_version(), FileVersion::V2);
}

// Throws what it is told to at the first warning or error, and records otherwise.
template <typename Thrown>
struct ThrowingHandler : test::RecordingHandler {
  explicit ThrowingHandler(Thrown what) : thrown(what) {}
  void report_error(const File& file, const ParserError& error) override {
    if (throw_at_error) throw thrown;
    test::RecordingHandler::report_error(file, error);
  }
  void report_warning(const File& file, const ParserWarning& warning) override {
    if (throw_at_warning) throw thrown;
    test::RecordingHandler::report_warning(file, warning);
  }
  Thrown thrown;
  bool throw_at_error = false;
  bool throw_at_warning = false;
};

TEST(Parser, AnExceptionOfTheHandlerLeavesTheReadAndTheParserCanBeUsedAgain) {
  const test::TempFile temp("  #\n1 2 3\n2 x\n");
  ThrowingHandler handler{std::logic_error("stop")};
  File file(temp.name());
  Parser parser(file, handler);

  handler.throw_at_warning = true;
  EXPECT_THROW(parser.read_file(), std::logic_error);
  EXPECT_TRUE(handler.diagnostics.empty());
  EXPECT_FALSE(file.is_valid());

  handler.throw_at_warning = false;
  handler.throw_at_error = true;
  EXPECT_THROW(parser.read_file(), std::logic_error);
  EXPECT_FALSE(file.is_valid());

  handler.throw_at_error = false;
  EXPECT_FALSE(parser.read_file());
  EXPECT_EQ(handler.diagnostics.back().code, 2007);
}

TEST(Parser, AParserErrorThrownFromAWarningIsReportedLikeTheReadersOwn) {
  ThrowingHandler handler{ParserError(ErrorType::InvalidOption)};
  handler.throw_at_warning = true;
  File file("t");
  EXPECT_FALSE(Parser(file, handler, "  #\n1 2 3\n").read_file());
  ASSERT_EQ(handler.diagnostics.size(), 1U);
  EXPECT_EQ(test::brief(handler.diagnostics[0]), "E2103 0:0 ''");
}

TEST(Parser, AParserErrorThrownFromTheReportOfAnErrorLeavesTheRead) {
  ThrowingHandler handler{ParserError(ErrorType::InvalidOption)};
  handler.throw_at_error = true;
  File file("t");
  Parser parser(file, handler, "oops\n");
  EXPECT_THROW(parser.read_file(), ParserError);
  EXPECT_THROW(parser.read_file(), ParserError);
}

#ifdef __linux__
bool is_mapped(const std::string& name) {
  std::ifstream maps("/proc/self/maps");
  const std::string text{std::istreambuf_iterator<char>(maps), {}};
  return text.find(name) != std::string::npos;
}

TEST(Parser, TheFileIsReleasedBeforeItsErrorIsReportedAndWhenAnExceptionLeaves) {
  struct Handler : MessageHandler {
    void report_error(const File& file, const ParserError&) override {
      mapped_at_error = is_mapped(file.get_filename());
    }
    void report_warning(const File& file, const ParserWarning&) override {
      mapped_at_warning = is_mapped(file.get_filename());
      if (throwing) throw std::logic_error("stop");
    }
    bool throwing = false;
    bool mapped_at_warning = false;
    bool mapped_at_error = true;
  };
  const test::TempFile temp("  #\n1 x\n");
  Handler handler;
  File file(temp.name());
  Parser parser(file, handler);
  EXPECT_FALSE(parser.read_file());
  EXPECT_TRUE(handler.mapped_at_warning);
  EXPECT_FALSE(handler.mapped_at_error);

  handler.throwing = true;
  EXPECT_THROW(parser.read_file(), std::logic_error);
  EXPECT_FALSE(is_mapped(temp.name()));
}
#endif

}  // namespace
}  // namespace touchstone2
