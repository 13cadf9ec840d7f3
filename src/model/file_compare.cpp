// Comparison of two files, cheap fields first. Numbers are compared exactly.
#include <touchstone2/model/file.h>

namespace touchstone2 {

namespace {

constexpr int kCompareFileNames = 1;
constexpr int kCompareComments = 2;
constexpr int kCompareAll = 0xFFFF;

template <typename Params>
bool same_params(const Params* a, const Params* b) {
  if (a == b) return true;
  return a != nullptr && b != nullptr && *a == *b;
}

}  // namespace

bool File::compare(const File& other, int mask) const {
  if ((mask & kCompareFileNames) != 0 && filename_ != other.filename_) return false;
  if (version_ != other.version_ || frequency_scale_factor_ != other.frequency_scale_factor_ ||
      parameter_type_ != other.parameter_type_ || complex_format_ != other.complex_format_) {
    return false;
  }
  // Not (a == b) rather than a != b: a NaN is a difference.
  if (!(reference_impedance_ == other.reference_impedance_)) return false;
  if (number_of_ports_ != other.number_of_ports_ ||
      two_port_data_order_ != other.two_port_data_order_ ||
      number_of_frequencies_ != other.number_of_frequencies_ ||
      number_of_noise_frequencies_ != other.number_of_noise_frequencies_) {
    return false;
  }
  if (reference_impedance_per_port_ != other.reference_impedance_per_port_) return false;
  if (matrix_format_ != other.matrix_format_) return false;
  if (mixed_mode_descriptors_ != other.mixed_mode_descriptors_) return false;
  if ((mask & kCompareComments) != 0 &&
      (leading_comments_ != other.leading_comments_ || other_comments_ != other.other_comments_)) {
    return false;
  }
  return same_params(network_params_.get(), other.network_params_.get()) &&
         same_params(noise_params_, other.noise_params_) &&
         uses_reference_impedance_per_port_ == other.uses_reference_impedance_per_port_ &&
         uses_mixed_mode_ == other.uses_mixed_mode_ &&
         has_information_section_ == other.has_information_section_ && valid_ == other.valid_ &&
         port_names_ == other.port_names_ && port_names_modified_ == other.port_names_modified_;
}

bool File::operator==(const File& other) const { return compare(other, kCompareAll); }

bool File::operator!=(const File& other) const { return !(*this == other); }

}  // namespace touchstone2
