// Works block by block: a block is a paragraph or one item of a list.

#include "text/plain_text.h"

#include <utility>
#include <vector>

namespace tool {

namespace {

constexpr std::string_view kItemMark = "- ";

struct Block {
  bool is_item = false;
  std::string text;  // on one line
};

std::string_view take_line(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

std::string_view without_indentation(std::string_view line) {
  const std::size_t first = line.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view() : line.substr(first);
}

std::vector<Block> blocks_of(std::string_view markdown) {
  std::vector<Block> blocks;
  bool begins = true;
  while (!markdown.empty()) {
    std::string_view line = without_indentation(take_line(markdown));
    const bool is_item = line.starts_with(kItemMark);
    if (is_item) line.remove_prefix(kItemMark.size());
    if (line.empty()) {
      begins = true;
      continue;
    }
    if (begins || is_item) {
      blocks.push_back({is_item, std::string(line)});
    } else {
      blocks.back().text.append(" ").append(line);
    }
    begins = false;
  }
  return blocks;
}

// "[text](target)" becomes "text".
std::string without_links(std::string text) {
  for (std::size_t middle = 0; (middle = text.find("](", middle)) != std::string::npos;) {
    const std::size_t end = text.find(')', middle);
    const std::size_t begin = text.rfind('[', middle);
    if (end == std::string::npos || begin == std::string::npos) break;
    text.erase(middle, end - middle + 1);
    text.erase(begin, 1);
  }
  return text;
}

// Split at the blanks that are not between backquotes.
std::vector<std::string> words_of(std::string_view text) {
  std::vector<std::string> words(1);
  bool in_code = false;
  for (const char c : text) {
    if (c == '`') in_code = !in_code;
    if (c == ' ' && !in_code) {
      words.emplace_back();
    } else {
      words.back() += c == '`' ? '"' : c;
    }
  }
  return words;
}

void append_wrapped(std::string& page, const Block& block, std::size_t width) {
  std::string line = block.is_item ? "  - " : "";
  const std::size_t indentation = line.size();
  for (const std::string& word : words_of(without_links(block.text))) {
    const bool has_words = line.size() > indentation;
    if (has_words && line.size() + 1 + word.size() > width) {
      page.append(line).append("\n");
      line.assign(indentation, ' ');
    } else if (has_words) {
      line += ' ';
    }
    line += word;
  }
  page.append(line).append("\n");
}

}  // namespace

std::string plain_text(std::string_view markdown, std::size_t width) {
  std::string page;
  bool after_item = false;
  for (const Block& block : blocks_of(markdown)) {
    const bool goes_on = after_item && block.is_item;
    if (!page.empty() && !goes_on) page += '\n';
    append_wrapped(page, block, width);
    after_item = block.is_item;
  }
  return page;
}

}  // namespace tool
