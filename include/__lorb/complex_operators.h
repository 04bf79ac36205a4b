// The operators on std::complex: unary + and -, the four arithmetic operators with a complex or
// a scalar on either side, and == and != against a complex or a scalar.
#ifndef __LORB_COMPLEX_OPERATORS_H
#define __LORB_COMPLEX_OPERATORS_H

#include <__lorb/complex.h>

namespace std {

template <class _T> inline complex<_T> operator+(const complex<_T>& z) { return z; }
template <class _T> inline complex<_T> operator-(const complex<_T>& z) {
  return complex<_T>(-z.real(), -z.imag());
}

template <class _T> inline complex<_T> operator+(const complex<_T>& a, const complex<_T>& b) {
  complex<_T> sum(a);
  return sum += b;
}
template <class _T> inline complex<_T> operator+(const complex<_T>& a, const _T& b) {
  complex<_T> sum(a);
  return sum += b;
}
template <class _T> inline complex<_T> operator+(const _T& a, const complex<_T>& b) {
  complex<_T> sum(b);
  return sum += a;
}

template <class _T> inline complex<_T> operator-(const complex<_T>& a, const complex<_T>& b) {
  complex<_T> difference(a);
  return difference -= b;
}
template <class _T> inline complex<_T> operator-(const complex<_T>& a, const _T& b) {
  complex<_T> difference(a);
  return difference -= b;
}
template <class _T> inline complex<_T> operator-(const _T& a, const complex<_T>& b) {
  return complex<_T>(a - b.real(), -b.imag());
}

template <class _T> inline complex<_T> operator*(const complex<_T>& a, const complex<_T>& b) {
  complex<_T> product(a);
  return product *= b;
}
template <class _T> inline complex<_T> operator*(const complex<_T>& a, const _T& b) {
  complex<_T> product(a);
  return product *= b;
}
template <class _T> inline complex<_T> operator*(const _T& a, const complex<_T>& b) {
  complex<_T> product(b);
  return product *= a;
}

template <class _T> inline complex<_T> operator/(const complex<_T>& a, const complex<_T>& b) {
  complex<_T> quotient(a);
  return quotient /= b;
}
template <class _T> inline complex<_T> operator/(const complex<_T>& a, const _T& b) {
  complex<_T> quotient(a);
  return quotient /= b;
}
template <class _T> inline complex<_T> operator/(const _T& a, const complex<_T>& b) {
  complex<_T> quotient(a);
  return quotient /= b;
}

template <class _T> inline bool operator==(const complex<_T>& a, const complex<_T>& b) {
  return a.real() == b.real() && a.imag() == b.imag();
}
template <class _T> inline bool operator==(const complex<_T>& a, const _T& b) {
  return a.real() == b && a.imag() == _T();
}
template <class _T> inline bool operator==(const _T& a, const complex<_T>& b) {
  return a == b.real() && b.imag() == _T();
}
template <class _T> inline bool operator!=(const complex<_T>& a, const complex<_T>& b) {
  return !(a == b);
}
template <class _T> inline bool operator!=(const complex<_T>& a, const _T& b) { return !(a == b); }
template <class _T> inline bool operator!=(const _T& a, const complex<_T>& b) { return !(a == b); }

} // namespace std

#endif
