// Registers the module's script function with the host and carries values between the two. The
// only file that knows the host's types; the function itself is in port_names_function.cpp.
#include "binding/port_names_function.h"
#include "binding/script_host.h"

#if defined(_WIN32)
#define TOUCHSTONE2_WUX_ENTRY extern "C" __declspec(dllexport)
#else
#define TOUCHSTONE2_WUX_ENTRY extern "C" __attribute__((visibility("default")))
#endif

namespace touchstone2::binding {

namespace {

class HostCall final : public ScriptCall {
 public:
  std::optional<std::string> string_argument(unsigned index) override {
    const wux::Parm<std::string> argument = wux::get_string_parm(index);
    if (argument.value() == nullptr) return std::nullopt;
    return *argument.value();
  }

  void return_list(const std::vector<std::string>& strings) override {
    result_ = create_WUX_list(strings).detach();
  }

  WUXObject* result() const { return result_; }

 private:
  WUXObject* result_ = nullptr;
};

WUXObject* call_port_names_function() {
  HostCall call;
  port_names_function(call);
  return call.result();
}

// The host keeps both records and may write into them.
FunctionDef functions[] = {
    {"Touchstone2_PortNames_from_Sparam_file", 0, call_port_names_function, {0, 0, 0, 0, 0, 0}},
};
VocDef vocabulary = {"CmdOp", "WUX", functions, 1};

}  // namespace

}  // namespace touchstone2::binding

// What the host calls once it has loaded the module. The answer is the host's own.
TOUCHSTONE2_WUX_ENTRY bool touchstone2_wux_initialize() {
  return wutil_initialize(/*callback=*/nullptr, /*number_of_value_types=*/0,
                          /*value_types=*/nullptr, /*number_of_vocabularies=*/1,
                          &touchstone2::binding::vocabulary);
}
