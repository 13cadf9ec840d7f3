/// Where the tool lets diagnostics go: counted and printed, or counted and kept.
#ifndef TOUCHSTONE2_TOOL_REPORT_H
#define TOUCHSTONE2_TOOL_REPORT_H

#include <touchstone2/reader/message_handler.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tool {

/// How many diagnostics of each kind one file has given.
struct Counts {
  std::size_t errors = 0;
  std::size_t warnings = 0;
};

/// Base of the two below.
class CountingHandler : public touchstone2::MessageHandler {
 public:
  const Counts& counts() const { return counts_; }

 protected:
  Counts counts_;
};

/// Prints every diagnostic to standard error as it arises, in the library's standard form.
class PrintingHandler : public CountingHandler {
 public:
  void report_error(const touchstone2::File& file, const touchstone2::ParserError& error) override;
  void report_warning(const touchstone2::File& file,
                      const touchstone2::ParserWarning& warning) override;

 private:
  touchstone2::StandardMessageHandler standard_;
};

enum class Severity { warning, error };

/// A diagnostic that outlives its report. Texts are bytes of the file: any encoding.
struct Diagnostic {
  Severity severity;
  int code;
  std::size_t line;    ///< from 1; 0 when there is no position
  std::size_t column;  ///< from 1; 0 when there is no position
  std::string token;
  std::string message;
};

/// Keeps every diagnostic and prints nothing.
class CollectingHandler : public CountingHandler {
 public:
  void report_error(const touchstone2::File& file, const touchstone2::ParserError& error) override;
  void report_warning(const touchstone2::File& file,
                      const touchstone2::ParserWarning& warning) override;

  const std::vector<Diagnostic>& diagnostics() const { return diagnostics_; }

 private:
  std::vector<Diagnostic> diagnostics_;
};

}  // namespace tool

#endif
