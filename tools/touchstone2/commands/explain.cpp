// Prints pages of the catalogue. Nothing is printed unless every code is known.

#include "commands/explain.h"

#include <algorithm>
#include <memory>
#include <sstream>

#include "diagnostics/catalogue.h"
#include "diagnostics/example_text.h"
#include "terminal/console.h"
#include "terminal/display.h"
#include "text/plain_text.h"
#include "text/value_text.h"

namespace tool {

namespace {

constexpr const char* kFooter =
    R"(Says what a diagnostic means, shows the smallest file that raises it and what the
reader reports of that file, and says what to do about it.

A CODE is written as "check" prints it, E2308 or W2005, in upper or lower case. A
bare number, 2308, gives the error, the warning or both.

Exit code: 0 done; 2 wrong usage, a code that does not exist (nothing is printed
then), or output that cannot be written; 141 the reader of standard output has gone
away.

Examples:
  touchstone2 explain E2308
  touchstone2 explain e2311 w2005
  touchstone2 explain --list | grep impedance)";

constexpr std::size_t kMostColumns = 80;

std::string indented(const std::string& text) {
  std::string result;
  std::string line;
  std::istringstream lines(text);
  while (std::getline(lines, line)) {
    if (!line.empty()) result.append(4, ' ').append(line);
    result += '\n';
  }
  return result;
}

std::string page_about(const Explanation& explanation, const Display& display) {
  const std::size_t width = display.rich ? std::min(display.columns, kMostColumns) : kMostColumns;
  const Style severity = explanation.is_warning ? Style::magenta : Style::red;
  std::string page = styled(display, severity, code_text(explanation)) +
                     styled(display, Style::bold, ": " + std::string(explanation.title)) + "\n\n";
  page += plain_text(explanation.meaning, width);
  if (!explanation.example_name.empty()) {
    page += "\n" + styled(display, Style::bold, "Example:") + "\n\n";
    page += indented(example_text(explanation));
  }
  page += "\n" + styled(display, Style::bold, "What to do:") + "\n\n";
  page += plain_text(explanation.remedy, width);
  return page;
}

std::string list_of_all() {
  std::string list;
  for (const Explanation& explanation : all_explanations()) {
    list.append(code_text(explanation)).append("  ").append(explanation.title).append("\n");
  }
  return list;
}

// "E2005" when there is but W2005 is taken for a slip.
void complain_about_unknown(const std::string& code) {
  std::string message = "there is no diagnostic '" + printable(code) + "'";
  const bool has_letter =
      !code.empty() && std::string_view("EWew").find(code.front()) != std::string_view::npos;
  if (has_letter) {
    for (const Explanation* other : find_explanations(code.substr(1))) {
      message += ", but there is " + code_text(*other);
    }
  }
  complain(message);
}

}  // namespace

int explain(const ExplainOptions& options) {
  if (options.list) {
    write_output(list_of_all());
    return kDone;
  }

  bool all_known = true;
  std::string pages;
  for (const std::string& code : options.codes) {
    const std::vector<const Explanation*> found = find_explanations(code);
    if (found.empty()) {
      complain_about_unknown(code);
      all_known = false;
    }
    for (const Explanation* explanation : found) {
      if (!pages.empty()) pages += "\n\n";
      pages += page_about(*explanation, output_display());
    }
  }
  if (!all_known) {
    complain("'touchstone2 explain --list' prints all codes");
    return kNotDone;
  }
  write_output(pages);
  return kDone;
}

void add_explain_command(CommandLine& line) {
  const auto options = std::make_shared<ExplainOptions>();
  Command command = line.add_command("explain", "Say what a diagnostic means", kFooter);
  const Option codes = command.option("CODE", options->codes, "E2308, W2005, 2308, ...");
  command.flag("--list", options->list, "Print all codes, each with its title").excludes(codes);
  command.runs([options] {
    if (options->codes.empty() && !options->list) throw UsageError("CODE or --list is required");
    return explain(*options);
  });
}

}  // namespace tool
