// The fast path through network data against the token path: one text, read both ways, gives
// the same model bit for bit and the same diagnostics word for word.
#include <algorithm>
#include <cmath>

#include "fuzz_support.h"

namespace touchstone2 {

struct FastPathSwitch {
  static void turn_off(Parser& parser) { parser.uses_fast_path_ = false; }
};

}  // namespace touchstone2

namespace {

using touchstone2::NetworkParams;
using touchstone2::fuzz::Extent;
using touchstone2::fuzz::Reading;

bool has_nan(const NetworkParams* params) {
  if (params == nullptr) return false;
  for (std::size_t k = 0; k < params->freq_points(); ++k) {
    for (std::size_t row = 0; row < params->rows(); ++row) {
      for (std::size_t col = 0; col < params->cols(); ++col) {
        const auto [a, b] = params->cell(k, row, col).as_format(params->format());
        if (std::isnan(a) || std::isnan(b)) return true;
      }
    }
  }
  return false;
}

void compare_paths(std::string_view text) {
  const touchstone2::fuzz::ExactBytes bytes(text);
  const Reading fast = touchstone2::fuzz::read(bytes.text());
  const Reading exact =
      touchstone2::fuzz::read(bytes.text(), Extent::whole, touchstone2::FastPathSwitch::turn_off);
  TOUCHSTONE2_FUZZ_CHECK(fast.ok == exact.ok);
  TOUCHSTONE2_FUZZ_CHECK(std::equal(fast.diagnostics.begin(), fast.diagnostics.end(),
                                    exact.diagnostics.begin(), exact.diagnostics.end(),
                                    touchstone2::fuzz::same));
  TOUCHSTONE2_FUZZ_CHECK(!has_nan(exact.file.get_network_params()));
  TOUCHSTONE2_FUZZ_CHECK(touchstone2::fuzz::same_network_data(fast.file.get_network_params(),
                                                              exact.file.get_network_params()));
  TOUCHSTONE2_FUZZ_CHECK(
      touchstone2::fuzz::same_noise_data(fast.noise.get(), exact.noise.get(), true));
  TOUCHSTONE2_FUZZ_CHECK(fast.file == exact.file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = touchstone2::fuzz::as_text(data, size);
  compare_paths(text);
  // The fast path leaves the last hundred bytes alone. With blanks behind them it takes these,
  // too.
  compare_paths(std::string(text) + std::string(100, ' '));
  return 0;
}
