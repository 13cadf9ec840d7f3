// What the tests do with the stand-in for the host's script runtime. What the module does with
// it is declared in binding/script_host.h.
#ifndef TOUCHSTONE2_TESTS_BINDING_STAND_IN_HOST_H
#define TOUCHSTONE2_TESTS_BINDING_STAND_IN_HOST_H

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "binding/script_host.h"

namespace stand_in_host {

// The arguments of the latest wutil_initialize.
struct Registration {
  int calls = 0;
  void (*callback)() = nullptr;
  unsigned number_of_value_types = 0;
  ValueTypeDef* value_types = nullptr;
  unsigned number_of_vocabularies = 0;
  VocDef* vocabularies = nullptr;
};

const Registration& registration();

// What wutil_initialize answers from now on; true at first.
void set_answer(bool answer);

// What a script sees of one call.
struct Outcome {
  enum class Kind { list, null, exception };

  Kind kind;
  std::vector<std::string> strings;  // of a list
  std::string text;                  // of an exception

  bool operator==(const Outcome&) const = default;
};

// For the tests' messages.
std::ostream& operator<<(std::ostream& stream, const Outcome& outcome);

// Calls a registered function by the name that scripts use, as the host does: catches what it
// throws, takes the result and releases it.
Outcome call(const std::string& function, const std::optional<std::string>& argument);

// Values that were made and are not yet released, and how many were made in all.
int live_values();
int made_values();

// Values that were alive when the host was last asked to make a list, the list not counted.
int live_values_at_list();

}  // namespace stand_in_host

#endif
