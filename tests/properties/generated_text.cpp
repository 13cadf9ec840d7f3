// Distributions of the standard library give other numbers on other systems; the engine itself
// does not. So everything is made from the engine's raw numbers.
#include "properties/generated_text.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <random>
#include <string_view>
#include <vector>

namespace touchstone2::test {

namespace {

class Generator {
 public:
  Generator(std::uint32_t seed, Numbers numbers) : engine_(seed), numbers_(numbers) {}

  std::string text();

 private:
  std::uint64_t below(std::uint64_t limit) { return engine_() % limit; }
  bool one_in(std::uint64_t count) { return below(count) == 0; }

  template <std::size_t Size>
  std::string_view one_of(const std::array<std::string_view, Size>& words) {
    return words[below(Size)];
  }

  void choose_kind();
  std::string comments();
  std::string options_line();
  std::string keywords();
  std::string mixed_mode_order();
  std::string network_data();
  std::string noise_data();

  double number();           // of any sign
  double positive_number();  // not zero
  double next_frequency(double earlier);
  std::string pair();
  std::string blanks() { return std::string(1 + below(3), ' '); }

  std::mt19937_64 engine_;
  Numbers numbers_;
  bool v2_ = false;
  bool noise_ = false;
  bool swapped_ = false;
  std::size_t ports_ = 0;
  std::size_t points_ = 0;
  std::size_t noise_points_ = 0;
  std::string_view type_;
  std::string_view format_;
  std::string_view matrix_;
  double last_frequency_ = 0.0;
};

std::string text_of(double value) {
  std::array<char, 64> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value);
  return std::string(text.data(), end.ptr);
}

void Generator::choose_kind() {
  constexpr std::array<std::string_view, 8> kTypes = {"S", "S", "S", "Y", "Z", "H", "G", "s"};
  constexpr std::array<std::string_view, 3> kFormats = {"DB", "MA", "RI"};
  constexpr std::array<std::string_view, 4> kMatrices = {"", "Full", "Upper", "Lower"};
  v2_ = one_in(2);
  type_ = one_of(kTypes);
  format_ = one_of(kFormats);
  ports_ = type_ == "H" || type_ == "G" || one_in(3) ? 2 : 1 + below(9);
  points_ = 1 + below(3);
  noise_ = ports_ == 2 && one_in(2);
  noise_points_ = noise_ ? 1 + below(3) : 0;
  matrix_ = v2_ ? one_of(kMatrices) : "";
}

// Random bits keep clear of the ends of the range, where rounding or a reference impedance would
// carry a number out of it.
double Generator::number() {
  if (one_in(12)) return one_in(2) ? 0.0 : -0.0;
  if (numbers_ == Numbers::short_decimals) {
    const double sign = one_in(2) ? -1.0 : 1.0;
    const std::string digits = std::to_string(1 + below(99999)) + "e-" + std::to_string(below(9));
    return sign * std::strtod(digits.c_str(), nullptr);
  }
  constexpr std::uint64_t kSignAndFraction = 0x800F'FFFF'FFFF'FFFF;
  const std::uint64_t exponent = one_in(4) ? 60 + below(1920) : 1000 + below(40);
  return std::bit_cast<double>((engine_() & kSignAndFraction) | exponent << 52);
}

double Generator::positive_number() {
  for (;;) {
    const double value = std::abs(number());
    if (value != 0.0) return value;
  }
}

// Far enough above the earlier one to stay so when both are rounded to 6 digits.
double Generator::next_frequency(double earlier) {
  if (numbers_ == Numbers::short_decimals) {
    return earlier + static_cast<double>(1 + below(80)) * 0.125;
  }
  const double ratio = 1.001 + static_cast<double>(below(1000000)) * 1e-6;
  return earlier == 0.0 ? ratio : earlier * ratio;
}

std::string Generator::pair() {
  const double first = format_ == "MA" ? std::abs(number()) : number();
  return blanks() + text_of(first) + blanks() + text_of(number());
}

// Names in one of the forms that tools use; some ports without.
std::string Generator::comments() {
  constexpr std::array<std::string_view, 4> kWords = {"in", "out", "RF feed", "x-1.5"};
  std::string text;
  for (std::uint64_t i = below(3); i > 0; --i) text += "! line " + std::to_string(i) + "  \n";
  const std::uint64_t form = below(5);
  for (std::size_t port = 1; form < 3 && port <= ports_; ++port) {
    if (one_in(4)) continue;
    const std::string number = std::to_string(port);
    const std::string name(one_of(kWords));
    if (form == 0) text += "! Port[" + number + "] = " + name + "\n";
    if (form == 1) text += "!Port " + number + " = " + name + "\n";
    if (form == 2) text += "! PORT" + number + ": " + name + "\n";
  }
  for (std::uint64_t i = below(3); i > 0; --i) text += "!\ttail MIXED " + std::to_string(i) + "\n";
  return text;
}

std::string Generator::options_line() {
  constexpr std::array<std::string_view, 5> kUnits = {"Hz", "kHz", "MHz", "GHz", ""};
  constexpr std::array<std::string_view, 4> kReferences = {"", " R 50", " R 75", " r 1"};
  std::string reference(one_of(kReferences));
  if (one_in(3))
    reference =
        " R " +
        text_of(numbers_ == Numbers::random_bits ? 10 + std::fmod(positive_number(), 90) : 33.25);
  return "# " + std::string(one_of(kUnits)) + " " + std::string(type_) + " " +
         std::string(format_) + reference + "\n";
}

// Pairs of ports as long as there are two left, each as a differential and a common mode.
std::string Generator::mixed_mode_order() {
  std::vector<std::string> words;
  std::size_t port = 1;
  while (port <= ports_) {
    if (port == ports_ || one_in(3)) {
      words.push_back(" S" + std::to_string(port++));
      continue;
    }
    const std::string ports = std::to_string(port) + "," + std::to_string(port + 1);
    words.push_back(" D" + ports);
    words.push_back(" C" + ports);
    port += 2;
  }
  std::string text = "[Mixed-Mode Order]";
  while (!words.empty()) {
    const auto chosen = words.begin() + static_cast<std::ptrdiff_t>(below(words.size()));
    text += *chosen;
    words.erase(chosen);
  }
  return text + "\n";
}

std::string Generator::keywords() {
  std::string text = "[Number of Ports] " + std::to_string(ports_) + "\n";
  if (ports_ == 2) {
    swapped_ = one_in(2);
    text += "[Two-Port Data Order] " + std::string(swapped_ ? "21_12" : "12_21") + "\n";
  }
  text += "[Number of Frequencies] " + std::to_string(points_) + "\n";
  if (noise_) text += "[Number of Noise Frequencies] " + std::to_string(noise_points_) + "\n";
  const bool mixed = one_in(3) && type_ != "H" && type_ != "G";  // no mixed mode of these
  if (one_in(3)) {
    const std::string common = text_of(positive_number());
    text += "[Reference]";
    for (std::size_t port = 0; port < ports_; ++port) {
      text += " " + (mixed ? common : text_of(positive_number()));
    }
    text += "\n";
  }
  if (!matrix_.empty()) text += "[Matrix Format] " + std::string(matrix_) + "\n";
  if (mixed) text += mixed_mode_order();
  if (one_in(3)) text += "[Begin Information]\n! free text 1 2 3\n[End Information]\n";
  return text;
}

std::string Generator::network_data() {
  std::string text;
  for (std::size_t k = 0; k < points_; ++k) {
    if (!v2_ && one_in(4)) text += "! between the records\n";
    last_frequency_ = next_frequency(last_frequency_);
    text += text_of(last_frequency_);
    for (std::size_t row = 0; row < ports_; ++row) {
      if (row != 0 && ports_ > 2) text += "\n";
      for (std::size_t col = 0; col < ports_; ++col) {
        if ((matrix_ == "Upper" && col < row) || (matrix_ == "Lower" && col > row)) continue;
        if (!v2_ && col != 0 && col % 4 == 0) text += "\n";
        text += pair();
      }
    }
    text += "\n";
  }
  return text;
}

// The first row is not above the last point: version 1 knows noise data by that.
std::string Generator::noise_data() {
  std::string text;
  double frequency = 0.0;
  for (std::size_t k = 0; k < noise_points_; ++k) {
    frequency = k == 0 ? last_frequency_ / 2 : next_frequency(frequency);
    text += text_of(frequency) + " " + text_of(std::abs(number())) + " " +
            text_of(std::abs(number())) + " " + text_of(number()) + " " +
            text_of(std::abs(number())) + "\n";
  }
  return text;
}

std::string Generator::text() {
  choose_kind();
  if (!v2_) return comments() + options_line() + network_data() + noise_data();
  std::string text = comments() + "[Version] 2.0\n" + options_line() + keywords();
  text += "[Network Data]\n" + network_data();
  if (noise_) text += "[Noise Data]\n" + noise_data();
  return text + "[End]\n";
}

}  // namespace

std::string generated_text(std::uint32_t seed, Numbers numbers) {
  return Generator(seed, numbers).text();
}

}  // namespace touchstone2::test
