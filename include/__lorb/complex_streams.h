// Writing a std::complex as "(re,im)" and reading it back from "re", "(re)" or "(re,im)".
#ifndef __LORB_COMPLEX_STREAMS_H
#define __LORB_COMPLEX_STREAMS_H

#include <__lorb/complex.h>
#include <istream>
#include <ostream>
#include <sstream>
#include <string>

namespace std {

// Formatted whole into a string stream with the stream's flags, locale and precision, then
// inserted as one string: the width (and the fill) apply to "(re,im)", not to each part.
template <class _T, class _CharT, class _Traits>
basic_ostream<_CharT, _Traits>& operator<<(basic_ostream<_CharT, _Traits>& os,
                                           const complex<_T>& z) {
  basic_ostringstream<_CharT, _Traits> text;
  text.flags(os.flags());
  text.imbue(os.getloc());
  text.precision(os.precision());
  text << os.widen('(') << z.real() << os.widen(',') << z.imag() << os.widen(')');
  return os << text.str();
}

// A character that does not fit the form is put back and failbit is set; z is changed only by
// a complete read. White space may stand before each part and each delimiter.
template <class _T, class _CharT, class _Traits>
basic_istream<_CharT, _Traits>& operator>>(basic_istream<_CharT, _Traits>& is, complex<_T>& z) {
  _CharT c;
  if (!(is >> c))
    return is;
  _T re = _T();
  if (!_Traits::eq(c, is.widen('('))) {
    is.putback(c);
    if (is >> re)
      z = complex<_T>(re);
    return is;
  }
  if (!(is >> re >> c))
    return is;
  if (_Traits::eq(c, is.widen(')'))) {
    z = complex<_T>(re);
    return is;
  }
  if (_Traits::eq(c, is.widen(','))) {
    _T im = _T();
    if (!(is >> im >> c))
      return is;
    if (_Traits::eq(c, is.widen(')'))) {
      z = complex<_T>(re, im);
      return is;
    }
  }
  is.putback(c);
  is.setstate(ios_base::failbit);
  return is;
}

} // namespace std

#endif
