// Asks the system and the environment about the terminal.

#include "terminal/display.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace tool {

namespace {

constexpr std::size_t kUsualColumns = 80;
constexpr std::size_t kFewestColumns = 20;

bool plain_wanted = false;

std::string_view environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

#ifdef _WIN32
bool is_terminal(std::FILE* stream) { return _isatty(_fileno(stream)) != 0; }

HANDLE console_of(std::FILE* stream) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
}

// A console of old has no escape sequences.
bool obeys_sequences(std::FILE* stream) {
  HANDLE const console = console_of(stream);
  DWORD mode = 0;
  return ::GetConsoleMode(console, &mode) != 0 &&
         ::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

std::size_t columns_of_terminal(std::FILE* stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (::GetConsoleScreenBufferInfo(console_of(stream), &info) == 0) return 0;
  return static_cast<std::size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}
#else
bool is_terminal(std::FILE* stream) { return ::isatty(::fileno(stream)) != 0; }

bool obeys_sequences(std::FILE* /*stream*/) {
  const std::string_view terminal = environment("TERM");
  return !terminal.empty() && terminal != "dumb";
}

std::size_t columns_of_terminal(std::FILE* stream) {
  struct winsize size {};
  return ::ioctl(::fileno(stream), TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
#endif

std::size_t wanted_columns() {
  const std::string_view text = environment("COLUMNS");
  std::size_t columns = 0;
  std::from_chars(text.data(), text.data() + text.size(), columns);
  return columns;
}

std::size_t find_columns(std::FILE* stream) {
  std::size_t columns = wanted_columns();
  if (columns == 0) columns = columns_of_terminal(stream);
  if (columns == 0) columns = kUsualColumns;
  return std::max(columns, kFewestColumns);
}

Display find_display(std::FILE* stream) {
  Display display;
  if (plain_wanted || !is_terminal(stream)) return display;
  display.rich = true;
  display.can_erase = obeys_sequences(stream);
  display.colour = display.can_erase && environment("NO_COLOR").empty();
  display.columns = find_columns(stream);
  return display;
}

const char* sequence_of(Style style) {
  switch (style) {
    case Style::bold:
      return "\x1b[1m";
    case Style::red:
      return "\x1b[1;31m";
    case Style::magenta:
      return "\x1b[1;35m";
    case Style::blue:
      return "\x1b[1;34m";
  }
  return "";
}

}  // namespace

const Display& error_display() {
  static const Display display = find_display(stderr);
  return display;
}

const Display& output_display() {
  static const Display display = find_display(stdout);
  return display;
}

void use_plain_displays() { plain_wanted = true; }

std::string styled(const Display& display, Style style, std::string_view text) {
  if (!display.colour) return std::string(text);
  return std::string(sequence_of(style)).append(text).append("\x1b[0m");
}

}  // namespace tool
