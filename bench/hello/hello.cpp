// The C++ hello world whose start-up and exit bench/run.sh times, built with each library.
#include <iostream>

int main() {
  std::cout << "Hello, world!" << std::endl;
  return 0;
}
