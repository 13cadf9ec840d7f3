// Each section is a table: a title with the heads of the columns, and below it what differs.

#include "comparison/comparison_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "text/table.h"
#include "text/value_text.h"

namespace tool {

namespace {

std::string section(const std::vector<Row>& rows) { return table_text(rows) + "\n"; }

std::string shown(const std::string& text) { return text.empty() ? "none" : printable(text); }

void add_count_of_others(std::vector<Row>& rows, std::size_t count) {
  if (count != 0) rows.push_back({"  and " + std::to_string(count) + " more"});
}

std::string facts_section(std::string_view title, const FactDifferences& facts) {
  if (facts.empty()) return "";
  std::vector<Row> rows = {{std::string(title), "A", "B"}};
  for (const FactDifference& fact : facts.shown) {
    std::string what = "  " + std::string(fact.what);
    if (fact.number != 0) what += " " + std::to_string(fact.number);
    rows.push_back({what, shown(fact.a), shown(fact.b)});
  }
  add_count_of_others(rows, facts.not_shown);
  return section(rows);
}

// Comments are long: one below the other.
std::string comments_section(const FactDifferences& comments) {
  if (comments.empty()) return "";
  std::vector<Row> rows = {{"comments"}};
  for (const FactDifference& line : comments.shown) {
    rows.push_back({"  line " + std::to_string(line.number), "A", shown(line.a)});
    rows.push_back({"", "B", shown(line.b)});
  }
  add_count_of_others(rows, comments.not_shown);
  return section(rows);
}

std::string list_of(const LoneFrequencies& frequencies) {
  std::string text;
  for (const double unscaled : frequencies.first_unscaled) {
    text += (text.empty() ? "" : ", ") + exact_frequency_text(unscaled, frequencies.unit);
  }
  const std::size_t others = frequencies.count - frequencies.first_unscaled.size();
  return others == 0 ? text : text + " and " + std::to_string(others) + " more";
}

std::string frequencies_section(std::string_view title, const DataDifferences& data) {
  if (data.only_in_a.count == 0 && data.only_in_b.count == 0) return "";
  std::vector<Row> rows = {
      {std::string(title), std::to_string(data.common_frequencies), "in both"}};
  if (data.only_in_a.count != 0) {
    rows.push_back(
        {"", std::to_string(data.only_in_a.count), "only in A: " + list_of(data.only_in_a)});
  }
  if (data.only_in_b.count != 0) {
    rows.push_back(
        {"", std::to_string(data.only_in_b.count), "only in B: " + list_of(data.only_in_b)});
  }
  return section(rows);
}

std::string pair_text(ValueForm form, const Pair& value, std::string (*to_text)(double)) {
  if (is_single(form)) return to_text(value.first);
  return to_text(value.first) + " " + to_text(value.second);
}

struct ValueTexts {
  std::string a;
  std::string b;
};

// Rounded, unless that would hide the difference.
ValueTexts value_texts(const ValueDifference& value) {
  ValueTexts texts = {pair_text(value.form, value.a, rounded_text),
                      pair_text(value.form, value.b, rounded_text)};
  if (texts.a != texts.b) return texts;
  return {pair_text(value.form, value.a, number_text), pair_text(value.form, value.b, number_text)};
}

// Three digits, and never less than the value: as a tolerance it makes the values equal.
std::string rounded_up(double value) {
  constexpr int kDecimals = 2;
  if (!std::isfinite(value)) return number_text(value);
  std::array<char, 32> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                 std::chars_format::scientific, kDecimals)
                       .ptr;
  const std::string rounded(text.data(), end);
  if (std::strtod(rounded.c_str(), nullptr) >= value) {
    return number_text(std::strtod(rounded.c_str(), nullptr));
  }
  const std::string digits = {rounded[0], rounded[2], rounded[3]};
  const int exponent = std::stoi(rounded.substr(rounded.find('e') + 1)) - kDecimals;
  const std::string next = std::to_string(std::stoi(digits) + 1) + "e" + std::to_string(exponent);
  return number_text(std::strtod(next.c_str(), nullptr));
}

std::string values_section(std::string_view title, const DataDifferences& data) {
  if (!data.values_compared) {
    return section({{std::string(title), "not compared: the matrices do not mean the same"}});
  }
  if (data.parameters == 0) return "";
  const std::string of_all = " of " + std::to_string(data.common_frequencies);
  std::vector<Row> rows = {
      {std::string(title), "frequencies", "greatest difference", "at", "A", "B", ""}};
  for (const ValueDifference& value : data.largest) {
    const ValueTexts texts = value_texts(value);
    rows.push_back({"  " + value.name, std::to_string(value.frequencies) + of_all,
                    rounded_up(value.difference),
                    exact_frequency_text(value.unscaled_freq, data.only_in_a.unit), texts.a,
                    texts.b, std::string(form_text(value.form))});
  }
  add_count_of_others(rows, data.parameters - data.largest.size());
  return section(rows);
}

}  // namespace

std::string comparison_text(const Comparison& comparison) {
  return facts_section("content", comparison.content) +
         frequencies_section("frequencies", comparison.network) +
         values_section("parameters", comparison.network) +
         frequencies_section("noise frequencies", comparison.noise) +
         values_section("noise", comparison.noise) + facts_section("form", comparison.form) +
         comments_section(comparison.comments);
}

}  // namespace tool
