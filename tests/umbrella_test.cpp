// One header gives the whole library. This file includes no other header of it.

#include <touchstone2/touchstone2.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace {

// A name from each public header, so that it is not only found but complete.
TEST(Umbrella, GivesEveryPartOfTheLibrary) {
  touchstone2::File file("two_ports.s2p");
  touchstone2::StandardMessageHandler handler;
  touchstone2::Parser parser(file, handler, "! Port[1] = in\n# GHz S RI\n1 1 2 3 4 5 6 7 8\n");
  ASSERT_TRUE(parser.read_file());
  EXPECT_EQ(file.get_version(), touchstone2::FileVersion::V1);
  EXPECT_EQ(file.get_network_params()->rows(), 2U);
  EXPECT_EQ(file.get_noise_params(), nullptr);
  EXPECT_EQ(touchstone2::NoiseParams(1.0).freq_points(), 0U);
  EXPECT_EQ(touchstone2::find_sqrt(16), 4U);
  EXPECT_STREQ(touchstone2::ParserError(touchstone2::ErrorType::FileNotFound).what(),
               "file not found");
  EXPECT_EQ(touchstone2::Token().type, touchstone2::Token::Type::whitespace);
  EXPECT_EQ(touchstone2::ReadProgress().line, 0U);
  EXPECT_EQ(touchstone2::tokenize("a b").size(), 2U);
  static_assert(std::is_class_v<touchstone2::PortNameParser6>, "complete");
  static_assert(std::is_class_v<touchstone2::FileCopier>, "complete");
  EXPECT_TRUE(touchstone2::stringsAreUnique({"a", "b"}));
  EXPECT_EQ(file.get_port_names().at(0), "in");

  std::ostringstream version_1;
  touchstone2::V1_Writer(file).write_file(version_1);
  EXPECT_NE(version_1.str(), "");
  std::ostringstream version_2;
  touchstone2::V2_Writer(file).write_file(version_2);
  EXPECT_NE(version_2.str().find("[Version] 2.0"), std::string::npos);

  EXPECT_NE(std::string(TOUCHSTONE2_VERSION_STRING), "");
}

// A header that is added has to be added to the umbrella as well. Looks at the source tree where
// there is one.
TEST(Umbrella, IncludesEveryPublicHeader) {
  namespace fs = std::filesystem;
  const fs::path include = fs::path(__FILE__).parent_path().parent_path() / "include";
  const fs::path umbrella = include / "touchstone2" / "touchstone2.h";
  std::ifstream stream(umbrella);
  if (!stream) GTEST_SKIP() << "the sources are not here";
  std::stringstream text;
  text << stream.rdbuf();
  std::size_t headers = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(include)) {
    if (entry.path().extension() != ".h" || entry.path() == umbrella) continue;
    ++headers;
    const std::string name = entry.path().lexically_relative(include).generic_string();
    EXPECT_NE(text.str().find("#include <" + name + ">\n"), std::string::npos) << name;
  }
  EXPECT_GE(headers, 19U);
}

}  // namespace
