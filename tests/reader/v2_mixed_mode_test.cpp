// "[Mixed-Mode Order]": the grammar of a descriptor and the rules about the list.
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

constexpr MixedModeKind S = MixedModeKind::SingleEnded;
constexpr MixedModeKind D = MixedModeKind::Differential;
constexpr MixedModeKind C = MixedModeKind::Common;

// The list stands on line 4 from column 20 on; "[Foo]" on the last line ends it.
std::string with_list(int ports, const std::string& list, const std::string& options = "S") {
  return "[Version] 2.0\n# " + options + "\n[Number of Ports] " + std::to_string(ports) +
         "\n[Mixed-Mode Order] " + list + "\n[Foo]\n";
}

TEST(MixedModeOrder, StoresTheDescriptorsInTheirOrder) {
  struct Case {
    int ports;
    std::string list;
    std::vector<MixedModeDescriptor> expected;
  };
  const Case cases[] = {
      {1, "S1", {{S, 1, 0}}},
      {2, "s2 S1", {{S, 2, 0}, {S, 1, 0}}},
      {4, "D1,3 C1,3 D2,4 C2,4", {{D, 1, 3}, {C, 1, 3}, {D, 2, 4}, {C, 2, 4}}},
      {4, "c1,3 d2,4 d1,3 c2,4", {{C, 1, 3}, {D, 2, 4}, {D, 1, 3}, {C, 2, 4}}},
      {3, "D3,1 S2 C3,1", {{D, 3, 1}, {S, 2, 0}, {C, 3, 1}}},
      {3, "! c\n\n \tS1 ! d\n  \n! e\nD2,3\tC2,3 ! f\n! g", {{S, 1, 0}, {D, 2, 3}, {C, 2, 3}}},
      {10,
       "S10 S9 S8 S7 S6 S5 S4 S3 D1,2 C1,2",
       {{S, 10, 0},
        {S, 9, 0},
        {S, 8, 0},
        {S, 7, 0},
        {S, 6, 0},
        {S, 5, 0},
        {S, 4, 0},
        {S, 3, 0},
        {D, 1, 2},
        {C, 1, 2}}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.list);
    const ReadResult result = read_text(with_list(c.ports, c.list));
    ASSERT_EQ(result.diagnostics.size(), 1U);
    EXPECT_EQ(result.diagnostics[0].code, 2014);  // the "[Foo]" behind it
    EXPECT_TRUE(result.file.uses_mixed_mode());
    EXPECT_EQ(result.file.get_mixed_mode_descriptors(), c.expected);
  }
}

TEST(MixedModeOrder, IsForSYAndZParametersOnly) {
  for (const char* const options : {"S", "Y", "Z"}) {
    EXPECT_EQ(read_text(with_list(2, "S1 S2", options)).brief_diagnostics(),
              Strings{"E2014 5:1 'foo'"});
  }
  // Reported at the token after the keyword, since the advance comes first.
  for (const char* const options : {"G", "H"}) {
    EXPECT_EQ(read_text(with_list(2, "S1 S2", options)).brief_diagnostics(),
              Strings{"E2025 4:19 ' '"});
    EXPECT_EQ(read_text(with_list(2, "x", options)).brief_diagnostics(), Strings{"E2025 4:19 ' '"});
    EXPECT_EQ(read_text(with_list(2, "! c\nS1 S2", options)).brief_diagnostics(),
              Strings{"E2025 4:20 ' c'"});
    EXPECT_EQ(read_text(with_list(2, "\nS1 S2", options)).brief_diagnostics(),
              Strings{"E2025 4:20 '\n'"});
  }
}

TEST(MixedModeOrder, EveryOtherWordIsNoDescriptor) {
  for (const std::string word :
       {"x1",           "s",     "s0",     "s01",   "s+1",         "s-1",
        "s1x",          "s1.0",  "s1,2",   "ss1",   "s,1",         "d",
        "d1",           "d1,",   "d,1",    "d1;3",  "d1.3",        "d0,1",
        "d1,0",         "d1,02", "d1,2,3", "d1,2x", "d1,+2",       "c1",
        "c1,",          "c0,1",  "c1,2c",  "c1:2",  "s2147483648", "s99999999999999999999",
        "d1,2147483648"}) {
    EXPECT_EQ(read_text(with_list(1, word)).brief_diagnostics(),
              Strings{"E2024 4:20 '" + word + "'"});
    EXPECT_EQ(read_text(with_list(2, "S1 " + word)).brief_diagnostics(),
              Strings{"E2024 4:23 '" + word + "'"});
  }
}

TEST(MixedModeOrder, Diagnostics) {
  const TextCase cases[] = {
      {"a number", with_list(2, "1"), {"E2024 4:20 '1'"}},
      {"#", with_list(2, "S1 # S2"), {"E2024 4:23 '#'"}},
      {"# on a line of its own", with_list(2, "S1\n# S2"), {"E2107 5:1 '#'"}},
      {"# on an indented line", with_list(2, "S1\n # S2"), {"E2024 5:2 '#'"}},
      {"nothing", with_list(2, ""), {"E2024 5:1 'foo'"}},
      {"nothing, no line end",
       "[Version] 2.0\n#\n[Number of Ports] 2\n[Mixed-Mode Order]",
       {"W2005 4:19 ''", "E2024 4:19 ''"}},
      {"nothing, the end of the file",
       "[Version] 2.0\n#\n[Number of Ports] 2\n[Mixed-Mode Order]\n",
       {"E2209 5:1 '\n'"}},
      {"glued",
       "[Version] 2.0\n#\n[Number of Ports] 1\n[Mixed-Mode Order]S1\n",
       {"E2006 4:19 's1'"}},
      {"complete, no line end",
       "[Version] 2.0\n#\n[Number of Ports] 1\n[Mixed-Mode Order] S1",
       {"W2005 4:22 ''", "E2209 4:22 ''"}},
      {"missed, no line end",
       "[Version] 2.0\n#\n[Number of Ports] 1\n[Mixed-Mode Order] D1,1",
       {"W2005 4:24 ''", "E2316 4:24 ''"}},
      {"twice, before the list is read",
       with_list(1, "S1\n[Mixed-Mode Order] x"),
       {"E2208 5:1 'mixed-mode order'"}},
      {"too few", with_list(4, "S1 S2\nS3"), {"E2315 5:1 's3'"}},
      {"too many", with_list(1, "S1 S1"), {"E2315 4:23 's1'"}},
      {"the count is tested before ports and overlaps", with_list(4, "S9 S9"), {"E2315 4:23 's9'"}},
      {"a port beyond 32 bits before the count",
       with_list(4, "S2147483648"),
       {"E2024 4:20 's2147483648'"}},
      {"an indented keyword", with_list(1, "S1\n [Foo]"), {"E2009 5:2 'foo'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

TEST(MixedModeOrder, APortAboveThePortCountIsNoDescriptor) {
  const TextCase cases[] = {
      {"single-ended", with_list(2, "S1 S3"), {"E2024 4:23 's3'"}},
      {"first of a pair", with_list(2, "D3,1 C1,2"), {"E2024 4:20 'd3,1'"}},
      {"second of a pair", with_list(2, "D1,2 C1,3"), {"E2024 4:25 'c1,3'"}},
      {"the greatest port number", with_list(1, "S2147483647"), {"E2024 4:20 's2147483647'"}},
      // Tested before the descriptor's other checks, but in the order of the list.
      {"that would overlap too", with_list(2, "S1 D1,3"), {"E2024 4:23 'd1,3'"}},
      {"behind an overlap", with_list(3, "S1 S1 S4"), {"E2317 4:23 's1'"}},
  };
  for (const TextCase& row : cases) test::expect_diagnostics(row);
}

// The message names a port; the position is that of the descriptor that showed the fault.
struct PairingCase {
  int ports;
  std::string list;
  std::string expected;
  int port;
};

TEST(MixedModeOrder, OverlapsNameTheOtherPortOfAPair) {
  const PairingCase cases[] = {
      {4, "S1 S1 D2,3 C2,3", "E2317 4:23 's1'", 1},
      {4, "D1,2 D1,3 C1,2 S4", "E2317 4:25 'd1,3'", 3},
      {4, "D1,2 D3,1 C1,2 S4", "E2317 4:25 'd3,1'", 3},
      {4, "D1,2 D3,2 C1,2 S4", "E2317 4:25 'd3,2'", 3},
      {4, "D1,2 D1,2 C1,2 S4", "E2317 4:25 'd1,2'", 2},
      {4, "C1,2 C2,3 S4 S4", "E2317 4:25 'c2,3'", 3},
      {4, "C1,2 C4,2 S4 S4", "E2317 4:25 'c4,2'", 4},
      {2, "S1 D1,2", "E2317 4:23 'd1,2'", 2},
      {2, "S1 D2,1", "E2317 4:23 'd2,1'", 2},
      {2, "S2 C1,2", "E2317 4:23 'c1,2'", 1},
      {2, "D1,2 S1", "E2317 4:25 's1'", 1},
      {2, "C1,2 S2", "E2317 4:25 's2'", 2},
  };
  for (const PairingCase& c : cases) {
    const ReadResult result = read_text(with_list(c.ports, c.list));
    EXPECT_EQ(result.brief_diagnostics(), Strings{c.expected}) << c.list;
    EXPECT_EQ(result.diagnostics[0].message,
              "overlapping mixed-mode port descriptors for port " + std::to_string(c.port));
    EXPECT_FALSE(result.file.uses_mixed_mode());
    EXPECT_TRUE(result.file.get_mixed_mode_descriptors().empty());
  }
}

TEST(MixedModeOrder, BothDescriptorsOfAPairNameItsPortsInTheSameOrder) {
  const PairingCase cases[] = {
      {4, "D1,3 C3,1 D2,4 C2,4", "E2318 4:25 'c3,1'", 1},
      {4, "C1,3 D3,1 D2,4 C2,4", "E2318 4:25 'd3,1'", 1},
      {3, "D1,2 C1,3 S3", "E2318 4:25 'c1,3'", 3},
      {3, "D1,2 C3,1 S3", "E2318 4:25 'c3,1'", 1},
      {3, "D1,2 C3,2 S3", "E2318 4:25 'c3,2'", 2},
      {3, "D1,2 C2,3 S3", "E2318 4:25 'c2,3'", 3},
      {3, "C1,2 D1,3 S3", "E2318 4:25 'd1,3'", 3},
      {3, "D2,3 C2,2 S1", "E2318 4:25 'c2,2'", 2},
  };
  for (const PairingCase& c : cases) {
    const ReadResult result = read_text(with_list(c.ports, c.list));
    EXPECT_EQ(result.brief_diagnostics(), Strings{c.expected}) << c.list;
    EXPECT_EQ(result.diagnostics[0].message,
              "common-mode and differential-mode descriptors for port " + std::to_string(c.port) +
                  " must reference the same pair of ports");
  }
}

TEST(MixedModeOrder, EveryPortNeedsBothModes) {
  // With the right count and no overlap only a pair of one port with itself leaves a gap.
  const PairingCase cases[] = {
      {1, "D1,1", "E2316 5:1 'foo'", 1},
      {2, "S1 C2,2", "E2316 5:1 'foo'", 2},
      {2, "D1,1 C1,1", "E2316 5:1 'foo'", 2},
      {3, "D1,1 D2,3 C2,3", "E2316 5:1 'foo'", 1},
  };
  for (const PairingCase& c : cases) {
    const ReadResult result = read_text(with_list(c.ports, c.list));
    EXPECT_EQ(result.brief_diagnostics(), Strings{c.expected}) << c.list;
    EXPECT_EQ(result.diagnostics[0].message,
              "mixed-mode port descriptors did not describe port " + std::to_string(c.port));
    EXPECT_FALSE(result.file.uses_mixed_mode());
  }
}

TEST(MixedModeOrder, TheCountErrorNamesBothCounts) {
  const ReadResult result = read_text(with_list(4, "S1 S2 S3"));
  ASSERT_EQ(result.diagnostics.size(), 1U);
  EXPECT_EQ(result.diagnostics[0].message,
            "the number of mixed-mode port descriptors (3) must match the number of ports (4)");
}

}  // namespace
}  // namespace touchstone2
