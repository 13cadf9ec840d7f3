/// What each diagnostic means: the pages of docs/diagnostics, taken apart.
#ifndef TOUCHSTONE2_TOOL_CATALOGUE_H
#define TOUCHSTONE2_TOOL_CATALOGUE_H

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// The texts are Markdown; the example is a whole file, byte for byte.
struct Explanation {
  int code;
  bool is_warning;
  std::string_view title;  ///< the library's fixed message of the code, or one that begins with it
  std::string_view meaning;
  std::string_view example_name;  ///< "E2308.s2p"; empty when no file's content raises the code
  std::string_view example;
  std::string_view remedy;
};

/// By number, an error before a warning of the same number.
/// @throws std::logic_error  when a page lacks a part; the tests make sure that none does
const std::vector<Explanation>& all_explanations();

/// Those that `text` names: "E2308", "e2308", or "2308", which may be an error, a warning or
/// both. Empty when there are none.
std::vector<const Explanation*> find_explanations(std::string_view text);

/// "E2308" or "W2005".
std::string code_text(const Explanation& explanation);

}  // namespace tool

#endif
