// Like output_return, but leaves through exit(int) with the language's linkage, which runs the
// needed-destruction list before the C library's exit.
#include <__lorb/runtime.h>
#include <cstdio>
#include <iostream>

static void leave() {
  std::clog << "clog 4 unterminated";
  std::cout << "cout 5 unterminated";
  __lorb_cxx_exit(5);
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
