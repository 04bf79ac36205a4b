// The numeric_limits specialisations of float, double and long double: IEC 559 single and
// double, and the x87 80-bit extended format for long double, rounding to nearest.
#ifndef __LORB_NUMERIC_LIMITS_FLOATS_H
#define __LORB_NUMERIC_LIMITS_FLOATS_H

#include <__lorb/numeric_limits.h>

namespace __vel {

// What the three floating specialisations share; the exponent ranges are the compiler's.
// As with the integers, deriving from this template gives the constants one definition.
template <class _T, int _Digits, int _Digits10, int _MinExp, int _MinExp10, int _MaxExp,
          int _MaxExp10>
struct float_limits {
  static const bool is_specialized = true;
  static const int digits = _Digits;
  static const int digits10 = _Digits10;
  static const bool is_signed = true;
  static const bool is_integer = false;
  static const bool is_exact = false;
  static const int radix = __FLT_RADIX__;
  static __LORB_LIMITS_CONSTEXPR _T round_error() __LORB_NOEXCEPT { return 0.5; }
  static const int min_exponent = _MinExp;
  static const int min_exponent10 = _MinExp10;
  static const int max_exponent = _MaxExp;
  static const int max_exponent10 = _MaxExp10;
  static const bool has_infinity = true;
  static const bool has_quiet_NaN = true;
  static const bool has_signaling_NaN = true;
  static const std::float_denorm_style has_denorm = std::denorm_present;
  static const bool has_denorm_loss = false;
  static const bool is_iec559 = true;
  static const bool is_bounded = true;
  static const bool is_modulo = false;
  static const bool traps = false;
  static const bool tinyness_before = false;
  static const std::float_round_style round_style = std::round_to_nearest;
};

#define __LORB_FLOAT_LIMITS_PARAMS                                                                 \
  class _T, int _D, int _D10, int _MinE, int _MinE10, int _MaxE, int _MaxE10
#define __LORB_FLOAT_LIMITS float_limits<_T, _D, _D10, _MinE, _MinE10, _MaxE, _MaxE10>
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::is_specialized;
template <__LORB_FLOAT_LIMITS_PARAMS> const int __LORB_FLOAT_LIMITS::digits;
template <__LORB_FLOAT_LIMITS_PARAMS> const int __LORB_FLOAT_LIMITS::digits10;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::is_signed;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::is_integer;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::is_exact;
template <__LORB_FLOAT_LIMITS_PARAMS> const int __LORB_FLOAT_LIMITS::radix;
template <__LORB_FLOAT_LIMITS_PARAMS> const int __LORB_FLOAT_LIMITS::min_exponent;
template <__LORB_FLOAT_LIMITS_PARAMS> const int __LORB_FLOAT_LIMITS::min_exponent10;
template <__LORB_FLOAT_LIMITS_PARAMS> const int __LORB_FLOAT_LIMITS::max_exponent;
template <__LORB_FLOAT_LIMITS_PARAMS> const int __LORB_FLOAT_LIMITS::max_exponent10;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::has_infinity;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::has_quiet_NaN;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::has_signaling_NaN;
template <__LORB_FLOAT_LIMITS_PARAMS> const std::float_denorm_style __LORB_FLOAT_LIMITS::has_denorm;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::has_denorm_loss;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::is_iec559;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::is_bounded;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::is_modulo;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::traps;
template <__LORB_FLOAT_LIMITS_PARAMS> const bool __LORB_FLOAT_LIMITS::tinyness_before;
template <__LORB_FLOAT_LIMITS_PARAMS> const std::float_round_style __LORB_FLOAT_LIMITS::round_style;
#undef __LORB_FLOAT_LIMITS
#undef __LORB_FLOAT_LIMITS_PARAMS

} // namespace __vel

namespace std {

template <>
class numeric_limits<float>
    : public __vel::float_limits<float, __FLT_MANT_DIG__, __FLT_DIG__, __FLT_MIN_EXP__,
                                 __FLT_MIN_10_EXP__, __FLT_MAX_EXP__, __FLT_MAX_10_EXP__> {
public:
  static __LORB_LIMITS_CONSTEXPR float min() __LORB_NOEXCEPT { return __FLT_MIN__; }
  static __LORB_LIMITS_CONSTEXPR float max() __LORB_NOEXCEPT { return __FLT_MAX__; }
  static __LORB_LIMITS_CONSTEXPR float epsilon() __LORB_NOEXCEPT { return __FLT_EPSILON__; }
  static __LORB_LIMITS_CONSTEXPR float infinity() __LORB_NOEXCEPT { return __builtin_huge_valf(); }
  static __LORB_LIMITS_CONSTEXPR float quiet_NaN() __LORB_NOEXCEPT { return __builtin_nanf(""); }
  static __LORB_LIMITS_CONSTEXPR float signaling_NaN() __LORB_NOEXCEPT {
    return __builtin_nansf("");
  }
  static __LORB_LIMITS_CONSTEXPR float denorm_min() __LORB_NOEXCEPT { return __FLT_DENORM_MIN__; }
};

template <>
class numeric_limits<double>
    : public __vel::float_limits<double, __DBL_MANT_DIG__, __DBL_DIG__, __DBL_MIN_EXP__,
                                 __DBL_MIN_10_EXP__, __DBL_MAX_EXP__, __DBL_MAX_10_EXP__> {
public:
  static __LORB_LIMITS_CONSTEXPR double min() __LORB_NOEXCEPT { return double(__DBL_MIN__); }
  static __LORB_LIMITS_CONSTEXPR double max() __LORB_NOEXCEPT { return double(__DBL_MAX__); }
  static __LORB_LIMITS_CONSTEXPR double epsilon() __LORB_NOEXCEPT {
    return double(__DBL_EPSILON__);
  }
  static __LORB_LIMITS_CONSTEXPR double infinity() __LORB_NOEXCEPT { return __builtin_huge_val(); }
  static __LORB_LIMITS_CONSTEXPR double quiet_NaN() __LORB_NOEXCEPT { return __builtin_nan(""); }
  static __LORB_LIMITS_CONSTEXPR double signaling_NaN() __LORB_NOEXCEPT {
    return __builtin_nans("");
  }
  static __LORB_LIMITS_CONSTEXPR double denorm_min() __LORB_NOEXCEPT {
    return double(__DBL_DENORM_MIN__);
  }
};

template <>
class numeric_limits<long double>
    : public __vel::float_limits<long double, __LDBL_MANT_DIG__, __LDBL_DIG__, __LDBL_MIN_EXP__,
                                 __LDBL_MIN_10_EXP__, __LDBL_MAX_EXP__, __LDBL_MAX_10_EXP__> {
public:
  static __LORB_LIMITS_CONSTEXPR long double min() __LORB_NOEXCEPT { return __LDBL_MIN__; }
  static __LORB_LIMITS_CONSTEXPR long double max() __LORB_NOEXCEPT { return __LDBL_MAX__; }
  static __LORB_LIMITS_CONSTEXPR long double epsilon() __LORB_NOEXCEPT { return __LDBL_EPSILON__; }
  static __LORB_LIMITS_CONSTEXPR long double infinity() __LORB_NOEXCEPT {
    return __builtin_huge_vall();
  }
  static __LORB_LIMITS_CONSTEXPR long double quiet_NaN() __LORB_NOEXCEPT {
    return __builtin_nanl("");
  }
  static __LORB_LIMITS_CONSTEXPR long double signaling_NaN() __LORB_NOEXCEPT {
    return __builtin_nansl("");
  }
  static __LORB_LIMITS_CONSTEXPR long double denorm_min() __LORB_NOEXCEPT {
    return __LDBL_DENORM_MIN__;
  }
};

} // namespace std

#endif
