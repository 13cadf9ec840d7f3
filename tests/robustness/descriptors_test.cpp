// No file stays open and none stays mapped after a read, however it ended. Linux shows both.
#include <touchstone2/touchstone2.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/recording_handler.h"
#include "support/temp_file.h"

namespace touchstone2::test {
namespace {

namespace fs = std::filesystem;

std::size_t open_descriptors() {
  const fs::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

std::size_t mappings_of(const std::string& name) {
  std::ifstream maps("/proc/self/maps");
  std::size_t count = 0;
  for (std::string line; std::getline(maps, line);) count += line.find(name) != std::string::npos;
  return count;
}

struct Thrown {};

// Looks at what is open while it is called.
struct WatchingHandler : MessageHandler {
  explicit WatchingHandler(const std::string& file_name, bool throws = false)
      : name(file_name), throwing(throws) {}
  void report_error(const File&, const ParserError&) override {
    ++errors;
    mapped_at_error += mappings_of(name);
    if (throwing) throw Thrown();
  }
  void report_warning(const File&, const ParserWarning&) override {
    ++warnings;
    mapped_at_warning += mappings_of(name);
    if (throwing) throw Thrown();
  }
  std::string name;
  bool throwing;
  int errors = 0;
  int warnings = 0;
  std::size_t mapped_at_error = 0;
  std::size_t mapped_at_warning = 0;
};

struct Sample {
  const char* name;
  std::string text;
};

std::vector<Sample> samples() {
  const std::string frame = "[Version] 2.0\n# RI\n[Number of Ports] 1\n";
  return {
      {"good.s1p", "# RI\n1 2 3\n"},
      {"warning.s1p", "! \x80\n# RI\n1 2 3\n"},
      {"empty.s1p", ""},
      {"comments.s1p", "! nothing else\n"},
      {"bad_byte.s1p", "# RI\n1 \x01 3\n"},
      {"bad_option.s1p", "# Q\n"},
      {"bad_number.s1p", "# RI\n1 2 x\n"},
      {"bad_order.s1p", "# RI\n2 2 3\n1 2 3\n"},
      {"cut.ts", frame + "[Number of Frequencies] 1\n[Network Data]\n1 2"},
      {"bad_keyword.ts", frame + "[Nothing]\n"},
      {"bad_count.ts", frame + "[Number of Frequencies] 2\n[Network Data]\n1 2 3\n[End]\n"},
  };
}

TEST(Descriptors, TheCountersCount) {
  const TempFile file("x");
  const std::size_t before = open_descriptors();
  const std::ifstream stream(file.name());
  EXPECT_EQ(open_descriptors(), before + 1);
  EXPECT_GT(mappings_of("libc"), 0U);
}

TEST(Descriptors, NothingIsLeftAfterARead) {
  const TempFolder folder;
  const std::size_t before = open_descriptors();
  for (const Sample& sample : samples()) {
    SCOPED_TRACE(sample.name);
    const std::string name = folder.write(sample.name, sample.text);
    for (const bool header_only : {false, true}) {
      File file(name);
      WatchingHandler handler(sample.name);
      Parser parser(file, handler);
      const bool ok = header_only ? parser.read_file_header() : parser.read_file();
      EXPECT_EQ(ok, handler.errors == 0);
      EXPECT_EQ(handler.mapped_at_error, 0U);  // released before the error is told
      EXPECT_EQ(handler.mapped_at_warning > 0, handler.warnings > 0);
      EXPECT_EQ(mappings_of(sample.name), 0U);
      EXPECT_EQ(open_descriptors(), before);
    }
  }
}

TEST(Descriptors, NothingIsLeftWhenAHandlerThrows) {
  const TempFolder folder;
  const std::size_t before = open_descriptors();
  int thrown = 0;
  for (const Sample& sample : samples()) {
    SCOPED_TRACE(sample.name);
    File file(folder.write(sample.name, sample.text));
    WatchingHandler handler(sample.name, /*throws=*/true);
    Parser parser(file, handler);
    try {
      parser.read_file();
    } catch (const Thrown&) {
      ++thrown;
    }
    EXPECT_EQ(mappings_of(sample.name), 0U);
    EXPECT_EQ(open_descriptors(), before);
  }
  EXPECT_EQ(thrown, 10);
}

TEST(Descriptors, NothingIsLeftOfWhatIsNoFile) {
  const TempFolder folder;
  const std::size_t before = open_descriptors();
  const std::string missing = to_utf8(folder.path() / "missing.s1p");
  for (const std::string& name :
       {std::string(), missing, to_utf8(folder.path()), std::string("/dev/null"),
        std::string("/dev/zero"), std::string("a\0b", 3)}) {
    SCOPED_TRACE(name);
    File file(name);
    WatchingHandler handler("missing.s1p");
    EXPECT_FALSE(Parser(file, handler).read_file());
    EXPECT_EQ(handler.errors, 1);
    EXPECT_EQ(open_descriptors(), before);
  }
}

// The File and the parser outlive many reads; none of them may leave a handle.
TEST(Descriptors, AThousandReadsLeaveNothing) {
  const TempFile sample("# RI\n1 2 x\n");
  const std::size_t before = open_descriptors();
  for (int i = 0; i < 1000; ++i) {
    File file(sample.name());
    RecordingHandler handler;
    EXPECT_FALSE(Parser(file, handler).read_file());
  }
  EXPECT_EQ(open_descriptors(), before);
}

}  // namespace
}  // namespace touchstone2::test
