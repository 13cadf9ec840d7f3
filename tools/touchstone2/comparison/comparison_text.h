/// A comparison as a page for people.
#ifndef TOUCHSTONE2_TOOL_COMPARISON_TEXT_H
#define TOUCHSTONE2_TOOL_COMPARISON_TEXT_H

#include <string>

#include "comparison/comparison.h"

namespace tool {

/// What differs, section by section, each ended by an empty line; empty if nothing does.
/// What comes from the files is shown with control characters made visible.
std::string comparison_text(const Comparison& comparison);

}  // namespace tool

#endif
