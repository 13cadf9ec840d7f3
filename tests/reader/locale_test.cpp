// Neither the C++ nor the C locale of the process changes what is read or reported.
#include <touchstone2/touchstone2.h>

#include <clocale>
#include <iostream>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/reading.h"
#include "support/same_bits.h"

namespace touchstone2 {
namespace {

class CommaAndGroups : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// Global C++ locale and standard error stream, put back at the end of the object's life.
class ForeignCppLocale {
 public:
  ForeignCppLocale()
      : foreign_(std::locale::classic(), new CommaAndGroups),
        global_(std::locale::global(foreign_)),
        error_stream_(std::cerr.imbue(foreign_)) {}
  ForeignCppLocale(const ForeignCppLocale&) = delete;
  ForeignCppLocale& operator=(const ForeignCppLocale&) = delete;
  ~ForeignCppLocale() {
    std::cerr.imbue(error_stream_);
    std::locale::global(global_);
  }

 private:
  std::locale foreign_;
  std::locale global_;
  std::locale error_stream_;
};

class ForeignCLocale {
 public:
  explicit ForeignCLocale(const char* name)
      : earlier_(std::setlocale(LC_ALL, nullptr)), set_(std::setlocale(LC_ALL, name) != nullptr) {}
  ForeignCLocale(const ForeignCLocale&) = delete;
  ForeignCLocale& operator=(const ForeignCLocale&) = delete;
  ~ForeignCLocale() { std::setlocale(LC_ALL, earlier_.c_str()); }
  bool is_set() const { return set_; }

 private:
  std::string earlier_;
  bool set_;
};

void expect_the_usual_numbers() {
  const test::ReadResult good = test::read_text("# RI R 1.5e3\n1234.5 -0.25 1e-3\n");
  EXPECT_TRUE(good.ok);
  EXPECT_TRUE(good.diagnostics.empty());
  EXPECT_TRUE(test::same_bits(good.file.get_reference_impedance(), 1500.0));
  EXPECT_TRUE(test::same_bits(good.params().get_unscaled_freq(0), 1234.5));
  EXPECT_TRUE(test::same_bits(good.cell(0, 0, 0).first, -0.25));
  EXPECT_TRUE(test::same_bits(good.cell(0, 0, 0).second, 0.001));

  const test::ReadResult comma = test::read_text("#\n1,5 2 3\n");
  EXPECT_EQ(comma.brief_diagnostics(), std::vector<std::string>{"E2007 2:1 '1,5'"});

  // 1,499 blank lines put the error on line 1,502.
  File file("t");
  StandardMessageHandler handler;
  std::ostringstream text;
  text.imbue(std::locale());
  std::streambuf* const original = std::cerr.rdbuf(text.rdbuf());
  Parser(file, handler, "#\n12345.5 2 3\n" + std::string(1499, '\n') + "1.5 2 3\n").read_file();
  std::cerr.rdbuf(original);
  EXPECT_EQ(
      text.str(),
      "t:1502:1: error E2311: frequency points must be listed in increasing order, but 1.5 is "
      "not greater than 12345.5\n");

  const test::ReadResult count = test::read_text(
      "[Version] 2.0\n#\n[Number of Ports] 1\n[Number of Frequencies] 1234567\n[Network Data]\n"
      "[End]\n");
  ASSERT_EQ(count.diagnostics.size(), 1U);
  EXPECT_EQ(count.diagnostics[0].message,
            "wrong number of frequency points (found 0 but expected 1234567)");
}

TEST(Locale, TheGlobalCppLocaleChangesNothing) {
  const ForeignCppLocale foreign;
  expect_the_usual_numbers();
}

TEST(Locale, TheCLocaleChangesNothing) {
  // Which of these a machine has differs; one is enough.
  for (const char* const name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8", "tr_TR.UTF-8",
                                 "German_Germany.1252", ""}) {
    const ForeignCLocale foreign(name);
    if (foreign.is_set()) expect_the_usual_numbers();
  }
}

}  // namespace
}  // namespace touchstone2
