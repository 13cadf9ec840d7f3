// A script runtime with one registered module, one argument and counted values.
#include "binding/stand_in_host.h"

#include <exception>
#include <stdexcept>
#include <string_view>

// A string or a list of strings.
struct WUXObject {
  std::vector<std::string> strings;
};

namespace {

stand_in_host::Registration registered;
bool answer = true;
std::optional<std::string> current_argument;
int live = 0;
int made = 0;
int live_at_list = 0;

WUXObject* make(const std::vector<std::string>& strings) {
  auto* const object = new WUXObject{strings};
  ++live;
  ++made;
  return object;
}

void release(WUXObject* object) {
  if (object == nullptr) return;
  delete object;
  --live;
}

const FunctionDef& find(std::string_view function) {
  for (unsigned v = 0; v < registered.number_of_vocabularies; ++v) {
    const VocDef& vocabulary = registered.vocabularies[v];
    if (std::string_view(vocabulary.language) != "WUX") continue;
    for (std::uintptr_t f = 0; f < vocabulary.number_of_functions; ++f) {
      if (vocabulary.functions[f].name == function) return vocabulary.functions[f];
    }
  }
  throw std::invalid_argument("no such script function");
}

}  // namespace

WUXValue::~WUXValue() { release(object_); }

ListWUXValue::~ListWUXValue() { release(object_); }

wux::Parm<std::string> wux::get_string_parm(unsigned index) {
  if (index != 0 || !current_argument) return {nullptr, nullptr};
  WUXObject* const object = make({*current_argument});
  return {object, &object->strings.front()};
}

ListWUXValue create_WUX_list(const std::vector<std::string>& strings) {
  live_at_list = live;
  return ListWUXValue(make(strings));
}

bool wutil_initialize(void (*callback)(), unsigned number_of_value_types, ValueTypeDef* value_types,
                      unsigned number_of_vocabularies, VocDef* vocabularies) {
  registered = {registered.calls + 1,   callback,    number_of_value_types, value_types,
                number_of_vocabularies, vocabularies};
  return answer;
}

namespace stand_in_host {

const Registration& registration() { return registered; }

void set_answer(bool new_answer) { answer = new_answer; }

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
  constexpr const char* kKinds[] = {"list", "null", "exception"};
  stream << kKinds[static_cast<int>(outcome.kind)] << " '" << outcome.text << "'";
  for (const std::string& string : outcome.strings) stream << " '" << string << "'";
  return stream;
}

Outcome call(const std::string& function, const std::optional<std::string>& argument) {
  const FunctionDef& definition = find(function);
  current_argument = argument;
  try {
    WUXObject* const result = definition.native();
    if (result == nullptr) return {Outcome::Kind::null, {}, {}};
    const Outcome outcome{Outcome::Kind::list, result->strings, {}};
    release(result);
    return outcome;
  } catch (const std::exception& exception) {
    return {Outcome::Kind::exception, {}, exception.what()};
  }
}

int live_values() { return live; }
int made_values() { return made; }
int live_values_at_list() { return live_at_list; }

}  // namespace stand_in_host
