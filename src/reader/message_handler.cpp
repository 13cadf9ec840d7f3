// The caller's sink and its standard form, one line per diagnostic.
#include <touchstone2/model/file.h>
#include <touchstone2/reader/message_handler.h>

#include <iostream>

namespace touchstone2 {

namespace {

// The column is printed only behind a line. The numbers go through std::to_string, which
// knows no digit grouping.
template <typename Diagnostic>
std::string diagnostic_line(const File& file, const Diagnostic& diagnostic, const char* word) {
  std::string line = file.get_filename() + ":";
  if (diagnostic.line() != 0) {
    line += std::to_string(diagnostic.line()) + ":";
    if (diagnostic.column() != 0) line += std::to_string(diagnostic.column()) + ":";
  }
  line += word;
  line += std::to_string(static_cast<std::int32_t>(diagnostic.code()));
  line += ": ";
  line += diagnostic.what();
  return line;
}

std::string error_line(const File& file, const ParserError& error) {
  return diagnostic_line(file, error, " error E");
}

std::string warning_line(const File& file, const ParserWarning& warning) {
  return diagnostic_line(file, warning, " warning W");
}

}  // namespace

MessageHandler::MessageHandler() = default;
MessageHandler::MessageHandler(const MessageHandler&) = default;
MessageHandler& MessageHandler::operator=(const MessageHandler&) = default;
MessageHandler::~MessageHandler() = default;

void StandardMessageHandler::report_error(const File& file, const ParserError& error) {
  std::cerr << error_line(file, error) << std::endl;
}

void StandardMessageHandler::report_warning(const File& file, const ParserWarning& warning) {
  std::cerr << warning_line(file, warning) << std::endl;
}

std::string StandardMessageHandler::report_error_msg(const File& file,
                                                     const ParserError& error) const {
  return error_line(file, error) + "\n";
}

std::string StandardMessageHandler::report_warning_msg(const File& file,
                                                       const ParserWarning& warning) const {
  return warning_line(file, warning) + "\n";
}

}  // namespace touchstone2
