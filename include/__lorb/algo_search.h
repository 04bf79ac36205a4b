// The binary searches over sorted ranges: lower_bound, upper_bound, equal_range and
// binary_search, each with < or a comparator, over forward iterators or better.
#ifndef __LORB_ALGO_SEARCH_H
#define __LORB_ALGO_SEARCH_H

#include <__lorb/algo_compare.h>
#include <__lorb/iterator_ops.h>
#include <__lorb/lower_bound.h>
#include <utility>

namespace __vel {

template <class _Forward, class _T, class _Compare>
_Forward lower_bound_with(_Forward first, _Forward last, const _T& value, _Compare& comp) {
  typedef typename std::iterator_traits<_Forward>::difference_type _Distance;
  _Distance length = std::distance(first, last);
  while (length > 0) {
    _Distance half = length / 2;
    _Forward middle = first;
    std::advance(middle, half);
    if (comp(*middle, value)) {
      first = ++middle;
      length = length - half - 1;
    } else {
      length = half;
    }
  }
  return first;
}

template <class _Forward, class _T, class _Compare>
_Forward upper_bound_with(_Forward first, _Forward last, const _T& value, _Compare& comp) {
  typedef typename std::iterator_traits<_Forward>::difference_type _Distance;
  _Distance length = std::distance(first, last);
  while (length > 0) {
    _Distance half = length / 2;
    _Forward middle = first;
    std::advance(middle, half);
    if (comp(value, *middle)) {
      length = half;
    } else {
      first = ++middle;
      length = length - half - 1;
    }
  }
  return first;
}

// Narrows down to an element equal to value, then finds each end in its own half.
template <class _Forward, class _T, class _Compare>
std::pair<_Forward, _Forward> equal_range_with(_Forward first, _Forward last, const _T& value,
                                               _Compare& comp) {
  typedef typename std::iterator_traits<_Forward>::difference_type _Distance;
  _Distance length = std::distance(first, last);
  while (length > 0) {
    _Distance half = length / 2;
    _Forward middle = first;
    std::advance(middle, half);
    if (comp(*middle, value)) {
      first = ++middle;
      length = length - half - 1;
    } else if (comp(value, *middle)) {
      length = half;
    } else {
      _Forward left = lower_bound_with(first, middle, value, comp);
      std::advance(first, length);
      _Forward right = upper_bound_with(++middle, first, value, comp);
      return std::pair<_Forward, _Forward>(left, right);
    }
  }
  return std::pair<_Forward, _Forward>(first, first);
}

template <class _Forward, class _T>
inline _Forward lower_bound_by_less(_Forward first, _Forward last, const _T& value,
                                    std::forward_iterator_tag) {
  less_than comp;
  return lower_bound_with(first, last, value, comp);
}
// Random-access ranges go through the one search the library also carries compiled.
template <class _RandomIter, class _T>
inline _RandomIter lower_bound_by_less(_RandomIter first, _RandomIter last, const _T& value,
                                       std::random_access_iterator_tag) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  return std::__lower_bound(first, last, value, static_cast<_Distance*>(0),
                            std::random_access_iterator_tag());
}

} // namespace __vel

namespace std {

template <class _Forward, class _T>
inline _Forward lower_bound(_Forward first, _Forward last, const _T& value) {
  return __vel::lower_bound_by_less(first, last, value, __vel::category_of(first));
}
template <class _Forward, class _T, class _Compare>
inline _Forward lower_bound(_Forward first, _Forward last, const _T& value, _Compare comp) {
  return __vel::lower_bound_with(first, last, value, comp);
}

template <class _Forward, class _T>
inline _Forward upper_bound(_Forward first, _Forward last, const _T& value) {
  __vel::less_than comp;
  return __vel::upper_bound_with(first, last, value, comp);
}
template <class _Forward, class _T, class _Compare>
inline _Forward upper_bound(_Forward first, _Forward last, const _T& value, _Compare comp) {
  return __vel::upper_bound_with(first, last, value, comp);
}

template <class _Forward, class _T>
inline pair<_Forward, _Forward> equal_range(_Forward first, _Forward last, const _T& value) {
  __vel::less_than comp;
  return __vel::equal_range_with(first, last, value, comp);
}
template <class _Forward, class _T, class _Compare>
inline pair<_Forward, _Forward> equal_range(_Forward first, _Forward last, const _T& value,
                                            _Compare comp) {
  return __vel::equal_range_with(first, last, value, comp);
}

template <class _Forward, class _T>
inline bool binary_search(_Forward first, _Forward last, const _T& value) {
  _Forward found = std::lower_bound(first, last, value);
  return found != last && !(value < *found);
}
template <class _Forward, class _T, class _Compare>
inline bool binary_search(_Forward first, _Forward last, const _T& value, _Compare comp) {
  _Forward found = __vel::lower_bound_with(first, last, value, comp);
  return found != last && !comp(value, *found);
}

} // namespace std

#endif
