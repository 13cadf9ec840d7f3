// Standard streams through C stdio: its errno tells a closed pipe from a full disk, which
// iostreams do not. Together with path_text.cpp and the files that end in _posix and _win32 this
// is what knows one platform from another.
//
// One lock for both streams keeps the status line apart from all other text.

#include "terminal/console.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <stdexcept>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace tool {

namespace {

std::mutex writing;
std::string status;  // what is shown; empty for nothing
bool output_is_terminal = false;

void print_error(std::string_view text) { std::fwrite(text.data(), 1, text.size(), stderr); }

// Takes the status line away while other text is written, and puts it back below.
class StatusPause {
 public:
  StatusPause() {
    if (!status.empty()) print_error(kErase);
  }
  StatusPause(const StatusPause&) = delete;
  StatusPause& operator=(const StatusPause&) = delete;
  ~StatusPause() { print_error(status); }

  static constexpr std::string_view kErase = "\r\x1b[K";
};

std::string reason_of(int error_number) { return std::generic_category().message(error_number); }

// After a failed write.
bool pipe_is_closed() {
#ifdef _WIN32
  const unsigned long reason = _doserrno;  // errno is EINVAL
  return reason == ERROR_NO_DATA || reason == ERROR_BROKEN_PIPE ||
         reason == ERROR_PIPE_NOT_CONNECTED;
#else
  return errno == EPIPE;
#endif
}

void print_output(std::string_view text) {
  errno = 0;
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return;
  const int error_number = errno;
  if (pipe_is_closed()) throw ClosedPipe{};
  throw std::runtime_error("cannot write to standard output: " + reason_of(error_number));
}

#ifdef _WIN32
UINT code_page_before = 0;

void restore_code_page() { ::SetConsoleOutputCP(code_page_before); }

// Output is UTF-8; a console, if there is one, has to know. It belongs to others, too.
void prepare_console() {
  code_page_before = ::GetConsoleOutputCP();
  if (code_page_before == 0 || code_page_before == CP_UTF8) return;
  if (::SetConsoleOutputCP(CP_UTF8) != 0) std::atexit(restore_code_page);
}

std::string to_utf8(std::wstring_view text) {
  const int units = static_cast<int>(text.size());
  const int bytes =
      ::WideCharToMultiByte(CP_UTF8, 0, text.data(), units, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(bytes), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), units, utf8.data(), bytes, nullptr, nullptr);
  return utf8;
}
#endif

}  // namespace

void prepare_streams() {
#ifdef SIGPIPE
  std::signal(SIGPIPE, SIG_IGN);
#endif
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);
#endif
#ifdef _WIN32
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  output_is_terminal = _isatty(_fileno(stdout)) != 0;
  prepare_console();
#else
  output_is_terminal = ::isatty(STDOUT_FILENO) != 0;
#endif
}

#ifdef _WIN32
// The text of argv has lost what the process's code page does not have.
std::vector<std::string> command_line_arguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const wide = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  if (wide == nullptr) throw std::runtime_error("cannot read the command line");
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(to_utf8(wide[i]));
  ::LocalFree(wide);
  return arguments;
}
#else
std::vector<std::string> command_line_arguments(int argc, char** argv) {
  if (argc < 1) return {};
  return {argv + 1, argv + argc};
}
#endif

void write_output(std::string_view text) {
  if (text.empty()) return;
  const std::lock_guard lock(writing);
  if (!output_is_terminal) return print_output(text);
  const StatusPause pause;
  print_output(text);
}

void write_error(std::string_view text) {
  if (text.empty()) return;
  const std::lock_guard lock(writing);
  const StatusPause pause;
  print_error(text);
}

std::string complaint(std::string_view text) {
  return std::string("touchstone2: ").append(text).append("\n");
}

void complain(std::string_view text) { write_error(complaint(text)); }

void show_status(std::string_view text) {
  const std::lock_guard lock(writing);
  // In one piece, so that the line does not flicker.
  print_error(std::string(status.empty() ? "" : StatusPause::kErase).append(text));
  status = text;
}

void note(const std::string& text) { complain("note: " + text); }

std::string read_standard_input() {
  std::string bytes;
  std::array<char, 65536> block;
  std::size_t count = 0;
  errno = 0;
  while ((count = std::fread(block.data(), 1, block.size(), stdin)) > 0) {
    bytes.append(block.data(), count);
  }
  if (std::ferror(stdin) == 0) return bytes;
  throw std::runtime_error("cannot read standard input: " + reason_of(errno));
}

}  // namespace tool
