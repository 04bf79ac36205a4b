// Integers of every width read from string streams in every base: generated values with signs,
// prefixes, blanks around them and trailing text, plus the limits and, where the reading saturates
// the same way in both libraries, one past them. Each line gives the value, the state bits and
// what is left in the stream.
#include <climits>
#include <cstdio>
#include <sstream>
#include <string>

#include "input_integer_types.h"
#include "input_support.h"

// Largest magnitude of each type, and whether it is signed.
static const unsigned long maxima[] = {32767,       65535,      2147483647,
                                       4294967295u, 2147483647, 4294967295u};
static const bool is_signed[] = {true, false, true, false, true, false};

static const char* const blanks[] = {"", " ", "\t", "\n  ", " \r\f\v"};
static const char* const tails[] = {"", " ", "\n", "x", " 7", ",5", ".25", "-3", "z"};

// One generated number of the type, written in the base; a negative number for an unsigned type
// stays below half its range, where both libraries negate it modulo the range.
static void generated_case(generator& g, integer_type type, std::ios_base::fmtflags base) {
  unsigned long max = maxima[type];
  unsigned long magnitude = g.next() << 8;
  magnitude = (magnitude ^ g.next()) & max;
  switch (g.below(4)) {
  case 0:
    magnitude &= 0xFF;
    break;
  case 1:
    magnitude &= 0xFFFF;
    break;
  }
  bool negative = g.below(3) == 0;
  if (negative && !is_signed[type])
    magnitude &= max >> 2;
  char number[64];
  const char* sign = negative ? "-" : g.below(4) == 0 ? "+" : "";
  bool upper = g.below(2) == 0;
  if (base == std::ios_base::hex)
    sprintf(number, upper ? "%s%s%lX" : "%s%s%lx", sign, g.below(2) ? (upper ? "0X" : "0x") : "",
            magnitude);
  else if (base == std::ios_base::oct)
    sprintf(number, "%s%s%lo", sign, g.below(2) ? "0" : "", magnitude);
  else if (base == std::ios_base::dec)
    sprintf(number, "%s%s%lu", sign, g.below(4) ? "" : "000", magnitude);
  else if (g.below(2))
    sprintf(number, upper ? "%s0X%lX" : "%s0x%lx", sign, magnitude);
  else
    sprintf(number, "%s0%lo", sign, magnitude);
  char text[96];
  sprintf(text, "%s%s%s", blanks[g.below(5)], number, tails[g.below(9)]);
  read_case(type, base, true, text, 0);
}

int main() {
  const std::ios_base::fmtflags bases[] = {std::ios_base::dec, std::ios_base::hex,
                                           std::ios_base::oct, std::ios_base::fmtflags()};
  generator g(20261122);
  for (int t = 0; t <= as_ulong; ++t)
    for (int b = 0; b < 4; ++b)
      for (int i = 0; i < 24; ++i)
        generated_case(g, integer_type(t), bases[b]);

  // Limits, in decimal; one past them only where the saturation agrees (not short, whose
  // value is stored truncated).
  const std::ios_base::fmtflags dec = std::ios_base::dec, hex = std::ios_base::hex;
  const std::ios_base::fmtflags oct = std::ios_base::oct, none = std::ios_base::fmtflags();
  read_case(as_short, dec, true, "32767", 0);
  read_case(as_short, dec, true, "-32768 ", 0);
  read_case(as_ushort, dec, true, "65535", 0);
  read_case(as_ushort, dec, true, "65536", 0);
  read_case(as_ushort, dec, true, "99999x", 0);
  read_case(as_ushort, dec, true, "-32768", 0);
  read_case(as_ushort, hex, true, "FFFF", 0);
  read_case(as_ushort, hex, true, "10000", 0);
  read_case(as_ushort, oct, true, "177777", 0);
  read_case(as_ushort, oct, true, "200000", 0);
  read_case(as_int, dec, true, "2147483647", 0);
  read_case(as_int, dec, true, "-2147483648", 0);
  read_case(as_int, dec, true, "2147483648", 0);
  read_case(as_int, dec, true, "-2147483649", 0);
  read_case(as_long, dec, true, "2147483647", 0);
  read_case(as_long, dec, true, "-2147483648", 0);
  read_case(as_long, dec, true, "2147483648 ", 0);
  read_case(as_long, dec, true, "-2147483649", 0);
  read_case(as_long, dec, true, "4294967296", 0);
  read_case(as_long, hex, true, "7fffffff", 0);
  read_case(as_long, hex, true, "80000000", 0);
  read_case(as_long, hex, true, "-80000000", 0);
  read_case(as_long, hex, true, "-80000001", 0);
  read_case(as_long, oct, true, "17777777777", 0);
  read_case(as_long, oct, true, "-20000000000", 0);
  read_case(as_long, oct, true, "20000000000", 0);
  read_case(as_uint, dec, true, "4294967295", 0);
  read_case(as_uint, dec, true, "4294967296", 0);
  read_case(as_uint, dec, true, "-2147483648", 0);
  read_case(as_ulong, dec, true, "4294967295", 0);
  read_case(as_ulong, dec, true, "4294967296", 0);
  read_case(as_ulong, dec, true, "4294967300", 0);
  read_case(as_ulong, dec, true, "-1", 0);
  read_case(as_ulong, dec, true, "-2147483647", 0);
  read_case(as_ulong, hex, true, "ffffffff", 0);
  read_case(as_ulong, hex, true, "0xFFFFFFFF", 0);
  read_case(as_ulong, oct, true, "37777777777", 0);
  read_case(as_ulong, dec, true, "00000000000000000000000000042", 0);

  // Prefixes, signs and text that is not a number.
  read_case(as_long, none, true, "0", 0);
  read_case(as_long, none, true, "0x1F", 0);
  read_case(as_long, none, true, "0x", 0);
  read_case(as_long, none, true, "0xg", 0);
  read_case(as_long, none, true, "017", 0);
  read_case(as_long, none, true, "08", 0);
  read_case(as_long, none, true, "-0x10", 0);
  read_case(as_long, hex, true, "0x", 0);
  read_case(as_long, hex, true, "0Xz", 0);
  read_case(as_long, dec, true, "0x1F", 0);
  read_case(as_long, oct, true, "0x1F", 0);
  read_case(as_long, oct, true, "19", 0);
  read_case(as_long, oct, true, "8", 0);
  read_case(as_long, dec, true, "-0", 0);
  read_case(as_long, dec, true, "+0", 0);
  read_case(as_long, dec, true, "-", 0);
  read_case(as_long, dec, true, "+", 0);
  read_case(as_long, dec, true, "-x", 0);
  read_case(as_long, dec, true, "+-1", 0);
  read_case(as_long, dec, true, "--1", 0);
  read_case(as_long, dec, true, "abc", 0);
  read_case(as_long, dec, true, " \t.5", 0);
  read_case(as_uint, dec, true, "1e5", 0);
  read_case(as_int, dec, false, "42 ", 0);
  read_case(as_int, dec, false, " 42", 0);
  read_case(as_ulong, hex, false, "\tff", 0);

  // A stream that already failed takes nothing more and keeps the target.
  std::istringstream chained("12 abc 34");
  long first = 1, second = 2, third = 3;
  chained >> first >> second >> third;
  printf("chained 12 abc 34 -> %ld %ld %ld", first, second, third);
  print_state(chained);
  chained.clear();
  chained >> third;
  printf(" after clear %ld", third);
  print_state(chained);
  print_rest(chained);
  printf("\n");
  return 0;
}
