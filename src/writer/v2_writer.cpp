// Keywords in their fixed order, then the data as they are stored.
#include <touchstone2/writer/v2_writer.h>

#include <ostream>

#include "writer/plain_numbers.h"

namespace touchstone2 {

namespace {

using detail::write_number;

void write_count(std::ostream& os, const char* keyword, std::size_t count) {
  os << keyword << " ";
  write_number(os, count);
  os << "\n";
}

void write_matrix_format(std::ostream& os, MatrixFormat format) {
  switch (format) {
    case MatrixFormat::Upper:
      os << "[Matrix Format] Upper\n";
      break;
    case MatrixFormat::Lower:
      os << "[Matrix Format] Lower\n";
      break;
    case MatrixFormat::Full:
    case MatrixFormat::Unspecified:
      break;
  }
}

void write_pair(std::ostream& os, const char* kind, const MixedModeDescriptor& descriptor) {
  os << kind;
  write_number(os, descriptor.first_port);
  os << ",";
  write_number(os, descriptor.second_port);
}

}  // namespace

V2_Writer::V2_Writer(File& file) : Writer(file) {}

V2_Writer::V2_Writer(const V2_Writer& other) = default;
V2_Writer::~V2_Writer() = default;

void V2_Writer::write_file(std::ostream& os) const {
  const detail::PlainNumbers plain(os);
  write_leading_comments(os);
  os << "[Version] 2.0\n";
  write_options_line(os);
  write_keywords(os);

  const NetworkParams* const params = file().get_network_params();
  if (params != nullptr && params->freq_points() != 0) {
    os << "\n[Network Data]\n";
    write_network_params(
        os, /*write_header=*/true,
        /*column_major_two_port=*/file().get_two_port_data_order() == TwoPortDataOrder::Order_21_12,
        /*version_1_layout=*/false);
  }
  const NoiseParams* const noise = file().get_noise_params();
  if (noise != nullptr && noise->freq_points() != 0) {
    os << "\n[Noise Data]\n";
    write_noise_params(os, /*normalize=*/false);
  }
  os << "\n[End]\n";
  os.flush();
}

void V2_Writer::write_keywords(std::ostream& os) const {
  const File& source = file();
  const std::size_t ports = source.get_number_of_ports();
  if (ports != 0) write_count(os, "[Number of Ports]", ports);
  if (ports == 2) {
    const bool swapped = source.get_two_port_data_order() == TwoPortDataOrder::Order_21_12;
    os << "[Two-Port Data Order] " << (swapped ? "21_12" : "12_21") << "\n";
  }
  write_matrix_format(os, source.get_matrix_format());

  // The objects' counts, which may be 0.
  if (const NetworkParams* params = source.get_network_params()) {
    write_count(os, "[Number of Frequencies]", params->freq_points());
  }
  if (const NoiseParams* noise = source.get_noise_params()) {
    write_count(os, "[Number of Noise Frequencies]", noise->freq_points());
  }

  if (source.uses_reference_impedance_per_port()) {
    os << "[Reference]";
    for (const double ohms : source.get_reference_impedance_per_port()) {
      os << " ";
      write_number(os, ohms);
    }
    os << "\n";
  }
  if (source.uses_mixed_mode()) {
    os << "[Mixed-Mode Order]";
    write_mixed_mode_descriptors(os);
  }
}

void V2_Writer::write_mixed_mode_descriptors(std::ostream& os) const {
  for (const MixedModeDescriptor& descriptor : file().get_mixed_mode_descriptors()) {
    switch (descriptor.kind) {
      case MixedModeKind::SingleEnded:
        os << " S";
        write_number(os, descriptor.first_port);
        break;
      case MixedModeKind::Differential:
        write_pair(os, " D", descriptor);
        break;
      case MixedModeKind::Common:
        write_pair(os, " C", descriptor);
        break;
    }
  }
  os << "\n";
}

// Version 2 keeps ohms and siemens.
void V2_Writer::normalize_network_data(double& /*a*/, double& /*b*/, std::size_t /*i*/,
                                       std::size_t /*j*/) const {}

}  // namespace touchstone2
