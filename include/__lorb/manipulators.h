// The manipulators that carry an argument: a record of a worker function and its argument, and
// the stream operators that call the worker.
#ifndef __LORB_MANIPULATORS_H
#define __LORB_MANIPULATORS_H

#include <__lorb/basic_ios.h>
#include <__lorb/config.h>

namespace std {

// The worker and its argument, in this order; the argument is a long, an int for setfill.
template <class _Arg> struct manip_record {
  basic_ios<char>& (*worker)(basic_ios<char>&, _Arg);
  _Arg argument;
};

__LORB_EXPORT basic_ios<char>& fprecise(basic_ios<char>& ios, long n);
__LORB_EXPORT basic_ios<char>& fwidth(basic_ios<char>& ios, long n);
__LORB_EXPORT basic_ios<char>& fset(basic_ios<char>& ios, long mask);
__LORB_EXPORT basic_ios<char>& freset(basic_ios<char>& ios, long mask);
__LORB_EXPORT basic_ios<char>& fsetbase(basic_ios<char>& ios, int base);
__LORB_EXPORT basic_ios<char>& ffill(basic_ios<char>& ios, int c);

__LORB_EXPORT manip_record<long> setprecision(long n);
__LORB_EXPORT manip_record<long> setw(long n);
__LORB_EXPORT manip_record<long> setiosflags(long mask);
__LORB_EXPORT manip_record<long> resetiosflags(long mask);
__LORB_EXPORT manip_record<int> setbase(int base);
__LORB_EXPORT manip_record<int> setfill(int c);

template <class _CharT, class _Traits, class _Arg>
inline basic_ostream<_CharT, _Traits>& operator<<(basic_ostream<_CharT, _Traits>& os,
                                                  const manip_record<_Arg>& m) {
  m.worker(os, m.argument);
  return os;
}

template <class _CharT, class _Traits, class _Arg>
inline basic_istream<_CharT, _Traits>& operator>>(basic_istream<_CharT, _Traits>& is,
                                                  const manip_record<_Arg>& m) {
  m.worker(is, m.argument);
  return is;
}

} // namespace std

#endif
