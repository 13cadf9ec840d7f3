// Texts of valid files of every kind, made from a seed: the same text for the same seed on every
// system.
#ifndef TOUCHSTONE2_TESTS_PROPERTIES_GENERATED_TEXT_H
#define TOUCHSTONE2_TESTS_PROPERTIES_GENERATED_TEXT_H

#include <cstdint>
#include <string>

namespace touchstone2::test {

// Kinds of numbers: what people type, and what programs compute.
enum class Numbers { short_decimals, random_bits };

// Version 1 or 2; all parameter types, formats, units and matrix formats; 1 to 9 ports; noise,
// references and mixed mode where they can be; comments and port names in several forms.
std::string generated_text(std::uint32_t seed, Numbers numbers);

}  // namespace touchstone2::test

#endif
