// The pages of docs/diagnostics: complete, true, and inside the tool as they lie in the folder.
//
//     touchstone2_tool_tests --update    rewrites the examples' texts; read the difference
#include "diagnostics/catalogue.h"

#include <touchstone2/reader/error_type.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "diagnostics/example_text.h"
#include "diagnostics/pages.h"
#include "support/reading.h"

namespace tool {
namespace {

namespace fs = std::filesystem;
namespace test = touchstone2::test;

bool update = false;

const fs::path kFolder = TOUCHSTONE2_DIAGNOSTIC_PAGES;

std::string content_of(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

std::string fixed_message(int code) {
  return touchstone2::error_message(static_cast<touchstone2::ErrorType>(code));
}

bool is_heading(int code) { return code % 100 == 0; }

// "E2308" of each diagnostic, in the order of the reports.
std::vector<std::string> codes_in(const std::string& text) {
  std::vector<std::string> codes;
  for (const test::Diagnostic& diagnostic : test::read_text(text).diagnostics) {
    const bool is_error = diagnostic.severity == test::Diagnostic::Severity::error;
    codes.push_back((is_error ? "E" : "W") + std::to_string(diagnostic.code));
  }
  return codes;
}

std::vector<std::string> lines_of(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::size_t size = end == std::string_view::npos ? text.size() : end + 1;
    lines.emplace_back(text.substr(0, size));
    text.remove_prefix(size);
  }
  return lines;
}

std::string without_line(const std::vector<std::string>& lines, std::size_t left_out) {
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i != left_out) text += lines[i];
  }
  return text;
}

std::string link_to(const std::string& target, const std::string& text) {
  return "[" + text + "](" + target + ")";
}

TEST(Catalogue, EveryCodeHasAPageAndEveryPageACode) {
  const std::set<int> warnings = {2003, 2005, 2010, 2106, 2301, 2302, 2321};
  std::vector<std::string> expected;
  for (int code = 0; code < 4000; ++code) {
    if (fixed_message(code) == fixed_message(-1)) continue;
    if (warnings.count(code) == 0 || code == 2003) expected.push_back("E" + std::to_string(code));
    if (warnings.count(code) == 1) expected.push_back("W" + std::to_string(code));
  }
  std::vector<std::string> found;
  for (const Explanation& explanation : all_explanations()) found.push_back(code_text(explanation));
  EXPECT_EQ(found, expected);
}

TEST(Catalogue, TitlesBeginWithTheFixedMessage) {
  std::set<std::string> longer;
  for (const Explanation& explanation : all_explanations()) {
    const std::string message = fixed_message(explanation.code);
    EXPECT_TRUE(explanation.title.starts_with(message)) << explanation.title;
    if (explanation.title != message) longer.insert(code_text(explanation));
  }
  EXPECT_EQ(longer, std::set<std::string>{"W2003"});  // its message is that of E2003
}

TEST(Catalogue, OnlyCodesThatNoContentRaisesHaveNoExample) {
  const std::set<int> without = {1001, 1002, 2303};
  for (const Explanation& explanation : all_explanations()) {
    const bool expected = !is_heading(explanation.code) && without.count(explanation.code) == 0;
    EXPECT_EQ(!explanation.example_name.empty(), expected) << code_text(explanation);
  }
}

TEST(Catalogue, EveryExampleRaisesItsCodeAndNoOther) {
  for (const Explanation& explanation : all_explanations()) {
    if (explanation.example_name.empty()) continue;
    const std::vector<std::string> expected = {code_text(explanation)};
    EXPECT_EQ(codes_in(std::string(explanation.example)), expected) << explanation.example_name;
  }
}

// What "smallest" means.
TEST(Catalogue, NoLineOfAnExampleCanBeLeftOut) {
  for (const Explanation& explanation : all_explanations()) {
    const std::vector<std::string> lines = lines_of(explanation.example);
    const std::vector<std::string> code = {code_text(explanation)};
    for (std::size_t i = 0; i < lines.size(); ++i) {
      EXPECT_NE(codes_in(without_line(lines, i)), code)
          << explanation.example_name << ", line " << i + 1;
    }
  }
}

TEST(Catalogue, EveryPageShowsItsExample) {
  for (const Explanation& explanation : all_explanations()) {
    const fs::path path = kFolder / (code_text(explanation) + ".md");
    std::string page = content_of(path);
    const std::string heading = "\n## Example\n";
    const std::size_t begin = page.find(heading);
    if (explanation.example_name.empty()) {
      EXPECT_EQ(begin, std::string::npos) << path;
      continue;
    }
    const std::size_t end = page.find("\n## What to do\n");
    ASSERT_LT(begin, end) << path;
    const std::string name(explanation.example_name);
    std::string expected = heading + "\n" + link_to(name, name);
    expected.append("\n\n```text\n").append(example_text(explanation)).append("```\n");
    EXPECT_EQ(page.substr(begin, end - begin), expected) << path;
    if (update) std::ofstream(path, std::ios::binary) << page.replace(begin, end - begin, expected);
  }
}

TEST(Catalogue, TheToolCarriesTheFilesOfTheFolder) {
  std::map<std::string, std::string> expected;
  for (const auto& entry : fs::directory_iterator(kFolder)) {
    const std::string name = entry.path().filename().string();
    const bool belongs_to_code = name.front() == 'E' || name.front() == 'W';
    if (belongs_to_code) expected[name] = content_of(entry.path());
  }
  std::map<std::string, std::string> found;
  for (const EmbeddedFile& file : diagnostic_pages()) found[std::string(file.name)] = file.bytes;
  EXPECT_EQ(found, expected);
}

TEST(Catalogue, TheIndexHasARowForEveryPage) {
  std::vector<std::string> expected;
  for (const Explanation& explanation : all_explanations()) {
    const std::string code = code_text(explanation);
    const std::string kind = is_heading(explanation.code) ? "heading"
                             : explanation.is_warning     ? "warning"
                                                          : "error";
    std::string row = "| " + link_to(code + ".md", code);
    row.append(" | ").append(kind).append(" | ").append(explanation.title).append(" |\n");
    expected.push_back(row);
  }
  std::vector<std::string> rows;
  for (const std::string& line : lines_of(content_of(kFolder / "README.md"))) {
    if (line.rfind("| [", 0) == 0) rows.push_back(line);
  }
  EXPECT_EQ(rows, expected);
}

TEST(Catalogue, LinksLeadToFiles) {
  const std::regex link(R"(\]\(([^)]+)\))");
  for (const auto& entry : fs::directory_iterator(kFolder)) {
    if (entry.path().extension() != ".md") continue;
    const std::string page = content_of(entry.path());
    for (std::sregex_iterator it(page.begin(), page.end(), link), end; it != end; ++it) {
      EXPECT_TRUE(fs::exists(kFolder / (*it)[1].str())) << entry.path() << ": " << it->str();
    }
  }
}

std::vector<std::string> found_codes(std::string_view text) {
  std::vector<std::string> codes;
  for (const Explanation* found : find_explanations(text)) codes.push_back(code_text(*found));
  return codes;
}

TEST(Catalogue, FindsByCodeAndByNumber) {
  using Codes = std::vector<std::string>;
  EXPECT_EQ(found_codes("E2308"), Codes{"E2308"});
  EXPECT_EQ(found_codes("w2005"), Codes{"W2005"});
  EXPECT_EQ(found_codes("2005"), Codes{"W2005"});
  EXPECT_EQ(found_codes("2003"), (Codes{"E2003", "W2003"}));
  EXPECT_EQ(found_codes("W2003"), Codes{"W2003"});
  for (const char* unknown : {"", "E", "E2005", "W2308", "2031", "E23080", "02308", "E2308:"}) {
    EXPECT_EQ(found_codes(unknown), Codes{}) << unknown;
  }
}

}  // namespace
}  // namespace tool

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  tool::update = argc > 1 && std::strcmp(argv[1], "--update") == 0;
  return RUN_ALL_TESTS();
}
