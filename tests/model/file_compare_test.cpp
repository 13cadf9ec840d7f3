// Each row of the table is a pair of texts whose reading differs in one field.

#include <touchstone2/touchstone2.h>

#include <limits>
#include <string>
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

constexpr int kNeither = 0;
constexpr int kNames = 1;
constexpr int kComments = 2;
constexpr int kAll = 0xFFFF;

// Ends behind "[Network Data]" and is refused there: what the header gives is stored all the
// same.
std::string header(const std::string& options, const std::string& keywords,
                   const std::string& ports = "2") {
  return "[Version] 2.0\n# " + options + "\n[Number of Ports] " + ports + "\n" + keywords +
         "[Network Data]\n";
}

std::string one_port(const std::string& data, const std::string& end = "[End]\n") {
  return "[Version] 2.0\n# GHz S RI R 50\n[Number of Ports] 1\n[Number of Frequencies] 1\n"
         "[Network Data]\n" +
         data + end;
}

std::string two_ports(const std::string& keywords, const std::string& rest) {
  return "[Version] 2.0\n# GHz S RI R 50\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n"
         "[Number of Frequencies] 1\n" +
         keywords + "[Network Data]\n9 1 2 3 4 5 6 7 8\n" + rest;
}

TEST(FileCompare, OneDifferentFieldMakesFilesUnequal) {
  struct Row {
    const char* field;
    std::string a;
    std::string b;
  };
  const std::string noise = "[Number of Noise Frequencies] 1\n";
  const Row rows[] = {
      {"version", "# GHz S RI R 50\n1 2 3\n", one_port("1 2 3\n")},
      {"frequency unit", "# MHz\n", "# GHz\n"},
      {"parameter type", "# GHz S\n", "# GHz Y\n"},
      {"complex format", "# GHz MA\n", "# GHz DB\n"},
      {"reference impedance", "# GHz R 50\n", "# GHz R 50.000000000000007\n"},
      {"number of ports", "[Version] 2.0\n#\n[Number of Ports] 2\n",
       "[Version] 2.0\n#\n[Number of Ports] 3\n"},
      {"two-port data order", header("GHz", "[Two-Port Data Order] 12_21\n"),
       header("GHz", "[Two-Port Data Order] 21_12\n")},
      {"number of frequencies", header("GHz", "[Number of Frequencies] 1\n"),
       header("GHz", "[Number of Frequencies] 2\n")},
      {"number of noise frequencies", header("GHz", "[Number of Noise Frequencies] 1\n"),
       header("GHz", "[Number of Noise Frequencies] 2\n")},
      {"impedance per port", header("GHz", "[Reference] 50 60\n"),
       header("GHz", "[Reference] 50 60.00000000000001\n")},
      {"matrix format", header("GHz", "[Matrix Format] Upper\n"),
       header("GHz", "[Matrix Format] Lower\n")},
      {"kind of a descriptor", header("GHz", "[Mixed-Mode Order] D1,2 C1,2\n"),
       header("GHz", "[Mixed-Mode Order] C1,2 D1,2\n")},
      {"first port of a descriptor", header("GHz", "[Mixed-Mode Order] S1 S2\n"),
       header("GHz", "[Mixed-Mode Order] S2 S1\n")},
      {"second port of a descriptor",
       header("GHz", "[Mixed-Mode Order] D1,2 C1,2 D3,4 C3,4\n", "4"),
       header("GHz", "[Mixed-Mode Order] D1,4 C1,4 D3,2 C3,2\n", "4")},
      {"a value of the network data", one_port("1 2 3\n"), one_port("1 2 3.0000000000000004\n")},
      {"a frequency of the network data", one_port("1 2 3\n"), one_port("1.5 2 3\n")},
      {"one network object", header("GHz", "[Number of Frequencies] 1\n", "1"),
       header("GHz", "[Number of Frequencies] 1\n", "1") + "1 2 3\n[Reference]\n"},
      {"a number of the noise data", two_ports(noise, "[Noise Data]\n1 2 3 4 5\n[End]\n"),
       two_ports(noise, "[Noise Data]\n1 2 3 4 6\n[End]\n")},
      {"one noise object", two_ports(noise, "[End]\n"),
       two_ports(noise, "[Noise Data]\n1 2 3 4 5\n[Reference]\n")},
      {"whether impedances are given", header("GHz R 50", "[Reference] 50 50\n"),
       header("GHz R 50", "")},
      {"whether descriptors are given", header("GHz", "[Mixed-Mode Order] S1 S2\n"),
       header("GHz", "")},
      {"information section", header("GHz", "[Begin Information]\n[End Information]\n"),
       header("GHz", "")},
      {"valid", one_port("1 2 3\n"), one_port("1 2 3\n", "[Reference]\n")},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.field);
    const ReadResult a = read_text(row.a);
    const ReadResult a_again = read_text(row.a);
    const ReadResult b = read_text(row.b);
    for (const int mask : {kNeither, kNames, kComments, kNames | kComments, kAll}) {
      EXPECT_TRUE(a.file.compare(a_again.file, mask));
      EXPECT_FALSE(a.file.compare(b.file, mask));
      EXPECT_FALSE(b.file.compare(a.file, mask));
    }
    EXPECT_TRUE(a.file == a_again.file);
    EXPECT_FALSE(a.file != a_again.file);
    EXPECT_FALSE(a.file == b.file);
    EXPECT_TRUE(a.file != b.file);
  }
}

// What sets the flags apart when the values are the same.
TEST(FileCompare, ValuesOfTheFlagRowsAreTheSame) {
  const ReadResult given = read_text(header("GHz R 50", "[Reference] 50 50\n"));
  const ReadResult implicit = read_text(header("GHz R 50", ""));
  EXPECT_EQ(given.file.get_reference_impedance_per_port(),
            implicit.file.get_reference_impedance_per_port());
  const ReadResult ordered = read_text(header("GHz", "[Mixed-Mode Order] S1 S2\n"));
  EXPECT_TRUE(ordered.file.get_mixed_mode_descriptors() ==
              implicit.file.get_mixed_mode_descriptors());
}

TEST(FileCompare, MaskSelectsNamesAndComments) {
  const std::string data = "# GHz\n1 2 3\n";
  const ReadResult base = read_text("! top\n" + data + "! low\n2 3 4\n", Extent::whole, "a.s1p");
  struct Row {
    const char* name;
    std::string text;
    std::string file_name;
    int equal_masks;  // bit k set: compare with mask k gives true, k from 0 to 3
  };
  const Row rows[] = {
      {"the same", "! top\n" + data + "! low\n2 3 4\n", "a.s1p", 0xF},
      {"name", "! top\n" + data + "! low\n2 3 4\n", "b.s1p", 0x5},
      {"longer name", "! top\n" + data + "! low\n2 3 4\n", "a.s1pp", 0x5},
      {"leading comment", "! Top\n" + data + "! low\n2 3 4\n", "a.s1p", 0x3},
      {"count of leading comments", "! top\n!\n" + data + "! low\n2 3 4\n", "a.s1p", 0x3},
      {"other comment", "! top\n" + data + "! low \n2 3 4\n", "a.s1p", 0x3},
      {"count of other comments", "! top\n" + data + "2 3 4\n", "a.s1p", 0x3},
      {"name and comment", "!\n" + data + "! low\n2 3 4\n", "b.s1p", 0x1},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    const ReadResult other = read_text(row.text, Extent::whole, row.file_name);
    for (int mask = 0; mask < 4; ++mask) {
      const bool expected = ((row.equal_masks >> mask) & 1) != 0;
      EXPECT_EQ(base.file.compare(other.file, mask), expected) << mask;
      EXPECT_EQ(other.file.compare(base.file, mask), expected) << mask;
      // No other bit means anything.
      EXPECT_EQ(base.file.compare(other.file, mask | 0x7FFC), expected) << mask;
    }
    const bool equal = row.equal_masks == 0xF;
    EXPECT_EQ(base.file == other.file, equal);
    EXPECT_EQ(base.file != other.file, !equal);
  }
}

TEST(FileCompare, LeadingAndOtherCommentsAreTwoLists) {
  const ReadResult leading = read_text("! x\n# GHz\n1 2 3\n");
  const ReadResult other = read_text("# GHz\n! x\n1 2 3\n");
  EXPECT_FALSE(leading.file == other.file);
  EXPECT_TRUE(leading.file.compare(other.file, kNames));
}

TEST(FileCompare, DistinctButEqualObjectsAreEqual) {
  const std::string text = "# GHz S RI\n9 1 2 3 4 5 6 7 8\n1 2 3 4 5\n";
  const ReadResult a = read_text(text);
  const ReadResult b = read_text(text);
  ASSERT_NE(a.file.get_network_params(), b.file.get_network_params());
  ASSERT_NE(a.file.get_noise_params(), nullptr);
  ASSERT_NE(a.file.get_noise_params(), b.file.get_noise_params());
  EXPECT_TRUE(a.file == b.file);
}

// One shared object is not looked into; a NaN would make it unequal to itself.
TEST(FileCompare, TheSameObjectIsEqualWhateverItHolds) {
  const ReadResult a = read_text("# GHz S RI\n1 2 3\n");
  const ReadResult b = read_text("# GHz S RI\n1 2 3\n");
  const File copy(a.file);
  NetworkParams::Cell cell = a.params().cell(0, 0, 0);
  cell.set(std::numeric_limits<double>::quiet_NaN(), 3.0);
  EXPECT_FALSE(*a.file.get_network_params() == *copy.get_network_params());
  EXPECT_TRUE(a.file == copy);
  EXPECT_TRUE(a.file == a.file);
  EXPECT_FALSE(a.file == b.file);
}

TEST(FileCompare, PortNamesAreComparedAsStored) {
  const std::string text = "! Port[1] = in\n# GHz\n1 2 3\n";
  const ReadResult a = read_text(text);
  const ReadResult b = read_text(text);
  EXPECT_TRUE(a.file == b.file);
  a.file.get_port_names();  // finds and keeps them
  EXPECT_FALSE(a.file.compare(b.file, kNeither));
  b.file.get_port_names();
  EXPECT_TRUE(a.file == b.file);
}

TEST(FileCompare, WhetherNamesWereSetCounts) {
  const std::string text = "! Port[1] = in\n# GHz\n1 2 3\n";
  const ReadResult found = read_text(text);
  ReadResult set = read_text(text);
  set.file.set_port_names({"in"});
  ASSERT_EQ(found.file.get_port_names(), set.file.get_port_names());
  EXPECT_FALSE(found.file.compare(set.file, kNeither));
  set.file.update_leading_comments();  // clears the mark
  EXPECT_TRUE(found.file.compare(set.file, kNeither));
}

TEST(FileCompare, PairingInformationDoesNotCount) {
  ReadResult a = read_text("! MIXED one\n# GHz\n1 2 3\n");
  const ReadResult b = read_text("! MIXED one\n# GHz\n1 2 3\n");
  EXPECT_EQ(a.file.get_pairing_info(), " MIXED one");
  EXPECT_TRUE(a.file == b.file);
}

TEST(FileCompare, NewFilesOfOneNameAreEqual) {
  EXPECT_TRUE(File("a.s2p") == File("a.s2p"));
  EXPECT_FALSE(File("a.s2p") == File("b.s2p"));
  EXPECT_TRUE(File("a.s2p").compare(File("b.s2p"), kComments));
}

}  // namespace
}  // namespace touchstone2
