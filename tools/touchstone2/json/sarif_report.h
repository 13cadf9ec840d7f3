/// The Static Analysis Results Interchange Format (SARIF) 2.1.0, which code review systems read:
/// one document for a run, in pieces, so that no more than a result is held at a time.
///
///     sarif_begin(), result, ",", result, ..., sarif_end(...)
#ifndef TOUCHSTONE2_TOOL_SARIF_REPORT_H
#define TOUCHSTONE2_TOOL_SARIF_REPORT_H

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "diagnostics/report.h"

namespace tool {

std::string sarif_begin();

/// One result, on a line of its own.
/// @param path    bytes, as a path is; the document holds a URI reference
/// @param column  of the diagnostic, counted in characters and not in bytes
std::string sarif_result(const std::string& path, const Diagnostic& diagnostic, std::size_t column);

/// What stands at the end of the document.
struct SarifRun {
  std::map<std::string, int> rules;        ///< those that a result has, as "E2311" and 2311
  std::vector<std::string> notifications;  ///< what could not be checked, and why
  bool is_successful = true;               ///< everything could be checked
  int exit_code = 0;
};

std::string sarif_end(const SarifRun& run);

/// The path as a URI reference: "/" between the parts, and every other byte percent-encoded that is
/// no letter, digit or one of "-._~". So a path that is no UTF-8 can be had back. An absolute path
/// is a "file" URI.
std::string uri_reference(std::string_view path);

}  // namespace tool

#endif
