#include <touchstone2/copier/file_copier.h>
#include <touchstone2/reader/diagnostics.h>
#include <touchstone2/writer/v2_writer.h>

#include <cstddef>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {
namespace {

using Strings = std::vector<std::string>;
using Selection = std::vector<std::pair<std::size_t, std::string>>;
using Order = std::vector<std::size_t>;
using Pair = std::pair<double, double>;
using Kind = MixedModeKind;

// A copy and its noise data, which no File owns.
struct Copy {
  explicit Copy(File* result)
      : file(result), noise(result ? result->get_noise_params() : nullptr) {}

  std::unique_ptr<File> file;
  std::unique_ptr<const NoiseParams> noise;
};

Copy reordered(const File& source, const Order& order) {
  return Copy(copyFileWithReorderedPorts("copy.ts", source, order));
}

Copy subset(const File& source, const Selection& ports) {
  return Copy(copyFileWithSubsetOfPorts("copy.ts", source, ports));
}

test::ReadResult valid(const std::string& text) {
  test::ReadResult result = test::read_text(text);
  EXPECT_TRUE(result.ok) << text << ::testing::PrintToString(result.brief_diagnostics());
  return result;
}

// Row and column of every cell, from 1, as the value of the cell at the first point: 23 0.5 in
// row 2, column 3. The second point has one more.
std::string matrix_rows(std::size_t ports, const std::string& format = "Full") {
  std::string text;
  for (int point = 1; point <= 2; ++point) {
    text += std::to_string(point) + ".5";
    for (std::size_t row = 1; row <= ports; ++row) {
      for (std::size_t col = 1; col <= ports; ++col) {
        if ((format == "Upper" && col < row) || (format == "Lower" && col > row)) continue;
        text +=
            " " + std::to_string(row) + std::to_string(col) + "." + std::to_string(point) + " 0.1";
      }
      text += "\n";
    }
  }
  return text;
}

std::string four_ports(const std::string& keywords = "", const std::string& comments = "",
                       const std::string& options = "# MHz S RI R 50") {
  return comments + "[Version] 2.0\n" + options + "\n[Number of Ports] 4\n" +
         "[Number of Frequencies] 2\n" + keywords + "[Network Data]\n" + matrix_rows(4) + "[End]\n";
}

const std::string kFourNames =
    "!x\n! Port[1] = a\n! Port[2] = b\n! Port[3] = c\n! Port[4] = d\n!y\n";

// Two ports with noise data, in the order 12_21.
std::string two_ports(const std::string& type = "S") {
  return "[Version] 2.0\n# GHz " + type +
         " MA R 75\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n"
         "[Number of Frequencies] 1\n[Number of Noise Frequencies] 2\n[Reference] 50 75\n"
         "[Begin Information]\n[End Information]\n"
         "[Network Data]\n2 11 0 12 0 21 0 22 0\n"
         "[Noise Data]\n1 1.5 0.3 120 12.5\n2 2.5 0.4 -130 25\n[End]\n";
}

Pair cell(const File& file, std::size_t point, std::size_t row, std::size_t col) {
  const NetworkParams& params = *file.get_network_params();
  return params.cell(point, row, col).as_format(params.format());
}

TEST(ReorderedPorts, TakeEverythingOfAPortAlong) {
  auto read = valid(four_ports("[Reference] 10 20 30 40\n", kFourNames));
  const Copy copy = reordered(read.file, {3, 2, 1, 0});
  ASSERT_NE(copy.file, nullptr);
  const File& file = *copy.file;
  EXPECT_EQ(file.get_number_of_ports(), 4u);
  EXPECT_EQ(file.get_network_params()->rows(), 4u);
  EXPECT_EQ(file.get_network_params()->freq_points(), 2u);
  for (std::size_t point = 0; point < 2; ++point) {
    EXPECT_EQ(file.get_network_params()->get_unscaled_freq(point),
              read.params().get_unscaled_freq(point));
    for (std::size_t row = 0; row < 4; ++row) {
      for (std::size_t col = 0; col < 4; ++col) {
        EXPECT_EQ(cell(file, point, row, col), cell(read.file, point, 3 - row, 3 - col));
      }
    }
  }
  EXPECT_EQ(cell(file, 1, 0, 2), Pair(42.2, 0.1));
  EXPECT_EQ(file.get_reference_impedance_per_port(), (std::vector<double>{40, 30, 20, 10}));
  EXPECT_EQ(file.get_port_names(), (Strings{"d", "c", "b", "a"}));
  EXPECT_EQ(file.get_leading_comments(),
            (Strings{"x", " Port[1] = d", " Port[2] = c", " Port[3] = b", " Port[4] = a", "y"}));
}

TEST(ReorderedPorts, GiveWhatTheOrderSays) {
  auto read = valid(four_ports("", kFourNames));
  const Copy copy = reordered(read.file, {2, 0, 3, 1});
  EXPECT_EQ(cell(*copy.file, 0, 0, 1), Pair(31.1, 0.1));
  EXPECT_EQ(cell(*copy.file, 0, 1, 0), Pair(13.1, 0.1));
  EXPECT_EQ(cell(*copy.file, 0, 2, 3), Pair(42.1, 0.1));
  EXPECT_EQ(copy.file->get_port_names(), (Strings{"c", "a", "d", "b"}));
}

TEST(ReorderedPorts, AndBackAgainAreTheOldOnes) {
  auto read = valid(
      four_ports("[Reference] 10 20 20 10\n[Mixed-Mode Order] D2,3 C2,3 S1 S4\n", kFourNames));
  const Copy there = reordered(read.file, {2, 0, 3, 1});
  const Copy back = reordered(*there.file, {1, 3, 0, 2});
  EXPECT_TRUE(back.file->compare(read.file, 2));
}

TEST(ReorderedPorts, MayBeRepeated) {
  auto read = valid(four_ports("[Reference] 10 20 30 40\n", kFourNames));
  const Copy copy = reordered(read.file, {0, 0, 1, 2});
  ASSERT_NE(copy.file, nullptr);
  EXPECT_EQ(cell(*copy.file, 0, 0, 1), Pair(11.1, 0.1));
  EXPECT_EQ(cell(*copy.file, 0, 3, 1), Pair(31.1, 0.1));
  EXPECT_EQ(copy.file->get_reference_impedance_per_port(), (std::vector<double>{10, 10, 20, 30}));
  EXPECT_EQ(copy.file->get_port_names(), (Strings{"a", "a", "b", "c"}));
}

TEST(ReorderedPorts, AreRefusedByNull) {
  auto read = valid(four_ports());
  for (const Order& order :
       {Order{}, Order{0}, Order{0, 1, 2}, Order{0, 1, 2, 3, 0}, Order{0, 1, 2, 4},
        Order{4, 0, 1, 2}, Order{0, 1, 2, ~std::size_t(0)}}) {
    EXPECT_EQ(reordered(read.file, order).file, nullptr) << testing::PrintToString(order);
  }
  const File not_valid("none.s2p");
  EXPECT_EQ(reordered(not_valid, {}).file, nullptr);
  EXPECT_EQ(reordered(not_valid, {0}).file, nullptr);
  EXPECT_EQ(reordered(*subset(read.file, {}).file, {}).file, nullptr);
}

// Asking for the names looks them up, so that the copy carries names in any case.
TEST(ReorderedPorts, CarryNamesEvenWhenTheSourceHasNone) {
  auto read = valid(four_ports("", "!x\n"));
  const Copy copy = reordered(read.file, {3, 2, 1, 0});
  EXPECT_EQ(copy.file->get_leading_comments(),
            (Strings{"x", " Port[1] = ", " Port[2] = ", " Port[3] = ", " Port[4] = ", ""}));
}

TEST(ReorderedPorts, HaveEmptyNamesWhereTheSourceHasTooFew) {
  auto read = valid(four_ports());
  read.file.set_port_names({"a", "b"});
  const Copy copy = reordered(read.file, {1, 3, 2, 0});
  EXPECT_EQ(copy.file->get_port_names(), (Strings{"b", "", "", "a"}));
}

TEST(ReorderedPorts, KeepWhatDoesNotBelongToAPort) {
  auto read = valid("!lead\n" + two_ports());
  const Copy copy = reordered(read.file, {1, 0});
  ASSERT_NE(copy.file, nullptr);
  const File& file = *copy.file;
  EXPECT_EQ(file.get_filename(), "copy.ts");
  EXPECT_EQ(file.get_version(), FileVersion::V2);
  EXPECT_EQ(file.get_frequency_scale_factor(), FrequencyScaleFactor::GHz);
  EXPECT_EQ(file.get_parameter_type(), ParameterType::S);
  EXPECT_EQ(file.get_complex_format(), ComplexFormat::MA);
  EXPECT_EQ(file.get_reference_impedance(), 75);
  EXPECT_EQ(file.get_two_port_data_order(), TwoPortDataOrder::Order_12_21);
  EXPECT_EQ(file.get_number_of_frequencies(), 1u);
  EXPECT_EQ(file.get_number_of_noise_frequencies(), 2u);
  EXPECT_EQ(file.get_matrix_format(), MatrixFormat::Full);
  EXPECT_TRUE(file.uses_reference_impedance_per_port());
  EXPECT_FALSE(file.uses_mixed_mode());
  EXPECT_TRUE(file.has_information_section());
  EXPECT_TRUE(file.is_valid());
  EXPECT_EQ(file.get_network_params()->format(), ComplexFormat::MA);
  EXPECT_EQ(file.get_network_params()->freq_scale_factor(), 1e9);
  EXPECT_EQ(file.get_reference_impedance_per_port(), (std::vector<double>{75, 50}));

  // Objects of its own, the noise rows as they are.
  EXPECT_NE(file.get_network_params(), read.file.get_network_params());
  ASSERT_NE(copy.noise, nullptr);
  EXPECT_NE(copy.noise, read.noise);
  EXPECT_TRUE(*copy.noise == *read.noise);
}

TEST(ReorderedPorts, LeaveTheSourceAsItWas) {
  auto read = valid(four_ports("[Mixed-Mode Order] D1,3 C1,3 S2 S4\n", kFourNames));
  read.file.get_port_names();
  const File before = read.file;
  const Copy copy = reordered(read.file, {3, 2, 1, 0});
  EXPECT_TRUE(read.file == before);
}

TEST(SubsetOfPorts, CanBeOnePort) {
  auto read = valid(four_ports("[Reference] 10 20 30 40\n", kFourNames));
  read.file.get_port_names();
  const Copy copy = subset(read.file, {{1, "B"}});
  ASSERT_NE(copy.file, nullptr);
  EXPECT_EQ(copy.file->get_number_of_ports(), 1u);
  EXPECT_EQ(copy.file->get_two_port_data_order(), TwoPortDataOrder::Unspecified);
  EXPECT_EQ(copy.file->get_number_of_frequencies(), 2u);
  EXPECT_EQ(cell(*copy.file, 0, 0, 0), Pair(22.1, 0.1));
  EXPECT_EQ(cell(*copy.file, 1, 0, 0), Pair(22.2, 0.1));
  EXPECT_EQ(copy.file->get_reference_impedance_per_port(), std::vector<double>{20});
  EXPECT_EQ(copy.file->get_port_names(), Strings{"B"});
  EXPECT_EQ(copy.file->get_leading_comments(), (Strings{"x", " Port[1] = B", "y"}));
  EXPECT_EQ(copy.file->get_mixed_mode_descriptors(),
            (std::vector<MixedModeDescriptor>{{Kind::SingleEnded, 1, 0}}));
}

TEST(SubsetOfPorts, OfTwoPortsIsOrdered21_12AndHasNoNoise) {
  auto read = valid(four_ports());
  const Copy copy = subset(read.file, {{3, "d"}, {0, "a"}});
  EXPECT_EQ(copy.file->get_number_of_ports(), 2u);
  EXPECT_EQ(copy.file->get_two_port_data_order(), TwoPortDataOrder::Order_21_12);
  EXPECT_EQ(copy.file->get_noise_params(), nullptr);
  EXPECT_EQ(copy.file->get_number_of_noise_frequencies(), 0u);
  EXPECT_EQ(cell(*copy.file, 0, 0, 1), Pair(41.1, 0.1));
  EXPECT_EQ(cell(*copy.file, 0, 1, 0), Pair(14.1, 0.1));
}

TEST(SubsetOfPorts, OfATwoPortFileLosesTheNoiseWithAPort) {
  auto read = valid(two_ports());
  const Copy both = subset(read.file, {{0, ""}, {1, ""}});
  ASSERT_NE(both.noise, nullptr);
  EXPECT_TRUE(*both.noise == *read.noise);
  EXPECT_EQ(both.file->get_two_port_data_order(), TwoPortDataOrder::Order_12_21);
  const Copy one = subset(read.file, {{1, ""}});
  EXPECT_EQ(one.file->get_noise_params(), nullptr);
  EXPECT_EQ(one.file->get_number_of_noise_frequencies(), 0u);
  EXPECT_EQ(one.file->get_two_port_data_order(), TwoPortDataOrder::Unspecified);
}

TEST(SubsetOfPorts, OfATwoPortFileWithoutNoiseHasNone) {
  auto read = valid("# GHz S RI R 50\n1 1 0 2 0 3 0 4 0\n");
  const Copy copy = subset(read.file, {{1, ""}, {0, ""}});
  EXPECT_EQ(copy.noise, nullptr);
  EXPECT_EQ(cell(*copy.file, 0, 0, 0), Pair(4.0, 0.0));
}

TEST(SubsetOfPorts, CanBeEmpty) {
  auto read = valid(four_ports("[Reference] 10 20 30 40\n", kFourNames));
  read.file.get_port_names();
  const Copy copy = subset(read.file, {});
  ASSERT_NE(copy.file, nullptr);
  EXPECT_TRUE(copy.file->is_valid());
  EXPECT_EQ(copy.file->get_number_of_ports(), 0u);
  EXPECT_EQ(copy.file->get_network_params()->rows(), 0u);
  EXPECT_EQ(copy.file->get_network_params()->freq_points(), 2u);
  EXPECT_TRUE(copy.file->get_reference_impedance_per_port().empty());
  EXPECT_TRUE(copy.file->uses_reference_impedance_per_port());
  EXPECT_TRUE(copy.file->get_mixed_mode_descriptors().empty());
  EXPECT_TRUE(copy.file->get_port_names().empty());
  // No names in the place of the old ones, and no more lines of names.
  EXPECT_EQ(copy.file->get_leading_comments(), (Strings{"x", "y"}));
}

TEST(SubsetOfPorts, IsRefusedByNull) {
  auto read = valid(four_ports());
  for (const Selection& ports : {Selection{{4, ""}}, Selection{{0, ""}, {~std::size_t(0), ""}},
                                 Selection{{0, ""}, {0, ""}, {0, ""}, {0, ""}, {0, ""}}}) {
    EXPECT_EQ(subset(read.file, ports).file, nullptr);
  }
  const File not_valid("none.s2p");
  EXPECT_EQ(subset(not_valid, {}).file, nullptr);
}

TEST(SubsetOfPorts, NamesCountOnlyWhenTheSourceHasNamesStored) {
  auto read = valid(four_ports("", kFourNames));
  const Copy not_looked_up = subset(read.file, {{1, "B"}, {0, "A"}});
  EXPECT_EQ(not_looked_up.file->get_leading_comments(), read.file.get_leading_comments());
  EXPECT_EQ(not_looked_up.file->get_port_names(), (Strings{"a", "b"}));

  read.file.get_port_names();
  const Copy looked_up = subset(read.file, {{1, "B"}, {0, "A"}});
  EXPECT_EQ(looked_up.file->get_leading_comments(),
            (Strings{"x", " Port[1] = B", " Port[2] = A", "y"}));
  EXPECT_EQ(looked_up.file->get_port_names(), (Strings{"B", "A"}));
}

TEST(SubsetOfPorts, CopiesOtherComments) {
  auto read = valid("!lead\n# GHz S RI R 50\n1 1 0\n!other\n2 1 0\n");
  const Copy copy = subset(read.file, {{0, "a"}});
  EXPECT_EQ(copy.file->get_leading_comments(), Strings{"lead"});
  EXPECT_EQ(copy.file->get_other_comments(), Strings{"other"});
  EXPECT_EQ(copy.file->get_version(), FileVersion::V1);
}

TEST(SubsetOfPorts, TakesImpliedImpedancesAndDescriptorsFromTheCopysOwnPorts) {
  auto read = valid(four_ports());
  const Copy copy = subset(read.file, {{3, ""}, {0, ""}, {1, ""}});
  EXPECT_FALSE(copy.file->uses_reference_impedance_per_port());
  EXPECT_FALSE(copy.file->uses_mixed_mode());
  EXPECT_EQ(copy.file->get_reference_impedance_per_port(), (std::vector<double>{50, 50, 50}));
  EXPECT_EQ(copy.file->get_mixed_mode_descriptors(),
            (std::vector<MixedModeDescriptor>{
                {Kind::SingleEnded, 1, 0}, {Kind::SingleEnded, 2, 0}, {Kind::SingleEnded, 3, 0}}));
}

TEST(SubsetOfPorts, OfHybridParametersNeedsBothPorts) {
  for (const char* type : {"G", "H"}) {
    auto read = valid(two_ports(type));
    EXPECT_NE(subset(read.file, {{1, ""}, {0, ""}}).file, nullptr);
    EXPECT_EQ(subset(read.file, {{1, ""}}).file, nullptr);
    EXPECT_EQ(subset(read.file, {}).file, nullptr);
  }
}

TEST(SubsetOfPorts, OfAFileWithoutDataHasNone) {
  auto read = test::read_text("[Version] 2.0\n# GHz S RI R 50\n[Number of Ports] 3\n",
                              test::Extent::header);
  ASSERT_TRUE(read.ok);
  const Copy copy = subset(read.file, {{2, ""}, {0, ""}});
  ASSERT_NE(copy.file, nullptr);
  EXPECT_EQ(copy.file->get_network_params(), nullptr);
  EXPECT_EQ(copy.file->get_number_of_ports(), 2u);
}

TEST(Triangles, StayTrianglesOfTheNewOrder) {
  for (const char* format : {"Upper", "Lower"}) {
    auto read = valid("[Version] 2.0\n# MHz S RI R 50\n[Number of Ports] 4\n[Matrix Format] " +
                      std::string(format) + "\n[Number of Frequencies] 2\n[Network Data]\n" +
                      matrix_rows(4, format) + "[End]\n");
    const Copy copy = reordered(read.file, {2, 0, 3, 1});
    EXPECT_TRUE(copy.file->get_network_params()->isSymmetric());
    EXPECT_EQ(copy.file->get_matrix_format(), read.file.get_matrix_format());
    const std::size_t from[] = {2, 0, 3, 1};
    for (std::size_t row = 0; row < 4; ++row) {
      for (std::size_t col = 0; col < 4; ++col) {
        EXPECT_EQ(cell(*copy.file, 1, row, col), cell(read.file, 1, from[row], from[col]));
      }
    }
  }
}

TEST(MixedMode, FollowsThePorts) {
  const struct {
    const char* order;
    Selection ports;
    std::vector<MixedModeDescriptor> descriptors;
  } cases[] = {
      // All ports in another order; the list keeps its own.
      {"D1,3 C1,3 S2 S4",
       {{3, ""}, {2, ""}, {1, ""}, {0, ""}},
       {{Kind::Differential, 4, 2},
        {Kind::Common, 4, 2},
        {Kind::SingleEnded, 3, 0},
        {Kind::SingleEnded, 1, 0}}},
      // The pair loses its second port, then its first one.
      {"D1,3 C1,3 S2 S4",
       {{0, ""}, {1, ""}},
       {{Kind::SingleEnded, 1, 0}, {Kind::SingleEnded, 2, 0}}},
      {"S2 C1,3 S4 D1,3",
       {{1, ""}, {2, ""}},
       {{Kind::SingleEnded, 1, 0}, {Kind::SingleEnded, 2, 0}}},
      // The pair is lost.
      {"D1,3 C1,3 S2 S4", {{3, ""}}, {{Kind::SingleEnded, 1, 0}}},
      // Two pairs that lose one port each.
      {"C2,1 D2,1 D3,4 C3,4",
       {{3, ""}, {0, ""}},
       {{Kind::SingleEnded, 2, 0}, {Kind::SingleEnded, 1, 0}}},
      // Nothing is left, which is still an explicit list.
      {"D1,3 C1,3 S2 S4", {}, {}},
      // A port taken twice counts where it was taken last.
      {"D1,3 C1,3 S2 S4",
       {{0, ""}, {0, ""}, {2, ""}},
       {{Kind::Differential, 2, 3}, {Kind::Common, 2, 3}}},
  };
  for (const auto& c : cases) {
    auto read = valid(four_ports("[Mixed-Mode Order] " + std::string(c.order) + "\n"));
    const Copy copy = subset(read.file, c.ports);
    ASSERT_NE(copy.file, nullptr);
    EXPECT_TRUE(copy.file->uses_mixed_mode());
    EXPECT_EQ(copy.file->get_mixed_mode_descriptors(), c.descriptors) << c.order;
  }
}

TEST(FileCopier, TellsWhichPortGoesWhere) {
  auto read = valid(four_ports());
  const Selection ports = {{2, "C"}, {0, "A"}};
  const FileCopier copier("copy.ts", read.file, ports);
  EXPECT_EQ(copier.numSourcePorts(), 4u);
  EXPECT_EQ(copier.numDestPorts(), 2u);
  EXPECT_EQ(copier.destIndexToSourceIndex(0), 2u);
  EXPECT_EQ(copier.destIndexToSourceIndex(1), 0u);
  EXPECT_EQ(copier.destPortName(0), "C");
  EXPECT_EQ(copier.destPortName(1), "A");
  EXPECT_THROW(copier.destIndexToSourceIndex(2), std::out_of_range);
  EXPECT_THROW(copier.destPortName(2), std::out_of_range);

  const std::size_t dest[] = {1, 2, 0, 2, 2};  // 2 is "none"; there is no source port 4
  for (std::size_t s = 0; s < 5; ++s) {
    EXPECT_EQ(copier.sourceIndexToDestIndex(s), dest[s]) << s;
    EXPECT_EQ(copier.sourceIndexIsMapped(s), dest[s] != 2) << s;
  }
  EXPECT_FALSE(std::is_copy_constructible<FileCopier>::value);
}

TEST(FileCopier, JudgesDescriptors) {
  auto read = valid(four_ports());
  const Selection ports = {{2, ""}, {0, ""}};  // ports 3 and 1 become 1 and 2
  const FileCopier copier("copy.ts", read.file, ports);
  const struct {
    MixedModeDescriptor source;
    bool needed;
    MixedModeDescriptor copy;  // if needed
  } cases[] = {
      {{Kind::SingleEnded, 1, 0}, true, {Kind::SingleEnded, 2, 0}},
      {{Kind::SingleEnded, 2, 0}, false, {}},
      {{Kind::Differential, 1, 3}, true, {Kind::Differential, 2, 1}},
      {{Kind::Differential, 3, 1}, true, {Kind::Differential, 1, 2}},
      {{Kind::Common, 1, 3}, true, {Kind::Common, 2, 1}},
      {{static_cast<Kind>(3), 1, 3}, true, {Kind::Common, 2, 1}},
      {{Kind::Differential, 1, 2}, true, {Kind::SingleEnded, 2, 0}},
      {{Kind::Differential, 4, 3}, true, {Kind::SingleEnded, 1, 0}},
      {{Kind::Common, 1, 2}, false, {}},
      {{Kind::Common, 4, 3}, false, {}},
      {{Kind::Differential, 2, 4}, false, {}},
      {{Kind::Common, 2, 4}, false, {}},
      // Ports that do not exist count as not taken.
      {{Kind::SingleEnded, 0, 0}, false, {}},
      {{Kind::SingleEnded, 5, 0}, false, {}},
      {{Kind::Differential, 1, 0}, true, {Kind::SingleEnded, 2, 0}},
      {{Kind::Common, 1, 99}, false, {}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(copier.mixedModeDescriptorIsNeeded(c.source), c.needed)
        << static_cast<int>(c.source.kind) << " " << c.source.first_port << ","
        << c.source.second_port;
    if (c.needed) {
      EXPECT_EQ(copier.copyMixedModeDescriptor(c.source), c.copy)
          << static_cast<int>(c.source.kind) << " " << c.source.first_port << ","
          << c.source.second_port;
    }
  }
}

TEST(FileCopier, HandsTheResultOverOnce) {
  auto read = valid(two_ports());
  const Selection ports = {{0, ""}, {1, ""}};
  FileCopier copier("copy.ts", read.file, ports);
  const Copy copy(copier.takeResult());
  ASSERT_NE(copy.file, nullptr);
  ASSERT_NE(copy.noise, nullptr);
  EXPECT_EQ(copier.takeResult(), nullptr);
}

// Seen by the leak check of an instrumented build.
TEST(FileCopier, DeletesWhatIsNotTaken) {
  auto read = valid(two_ports());
  const Selection ports = {{0, ""}, {1, ""}};
  const FileCopier copier("copy.ts", read.file, ports);
  EXPECT_EQ(copier.numDestPorts(), 2u);
}

TEST(FileCopier, ThrowsForHybridParametersWithoutTwoPorts) {
  const struct {
    const char* type;
    ErrorType code;
    const char* message;
  } cases[] = {
      {"G", ErrorType::GParametersNeedTwoPorts,
       "G-parameters are only defined for 2-port networks"},
      {"H", ErrorType::HParametersNeedTwoPorts,
       "H-parameters are only defined for 2-port networks"},
  };
  const Selection ports = {{0, ""}};
  for (const auto& c : cases) {
    auto read = valid(two_ports(c.type));
    try {
      const FileCopier copier("copy.ts", read.file, ports);
      FAIL() << c.type;
    } catch (const ParserError& error) {
      EXPECT_EQ(error.code(), c.code);
      EXPECT_STREQ(error.what(), c.message);
      EXPECT_EQ(error.line(), 0u);
    }
  }
}

TEST(FileCopier, RefusesAPortThatTheSourceDoesNotHave) {
  auto read = valid(four_ports());
  const Selection ports = {{0, ""}, {4, ""}};
  try {
    const FileCopier copier("copy.ts", read.file, ports);
    FAIL();
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "ports");
  }
}

TEST(FileCopier, OfAFileThatIsNotValidGivesOneThatIsNot) {
  const File source("none.s2p");
  const Selection ports;
  FileCopier copier("copy.ts", source, ports);
  const Copy copy(copier.takeResult());
  EXPECT_FALSE(copy.file->is_valid());
  EXPECT_EQ(copy.file->get_network_params(), nullptr);
}

TEST(FileCopier, GivesAFileThatCanBeWrittenAndRead) {
  auto read = valid(
      four_ports("[Reference] 10 20 10 40\n[Mixed-Mode Order] D1,3 C1,3 S2 S4\n", kFourNames));
  const Copy copy = reordered(read.file, {3, 2, 1, 0});
  std::ostringstream os;
  V2_Writer(*copy.file).write_file(os);
  auto again = valid(os.str());
  again.file.get_port_names();
  EXPECT_TRUE(again.file.compare(*copy.file, 2)) << os.str();
}

}  // namespace
}  // namespace touchstone2
