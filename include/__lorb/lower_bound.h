// std::__lower_bound: the binary search of lower_bound over random-access ranges; the library
// carries the instance over arrays of unsigned words (containers/random_generator.cpp).
#ifndef __LORB_LOWER_BOUND_H
#define __LORB_LOWER_BOUND_H

#include <__lorb/iterator_tags.h>

namespace std {

template <class _RandomIter, class _T, class _Distance>
_RandomIter __lower_bound(_RandomIter first, _RandomIter last, const _T& value, _Distance*,
                          random_access_iterator_tag) {
  _Distance length = last - first;
  while (length > 0) {
    _Distance half = length / 2;
    _RandomIter middle = first + half;
    if (*middle < value) {
      first = middle + 1;
      length = length - half - 1;
    } else {
      length = half;
    }
  }
  return first;
}

#if __cplusplus >= 201103L
extern template unsigned* __lower_bound(unsigned*, unsigned*, const unsigned&, int*,
                                        random_access_iterator_tag);
#endif

} // namespace std

#endif
