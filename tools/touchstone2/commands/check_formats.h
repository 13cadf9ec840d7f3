/// The forms in which check tells what it has found: one class for each.
#ifndef TOUCHSTONE2_TOOL_CHECK_FORMATS_H
#define TOUCHSTONE2_TOOL_CHECK_FORMATS_H

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "diagnostics/report.h"
#include "inputs/source_file.h"
#include "terminal/ordered_output.h"

namespace tool {

enum class CheckFormat { text, gcc, json, sarif };

/// What became of one file.
struct Verdict {
  bool valid = false;
  bool done = true;     ///< false: the attempt to read has failed
  std::string failure;  ///< why the file could not be read to its end; empty if it could
  Counts counts;
  std::string error_code;            ///< "E2311"; empty without an error
  std::map<std::string, int> rules;  ///< the diagnostics' codes, if the form needs them
};

/// All files together.
struct Total {
  std::size_t files = 0;
  std::size_t refused = 0;
  std::size_t warnings = 0;
  bool done = true;
  std::vector<std::string> problems;  ///< what could not be checked, in no certain order
  std::map<std::string, int> rules;
  std::string error_code;  ///< of the first refused file
};

/// One form. The members may be called on several threads at once.
class CheckReport {
 public:
  using Write = std::function<void(Stream, std::string)>;
  /// Reads the file and tells the handler; the result has everything but `rules`.
  using Read = std::function<Verdict(CountingHandler&)>;

  virtual ~CheckReport() = default;

  virtual std::string begin() const { return ""; }
  /// Has one file read and writes what belongs to it.
  virtual Verdict tell(const SourceFile& source, const Read& read, const Write& write) const = 0;
  /// What stands between the texts that `tell` writes to standard output.
  virtual std::string separator() const { return ""; }
  virtual std::string end(const Total& total, int exit_code) const = 0;
};

std::unique_ptr<CheckReport> make_check_report(CheckFormat format, bool quiet);

}  // namespace tool

#endif
