// std::time_get and std::time_put: dates and times read into and written from a struct tm, with
// the names and fixed formats of a timepunct<char> built for each call from the environment.
#ifndef __LORB_TIME_FACETS_H
#define __LORB_TIME_FACETS_H

#include <__lorb/config.h>
#include <__lorb/ctype_facets.h>
#include <__lorb/ios_base.h>
#include <__lorb/locale_core.h>
#include <__lorb/streambuf_iterators.h>
#include <__lorb/timepunct.h>
#include <cstddef>
#include <ctime>
#include <string>

namespace std {

class __LORB_EXPORT time_base {
public:
  enum dateorder { no_order, dmy, mdy, ymd, ydm };
};

template <class _CharT, class _InputIter = istreambuf_iterator<_CharT> >
class __LORB_EXPORT time_get : public locale::facet, public time_base {
public:
  typedef _CharT char_type;
  typedef _InputIter iter_type;
  typedef basic_string<_CharT> string_type;

  explicit time_get(size_t refs = 0) : locale::facet(refs) {}

  dateorder date_order() const { return do_date_order(); }
  iter_type get_time(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                     tm* t) const {
    return do_get_time(in, end, str, err, t);
  }
  iter_type get_date(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                     tm* t) const {
    return do_get_date(in, end, str, err, t);
  }
  iter_type get_weekday(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                        tm* t) const {
    return do_get_weekday(in, end, str, err, t);
  }
  iter_type get_monthname(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                          tm* t) const {
    return do_get_monthname(in, end, str, err, t);
  }
  iter_type get_year(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                     tm* t) const {
    return do_get_year(in, end, str, err, t);
  }

  static locale::id id;

protected:
  virtual ~time_get() {}

  // The virtual operations, in this order.
  virtual dateorder do_date_order() const;
  virtual iter_type do_get_time(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                                tm* t) const;
  virtual iter_type do_get_date(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                                tm* t) const;
  virtual iter_type do_get_weekday(iter_type in, iter_type end, ios_base& str,
                                   ios_base::iostate& err, tm* t) const;
  virtual iter_type do_get_monthname(iter_type in, iter_type end, ios_base& str,
                                     ios_base::iostate& err, tm* t) const;
  virtual iter_type do_get_year(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err,
                                tm* t) const;
  // Reads the longest of names[0, count) at in and steps past it: its index, or -1 (in then
  // stands after the characters that were compared).
  virtual int which_matches(iter_type& in, const iter_type& end, const string_type* names,
                            int count) const;
  // Reads the number of one conversion letter into v; failbit when there is none.
  virtual iter_type get_integral_data(iter_type in, iter_type end, ios_base& str,
                                      ios_base::iostate& err, char conv, int& v) const;
  // Walks the format fmt..fmt_end over the input, storing the fields it reads into t.
  virtual iter_type do_time_scanf(iter_type in, iter_type end, ios_base& str,
                                  ios_base::iostate& err, tm* t, const char* fmt,
                                  const char* fmt_end) const;

private:
  iter_type __scan_whole(iter_type in, iter_type end, ios_base& str, ios_base::iostate& err, tm* t,
                         const string_type& format) const;
};

template <class _CharT, class _OutputIter = ostreambuf_iterator<_CharT> >
class __LORB_EXPORT time_put : public locale::facet {
public:
  typedef _CharT char_type;
  typedef _OutputIter iter_type;

  explicit time_put(size_t refs = 0) : locale::facet(refs) {}

  // Writes pattern..pattern_end with every "%c" conversion replaced by its text.
  iter_type put(iter_type out, ios_base& str, char_type fill, const tm* t, const char_type* pattern,
                const char_type* pattern_end) const;
  iter_type put(iter_type out, ios_base& str, char_type fill, const tm* t, char format,
                char modifier = 0) const {
    return do_put(out, str, fill, t, format, modifier);
  }

  static locale::id id;

protected:
  virtual ~time_put() {}

  // The only virtual operation after the destructor.
  virtual iter_type do_put(iter_type out, ios_base& str, char_type fill, const tm* t, char format,
                           char modifier) const;

private:
  iter_type __put_fixed(iter_type out, ios_base& str, char_type fill, const tm* t,
                        const char* pattern) const;
};

// Every instance has its id; the library's instances have theirs in the library.
template <class _CharT, class _InputIter> locale::id time_get<_CharT, _InputIter>::id;
template <class _CharT, class _OutputIter> locale::id time_put<_CharT, _OutputIter>::id;
template <> __LORB_EXPORT locale::id time_get<char, istreambuf_iterator<char> >::id;
template <> __LORB_EXPORT locale::id time_put<char, ostreambuf_iterator<char> >::id;

} // namespace std

#include <__lorb/time_facets_members.h>

#endif
