/// How --help shows an option: its names and the name of its value, and the rest as a sentence.
#ifndef TOUCHSTONE2_TOOL_HELP_FORMAT_H
#define TOUCHSTONE2_TOOL_HELP_FORMAT_H

#include <string>

#include <CLI/CLI.hpp>

namespace tool {

class HelpFormat : public CLI::Formatter {
 public:
  HelpFormat();

  std::string make_option_opts(const CLI::Option* option) const override;
  std::string make_option_desc(const CLI::Option* option) const override;
};

}  // namespace tool

#endif
