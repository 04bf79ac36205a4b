// min_element, max_element and the permutation steps next_permutation and prev_permutation.
#ifndef __LORB_ALGO_PERMUTE_H
#define __LORB_ALGO_PERMUTE_H

#include <__lorb/algo_compare.h>
#include <__lorb/algo_modifying.h>
#include <__lorb/algobase.h>

namespace __vel {

// The first of the least elements.
template <class _Forward, class _Compare>
_Forward min_element_with(_Forward first, _Forward last, _Compare& comp) {
  if (first == last)
    return first;
  _Forward least = first;
  while (++first != last)
    if (comp(*first, *least))
      least = first;
  return least;
}

// The first of the greatest elements: the first least in the order turned round.
template <class _Forward, class _Compare>
_Forward max_element_with(_Forward first, _Forward last, _Compare& comp) {
  swapped_arguments<_Compare> turned(comp);
  return min_element_with(first, last, turned);
}

// Finds the longest non-increasing tail, swaps the element before it with the last element of
// the tail that orders after it, and reverses the tail. From the last permutation it wraps
// around to the first and answers false.
template <class _Bidirectional, class _Compare>
bool next_permutation_with(_Bidirectional first, _Bidirectional last, _Compare& comp) {
  if (first == last)
    return false;
  _Bidirectional tail = last;
  if (first == --tail)
    return false;
  for (;;) {
    _Bidirectional tail_start = tail;
    --tail;
    if (comp(*tail, *tail_start)) {
      _Bidirectional swap_with = last;
      while (!comp(*tail, *--swap_with)) {
      }
      std::iter_swap(tail, swap_with);
      std::reverse(tail_start, last);
      return true;
    }
    if (tail == first) {
      std::reverse(first, last);
      return false;
    }
  }
}

// The previous permutation is the next one in the order turned round.
template <class _Bidirectional, class _Compare>
bool prev_permutation_with(_Bidirectional first, _Bidirectional last, _Compare& comp) {
  swapped_arguments<_Compare> turned(comp);
  return next_permutation_with(first, last, turned);
}

} // namespace __vel

namespace std {

template <class _Forward> inline _Forward min_element(_Forward first, _Forward last) {
  __vel::less_than comp;
  return __vel::min_element_with(first, last, comp);
}
template <class _Forward, class _Compare>
inline _Forward min_element(_Forward first, _Forward last, _Compare comp) {
  return __vel::min_element_with(first, last, comp);
}

template <class _Forward> inline _Forward max_element(_Forward first, _Forward last) {
  __vel::less_than comp;
  return __vel::max_element_with(first, last, comp);
}
template <class _Forward, class _Compare>
inline _Forward max_element(_Forward first, _Forward last, _Compare comp) {
  return __vel::max_element_with(first, last, comp);
}

template <class _Bidirectional>
inline bool next_permutation(_Bidirectional first, _Bidirectional last) {
  __vel::less_than comp;
  return __vel::next_permutation_with(first, last, comp);
}
template <class _Bidirectional, class _Compare>
inline bool next_permutation(_Bidirectional first, _Bidirectional last, _Compare comp) {
  return __vel::next_permutation_with(first, last, comp);
}

template <class _Bidirectional>
inline bool prev_permutation(_Bidirectional first, _Bidirectional last) {
  __vel::less_than comp;
  return __vel::prev_permutation_with(first, last, comp);
}
template <class _Bidirectional, class _Compare>
inline bool prev_permutation(_Bidirectional first, _Bidirectional last, _Compare comp) {
  return __vel::prev_permutation_with(first, last, comp);
}

} // namespace std

#endif
