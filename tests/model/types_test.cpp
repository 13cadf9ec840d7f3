// The numeric values of the enumerations are interface: callers store them.

#include <touchstone2/model/types.h>

#include <cstdint>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

template <typename Enumeration>
constexpr std::uint32_t value_of(Enumeration enumerator) {
  static_assert(std::is_same_v<std::underlying_type_t<Enumeration>, std::uint32_t>,
                "the width is interface");
  return static_cast<std::uint32_t>(enumerator);
}

TEST(Types, EnumeratorsHaveTheirValues) {
  struct Row {
    const char* name;
    std::uint32_t value;
    std::uint32_t expected;
  };
  const Row rows[] = {
      {"FileVersion::Unspecified", value_of(FileVersion::Unspecified), 0},
      {"FileVersion::V1", value_of(FileVersion::V1), 65536},
      {"FileVersion::V2", value_of(FileVersion::V2), 131072},

      {"FrequencyScaleFactor::Unspecified", value_of(FrequencyScaleFactor::Unspecified), 0},
      {"FrequencyScaleFactor::Hz", value_of(FrequencyScaleFactor::Hz), 1},
      {"FrequencyScaleFactor::kHz", value_of(FrequencyScaleFactor::kHz), 2},
      {"FrequencyScaleFactor::MHz", value_of(FrequencyScaleFactor::MHz), 3},
      {"FrequencyScaleFactor::GHz", value_of(FrequencyScaleFactor::GHz), 4},

      {"ParameterType::Unspecified", value_of(ParameterType::Unspecified), 0},
      {"ParameterType::S", value_of(ParameterType::S), 1},
      {"ParameterType::Y", value_of(ParameterType::Y), 2},
      {"ParameterType::Z", value_of(ParameterType::Z), 3},
      {"ParameterType::H", value_of(ParameterType::H), 4},
      {"ParameterType::G", value_of(ParameterType::G), 5},

      {"ComplexFormat::Unspecified", value_of(ComplexFormat::Unspecified), 0},
      {"ComplexFormat::DB", value_of(ComplexFormat::DB), 1},
      {"ComplexFormat::MA", value_of(ComplexFormat::MA), 2},
      {"ComplexFormat::RI", value_of(ComplexFormat::RI), 3},

      {"MatrixFormat::Unspecified", value_of(MatrixFormat::Unspecified), 0},
      {"MatrixFormat::Full", value_of(MatrixFormat::Full), 1},
      {"MatrixFormat::Upper", value_of(MatrixFormat::Upper), 2},
      {"MatrixFormat::Lower", value_of(MatrixFormat::Lower), 3},

      {"TwoPortDataOrder::Unspecified", value_of(TwoPortDataOrder::Unspecified), 0},
      {"TwoPortDataOrder::Order_12_21", value_of(TwoPortDataOrder::Order_12_21), 1},
      {"TwoPortDataOrder::Order_21_12", value_of(TwoPortDataOrder::Order_21_12), 2},

      {"MixedModeKind::SingleEnded", value_of(MixedModeKind::SingleEnded), 0},
      {"MixedModeKind::Differential", value_of(MixedModeKind::Differential), 1},
      {"MixedModeKind::Common", value_of(MixedModeKind::Common), 2},
  };
  for (const Row& row : rows) EXPECT_EQ(row.value, row.expected) << row.name;
}

TEST(Types, VersionIsTheMajorNumberShiftedBy16Bits) {
  EXPECT_EQ(value_of(FileVersion::V1), 1U << 16);
  EXPECT_EQ(value_of(FileVersion::V2), 2U << 16);
}

TEST(MixedModeDescriptor, IsAnAggregateOfThreeFieldsInOrder) {
  static_assert(std::is_aggregate_v<MixedModeDescriptor>, "callers write {kind, port, port}");
  static_assert(std::is_standard_layout_v<MixedModeDescriptor>, "fields lie in their order");
  const MixedModeDescriptor descriptor{MixedModeKind::Common, 3, 4};
  EXPECT_EQ(descriptor.kind, MixedModeKind::Common);
  EXPECT_EQ(descriptor.first_port, 3U);
  EXPECT_EQ(descriptor.second_port, 4U);
  EXPECT_LT(reinterpret_cast<std::uintptr_t>(&descriptor.kind),
            reinterpret_cast<std::uintptr_t>(&descriptor.first_port));
  EXPECT_LT(reinterpret_cast<std::uintptr_t>(&descriptor.first_port),
            reinterpret_cast<std::uintptr_t>(&descriptor.second_port));
}

TEST(MixedModeDescriptor, StartsAsNeutralSingleEndedOne) {
  const MixedModeDescriptor descriptor;
  EXPECT_EQ(descriptor.kind, MixedModeKind::SingleEnded);
  EXPECT_EQ(descriptor.first_port, 0U);
  EXPECT_EQ(descriptor.second_port, 0U);
}

TEST(MixedModeDescriptor, EqualWhenAllThreeFieldsAre) {
  const MixedModeDescriptor descriptor{MixedModeKind::Differential, 1, 2};
  struct Row {
    MixedModeDescriptor other;
    bool equal;
  };
  const Row rows[] = {
      {{MixedModeKind::Differential, 1, 2}, true},  {{MixedModeKind::Common, 1, 2}, false},
      {{MixedModeKind::Differential, 3, 2}, false}, {{MixedModeKind::Differential, 1, 3}, false},
      {{MixedModeKind::Differential, 2, 1}, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(descriptor == row.other, row.equal);
    EXPECT_EQ(row.other == descriptor, row.equal);
    EXPECT_EQ(descriptor != row.other, !row.equal);
  }
}

}  // namespace
}  // namespace touchstone2
