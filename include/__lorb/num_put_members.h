// The members of std::num_put, for any output iterator; the library holds the instances over
// ostreambuf_iterator<char> and char*.
#ifndef __LORB_NUM_PUT_MEMBERS_H
#define __LORB_NUM_PUT_MEMBERS_H

#include <__lorb/error.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace __vel {
// Formats value with fmt and the precision into text (room bytes); when the text and its room
// for grouping placeholders do not fit, into a buffer of its own from malloc, which *spare
// then also points at for the caller to free. Returns the text and sets length.
__LORB_EXPORT char* format_float(char* text, unsigned room, const char* fmt, int precision,
                                 double value, unsigned& length, char** spare);
__LORB_EXPORT char* format_float(char* text, unsigned room, const char* fmt, int precision,
                                 long double value, unsigned& length, char** spare);
} // namespace __vel

namespace std {

template <class _CharT, class _OutputIter>
void num_put<_CharT, _OutputIter>::int_fmt(char* fmt, char conv, long flags) {
  *fmt++ = '%';
  if (conv == 'p') {
    *fmt++ = 'p';
    *fmt = 0;
    return;
  }
  if (flags & ios_base::showpos)
    *fmt++ = '+';
  if (flags & ios_base::showbase)
    *fmt++ = '#';
  *fmt++ = 'l';
  long base = flags & ios_base::basefield;
  if (base == ios_base::oct)
    *fmt++ = 'o';
  else if (base == ios_base::hex)
    *fmt++ = (flags & ios_base::uppercase) ? 'X' : 'x';
  else
    *fmt++ = conv;
  *fmt = 0;
}

template <class _CharT, class _OutputIter>
void num_put<_CharT, _OutputIter>::float_fmt(char* fmt, char length, ios_base& str) {
  long flags = str.flags();
  *fmt++ = '%';
  if (flags & ios_base::showpos)
    *fmt++ = '+';
  if (flags & ios_base::showpoint)
    *fmt++ = '#';
  *fmt++ = '.';
  *fmt++ = '*';
  if (length)
    *fmt++ = length;
  long notation = flags & ios_base::floatfield;
  // Always lower case: uppercase acts on the exponent marker only, while the text is copied out.
  *fmt++ = notation == ios_base::fixed ? 'f' : notation == ios_base::scientific ? 'e' : 'g';
  *fmt = 0;
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::print_integral_type(iter_type out, ios_base& str,
                                                              char_type fill, char* buf,
                                                              unsigned len) const {
  const numpunct<char>& punct = use_facet<numpunct<char> >(str.__locale);
  unsigned prefix = 0;
  if (buf[0] == '+' || buf[0] == '-')
    prefix = 1;
  else if (buf[0] == '0' && (buf[1] == 'x' || buf[1] == 'X'))
    prefix = 2;
  else if (buf[0] == '0' && buf[1] != 0)
    prefix = 1; // the octal base mark
  __vel::insert_group_placeholders(buf, len, len, prefix, punct.grouping().c_str());
  __vel::replace_placeholders(buf, len, punct.thousands_sep());

  long pad = str.width() > static_cast<long>(len) ? str.width() - static_cast<long>(len) : 0;
  long adjust = str.flags() & ios_base::adjustfield;
  unsigned first = 0;
  if (adjust == ios_base::internal && prefix != 0) {
    out = __vel::put_chars(out, buf, prefix);
    first = prefix;
  }
  if (adjust != ios_base::left && pad != 0) {
    out = __vel::put_fill(out, fill, pad);
    pad = 0;
  }
  out = __vel::put_chars(out, buf + first, len - first);
  str.width(0);
  return __vel::put_fill(out, fill, pad);
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::print_float_type(iter_type out, ios_base& str,
                                                           char_type fill, char* buf,
                                                           unsigned extra_zeros,
                                                           unsigned len) const {
  const numpunct<char>& punct = use_facet<numpunct<char> >(str.__locale);
  unsigned sign = (buf[0] == '+' || buf[0] == '-') ? 1 : 0;
  // Kept: without a decimal point the whole text counts as the integer part, exponent included.
  const char* point = static_cast<const char*>(memchr(buf, __vel::c_decimal_point(), len));
  unsigned integer_end = point ? static_cast<unsigned>(point - buf) : len;
  unsigned total = len;
  integer_end =
      __vel::insert_group_placeholders(buf, total, integer_end, sign, punct.grouping().c_str());
  __vel::replace_placeholders(buf, integer_end, punct.thousands_sep());

  long used = static_cast<long>(len + extra_zeros);
  long pad = str.width() > used ? str.width() - used : 0;
  long flags = str.flags();
  unsigned first = 0;
  if (sign && (flags & ios_base::internal)) {
    out = __vel::put_chars(out, buf, 1);
    first = 1;
  }
  if ((flags & ios_base::adjustfield) != ios_base::left)
    out = __vel::put_fill(out, fill, pad);
  out = __vel::put_chars(out, buf + first, integer_end - first);
  const char* next = buf + integer_end;
  const char* end = buf + total;
  if (next < end) { // the decimal point
    out = __vel::put_fill(out, punct.decimal_point(), 1);
    ++next;
  }
  const char* exponent = next;
  while (exponent < end && *exponent != 'e')
    ++exponent;
  out = __vel::put_chars(out, next, exponent - next);
  out = __vel::put_fill(out, '0', extra_zeros);
  if (exponent < end) {
    out = __vel::put_fill(out, (flags & ios_base::uppercase) ? 'E' : 'e', 1);
    out = __vel::put_chars(out, exponent + 1, end - exponent - 1);
  }
  str.width(0);
  if ((flags & ios_base::adjustfield) == ios_base::left)
    out = __vel::put_fill(out, fill, pad);
  return out;
}

template <class _CharT, class _OutputIter>
_OutputIter
num_put<_CharT, _OutputIter>::__put_integer(iter_type out, ios_base& str, char_type fill, char conv,
                                            unsigned long long argument, bool wide) const {
  char fmt[8] = {0};
  int_fmt(fmt, conv, str.flags());
  if (wide) { // "%...l<c>" becomes "%...ll<c>"
    size_t n = strlen(fmt);
    fmt[n + 1] = 0;
    fmt[n] = fmt[n - 1];
    fmt[n - 1] = 'l';
  }
  // Not zero-filled first: the converter ends its text with a terminator, and nothing reads
  // past it.
  char buf[__vel::number_text_size];
  unsigned len = __vel::format_integer(buf, fmt, argument);
  return print_integral_type(out, str, fill, buf, len);
}

template <class _CharT, class _OutputIter>
template <class _Float>
_OutputIter num_put<_CharT, _OutputIter>::__put_float(iter_type out, ios_base& str, char_type fill,
                                                      char length, _Float v) const {
  char fmt[8] = {0};
  float_fmt(fmt, length, str);
  long precision = str.precision();
  if (precision < 1 && !(str.flags() & ios_base::fixed))
    precision = 6;
  // Settled here: a negative precision in fixed notation means the default 6, as printf takes a
  // negative precision, rather than an enormous count of extra zeros.
  if (precision < 0)
    precision = 6;
  unsigned long wanted = static_cast<unsigned long>(precision);
  unsigned extra_zeros = wanted > 127 ? static_cast<unsigned>(wanted - 127) : 0;
  char buf[__vel::number_text_size] = {0};
  char* spare = 0;
  unsigned len = 0;
  char* text = __vel::format_float(buf, sizeof buf, fmt,
                                   wanted > 127 ? 127 : static_cast<int>(wanted), v, len, &spare);
  out = print_float_type(out, str, fill, text, extra_zeros, len);
  free(spare);
  return out;
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type,
                                                 bool v) const {
  if (!(str.flags() & ios_base::boolalpha)) {
    *out = v ? '1' : '0';
    return ++out;
  }
  const numpunct<char>& punct = use_facet<numpunct<char> >(str.__locale);
  basic_string<char> name = v ? punct.truename() : punct.falsename();
  return __vel::put_chars(out, name.data(), name.size());
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                 long v) const {
  return __put_integer(out, str, fill, 'd', static_cast<unsigned long long>(v), false);
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                 unsigned long v) const {
  return __put_integer(out, str, fill, 'u', v, false);
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                 long long v) const {
  return __put_integer(out, str, fill, 'd', static_cast<unsigned long long>(v), true);
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                 unsigned long long v) const {
  return __put_integer(out, str, fill, 'u', v, true);
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                 double v) const {
  return __put_float(out, str, fill, 0, v);
}

template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                 long double v) const {
  return __put_float(out, str, fill, 'L', v);
}

// Pointers are padded the other way round: left adjustment pads before the text, right after
// it, and internal or no adjustment not at all. Kept as it is; there is no grouping.
template <class _CharT, class _OutputIter>
_OutputIter num_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                 const void* v) const {
  char fmt[8] = {0};
  int_fmt(fmt, 'p', str.flags());
  char buf[__vel::number_text_size] = {0};
  long len = sprintf(buf, fmt, v);
  long pad = str.width() > len ? str.width() - len : 0;
  long adjust = str.flags() & ios_base::adjustfield;
  if (adjust == ios_base::left)
    out = __vel::put_fill(out, fill, pad);
  out = __vel::put_chars(out, buf, len);
  if (adjust == ios_base::right)
    out = __vel::put_fill(out, fill, pad);
  str.width(0);
  return out;
}

#if __cplusplus >= 201103L
// The library holds these; a program need not compile them again.
extern template class num_put<char, ostreambuf_iterator<char> >;
extern template class num_put<char, char*>;
#endif

} // namespace std

#endif
