// Where the readers note how far they have got, if anybody wants to know.
#ifndef TOUCHSTONE2_SRC_READER_PROGRESS_MARK_H
#define TOUCHSTONE2_SRC_READER_PROGRESS_MARK_H

#include <touchstone2/reader/read_progress.h>

#include <cstddef>
#include <cstdint>

namespace touchstone2 {

// Refers to the caller's ReadProgress and to the first byte of the file. Without the former
// nothing happens.
class ProgressMark {
 public:
  ProgressMark() = default;
  ProgressMark(ReadProgress* progress, const char* file_begin)
      : progress_(progress), file_begin_(file_begin) {}

  void bytes_done(const char* position) const {
    if (progress_ != nullptr) {
      progress_->bytes.store(offset_of(position), std::memory_order_relaxed);
    }
  }

  void line_begins(const char* line_start, std::size_t line) const {
    if (progress_ == nullptr) return;
    bytes_done(line_start);
    progress_->line = line;
    progress_->line_offset = offset_of(line_start);
  }

 private:
  std::uint64_t offset_of(const char* position) const {
    return static_cast<std::uint64_t>(position - file_begin_);
  }

  ReadProgress* progress_ = nullptr;
  const char* file_begin_ = nullptr;
};

}  // namespace touchstone2

#endif
