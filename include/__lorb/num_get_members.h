// The members of std::num_get, for any input iterator; the library holds the instances over
// istreambuf_iterator<char> and char*.
#ifndef __LORB_NUM_GET_MEMBERS_H
#define __LORB_NUM_GET_MEMBERS_H

#include <__lorb/input_chars.h>
#include <__lorb/library_facets.h>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace __vel {

inline bool is_space(const std::ctype<char>& ct, int c) {
  return c != -1 && ct.is(std::ctype_base::space, static_cast<char>(c));
}

// Steps past the white space at in.
template <class _InputIter>
inline int skip_space(_InputIter& in, _InputIter& end, const std::ctype<char>& ct) {
  int c = peek_char(in, end);
  while (is_space(ct, c)) {
    ++in;
    c = peek_char(in, end);
  }
  return c;
}

// The value of c as a digit of base (8, 10 or 16), or -1.
inline int digit_value(int c, int base) {
  if (c >= '0' && c <= '9')
    return c - '0' < base ? c - '0' : -1;
  if (base == 16 && c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  if (base == 16 && c >= 'A' && c <= 'F')
    return c - 'A' + 10;
  return -1;
}

// The integer scanner for any width of accumulator: _Unsigned is unsigned long for the 32-bit
// targets and unsigned long long for the 64-bit ones. Decimal numbers longer than
// checked_digits are accumulated a second time from their digits to find an overflow. The
// separator and grouping are the stream's numpunct's.
template <class _InputIter, class _Unsigned>
_Unsigned scan_integer(_InputIter& in, _InputIter& end, std::ios_base& str, int& base,
                       int is_signed, _Unsigned max, unsigned checked_digits, int separator,
                       const std::string& grouping) {
  const std::ctype<char>& ct = std::use_facet<std::ctype<char> >(str.__locale);
  const bool grouped = grouping.size() != 0;
  const unsigned bits = sizeof(_Unsigned) * 8;

  _Unsigned saturated = is_signed ? max >> 1 : max;
  bool negative = false;
  int c = peek_char(in, end);
  if (c == '-') {
    negative = true;
    if (is_signed)
      ++saturated; // a negative overflow saturates at the most negative value
    ++in;
  } else if (c == '+') {
    ++in;
  }
  // Kept: white space is skipped after the sign, so "- 12" reads as -12.
  if (str.flags() & std::ios_base::skipws)
    skip_space(in, end, ct);
  c = peek_char(in, end);

  long basefield = str.flags() & std::ios_base::basefield;
  base = basefield == std::ios_base::dec   ? 10
         : basefield == std::ios_base::hex ? 16
         : basefield == std::ios_base::oct ? 8
                                           : 0;
  unsigned char digits[scan_digit_room];
  int positions[scan_separator_room];
  unsigned count = 0, separators = 0;
  _Unsigned acc = 0;
  bool overflow = false;

  if (c == '0') {
    ++in;
    c = peek_char(in, end);
    if (c != -1 && (base == 16 || base == 0) && (c == 'x' || c == 'X')) {
      ++in;
      c = peek_char(in, end);
      base = 16;
    } else {
      digits[count++] = 0; // the '0' is a digit already read
      if (base == 0)
        base = 8;
    }
  }
  // Kept: with no base bit set only a number written with a leading '0' is read; anything else
  // reads no digit at all.
  while (base != 0) {
    int d = digit_value(c, base);
    if (d < 0) {
      if (!grouped || c != separator || c == -1)
        break;
      if (separators == scan_separator_room) { // no room to record it: an overflow
        overflow = true;
        break;
      }
      positions[separators++] = count;
    } else {
      if (base == 16) {
        if (acc >> (bits - 4)) {
          overflow = true;
          break;
        }
        acc = acc * 16 | d;
      } else if (base == 8) {
        if (acc >> (bits - 3)) {
          overflow = true;
          break;
        }
        acc = acc * 8 | d;
      } else {
        if (count == scan_digit_room) { // no room to keep the digit: an overflow
          overflow = true;
          break;
        }
        digits[count] = static_cast<unsigned char>(d);
        acc = acc * 10 + d;
      }
      ++count;
    }
    ++in;
    c = peek_char(in, end);
  }
  // Kept: a long decimal number is checked by whether a step made the value go down, which
  // misses some wraps.
  if (!overflow && base == 10 && count > checked_digits) {
    acc = 0;
    for (unsigned i = 0; i < count; ++i) {
      _Unsigned previous = acc;
      acc = acc * 10 + digits[i];
      if (acc < previous) {
        overflow = true;
        break;
      }
    }
  }
  if (overflow) {
    base = -1;
    return saturated;
  }

  const _Unsigned half = (max >> 1) + 1;
  _Unsigned result = acc;
  bool in_range = true;
  if (acc & ~max)
    in_range = false;
  else if (!(acc & half))
    result = negative ? static_cast<_Unsigned>(-acc) & max : acc; // "-1" as unsigned is max
  else if (negative)
    in_range = acc == half; // only the most negative value
  else if (is_signed)
    in_range = false;
  if (!in_range) {
    base = -1;
    result = saturated;
  }
  if (count == 0)
    base = -1;
  // A grouping violation fails the scan but keeps the value read.
  if (separators && !group_positions_fit(static_cast<int>(count), static_cast<int>(separators),
                                         positions, grouping, false))
    base = -1;
  return result;
}

// The library's own numpunct<char> returns its fields unchanged: they are read in place, without
// a copy of the grouping for every number.
template <class _InputIter, class _Unsigned>
_Unsigned scan_integer(_InputIter& in, _InputIter& end, std::ios_base& str, int& base,
                       int is_signed, _Unsigned max, unsigned checked_digits) {
  const std::numpunct<char>& punct = std::use_facet<std::numpunct<char> >(str.__locale);
  if (is_library_numpunct(punct))
    return scan_integer(in, end, str, base, is_signed, max, checked_digits,
                        static_cast<unsigned char>(punct.__thousands_sep), punct.__grouping);
  const std::string grouping = punct.grouping();
  return scan_integer(in, end, str, base, is_signed, max, checked_digits,
                      static_cast<unsigned char>(punct.thousands_sep()), grouping);
}

// Appends c to the scanner's text unless it is full.
inline bool append_char(char*& out, char* limit, char c) {
  if (out == limit)
    return false;
  *out++ = c;
  return true;
}

template <class _InputIter>
bool scan_float(_InputIter& in, _InputIter& end, std::ios_base& str, char* buf) {
  const std::numpunct<char>& punct = std::use_facet<std::numpunct<char> >(str.__locale);
  const std::ctype<char>& ct = std::use_facet<std::ctype<char> >(str.__locale);
  const int separator = static_cast<unsigned char>(punct.thousands_sep());
  const int point = static_cast<unsigned char>(punct.decimal_point());
  const std::string grouping = punct.grouping();
  const bool grouped = grouping.size() != 0;
  const bool skip = (str.flags() & std::ios_base::skipws) != 0;
  char* out = buf;
  char* limit = buf + scan_text_size - 1; // room for the terminator
  int positions[scan_separator_room];
  int separators = 0, integer_digits = 0, fraction_digits = 0;

  int c = peek_char(in, end);
  if (c == '-' || c == '+') {
    append_char(out, limit, static_cast<char>(c));
    ++in;
  }
  c = skip ? skip_space(in, end, ct) : peek_char(in, end);
  bool last_was_separator = false;
  for (;; ++in, c = peek_char(in, end)) {
    if (c >= '0' && c <= '9') {
      if (!append_char(out, limit, static_cast<char>(c)))
        return false;
      ++integer_digits;
      last_was_separator = false;
    } else if (grouped && c == separator && c != -1) {
      if (separators == static_cast<int>(scan_separator_room))
        return false;
      positions[separators++] = integer_digits;
      last_was_separator = true;
    } else {
      break;
    }
  }
  if (last_was_separator)
    return false;
  if (c == point && c != -1) {
    // sscanf reads the C library's decimal point, whatever the stream's locale uses.
    if (!append_char(out, limit, c_decimal_point()))
      return false;
    for (++in, c = peek_char(in, end); c >= '0' && c <= '9'; ++in, c = peek_char(in, end)) {
      if (!append_char(out, limit, static_cast<char>(c)))
        return false;
      ++fraction_digits;
    }
  }
  if (integer_digits == 0 && fraction_digits == 0)
    return false;
  if (c == 'e' || c == 'E') {
    if (!append_char(out, limit, static_cast<char>(c)))
      return false;
    ++in;
    c = peek_char(in, end);
    if (c == '-' || c == '+') {
      if (!append_char(out, limit, static_cast<char>(c)))
        return false;
      ++in;
    }
    c = skip ? skip_space(in, end, ct) : peek_char(in, end);
    int exponent_digits = 0;
    for (; c >= '0' && c <= '9'; ++in, c = peek_char(in, end)) {
      if (!append_char(out, limit, static_cast<char>(c)))
        return false;
      ++exponent_digits;
    }
    if (exponent_digits == 0)
      return false;
  }
  if (separators && !group_positions_fit(integer_digits, separators, positions, grouping, true))
    return false;
  *out = 0;
  return true;
}

} // namespace __vel

namespace std {

template <class _CharT, class _InputIter>
unsigned long num_get<_CharT, _InputIter>::vel_scan_integral_type(iter_type& in, iter_type& end,
                                                                  ios_base& str, int& base,
                                                                  int is_signed,
                                                                  unsigned long max) const {
  return __vel::scan_integer(in, end, str, base, is_signed, max, 9u);
}

template <class _CharT, class _InputIter>
bool num_get<_CharT, _InputIter>::scan_float_type(iter_type& in, iter_type& end, ios_base& str,
                                                  char* buf) const {
  return __vel::scan_float(in, end, str, buf);
}

// The value is stored also when the scan failed: zero, the saturation value or the value read.
template <class _CharT, class _InputIter>
template <class _Unsigned>
_InputIter num_get<_CharT, _InputIter>::__get_unsigned(iter_type in, iter_type end, ios_base& str,
                                                       ios_base::iostate& err, _Unsigned& v,
                                                       unsigned long max) const {
  int base;
  unsigned long value = vel_scan_integral_type(in, end, str, base, 0, max);
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  if (base == -1)
    err |= ios_base::failbit;
  v = static_cast<_Unsigned>(value);
  return in;
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, unsigned short& v) const {
  return __get_unsigned(in, end, str, err, v, 65535ul);
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, unsigned int& v) const {
  return __get_unsigned(in, end, str, err, v, 0xFFFFFFFFul);
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, unsigned long& v) const {
  return __get_unsigned(in, end, str, err, v, 0xFFFFFFFFul);
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, long& v) const {
  int base;
  unsigned long value = vel_scan_integral_type(in, end, str, base, 1, 0xFFFFFFFFul);
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  if (base == -1)
    err |= ios_base::failbit;
  v = static_cast<long>(value);
  return in;
}

// The 64-bit targets: the same scanner and rules over a 64-bit accumulator; a decimal number
// longer than 19 digits gets the second pass.
template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, long long& v) const {
  int base;
  unsigned long long value = __vel::scan_integer(in, end, str, base, 1, ~0ull, 19u);
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  if (base == -1)
    err |= ios_base::failbit;
  v = static_cast<long long>(value);
  return in;
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err,
                                               unsigned long long& v) const {
  int base;
  unsigned long long value = __vel::scan_integer(in, end, str, base, 0, ~0ull, 19u);
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  if (base == -1)
    err |= ios_base::failbit;
  v = value;
  return in;
}

// A failed scan or conversion leaves v as it was.
template <class _CharT, class _InputIter>
template <class _Float>
_InputIter num_get<_CharT, _InputIter>::__get_float(iter_type in, iter_type end, ios_base& str,
                                                    ios_base::iostate& err, _Float& v,
                                                    const char* format) const {
  char buf[__vel::scan_text_size] = {0};
  _Float value;
  int converted = 0;
  if (scan_float_type(in, end, str, buf))
    converted = sscanf(buf, format, &value);
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  if (converted == 1)
    v = value;
  else
    err |= ios_base::failbit;
  return in;
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, float& v) const {
  return __get_float(in, end, str, err, v, "%f");
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, double& v) const {
  return __get_float(in, end, str, err, v, "%lf");
}

template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, long double& v) const {
  return __get_float(in, end, str, err, v, "%Lf");
}

// errno is cleared for sscanf, so that its own ERANGE is what counts, and restored after.
// Kept: an empty collection makes sscanf return end-of-file, which counts as a conversion: v
// becomes null and no bit is set.
template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, void*& v) const {
  int saved_errno = errno;
  const ctype<char>& ct = use_facet<ctype<char> >(str.__locale);
  static const char pointer_chars[] = "0123456789abcdefABCDEFxX";
  char buf[__vel::scan_text_size];
  unsigned length = 0;
  for (int c = __vel::peek_char(in, end); c != -1; ++in, c = __vel::peek_char(in, end)) {
    char narrowed = ct.narrow(static_cast<char>(c), 0);
    if (!narrowed || !memchr(pointer_chars, narrowed, sizeof pointer_chars - 1))
      break;
    if (length == __vel::scan_text_size - 1) // the text is full: the rest stays unread
      break;
    buf[length++] = narrowed;
  }
  buf[length] = 0;
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  void* p = 0;
  errno = 0;
  if (sscanf(buf, "%p", &p) != 0 && errno != ERANGE)
    v = p;
  else
    err |= ios_base::failbit;
  errno = saved_errno;
  return in;
}

// Without boolalpha one character decides: '0' or '1'. With it, the false and true names are
// matched a character at a time; a name counts only once the character after it is seen.
template <class _CharT, class _InputIter>
_InputIter num_get<_CharT, _InputIter>::do_get(iter_type in, iter_type end, ios_base& str,
                                               ios_base::iostate& err, bool& v) const {
  const ctype<char>& ct = use_facet<ctype<char> >(str.__locale);
  int c;
  if (str.flags() & ios_base::skipws) {
    c = __vel::skip_space(in, end, ct);
  } else {
    c = __vel::peek_char(in, end);
    if (__vel::is_space(ct, c)) {
      err |= ios_base::failbit;
      return in;
    }
  }
  if (c == -1) {
    err |= ios_base::eofbit;
    return in;
  }
  if (!(str.flags() & ios_base::boolalpha)) {
    if (c == '0' || c == '1') {
      v = c == '1';
      ++in;
      if (__vel::at_end(in, end))
        err |= ios_base::eofbit;
    } else {
      err |= ios_base::failbit;
    }
    return in;
  }
  const numpunct<char>& punct = use_facet<numpunct<char> >(str.__locale);
  const string names[2] = {punct.falsename(), punct.truename()};
  size_t lengths[2] = {names[0].size(), names[1].size()};
  // Kept: the input ending right after a name leaves v as it was and sets eofbit alone.
  for (size_t k = 0;; ++k) {
    if (c == -1) {
      err |= ios_base::eofbit;
      return in;
    }
    bool remaining = false;
    for (int i = 0; i < 2; ++i) { // the false name first: it wins a tie
      if (lengths[i] > k && names[i][k] != static_cast<char>(c))
        lengths[i] = 0; // eliminated
      if (k != 0 && lengths[i] == k) {
        v = i == 1;
        return in;
      }
      if (lengths[i] > k)
        remaining = true;
    }
    if (!remaining) {
      err |= ios_base::failbit;
      return in;
    }
    ++in;
    c = __vel::peek_char(in, end);
  }
}

#if __cplusplus >= 201103L
// The library holds these; a program need not compile them again.
extern template class num_get<char, istreambuf_iterator<char> >;
extern template class num_get<char, char*>;
#endif

} // namespace std

#endif
