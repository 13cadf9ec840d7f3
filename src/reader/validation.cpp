// What a file may leave out, and the rules that concern a version 2 file as a whole. Their
// errors have no position.
#include <touchstone2/reader/parser.h>

#include <algorithm>

#include "reader/scanner.h"

namespace touchstone2 {

namespace {

// Below this the implicit values are a few megabytes at most, whatever the file holds.
constexpr std::size_t kAlwaysFilledPorts = 65'536;

// The declared port count is a claim. False when not even one record of that many ports, two
// bytes a number, fits into the bytes: the read is then bound to fail in the data, and nothing
// may be allocated for it.
bool could_hold(std::size_t bytes, std::size_t ports) {
  return ports <= kAlwaysFilledPorts || ports * (ports + 1) <= bytes / 2;
}

}  // namespace

void Parser::fill_implicit_fields() {
  if (file_.get_matrix_format() == MatrixFormat::Unspecified) {
    file_.set_matrix_format(MatrixFormat::Full);
  }
  if (!could_hold(scanner_->size(), file_.get_number_of_ports())) return;
  if (!file_.uses_reference_impedance_per_port()) {
    file_.set_implicit_reference_impedance_per_port();
  }
  if (!file_.uses_mixed_mode()) file_.set_implicit_mixed_mode_descriptors();
}

void Parser::validate_file() {
  if (file_.get_number_of_ports() != 2) {
    if (file_.get_parameter_type() == ParameterType::G) {
      throw ParserError(ErrorType::GParametersNeedTwoPorts);
    }
    if (file_.get_parameter_type() == ParameterType::H) {
      throw ParserError(ErrorType::HParametersNeedTwoPorts);
    }
  }

  if (file_.get_number_of_noise_frequencies() != 0) {
    const NoiseParams* const noise = file_.get_noise_params();
    if (noise == nullptr || noise->freq_points() == 0) {
      throw ParserError(ErrorType::NoiseDataMissing);
    }
    if (noise->min_unscaled_freq() > file_.get_network_params()->max_unscaled_freq()) {
      throw ParserError(ErrorType::NoiseDataAboveNetworkData);
    }
  }

  // Needs both keywords: impedances from the options line are equal anyway.
  if (file_.uses_mixed_mode() && file_.uses_reference_impedance_per_port()) {
    const std::vector<double>& ohms = file_.get_reference_impedance_per_port();
    for (const MixedModeDescriptor& descriptor : file_.get_mixed_mode_descriptors()) {
      if (descriptor.kind == MixedModeKind::SingleEnded) continue;
      // Beyond the list only when an earlier read has left its own list in the same File.
      if (std::max(descriptor.first_port, descriptor.second_port) > ohms.size()) continue;
      const double z1 = ohms[descriptor.first_port - 1];
      const double z2 = ohms[descriptor.second_port - 1];
      if (!doubles_are_equal(z1, z2)) {
        throw DifferentialPortsImpedanceError(descriptor.first_port, z1, descriptor.second_port,
                                              z2);
      }
    }
  }
  file_.set_valid();
}

// A version 1 file has nothing left to check.
void Parser::validate_v1_file() {
  file_.set_implicit_reference_impedance_per_port();
  file_.set_implicit_mixed_mode_descriptors();
  file_.set_valid();
}

}  // namespace touchstone2
