/// A comparison as JSON; docs/schemas/diff-1.json says what the members mean.
#ifndef TOUCHSTONE2_TOOL_COMPARISON_JSON_H
#define TOUCHSTONE2_TOOL_COMPARISON_JSON_H

#include "comparison/comparison.h"
#include "json/json_report.h"

namespace tool {

/// Adds content, form, comments, network and noise to `object`.
void add_comparison(Json& object, const Comparison& comparison);

}  // namespace tool

#endif
