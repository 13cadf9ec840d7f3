#include <touchstone2/reader/token.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

TEST(Token, TypesHaveTheirValues) {
  static_assert(std::is_same_v<std::underlying_type_t<Token::Type>, std::uint32_t>,
                "the width is interface");
  struct Row {
    Token::Type type;
    std::uint32_t expected;
  };
  const Row rows[] = {
      {Token::Type::whitespace, 0}, {Token::Type::newline, 1},     {Token::Type::options_mark, 2},
      {Token::Type::keyword, 3},    {Token::Type::number, 4},      {Token::Type::string, 5},
      {Token::Type::comment, 6},    {Token::Type::end_of_file, 7},
  };
  for (const Row& row : rows) EXPECT_EQ(static_cast<std::uint32_t>(row.type), row.expected);
}

TEST(Token, StartsWithoutPositionAndText) {
  const Token token;
  EXPECT_EQ(token.type, Token::Type::whitespace);
  EXPECT_EQ(token.line, 0U);
  EXPECT_EQ(token.column, 0U);
  EXPECT_EQ(token.text, "");
}

TEST(Token, IsAnAggregateOfFourFieldsInOrder) {
  static_assert(std::is_aggregate_v<Token>, "");
  static_assert(std::is_same_v<decltype(Token::line), std::size_t>, "");
  static_assert(std::is_same_v<decltype(Token::column), std::size_t>, "");
  static_assert(std::is_same_v<decltype(Token::text), std::string>, "");
  const Token token{Token::Type::number, 12, 5, "1.5"};
  EXPECT_EQ(token.type, Token::Type::number);
  EXPECT_EQ(token.line, 12U);
  EXPECT_EQ(token.column, 5U);
  EXPECT_EQ(token.text, "1.5");
}

}  // namespace
}  // namespace touchstone2
