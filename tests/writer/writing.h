// What the writers' tests share: text written in one line, columns, and Files that no text
// gives.
#ifndef TOUCHSTONE2_TESTS_WRITER_WRITING_H
#define TOUCHSTONE2_TESTS_WRITER_WRITING_H

#include <touchstone2/model/file.h>
#include <touchstone2/writer/v1_writer.h>
#include <touchstone2/writer/v2_writer.h>

#include <cstddef>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2::test {

// What a writer makes of `file` on a stream as it comes. The File's comments are updated in a
// copy.
template <typename SomeWriter>
std::string written(File file) {
  std::ostringstream os;
  SomeWriter(file).write_file(os);
  return os.str();
}

// The same without the lines before the one that starts with `start`.
template <typename SomeWriter>
std::string written_from(const File& file, std::string_view start) {
  const std::string text = written<SomeWriter>(file);
  const std::size_t where = text.find("\n" + std::string(start));
  return where == std::string::npos ? "no line \"" + std::string(start) + "\" in:\n" + text
                                    : text.substr(where + 1);
}

// A text in a column of 20 characters.
inline std::string col(std::string text) {
  if (text.size() < 20) text.resize(20, ' ');
  return text;
}

// One pair of columns as it stands in a line of data.
inline std::string pair(const std::string& first, const std::string& second) {
  return "  " + col(first) + " " + col(second);
}

inline const std::string kNextLine = "\n" + std::string(20, ' ');

// Reads a text that must be right.
inline ReadResult valid(const std::string& text) {
  ReadResult result = read_text(text);
  EXPECT_TRUE(result.ok) << text << ::testing::PrintToString(result.brief_diagnostics());
  return result;
}

// `count` pairs "k -k" for k = 1, 2, ...
inline std::string numbered_pairs(std::size_t count) {
  std::string text;
  for (std::size_t k = 1; k <= count; ++k) {
    text += " " + std::to_string(k) + " -" + std::to_string(k);
  }
  return text;
}

// Private data members of File, for Files that reading does not give. An explicit
// instantiation may name what is private:
//
//     file.*stored(ParameterTypeField{}) = ParameterType::Unspecified;
template <typename Field, typename Field::type Member>
struct Reach {
  friend typename Field::type stored(Field) { return Member; }
};

#define TOUCHSTONE2_TEST_FIELD(Name, Type, member) \
  struct Name {                                    \
    using type = Type File::*;                     \
    friend type stored(Name);                      \
  };                                               \
  template struct Reach<Name, &File::member>

TOUCHSTONE2_TEST_FIELD(UnitField, FrequencyScaleFactor, frequency_scale_factor_);
TOUCHSTONE2_TEST_FIELD(ParameterTypeField, ParameterType, parameter_type_);
TOUCHSTONE2_TEST_FIELD(ComplexFormatField, ComplexFormat, complex_format_);
TOUCHSTONE2_TEST_FIELD(ReferenceField, double, reference_impedance_);
TOUCHSTONE2_TEST_FIELD(PortCountField, std::size_t, number_of_ports_);
TOUCHSTONE2_TEST_FIELD(DataOrderField, TwoPortDataOrder, two_port_data_order_);
TOUCHSTONE2_TEST_FIELD(MatrixFormatField, MatrixFormat, matrix_format_);
TOUCHSTONE2_TEST_FIELD(DescriptorsField, std::vector<MixedModeDescriptor>, mixed_mode_descriptors_);
TOUCHSTONE2_TEST_FIELD(UsesMixedModeField, bool, uses_mixed_mode_);
TOUCHSTONE2_TEST_FIELD(NetworkField, std::shared_ptr<NetworkParams>, network_params_);
TOUCHSTONE2_TEST_FIELD(NoiseField, NoiseParams*, noise_params_);

#undef TOUCHSTONE2_TEST_FIELD

}  // namespace touchstone2::test

#endif
