#include <touchstone2/writer/v2_writer.h>

#include <cstddef>
#include <cstdint>
#include <iomanip>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "writer/writing.h"

namespace touchstone2 {
namespace {

using test::col;
using test::kNextLine;
using test::numbered_pairs;
using test::pair;
using test::valid;
using test::written;
using test::written_from;

std::string v2_text(const std::string& keywords, const std::string& data) {
  return "[Version] 2.0\n# GHz S RI R 50\n" + keywords + "[Number of Frequencies] 1\n" +
         "[Network Data]\n" + data + "\n[End]\n";
}

TEST(V2Writer, WritesOnePort) {
  auto read = valid("!Created by tool\n# MHz S MA R 75\n1.5 0.5 -30\n2 0.25 -45.125\n");
  EXPECT_EQ(written<V2_Writer>(read.file),
            "!Created by tool\n"
            "! Port[1] = \n"
            "!\n"
            "[Version] 2.0\n"
            "# MHz S MA R 75\n"
            "[Number of Ports] 1\n"
            "[Number of Frequencies] 2\n"
            "\n"
            "[Network Data]\n"
            "! freq                S11mag               S11ang              \n"
            "1.5                   0.5                  -30                 \n"
            "2                     0.25                 -45.125             \n"
            "\n"
            "[End]\n");
}

TEST(V2Writer, WritesEveryKeywordInItsPlace) {
  auto read = valid(
      "! Port[1] = in\n! Port[2] = out\n!Date x\n[Version] 2.0\n# GHz S RI R 50\n"
      "[Number of Ports] 2\n"
      "[Mixed-Mode Order] D1,2 C1,2\n"
      "[Matrix Format] Upper\n"
      "[Reference] 75.5 75.5\n"
      "[Number of Noise Frequencies] 2\n"
      "[Number of Frequencies] 2\n"
      "[Two-Port Data Order] 12_21\n"
      "[Begin Information]\nnot written\n[End Information]\n"
      "[Network Data]\n1 11 0.5 12 0 22 0\n2 1 0 2 0 3 0\n"
      "[Noise Data]\n0.5 1.5 0.3 120 12.5\n1 2 0.4 130 25\n"
      "[End]\n");
  ASSERT_NE(read.noise, nullptr);
  EXPECT_EQ(written<V2_Writer>(read.file),
            "! Port[1] = in\n"
            "! Port[2] = out\n"
            "!Date x\n"
            "[Version] 2.0\n"
            "# GHz S RI R 50\n"
            "[Number of Ports] 2\n"
            "[Two-Port Data Order] 12_21\n"
            "[Matrix Format] Upper\n"
            "[Number of Frequencies] 2\n"
            "[Number of Noise Frequencies] 2\n"
            "[Reference] 75.5 75.5\n"
            "[Mixed-Mode Order] D1,2 C1,2\n"
            "\n"
            "[Network Data]\n"
            "! freq                S11re                S11im                 S12re             "
            "   S12im                 S22re                S22im               \n"
            "1                     11                   0.5                   12                "
            "   0                     22                   0                   \n"
            "2                     1                    0                     2                 "
            "   0                     3                    0                   \n"
            "\n"
            "[Noise Data]\n"
            "0.5                   1.5  0.3  120  12.5\n"
            "1                     2  0.4  130  25\n"
            "\n"
            "[End]\n");
}

TEST(V2Writer, KeepsTheOrderOfTwoPorts) {
  auto read = valid("# GHz S RI R 50\n1 11 0 21 0 12 0 22 0\n");
  const std::string header_21_12 = "! freq              " + pair("S11re", "S11im") +
                                   pair("S21re", "S21im") + pair("S12re", "S12im") +
                                   pair("S22re", "S22im") + "\n";
  const std::string header_12_21 = "! freq              " + pair("S11re", "S11im") +
                                   pair("S12re", "S12im") + pair("S21re", "S21im") +
                                   pair("S22re", "S22im") + "\n";
  const std::string data_21_12 = col("1") + pair("11", "0") + pair("21", "0") + pair("12", "0") +
                                 pair("22", "0") + "\n\n[End]\n";
  const std::string data_12_21 = col("1") + pair("11", "0") + pair("12", "0") + pair("21", "0") +
                                 pair("22", "0") + "\n\n[End]\n";
  const struct {
    TwoPortDataOrder order;
    std::string keyword;
    std::string data;
  } cases[] = {
      {TwoPortDataOrder::Order_21_12, "21_12", header_21_12 + data_21_12},
      {TwoPortDataOrder::Order_12_21, "12_21", header_12_21 + data_12_21},
      {TwoPortDataOrder::Unspecified, "12_21", header_12_21 + data_12_21},
      {static_cast<TwoPortDataOrder>(3), "12_21", header_12_21 + data_12_21},
  };
  for (const auto& c : cases) {
    read.file.*stored(test::DataOrderField{}) = c.order;
    EXPECT_EQ(written_from<V2_Writer>(read.file, "[Two-Port"),
              "[Two-Port Data Order] " + c.keyword +
                  "\n[Number of Frequencies] 1\n\n[Network Data]\n" + c.data);
  }
}

TEST(V2Writer, StartsEveryRowOfThreePortsOrMoreOnALineOfItsOwn) {
  auto read = valid(v2_text("[Number of Ports] 3\n", "1" + numbered_pairs(9)));
  EXPECT_EQ(written_from<V2_Writer>(read.file, "[Number of Ports]"),
            "[Number of Ports] 3\n"
            "[Number of Frequencies] 1\n"
            "\n"
            "[Network Data]\n"
            "! freq                S11re                S11im                 S12re             "
            "   S12im                 S13re                S13im               \n"
            "!                     S21re                S21im                 S22re             "
            "   S22im                 S23re                S23im               \n"
            "!                     S31re                S31im                 S32re             "
            "   S32im                 S33re                S33im               \n"
            "1                     1                    -1                    2                 "
            "   -2                    3                    -3                  \n"
            "                      4                    -4                    5                 "
            "   -5                    6                    -6                  \n"
            "                      7                    -7                    8                 "
            "   -8                    9                    -9                  \n"
            "\n"
            "[End]\n");
}

TEST(V2Writer, WritesTheTriangleThatTheFileLists) {
  auto upper = valid(
      v2_text("[Number of Ports] 3\n[Matrix Format] Upper\n", "1 11 0 12 0 13 0\n22 0 23 0\n33 0"));
  EXPECT_EQ(written_from<V2_Writer>(upper.file, "[Number of Ports]"),
            "[Number of Ports] 3\n[Matrix Format] Upper\n[Number of Frequencies] 1\n\n"
            "[Network Data]\n! freq              " +
                pair("S11re", "S11im") + pair("S12re", "S12im") + pair("S13re", "S13im") +
                "\n!                   " + pair("S22re", "S22im") + pair("S23re", "S23im") +
                "\n!                   " + pair("S33re", "S33im") + "\n" + col("1") +
                pair("11", "0") + pair("12", "0") + pair("13", "0") + kNextLine + pair("22", "0") +
                pair("23", "0") + kNextLine + pair("33", "0") + "\n\n[End]\n");

  auto lower = valid(
      v2_text("[Number of Ports] 3\n[Matrix Format] Lower\n", "1 11 0\n21 0 22 0\n31 0 32 0 33 0"));
  EXPECT_EQ(written_from<V2_Writer>(lower.file, "1  "),
            col("1") + pair("11", "0") + kNextLine + pair("21", "0") + pair("22", "0") + kNextLine +
                pair("31", "0") + pair("32", "0") + pair("33", "0") + "\n\n[End]\n");
}

TEST(V2Writer, NamesTheMatrixFormatOfATriangleOnly) {
  const struct {
    std::uint32_t format;
    std::string line;
  } cases[] = {
      {0, ""}, {1, ""}, {2, "[Matrix Format] Upper\n"}, {3, "[Matrix Format] Lower\n"}, {4, ""}};
  auto read = valid("# GHz S RI R 50\n1 1 0\n");
  for (const auto& c : cases) {
    read.file.*stored(test::MatrixFormatField{}) = static_cast<MatrixFormat>(c.format);
    const std::string text = written_from<V2_Writer>(read.file, "[Number of Ports]");
    EXPECT_EQ(text.substr(0, text.find("\n\n")),
              "[Number of Ports] 1\n" + c.line + "[Number of Frequencies] 1");
  }
}

TEST(V2Writer, WritesEveryKindOfDescriptor) {
  using Kind = MixedModeKind;
  const struct {
    std::vector<MixedModeDescriptor> descriptors;
    std::string line;
  } cases[] = {
      {{}, ""},
      {{{Kind::SingleEnded, 3, 0}}, " S3"},
      {{{Kind::Differential, 2, 1}, {Kind::Common, 2, 1}}, " D2,1 C2,1"},
      {{{Kind::SingleEnded, 12, 9}, {static_cast<Kind>(3), 1, 2}, {Kind::Common, 10, 11}},
       " S12 C10,11"},
  };
  auto read = valid("# GHz S RI R 50\n1 1 0\n");
  read.file.*stored(test::UsesMixedModeField{}) = true;
  for (const auto& c : cases) {
    read.file.*stored(test::DescriptorsField{}) = c.descriptors;
    const std::string text = written_from<V2_Writer>(read.file, "[Mixed-Mode Order]");
    EXPECT_EQ(text.substr(0, text.find("[Network")), "[Mixed-Mode Order]" + c.line + "\n\n");
  }
}

TEST(V2Writer, LeavesOutImpliedImpedancesAndDescriptors) {
  auto read = valid("# GHz S RI R 50\n1 1 0\n");
  ASSERT_FALSE(read.file.get_mixed_mode_descriptors().empty());
  ASSERT_FALSE(read.file.get_reference_impedance_per_port().empty());
  const std::string text = written<V2_Writer>(read.file);
  EXPECT_EQ(text.find("[Mixed-Mode"), std::string::npos);
  EXPECT_EQ(text.find("[Reference"), std::string::npos);
}

TEST(V2Writer, CountsTheDataAndNotWhatTheFileDeclares) {
  auto read = test::read_text(
      "! Port[1] = a\n!x\n[Version] 2.0\n# GHz S RI R 50\n"
      "[Number of Ports] 1\n[Number of Frequencies] 7\n",
      test::Extent::header);
  ASSERT_TRUE(read.ok);
  const std::string head =
      "! Port[1] = a\n!x\n[Version] 2.0\n# GHz S RI R 50\n[Number of Ports] 1\n";
  EXPECT_EQ(written<V2_Writer>(read.file), head + "\n[End]\n");

  NoiseParams noise(1e9);
  read.file.*stored(test::NoiseField{}) = &noise;
  read.file.*stored(test::NetworkField{}) =
      std::make_shared<FullNetworkParams>(1, 1e9, ComplexFormat::RI);
  EXPECT_EQ(written<V2_Writer>(read.file),
            head + "[Number of Frequencies] 0\n[Number of Noise Frequencies] 0\n\n[End]\n");
}

TEST(V2Writer, WithoutPortsLeavesOutTheirNumber) {
  auto read = test::read_text("[Version] 2.0\n# GHz S RI R 50\n[Number of Ports] 1\n",
                              test::Extent::header);
  ASSERT_TRUE(read.ok);
  read.file.*stored(test::PortCountField{}) = 0;
  EXPECT_EQ(written<V2_Writer>(read.file), "!\n[Version] 2.0\n# GHz S RI R 50\n\n[End]\n");
}

TEST(V2Writer, KeepsOhmsAndSiemens) {
  for (const char* type : {"Y", "Z", "H", "G"}) {
    auto read = valid("[Version] 2.0\n# GHz " + std::string(type) +
                      " RI R 50\n[Number of Ports] 2\n[Two-Port Data Order] 21_12\n"
                      "[Number of Frequencies] 1\n[Network Data]\n1 1 2 3 4 5 6 7 8\n[End]\n");
    EXPECT_EQ(written_from<V2_Writer>(read.file, "1  "), col("1") + pair("1", "2") +
                                                             pair("3", "4") + pair("5", "6") +
                                                             pair("7", "8") + "\n\n[End]\n");
  }
}

TEST(V2Writer, PrintsImpedancesWithTheStreamsPrecision) {
  auto read = valid(v2_text("[Number of Ports] 1\n[Reference] 75.123456789\n", "1 0.123456789 0"));
  V2_Writer writer(read.file);
  std::ostringstream os;
  for (const char* expected : {"[Reference] 75.1235\n", "[Reference] 75.123456789\n"}) {
    os.str("");
    writer.write_file(os);  // the second time with the precision that the first one left
    EXPECT_NE(os.str().find(expected), std::string::npos) << os.str();
  }
}

// A double of any magnitude within the normal range.
double any_double(std::mt19937_64& random) {
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-300, 300);
  return std::stod(std::to_string(mantissa(random)) + "e" + std::to_string(exponent(random))) *
         (1 + std::uniform_real_distribution<double>(0, 1)(random));
}

// What was written with 17 digits, on a stream of 17 digits, reads back to the same bits.
TEST(V2Writer, SeventeenDigitsGiveBackEveryBit) {
  std::mt19937_64 random(20240501);
  for (const std::size_t ports : {1u, 2u, 3u, 5u}) {
    for (const char* matrix : {"Full", "Upper", "Lower"}) {
      const bool full = std::string(matrix) == "Full";
      const std::size_t pairs = full ? ports * ports : ports * (ports + 1) / 2;
      std::ostringstream text;
      text << std::setprecision(17) << "! Port[1] = a\n!x\n[Version] 2.0\n# kHz Z RI R 50\n"
           << "[Number of Ports] " << ports << "\n"
           << (ports == 2 ? "[Two-Port Data Order] 21_12\n" : "") << "[Matrix Format] " << matrix
           << "\n[Number of Frequencies] 3\n[Network Data]\n";
      for (int point = 1; point <= 3; ++point) {
        text << point + 1.0 / 3;
        for (std::size_t k = 0; k < 2 * pairs; ++k) text << " " << any_double(random);
        text << "\n";
      }
      text << "[End]\n";
      auto read = valid(text.str());
      V2_Writer writer(read.file);
      writer.setPrecision(17);
      std::ostringstream os;
      os << std::setprecision(17);
      writer.write_file(os);
      auto again = valid(os.str());
      again.file.get_port_names();  // writing has looked them up in the first file
      EXPECT_TRUE(again.file == read.file) << text.str() << os.str();

      std::ostringstream twice;
      twice << std::setprecision(17);
      V2_Writer second(again.file);
      second.setPrecision(17);
      second.write_file(twice);
      EXPECT_EQ(twice.str(), os.str());
    }
  }
}

}  // namespace
}  // namespace touchstone2
