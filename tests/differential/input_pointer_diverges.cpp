// Where Lorb++'s void* reading deliberately differs: it takes every character that can appear in
// a hex address (digits, a-f, A-F, x, X) and converts them with sscanf's %p, which stops where it
// likes; an empty collection gives a null pointer without failbit; a failed conversion keeps the
// target; errno is left as it was. The target starts as 0x8 and errno as 5.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sstream>

#include "input_support.h"

static void read_case(const char* text) {
  std::istringstream is(text);
  printf("\"");
  print_escaped(text, strlen(text));
  printf("\" -> ");
  void* v = reinterpret_cast<void*>(8);
  errno = 5;
  is >> v;
  int after = errno;
  printf("%p errno %d", v, after);
  print_state(is);
  print_rest(is);
  printf("\n");
}

int main() {
  read_case("");
  read_case("   ");
  read_case("zz");
  read_case("-1");
  read_case("x12");
  read_case("deadbeefx");
  read_case("0x1X2 ");
  read_case("0x");
  read_case("ffffffffff");
  read_case("0x10 ");
  return 0;
}
