/// How the example of a diagnostic is shown, on the terminal and on its page.
#ifndef TOUCHSTONE2_TOOL_EXAMPLE_TEXT_H
#define TOUCHSTONE2_TOOL_EXAMPLE_TEXT_H

#include <string>

#include "diagnostics/catalogue.h"

namespace tool {

/// The example's lines with their numbers, a blank line, and what reading the example reports,
/// all in printable ASCII and without an indentation. The explanation must have an example.
std::string example_text(const Explanation& explanation);

}  // namespace tool

#endif
