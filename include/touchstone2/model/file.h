/// The in-memory form of one Touchstone file.
///
///     touchstone2::File file("amp.s2p");
///     touchstone2::StandardMessageHandler handler;
///     touchstone2::Parser parser(file, handler);
///     if (parser.read_file()) {
///       const touchstone2::NetworkParams* s = file.get_network_params();
///       ...
///     }
///     std::unique_ptr<const touchstone2::NoiseParams> noise(file.get_noise_params());
///
/// Ownership. The network data belong to the File and its copies together and live as long
/// as the last of them. The noise data belong to none of them: a File never deletes the
/// object it points to, and its copies point to the same one. Whoever had the File read or
/// made owns it, may delete it once no copy is used any more (`delete
/// file.get_noise_params()`, or a std::unique_ptr as above), and must do so only once. Every
/// read that finds noise data makes a new object and forgets the pointer to the one before.
///
/// Threads. One File is used by one thread at a time, const members included, because
/// get_port_names fills a cache. Copies on different threads are independent as long as
/// nobody changes the shared network or noise object.
#ifndef TOUCHSTONE2_MODEL_FILE_H
#define TOUCHSTONE2_MODEL_FILE_H

#include <touchstone2/export.h>
#include <touchstone2/model/network_params.h>
#include <touchstone2/model/noise_params.h>
#include <touchstone2/model/types.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace touchstone2 {

class Parser;
class FileCopier;

/// Filled by Parser and FileCopier through private setters; everyone else asks.
///
/// Which members hold something after a failed read: whatever the text before the error had
/// given. Only is_valid tells a complete file.
class File {
 public:
  /// @param file_name  UTF-8 path of the file to read, or just a label for diagnostics when
  ///                   the bytes come from memory. Nothing is opened here.
  TOUCHSTONE2_EXPORT explicit File(const std::string& file_name);

  /// @{
  /// A copy shares the network data and the pointer to the noise data; all else is its own.
  /// Assigning leaves the old noise data alone, see the top of this header.
  TOUCHSTONE2_EXPORT File(const File& other);
  TOUCHSTONE2_EXPORT File& operator=(const File& other);
  /// @}

  /// @{
  /// Takes everything over. What is left may be destroyed or assigned to, nothing else.
  TOUCHSTONE2_EXPORT File(File&& other) noexcept;
  TOUCHSTONE2_EXPORT File& operator=(File&& other) noexcept;
  /// @}

  /// Releases its share of the network data; leaves the noise data alone.
  TOUCHSTONE2_EXPORT ~File();

  /// As given to the constructor.
  TOUCHSTONE2_EXPORT const std::string& get_filename() const;

  /// Generation of the format; `Unspecified` until a read has got that far.
  TOUCHSTONE2_EXPORT FileVersion get_version() const;

  /// Unit of the frequencies of the file, noise data included; GHz when the options line names
  /// none.
  TOUCHSTONE2_EXPORT FrequencyScaleFactor get_frequency_scale_factor() const;

  /// What the matrices hold; S when the options line does not say.
  TOUCHSTONE2_EXPORT ParameterType get_parameter_type() const;

  /// How the values are stored; MA when the options line does not say.
  TOUCHSTONE2_EXPORT ComplexFormat get_complex_format() const;

  /// The single "R" value of the options line in ohms; 0.0 before anything was read.
  TOUCHSTONE2_EXPORT double get_reference_impedance() const;

  /// As a version 2 file declares it, or as the first record of a version 1 file shows it;
  /// 0 for a version 1 file without records. After a failed read or one of the header alone it
  /// is a claim that no data stand for.
  TOUCHSTONE2_EXPORT std::size_t get_number_of_ports() const;

  /// Order in which the file lists 2-port data. The matrices are in the usual order either way.
  TOUCHSTONE2_EXPORT TwoPortDataOrder get_two_port_data_order() const;

  /// @{
  /// As a version 2 file declares it, or as a version 1 read has counted it.
  TOUCHSTONE2_EXPORT std::size_t get_number_of_frequencies() const;
  TOUCHSTONE2_EXPORT std::size_t get_number_of_noise_frequencies() const;
  /// @}

  /// Ohms, one entry per port. Filled from the options line when the file gives no
  /// "[Reference]"; uses_reference_impedance_per_port tells the two apart.
  TOUCHSTONE2_EXPORT const std::vector<double>& get_reference_impedance_per_port() const;

  /// Which cells the file lists.
  TOUCHSTONE2_EXPORT MatrixFormat get_matrix_format() const;

  /// One entry per port. Filled with `SingleEnded` entries when the file gives no
  /// "[Mixed-Mode Order]"; uses_mixed_mode tells the two apart. The implicit entries are
  /// appended, so reading twice into one File doubles them.
  TOUCHSTONE2_EXPORT const std::vector<MixedModeDescriptor>& get_mixed_mode_descriptors() const;

  /// Comment lines without their "!": those before the options line or first keyword. A copy.
  TOUCHSTONE2_EXPORT std::vector<std::string> get_leading_comments() const;

  /// Comment lines without their "!" found between the data records of a version 1 file.
  /// A copy.
  TOUCHSTONE2_EXPORT std::vector<std::string> get_other_comments() const;

  /// Null when the file has no network data. The pointer lives as long as any copy of this
  /// File; do not delete it.
  TOUCHSTONE2_EXPORT const NetworkParams* get_network_params() const;

  /// Null when the file has no noise data. Owned by nobody inside the library, see the top
  /// of this header.
  TOUCHSTONE2_EXPORT const NoiseParams* get_noise_params() const;

  /// True when the file has a "[Reference]".
  TOUCHSTONE2_EXPORT bool uses_reference_impedance_per_port() const;

  /// True when the file has a "[Mixed-Mode Order]".
  TOUCHSTONE2_EXPORT bool uses_mixed_mode() const;

  /// True when the file has a "[Begin Information]". What stands in the section is not kept.
  TOUCHSTONE2_EXPORT bool has_information_section() const;

  /// True once a read has come to its end without an error. Never cleared: a failing
  /// read_file after a good read_file_header on the same File leaves it true.
  TOUCHSTONE2_EXPORT bool is_valid() const;

  /// Factor from the file's frequency unit to Hz: 1.0, 1000.0, 1e6 or 1e9; 1.0 when unknown.
  TOUCHSTONE2_EXPORT double get_frequency_multiplier() const;

  // Port names and pairing information. The format has no keyword for either; tools write them
  // in comment lines. The data is kept here, the knowledge of the comment conventions is not:
  // these members are defined in src/portnames/file_port_names.cpp.

  /// Names of the ports, one entry per port, empty where no comment names the port. When the
  /// leading and the other comments name one port differently, every name is empty.
  ///
  /// The first call looks for the names in the comments and keeps what it finds, so this is
  /// not a read in the sense of thread safety. Names once found or set stay, also when the
  /// File is read into again.
  /// @throws std::length_error  for more than 2^20 ports, which only a header can claim. So do
  ///         set_port_name and update_leading_comments.
  TOUCHSTONE2_EXPORT const std::vector<std::string>& get_port_names() const;

  /// Names one port; looks for the names in the comments first.
  /// @param index  port index from 0
  /// @param name   taken as it stands; empty for no name
  /// @throws std::out_of_range  "index" when there is no such port; nothing is changed.
  TOUCHSTONE2_EXPORT void set_port_name(std::size_t index, const std::string& name);

  /// Replaces all names. Any number of entries is taken as it stands.
  TOUCHSTONE2_EXPORT void set_port_names(const std::vector<std::string>& names);

  /// Replaces the port-name lines of the leading comments, whatever their convention, by one
  /// line " Port[k] = name" per name. Writers call it before every write.
  TOUCHSTONE2_EXPORT void update_leading_comments();

  /// The last leading comment line that contains "MIXED"; empty when there is none. Looked up
  /// at each call; the reference shows the text of the latest call.
  TOUCHSTONE2_EXPORT const std::string& get_pairing_info();

  /// Appends `text` to the leading comments in place of the last line that contains "MIXED".
  /// Such a line is kept when it is the very first one. An empty text appends nothing; a text
  /// without "MIXED" is not found again by get_pairing_info.
  TOUCHSTONE2_EXPORT void set_pairing_info(const std::string& text);

  /// Field by field, numbers exactly. The file names count when bit 0 (value 1) of `mask` is
  /// set, both comment lists when bit 1 (value 2) is. Network and noise objects are equal
  /// when they are the same object, or both exist and compare equal. Port names are compared
  /// as stored: a File whose names were looked up differs from a copy whose names were not.
  /// The pairing information is not compared.
  TOUCHSTONE2_EXPORT bool compare(const File& other, int mask) const;

  /// compare with file names and comments.
  TOUCHSTONE2_EXPORT bool operator==(const File& other) const;

  /// The opposite of ==.
  TOUCHSTONE2_EXPORT bool operator!=(const File& other) const;

 private:
  friend class Parser;
  friend class FileCopier;

  void set_version(FileVersion version);
  void set_frequency_scale_factor(FrequencyScaleFactor factor);
  void set_parameter_type(ParameterType type);
  void set_complex_format(ComplexFormat format);
  void set_reference_impedance(double ohms);
  void set_number_of_ports(std::size_t count);
  void set_number_of_frequencies(std::size_t count);
  void set_number_of_noise_frequencies(std::size_t count);
  void set_two_port_data_order(TwoPortDataOrder order);
  void set_matrix_format(MatrixFormat format);
  void set_reference_impedance_per_port(const std::vector<double>& ohms);
  void set_implicit_reference_impedance_per_port();
  void set_mixed_mode_descriptors(const std::vector<MixedModeDescriptor>& descriptors);
  void set_implicit_mixed_mode_descriptors();
  void set_network_params(NetworkParams* params);  // takes ownership
  void set_noise_params(NoiseParams* params);      // does not
  void set_has_information_section();
  void set_valid();
  void append_leading_comment_line(const std::string& line);
  void append_other_comment_line(const std::string& line);
  void initialize_port_names_from_comments() const;

  std::string filename_;
  FileVersion version_ = FileVersion::Unspecified;
  FrequencyScaleFactor frequency_scale_factor_ = FrequencyScaleFactor::Unspecified;
  ParameterType parameter_type_ = ParameterType::Unspecified;
  ComplexFormat complex_format_ = ComplexFormat::Unspecified;
  double reference_impedance_ = 0.0;
  std::size_t number_of_ports_ = 0;
  TwoPortDataOrder two_port_data_order_ = TwoPortDataOrder::Unspecified;
  std::size_t number_of_frequencies_ = 0;
  std::size_t number_of_noise_frequencies_ = 0;
  std::vector<double> reference_impedance_per_port_;
  MatrixFormat matrix_format_ = MatrixFormat::Unspecified;
  std::vector<MixedModeDescriptor> mixed_mode_descriptors_;
  std::vector<std::string> leading_comments_;
  std::vector<std::string> other_comments_;
  std::shared_ptr<NetworkParams> network_params_;
  NoiseParams* noise_params_ = nullptr;
  bool uses_reference_impedance_per_port_ = false;
  bool uses_mixed_mode_ = false;
  bool has_information_section_ = false;
  bool valid_ = false;
  mutable std::vector<std::string> port_names_;  // a cache: empty until looked for or set
  bool port_names_modified_ = false;
  std::string pairing_info_;
};

}  // namespace touchstone2

#endif
