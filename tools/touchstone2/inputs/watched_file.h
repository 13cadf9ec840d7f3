/// A file that the library reads, seen from beside: whether it stays what it is meanwhile, and a
/// few of its bytes.
///
/// One implementation for each kind of system.
#ifndef TOUCHSTONE2_TOOL_WATCHED_FILE_H
#define TOUCHSTONE2_TOOL_WATCHED_FILE_H

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace tool {

/// Opens the file and remembers its size and the time of its last change. A file that cannot be
/// opened, or that is no ordinary one, has no bytes and never changes.
class WatchedFile {
 public:
  explicit WatchedFile(const std::string& name);
  WatchedFile(const WatchedFile&) = delete;
  WatchedFile& operator=(const WatchedFile&) = delete;
  ~WatchedFile();

  /// True when somebody has written to the file or cut it since. Another file that took its
  /// place under its name is no change.
  bool has_changed() const;

  /// Up to `count` bytes from `offset` on; fewer at the end of the file or when reading fails.
  std::string read_at(std::uint64_t offset, std::size_t count) const;

 private:
  struct System;
  std::unique_ptr<System> system_;
};

/// While it lives, a page of a mapped file that the system cannot deliver to this thread does not
/// end the process: the page then reads as zero bytes, and that is noted. Such a page lies behind
/// the new end of a file that was cut short, or on a disk that fails. One at a time a thread.
class PageFaultGuard {
 public:
  /// @param name  of the file, for a last word if even that does not work
  explicit PageFaultGuard(const std::string& name);
  PageFaultGuard(const PageFaultGuard&) = delete;
  PageFaultGuard& operator=(const PageFaultGuard&) = delete;
  ~PageFaultGuard();

  bool has_faulted() const;

 private:
  std::string last_words_;
};

}  // namespace tool

#endif
