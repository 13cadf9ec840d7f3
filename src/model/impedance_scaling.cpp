// Dividing is not multiplying by 1/R: the last bit is part of the result.
#include "model/impedance_scaling.h"

#include <cmath>

namespace touchstone2::detail {

namespace {

enum class Dimension { ratio, impedance, admittance };

Dimension cell_dimension(ParameterType type, std::size_t row, std::size_t col) {
  const bool first = row == 0 && col == 0;
  const bool second = row == 1 && col == 1;
  switch (type) {
    case ParameterType::Y:
      return Dimension::admittance;
    case ParameterType::Z:
      return Dimension::impedance;
    case ParameterType::H:
      if (first) return Dimension::impedance;
      if (second) return Dimension::admittance;
      break;
    case ParameterType::G:
      if (first) return Dimension::admittance;
      if (second) return Dimension::impedance;
      break;
    case ParameterType::S:
    case ParameterType::Unspecified:
      break;
  }
  return Dimension::ratio;
}

// In dB, multiplying is adding 20 log10(ohms).
void multiply_value(ComplexFormat format, double ohms, double& a, double& b) {
  switch (format) {
    case ComplexFormat::DB:
      a += 20 * std::log10(ohms);
      break;
    case ComplexFormat::MA:
      a *= ohms;
      break;
    case ComplexFormat::RI:
      a *= ohms;
      b *= ohms;
      break;
    case ComplexFormat::Unspecified:
      break;
  }
}

void divide_value(ComplexFormat format, double ohms, double& a, double& b) {
  switch (format) {
    case ComplexFormat::DB:
      a -= 20 * std::log10(ohms);
      break;
    case ComplexFormat::MA:
      a /= ohms;
      break;
    case ComplexFormat::RI:
      a /= ohms;
      b /= ohms;
      break;
    case ComplexFormat::Unspecified:
      break;
  }
}

}  // namespace

void denormalize_value(ParameterType type, ComplexFormat format, double ohms, std::size_t row,
                       std::size_t col, double& a, double& b) {
  switch (cell_dimension(type, row, col)) {
    case Dimension::ratio:
      break;
    case Dimension::impedance:
      multiply_value(format, ohms, a, b);
      break;
    case Dimension::admittance:
      divide_value(format, ohms, a, b);
      break;
  }
}

void normalize_value(ParameterType type, ComplexFormat format, double ohms, std::size_t row,
                     std::size_t col, double& a, double& b) {
  switch (cell_dimension(type, row, col)) {
    case Dimension::ratio:
      break;
    case Dimension::impedance:
      divide_value(format, ohms, a, b);
      break;
    case Dimension::admittance:
      multiply_value(format, ohms, a, b);
      break;
  }
}

}  // namespace touchstone2::detail
