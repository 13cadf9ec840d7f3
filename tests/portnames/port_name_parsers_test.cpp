// The comment lines are given as text and cut into words as the library does it; lists of
// words that no line gives are tested apart.
#include <touchstone2/portnames/port_name_parsers.h>
#include <touchstone2/portnames/string_tokenizer.h>

#include <cstddef>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

struct Found {
  bool valid;
  std::size_t number;
  std::string name;
};

bool operator==(const Found& a, const Found& b) {
  return a.valid == b.valid && a.number == b.number && a.name == b.name;
}

std::ostream& operator<<(std::ostream& os, const Found& found) {
  return os << (found.valid ? "valid " : "not valid ") << found.number << " \"" << found.name
            << "\"";
}

template <typename Parser>
Found parse(const std::vector<std::string>& words, std::size_t ports) {
  const Parser parser(words, ports);
  return {parser.isValidPortName(), parser.portNumber(), parser.portName()};
}

struct Case {
  std::string line;
  Found found;
};

template <typename Parser>
void expect_all(const std::vector<Case>& cases, std::size_t ports = 9) {
  for (const Case& c : cases) {
    EXPECT_EQ(parse<Parser>(tokenize(c.line), ports), c.found) << "line: " << c.line;
  }
}

TEST(PortNameParser, StartsWithoutAName) {
  const std::vector<std::string> words = {"Port", "1", "=", "x"};
  EXPECT_EQ(parse<PortNameParser>(words, 4), (Found{false, 0, ""}));
}

TEST(PortNameParser, IsNotPolymorphicAndTheConventionsAddNoData) {
  EXPECT_FALSE(std::is_polymorphic<PortNameParser>::value);
  EXPECT_EQ(sizeof(PortNameParser1), sizeof(PortNameParser));
  EXPECT_EQ(sizeof(PortNameParser6), sizeof(PortNameParser));
}

TEST(PortNameParser, CopiesCarryTheResult) {
  const std::vector<std::string> words = tokenize("Port 2 = RF Out");
  const PortNameParser1 parser(words, 4);
  const PortNameParser1 copy(parser);
  EXPECT_TRUE(copy.isValidPortName());
  EXPECT_EQ(copy.portNumber(), 2u);
  EXPECT_EQ(copy.portName(), "RF_Out");
}

TEST(PortNameParser1, FollowsItsConvention) {
  expect_all<PortNameParser1>({
      {"Port 2 = RF Out", {true, 2, "RF_Out"}},
      {"Port 3 = Gate Gate", {true, 3, "Gate"}},
      {"Port 3 = Gate Gate more", {true, 3, "Gate"}},
      {"Port 3 = a b c d", {true, 3, "a_b"}},
      {"Port 1 =", {true, 1, ""}},
      {"Port 1 = x", {true, 1, "x"}},
      {"\tPort\t1\t=\tx", {true, 1, "x"}},
      {"Port 007 = x", {true, 7, "x"}},
      {"Port 1 = =", {true, 1, "="}},
      {"Port 0 = x", {false, 0, "x"}},
      {"Port 10 = x", {false, 10, "x"}},
      {"Port 18446744073709551616 = x", {false, 0, "x"}},
      {"port 1 = x", {false, 0, ""}},
      {"PORT 1 = x", {false, 0, ""}},
      {"Ports 1 = x", {false, 0, ""}},
      {"Port 12a = x", {false, 0, ""}},
      {"Port +1 = x", {false, 0, ""}},
      {"Port -1 = x", {false, 0, ""}},
      {"Port 1.0 = x", {false, 0, ""}},
      {"Port 0x1 = x", {false, 0, ""}},
      {"Port 1 : x", {false, 1, ""}},  // the number stays behind
      {"Port 1 == x", {false, 1, ""}},
      {"Port 1 =x", {false, 1, ""}},
      {"Port 1", {false, 0, ""}},
      {"Port 1= x", {false, 0, ""}},
      {"", {false, 0, ""}},
  });
}

TEST(PortNameParser1, TakesTheGreatestNumber) {
  const std::string greatest = "18446744073709551615";
  if (sizeof(std::size_t) == 8) {
    EXPECT_EQ(parse<PortNameParser1>({"Port", greatest, "="}, 0),
              (Found{true, ~std::size_t(0), ""}));
  }
}

TEST(PortNameParser2, FollowsItsConvention) {
  expect_all<PortNameParser2>({
      {"Port[1] = Antenna feed 50 ohm", {true, 1, "Antenna_feed_50_ohm"}},
      {" Port[9] = x", {true, 9, "x"}},
      {"Port[1] =", {true, 1, ""}},
      {"Port[1] = = x", {true, 1, "=_x"}},
      {"Port[01] = x", {true, 1, "x"}},
      {"Port[10] = x", {false, 10, "x"}},
      {"Port[0] = x", {false, 0, ""}},
      {"Port[00] = x", {false, 0, ""}},
      {"Port[99999999999999999999] = x", {false, 0, ""}},
      {"Port[] = x", {false, 0, ""}},
      {"Port[ = x", {false, 0, ""}},
      {"Port] = x", {false, 0, ""}},
      {"Port[1 = x", {false, 0, ""}},
      {"Port[1]] = x", {false, 0, ""}},
      {"Port[-1] = x", {false, 0, ""}},
      {"Port[a] = x", {false, 0, ""}},
      {"port[1] = x", {false, 0, ""}},
      {"PORT[1] = x", {false, 0, ""}},
      {"xPort[1] = x", {false, 0, ""}},
      {"Port[1]=x", {false, 0, ""}},
      {"Port[1] x", {false, 1, ""}},  // the number stays behind
      {"Port[1] =x", {false, 1, ""}},
      {"Port[1]", {false, 0, ""}},
      {"", {false, 0, ""}},
  });
}

TEST(PortNameParser3, FollowsItsConvention) {
  expect_all<PortNameParser3>({
      {"PORT 4: 1: Drain", {true, 4, "Drain"}},
      {"PORT 4: 1: Drain Source", {true, 4, "Drain"}},
      {"PORT 4: 1:", {true, 4, ""}},
      {"PORT 4: 0: x", {true, 4, "x"}},  // the value of the third word does not count
      {"PORT 4: 99999999999999999999: x", {true, 4, "x"}},
      {"PORT 10: 1: x", {false, 10, "x"}},
      {"PORT 0: 1: x", {false, 0, ""}},
      {"PORT 99999999999999999999: 1: x", {false, 0, ""}},
      {"Port 4: 1: x", {false, 0, ""}},
      {"port 4: 1: x", {false, 0, ""}},
      {"PORT 4 1: x", {false, 0, ""}},
      {"PORT : 1: x", {false, 0, ""}},
      {"PORT a: 1: x", {false, 0, ""}},
      {"PORT 4:: 1: x", {false, 0, ""}},
      {"PORT 4: 1 x", {false, 4, ""}},  // the number stays behind
      {"PORT 4: : x", {false, 4, ""}},
      {"PORT 4: b: x", {false, 4, ""}},
      {"PORT 4: 1:: x", {false, 4, ""}},
      {"PORT 4:", {false, 0, ""}},
      {"", {false, 0, ""}},
  });
}

TEST(PortNameParser4, FollowsItsConvention) {
  expect_all<PortNameParser4>({
      {"Port2_Out::Load", {true, 2, "Port2_Out_Load"}},
      {"Port9_X::", {true, 9, "Port9_X"}},
      {"Port9_::", {true, 9, "Port9_"}},
      {"Port9_::x", {true, 9, "Port9__x"}},
      {"Port1_a_b::c_d", {true, 1, "Port1_a_b_c_d"}},
      {"Port1_a::b::c", {true, 1, "Port1_a_b::c"}},
      {"Port1_a:::b", {true, 1, "Port1_a_:b"}},
      {"Port1_a:b::c", {true, 1, "Port1_a:b_c"}},
      {"Port10_a::b", {false, 10, "Port10_a_b"}},
      {"Port0_a::b", {false, 0, ""}},
      {"Port99999999999999999999_a::b", {false, 0, ""}},
      {"Port_a::b", {false, 0, ""}},
      {"Port1a_a::b", {false, 0, ""}},
      {"Port1::b", {false, 0, ""}},
      {"Port1::_b", {false, 0, ""}},
      {"port1_a::b", {false, 0, ""}},
      {"PORT1_a::b", {false, 0, ""}},
      {"xPort1_a::b", {false, 0, ""}},
      {"_Port1_a::b", {false, 0, ""}},
      {"Port1_a:b", {false, 0, ""}},
      {"::", {false, 0, ""}},
      {":", {false, 0, ""}},
      {"Port1_a::b c", {false, 0, ""}},
      {"", {false, 0, ""}},
  });
}

TEST(PortNameParser5, FollowsItsConvention) {
  expect_all<PortNameParser5>({
      {"port7: LO input", {true, 7, "LO_input"}},
      {"PORT1: x", {true, 1, "x"}},
      {"Port1: x", {true, 1, "x"}},
      {"pOrT1: x y z", {true, 1, "x_y_z"}},
      {"Port1: =", {true, 1, "="}},
      {"Port10: x", {false, 10, "x"}},
      {"Port0: x", {false, 0, ""}},
      {"Port99999999999999999999: x", {false, 0, ""}},
      {"Port: x", {false, 0, ""}},
      {"Port1 x", {false, 0, ""}},
      {"Port1:: x", {false, 0, ""}},
      {"Port1a: x", {false, 0, ""}},
      {"Port 1: x", {false, 0, ""}},
      {"xPort1: x", {false, 0, ""}},
      {"Port1:", {false, 0, ""}},
      {": x", {false, 0, ""}},
      {"", {false, 0, ""}},
  });
}

TEST(PortNameParser6, FollowsItsConvention) {
  expect_all<PortNameParser6>({
      {"Port[5] Bias Tee", {true, 5, "Bias_Tee"}},
      {"Port[5] Bias", {true, 5, "Bias"}},
      {"Port[5] a =", {true, 5, "a_="}},
      {"Port[10] x", {false, 10, "x"}},
      {"Port[5] = x", {false, 0, ""}},  // the second word is looked at first
      {"Port[5] x= y", {false, 0, ""}},
      {"Port[5] a=b", {false, 0, ""}},
      {"Port[0] x", {false, 0, ""}},
      {"Port[99999999999999999999] x", {false, 0, ""}},
      {"Port[] x", {false, 0, ""}},
      {"port[5] x", {false, 0, ""}},
      {"Port5 x", {false, 0, ""}},
      {"Port[5]", {false, 0, ""}},
      {"", {false, 0, ""}},
  });
}

TEST(PortNameParser, PortCountIsTheLimitAndZeroIsNone) {
  const std::vector<std::string> words = tokenize("Port[5] = x");
  EXPECT_EQ(parse<PortNameParser2>(words, 4), (Found{false, 5, "x"}));
  EXPECT_EQ(parse<PortNameParser2>(words, 5), (Found{true, 5, "x"}));
  EXPECT_EQ(parse<PortNameParser2>(words, 0), (Found{true, 5, "x"}));
}

// No comment line gives an empty word, but a caller's own list may hold one.
TEST(PortNameParser, EmptyWordsDoNoHarm) {
  const std::vector<std::string> none;
  const std::vector<std::string> one = {""};
  const std::vector<std::string> five = {"", "", "", "", ""};
  for (const auto* words : {&none, &one, &five}) {
    EXPECT_EQ(parse<PortNameParser1>(*words, 4), (Found{false, 0, ""}));
    EXPECT_EQ(parse<PortNameParser2>(*words, 4), (Found{false, 0, ""}));
    EXPECT_EQ(parse<PortNameParser3>(*words, 4), (Found{false, 0, ""}));
    EXPECT_EQ(parse<PortNameParser4>(*words, 4), (Found{false, 0, ""}));
    EXPECT_EQ(parse<PortNameParser5>(*words, 4), (Found{false, 0, ""}));
    EXPECT_EQ(parse<PortNameParser6>(*words, 4), (Found{false, 0, ""}));
  }
  EXPECT_EQ(parse<PortNameParser1>({"Port", "", "=", "x"}, 4), (Found{false, 0, ""}));
  EXPECT_EQ(parse<PortNameParser1>({"Port", "1", "=", "x", ""}, 4), (Found{true, 1, "x"}));
  EXPECT_EQ(parse<PortNameParser1>({"Port", "1", "=", "", "x"}, 4), (Found{true, 1, "_x"}));
  EXPECT_EQ(parse<PortNameParser2>({"Port[1]", "=", "", "x"}, 4), (Found{true, 1, "_x"}));
}

TEST(PortNameParser, NoLineFitsBothConventionsWithBrackets) {
  for (const char* line : {"Port[1] = x", "Port[1] =", "Port[1] x", "Port[1] = = ="}) {
    const std::vector<std::string> words = tokenize(line);
    EXPECT_NE(PortNameParser2(words, 4).isValidPortName(),
              PortNameParser6(words, 4).isValidPortName())
        << line;
  }
  const std::vector<std::string> glued = tokenize("Port[1]=x");
  EXPECT_FALSE(PortNameParser2(glued, 4).isValidPortName());
  EXPECT_FALSE(PortNameParser6(glued, 4).isValidPortName());
}

}  // namespace
}  // namespace touchstone2
