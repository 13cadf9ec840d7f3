// File name to bytes. One source file per platform implements this class; no other file knows
// the platform.
#ifndef TOUCHSTONE2_SRC_READER_MAPPED_FILE_H
#define TOUCHSTONE2_SRC_READER_MAPPED_FILE_H

#include <cstddef>
#include <string>
#include <string_view>

namespace touchstone2 {

// A whole file, mapped read-only. Nothing is copied. On POSIX systems the file itself is closed
// again as soon as it is mapped; on Windows it stays open, which keeps writers out.
class MappedFile {
 public:
  // `name` is UTF-8. Throws ParserError with
  //   1001  an empty name, no such file, no permission, a directory; a file that another
  //         process has locked: on Windows every file that is open for writing, on POSIX
  //         systems one with an exclusive lock (fcntl or flock)
  //   1002  what opens but is no regular file (FIFO, device), at once and without blocking;
  //         a file that cannot be mapped
  //   1003  a file of zero bytes
  explicit MappedFile(const std::string& name);
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;
  ~MappedFile();

  // At least one byte; good as long as this object.
  std::string_view bytes() const { return {base_, size_}; }

 private:
  const char* base_ = nullptr;
  std::size_t size_ = 0;
  [[maybe_unused]] void* file_ = nullptr;  // the open file; Windows only
};

}  // namespace touchstone2

#endif
