// The function-object bases and the comparison objects that the containers and algorithms share.
#ifndef __LORB_FUNCTION_BASE_H
#define __LORB_FUNCTION_BASE_H

namespace std {

template <class _Arg, class _Result> struct unary_function {
  typedef _Arg argument_type;
  typedef _Result result_type;
};

template <class _Arg1, class _Arg2, class _Result> struct binary_function {
  typedef _Arg1 first_argument_type;
  typedef _Arg2 second_argument_type;
  typedef _Result result_type;
};

template <class _T> struct equal_to : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x == y; }
};
template <class _T> struct not_equal_to : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x != y; }
};
template <class _T> struct less : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x < y; }
};
template <class _T> struct greater : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x > y; }
};
template <class _T> struct less_equal : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x <= y; }
};
template <class _T> struct greater_equal : binary_function<_T, _T, bool> {
  bool operator()(const _T& x, const _T& y) const { return x >= y; }
};

} // namespace std

#endif
