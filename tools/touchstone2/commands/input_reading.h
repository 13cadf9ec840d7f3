/// Reading an input for a command that goes on with others whatever becomes of it: why an attempt
/// has failed is complained about.
#ifndef TOUCHSTONE2_TOOL_INPUT_READING_H
#define TOUCHSTONE2_TOOL_INPUT_READING_H

#include <string>

#include "inputs/source_file.h"
#include "json/json_report.h"

namespace tool {

/// Prints the diagnostics to standard error.
/// @param first_error  gets the code of the error, "E2311", unless it has one already
Outcome read_to_text(SourceFile& source, std::string& first_error);

/// Adds path, valid and diagnostics to the object.
Outcome read_to_json(SourceFile& source, Json& object);

}  // namespace tool

#endif
