#include <touchstone2/writer/v1_writer.h>

#include <cstddef>
#include <iomanip>
#include <memory>
#include <sstream>
#include <stdexcept>
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

TEST(V1Writer, WritesOnePort) {
  auto read = valid("!Created by tool\n# MHz S MA R 75\n1.5 0.5 -30\n2 0.25 -45.125\n");
  EXPECT_EQ(written<V1_Writer>(read.file),
            "!Created by tool\n"
            "! Port[1] = \n"
            "!\n"
            "# MHz S MA R 75\n"
            "! freq                S11mag               S11ang              \n"
            "1.5                   0.5                  -30                 \n"
            "2                     0.25                 -45.125             \n");
}

TEST(V1Writer, WritesTwoPortsWithNoise) {
  auto read = valid(
      "! Port[1] = in\n! Port[2] = out\n!Date x\n# GHz S DB R 50\n"
      "1 -1 10 -2 20 -3 30 -4 40\n"
      "! other comments are not written\n"
      "2 -5 50 -6 60 -7 70 -8 80\n"
      "0.5 1.5 0.3 120 0.25\n"
      "1 2 0.4 130 0.5\n");
  ASSERT_NE(read.noise, nullptr);
  EXPECT_EQ(written<V1_Writer>(read.file),
            "! Port[1] = in\n"
            "! Port[2] = out\n"
            "!Date x\n"
            "# GHz S DB R 50\n"
            "! freq                S11dB                S11ang                S21dB                "
            "S21ang                S12dB                S12ang                S22dB                "
            "S22ang              \n"
            "1                     -1                   10                    -2                   "
            "20                    -3                   30                    -4                   "
            "40                  \n"
            "2                     -5                   50                    -6                   "
            "60                    -7                   70                    -8                   "
            "80                  \n"
            "\n"
            "! NOISE PARAMETERS\n"
            "0.5                   1.5  0.3  120  0.25\n"
            "1                     2  0.4  130  0.5\n");
}

TEST(V1Writer, WritesThreePortsRowByRow) {
  auto read = valid("! Port[1] = a\n!x\n# Hz S RI R 50\n1 1 0 2 0 3 0\n4 0 5 0 6 0\n7 0 8 0 9 0\n");
  EXPECT_EQ(written_from<V1_Writer>(read.file, "# Hz"),
            "# Hz S RI R 50\n"
            "! freq                S11re                S11im                 S12re             "
            "   S12im                 S13re                S13im               \n"
            "!                     S21re                S21im                 S22re             "
            "   S22im                 S23re                S23im               \n"
            "!                     S31re                S31im                 S32re             "
            "   S32im                 S33re                S33im               \n"
            "1                     1                    0                     2                 "
            "   0                     3                    0                   \n"
            "                      4                    0                     5                 "
            "   0                     6                    0                   \n"
            "                      7                    0                     8                 "
            "   0                     9                    0                   \n");
}

TEST(V1Writer, BreaksAfterFourPairs) {
  std::string header = "! freq              ";
  std::string data = col("1");
  for (int row = 1; row <= 5; ++row) {
    for (int column = 1; column <= 5; ++column) {
      if (column == 5 || (column == 1 && row > 1)) {
        header += "\n!                   ";
        data += kNextLine;
      }
      const std::string name = "S" + std::to_string(row) + std::to_string(column);
      const std::string number = std::to_string(5 * row - 5 + column);
      header += pair(name + "re", name + "im");
      data += pair(number, "-" + number);
    }
  }
  auto read = valid(v2_text("[Number of Ports] 5\n", "1" + numbered_pairs(25)));
  EXPECT_EQ(written_from<V1_Writer>(read.file, "# GHz"),
            "# GHz S RI R 50\n" + header + "\n" + data + "\n");
}

// Version 1 has one order for two ports.
TEST(V1Writer, WritesTwoPortsInTheOrder21_12WhateverTheirOwn) {
  for (const char* order : {"12_21", "21_12"}) {
    const bool own = std::string(order) == "21_12";
    auto read =
        valid(v2_text("[Number of Ports] 2\n[Two-Port Data Order] " + std::string(order) + "\n",
                      own ? "1 11 0 21 0 12 0 22 0" : "1 11 0 12 0 21 0 22 0"));
    EXPECT_EQ(written_from<V1_Writer>(read.file, "! freq"),
              "! freq              " + pair("S11re", "S11im") + pair("S21re", "S21im") +
                  pair("S12re", "S12im") + pair("S22re", "S22im") + "\n" + col("1") +
                  pair("11", "0") + pair("21", "0") + pair("12", "0") + pair("22", "0") + "\n");
  }
}

TEST(V1Writer, RefusesWhatVersion1CannotSayBeforeAnyOutput) {
  const char* const one_reference = "Touchstone v1 supports only a single reference impedance";
  const char* const single_ended = "Touchstone v1 supports only data in single-ended mode";
  const struct {
    std::string keywords;
    const char* message;
  } cases[] = {
      {"[Reference] 50 75\n", one_reference},
      {"[Reference] 50 50\n", one_reference},
      {"[Mixed-Mode Order] D1,2 C1,2\n", single_ended},
      {"[Mixed-Mode Order] S1 S2\n", single_ended},
      {"[Reference] 50 50\n[Mixed-Mode Order] D1,2 C1,2\n", one_reference},
  };
  for (const auto& c : cases) {
    auto read =
        valid("!x\n" + v2_text("[Number of Ports] 2\n[Two-Port Data Order] 12_21\n" + c.keywords,
                               "1 1 0 2 0 3 0 4 0"));
    std::ostringstream os;
    try {
      V1_Writer(read.file).write_file(os);
      FAIL() << c.keywords;
    } catch (const std::runtime_error& error) {
      EXPECT_STREQ(error.what(), c.message);
    }
    EXPECT_EQ(os.str(), "");
    EXPECT_EQ(read.file.get_leading_comments(), std::vector<std::string>{"x"});
  }
}

// The values are what the pairs 1 1, 2 2, 3 3, 4 4 (in the order 11, 21, 12, 22) become with 50
// ohms; 20 log10(50) is 33.97940008672.
TEST(V1Writer, NormalizesToTheReferenceImpedance) {
  const struct {
    ParameterType type;
    ComplexFormat format;
    std::vector<std::string> values;
  } cases[] = {
      {ParameterType::S, ComplexFormat::DB, {"1", "1", "2", "2", "3", "3", "4", "4"}},
      {ParameterType::S, ComplexFormat::MA, {"1", "1", "2", "2", "3", "3", "4", "4"}},
      {ParameterType::S, ComplexFormat::RI, {"1", "1", "2", "2", "3", "3", "4", "4"}},
      {ParameterType::Unspecified, ComplexFormat::RI, {"1", "1", "2", "2", "3", "3", "4", "4"}},
      {ParameterType::Y,
       ComplexFormat::DB,
       {"34.97940008672", "1", "35.97940008672", "2", "36.97940008672", "3", "37.97940008672",
        "4"}},
      {ParameterType::Y, ComplexFormat::MA, {"50", "1", "100", "2", "150", "3", "200", "4"}},
      {ParameterType::Y, ComplexFormat::RI, {"50", "50", "100", "100", "150", "150", "200", "200"}},
      {ParameterType::Z,
       ComplexFormat::DB,
       {"-32.97940008672", "1", "-31.97940008672", "2", "-30.97940008672", "3", "-29.97940008672",
        "4"}},
      {ParameterType::Z, ComplexFormat::MA, {"0.02", "1", "0.04", "2", "0.06", "3", "0.08", "4"}},
      {ParameterType::Z,
       ComplexFormat::RI,
       {"0.02", "0.02", "0.04", "0.04", "0.06", "0.06", "0.08", "0.08"}},
      {ParameterType::H,
       ComplexFormat::DB,
       {"-32.97940008672", "1", "2", "2", "3", "3", "37.97940008672", "4"}},
      {ParameterType::H, ComplexFormat::MA, {"0.02", "1", "2", "2", "3", "3", "200", "4"}},
      {ParameterType::H, ComplexFormat::RI, {"0.02", "0.02", "2", "2", "3", "3", "200", "200"}},
      {ParameterType::G,
       ComplexFormat::DB,
       {"34.97940008672", "1", "2", "2", "3", "3", "-29.97940008672", "4"}},
      {ParameterType::G, ComplexFormat::MA, {"50", "1", "2", "2", "3", "3", "0.08", "4"}},
      {ParameterType::G, ComplexFormat::RI, {"50", "50", "2", "2", "3", "3", "0.08", "0.08"}},
  };
  for (const auto& c : cases) {
    auto read = valid("# GHz S RI R 50\n1 1 1 2 2 3 3 4 4\n");
    File& file = read.file;
    auto params = std::make_shared<FullNetworkParams>(2, 1e9, c.format);
    params->add_freq_point(1);
    params->cell(0, 0, 0).set(1, 1);
    params->cell(0, 1, 0).set(2, 2);
    params->cell(0, 0, 1).set(3, 3);
    params->cell(0, 1, 1).set(4, 4);
    file.*stored(test::NetworkField{}) = params;
    file.*stored(test::ParameterTypeField{}) = c.type;
    file.*stored(test::ComplexFormatField{}) = c.format;
    EXPECT_EQ(written_from<V1_Writer>(file, "1  "),
              col("1") + pair(c.values[0], c.values[1]) + pair(c.values[2], c.values[3]) +
                  pair(c.values[4], c.values[5]) + pair(c.values[6], c.values[7]) + "\n")
        << static_cast<int>(c.type) << " " << static_cast<int>(c.format);
  }
}

TEST(V1Writer, LeavesValuesOfAnUnknownFormatAlone) {
  for (const auto type : {ParameterType::Y, ParameterType::Z}) {
    auto read = valid("# GHz S RI R 50\n1 1 1\n");
    auto params = std::make_shared<FullNetworkParams>(1, 1e9, ComplexFormat::Unspecified);
    params->cell(params->add_freq_point(1), 0, 0).set(3, 4);
    read.file.*stored(test::NetworkField{}) = params;
    read.file.*stored(test::ParameterTypeField{}) = type;
    read.file.*stored(test::ComplexFormatField{}) = ComplexFormat::Unspecified;
    EXPECT_EQ(written_from<V1_Writer>(read.file, "! freq"),
              "! freq              " +
                  (type == ParameterType::Y ? pair("Y11", "Y11") : pair("Z11", "Z11")) + "\n" +
                  col("1") + pair("3", "4") + "\n");
  }
}

// H- and G-parameters beyond two ports do not exist in a file that was read.
TEST(V1Writer, ScalesHybridParametersInTheFirstTwoRowsOnly) {
  auto read = valid("# GHz S MA R 50\n1 1 0 1 0 1 0\n1 0 1 0 1 0\n1 0 1 0 1 0\n");
  read.file.*stored(test::ParameterTypeField{}) = ParameterType::H;
  const std::string one = pair("1", "0");
  EXPECT_EQ(written_from<V1_Writer>(read.file, "1  "), col("1") + pair("0.02", "0") + one + one +
                                                           kNextLine + one + pair("50", "0") + one +
                                                           kNextLine + one + one + one + "\n");
}

TEST(V1Writer, UsesAReferenceImpedanceOfZeroAsItStands) {
  auto read = valid("# GHz Z MA R 50\n1 1 0\n");
  read.file.*stored(test::ReferenceField{}) = 0.0;
  EXPECT_EQ(written_from<V1_Writer>(read.file, "# GHz"), "# GHz Z MA\n! freq              " +
                                                             pair("Z11mag", "Z11ang") + "\n" +
                                                             col("1") + pair("inf", "0") + "\n");
}

TEST(V1Writer, WritesTheTriangleThatTheFileLists) {
  auto read = valid(
      v2_text("[Number of Ports] 3\n[Matrix Format] Lower\n", "1 11 0\n21 0 22 0\n31 0 32 0 33 0"));
  EXPECT_EQ(written_from<V1_Writer>(read.file, "1  "),
            col("1") + pair("11", "0") + kNextLine + pair("21", "0") + pair("22", "0") + kNextLine +
                pair("31", "0") + pair("32", "0") + pair("33", "0") + "\n");
}

TEST(V1Writer, WritesNoDataThatAreNotThere) {
  auto read = test::read_text(
      "! Port[1] = a\n!x\n[Version] 2.0\n# GHz S MA R 50\n"
      "[Number of Ports] 1\n",
      test::Extent::header);
  ASSERT_TRUE(read.ok);
  ASSERT_EQ(read.file.get_network_params(), nullptr);
  const std::string expected = "! Port[1] = a\n!x\n# GHz S MA R 50\n";
  EXPECT_EQ(written<V1_Writer>(read.file), expected);

  NoiseParams noise(1e9);
  read.file.*stored(test::NoiseField{}) = &noise;
  read.file.*stored(test::NetworkField{}) =
      std::make_shared<FullNetworkParams>(1, 1e9, ComplexFormat::MA);
  EXPECT_EQ(written<V1_Writer>(read.file), expected);
}

// S-parameters are not scaled, so that nothing is lost with 17 digits on writer and stream.
TEST(V1Writer, SeventeenDigitsGiveBackEveryBit) {
  for (const std::size_t ports : {1u, 2u, 3u, 4u, 5u}) {
    std::ostringstream text;
    text << std::setprecision(17) << "! Port[1] = a\n!x\n# kHz S RI R 50\n";
    for (int point = 1; point <= 3; ++point) {
      text << point + 1.0 / 3;
      for (std::size_t k = 1; k <= ports * ports; ++k) {
        text << " " << static_cast<double>(k) / 7 << " " << -1e-200 / static_cast<double>(k);
        if (ports > 2 && k % 4 == 0 && k != ports * ports) text << "\n";
      }
      text << "\n";
    }
    auto read = valid(text.str());
    V1_Writer writer(read.file);
    writer.setPrecision(17);
    std::ostringstream os;
    os << std::setprecision(17);
    writer.write_file(os);
    auto again = valid(os.str());
    again.file.get_port_names();  // writing has looked them up in the first file
    // The line of column names is one more comment.
    EXPECT_TRUE(again.file.compare(read.file, 0)) << text.str() << os.str();
  }
}

}  // namespace
}  // namespace touchstone2
