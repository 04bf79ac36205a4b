// The numeric_limits specialisations of bool, the character types and the integer types (i386:
// char is signed, wchar_t is a signed 32-bit type, long has 32 bits).
#ifndef __LORB_NUMERIC_LIMITS_INTEGERS_H
#define __LORB_NUMERIC_LIMITS_INTEGERS_H

#include <__lorb/numeric_limits.h>
#include <limits.h>

namespace __vel {

// What every integer specialisation shares; _Digits counts the bits that are not the sign.
// The specialisations derive from this template so that the constants get their definitions
// here, once, whichever translation units use them.
template <class _T, bool _Signed, int _Digits = int(sizeof(_T) * CHAR_BIT) - _Signed>
struct integer_limits {
  static const bool is_specialized = true;
  static const int digits = _Digits;
  static const int digits10 = _Digits * 643 / 2136; // floor(digits * log10(2)) for every width
  static const bool is_signed = _Signed;
  static const bool is_integer = true;
  static const bool is_exact = true;
  static const int radix = 2;
  static __LORB_LIMITS_CONSTEXPR _T epsilon() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR _T round_error() __LORB_NOEXCEPT { return 0; }
  static const int min_exponent = 0;
  static const int min_exponent10 = 0;
  static const int max_exponent = 0;
  static const int max_exponent10 = 0;
  static const bool has_infinity = false;
  static const bool has_quiet_NaN = false;
  static const bool has_signaling_NaN = false;
  static const std::float_denorm_style has_denorm = std::denorm_absent;
  static const bool has_denorm_loss = false;
  static __LORB_LIMITS_CONSTEXPR _T infinity() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR _T quiet_NaN() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR _T signaling_NaN() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR _T denorm_min() __LORB_NOEXCEPT { return 0; }
  static const bool is_iec559 = false;
  static const bool is_bounded = true;
  // Unsigned arithmetic wraps around; signed overflow is undefined and bool does not wrap.
  static const bool is_modulo = !_Signed && _Digits > 1;
  // x86 traps on integer division by zero (and on INT_MIN / -1), bool included as GNU says.
  static const bool traps = true;
  static const bool tinyness_before = false;
  static const std::float_round_style round_style = std::round_toward_zero;
};

template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::is_specialized;
template <class _T, bool _S, int _D> const int integer_limits<_T, _S, _D>::digits;
template <class _T, bool _S, int _D> const int integer_limits<_T, _S, _D>::digits10;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::is_signed;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::is_integer;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::is_exact;
template <class _T, bool _S, int _D> const int integer_limits<_T, _S, _D>::radix;
template <class _T, bool _S, int _D> const int integer_limits<_T, _S, _D>::min_exponent;
template <class _T, bool _S, int _D> const int integer_limits<_T, _S, _D>::min_exponent10;
template <class _T, bool _S, int _D> const int integer_limits<_T, _S, _D>::max_exponent;
template <class _T, bool _S, int _D> const int integer_limits<_T, _S, _D>::max_exponent10;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::has_infinity;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::has_quiet_NaN;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::has_signaling_NaN;
template <class _T, bool _S, int _D>
const std::float_denorm_style integer_limits<_T, _S, _D>::has_denorm;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::has_denorm_loss;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::is_iec559;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::is_bounded;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::is_modulo;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::traps;
template <class _T, bool _S, int _D> const bool integer_limits<_T, _S, _D>::tinyness_before;
template <class _T, bool _S, int _D>
const std::float_round_style integer_limits<_T, _S, _D>::round_style;

} // namespace __vel

namespace std {

template <> class numeric_limits<bool> : public __vel::integer_limits<bool, false, 1> {
public:
  static __LORB_LIMITS_CONSTEXPR bool min() __LORB_NOEXCEPT { return false; }
  static __LORB_LIMITS_CONSTEXPR bool max() __LORB_NOEXCEPT { return true; }
};

template <> class numeric_limits<char> : public __vel::integer_limits<char, (CHAR_MIN < 0)> {
public:
  static __LORB_LIMITS_CONSTEXPR char min() __LORB_NOEXCEPT { return CHAR_MIN; }
  static __LORB_LIMITS_CONSTEXPR char max() __LORB_NOEXCEPT { return CHAR_MAX; }
};

template <> class numeric_limits<signed char> : public __vel::integer_limits<signed char, true> {
public:
  static __LORB_LIMITS_CONSTEXPR signed char min() __LORB_NOEXCEPT { return SCHAR_MIN; }
  static __LORB_LIMITS_CONSTEXPR signed char max() __LORB_NOEXCEPT { return SCHAR_MAX; }
};

template <>
class numeric_limits<unsigned char> : public __vel::integer_limits<unsigned char, false> {
public:
  static __LORB_LIMITS_CONSTEXPR unsigned char min() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR unsigned char max() __LORB_NOEXCEPT { return UCHAR_MAX; }
};

template <>
class numeric_limits<wchar_t> : public __vel::integer_limits<wchar_t, (__WCHAR_MIN__ < 0)> {
public:
  static __LORB_LIMITS_CONSTEXPR wchar_t min() __LORB_NOEXCEPT { return __WCHAR_MIN__; }
  static __LORB_LIMITS_CONSTEXPR wchar_t max() __LORB_NOEXCEPT { return __WCHAR_MAX__; }
};

template <> class numeric_limits<short> : public __vel::integer_limits<short, true> {
public:
  static __LORB_LIMITS_CONSTEXPR short min() __LORB_NOEXCEPT { return SHRT_MIN; }
  static __LORB_LIMITS_CONSTEXPR short max() __LORB_NOEXCEPT { return SHRT_MAX; }
};

template <>
class numeric_limits<unsigned short> : public __vel::integer_limits<unsigned short, false> {
public:
  static __LORB_LIMITS_CONSTEXPR unsigned short min() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR unsigned short max() __LORB_NOEXCEPT { return USHRT_MAX; }
};

template <> class numeric_limits<int> : public __vel::integer_limits<int, true> {
public:
  static __LORB_LIMITS_CONSTEXPR int min() __LORB_NOEXCEPT { return INT_MIN; }
  static __LORB_LIMITS_CONSTEXPR int max() __LORB_NOEXCEPT { return INT_MAX; }
};

template <> class numeric_limits<unsigned> : public __vel::integer_limits<unsigned, false> {
public:
  static __LORB_LIMITS_CONSTEXPR unsigned min() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR unsigned max() __LORB_NOEXCEPT { return UINT_MAX; }
};

template <> class numeric_limits<long> : public __vel::integer_limits<long, true> {
public:
  static __LORB_LIMITS_CONSTEXPR long min() __LORB_NOEXCEPT { return LONG_MIN; }
  static __LORB_LIMITS_CONSTEXPR long max() __LORB_NOEXCEPT { return LONG_MAX; }
};

template <>
class numeric_limits<unsigned long> : public __vel::integer_limits<unsigned long, false> {
public:
  static __LORB_LIMITS_CONSTEXPR unsigned long min() __LORB_NOEXCEPT { return 0; }
  static __LORB_LIMITS_CONSTEXPR unsigned long max() __LORB_NOEXCEPT { return ULONG_MAX; }
};

// long long is standard from C++11 and a GNU extension before; __extension__ does not reach a
// class head, hence the pragma.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wlong-long"
__extension__ template <>
class numeric_limits<long long> : public __vel::integer_limits<long long, true> {
public:
  __extension__ static __LORB_LIMITS_CONSTEXPR long long min() __LORB_NOEXCEPT {
    return -max() - 1;
  }
  __extension__ static __LORB_LIMITS_CONSTEXPR long long max() __LORB_NOEXCEPT {
    return static_cast<long long>(static_cast<unsigned long long>(-1) >> 1);
  }
};

__extension__ template <>
class numeric_limits<unsigned long long> : public __vel::integer_limits<unsigned long long, false> {
public:
  __extension__ static __LORB_LIMITS_CONSTEXPR unsigned long long min() __LORB_NOEXCEPT {
    return 0;
  }
  __extension__ static __LORB_LIMITS_CONSTEXPR unsigned long long max() __LORB_NOEXCEPT {
    return static_cast<unsigned long long>(-1);
  }
};
#pragma GCC diagnostic pop

} // namespace std

#endif
