// Where Lorb++'s integer reading deliberately differs: with basefield cleared only numbers with a
// leading 0 are read; blanks between the sign and the digits are skipped under skipws; short is
// stored truncated and then flagged; decimal overflow is found only where the value went down
// while re-reading the digits (so some wraps pass); a negative number for an unsigned type is
// accepted only below half the range; hex and octal overflow stop before the digit that would
// not fit; and an empty input reaches the facet, which stores 0 (GNU's sentry keeps the target).
#include <cstdio>
#include <sstream>

#include "input_support.h"

enum integer_type { as_short, as_ushort, as_int, as_uint, as_long, as_ulong };

static const char* const type_names[] = {"short", "ushort", "int", "uint", "long", "ulong"};

template <class T> static void read_as(std::istream& is, const char* format) {
  T value = T(7);
  is >> value;
  printf(format, value);
}

static void read_case(integer_type type, std::ios_base::fmtflags base, bool skip,
                      const char* text) {
  std::istringstream is(text);
  is.setf(base, std::ios_base::basefield);
  if (!skip)
    is.unsetf(std::ios_base::skipws);
  printf("%s %s%s \"", type_names[type],
         base == std::ios_base::dec   ? "dec"
         : base == std::ios_base::hex ? "hex"
         : base == std::ios_base::oct ? "oct"
                                      : "none",
         skip ? "" : " noskipws");
  print_escaped(text, strlen(text));
  printf("\" -> ");
  switch (type) {
  case as_short:
    read_as<short>(is, "%hd");
    break;
  case as_ushort:
    read_as<unsigned short>(is, "%hu");
    break;
  case as_int:
    read_as<int>(is, "%d");
    break;
  case as_uint:
    read_as<unsigned int>(is, "%u");
    break;
  case as_long:
    read_as<long>(is, "%ld");
    break;
  case as_ulong:
    read_as<unsigned long>(is, "%lu");
    break;
  }
  print_state(is);
  print_rest(is);
  printf("\n");
}

int main() {
  const std::ios_base::fmtflags dec = std::ios_base::dec, hex = std::ios_base::hex;
  const std::ios_base::fmtflags oct = std::ios_base::oct, none = std::ios_base::fmtflags();
  // basefield cleared: a number without a leading 0 is not read at all.
  read_case(as_long, none, true, "17");
  read_case(as_long, none, true, "-17");
  read_case(as_long, none, true, " 5 ");
  read_case(as_ulong, none, true, "+9");
  // Blanks after the sign.
  read_case(as_long, dec, true, "- 12");
  read_case(as_long, dec, true, "+ 7x");
  read_case(as_long, dec, true, "-\t\n5");
  read_case(as_long, hex, true, "- 0x1f");
  read_case(as_ulong, oct, true, "-  17");
  read_case(as_long, dec, false, "- 12");
  // short: stored truncated, then flagged.
  read_case(as_short, dec, true, "70000");
  read_case(as_short, dec, true, "-40000 ");
  read_case(as_short, dec, true, "32768");
  read_case(as_short, dec, true, "65535");
  read_case(as_short, dec, true, "65536");
  read_case(as_short, dec, true, "-32769");
  read_case(as_short, dec, true, "2147483648");
  read_case(as_short, dec, true, "-9999999999");
  read_case(as_short, hex, true, "ffff");
  read_case(as_short, oct, true, "100000");
  // Decimal wraps that the value-went-down rule misses, and ones it finds.
  read_case(as_ulong, dec, true, "9999999999");
  read_case(as_long, dec, true, "9999999999");
  read_case(as_uint, dec, true, "9999999999");
  read_case(as_int, dec, true, "9999999999");
  read_case(as_ulong, dec, true, "5000000000");
  read_case(as_long, dec, true, "-5000000000");
  read_case(as_ulong, dec, true, "99999999999");
  read_case(as_ulong, dec, true, "4294967296");
  // Negative numbers for unsigned types at or above half the range.
  read_case(as_ulong, dec, true, "-4294967295");
  read_case(as_ulong, dec, true, "-2147483649");
  read_case(as_uint, dec, true, "-2147483649");
  read_case(as_ushort, dec, true, "-65535");
  read_case(as_ushort, dec, true, "-32769");
  read_case(as_ulong, hex, true, "-80000001");
  // Hex and octal overflow stop before the digit that does not fit.
  read_case(as_ulong, hex, true, "100000000");
  read_case(as_ulong, hex, true, "123456789abc");
  read_case(as_long, hex, true, "fffffffff");
  read_case(as_long, hex, true, "-123456789");
  read_case(as_ulong, oct, true, "77777777777");
  read_case(as_ulong, none, true, "0x1234567890");
  // Empty or blank input: the facet meets the end and stores 0.
  read_case(as_long, dec, true, "");
  read_case(as_long, dec, true, "   ");
  read_case(as_ulong, hex, true, " \n");
  read_case(as_short, dec, true, "");
  read_case(as_ushort, oct, true, "\t");
  return 0;
}
