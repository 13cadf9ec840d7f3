// Texts and the tokens they give. A token is written as "number 1:5 '1.5'", a warning as
// "W2003 1:2 '?'" before the comment that it was met in, and an error, which ends the scan, as
// "E2007 1:1 '1e'". The texts of tokens stand as they are; line ends are shown as "\n".

#include "reader/scanner.h"

#include <touchstone2/touchstone2.h>

#include <cstddef>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/recording_handler.h"
#include "support/temp_file.h"

namespace touchstone2 {
namespace {

using test::brief;
using test::RecordingHandler;
using test::TempFile;

using Strings = std::vector<std::string>;

const char* type_name(Token::Type type) {
  switch (type) {
    case Token::Type::whitespace:
      return "whitespace";
    case Token::Type::newline:
      return "newline";
    case Token::Type::options_mark:
      return "options_mark";
    case Token::Type::keyword:
      return "keyword";
    case Token::Type::number:
      return "number";
    case Token::Type::string:
      return "string";
    case Token::Type::comment:
      return "comment";
    case Token::Type::end_of_file:
      return "end_of_file";
  }
  return "no type";
}

std::string brief(const Token& token) {
  std::string text;
  for (const char c : token.text) text += c == '\n' ? "\\n" : std::string(1, c);
  return std::string(type_name(token.type)) + " " + std::to_string(token.line) + ":" +
         std::to_string(token.column) + " '" + text + "'";
}

std::string brief(const ParserError& error) {
  return "E" + std::to_string(static_cast<int>(error.code())) + " " + std::to_string(error.line()) +
         ":" + std::to_string(error.column()) + " '" + error.token_text() + "'";
}

// All tokens up to the end of the file or the first error, warnings between them.
Strings scan(std::string_view text) {
  const File file("test");
  RecordingHandler handler;
  Strings events;
  std::size_t reported = 0;
  const auto add_warnings = [&] {
    while (reported < handler.diagnostics.size()) {
      events.push_back(brief(handler.diagnostics[reported++]));
    }
  };
  try {
    Scanner scanner(file, handler, text);
    for (;;) {
      const bool more = scanner.next();
      add_warnings();
      events.push_back(brief(scanner.token()));
      if (!more) return events;
    }
  } catch (const ParserError& error) {
    add_warnings();
    events.push_back(brief(error));
  }
  return events;
}

struct Row {
  std::string text;
  Strings expected;
};

void expect_rows(const std::vector<Row>& rows) {
  for (const Row& row : rows) EXPECT_EQ(scan(row.text), row.expected) << '"' << row.text << '"';
}

TEST(Scanner, BlanksBeforeSomethingAreOneToken) {
  expect_rows({
      {" a\n",
       {"whitespace 1:1 ' '", "string 1:2 'a'", "newline 1:3 '\\n'", "end_of_file 2:1 '\\n'"}},
      {" \t  a", {"whitespace 1:1 ' \t  '", "string 1:5 'a'", "end_of_file 1:6 ''"}},
      {"\t1", {"whitespace 1:1 '\t'", "number 1:2 '1'", "end_of_file 1:3 ''"}},
      {"a  b", {"string 1:1 'a'", "whitespace 1:2 '  '", "string 1:4 'b'", "end_of_file 1:5 ''"}},
      {" #", {"whitespace 1:1 ' '", "options_mark 1:2 '#'", "end_of_file 1:3 ''"}},
      {"1\t2", {"number 1:1 '1'", "whitespace 1:2 '\t'", "number 1:3 '2'", "end_of_file 1:4 ''"}},
  });
}

TEST(Scanner, BlanksBeforeLineEndCommentOrEndAreDropped) {
  expect_rows({
      {"  \n", {"newline 1:3 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"a \t\r\n", {"string 1:1 'a'", "newline 1:4 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"a \r", {"string 1:1 'a'", "newline 1:3 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"   ! note", {"comment 1:4 ' note'", "end_of_file 1:10 ''"}},
      {"1 \t!x\n",
       {"number 1:1 '1'", "comment 1:4 'x'", "newline 1:6 '\\n'", "end_of_file 2:1 '\\n'"}},
      {" ", {"end_of_file 1:2 ''"}},
      {"\t\t ", {"end_of_file 1:4 ''"}},
      {"a  ", {"string 1:1 'a'", "end_of_file 1:4 ''"}},
      {"\n  ", {"newline 1:1 '\\n'", "end_of_file 2:3 ''"}},
  });
}

TEST(Scanner, EveryFormOfLineEndIsOneLine) {
  expect_rows({
      {"\n", {"newline 1:1 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"\r", {"newline 1:1 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"\r\n", {"newline 1:1 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"\n\r", {"newline 1:1 '\\n'", "newline 2:1 '\\n'", "end_of_file 3:1 '\\n'"}},
      {"\r\r", {"newline 1:1 '\\n'", "newline 2:1 '\\n'", "end_of_file 3:1 '\\n'"}},
      {"\n\n", {"newline 1:1 '\\n'", "newline 2:1 '\\n'", "end_of_file 3:1 '\\n'"}},
      {"\r\r\n", {"newline 1:1 '\\n'", "newline 2:1 '\\n'", "end_of_file 3:1 '\\n'"}},
      {"\r\n\n", {"newline 1:1 '\\n'", "newline 2:1 '\\n'", "end_of_file 3:1 '\\n'"}},
      {"\r\n\r\n", {"newline 1:1 '\\n'", "newline 2:1 '\\n'", "end_of_file 3:1 '\\n'"}},
      {"a\rb\r\nc\nd",
       {"string 1:1 'a'", "newline 1:2 '\\n'", "string 2:1 'b'", "newline 2:2 '\\n'",
        "string 3:1 'c'", "newline 3:2 '\\n'", "string 4:1 'd'", "end_of_file 4:2 ''"}},
      {"!c\r!d\r\n!e\n",
       {"comment 1:1 'c'", "newline 1:3 '\\n'", "comment 2:1 'd'", "newline 2:3 '\\n'",
        "comment 3:1 'e'", "newline 3:3 '\\n'", "end_of_file 4:1 '\\n'"}},
      {"1\r2", {"number 1:1 '1'", "newline 1:2 '\\n'", "number 2:1 '2'", "end_of_file 2:2 ''"}},
  });
}

TEST(Scanner, CommentsKeepTheirBytes) {
  expect_rows({
      {"!", {"comment 1:1 ''", "end_of_file 1:2 ''"}},
      {"!\n", {"comment 1:1 ''", "newline 1:2 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"! Mixed CASE \t end \n",
       {"comment 1:1 ' Mixed CASE \t end '", "newline 1:20 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"!![x] # 1e!", {"comment 1:1 '![x] # 1e!'", "end_of_file 1:12 ''"}},
      {"a!b", {"string 1:1 'a'", "comment 1:2 'b'", "end_of_file 1:4 ''"}},
      {"1!b", {"number 1:1 '1'", "comment 1:2 'b'", "end_of_file 1:4 ''"}},
      {"#!b", {"options_mark 1:1 '#'", "comment 1:2 'b'", "end_of_file 1:4 ''"}},
  });
}

TEST(Scanner, OddBytesInCommentsAreWarnedOfOneByOne) {
  expect_rows({
      {"!\265m", {"W2003 1:2 '\265'", "comment 1:1 '\265m'", "end_of_file 1:4 ''"}},
      {"a  ! x\303\244\n",
       {"string 1:1 'a'", "W2003 1:7 '\303'", "W2003 1:8 '\244'", "comment 1:4 ' x\303\244'",
        "newline 1:9 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"\n!\001\177",
       {"newline 1:1 '\\n'", "W2003 2:2 '\001'", "W2003 2:3 '\177'", "comment 2:1 '\001\177'",
        "end_of_file 2:4 ''"}},
  });
}

TEST(Scanner, Numbers) {
  const std::vector<std::string> unchanged = {
      "0",    "5",
      "-5",   "+5",
      "007",  "1.5",
      "1.",   ".5",
      "-.5",  "+.5",
      "1..2", "1.2.3",
      "...",  "..",
      "-..",  "+1.5e3",
      "1e5",  "1e+5",
      "1e-5", "1e007",
      ".e5",  "-e5",
      "+e-5", "-.e1",
      "1.e2", "1..2e3",
      "2.0",  "1e99999999999999999999",
      "-5.",  "0000000000000000000000000000000000000000000000000000000000000000000001",
  };
  for (const std::string& text : unchanged) {
    const std::string end = "1:" + std::to_string(text.size() + 1);
    EXPECT_EQ(scan(text), Strings({"number 1:1 '" + text + "'", "end_of_file " + end + " ''"}));
    EXPECT_EQ(scan(text + "!"),
              Strings({"number 1:1 '" + text + "'", "comment " + end + " ''",
                       "end_of_file 1:" + std::to_string(text.size() + 2) + " ''"}));
  }
  expect_rows({
      {"1.0E-3", {"number 1:1 '1.0e-3'", "end_of_file 1:7 ''"}},
      {"1E5\t", {"number 1:1 '1e5'", "end_of_file 1:5 ''"}},
      {"1E5\r", {"number 1:1 '1e5'", "newline 1:4 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"-E+7", {"number 1:1 '-e+7'", "end_of_file 1:5 ''"}},
  });
}

TEST(Scanner, NumbersThatRunIntoLettersAreWords) {
  expect_rows({
      {"5GHz", {"string 1:1 '5ghz'", "end_of_file 1:5 ''"}},
      {"1.5GHz", {"string 1:1 '1.5ghz'", "end_of_file 1:7 ''"}},
      {"50ohm ", {"string 1:1 '50ohm'", "end_of_file 1:7 ''"}},
      {"12_21", {"string 1:1 '12_21'", "end_of_file 1:6 ''"}},
      {"1,5", {"string 1:1 '1,5'", "end_of_file 1:4 ''"}},
      {"1e5x", {"string 1:1 '1e5x'", "end_of_file 1:5 ''"}},
      {"1E5E6", {"string 1:1 '1e5e6'", "end_of_file 1:6 ''"}},
      {"1e5.5", {"string 1:1 '1e5.5'", "end_of_file 1:6 ''"}},
      {"1e5-", {"string 1:1 '1e5-'", "end_of_file 1:5 ''"}},
      {"1-2", {"string 1:1 '1-2'", "end_of_file 1:4 ''"}},
      {"--", {"string 1:1 '--'", "end_of_file 1:3 ''"}},
      {"+-5", {"string 1:1 '+-5'", "end_of_file 1:4 ''"}},
      {"-X", {"string 1:1 '-x'", "end_of_file 1:3 ''"}},
      {".x", {"string 1:1 '.x'", "end_of_file 1:3 ''"}},
      {"0x1F", {"string 1:1 '0x1f'", "end_of_file 1:5 ''"}},
      {"1d5", {"string 1:1 '1d5'", "end_of_file 1:4 ''"}},
      {"1#2[3]", {"string 1:1 '1#2[3]'", "end_of_file 1:7 ''"}},
      {"5GHz!c", {"string 1:1 '5ghz'", "comment 1:5 'c'", "end_of_file 1:7 ''"}},
      {"-inf", {"string 1:1 '-inf'", "end_of_file 1:5 ''"}},
  });
}

TEST(Scanner, NumbersWithoutDigitsAreErrors) {
  expect_rows({
      {"1e", {"E2007 1:1 '1e'"}},
      {"1E", {"E2007 1:1 '1e'"}},
      {"1e ", {"E2007 1:1 '1e'"}},
      {"1e\n", {"E2007 1:1 '1e'"}},
      {"1e!", {"E2007 1:1 '1e'"}},
      {"1e+", {"E2007 1:1 '1e+'"}},
      {"1E-", {"E2007 1:1 '1e-'"}},
      {"1e- ", {"E2007 1:1 '1e-'"}},
      {"1e+-5", {"E2007 1:1 '1e+'"}},
      {"1e.5", {"E2007 1:1 '1e'"}},
      {"1ex", {"E2007 1:1 '1e'"}},
      {"5eV", {"E2007 1:1 '5e'"}},
      {"-e", {"E2007 1:1 '-e'"}},
      {"1e\265", {"E2007 1:1 '1e'"}},
      {"-", {"E2007 1:1 '-'"}},
      {"+", {"E2007 1:1 '+'"}},
      {".", {"E2007 1:1 '.'"}},
      {"- 5", {"E2007 1:1 '-'"}},
      {"a\n  +\t", {"string 1:1 'a'", "newline 1:2 '\\n'", "whitespace 2:1 '  '", "E2007 2:3 '+'"}},
      {".\n", {"E2007 1:1 '.'"}},
      {"-!", {"E2007 1:1 '-'"}},
  });
}

TEST(Scanner, Keywords) {
  expect_rows({
      {"[Number of Ports]", {"keyword 1:1 'number of ports'", "end_of_file 1:18 ''"}},
      {"[Version] 2.0\n",
       {"keyword 1:1 'version'", "whitespace 1:10 ' '", "number 1:11 '2.0'", "newline 1:14 '\\n'",
        "end_of_file 2:1 '\\n'"}},
      {"[]", {"keyword 1:1 ''", "end_of_file 1:3 ''"}},
      {"[ A  b ]", {"keyword 1:1 ' a  b '", "end_of_file 1:9 ''"}},
      {"[[a]]", {"keyword 1:1 '[a'", "string 1:5 ']'", "end_of_file 1:6 ''"}},
      {"[a]x", {"keyword 1:1 'a'", "string 1:4 'x'", "end_of_file 1:5 ''"}},
      {"[a]1", {"keyword 1:1 'a'", "number 1:4 '1'", "end_of_file 1:5 ''"}},
      {"[a]!c", {"keyword 1:1 'a'", "comment 1:4 'c'", "end_of_file 1:6 ''"}},
      {"[A#1.E+z~]", {"keyword 1:1 'a#1.e+z~'", "end_of_file 1:11 ''"}},
      {"\r[a]", {"newline 1:1 '\\n'", "keyword 2:1 'a'", "end_of_file 2:4 ''"}},
      {"x[a]", {"string 1:1 'x[a]'", "end_of_file 1:5 ''"}},
  });
}

TEST(Scanner, KeywordsWithoutTheirBracketAreErrors) {
  expect_rows({
      {"[Version\n", {"E2012 1:1 'version'"}},
      {"[Version\r", {"E2012 1:1 'version'"}},
      {"[Version", {"E2012 1:1 'version'"}},
      {"[", {"E2012 1:1 ''"}},
      {"[Ver!sion]", {"E2012 1:1 'ver'"}},
      {"[\n]", {"E2012 1:1 ''"}},
  });
}

// Where the keyword starts matters only once its bracket has closed.
TEST(Scanner, KeywordsNotAtTheLineStartAreErrors) {
  expect_rows({
      {"   [Version] 2.0", {"whitespace 1:1 '   '", "E2009 1:4 'version'"}},
      {"1 [a]", {"number 1:1 '1'", "whitespace 1:2 ' '", "E2009 1:3 'a'"}},
      {"[a][b]", {"keyword 1:1 'a'", "E2009 1:4 'b'"}},
      {"#[A]", {"options_mark 1:1 '#'", "E2009 1:2 'a'"}},
      {" [a", {"whitespace 1:1 ' '", "E2012 1:2 'a'"}},
      {" [a!]", {"whitespace 1:1 ' '", "E2012 1:2 'a'"}},
      {" [a\265]", {"whitespace 1:1 ' '", "E2003 1:4 '\265'"}},
  });
}

TEST(Scanner, OptionsMarkStandsAlone) {
  expect_rows({
      {"# GHz",
       {"options_mark 1:1 '#'", "whitespace 1:2 ' '", "string 1:3 'ghz'", "end_of_file 1:6 ''"}},
      {"#GHz", {"options_mark 1:1 '#'", "string 1:2 'ghz'", "end_of_file 1:5 ''"}},
      {"##", {"options_mark 1:1 '#'", "options_mark 1:2 '#'", "end_of_file 1:3 ''"}},
      {"#5", {"options_mark 1:1 '#'", "number 1:2 '5'", "end_of_file 1:3 ''"}},
      {"a#", {"string 1:1 'a#'", "end_of_file 1:3 ''"}},
  });
}

TEST(Scanner, WordsAreInLowerCase) {
  expect_rows({
      {"ABCdefXYZ", {"string 1:1 'abcdefxyz'", "end_of_file 1:10 ''"}},
      {"@AZ[\\]^_`az{|}~", {"string 1:1 '@az[\\]^_`az{|}~'", "end_of_file 1:16 ''"}},
      {"]", {"string 1:1 ']'", "end_of_file 1:2 ''"}},
      {"A!B", {"string 1:1 'a'", "comment 1:2 'B'", "end_of_file 1:4 ''"}},
  });
}

// The position is the token's own, only inside a keyword the byte's.
TEST(Scanner, OddBytesOutsideCommentsAreErrors) {
  expect_rows({
      {"\265", {"E2003 1:1 '\265'"}},
      {"ab\265c", {"E2003 1:1 '\265'"}},
      {"a  x\303\244", {"string 1:1 'a'", "whitespace 1:2 '  '", "E2003 1:4 '\303'"}},
      {"1.5\001", {"E2003 1:1 '\001'"}},
      {"+\001", {"E2003 1:1 '\001'"}},
      {"12ab\177", {"E2003 1:1 '\177'"}},
      {"[ab\tc]", {"E2003 1:4 '\t'"}},
      {"[\265", {"E2003 1:2 '\265'"}},
      {" \v", {"whitespace 1:1 ' '", "E2003 1:2 '\v'"}},
      {"1 \f\n", {"number 1:1 '1'", "whitespace 1:2 ' '", "E2003 1:3 '\f'"}},
      {"\357\273\277# GHz", {"E2003 1:1 '\357'"}},
      {std::string(1, '\0'), {"E2003 1:1 ''"}},
      {"\032", {"E2003 1:1 '\032'"}},
  });
}

bool is_printable(int byte) { return byte >= 0x20 && byte <= 0x7E; }

std::string lower(int byte) {
  return std::string(1, static_cast<char>(byte >= 'A' && byte <= 'Z' ? byte + 32 : byte));
}

// The text that a token with this one byte shows: a zero byte ends the text of a diagnostic.
std::string shown(int byte) {
  return byte == 0 ? "''" : "'" + std::string(1, static_cast<char>(byte)) + "'";
}

TEST(Scanner, EveryByteAtTheStartOfAToken) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const Strings events = scan(std::string(1, static_cast<char>(byte)) + "x");
    std::string expected;
    switch (byte) {
      case ' ':
      case '\t':
        expected = "whitespace 1:1 " + shown(byte);
        break;
      case '\n':
      case '\r':
        expected = "newline 1:1 '\\n'";
        break;
      case '!':
        expected = "comment 1:1 'x'";
        break;
      case '[':
        expected = "E2012 1:1 'x'";
        break;
      case '#':
        expected = "options_mark 1:1 '#'";
        break;
      default:
        expected =
            is_printable(byte) ? "string 1:1 '" + lower(byte) + "x'" : "E2003 1:1 " + shown(byte);
    }
    EXPECT_EQ(events[0], expected);
  }
}

// Behind the beginning of a word and of a number alike; only "e" is special in the latter.
TEST(Scanner, EveryByteInsideAWordAndBehindANumber) {
  for (const std::string& begin : {std::string("a"), std::string("1")}) {
    const std::string type = begin == "a" ? "string" : "number";
    for (int byte = 0; byte < 256; ++byte) {
      SCOPED_TRACE(begin + std::to_string(byte));
      const Strings events = scan(begin + std::string(1, static_cast<char>(byte)) + "z");
      const std::string alone = type + " 1:1 '" + begin + "'";
      Strings expected;
      if (byte == ' ' || byte == '\t') {
        expected = {alone, "whitespace 1:2 " + shown(byte), "string 1:3 'z'", "end_of_file 1:4 ''"};
      } else if (byte == '\n' || byte == '\r') {
        expected = {alone, "newline 1:2 '\\n'", "string 2:1 'z'", "end_of_file 2:2 ''"};
      } else if (byte == '!') {
        expected = {alone, "comment 1:2 'z'", "end_of_file 1:4 ''"};
      } else if (type == "number" && (byte == 'e' || byte == 'E')) {
        expected = {"E2007 1:1 '1e'"};
      } else if (is_printable(byte)) {
        expected = {"string 1:1 '" + begin + lower(byte) + "z'", "end_of_file 1:4 ''"};
      } else {
        expected = {"E2003 1:1 " + shown(byte)};
      }
      EXPECT_EQ(events, expected);
    }
  }
}

TEST(Scanner, EveryByteInTheSuffixOfANumber) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const Strings events = scan("1g" + std::string(1, static_cast<char>(byte)));
    std::string expected;
    if (byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r' || byte == '!') {
      expected = "string 1:1 '1g'";
    } else if (is_printable(byte)) {
      expected = "string 1:1 '1g" + lower(byte) + "'";
    } else {
      expected = "E2003 1:1 " + shown(byte);
    }
    EXPECT_EQ(events[0], expected);
  }
}

TEST(Scanner, EveryByteInAKeyword) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const Strings events = scan("[a" + std::string(1, static_cast<char>(byte)) + "z]");
    std::string expected;
    if (byte == '\n' || byte == '\r' || byte == '!') {
      expected = "E2012 1:1 'a'";
    } else if (byte == ']') {
      expected = "keyword 1:1 'a'";
    } else if (is_printable(byte)) {
      expected = "keyword 1:1 'a" + lower(byte) + "z'";
    } else {
      expected = "E2003 1:3 " + shown(byte);
    }
    EXPECT_EQ(events[0], expected);
  }
}

TEST(Scanner, EveryByteInAComment) {
  for (int byte = 0; byte < 256; ++byte) {
    SCOPED_TRACE(byte);
    const std::string one(1, static_cast<char>(byte));
    const Strings events = scan("!A" + one + "Z");
    Strings expected;
    if (byte == '\n' || byte == '\r') {
      expected = {"comment 1:1 'A'", "newline 1:3 '\\n'", "string 2:1 'z'", "end_of_file 2:2 ''"};
    } else {
      if (!is_printable(byte) && byte != '\t') expected = {"W2003 1:3 " + shown(byte)};
      expected.insert(expected.end(), {"comment 1:1 'A" + one + "Z'", "end_of_file 1:5 ''"});
    }
    EXPECT_EQ(events, expected);
  }
}

// A tab is one column like every other byte.
TEST(Scanner, ColumnsCountBytes) {
  expect_rows({
      {"\t\ta\tb",
       {"whitespace 1:1 '\t\t'", "string 1:3 'a'", "whitespace 1:4 '\t'", "string 1:5 'b'",
        "end_of_file 1:6 ''"}},
      {"1 2\n\t3",
       {"number 1:1 '1'", "whitespace 1:2 ' '", "number 1:3 '2'", "newline 1:4 '\\n'",
        "whitespace 2:1 '\t'", "number 2:2 '3'", "end_of_file 2:3 ''"}},
  });
}

TEST(Scanner, EndOfFileTextTellsAMissingLineEnd) {
  expect_rows({
      {"a", {"string 1:1 'a'", "end_of_file 1:2 ''"}},
      {"a\n", {"string 1:1 'a'", "newline 1:2 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"a\r", {"string 1:1 'a'", "newline 1:2 '\\n'", "end_of_file 2:1 '\\n'"}},
      {"a\n ", {"string 1:1 'a'", "newline 1:2 '\\n'", "end_of_file 2:2 ''"}},
      {"!c", {"comment 1:1 'c'", "end_of_file 1:3 ''"}},
      {"!c\r", {"comment 1:1 'c'", "newline 1:3 '\\n'", "end_of_file 2:1 '\\n'"}},
  });
}

TEST(Scanner, EndOfFileComesAgainAtEveryCall) {
  for (const std::string text : {"ab", "ab\n", "ab  ", "ab!\r"}) {
    SCOPED_TRACE(text);
    const File file("test");
    RecordingHandler handler;
    Scanner scanner(file, handler, text);
    while (scanner.next()) EXPECT_FALSE(scanner.end_of_file_reached());
    const std::string end = brief(scanner.token());
    for (int i = 0; i < 3; ++i) {
      EXPECT_TRUE(scanner.end_of_file_reached());
      EXPECT_FALSE(scanner.next());
      EXPECT_EQ(brief(scanner.token()), end);
    }
    EXPECT_TRUE(handler.diagnostics.empty());
  }
}

TEST(Scanner, HasNoTokenBeforeTheFirstCall) {
  const File file("test");
  RecordingHandler handler;
  const Scanner scanner(file, handler, "abc");
  EXPECT_EQ(brief(scanner.token()), "whitespace 0:0 ''");
  EXPECT_FALSE(scanner.end_of_file_reached());
  EXPECT_EQ(scanner.size(), 3U);
}

TEST(Scanner, NoBytesAreAnEmptyFile) {
  EXPECT_EQ(scan(""), Strings({"E1003 0:0 ''"}));
  EXPECT_EQ(scan(std::string_view()), Strings({"E1003 0:0 ''"}));
}

TEST(Scanner, OddBytesMakeTheTokenAString) {
  for (const std::string text : {"\265", "ab\265", "1\265", "1g\265", "[\265]"}) {
    const File file("test");
    RecordingHandler handler;
    Scanner scanner(file, handler, text);
    EXPECT_THROW(scanner.next(), InvalidCharacterError);
    EXPECT_EQ(scanner.token().type, Token::Type::string);
    EXPECT_EQ(scanner.token().text, "\265");
  }
}

TEST(Scanner, ZeroByteIsTheTextOfItsError) {
  const File file("test");
  RecordingHandler handler;
  Scanner scanner(file, handler, std::string_view("a\0b", 3));
  EXPECT_THROW(scanner.next(), InvalidCharacterError);
  EXPECT_EQ(scanner.token().text, std::string(1, '\0'));
}

// Warnings come through the handler with the scanner's File, as objects of their own class.
TEST(Scanner, WarningOfAnOddByteIsOfItsClass) {
  struct Handler : MessageHandler {
    void report_error(const File&, const ParserError&) override { ADD_FAILURE(); }
    void report_warning(const File& file, const ParserWarning& warning) override {
      reported_file = &file;
      const auto* const odd_byte = dynamic_cast<const InvalidCharacterWarning*>(&warning);
      ASSERT_NE(odd_byte, nullptr);
      character = odd_byte->character();
    }
    const File* reported_file = nullptr;
    char character = 0;
  };
  const File file("test");
  Handler handler;
  Scanner scanner(file, handler, "!\265");
  EXPECT_TRUE(scanner.next());
  EXPECT_EQ(handler.reported_file, &file);
  EXPECT_EQ(handler.character, '\265');
}

TEST(Scanner, LongTokensAreWhole) {
  const std::string digits(100000, '7');
  EXPECT_EQ(scan(digits)[0], "number 1:1 '" + digits + "'");
  EXPECT_EQ(scan("!" + digits)[0], "comment 1:1 '" + digits + "'");
  EXPECT_EQ(scan("[" + digits + "]")[0], "keyword 1:1 '" + digits + "'");
  EXPECT_EQ(scan("x" + digits)[0], "string 1:1 'x" + digits + "'");
  EXPECT_EQ(scan(std::string(100000, ' ') + "x")[1], "string 1:100001 'x'");
}

TEST(Scanner, PlaceOfANumberOrWordGivesTheTokenBack) {
  struct PlaceRow {
    const char* text;
    std::size_t skipped;  // tokens before the one looked at
    const char* place;
    const char* token;
  };
  const PlaceRow rows[] = {
      {"1.5E+3 x", 0, "1.5E+3", "number 1:1 '1.5e+3'"},
      {"\n  -2 ", 2, "-2", "number 2:3 '-2'"},
      {"5GHz", 0, "5GHz", "string 1:1 '5ghz'"},
      {"a  D1,3!c", 2, "D1,3", "string 1:4 'd1,3'"},
  };
  for (const PlaceRow& row : rows) {
    SCOPED_TRACE(row.text);
    const File file("test");
    RecordingHandler handler;
    Scanner scanner(file, handler, row.text);
    for (std::size_t i = 0; i <= row.skipped; ++i) scanner.next();
    const TokenPlace place = scanner.token_place();
    EXPECT_EQ(place.text(), row.place);
    EXPECT_EQ(brief(place.to_token(scanner.token().type)), row.token);
    EXPECT_EQ(brief(scanner.token()), row.token);
    scanner.next();  // the place stays good
    EXPECT_EQ(place.text(), row.place);
  }
}

TEST(Scanner, ScansAFileAsItScansItsBytes) {
  const std::string text = "! note\r\n# GHz\r1 2.5E3 -3\n[a]\n";
  const TempFile source(text);
  const File file(source.name());
  RecordingHandler handler;
  Scanner scanner(file, handler);
  EXPECT_EQ(scanner.size(), text.size());
  Strings tokens;
  while (scanner.next()) tokens.push_back(brief(scanner.token()));
  tokens.push_back(brief(scanner.token()));
  EXPECT_EQ(tokens, scan(text));
}

// The offset of every line's first byte, found without a scanner.
std::vector<std::size_t> line_starts(const std::string& text) {
  std::vector<std::size_t> starts = {0};
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool first_of_two = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if ((text[i] == '\n' || text[i] == '\r') && !first_of_two) starts.push_back(i + 1);
  }
  return starts;
}

// For random texts: a token's position leads to the byte that its type wants, tokens stand in
// order, and the texts of the words are those of the bytes in lower case.
TEST(Scanner, PositionsLeadToTheTokensBytes) {
  const std::string_view alphabet = "aZ059.+-eE#[]! \t\r\n,";
  std::mt19937_64 random(7);
  for (int i = 0; i < 20000; ++i) {
    std::string text;
    const std::size_t length = 1 + random() % 24;
    while (text.size() < length) text += alphabet[random() % alphabet.size()];
    SCOPED_TRACE(text);
    const std::vector<std::size_t> starts = line_starts(text);
    const File file("test");
    RecordingHandler handler;
    Scanner scanner(file, handler, text);
    std::size_t end_of_earlier = 0;
    try {
      while (scanner.next()) {
        const Token& token = scanner.token();
        ASSERT_LE(token.line, starts.size());
        const std::size_t offset = starts[token.line - 1] + token.column - 1;
        ASSERT_LT(offset, text.size());
        ASSERT_GE(offset, end_of_earlier);
        end_of_earlier = offset + token.text.size();
        const char first = text[offset];
        switch (token.type) {
          case Token::Type::whitespace:
            ASSERT_EQ(text.substr(offset, token.text.size()), token.text);
            break;
          case Token::Type::newline:
            ASSERT_TRUE(first == '\n' || first == '\r');
            break;
          case Token::Type::options_mark:
            ASSERT_EQ(first, '#');
            break;
          case Token::Type::keyword:
            ASSERT_EQ(first, '[');
            ASSERT_EQ(token.column, 1U);
            break;
          case Token::Type::comment:
            ASSERT_EQ(first, '!');
            ASSERT_EQ(text.substr(offset + 1, token.text.size()), token.text);
            break;
          case Token::Type::number:
          case Token::Type::string:
            ASSERT_EQ(scanner.token_place().text(), text.substr(offset, token.text.size()));
            ASSERT_EQ(scanner.token_place().to_token(token.type).text, token.text);
            break;
          case Token::Type::end_of_file:
            FAIL() << "next() was true";
        }
      }
      ASSERT_EQ(starts[scanner.token().line - 1] + scanner.token().column - 1, text.size());
    } catch (const ParserError&) {
      // Many random texts are wrong somewhere.
    }
  }
}

}  // namespace
}  // namespace touchstone2
