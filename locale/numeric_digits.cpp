// __numeric_digits<char>: which characters are digits of a base, and their values.
#include <__lorb/punct_facets.h>
#include <string.h>

namespace std {
// The position of c in the digit set, or -1; the NUL character is never found.
static int position_in(const char* digits, char c) {
  size_t count = strlen(digits);
  const void* found = memchr(digits, c, count);
  return found ? static_cast<int>(static_cast<const char*>(found) - digits) : -1;
}

bool __numeric_digits<char>::is_digit(char c, int base) {
  switch (base) {
  case 10:
    return is_dec_digit(c);
  case 8:
    return is_oct_digit(c);
  case 16:
    return is_hex_digit(c);
  default:
    return false;
  }
}

int __numeric_digits<char>::value(char c, int base) {
  switch (base) {
  case 10:
    return dec_value(c);
  case 8:
    return oct_value(c);
  case 16:
    return hex_value(c);
  default:
    return -1;
  }
}

bool __numeric_digits<char>::is_dec_digit(char c) { return position_in("0123456789", c) >= 0; }

bool __numeric_digits<char>::is_oct_digit(char c) { return position_in("01234567", c) >= 0; }

bool __numeric_digits<char>::is_hex_digit(char c) {
  return position_in("0123456789ABCDEF", c) >= 0 || position_in("abcdef", c) >= 0;
}

int __numeric_digits<char>::dec_value(char c) { return position_in("0123456789", c); }

int __numeric_digits<char>::oct_value(char c) { return position_in("01234567", c); }

int __numeric_digits<char>::hex_value(char c) {
  int upper = position_in("0123456789ABCDEF", c);
  return upper >= 0 ? upper : position_in("0123456789abcdef", c);
}
} // namespace std
