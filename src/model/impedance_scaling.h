// Version 1 files hold Y-, Z-, H- and G-parameters relative to one reference impedance R; the
// model holds ohms and siemens. Reading scales one way, writing the other.
#ifndef TOUCHSTONE2_SRC_MODEL_IMPEDANCE_SCALING_H
#define TOUCHSTONE2_SRC_MODEL_IMPEDANCE_SCALING_H

#include <touchstone2/model/types.h>

#include <cstddef>

namespace touchstone2::detail {

// One value (a, b) of cell (row, col), indices from 0, in the given format, from relative to
// absolute and back, in place. Hybrid parameters mix impedances, admittances and plain ratios,
// which stay as they are; so do the values of an unknown format. `ohms` is used as it stands.
void denormalize_value(ParameterType type, ComplexFormat format, double ohms, std::size_t row,
                       std::size_t col, double& a, double& b);
void normalize_value(ParameterType type, ComplexFormat format, double ohms, std::size_t row,
                     std::size_t col, double& a, double& b);

}  // namespace touchstone2::detail

#endif
