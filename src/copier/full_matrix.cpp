// A copy whose matrices list every cell. The ports stay where they are, so a copier over all of
// them does everything but the matrices.
#include <touchstone2/copier/file_copier.h>
#include <touchstone2/reader/diagnostics.h>

namespace touchstone2 {

namespace {

std::vector<std::pair<std::size_t, std::string>> everyPort(const File& source) {
  const std::vector<std::string>& names = source.get_port_names();
  std::vector<std::pair<std::size_t, std::string>> ports;
  for (std::size_t port = 0; port < source.get_number_of_ports(); ++port) {
    ports.emplace_back(port, port < names.size() ? names[port] : std::string());
  }
  return ports;
}

}  // namespace

// Asked for a cell of the other triangle, symmetric storage gives the mirrored one.
void FileCopier::expandMatrix() {
  result_->set_matrix_format(MatrixFormat::Full);
  const NetworkParams* const triangle = result_->get_network_params();
  if (triangle == nullptr || !triangle->isSymmetric()) return;
  const ComplexFormat format = triangle->format();
  auto full =
      std::make_unique<FullNetworkParams>(triangle->rows(), triangle->freq_scale_factor(), format);
  for (std::size_t f = 0; f < triangle->freq_points(); ++f) {
    full->add_freq_point(triangle->get_unscaled_freq(f));
    for (std::size_t r = 0; r < triangle->rows(); ++r) {
      for (std::size_t c = 0; c < triangle->cols(); ++c) {
        const auto [a, b] = triangle->cell(f, r, c).as_format(format);
        full->cell(f, r, c).set(a, b);
      }
    }
  }
  result_->set_network_params(full.release());
}

File* copyFileWithFullMatrix(const std::string& new_file_name, const File& source) {
  if (!source.is_valid()) return nullptr;
  const std::vector<std::pair<std::size_t, std::string>> ports = everyPort(source);
  try {
    FileCopier copier(new_file_name, source, ports);
    copier.expandMatrix();
    return copier.takeResult();
  } catch (const ParserError&) {
    return nullptr;
  }
}

}  // namespace touchstone2
