#include "limits.h"

#include <charconv>
#include <cstring>
#include <iomanip>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "reader/fast_number.h"

namespace touchstone2::bench {

namespace {

struct Point {
  double freq;
  std::vector<double> values;
};

const char* by_from_chars(const char* text, const char* end, double& value) {
  if (*text == '+') ++text;
  const auto result = std::from_chars(text, end, value);
  if (result.ec != std::errc()) throw std::runtime_error("no number");
  return result.ptr;
}

const char* by_fast_number(const char* text, const char* end, double& value) {
  if (end - text < detail::kFastNumberReach) return by_from_chars(text, end, value);
  const char* const after = detail::parse_plain_number(text, value);
  if (after == nullptr) throw std::runtime_error("no number");
  return after;
}

const char* find_data(const Input& input, std::string_view bytes) {
  const std::string_view mark = input.version_2 ? "[Network Data]\n" : "R 50\n";
  return bytes.data() + bytes.find(mark) + mark.size();
}

template <typename Convert>
std::size_t read_with(const Input& input, std::string_view bytes, Convert convert) {
  const char* position = find_data(input, bytes);
  const char* const end = bytes.data() + bytes.size();
  const std::size_t numbers = 2 * input.pairs();
  const std::size_t length =
      input.upper ? input.ports * (input.ports + 3) : 2 * input.ports * (input.ports + 1);
  std::vector<Point> points;
  for (;;) {
    while (position < end && static_cast<unsigned char>(*position) <= ' ') ++position;
    if (position == end || *position == '[') break;
    double freq = 0.0;
    position = convert(position, end, freq);
    points.push_back({freq, std::vector<double>(length)});
    double* const values = points.back().values.data();
    for (std::size_t k = 0; k < numbers; ++k) {
      while (static_cast<unsigned char>(*position) <= ' ') ++position;
      position = convert(position, end, values[k]);
    }
  }
  return points.size();
}

// Calls `pair(break_before, a, b)` for the pairs of a point in the order of the writer.
template <typename Pair>
void visit_pairs(const Input& input, const NetworkParams& params, std::size_t k, Pair pair) {
  const std::size_t ports = input.ports;
  for (std::size_t i = 0; i < ports; ++i) {
    const std::size_t begin = input.upper ? i : 0;
    for (std::size_t j = begin; j < ports; ++j) {
      const bool breaks =
          ports >= 3 && (input.version_2 ? i > 0 && j == begin : j % 4 == 0 && (i > 0 || j > 0));
      const bool swapped = ports == 2;
      const auto [a, b] =
          params.cell(k, swapped ? j : i, swapped ? i : j).as_format(params.format());
      pair(breaks, a, b);
    }
  }
}

}  // namespace

std::size_t read_limit_1(const Input& input, std::string_view bytes) {
  return read_with(input, bytes, by_from_chars);
}

std::size_t read_limit_2(const Input& input, std::string_view bytes) {
  return read_with(input, bytes, by_fast_number);
}

void write_limit_1(const Input& input, const File& file, std::ostream& os) {
  const NetworkParams& params = *file.get_network_params();
  for (std::size_t k = 0; k < params.freq_points(); ++k) {
    os << std::left << std::setw(20) << params.get_unscaled_freq(k);
    visit_pairs(input, params, k, [&os](bool breaks, double a, double b) {
      if (breaks) os << "\n                    ";
      os << "  " << std::setw(20) << std::setprecision(14) << std::left << a << " " << std::setw(20)
         << std::setprecision(14) << std::left << b;
    });
    os << "\n";
  }
}

void write_limit_2(const Input& input, const File& file, std::ostream& os) {
  const NetworkParams& params = *file.get_network_params();
  std::vector<char> buffer(1 << 16);
  char* position = buffer.data();
  char* const limit = buffer.data() + buffer.size() - 256;
  const auto field = [&position](double value, int digits) {
    std::memset(position, ' ', 20);
    char* const end =
        std::to_chars(position, position + 40, value, std::chars_format::general, digits).ptr;
    position = std::max(end, position + 20);
  };
  const auto text = [&position](std::string_view piece) {
    position += piece.copy(position, piece.size());
  };
  for (std::size_t k = 0; k < params.freq_points(); ++k) {
    field(params.get_unscaled_freq(k), k == 0 ? 6 : 14);
    visit_pairs(input, params, k, [&](bool breaks, double a, double b) {
      if (position > limit) {
        os.write(buffer.data(), position - buffer.data());
        position = buffer.data();
      }
      if (breaks) text("\n                    ");
      text("  ");
      field(a, 14);
      text(" ");
      field(b, 14);
    });
    text("\n");
  }
  os.write(buffer.data(), position - buffer.data());
}

}  // namespace touchstone2::bench
