// The mathematical functions of valarray, element by element: abs, the trigonometric,
// hyperbolic, exponential and logarithmic functions, sqrt, and atan2 and pow in three forms.
#ifndef __LORB_VALARRAY_MATH_H
#define __LORB_VALARRAY_MATH_H

#include <__lorb/valarray.h>
#include <__lorb/valarray_operators.h>
#include <cmath>
#include <cstddef>
#include <cstdlib>

namespace __vel {

// The call is unqualified after the using-declaration, so that an element type of a program's
// own finds its functions by argument-dependent lookup.
#define __LORB_VALARRAY_UNARY_FUNCTION(name)                                                       \
  struct valarray_##name {                                                                         \
    template <class _T> static _T apply(const _T& x) {                                             \
      using std::name;                                                                             \
      return name(x);                                                                              \
    }                                                                                              \
  };
#define __LORB_VALARRAY_BINARY_FUNCTION(name)                                                      \
  struct valarray_##name {                                                                         \
    template <class _T> static _T apply(const _T& x, const _T& y) {                                \
      using std::name;                                                                             \
      return name(x, y);                                                                           \
    }                                                                                              \
  };
#define __LORB_VALARRAY_UNARY_FUNCTIONS(X)                                                         \
  X(abs)                                                                                           \
  X(acos) X(asin) X(atan) X(cos) X(cosh) X(exp) X(log) X(log10) X(sin) X(sinh) X(sqrt) X(tan)      \
      X(tanh)
__LORB_VALARRAY_UNARY_FUNCTIONS(__LORB_VALARRAY_UNARY_FUNCTION)
__LORB_VALARRAY_BINARY_FUNCTION(atan2)
__LORB_VALARRAY_BINARY_FUNCTION(pow)
#undef __LORB_VALARRAY_UNARY_FUNCTION
#undef __LORB_VALARRAY_BINARY_FUNCTION

} // namespace __vel

namespace std {

#define __LORB_VALARRAY_UNARY_FUNCTION(name)                                                       \
  template <class _T> inline valarray<_T> name(const valarray<_T>& x) {                            \
    __vel::transformed_elements<_T, __vel::valarray_##name, _T> gen = {x.__elements()};            \
    return valarray<_T>(__vel::valarray_build_tag(), x.size(), gen);                               \
  }
__LORB_VALARRAY_UNARY_FUNCTIONS(__LORB_VALARRAY_UNARY_FUNCTION)
#undef __LORB_VALARRAY_UNARY_FUNCTION
#undef __LORB_VALARRAY_UNARY_FUNCTIONS

// As with the operators, two arrays of different lengths give the shorter length.
#define __LORB_VALARRAY_BINARY_FUNCTION(name)                                                      \
  template <class _T> inline valarray<_T> name(const valarray<_T>& x, const valarray<_T>& y) {     \
    __vel::zipped_elements<_T, __vel::valarray_##name, _T> gen = {x.__elements(), y.__elements()}; \
    return valarray<_T>(__vel::valarray_build_tag(), __vel::smaller_length(x.size(), y.size()),    \
                        gen);                                                                      \
  }                                                                                                \
  template <class _T>                                                                              \
  inline valarray<_T> name(const valarray<_T>& x, const typename valarray<_T>::value_type& y) {    \
    __vel::elements_with_value<_T, __vel::valarray_##name, _T> gen = {x.__elements(), &y};         \
    return valarray<_T>(__vel::valarray_build_tag(), x.size(), gen);                               \
  }                                                                                                \
  template <class _T>                                                                              \
  inline valarray<_T> name(const typename valarray<_T>::value_type& x, const valarray<_T>& y) {    \
    __vel::value_with_elements<_T, __vel::valarray_##name, _T> gen = {&x, y.__elements()};         \
    return valarray<_T>(__vel::valarray_build_tag(), y.size(), gen);                               \
  }
__LORB_VALARRAY_BINARY_FUNCTION(atan2)
__LORB_VALARRAY_BINARY_FUNCTION(pow)
#undef __LORB_VALARRAY_BINARY_FUNCTION

} // namespace std

#endif
