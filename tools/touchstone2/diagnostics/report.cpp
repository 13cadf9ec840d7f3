// Errors and warnings are unrelated classes with the same members, hence the one template.

#include "diagnostics/report.h"

#include <algorithm>
#include <utility>

#include "diagnostics/source_excerpt.h"
#include "terminal/console.h"
#include "text/cells.h"
#include "text/value_text.h"

namespace tool {

namespace {

// Of the warnings with one code in one file, on a terminal.
constexpr std::size_t kMostShown = 5;

template <typename ErrorOrWarning>
Diagnostic copy_of(Severity severity, const ErrorOrWarning& source, std::string standard_line) {
  return {severity,
          static_cast<int>(source.code()),
          source.line(),
          source.column(),
          source.token_text(),
          source.what(),
          std::move(standard_line)};
}

// The standard form in colours and with the line of the file below it.
std::string rich_text(const SourceFile& source, const Diagnostic& diagnostic) {
  const Display& display = error_display();
  const Style style = diagnostic.severity == Severity::error ? Style::red : Style::magenta;
  std::string text =
      styled(display, Style::bold, visible(place_text(source.name(), diagnostic))) + " " +
      styled(display, style,
             severity_text(diagnostic.severity) + " " + code_text(diagnostic) + ":") +
      " " + styled(display, Style::bold, message_line(diagnostic)) + "\n";
  if (const auto line = source.find_line(diagnostic.line, diagnostic.column)) {
    text += source_excerpt(*line, diagnostic, display);
  }
  return text;
}

}  // namespace

std::string code_text(const Diagnostic& diagnostic) {
  return (diagnostic.severity == Severity::error ? "E" : "W") + std::to_string(diagnostic.code);
}

std::string severity_text(Severity severity) {
  return severity == Severity::error ? "error" : "warning";
}

std::string place_text(const std::string& name, const Diagnostic& diagnostic) {
  std::string text = name + ":";
  if (diagnostic.line == 0) return text;
  text += std::to_string(diagnostic.line) + ":";
  if (diagnostic.column != 0) text += std::to_string(diagnostic.column) + ":";
  return text;
}

std::string message_line(const Diagnostic& diagnostic) {
  std::string line = diagnostic.message;
  for (std::size_t end = line.find('\n'); end != std::string::npos; end = line.find('\n')) {
    const std::size_t next = std::min(line.find_first_not_of(" \n", end), line.size());
    line.replace(end, next - end, " ");
  }
  return visible(line);
}

void CountingHandler::report_error(const touchstone2::File& file,
                                   const touchstone2::ParserError& error) {
  ++counts_.errors;
  Diagnostic diagnostic = copy_of(
      Severity::error, error, touchstone2::StandardMessageHandler().report_error_msg(file, error));
  error_code_ = code_text(diagnostic);
  take(std::move(diagnostic));
}

void CountingHandler::report_warning(const touchstone2::File& file,
                                     const touchstone2::ParserWarning& warning) {
  ++counts_.warnings;
  take(copy_of(Severity::warning, warning,
               touchstone2::StandardMessageHandler().report_warning_msg(file, warning)));
}

PrintingHandler::PrintingHandler(const SourceFile& source, TextSink sink)
    : source_(source), sink_(std::move(sink)) {}

void PrintingHandler::take(Diagnostic diagnostic) {
  if (!error_display().rich) return sink_(diagnostic.standard_line);
  if (diagnostic.severity == Severity::error) {
    finish();  // the error ends the read, and so it ends the list
  } else if (++warnings_[diagnostic.code] > kMostShown) {
    return;
  }
  sink_(rich_text(source_, diagnostic));
}

void PrintingHandler::finish() {
  for (const auto& [code, count] : warnings_) {
    if (count <= kMostShown) continue;
    const std::size_t more = count - kMostShown;
    sink_("\xe2\x80\xa6 and " + grouped(more) +
          (more == 1 ? " more warning W" : " more warnings W") + std::to_string(code) + " in " +
          visible(source_.name()) + "\n");
  }
  warnings_.clear();
}

void CollectingHandler::take(Diagnostic diagnostic) {
  diagnostics_.push_back(std::move(diagnostic));
}

bool read_and_print(SourceFile& source, Extent extent) {
  PrintingHandler handler(source, write_error);
  const bool valid = source.read(handler, extent);
  handler.finish();
  write_error(explain_hint(handler.error_code()));
  return valid;
}

std::string explain_hint(const std::string& error_code) {
  if (!error_display().rich || error_code.empty()) return "";
  return "for more about an error, try `touchstone2 explain " + error_code + "`\n";
}

}  // namespace tool
