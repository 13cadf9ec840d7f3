// The script function that gives the port names of a file, free of the host's types: it asks
// for its argument and hands over its result through ScriptCall.
#ifndef TOUCHSTONE2_SRC_BINDING_PORT_NAMES_FUNCTION_H
#define TOUCHSTONE2_SRC_BINDING_PORT_NAMES_FUNCTION_H

#include <optional>
#include <string>
#include <vector>

namespace touchstone2::binding {

// One call of a native function by a script.
class ScriptCall {
 public:
  ScriptCall() = default;
  ScriptCall(const ScriptCall&) = delete;
  ScriptCall& operator=(const ScriptCall&) = delete;

  // A copy of the argument's characters, nothing when the script gave no value. Arguments
  // count from 0.
  virtual std::optional<std::string> string_argument(unsigned index) = 0;

  // Makes a list of strings the result. A call without it ends in an empty result.
  virtual void return_list(const std::vector<std::string>& strings) = 0;

 protected:
  ~ScriptCall() = default;
};

// Reads the file that argument 0 names and returns the names of its ports, an empty string for
// each port without one. Diagnostics go to the standard error stream.
//
// Returns nothing, and reports nothing, when the file holds other than S-parameters.
//
// Throws std::runtime_error, whose text the host shows to the script's user:
//   "Value is null."                                             no argument
//   "The file\n   NAME\ncould not be read and parsed"            unreadable or with errors
void port_names_function(ScriptCall& call);

}  // namespace touchstone2::binding

#endif
