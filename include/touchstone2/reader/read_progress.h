/// How far a read has got: for a display of progress, and for showing the source of a diagnostic.
///
///     touchstone2::ReadProgress progress;
///     parser.set_progress(&progress);
///     std::thread reading([&] { parser.read_file(); });
///     ... progress.bytes.load(std::memory_order_relaxed) ...   // meanwhile, from any thread
#ifndef TOUCHSTONE2_READER_READ_PROGRESS_H
#define TOUCHSTONE2_READER_READ_PROGRESS_H

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace touchstone2 {

/// Kept up to date by a Parser that was told of it. What it says stays after the read; the next
/// read starts it anew.
struct ReadProgress {
  /// Bytes of the file that are done with, brought up to date at least once for each line or
  /// record. Any thread may look at it at any time.
  std::atomic<std::uint64_t> bytes{0};

  /// The line that the reader has got to, from 1; 0 when the file could not be opened. Only for
  /// the thread that reads: in a handler's call, or when the read has returned. A diagnostic stands
  /// in this line or in an earlier one, not more than one record before it.
  std::size_t line = 0;

  /// Offset of the first byte of that line, in bytes from the begin of the file; for the same
  /// thread.
  std::uint64_t line_offset = 0;
};

}  // namespace touchstone2

#endif
