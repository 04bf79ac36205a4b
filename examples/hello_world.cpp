// The first C++ program: prints one line on standard output with std::cout.
#include <iostream> // declares std::cout, std::cin, std::cerr and std::clog

int main() {
  // << hands each item to the stream in turn; std::endl writes a newline and flushes the stream,
  // so the line is out before the program goes on.
  std::cout << "Hello, world!" << std::endl;
  return 0; // 0 tells whoever started the program that it went well
}
