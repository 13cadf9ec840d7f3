#include <touchstone2/copier/file_copier.h>
#include <touchstone2/writer/v1_writer.h>

#include <cstddef>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {
namespace {

// A copy and its noise data, which no File owns.
struct Copy {
  explicit Copy(File* result)
      : file(result), noise(result ? result->get_noise_params() : nullptr) {}

  std::unique_ptr<File> file;
  std::unique_ptr<const NoiseParams> noise;
};

Copy with_full_matrix(const File& source) { return Copy(copyFileWithFullMatrix("full", source)); }

test::ReadResult valid(const std::string& text) {
  test::ReadResult result = test::read_text(text);
  EXPECT_TRUE(result.ok) << text << ::testing::PrintToString(result.brief_diagnostics());
  return result;
}

std::string three_ports(const std::string& matrix, const std::string& keywords = "") {
  return "! Port[1] = a\n! Port[2] = b\n! Port[3] = c\n!end\n[Version] 2.0\n# MHz Z RI R 75\n"
         "[Number of Ports] 3\n[Number of Frequencies] 2\n" +
         keywords + matrix + "[End]\n";
}

const char* const kUpper =
    "[Matrix Format] Upper\n[Network Data]\n"
    "1 11 -1 12 -2 13 -3\n22 -4 23 -5\n33 -6\n2 0.1 1 0.2 2 0.3 3 0.4 4 0.5 5 0.6 6\n";
const char* const kLower =
    "[Matrix Format] Lower\n[Network Data]\n"
    "1 11 -1\n12 -2 22 -4\n13 -3 23 -5 33 -6\n2 0.1 1 0.2 2 0.4 4 0.3 3 0.5 5 0.6 6\n";
const char* const kFull =
    "[Matrix Format] Full\n[Network Data]\n"
    "1 11 -1 12 -2 13 -3\n12 -2 22 -4 23 -5\n13 -3 23 -5 33 -6\n"
    "2 0.1 1 0.2 2 0.3 3 0.2 2 0.4 4 0.5 5 0.3 3 0.5 5 0.6 6\n";

TEST(FullMatrix, HasTheMirroredCells) {
  const auto full = valid(three_ports(kFull));
  full.file.get_port_names();
  for (const char* triangle : {kUpper, kLower}) {
    const auto read = valid(three_ports(triangle));
    const Copy copy = with_full_matrix(read.file);
    ASSERT_NE(copy.file, nullptr);
    EXPECT_EQ(copy.file->get_filename(), "full");
    EXPECT_FALSE(copy.file->get_network_params()->isSymmetric());
    EXPECT_EQ(copy.file->get_matrix_format(), MatrixFormat::Full);
    EXPECT_TRUE(copy.file->compare(full.file, 2)) << triangle;
  }
}

TEST(FullMatrix, OfAFullMatrixIsACopy) {
  const auto read =
      valid(three_ports(kFull, "[Reference] 10 20 30\n[Mixed-Mode Order] S2 S1 S3\n"));
  read.file.get_port_names();
  const Copy copy = with_full_matrix(read.file);
  EXPECT_TRUE(copy.file->compare(read.file, 2));
  EXPECT_NE(copy.file->get_network_params(), read.file.get_network_params());
}

TEST(FullMatrix, KeepsWhatBelongsToThePorts) {
  const auto read =
      valid(three_ports(kUpper, "[Reference] 10 20 10\n[Mixed-Mode Order] D1,3 C1,3 S2\n"));
  const Copy copy = with_full_matrix(read.file);
  EXPECT_EQ(copy.file->get_port_names(), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(copy.file->get_reference_impedance_per_port(), (std::vector<double>{10, 20, 10}));
  EXPECT_EQ(copy.file->get_mixed_mode_descriptors(), read.file.get_mixed_mode_descriptors());
  EXPECT_TRUE(copy.file->uses_mixed_mode());
}

TEST(FullMatrix, PortsThatTheListLeavesOutHaveNoNames) {
  auto read = valid(three_ports(kUpper));
  read.file.set_port_names({"x", "y"});
  const Copy copy = with_full_matrix(read.file);
  ASSERT_NE(copy.file, nullptr);
  EXPECT_EQ(copy.file->get_port_names(), (std::vector<std::string>{"x", "y", ""}));
}

TEST(FullMatrix, KeepsNoiseData) {
  const auto read = valid(
      "[Version] 2.0\n# GHz S MA R 50\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n"
      "[Matrix Format] Lower\n[Number of Frequencies] 1\n[Number of Noise Frequencies] 1\n"
      "[Network Data]\n1 0.1 1 0.2 2 0.3 3\n[Noise Data]\n0.5 1 0.1 2 10\n[End]\n");
  const Copy copy = with_full_matrix(read.file);
  ASSERT_NE(copy.noise, nullptr);
  EXPECT_TRUE(*copy.noise == *read.noise);
  EXPECT_NE(copy.noise, read.noise);
  EXPECT_EQ(copy.file->get_two_port_data_order(), TwoPortDataOrder::Order_12_21);
}

TEST(FullMatrix, LeavesTheSourceAsItWas) {
  const auto read = valid(three_ports(kUpper));
  read.file.get_port_names();
  const File before = read.file;
  const Copy copy = with_full_matrix(read.file);
  EXPECT_TRUE(read.file == before);
  EXPECT_TRUE(read.file.get_network_params()->isSymmetric());
}

TEST(FullMatrix, IsWhatVersion1Needs) {
  const auto read = valid(three_ports(kLower));
  const Copy copy = with_full_matrix(read.file);
  std::ostringstream os;
  V1_Writer(*copy.file).write_file(os);
  const auto again = valid(os.str());
  EXPECT_EQ(again.file.get_number_of_ports(), 3u);
  EXPECT_EQ(again.cell(0, 2, 0), again.cell(0, 0, 2));
}

TEST(FullMatrix, OfAFileWithoutDataHasNone) {
  const auto read = test::read_text("[Version] 2.0\n# GHz S RI R 50\n[Number of Ports] 3\n",
                                    test::Extent::header);
  const Copy copy = with_full_matrix(read.file);
  ASSERT_NE(copy.file, nullptr);
  EXPECT_EQ(copy.file->get_network_params(), nullptr);
  EXPECT_EQ(copy.file->get_matrix_format(), MatrixFormat::Full);
}

TEST(FullMatrix, IsRefusedByNull) {
  EXPECT_EQ(with_full_matrix(File("none.s2p")).file, nullptr);
  // Only a header can be valid with hybrid parameters of three ports.
  const auto read = test::read_text("[Version] 2.0\n# GHz H RI R 50\n[Number of Ports] 3\n",
                                    test::Extent::header);
  ASSERT_TRUE(read.ok);
  EXPECT_EQ(with_full_matrix(read.file).file, nullptr);
}

}  // namespace
}  // namespace touchstone2
