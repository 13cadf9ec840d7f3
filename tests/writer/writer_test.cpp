// What both writers share: the pieces of text and how they treat the caller's stream.
#include <touchstone2/writer/writer.h>

#include <cmath>
#include <cstddef>
#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
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

const std::string kOnePort = "# GHz S MA R 50\n1 0.5 -30\n";

// Reaches the pieces one by one and remembers what it was asked to normalise.
class Pieces : public Writer {
 public:
  using Writer::write_leading_comments;
  using Writer::write_network_params;
  using Writer::write_noise_params;
  using Writer::write_options_line;
  using Writer::Writer;

  void write_file(std::ostream&) const override {}

  mutable std::vector<std::pair<std::size_t, std::size_t>> normalized;

 protected:
  void normalize_network_data(double& a, double&, std::size_t i, std::size_t j) const override {
    normalized.emplace_back(i, j);
    a += 100;
  }
};

// Decimal comma, and a point between groups of three digits.
class CommaPunctuation : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

std::locale comma_locale() { return std::locale(std::locale::classic(), new CommaPunctuation); }

std::string options_line(File& file) {
  std::ostringstream os;
  Pieces(file).write_options_line(os);
  return os.str();
}

TEST(Writer, RefusesAFileThatIsNotValid) {
  File file("none.s2p");
  for (int version : {1, 2}) {
    try {
      version == 1 ? static_cast<void>(V1_Writer(file)) : static_cast<void>(V2_Writer(file));
      FAIL() << "version " << version;
    } catch (const std::logic_error& error) {
      EXPECT_STREQ(error.what(), "touchstone2::File is not valid");
    }
  }
}

TEST(Writer, PrecisionIs14UntilSetAndIsCopied) {
  auto read = valid(kOnePort);
  V2_Writer writer(read.file);
  EXPECT_EQ(writer.precision(), 14);
  writer.setPrecision(-3);
  EXPECT_EQ(writer.precision(), -3);
  EXPECT_EQ(V2_Writer(writer).precision(), -3);
  EXPECT_FALSE(std::is_copy_assignable<V2_Writer>::value);
}

TEST(LeadingComments, CarryThePortNames) {
  auto read = valid("!Created by tool\n! Port[1] = in\n!Date x\n" + kOnePort);
  std::ostringstream os;
  Pieces(read.file).write_leading_comments(os);
  EXPECT_EQ(os.str(), "!Created by tool\n! Port[1] = in\n!Date x\n");
  read.file.set_port_name(0, "out");
  os.str("");
  Pieces(read.file).write_leading_comments(os);
  EXPECT_EQ(os.str(), "!Created by tool\n! Port[1] = out\n!Date x\n");
}

TEST(LeadingComments, OfAFileWithoutAnyAreThePortNameLines) {
  auto read = valid(kOnePort);
  const Pieces writer(read.file);
  for (int time : {1, 2}) {
    std::ostringstream os;
    writer.write_leading_comments(os);
    EXPECT_EQ(os.str(), "! Port[1] = \n!\n") << "time " << time;
  }
  EXPECT_EQ(read.file.get_leading_comments(), (std::vector<std::string>{" Port[1] = ", ""}));
}

TEST(LeadingComments, AreNeverNone) {
  auto read = valid(kOnePort);
  read.file.*stored(test::PortCountField{}) = 0;
  std::ostringstream os;
  Pieces(read.file).write_leading_comments(os);
  EXPECT_EQ(os.str(), "!\n");
}

TEST(OptionsLine, NamesUnitTypeAndFormat) {
  auto read = valid(kOnePort);
  File& file = read.file;
  const char* const units[] = {"", " Hz", " kHz", " MHz", " GHz", ""};
  const char* const types[] = {"", " S", " Y", " Z", " H", " G", ""};
  const char* const formats[] = {"", " DB", " MA", " RI", ""};
  for (std::uint32_t unit = 0; unit < 6; ++unit) {
    for (std::uint32_t type = 0; type < 7; ++type) {
      for (std::uint32_t format = 0; format < 5; ++format) {
        file.*stored(test::UnitField{}) = static_cast<FrequencyScaleFactor>(unit);
        file.*stored(test::ParameterTypeField{}) = static_cast<ParameterType>(type);
        file.*stored(test::ComplexFormatField{}) = static_cast<ComplexFormat>(format);
        EXPECT_EQ(options_line(file),
                  std::string("#") + units[unit] + types[type] + formats[format] + " R 50\n");
      }
    }
  }
  file.*stored(test::UnitField{}) = static_cast<FrequencyScaleFactor>(0xFFFFFFFF);
  EXPECT_EQ(options_line(file), "# R 50\n");
}

TEST(OptionsLine, GivesAReferenceImpedanceAboveZeroOnly) {
  const struct {
    double ohms;
    const char* text;
  } cases[] = {
      {50, " R 50"},
      {0.1, " R 0.1"},
      {1e-7, " R 1e-07"},
      {5e-324, " R 4.94066e-324"},
      {1234567.5, " R 1.23457e+06"},  // the stream's own precision
      {0.0, ""},
      {-0.0, ""},
      {-50, ""},
      {std::numeric_limits<double>::quiet_NaN(), ""},
  };
  auto read = valid(kOnePort);
  for (const auto& c : cases) {
    read.file.*stored(test::ReferenceField{}) = c.ohms;
    EXPECT_EQ(options_line(read.file), std::string("# GHz S MA") + c.text + "\n");
  }
}

TEST(NetworkParams, HeaderNamesTheColumns) {
  auto read = valid(kOnePort);
  const char* const letters[] = {"_", "S", "Y", "Z", "H", "G", ""};
  const char* const first[] = {"", "dB", "mag", "re", ""};
  const char* const second[] = {"", "ang", "ang", "im", ""};
  for (std::uint32_t type = 0; type < 7; ++type) {
    for (std::uint32_t format = 0; format < 5; ++format) {
      read.file.*stored(test::ParameterTypeField{}) = static_cast<ParameterType>(type);
      read.file.*stored(test::ComplexFormatField{}) = static_cast<ComplexFormat>(format);
      std::ostringstream os;
      Pieces(read.file).write_network_params(os, true, false, false);
      const std::string name = std::string(letters[type]) + "11";
      EXPECT_EQ(os.str().substr(0, os.str().find('\n')),
                "! freq              " + pair(name + first[format], name + second[format]));
    }
  }
}

TEST(NetworkParams, CanDoWithoutTheHeader) {
  auto read = valid(kOnePort);
  std::ostringstream os;
  Pieces(read.file).write_network_params(os, false, false, false);
  EXPECT_EQ(os.str(), "1                     100.5                -30                 \n");
}

TEST(NetworkParams, AreNothingWithoutPoints) {
  auto read = valid(kOnePort);
  std::ostringstream os;
  read.file.*stored(test::NetworkField{}) =
      std::make_shared<FullNetworkParams>(1, 1e9, ComplexFormat::MA);
  Pieces(read.file).write_network_params(os, true, true, true);
  (read.file.*stored(test::NetworkField{})).reset();
  Pieces(read.file).write_network_params(os, true, true, true);
  EXPECT_EQ(os.str(), "");
}

TEST(NetworkParams, NormalizeByTheOrderOfPrinting) {
  auto read = valid("# GHz S RI R 50\n1" + numbered_pairs(4) + "\n");  // S11 S21 S12 S22
  const Pieces writer(read.file);
  for (const bool swapped : {false, true}) {
    std::ostringstream os;
    writer.normalized.clear();
    writer.write_network_params(os, true, swapped, false);
    const std::string header = swapped ? pair("S11re", "S11im") + pair("S21re", "S21im") +
                                             pair("S12re", "S12im") + pair("S22re", "S22im")
                                       : pair("S11re", "S11im") + pair("S12re", "S12im") +
                                             pair("S21re", "S21im") + pair("S22re", "S22im");
    const std::string data =
        swapped ? pair("101", "-1") + pair("102", "-2") + pair("103", "-3") + pair("104", "-4")
                : pair("101", "-1") + pair("103", "-3") + pair("102", "-2") + pair("104", "-4");
    EXPECT_EQ(os.str(), col("! freq") + header + "\n" + col("1") + data + "\n");
    EXPECT_EQ(writer.normalized,
              (std::vector<std::pair<std::size_t, std::size_t>>{{0, 0}, {0, 1}, {1, 0}, {1, 1}}));
  }
}

// Only two ports know the order N11, N21, N12, N22.
TEST(NetworkParams, AreSwappedWithTwoPortsOnly) {
  auto read = valid("# GHz S RI R 50\n1" + numbered_pairs(9) + "\n");
  std::ostringstream swapped;
  std::ostringstream plain;
  Pieces(read.file).write_network_params(swapped, true, true, false);
  Pieces(read.file).write_network_params(plain, true, false, false);
  EXPECT_EQ(swapped.str(), plain.str());
}

TEST(NetworkParams, AreConvertedToTheFormatOfTheFile) {
  auto read = valid(kOnePort);
  auto params = std::make_shared<FullNetworkParams>(1, 1e9, ComplexFormat::RI);
  params->cell(params->add_freq_point(1), 0, 0).set(0, -2);
  read.file.*stored(test::NetworkField{}) = params;
  std::ostringstream os;
  Pieces(read.file).write_network_params(os, false, false, false);
  EXPECT_EQ(os.str(), col("1") + pair("102", "-90") + "\n");
}

// How the pairs of one matrix are spread over lines: "1 2 | 3" are the pairs 1 and 2 on one
// line and 3 on the next one.
std::string layout(std::size_t ports, MatrixFormat format, bool version_1_layout) {
  std::string text = "# GHz S RI R 50\n1";
  for (std::size_t k = 1; k <= ports * ports; ++k) {
    text += " " + std::to_string(k) + " 0";
    if (k % ports == 0 && k != ports * ports && ports > 2) text += "\n";
  }
  auto read = valid(text + "\n");
  read.file.*stored(test::MatrixFormatField{}) = format;
  std::ostringstream os;
  class Plain : public Pieces {
   public:
    using Pieces::Pieces;

   protected:
    void normalize_network_data(double&, double&, std::size_t, std::size_t) const override {}
  };
  Plain(read.file).write_network_params(os, false, false, version_1_layout);

  std::string result;
  std::istringstream lines(os.str());
  for (std::string one; std::getline(lines, one);) {
    if (!result.empty()) result += " |";
    // A data line starts with the frequency or with 20 blanks.
    EXPECT_EQ(one.substr(0, 20), result.empty() ? col("1") : col(""));
    std::istringstream values(one.substr(20));
    for (std::string a, b; values >> a >> b;) result += (result.empty() ? "" : " ") + a;
  }
  return result;
}

TEST(NetworkParams, BreakLinesByRowsOrByFourPairs) {
  const struct {
    std::size_t ports;
    MatrixFormat format;
    const char* by_rows;
    const char* by_four;
  } cases[] = {
      {1, MatrixFormat::Full, "1", "1"},
      {2, MatrixFormat::Full, "1 3 2 4", "1 3 2 4"},  // read as 11 21 12 22
      {2, MatrixFormat::Unspecified, "1 3 2 4", "1 3 2 4"},
      {2, MatrixFormat::Upper, "1 3 4", "1 3 4"},
      {2, MatrixFormat::Lower, "1 2 4", "1 2 4"},
      {3, MatrixFormat::Full, "1 2 3 | 4 5 6 | 7 8 9", "1 2 3 | 4 5 6 | 7 8 9"},
      {3, MatrixFormat::Upper, "1 2 3 | 5 6 | 9", "1 2 3 5 6 9"},
      {3, MatrixFormat::Lower, "1 | 4 5 | 7 8 9", "1 | 4 5 | 7 8 9"},
      {4, MatrixFormat::Full, "1 2 3 4 | 5 6 7 8 | 9 10 11 12 | 13 14 15 16",
       "1 2 3 4 | 5 6 7 8 | 9 10 11 12 | 13 14 15 16"},
      {5, MatrixFormat::Full,
       "1 2 3 4 5 | 6 7 8 9 10 | 11 12 13 14 15 | 16 17 18 19 20 | 21 22 23 24 25",
       "1 2 3 4 | 5 | 6 7 8 9 | 10 | 11 12 13 14 | 15 | 16 17 18 19 | 20 | 21 22 23 24 | 25"},
      {5, MatrixFormat::Upper, "1 2 3 4 5 | 7 8 9 10 | 13 14 15 | 19 20 | 25",
       "1 2 3 4 | 5 7 8 9 | 10 13 14 | 15 19 | 20 | 25"},
      {5, MatrixFormat::Lower, "1 | 6 7 | 11 12 13 | 16 17 18 19 | 21 22 23 24 25",
       "1 | 6 7 | 11 12 13 | 16 17 18 19 | 21 22 23 24 | 25"},
      {5, static_cast<MatrixFormat>(7),
       "1 2 3 4 5 | 6 7 8 9 10 | 11 12 13 14 15 | 16 17 18 19 20 | 21 22 23 24 25",
       "1 2 3 4 | 5 | 6 7 8 9 | 10 | 11 12 13 14 | 15 | 16 17 18 19 | 20 | 21 22 23 24 | 25"},
  };
  for (const auto& c : cases) {
    const auto format = static_cast<std::uint32_t>(c.format);
    EXPECT_EQ(layout(c.ports, c.format, false), c.by_rows) << c.ports << " ports, " << format;
    EXPECT_EQ(layout(c.ports, c.format, true), c.by_four) << c.ports << " ports, " << format;
  }
}

TEST(NetworkParams, SayWhichIndexIsBadWhenTheFileHasMorePortsThanTheData) {
  auto read = valid(kOnePort);
  read.file.*stored(test::PortCountField{}) = 2;
  std::ostringstream os;
  try {
    Pieces(read.file).write_network_params(os, false, false, false);
    FAIL() << os.str();
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "col");
  }
  EXPECT_EQ(os.str(), col("1") + pair("100.5", "-30"));
  try {
    Pieces(read.file).write_network_params(os, false, true, false);
    FAIL() << os.str();
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "row");
  }
}

TEST(NoiseParams, PadTheFrequencyOnly) {
  auto read = valid("# GHz S RI R 50\n1" + numbered_pairs(4) + "\n0.5 1.25 0.125 -120 0.3\n");
  ASSERT_NE(read.noise, nullptr);
  std::ostringstream os;
  Pieces(read.file).write_noise_params(os, false);
  EXPECT_EQ(os.str(), "0.5                   1.25  0.125  -120  15\n");
  os.str("");
  Pieces(read.file).write_noise_params(os, true);
  EXPECT_EQ(os.str(), "0.5                   1.25  0.125  -120  0.3\n");
}

TEST(NoiseParams, AreNothingWithoutRows) {
  auto read = valid(kOnePort);
  NoiseParams noise(1e9);
  std::ostringstream os;
  Pieces(read.file).write_noise_params(os, false);
  read.file.*stored(test::NoiseField{}) = &noise;
  Pieces(read.file).write_noise_params(os, false);
  EXPECT_EQ(os.str(), "");
  EXPECT_EQ(os.precision(), 6);
}

TEST(Precision, OfTheFirstFrequencyIsTheStreamsOwn) {
  auto read = valid("# GHz S MA R 50\n1.23456789 0.123456789 1\n2.23456789 0.1 1\n");
  EXPECT_EQ(written_from<V2_Writer>(read.file, "1.2"), col("1.23457") + pair("0.123456789", "1") +
                                                           "\n" + col("2.23456789") +
                                                           pair("0.1", "1") + "\n\n[End]\n");
}

TEST(Precision, OfTheValuesStaysInTheStream) {
  auto read = valid("# GHz S MA R 50\n1.23456789 0.123456789 1\n2.23456789 0.1 1\n");
  V2_Writer writer(read.file);
  writer.setPrecision(3);
  std::ostringstream os;
  os << std::setprecision(5);
  writer.write_file(os);
  EXPECT_EQ(os.precision(), 3);
  EXPECT_NE(os.str().find("\n" + col("1.2346") + pair("0.123", "1") + "\n" + col("2.23") +
                          pair("0.1", "1") + "\n"),
            std::string::npos)
      << os.str();
}

TEST(Precision, OfAStreamWithoutDataIsNotTouched) {
  auto read = test::read_text(kOnePort, test::Extent::header);
  ASSERT_TRUE(read.ok);
  std::ostringstream os;
  V2_Writer(read.file).write_file(os);
  EXPECT_EQ(os.precision(), 6);
}

TEST(Precision, TakesAnyValue) {
  auto read = valid("# GHz S MA R 50\n1 0.123456789 1\n");
  const struct {
    int digits;
    const char* text;
  } cases[] = {
      {17, "0.123456789"}, {3, "0.123"}, {1, "0.1"}, {0, "0.1"}, {-1, "0.123457"},
  };
  for (const auto& c : cases) {
    V2_Writer writer(read.file);
    writer.setPrecision(c.digits);
    std::ostringstream os;
    writer.write_file(os);
    EXPECT_NE(os.str().find(pair(c.text, "1")), std::string::npos) << os.str();
  }
}

TEST(Precision, LongNumbersAreNotCut) {
  auto read = valid("# GHz S RI R 50\n1 -1.2345678901234567e-100 -2.2250738585072014e-308\n");
  V2_Writer writer(read.file);
  writer.setPrecision(17);
  std::ostringstream os;
  writer.write_file(os);
  EXPECT_NE(os.str().find("\n" + col("1") +
                          "  -1.2345678901234567e-100"
                          " -2.2250738585072014e-308\n"),
            std::string::npos)
      << os.str();
}

// A version 2 file that shows every kind of number.
const std::string kManyNumbers =
    "! Port[1] = a\n[Version] 2.0\n# MHz Z RI R 1234.5\n[Number of Ports] 2\n"
    "[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n[Number of Noise Frequencies] 1\n"
    "[Reference] 1000.5 2000\n[Network Data]\n12345.5 1 -1234567.25 1e300 0.5 10 11 12 13\n"
    "[Noise Data]\n1000.5 1234.5 0.5 1000 1000000\n[End]\n";

const std::string kManyNumbersWritten =
    "! Port[1] = a\n! Port[2] = \n!\n[Version] 2.0\n# MHz Z RI R 1234.5\n[Number of Ports] 2\n"
    "[Two-Port Data Order] 12_21\n[Number of Frequencies] 1\n[Number of Noise Frequencies] 1\n"
    "[Reference] 1000.5 2000\n\n[Network Data]\n"
    "! freq                Z11re                Z11im                 Z12re                "
    "Z12im                 Z21re                Z21im                 Z22re                "
    "Z22im               \n"
    "12345.5               1                    -1234567.25           1e+300               "
    "0.5                   10                   11                    12                   "
    "13                  \n"
    "\n[Noise Data]\n1000.5                1234.5  0.5  1000  1000000\n\n[End]\n";

TEST(Stream, AsItComesGivesTheExpectedText) {
  auto read = valid(kManyNumbers);
  EXPECT_EQ(written<V2_Writer>(read.file), kManyNumbersWritten);
}

TEST(Stream, LocaleDoesNotGetIntoTheFile) {
  auto read = valid(kManyNumbers);
  std::ostringstream os;
  os.imbue(comma_locale());
  V2_Writer(read.file).write_file(os);
  EXPECT_EQ(os.str(), kManyNumbersWritten);
  os.str("");
  os << std::setprecision(6) << 1234.5 << " " << 1000000;
  EXPECT_EQ(os.str(), "1.234,5 1.000.000");  // it has its own again
}

TEST(Stream, LocaleOfTheProcessDoesNotGetIntoTheFile) {
  auto read = valid(kManyNumbers);
  const std::locale before = std::locale::global(comma_locale());
  const std::string text = written<V2_Writer>(read.file);
  std::locale::global(before);
  EXPECT_EQ(text, kManyNumbersWritten);
}

TEST(Stream, IsCleanForThePiecesToo) {
  auto read = valid("# MHz S RI R 1234.5\n1234567" + numbered_pairs(4) + "\n1 1000.5 1 1 1\n");
  std::ostringstream os;
  os.imbue(comma_locale());
  os << std::hex << std::showpos << std::setfill('0');
  const Pieces writer(read.file);
  writer.write_options_line(os);
  os << std::setprecision(9);
  writer.write_network_params(os, false, true, false);
  writer.write_noise_params(os, true);
  EXPECT_EQ(os.str(), "# MHz S RI R 1234.5\n" + col("1234567") + pair("101", "-1") +
                          pair("102", "-2") + pair("103", "-3") + pair("104", "-4") + "\n" +
                          col("1") + "  1000.5  1  1  1\n");
}

TEST(Stream, NumberFlagsFillAndWidthDoNotGetIntoTheFile) {
  auto read = valid(kManyNumbers);
  using std::ios_base;
  const ios_base::fmtflags flags[] = {
      ios_base::fixed,
      ios_base::scientific,
      ios_base::fixed | ios_base::scientific,
      ios_base::hex | ios_base::showbase,
      ios_base::oct,
      ios_base::dec | ios_base::showpos | ios_base::showpoint | ios_base::uppercase,
      ios_base::internal,
      ios_base::right | ios_base::boolalpha,
  };
  for (const ios_base::fmtflags flag : flags) {
    std::ostringstream os;
    os.flags(flag);
    os.fill('0');
    os.width(30);
    V2_Writer(read.file).write_file(os);
    EXPECT_EQ(os.str(), kManyNumbersWritten);

    // The stream's own again, but for the adjustment.
    EXPECT_EQ(os.flags(), (flag & ~ios_base::adjustfield) | ios_base::left);
    EXPECT_EQ(os.fill(), '0');
    EXPECT_EQ(os.width(), 0);
  }
}

TEST(Stream, KeepsPrecisionAndAdjustmentOfEitherKindOfData) {
  auto read = valid("# MHz S RI R 50\n1" + numbered_pairs(4) + "\n0.5 1 1 1 1\n");
  const Pieces writer(read.file);
  std::ostringstream network;
  writer.write_network_params(network, false, true, false);
  std::ostringstream noise;
  writer.write_noise_params(noise, false);
  for (const std::ostringstream* const os : {&network, &noise}) {
    EXPECT_EQ(os->precision(), 14);
    EXPECT_EQ(os->flags() & std::ios_base::adjustfield, std::ios_base::left);
  }
}

TEST(Stream, HasItsOwnSettingsAgainAfterAnException) {
  auto read = valid("# GHz S MA R 50\n1000.5 0.5 -30\n");
  read.file.*stored(test::PortCountField{}) = 2;
  std::ostringstream os;
  os.imbue(comma_locale());
  os << std::fixed << std::setfill('*');
  EXPECT_THROW(V2_Writer(read.file).write_file(os), std::out_of_range);
  EXPECT_EQ(os.fill(), '*');
  os.str("");
  os << std::setprecision(1) << 1000.5;
  EXPECT_EQ(os.str(), "1.000,5");
}

TEST(Stream, ErrorsAreLeftToTheCaller) {
  auto read = valid(kOnePort);
  std::ostringstream os;
  os.setstate(std::ios_base::failbit);
  V1_Writer(read.file).write_file(os);
  EXPECT_EQ(os.str(), "");
  EXPECT_TRUE(os.fail());
}

class CountingBuffer : public std::stringbuf {
 public:
  int flushes = 0;

 protected:
  int sync() override {
    ++flushes;
    return std::stringbuf::sync();
  }
};

TEST(Stream, IsFlushedAfterEachNoiseRowAndAtTheEnd) {
  auto read = valid("# GHz S RI R 50\n2" + numbered_pairs(4) + "\n1 1 0 0 1\n2 1 0 0 1\n");
  for (const bool version_1 : {true, false}) {
    CountingBuffer buffer;
    std::ostream os(&buffer);
    if (version_1) {
      V1_Writer(read.file).write_file(os);
    } else {
      V2_Writer(read.file).write_file(os);
    }
    EXPECT_EQ(buffer.flushes, 3);
  }
}

TEST(Writer, CanBeUsedAgain) {
  auto read = valid("!x\n" + kOnePort);
  V1_Writer writer(read.file);
  std::ostringstream first;
  std::ostringstream second;
  writer.write_file(first);
  writer.write_file(second);
  EXPECT_EQ(first.str(), second.str());
}

}  // namespace
}  // namespace touchstone2
