// Storage of one file's content: construction, queries, and the setters of the reader and the
// copier. Comparison is in file_compare.cpp; what has to do with port names is in
// portnames/file_port_names.cpp.
#include <touchstone2/model/file.h>

namespace touchstone2 {

File::File(const std::string& file_name) : filename_(file_name) {}

File::File(const File& other) = default;
File& File::operator=(const File& other) = default;
File::File(File&& other) noexcept = default;
File& File::operator=(File&& other) noexcept = default;
File::~File() = default;

const std::string& File::get_filename() const { return filename_; }

FileVersion File::get_version() const { return version_; }

FrequencyScaleFactor File::get_frequency_scale_factor() const { return frequency_scale_factor_; }

ParameterType File::get_parameter_type() const { return parameter_type_; }

ComplexFormat File::get_complex_format() const { return complex_format_; }

double File::get_reference_impedance() const { return reference_impedance_; }

std::size_t File::get_number_of_ports() const { return number_of_ports_; }

TwoPortDataOrder File::get_two_port_data_order() const { return two_port_data_order_; }

std::size_t File::get_number_of_frequencies() const { return number_of_frequencies_; }

std::size_t File::get_number_of_noise_frequencies() const { return number_of_noise_frequencies_; }

const std::vector<double>& File::get_reference_impedance_per_port() const {
  return reference_impedance_per_port_;
}

MatrixFormat File::get_matrix_format() const { return matrix_format_; }

const std::vector<MixedModeDescriptor>& File::get_mixed_mode_descriptors() const {
  return mixed_mode_descriptors_;
}

std::vector<std::string> File::get_leading_comments() const { return leading_comments_; }

std::vector<std::string> File::get_other_comments() const { return other_comments_; }

const NetworkParams* File::get_network_params() const { return network_params_.get(); }

const NoiseParams* File::get_noise_params() const { return noise_params_; }

bool File::uses_reference_impedance_per_port() const { return uses_reference_impedance_per_port_; }

bool File::uses_mixed_mode() const { return uses_mixed_mode_; }

bool File::has_information_section() const { return has_information_section_; }

bool File::is_valid() const { return valid_; }

double File::get_frequency_multiplier() const {
  switch (frequency_scale_factor_) {
    case FrequencyScaleFactor::kHz:
      return 1000.0;
    case FrequencyScaleFactor::MHz:
      return 1e6;
    case FrequencyScaleFactor::GHz:
      return 1e9;
    case FrequencyScaleFactor::Hz:
    case FrequencyScaleFactor::Unspecified:
      break;
  }
  return 1.0;
}

void File::set_version(FileVersion version) { version_ = version; }

void File::set_frequency_scale_factor(FrequencyScaleFactor factor) {
  frequency_scale_factor_ = factor;
}

void File::set_parameter_type(ParameterType type) { parameter_type_ = type; }

void File::set_complex_format(ComplexFormat format) { complex_format_ = format; }

void File::set_reference_impedance(double ohms) { reference_impedance_ = ohms; }

void File::set_number_of_ports(std::size_t count) { number_of_ports_ = count; }

void File::set_number_of_frequencies(std::size_t count) { number_of_frequencies_ = count; }

void File::set_number_of_noise_frequencies(std::size_t count) {
  number_of_noise_frequencies_ = count;
}

void File::set_two_port_data_order(TwoPortDataOrder order) { two_port_data_order_ = order; }

void File::set_matrix_format(MatrixFormat format) { matrix_format_ = format; }

void File::set_reference_impedance_per_port(const std::vector<double>& ohms) {
  reference_impedance_per_port_ = ohms;
  uses_reference_impedance_per_port_ = true;
}

void File::set_implicit_reference_impedance_per_port() {
  reference_impedance_per_port_.assign(number_of_ports_, reference_impedance_);
}

void File::set_mixed_mode_descriptors(const std::vector<MixedModeDescriptor>& descriptors) {
  mixed_mode_descriptors_ = descriptors;
  uses_mixed_mode_ = true;
}

// Appends to what is there: two calls give two descriptors per port.
void File::set_implicit_mixed_mode_descriptors() {
  mixed_mode_descriptors_.reserve(mixed_mode_descriptors_.size() + number_of_ports_);
  for (std::size_t port = 1; port <= number_of_ports_; ++port) {
    mixed_mode_descriptors_.push_back({MixedModeKind::SingleEnded, port, 0});
  }
}

void File::set_network_params(NetworkParams* params) { network_params_.reset(params); }

void File::set_noise_params(NoiseParams* params) { noise_params_ = params; }

void File::set_has_information_section() { has_information_section_ = true; }

void File::set_valid() { valid_ = true; }

void File::append_leading_comment_line(const std::string& line) {
  leading_comments_.push_back(line);
}

void File::append_other_comment_line(const std::string& line) { other_comments_.push_back(line); }

}  // namespace touchstone2
