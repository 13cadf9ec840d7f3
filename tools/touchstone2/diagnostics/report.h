/// Where the tool lets diagnostics go: counted and printed, or counted and kept.
#ifndef TOUCHSTONE2_TOOL_REPORT_H
#define TOUCHSTONE2_TOOL_REPORT_H

#include <touchstone2/reader/message_handler.h>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "inputs/source_file.h"
#include "terminal/display.h"

namespace tool {

/// How many diagnostics of each kind one file has given.
struct Counts {
  std::size_t errors = 0;
  std::size_t warnings = 0;
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
  std::string standard_line;  ///< all of it as the library prints it, with a line end
};

/// "E2311" or "W2005".
std::string code_text(const Diagnostic& diagnostic);

/// "error" or "warning".
std::string severity_text(Severity severity);

/// "amp.s2p:12:5:", or less when there is no column or no line.
std::string place_text(const std::string& name, const Diagnostic& diagnostic);

/// The message on one line of a terminal; some of the library's have more than one.
std::string message_line(const Diagnostic& diagnostic);

/// Counts, and leaves what else is done to a derived class.
class CountingHandler : public touchstone2::MessageHandler {
 public:
  void report_error(const touchstone2::File& file, const touchstone2::ParserError& error) final;
  void report_warning(const touchstone2::File& file,
                      const touchstone2::ParserWarning& warning) final;

  const Counts& counts() const { return counts_; }
  /// Of the error, as "E2311"; empty when there was none.
  const std::string& error_code() const { return error_code_; }

 private:
  virtual void take(Diagnostic diagnostic) = 0;

  Counts counts_;
  std::string error_code_;
};

/// Takes a text for standard error, or for what stands for it.
using TextSink = std::function<void(const std::string&)>;

/// Prints every diagnostic as it arises. To people at a terminal with its line of the file, and
/// of many warnings that are alike only the first few; else in the library's standard form.
class PrintingHandler : public CountingHandler {
 public:
  /// @param source  what is being read; must outlive the handler
  PrintingHandler(const SourceFile& source, TextSink sink);

  /// Tells how many warnings were not shown. Call it when the read has ended.
  void finish();

 private:
  void take(Diagnostic diagnostic) override;

  const SourceFile& source_;
  TextSink sink_;
  std::map<int, std::size_t> warnings_;  // how many of each code
};

/// Keeps every diagnostic and prints nothing.
class CollectingHandler : public CountingHandler {
 public:
  const std::vector<Diagnostic>& diagnostics() const { return diagnostics_; }

 private:
  void take(Diagnostic diagnostic) override;

  std::vector<Diagnostic> diagnostics_;
};

/// Hands every diagnostic on.
class ForwardingHandler : public CountingHandler {
 public:
  using Target = std::function<void(const Diagnostic&)>;
  explicit ForwardingHandler(Target target) : target_(std::move(target)) {}

 private:
  void take(Diagnostic diagnostic) override { target_(diagnostic); }

  Target target_;
};

/// Reads and prints the diagnostics to standard error, as every command does that has no other
/// form for them.
/// @return false when the file is refused
bool read_and_print(SourceFile& source, Extent extent);

/// At a terminal: where to read on about an error. Else nothing, and nothing for no code.
std::string explain_hint(const std::string& error_code);

}  // namespace tool

#endif
