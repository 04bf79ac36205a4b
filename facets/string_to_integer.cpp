// __trelk_strtoul and __trelk_strtol: text to integer in a given base, saying whether the value
// was in range.
#include <__lorb/num_get.h>

namespace std {

// A character that is not a digit of base (any character, for a base other than 8, 10 and 16)
// ends the conversion as out of range. Kept: an overflow with '-' stores 1, the negation of
// 0xFFFFFFFF.
bool __trelk_strtoul(const char* s, unsigned long& result, int base) {
  bool negative = false;
  if (*s == '-' || *s == '+') {
    negative = *s == '-';
    ++s;
  }
  // Empty text after the sign is 0, in range.
  if (*s == '\0') {
    result = 0;
    return true;
  }
  while (*s == '0')
    ++s;
  unsigned long acc = 0;
  bool in_range = true;
  for (; *s; ++s) {
    int value = __numeric_digits<char>::value(*s, base);
    if (value < 0) {
      acc = 0xFFFFFFFFul;
      in_range = false;
      break;
    }
    unsigned long digit = static_cast<unsigned long>(value);
    unsigned long previous = acc;
    unsigned long scaled = static_cast<unsigned long>(base) * previous;
    acc = digit + scaled;
    if (acc < digit || scaled / static_cast<unsigned long>(base) != previous) {
      acc = 0xFFFFFFFFul;
      in_range = false;
      break;
    }
  }
  result = negative ? 0ul - acc : acc;
  return in_range;
}

// Out of range, the result is the most negative or the most positive long.
bool __trelk_strtol(const char* s, long& result, int base) {
  bool negative = *s == '-';
  if (negative)
    ++s;
  unsigned long magnitude;
  bool in_range = __trelk_strtoul(s, magnitude, base);
  unsigned long limit = negative ? 0x80000000ul : 0x7FFFFFFFul;
  if (in_range && magnitude <= limit) {
    result = static_cast<long>(negative ? 0ul - magnitude : magnitude);
    return true;
  }
  result = static_cast<long>(limit);
  return false;
}

} // namespace std
