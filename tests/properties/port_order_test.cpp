// Orders and subsets of ports lose nothing that they keep.
#include <touchstone2/touchstone2.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "properties/generated_text.h"
#include "support/reading.h"

namespace touchstone2 {
namespace {

constexpr std::uint32_t kSeeds = 400;

using Order = std::vector<std::size_t>;

// A copy and its noise data, which no File owns.
struct Copy {
  explicit Copy(File* result)
      : file(result), noise(result ? result->get_noise_params() : nullptr) {}

  std::unique_ptr<File> file;
  std::unique_ptr<const NoiseParams> noise;
};

Order shuffled_order(std::size_t ports, std::uint32_t seed) {
  Order order(ports);
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::mt19937 engine(seed);
  for (std::size_t i = ports; i > 1; --i) std::swap(order[i - 1], order[engine() % i]);
  return order;
}

Order inverse_of(const Order& order) {
  Order inverse(order.size());
  for (std::size_t i = 0; i < order.size(); ++i) inverse[order[i]] = i;
  return inverse;
}

template <typename Check>
void for_each_sample(Check check) {
  for (std::uint32_t seed = 1; seed <= kSeeds; ++seed) {
    const std::string text = test::generated_text(seed, test::Numbers::random_bits);
    SCOPED_TRACE("seed " + std::to_string(seed) + "\n" + text);
    const auto read = test::read_text(text);
    ASSERT_TRUE(read.ok);
    read.file.get_port_names();
    check(read.file, seed);
    if (::testing::Test::HasFailure()) return;
  }
}

// The other comments and the name aside, File::compare sees no difference at all.
TEST(PortOrder, IsUndoneByItsInverse) {
  for_each_sample([](const File& source, std::uint32_t seed) {
    const Order order = shuffled_order(source.get_number_of_ports(), seed);
    const Copy there(copyFileWithReorderedPorts(source.get_filename(), source, order));
    ASSERT_NE(there.file, nullptr);
    const Copy back(
        copyFileWithReorderedPorts(source.get_filename(), *there.file, inverse_of(order)));
    ASSERT_NE(back.file, nullptr);
    EXPECT_TRUE(back.file->compare(source, 0));
  });
}

TEST(PortOrder, MovesEveryCell) {
  for_each_sample([](const File& source, std::uint32_t seed) {
    const Order order = shuffled_order(source.get_number_of_ports(), seed);
    const Copy copy(copyFileWithReorderedPorts("copy", source, order));
    const NetworkParams& a = *source.get_network_params();
    const NetworkParams& b = *copy.file->get_network_params();
    for (std::size_t k = 0; k < a.freq_points(); ++k) {
      for (std::size_t row = 0; row < order.size(); ++row) {
        for (std::size_t col = 0; col < order.size(); ++col) {
          ASSERT_EQ(b.cell(k, row, col).as_format(b.format()),
                    a.cell(k, order[row], order[col]).as_format(a.format()));
        }
      }
    }
  });
}

TEST(SubsetOfPorts, OfAllPortsInOrderEqualsTheSource) {
  for_each_sample([](const File& source, std::uint32_t) {
    std::vector<std::pair<std::size_t, std::string>> all;
    for (const std::string& name : source.get_port_names()) all.emplace_back(all.size(), name);
    const Copy copy(copyFileWithSubsetOfPorts(source.get_filename(), source, all));
    ASSERT_NE(copy.file, nullptr);
    EXPECT_TRUE(copy.file->compare(source, 0));
    EXPECT_EQ(copy.file->get_other_comments(), source.get_other_comments());
  });
}

// Choosing twice is choosing once.
TEST(SubsetOfPorts, OfASubsetIsASubset) {
  for_each_sample([](const File& source, std::uint32_t seed) {
    const ParameterType type = source.get_parameter_type();
    if (type == ParameterType::H || type == ParameterType::G) return;
    if (source.uses_mixed_mode()) return;  // a pair that was lost once stays lost
    Order order = shuffled_order(source.get_number_of_ports(), seed);
    const std::size_t keep = 1 + order.size() / 2;
    std::vector<std::pair<std::size_t, std::string>> some, last, once;
    for (std::size_t i = 0; i < keep; ++i) some.emplace_back(order[i], std::to_string(i));
    last.emplace_back(keep - 1, "x");
    once.emplace_back(order[keep - 1], "x");
    const Copy first(copyFileWithSubsetOfPorts("copy", source, some));
    const Copy second(copyFileWithSubsetOfPorts("copy", *first.file, last));
    const Copy direct(copyFileWithSubsetOfPorts("copy", source, once));
    EXPECT_TRUE(second.file->compare(*direct.file, 0));
  });
}

}  // namespace
}  // namespace touchstone2
