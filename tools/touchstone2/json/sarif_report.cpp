// A rule is a code with its severity: 2003 as an error is another rule than 2003 as a warning.

#include "json/sarif_report.h"

#include <touchstone2/reader/error_type.h>
#include <touchstone2/version.h>

#include <nlohmann/json.hpp>

#include "json/json_report.h"

namespace tool {

namespace {

#ifdef _WIN32
constexpr bool kIsWindows = true;
#else
constexpr bool kIsWindows = false;
#endif

bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool stands_for_itself(char c) {
  return is_letter(c) || (c >= '0' && c <= '9') ||
         std::string_view("-._~/").find(c) != std::string_view::npos;
}

std::string percent_encoded(char c) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  return {'%', kHex[byte >> 4], kHex[byte & 0x0F]};
}

Json text_object(const std::string& text) {
  Json object = Json::object();
  object["text"] = text;
  return object;
}

Json location_to_json(const std::string& path, std::size_t line, std::size_t column) {
  Json place = Json::object();
  place["artifactLocation"]["uri"] = uri_reference(path);
  if (line != 0) {
    place["region"]["startLine"] = line;
    if (column != 0) place["region"]["startColumn"] = column;
  }
  Json location = Json::object();
  location["physicalLocation"] = std::move(place);
  return location;
}

Json rule_to_json(const std::string& id, int code) {
  Json rule = Json::object();
  rule["id"] = id;
  rule["shortDescription"] =
      text_object(touchstone2::error_message(static_cast<touchstone2::ErrorType>(code)));
  rule["defaultConfiguration"]["level"] = id.starts_with('E') ? "error" : "warning";
  return rule;
}

Json invocation_to_json(const SarifRun& run) {
  Json invocation = Json::object();
  invocation["executionSuccessful"] = run.is_successful;
  invocation["exitCode"] = run.exit_code;
  invocation["toolExecutionNotifications"] = Json::array();
  for (const std::string& text : run.notifications) {
    Json notification = Json::object();
    notification["level"] = "error";
    notification["message"] = text_object(text);
    invocation["toolExecutionNotifications"].push_back(std::move(notification));
  }
  return invocation;
}

std::string dump(const Json& json) {
  constexpr int kOneLine = -1;
  return json.dump(kOneLine, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace);
}

}  // namespace

std::string sarif_begin() {
  return R"({"$schema":"https://json.schemastore.org/sarif-2.1.0.json","version":"2.1.0","runs":[{
"columnKind":"unicodeCodePoints","results":[)";
}

std::string sarif_result(const std::string& path, const Diagnostic& diagnostic,
                         std::size_t column) {
  Json result = Json::object();
  result["ruleId"] = code_text(diagnostic);
  result["level"] = severity_text(diagnostic.severity);
  result["message"] = text_object(diagnostic.message);
  result["locations"] = Json::array();
  result["locations"].push_back(location_to_json(path, diagnostic.line, column));
  return "\n" + dump(result);
}

std::string sarif_end(const SarifRun& run) {
  Json rules = Json::array();
  for (const auto& [id, code] : run.rules) rules.push_back(rule_to_json(id, code));
  Json tool = Json::object();
  tool["driver"]["name"] = "touchstone2";
  tool["driver"]["version"] = TOUCHSTONE2_VERSION_STRING;
  tool["driver"]["rules"] = std::move(rules);
  Json invocations = Json::array();
  invocations.push_back(invocation_to_json(run));
  return "\n],\n\"tool\":" + dump(tool) + ",\n\"invocations\":" + dump(invocations) + "\n}]}\n";
}

std::string uri_reference(std::string_view path) {
  std::string uri;
  if (path.starts_with('/')) uri = "file://";
  if (kIsWindows && path.size() >= 2 && is_letter(path[0]) && path[1] == ':') {
    uri = std::string("file:///") + path[0] + ":";
    path.remove_prefix(2);
  }
  for (const char c : path) {
    if (kIsWindows && c == '\\') {
      uri += '/';
    } else if (stands_for_itself(c)) {
      uri += c;
    } else {
      uri += percent_encoded(c);
    }
  }
  return uri;
}

}  // namespace tool
