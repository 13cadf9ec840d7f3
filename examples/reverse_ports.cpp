// Writes a file with its ports in the reverse order, as version 2, to standard output.
//
//     reverse_ports coupler.s4p >reversed.ts

#include <touchstone2/touchstone2.h>

#include <iostream>
#include <memory>
#include <vector>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: reverse_ports FILE\n";
    return 2;
  }
  touchstone2::File file(argv[1]);
  touchstone2::StandardMessageHandler handler;
  touchstone2::Parser parser(file, handler);
  const bool valid = parser.read_file();
  const std::unique_ptr<const touchstone2::NoiseParams> noise(file.get_noise_params());
  if (!valid) return 1;

  std::vector<std::size_t> order;  // port d of the copy is port order[d] of the file, from 0
  for (std::size_t port = file.get_number_of_ports(); port > 0; --port) order.push_back(port - 1);
  const std::unique_ptr<touchstone2::File> copy(
      touchstone2::copyFileWithReorderedPorts("reversed.ts", file, order));
  if (!copy) return 1;
  const std::unique_ptr<const touchstone2::NoiseParams> noise_of_copy(copy->get_noise_params());

  touchstone2::V2_Writer writer(*copy);
  writer.setPrecision(17);  // gives back every bit
  std::cout.precision(17);  // the same for what precedes the first value
  writer.write_file(std::cout);
  return std::cout ? 0 : 1;
}
