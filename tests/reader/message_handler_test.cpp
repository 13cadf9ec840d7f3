// The standard handler's lines, to the letter and to the line end.

#include <touchstone2/touchstone2.h>

#include <iostream>
#include <locale>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {
namespace {

// Everything that goes to the standard error stream while it lives. The stream's flags, and
// whether it was flushed, can be asked for.
class CapturedStandardError {
 public:
  CapturedStandardError() : before_(std::cerr.rdbuf(&buffer_)) {}
  CapturedStandardError(const CapturedStandardError&) = delete;
  CapturedStandardError& operator=(const CapturedStandardError&) = delete;
  ~CapturedStandardError() { std::cerr.rdbuf(before_); }

  std::string text() const { return buffer_.str(); }
  int flushes() const { return buffer_.flushes; }

 private:
  struct Buffer : std::stringbuf {
    int sync() override {
      ++flushes;
      return 0;
    }
    int flushes = 0;
  };

  Buffer buffer_;
  std::streambuf* before_;
};

std::string error_line(const std::string& file_name, const ParserError& error) {
  const CapturedStandardError captured;
  StandardMessageHandler().report_error(File(file_name), error);
  return captured.text();
}

std::string warning_line(const std::string& file_name, const ParserWarning& warning) {
  const CapturedStandardError captured;
  StandardMessageHandler().report_warning(File(file_name), warning);
  return captured.text();
}

Token token_at(std::size_t line, std::size_t column, const std::string& text = "word") {
  return Token{Token::Type::string, line, column, text};
}

TEST(StandardMessageHandler, WritesOneLineForAnError) {
  struct Row {
    std::string file_name;
    ErrorType code;
    std::size_t line, column;
    std::string expected;
  };
  const Row rows[] = {
      {"amp.s2p", ErrorType::ExpectedNumber, 12, 5,
       "amp.s2p:12:5: error E2007: expected to find numeric data\n"},
      {"amp.s2p", ErrorType::FileNotFound, 0, 0, "amp.s2p: error E1001: file not found\n"},
      {"name", ErrorType::InvalidOption, 0, 7, "name: error E2103: invalid option\n"},
      {"name", ErrorType::InvalidOption, 4, 0, "name:4: error E2103: invalid option\n"},
      {"", ErrorType::InvalidOption, 1, 1, ":1:1: error E2103: invalid option\n"},
      {"", ErrorType::FileNotFound, 0, 0, ": error E1001: file not found\n"},
      {"C:\\a b\\x.s2p", ErrorType::InvalidOption, 1234567, 7654321,
       "C:\\a b\\x.s2p:1234567:7654321: error E2103: invalid option\n"},
      {std::string("a\0b\n", 4), ErrorType::InvalidOption, 1, 2,
       std::string("a\0b\n", 4) + ":1:2: error E2103: invalid option\n"},
      {"x", static_cast<ErrorType>(-7), 1, 2,
       "x:1:2: error E-7: unknown Touchstone parser error\n"},
      {"x", static_cast<ErrorType>(0), 1, 2, "x:1:2: error E0: unknown Touchstone parser error\n"},
  };
  for (const Row& row : rows) {
    const ParserError error(row.code, token_at(row.line, row.column));
    EXPECT_EQ(error_line(row.file_name, error), row.expected);
    EXPECT_EQ(StandardMessageHandler().report_error_msg(File(row.file_name), error), row.expected);
  }
}

TEST(StandardMessageHandler, WritesOneLineForAWarning) {
  struct Row {
    std::string file_name;
    ErrorType code;
    std::size_t line, column;
    std::string expected;
  };
  const Row rows[] = {
      {"amp.s2p", ErrorType::OptionsMarkNotAtLineStart, 3, 1,
       "amp.s2p:3:1: warning W2010: # is not at the start of the line\n"},
      {"name", ErrorType::MissingFinalEndOfLine, 4, 0,
       "name:4: warning W2005: expected end-of-line termination before end-of-file\n"},
      {"name", ErrorType::MissingFinalEndOfLine, 0, 9,
       "name: warning W2005: expected end-of-line termination before end-of-file\n"},
      {"", ErrorType::MissingFinalEndOfLine, 0, 0,
       ": warning W2005: expected end-of-line termination before end-of-file\n"},
  };
  for (const Row& row : rows) {
    const ParserWarning warning(row.code, token_at(row.line, row.column));
    EXPECT_EQ(warning_line(row.file_name, warning), row.expected);
    EXPECT_EQ(StandardMessageHandler().report_warning_msg(File(row.file_name), warning),
              row.expected);
  }
}

// The text comes through the virtual what().
TEST(StandardMessageHandler, WritesTheMessageOfTheDerivedClass) {
  EXPECT_EQ(error_line("amp.s2p", DifferentialPortsImpedanceError(1, 50.0, 2, 75.0)),
            "amp.s2p: error E2319: different reference impedance for mixed-mode ports (port 1: 50 "
            "Ohms, port 2: 75 Ohms)\n");
  EXPECT_EQ(StandardMessageHandler().report_error_msg(File("name"),
                                                      FrequencyCountError(3, 4, token_at(20, 1))),
            "name:20:1: error E2310: wrong number of frequency points (found 3 but expected 4)\n");
  EXPECT_EQ(warning_line("n.s1p", ClippingLargeNumberWarning(1e300, token_at(2, 3))),
            "n.s1p:2:3: warning W2301: clipping a very large number to 1e+300\n");
}

TEST(StandardMessageHandler, WritesTheThreeLinesOfAnInvalidCharacterInAComment) {
  EXPECT_EQ(warning_line("n.s1p", InvalidCharacterWarning(token_at(1, 9, "\265"))),
            "n.s1p:1:9: warning W2003: invalid character '\265' in a comment line.\n"
            "    Non-US-ASCII characters violate the Touchstone Specification\n"
            "    and may result in file reading failure.\n");
}

TEST(StandardMessageHandler, FlushesEveryLine) {
  const CapturedStandardError captured;
  StandardMessageHandler handler;
  std::cerr << std::nounitbuf;
  handler.report_error(File("a"), ParserError(ErrorType::FileNotFound));
  EXPECT_GE(captured.flushes(), 1);
  const int after_error = captured.flushes();
  handler.report_warning(File("a"), ParserWarning(ErrorType::MissingFinalEndOfLine));
  EXPECT_GT(captured.flushes(), after_error);
  std::cerr << std::unitbuf;
}

TEST(StandardMessageHandler, MessagesAreNotWritten) {
  const CapturedStandardError captured;
  const StandardMessageHandler handler;
  EXPECT_NE(handler.report_error_msg(File("a"), ParserError(ErrorType::FileNotFound)), "");
  EXPECT_NE(handler.report_warning_msg(File("a"), ParserWarning(ErrorType::FileNotFound)), "");
  EXPECT_EQ(captured.text(), "");
}

TEST(StandardMessageHandler, IgnoresAStreamThatCannotBeWritten) {
  std::streambuf* const before = std::cerr.rdbuf(nullptr);
  StandardMessageHandler handler;
  EXPECT_NO_THROW(handler.report_error(File("a"), ParserError(ErrorType::FileNotFound)));
  EXPECT_NO_THROW(
      handler.report_warning(File("a"), ParserWarning(ErrorType::MissingFinalEndOfLine)));
  std::cerr.rdbuf(before);
  std::cerr.clear();
}

struct CommaAndGroups : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(StandardMessageHandler, DoesNotAskTheLocale) {
  const std::locale grouping(std::locale::classic(), new CommaAndGroups);
  const std::locale global_before = std::locale::global(grouping);
  const std::locale stream_before = std::cerr.imbue(grouping);
  const FrequencyOrderingError error(1234.5, 1e4 + 0.25, token_at(1234567, 2345678));
  EXPECT_EQ(error_line("a", error),
            "a:1234567:2345678: error E2311: frequency points must be listed in increasing order, "
            "but 1234.5 is not greater than 10000.2\n");
  std::cerr.imbue(stream_before);
  std::locale::global(global_before);
}

TEST(StandardMessageHandler, CopiesAndMoves) {
  static_assert(std::is_base_of_v<MessageHandler, StandardMessageHandler>, "");
  static_assert(std::is_convertible_v<StandardMessageHandler*, MessageHandler*>, "publicly");
  static_assert(std::is_default_constructible_v<StandardMessageHandler>, "");
  static_assert(sizeof(StandardMessageHandler) == sizeof(MessageHandler), "no data members");
  StandardMessageHandler handler;
  StandardMessageHandler copy(handler);
  const StandardMessageHandler moved(std::move(copy));
  StandardMessageHandler assigned;
  assigned = moved;
  handler = std::move(assigned);
  EXPECT_EQ(handler.report_error_msg(File("a"), ParserError(ErrorType::FileNotFound)),
            "a: error E1001: file not found\n");
}

TEST(MessageHandler, IsAnInterfaceThatCanBeCopied) {
  static_assert(std::is_abstract_v<MessageHandler>, "");
  static_assert(std::has_virtual_destructor_v<MessageHandler>, "");
  static_assert(sizeof(MessageHandler) == sizeof(void*), "no data members");

  using test::RecordingHandler;
  RecordingHandler handler;
  handler.report_warning(File("a"), ParserWarning(ErrorType::MissingFinalEndOfLine));
  RecordingHandler copy(handler);
  EXPECT_EQ(copy.diagnostics.size(), 1U);
  RecordingHandler assigned;
  assigned = handler;
  EXPECT_EQ(assigned.diagnostics.size(), 1U);
  const std::unique_ptr<MessageHandler> base = std::make_unique<RecordingHandler>(handler);
}

// The handler gets the very File that is being filled.
TEST(MessageHandler, GetsTheFileThatIsRead) {
  struct Handler : MessageHandler {
    void report_error(const File& file, const ParserError&) override { of_error = &file; }
    void report_warning(const File& file, const ParserWarning&) override { of_warning = &file; }
    const File* of_error = nullptr;
    const File* of_warning = nullptr;
  };
  Handler handler;
  File file("some name");
  Parser parser(file, handler, "!\265\n# GHz\n1 2 x");
  EXPECT_FALSE(parser.read_file());
  EXPECT_EQ(handler.of_error, &file);
  EXPECT_EQ(handler.of_warning, &file);
}

TEST(StandardMessageHandler, PrintsWhatAReadFinds) {
  const CapturedStandardError captured;
  StandardMessageHandler handler;
  File file("bad.s1p");
  Parser parser(file, handler, "! \303\244\n # GHz\n1 1e999 0\n2 3 4 foo\n");
  EXPECT_FALSE(parser.read_file());
  EXPECT_EQ(captured.text(),
            "bad.s1p:1:3: warning W2003: invalid character '\303' in a comment line.\n"
            "    Non-US-ASCII characters violate the Touchstone Specification\n"
            "    and may result in file reading failure.\n"
            "bad.s1p:1:4: warning W2003: invalid character '\244' in a comment line.\n"
            "    Non-US-ASCII characters violate the Touchstone Specification\n"
            "    and may result in file reading failure.\n"
            "bad.s1p:2:2: warning W2010: # is not at the start of the line\n"
            "bad.s1p:4:7: error E2007: expected to find numeric data\n");
}

}  // namespace
}  // namespace touchstone2
