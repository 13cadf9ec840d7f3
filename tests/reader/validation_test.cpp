// What a file may leave out, and the rules about a version 2 file as a whole. Their errors have
// no position.
#include <touchstone2/touchstone2.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {
namespace {

using test::read_text;
using test::ReadResult;
using test::TextCase;
using Strings = std::vector<std::string>;

// A complete file with one record of zeros at 5; `keywords` are lines of their own.
std::string file_with(int ports, const std::string& options, const std::string& keywords,
                      const std::string& rest = "[End]\n") {
  std::string record = "5";
  for (int i = 0; i < ports * ports; ++i) record += " 0 0";
  return "[Version] 2.0\n# " + options + "\n[Number of Ports] " + std::to_string(ports) + "\n" +
         (ports == 2 ? "[Two-Port Data Order] 12_21\n" : "") + keywords +
         "[Number of Frequencies] 1\n[Network Data]\n" + record + "\n" + rest;
}

std::string noise(const std::string& frequencies) {
  return "[Noise Data]\n" + frequencies + " 1 .5 0 .1\n[End]\n";
}

TEST(Validation, Diagnostics) {
  const std::string one_row = "[Number of Noise Frequencies] 1\n";
  const std::string pair = "[Mixed-Mode Order] D1,2 C1,2\n";
  const TextCase cases[] = {
      {"1-port S", file_with(1, "S", ""), {}},
      {"2-port G", file_with(2, "G", ""), {}},
      {"2-port H", file_with(2, "H", ""), {}},
      {"1-port G", file_with(1, "G", ""), {"E2026 0:0 ''"}},
      {"3-port G", file_with(3, "G", ""), {"E2026 0:0 ''"}},
      {"3-port H", file_with(3, "H", ""), {"E2027 0:0 ''"}},
      {"3-port H without a line end",
       file_with(3, "H", "", "[End]"),
       {"W2005 7:6 ''", "E2027 0:0 ''"}},
      {"noise that never came", file_with(2, "S", one_row), {"E2028 0:0 ''"}},
      {"noise announced for 4 ports", file_with(4, "S", one_row), {"E2028 0:0 ''"}},
      {"noise below the network data", file_with(2, "S", one_row, noise("1")), {}},
      {"noise from the last network frequency", file_with(2, "S", one_row, noise("5.0")), {}},
      {"noise above the network data",
       file_with(2, "S", one_row, noise("5.0000001")),
       {"E2029 0:0 ''"}},
      {"only the first noise frequency counts",
       file_with(2, "S", "[Number of Noise Frequencies] 2\n",
                 "[Noise Data]\n5 1 .5 0 .1\n50 1 .5 0 .1\n[End]\n"),
       {}},
      {"equal impedances", file_with(2, "S", pair + "[Reference] 60 60\n"), {}},
      {"nearly equal impedances", file_with(2, "S", pair + "[Reference] 50 50.0000005\n"), {}},
      {"impedances too far apart",
       file_with(2, "S", pair + "[Reference] 50 50.00001\n"),
       {"E2319 0:0 ''"}},
      {"different impedances, no pair", file_with(2, "S", "[Reference] 50 75\n"), {}},
      {"different impedances, single-ended ports",
       file_with(2, "S", "[Mixed-Mode Order] S1 S2\n[Reference] 50 75\n"),
       {}},
      {"a pair, impedances from the options line", file_with(2, "S R 75", pair), {}},
      {"a pair of equal ports among others",
       file_with(3, "S", "[Mixed-Mode Order] D1,3 S2 C1,3\n[Reference] 50 75 50\n"),
       {}},
      // The checks in their order.
      {"parameters before noise", file_with(3, "H", one_row), {"E2027 0:0 ''"}},
      {"noise before impedances",
       file_with(2, "S", one_row + pair + "[Reference] 50 75\n"),
       {"E2028 0:0 ''"}},
      {"extra lines before all of them", file_with(3, "H", "", "[End]\nx\n"), {"E2030 8:1 'x'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(Validation, TheImpedanceErrorNamesThePairInItsOwnOrder) {
  struct Case {
    std::string keywords;
    std::string message;
  };
  const Case cases[] = {
      {"[Mixed-Mode Order] D1,2 C1,2\n[Reference] 50 75\n",
       "different reference impedance for mixed-mode ports (port 1: 50 Ohms, port 2: 75 Ohms)"},
      {"[Reference] 50 75\n[Mixed-Mode Order] C2,1 D2,1\n",
       "different reference impedance for mixed-mode ports (port 2: 75 Ohms, port 1: 50 Ohms)"},
      {"[Mixed-Mode Order] D1,2 C1,2\n[Reference] 50 50.00001\n",
       "different reference impedance for mixed-mode ports (port 1: 50 Ohms, port 2: 50 Ohms)"},
  };
  for (const Case& c : cases) {
    const ReadResult result = read_text(file_with(2, "S", c.keywords));
    ASSERT_EQ(result.diagnostics.size(), 1U);
    EXPECT_EQ(result.diagnostics[0].message, c.message);
  }
}

TEST(Validation, FrequenciesAreComparedAsWritten) {
  // Two neighbouring doubles whose products with 1e9 are one and the same.
  const std::string text =
      "[Version] 2.0\n# GHz\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n"
      "[Number of Frequencies] 1\n[Number of Noise Frequencies] 1\n[Network Data]\n"
      "5.000000000000006 0 0 0 0 0 0 0 0\n";
  const ReadResult above = read_text(text + noise("5.000000000000007"));
  EXPECT_EQ(above.brief_diagnostics(), Strings{"E2029 0:0 ''"});
  ASSERT_NE(above.noise, nullptr);
  EXPECT_EQ(above.noise->get_freq(0), above.params().get_freq(0));
  EXPECT_TRUE(read_text(text + noise("5.000000000000006")).ok);
}

TEST(Validation, AFailureKeepsEverythingButTheFlag) {
  const ReadResult result =
      read_text(file_with(2, "S", "[Number of Noise Frequencies] 1\n", noise("6")));
  EXPECT_FALSE(result.ok);
  EXPECT_FALSE(result.file.is_valid());
  EXPECT_NE(result.file.get_network_params(), nullptr);
  EXPECT_NE(result.noise, nullptr);
}

TEST(Validation, DescriptorsOfAnEarlierReadMayNamePortsThatHaveNoImpedance) {
  test::RecordingHandler handler;
  File file("t");
  const std::string four_ports =
      "[Version] 2.0\n#\n[Number of Ports] 4\n[Mixed-Mode Order] D1,3 C1,3 D4,2 C4,2\n[Foo]\n";
  const std::string two_ports =
      "[Version] 2.0\n#\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n[Reference] 50 75\n"
      "[Number of Frequencies] 1\n[Network Data]\n1 0 0 0 0 0 0 0 0\n[End]\n";
  EXPECT_FALSE(Parser(file, handler, four_ports).read_file());
  EXPECT_TRUE(Parser(file, handler, two_ports).read_file());
  EXPECT_EQ(handler.diagnostics.size(), 1U);  // the "[Foo]"
}

TEST(ImplicitFields, AreFilledBeforeTheNetworkData) {
  const ReadResult result = read_text(
      "[Version] 2.0\n# R 75\n[Number of Ports] 3\n[Number of Frequencies] 1\n[Network Data]\n");
  EXPECT_EQ(result.brief_diagnostics(), Strings{"E2209 6:1 '\n'"});
  EXPECT_EQ(result.file.get_matrix_format(), MatrixFormat::Full);
  EXPECT_EQ(result.file.get_reference_impedance_per_port(), (std::vector<double>{75, 75, 75}));
  EXPECT_EQ(result.file.get_mixed_mode_descriptors(),
            (std::vector<MixedModeDescriptor>{{MixedModeKind::SingleEnded, 1, 0},
                                              {MixedModeKind::SingleEnded, 2, 0},
                                              {MixedModeKind::SingleEnded, 3, 0}}));
  EXPECT_FALSE(result.file.uses_reference_impedance_per_port());
  EXPECT_FALSE(result.file.uses_mixed_mode());
}

TEST(ImplicitFields, LeaveAloneWhatTheFileGives) {
  const ReadResult result = read_text(
      file_with(2, "R 75", "[Reference] 10 20\n[Mixed-Mode Order] S2 S1\n[Matrix Format] Full\n"));
  ASSERT_TRUE(result.ok);
  EXPECT_EQ(result.file.get_reference_impedance_per_port(), (std::vector<double>{10, 20}));
  EXPECT_EQ(result.file.get_mixed_mode_descriptors(),
            (std::vector<MixedModeDescriptor>{{MixedModeKind::SingleEnded, 2, 0},
                                              {MixedModeKind::SingleEnded, 1, 0}}));
  EXPECT_TRUE(result.file.uses_reference_impedance_per_port());
  EXPECT_TRUE(result.file.uses_mixed_mode());
}

}  // namespace
}  // namespace touchstone2
