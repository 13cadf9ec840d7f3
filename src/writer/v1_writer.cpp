// Version 1 stores Y-, Z-, H- and G-parameters relative to the one reference impedance; the
// model holds ohms and siemens.
#include <touchstone2/writer/v1_writer.h>

#include <ostream>
#include <stdexcept>

#include "model/impedance_scaling.h"
#include "writer/plain_numbers.h"

namespace touchstone2 {

V1_Writer::V1_Writer(File& file) : Writer(file) {}

V1_Writer::V1_Writer(const V1_Writer& other) = default;
V1_Writer::~V1_Writer() = default;

void V1_Writer::write_file(std::ostream& os) const {
  if (file().uses_reference_impedance_per_port()) {
    throw std::runtime_error("Touchstone v1 supports only a single reference impedance");
  }
  if (file().uses_mixed_mode()) {
    throw std::runtime_error("Touchstone v1 supports only data in single-ended mode");
  }

  const detail::PlainNumbers plain(os);
  write_leading_comments(os);
  write_options_line(os);
  write_network_params(os, /*write_header=*/true, /*column_major_two_port=*/true,
                       /*version_1_layout=*/true);
  const NoiseParams* const noise = file().get_noise_params();
  if (noise != nullptr && noise->freq_points() != 0) {
    os << "\n! NOISE PARAMETERS\n";
    write_noise_params(os, /*normalize=*/true);
  }
  os.flush();
}

void V1_Writer::normalize_network_data(double& a, double& b, std::size_t i, std::size_t j) const {
  detail::normalize_value(file().get_parameter_type(), file().get_complex_format(),
                          file().get_reference_impedance(), i, j, a, b);
}

}  // namespace touchstone2
