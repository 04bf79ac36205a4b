// Where Lorb++'s integer reading deliberately differs: with basefield cleared only numbers with a
// leading 0 are read; blanks between the sign and the digits are skipped under skipws; short is
// stored truncated and then flagged; decimal overflow is found only where the value went down
// while re-reading the digits (so some wraps pass); a negative number for an unsigned type is
// accepted only below half the range; hex and octal overflow stop before the digit that would
// not fit; and an empty input reaches the facet, which stores 0 (GNU's sentry keeps the target).
#include <cstdio>
#include <sstream>

#include "input_integer_types.h"
#include "input_support.h"

int main() {
  const std::ios_base::fmtflags dec = std::ios_base::dec, hex = std::ios_base::hex;
  const std::ios_base::fmtflags oct = std::ios_base::oct, none = std::ios_base::fmtflags();
  // basefield cleared: a number without a leading 0 is not read at all.
  read_case(as_long, none, true, "17", 7);
  read_case(as_long, none, true, "-17", 7);
  read_case(as_long, none, true, " 5 ", 7);
  read_case(as_ulong, none, true, "+9", 7);
  // Blanks after the sign.
  read_case(as_long, dec, true, "- 12", 7);
  read_case(as_long, dec, true, "+ 7x", 7);
  read_case(as_long, dec, true, "-\t\n5", 7);
  read_case(as_long, hex, true, "- 0x1f", 7);
  read_case(as_ulong, oct, true, "-  17", 7);
  read_case(as_long, dec, false, "- 12", 7);
  // short: stored truncated, then flagged.
  read_case(as_short, dec, true, "70000", 7);
  read_case(as_short, dec, true, "-40000 ", 7);
  read_case(as_short, dec, true, "32768", 7);
  read_case(as_short, dec, true, "65535", 7);
  read_case(as_short, dec, true, "65536", 7);
  read_case(as_short, dec, true, "-32769", 7);
  read_case(as_short, dec, true, "2147483648", 7);
  read_case(as_short, dec, true, "-9999999999", 7);
  read_case(as_short, hex, true, "ffff", 7);
  read_case(as_short, oct, true, "100000", 7);
  // Decimal wraps that the value-went-down rule misses, and ones it finds.
  read_case(as_ulong, dec, true, "9999999999", 7);
  read_case(as_long, dec, true, "9999999999", 7);
  read_case(as_uint, dec, true, "9999999999", 7);
  read_case(as_int, dec, true, "9999999999", 7);
  read_case(as_ulong, dec, true, "5000000000", 7);
  read_case(as_long, dec, true, "-5000000000", 7);
  read_case(as_ulong, dec, true, "99999999999", 7);
  read_case(as_ulong, dec, true, "4294967296", 7);
  // Negative numbers for unsigned types at or above half the range.
  read_case(as_ulong, dec, true, "-4294967295", 7);
  read_case(as_ulong, dec, true, "-2147483649", 7);
  read_case(as_uint, dec, true, "-2147483649", 7);
  read_case(as_ushort, dec, true, "-65535", 7);
  read_case(as_ushort, dec, true, "-32769", 7);
  read_case(as_ulong, hex, true, "-80000001", 7);
  // Hex and octal overflow stop before the digit that does not fit.
  read_case(as_ulong, hex, true, "100000000", 7);
  read_case(as_ulong, hex, true, "123456789abc", 7);
  read_case(as_long, hex, true, "fffffffff", 7);
  read_case(as_long, hex, true, "-123456789", 7);
  read_case(as_ulong, oct, true, "77777777777", 7);
  read_case(as_ulong, none, true, "0x1234567890", 7);
  // Empty or blank input: the facet meets the end and stores 0.
  read_case(as_long, dec, true, "", 7);
  read_case(as_long, dec, true, "   ", 7);
  read_case(as_ulong, hex, true, " \n", 7);
  read_case(as_short, dec, true, "", 7);
  read_case(as_ushort, oct, true, "\t", 7);
  return 0;
}
