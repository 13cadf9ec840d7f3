// Numbers and texts of all codes, to the letter: scripts match them.

#include <touchstone2/reader/error_type.h>

#include <cstdint>
#include <limits>
#include <set>
#include <type_traits>

#include <gtest/gtest.h>

namespace touchstone2 {
namespace {

struct Row {
  ErrorType code;
  std::int32_t number;
  const char* message;
};

const Row kRows[] = {
    {ErrorType::FileAccess, 1000, "problem with attempting to read the file"},
    {ErrorType::FileNotFound, 1001, "file not found"},
    {ErrorType::FileUnreadable, 1002, "file is unreadable"},
    {ErrorType::FileEmpty, 1003, "file appears to be empty"},
    {ErrorType::FileFormat, 2000, "error in Touchstone file format"},
    {ErrorType::OnlyCommentsOrBlankLines, 2001, "file contains only comments or blank lines"},
    {ErrorType::NotATouchstoneFile, 2002, "file does not appear to be a Touchstone file"},
    {ErrorType::InvalidCharacter, 2003, "invalid character"},
    {ErrorType::ExpectedEndOfLine, 2004, "expected end-of-line termination"},
    {ErrorType::MissingFinalEndOfLine, 2005, "expected end-of-line termination before end-of-file"},
    {ErrorType::ExpectedWhitespace, 2006, "expected whitespace"},
    {ErrorType::ExpectedNumber, 2007, "expected to find numeric data"},
    {ErrorType::ExpectedInteger, 2008, "expected an integer"},
    {ErrorType::KeywordNotAtLineStart, 2009, "keyword is not at the start of the line"},
    {ErrorType::OptionsMarkNotAtLineStart, 2010, "# is not at the start of the line"},
    {ErrorType::FrequencyNotAtLineStart, 2011,
     "frequency value not found at the start of the line"},
    {ErrorType::KeywordNotClosed, 2012, "keyword is missing the closing bracket"},
    {ErrorType::UnsupportedVersion, 2013, "unsupported argument for the [Version] keyword"},
    {ErrorType::UnrecognizedKeyword, 2014, "unrecognized keyword"},
    {ErrorType::KeywordInVersion1File, 2015, "keywords are not supported in Touchstone v1 files"},
    {ErrorType::InvalidNumberOfPorts, 2016,
     "the [Number of Ports] argument must be a positive integer"},
    {ErrorType::TwoPortDataOrderNeedsTwoPorts, 2017,
     "the [Two-Port Data Order] keyword is only valid for a file with 2-port data"},
    {ErrorType::TwoPortDataOrderMissing, 2018,
     "the [Two-Port Data Order] keyword is required to appear prior to 2-port network data"},
    {ErrorType::InvalidTwoPortDataOrder, 2019,
     "expected '21_12' or '12_21' for the two-port data order"},
    {ErrorType::InvalidNumberOfFrequencies, 2020,
     "the [Number of Frequencies] argument must be a positive integer"},
    {ErrorType::InvalidNumberOfNoiseFrequencies, 2021,
     "the [Number of Noise Frequencies] argument must be a positive integer"},
    {ErrorType::WrongReferenceImpedanceCount, 2022,
     "the number of reference impedances must match the number of ports"},
    {ErrorType::InvalidMatrixFormat, 2023,
     "expected 'Full', 'Upper', or 'Lower' for the matrix format"},
    {ErrorType::ExpectedMixedModeDescriptor, 2024, "expected a mixed-mode port descriptor"},
    {ErrorType::MixedModeNeedsSYZParameters, 2025,
     "mixed-mode data is only valid for S-, Y-, and Z-parameters"},
    {ErrorType::GParametersNeedTwoPorts, 2026, "G-parameters are only defined for 2-port networks"},
    {ErrorType::HParametersNeedTwoPorts, 2027, "H-parameters are only defined for 2-port networks"},
    {ErrorType::NoiseDataMissing, 2028,
     "[Number of Noise Frequencies] given but no [Noise Data] was found"},
    {ErrorType::NoiseDataAboveNetworkData, 2029,
     "first noise frequency must be no greater than the largest network-data frequency"},
    {ErrorType::ExtraLinesAtEnd, 2030, "found extra lines at the end of the file"},
    {ErrorType::OptionsLine, 2100, "error in Touchstone options line"},
    {ErrorType::ExpectedOptionsLine, 2101, "expected to find an options line"},
    {ErrorType::OptionGivenTwice, 2102, "option overrides an earlier option"},
    {ErrorType::InvalidOption, 2103, "invalid option"},
    {ErrorType::ReferenceImpedanceMissing, 2104, "the reference impedance is invalid or missing"},
    {ErrorType::InvalidReferenceImpedance, 2105, "the reference impedance is invalid"},
    {ErrorType::SecondaryOptionsLineIgnored, 2106,
     "ignored secondary options line; only the first options line is used"},
    {ErrorType::InvalidSecondaryOptionsLine, 2107, "invalid secondary options line"},
    {ErrorType::KeywordOrder, 2200, "error in keyword ordering"},
    {ErrorType::ExpectedVersionFirst, 2201, "[Version] must be the first keyword"},
    {ErrorType::ExpectedNumberOfPorts, 2202, "expected to find the [Number of Ports] keyword"},
    {ErrorType::ExpectedBeginInformation, 2203,
     "expected to find a [Begin Information] keyword before and [End Information] keyword"},
    {ErrorType::ExpectedEndInformation, 2204,
     "expected to find a [End Information] keyword after the [Begin Information] keyword"},
    {ErrorType::ExpectedNetworkData, 2205, "expected to find a [Network Data] keyword"},
    {ErrorType::ExpectedNumberOfFrequencies, 2206,
     "expected to find a [Number of Frequencies] keyword"},
    {ErrorType::ExpectedNumberOfNoiseFrequencies, 2207,
     "expected to find a [Number of Noise Frequencies] keyword"},
    {ErrorType::KeywordGivenTwice, 2208, "keyword has been specified twice"},
    {ErrorType::ExpectedEnd, 2209, "expected to find the [End] keyword"},
    {ErrorType::KeywordOutOfOrder, 2210, "keyword is out of order"},
    {ErrorType::DataFormat, 2300, "error in Touchstone data format"},
    {ErrorType::ClippingLargeNumber, 2301, "clipping a very large number"},
    {ErrorType::ClippingSmallNumber, 2302, "clipping a very small number"},
    {ErrorType::MoreThanFourPairsPerLine, 2303,
     "Touchstone v1 files must not exceed four data pairs per line"},
    {ErrorType::OnePortRecordOnSeveralLines, 2304,
     "Touchstone v1 files require 1-port network data to appear on one line per frequency point"},
    {ErrorType::TwoPortRecordOnSeveralLines, 2305,
     "Touchstone v1 files require 2-port network data to appear on one line per frequency point"},
    {ErrorType::NetworkDataNotSquare, 2306, "detected a number of ports that isn't N x N"},
    {ErrorType::FrequencyWithoutData, 2307, "found a frequency point with no data"},
    {ErrorType::IncorrectNumberOfNetworkValues, 2308,
     "incorrect number of values for network data"},
    {ErrorType::IncorrectNumberOfNoiseValues, 2309, "incorrect number of values for noise data"},
    {ErrorType::WrongFrequencyCount, 2310, "wrong number of frequency points"},
    {ErrorType::FrequencyOrder, 2311, "frequency points must be listed in increasing order"},
    {ErrorType::NegativeFrequency, 2312, "frequency must not be negative"},
    {ErrorType::NegativeMagnitude, 2313, "magnitude must not be negative"},
    {ErrorType::NegativeImpedance, 2314, "impedance must not be negative"},
    {ErrorType::WrongMixedModeDescriptorCount, 2315,
     "the number of mixed-mode port descriptors must match the number of ports"},
    {ErrorType::MixedModeDescriptorsMissPort, 2316,
     "mixed-mode port descriptors must cover all ports"},
    {ErrorType::MixedModeDescriptorOverlap, 2317, "illegal overlap of mixed-mode port descriptors"},
    {ErrorType::MismatchedCommonDifferentialPorts, 2318,
     "common-mode and differential-mode port descriptors must reference the same pair of ports"},
    {ErrorType::DifferentialPortsImpedance, 2319,
     "different reference impedance for mixed-mode ports"},
    {ErrorType::NoiseDataNeedTwoPorts, 2320,
     "noise data may only be specified for a 2-port data file"},
    {ErrorType::NonphysicalNoise, 2321, "nonphysical noise behavior described"},
};

const char* const kUnknown = "unknown Touchstone parser error";

const char* message_of(std::int32_t number) {
  return error_message(static_cast<ErrorType>(number));
}

TEST(ErrorType, IsA32BitSignedNumber) {
  static_assert(std::is_same_v<std::underlying_type_t<ErrorType>, std::int32_t>, "");
}

TEST(ErrorType, CodesHaveTheirNumbersAndMessages) {
  for (const Row& row : kRows) {
    EXPECT_EQ(static_cast<std::int32_t>(row.code), row.number);
    EXPECT_STREQ(error_message(row.code), row.message) << row.number;
    EXPECT_STREQ(message_of(row.number), row.message) << row.number;
  }
}

TEST(ErrorType, EveryOtherNumberIsUnknown) {
  std::set<std::int32_t> numbers;
  for (const Row& row : kRows) numbers.insert(row.number);
  for (std::int32_t number = -10; number < 5000; ++number) {
    if (numbers.count(number) == 0) {
      EXPECT_STREQ(message_of(number), kUnknown) << number;
    }
  }
  const std::int32_t rows[] = {std::numeric_limits<std::int32_t>::min(),
                               -1000,
                               0,
                               999,
                               1004,
                               1999,
                               2031,
                               2099,
                               2108,
                               2199,
                               2211,
                               2299,
                               2322,
                               65536 + 2000,
                               std::numeric_limits<std::int32_t>::max()};
  for (const std::int32_t number : rows) EXPECT_STREQ(message_of(number), kUnknown) << number;
}

TEST(ErrorType, GroupsAreDense) {
  struct Group {
    std::int32_t first, last;
  };
  const Group groups[] = {{1000, 1003}, {2000, 2030}, {2100, 2107}, {2200, 2210}, {2300, 2321}};
  std::size_t count = 0;
  for (const Group& group : groups) {
    for (std::int32_t number = group.first; number <= group.last; ++number, ++count) {
      EXPECT_STRNE(message_of(number), kUnknown) << number;
    }
  }
  EXPECT_EQ(count, std::size(kRows));
}

TEST(ErrorType, MessageIsOneStaticText) {
  EXPECT_EQ(error_message(ErrorType::FileNotFound), error_message(ErrorType::FileNotFound));
  static_assert(noexcept(error_message(ErrorType::FileNotFound)), "");
}

}  // namespace
}  // namespace touchstone2
