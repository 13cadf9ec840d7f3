/// What a file holds, as short text for people and for JSON. Nothing depends on the locale.
#ifndef TOUCHSTONE2_TOOL_VALUE_TEXT_H
#define TOUCHSTONE2_TOOL_VALUE_TEXT_H

#include <touchstone2/model/file.h>
#include <touchstone2/model/types.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace tool {

// The words of the format itself; "" for a value that the file did not give.
std::string_view version_text(touchstone2::FileVersion version);
std::string_view unit_text(touchstone2::FrequencyScaleFactor unit);
std::string_view parameter_text(touchstone2::ParameterType parameter);
std::string_view format_text(touchstone2::ComplexFormat format);
std::string_view matrix_text(touchstone2::MatrixFormat format);
std::string_view order_text(touchstone2::TwoPortDataOrder order);

/// "S1", "D1,2" or "C1,2".
std::string descriptor_text(const touchstone2::MixedModeDescriptor& descriptor);

/// "D1,2 C1,2", or "no".
std::string mixed_mode_text(const touchstone2::File& file);

/// The shortest text that reads back as the same number.
std::string number_text(double value);

/// The number with six significant digits at most.
std::string rounded_text(double value);

/// "1 frequency", "3 frequencies": `many` is "frequencies".
std::string count_text(std::size_t count, std::string_view one, std::string_view many);

/// "1,234,567".
std::string grouped(std::size_t number);

/// A frequency in engineering units, as "2.45 GHz", to at most 12 digits. The unit is applied
/// to the decimal digits, so 4.1 GHz never turns into 4.0999999999999995 GHz.
/// @param unscaled  the frequency in the file's unit
std::string frequency_text(double unscaled, touchstone2::FrequencyScaleFactor unit);

/// The same with all digits: frequencies that differ have different texts.
std::string exact_frequency_text(double unscaled, touchstone2::FrequencyScaleFactor unit);

/// The number of Hz that is nearest to the decimal text of the frequency: 4.1 GHz gives
/// 4100000000, which 4.1 * 1e9 misses. Infinity beyond the range of a double.
double frequency_in_hz(double unscaled, touchstone2::FrequencyScaleFactor unit);

/// The text with its control characters as "\x1b", so that a file cannot steer a terminal.
std::string printable(std::string_view text);

/// The text with every byte but printable ASCII as "\xb5", the tab included.
std::string printable_ascii(std::string_view text);

}  // namespace tool

#endif
