/// Version 2.0 text: keywords, an options line and the data.
///
///     touchstone2::V2_Writer(file).write_file(std::cout);
#ifndef TOUCHSTONE2_WRITER_V2_WRITER_H
#define TOUCHSTONE2_WRITER_V2_WRITER_H

#include <touchstone2/export.h>
#include <touchstone2/writer/writer.h>

#include <cstddef>
#include <iosfwd>

namespace touchstone2 {

/// Writes a file of either generation as version 2.0.
///
/// Values are printed as they are stored, in ohms and siemens. The counts of frequencies are
/// those of the data, not the ones that the file declares. Information sections and the
/// comments that are not leading ones are not written.
class TOUCHSTONE2_EXPORT V2_Writer : public Writer {
 public:
  /// @throws std::logic_error  "touchstone2::File is not valid"
  explicit V2_Writer(File& file);

  /// A copy refers to the same File.
  V2_Writer(const V2_Writer& other);
  ~V2_Writer() override;

  /// @throws std::out_of_range  see Writer::write_file
  void write_file(std::ostream& os) const override;

 private:
  void normalize_network_data(double& a, double& b, std::size_t i, std::size_t j) const override;
  void write_keywords(std::ostream& os) const;
  void write_mixed_mode_descriptors(std::ostream& os) const;
};

}  // namespace touchstone2

#endif
