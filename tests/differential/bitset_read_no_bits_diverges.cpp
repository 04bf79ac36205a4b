// Reading a bitset of no bits: this library's sentry sets no state bit when skipping white space
// meets the end, and a set of no bits then reads nothing, so the stream stays good where the GNU
// library reports the end (and failure).
#include <bitset>
#include <sstream>
#include <stdio.h>

static void read(const char* text) {
  std::istringstream in(text);
  std::bitset<0> nothing;
  in >> nothing;
  std::bitset<4> four;
  std::istringstream again(text);
  again >> four;
  printf("\"%s\": no bits [%c%c] next %d; four bits [%c%c] %lu\n", text, in.eof() ? 'e' : '-',
         in.fail() ? 'f' : '-', in.rdbuf()->sgetc(), again.eof() ? 'e' : '-',
         again.fail() ? 'f' : '-', four.to_ulong());
}

int main() {
  read("");
  read("   ");
  read("  1");
  read("x");
  return 0;
}
