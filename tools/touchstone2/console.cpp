// Standard streams through C stdio: its errno tells a closed pipe from a full disk, which
// iostreams do not. Together with the implementations of TemporaryFile these are the files here
// that know one platform from another.

#include "console.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace tool {

namespace {

std::string reason_of(int error_number) { return std::generic_category().message(error_number); }

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
#endif
}

void write_output(std::string_view text) {
  errno = 0;
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (written && std::fflush(stdout) == 0) return;
  if (errno == EPIPE) throw ClosedPipe{};
  throw std::runtime_error("cannot write to standard output: " + reason_of(errno));
}

void complain(std::string_view text) {
  std::string line = "touchstone2: ";
  line.append(text).append("\n");
  std::fwrite(line.data(), 1, line.size(), stderr);
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
