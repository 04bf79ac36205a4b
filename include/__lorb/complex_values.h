// The plain functions of std::complex: real, imag, abs, arg, norm, conj and polar.
#ifndef __LORB_COMPLEX_VALUES_H
#define __LORB_COMPLEX_VALUES_H

#include <__lorb/complex.h>
#include <cmath>

namespace __vel {

// |x| with the sign bit cleared, so that -0 gives +0.
template <class _T> inline _T magnitude(const _T& x) { return __builtin_signbit(x) ? -x : x; }

// The magnitude with the sign of `sign`, signed zeros and NaNs included.
template <class _T> inline _T with_sign_of(const _T& magnitude, const _T& sign) {
  return __builtin_signbit(sign) ? -magnitude : magnitude;
}

} // namespace __vel

namespace std {

template <class _T> inline _T real(const complex<_T>& z) { return z.real(); }
template <class _T> inline _T imag(const complex<_T>& z) { return z.imag(); }

// sqrt(x*x + y*y) computed as larger * sqrt(1 + (smaller/larger)^2): the squares of parts near
// the type's limits would overflow (or underflow) although the magnitude itself fits.
template <class _T> inline _T abs(const complex<_T>& z) {
  _T x = __vel::magnitude(z.real());
  _T y = __vel::magnitude(z.imag());
  if (__builtin_isinf(x) || __builtin_isinf(y)) // infinite even when the other part is NaN
    return __builtin_isinf(x) ? x : y;
  _T larger = x < y ? y : x;
  _T smaller = x < y ? x : y;
  if (larger == _T())
    return _T();
  _T ratio = smaller / larger;
  return larger * sqrt(_T(1) + ratio * ratio);
}

// Takes the sign of a zero imaginary part: arg(-1 - 0i) is -pi.
template <class _T> inline _T arg(const complex<_T>& z) { return atan2(z.imag(), z.real()); }

template <class _T> inline _T norm(const complex<_T>& z) {
  return z.real() * z.real() + z.imag() * z.imag();
}

template <class _T> inline complex<_T> conj(const complex<_T>& z) {
  return complex<_T>(z.real(), -z.imag());
}

template <class _T> inline complex<_T> polar(const _T& rho, const _T& theta = _T()) {
  return complex<_T>(rho * cos(theta), rho * sin(theta));
}

} // namespace std

#endif
