// Nothing here asks the locale: a terminal is taken to be one for UTF-8. The ranges are coarse on
// purpose; a rare character of another width only moves a caret.

#include "text/cells.h"

#include <algorithm>
#include <array>

namespace tool {

namespace {

constexpr std::size_t kTabStop = 8;

struct Range {
  char32_t first;
  char32_t last;
};

// Controls, invisible characters, and those that reorder a line.
constexpr std::array<Range, 9> kNotShown = {{{0x00, 0x1F},
                                             {0x7F, 0x9F},
                                             {0xAD, 0xAD},
                                             {0x61C, 0x61C},
                                             {0x200B, 0x200F},
                                             {0x2028, 0x202E},
                                             {0x2060, 0x206F},
                                             {0xFEFF, 0xFEFF},
                                             {0xFFF9, 0xFFFB}}};
constexpr std::array<Range, 5> kJoining = {
    {{0x300, 0x36F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF}, {0x20D0, 0x20FF}, {0xFE00, 0xFE2F}}};
constexpr std::array<Range, 10> kWide = {{{0x1100, 0x115F},
                                          {0x2E80, 0x303E},
                                          {0x3041, 0xA4CF},
                                          {0xAC00, 0xD7A3},
                                          {0xF900, 0xFAFF},
                                          {0xFE30, 0xFE6F},
                                          {0xFF00, 0xFF60},
                                          {0xFFE0, 0xFFE6},
                                          {0x1F300, 0x1FAFF},
                                          {0x20000, 0x3FFFD}}};

template <std::size_t N>
bool is_in(const std::array<Range, N>& ranges, char32_t c) {
  return std::any_of(ranges.begin(), ranges.end(),
                     [c](const Range& range) { return range.first <= c && c <= range.last; });
}

struct Character {
  char32_t value = 0;
  std::size_t bytes = 0;  // 0: the bytes are not UTF-8
};

// What a first byte says, and the least value that needs so many bytes.
struct Lead {
  unsigned char mask;
  unsigned char mark;
  char32_t least;
};
constexpr std::array<Lead, 4> kLeads = {
    {{0x80, 0x00, 0x00}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};

Character first_character(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  for (std::size_t more = 0; more < kLeads.size() && more < text.size(); ++more) {
    const Lead& lead = kLeads[more];
    if ((first & lead.mask) != lead.mark) continue;
    char32_t value = first & static_cast<unsigned char>(~lead.mask);
    for (std::size_t i = 1; i <= more; ++i) {
      const auto byte = static_cast<unsigned char>(text[i]);
      if ((byte & 0xC0) != 0x80) return {};
      value = value << 6 | (byte & 0x3F);
    }
    const bool is_surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < lead.least || value > 0x10FFFF || is_surrogate) return {};
    return {value, more + 1};
  }
  return {};
}

std::string hexadecimal(std::string_view bytes) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text.append("\\x").append({kHex[byte >> 4], kHex[byte & 0x0F]});
  }
  return text;
}

// The first character of `rest`, which begins at byte `begin` and is shown at `cell`.
Glyph first_glyph(std::string_view rest, std::size_t begin, std::size_t cell,
                  std::size_t& bytes_taken) {
  const Character character = first_character(rest);
  bytes_taken = std::max<std::size_t>(character.bytes, 1);
  const std::string_view bytes = rest.substr(0, bytes_taken);
  if (bytes == "\t") {
    const std::size_t cells = kTabStop - cell % kTabStop;
    return {std::string(cells, ' '), begin, cell, cells};
  }
  if (character.bytes == 0 || is_in(kNotShown, character.value)) {
    std::string text = hexadecimal(bytes);
    const std::size_t cells = text.size();
    return {std::move(text), begin, cell, cells};
  }
  if (is_in(kJoining, character.value)) return {std::string(bytes), begin, cell, 0};
  const std::size_t cells = is_in(kWide, character.value) ? 2 : 1;
  return {std::string(bytes), begin, cell, cells};
}

}  // namespace

std::vector<Glyph> to_glyphs(std::string_view line) {
  std::vector<Glyph> glyphs;
  std::size_t cell = 0;
  for (std::size_t begin = 0; begin < line.size();) {
    std::size_t bytes_taken = 0;
    glyphs.push_back(first_glyph(line.substr(begin), begin, cell, bytes_taken));
    cell += glyphs.back().cells;
    begin += bytes_taken;
  }
  return glyphs;
}

std::string visible(std::string_view text) {
  std::string result;
  for (const Glyph& glyph : to_glyphs(text)) result += glyph.text;
  return result;
}

}  // namespace tool
