// Columns count bytes, the terminal counts cells; glyphs know both.

#include "diagnostics/source_excerpt.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "diagnostics/report.h"
#include "text/cells.h"

namespace tool {

namespace {

constexpr std::string_view kEllipsis = "\xe2\x80\xa6";  // one cell
constexpr std::size_t kNumberCells = 5;                 // of the line number, if it is no longer
constexpr std::size_t kLongestToken = 127;              // a diagnostic keeps no more of a word

// Cells from `begin` up to `end`.
struct Cells {
  std::size_t begin;
  std::size_t end;

  std::size_t size() const { return end - begin; }
};

char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Tokens are in lower case.
bool starts_with(std::string_view text, std::string_view token) {
  return text.size() >= token.size() &&
         std::equal(token.begin(), token.end(), text.begin(),
                    [](char of_token, char c) { return of_token == c || of_token == to_lower(c); });
}

// How many bytes of `rest`, which begins at the diagnostic's column, are the token. A keyword's
// text is what its brackets hold.
std::size_t token_length(std::string_view rest, std::string_view token) {
  if (rest.starts_with('[') && starts_with(rest.substr(1), token)) {
    return std::min(rest.find(']'), rest.size() - 1) + 1;
  }
  if (token.empty() || !starts_with(rest, token)) return 1;
  if (token.size() < kLongestToken) return token.size();
  return std::min(rest.find_first_of(" \t!", token.size()), rest.size());
}

// Of the bytes from `begin` up to `end`, at least one cell.
Cells cells_of(const std::vector<Glyph>& glyphs, std::size_t begin, std::size_t end) {
  Cells cells{0, 0};
  for (const Glyph& glyph : glyphs) {
    if (glyph.begin <= begin) cells.begin = glyph.cell;
    if (glyph.begin < end) cells.end = glyph.cell + glyph.cells;
  }
  return {cells.begin, std::max(cells.end, cells.begin + 1)};
}

// What is shown of a line of `all` cells: at most `room`, with what is marked inside.
Cells shown_cells(std::size_t all, Cells marked, std::size_t room) {
  if (std::max(all, marked.end) <= room) return {0, std::max(all, marked.end)};
  const std::size_t before = marked.size() >= room ? room / 4 : (room - marked.size()) / 2;
  const std::size_t latest = std::max(all, marked.begin + 1) - std::min(all, room);
  const std::size_t begin = std::min(marked.begin - std::min(marked.begin, before), latest);
  return {begin, begin + room};
}

// An ellipsis takes the first or last cell where something is cut away.
std::string cut_text(const std::vector<Glyph>& glyphs, Cells shown, std::size_t all,
                     bool begins_earlier) {
  const bool cut_left = shown.begin > 0 || begins_earlier;
  const bool cut_right = shown.end < all;
  std::string text(cut_left ? kEllipsis : "");
  std::size_t cell = shown.begin + (cut_left ? 1 : 0);
  const std::size_t end = shown.end - (cut_right ? 1 : 0);
  for (const Glyph& glyph : glyphs) {
    if (glyph.cell < cell || glyph.cell + glyph.cells > end) continue;
    text.append(glyph.cell - cell, ' ').append(glyph.text);
    cell = glyph.cell + glyph.cells;
  }
  if (cut_right) text.append(end - std::min(end, cell), ' ').append(kEllipsis);
  return text;
}

}  // namespace

std::string source_excerpt(const SourceLine& line, const Diagnostic& diagnostic,
                           const Display& display) {
  const std::size_t begin_byte = diagnostic.column - line.first_column;
  const std::string_view rest =
      std::string_view(line.bytes).substr(std::min(begin_byte, line.bytes.size()));
  const std::vector<Glyph> glyphs = to_glyphs(line.bytes);
  const std::size_t all = glyphs.empty() ? 0 : glyphs.back().cell + glyphs.back().cells;
  const Cells marked = rest.empty() ? Cells{all, all + 1}
                                    : cells_of(glyphs, begin_byte,
                                               begin_byte + token_length(rest, diagnostic.token));

  std::string number = std::to_string(diagnostic.line);
  number.insert(0, kNumberCells - std::min(kNumberCells, number.size()), ' ');
  const std::string gutter = number + " | ";
  // The last column stays free: some terminals begin a new line when it is written.
  const std::size_t taken = gutter.size() + 1;
  const std::size_t room = display.columns > taken + 8 ? display.columns - taken : 8;
  const Cells shown = shown_cells(all, marked, room);

  const std::size_t mark_end = std::min(marked.end, shown.end);
  std::string mark(marked.begin - shown.begin, ' ');
  mark += styled(display, diagnostic.severity == Severity::error ? Style::red : Style::magenta,
                 "^" + std::string(mark_end - marked.begin - 1, '~'));
  const std::string blank_gutter = std::string(number.size(), ' ') + " | ";
  return styled(display, Style::blue, gutter) +
         cut_text(glyphs, shown, all, line.first_column > 1) + "\n" +
         styled(display, Style::blue, blank_gutter) + mark + "\n";
}

}  // namespace tool
