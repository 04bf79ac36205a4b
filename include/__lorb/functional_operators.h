// The arithmetic and logical function objects: plus, minus, multiplies, divides, modulus,
// negate, logical_and, logical_or and logical_not.
#ifndef __LORB_FUNCTIONAL_OPERATORS_H
#define __LORB_FUNCTIONAL_OPERATORS_H

#include <__lorb/function_base.h>

namespace std {

template <class _T> struct plus : binary_function<_T, _T, _T> {
  _T operator()(const _T& x, const _T& y) const { return x + y; }
};
template <class _T> struct minus : binary_function<_T, _T, _T> {
  _T operator()(const _T& x, const _T& y) const { return x - y; }
};
template <class _T> struct multiplies : binary_function<_T, _T, _T> {
  _T operator()(const _T& x, const _T& y) const { return x * y; }
};
template <class _T> struct divides : binary_function<_T, _T, _T> {
  _T operator()(const _T& x, const _T& y) const { return x / y; }
};
template <class _T> struct modulus : binary_function<_T, _T, _T> {
  _T operator()(const _T& x, const _T& y) const { return x % y; }
};
template <class _T> struct negate : unary_function<_T, _T> {
  _T operator()(const _T& x) const { return -x; }
};

template <class _T> struct logical_and : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x && y; }
};
template <class _T> struct logical_or : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x || y; }
};
template <class _T> struct logical_not : unary_function<_T, bool> {
  bool operator()(const _T& x) const { return !x; }
};

} // namespace std

#endif
