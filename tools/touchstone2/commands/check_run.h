/// Reading many files at once, told as if one had been read after the other.
#ifndef TOUCHSTONE2_TOOL_CHECK_RUN_H
#define TOUCHSTONE2_TOOL_CHECK_RUN_H

#include <atomic>
#include <cstddef>
#include <exception>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "commands/check_formats.h"
#include "inputs/source_file.h"
#include "terminal/ordered_output.h"
#include "terminal/progress_line.h"

namespace tool {

struct CheckRunOptions {
  std::size_t jobs = 1;  ///< files that are read at the same time
  Extent extent = Extent::whole;
  bool warnings_refuse = false;
};

class CheckRun {
 public:
  /// All are referred to and must outlive the run.
  CheckRun(const std::vector<std::string>& paths, const CheckReport& report,
           const CheckRunOptions& options);

  /// Reads the files and writes what the report says of each, in the order of the paths.
  /// @throws ClosedPipe, std::exception  what has ended the run early
  Total run();

 private:
  void work();
  void check(std::size_t job);
  Verdict read(SourceFile& source, CountingHandler& handler, const CheckReport::Write& write,
               std::size_t job);
  void add(const Verdict& verdict, std::size_t job);
  void add_problem(std::size_t job, const std::string& text);
  void write(Stream stream, const std::string& text);
  void fail(std::exception_ptr failure);

  const std::vector<std::string>& paths_;
  const CheckReport& report_;
  const CheckRunOptions& options_;
  OrderedOutput output_;
  ProgressLine progress_;
  bool has_written_ = false;
  std::atomic<std::size_t> next_job_{0};

  std::mutex mutex_;  // of what follows
  Total total_;
  std::map<std::size_t, std::string> problems_;
  std::map<std::size_t, std::string> error_codes_;  // the first one only
  std::exception_ptr failure_;
};

}  // namespace tool

#endif
