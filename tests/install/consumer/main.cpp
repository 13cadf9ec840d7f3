// Prints the number of ports of the file named on the command line.

#include <touchstone2/touchstone2.h>

#include <iostream>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  touchstone2::File file(argv[1]);
  touchstone2::StandardMessageHandler handler;
  touchstone2::Parser parser(file, handler);
  if (!parser.read_file()) return 1;
  std::cout << file.get_number_of_ports() << '\n';
}
