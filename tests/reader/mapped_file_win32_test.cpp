// Windows only: from a name to bytes, with everything that can go wrong on the way, and that
// nothing of it is left when a read is over.

#include <touchstone2/touchstone2.h>

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <windows.h>

#include "reader/mapped_file.h"
#include "support/recording_handler.h"
#include "support/temp_file.h"

namespace touchstone2 {
namespace {

using test::brief;
using test::Diagnostic;
using test::RecordingHandler;
using test::TempFile;
using test::TempFolder;
using test::to_path;
using test::to_utf8;

using Strings = std::vector<std::string>;

const char* const kGood = "# GHz\n1 2 3\n";

// "model/amplifier micro.s2p" in Chinese and German.
const char* const kFolderName = "\346\250\241\345\236\213";
const char* const kFileName = "verst\303\244rker \302\265.s2p";

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

DWORD open_handles() {
  DWORD count = 0;
  EXPECT_NE(::GetProcessHandleCount(::GetCurrentProcess(), &count), 0);
  return count;
}

std::wstring wide(const std::string& name) { return to_path(name).wstring(); }

// A handle of the test's own.
class Handle {
 public:
  explicit Handle(HANDLE handle) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { close(); }

  bool is_open() const { return handle_ != nullptr && handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }
  void close() {
    if (is_open()) ::CloseHandle(handle_);
    handle_ = nullptr;
  }

 private:
  HANDLE handle_;
};

HANDLE open_file(const std::string& name, DWORD access, DWORD sharing) {
  return ::CreateFileW(wide(name).c_str(), access, sharing, nullptr, OPEN_EXISTING,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

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

TEST(MappedFile, NamesAreUtf8) {
  const TempFolder folder;
  std::filesystem::create_directory(folder.path() / to_path(kFolderName));
  const std::string names[] = {
      std::string(kFolderName) + "/" + kFileName,
      std::string(kFolderName) + "\\" + kFileName,
      "with blanks in it.s2p",
      "#[1]!.s2p",
      "\360\235\204\236.s2p",
      "-",
      "no extension",
  };
  for (const std::string& name : names) {
    const std::string path = folder.write(name, kGood);
    EXPECT_EQ(code_of(path), 0) << name;
    File file(path);
    RecordingHandler handler;
    EXPECT_TRUE(Parser(file, handler).read_file()) << name;
    EXPECT_EQ(file.get_filename(), path);
  }
}

TEST(MappedFile, DiagnosticsNameTheFileInUtf8) {
  const TempFile source("# GHz\n1 2 x\n", kFileName);
  File file(source.name());
  RecordingHandler handler;
  EXPECT_FALSE(Parser(file, handler).read_file());
  ASSERT_EQ(handler.diagnostics.size(), 1U);
  const ParserError error(ErrorType::ExpectedNumber, Token{Token::Type::string, 2, 5, "x"});
  const std::string line = StandardMessageHandler().report_error_msg(file, error);
  EXPECT_EQ(line.substr(0, source.name().size() + 1), source.name() + ":");
}

TEST(MappedFile, WhatCannotBeOpenedIsNotFound) {
  const TempFile source("x");
  const TempFolder folder;
  const std::string base = to_utf8(folder.path());
  const std::string names[] = {
      "",
      " ",
      "?",
      "*.s2p",
      base + "/missing.s2p",
      base + "\\no\\such\\folder.s2p",
      base + "/" + kFileName,
      base + "/\377\376",
      source.name() + "/below a file",
      source.name() + "\\",
      base + "/" + std::string(300, 'n'),
      std::string(100'000, 'n'),
      "\\\\?\\" + base + "\\missing.s2p",
  };
  for (const std::string& name : names) expect_code(name, 1001);
}

TEST(MappedFile, FoldersAreNotFound) {
  const TempFolder folder;
  const std::string base = to_utf8(folder.path());
  for (const std::string& name : {base, base + "\\", std::string("\\"), std::string(".")}) {
    expect_code(name, 1001);
  }
}

// It would end the name early and open another file.
TEST(MappedFile, NameWithAZeroByteIsNotFound) {
  const TempFile source(kGood);
  ASSERT_EQ(code_of(source.name()), 0);
  expect_code(source.name() + std::string("\0.s2p", 5), 1001);
  expect_code(source.name() + std::string(1, '\0'), 1001);
  expect_code(std::string(1, '\0'), 1001);
}

// An access list without entries lets nobody in.
TEST(MappedFile, FileWithoutPermissionIsNotFound) {
  const TempFile source(kGood);
  const Handle file(open_file(source.name(), WRITE_DAC, kShareAll));
  ASSERT_TRUE(file.is_open());
  ACL nobody;
  SECURITY_DESCRIPTOR access;
  ASSERT_NE(::InitializeAcl(&nobody, sizeof nobody, ACL_REVISION), 0);
  ASSERT_NE(::InitializeSecurityDescriptor(&access, SECURITY_DESCRIPTOR_REVISION), 0);
  ASSERT_NE(::SetSecurityDescriptorDacl(&access, TRUE, &nobody, FALSE), 0);
  ASSERT_NE(::SetKernelObjectSecurity(file.get(), DACL_SECURITY_INFORMATION, &access), 0);
  expect_code(source.name(), 1001);

  ASSERT_NE(::SetSecurityDescriptorDacl(&access, TRUE, /*everybody*/ nullptr, FALSE), 0);
  ASSERT_NE(::SetKernelObjectSecurity(file.get(), DACL_SECURITY_INFORMATION, &access), 0);
  EXPECT_EQ(code_of(source.name()), 0);
}

TEST(MappedFile, DevicesAreUnreadable) {
  for (const std::string name : {"NUL", "nul", "\\\\.\\NUL"}) expect_code(name, 1002);
}

// Their size would be 0.
TEST(MappedFile, PipesAreUnreadableAtOnce) {
  const std::string name =
      "\\\\.\\pipe\\touchstone2-test-" + std::to_string(::GetCurrentProcessId());
  for (int reads = 0; reads < 3; ++reads) {
    const Handle pipe(::CreateNamedPipeW(wide(name).c_str(), PIPE_ACCESS_DUPLEX,
                                         PIPE_TYPE_BYTE | PIPE_WAIT, 1, 100, 100, 0, nullptr));
    ASSERT_TRUE(pipe.is_open());
    EXPECT_EQ(code_of(name), 1002);
  }
}

TEST(MappedFile, NoBytesAreAnEmptyFile) {
  const TempFile source("");
  expect_code(source.name(), 1003);
}

TEST(MappedFile, FileThatIsOpenForWritingIsNotFound) {
  for (const std::string text : {kGood, ""}) {
    const TempFile source(text);
    Handle writer(open_file(source.name(), GENERIC_WRITE, kShareAll));
    ASSERT_TRUE(writer.is_open());
    expect_code(source.name(), 1001);
    writer.close();
    EXPECT_EQ(code_of(source.name()), text.empty() ? 1003 : 0);
  }
}

TEST(MappedFile, FileThatIsOpenForReadingIsRead) {
  const TempFile source(kGood);
  Handle reader(open_file(source.name(), GENERIC_READ, FILE_SHARE_READ));
  ASSERT_TRUE(reader.is_open());
  EXPECT_EQ(code_of(source.name()), 0);
  reader.close();
  const Handle unshared(open_file(source.name(), GENERIC_READ, 0));
  ASSERT_TRUE(unshared.is_open());
  expect_code(source.name(), 1001);
}

constexpr const wchar_t* kHeldFile = L"TOUCHSTONE2_TEST_HELD_FILE";
constexpr const wchar_t* kHeldEvents = L"TOUCHSTONE2_TEST_HELD_EVENTS";

std::wstring environment(const wchar_t* name) {
  std::wstring value(32'767, L'\0');
  value.resize(::GetEnvironmentVariableW(name, value.data(), 32'767));
  return value;
}

// The other process of the next test; nothing by itself.
TEST(MappedFileHolder, HoldsAFileOpenForWriting) {
  if (environment(kHeldFile).empty()) return;
  const Handle file(::CreateFileW(environment(kHeldFile).c_str(), GENERIC_WRITE, kShareAll, nullptr,
                                  OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  ASSERT_TRUE(file.is_open());
  const std::wstring events = environment(kHeldEvents);
  const Handle held(::OpenEventW(EVENT_MODIFY_STATE, FALSE, (events + L"-held").c_str()));
  const Handle done(::OpenEventW(SYNCHRONIZE, FALSE, (events + L"-done").c_str()));
  ASSERT_NE(::SetEvent(held.get()), 0);
  EXPECT_EQ(::WaitForSingleObject(done.get(), 30'000), DWORD{WAIT_OBJECT_0});
}

TEST(MappedFile, FileThatAnotherProcessHasOpenForWritingIsNotFound) {
  const TempFile source(kGood);
  const std::wstring events = L"touchstone2-test-" + std::to_wstring(::GetCurrentProcessId());
  const Handle held(::CreateEventW(nullptr, TRUE, FALSE, (events + L"-held").c_str()));
  const Handle done(::CreateEventW(nullptr, TRUE, FALSE, (events + L"-done").c_str()));
  ::SetEnvironmentVariableW(kHeldFile, wide(source.name()).c_str());
  ::SetEnvironmentVariableW(kHeldEvents, events.c_str());

  std::wstring program(32'767, L'\0');
  program.resize(::GetModuleFileNameW(nullptr, program.data(), 32'767));
  std::wstring command = L"\"" + program + L"\" --gtest_filter=MappedFileHolder.*";
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  ASSERT_NE(::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                             &startup, &process),
            0);
  ::SetEnvironmentVariableW(kHeldFile, nullptr);
  const Handle thread(process.hThread);
  const Handle other(process.hProcess);
  ASSERT_EQ(::WaitForSingleObject(held.get(), 30'000), DWORD{WAIT_OBJECT_0});
  expect_code(source.name(), 1001);

  ::SetEvent(done.get());
  ASSERT_EQ(::WaitForSingleObject(other.get(), 30'000), DWORD{WAIT_OBJECT_0});
  DWORD exit_code = 99;
  ::GetExitCodeProcess(other.get(), &exit_code);
  EXPECT_EQ(exit_code, 0U);
  EXPECT_EQ(code_of(source.name()), 0);
}

// The ordinary form of a path ends at 259 units.
TEST(MappedFile, PathsMayBeLong) {
  const TempFolder folder;
  std::filesystem::path path = L"\\\\?\\" + folder.path().native();
  for (int level = 0; level < 12; ++level) {
    path /= to_path("some folder " + std::to_string(level) + " " + kFolderName);
    ASSERT_NE(::CreateDirectoryW(path.c_str(), nullptr), 0);
  }
  path /= to_path(kFileName);
  {
    const Handle file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    ASSERT_NE(::WriteFile(file.get(), "bytes", 5, &written, nullptr), 0);
  }
  const std::string long_form = to_utf8(path);
  const std::string ordinary = long_form.substr(4);
  ASSERT_GT(wide(ordinary).size(), 260U);
  EXPECT_EQ(code_of(long_form), 0);
  EXPECT_EQ(code_of(ordinary), 0);
  std::string slashes = ordinary;
  for (char& c : slashes) {
    if (c == '\\') c = '/';
  }
  EXPECT_EQ(code_of(slashes), 0);
  EXPECT_EQ(code_of(ordinary + "x"), 1001);

  // Folders this deep are removed by their long form only.
  ::DeleteFileW(path.c_str());
  for (int level = 0; level < 12; ++level) {
    path = path.parent_path();
    ::RemoveDirectoryW(path.c_str());
  }
}

// A file with a hole: nothing of its four gigabytes is stored where the system can do that.
TEST(MappedFile, FilesBeyondFourGigabytes) {
  const TempFile source("begin");
  LARGE_INTEGER size;
  size.QuadPart = (LONGLONG{1} << 32) + 5;
  {
    const Handle file(open_file(source.name(), GENERIC_WRITE, 0));
    ASSERT_TRUE(file.is_open());
    DWORD written = 0;
    constexpr DWORD kSetSparse = 0x900C4;  // not in every header
    ::DeviceIoControl(file.get(), kSetSparse, nullptr, 0, nullptr, 0, &written, nullptr);
    LARGE_INTEGER position;
    position.QuadPart = size.QuadPart - 3;
    ASSERT_NE(::SetFilePointerEx(file.get(), position, nullptr, FILE_BEGIN), 0);
    ASSERT_NE(::WriteFile(file.get(), "end", 3, &written, nullptr), 0);
  }
  const MappedFile mapped(source.name());
  const std::string_view bytes = mapped.bytes();
  ASSERT_EQ(bytes.size(), static_cast<std::uint64_t>(size.QuadPart));
  EXPECT_EQ(bytes.substr(0, 5), "begin");
  EXPECT_EQ(bytes.substr(bytes.size() - 3), "end");
  EXPECT_EQ(bytes[std::size_t{1} << 31], '\0');
}

TEST(MappedFile, KeepsWritersOutWhileItLives) {
  const TempFile source(kGood);
  {
    const MappedFile mapped(source.name());
    EXPECT_FALSE(Handle(open_file(source.name(), GENERIC_WRITE, kShareAll)).is_open());
    EXPECT_EQ(::GetLastError(), DWORD{ERROR_SHARING_VIOLATION});
    EXPECT_EQ(code_of(source.name()), 0);  // readers are let in
  }
  EXPECT_TRUE(Handle(open_file(source.name(), GENERIC_WRITE, 0)).is_open());
}

TEST(MappedFile, FailuresLeaveNothingOpen) {
  const TempFile good(kGood);
  const TempFile empty("");
  const TempFolder folder;
  const std::string names[] = {good.name(), empty.name(), "NUL", to_utf8(folder.path()), "missing"};
  for (const std::string& name : names) {
    code_of(name);  // the first time may leave something of the system's
    const DWORD before = open_handles();
    for (int i = 0; i < 10; ++i) code_of(name);
    EXPECT_EQ(open_handles(), before) << name;
  }
}

// Tries to delete the file each time it is told something, and throws where it is told to.
struct DeletingHandler : MessageHandler {
  explicit DeletingHandler(const std::string& file_name) : name(file_name) {}

  void report_error(const File&, const ParserError&) override {
    deleted_at_error = ::DeleteFileW(wide(name).c_str()) != 0;
  }
  void report_warning(const File&, const ParserWarning&) override {
    deleted_at_warning = ::DeleteFileW(wide(name).c_str()) != 0;
    if (on_warning) on_warning();
  }

  std::string name;
  std::function<void()> on_warning;
  bool deleted_at_error = false;
  bool deleted_at_warning = false;
};

TEST(MappedFileOfAParser, IsReleasedBeforeAnErrorIsReported) {
  const TempFile source("!\265\n# GHz\n1 2 x\n");
  File file(source.name());
  DeletingHandler handler(source.name());
  Parser parser(file, handler);
  EXPECT_FALSE(parser.read_file());
  EXPECT_FALSE(handler.deleted_at_warning);
  EXPECT_TRUE(handler.deleted_at_error);
}

TEST(MappedFileOfAParser, IsReleasedWhenAHandlerThrows) {
  const TempFile source("!\265\n# GHz\n1 2 3\n");
  File file(source.name());
  DeletingHandler handler(source.name());
  handler.on_warning = [] { throw std::runtime_error("enough"); };
  Parser parser(file, handler);
  EXPECT_THROW(parser.read_file(), std::runtime_error);
  EXPECT_NE(::DeleteFileW(wide(source.name()).c_str()), 0);
}

TEST(MappedFileOfAParser, IsReleasedByAGoodRead) {
  const TempFile source(kGood);
  File file(source.name());
  RecordingHandler handler;
  Parser parser(file, handler);
  EXPECT_TRUE(parser.read_file());
  EXPECT_NE(::DeleteFileW(wide(source.name()).c_str()), 0);
}

}  // namespace
}  // namespace touchstone2
