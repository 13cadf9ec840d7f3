// What reading the example reports is not kept anywhere: the library reads the bytes anew.

#include "diagnostics/example_text.h"

#include <touchstone2/model/file.h>
#include <touchstone2/reader/message_handler.h>
#include <touchstone2/reader/parser.h>

#include <iomanip>
#include <sstream>

#include "text/value_text.h"

namespace tool {

namespace {

// The lines of the standard handler, kept instead of printed.
class TextHandler : public touchstone2::StandardMessageHandler {
 public:
  void report_error(const touchstone2::File& file, const touchstone2::ParserError& error) override {
    text_ += report_error_msg(file, error);
  }
  void report_warning(const touchstone2::File& file,
                      const touchstone2::ParserWarning& warning) override {
    text_ += report_warning_msg(file, warning);
  }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

std::string diagnostics_of(const Explanation& explanation) {
  touchstone2::File file{std::string(explanation.example_name)};
  TextHandler handler;
  touchstone2::Parser(file, handler, explanation.example).read_file();
  delete file.get_noise_params();  // a File never deletes them
  return handler.text();
}

}  // namespace

std::string example_text(const Explanation& explanation) {
  std::ostringstream text;
  std::string line;
  std::istringstream example{std::string(explanation.example)};
  for (int number = 1; std::getline(example, line); ++number) {
    text << std::setw(2) << number << " | " << printable_ascii(line) << "\n";
  }
  if (explanation.example.empty()) {
    text << "(no bytes at all)\n";
  } else if (explanation.example.back() != '\n') {
    text << "(the last line has no line end)\n";
  }

  text << "\n";
  std::istringstream diagnostics(diagnostics_of(explanation));
  while (std::getline(diagnostics, line)) text << printable_ascii(line) << "\n";
  return text.str();
}

}  // namespace tool
