// std::advance and std::distance, stepping by the iterator's category.
#ifndef __LORB_ITERATOR_OPS_H
#define __LORB_ITERATOR_OPS_H

#include <__lorb/iterator_tags.h>

namespace __vel {

template <class _Iter, class _Distance>
inline void advance_by(_Iter& it, _Distance n, std::input_iterator_tag) {
  for (; n > 0; --n)
    ++it;
}
template <class _Iter, class _Distance>
inline void advance_by(_Iter& it, _Distance n, std::bidirectional_iterator_tag) {
  for (; n > 0; --n)
    ++it;
  for (; n < 0; ++n)
    --it;
}
template <class _Iter, class _Distance>
inline void advance_by(_Iter& it, _Distance n, std::random_access_iterator_tag) {
  it += n;
}

template <class _Iter>
inline typename std::iterator_traits<_Iter>::difference_type
distance_between(_Iter first, _Iter last, std::input_iterator_tag) {
  typename std::iterator_traits<_Iter>::difference_type n = 0;
  for (; first != last; ++first)
    ++n;
  return n;
}
template <class _Iter>
inline typename std::iterator_traits<_Iter>::difference_type
distance_between(_Iter first, _Iter last, std::random_access_iterator_tag) {
  return last - first;
}

template <class _Iter>
inline typename std::iterator_traits<_Iter>::iterator_category category_of(const _Iter&) {
  return typename std::iterator_traits<_Iter>::iterator_category();
}

} // namespace __vel

namespace std {

template <class _Iter, class _Distance> inline void advance(_Iter& it, _Distance n) {
  __vel::advance_by(it, n, __vel::category_of(it));
}

template <class _Iter>
inline typename iterator_traits<_Iter>::difference_type distance(_Iter first, _Iter last) {
  return __vel::distance_between(first, last, __vel::category_of(first));
}

} // namespace std

#endif
