/// Port names out of a list of comment lines.
///
///     const std::vector<std::string> comments = {"Port[1] = in", "Port 2 = out"};
///     touchstone2::CommentProcessor processor(comments, 2);
///     processor.takePortNames();   // "in", "out"
///
/// File::get_port_names does this for the comments of a file.
#ifndef TOUCHSTONE2_PORTNAMES_COMMENT_PROCESSOR_H
#define TOUCHSTONE2_PORTNAMES_COMMENT_PROCESSOR_H

#include <touchstone2/export.h>

#include <cstddef>
#include <string>
#include <vector>

namespace touchstone2 {

class PortNameParser;

/// Does its work in the constructor; takePortNames hands the result over.
///
/// Every line is held against the conventions of PortNameParser1 to PortNameParser6 in this
/// order, and the first one that finds a port of the file ends the line. A later line for the
/// same port replaces the name of an earlier one, also by an empty name. Two ports may have
/// one name.
class CommentProcessor {
 public:
  /// @param comments         lines without their comment character; referred to, not copied
  /// @param number_of_ports  lines that name a port beyond it are passed over; with 0 ports
  ///                         no name is stored at all
  TOUCHSTONE2_EXPORT CommentProcessor(const std::vector<std::string>& comments,
                                      std::size_t number_of_ports);

  /// @{
  /// A copy refers to the same comment lines.
  TOUCHSTONE2_EXPORT CommentProcessor(const CommentProcessor& other);
  TOUCHSTONE2_EXPORT CommentProcessor& operator=(const CommentProcessor& other);
  /// @}

  TOUCHSTONE2_EXPORT ~CommentProcessor();

  /// One entry per port, empty for a port that no line names. The list is moved out: a
  /// second call gives an empty one.
  TOUCHSTONE2_EXPORT std::vector<std::string> takePortNames();

 private:
  void processComment(const std::string& line);
  bool processPossibleComment(const PortNameParser& parser);
  void addPortName(const PortNameParser& parser);

  const std::vector<std::string>* comments_;
  std::size_t numberOfPorts_;
  std::vector<std::string> portNames_;  // entry k is the name of port k + 1
};

/// True when no two entries are equal, letter case included; true for an empty list.
TOUCHSTONE2_EXPORT bool stringsAreUnique(const std::vector<std::string>& strings);

/// True when every entry has at least one character; true for an empty list.
TOUCHSTONE2_EXPORT bool stringsAreAllNotEmpty(const std::vector<std::string>& strings);

}  // namespace touchstone2

#endif
