// The module as a host application uses it: loaded while the program runs, initialised through
// its one entry, and its function called by the script's name for it.
#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>

#include "binding/samples.h"
#include "binding/stand_in_host.h"
#include "binding/used_heap.h"
#include "support/temp_file.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace touchstone2::test {
namespace {

using Entry = bool (*)();

#ifdef _WIN32
void* load_module(const char* file) { return ::LoadLibraryA(file); }
void* find_symbol(void* module, const char* name) {
  return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(module), name));
}
std::string reason() { return "error " + std::to_string(::GetLastError()); }
#else
void* load_module(const char* file) { return ::dlopen(file, RTLD_NOW | RTLD_LOCAL); }
void* find_symbol(void* module, const char* name) { return ::dlsym(module, name); }
std::string reason() { return ::dlerror(); }
#endif

// Loaded once and for good, as a host does: it keeps pointers to the module's records.
Entry entry() {
  static void* const module = load_module(TOUCHSTONE2_SCRIPT_MODULE);
  if (module == nullptr) throw std::runtime_error(reason());
  void* const symbol = find_symbol(module, "touchstone2_wux_initialize");
  if (symbol == nullptr) throw std::runtime_error(reason());
  return reinterpret_cast<Entry>(symbol);
}

using stand_in_host::Outcome;

constexpr const char* kFunction = "Touchstone2_PortNames_from_Sparam_file";

Outcome list(std::vector<std::string> strings) {
  return {Outcome::Kind::list, std::move(strings), {}};
}

Outcome exception(std::string text) { return {Outcome::Kind::exception, {}, std::move(text)}; }

Outcome could_not_be_read(const std::string& name) {
  return exception("The file\n   " + name + "\ncould not be read and parsed");
}

// Every test starts with the module registered and ends with every script value released.
class ScriptModule : public ::testing::Test {
 protected:
  void SetUp() override {
    stand_in_host::set_answer(true);
    ASSERT_TRUE(entry()());
  }
  void TearDown() override { EXPECT_EQ(stand_in_host::live_values(), 0); }

  static Outcome call(const std::optional<std::string>& argument) {
    return stand_in_host::call(kFunction, argument);
  }
};

TEST_F(ScriptModule, RegistersOneVocabularyAndNothingElse) {
  const auto& registration = stand_in_host::registration();
  EXPECT_EQ(registration.callback, nullptr);
  EXPECT_EQ(registration.number_of_value_types, 0U);
  EXPECT_EQ(registration.value_types, nullptr);
  ASSERT_EQ(registration.number_of_vocabularies, 1U);
  ASSERT_NE(registration.vocabularies, nullptr);

  const VocDef& vocabulary = registration.vocabularies[0];
  EXPECT_STREQ(vocabulary.name, "CmdOp");
  EXPECT_STREQ(vocabulary.language, "WUX");
  EXPECT_EQ(vocabulary.number_of_functions, 1U);
}

TEST_F(ScriptModule, TheFunctionRecordHoldsNameAddressAndWordsOfZero) {
  const FunctionDef& function = stand_in_host::registration().vocabularies[0].functions[0];
  EXPECT_STREQ(function.name, kFunction);
  EXPECT_EQ(function.zero, 0U);
  EXPECT_NE(function.native, nullptr);
  for (const std::uintptr_t zero : function.zeros) EXPECT_EQ(zero, 0U);
}

// The runtime reads the records by position.
TEST(ScriptRecords, AreWordsWithoutGaps) {
  constexpr std::size_t word = sizeof(void*);
  EXPECT_EQ(sizeof(FunctionDef), 9 * word);
  EXPECT_EQ(offsetof(FunctionDef, name), 0U);
  EXPECT_EQ(offsetof(FunctionDef, zero), 1 * word);
  EXPECT_EQ(offsetof(FunctionDef, native), 2 * word);
  EXPECT_EQ(offsetof(FunctionDef, zeros), 3 * word);
  EXPECT_EQ(sizeof(VocDef), 4 * word);
  EXPECT_EQ(offsetof(VocDef, name), 0U);
  EXPECT_EQ(offsetof(VocDef, language), 1 * word);
  EXPECT_EQ(offsetof(VocDef, functions), 2 * word);
  EXPECT_EQ(offsetof(VocDef, number_of_functions), 3 * word);
}

// The host may write into what it was handed.
TEST_F(ScriptModule, TheRecordsAreWritable) {
  VocDef& vocabulary = stand_in_host::registration().vocabularies[0];
  vocabulary.functions[0].zeros[5] = 7;
  vocabulary.functions[0].zeros[5] = 0;
  vocabulary.number_of_functions = 0;
  vocabulary.number_of_functions = 1;
}

TEST_F(ScriptModule, InitialisationReturnsTheHostsAnswer) {
  const int calls = stand_in_host::registration().calls;
  stand_in_host::set_answer(false);
  EXPECT_FALSE(entry()());
  stand_in_host::set_answer(true);
  EXPECT_TRUE(entry()());
  EXPECT_EQ(stand_in_host::registration().calls, calls + 2);
}

TEST_F(ScriptModule, TheScriptGetsTheNames) {
  const TempFile file(kThreePortsTwoNamed, "three.s3p");
  EXPECT_EQ(call(file.name()), list({"input", "through", ""}));
}

TEST_F(ScriptModule, NoArgumentIsAnException) {
  EXPECT_EQ(call(std::nullopt), exception("Value is null."));
}

TEST_F(ScriptModule, AdmittancesGiveNullAndNoException) {
  const TempFile file(kAdmittances, "y.s1p");
  EXPECT_EQ(call(file.name()), (Outcome{Outcome::Kind::null, {}, {}}));
}

TEST_F(ScriptModule, AMissingFileIsAnExceptionThatNamesIt) {
  const TempFolder folder;
  const std::string missing = to_utf8(folder.path() / "missing.s2p");
  EXPECT_EQ(call(missing), could_not_be_read(missing));
}

TEST_F(ScriptModule, ABrokenFileIsAnExceptionThatNamesIt) {
  const TempFile file(kBrokenBehindNoise, "broken.s2p");
  EXPECT_EQ(call(file.name()), could_not_be_read(file.name()));
}

TEST_F(ScriptModule, TheArgumentIsReleasedBeforeTheListIsMade) {
  const TempFile file(kTwoPortsWithNoise, "noise.s2p");
  const int made = stand_in_host::made_values();
  EXPECT_EQ(call(file.name()), list({"gate", "drain"}));
  EXPECT_EQ(stand_in_host::made_values(), made + 2);  // the argument and the list
  EXPECT_EQ(stand_in_host::live_values_at_list(), 0);
}

TEST_F(ScriptModule, CallsLeaveNothingBehind) {
  const TempFile with_noise(kTwoPortsWithNoise, "noise.s2p");
  const TempFile admittances(kAdmittances, "y.s1p");
  const TempFile broken(kBrokenBehindNoise, "broken.s2p");
  for (const TempFile* file : {&with_noise, &admittances, &broken}) {
    EXPECT_EQ(growth_of_heap([&] { call(file->name()); }), 0) << file->name();
  }
  EXPECT_EQ(growth_of_heap([&] { call(std::nullopt); }), 0);
}

}  // namespace
}  // namespace touchstone2::test
