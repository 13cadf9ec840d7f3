// What the module needs of the host's script runtime, declared by the names under which the
// runtime library exports it. Nothing of it is defined here: the module links to the runtime,
// or to the tests' stand-in for it.
//
// The runtime is closed. Where its own headers are at hand, this file is the only one to change:
// it then includes them, and what they spell differently is adapted here and in
// script_registration.cpp, the only file that includes this one.
#ifndef TOUCHSTONE2_SRC_BINDING_SCRIPT_HOST_H
#define TOUCHSTONE2_SRC_BINDING_SCRIPT_HOST_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// A script value inside the runtime; only the runtime knows what it is.
struct WUXObject;

// Holds one script value and releases it at the end.
class WUXValue {
 public:
  explicit WUXValue(WUXObject* object) : object_(object) {}
  WUXValue(WUXValue&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  WUXValue(const WUXValue&) = delete;
  WUXValue& operator=(const WUXValue&) = delete;
  ~WUXValue();  // the runtime's

 protected:
  WUXObject* object_;  // null: none
};

// Holds a list until it is detached.
class ListWUXValue {
 public:
  explicit ListWUXValue(WUXObject* object) : object_(object) {}
  ListWUXValue(ListWUXValue&& other) noexcept : object_(other.detach()) {}
  ListWUXValue(const ListWUXValue&) = delete;
  ListWUXValue& operator=(const ListWUXValue&) = delete;
  ~ListWUXValue();  // the runtime's

  // The list, which the caller now owns.
  WUXObject* detach() { return std::exchange(object_, nullptr); }

 private:
  WUXObject* object_;  // null: none
};

namespace wux {

// An argument of the script function that is being called.
template <typename T>
class Parm : public WUXValue {
 public:
  Parm(WUXObject* object, const T* value) : WUXValue(object), value_(value) {}

  // Null when the script gave no value. Good as long as this object.
  const T* value() const { return value_; }

 private:
  const T* value_;
};

// Arguments count from 0. Good while a native function runs.
Parm<std::string> get_string_parm(unsigned index);

}  // namespace wux

ListWUXValue create_WUX_list(const std::vector<std::string>& strings);

// One script function. What the words of zero mean is the runtime's business.
struct FunctionDef {
  const char* name;
  std::uintptr_t zero;
  WUXObject* (*native)();  // the result is the runtime's to release; null is an empty one
  std::uintptr_t zeros[6];
};

// A named set of script functions.
struct VocDef {
  const char* name;
  const char* language;
  FunctionDef* functions;
  std::uintptr_t number_of_functions;
};

struct ValueTypeDef;

// Takes the records as they are, so they must live as long as the process.
bool wutil_initialize(void (*callback)(), unsigned number_of_value_types, ValueTypeDef* value_types,
                      unsigned number_of_vocabularies, VocDef* vocabularies);

#endif
