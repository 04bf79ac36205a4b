// The transcendental functions of std::complex: exp, log, log10, sqrt, the four pow forms and the
// circular and hyperbolic cos, sin, tan, cosh, sinh, tanh.
#ifndef __LORB_COMPLEX_TRANSCENDENTAL_H
#define __LORB_COMPLEX_TRANSCENDENTAL_H

#include <__lorb/complex.h>
#include <__lorb/complex_operators.h>
#include <__lorb/complex_values.h>
#include <cmath>

namespace std {

template <class _T> inline complex<_T> exp(const complex<_T>& z) {
  return polar(_T(exp(z.real())), z.imag());
}

// The branch cut runs along the negative real axis; the sign of a zero imaginary part picks the
// side (log(-1 - 0i) is -i pi).
template <class _T> inline complex<_T> log(const complex<_T>& z) {
  return complex<_T>(log(abs(z)), arg(z));
}

template <class _T> inline complex<_T> log10(const complex<_T>& z) {
  complex<_T> natural = log(z);
  _T ln10 = log(_T(10));
  return complex<_T>(natural.real() / ln10, natural.imag() / ln10);
}

// The root in the right half-plane, by t = sqrt((|x| + |z|) / 2): for x >= 0 the root is
// t + i y/2t, for x < 0 it is |y|/2t + i t with the sign of y, so that the branch cut along the
// negative real axis follows the sign of a zero y and nothing cancels. The halves are taken
// before the sum so that the sum cannot overflow.
template <class _T> complex<_T> sqrt(const complex<_T>& z) {
  _T x = z.real();
  _T y = z.imag();
  if (x == _T() && y == _T())
    return complex<_T>(_T(), y);
  _T magnitude = abs(z);
  if (__builtin_isinf(magnitude) && !__builtin_isinf(x) && !__builtin_isinf(y))
    return sqrt(z * _T(0.25)) * _T(2); // |z| overflows: a quarter of z has half the root, exactly
  _T t = sqrt(__vel::magnitude(x) / 2 + magnitude / 2);
  if (x >= _T())
    return complex<_T>(t, y / (2 * t));
  _T abs_y = __vel::magnitude(y);
  return complex<_T>(abs_y / (2 * t), __vel::with_sign_of(t, y));
}

// By repeated squaring; a negative power is the reciprocal of the positive one.
template <class _T> complex<_T> pow(const complex<_T>& z, int n) {
  unsigned count = n < 0 ? 0u - static_cast<unsigned>(n) : static_cast<unsigned>(n);
  complex<_T> result(_T(1));
  complex<_T> square(z);
  for (;;) {
    if (count & 1u)
      result *= square;
    count >>= 1;
    if (!count)
      break;
    square *= square;
  }
  return n < 0 ? _T(1) / result : result;
}

// exp(y log x); zero to a power with a positive real part is zero (the formula gives NaN).
template <class _T> complex<_T> pow(const complex<_T>& x, const complex<_T>& y) {
  if (x == _T() && y.real() > _T())
    return complex<_T>();
  return exp(y * log(x));
}

// A positive real base takes the real pow; any other base goes through the logarithm.
template <class _T> complex<_T> pow(const complex<_T>& x, const _T& y) {
  if (x.imag() == _T() && x.real() > _T())
    return complex<_T>(pow(x.real(), y));
  complex<_T> logarithm = log(x);
  return polar(_T(exp(y * logarithm.real())), y * logarithm.imag());
}

template <class _T> complex<_T> pow(const _T& x, const complex<_T>& y) {
  if (x > _T())
    return polar(_T(pow(x, y.real())), y.imag() * _T(log(x)));
  return pow(complex<_T>(x), y);
}

template <class _T> inline complex<_T> cos(const complex<_T>& z) {
  _T x = z.real();
  _T y = z.imag();
  return complex<_T>(cos(x) * cosh(y), -(sin(x) * sinh(y)));
}

template <class _T> inline complex<_T> cosh(const complex<_T>& z) {
  _T x = z.real();
  _T y = z.imag();
  return complex<_T>(cosh(x) * cos(y), sinh(x) * sin(y));
}

template <class _T> inline complex<_T> sin(const complex<_T>& z) {
  _T x = z.real();
  _T y = z.imag();
  return complex<_T>(sin(x) * cosh(y), cos(x) * sinh(y));
}

template <class _T> inline complex<_T> sinh(const complex<_T>& z) {
  _T x = z.real();
  _T y = z.imag();
  return complex<_T>(sinh(x) * cos(y), cosh(x) * sin(y));
}

// tan(x + iy) = (sin x cos x + i sinh y cosh y) / (cos^2 x + sinh^2 y): the denominator is a sum
// of squares, so nothing cancels near the poles. From |y| > 23 on, e^-2|y| is below every
// type's precision: the imaginary part is +-1 and the real part 4 sin x cos x e^-2|y|, which
// avoids overflowing sinh^2 y.
template <class _T> complex<_T> tan(const complex<_T>& z) {
  _T x = z.real();
  _T y = z.imag();
  _T sin_x = sin(x);
  _T cos_x = cos(x);
  _T abs_y = __vel::magnitude(y);
  if (abs_y > _T(23))
    return complex<_T>(4 * sin_x * cos_x * _T(exp(-2 * abs_y)), __vel::with_sign_of(_T(1), y));
  _T sinh_y = sinh(y);
  _T denominator = cos_x * cos_x + sinh_y * sinh_y;
  return complex<_T>(sin_x * cos_x / denominator, sinh_y * _T(cosh(y)) / denominator);
}

// tanh z = -i tan(iz).
template <class _T> inline complex<_T> tanh(const complex<_T>& z) {
  complex<_T> t = tan(complex<_T>(-z.imag(), z.real()));
  return complex<_T>(t.imag(), -t.real());
}

} // namespace std

#endif
