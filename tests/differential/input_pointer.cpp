// void* read from string streams: generated addresses written in hex with and without 0x, in
// either case, with blanks before and text after, and one that does not fit. The value is
// printed only when the reading succeeded.
#include <cstdio>
#include <cstring>
#include <sstream>

#include "input_support.h"

static void read_case(const char* text) {
  std::istringstream is(text);
  printf("\"");
  print_escaped(text, strlen(text));
  printf("\" -> ");
  void* v = 0;
  is >> v;
  if (is.fail())
    printf("-");
  else
    printf("%p", v);
  print_state(is);
  print_rest(is);
  printf("\n");
}

static const char* const prefixes[] = {"0x", "0X", "", " 0x", "\t\n"};
static const char* const tails[] = {"", " ", ";", "g", "\n", ",", " 0x12"};

int main() {
  generator g(4096);
  for (int i = 0; i < 60; ++i) {
    unsigned long value = g.next() << 8;
    value ^= g.next();
    value >>= g.below(4) * 8;
    const char* prefix = prefixes[g.below(5)];
    const char* format = g.below(2) ? "%s%lx%s" : "%s%lX%s";
    const char* tail = tails[g.below(7)];
    char text[48];
    sprintf(text, format, prefix, value, tail);
    read_case(text);
  }
  read_case("0");
  read_case("0x0");
  read_case("ffffffff");
  read_case("0x00000000000000001");
  read_case("0x123456789");
  return 0;
}
