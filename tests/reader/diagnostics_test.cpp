// Every class of diagnostic: what it carries, what it says, and how long its text lives.

#include <touchstone2/reader/diagnostics.h>

#include <cstddef>
#include <cstring>
#include <exception>
#include <functional>
#include <limits>
#include <locale>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

constexpr std::size_t kMax = std::numeric_limits<std::size_t>::max();

Token token_at(std::size_t line, std::size_t column, const std::string& text) {
  return Token{Token::Type::string, line, column, text};
}

const Token kToken = token_at(12, 5, "word");

// One object of each class. A function and not a table: the classes share no base of ours.
template <typename Visitor>
void visit_errors(Visitor visit) {
  visit("InvalidCharacterError", 2003, InvalidCharacterError(kToken), "invalid character 'w'");
  visit("WrongReferenceImpedanceCountError", 2022, WrongReferenceImpedanceCountError(3, 4, kToken),
        "the number of reference impedances (3) must match the number of ports (4)");
  visit("WrongMixedModeDescriptorCountError", 2315,
        WrongMixedModeDescriptorCountError(3, 4, kToken),
        "the number of mixed-mode port descriptors (3) must match the number of ports (4)");
  visit("MixedModeDescriptorsMissedPortError", 2316, MixedModeDescriptorsMissedPortError(7, kToken),
        "mixed-mode port descriptors did not describe port 7");
  visit("MixedModeDescriptorOverlapError", 2317, MixedModeDescriptorOverlapError(7, kToken),
        "overlapping mixed-mode port descriptors for port 7");
  visit("Mismatched_C_D_DescriptorPortsError", 2318, Mismatched_C_D_DescriptorPortsError(7, kToken),
        "common-mode and differential-mode descriptors for port 7 must reference the same pair of "
        "ports");
  visit("FrequencyOrderingError", 2311, FrequencyOrderingError(1.5, 2.25, kToken),
        "frequency points must be listed in increasing order, but 1.5 is not greater than 2.25");
  visit("FrequencyCountError", 2310, FrequencyCountError(3, 4, kToken),
        "wrong number of frequency points (found 3 but expected 4)");
  visit("IncorrectNumberOfNetworkValuesError", 2308,
        IncorrectNumberOfNetworkValuesError(3, 4, kToken),
        "incorrect number of values for network data (found 1.5 complex pairs but expected 4 "
        "complex pairs)");
  visit("NetworkDataNotSquareError", 2306, NetworkDataNotSquareError(5, kToken),
        "detected 5 number pairs of network data, but network data must fit a NxN matrix");
  visit("KeywordOrderingError", 2210, KeywordOrderingError(kToken),
        "keyword [word] is out of order");
}

template <typename Visitor>
void visit_warnings(Visitor visit) {
  visit("InvalidCharacterWarning", 2003, InvalidCharacterWarning(kToken),
        "invalid character 'w' in a comment line.\n"
        "    Non-US-ASCII characters violate the Touchstone Specification\n"
        "    and may result in file reading failure.");
  visit("ClippingLargeNumberWarning", 2301, ClippingLargeNumberWarning(1e300, kToken),
        "clipping a very large number to 1e+300");
  visit("ClippingSmallNumberWarning", 2302, ClippingSmallNumberWarning(-1e-300, kToken),
        "clipping a very small number to -1e-300");
  visit("NonphysicalNoiseWarning", 2321, NonphysicalNoiseWarning(-0.5, kToken),
        "nonphysical noise behavior (-0.5 dB) described");
}

// DifferentialPortsImpedanceError has no token and therefore a test of its own.
template <typename Visitor>
void visit_all(Visitor visit) {
  visit_errors(visit);
  visit_warnings(visit);
}

template <typename Base>
struct ExpectedRuntimeText;
template <>
struct ExpectedRuntimeText<ParserError> {
  static constexpr const char* text = "Touchstone parser error";
};
template <>
struct ExpectedRuntimeText<ParserWarning> {
  static constexpr const char* text = "Touchstone parser warning";
};

template <typename T>
using BaseOf = std::conditional_t<std::is_base_of_v<ParserError, T>, ParserError, ParserWarning>;

TEST(Diagnostics, EachClassHasItsCodePositionTokenAndMessage) {
  const auto check = [](const char* name, int code, const auto& diagnostic, const char* message) {
    SCOPED_TRACE(name);
    using Base = BaseOf<std::decay_t<decltype(diagnostic)>>;
    EXPECT_EQ(static_cast<int>(diagnostic.code()), code);
    EXPECT_EQ(diagnostic.line(), 12U);
    EXPECT_EQ(diagnostic.column(), 5U);
    EXPECT_STREQ(diagnostic.token_text(), "word");
    EXPECT_STREQ(diagnostic.what(), message);
    const Base& base = diagnostic;
    EXPECT_STREQ(base.what(), message);
    const std::exception& exception = diagnostic;
    EXPECT_STREQ(exception.what(), message);
    // The base's own what() has the fixed message, the standard base's the fixed name.
    EXPECT_STREQ(base.Base::what(), error_message(diagnostic.code()));
    EXPECT_STREQ(base.std::runtime_error::what(), ExpectedRuntimeText<Base>::text);
  };
  visit_all(check);
}

TEST(Diagnostics, ErrorsAndWarningsAreRuntimeErrorsButNotEachOther) {
  static_assert(std::is_base_of_v<std::runtime_error, ParserError>, "");
  static_assert(std::is_base_of_v<std::runtime_error, ParserWarning>, "");
  static_assert(!std::is_base_of_v<ParserError, ParserWarning>, "");
  static_assert(!std::is_base_of_v<ParserWarning, ParserError>, "");
  visit_errors([](const char*, int, const auto& error, const char*) {
    using T = std::decay_t<decltype(error)>;
    static_assert(std::is_base_of_v<ParserError, T> && !std::is_base_of_v<ParserWarning, T>, "");
  });
  visit_warnings([](const char*, int, const auto& warning, const char*) {
    using T = std::decay_t<decltype(warning)>;
    static_assert(std::is_base_of_v<ParserWarning, T> && !std::is_base_of_v<ParserError, T>, "");
  });
  static_assert(std::is_base_of_v<ParserError, DifferentialPortsImpedanceError>, "");
}

TEST(Diagnostics, CopyingCannotFail) {
  const auto check = [](const char*, int, const auto& diagnostic, const char*) {
    using T = std::decay_t<decltype(diagnostic)>;
    static_assert(std::is_nothrow_copy_constructible_v<T>, "");
    static_assert(std::is_nothrow_move_constructible_v<T>, "");
    static_assert(std::is_nothrow_copy_assignable_v<T>, "");
    static_assert(std::is_nothrow_move_assignable_v<T>, "");
    static_assert(std::is_nothrow_destructible_v<T>, "");
    static_assert(noexcept(diagnostic.what()), "");
  };
  visit_all(check);
  static_assert(std::is_nothrow_copy_constructible_v<ParserError>, "");
  static_assert(std::is_nothrow_copy_assignable_v<ParserError>, "");
  static_assert(std::is_nothrow_move_constructible_v<ParserError>, "");
  static_assert(std::is_nothrow_move_assignable_v<ParserError>, "");
  static_assert(std::is_nothrow_copy_constructible_v<ParserWarning>, "");
  static_assert(std::is_nothrow_copy_assignable_v<ParserWarning>, "");
  static_assert(std::is_nothrow_move_constructible_v<ParserWarning>, "");
  static_assert(std::is_nothrow_move_assignable_v<ParserWarning>, "");
  static_assert(std::is_nothrow_copy_constructible_v<DifferentialPortsImpedanceError>, "");
}

TEST(Diagnostics, CopiesAndMovesKeepEverything) {
  const auto check = [](const char* name, int code, const auto& diagnostic, const char* message) {
    SCOPED_TRACE(name);
    using T = std::decay_t<decltype(diagnostic)>;
    const auto expect_same = [&](const T& other) {
      EXPECT_EQ(static_cast<int>(other.code()), code);
      EXPECT_EQ(other.line(), 12U);
      EXPECT_EQ(other.column(), 5U);
      EXPECT_STREQ(other.token_text(), "word");
      EXPECT_NE(other.token_text(), diagnostic.token_text());  // its own array
      EXPECT_STREQ(other.what(), message);
    };
    T copy(diagnostic);
    expect_same(copy);
    const T moved(std::move(copy));
    expect_same(moved);
    T assigned(moved);
    assigned = diagnostic;
    expect_same(assigned);
    T move_assigned(diagnostic);
    move_assigned = std::move(assigned);
    expect_same(move_assigned);
  };
  visit_all(check);
}

TEST(Diagnostics, AssignmentReplacesEveryField) {
  FrequencyCountError count(1, 2, token_at(1, 2, "a longer text"));
  count = FrequencyCountError(3, 4, token_at(5, 6, "b"));
  EXPECT_EQ(count.line(), 5U);
  EXPECT_EQ(count.column(), 6U);
  EXPECT_STREQ(count.token_text(), "b");
  EXPECT_EQ(count.found(), 3U);
  EXPECT_EQ(count.expected(), 4U);

  ParserError error(ErrorType::FileNotFound);
  error = ParserError(ErrorType::InvalidOption, kToken);
  EXPECT_EQ(error.code(), ErrorType::InvalidOption);
  EXPECT_STREQ(error.what(), "invalid option");
  EXPECT_STREQ(error.token_text(), "word");

  ParserWarning warning(ErrorType::MissingFinalEndOfLine);
  warning = ParserWarning(ErrorType::OptionsMarkNotAtLineStart, kToken);
  EXPECT_EQ(warning.code(), ErrorType::OptionsMarkNotAtLineStart);
  EXPECT_STREQ(warning.what(), "# is not at the start of the line");
  EXPECT_EQ(warning.line(), 12U);
}

TEST(Diagnostics, WithoutTokenThereIsNoPosition) {
  const ParserError error(ErrorType::FileNotFound);
  EXPECT_EQ(error.code(), ErrorType::FileNotFound);
  EXPECT_EQ(error.line(), 0U);
  EXPECT_EQ(error.column(), 0U);
  EXPECT_STREQ(error.token_text(), "");
  EXPECT_STREQ(error.what(), "file not found");

  const ParserWarning warning(ErrorType::SecondaryOptionsLineIgnored);
  EXPECT_EQ(warning.code(), ErrorType::SecondaryOptionsLineIgnored);
  EXPECT_EQ(warning.line(), 0U);
  EXPECT_EQ(warning.column(), 0U);
  EXPECT_STREQ(warning.token_text(), "");
  EXPECT_STREQ(warning.what(),
               "ignored secondary options line; only the first options line is used");
}

TEST(Diagnostics, BasesSayTheFixedMessageOfAnyCode) {
  for (int number = 990; number < 2400; ++number) {
    const auto code = static_cast<ErrorType>(number);
    EXPECT_EQ(ParserError(code, kToken).what(), error_message(code));
    EXPECT_EQ(ParserWarning(code, kToken).what(), error_message(code));
  }
  EXPECT_STREQ(ParserError(static_cast<ErrorType>(2099)).what(), "unknown Touchstone parser error");
  EXPECT_STREQ(ParserError(static_cast<ErrorType>(2030)).what(),
               "found extra lines at the end of the file");
}

TEST(Diagnostics, PositionsAreTakenAsTheyAre) {
  const ParserError error(ErrorType::InvalidOption, token_at(kMax, kMax - 1, "x"));
  EXPECT_EQ(error.line(), kMax);
  EXPECT_EQ(error.column(), kMax - 1);
}

TEST(Diagnostics, TokenTextIsCutAt127Characters) {
  std::string text;
  for (int i = 0; i < 200; ++i) text += static_cast<char>('a' + i % 26);
  for (const std::size_t length : {0U, 1U, 126U, 127U, 128U, 129U, 200U}) {
    SCOPED_TRACE(length);
    const Token token = token_at(1, 1, text.substr(0, length));
    const std::string expected = text.substr(0, length < 127 ? length : 127);
    EXPECT_EQ(ParserError(ErrorType::InvalidOption, token).token_text(), expected);
    EXPECT_EQ(ParserWarning(ErrorType::InvalidOption, token).token_text(), expected);
    EXPECT_EQ(FrequencyCountError(1, 2, token).token_text(), expected);
    EXPECT_EQ(KeywordOrderingError(token).what(), "keyword [" + expected + "] is out of order");
  }
}

// Every byte of the array but the text is zero, also behind a copy.
TEST(Diagnostics, TokenTextIsFilledWithZeros) {
  const ParserError original(ErrorType::InvalidOption, token_at(1, 1, "abc"));
  const ParserError copy(original);
  for (const ParserError* error : {&original, &copy}) {
    for (std::size_t i = 3; i < 128; ++i) ASSERT_EQ(error->token_text()[i], '\0') << i;
  }
}

TEST(Diagnostics, ExtraFieldsAreHandedOut) {
  EXPECT_EQ(InvalidCharacterError(token_at(1, 1, "\265")).character(), '\265');
  EXPECT_EQ(InvalidCharacterWarning(token_at(1, 1, "\001x")).character(), '\001');
  EXPECT_EQ(WrongReferenceImpedanceCountError(3, kMax, kToken).found(), 3U);
  EXPECT_EQ(WrongReferenceImpedanceCountError(3, kMax, kToken).ports(), kMax);
  EXPECT_EQ(WrongMixedModeDescriptorCountError(3, 4, kToken).found(), 3U);
  EXPECT_EQ(WrongMixedModeDescriptorCountError(3, 4, kToken).ports(), 4U);
  EXPECT_EQ(MixedModeDescriptorsMissedPortError(5, kToken).port(), 5U);
  EXPECT_EQ(MixedModeDescriptorOverlapError(6, kToken).port(), 6U);
  EXPECT_EQ(Mismatched_C_D_DescriptorPortsError(7, kToken).port(), 7U);
  EXPECT_EQ(FrequencyOrderingError(1.5, 2.5, kToken).frequency(), 1.5);
  EXPECT_EQ(FrequencyOrderingError(1.5, 2.5, kToken).earlier_frequency(), 2.5);
  EXPECT_EQ(FrequencyCountError(8, 9, kToken).found(), 8U);
  EXPECT_EQ(FrequencyCountError(8, 9, kToken).expected(), 9U);
  EXPECT_EQ(IncorrectNumberOfNetworkValuesError(8, 9, kToken).found_values(), 8U);
  EXPECT_EQ(IncorrectNumberOfNetworkValuesError(8, 9, kToken).expected_pairs(), 9U);
  EXPECT_EQ(NetworkDataNotSquareError(3, kToken).pairs(), 3U);
  EXPECT_EQ(ClippingLargeNumberWarning(1e300, kToken).value(), 1e300);
  EXPECT_EQ(ClippingSmallNumberWarning(1e-300, kToken).value(), 1e-300);
  EXPECT_EQ(NonphysicalNoiseWarning(-2.0, kToken).min_noise_db(), -2.0);
}

TEST(Diagnostics, DifferentialPortsImpedanceHasNoPosition) {
  const DifferentialPortsImpedanceError error(1, 50.0, 2, 75.0);
  EXPECT_EQ(error.code(), ErrorType::DifferentialPortsImpedance);
  EXPECT_EQ(static_cast<int>(error.code()), 2319);
  EXPECT_EQ(error.line(), 0U);
  EXPECT_EQ(error.column(), 0U);
  EXPECT_STREQ(error.token_text(), "");
  EXPECT_EQ(error.first_port(), 1U);
  EXPECT_EQ(error.first_impedance(), 50.0);
  EXPECT_EQ(error.second_port(), 2U);
  EXPECT_EQ(error.second_impedance(), 75.0);
  EXPECT_STREQ(error.what(),
               "different reference impedance for mixed-mode ports "
               "(port 1: 50 Ohms, port 2: 75 Ohms)");
  EXPECT_STREQ(DifferentialPortsImpedanceError(3, 50.0, 4, 50.00001).what(),
               "different reference impedance for mixed-mode ports "
               "(port 3: 50 Ohms, port 4: 50 Ohms)");
  const DifferentialPortsImpedanceError copy(error);
  EXPECT_STREQ(copy.what(),
               "different reference impedance for mixed-mode ports "
               "(port 1: 50 Ohms, port 2: 75 Ohms)");
}

TEST(Diagnostics, CountOfNetworkValuesIsShownInPairs) {
  struct Row {
    std::size_t found, expected;
    const char* text;
  };
  const Row rows[] = {
      {0, 0, "(found 0 complex pairs)"},
      {1, 0, "(found 0.5 complex pairs)"},
      {2, 0, "(found 1 complex pair)"},
      {3, 0, "(found 1.5 complex pairs)"},
      {4, 0, "(found 2 complex pairs)"},
      {0, 1, "(found 0 complex pairs but expected 1 complex pair)"},
      {1, 1, "(found 0.5 complex pairs but expected 1 complex pair)"},
      {2, 1, "(found 1 complex pair but expected 1 complex pair)"},
      {2, 2, "(found 1 complex pair but expected 2 complex pairs)"},
      {3, 4, "(found 1.5 complex pairs but expected 4 complex pairs)"},
      {10, 4, "(found 5 complex pairs but expected 4 complex pairs)"},
      {kMax, kMax,
       "(found 9223372036854775807.5 complex pairs but expected 18446744073709551615 complex "
       "pairs)"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(IncorrectNumberOfNetworkValuesError(row.found, row.expected, kToken).what(),
              std::string("incorrect number of values for network data ") + row.text);
  }
}

// The byte stands in the message as it is; a zero byte ends the text.
TEST(Diagnostics, InvalidCharacterIsShownAsItIs) {
  EXPECT_STREQ(InvalidCharacterError(token_at(1, 1, "\265")).what(), "invalid character '\265'");
  EXPECT_STREQ(InvalidCharacterError(token_at(1, 1, "\t")).what(), "invalid character '\t'");
  EXPECT_STREQ(InvalidCharacterError(token_at(1, 1, "\033[1m")).what(), "invalid character '\033'");
  EXPECT_EQ(std::strncmp(InvalidCharacterWarning(token_at(1, 1, "\303")).what(),
                         "invalid character '\303' in a comment line.\n    Non-US-ASCII", 57),
            0);
  EXPECT_STREQ(InvalidCharacterError(token_at(1, 1, std::string(1, '\0'))).what(),
               "invalid character '");
}

TEST(Diagnostics, InvalidCharacterOfAnEmptyTextIsZero) {
  EXPECT_EQ(InvalidCharacterError(Token{}).character(), '\0');
  EXPECT_EQ(InvalidCharacterWarning(Token{}).character(), '\0');
}

TEST(Diagnostics, NumbersInMessagesHaveSixDigits) {
  struct Row {
    double value;
    const char* expected;
  };
  const Row rows[] = {
      {0.0, "0"},
      {1.5, "1.5"},
      {123456.5, "123456"},  // half way, the even digit
      {1234567.0, "1.23457e+06"},
      {0.0001, "0.0001"},
      {1e-5, "1e-05"},
      {1.7976931348623157e308, "1.79769e+308"},
      {-2.2250738585072014e-308, "-2.22507e-308"},
      {2147483647.0, "2.14748e+09"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(ClippingLargeNumberWarning(row.value, kToken).what(),
              std::string("clipping a very large number to ") + row.expected);
  }
}

struct CommaAndGroups : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Diagnostics, MessagesDoNotAskTheLocale) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups));
  EXPECT_STREQ(FrequencyOrderingError(1234.5, 5000.25, kToken).what(),
               "frequency points must be listed in increasing order, but 1234.5 is not greater "
               "than 5000.25");
  EXPECT_STREQ(FrequencyCountError(1234567, 7654321, kToken).what(),
               "wrong number of frequency points (found 1234567 but expected 7654321)");
  std::locale::global(before);
}

TEST(Diagnostics, LongestMessagesAreWhole) {
  const double longest = -2.2250738585072014e-308;  // 12 characters
  EXPECT_STREQ(DifferentialPortsImpedanceError(kMax, longest, kMax, longest).what(),
               "different reference impedance for mixed-mode ports (port 18446744073709551615: "
               "-2.22507e-308 Ohms, port 18446744073709551615: -2.22507e-308 Ohms)");
  EXPECT_EQ(std::strlen(KeywordOrderingError(token_at(1, 1, std::string(500, 'k'))).what()),
            std::strlen("keyword [") + 127 + std::strlen("] is out of order"));
}

// The text has one place per class: an earlier pointer shows the later text.
TEST(Diagnostics, LaterTextReplacesTheEarlierOfTheSameClass) {
  const FrequencyCountError first(3, 4, kToken);
  const FrequencyCountError second(123456789, 987654321, kToken);
  const char* const earlier = first.what();
  ASSERT_STREQ(earlier, "wrong number of frequency points (found 3 but expected 4)");
  const char* const later = second.what();
  EXPECT_EQ(earlier, later);
  EXPECT_STREQ(earlier,
               "wrong number of frequency points (found 123456789 but expected 987654321)");
}

TEST(Diagnostics, TextOutlivesItsObject) {
  auto error = std::make_unique<FrequencyCountError>(3, 4, kToken);
  const char* const text = error->what();
  error.reset();
  EXPECT_STREQ(text, "wrong number of frequency points (found 3 but expected 4)");
}

// Any length may come after any other without moving the text.
TEST(Diagnostics, TextStaysWhereItIs) {
  const char* const first = KeywordOrderingError(token_at(1, 1, "a")).what();
  for (const std::size_t length : {0U, 15U, 16U, 100U, 127U, 3U}) {
    const std::string text(length, 'k');
    EXPECT_EQ(KeywordOrderingError(token_at(1, 1, text)).what(), first);
    EXPECT_EQ(first, "keyword [" + text + "] is out of order");
  }
}

TEST(Diagnostics, TextsOfDifferentClassesAreApart) {
  std::vector<std::pair<const char*, std::string>> texts;
  visit_all([&texts](const char*, int, const auto& diagnostic, const char* message) {
    texts.emplace_back(diagnostic.what(), message);
  });
  texts.emplace_back(DifferentialPortsImpedanceError(1, 2.0, 3, 4.0).what(),
                     "different reference impedance for mixed-mode ports (port 1: 2 Ohms, port 3: "
                     "4 Ohms)");
  ASSERT_EQ(texts.size(), 16U);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts[i].first, texts[i].second);
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(texts[i].first, texts[j].first);
  }
}

// Each thread has its own text, so that two readers never see each other's.
TEST(Diagnostics, TextsOfDifferentThreadsAreApart) {
  const FrequencyCountError error(1, 2, kToken);
  const char* const mine = error.what();
  std::string text_of_thread;
  const char* place_of_thread = nullptr;
  std::thread([&] {
    const FrequencyCountError other(3, 4, kToken);
    place_of_thread = other.what();
    text_of_thread = place_of_thread;
  }).join();
  EXPECT_NE(place_of_thread, mine);
  EXPECT_EQ(text_of_thread, "wrong number of frequency points (found 3 but expected 4)");
  EXPECT_STREQ(mine, "wrong number of frequency points (found 1 but expected 2)");
}

TEST(Diagnostics, ThreadsMayComposeTheSameMessageAtOnce) {
  std::vector<std::thread> threads;
  std::vector<int> wrong(4, 0);
  for (std::size_t k = 0; k < wrong.size(); ++k) {
    threads.emplace_back([k, &wrong] {
      const FrequencyCountError error(k, k + 1, kToken);
      const std::string expected = "wrong number of frequency points (found " + std::to_string(k) +
                                   " but expected " + std::to_string(k + 1) + ")";
      for (int i = 0; i < 10000; ++i) {
        if (error.what() != expected) ++wrong[k];
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, std::vector<int>(4, 0));
}

TEST(Diagnostics, CanBeThrownAndCaughtByEveryBase) {
  try {
    throw FrequencyCountError(3, 4, kToken);
  } catch (const ParserError& error) {
    EXPECT_STREQ(error.what(), "wrong number of frequency points (found 3 but expected 4)");
  }
  try {
    throw ParserError(ErrorType::InvalidOption, kToken);
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "invalid option");
  }
  EXPECT_THROW(throw InvalidCharacterWarning(kToken), ParserWarning);
}

}  // namespace
}  // namespace touchstone2
