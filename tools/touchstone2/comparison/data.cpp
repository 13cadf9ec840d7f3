// The forms of values, as the files and the units name them.

#include "comparison/data.h"

namespace tool {

std::string_view form_text(ValueForm form) {
  switch (form) {
    case ValueForm::ri:
      return "RI";
    case ValueForm::ma:
      return "MA";
    case ValueForm::db:
      return "DB";
    case ValueForm::decibels:
      return "dB";
    case ValueForm::ohms:
      return "ohm";
  }
  return "";
}

bool is_single(ValueForm form) { return form == ValueForm::decibels || form == ValueForm::ohms; }

}  // namespace tool
