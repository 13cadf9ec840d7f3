// Reading bytes in memory: the same as reading a file with these bytes, whatever the File's name.
#include <touchstone2/touchstone2.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"
#include "support/temp_file.h"

namespace touchstone2 {
namespace {

using Strings = std::vector<std::string>;

const std::string kTwoPortFile =
    "! Port[1] = in\n[Version] 2.0\n# MHz Y MA R 75\n[Number of Ports] 2\n"
    "[Two-Port Data Order] 21_12\n[Number of Frequencies] 2\n[Number of Noise Frequencies] 1\n"
    "[Reference] 50 75\n[Network Data]\n1 1 0 2 0 3 0 4 0\n2 1 0 2 0\n 3 0 4 0\n"
    "[Noise Data]\n1 -1 .5 0 .1\n[End]\n! the end";

// Whole texts, warnings, errors at every stage, odd ends.
Strings sample_texts() {
  Strings texts = {
      "#\n1 2 3\n",
      "  # RI ! \xB5\r\n! a\r1 2 3\r\n# again\n2 1e999 -1e-999",
      "#\n10 1 0 1 0 1 0 1 0\n1 1 .5 0 .1\n",
      "# GHz R",
      "[",
      "[Version",
      "!",
      "#",
      "1e",
      "1e+",
      "-",
      " ",
      "\n",
      "\r",
      "\0x",
      std::string("# \0", 3),
      kTwoPortFile,
  };
  // Every beginning of a file is a text of its own, cut within each of its tokens once.
  for (std::size_t length = 1; length < kTwoPortFile.size(); ++length) {
    texts.push_back(kTwoPortFile.substr(0, length));
  }
  texts.erase(std::remove(texts.begin(), texts.end(), std::string()), texts.end());
  return texts;
}

// Reads a copy that ends where its heap block ends, so that an over-read does not go unseen.
test::ReadResult read_exact_block(std::string_view text, const std::string& name) {
  const auto block = std::make_unique<char[]>(text.size());
  std::copy(text.begin(), text.end(), block.get());
  return test::read_text({block.get(), text.size()}, test::Extent::whole, name);
}

TEST(MemoryInput, GivesWhatTheFileGives) {
  const test::TempFolder folder;
  for (const std::string& text : sample_texts()) {
    SCOPED_TRACE(text);
    const std::string name = folder.write("sample.s2p", text);

    test::ReadResult from_file{File(name), false, {}, nullptr};
    test::RecordingHandler handler;
    from_file.ok = Parser(from_file.file, handler).read_file();
    from_file.diagnostics = handler.diagnostics;
    from_file.noise.reset(from_file.file.get_noise_params());

    const test::ReadResult from_memory = read_exact_block(text, name);
    EXPECT_EQ(from_memory.ok, from_file.ok);
    EXPECT_EQ(from_memory.brief_diagnostics(), from_file.brief_diagnostics());
    EXPECT_TRUE(from_memory.file == from_file.file);
  }
}

TEST(MemoryInput, NoBytesAreAnEmptyFileWhateverTheName) {
  for (const std::string name : {"", "/no/such/file.s1p", "/", "t"}) {
    for (const std::string_view bytes : {std::string_view(), std::string_view("x", 0)}) {
      const test::ReadResult whole = test::read_text(bytes, test::Extent::whole, name);
      EXPECT_FALSE(whole.ok);
      EXPECT_EQ(whole.brief_diagnostics(), Strings{"E1003 0:0 ''"});
      const test::ReadResult header = test::read_text(bytes, test::Extent::header, name);
      EXPECT_EQ(header.brief_diagnostics(), Strings{"E1003 0:0 ''"});
    }
  }
}

TEST(MemoryInput, TheNameIsALabelOnly) {
  for (const std::string name : {"", "/no/such/file.s1p", "/", "\xFF", "a\nb"}) {
    const test::ReadResult result = test::read_text("#\n1 2 3\n", test::Extent::whole, name);
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.file.get_filename(), name);
    EXPECT_EQ(result.file.get_number_of_ports(), 1U);
  }
}

TEST(MemoryInput, AMissingFileIsMissingWithoutBytes) {
  for (const char* const name : {"", "/no/such/file.s1p"}) {
    test::RecordingHandler handler;
    File file(name);
    EXPECT_FALSE(Parser(file, handler).read_file());
    ASSERT_EQ(handler.diagnostics.size(), 1U);
    EXPECT_EQ(test::brief(handler.diagnostics[0]), "E1001 0:0 ''");
  }
}

TEST(MemoryInput, TheBytesMayChangeBetweenReads) {
  std::string bytes = "#\n1 2 3\n";
  test::RecordingHandler handler;
  File file("t");
  Parser parser(file, handler, bytes);
  EXPECT_TRUE(parser.read_file());
  bytes[2] = 'x';
  EXPECT_TRUE(parser.read_file());  // the flag is never cleared
  ASSERT_EQ(handler.diagnostics.size(), 1U);
  EXPECT_EQ(test::brief(handler.diagnostics[0]), "E2007 2:1 'x'");
}

TEST(MemoryInput, ANullByteIsAByteLikeOthers) {
  const std::string in_word("# G\0Hz\n", 7);
  const test::ReadResult word = test::read_text(in_word);
  ASSERT_EQ(word.diagnostics.size(), 1U);
  EXPECT_EQ(word.brief_diagnostics()[0], "E2003 1:3 ''");  // the text is that byte

  const test::ReadResult comment = test::read_text(std::string("!a\0b\n#\n", 7));
  EXPECT_TRUE(comment.ok);
  EXPECT_EQ(comment.brief_diagnostics(), Strings{"W2003 1:3 ''"});
  EXPECT_EQ(comment.file.get_leading_comments(), Strings{std::string("a\0b", 3)});
}

}  // namespace
}  // namespace touchstone2
