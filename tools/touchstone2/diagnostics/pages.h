/// The files of docs/diagnostics that the tool carries within itself.
#ifndef TOUCHSTONE2_TOOL_PAGES_H
#define TOUCHSTONE2_TOOL_PAGES_H

#include <span>
#include <string_view>

namespace tool {

struct EmbeddedFile {
  std::string_view name;  ///< without folder
  std::string_view bytes;
};

/// Every page ("E2308.md") and every example ("E2308.s2p"). The build makes the definition.
std::span<const EmbeddedFile> diagnostic_pages();

}  // namespace tool

#endif
