// std::complex: the class template and its float, double and long double specialisations, with
// the converting constructors and the compound assignments all four share.
#ifndef __LORB_COMPLEX_H
#define __LORB_COMPLEX_H

namespace __vel {

// (re + i im) * (c + i d), in place: the schoolbook product.
template <class _T> inline void complex_multiply(_T& re, _T& im, const _T& c, const _T& d) {
  _T product_re = re * c - im * d;
  im = re * d + im * c;
  re = product_re;
}

// (re + i im) / (c + i d), in place, by Smith's method: dividing by the larger of c and d first
// keeps the intermediate products from overflowing where the plain formula (divide by c*c + d*d)
// would, and a pure imaginary or pure real divisor costs no rounding in the ratio.
template <class _T> inline void complex_divide(_T& re, _T& im, const _T& c, const _T& d) {
  if (c == _T() && d == _T()) { // by zero: each part becomes an infinity (or NaN for 0/0)
    re /= c;
    im /= c;
    return;
  }
  _T abs_c = c < 0 ? -c : c;
  _T abs_d = d < 0 ? -d : d;
  _T quotient_re;
  if (abs_c >= abs_d) {
    _T ratio = d / c;
    _T denominator = c + d * ratio;
    quotient_re = (re + im * ratio) / denominator;
    im = (im - re * ratio) / denominator;
  } else {
    _T ratio = c / d;
    _T denominator = c * ratio + d;
    quotient_re = (re * ratio + im) / denominator;
    im = (im * ratio - re) / denominator;
  }
  re = quotient_re;
}

} // namespace __vel

namespace std {

template <class _T> class complex;
template <> class complex<float>;
template <> class complex<double>;
template <> class complex<long double>;

// What the template and the three specialisations have alike: the parts, assignment from a
// scalar and from any complex, and the compound assignments with both.
#define __LORB_COMPLEX_MEMBERS(_Value)                                                             \
public:                                                                                            \
  typedef _Value value_type;                                                                       \
  _Value real() const { return __re; }                                                             \
  _Value imag() const { return __im; }                                                             \
  complex& operator=(const _Value& x) {                                                            \
    __re = x;                                                                                      \
    __im = value_type();                                                                           \
    return *this;                                                                                  \
  }                                                                                                \
  complex& operator+=(const _Value& x) {                                                           \
    __re += x;                                                                                     \
    return *this;                                                                                  \
  }                                                                                                \
  complex& operator-=(const _Value& x) {                                                           \
    __re -= x;                                                                                     \
    return *this;                                                                                  \
  }                                                                                                \
  complex& operator*=(const _Value& x) {                                                           \
    __re *= x;                                                                                     \
    __im *= x;                                                                                     \
    return *this;                                                                                  \
  }                                                                                                \
  complex& operator/=(const _Value& x) {                                                           \
    __re /= x;                                                                                     \
    __im /= x;                                                                                     \
    return *this;                                                                                  \
  }                                                                                                \
  template <class _X> complex& operator=(const complex<_X>& z) {                                   \
    __re = value_type(z.real());                                                                   \
    __im = value_type(z.imag());                                                                   \
    return *this;                                                                                  \
  }                                                                                                \
  template <class _X> complex& operator+=(const complex<_X>& z) {                                  \
    __re += value_type(z.real());                                                                  \
    __im += value_type(z.imag());                                                                  \
    return *this;                                                                                  \
  }                                                                                                \
  template <class _X> complex& operator-=(const complex<_X>& z) {                                  \
    __re -= value_type(z.real());                                                                  \
    __im -= value_type(z.imag());                                                                  \
    return *this;                                                                                  \
  }                                                                                                \
  template <class _X> complex& operator*=(const complex<_X>& z) {                                  \
    __vel::complex_multiply(__re, __im, value_type(z.real()), value_type(z.imag()));               \
    return *this;                                                                                  \
  }                                                                                                \
  template <class _X> complex& operator/=(const complex<_X>& z) {                                  \
    __vel::complex_divide(__re, __im, value_type(z.real()), value_type(z.imag()));                 \
    return *this;                                                                                  \
  }                                                                                                \
                                                                                                   \
private:                                                                                           \
  _Value __re;                                                                                     \
  _Value __im;

template <class _T> class complex {
public:
  complex(const _T& re = _T(), const _T& im = _T()) : __re(re), __im(im) {}
  template <class _X> complex(const complex<_X>& z) : __re(_T(z.real())), __im(_T(z.imag())) {}
  __LORB_COMPLEX_MEMBERS(_T)
};

// A conversion that may lose range or precision has to be asked for (explicit); one that widens
// happens by itself.
template <> class complex<float> {
public:
  complex(float re = 0.0f, float im = 0.0f) : __re(re), __im(im) {}
  explicit complex(const complex<double>& z);
  explicit complex(const complex<long double>& z);
  __LORB_COMPLEX_MEMBERS(float)
};

template <> class complex<double> {
public:
  complex(double re = 0.0, double im = 0.0) : __re(re), __im(im) {}
  complex(const complex<float>& z) : __re(z.real()), __im(z.imag()) {}
  explicit complex(const complex<long double>& z);
  __LORB_COMPLEX_MEMBERS(double)
};

template <> class complex<long double> {
public:
  complex(long double re = 0.0L, long double im = 0.0L) : __re(re), __im(im) {}
  complex(const complex<float>& z) : __re(z.real()), __im(z.imag()) {}
  complex(const complex<double>& z) : __re(z.real()), __im(z.imag()) {}
  __LORB_COMPLEX_MEMBERS(long double)
};

#undef __LORB_COMPLEX_MEMBERS

inline complex<float>::complex(const complex<double>& z)
    : __re(float(z.real())), __im(float(z.imag())) {}
inline complex<float>::complex(const complex<long double>& z)
    : __re(float(z.real())), __im(float(z.imag())) {}
inline complex<double>::complex(const complex<long double>& z)
    : __re(double(z.real())), __im(double(z.imag())) {}

} // namespace std

#endif
