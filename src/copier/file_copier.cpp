// Fills a new File through the setters that File keeps for the reader and the copier. The
// order of the steps matters where a later one asks the new File for what an earlier one has
// set: the port count and the matrix format.
#include <touchstone2/copier/file_copier.h>
#include <touchstone2/reader/diagnostics.h>
#include <touchstone2/reader/error_type.h>

#include <algorithm>
#include <stdexcept>

namespace touchstone2 {

namespace {

std::unique_ptr<NetworkParams> emptyLike(const NetworkParams& params, std::size_t ports) {
  if (params.isSymmetric()) {
    return std::make_unique<SymmetricNetworkParams>(ports, params.freq_scale_factor(),
                                                    params.format());
  }
  return std::make_unique<FullNetworkParams>(ports, params.freq_scale_factor(), params.format());
}

// Null for a type that the wanted ports cannot have.
File* copyFile(const std::string& new_file_name, const File& source,
               const std::vector<std::pair<std::size_t, std::string>>& ports) {
  try {
    return FileCopier(new_file_name, source, ports).takeResult();
  } catch (const ParserError&) {
    return nullptr;
  }
}

}  // namespace

FileCopier::FileCopier(const std::string& new_file_name, const File& source,
                       const std::vector<std::pair<std::size_t, std::string>>& ports)
    : source_(source), ports_(ports), result_(std::make_unique<File>(new_file_name)) {
  initializeSourceToDestPortMap();
  copySourceToDestination();
}

FileCopier::~FileCopier() = default;

File* FileCopier::takeResult() {
  static_cast<void>(noise_.release());  // the new File points to it
  return result_.release();
}

std::size_t FileCopier::numSourcePorts() const { return source_.get_number_of_ports(); }

std::size_t FileCopier::numDestPorts() const { return ports_.size(); }

std::size_t FileCopier::destIndexToSourceIndex(std::size_t d) const {
  if (d >= ports_.size()) throw std::out_of_range("ports");
  return ports_[d].first;
}

std::size_t FileCopier::sourceIndexToDestIndex(std::size_t s) const {
  return s < sourceToDest_.size() ? sourceToDest_[s] : numDestPorts();
}

bool FileCopier::sourceIndexIsMapped(std::size_t s) const {
  return sourceIndexToDestIndex(s) != numDestPorts();
}

const std::string& FileCopier::destPortName(std::size_t d) const {
  if (d >= ports_.size()) throw std::out_of_range("ports");
  return ports_[d].second;
}

bool FileCopier::mixedModeDescriptorIsNeeded(const MixedModeDescriptor& desc) const {
  // A port number of 0 wraps around and is no port of the source.
  const bool first = sourceIndexIsMapped(desc.first_port - 1);
  if (desc.kind == MixedModeKind::SingleEnded) return first;
  const bool second = sourceIndexIsMapped(desc.second_port - 1);
  // Of a pair that loses a port, one descriptor is enough for the port that stays.
  return desc.kind == MixedModeKind::Differential ? first || second : first && second;
}

MixedModeDescriptor FileCopier::copyMixedModeDescriptor(const MixedModeDescriptor& desc) const {
  const std::size_t first = sourceIndexToDestIndex(desc.first_port - 1) + 1;
  if (desc.kind == MixedModeKind::SingleEnded) return {MixedModeKind::SingleEnded, first, 0};

  const std::size_t second = sourceIndexToDestIndex(desc.second_port - 1) + 1;
  if (!sourceIndexIsMapped(desc.first_port - 1)) return {MixedModeKind::SingleEnded, second, 0};
  if (!sourceIndexIsMapped(desc.second_port - 1)) return {MixedModeKind::SingleEnded, first, 0};
  const bool differential = desc.kind == MixedModeKind::Differential;
  return {differential ? MixedModeKind::Differential : MixedModeKind::Common, first, second};
}

void FileCopier::initializeSourceToDestPortMap() {
  sourceToDest_.assign(numSourcePorts(), numDestPorts());
  for (std::size_t d = 0; d < numDestPorts(); ++d) {
    const std::size_t source_index = destIndexToSourceIndex(d);
    if (source_index >= sourceToDest_.size()) throw std::out_of_range("ports");
    sourceToDest_[source_index] = d;
  }
}

void FileCopier::copySourceToDestination() {
  result_->set_version(source_.get_version());
  result_->set_frequency_scale_factor(source_.get_frequency_scale_factor());
  copyParameterType();
  result_->set_complex_format(source_.get_complex_format());
  result_->set_reference_impedance(source_.get_reference_impedance());
  result_->set_number_of_ports(numDestPorts());
  copyTwoPortDataOrder();
  result_->set_number_of_frequencies(source_.get_number_of_frequencies());
  result_->set_matrix_format(source_.get_matrix_format());
  if (source_.has_information_section()) result_->set_has_information_section();
  for (const std::string& line : source_.leading_comments_) {
    result_->append_leading_comment_line(line);
  }
  for (const std::string& line : source_.other_comments_) {
    result_->append_other_comment_line(line);
  }
  if (source_.is_valid()) result_->set_valid();
  copyMixedModeDescriptors();
  copyReferenceImpedancePerPort();
  copyNetworkParams();
  copyNoiseParams();
  copyPortNames();
}

void FileCopier::copyParameterType() {
  const ParameterType type = source_.get_parameter_type();
  if (numDestPorts() != 2 || numSourcePorts() != 2) {
    if (type == ParameterType::G) throw ParserError(ErrorType::GParametersNeedTwoPorts);
    if (type == ParameterType::H) throw ParserError(ErrorType::HParametersNeedTwoPorts);
  }
  result_->set_parameter_type(type);
}

void FileCopier::copyTwoPortDataOrder() {
  TwoPortDataOrder order = TwoPortDataOrder::Unspecified;
  if (numDestPorts() == 2) {
    order =
        numSourcePorts() == 2 ? source_.get_two_port_data_order() : TwoPortDataOrder::Order_21_12;
  }
  result_->set_two_port_data_order(order);
}

void FileCopier::copyMixedModeDescriptors() {
  if (!source_.uses_mixed_mode()) {
    result_->set_implicit_mixed_mode_descriptors();
    return;
  }
  std::vector<MixedModeDescriptor> descriptors;
  for (const MixedModeDescriptor& desc : source_.get_mixed_mode_descriptors()) {
    if (mixedModeDescriptorIsNeeded(desc)) descriptors.push_back(copyMixedModeDescriptor(desc));
  }
  result_->set_mixed_mode_descriptors(descriptors);
}

void FileCopier::copyReferenceImpedancePerPort() {
  if (!source_.uses_reference_impedance_per_port()) {
    result_->set_implicit_reference_impedance_per_port();
    return;
  }
  const std::vector<double>& source_ohms = source_.get_reference_impedance_per_port();
  std::vector<double> ohms;
  for (std::size_t d = 0; d < numDestPorts(); ++d) {
    ohms.push_back(source_ohms.at(destIndexToSourceIndex(d)));
  }
  result_->set_reference_impedance_per_port(ohms);
}

void FileCopier::copyNetworkParams() {
  const NetworkParams* const source = source_.get_network_params();
  if (source == nullptr) return;
  const std::size_t ports = numDestPorts();
  const MatrixFormat matrix = result_->get_matrix_format();
  const ComplexFormat format = source->format();
  std::unique_ptr<NetworkParams> params = emptyLike(*source, ports);
  for (std::size_t f = 0; f < source->freq_points(); ++f) {
    params->add_freq_point(source->get_unscaled_freq(f));
    for (std::size_t r = 0; r < ports; ++r) {
      const std::size_t begin = matrix == MatrixFormat::Upper ? r : 0;
      const std::size_t end = matrix == MatrixFormat::Lower ? r + 1 : ports;
      for (std::size_t c = begin; c < end; ++c) {
        // Asked for in its own format, a cell gives its numbers bit for bit.
        const auto [a, b] =
            source->cell(f, destIndexToSourceIndex(r), destIndexToSourceIndex(c)).as_format(format);
        params->cell(f, r, c).set(a, b);
      }
    }
  }
  result_->set_network_params(params.release());
}

void FileCopier::copyNoiseParams() {
  const NoiseParams* const source = source_.get_noise_params();
  if (numDestPorts() != 2 || numSourcePorts() != 2 || source == nullptr) return;
  result_->set_number_of_noise_frequencies(source_.get_number_of_noise_frequencies());
  noise_ = std::make_unique<NoiseParams>(source->get_freq_scale_factor());
  for (std::size_t i = 0; i < source->freq_points(); ++i) {
    noise_->add_freq_point(source->get_unscaled_freq(i), source->get_min_noise_db(i),
                           source->get_reflection_magnitude(i), source->get_reflection_phase(i),
                           source->get_impedance(i));
  }
  result_->set_noise_params(noise_.get());
}

// The source's list is looked at as it stands. Asking get_port_names would fill it.
void FileCopier::copyPortNames() {
  if (source_.port_names_.empty()) return;
  for (std::size_t d = 0; d < numDestPorts(); ++d) {
    result_->port_names_.push_back(destPortName(d));
  }
  result_->port_names_modified_ = true;
  result_->update_leading_comments();
}

File* copyFileWithReorderedPorts(const std::string& new_file_name, const File& source,
                                 const std::vector<std::size_t>& order) {
  const std::size_t ports = source.get_number_of_ports();
  if (!source.is_valid() || order.empty() || order.size() != ports) return nullptr;
  if (*std::max_element(order.begin(), order.end()) >= ports) return nullptr;

  const std::vector<std::string>& names = source.get_port_names();
  std::vector<std::pair<std::size_t, std::string>> selection;
  selection.reserve(order.size());
  for (const std::size_t index : order) {
    selection.emplace_back(index, index < names.size() ? names[index] : std::string());
  }
  return copyFile(new_file_name, source, selection);
}

File* copyFileWithSubsetOfPorts(const std::string& new_file_name, const File& source,
                                const std::vector<std::pair<std::size_t, std::string>>& ports) {
  const std::size_t source_ports = source.get_number_of_ports();
  if (!source.is_valid() || ports.size() > source_ports) return nullptr;
  for (const auto& [index, name] : ports) {
    if (index >= source_ports) return nullptr;
  }
  return copyFile(new_file_name, source, ports);
}

}  // namespace touchstone2
