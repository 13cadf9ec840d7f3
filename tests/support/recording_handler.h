// A message handler that keeps what it is told, in the order in which it is told.
#ifndef TOUCHSTONE2_TESTS_SUPPORT_RECORDING_HANDLER_H
#define TOUCHSTONE2_TESTS_SUPPORT_RECORDING_HANDLER_H

#include <touchstone2/reader/message_handler.h>

#include <string>
#include <vector>

namespace touchstone2::test {

struct Diagnostic {
  enum class Severity { warning, error };

  Severity severity;
  int code;
  std::size_t line;
  std::size_t column;
  std::string token;
  std::string message;
};

// "E2007 12:5 'foo'": what tests compare. The message is compared on its own.
inline std::string brief(const Diagnostic& diagnostic) {
  return (diagnostic.severity == Diagnostic::Severity::error ? "E" : "W") +
         std::to_string(diagnostic.code) + " " + std::to_string(diagnostic.line) + ":" +
         std::to_string(diagnostic.column) + " '" + diagnostic.token + "'";
}

class RecordingHandler : public MessageHandler {
 public:
  void report_error(const File&, const ParserError& error) override {
    record(Diagnostic::Severity::error, error);
  }
  void report_warning(const File&, const ParserWarning& warning) override {
    record(Diagnostic::Severity::warning, warning);
  }

  std::vector<Diagnostic> diagnostics;

 private:
  template <typename T>
  void record(Diagnostic::Severity severity, const T& diagnostic) {
    diagnostics.push_back({severity, static_cast<int>(diagnostic.code()), diagnostic.line(),
                           diagnostic.column(), diagnostic.token_text(), diagnostic.what()});
  }
};

}  // namespace touchstone2::test

#endif
