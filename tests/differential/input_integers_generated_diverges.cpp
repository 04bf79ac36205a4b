// Generated decimal numbers of 1 to 12 digits, many of them just around the limits of each
// type, read as short, unsigned short, int, unsigned, long and unsigned long. Lorb++ finds a
// decimal overflow only where the value went down while re-reading more than 9 digits, accepts a
// negative number for an unsigned type only below half its range or at exactly half, and stores
// a short truncated before flagging it; GNU saturates every overflow, so it differs often.
#include <cstdio>
#include <cstring>
#include <sstream>

#include "input_integer_types.h"
#include "input_support.h"

static void read_case(integer_type type, const char* text) {
  std::istringstream is(text);
  printf("%s \"%s\" -> ", type_names[type], text);
  read_integer(type, is, 7);
  print_state(is);
  printf("\n");
}

// Leading digits that put a number near a limit: 2^15, 2^16, 2^31, 2^32, and 10^10.
static const char* const near_limits[] = {"3276", "6553", "21474836", "42949672", "99999999"};

int main() {
  generator g(65536);
  for (int i = 0; i < 240; ++i) {
    integer_type type = integer_type(i % 6);
    char text[32];
    unsigned n = 0;
    unsigned sign = g.below(4);
    if (sign == 0)
      text[n++] = '-';
    else if (sign == 1)
      text[n++] = '+';
    unsigned digits;
    if (g.below(2)) {
      const char* lead = near_limits[g.below(5)];
      strcpy(text + n, lead);
      n += static_cast<unsigned>(strlen(lead));
      digits = g.below(4);
    } else {
      digits = 1 + g.below(12);
    }
    for (unsigned d = 0; d < digits; ++d)
      text[n++] = static_cast<char>('0' + g.below(10));
    text[n] = 0;
    read_case(type, text);
  }
  return 0;
}
