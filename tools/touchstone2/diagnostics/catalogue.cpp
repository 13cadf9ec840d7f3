// Takes the pages apart when they are first asked for. A page is
//
//     # E2308: title
//
//     the meaning
//
//     ## Example
//
//     a link to the example, and its text once more for readers of the page (not used here)
//
//     ## What to do
//
//     the remedy
//
// The second part is missing when no file's content raises the code.

#include "diagnostics/catalogue.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <tuple>

#include "diagnostics/pages.h"

namespace tool {

namespace {

constexpr std::string_view kPageEnding = ".md";
constexpr std::size_t kCodeLength = 5;  // "E2308"

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of('\n');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of('\n') - first + 1);
}

// Takes from the front of `page` what precedes `mark`, and the mark; the whole page when there
// is no mark.
std::string_view take_until(std::string_view& page, std::string_view mark) {
  const std::size_t end = page.find(mark);
  const std::string_view taken = page.substr(0, end);
  page.remove_prefix(end == std::string_view::npos ? page.size() : end + mark.size());
  return trimmed(taken);
}

// The example stands beside its page and has the page's name with another ending.
const EmbeddedFile* find_example(std::string_view code) {
  for (const EmbeddedFile& file : diagnostic_pages()) {
    if (file.name.starts_with(code) && !file.name.ends_with(kPageEnding)) return &file;
  }
  return nullptr;
}

Explanation explanation_of(const EmbeddedFile& page) {
  const std::string_view code = page.name.substr(0, kCodeLength);
  Explanation explanation{};
  explanation.is_warning = code.front() == 'W';
  std::from_chars(code.data() + 1, code.data() + code.size(), explanation.code);

  std::string_view rest = page.bytes;
  const std::string start = "# " + std::string(code) + ": ";
  if (!rest.starts_with(start)) throw std::logic_error(std::string(page.name) + ": no title");
  rest.remove_prefix(start.size());
  explanation.title = take_until(rest, "\n");

  std::string_view before_remedy = take_until(rest, "\n## What to do\n");
  explanation.meaning = take_until(before_remedy, "\n## Example\n");
  explanation.remedy = trimmed(rest);
  if (explanation.meaning.empty() || explanation.remedy.empty()) {
    throw std::logic_error(std::string(page.name) + ": no meaning, or nothing to do about it");
  }
  if (const EmbeddedFile* const example = find_example(code)) {
    explanation.example_name = example->name;
    explanation.example = example->bytes;
  }
  return explanation;
}

std::vector<Explanation> read_pages() {
  std::vector<Explanation> explanations;
  for (const EmbeddedFile& file : diagnostic_pages()) {
    if (file.name.ends_with(kPageEnding)) explanations.push_back(explanation_of(file));
  }
  std::sort(explanations.begin(), explanations.end(), [](const auto& a, const auto& b) {
    return std::tie(a.code, a.is_warning) < std::tie(b.code, b.is_warning);
  });
  return explanations;
}

std::string in_upper_case(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return upper;
}

}  // namespace

const std::vector<Explanation>& all_explanations() {
  static const std::vector<Explanation> explanations = read_pages();
  return explanations;
}

std::vector<const Explanation*> find_explanations(std::string_view text) {
  const std::string wanted = in_upper_case(text);
  std::vector<const Explanation*> found;
  for (const Explanation& explanation : all_explanations()) {
    const bool is_named = wanted == code_text(explanation);
    if (is_named || wanted == std::to_string(explanation.code)) found.push_back(&explanation);
  }
  return found;
}

std::string code_text(const Explanation& explanation) {
  return (explanation.is_warning ? "W" : "E") + std::to_string(explanation.code);
}

}  // namespace tool
