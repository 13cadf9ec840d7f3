// A list is cut at its commas first, so a name in it has none.

#include "inputs/port_list.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "text/value_text.h"

namespace tool {

namespace {

[[noreturn]] void fail(const std::string& where, std::string_view text, std::string_view reason) {
  throw std::runtime_error(where + " '" + printable(text) + "': " + std::string(reason));
}

// Digits only: no sign, no blank. 0 for anything else, and for a number too great.
std::size_t port_number(std::string_view text) {
  std::size_t port = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), port);
  const bool whole = failure == std::errc() && end == text.data() + text.size();
  return whole ? port : 0;
}

// Why it cannot be a name; empty for one that can.
std::string_view objection_to_name(std::string_view name) {
  const auto is_control = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
  const auto is_ascii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (name.find_first_of(" \t") != std::string_view::npos) {
    return "a blank in a name would be read back as '_'";
  }
  if (name.find('!') != std::string_view::npos) return "a name cannot hold '!'";
  if (std::any_of(name.begin(), name.end(), is_control)) {
    return "a name cannot hold control characters";
  }
  if (!std::all_of(name.begin(), name.end(), is_ascii)) return "a name must be ASCII";
  return {};
}

}  // namespace

PortEntry parse_port_entry(const std::string& where, std::string_view text) {
  const std::size_t mark = text.find('=');
  PortEntry entry;
  entry.port = port_number(text.substr(0, mark));
  if (entry.port == 0) fail(where, text, "no port number; ports are counted from 1");
  if (mark == std::string_view::npos) return entry;
  entry.name = text.substr(mark + 1);
  const std::string_view objection = objection_to_name(*entry.name);
  if (!objection.empty()) fail(where, text, objection);
  return entry;
}

std::vector<PortEntry> parse_port_list(const std::string& where, std::string_view text) {
  std::vector<PortEntry> entries;
  for (;;) {
    const std::size_t comma = text.find(',');
    entries.push_back(parse_port_entry(where, text.substr(0, comma)));
    if (comma == std::string_view::npos) return entries;
    text.remove_prefix(comma + 1);
  }
}

void check_ports(const std::string& where, const std::vector<PortEntry>& entries,
                 std::size_t count) {
  std::vector<bool> listed(count);
  for (const PortEntry& entry : entries) {
    if (entry.port > count) {
      throw std::runtime_error(where + ": there is no port " + std::to_string(entry.port) +
                               ", the file has " + count_text(count, "port", "ports"));
    }
    if (listed[entry.port - 1]) {
      throw std::runtime_error(where + ": port " + std::to_string(entry.port) + " is given twice");
    }
    listed[entry.port - 1] = true;
  }
}

}  // namespace tool
