/// The conventions by which comment lines name ports, one class each.
///
/// The format has no keyword for port names, so tools write them in comments, each by its own
/// habit. Every class looks at the words of one line and decides in its constructor whether
/// the line names a port, which port, and how:
///
///     const std::vector<std::string> words = touchstone2::tokenize("Port 2 = RF Out");
///     const touchstone2::PortNameParser1 parser(words, 4);
///     if (parser.isValidPortName()) {
///       parser.portNumber();   // 2
///       parser.portName();     // "RF_Out"
///     }
///
/// Words are compared exactly, letter case included, where nothing else is said. A number is
/// written with the digits 0 to 9 alone; one that is too great for std::size_t counts as 0,
/// the number of no port. A line that does not fit is no error.
#ifndef TOUCHSTONE2_PORTNAMES_PORT_NAME_PARSERS_H
#define TOUCHSTONE2_PORTNAMES_PORT_NAME_PARSERS_H

#include <touchstone2/export.h>

#include <cstddef>
#include <string>
#include <vector>

namespace touchstone2 {

/// What the conventions share: the result of looking at one line.
class PortNameParser {
 public:
  /// A result that says "no port name".
  /// @param tokens         words of the line; referred to, not copied, by this object and
  ///                       its copies
  /// @param numberOfPorts  greatest port number that counts; 0 for no limit
  TOUCHSTONE2_EXPORT PortNameParser(const std::vector<std::string>& tokens,
                                    std::size_t numberOfPorts);

  /// @{
  /// A copy refers to the same words.
  TOUCHSTONE2_EXPORT PortNameParser(const PortNameParser& other);
  TOUCHSTONE2_EXPORT PortNameParser& operator=(const PortNameParser& other);
  /// @}

  TOUCHSTONE2_EXPORT ~PortNameParser();

  /// The name found; may be empty, also on a line that names a port.
  TOUCHSTONE2_EXPORT const std::string& portName() const;

  /// The port's number, from 1; 0 for none. A line that starts as the convention wants and
  /// then departs from it may leave its number here: ask isValidPortName first.
  TOUCHSTONE2_EXPORT std::size_t portNumber() const;

  /// True when the line follows the convention and its port number is within the limit.
  TOUCHSTONE2_EXPORT bool isValidPortName() const;

 protected:
  /// True when the number is not 0 and within the limit.
  TOUCHSTONE2_EXPORT bool portNumberIsValid() const;

  const std::vector<std::string>* tokens_;  ///< the caller's words
  std::size_t numberOfPorts_;               ///< greatest port number that counts; 0 for no limit
  bool valid_ = false;          ///< the line follows the convention, whatever its port number
  std::string portName_;        ///< the name found
  std::size_t portNumber_ = 0;  ///< from 1; 0 for none
};

/// `Port 2 = RF Out`. The name is the fourth word, empty if there is none; a fifth one is
/// appended with "_" unless it repeats the fourth. Further words do not count.
class PortNameParser1 : public PortNameParser {
 public:
  /// Looks at one line; the parameters are those of PortNameParser.
  TOUCHSTONE2_EXPORT PortNameParser1(const std::vector<std::string>& tokens,
                                     std::size_t numberOfPorts);

 private:
  bool processFirstToken() const;
  bool processSecondToken();
  bool processThirdToken() const;
  std::string getNameFromTokens() const;
};

/// `Port[1] = Antenna feed`. The name is all words after "=", joined with "_"; it may be
/// empty. File::update_leading_comments writes its lines this way.
class PortNameParser2 : public PortNameParser {
 public:
  /// Looks at one line; the parameters are those of PortNameParser.
  TOUCHSTONE2_EXPORT PortNameParser2(const std::vector<std::string>& tokens,
                                     std::size_t numberOfPorts);

 private:
  bool processFirstToken();
  bool processSecondToken() const;
  std::string getNameFromTokens() const;
};

/// `PORT 4: 1: Drain`. The first number is the port's; what the second one says does not
/// count. The name is the fourth word alone, empty if there is none.
class PortNameParser3 : public PortNameParser {
 public:
  /// Looks at one line; the parameters are those of PortNameParser.
  TOUCHSTONE2_EXPORT PortNameParser3(const std::vector<std::string>& tokens,
                                     std::size_t numberOfPorts);

 private:
  bool processFirstToken() const;
  bool processSecondToken();
  bool processThirdToken() const;
  std::string getNameFromTokens() const;
};

/// `Port2_Out::Load`, the only word of its line. The name is "Port2_Out_Load": what stands
/// before the first "::" as a whole, then, if anything follows the "::", "_" and that.
class PortNameParser4 : public PortNameParser {
 public:
  /// Looks at one line; the parameters are those of PortNameParser.
  TOUCHSTONE2_EXPORT PortNameParser4(const std::vector<std::string>& tokens,
                                     std::size_t numberOfPorts);

 private:
  bool processFirstToken();
  std::string getNameFromTokens() const;
};

/// `port7: LO input`, with "Port" in any mix of upper and lower case. The name is all
/// further words, joined with "_"; there must be one.
class PortNameParser5 : public PortNameParser {
 public:
  /// Looks at one line; the parameters are those of PortNameParser.
  TOUCHSTONE2_EXPORT PortNameParser5(const std::vector<std::string>& tokens,
                                     std::size_t numberOfPorts);

 private:
  bool processFirstToken();
  std::string getNameFromTokens() const;
};

/// `Port[5] Bias Tee`, without any "=" in the second word. The name is all further words,
/// joined with "_"; there must be one.
class PortNameParser6 : public PortNameParser {
 public:
  /// Looks at one line; the parameters are those of PortNameParser.
  TOUCHSTONE2_EXPORT PortNameParser6(const std::vector<std::string>& tokens,
                                     std::size_t numberOfPorts);

 private:
  bool processFirstToken();
  bool processSecondToken() const;
  std::string getNameFromTokens() const;
};

}  // namespace touchstone2

#endif
