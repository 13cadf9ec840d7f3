// How far a read has got, looked at from a handler and after the read.
#include <touchstone2/touchstone2.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/temp_file.h"

namespace touchstone2::test {
namespace {

// Notes the progress at every diagnostic.
class ProgressRecorder : public MessageHandler {
 public:
  explicit ProgressRecorder(const ReadProgress& progress) : progress_(progress) {}

  void report_error(const File& /*file*/, const ParserError& error) override { note(error.line()); }
  void report_warning(const File& /*file*/, const ParserWarning& warning) override {
    note(warning.line());
  }

  struct Seen {
    std::size_t diagnostic_line;
    std::size_t line;
    std::uint64_t line_offset;
  };
  std::vector<Seen> seen;

 private:
  void note(std::size_t line) { seen.push_back({line, progress_.line, progress_.line_offset}); }

  const ReadProgress& progress_;
};

struct Reading {
  explicit Reading(std::string_view text) {
    Parser parser(file, recorder, text);
    parser.set_progress(&progress);
    parser.read_file();
  }

  ReadProgress progress;
  ProgressRecorder recorder{progress};
  File file{"test.s1p"};
};

// Long enough for most of its records to be taken straight from the bytes.
std::string many_records(int count) {
  std::string text = "# GHz S RI R 50\n";
  for (int i = 1; i <= count; ++i) text += std::to_string(i) + " 0.25 0.5\n";
  return text;
}

TEST(ReadProgress, IsAtTheEndAfterAReadOfTheWholeFile) {
  const std::string text = many_records(100);
  const Reading reading(text);
  EXPECT_EQ(reading.progress.bytes, text.size());
  EXPECT_EQ(reading.progress.line, 102U);
  EXPECT_EQ(reading.progress.line_offset, text.size());
}

TEST(ReadProgress, KnowsTheLineBehindRecordsThatWereTakenAtOnce) {
  const std::string good =
      "[Version] 2.0\n# GHz S RI R 50\n[Number of Ports] 1\n"
      "[Number of Frequencies] 100\n[Network Data]\n" +
      many_records(100).substr(16);
  const Reading reading(good + "x" + std::string(200, ' '));
  ASSERT_EQ(reading.recorder.seen.size(), 1U);
  EXPECT_EQ(reading.recorder.seen[0].diagnostic_line, 106U);
  EXPECT_EQ(reading.recorder.seen[0].line, 106U);
  EXPECT_EQ(reading.recorder.seen[0].line_offset, good.size());
}

TEST(ReadProgress, BeginsInTheFirstLine) {
  const Reading reading("x");
  ASSERT_FALSE(reading.recorder.seen.empty());
  EXPECT_EQ(reading.recorder.seen[0].line, 1U);
  EXPECT_EQ(reading.recorder.seen[0].line_offset, 0U);
}

TEST(ReadProgress, KnowsTheLineOfAWarningWhileItIsReported) {
  const Reading reading("! plain\n! caf\xE9\n# GHz S RI R 50\n1 2 3\n");
  ASSERT_EQ(reading.recorder.seen.size(), 1U);
  EXPECT_EQ(reading.recorder.seen[0].diagnostic_line, 2U);
  EXPECT_EQ(reading.recorder.seen[0].line, 2U);
  EXPECT_EQ(reading.recorder.seen[0].line_offset, 8U);
}

TEST(ReadProgress, StaysWhereAnErrorEndedTheRead) {
  const std::string good = many_records(100);
  const Reading reading(good + "1 0.25 0.5\n");
  ASSERT_EQ(reading.recorder.seen.size(), 1U);
  const ProgressRecorder::Seen& seen = reading.recorder.seen[0];
  EXPECT_EQ(seen.diagnostic_line, 102U);
  EXPECT_GE(seen.line, seen.diagnostic_line);
  EXPECT_LE(seen.line, seen.diagnostic_line + 1);
  EXPECT_GE(seen.line_offset, good.size());
}

TEST(ReadProgress, CountsLinesThatEndInEveryWay) {
  const Reading reading("! a\r\n! b\r! c\n! \x01\n# GHz S RI R 50\n1 2 3\n");
  ASSERT_EQ(reading.recorder.seen.size(), 1U);
  EXPECT_EQ(reading.recorder.seen[0].line, 4U);
  EXPECT_EQ(reading.recorder.seen[0].line_offset, 13U);
}

TEST(ReadProgress, StartsAnewWithEveryRead) {
  const TempFile empty("");
  File file(empty.name());
  ReadProgress progress;
  progress.bytes = 7;
  progress.line = 7;
  progress.line_offset = 7;
  ProgressRecorder recorder(progress);
  Parser parser(file, recorder);
  parser.set_progress(&progress);
  EXPECT_FALSE(parser.read_file());
  EXPECT_EQ(progress.bytes, 0U);
  EXPECT_EQ(progress.line, 0U);
  EXPECT_EQ(progress.line_offset, 0U);
}

TEST(ReadProgress, NobodyIsToldAfterNull) {
  const std::string text = many_records(3);
  ReadProgress progress;
  ProgressRecorder recorder(progress);
  File file("test.s1p");
  Parser parser(file, recorder, text);
  parser.set_progress(&progress);
  parser.set_progress(nullptr);
  EXPECT_TRUE(parser.read_file());
  EXPECT_EQ(progress.bytes, 0U);
}

}  // namespace
}  // namespace touchstone2::test
