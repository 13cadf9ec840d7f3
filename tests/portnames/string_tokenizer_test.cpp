#include <touchstone2/portnames/string_tokenizer.h>

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

using Words = std::vector<std::string>;

TEST(StringTokenizer, SplitsAtBlanksAndTabsOnly) {
  using namespace std::string_literals;
  const struct {
    std::string text;
    Words words;
  } cases[] = {
      {"", {}},
      {" ", {}},
      {"\t \t", {}},
      {"a", {"a"}},
      {"  a\tb  ", {"a", "b"}},
      {"a b", {"a", "b"}},
      {"a \t  \tb", {"a", "b"}},
      {"Port[1]=Input", {"Port[1]=Input"}},
      {"Port 1 = Input", {"Port", "1", "=", "Input"}},
      {"a\r", {"a\r"}},
      {"a \r", {"a", "\r"}},
      {"a\nb", {"a\nb"}},
      {"a\vb\fc", {"a\vb\fc"}},
      {"a\xC2\xA0z", {"a\xC2\xA0z"}},
      {"\xFF \x80", {"\xFF", "\x80"}},
      {"a b\0c d"s, {"a", "b"}},
      {"a \0b"s, {"a"}},
      {"\0a"s, {}},
      {std::string(1000, 'x') + " y", {std::string(1000, 'x'), "y"}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(tokenize(c.text), c.words) << testing::PrintToString(c.text);
    EXPECT_EQ(StringTokenizer(c.text).takeTokens(), c.words) << testing::PrintToString(c.text);
  }
}

TEST(StringTokenizer, TokensAreTakenOnce) {
  const std::string text = "a b";
  StringTokenizer tokenizer(text);
  EXPECT_EQ(tokenizer.takeTokens(), (Words{"a", "b"}));
  EXPECT_EQ(tokenizer.takeTokens(), Words{});
}

TEST(StringTokenizer, CopiesAndMovesCarryTheTokens) {
  const std::string text = "a b";
  const std::string other = "c";
  StringTokenizer tokenizer(text);
  StringTokenizer copy(tokenizer);
  EXPECT_EQ(copy.takeTokens(), (Words{"a", "b"}));

  StringTokenizer assigned(other);
  assigned = tokenizer;
  EXPECT_EQ(assigned.takeTokens(), (Words{"a", "b"}));

  StringTokenizer& same = tokenizer;
  tokenizer = same;
  StringTokenizer moved(std::move(tokenizer));
  StringTokenizer move_assigned(other);
  move_assigned = std::move(moved);
  EXPECT_EQ(move_assigned.takeTokens(), (Words{"a", "b"}));
}

}  // namespace
}  // namespace touchstone2
