// std::numeric_limits: the rounding and denormal enums and the primary template, whose members
// are the defaults an unspecialised type reports.
#ifndef __LORB_NUMERIC_LIMITS_H
#define __LORB_NUMERIC_LIMITS_H

#include <__lorb/config.h>

// The value functions are constant expressions from C++11 on.
#if __cplusplus >= 201103L
#define __LORB_LIMITS_CONSTEXPR constexpr
#else
#define __LORB_LIMITS_CONSTEXPR
#endif

namespace std {

enum float_round_style {
  round_indeterminate = -1,
  round_toward_zero = 0,
  round_to_nearest = 1,
  round_toward_infinity = 2,
  round_toward_neg_infinity = 3
};

enum float_denorm_style { denorm_indeterminate = -1, denorm_absent = 0, denorm_present = 1 };

template <class _T> class numeric_limits {
public:
  static const bool is_specialized = false;
  static __LORB_LIMITS_CONSTEXPR _T min() __LORB_NOEXCEPT { return _T(); }
  static __LORB_LIMITS_CONSTEXPR _T max() __LORB_NOEXCEPT { return _T(); }
  static const int digits = 0;
  static const int digits10 = 0;
  static const bool is_signed = false;
  static const bool is_integer = false;
  static const bool is_exact = false;
  static const int radix = 0;
  static __LORB_LIMITS_CONSTEXPR _T epsilon() __LORB_NOEXCEPT { return _T(); }
  static __LORB_LIMITS_CONSTEXPR _T round_error() __LORB_NOEXCEPT { return _T(); }
  static const int min_exponent = 0;
  static const int min_exponent10 = 0;
  static const int max_exponent = 0;
  static const int max_exponent10 = 0;
  static const bool has_infinity = false;
  static const bool has_quiet_NaN = false;
  static const bool has_signaling_NaN = false;
  static const float_denorm_style has_denorm = denorm_absent;
  static const bool has_denorm_loss = false;
  static __LORB_LIMITS_CONSTEXPR _T infinity() __LORB_NOEXCEPT { return _T(); }
  static __LORB_LIMITS_CONSTEXPR _T quiet_NaN() __LORB_NOEXCEPT { return _T(); }
  static __LORB_LIMITS_CONSTEXPR _T signaling_NaN() __LORB_NOEXCEPT { return _T(); }
  static __LORB_LIMITS_CONSTEXPR _T denorm_min() __LORB_NOEXCEPT { return _T(); }
  static const bool is_iec559 = false;
  static const bool is_bounded = false;
  static const bool is_modulo = false;
  static const bool traps = false;
  static const bool tinyness_before = false;
  static const float_round_style round_style = round_toward_zero;
};

// The constants have definitions so that a program may bind them to references.
template <class _T> const bool numeric_limits<_T>::is_specialized;
template <class _T> const int numeric_limits<_T>::digits;
template <class _T> const int numeric_limits<_T>::digits10;
template <class _T> const bool numeric_limits<_T>::is_signed;
template <class _T> const bool numeric_limits<_T>::is_integer;
template <class _T> const bool numeric_limits<_T>::is_exact;
template <class _T> const int numeric_limits<_T>::radix;
template <class _T> const int numeric_limits<_T>::min_exponent;
template <class _T> const int numeric_limits<_T>::min_exponent10;
template <class _T> const int numeric_limits<_T>::max_exponent;
template <class _T> const int numeric_limits<_T>::max_exponent10;
template <class _T> const bool numeric_limits<_T>::has_infinity;
template <class _T> const bool numeric_limits<_T>::has_quiet_NaN;
template <class _T> const bool numeric_limits<_T>::has_signaling_NaN;
template <class _T> const float_denorm_style numeric_limits<_T>::has_denorm;
template <class _T> const bool numeric_limits<_T>::has_denorm_loss;
template <class _T> const bool numeric_limits<_T>::is_iec559;
template <class _T> const bool numeric_limits<_T>::is_bounded;
template <class _T> const bool numeric_limits<_T>::is_modulo;
template <class _T> const bool numeric_limits<_T>::traps;
template <class _T> const bool numeric_limits<_T>::tinyness_before;
template <class _T> const float_round_style numeric_limits<_T>::round_style;

} // namespace std

#endif
