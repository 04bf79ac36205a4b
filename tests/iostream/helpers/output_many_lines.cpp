// Many lines, far more than one buffer of the C library holds: line i on standard output comes
// from cout for odd i and from printf for even i; every 97th line also goes to cerr and every
// 101st to clog. The last line has no newline.
#include <cstdio>
#include <iostream>

int main() {
  const int lines = 20000;
  for (int i = 0; i < lines; ++i) {
    if (i % 2)
      std::cout << "line " << i << '\n';
    else
      std::printf("line %d\n", i);
    if (i % 97 == 0)
      std::cerr << "cerr " << i << '\n';
    if (i % 101 == 0)
      std::clog << "clog " << i << '\n';
  }
  std::cout << "end";
  return 0;
}
