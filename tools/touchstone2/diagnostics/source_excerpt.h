/// The line of a file that a diagnostic is about, with the place marked below it.
#ifndef TOUCHSTONE2_TOOL_SOURCE_EXCERPT_H
#define TOUCHSTONE2_TOOL_SOURCE_EXCERPT_H

#include <string>

#include "inputs/source_file.h"
#include "terminal/display.h"

namespace tool {

struct Diagnostic;

/// Two lines, no wider than the display:
///
///         5 | 150 0.1 0.2
///           | ^~~
///
/// A longer line is cut around the place. `line` holds the column of the diagnostic or ends
/// before it.
std::string source_excerpt(const SourceLine& line, const Diagnostic& diagnostic,
                           const Display& display);

}  // namespace tool

#endif
