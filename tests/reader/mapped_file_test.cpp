// POSIX systems only: from a name to bytes, with everything that can go wrong on the way, and
// that nothing of it is left when a read is over.

#include "reader/mapped_file.h"

#include <touchstone2/touchstone2.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/recording_handler.h"
#include "support/temp_file.h"

namespace touchstone2 {
namespace {

using test::brief;
using test::Diagnostic;
using test::RecordingHandler;
using test::TempFile;
using test::TempFolder;

using Strings = std::vector<std::string>;

// 0 when the file could be mapped. The error has no position and no token.
int code_of(const std::string& name) {
  try {
    const MappedFile mapped(name);
    EXPECT_FALSE(mapped.bytes().empty());
    return 0;
  } catch (const ParserError& error) {
    EXPECT_EQ(error.line(), 0U);
    EXPECT_EQ(error.column(), 0U);
    EXPECT_STREQ(error.token_text(), "");
    EXPECT_STREQ(error.what(), error_message(error.code()));
    return static_cast<int>(error.code());
  }
}

// What a parser reports of a file by this name; reading must not throw.
Strings reported_of(const std::string& name) {
  File file(name);
  RecordingHandler handler;
  Parser parser(file, handler);
  EXPECT_FALSE(parser.read_file());
  EXPECT_FALSE(parser.read_file_header());
  Strings lines;
  for (const Diagnostic& diagnostic : handler.diagnostics) lines.push_back(brief(diagnostic));
  return lines;
}

// Both ways to find out, and both entries of the parser.
void expect_code(const std::string& name, int code) {
  EXPECT_EQ(code_of(name), code) << name;
  const std::string line = "E" + std::to_string(code) + " 0:0 ''";
  EXPECT_EQ(reported_of(name), Strings({line, line})) << name;
}

std::size_t open_descriptors() {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    static_cast<void>(entry);
    ++count;
  }
  return count;
}

std::size_t mappings_of(const std::string& name) {
  std::ifstream maps("/proc/self/maps");
  std::size_t count = 0;
  for (std::string line; std::getline(maps, line);) {
    if (line.find(name) != std::string::npos) ++count;
  }
  return count;
}

bool has_proc() { return std::filesystem::exists("/proc/self/maps"); }

TEST(MappedFile, GivesTheBytesAsTheyAre) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  const std::string texts[] = {"x",
                               "\n",
                               std::string(1, '\0'),
                               "a\r\nb\r\032c",
                               all,
                               std::string(4096, 'p'),
                               std::string(4097, 'p'),
                               std::string(1'000'000, 'q')};
  for (const std::string& text : texts) {
    const TempFile source(text);
    EXPECT_TRUE(MappedFile(source.name()).bytes() == text);
  }
}

TEST(MappedFile, NamesAreBytesInUtf8) {
  const TempFolder folder;
  const std::string names[] = {
      "with blanks in it.s2p",
      "\303\244\303\266\303\274 \316\251 \346\270\254\345\256\232.s2p",
      "#[1]!.s2p",
      "-",
      "a\nb\tc.s2p",
      "no extension",
  };
  for (const std::string& name : names) {
    const std::string path = folder.write(name, "# GHz\n1 2 3\n");
    EXPECT_EQ(code_of(path), 0) << name;
    File file(path);
    RecordingHandler handler;
    EXPECT_TRUE(Parser(file, handler).read_file()) << name;
    EXPECT_EQ(file.get_filename(), path);
  }
}

TEST(MappedFile, WhatCannotBeOpenedIsNotFound) {
  const TempFile source("x");
  const TempFolder folder;
  const std::string base = test::to_utf8(folder.path());
  std::filesystem::create_symlink(folder.path() / "nowhere", folder.path() / "dangling");
  std::filesystem::create_symlink(folder.path() / "loop", folder.path() / "loop");
  const std::string names[] = {
      "",
      base + "/missing.s2p",
      base + "/no/such/folder.s2p",
      base + "/dangling",
      base + "/loop",
      source.name() + "/below a file",
      source.name() + "/",
      base + "/" + std::string(300, 'n'),
      std::string(100'000, 'n'),
      " ",
      base + "/\377\376",
  };
  for (const std::string& name : names) expect_code(name, 1001);
}

TEST(MappedFile, FoldersAreNotFound) {
  const TempFolder folder;
  const std::string base = test::to_utf8(folder.path());
  std::filesystem::create_directory_symlink(folder.path(), folder.path() / "link");
  for (const std::string& name :
       {base, base + "/", std::string("/"), std::string("."), base + "/link"}) {
    expect_code(name, 1001);
  }
}

// It would end the name early and open another file.
TEST(MappedFile, NameWithAZeroByteIsNotFound) {
  const TempFile source("# GHz\n1 2 3\n");
  ASSERT_EQ(code_of(source.name()), 0);
  expect_code(source.name() + std::string("\0.s2p", 5), 1001);
  expect_code(source.name() + std::string(1, '\0'), 1001);
  expect_code(std::string(1, '\0'), 1001);
}

// Runs as nobody where the tests run as root, who may read everything.
TEST(MappedFile, FileWithoutPermissionIsNotFound) {
  const TempFile source("# GHz\n1 2 3\n");
  ASSERT_EQ(::chmod(source.name().c_str(), 0), 0);
  const uid_t user = ::geteuid();
  constexpr uid_t kNobody = 65534;
  if (user == 0) {
    ASSERT_EQ(::seteuid(kNobody), 0);
  }
  const int code = code_of(source.name());
  const Strings reported = reported_of(source.name());
  if (user == 0) {
    ASSERT_EQ(::seteuid(user), 0);
  }
  EXPECT_EQ(code, 1001);
  EXPECT_EQ(reported, Strings({"E1001 0:0 ''", "E1001 0:0 ''"}));
}

TEST(MappedFile, DevicesAreUnreadable) {
  for (const std::string name : {"/dev/null", "/dev/zero", "/dev/full"}) {
    if (std::filesystem::exists(name)) expect_code(name, 1002);
  }
}

// Opening must not wait for a writer, and nothing may be taken from one that is there.
TEST(MappedFile, FifosAreUnreadableAtOnce) {
  const TempFolder folder;
  const std::string name = test::to_utf8(folder.path()) + "/fifo.s2p";
  ASSERT_EQ(::mkfifo(name.c_str(), 0600), 0);
  ::alarm(20);  // ends the test where it would hang
  expect_code(name, 1002);

  const int both_ends = ::open(name.c_str(), O_RDWR | O_NONBLOCK);
  ASSERT_GE(both_ends, 0);
  ASSERT_EQ(::write(both_ends, "# GHz\n", 6), 6);
  expect_code(name, 1002);
  char bytes[8] = {};
  EXPECT_EQ(::read(both_ends, bytes, sizeof bytes), 6);
  ::close(both_ends);
  ::alarm(0);
}

TEST(MappedFile, NoBytesAreAnEmptyFile) {
  const TempFile source("");
  expect_code(source.name(), 1003);
}

TEST(MappedFile, LinksAreFollowed) {
  const TempFile source("# GHz\n1 2 3\n");
  const TempFolder folder;
  const std::filesystem::path link = folder.path() / "link.s1p";
  std::filesystem::create_symlink(test::to_path(source.name()), link);
  EXPECT_EQ(code_of(test::to_utf8(link)), 0);
}

TEST(MappedFile, ExclusivelyLockedFileIsNotFound) {
  const std::string texts[] = {"# GHz\n1 2 3\n", ""};  // asked before the size is
  for (const std::string& text : texts) {
    const TempFile source(text);
    const int locked = ::open(source.name().c_str(), O_RDWR);
    ASSERT_GE(locked, 0);
    ASSERT_EQ(::flock(locked, LOCK_EX | LOCK_NB), 0);
    expect_code(source.name(), 1001);
    ASSERT_EQ(::flock(locked, LOCK_SH | LOCK_NB), 0);  // shared locks keep no reader out
    EXPECT_EQ(code_of(source.name()), text.empty() ? 1003 : 0);
    ASSERT_EQ(::flock(locked, LOCK_UN), 0);
    EXPECT_EQ(code_of(source.name()), text.empty() ? 1003 : 0);
    ::close(locked);
  }
}

// Locks of this kind belong to a process, so that another one has to hold it.
TEST(MappedFile, FileWithARecordLockOfAnotherProcessIsNotFound) {
  const TempFile source("# GHz\n1 2 3\n");
  int ready[2];
  int done[2];
  ASSERT_EQ(::pipe(ready), 0);
  ASSERT_EQ(::pipe(done), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  char byte = 0;
  if (child == 0) {
    const int fd = ::open(source.name().c_str(), O_RDWR);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    byte = ::fcntl(fd, F_SETLK, &lock) == 0 ? 'y' : 'n';
    ::close(done[1]);  // else the read below would wait for this process itself
    const bool told = ::write(ready[1], &byte, 1) == 1;
    const bool ended = ::read(done[0], &byte, 1) == 0;
    ::_exit(told && ended ? 0 : 1);
  }
  ::close(done[0]);
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  EXPECT_EQ(byte, 'y');
  expect_code(source.name(), 1001);
  ::close(done[1]);
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(code_of(source.name()), 0);
  ::close(ready[0]);
  ::close(ready[1]);
}

// A file with a hole: nothing of its four gigabytes is stored.
TEST(MappedFile, FilesBeyondFourGigabytes) {
  if (sizeof(std::size_t) < 8) GTEST_SKIP() << "no room for it";
  const TempFile source("begin");
  const off_t size = (off_t{1} << 32) + 5;
  {
    const int fd = ::open(source.name().c_str(), O_WRONLY);
    ASSERT_GE(fd, 0);
    const bool made = ::pwrite(fd, "end", 3, size - 3) == 3;
    ::close(fd);
    if (!made) GTEST_SKIP() << "the file system does not take it";
  }
  const MappedFile mapped(source.name());
  const std::string_view bytes = mapped.bytes();
  ASSERT_EQ(bytes.size(), static_cast<std::size_t>(size));
  EXPECT_EQ(bytes.substr(0, 5), "begin");
  EXPECT_EQ(bytes.substr(bytes.size() - 3), "end");
  EXPECT_EQ(bytes[std::size_t{1} << 31], '\0');
}

TEST(MappedFile, KeepsTheMappingButNotTheFileOpen) {
  if (!has_proc()) GTEST_SKIP() << "no /proc to count in";
  const TempFile source("some bytes");
  const std::size_t before = open_descriptors();
  {
    const MappedFile mapped(source.name());
    EXPECT_EQ(open_descriptors(), before);
    EXPECT_EQ(mappings_of(source.name()), 1U);
    std::filesystem::remove(test::to_path(source.name()));
    EXPECT_EQ(mapped.bytes(), "some bytes");
  }
  EXPECT_EQ(mappings_of(source.name()), 0U);
}

TEST(MappedFile, FailuresLeaveNothingOpen) {
  if (!has_proc()) GTEST_SKIP() << "no /proc to count in";
  const TempFile empty("");
  const TempFolder folder;
  const std::string fifo = test::to_utf8(folder.path()) + "/fifo";
  ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
  const std::size_t before = open_descriptors();
  for (const std::string& name : {std::string(), fifo, std::string("/dev/null"),
                                  test::to_utf8(folder.path()), empty.name(), fifo + " missing"}) {
    EXPECT_NE(code_of(name), 0);
    EXPECT_EQ(open_descriptors(), before) << name;
  }
}

// What a host without a standard input gives its next file: descriptor 0.
TEST(MappedFile, TheFirstDescriptorIsOneLikeOthers) {
  const TempFile source("some bytes");
  const int kept = ::dup(STDIN_FILENO);
  ::close(STDIN_FILENO);
  EXPECT_EQ(code_of(source.name()), 0);
  EXPECT_EQ(::fcntl(STDIN_FILENO, F_GETFD), -1) << "the file is still open";
  if (kept >= 0) {
    ::dup2(kept, STDIN_FILENO);
    ::close(kept);
  }
}

// Looks at the process each time it is told something, and throws where it is told to.
struct WatchingHandler : MessageHandler {
  explicit WatchingHandler(const std::string& file_name) : name(file_name) {}

  void report_error(const File&, const ParserError&) override {
    mappings_at_error = mappings_of(name);
    if (on_error) on_error();
  }
  void report_warning(const File&, const ParserWarning&) override {
    mappings_at_warning = mappings_of(name);
    descriptors_at_warning = open_descriptors();
    if (on_warning) on_warning();
  }

  std::string name;
  std::function<void()> on_error;
  std::function<void()> on_warning;
  std::size_t mappings_at_error = 99;
  std::size_t mappings_at_warning = 99;
  std::size_t descriptors_at_warning = 99;
};

const char* const kGood = "!\265\n# GHz\n1 2 3\n";
const char* const kBad = "!\265\n# GHz\n1 2 x\n";

TEST(MappedFileOfAParser, IsReleasedByAGoodRead) {
  if (!has_proc()) GTEST_SKIP() << "no /proc to count in";
  const TempFile source(kGood);
  File file(source.name());
  WatchingHandler handler(source.name());
  Parser parser(file, handler);
  const std::size_t before = open_descriptors();
  for (const bool header_only : {true, false}) {
    File fresh(source.name());
    EXPECT_TRUE(header_only ? Parser(fresh, handler).read_file_header()
                            : Parser(fresh, handler).read_file());
    EXPECT_EQ(handler.mappings_at_warning, 1U);
    EXPECT_EQ(handler.descriptors_at_warning, before);
    EXPECT_EQ(mappings_of(source.name()), 0U);
    EXPECT_EQ(open_descriptors(), before);
  }
  // While the parser lives on.
  EXPECT_TRUE(parser.read_file());
  EXPECT_EQ(mappings_of(source.name()), 0U);
  EXPECT_EQ(open_descriptors(), before);
}

// The handler may then delete or rewrite the file.
TEST(MappedFileOfAParser, IsReleasedBeforeAnErrorIsReported) {
  if (!has_proc()) GTEST_SKIP() << "no /proc to count in";
  const TempFile source(kBad);
  File file(source.name());
  WatchingHandler handler(source.name());
  Parser parser(file, handler);
  const std::size_t before = open_descriptors();
  EXPECT_FALSE(parser.read_file());
  EXPECT_EQ(handler.mappings_at_warning, 1U);
  EXPECT_EQ(handler.mappings_at_error, 0U);
  EXPECT_EQ(mappings_of(source.name()), 0U);
  EXPECT_EQ(open_descriptors(), before);
}

TEST(MappedFileOfAParser, IsReleasedWhenAHandlerThrows) {
  if (!has_proc()) GTEST_SKIP() << "no /proc to count in";
  const TempFile source(kBad);
  const std::size_t before = open_descriptors();
  struct Row {
    const char* name;
    std::function<void()> on_warning;
    std::function<void()> on_error;
  };
  const auto runtime_error = [] { throw std::runtime_error("enough"); };
  const auto bad_alloc = [] { throw std::bad_alloc(); };
  const auto number = [] { throw 7; };
  const Row rows[] = {
      {"from a warning", runtime_error, nullptr}, {"from the error", nullptr, runtime_error},
      {"no memory, warning", bad_alloc, nullptr}, {"no memory, error", nullptr, bad_alloc},
      {"any type, warning", number, nullptr},     {"any type, error", nullptr, number},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    File file(source.name());
    WatchingHandler handler(source.name());
    handler.on_warning = row.on_warning;
    handler.on_error = row.on_error;
    Parser parser(file, handler);
    EXPECT_ANY_THROW(parser.read_file());
    EXPECT_FALSE(file.is_valid());
    EXPECT_EQ(mappings_of(source.name()), 0U);
    EXPECT_EQ(open_descriptors(), before);

    // The parser can be used again.
    handler.on_warning = nullptr;
    handler.on_error = nullptr;
    EXPECT_FALSE(parser.read_file());
    EXPECT_EQ(mappings_of(source.name()), 0U);
  }
}

// A ParserError that the handler throws is an error of the read like any other.
TEST(MappedFileOfAParser, IsReleasedWhenAHandlerThrowsAParserError) {
  if (!has_proc()) GTEST_SKIP() << "no /proc to count in";
  const TempFile source(kGood);
  File file(source.name());
  WatchingHandler handler(source.name());
  handler.on_warning = [] { throw ParserError(ErrorType::InvalidOption); };
  Parser parser(file, handler);
  EXPECT_FALSE(parser.read_file());
  EXPECT_EQ(handler.mappings_at_error, 0U);
  EXPECT_EQ(mappings_of(source.name()), 0U);
}

TEST(MappedFileOfAParser, IsOpenedAnewByEveryRead) {
  const TempFolder folder;
  const std::string name = test::to_utf8(folder.path()) + "/late.s1p";
  File file(name);
  RecordingHandler handler;
  Parser parser(file, handler);
  EXPECT_FALSE(parser.read_file());
  folder.write("late.s1p", "#\n1 2 3\n");
  EXPECT_TRUE(parser.read_file());
  ASSERT_EQ(handler.diagnostics.size(), 1U);
  EXPECT_EQ(brief(handler.diagnostics[0]), "E1001 0:0 ''");
}

}  // namespace
}  // namespace touchstone2
