// One table with the smallest text that raises each code, and everything a caller can see of the
// diagnostic: its class, its token text, its message and the standard handler's whole line.
#include <touchstone2/touchstone2.h>

#include <cctype>
#include <iostream>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <typeinfo>
#include <vector>

#include <gtest/gtest.h>

#include "support/recording_handler.h"

namespace touchstone2 {
namespace {

// Version 2 headers of 1 and 2 ports: lines 1 to 3.
const std::string kOnePort = "[Version] 2.0\n#\n[Number of Ports] 1\n";
const std::string kTwoPorts = "[Version] 2.0\n#\n[Number of Ports] 2\n";

// Lines 4 to 5 and 4 to 6.
const std::string kOnePortData = kOnePort + "[Number of Frequencies] 1\n[Network Data]\n";
const std::string kTwoPortData =
    kTwoPorts + "[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n[Network Data]\n";

// A version 1 file of 2 ports: lines 1 and 2; a noise row may follow.
const std::string kAmplifier = "#\n2 1 0 1 0 1 0 1 0\n";

struct CodeCase {
  const std::type_info& type;
  std::string line;   // as the standard handler prints it for a file named "t"
  std::string token;  // token_text()
  std::string text;   // not looked at when the line begins with another name: that file is read
};

// Every row gives one diagnostic and no other.
const std::vector<CodeCase>& code_cases() {
  static const std::vector<CodeCase> cases = {
      // Access to the file.
      {typeid(ParserError), "/no/such/folder/t.s2p: error E1001: file not found", "", ""},
#ifndef _WIN32
      {typeid(ParserError), "/dev/null: error E1002: file is unreadable", "", ""},
#endif
      {typeid(ParserError), "t: error E1003: file appears to be empty", "", ""},

      // General format.
      {typeid(ParserError), "t:2:1: error E2001: file contains only comments or blank lines", "\n",
       "\n"},
      {typeid(ParserError), "t:1:1: error E2002: file does not appear to be a Touchstone file", "x",
       "x\n"},
      {typeid(InvalidCharacterError), "t:1:1: error E2003: invalid character '\x80'", "\x80",
       "\x80\n"},
      {typeid(InvalidCharacterWarning),
       "t:1:2: warning W2003: invalid character '\x80' in a comment line.\n"
       "    Non-US-ASCII characters violate the Touchstone Specification\n"
       "    and may result in file reading failure.",
       "\x80", "!\x80\n#\n"},
      {typeid(ParserError), "t:1:14: error E2004: expected end-of-line termination", " ",
       "[Version] 2.0 x\n"},
      {typeid(ParserWarning),
       "t:1:2: warning W2005: expected end-of-line termination before end-of-file", "", "#"},
      {typeid(ParserError), "t:1:2: error E2006: expected whitespace", "x", "#x\n"},
      {typeid(ParserError), "t:1:11: error E2007: expected to find numeric data", "x",
       "[Version] x\n"},
      {typeid(ParserError), "t:3:19: error E2008: expected an integer", "x",
       "[Version] 2.0\n#\n[Number of Ports] x\n"},
      {typeid(ParserError), "t:1:2: error E2009: keyword is not at the start of the line",
       "version", " [Version] 2.0\n"},
      {typeid(ParserWarning), "t:1:2: warning W2010: # is not at the start of the line", "#",
       " #\n"},
      {typeid(ParserError),
       "t:6:1: error E2011: frequency value not found at the start of the line", " ",
       kOnePortData + " 1 2 3\n"},
      {typeid(ParserError), "t:1:1: error E2012: keyword is missing the closing bracket", "version",
       "[Version\n"},
      {typeid(ParserError), "t:1:11: error E2013: unsupported argument for the [Version] keyword",
       "1.0", "[Version] 1.0\n"},
      {typeid(ParserError), "t:4:1: error E2014: unrecognized keyword", "foo",
       kOnePort + "[Foo]\n"},
      {typeid(ParserError), "t:2:1: error E2015: keywords are not supported in Touchstone v1 files",
       "foo", "#\n[Foo]\n"},
      {typeid(ParserError),
       "t:3:19: error E2016: the [Number of Ports] argument must be a positive integer", "0",
       "[Version] 2.0\n#\n[Number of Ports] 0\n"},
      {typeid(ParserError),
       "t:4:1: error E2017: the [Two-Port Data Order] keyword is only valid for a file with "
       "2-port data",
       "two-port data order", kOnePort + "[Two-Port Data Order] 12_21\n"},
      {typeid(ParserError),
       "t: error E2018: the [Two-Port Data Order] keyword is required to appear prior to 2-port "
       "network data",
       "", kTwoPorts + "[Number of Frequencies] 1\n[Network Data]\n"},
      {typeid(ParserError),
       "t:4:23: error E2019: expected '21_12' or '12_21' for the two-port data order", "x",
       kTwoPorts + "[Two-Port Data Order] x\n"},
      {typeid(ParserError),
       "t:4:25: error E2020: the [Number of Frequencies] argument must be a positive integer", "0",
       kOnePort + "[Number of Frequencies] 0\n"},
      {typeid(ParserError),
       "t:4:31: error E2021: the [Number of Noise Frequencies] argument must be a positive "
       "integer",
       "0", kOnePort + "[Number of Noise Frequencies] 0\n"},
      {typeid(WrongReferenceImpedanceCountError),
       "t:5:1: error E2022: the number of reference impedances (2) must match the number of "
       "ports (1)",
       "network data", kOnePort + "[Reference] 1 2\n[Network Data]\n"},
      {typeid(ParserError),
       "t:4:17: error E2023: expected 'Full', 'Upper', or 'Lower' for the matrix format", "x",
       kOnePort + "[Matrix Format] x\n"},
      {typeid(ParserError), "t:4:20: error E2024: expected a mixed-mode port descriptor", "x",
       kOnePort + "[Mixed-Mode Order] x\n"},
      {typeid(ParserError),
       "t:4:19: error E2025: mixed-mode data is only valid for S-, Y-, and Z-parameters", " ",
       "[Version] 2.0\n# G\n[Number of Ports] 2\n[Mixed-Mode Order] S1 S2\n"},
      {typeid(ParserError), "t: error E2026: G-parameters are only defined for 2-port networks", "",
       "# G\n1 2 3\n"},
      {typeid(ParserError), "t: error E2027: H-parameters are only defined for 2-port networks", "",
       "# H\n1 2 3\n"},
      {typeid(ParserError),
       "t: error E2028: [Number of Noise Frequencies] given but no [Noise Data] was found", "",
       kOnePort + "[Number of Noise Frequencies] 1\n[Number of Frequencies] 1\n"
                  "[Network Data]\n1 2 3\n[End]\n"},
      {typeid(ParserError),
       "t: error E2029: first noise frequency must be no greater than the largest network-data "
       "frequency",
       "",
       kTwoPorts + "[Number of Noise Frequencies] 1\n[Two-Port Data Order] 12_21\n"
                   "[Number of Frequencies] 1\n[Network Data]\n1 1 0 1 0 1 0 1 0\n"
                   "[Noise Data]\n2 1 .5 0 .1\n[End]\n"},
      {typeid(ParserError), "t:8:1: error E2030: found extra lines at the end of the file", "5",
       kOnePortData + "1 2 3\n[End]\n5\n"},

      // The options line.
      {typeid(ParserError), "t:2:1: error E2101: expected to find an options line", "x",
       "[Version] 2.0\nx\n"},
      {typeid(ParserError), "t:1:6: error E2102: option overrides an earlier option", "khz",
       "# Hz kHz\n"},
      {typeid(ParserError), "t:1:3: error E2103: invalid option", "x", "# x\n"},
      {typeid(ParserError), "t:1:4: error E2104: the reference impedance is invalid or missing",
       "\n", "# R\n"},
      {typeid(ParserError), "t:1:5: error E2105: the reference impedance is invalid", "0",
       "# R 0\n"},
      {typeid(ParserWarning),
       "t:3:1: warning W2106: ignored secondary options line; only the first options line is "
       "used",
       "#", "#\n1 2 3\n#\n"},
      {typeid(ParserError), "t:3:1: error E2107: invalid secondary options line", "#",
       "[Version] 2.0\n#\n#\n"},

      // Order and presence of keywords.
      {typeid(ParserError), "t:1:1: error E2201: [Version] must be the first keyword", "end",
       "[End]\n"},
      {typeid(ParserError), "t:3:1: error E2202: expected to find the [Number of Ports] keyword",
       "end", "[Version] 2.0\n#\n[End]\n"},
      {typeid(ParserError),
       "t:4:1: error E2203: expected to find a [Begin Information] keyword before and [End "
       "Information] keyword",
       "end information", kOnePort + "[End Information]\n"},
      {typeid(ParserError),
       "t:4:1: error E2204: expected to find a [End Information] keyword after the [Begin "
       "Information] keyword",
       "begin information", kOnePort + "[Begin Information]\n"},
      {typeid(ParserError), "t:4:1: error E2205: expected to find a [Network Data] keyword", "end",
       kOnePort + "[End]\n"},
      {typeid(ParserError),
       "t:4:1: error E2206: expected to find a [Number of Frequencies] keyword", "network data",
       kOnePort + "[Network Data]\n"},
      {typeid(ParserError),
       "t:8:1: error E2207: expected to find a [Number of Noise Frequencies] keyword", "noise data",
       kTwoPortData + "1 1 0 1 0 1 0 1 0\n[Noise Data]\n"},
      {typeid(ParserError), "t:4:1: error E2208: keyword has been specified twice", "version",
       kOnePort + "[Version]\n"},
      {typeid(ParserError), "t:3:1: error E2209: expected to find the [End] keyword", "\n",
       "[Version] 2.0\n#\n"},
      {typeid(KeywordOrderingError), "t:7:1: error E2210: keyword [foo] is out of order", "foo",
       kOnePortData + "1 2 3\n[Foo]\n"},

      // Numeric data.
      {typeid(ClippingLargeNumberWarning),
       "t:1:5: warning W2301: clipping a very large number to 1.79769e+308", "1e999",
       "# R 1E999\n"},
      {typeid(ClippingSmallNumberWarning),
       "t:1:5: warning W2302: clipping a very small number to 2.22507e-308", "1e-999",
       "# R 1E-999\n"},
      {typeid(ParserError),
       "t:3:1: error E2304: Touchstone v1 files require 1-port network data to appear on one "
       "line per frequency point",
       "2", "#\n1\n2 3\n"},
      {typeid(ParserError),
       "t:3:1: error E2305: Touchstone v1 files require 2-port network data to appear on one "
       "line per frequency point",
       "7", "#\n1 1 0 1 0\n7 0 1 0\n"},
      {typeid(NetworkDataNotSquareError),
       "t:2:1: error E2306: detected 2 number pairs of network data, but network data must fit a "
       "NxN matrix",
       "1", "#\n1 1 0 1 0\n"},
      {typeid(ParserError), "t:2:1: error E2307: found a frequency point with no data", "1",
       "#\n1\n"},
      {typeid(IncorrectNumberOfNetworkValuesError),
       "t:2:1: error E2308: incorrect number of values for network data (found 0.5 complex "
       "pairs)",
       "1", "#\n1 2\n"},
      {typeid(ParserError), "t:5:1: error E2309: incorrect number of values for noise data", "\n",
       kAmplifier + "1 1 .5 0 .1\n2 1\n"},
      {typeid(FrequencyCountError),
       "t:6:1: error E2310: wrong number of frequency points (found 0 but expected 1)", "end",
       kOnePortData + "[End]\n"},
      {typeid(FrequencyOrderingError),
       "t:3:1: error E2311: frequency points must be listed in increasing order, but 1 is not "
       "greater than 1.5",
       "1", "#\n1.5 2 3\n1 2 3\n"},
      {typeid(ParserError), "t:2:1: error E2312: frequency must not be negative", "-1",
       "#\n-1 2 3\n"},
      {typeid(ParserError), "t:2:3: error E2313: magnitude must not be negative", "-2",
       "#\n1 -2 3\n"},
      {typeid(ParserError), "t:3:10: error E2314: impedance must not be negative", "-.1",
       kAmplifier + "1 1 .5 0 -.1\n"},
      {typeid(WrongMixedModeDescriptorCountError),
       "t:4:23: error E2315: the number of mixed-mode port descriptors (2) must match the number "
       "of ports (1)",
       "s1", kOnePort + "[Mixed-Mode Order] S1 S1\n[End]\n"},
      {typeid(MixedModeDescriptorsMissedPortError),
       "t:5:1: error E2316: mixed-mode port descriptors did not describe port 1", "end",
       kOnePort + "[Mixed-Mode Order] D1,1\n[End]\n"},
      {typeid(MixedModeDescriptorOverlapError),
       "t:4:23: error E2317: overlapping mixed-mode port descriptors for port 1", "s1",
       kTwoPorts + "[Mixed-Mode Order] S1 S1\n[End]\n"},
      {typeid(Mismatched_C_D_DescriptorPortsError),
       "t:4:25: error E2318: common-mode and differential-mode descriptors for port 1 must "
       "reference the same pair of ports",
       "c2,1", kTwoPorts + "[Mixed-Mode Order] D1,2 C2,1\n[End]\n"},
      {typeid(DifferentialPortsImpedanceError),
       "t: error E2319: different reference impedance for mixed-mode ports (port 1: 50 Ohms, "
       "port 2: 75 Ohms)",
       "",
       kTwoPorts + "[Mixed-Mode Order] D1,2 C1,2\n[Reference] 50 75\n"
                   "[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n"
                   "[Network Data]\n1 1 0 1 0 1 0 1 0\n[End]\n"},
      {typeid(ParserError),
       "t:7:1: error E2320: noise data may only be specified for a 2-port data file", "noise data",
       kOnePortData + "1 2 3\n[Noise Data]\n"},
      {typeid(NonphysicalNoiseWarning),
       "t:3:3: warning W2321: nonphysical noise behavior (-0.5 dB) described", "-.5",
       kAmplifier + "1 -.5 .5 0 .1\n"},
  };
  return cases;
}

// "E2007" of the line "t:12:5: error E2007: ...".
std::string code_in(const std::string& line) {
  for (const std::string word : {": error ", ": warning "}) {
    const std::size_t found = line.find(word);
    if (found != std::string::npos) return line.substr(found + word.size(), 5);
  }
  return {};
}

bool is_error(const std::string& line) { return code_in(line)[0] == 'E'; }

// Keeps the dynamic class besides what the recording handler keeps.
class ClassRecorder : public test::RecordingHandler {
 public:
  void report_error(const File& file, const ParserError& error) override {
    classes.push_back(&typeid(error));
    test::RecordingHandler::report_error(file, error);
  }
  void report_warning(const File& file, const ParserWarning& warning) override {
    classes.push_back(&typeid(warning));
    test::RecordingHandler::report_warning(file, warning);
  }

  std::vector<const std::type_info*> classes;
};

// Reads the text, or the file that the row's line begins with, and tells the handler.
bool read_case(const CodeCase& row, MessageHandler& handler) {
  const std::string name = row.line.substr(0, row.line.find(':'));
  File file(name);
  auto parser = name == "t" ? std::make_unique<Parser>(file, handler, row.text)
                            : std::make_unique<Parser>(file, handler);
  const bool ok = parser->read_file();
  delete file.get_noise_params();
  return ok;
}

// Standard error, caught for the time of the object's life.
class CaughtStandardError {
 public:
  CaughtStandardError() : original_(std::cerr.rdbuf(text_.rdbuf())) {}
  CaughtStandardError(const CaughtStandardError&) = delete;
  CaughtStandardError& operator=(const CaughtStandardError&) = delete;
  ~CaughtStandardError() { std::cerr.rdbuf(original_); }
  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::streambuf* original_;
};

TEST(Codes, EveryCodeHasItsClassTokenAndMessage) {
  for (const CodeCase& row : code_cases()) {
    SCOPED_TRACE(row.line);
    ClassRecorder handler;
    EXPECT_EQ(read_case(row, handler), !is_error(row.line));
    ASSERT_EQ(handler.diagnostics.size(), 1U);
    EXPECT_STREQ(handler.classes[0]->name(), row.type.name());

    const test::Diagnostic& diagnostic = handler.diagnostics[0];
    EXPECT_EQ((is_error(row.line) ? "E" : "W") + std::to_string(diagnostic.code),
              code_in(row.line));
    EXPECT_EQ(diagnostic.severity, is_error(row.line) ? test::Diagnostic::Severity::error
                                                      : test::Diagnostic::Severity::warning);
    EXPECT_EQ(diagnostic.token, row.token);
    EXPECT_EQ(diagnostic.message, row.line.substr(row.line.find(code_in(row.line)) + 7));
  }
}

TEST(Codes, TheStandardHandlerPrintsTheWholeLine) {
  for (const CodeCase& row : code_cases()) {
    StandardMessageHandler handler;
    const CaughtStandardError caught;
    read_case(row, handler);
    EXPECT_EQ(caught.text(), row.line + "\n");
  }
}

TEST(Codes, TheTableHasEveryCodeThatCanBeRaised) {
  std::set<std::string> expected = {"W2003", "W2005", "W2010", "W2106", "W2301", "W2302", "W2321"};
  const auto add_errors = [&](int first, int last) {
    for (int code = first; code <= last; ++code) {
      if (expected.count("W" + std::to_string(code)) == 0 || code == 2003) {
        expected.insert("E" + std::to_string(code));
      }
    }
  };
  add_errors(1001, 1003);
  add_errors(2001, 2030);
  add_errors(2101, 2107);
  add_errors(2201, 2210);
  add_errors(2301, 2321);
  expected.erase("E2303");  // has a message, but lines of any length are accepted
#ifdef _WIN32
  expected.erase("E1002");
#endif

  std::set<std::string> found;
  for (const CodeCase& row : code_cases()) found.insert(code_in(row.line));
  EXPECT_EQ(found, expected);
}

TEST(Codes, TheTableHasEveryCodeThatHasAMessage) {
  std::set<int> found = {2303};
  for (const CodeCase& row : code_cases()) found.insert(std::stoi(code_in(row.line).substr(1)));
#ifdef _WIN32
  found.insert(1002);
#endif
  for (const int heading : {1000, 2000, 2100, 2200, 2300}) found.insert(heading);
  for (int code = 0; code < 4000; ++code) {
    const bool known = std::string(error_message(static_cast<ErrorType>(code))) !=
                       "unknown Touchstone parser error";
    EXPECT_EQ(known, found.count(code) == 1) << code;
  }
}

// Expects of each class the values that the texts of the test below give it.
class ValueChecker : public MessageHandler {
 public:
  void report_error(const File&, const ParserError& error) override {
    ++count;
    if (const auto* values = dynamic_cast<const IncorrectNumberOfNetworkValuesError*>(&error)) {
      EXPECT_EQ(values->found_values(), 7U);  // single numbers
      EXPECT_EQ(values->expected_pairs(), 4U);
    } else if (const auto* order = dynamic_cast<const FrequencyOrderingError*>(&error)) {
      EXPECT_EQ(order->frequency(), 0.5);
      EXPECT_EQ(order->earlier_frequency(), 2.5);
    } else if (const auto* points = dynamic_cast<const FrequencyCountError*>(&error)) {
      EXPECT_EQ(points->found(), 2U);
      EXPECT_EQ(points->expected(), 1U);
    } else if (const auto* pair = dynamic_cast<const DifferentialPortsImpedanceError*>(&error)) {
      EXPECT_EQ(pair->first_port(), 2U);
      EXPECT_EQ(pair->first_impedance(), 75.0);
      EXPECT_EQ(pair->second_port(), 1U);
      EXPECT_EQ(pair->second_impedance(), 50.0);
    } else {
      ADD_FAILURE() << error.what();
    }
  }
  void report_warning(const File&, const ParserWarning& warning) override {
    ++count;
    if (const auto* large = dynamic_cast<const ClippingLargeNumberWarning*>(&warning)) {
      EXPECT_EQ(large->value(), -1.7976931348623157e+308);
    } else if (const auto* noise = dynamic_cast<const NonphysicalNoiseWarning*>(&warning)) {
      EXPECT_EQ(noise->min_noise_db(), -0.5);
    } else {
      ADD_FAILURE() << warning.what();
    }
  }

  int count = 0;
};

TEST(Codes, DerivedClassesCarryTheirValues) {
  const std::vector<std::string> texts = {
      kTwoPortData + "1 1 2 3 4 5 6 7\n[End]\n",
      "#\n2.5 1 0\n.5 1 0\n",
      kOnePortData + "1 2 3\n2 2 3\n[End]\n",
      kTwoPorts +
          "[Mixed-Mode Order] D2,1 C2,1\n[Reference] 50 75\n"
          "[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n"
          "[Network Data]\n1 1 0 1 0 1 0 1 0\n[End]\n",
      "# RI\n1 -1e999 0\n",
      kAmplifier + "1 -.5 .5 0 .1\n",
  };
  ValueChecker handler;
  for (const std::string& text : texts) {
    File file("t");
    Parser(file, handler, text).read_file();
    delete file.get_noise_params();
  }
  EXPECT_EQ(handler.count, 6);
}

TEST(Codes, ALongTokenIsCutTo127Characters) {
  test::RecordingHandler handler;
  File file("t");
  const std::string text = "# " + std::string(200, 'x') + "\n";
  Parser(file, handler, text).read_file();
  ASSERT_EQ(handler.diagnostics.size(), 1U);
  EXPECT_EQ(handler.diagnostics[0].token, std::string(127, 'x'));
}

TEST(Codes, ALongKeywordOutOfOrderIsCutInItsMessageToo) {
  test::RecordingHandler handler;
  File file("t");
  const std::string text = kOnePortData + "1 2 3\n[" + std::string(200, 'K') + "]\n";
  Parser(file, handler, text).read_file();
  ASSERT_EQ(handler.diagnostics.size(), 1U);
  EXPECT_EQ(handler.diagnostics[0].message,
            "keyword [" + std::string(127, 'k') + "] is out of order");
}

}  // namespace
}  // namespace touchstone2
