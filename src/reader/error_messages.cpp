// The table of codes and fixed messages. Some wording looks like a slip ("before and [End
// Information]", "a [End Information]") and is kept: scripts match these texts.
#include <touchstone2/reader/error_type.h>

namespace touchstone2 {

namespace {

struct CodeMessage {
  ErrorType code;
  const char* message;
};

constexpr CodeMessage kMessages[] = {
    {ErrorType::FileAccess, "problem with attempting to read the file"},
    {ErrorType::FileNotFound, "file not found"},
    {ErrorType::FileUnreadable, "file is unreadable"},
    {ErrorType::FileEmpty, "file appears to be empty"},

    {ErrorType::FileFormat, "error in Touchstone file format"},
    {ErrorType::OnlyCommentsOrBlankLines, "file contains only comments or blank lines"},
    {ErrorType::NotATouchstoneFile, "file does not appear to be a Touchstone file"},
    {ErrorType::InvalidCharacter, "invalid character"},
    {ErrorType::ExpectedEndOfLine, "expected end-of-line termination"},
    {ErrorType::MissingFinalEndOfLine, "expected end-of-line termination before end-of-file"},
    {ErrorType::ExpectedWhitespace, "expected whitespace"},
    {ErrorType::ExpectedNumber, "expected to find numeric data"},
    {ErrorType::ExpectedInteger, "expected an integer"},
    {ErrorType::KeywordNotAtLineStart, "keyword is not at the start of the line"},
    {ErrorType::OptionsMarkNotAtLineStart, "# is not at the start of the line"},
    {ErrorType::FrequencyNotAtLineStart, "frequency value not found at the start of the line"},
    {ErrorType::KeywordNotClosed, "keyword is missing the closing bracket"},
    {ErrorType::UnsupportedVersion, "unsupported argument for the [Version] keyword"},
    {ErrorType::UnrecognizedKeyword, "unrecognized keyword"},
    {ErrorType::KeywordInVersion1File, "keywords are not supported in Touchstone v1 files"},
    {ErrorType::InvalidNumberOfPorts, "the [Number of Ports] argument must be a positive integer"},
    {ErrorType::TwoPortDataOrderNeedsTwoPorts,
     "the [Two-Port Data Order] keyword is only valid for a file with 2-port data"},
    {ErrorType::TwoPortDataOrderMissing,
     "the [Two-Port Data Order] keyword is required to appear prior to 2-port network data"},
    {ErrorType::InvalidTwoPortDataOrder, "expected '21_12' or '12_21' for the two-port data order"},
    {ErrorType::InvalidNumberOfFrequencies,
     "the [Number of Frequencies] argument must be a positive integer"},
    {ErrorType::InvalidNumberOfNoiseFrequencies,
     "the [Number of Noise Frequencies] argument must be a positive integer"},
    {ErrorType::WrongReferenceImpedanceCount,
     "the number of reference impedances must match the number of ports"},
    {ErrorType::InvalidMatrixFormat, "expected 'Full', 'Upper', or 'Lower' for the matrix format"},
    {ErrorType::ExpectedMixedModeDescriptor, "expected a mixed-mode port descriptor"},
    {ErrorType::MixedModeNeedsSYZParameters,
     "mixed-mode data is only valid for S-, Y-, and Z-parameters"},
    {ErrorType::GParametersNeedTwoPorts, "G-parameters are only defined for 2-port networks"},
    {ErrorType::HParametersNeedTwoPorts, "H-parameters are only defined for 2-port networks"},
    {ErrorType::NoiseDataMissing,
     "[Number of Noise Frequencies] given but no [Noise Data] was found"},
    {ErrorType::NoiseDataAboveNetworkData,
     "first noise frequency must be no greater than the largest network-data frequency"},
    {ErrorType::ExtraLinesAtEnd, "found extra lines at the end of the file"},

    {ErrorType::OptionsLine, "error in Touchstone options line"},
    {ErrorType::ExpectedOptionsLine, "expected to find an options line"},
    {ErrorType::OptionGivenTwice, "option overrides an earlier option"},
    {ErrorType::InvalidOption, "invalid option"},
    {ErrorType::ReferenceImpedanceMissing, "the reference impedance is invalid or missing"},
    {ErrorType::InvalidReferenceImpedance, "the reference impedance is invalid"},
    {ErrorType::SecondaryOptionsLineIgnored,
     "ignored secondary options line; only the first options line is used"},
    {ErrorType::InvalidSecondaryOptionsLine, "invalid secondary options line"},

    {ErrorType::KeywordOrder, "error in keyword ordering"},
    {ErrorType::ExpectedVersionFirst, "[Version] must be the first keyword"},
    {ErrorType::ExpectedNumberOfPorts, "expected to find the [Number of Ports] keyword"},
    {ErrorType::ExpectedBeginInformation,
     "expected to find a [Begin Information] keyword before and [End Information] keyword"},
    {ErrorType::ExpectedEndInformation,
     "expected to find a [End Information] keyword after the [Begin Information] keyword"},
    {ErrorType::ExpectedNetworkData, "expected to find a [Network Data] keyword"},
    {ErrorType::ExpectedNumberOfFrequencies, "expected to find a [Number of Frequencies] keyword"},
    {ErrorType::ExpectedNumberOfNoiseFrequencies,
     "expected to find a [Number of Noise Frequencies] keyword"},
    {ErrorType::KeywordGivenTwice, "keyword has been specified twice"},
    {ErrorType::ExpectedEnd, "expected to find the [End] keyword"},
    {ErrorType::KeywordOutOfOrder, "keyword is out of order"},

    {ErrorType::DataFormat, "error in Touchstone data format"},
    {ErrorType::ClippingLargeNumber, "clipping a very large number"},
    {ErrorType::ClippingSmallNumber, "clipping a very small number"},
    {ErrorType::MoreThanFourPairsPerLine,
     "Touchstone v1 files must not exceed four data pairs per line"},
    {ErrorType::OnePortRecordOnSeveralLines,
     "Touchstone v1 files require 1-port network data to appear on one line per frequency point"},
    {ErrorType::TwoPortRecordOnSeveralLines,
     "Touchstone v1 files require 2-port network data to appear on one line per frequency point"},
    {ErrorType::NetworkDataNotSquare, "detected a number of ports that isn't N x N"},
    {ErrorType::FrequencyWithoutData, "found a frequency point with no data"},
    {ErrorType::IncorrectNumberOfNetworkValues, "incorrect number of values for network data"},
    {ErrorType::IncorrectNumberOfNoiseValues, "incorrect number of values for noise data"},
    {ErrorType::WrongFrequencyCount, "wrong number of frequency points"},
    {ErrorType::FrequencyOrder, "frequency points must be listed in increasing order"},
    {ErrorType::NegativeFrequency, "frequency must not be negative"},
    {ErrorType::NegativeMagnitude, "magnitude must not be negative"},
    {ErrorType::NegativeImpedance, "impedance must not be negative"},
    {ErrorType::WrongMixedModeDescriptorCount,
     "the number of mixed-mode port descriptors must match the number of ports"},
    {ErrorType::MixedModeDescriptorsMissPort, "mixed-mode port descriptors must cover all ports"},
    {ErrorType::MixedModeDescriptorOverlap, "illegal overlap of mixed-mode port descriptors"},
    {ErrorType::MismatchedCommonDifferentialPorts,
     "common-mode and differential-mode port descriptors must reference the same pair of ports"},
    {ErrorType::DifferentialPortsImpedance, "different reference impedance for mixed-mode ports"},
    {ErrorType::NoiseDataNeedTwoPorts, "noise data may only be specified for a 2-port data file"},
    {ErrorType::NonphysicalNoise, "nonphysical noise behavior described"},
};

}  // namespace

const char* error_message(ErrorType code) noexcept {
  for (const CodeMessage& entry : kMessages) {
    if (entry.code == code) return entry.message;
  }
  return "unknown Touchstone parser error";
}

}  // namespace touchstone2
