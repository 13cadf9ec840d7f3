// Widths first, then the lines.

#include "text/table.h"

#include <algorithm>

namespace tool {

namespace {

constexpr std::size_t kGap = 2;

std::vector<std::size_t> widths_of(const std::vector<Row>& rows) {
  std::vector<std::size_t> widths;
  for (const Row& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], width_of(row[i]));
  }
  return widths;
}

}  // namespace

std::string table_text(const std::vector<Row>& rows) {
  const std::vector<std::size_t> widths = widths_of(rows);
  std::string text;
  for (const Row& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      line.append(row[i]).append(widths[i] + kGap - width_of(row[i]), ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    text.append(line).append("\n");
  }
  return text;
}

std::size_t width_of(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

}  // namespace tool
