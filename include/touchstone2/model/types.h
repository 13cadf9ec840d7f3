/// Small value types that the whole library shares.
///
/// Every enumeration is 32 bits wide and its value 0 means "the file did not say".
/// The numeric values are interface: callers store them and compare against them.
#ifndef TOUCHSTONE2_MODEL_TYPES_H
#define TOUCHSTONE2_MODEL_TYPES_H

#include <cstddef>
#include <cstdint>

namespace touchstone2 {

/// Generation of the format. The value is the major version number shifted left by 16 bits.
enum class FileVersion : std::uint32_t {
  Unspecified = 0,  ///< nothing was read yet
  V1 = 0x10000,     ///< an options line and rows of numbers
  V2 = 0x20000,     ///< bracketed keywords, "[Version] 2.0"
};

/// Frequency unit of the options line. File::get_frequency_multiplier gives the factor to Hz.
enum class FrequencyScaleFactor : std::uint32_t {
  Unspecified = 0,  ///< counts as a factor of 1.0; writers print nothing for it
  Hz = 1,           ///< factor 1.0
  kHz = 2,          ///< factor 1000.0
  MHz = 3,          ///< factor 1e6
  GHz = 4,          ///< factor 1e9, what an options line without a unit means
};

/// Kind of network parameter that the matrices hold.
enum class ParameterType : std::uint32_t {
  Unspecified = 0,  ///< nothing was read yet; writers print nothing for it
  S = 1,            ///< scattering parameters
  Y = 2,            ///< admittance parameters
  Z = 3,            ///< impedance parameters
  H = 4,            ///< hybrid-h parameters, 2-port networks only
  G = 5,            ///< hybrid-g parameters, 2-port networks only
};

/// How a complex value is written as two numbers. Angles are in degrees.
enum class ComplexFormat : std::uint32_t {
  Unspecified = 0,  ///< nothing was read yet; see NetworkParams::Cell::as_format
  DB = 1,           ///< 20 log10(magnitude), angle
  MA = 2,           ///< linear magnitude, angle
  RI = 3,           ///< real part, imaginary part
};

/// Which cells of each frequency's matrix a version 2 file lists.
enum class MatrixFormat : std::uint32_t {
  Unspecified = 0,  ///< nothing was read yet
  Full = 1,         ///< every cell
  Upper = 2,        ///< cells on and above the diagonal of a symmetric matrix
  Lower = 3,        ///< cells on and below the diagonal of a symmetric matrix
};

/// Column order of 2-port data. Only `Order_21_12` counts as 21_12 anywhere; every other
/// value, `Unspecified` included, is written as 12_21.
enum class TwoPortDataOrder : std::uint32_t {
  Unspecified = 0,  ///< the file did not say, as when it has not two ports
  Order_12_21 = 1,  ///< N11, N12, N21, N22
  Order_21_12 = 2,  ///< N11, N21, N12, N22, the order of version 1 files
};

/// Kind of one mixed-mode port descriptor.
enum class MixedModeKind : std::uint32_t {
  SingleEnded = 0,   ///< one port by itself, "S2"
  Differential = 1,  ///< differential mode of a pair, "D1,3"
  Common = 2,        ///< common mode of a pair, "C1,3"
};

/// One entry of the "[Mixed-Mode Order]" list: which port, or which pair of ports, one row
/// and column of the matrices belongs to. Ports are counted from 1.
struct MixedModeDescriptor {
  MixedModeKind kind = MixedModeKind::SingleEnded;  ///< one port, or which mode of a pair
  std::size_t first_port = 0;                       ///< from 1; 0 before it is set
  std::size_t second_port = 0;  ///< the other port of a pair; 0 for `SingleEnded`
};

/// Equal when kind and both ports are; the pairs 1,3 and 3,1 differ.
inline bool operator==(const MixedModeDescriptor& a, const MixedModeDescriptor& b) {
  return a.kind == b.kind && a.first_port == b.first_port && a.second_port == b.second_port;
}

/// The opposite of ==.
inline bool operator!=(const MixedModeDescriptor& a, const MixedModeDescriptor& b) {
  return !(a == b);
}

}  // namespace touchstone2

#endif
