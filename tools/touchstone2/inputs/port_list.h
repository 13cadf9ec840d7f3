/// Ports as the command line and lists of names give them: "3" or "3=out", counted from 1.
///
/// What is wrong is thrown as std::runtime_error that starts with `where`, the option or the
/// line that the text comes from.
#ifndef TOUCHSTONE2_TOOL_PORT_LIST_H
#define TOUCHSTONE2_TOOL_PORT_LIST_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tool {

struct PortEntry {
  std::size_t port = 0;             ///< from 1
  std::optional<std::string> name;  ///< none: nothing was said about it; may be empty
};

/// "3" or "3=out". A name is made of the printable ASCII characters; a blank would be read back
/// as "_", and "!" starts a comment, so neither is accepted.
PortEntry parse_port_entry(const std::string& where, std::string_view text);

/// "1=in,3=out"
std::vector<PortEntry> parse_port_list(const std::string& where, std::string_view text);

/// Every port is one of `count` ports and stands in the list once.
void check_ports(const std::string& where, const std::vector<PortEntry>& entries,
                 std::size_t count);

}  // namespace tool

#endif
