// What is written with 17 digits reads back to the same bits; what version 1 cannot express is
// refused before anything is written.
#include <cmath>
#include <sstream>
#include <stdexcept>

#include "fuzz_support.h"

namespace {

using touchstone2::File;
using touchstone2::NetworkParams;
using touchstone2::NoiseParams;
using touchstone2::ParameterType;
using touchstone2::fuzz::Reading;

constexpr int kAllDigits = 17;

// The format has no infinities and stores no subnormal numbers; the conversion of normalised
// values can give both.
bool can_be_written(double value) { return value == 0.0 || std::isnormal(value); }

bool can_be_written(const NetworkParams& params) {
  for (std::size_t k = 0; k < params.freq_points(); ++k) {
    for (std::size_t row = 0; row < params.rows(); ++row) {
      for (std::size_t col = 0; col < params.cols(); ++col) {
        const auto [a, b] = params.cell(k, row, col).as_format(params.format());
        if (!can_be_written(a) || !can_be_written(b)) return false;
      }
    }
  }
  return true;
}

bool can_be_written(const NoiseParams* noise, double divisor) {
  for (std::size_t k = 0; noise != nullptr && k < noise->freq_points(); ++k) {
    if (!can_be_written(noise->get_impedance(k) / divisor)) return false;
  }
  return true;
}

template <typename Writer>
std::string write(File& file) {
  std::ostringstream text;
  text.precision(kAllDigits);
  Writer writer(file);
  writer.setPrecision(kAllDigits);
  writer.write_file(text);
  TOUCHSTONE2_FUZZ_CHECK(text.good());
  return text.str();
}

void check_same_frame(const File& a, const File& b) {
  TOUCHSTONE2_FUZZ_CHECK(a.get_frequency_scale_factor() == b.get_frequency_scale_factor());
  TOUCHSTONE2_FUZZ_CHECK(a.get_parameter_type() == b.get_parameter_type());
  TOUCHSTONE2_FUZZ_CHECK(a.get_complex_format() == b.get_complex_format());
  TOUCHSTONE2_FUZZ_CHECK(a.get_reference_impedance() == b.get_reference_impedance());
  TOUCHSTONE2_FUZZ_CHECK(a.get_number_of_ports() == b.get_number_of_ports());
  TOUCHSTONE2_FUZZ_CHECK(a.get_number_of_frequencies() == b.get_number_of_frequencies());
  TOUCHSTONE2_FUZZ_CHECK(a.get_number_of_noise_frequencies() ==
                         b.get_number_of_noise_frequencies());
  TOUCHSTONE2_FUZZ_CHECK(a.get_reference_impedance_per_port() ==
                         b.get_reference_impedance_per_port());
  TOUCHSTONE2_FUZZ_CHECK(a.get_mixed_mode_descriptors() == b.get_mixed_mode_descriptors());
  TOUCHSTONE2_FUZZ_CHECK(a.uses_reference_impedance_per_port() ==
                         b.uses_reference_impedance_per_port());
  TOUCHSTONE2_FUZZ_CHECK(a.uses_mixed_mode() == b.uses_mixed_mode());
  TOUCHSTONE2_FUZZ_CHECK(a.get_leading_comments() == b.get_leading_comments());
  TOUCHSTONE2_FUZZ_CHECK(a.get_port_names() == b.get_port_names());
}

void check_version_2(File& file) {
  const std::string text = write<touchstone2::V2_Writer>(file);
  TOUCHSTONE2_FUZZ_CHECK(write<touchstone2::V2_Writer>(file) == text);
  if (!can_be_written(*file.get_network_params()) || !can_be_written(file.get_noise_params(), 1)) {
    return;
  }
  const Reading again = touchstone2::fuzz::read(text);
  TOUCHSTONE2_FUZZ_CHECK(again.ok);
  check_same_frame(file, again.file);
  TOUCHSTONE2_FUZZ_CHECK(file.get_matrix_format() == again.file.get_matrix_format());
  TOUCHSTONE2_FUZZ_CHECK(file.get_two_port_data_order() == again.file.get_two_port_data_order());
  TOUCHSTONE2_FUZZ_CHECK(touchstone2::fuzz::same_network_data(file.get_network_params(),
                                                              again.file.get_network_params()));
  TOUCHSTONE2_FUZZ_CHECK(touchstone2::fuzz::same_noise_data(file.get_noise_params(),
                                                            again.noise.get(), /*exact=*/true));
}

void check_refusal(File& file) {
  std::ostringstream text;
  bool refused = false;
  try {
    touchstone2::V1_Writer(file).write_file(text);
  } catch (const std::runtime_error&) {
    refused = true;
  }
  TOUCHSTONE2_FUZZ_CHECK(refused);
  TOUCHSTONE2_FUZZ_CHECK(text.str().empty());
}

void check_version_1(const File& source) {
  const std::unique_ptr<File> file(
      touchstone2::copyFileWithFullMatrix(source.get_filename(), source));
  TOUCHSTONE2_FUZZ_CHECK(file != nullptr);
  const std::unique_ptr<const NoiseParams> noise(file->get_noise_params());
  if (file->uses_reference_impedance_per_port() || file->uses_mixed_mode()) {
    return check_refusal(*file);
  }
  const std::string text = write<touchstone2::V1_Writer>(*file);
  // Other parameters are divided by the reference impedance and multiplied again.
  const bool exact = file->get_parameter_type() == ParameterType::S;
  if (!exact || !can_be_written(*file->get_network_params()) ||
      !can_be_written(noise.get(), file->get_reference_impedance())) {
    return;
  }
  const Reading again = touchstone2::fuzz::read(text);
  TOUCHSTONE2_FUZZ_CHECK(again.ok);
  check_same_frame(*file, again.file);
  TOUCHSTONE2_FUZZ_CHECK(touchstone2::fuzz::same_network_data(file->get_network_params(),
                                                              again.file.get_network_params()));
  TOUCHSTONE2_FUZZ_CHECK(
      touchstone2::fuzz::same_noise_data(noise.get(), again.noise.get(), /*exact=*/false));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Reading reading = touchstone2::fuzz::read(touchstone2::fuzz::as_text(data, size));
  if (!reading.ok) return 0;
  if (reading.file.get_network_params() == nullptr) {
    // Version 1 without records: there is nothing that a reader would take.
    write<touchstone2::V2_Writer>(reading.file);
    write<touchstone2::V1_Writer>(reading.file);
    return 0;
  }
  check_version_2(reading.file);
  check_version_1(reading.file);
  return 0;
}
