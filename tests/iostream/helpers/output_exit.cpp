// Like output_return, but leaves through the C library's exit(7) from a nested call.
#include <cstdio>
#include <cstdlib>
#include <iostream>

static void leave() {
  std::clog << "clog 4 unterminated";
  std::cout << "cout 5 unterminated";
  std::exit(7);
}

int main() {
  std::cout << "cout 1 " << 42 << '\n';
  std::printf("printf 2\n");
  std::cout << "cout 3";
  std::cerr << "cerr 1\n";
  std::fprintf(stderr, "fprintf 2\n");
  std::clog << "clog 3 " << 2.5 << '\n';
  std::printf(" printf 4\n");
  leave();
  std::cout << "never\n";
  return 0;
}
