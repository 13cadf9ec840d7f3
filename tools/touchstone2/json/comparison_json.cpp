// Infinities and NaNs become null, as JSON has no number for them.

#include "json/comparison_json.h"

#include <nlohmann/json.hpp>

#include "text/value_text.h"

namespace tool {

namespace {

Json facts_to_json(const FactDifferences& facts) {
  Json list = Json::array();
  for (const FactDifference& fact : facts.shown) {
    Json object = Json::object();
    object["what"] = fact.what;
    object["number"] = fact.number == 0 ? Json(nullptr) : Json(fact.number);
    object["a"] = fact.a;
    object["b"] = fact.b;
    list.push_back(object);
  }
  Json object = Json::object();
  object["differences"] = list;
  object["more"] = facts.not_shown;
  return object;
}

Json frequencies_to_json(const LoneFrequencies& frequencies) {
  Json object = Json::object();
  object["count"] = frequencies.count;
  object["first_hz"] = Json::array();
  for (const double unscaled : frequencies.first_unscaled) {
    object["first_hz"].push_back(frequency_in_hz(unscaled, frequencies.unit));
  }
  return object;
}

Json pair_to_json(ValueForm form, const Pair& value) {
  Json list = Json::array();
  list.push_back(value.first);
  if (!is_single(form)) list.push_back(value.second);
  return list;
}

Json value_to_json(const ValueDifference& value, touchstone2::FrequencyScaleFactor unit) {
  Json object = Json::object();
  object["name"] = value.name;
  object["frequencies"] = value.frequencies;
  object["difference"] = value.difference;
  object["frequency_hz"] = frequency_in_hz(value.unscaled_freq, unit);
  object["form"] = form_text(value.form);
  object["a"] = pair_to_json(value.form, value.a);
  object["b"] = pair_to_json(value.form, value.b);
  return object;
}

Json data_to_json(const DataDifferences& data) {
  Json object = Json::object();
  object["common_frequencies"] = data.common_frequencies;
  object["only_in_a"] = frequencies_to_json(data.only_in_a);
  object["only_in_b"] = frequencies_to_json(data.only_in_b);
  object["compared"] = data.values_compared;
  object["different_parameters"] = data.parameters;
  object["greatest"] = Json::array();
  for (const ValueDifference& value : data.largest) {
    object["greatest"].push_back(value_to_json(value, data.only_in_a.unit));
  }
  return object;
}

}  // namespace

void add_comparison(Json& object, const Comparison& comparison) {
  object["content"] = facts_to_json(comparison.content);
  object["form"] = facts_to_json(comparison.form);
  object["comments"] = facts_to_json(comparison.comments);
  object["network"] = data_to_json(comparison.network);
  object["noise"] = data_to_json(comparison.noise);
}

}  // namespace tool
