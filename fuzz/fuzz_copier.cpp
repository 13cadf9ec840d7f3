// Copies with arbitrary selections and orders of the ports. What stands behind the last zero
// byte of the input is the selection, a byte per port; the file's text stands before it.
#include <cstring>
#include <numeric>
#include <utility>

#include "fuzz_support.h"

namespace {

using touchstone2::File;
using touchstone2::NetworkParams;
using touchstone2::NoiseParams;
using touchstone2::fuzz::Reading;
using touchstone2::fuzz::same_bits;

// The longest matrices that are worth the time; the cost of a copy grows with the square.
constexpr std::size_t kMostPorts = 24;

using Selection = std::vector<std::pair<std::size_t, std::string>>;

// A copy owns its noise data here, as the source's Reading does.
struct Copy {
  explicit Copy(File* made)
      : file(made), noise(made == nullptr ? nullptr : made->get_noise_params()) {}
  std::unique_ptr<File> file;
  std::unique_ptr<const NoiseParams> noise;
};

bool needs_two_ports(const File& file) {
  return file.get_parameter_type() == touchstone2::ParameterType::G ||
         file.get_parameter_type() == touchstone2::ParameterType::H;
}

void check_cells(const NetworkParams* from, const NetworkParams* to,
                 const std::vector<std::size_t>& source_of) {
  TOUCHSTONE2_FUZZ_CHECK((from == nullptr) == (to == nullptr));
  if (from == nullptr) return;
  TOUCHSTONE2_FUZZ_CHECK(to->rows() == source_of.size());
  TOUCHSTONE2_FUZZ_CHECK(to->freq_points() == from->freq_points());
  for (std::size_t k = 0; k < to->freq_points(); ++k) {
    TOUCHSTONE2_FUZZ_CHECK(same_bits(to->get_unscaled_freq(k), from->get_unscaled_freq(k)));
    for (std::size_t row = 0; row < to->rows(); ++row) {
      for (std::size_t col = 0; col < to->cols(); ++col) {
        const auto [a, b] = from->cell(k, source_of[row], source_of[col]).as_format(from->format());
        const auto [c, d] = to->cell(k, row, col).as_format(to->format());
        TOUCHSTONE2_FUZZ_CHECK(same_bits(a, c) && same_bits(b, d));
      }
    }
  }
}

void check_copy(const File& source, const File& copy, const std::vector<std::size_t>& source_of) {
  TOUCHSTONE2_FUZZ_CHECK(copy.is_valid());
  TOUCHSTONE2_FUZZ_CHECK(copy.get_number_of_ports() == source_of.size());
  check_cells(source.get_network_params(), copy.get_network_params(), source_of);
  const std::vector<double>& ohms = copy.get_reference_impedance_per_port();
  TOUCHSTONE2_FUZZ_CHECK(ohms.size() == source_of.size());
  for (std::size_t port = 0; port < source_of.size(); ++port) {
    TOUCHSTONE2_FUZZ_CHECK(
        same_bits(ohms[port], source.get_reference_impedance_per_port()[source_of[port]]));
  }
}

void check_subset(const File& source, const std::vector<std::size_t>& wanted) {
  const std::size_t ports = source.get_number_of_ports();
  Selection selection;
  bool all_exist = true;
  for (const std::size_t port : wanted) {
    all_exist = all_exist && port < ports;
    selection.emplace_back(port, "p" + std::to_string(port));
  }
  const Copy copy(touchstone2::copyFileWithSubsetOfPorts("subset.ts", source, selection));
  const bool possible = all_exist && wanted.size() <= ports &&
                        !(needs_two_ports(source) && (wanted.size() != 2 || ports != 2));
  TOUCHSTONE2_FUZZ_CHECK((copy.file != nullptr) == possible);
  if (possible) check_copy(source, *copy.file, wanted);
}

void check_order(const File& source, const std::vector<std::size_t>& order) {
  const Copy copy(touchstone2::copyFileWithReorderedPorts("order.ts", source, order));
  TOUCHSTONE2_FUZZ_CHECK(copy.file != nullptr);
  check_copy(source, *copy.file, order);

  std::vector<std::size_t> inverse(order.size());
  for (std::size_t port = 0; port < order.size(); ++port) inverse[order[port]] = port;
  const Copy back(touchstone2::copyFileWithReorderedPorts("back.ts", *copy.file, inverse));
  TOUCHSTONE2_FUZZ_CHECK(back.file != nullptr);
  TOUCHSTONE2_FUZZ_CHECK(touchstone2::fuzz::same_network_data(source.get_network_params(),
                                                              back.file->get_network_params()));
  TOUCHSTONE2_FUZZ_CHECK(
      touchstone2::fuzz::same_noise_data(source.get_noise_params(), back.noise.get(), true));
  TOUCHSTONE2_FUZZ_CHECK(source.get_port_names() == back.file->get_port_names());
  TOUCHSTONE2_FUZZ_CHECK(source.get_mixed_mode_descriptors().size() ==
                         back.file->get_mixed_mode_descriptors().size());
}

void check_full(const File& source) {
  const Copy copy(touchstone2::copyFileWithFullMatrix("full.ts", source));
  TOUCHSTONE2_FUZZ_CHECK(copy.file != nullptr);
  std::vector<std::size_t> order(source.get_number_of_ports());
  std::iota(order.begin(), order.end(), std::size_t{0});
  check_copy(source, *copy.file, order);
  TOUCHSTONE2_FUZZ_CHECK(copy.file->get_matrix_format() == touchstone2::MatrixFormat::Full);
}

// Each byte of `bytes` swaps one port with another.
std::vector<std::size_t> permutation(std::size_t ports, const std::vector<std::size_t>& bytes) {
  std::vector<std::size_t> order(ports);
  std::iota(order.begin(), order.end(), std::size_t{0});
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::swap(order[i % ports], order[bytes[i] % ports]);
  }
  return order;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = touchstone2::fuzz::as_text(data, size);
  const std::size_t zero = input.rfind('\0');
  std::vector<std::size_t> bytes;
  if (zero != std::string_view::npos) {
    for (const char byte : input.substr(zero + 1)) bytes.push_back(static_cast<std::uint8_t>(byte));
  } else {
    bytes = {1, 0};
  }
  const Reading reading = touchstone2::fuzz::read(input.substr(0, zero));
  const File& source = reading.file;
  const std::size_t ports = source.get_number_of_ports();
  if (bytes.size() > kMostPorts) bytes.resize(kMostPorts);
  if (!reading.ok) {
    TOUCHSTONE2_FUZZ_CHECK(touchstone2::copyFileWithReorderedPorts("n", source, bytes) == nullptr);
    TOUCHSTONE2_FUZZ_CHECK(touchstone2::copyFileWithSubsetOfPorts("n", source, {}) == nullptr);
    TOUCHSTONE2_FUZZ_CHECK(touchstone2::copyFileWithFullMatrix("n", source) == nullptr);
    return 0;
  }
  if (ports > kMostPorts) return 0;

  check_subset(source, bytes);
  if (ports == 0) return 0;
  std::vector<std::size_t> existing = bytes;
  for (std::size_t& port : existing) port %= ports;
  if (existing.size() > ports) existing.resize(ports);
  check_subset(source, existing);
  check_order(source, permutation(ports, bytes));
  check_full(source);
  return 0;
}
