#include "inputs.h"

#include <charconv>
#include <fstream>
#include <random>
#include <stdexcept>

namespace touchstone2::bench {

namespace {

void append_number(std::string& text, double value, int digits) {
  char number[40];
  const auto end =
      std::to_chars(number, number + sizeof number, value, std::chars_format::general, digits);
  text.append(number, end.ptr);
}

// In [low, high), the same on every platform.
double uniform(std::mt19937_64& random, double low, double high) {
  return low + (high - low) * static_cast<double>(random() >> 11) * 0x1p-53;
}

std::string header(const Input& input) {
  const std::string options = std::string("# GHz S ") + input.format + " R 50\n";
  if (!input.version_2) return "! generated\n" + options;
  return "! generated\n[Version] 2.0\n" + options + "[Number of Ports] " +
         std::to_string(input.ports) + "\n[Number of Frequencies] " + std::to_string(input.points) +
         "\n" + (input.upper ? "[Matrix Format] Upper\n" : "") + "[Network Data]\n";
}

// Where the line breaks: version 1 after four pairs and every row, version 2 after every row.
bool breaks_before(const Input& input, std::size_t row, std::size_t col) {
  if (input.ports <= 2) return false;
  if (input.version_2) return row > 0 && col == (input.upper ? row : 0);
  return col % 4 == 0 && (row > 0 || col > 0);
}

}  // namespace

const std::vector<Input>& inputs() {
  static const std::vector<Input> all = {
      {"a", "v1 2-port MA, 6 digits", false, false, "MA", 2, 1'000'000, 6, 1},
      {"b", "v1 2-port RI, 17 digits", false, false, "RI", 2, 500'000, 17, 1},
      {"c", "v1 16-port RI, four pairs a line", false, false, "RI", 16, 2'000, 9, 1},
      {"d", "v2 100-port full RI, 15 digits", true, false, "RI", 100, 500, 15, 1},
      {"e", "v2 64-port upper RI", true, true, "RI", 64, 1'000, 9, 1},
      {"f", "one sweep of 201 points", false, false, "MA", 2, 201, 6, 1},
      {"g", "1,000 sweeps of 201 points", false, false, "MA", 2, 201, 6, 1'000},
  };
  return all;
}

const Input* find_input(const std::string& name) {
  for (const Input& input : inputs()) {
    if (input.name == name) return &input;
  }
  return nullptr;
}

std::string make_text(const Input& input, unsigned seed) {
  std::mt19937_64 random(seed);
  std::string text = header(input);
  const bool magnitudes = input.format == std::string("MA");
  for (std::size_t point = 0; point < input.points; ++point) {
    append_number(text, 0.001 * static_cast<double>(point + 1), 10);
    for (std::size_t row = 0; row < input.ports; ++row) {
      for (std::size_t col = input.upper ? row : 0; col < input.ports; ++col) {
        text += breaks_before(input, row, col) ? "\n  " : " ";
        append_number(text, uniform(random, magnitudes ? 0 : -1, 1), input.digits);
        text += ' ';
        append_number(text, magnitudes ? uniform(random, -180, 180) : uniform(random, -1, 1),
                      input.digits);
      }
    }
    text += '\n';
  }
  if (input.version_2) text += "[End]\n";
  return text;
}

std::vector<std::string> make_files(const Input& input, const std::filesystem::path& folder) {
  std::filesystem::create_directories(folder);
  std::vector<std::string> names;
  for (std::size_t k = 0; k < input.files; ++k) {
    const auto path = folder / (std::string(input.name) + std::to_string(k) + ".ts");
    if (!std::filesystem::exists(path)) {
      const auto unfinished = folder / "unfinished";
      std::ofstream(unfinished, std::ios::binary) << make_text(input, static_cast<unsigned>(k));
      std::filesystem::rename(unfinished, path);
    }
    names.push_back(path.string());
  }
  return names;
}

}  // namespace touchstone2::bench
