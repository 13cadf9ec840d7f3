#include "command_line/help_format.h"

#include <algorithm>
#include <vector>

namespace tool {

namespace {

// The parser adds the limits of a value to its name, "N:INT in [1 - 1024]".
std::string value_name(const CLI::Option& option) {
  if (option.get_type_size() == 0 || option.get_positional()) return "";
  const std::string name = option.get_type_name();
  return name.substr(0, name.find(':'));
}

}  // namespace

HelpFormat::HelpFormat() {
  label("Positionals", "Arguments");
  label("SUBCOMMAND", "COMMAND");
  label("Subcommands", "Commands");
}

std::string HelpFormat::make_option_opts(const CLI::Option* option) const {
  const std::string name = value_name(*option);
  const bool is_list = option->get_positional() && option->get_items_expected_max() > 1;
  return (name.empty() ? "" : " " + name) + (is_list ? "..." : "");
}

// Sorted, because the set of options is ordered by addresses.
std::string HelpFormat::make_option_desc(const CLI::Option* option) const {
  std::vector<std::string> others;
  for (const CLI::Option* other : option->get_excludes()) {
    if (!other->get_positional()) others.push_back(other->get_name());
  }
  std::sort(others.begin(), others.end());
  std::string text = option->get_description();
  for (std::size_t i = 0; i < others.size(); ++i) {
    text += (i == 0 ? "; not with " : " or ") + others[i];
  }
  return text;
}

}  // namespace tool
