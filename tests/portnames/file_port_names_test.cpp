// Port names and pairing information of a File, over version 1 text: lines before "#" are its
// leading comments, lines between the data its other ones.
#include <touchstone2/model/file.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {
namespace {

using Strings = std::vector<std::string>;

std::string comment_lines(const Strings& comments) {
  std::string text;
  for (const std::string& line : comments) text += "!" + line + "\n";
  return text;
}

// A valid file of `ports` ports (1, 2 or 4) with these comments.
File file_with(std::size_t ports, const Strings& leading, const Strings& other = {}) {
  std::string row;
  for (std::size_t i = 0; i < 2 * ports * ports; ++i) row += " 0";
  const std::string text = comment_lines(leading) + "# GHz S RI R 50\n1" + row + "\n" +
                           comment_lines(other) + "2" + row + "\n";
  auto result = test::read_text(text);
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.file.get_number_of_ports(), ports);
  EXPECT_EQ(result.file.get_leading_comments(), leading);
  EXPECT_EQ(result.file.get_other_comments(), other);
  return result.file;
}

TEST(FilePortNames, AreFoundInBothKindsOfComments) {
  const struct {
    const char* what;
    Strings leading;
    Strings other;
    Strings names;
  } cases[] = {
      {"no comments", {}, {}, {"", ""}},
      {"leading ones only", {"Port[1] = A", "Port 2 = B"}, {}, {"A", "B"}},
      {"other ones only", {}, {"Port[1] = A", "Port 2 = B"}, {"A", "B"}},
      {"one port each", {"Port[1] = A"}, {"Port[2] = B"}, {"A", "B"}},
      {"the same name twice", {"Port[1] = A"}, {"port1: A", "Port[2] = B"}, {"A", "B"}},
      {"two names for port 1", {"Port[1] = A"}, {"Port[1] = B"}, {"", ""}},
      {"a conflict empties all names", {"Port[1] = A", "Port[2] = C"}, {"Port[1] = B"}, {"", ""}},
      {"a conflict at the last port", {"Port[1] = A", "Port[2] = C"}, {"Port[2] = B"}, {"", ""}},
      {"an empty name is no conflict", {"Port[1] ="}, {"Port[1] = B"}, {"B", ""}},
      {"a later line wins before the lists meet",
       {"Port[2] = x", "Port[2] = A"},
       {"Port[2] = A"},
       {"", "A"}},
      {"a port that does not exist", {"Port 5 = x"}, {"Port[3] = y"}, {"", ""}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(file_with(2, c.leading, c.other).get_port_names(), c.names) << c.what;
  }
}

// The port count of a file whose header alone was read is a claim.
TEST(FilePortNames, OfMorePortsThanAnyFileHasAreRefused) {
  const struct {
    std::size_t ports;
    bool refused;
  } cases[] = {{std::size_t{1} << 20, false}, {(std::size_t{1} << 20) + 1, true}};
  for (const auto& c : cases) {
    const auto claimed =
        test::read_text("[Version] 2.0\n# GHz\n[Number of Ports] " + std::to_string(c.ports) + "\n",
                        test::Extent::header);
    ASSERT_TRUE(claimed.ok) << c.ports;
    if (c.refused) {
      EXPECT_THROW(claimed.file.get_port_names(), std::length_error);
    } else {
      EXPECT_EQ(claimed.file.get_port_names().size(), c.ports);
    }
  }
}

TEST(FilePortNames, AreLookedUpOnce) {
  File file = file_with(2, {"Port[1] = A"});
  const Strings* const names = &file.get_port_names();
  file.set_pairing_info("Port[2] = MIXED");  // a new comment line that names a port
  EXPECT_EQ(&file.get_port_names(), names);
  EXPECT_EQ(file.get_port_names(), (Strings{"A", ""}));
}

TEST(FilePortNames, StayWhenSetEvenIfTheCommentsSayOtherwise) {
  File file = file_with(2, {"Port[1] = A"});
  file.set_port_names({"x", "y"});
  EXPECT_EQ(file.get_port_names(), (Strings{"x", "y"}));
  const File copy = file;
  EXPECT_EQ(copy.get_port_names(), (Strings{"x", "y"}));
}

TEST(FilePortNames, EmptyListOfNamesMeansNotLookedUp) {
  File file = file_with(2, {"Port[1] = A"});
  file.get_port_names();
  file.set_port_names({});
  EXPECT_EQ(file.get_port_names(), (Strings{"A", ""}));
}

TEST(FilePortNames, OfAFileThatWasNotReadAreNone) {
  const File file("none.s2p");
  EXPECT_TRUE(file.get_port_names().empty());
}

// The flag shows in comparisons only.
TEST(SetPortName, MarksTheNamesAsModifiedOnlyWhenOneChanges) {
  const File original = file_with(2, {"Port[1] = A"});
  original.get_port_names();

  File file = original;
  file.set_port_name(0, "A");
  file.set_port_name(1, "");
  EXPECT_TRUE(file == original);

  file.set_port_name(1, "B");
  EXPECT_EQ(file.get_port_names(), (Strings{"A", "B"}));
  file.set_port_name(1, "");
  EXPECT_EQ(file.get_port_names(), original.get_port_names());
  EXPECT_FALSE(file == original);
}

TEST(SetPortName, LooksTheNamesUpFirst) {
  File file = file_with(2, {"Port[1] = A"});
  file.set_port_name(1, "B");
  EXPECT_EQ(file.get_port_names(), (Strings{"A", "B"}));
}

TEST(SetPortName, RefusesAnIndexOutsideTheList) {
  File file = file_with(2, {"Port[1] = A"});
  for (const std::size_t index : {std::size_t(2), ~std::size_t(0)}) {
    try {
      file.set_port_name(index, "x");
      FAIL() << "index " << index << " was taken";
    } catch (const std::out_of_range& error) {
      EXPECT_STREQ(error.what(), "index");
    }
  }
  const File untouched = file_with(2, {"Port[1] = A"});
  untouched.get_port_names();
  EXPECT_TRUE(file == untouched);

  File none("none.s2p");
  EXPECT_THROW(none.set_port_name(0, "x"), std::out_of_range);

  file.set_port_names({"a", "b", "c"});  // the list counts, not the number of ports
  file.set_port_name(2, "d");
  EXPECT_EQ(file.get_port_names(), (Strings{"a", "b", "d"}));
}

TEST(SetPortNames, MarksTheNamesAsModifiedOnlyWhenTheyDiffer) {
  const File original = file_with(2, {"Port[1] = A"});
  original.get_port_names();
  File file = original;
  file.set_port_names({"A", ""});
  EXPECT_TRUE(file == original);
  file.set_port_names({"A", "", ""});
  file.set_port_names({"A", ""});
  EXPECT_FALSE(file == original);

  File not_looked_up = file_with(2, {"Port[1] = A"});
  not_looked_up.set_port_names({});
  EXPECT_TRUE(not_looked_up == file_with(2, {"Port[1] = A"}));
}

TEST(UpdateLeadingComments, RewritesThePortNameLines) {
  const struct {
    const char* what;
    Strings before;
    Strings names;
    Strings after;
  } cases[] = {
      {"in place",
       {"Created by tool", "Port[1] = a", "Port[2] = b", "Date x"},
       {"in", "out"},
       {"Created by tool", " Port[1] = in", " Port[2] = out", "Date x"}},
      {"none before", {"x"}, {"in", "out"}, {"x", " Port[1] = in", " Port[2] = out", ""}},
      {"no comments at all", {}, {"in", "out"}, {" Port[1] = in", " Port[2] = out", ""}},
      {"only such lines", {"Port[1] = a"}, {"in", "out"}, {" Port[1] = in", " Port[2] = out", ""}},
      {"at the end",
       {"x", "Port[1] = a", "Port[2] = b"},
       {"in", "out"},
       {"x", " Port[1] = in", " Port[2] = out", ""}},
      {"in the first place",
       {"Port[1] = a", "x", "Port[2] = b"},
       {"in", "out"},
       {" Port[1] = in", " Port[2] = out", "x"}},
      {"scattered",
       {"x", "Port 1 = a", "y", "port2: b", "z"},
       {"in", "out"},
       {"x", " Port[1] = in", " Port[2] = out", "y", "z"}},
      {"every convention",
       {"x", "Port 1 =", "Port[2] =", "PORT 3: 1:", "Port4_::", "PORT5: a", "Port[6] b", "y"},
       {"in", "out"},
       {"x", " Port[1] = in", " Port[2] = out", "y"}},
      {"a port that does not exist",
       {"Port 5 = x", "y"},
       {"in", "out"},
       {" Port[1] = in", " Port[2] = out", "y"}},
      {"port 0 is no port",
       {"Port 0 = x", "y"},
       {"in", "out"},
       {"Port 0 = x", "y", " Port[1] = in", " Port[2] = out", ""}},
      {"almost such lines",
       {"Port[1]=a", "port 1 = a", "Port"},
       {"in", "out"},
       {"Port[1]=a", "port 1 = a", "Port", " Port[1] = in", " Port[2] = out", ""}},
      {"fewer names than ports", {"Port[1] = a", "x"}, {"in"}, {" Port[1] = in", "x"}},
      {"more names than ports",
       {"Port[1] = a", "x"},
       {"a", "b", "c"},
       {" Port[1] = a", " Port[2] = b", " Port[3] = c", "x"}},
      {"names as they stand",
       {"Port[1] = a", "x"},
       {"a  b\t!", ""},
       {" Port[1] = a  b\t!", " Port[2] = ", "x"}},
  };
  for (const auto& c : cases) {
    File file = file_with(2, c.before);
    file.set_port_names(c.names);
    file.update_leading_comments();
    EXPECT_EQ(file.get_leading_comments(), c.after) << c.what;
    EXPECT_EQ(file.get_port_names(), c.names) << c.what;
  }
}

TEST(UpdateLeadingComments, LooksTheNamesUpFirst) {
  File file = file_with(2, {"x", "Port 2 = out", "y"}, {"Port[1] = in"});
  file.update_leading_comments();
  EXPECT_EQ(file.get_leading_comments(), (Strings{"x", " Port[1] = in", " Port[2] = out", "y"}));
}

TEST(UpdateLeadingComments, WritesEmptyNamesToo) {
  File file = file_with(4, {"x"});
  file.update_leading_comments();
  EXPECT_EQ(file.get_leading_comments(),
            (Strings{"x", " Port[1] = ", " Port[2] = ", " Port[3] = ", " Port[4] = ", ""}));
}

TEST(UpdateLeadingComments, ChangesNothingTheSecondTime) {
  for (const Strings& before :
       {Strings{}, Strings{"x"}, Strings{"Port[2] = b"}, Strings{"Port[1] = a", "x"}}) {
    File file = file_with(2, before);
    file.update_leading_comments();
    const Strings once = file.get_leading_comments();
    file.update_leading_comments();
    EXPECT_EQ(file.get_leading_comments(), once);
  }
}

TEST(UpdateLeadingComments, LeavesAnEmptyLineWithoutNames) {
  File file("none.s2p");
  file.update_leading_comments();
  EXPECT_EQ(file.get_leading_comments(), Strings{""});
}

TEST(UpdateLeadingComments, LeavesTheOtherComments) {
  File file = file_with(2, {}, {"Port[1] = in", "x"});
  file.update_leading_comments();
  EXPECT_EQ(file.get_other_comments(), (Strings{"Port[1] = in", "x"}));
}

TEST(UpdateLeadingComments, ClearsTheModifiedMark) {
  const Strings written = {" Port[1] = in", " Port[2] = ", ""};
  File file = file_with(2, written);
  const File original = file_with(2, written);
  original.get_port_names();
  file.set_port_name(1, "x");
  file.set_port_name(1, "");
  EXPECT_FALSE(file == original);
  file.update_leading_comments();
  EXPECT_TRUE(file == original);
}

TEST(UpdateLeadingComments, BlanksInANameComeBackAsUnderscores) {
  File file = file_with(2, {});
  file.set_port_names({"RF  out\tput", "b"});
  file.update_leading_comments();
  EXPECT_EQ(file_with(2, file.get_leading_comments()).get_port_names(),
            (Strings{"RF_out_put", "b"}));
}

TEST(PairingInfo, IsTheLastLineWithTheMark) {
  const struct {
    Strings comments;
    std::string info;
  } cases[] = {
      {{}, ""},
      {{"x", "Mixed", "mixed"}, ""},
      {{"MIXED"}, "MIXED"},
      {{"x", " aMIXEDb 1 2", "y"}, " aMIXEDb 1 2"},
      {{"MIXED 1", "x", "MIXED 2"}, "MIXED 2"},
  };
  for (const auto& c : cases) {
    File file = file_with(2, c.comments);
    EXPECT_EQ(file.get_pairing_info(), c.info);
    EXPECT_EQ(file.get_pairing_info(), c.info);
    EXPECT_EQ(file.get_leading_comments(), c.comments);
  }
}

TEST(PairingInfo, IsNotFoundInOtherComments) {
  File file = file_with(2, {}, {"MIXED"});
  EXPECT_EQ(file.get_pairing_info(), "");
}

TEST(PairingInfo, FollowsTheComments) {
  File file = file_with(2, {"x", "MIXED old"});
  EXPECT_EQ(file.get_pairing_info(), "MIXED old");
  file.set_pairing_info("");
  EXPECT_EQ(file.get_pairing_info(), "");
}

TEST(PairingInfo, SettingReplacesTheLastLineButNotTheFirst) {
  const struct {
    const char* what;
    Strings before;
    std::string text;
    Strings after;
  } cases[] = {
      {"none before", {"x"}, "MIXED 1", {"x", "MIXED 1"}},
      {"no comments", {}, "MIXED 1", {"MIXED 1"}},
      {"replaced", {"x", "MIXED 1", "y"}, "MIXED 2", {"x", "y", "MIXED 2"}},
      {"the last of two", {"x", "MIXED 1", "MIXED 2"}, "MIXED 3", {"x", "MIXED 1", "MIXED 3"}},
      {"the very first line stays", {"MIXED 1", "x"}, "MIXED 2", {"MIXED 1", "x", "MIXED 2"}},
      {"the first of two stays", {"MIXED 1", "MIXED 2"}, "MIXED 3", {"MIXED 1", "MIXED 3"}},
      {"removed", {"x", "MIXED 1", "y"}, "", {"x", "y"}},
      {"nothing to remove", {"x"}, "", {"x"}},
      {"the very first line is not removed", {"MIXED 1"}, "", {"MIXED 1"}},
      {"a text without the mark", {"x", "MIXED 1"}, "pairs", {"x", "pairs"}},
  };
  for (const auto& c : cases) {
    File file = file_with(2, c.before);
    file.set_pairing_info(c.text);
    EXPECT_EQ(file.get_leading_comments(), c.after) << c.what;
  }
}

TEST(PairingInfo, ItsOwnTextCanBeSetAgain) {
  File file = file_with(2, {"x", "MIXED 1", "y"});
  file.set_pairing_info(file.get_pairing_info());
  EXPECT_EQ(file.get_leading_comments(), (Strings{"x", "y", "MIXED 1"}));
}

TEST(PairingInfo, DoesNotMarkTheNamesAsModified) {
  const File original = file_with(2, {"x"});
  File file = original;
  file.set_pairing_info("MIXED");
  EXPECT_TRUE(file.compare(original, 0));
}

}  // namespace
}  // namespace touchstone2
