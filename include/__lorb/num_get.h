// std::num_get: characters to numbers. Integers are scanned and accumulated here, a character at
// a time, with the library's own overflow and grouping rules; floating-point numbers and
// pointers are collected into text that sscanf converts.
#ifndef __LORB_NUM_GET_H
#define __LORB_NUM_GET_H

#include <__lorb/c_decimal_point.h>
#include <__lorb/config.h>
#include <__lorb/ctype_facets.h>
#include <__lorb/ios_base.h>
#include <__lorb/locale_core.h>
#include <__lorb/punct_facets.h>
#include <__lorb/streambuf_iterators.h>
#include <string>

namespace __vel {

// The most decimal digits and thousands separators a scan keeps; one more ends it as an overflow.
const unsigned scan_digit_room = 200;
const unsigned scan_separator_room = 20;
// The size of the text the floating-point and pointer scanners build for sscanf.
const unsigned scan_text_size = 200;

// The grouping walk of a finished scan: the separators recorded after positions[0..separators)
// digits must split the digits right to left by the sizes in grouping, the last size repeating,
// and the leftmost group must not be longer than its size. A size of 127 ends grouping: a
// separator that meets it fails; the leftmost group under it is free, unless
// limit_free_leftmost (the floating-point scanner), which holds it to 15 digits.
__LORB_EXPORT bool group_positions_fit(int digits, int separators, const int* positions,
                                       const std::string& grouping, bool limit_free_leftmost);

} // namespace __vel

namespace std {

// True when no separator was met, false for an empty grouping, else the grouping walk's verdict.
__LORB_EXPORT bool __trelk_check_grouping(int digits, int separators, const int* positions,
                                          const string& grouping);
// Text to integer in base; the result comes back through result, the return says whether it
// was in range.
__LORB_EXPORT bool __trelk_strtoul(const char* s, unsigned long& result, int base);
__LORB_EXPORT bool __trelk_strtol(const char* s, long& result, int base);

template <class _CharT, class _InputIter = istreambuf_iterator<_CharT> >
class __LORB_EXPORT num_get : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _InputIter iter_type;

  explicit num_get(size_t refs = 0) : locale::facet(refs) {}

  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err, bool& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err, long& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                unsigned short& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                unsigned int& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                unsigned long& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                float& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                double& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                long double& v) const {
    return do_get(in, end, str, err, v);
  }
  iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                void*& v) const {
    return do_get(in, end, str, err, v);
  }
  // long long is standard from C++11 and a GNU extension before; its slots follow the others.
  __extension__ iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                              long long& v) const {
    return do_get(in, end, str, err, v);
  }
  __extension__ iter_type get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                              unsigned long long& v) const {
    return do_get(in, end, str, err, v);
  }

  static locale::id id;

protected:
  virtual ~num_get() {}

  // The virtual operations, in this order. There is none for short or int: the streams read
  // those through long.
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           bool& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           unsigned short& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           unsigned int& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           long& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           unsigned long& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           float& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           double& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           long double& v) const;
  virtual iter_type do_get(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           void*& v) const;
  __extension__ virtual iter_type do_get(iter_type in, iter_type end, ios_base& str,
                                         ios_base::iostate& err, long long& v) const;
  __extension__ virtual iter_type do_get(iter_type in, iter_type end, ios_base& str,
                                         ios_base::iostate& err, unsigned long long& v) const;

  // Scans an integer whose magnitude fits max (as unsigned); is_signed is 1 for long. On return
  // base holds the base used, or -1 for a failed scan; the result is the value, or the
  // saturation value on overflow.
  unsigned long vel_scan_integral_type(iter_type& in, iter_type& end, ios_base& str, int& base,
                                       int is_signed, unsigned long max) const;
  // Collects a floating-point number into buf (scan_text_size bytes, zero-filled): true when
  // buf holds a well-formed number for sscanf.
  bool scan_float_type(iter_type& in, iter_type& end, ios_base& str, char* buf) const;

private:
  template <class _Unsigned>
  iter_type __get_unsigned(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                           _Unsigned& v, unsigned long max) const;
  template <class _Float>
  iter_type __get_float(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                        _Float& v, const char* format) const;
};

// Every instance has its id; the library's two instances have theirs in the library.
template <class _CharT, class _InputIter> locale::id num_get<_CharT, _InputIter>::id;
template <> __LORB_EXPORT locale::id num_get<char, istreambuf_iterator<char> >::id;
template <> __LORB_EXPORT locale::id num_get<char, char*>::id;

} // namespace std

#include <__lorb/num_get_members.h>

#endif
