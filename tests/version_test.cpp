// The version macros agree with each other.

#include <touchstone2/version.h>

#include <string>

#include <gtest/gtest.h>

TEST(Version, TextIsMadeOfTheThreeNumbers) {
  EXPECT_EQ(std::to_string(TOUCHSTONE2_VERSION_MAJOR) + "." +
                std::to_string(TOUCHSTONE2_VERSION_MINOR) + "." +
                std::to_string(TOUCHSTONE2_VERSION_PATCH),
            TOUCHSTONE2_VERSION_STRING);
}
