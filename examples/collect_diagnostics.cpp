// Collects what is wrong with a file instead of printing it.
//
//     collect_diagnostics frequency_order.s2p

#include <touchstone2/touchstone2.h>

#include <iostream>
#include <memory>
#include <string>
#include <vector>

class Collector : public touchstone2::MessageHandler {
 public:
  void report_error(const touchstone2::File&, const touchstone2::ParserError& error) override {
    lines.push_back("line " + std::to_string(error.line()) + ": " + error.what());
  }
  void report_warning(const touchstone2::File&,
                      const touchstone2::ParserWarning& warning) override {
    lines.push_back("line " + std::to_string(warning.line()) + ": (warning) " + warning.what());
  }

  std::vector<std::string> lines;
};

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: collect_diagnostics FILE\n";
    return 2;
  }
  touchstone2::File file(argv[1]);
  Collector collector;
  const bool valid = touchstone2::Parser(file, collector).read_file();
  const std::unique_ptr<const touchstone2::NoiseParams> noise(file.get_noise_params());

  for (const std::string& line : collector.lines) std::cout << line << "\n";
  std::cout << (valid ? "valid\n" : "refused\n");
}
