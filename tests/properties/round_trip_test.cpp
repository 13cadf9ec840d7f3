// What is read, written and read again is what it was.
#include <touchstone2/touchstone2.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "properties/generated_text.h"
#include "properties/same_file.h"
#include "support/reading.h"

namespace touchstone2 {
namespace {

constexpr std::uint32_t kSeeds = 400;

// A text and where it comes from.
struct Sample {
  std::string name;
  std::string text;
};

std::vector<Sample> generated_samples(test::Numbers numbers) {
  std::vector<Sample> samples;
  for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
    samples.push_back({"seed " + std::to_string(seed), test::generated_text(seed, numbers)});
  }
  return samples;
}

std::vector<Sample> examples() {
  std::vector<Sample> samples;
  for (const auto& entry :
       std::filesystem::directory_iterator(TOUCHSTONE2_SOURCE_DIR "/examples/good")) {
    std::ostringstream text;
    text << std::ifstream(entry.path(), std::ios::binary).rdbuf();
    samples.push_back({entry.path().filename().string(), text.str()});
  }
  return samples;
}

template <typename SomeWriter>
std::string written(File& file, int digits) {
  std::ostringstream os;
  os.precision(digits);  // of what precedes the first value
  SomeWriter writer(file);
  writer.setPrecision(digits);
  writer.write_file(os);
  return os.str();
}

std::string written_as(File& file, FileVersion version, int digits) {
  return version == FileVersion::V1 ? written<V1_Writer>(file, digits)
                                    : written<V2_Writer>(file, digits);
}

// Writes and reads once; what is found must be what was meant, as far as the digits go.
void expect_round_trip(File& meant, FileVersion version, int digits) {
  const std::string text = written_as(meant, version, digits);
  const auto again = test::read_text(text);
  ASSERT_TRUE(again.ok) << text << ::testing::PrintToString(again.brief_diagnostics());
  test::SameFile(meant, again.file, version, digits).expect();
  if (::testing::Test::HasFailure()) ADD_FAILURE() << text;
}

void expect_round_trips_as_version_2(const std::vector<Sample>& samples) {
  for (const Sample& sample : samples) {
    SCOPED_TRACE(sample.name);
    auto read = test::read_text(sample.text);
    ASSERT_TRUE(read.ok) << sample.text << ::testing::PrintToString(read.brief_diagnostics());
    for (int digits : {17, 16, 15, 14, 6}) {
      expect_round_trip(read.file, FileVersion::V2, digits);
      if (::testing::Test::HasFailure()) return;
    }
  }
}

// How many of the samples version 1 could express.
std::size_t expect_round_trips_as_version_1(const std::vector<Sample>& samples) {
  std::size_t count = 0;
  for (const Sample& sample : samples) {
    SCOPED_TRACE(sample.name);
    const auto read = test::read_text(sample.text);
    if (read.file.uses_mixed_mode() || read.file.uses_reference_impedance_per_port()) continue;
    ++count;
    const std::unique_ptr<File> full(copyFileWithFullMatrix("full", read.file));
    const std::unique_ptr<const NoiseParams> noise(full->get_noise_params());
    for (int digits : {17, 15, 14, 6}) {
      expect_round_trip(*full, FileVersion::V1, digits);
      if (::testing::Test::HasFailure()) return count;
    }
  }
  return count;
}

TEST(RoundTrip, AsVersion2OfShortDecimals) {
  expect_round_trips_as_version_2(generated_samples(test::Numbers::short_decimals));
}

TEST(RoundTrip, AsVersion2OfRandomBits) {
  expect_round_trips_as_version_2(generated_samples(test::Numbers::random_bits));
}

TEST(RoundTrip, AsVersion1OfShortDecimals) {
  EXPECT_GT(expect_round_trips_as_version_1(generated_samples(test::Numbers::short_decimals)),
            kSeeds / 2);
}

TEST(RoundTrip, AsVersion1OfRandomBits) {
  EXPECT_GT(expect_round_trips_as_version_1(generated_samples(test::Numbers::random_bits)),
            kSeeds / 2);
}

TEST(RoundTrip, OfEveryExample) {
  const std::vector<Sample> samples = examples();
  EXPECT_GE(samples.size(), 14u);
  expect_round_trips_as_version_2(samples);
  EXPECT_GE(expect_round_trips_as_version_1(samples), 11u);
}

// A second round through the same writer gives the same bytes, and File::compare agrees.
TEST(RoundTrip, IsStableFromTheFirstTextOn) {
  for (const auto numbers : {test::Numbers::short_decimals, test::Numbers::random_bits}) {
    for (const Sample& sample : generated_samples(numbers)) {
      SCOPED_TRACE(sample.name);
      auto read = test::read_text(sample.text);
      auto first = test::read_text(written<V2_Writer>(read.file, 17));
      const std::string text = written<V2_Writer>(first.file, 17);
      const auto second = test::read_text(text);
      second.file.get_port_names();
      ASSERT_TRUE(second.file == first.file) << text;
      EXPECT_EQ(text, written<V2_Writer>(read.file, 17));
    }
  }
}

// The generator makes everything it is meant to make.
TEST(GeneratedTexts, ShowEveryKind) {
  std::size_t v1 = 0, noise = 0, references = 0, mixed = 0, information = 0, other = 0, named = 0;
  std::size_t types[6] = {}, formats[4] = {}, units[5] = {}, matrices[4] = {}, ports[10] = {};
  std::size_t orders[3] = {};
  for (const Sample& sample : generated_samples(test::Numbers::short_decimals)) {
    const auto read = test::read_text(sample.text);
    ASSERT_TRUE(read.ok) << sample.text << ::testing::PrintToString(read.brief_diagnostics());
    const File& file = read.file;
    v1 += file.get_version() == FileVersion::V1;
    noise += file.get_noise_params() != nullptr;
    references += file.uses_reference_impedance_per_port();
    mixed += file.uses_mixed_mode();
    information += file.has_information_section();
    other += !file.get_other_comments().empty();
    named += !file.get_port_names()[0].empty();
    ++types[static_cast<std::size_t>(file.get_parameter_type())];
    ++formats[static_cast<std::size_t>(file.get_complex_format())];
    ++units[static_cast<std::size_t>(file.get_frequency_scale_factor())];
    ++matrices[static_cast<std::size_t>(file.get_matrix_format())];
    ++orders[static_cast<std::size_t>(file.get_two_port_data_order())];
    ++ports[file.get_number_of_ports()];
  }
  for (const std::size_t count :
       {v1,         noise,       references,  mixed,       information, other,
        named,      types[1],    types[2],    types[3],    types[4],    types[5],
        formats[1], formats[2],  formats[3],  units[1],    units[2],    units[3],
        units[4],   matrices[1], matrices[2], matrices[3], orders[1],   orders[2]}) {
    EXPECT_GE(count, 10u);
  }
  for (std::size_t count = 1; count <= 9; ++count) EXPECT_GE(ports[count], 5u) << count;
}

}  // namespace
}  // namespace touchstone2
