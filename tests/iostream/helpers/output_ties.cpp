// The ties as they show when standard output and standard error share one file: cout's output
// waits in stdout's buffer until cerr or clog writes. stdout is made fully buffered and stderr
// unbuffered, so the order does not depend on where the output goes.
#include <cstdio>
#include <iostream>

int main() {
  std::setvbuf(stdout, 0, _IOFBF, BUFSIZ);
  std::setvbuf(stderr, 0, _IONBF, 0);
  std::cout << "a";
  std::cerr << "B";
  std::cout << "c";
  std::clog << "D";
  std::printf("e");
  std::fputs("F", stderr);
  std::cout << "g";
  std::clog << "H";
  std::printf("i\n");
  std::fputs("J\n", stderr);
  return 0;
}
