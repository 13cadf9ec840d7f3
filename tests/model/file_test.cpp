// Defaults, storage, copies and moves. The setters are private: reading a text drives them.

#include <touchstone2/touchstone2.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {
namespace {

using test::Extent;
using test::read_text;
using test::ReadResult;
using test::RecordingHandler;

using Strings = std::vector<std::string>;
using Numbers = std::vector<double>;

// Sets every field that a file can set to something that is not its default.
const char* const kEverything =
    "! first\n"
    "!second \n"
    "[Version] 2.0\n"
    "# kHz Y RI R 75\n"
    "[Number of Ports] 2\n"
    "[Two-Port Data Order] 21_12\n"
    "[Number of Frequencies] 1\n"
    "[Number of Noise Frequencies] 1\n"
    "[Reference] 25 25\n"
    "[Matrix Format] Lower\n"
    "[Mixed-Mode Order] D1,2 C1,2\n"
    "[Begin Information]\n"
    "anything\n"
    "[End Information]\n"
    "[Network Data]\n"
    "5 1 2 3 4 5 6\n"
    "[Noise Data]\n"
    "2 0.5 0.25 -30 12.5\n"
    "[End]\n";

void expect_everything(const File& file) {
  EXPECT_EQ(file.get_filename(), "every.ts");
  EXPECT_EQ(file.get_version(), FileVersion::V2);
  EXPECT_EQ(file.get_frequency_scale_factor(), FrequencyScaleFactor::kHz);
  EXPECT_EQ(file.get_parameter_type(), ParameterType::Y);
  EXPECT_EQ(file.get_complex_format(), ComplexFormat::RI);
  EXPECT_EQ(file.get_reference_impedance(), 75.0);
  EXPECT_EQ(file.get_number_of_ports(), 2U);
  EXPECT_EQ(file.get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
  EXPECT_EQ(file.get_number_of_frequencies(), 1U);
  EXPECT_EQ(file.get_number_of_noise_frequencies(), 1U);
  EXPECT_EQ(file.get_reference_impedance_per_port(), Numbers({25.0, 25.0}));
  EXPECT_EQ(file.get_matrix_format(), MatrixFormat::Lower);
  const std::vector<MixedModeDescriptor> descriptors = {{MixedModeKind::Differential, 1, 2},
                                                        {MixedModeKind::Common, 1, 2}};
  EXPECT_TRUE(file.get_mixed_mode_descriptors() == descriptors);
  EXPECT_EQ(file.get_leading_comments(), Strings({" first", "second "}));
  EXPECT_TRUE(file.uses_reference_impedance_per_port());
  EXPECT_TRUE(file.uses_mixed_mode());
  EXPECT_TRUE(file.has_information_section());
  EXPECT_TRUE(file.is_valid());
  EXPECT_EQ(file.get_frequency_multiplier(), 1000.0);

  ASSERT_NE(file.get_network_params(), nullptr);
  EXPECT_TRUE(file.get_network_params()->isSymmetric());
  EXPECT_EQ(file.get_network_params()->rows(), 2U);
  EXPECT_EQ(file.get_network_params()->format(), ComplexFormat::RI);
  EXPECT_EQ(file.get_network_params()->get_freq(0), 5000.0);
  ASSERT_NE(file.get_noise_params(), nullptr);
  EXPECT_EQ(file.get_noise_params()->get_freq(0), 2000.0);
}

void expect_defaults(const File& file) {
  EXPECT_EQ(static_cast<std::uint32_t>(file.get_version()), 0U);
  EXPECT_EQ(static_cast<std::uint32_t>(file.get_frequency_scale_factor()), 0U);
  EXPECT_EQ(static_cast<std::uint32_t>(file.get_parameter_type()), 0U);
  EXPECT_EQ(static_cast<std::uint32_t>(file.get_complex_format()), 0U);
  EXPECT_EQ(file.get_reference_impedance(), 0.0);
  EXPECT_EQ(file.get_number_of_ports(), 0U);
  EXPECT_EQ(static_cast<std::uint32_t>(file.get_two_port_data_order()), 0U);
  EXPECT_EQ(file.get_number_of_frequencies(), 0U);
  EXPECT_EQ(file.get_number_of_noise_frequencies(), 0U);
  EXPECT_TRUE(file.get_reference_impedance_per_port().empty());
  EXPECT_EQ(static_cast<std::uint32_t>(file.get_matrix_format()), 0U);
  EXPECT_TRUE(file.get_mixed_mode_descriptors().empty());
  EXPECT_TRUE(file.get_leading_comments().empty());
  EXPECT_TRUE(file.get_other_comments().empty());
  EXPECT_EQ(file.get_network_params(), nullptr);
  EXPECT_EQ(file.get_noise_params(), nullptr);
  EXPECT_FALSE(file.uses_reference_impedance_per_port());
  EXPECT_FALSE(file.uses_mixed_mode());
  EXPECT_FALSE(file.has_information_section());
  EXPECT_FALSE(file.is_valid());
  EXPECT_EQ(file.get_frequency_multiplier(), 1.0);
}

TEST(File, HoldsDefaultsAtFirst) {
  const std::string names[] = {"amp.s2p", "", "no such folder/x.ts", std::string("a\0b", 3)};
  for (const std::string& name : names) {
    File file(name);
    EXPECT_EQ(file.get_filename(), name);
    expect_defaults(file);
    EXPECT_TRUE(file.get_port_names().empty());
    EXPECT_EQ(file.get_pairing_info(), "");
  }
}

TEST(File, ConstructionFromATextIsExplicit) {
  static_assert(!std::is_convertible_v<std::string, File>, "");
  static_assert(!std::is_default_constructible_v<File>, "");
}

TEST(File, KeepsWhatAVersion2FileGives) {
  const ReadResult result = read_text(kEverything, Extent::whole, "every.ts");
  ASSERT_EQ(result.brief_diagnostics(), Strings());
  expect_everything(result.file);
}

TEST(File, KeepsWhatAVersion1FileGives) {
  const ReadResult result = read_text(
      "! top\n"
      "# MHz Z DB R 10\n"
      "! between\n"
      "1 1 10 2 20 3 30 4 40\n"
      "! more\n"
      "2 1 10 2 20 3 30 4 40\n");
  ASSERT_EQ(result.brief_diagnostics(), Strings());
  const File& file = result.file;
  EXPECT_EQ(file.get_version(), FileVersion::V1);
  EXPECT_EQ(file.get_frequency_scale_factor(), FrequencyScaleFactor::MHz);
  EXPECT_EQ(file.get_parameter_type(), ParameterType::Z);
  EXPECT_EQ(file.get_complex_format(), ComplexFormat::DB);
  EXPECT_EQ(file.get_reference_impedance(), 10.0);
  EXPECT_EQ(file.get_number_of_ports(), 2U);
  EXPECT_EQ(file.get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
  EXPECT_EQ(file.get_number_of_frequencies(), 2U);
  EXPECT_EQ(file.get_reference_impedance_per_port(), Numbers({10.0, 10.0}));
  EXPECT_EQ(file.get_matrix_format(), MatrixFormat::Full);
  const std::vector<MixedModeDescriptor> descriptors = {{MixedModeKind::SingleEnded, 1, 0},
                                                        {MixedModeKind::SingleEnded, 2, 0}};
  EXPECT_TRUE(file.get_mixed_mode_descriptors() == descriptors);
  EXPECT_EQ(file.get_leading_comments(), Strings({" top"}));
  EXPECT_EQ(file.get_other_comments(), Strings({" between", " more"}));
  EXPECT_FALSE(file.uses_reference_impedance_per_port());
  EXPECT_FALSE(file.uses_mixed_mode());
  EXPECT_FALSE(file.has_information_section());
  EXPECT_TRUE(file.is_valid());
  EXPECT_EQ(file.get_frequency_multiplier(), 1e6);
}

TEST(File, MultiplierFollowsTheUnit) {
  struct Row {
    const char* unit;
    FrequencyScaleFactor factor;
    double expected;
  };
  const Row rows[] = {
      {"Hz", FrequencyScaleFactor::Hz, 1.0},
      {"kHz", FrequencyScaleFactor::kHz, 1000.0},
      {"MHz", FrequencyScaleFactor::MHz, 1e6},
      {"GHz", FrequencyScaleFactor::GHz, 1e9},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.unit);
    const ReadResult result = read_text(std::string("# ") + row.unit + "\n1 2 3\n");
    EXPECT_EQ(result.file.get_frequency_scale_factor(), row.factor);
    EXPECT_EQ(result.file.get_frequency_multiplier(), row.expected);
    EXPECT_EQ(result.params().freq_scale_factor(), row.expected);
  }
}

TEST(File, GivenImpedancesSetTheirFlagAndImplicitOnesDoNot) {
  const std::string begin = "[Version] 2.0\n# R 20\n[Number of Ports] 2\n";
  const std::string end =
      "[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n"
      "[Network Data]\n1 1 2 3 4 5 6 7 8\n[End]\n";
  const ReadResult given = read_text(begin + "[Reference] 20 20\n" + end);
  EXPECT_EQ(given.file.get_reference_impedance_per_port(), Numbers({20.0, 20.0}));
  EXPECT_TRUE(given.file.uses_reference_impedance_per_port());
  const ReadResult implicit = read_text(begin + end);
  EXPECT_EQ(implicit.file.get_reference_impedance_per_port(), Numbers({20.0, 20.0}));
  EXPECT_FALSE(implicit.file.uses_reference_impedance_per_port());
}

// The implicit descriptors are appended to what is there, the implicit impedances replace it.
TEST(File, ImplicitDescriptorsPileUpWhenAFileIsReadIntoTwice) {
  File file("twice.s2p");
  RecordingHandler handler;
  Parser parser(file, handler, "#\n1 1 2 3 4 5 6 7 8\n");
  ASSERT_TRUE(parser.read_file());
  ASSERT_EQ(file.get_mixed_mode_descriptors().size(), 2U);
  ASSERT_TRUE(parser.read_file());
  const std::vector<MixedModeDescriptor> descriptors = {{MixedModeKind::SingleEnded, 1, 0},
                                                        {MixedModeKind::SingleEnded, 2, 0},
                                                        {MixedModeKind::SingleEnded, 1, 0},
                                                        {MixedModeKind::SingleEnded, 2, 0}};
  EXPECT_TRUE(file.get_mixed_mode_descriptors() == descriptors);
  EXPECT_EQ(file.get_reference_impedance_per_port(), Numbers({50.0, 50.0}));
  EXPECT_FALSE(file.uses_mixed_mode());
}

TEST(File, NoPortsHaveNoImplicitEntries) {
  const ReadResult result = read_text("# GHz S MA R 50\n");
  EXPECT_TRUE(result.file.is_valid());
  EXPECT_EQ(result.file.get_number_of_ports(), 0U);
  EXPECT_TRUE(result.file.get_mixed_mode_descriptors().empty());
  EXPECT_TRUE(result.file.get_reference_impedance_per_port().empty());
  EXPECT_EQ(result.file.get_network_params(), nullptr);
}

TEST(File, CommentsAreHandedOutAsCopies) {
  ReadResult result = read_text("! top\n# GHz\n1 2 3\n! low\n2 2 3\n");
  Strings leading = result.file.get_leading_comments();
  Strings other = result.file.get_other_comments();
  ASSERT_EQ(leading, Strings({" top"}));
  ASSERT_EQ(other, Strings({" low"}));
  leading[0] = "changed";
  other.clear();
  EXPECT_EQ(result.file.get_leading_comments(), Strings({" top"}));
  EXPECT_EQ(result.file.get_other_comments(), Strings({" low"}));
}

TEST(File, ListsAreHandedOutByReference) {
  using Descriptors = std::vector<MixedModeDescriptor>;
  static_assert(
      std::is_same_v<decltype(std::declval<const File&>().get_filename()), const std::string&>, "");
  static_assert(
      std::is_same_v<decltype(std::declval<const File&>().get_reference_impedance_per_port()),
                     const Numbers&>,
      "");
  static_assert(std::is_same_v<decltype(std::declval<const File&>().get_mixed_mode_descriptors()),
                               const Descriptors&>,
                "");
  static_assert(
      std::is_same_v<decltype(std::declval<const File&>().get_port_names()), const Strings&>, "");
  static_assert(
      std::is_same_v<decltype(std::declval<const File&>().get_leading_comments()), Strings>, "");
  static_assert(std::is_same_v<decltype(std::declval<const File&>().get_other_comments()), Strings>,
                "");
}

TEST(File, PortNamesAreFoundOnceAndSetOnesStay) {
  ReadResult result = read_text("! Port[1] = in\n! Port[2] = out\n#\n1 1 2 3 4 5 6 7 8\n");
  EXPECT_EQ(result.file.get_port_names(), Strings({"in", "out"}));
  const Strings* const first = &result.file.get_port_names();
  EXPECT_EQ(&result.file.get_port_names(), first);
  result.file.set_port_names({"a", "b"});
  EXPECT_EQ(result.file.get_port_names(), Strings({"a", "b"}));
}

TEST(File, CopyKeepsEveryFieldAndSharesTheData) {
  const ReadResult result = read_text(kEverything, Extent::whole, "every.ts");
  const File copy(result.file);
  expect_everything(copy);
  EXPECT_EQ(copy.get_network_params(), result.file.get_network_params());
  EXPECT_EQ(copy.get_noise_params(), result.file.get_noise_params());
  EXPECT_TRUE(copy == result.file);

  File assigned("other.s1p");
  assigned = result.file;
  expect_everything(assigned);
  EXPECT_EQ(assigned.get_network_params(), result.file.get_network_params());
  EXPECT_EQ(assigned.get_noise_params(), result.file.get_noise_params());
  EXPECT_TRUE(assigned == result.file);
}

TEST(File, CopyKeepsOtherCommentsAndPortNames) {
  ReadResult result = read_text("# GHz\n1 2 3\n! low\n2 2 3\n");
  result.file.set_port_names({"antenna"});
  const File copy(result.file);
  EXPECT_EQ(copy.get_other_comments(), Strings({" low"}));
  EXPECT_EQ(copy.get_port_names(), Strings({"antenna"}));
  EXPECT_TRUE(copy == result.file);
}

TEST(File, CopiesOfTheTextsAreIndependent) {
  ReadResult result = read_text("# GHz\n1 2 3\n");
  File copy(result.file);
  copy.set_port_names({"antenna"});
  EXPECT_EQ(result.file.get_port_names(), Strings({""}));
}

TEST(File, NetworkDataLiveAsLongAsOneCopy) {
  File survivor("empty.s1p");
  {
    const ReadResult result = read_text("# GHz S RI\n1 2 3\n");
    survivor = result.file;
  }
  const NetworkParams* const params = survivor.get_network_params();
  ASSERT_NE(params, nullptr);
  EXPECT_EQ(params->cell(0, 0, 0).as_format(ComplexFormat::RI), std::make_pair(2.0, 3.0));
}

// A leak checker sees it if the File did not delete the network data, a memory checker if it
// deleted the noise data.
TEST(File, NoiseDataOutliveEveryCopy) {
  const NoiseParams* noise = nullptr;
  {
    File file("noisy.s2p");
    RecordingHandler handler;
    Parser parser(file, handler, "#\n5 1 2 3 4 5 6 7 8\n2 1 0.5 30 0.25\n");
    ASSERT_TRUE(parser.read_file());
    noise = file.get_noise_params();
    const File copy(file);
    EXPECT_EQ(copy.get_noise_params(), noise);
  }
  ASSERT_NE(noise, nullptr);
  EXPECT_EQ(noise->freq_points(), 1U);
  EXPECT_EQ(noise->get_impedance(0), 12.5);
  delete noise;
}

TEST(File, MoveTakesEveryFieldAndEmptiesTheContainers) {
  static_assert(std::is_nothrow_move_constructible_v<File>, "");
  static_assert(std::is_nothrow_move_assignable_v<File>, "");

  ReadResult result = read_text(kEverything, Extent::whole, "every.ts");
  const NetworkParams* const params = result.file.get_network_params();
  File moved(std::move(result.file));
  expect_everything(moved);
  EXPECT_EQ(moved.get_network_params(), params);
  EXPECT_EQ(moved.get_noise_params(), result.noise.get());

  File assigned("other.s1p");
  assigned = std::move(moved);
  expect_everything(assigned);
  EXPECT_EQ(assigned.get_network_params(), params);
  EXPECT_EQ(assigned.get_noise_params(), result.noise.get());

  for (const File* source : {&result.file, &moved}) {
    EXPECT_EQ(source->get_network_params(), nullptr);
    EXPECT_TRUE(source->get_reference_impedance_per_port().empty());
    EXPECT_TRUE(source->get_mixed_mode_descriptors().empty());
    EXPECT_TRUE(source->get_leading_comments().empty());
    EXPECT_TRUE(source->get_other_comments().empty());
  }
}

TEST(File, AssignmentReleasesTheEarlierNetworkData) {
  ReadResult first = read_text("# GHz S RI\n1 2 3\n");
  const ReadResult second = read_text("# GHz S RI\n4 5 6\n");
  first.file = second.file;
  EXPECT_EQ(first.file.get_network_params(), second.file.get_network_params());
  const File& alias = first.file;
  first.file = alias;
  EXPECT_EQ(first.file.get_network_params(), second.file.get_network_params());
}

}  // namespace
}  // namespace touchstone2
