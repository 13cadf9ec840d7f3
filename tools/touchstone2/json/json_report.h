/// The tool's JSON: one object a line (JSON Lines).
///
/// JSON is UTF-8, but paths and texts of files may be any bytes: every malformed sequence is
/// written as U+FFFD, the replacement character. The bytes themselves are not recoverable
/// from the output; line and column still point at them.
#ifndef TOUCHSTONE2_TOOL_JSON_REPORT_H
#define TOUCHSTONE2_TOOL_JSON_REPORT_H

#include <touchstone2/model/file.h>

#include <string>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include "diagnostics/report.h"

namespace tool {

/// Members in the order in which they are added.
using Json = nlohmann::ordered_json;

/// Of all JSON that the tool prints; docs/schemas has the schema. A new member does not change it,
/// one that goes or gets another meaning does.
constexpr int kSchemaVersion = 1;

/// {"schema_version": ...}, to which a command adds its own members.
Json versioned_object();

/// Adds path, valid and diagnostics. A diagnostic has severity ("error" or "warning"), code, line,
/// column (null when there is no position), token and message.
/// @param failure  why the file could not be read to its end; without a reason it is not added
void add_verdict(Json& object, const std::string& path, bool valid,
                 const std::vector<Diagnostic>& diagnostics, const std::string& failure);

/// What a valid file holds, without its data. Looks for the port names.
Json file_to_json(const touchstone2::File& file);

/// The object and a line end. Never throws because of the bytes in a text.
std::string json_line(const Json& object);

}  // namespace tool

#endif
