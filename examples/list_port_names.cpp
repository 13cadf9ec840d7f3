// Lists the port names that the comments of a file give.
//
//     list_port_names coupler.s4p

#include <touchstone2/touchstone2.h>

#include <iostream>
#include <memory>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: list_port_names FILE\n";
    return 2;
  }
  touchstone2::File file(argv[1]);
  touchstone2::StandardMessageHandler handler;  // prints what is wrong
  touchstone2::Parser parser(file, handler);
  const bool valid = parser.read_file();
  const std::unique_ptr<const touchstone2::NoiseParams> noise(file.get_noise_params());
  if (!valid) return 1;

  std::size_t port = 0;
  for (const std::string& name : file.get_port_names()) {
    std::cout << "port " << ++port << ": " << (name.empty() ? "(no name)" : name) << "\n";
  }
}
