// Both writers on the files in golden/writers. Beside each NAME stand the texts that must come
// out, NAME.v1 and NAME.v2; of a file that a writer refuses its message. Every byte counts.
//
//     touchstone2_golden_tests --update    rewrites the texts; read the difference
#include <touchstone2/writer/v1_writer.h>
#include <touchstone2/writer/v2_writer.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"

namespace touchstone2 {
namespace {

namespace fs = std::filesystem;

bool update = false;

std::string content_of(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

template <typename SomeWriter>
std::string written(File& file) {
  std::ostringstream os;
  try {
    SomeWriter(file).write_file(os);
  } catch (const std::exception& refusal) {
    os << "refused: " << refusal.what() << "\n";
  }
  return os.str();
}

void expect_text(const fs::path& expected, const std::string& text) {
  if (update) std::ofstream(expected, std::ios::binary) << text;
  EXPECT_EQ(text, content_of(expected)) << expected.filename();
}

std::vector<std::string> samples() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(TOUCHSTONE2_GOLDEN_WRITERS)) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".v1" && ending != ".v2") names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

class GoldenText : public ::testing::TestWithParam<std::string> {};

TEST_P(GoldenText, IsWhatTheWritersWrite) {
  const fs::path sample = fs::path(TOUCHSTONE2_GOLDEN_WRITERS) / GetParam();
  const auto read = test::read_text(content_of(sample));
  ASSERT_TRUE(read.ok) << ::testing::PrintToString(read.brief_diagnostics());
  // Copies: a writer brings the comments of its File up to date.
  File of_v1 = read.file;
  File of_v2 = read.file;
  expect_text(sample.string() + ".v1", written<V1_Writer>(of_v1));
  expect_text(sample.string() + ".v2", written<V2_Writer>(of_v2));
}

std::string name_of(const ::testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace(name.begin(), name.end(), '.', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Writers, GoldenText, ::testing::ValuesIn(samples()), name_of);

}  // namespace
}  // namespace touchstone2

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  touchstone2::update = argc > 1 && std::strcmp(argv[1], "--update") == 0;
  return RUN_ALL_TESTS();
}
