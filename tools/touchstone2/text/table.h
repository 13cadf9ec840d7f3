/// Texts in columns.
#ifndef TOUCHSTONE2_TOOL_TABLE_H
#define TOUCHSTONE2_TOOL_TABLE_H

#include <string>
#include <vector>

namespace tool {

using Row = std::vector<std::string>;

/// One line for each row, without blanks at its end. Columns are as wide as their widest text,
/// which is counted in characters of UTF-8, and two blanks apart.
std::string table_text(const std::vector<Row>& rows);

/// How many characters wide a UTF-8 text is shown: its bytes but those that continue one.
std::size_t width_of(const std::string& text);

}  // namespace tool

#endif
