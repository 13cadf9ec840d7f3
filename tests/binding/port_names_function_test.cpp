#include "binding/port_names_function.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

#include <gtest/gtest.h>

#include "binding/samples.h"
#include "binding/used_heap.h"
#include "support/temp_file.h"

namespace touchstone2::test {
namespace {

// A call without a host: keeps the list, or refuses to make one.
class PlainCall final : public binding::ScriptCall {
 public:
  explicit PlainCall(std::optional<std::string> argument) : argument_(std::move(argument)) {}

  std::optional<std::string> string_argument(unsigned index) override {
    return index == 0 ? argument_ : std::nullopt;
  }

  void return_list(const std::vector<std::string>& strings) override {
    if (refuses_lists) throw std::length_error("no room for a list");
    result = strings;
  }

  std::optional<std::vector<std::string>> result;
  bool refuses_lists = false;

 private:
  std::optional<std::string> argument_;
};

std::optional<std::vector<std::string>> result_for(const std::string& argument) {
  PlainCall call(argument);
  binding::port_names_function(call);
  return call.result;
}

std::string exception_for(const std::optional<std::string>& argument) {
  PlainCall call(argument);
  try {
    binding::port_names_function(call);
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(call.result, std::nullopt);
    return error.what();
  }
  return "none";
}

using Names = std::vector<std::string>;

TEST(PortNamesFunction, ReturnsTheNamesAndAnEmptyStringForAPortWithout) {
  const TempFile file(kThreePortsTwoNamed, "three.s3p");
  EXPECT_EQ(result_for(file.name()), (Names{"input", "through", ""}));
}

TEST(PortNamesFunction, WithoutNamesEveryPortHasAnEmptyString) {
  const TempFile file("# GHz S RI R 50\n1  0.5 0.25\n", "one.s1p");
  EXPECT_EQ(result_for(file.name()), Names{""});
}

TEST(PortNamesFunction, AFileOfNoPortsGivesAnEmptyList) {
  const TempFile file("# GHz S RI R 50\n", "none.s1p");
  EXPECT_EQ(result_for(file.name()), Names{});
}

TEST(PortNamesFunction, OtherThanSParametersReturnNothingAndThrowNothing) {
  for (const char* parameter : {"Y", "Z"}) {
    const TempFile file("# GHz " + std::string(parameter) + " RI R 50\n1  0.5 0.25\n");
    EXPECT_EQ(result_for(file.name()), std::nullopt) << parameter;
  }
  for (const char* parameter : {"H", "G"}) {
    const TempFile file("# GHz " + std::string(parameter) +
                        " RI R 50\n1  0.5 0.25  1 0  1 0  1 0\n");
    EXPECT_EQ(result_for(file.name()), std::nullopt) << parameter;
  }
}

TEST(PortNamesFunction, NoArgumentIsAnError) {
  EXPECT_EQ(exception_for(std::nullopt), "Value is null.");
}

TEST(PortNamesFunction, AFileThatCannotBeReadIsAnErrorThatNamesIt) {
  const TempFolder folder;
  const std::string missing = to_utf8(folder.path() / "missing.s2p");
  EXPECT_EQ(exception_for(missing), "The file\n   " + missing + "\ncould not be read and parsed");
  EXPECT_EQ(exception_for(""), "The file\n   \ncould not be read and parsed");
}

TEST(PortNamesFunction, AFileWithAnErrorIsAnErrorThatNamesIt) {
  const TempFile file(kBrokenBehindNoise, "broken.s2p");
  EXPECT_EQ(exception_for(file.name()),
            "The file\n   " + file.name() + "\ncould not be read and parsed");
}

// A name with bytes beyond ASCII is given back byte for byte.
TEST(PortNamesFunction, NamesAreUtf8) {
  const TempFile file(kAdmittances, "\xE6\xA8\xA1\xE5\x9E\x8B \xC2\xB5.s1p");
  EXPECT_EQ(result_for(file.name()), std::nullopt);
  const std::string missing = file.name() + "\xC3\xA4";
  EXPECT_EQ(exception_for(missing), "The file\n   " + missing + "\ncould not be read and parsed");
}

TEST(PortNamesFunction, LeavesNothingBehind) {
  const TempFile with_noise(kTwoPortsWithNoise, "noise.s2p");
  const TempFile broken(kBrokenBehindNoise, "broken.s2p");
  EXPECT_EQ(growth_of_heap([&] { result_for(with_noise.name()); }), 0);
  EXPECT_EQ(growth_of_heap([&] { exception_for(broken.name()); }), 0);
}

TEST(PortNamesFunction, LeavesNothingBehindWhenTheListCannotBeMade) {
  const TempFile file(kTwoPortsWithNoise, "noise.s2p");
  const auto call_in_vain = [&] {
    PlainCall call(file.name());
    call.refuses_lists = true;
    try {
      binding::port_names_function(call);
      FAIL() << "the exception did not come through";
    } catch (const std::length_error&) {
    }
  };
  EXPECT_EQ(growth_of_heap(call_in_vain), 0);
}

}  // namespace
}  // namespace touchstone2::test
