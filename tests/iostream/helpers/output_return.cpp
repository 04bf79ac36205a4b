// Writes through cout, cerr and clog with the C library's own output between, leaves lines
// unterminated, flushes nothing, and returns from main.
#include <cstdio>
#include <iostream>

int main() {
  std::cout << "cout 1 " << 42 << '\n';
  std::printf("printf 2\n");
  std::cout << "cout 3";
  std::cerr << "cerr 1\n";
  std::fprintf(stderr, "fprintf 2\n");
  std::clog << "clog 3 " << 2.5 << '\n';
  std::printf(" printf 4\n");
  std::clog << "clog 4 unterminated";
  std::cout << "cout 5 unterminated";
  return 0;
}
