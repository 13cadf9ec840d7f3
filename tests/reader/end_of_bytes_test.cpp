// POSIX systems only: nothing looks behind the last byte. The bytes end where the next page must
// not be touched, as those of a mapped file may.
#include <touchstone2/touchstone2.h>

#include <cstddef>
#include <cstring>
#include <new>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include "support/reading.h"

namespace touchstone2::test {
namespace {

class GuardedBytes {
 public:
  explicit GuardedBytes(std::size_t most) {
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    room_ = (most + page - 1) / page * page;
    size_ = room_ + page;
    void* const begin =
        ::mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (begin == MAP_FAILED) throw std::bad_alloc();
    begin_ = static_cast<char*>(begin);
    ::mprotect(begin_ + room_, page, PROT_NONE);
  }
  GuardedBytes(const GuardedBytes&) = delete;
  GuardedBytes& operator=(const GuardedBytes&) = delete;
  ~GuardedBytes() { ::munmap(begin_, size_); }

  std::string_view copy(std::string_view text) {
    char* const to = begin_ + room_ - text.size();
    std::memcpy(to, text.data(), text.size());
    return {to, text.size()};
  }

 private:
  char* begin_ = nullptr;
  std::size_t room_ = 0;
  std::size_t size_ = 0;
};

std::string version_2_header(const char* matrix) {
  return std::string(
             "[Version] 2.0\n# MHz S RI\n[Number of Ports] 2\n"
             "[Two-Port Data Order] 12_21\n[Number of Frequencies] 3\n[Matrix Format] ") +
         matrix + "\n[Network Data]\n";
}

// Three records. Each has `lines` lines, none of them indented.
std::string records(std::size_t lines, std::size_t pairs, const std::string& number) {
  std::string text;
  for (int point = 1; point <= 3; ++point) {
    text += std::to_string(point) + ".25" + std::string(number.size() / 2, '0') + " ";
    for (std::size_t line = 0; line < lines; ++line) {
      for (std::size_t k = 0; k < pairs; ++k) text += (k == 0 ? "" : " ") + number + " -" + number;
      text += "\n";
    }
  }
  return text;
}

// One number is nearly as long as the fast way through the data takes them.
TEST(EndOfBytes, IsTheEnd) {
  const std::string numbers[] = {"0.25", "12345678.12345678", "1.5" + std::string(57, '0')};
  for (const std::string& number : numbers) {
    const std::string texts[] = {
        "# MHz S RI R 50\n" + records(1, 1, number),
        "# MHz S RI R 50\n" + records(1, 4, number) + "0.5 1 0.5 30 " + number,
        "# MHz S RI R 50\n" + records(3, 3, number),
        version_2_header("Full") + records(2, 2, number) + "[End]",
        version_2_header("Upper") + records(1, 3, number) + "[End] ! port 1",
    };
    for (const std::string& text : texts) {
      GuardedBytes guarded(text.size());
      for (std::size_t cut = 0; cut < 250 && cut + 100 < text.size(); ++cut) {
        const std::string_view beginning = std::string_view(text).substr(0, text.size() - cut);
        SCOPED_TRACE(beginning);
        const ReadResult expected = read_text(std::string(beginning));
        const ReadResult found = read_text(guarded.copy(beginning));
        ASSERT_EQ(found.brief_diagnostics(), expected.brief_diagnostics());
        ASSERT_TRUE(found.file == expected.file);
      }
    }
  }
}

}  // namespace
}  // namespace touchstone2::test
