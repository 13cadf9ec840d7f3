#include <touchstone2/portnames/comment_processor.h>

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

using Strings = std::vector<std::string>;

Strings names_in(const Strings& comments, std::size_t ports) {
  return CommentProcessor(comments, ports).takePortNames();
}

TEST(CommentProcessor, FindsNamesByEveryConvention) {
  EXPECT_EQ(names_in({"Port 1 = a", " Port[2] = b", "PORT 3: 1: c", "Port4_d::e", "pOrt5: f",
                      "Port[6] g h"},
                     7),
            (Strings{"a", "b", "c", "Port4_d_e", "f", "g_h", ""}));
}

TEST(CommentProcessor, AppliesItsRules) {
  const struct {
    const char* what;
    Strings comments;
    Strings names;
  } cases[] = {
      {"no lines", {}, {"", ""}},
      {"nothing that names a port", {"Created by tool", "", "Port", "Port[1]=x"}, {"", ""}},
      {"the later line wins", {"Port[2] = a", "Port[2] = b"}, {"", "b"}},
      {"the later line wins across conventions", {"Port 2 = a", "port2: b"}, {"", "b"}},
      {"an empty name replaces a name", {"Port[1] = a", "Port 1 ="}, {"", ""}},
      {"one name for two ports", {"Port[1] = a", "Port[2] = a"}, {"a", "a"}},
      {"ports beyond the last", {"Port[3] = a", "Port 4 = b", "Port[1] = c"}, {"c", ""}},
      {"the number 0", {"Port 0 = a", "Port[0] = b"}, {"", ""}},
      {"a number beyond all bounds", {"Port 18446744073709551617 = a"}, {"", ""}},
      {"letter case", {"port 1 = a", "port[1] = b", "port1_a::b", "port 1: 1: c"}, {"", ""}},
      {"the carriage return stays", {"Port[1] = a\r"}, {"a\r", ""}},
  };
  for (const auto& c : cases) EXPECT_EQ(names_in(c.comments, 2), c.names) << c.what;
}

TEST(CommentProcessor, StoresNothingWithoutPorts) {
  EXPECT_EQ(names_in({"Port[1] = a", "Port 2 = b", "Port3_c::d"}, 0), Strings{});
}

TEST(CommentProcessor, NamesAreTakenOnce) {
  const Strings comments = {"Port[1] = a"};
  CommentProcessor processor(comments, 1);
  CommentProcessor copy(processor);
  EXPECT_EQ(processor.takePortNames(), Strings{"a"});
  EXPECT_EQ(processor.takePortNames(), Strings{});
  EXPECT_EQ(copy.takePortNames(), Strings{"a"});
}

TEST(StringChecks, UniqueMeansNoTwoEqual) {
  EXPECT_TRUE(stringsAreUnique({}));
  EXPECT_TRUE(stringsAreUnique({""}));
  EXPECT_TRUE(stringsAreUnique({"a", "A", "", " "}));
  EXPECT_FALSE(stringsAreUnique({"a", "b", "a"}));
  EXPECT_FALSE(stringsAreUnique({"", ""}));
}

TEST(StringChecks, NotEmptyMeansOneCharacterAtLeast) {
  EXPECT_TRUE(stringsAreAllNotEmpty({}));
  EXPECT_TRUE(stringsAreAllNotEmpty({"a", " ", std::string(1, '\0')}));
  EXPECT_FALSE(stringsAreAllNotEmpty({"a", ""}));
  EXPECT_FALSE(stringsAreAllNotEmpty({""}));
}

}  // namespace
}  // namespace touchstone2
