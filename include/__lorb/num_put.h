// std::num_put: numbers to characters. The text comes from the C library's sprintf formats (the
// integers from the library's own converter, which writes the same bytes), is rewritten for the
// locale's grouping and decimal point and padded to the field width.
#ifndef __LORB_NUM_PUT_H
#define __LORB_NUM_PUT_H

#include <__lorb/c_decimal_point.h>
#include <__lorb/char_runs.h>
#include <__lorb/config.h>
#include <__lorb/ios_base.h>
#include <__lorb/locale_core.h>
#include <__lorb/punct_facets.h>
#include <__lorb/streambuf_iterators.h>

namespace __vel {

// The size of the scratch text every conversion writes into.
const unsigned number_text_size = 200;

// Writes into text, NUL-terminated, what sprintf(text, format, value) writes for a format that
// num_put::int_fmt builds ("%", "+"?, "#"?, "l" or "ll", one of d u o x X), given the argument
// sprintf would take (a long's bits sign-extended); returns the length.
__LORB_EXPORT unsigned format_integer(char* text, const char* format, unsigned long long argument);

// Inserts the grouping placeholder ',' into the digits text[prefix, end), right to left by the
// sizes of grouping; moves what follows end (terminator included) along. Returns the new end;
// length grows by the number of placeholders.
__LORB_EXPORT unsigned insert_group_placeholders(char* text, unsigned& length, unsigned end,
                                                 unsigned prefix, const char* grouping);

// Turns every placeholder ',' among the first length characters into separator.
inline void replace_placeholders(char* text, unsigned length, char separator) {
  for (char* end = text + length; text < end; ++text)
    if (*text == ',')
      *text = separator;
}

} // namespace __vel

namespace std {

template <class _CharT, class _OutputIter = ostreambuf_iterator<_CharT> >
class __LORB_EXPORT num_put : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _OutputIter iter_type;

  explicit num_put(size_t refs = 0) : locale::facet(refs) {}

  iter_type put(iter_type out, ios_base& str, char_type fill, bool v) const {
    return do_put(out, str, fill, v);
  }
  iter_type put(iter_type out, ios_base& str, char_type fill, long v) const {
    return do_put(out, str, fill, v);
  }
  iter_type put(iter_type out, ios_base& str, char_type fill, unsigned long v) const {
    return do_put(out, str, fill, v);
  }
  iter_type put(iter_type out, ios_base& str, char_type fill, double v) const {
    return do_put(out, str, fill, v);
  }
  iter_type put(iter_type out, ios_base& str, char_type fill, long double v) const {
    return do_put(out, str, fill, v);
  }
  iter_type put(iter_type out, ios_base& str, char_type fill, const void* v) const {
    return do_put(out, str, fill, v);
  }
  // long long is standard from C++11 and a GNU extension before; its slots follow the others.
  __extension__ iter_type put(iter_type out, ios_base& str, char_type fill, long long v) const {
    return do_put(out, str, fill, v);
  }
  __extension__ iter_type put(iter_type out, ios_base& str, char_type fill,
                              unsigned long long v) const {
    return do_put(out, str, fill, v);
  }

  static locale::id id;

protected:
  virtual ~num_put() {}

  // The virtual operations, in this order.
  virtual iter_type do_put(iter_type out, ios_base& str, char_type fill, bool v) const;
  virtual iter_type do_put(iter_type out, ios_base& str, char_type fill, long v) const;
  virtual iter_type do_put(iter_type out, ios_base& str, char_type fill, unsigned long v) const;
  virtual iter_type do_put(iter_type out, ios_base& str, char_type fill, double v) const;
  virtual iter_type do_put(iter_type out, ios_base& str, char_type fill, long double v) const;
  virtual iter_type do_put(iter_type out, ios_base& str, char_type fill, const void* v) const;
  __extension__ virtual iter_type do_put(iter_type out, ios_base& str, char_type fill,
                                         long long v) const;
  __extension__ virtual iter_type do_put(iter_type out, ios_base& str, char_type fill,
                                         unsigned long long v) const;

  // Builds "%[+][#]l<conv>" into fmt (6 bytes), or "%p" when conv is 'p'.
  static void int_fmt(char* fmt, char conv, long flags);
  // Builds "%[+][#].*[L]<f|e|g>" into fmt (8 bytes); length is 'L' or 0.
  static void float_fmt(char* fmt, char length, ios_base& str);
  // Writes len characters of buf with the locale's grouping and the padding of str.
  iter_type print_integral_type(iter_type out, ios_base& str, char_type fill, char* buf,
                                unsigned len) const;
  // The same for floating-point text, followed by extra_zeros zeros in the fraction.
  iter_type print_float_type(iter_type out, ios_base& str, char_type fill, char* buf,
                             unsigned extra_zeros, unsigned len) const;

  iter_type __put_integer(iter_type out, ios_base& str, char_type fill, char conv,
                          unsigned long long argument, bool wide) const;
  template <class _Float>
  iter_type __put_float(iter_type out, ios_base& str, char_type fill, char length, _Float v) const;
};

// Every instance has its id; the library's two instances have theirs in the library.
template <class _CharT, class _OutputIter> locale::id num_put<_CharT, _OutputIter>::id;
template <> __LORB_EXPORT locale::id num_put<char, ostreambuf_iterator<char> >::id;
template <> __LORB_EXPORT locale::id num_put<char, char*>::id;

} // namespace std

#include <__lorb/num_put_members.h>

#endif
