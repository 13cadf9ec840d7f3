// Files that the tests of the script function read.
#ifndef TOUCHSTONE2_TESTS_BINDING_SAMPLES_H
#define TOUCHSTONE2_TESTS_BINDING_SAMPLES_H

#include <string_view>

namespace touchstone2::test {

inline constexpr std::string_view kThreePortsTwoNamed =
    "! Port[1] = input\n"
    "! Port[2] = through\n"
    "# GHz S RI R 50\n"
    "1  1 0  2 0  3 0\n"
    "   4 0  5 0  6 0\n"
    "   7 0  8 0  9 0\n";

// With noise data, which nobody in the library deletes.
inline constexpr std::string_view kTwoPortsWithNoise =
    "! Port[1] = gate\n"
    "! Port[2] = drain\n"
    "# GHz S MA R 50\n"
    "1  0.1 10  2.0 20  0.3 30  0.4 40\n"
    "2  0.2 10  2.0 20  0.3 30  0.4 40\n"
    "1  0.5  0.4 100  0.2\n"
    "2  0.6  0.5 110  0.3\n";

inline constexpr std::string_view kAdmittances =
    "! Port[1] = a\n"
    "# GHz Y RI R 50\n"
    "1  0.5 0.25\n";

// Has its noise data when the error, no "[End]", is found.
inline constexpr std::string_view kBrokenBehindNoise =
    "[Version] 2.0\n"
    "# GHz S MA R 50\n"
    "[Number of Ports] 2\n"
    "[Two-Port Data Order] 21_12\n"
    "[Number of Frequencies] 1\n"
    "[Number of Noise Frequencies] 1\n"
    "[Network Data]\n"
    "1  0.1 10  2.0 20  0.3 30  0.4 40\n"
    "[Noise Data]\n"
    "1  0.5  0.4 100  0.2\n";

}  // namespace touchstone2::test

#endif
