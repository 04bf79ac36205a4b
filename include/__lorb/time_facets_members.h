// The members of std::time_get and std::time_put, for any iterator; the library holds the
// instances over istreambuf_iterator<char> and ostreambuf_iterator<char>.
#ifndef __LORB_TIME_FACETS_MEMBERS_H
#define __LORB_TIME_FACETS_MEMBERS_H

#include <__lorb/char_runs.h>
#include <__lorb/input_chars.h>
#include <__lorb/time_facets.h>
#include <ctime>

namespace __vel {
// Whether v lies in [lowest, highest], tested unsigned so that negative values are out of range.
inline bool time_field_in(int v, unsigned lowest, unsigned highest) {
  return static_cast<unsigned>(v) - lowest <= highest - lowest;
}

// Stores a number read for conv into t by the field's rule; false when it is out of range.
// Kept: 'I' gives 0 to 11 without regard to am or pm, 'j' stores one more than it reads, and a
// year of 1900 or less is stored as read (so "96" and "1996" both give 96).
inline bool store_time_field(std::tm* t, char conv, int v) {
  switch (conv) {
  case 'H':
    if (!time_field_in(v, 0, 23))
      return false;
    t->tm_hour = v;
    return true;
  case 'I':
    if (!time_field_in(v, 1, 12))
      return false;
    t->tm_hour = v - 1;
    return true;
  case 'M':
    if (!time_field_in(v, 0, 59))
      return false;
    t->tm_min = v;
    return true;
  case 'S':
    if (!time_field_in(v, 0, 59))
      return false;
    t->tm_sec = v;
    return true;
  case 'd':
    if (!time_field_in(v, 1, 31))
      return false;
    t->tm_mday = v;
    return true;
  case 'j':
    if (!time_field_in(v, 0, 365))
      return false;
    t->tm_yday = v + 1;
    return true;
  case 'm':
    if (!time_field_in(v, 1, 12))
      return false;
    t->tm_mon = v - 1;
    return true;
  case 'w':
    if (!time_field_in(v, 0, 6))
      return false;
    t->tm_wday = v;
    return true;
  default: // 'Y' and 'y'
    if (v < 0)
      return false;
    t->tm_year = v > 1900 ? v - 1900 : v;
    return true;
  }
}

inline bool is_numeric_time_field(char conv) {
  switch (conv) {
  case 'H':
  case 'I':
  case 'M':
  case 'S':
  case 'd':
  case 'j':
  case 'm':
  case 'w':
  case 'Y':
  case 'y':
    return true;
  default:
    return false;
  }
}
} // namespace __vel

namespace std {

// The date format is "%m/%d/%y" whatever the locale, so the order is always month, day, year.
template <class _CharT, class _InputIter>
time_base::dateorder time_get<_CharT, _InputIter>::do_date_order() const {
  return mdy;
}

template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::__scan_whole(iter_type in, iter_type end, ios_base& str,
                                                      ios_base::iostate& err, tm* t,
                                                      const string_type& format) const {
  in = do_time_scanf(in, end, str, err, t, format.data(), format.data() + format.size());
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  return in;
}

// The time format "%H:%M:%S" through the format walk; eofbit when the input is used up.
template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::do_get_time(iter_type in, iter_type end, ios_base& str,
                                                     ios_base::iostate& err, tm* t) const {
  timepunct<char> punct("");
  return __scan_whole(in, end, str, err, t, punct.get_time_format());
}

// The date format "%m/%d/%y" through the format walk; eofbit when the input is used up.
template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::do_get_date(iter_type in, iter_type end, ios_base& str,
                                                     ios_base::iostate& err, tm* t) const {
  timepunct<char> punct("");
  return __scan_whole(in, end, str, err, t, punct.get_date_format());
}

// Abbreviated or full name, compared exactly (case included) and without skipping white space,
// as the format walk compares its literals; eofbit when the input ended during the match.
template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::do_get_weekday(iter_type in, iter_type end, ios_base&,
                                                        ios_base::iostate& err, tm* t) const {
  timepunct<char> punct("");
  int found = which_matches(in, end, punct.get_week_day_list(), 14);
  if (found < 0)
    err |= ios_base::failbit;
  else
    t->tm_wday = found % 7;
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  return in;
}

// As the weekday: the abbreviated or full month name.
template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::do_get_monthname(iter_type in, iter_type end, ios_base&,
                                                          ios_base::iostate& err, tm* t) const {
  timepunct<char> punct("");
  int found = which_matches(in, end, punct.get_month_name_list(), 24);
  if (found < 0)
    err |= ios_base::failbit;
  else
    t->tm_mon = found % 12;
  if (__vel::at_end(in, end))
    err |= ios_base::eofbit;
  return in;
}

// "%Y": up to four digits, stored by the year rule of the format walk.
template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::do_get_year(iter_type in, iter_type end, ios_base& str,
                                                     ios_base::iostate& err, tm* t) const {
  static const char year_format[] = "%Y";
  return __scan_whole(in, end, str, err, t, string_type(year_format, year_format + 2));
}

// Every name is followed at once, a character at a time, since an input iterator cannot go
// back: the match is the longest name that ends exactly where the comparing stopped (the first
// such name when two are equal, as "May" is both abbreviated and full). Input that leaves a
// longer name after passing a shorter one ("Mond" then 'x') matches nothing. Empty names never
// match; only the first 32 names take part.
template <class _CharT, class _InputIter>
int time_get<_CharT, _InputIter>::which_matches(iter_type& in, const iter_type& end,
                                                const string_type* names, int count) const {
  if (count > 32)
    count = 32;
  unsigned long live = 0;
  for (int i = 0; i < count; ++i)
    if (!names[i].empty())
      live |= 1UL << i;
  int found = -1;
  size_t found_length = 0;
  size_t read = 0;
  while (live) {
    int c = __vel::peek_char(in, end);
    unsigned long still = 0;
    for (int i = 0; i < count; ++i) {
      if (!(live & (1UL << i)))
        continue;
      if (names[i].size() == read) {
        if (found < 0 || found_length != read) {
          found = i;
          found_length = read;
        }
      } else if (c != -1 && static_cast<unsigned char>(names[i][read]) == c) {
        still |= 1UL << i;
      }
    }
    if (!still)
      break;
    ++in;
    ++read;
    live = still;
  }
  return found >= 0 && found_length == read ? found : -1;
}

// Settled here: the width of the letter is the most digits read (so "%H" takes "7" as strptime
// does), and a letter of width 0 or -1 has no number: failbit, nothing read. A '-' before the
// digits is taken, so that a negative value reaches the range checks, which refuse it. White
// space before the number is skipped under skipws. eofbit when the input ended while reading.
template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::get_integral_data(iter_type in, iter_type end,
                                                           ios_base& str, ios_base::iostate& err,
                                                           char conv, int& v) const {
  const ctype<char>& classes = use_facet<ctype<char> >(str.__locale);
  int width = timepunct<char>::get_spec_conv_width(conv);
  if (width <= 0) {
    err |= ios_base::failbit;
    return in;
  }
  int c = __vel::peek_char(in, end);
  if (str.flags() & ios_base::skipws) {
    while (c != -1 && classes.is(ctype_base::space, static_cast<char>(c))) {
      ++in;
      c = __vel::peek_char(in, end);
    }
  }
  bool negative = c == '-';
  if (negative) {
    ++in;
    c = __vel::peek_char(in, end);
  }
  int digits = 0;
  int value = 0;
  while (c >= '0' && c <= '9') {
    value = value * 10 + (c - '0');
    ++in;
    if (++digits == width)
      break; // not looked at further: an interactive input would wait for it
    c = __vel::peek_char(in, end);
  }
  if (c == -1)
    err |= ios_base::eofbit;
  if (digits == 0)
    err |= ios_base::failbit;
  else
    v = negative ? -value : value;
  return in;
}

// Settled here: a '%' that ends the format, or an input that ends before the format does, sets
// failbit, so that a walk that stops early without failbit has read everything it asked for.
template <class _CharT, class _InputIter>
_InputIter time_get<_CharT, _InputIter>::do_time_scanf(iter_type in, iter_type end, ios_base& str,
                                                       ios_base::iostate& err, tm* t,
                                                       const char* fmt, const char* fmt_end) const {
  timepunct<char> punct("");
  use_facet<ctype<char> >(str.__locale);
  while (fmt != fmt_end && err == 0) {
    if (*fmt != '%') {
      int c = __vel::peek_char(in, end);
      if (c != static_cast<unsigned char>(*fmt)) {
        err |= ios_base::failbit;
        if (c == -1)
          err |= ios_base::eofbit;
        return in;
      }
      ++in;
      ++fmt;
      continue;
    }
    if (fmt + 1 == fmt_end) {
      err |= ios_base::failbit;
      return in;
    }
    char conv = fmt[1];
    fmt += 2;
    if (conv == 'A' || conv == 'a') {
      in = do_get_weekday(in, end, str, err, t);
    } else if (conv == 'B' || conv == 'b') {
      in = do_get_monthname(in, end, str, err, t);
    } else if (conv == 'U' || conv == 'W' || conv == 'p') {
      // accepted: nothing is read and nothing stored
    } else if (__vel::is_numeric_time_field(conv)) {
      int v = 0;
      in = get_integral_data(in, end, str, err, conv, v);
      if (!(err & ios_base::failbit) && !__vel::store_time_field(t, conv, v))
        err |= ios_base::failbit;
    } else {
      err |= ios_base::failbit;
    }
  }
  if (fmt != fmt_end)
    err |= ios_base::failbit;
  return in;
}

template <class _CharT, class _OutputIter>
_OutputIter time_put<_CharT, _OutputIter>::__put_fixed(iter_type out, ios_base& str, char_type fill,
                                                       const tm* t, const char* pattern) const {
  char_type text[24];
  int length = 0;
  for (; pattern[length] && length < 24; ++length)
    text[length] = static_cast<char_type>(pattern[length]);
  return put(out, str, fill, t, text, text + length);
}

// 'X', 'c' and 'x' are the same fixed patterns in every locale; E and O are not modifiers here.
template <class _CharT, class _OutputIter>
_OutputIter time_put<_CharT, _OutputIter>::put(iter_type out, ios_base& str, char_type fill,
                                               const tm* t, const char_type* pattern,
                                               const char_type* pattern_end) const {
  const ctype<char>& classes = use_facet<ctype<char> >(str.__locale);
  for (; pattern != pattern_end; ++pattern) {
    if (classes.narrow(*pattern, 0) != '%') {
      *out = *pattern;
      ++out;
      continue;
    }
    if (++pattern == pattern_end)
      break; // a '%' at the very end ends the output
    char conv = classes.narrow(*pattern, 0);
    if (conv == 'X')
      out = __put_fixed(out, str, fill, t, "%H:%M:%S");
    else if (conv == 'c')
      out = __put_fixed(out, str, fill, t, "%a %b %d %H:%M:%S %Y");
    else if (conv == 'x')
      out = __put_fixed(out, str, fill, t, "%m/%d/%y");
    else
      out = do_put(out, str, fill, t, conv, 0);
  }
  return out;
}

// The fill and the stream's width are not used, and the width is left as it is.
template <class _CharT, class _OutputIter>
_OutputIter time_put<_CharT, _OutputIter>::do_put(iter_type out, ios_base& str, char_type fill,
                                                  const tm* t, char format, char) const {
  if (format == 'X')
    return __put_fixed(out, str, fill, t, "%H:%M:%S");
  if (format == 'c')
    return __put_fixed(out, str, fill, t, "%a %b %d %H:%M:%S %Y");
  if (format == 'x')
    return __put_fixed(out, str, fill, t, "%m/%d/%y");
  timepunct<char> punct("");
  basic_string<char> text = punct.print_format(str.__locale, format, t);
  return __vel::put_chars(out, text.data(), text.size());
}

#if __cplusplus >= 201103L
// The library holds these; a program need not compile them again.
extern template class time_get<char, istreambuf_iterator<char> >;
extern template class time_put<char, ostreambuf_iterator<char> >;
#endif

} // namespace std

#endif
