/// A line at the terminal that says how far a long run is.
#ifndef TOUCHSTONE2_TOOL_PROGRESS_LINE_H
#define TOUCHSTONE2_TOOL_PROGRESS_LINE_H

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace tool {

/// Where a run is.
struct ProgressState {
  std::size_t files = 0;
  std::size_t files_done = 0;
  std::uint64_t bytes = 0;
  std::uint64_t bytes_done = 0;  ///< what need not be read any more
  std::uint64_t bytes_read = 0;  ///< less when a file was refused before its end
  double seconds = 0.0;
};

/// "12 of 3,456 files, 1.2 of 3.4 GB, 410 MB/s, 21 s left"; cut to what fits.
std::string progress_text(const ProgressState& state, std::size_t columns);

/// Shows and refreshes the line from the first second of a run on, until it is destroyed; only at
/// a terminal that can take it away again. Any thread may call the members.
class ProgressLine {
 public:
  /// @param size_of  the bytes of a file, counted from 0; asked for only at a terminal
  ProgressLine(std::size_t files, std::function<std::uint64_t(std::size_t)> size_of);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  ~ProgressLine();

  /// A file is being read, and `bytes` says how far, until end is called with it.
  void begin(const std::atomic<std::uint64_t>& bytes);
  void end(std::size_t file, const std::atomic<std::uint64_t>& bytes);

 private:
  void run();
  bool find_all_bytes();
  ProgressState state();

  const std::size_t files_;
  const std::function<std::uint64_t(std::size_t)> size_of_;
  std::uint64_t all_bytes_ = 0;
  std::mutex mutex_;
  std::condition_variable stopped_;
  bool stop_ = false;
  std::size_t files_done_ = 0;
  std::uint64_t bytes_done_ = 0;
  std::uint64_t bytes_read_ = 0;
  std::set<const std::atomic<std::uint64_t>*> open_;
  std::thread thread_;
};

}  // namespace tool

#endif
