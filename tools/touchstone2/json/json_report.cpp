// Model and diagnostics to JSON. Lists are built member by member: braces would let the JSON
// library guess between arrays and objects.

#include "json/json_report.h"

#include <nlohmann/json.hpp>

#include "text/value_text.h"

namespace tool {

namespace {

using touchstone2::File;
using touchstone2::NetworkParams;
using touchstone2::NoiseParams;

// Null instead of 0, which means "no position".
Json position_to_json(std::size_t position) {
  return position == 0 ? Json(nullptr) : Json(position);
}

Json diagnostic_to_json(const Diagnostic& diagnostic) {
  Json object = Json::object();
  object["severity"] = diagnostic.severity == Severity::error ? "error" : "warning";
  object["code"] = diagnostic.code;
  object["line"] = position_to_json(diagnostic.line);
  object["column"] = position_to_json(diagnostic.column);
  object["token"] = diagnostic.token;
  object["message"] = diagnostic.message;
  return object;
}

// The same members for network and noise points: how many, and first and last frequency.
template <typename Params>
Json sweep_to_json(const Params* params, touchstone2::FrequencyScaleFactor unit) {
  Json object = Json::object();
  const std::size_t points = params == nullptr ? 0 : params->freq_points();
  object["points"] = points;
  object["first_hz"] = nullptr;
  object["last_hz"] = nullptr;
  if (points == 0) return object;
  object["first_hz"] = frequency_in_hz(params->get_unscaled_freq(0), unit);
  object["last_hz"] = frequency_in_hz(params->get_unscaled_freq(points - 1), unit);
  return object;
}

Json mixed_mode_to_json(const File& file) {
  if (!file.uses_mixed_mode()) return nullptr;
  Json list = Json::array();
  for (const auto& descriptor : file.get_mixed_mode_descriptors()) {
    list.push_back(descriptor_text(descriptor));
  }
  return list;
}

}  // namespace

Json versioned_object() {
  Json object = Json::object();
  object["schema_version"] = kSchemaVersion;
  return object;
}

void add_verdict(Json& object, const std::string& path, bool valid,
                 const std::vector<Diagnostic>& diagnostics, const std::string& failure) {
  object["path"] = path;
  object["valid"] = valid;
  object["diagnostics"] = Json::array();
  for (const Diagnostic& diagnostic : diagnostics) {
    object["diagnostics"].push_back(diagnostic_to_json(diagnostic));
  }
  if (!failure.empty()) object["failure"] = failure;
}

Json file_to_json(const File& file) {
  const auto unit = file.get_frequency_scale_factor();
  const bool two_ports = file.get_number_of_ports() == 2;
  Json object = Json::object();
  object["version"] = version_text(file.get_version());
  object["ports"] = file.get_number_of_ports();
  object["parameter"] = parameter_text(file.get_parameter_type());
  object["format"] = format_text(file.get_complex_format());
  object["unit"] = unit_text(unit);
  object["network"] = sweep_to_json(file.get_network_params(), unit);
  object["noise"] = sweep_to_json(file.get_noise_params(), unit);
  object["reference_ohms"] = file.get_reference_impedance();
  object["reference_ohms_per_port"] = file.get_reference_impedance_per_port();
  object["reference_given_per_port"] = file.uses_reference_impedance_per_port();
  object["matrix_format"] = matrix_text(file.get_matrix_format());
  object["two_port_order"] = nullptr;
  if (two_ports) object["two_port_order"] = order_text(file.get_two_port_data_order());
  object["mixed_mode_order"] = mixed_mode_to_json(file);
  object["information_section"] = file.has_information_section();
  object["port_names"] = file.get_port_names();
  object["leading_comments"] = file.get_leading_comments();
  object["other_comments"] = file.get_other_comments();
  return object;
}

std::string json_line(const Json& object) {
  constexpr int kOneLine = -1;
  return object.dump(kOneLine, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace) + "\n";
}

}  // namespace tool
