/// Version 1 text: an options line and bare rows of numbers.
///
///     touchstone2::V1_Writer(file).write_file(std::cout);
#ifndef TOUCHSTONE2_WRITER_V1_WRITER_H
#define TOUCHSTONE2_WRITER_V1_WRITER_H

#include <touchstone2/export.h>
#include <touchstone2/writer/writer.h>

#include <cstddef>
#include <iosfwd>

namespace touchstone2 {

/// Writes a file of either generation as version 1.
///
/// 2-port data are printed in the order N11, N21, N12, N22, whatever the file's own order.
/// Y-, Z-, H- and G-parameters and noise resistances are printed normalised to the reference
/// impedance of the options line, which is used as it stands: 0 or a negative one is not
/// refused. Of symmetric data only the triangle that the file lists is printed, though
/// version 1 has no way to say so.
class TOUCHSTONE2_EXPORT V1_Writer : public Writer {
 public:
  /// @throws std::logic_error  "touchstone2::File is not valid"
  explicit V1_Writer(File& file);

  /// A copy refers to the same File.
  V1_Writer(const V1_Writer& other);
  ~V1_Writer() override;

  /// @throws std::runtime_error  "Touchstone v1 supports only a single reference impedance"
  ///         or "Touchstone v1 supports only data in single-ended mode", before anything is
  ///         written.
  /// @throws std::out_of_range  see Writer::write_file
  void write_file(std::ostream& os) const override;

 private:
  void normalize_network_data(double& a, double& b, std::size_t i, std::size_t j) const override;
};

}  // namespace touchstone2

#endif
