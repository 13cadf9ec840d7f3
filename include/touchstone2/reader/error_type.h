/// Numeric codes of all diagnostics and their fixed messages.
#ifndef TOUCHSTONE2_READER_ERROR_TYPE_H
#define TOUCHSTONE2_READER_ERROR_TYPE_H

#include <touchstone2/export.h>

#include <cstdint>

namespace touchstone2 {

/// One code per rule of the format. The numbers are interface: users search for them and
/// scripts match them. Errors and warnings share the enumeration; the class of a diagnostic
/// tells which of the two it is. The first code of each group is the group's heading and is
/// never raised. docs/diagnostics has a page for each, with the smallest file that raises it.
enum class ErrorType : std::int32_t {
  // Access to the file.
  FileAccess = 1000,  ///< heading
  FileNotFound = 1001,
  FileUnreadable = 1002,
  FileEmpty = 1003,

  // General format of the file, its keywords and its end.
  FileFormat = 2000,  ///< heading
  OnlyCommentsOrBlankLines = 2001,
  NotATouchstoneFile = 2002,
  InvalidCharacter = 2003,  ///< error, or warning inside a comment
  ExpectedEndOfLine = 2004,
  MissingFinalEndOfLine = 2005,  ///< warning
  ExpectedWhitespace = 2006,
  ExpectedNumber = 2007,
  ExpectedInteger = 2008,
  KeywordNotAtLineStart = 2009,
  OptionsMarkNotAtLineStart = 2010,  ///< warning
  FrequencyNotAtLineStart = 2011,
  KeywordNotClosed = 2012,
  UnsupportedVersion = 2013,
  UnrecognizedKeyword = 2014,
  KeywordInVersion1File = 2015,
  InvalidNumberOfPorts = 2016,
  TwoPortDataOrderNeedsTwoPorts = 2017,
  TwoPortDataOrderMissing = 2018,
  InvalidTwoPortDataOrder = 2019,
  InvalidNumberOfFrequencies = 2020,
  InvalidNumberOfNoiseFrequencies = 2021,
  WrongReferenceImpedanceCount = 2022,
  InvalidMatrixFormat = 2023,
  ExpectedMixedModeDescriptor = 2024,
  MixedModeNeedsSYZParameters = 2025,
  GParametersNeedTwoPorts = 2026,
  HParametersNeedTwoPorts = 2027,
  NoiseDataMissing = 2028,
  NoiseDataAboveNetworkData = 2029,
  ExtraLinesAtEnd = 2030,

  // The options line.
  OptionsLine = 2100,  ///< heading
  ExpectedOptionsLine = 2101,
  OptionGivenTwice = 2102,
  InvalidOption = 2103,
  ReferenceImpedanceMissing = 2104,
  InvalidReferenceImpedance = 2105,
  SecondaryOptionsLineIgnored = 2106,  ///< warning
  InvalidSecondaryOptionsLine = 2107,

  // Order and presence of keywords.
  KeywordOrder = 2200,  ///< heading
  ExpectedVersionFirst = 2201,
  ExpectedNumberOfPorts = 2202,
  ExpectedBeginInformation = 2203,
  ExpectedEndInformation = 2204,
  ExpectedNetworkData = 2205,
  ExpectedNumberOfFrequencies = 2206,
  ExpectedNumberOfNoiseFrequencies = 2207,
  KeywordGivenTwice = 2208,
  ExpectedEnd = 2209,
  KeywordOutOfOrder = 2210,

  // Numeric data.
  DataFormat = 2300,                ///< heading
  ClippingLargeNumber = 2301,       ///< warning
  ClippingSmallNumber = 2302,       ///< warning
  MoreThanFourPairsPerLine = 2303,  ///< never raised: lines of any length are accepted
  OnePortRecordOnSeveralLines = 2304,
  TwoPortRecordOnSeveralLines = 2305,
  NetworkDataNotSquare = 2306,
  FrequencyWithoutData = 2307,
  IncorrectNumberOfNetworkValues = 2308,
  IncorrectNumberOfNoiseValues = 2309,
  WrongFrequencyCount = 2310,
  FrequencyOrder = 2311,
  NegativeFrequency = 2312,
  NegativeMagnitude = 2313,
  NegativeImpedance = 2314,
  WrongMixedModeDescriptorCount = 2315,
  MixedModeDescriptorsMissPort = 2316,
  MixedModeDescriptorOverlap = 2317,
  MismatchedCommonDifferentialPorts = 2318,
  DifferentialPortsImpedance = 2319,
  NoiseDataNeedTwoPorts = 2320,
  NonphysicalNoise = 2321,  ///< warning
};

/// The fixed message of a code, a string with static lifetime; "unknown Touchstone parser
/// error" for a value that is no code. Diagnostics that carry values of their own say more:
/// ask their what().
TOUCHSTONE2_EXPORT const char* error_message(ErrorType code) noexcept;

}  // namespace touchstone2

#endif
