// The script function "Touchstone2_PortNames_from_Sparam_file" without its host.
#include "binding/port_names_function.h"

#include <touchstone2/model/file.h>
#include <touchstone2/reader/message_handler.h>
#include <touchstone2/reader/parser.h>

#include <stdexcept>

namespace touchstone2::binding {

namespace {

// A File never deletes its noise data, and after a failed read it may have some, too.
class FileWithNoise {
 public:
  explicit FileWithNoise(const std::string& name) : file(name) {}
  FileWithNoise(const FileWithNoise&) = delete;
  FileWithNoise& operator=(const FileWithNoise&) = delete;
  ~FileWithNoise() { delete file.get_noise_params(); }

  File file;
};

bool read(File& file) {
  StandardMessageHandler handler;
  Parser parser(file, handler);
  return parser.read_file();
}

}  // namespace

void port_names_function(ScriptCall& call) {
  const std::optional<std::string> name = call.string_argument(0);
  if (!name) throw std::runtime_error("Value is null.");

  FileWithNoise owner(*name);
  if (!read(owner.file)) {
    throw std::runtime_error("The file\n   " + *name + "\ncould not be read and parsed");
  }
  if (owner.file.get_parameter_type() != ParameterType::S) {
    // Built and dropped, not thrown: scripts count on an empty result here, and not on an error.
    // NOLINTNEXTLINE(bugprone-throw-keyword-missing)
    static_cast<void>(std::runtime_error("File does not contain S-parameters."));
    return;
  }
  call.return_list(owner.file.get_port_names());
}

}  // namespace touchstone2::binding
