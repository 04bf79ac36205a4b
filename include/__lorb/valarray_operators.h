// The element-wise operators of valarray: the unary ones, and the arithmetic, bitwise, shift,
// logical and comparison operators between two arrays or an array and a value.
#ifndef __LORB_VALARRAY_OPERATORS_H
#define __LORB_VALARRAY_OPERATORS_H

#include <__lorb/valarray.h>
#include <cstddef>

namespace __vel {

// An operation's element generators: both sides arrays, or one side a single value.
template <class _R, class _Op, class _T> struct zipped_elements {
  const _T* left;
  const _T* right;
  _R operator()(std::size_t i) const { return _Op::apply(left[i], right[i]); }
};
template <class _R, class _Op, class _T> struct elements_with_value {
  const _T* left;
  const _T* right; // the one value
  _R operator()(std::size_t i) const { return _Op::apply(left[i], *right); }
};
template <class _R, class _Op, class _T> struct value_with_elements {
  const _T* left; // the one value
  const _T* right;
  _R operator()(std::size_t i) const { return _Op::apply(*left, right[i]); }
};
template <class _R, class _Op, class _T> struct transformed_elements {
  const _T* source;
  _R operator()(std::size_t i) const { return _Op::apply(source[i]); }
};

#define __LORB_VALARRAY_UNARY_OP(name, op)                                                         \
  struct name {                                                                                    \
    template <class _T> static _T apply(const _T& x) { return op x; }                              \
  };
__LORB_VALARRAY_UNARY_OP(valarray_plus, +)
__LORB_VALARRAY_UNARY_OP(valarray_negate, -)
__LORB_VALARRAY_UNARY_OP(valarray_complement, ~)
#undef __LORB_VALARRAY_UNARY_OP
struct valarray_not {
  template <class _T> static bool apply(const _T& x) { return !x; }
};

// Each binary operator: the result's element type, the operator, the operation's name.
#define __LORB_VALARRAY_BINARY_OPERATORS(X)                                                        \
  X(_T, *, valarray_times)                                                                         \
  X(_T, /, valarray_divides)                                                                       \
  X(_T, %, valarray_modulus)                                                                       \
  X(_T, +, valarray_add)                                                                           \
  X(_T, -, valarray_subtract)                                                                      \
  X(_T, ^, valarray_xor)                                                                           \
  X(_T, &, valarray_and)                                                                           \
  X(_T, |, valarray_or)                                                                            \
  X(_T, <<, valarray_shift_left)                                                                   \
  X(_T, >>, valarray_shift_right)                                                                  \
  X(bool, &&, valarray_logical_and)                                                                \
  X(bool, ||, valarray_logical_or)                                                                 \
  X(bool, ==, valarray_equal)                                                                      \
  X(bool, !=, valarray_not_equal)                                                                  \
  X(bool, <, valarray_less)                                                                        \
  X(bool, >, valarray_greater)                                                                     \
  X(bool, <=, valarray_less_equal)                                                                 \
  X(bool, >=, valarray_greater_equal)

#define __LORB_VALARRAY_BINARY_OPERATION(_R, op, name)                                             \
  struct name {                                                                                    \
    template <class _T> static _R apply(const _T& a, const _T& b) { return a op b; }               \
  };
__LORB_VALARRAY_BINARY_OPERATORS(__LORB_VALARRAY_BINARY_OPERATION)
#undef __LORB_VALARRAY_BINARY_OPERATION

} // namespace __vel

namespace std {

#define __LORB_VALARRAY_UNARY_MEMBER(_R, op, name)                                                 \
  template <class _T> valarray<_R> valarray<_T>::operator op() const {                             \
    __vel::transformed_elements<_R, __vel::name, _T> gen = {__data};                               \
    return valarray<_R>(__vel::valarray_build_tag(), __size, gen);                                 \
  }
__LORB_VALARRAY_UNARY_MEMBER(_T, +, valarray_plus)
__LORB_VALARRAY_UNARY_MEMBER(_T, -, valarray_negate)
__LORB_VALARRAY_UNARY_MEMBER(_T, ~, valarray_complement)
__LORB_VALARRAY_UNARY_MEMBER(bool, !, valarray_not)
#undef __LORB_VALARRAY_UNARY_MEMBER

// The value's type is taken from the array, so that v * 2 works for a valarray<double>.
#define __LORB_VALARRAY_BINARY_FUNCTIONS(_R, op, name)                                             \
  template <class _T>                                                                              \
  inline valarray<_R> operator op(const valarray<_T>& left, const valarray<_T>& right) {           \
    __vel::zipped_elements<_R, __vel::name, _T> gen = {left.__elements(), right.__elements()};     \
    return valarray<_R>(__vel::valarray_build_tag(),                                               \
                        __vel::smaller_length(left.size(), right.size()), gen);                    \
  }                                                                                                \
  template <class _T>                                                                              \
  inline valarray<_R> operator op(const valarray<_T>& left,                                        \
                                  const typename valarray<_T>::value_type& right) {                \
    __vel::elements_with_value<_R, __vel::name, _T> gen = {left.__elements(), &right};             \
    return valarray<_R>(__vel::valarray_build_tag(), left.size(), gen);                            \
  }                                                                                                \
  template <class _T>                                                                              \
  inline valarray<_R> operator op(const typename valarray<_T>::value_type& left,                   \
                                  const valarray<_T>& right) {                                     \
    __vel::value_with_elements<_R, __vel::name, _T> gen = {&left, right.__elements()};             \
    return valarray<_R>(__vel::valarray_build_tag(), right.size(), gen);                           \
  }
__LORB_VALARRAY_BINARY_OPERATORS(__LORB_VALARRAY_BINARY_FUNCTIONS)
#undef __LORB_VALARRAY_BINARY_FUNCTIONS
#undef __LORB_VALARRAY_BINARY_OPERATORS

} // namespace std

#endif
