// The two handlers. Errors and warnings are unrelated classes with the same members, hence
// the one template.

#include "diagnostics/report.h"

namespace tool {

namespace {

template <typename ErrorOrWarning>
Diagnostic copy_of(Severity severity, const ErrorOrWarning& source) {
  return {severity,
          static_cast<int>(source.code()),
          source.line(),
          source.column(),
          source.token_text(),
          source.what()};
}

}  // namespace

void PrintingHandler::report_error(const touchstone2::File& file,
                                   const touchstone2::ParserError& error) {
  ++counts_.errors;
  standard_.report_error(file, error);
}

void PrintingHandler::report_warning(const touchstone2::File& file,
                                     const touchstone2::ParserWarning& warning) {
  ++counts_.warnings;
  standard_.report_warning(file, warning);
}

void CollectingHandler::report_error(const touchstone2::File& /*file*/,
                                     const touchstone2::ParserError& error) {
  ++counts_.errors;
  diagnostics_.push_back(copy_of(Severity::error, error));
}

void CollectingHandler::report_warning(const touchstone2::File& /*file*/,
                                       const touchstone2::ParserWarning& warning) {
  ++counts_.warnings;
  diagnostics_.push_back(copy_of(Severity::warning, warning));
}

}  // namespace tool
