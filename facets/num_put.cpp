// std::num_put: the two instances the library holds, their ids, and the pieces that do not
// depend on the iterator (the integer converter, the grouping walk, the float text).
#include <__lorb/error.h>
#include <__lorb/num_put.h>
#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

namespace __vel {

namespace {
// Writes the digits of value in base, most significant first, ending at end; returns the first.
template <class _Unsigned>
char* digits_of(_Unsigned value, unsigned base, const char* alphabet, char* end) {
  char* first = end;
  if (base == 10) {
    do {
      *--first = static_cast<char>('0' + value % 10);
      value /= 10;
    } while (value);
  } else {
    unsigned shift = base == 16 ? 4 : 3;
    do {
      *--first = alphabet[value & (base - 1)];
      value >>= shift;
    } while (value);
  }
  return first;
}
} // namespace

// Byte for byte what sprintf writes for these formats: the sign only for d ('+' with showpos);
// '#' gives octal a leading 0 unless the digits start with one, and hexadecimal 0x or 0X unless
// the value is 0; "l" takes the low 32 bits of the argument, "ll" all 64.
unsigned format_integer(char* text, const char* format, unsigned long long argument) {
  bool plus = false, alternate = false, wide = false;
  for (++format;; ++format) {
    if (*format == '+')
      plus = true;
    else if (*format == '#')
      alternate = true;
    else
      break;
  }
  for (; *format == 'l'; ++format)
    wide = format[1] == 'l' || wide;
  char conversion = *format;
  unsigned base = conversion == 'o' ? 8 : (conversion == 'x' || conversion == 'X') ? 16 : 10;
  const char* alphabet = conversion == 'X' ? "0123456789ABCDEF" : "0123456789abcdef";

  bool negative = false;
  unsigned long long value = wide ? argument : static_cast<unsigned long>(argument);
  if (conversion == 'd') {
    long long signed_value = wide ? static_cast<long long>(argument)
                                  : static_cast<long>(static_cast<unsigned long>(argument));
    negative = signed_value < 0;
    value = negative ? 0ULL - static_cast<unsigned long long>(signed_value)
                     : static_cast<unsigned long long>(signed_value);
  }
  char digits[24];
  char* end = digits + sizeof digits;
  char* first = value >> 32 ? digits_of(value, base, alphabet, end)
                            : digits_of(static_cast<unsigned long>(value), base, alphabet, end);
  char* out = text;
  if (conversion == 'd' && (negative || plus))
    *out++ = negative ? '-' : '+';
  if (alternate && base == 8 && *first != '0')
    *out++ = '0';
  if (alternate && base == 16 && value != 0) {
    *out++ = '0';
    *out++ = conversion;
  }
  while (first < end)
    *out++ = *first++;
  *out = 0;
  return static_cast<unsigned>(out - text);
}

// Right to left from end: each byte of grouping is a group size, 127 ends the grouping, a size
// below 1 stops it, and the last size repeats (the string's end repeats it too).
unsigned insert_group_placeholders(char* text, unsigned& length, unsigned end, unsigned prefix,
                                   const char* grouping) {
  const char* size = grouping;
  if (*size == 127)
    return end;
  int pos = static_cast<int>(end);
  while (*size < pos - static_cast<int>(prefix)) {
    if (*size < 1)
      break;
    pos -= *size;
    memmove(text + pos + 1, text + pos, length - pos + 1);
    text[pos] = ',';
    ++length;
    ++end;
    if (size[1] > 0)
      ++size;
    if (*size == 127)
      break;
  }
  return end;
}

char c_decimal_point() { return localeconv()->decimal_point[0]; }

namespace {
// The text normally fits the caller's scratch buffer with room to spare for a placeholder
// between every two characters; fixed notation of huge values does not, and gets a buffer of
// its own size rather than running past the end.
template <class _Float>
char* format_any_float(char* text, unsigned room, const char* fmt, int precision, _Float value,
                       unsigned& length, char** spare) {
  int needed = snprintf(text, room, fmt, precision, value);
  if (needed < 0)
    needed = 0;
  unsigned wanted = 2 * static_cast<unsigned>(needed) + 2;
  if (wanted > room) {
    text = static_cast<char*>(malloc(wanted));
    if (!text)
      out_of_memory();
    snprintf(text, wanted, fmt, precision, value);
    *spare = text;
  }
  length = static_cast<unsigned>(needed);
  return text;
}
} // namespace

char* format_float(char* text, unsigned room, const char* fmt, int precision, double value,
                   unsigned& length, char** spare) {
  return format_any_float(text, room, fmt, precision, value, length, spare);
}

char* format_float(char* text, unsigned room, const char* fmt, int precision, long double value,
                   unsigned& length, char** spare) {
  return format_any_float(text, room, fmt, precision, value, length, spare);
}

} // namespace __vel

namespace std {

template <> __LORB_EXPORT locale::id num_put<char, ostreambuf_iterator<char> >::id = locale::id();
template <> __LORB_EXPORT locale::id num_put<char, char*>::id = locale::id();

template class num_put<char, ostreambuf_iterator<char> >;
template class num_put<char, char*>;

} // namespace std
