/// What the writers of both generations of the format share.
///
///     touchstone2::V2_Writer writer(file);   // file: a valid touchstone2::File
///     writer.setPrecision(17);               // every double survives the round trip
///     std::ofstream out("copy.ts", std::ios::binary);
///     writer.write_file(out);
///
/// The stream. Numbers are written in C++'s default notation, with a "." and without
/// grouping, whatever locale, number flags and fill character the stream has; it has its own
/// again when a member returns or throws. What stays changed is the precision, which is the
/// writer's as soon as a value has been written, and the adjustment, which is then left. The
/// precision found on the stream is that of the numbers before the first value, which
/// includes the frequency of the first point: a frequency of more than 6 digits needs
/// std::setprecision on the stream as well as setPrecision. Errors of the stream are not
/// looked at; its state tells them afterwards.
#ifndef TOUCHSTONE2_WRITER_WRITER_H
#define TOUCHSTONE2_WRITER_WRITER_H

#include <touchstone2/export.h>
#include <touchstone2/model/file.h>

#include <cstddef>
#include <iosfwd>

namespace touchstone2 {

/// Base of the writers. The order of its virtual functions and of its data members is part
/// of the binary interface.
///
/// A writer refers to its File, which must outlive it, and can be used any number of times.
/// The File is not const: each write first brings the port-name lines of its leading
/// comments up to date.
class TOUCHSTONE2_EXPORT Writer {
 public:
  /// @throws std::logic_error  "touchstone2::File is not valid"
  explicit Writer(File& file);

  /// A copy refers to the same File.
  Writer(const Writer& other);
  Writer& operator=(const Writer&) = delete;
  virtual ~Writer();

  /// Writes the whole file and flushes the stream.
  ///
  /// @throws std::out_of_range  "freqIndex", "row" or "col" when the network data have fewer
  ///         ports than the File says. What was written before stays in the stream.
  virtual void write_file(std::ostream& os) const = 0;

  /// Significant digits of the values; 14 at first.
  int precision() const;

  /// Any value is taken and handed to the stream as it stands. 17 digits give back every
  /// double exactly.
  void setPrecision(int digits);

 protected:
  /// Adjusts one pair of network values just before it is printed. (i, j) are the indices,
  /// from 0, in the order of printing: for 2-port data printed column by column the pair is
  /// that of row j, column i.
  virtual void normalize_network_data(double& a, double& b, std::size_t i, std::size_t j) const = 0;

  /// "!" and the text of each leading comment, one per line, port names brought up to date.
  void write_leading_comments(std::ostream& os) const;

  /// "# GHz S MA R 50": what the file does not say is left out.
  void write_options_line(std::ostream& os) const;

  /// The network data, one block of lines per frequency point; nothing without points.
  /// @param os                     the stream
  /// @param write_header           name the columns in a comment first
  /// @param column_major_two_port  print N21 before N12 when there are two ports
  /// @param version_1_layout       with three ports or more, no line holds more than four
  ///                               pairs; otherwise every matrix row has its own line
  void write_network_params(std::ostream& os, bool write_header, bool column_major_two_port,
                            bool version_1_layout) const;

  /// The noise data, one line per row; nothing without rows.
  /// @param os         the stream
  /// @param normalize  print the resistances divided by the reference impedance
  void write_noise_params(std::ostream& os, bool normalize) const;

  /// The File that is written.
  const File& file() const { return file_; }

 private:
  File& file_;
  int precision_ = 14;
};

}  // namespace touchstone2

#endif
