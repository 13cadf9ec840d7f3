// Asks the parser of the command line for what it was told, so that nothing is said twice.

#include "command_line/command_description.h"

#include <touchstone2/version.h>

#include <algorithm>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "json/json_report.h"

namespace tool {

namespace {

std::string all_names(const CLI::Option& option) { return option.get_name(false, true); }

// Sorted, because the set is ordered by addresses, which differ from run to run.
std::vector<std::string> excluded_by(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const CLI::Option* other : option.get_excludes()) names.push_back(all_names(*other));
  std::sort(names.begin(), names.end());
  return names;
}

Json option_to_json(const CLI::Option& option) {
  const bool is_flag = option.get_type_size() == 0;
  Json object = Json::object();
  object["names"] = all_names(option);
  object["positional"] = option.get_positional();
  object["value"] = is_flag ? "" : option.get_type_name();
  object["many"] = option.get_items_expected_max() > 1;
  object["required"] = option.get_required();
  object["excludes"] = excluded_by(option);
  object["description"] = option.get_description();
  return object;
}

Json command_to_json(const CLI::App& command) {
  Json object = Json::object();
  object["name"] = command.get_name();
  object["description"] = command.get_description();
  object["footer"] = command.get_footer();
  object["options"] = Json::array();
  for (const CLI::Option* option : command.get_options()) {
    const bool hidden = option->get_group().empty();
    if (!hidden) object["options"].push_back(option_to_json(*option));
  }
  return object;
}

}  // namespace

std::string describe_commands(const CLI::App& app) {
  Json object = command_to_json(app);
  object["version"] = TOUCHSTONE2_VERSION_STRING;
  object["commands"] = Json::array();
  for (const CLI::App* command : app.get_subcommands({})) {
    object["commands"].push_back(command_to_json(*command));
  }
  return json_line(object);
}

}  // namespace tool
