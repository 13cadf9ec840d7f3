// What the fuzz targets share. A target is a file with one function, LLVMFuzzerTestOneInput; a
// property that does not hold ends the program, which the fuzz engine and the replay both notice.
#ifndef TOUCHSTONE2_FUZZ_FUZZ_SUPPORT_H
#define TOUCHSTONE2_FUZZ_FUZZ_SUPPORT_H

#include <touchstone2/touchstone2.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "../tests/support/recording_handler.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

#define TOUCHSTONE2_FUZZ_CHECK(condition) \
  static_cast<void>((condition) ||        \
                    (touchstone2::fuzz::give_up(__FILE__, __LINE__, #condition), false))

namespace touchstone2::fuzz {

[[noreturn]] inline void give_up(const char* file, int line, const char* condition) {
  std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
  std::abort();
}

inline std::string_view as_text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

enum class Extent { whole, header };

// What a read left behind. Owns the noise object, which no File does.
struct Reading {
  File file{"fuzz.s2p"};
  bool ok = false;
  std::vector<test::Diagnostic> diagnostics;
  std::unique_ptr<const NoiseParams> noise;
};

// `prepare` gets the parser before the read.
template <typename Prepare>
Reading read(std::string_view text, Extent extent, Prepare prepare) {
  Reading reading;
  test::RecordingHandler handler;
  Parser parser(reading.file, handler, text);
  prepare(parser);
  reading.ok = extent == Extent::whole ? parser.read_file() : parser.read_file_header();
  reading.diagnostics = handler.diagnostics;
  reading.noise.reset(reading.file.get_noise_params());
  return reading;
}

inline Reading read(std::string_view text, Extent extent = Extent::whole) {
  return read(text, extent, [](Parser&) {});
}

inline bool same(const test::Diagnostic& a, const test::Diagnostic& b) {
  return a.severity == b.severity && a.code == b.code && a.line == b.line && a.column == b.column &&
         a.token == b.token && a.message == b.message;
}

inline bool same_bits(double a, double b) { return std::memcmp(&a, &b, sizeof a) == 0; }

// Bit for bit, so that 0.0 and -0.0 differ; an object without points counts as none.
inline bool same_network_data(const NetworkParams* a, const NetworkParams* b) {
  const std::size_t points = a == nullptr ? 0 : a->freq_points();
  if (points != (b == nullptr ? 0 : b->freq_points())) return false;
  if (points == 0) return true;
  if (a->rows() != b->rows() || a->format() != b->format()) return false;
  if (!same_bits(a->freq_scale_factor(), b->freq_scale_factor())) return false;
  for (std::size_t k = 0; k < points; ++k) {
    if (!same_bits(a->get_unscaled_freq(k), b->get_unscaled_freq(k))) return false;
    for (std::size_t row = 0; row < a->rows(); ++row) {
      for (std::size_t col = 0; col < a->cols(); ++col) {
        const auto [a1, a2] = a->cell(k, row, col).as_format(a->format());
        const auto [b1, b2] = b->cell(k, row, col).as_format(b->format());
        if (!same_bits(a1, b1) || !same_bits(a2, b2)) return false;
      }
    }
  }
  return true;
}

// The same for the noise data. Version 1 divides the resistance by the reference impedance and
// multiplies it again: `exact_impedance` is false where that has come between.
inline bool same_noise_data(const NoiseParams* a, const NoiseParams* b, bool exact_impedance) {
  const std::size_t rows = a == nullptr ? 0 : a->freq_points();
  if (rows != (b == nullptr ? 0 : b->freq_points())) return false;
  for (std::size_t k = 0; k < rows; ++k) {
    if (!same_bits(a->get_unscaled_freq(k), b->get_unscaled_freq(k)) ||
        !same_bits(a->get_min_noise_db(k), b->get_min_noise_db(k)) ||
        !same_bits(a->get_reflection_magnitude(k), b->get_reflection_magnitude(k)) ||
        !same_bits(a->get_reflection_phase(k), b->get_reflection_phase(k))) {
      return false;
    }
    if (exact_impedance && !same_bits(a->get_impedance(k), b->get_impedance(k))) return false;
  }
  return true;
}

// Fits the text that is read to an allocation of its very size, so that a byte too far is seen.
class ExactBytes {
 public:
  explicit ExactBytes(std::string_view text)
      : size_(text.size()), bytes_(std::make_unique<char[]>(text.size())) {
    text.copy(bytes_.get(), size_);
  }
  std::string_view text() const { return {bytes_.get(), size_}; }

 private:
  std::size_t size_;
  std::unique_ptr<char[]> bytes_;
};

}  // namespace touchstone2::fuzz

#endif
