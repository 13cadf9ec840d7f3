/// Where diagnostics go.
///
/// The library prints nothing by itself. A caller hands a MessageHandler to the Parser and
/// gets every diagnostic as it arises; StandardMessageHandler prints them, a class of one's
/// own may collect, count or drop them:
///
///     struct Counter : touchstone2::MessageHandler {
///       void report_error(const touchstone2::File&, const touchstone2::ParserError&) override {
///         ++errors;
///       }
///       void report_warning(const touchstone2::File&,
///                           const touchstone2::ParserWarning&) override {
///         ++warnings;
///       }
///       int errors = 0, warnings = 0;
///     };
#ifndef TOUCHSTONE2_READER_MESSAGE_HANDLER_H
#define TOUCHSTONE2_READER_MESSAGE_HANDLER_H

#include <touchstone2/export.h>
#include <touchstone2/reader/diagnostics.h>

#include <string>

namespace touchstone2 {

class File;

/// Interface of the caller's sink. The order of its virtual functions is part of the binary
/// interface. The diagnostic lives only during the call; the same holds for the text of its
/// what(). An exception that a handler throws ends the read and reaches the reader's caller,
/// but for one: a ParserError thrown from report_warning is reported like the reader's own.
struct TOUCHSTONE2_EXPORT MessageHandler {
  /// @{
  /// Nothing is done: the interface holds no data.
  MessageHandler();
  MessageHandler(const MessageHandler&);
  MessageHandler& operator=(const MessageHandler&);
  /// @}

  virtual ~MessageHandler();

  /// Called once, after the file was released and before the read returns.
  virtual void report_error(const File& file, const ParserError& error) = 0;

  /// Called for each warning as it occurs; reading goes on afterwards.
  virtual void report_warning(const File& file, const ParserWarning& warning) = 0;
};

/// Writes one line per diagnostic to the standard error stream, flushed at once:
///
///     amp.s2p:12:5: error E2007: expected to find numeric data
///
/// "LINE:" and "COLUMN:" are left out when they are 0, the column also when the line is.
/// Lines of several threads may interleave; nothing is locked.
class TOUCHSTONE2_EXPORT StandardMessageHandler : public MessageHandler {
 public:
  void report_error(const File& file, const ParserError& error) override;
  void report_warning(const File& file, const ParserWarning& warning) override;

  /// The line that report_error writes, its "\n" included; writes nothing.
  std::string report_error_msg(const File& file, const ParserError& error) const;

  /// The line that report_warning writes, its "\n" included; writes nothing.
  std::string report_warning_msg(const File& file, const ParserWarning& warning) const;
};

}  // namespace touchstone2

#endif
