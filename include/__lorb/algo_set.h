// The operations on sorted ranges taken as sets: includes, set_union, set_intersection,
// set_difference and set_symmetric_difference. Elements that compare equal are matched one to
// one, so repeated elements count as often as they occur; matched pairs yield the element of the
// first range.
#ifndef __LORB_ALGO_SET_H
#define __LORB_ALGO_SET_H

#include <__lorb/algo_compare.h>
#include <__lorb/algobase.h>

namespace __vel {

template <class _In1, class _In2, class _Compare>
bool includes_with(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Compare& comp) {
  for (; first1 != last1 && first2 != last2; ++first1) {
    if (comp(*first2, *first1))
      return false;
    if (!comp(*first1, *first2))
      ++first2;
  }
  return first2 == last2;
}

template <class _In1, class _In2, class _Out, class _Compare>
_Out set_union_with(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out, _Compare& comp) {
  for (; first1 != last1 && first2 != last2; ++out) {
    if (comp(*first1, *first2)) {
      *out = *first1;
      ++first1;
    } else if (comp(*first2, *first1)) {
      *out = *first2;
      ++first2;
    } else {
      *out = *first1;
      ++first1;
      ++first2;
    }
  }
  return std::copy(first2, last2, std::copy(first1, last1, out));
}

template <class _In1, class _In2, class _Out, class _Compare>
_Out set_intersection_with(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out,
                           _Compare& comp) {
  while (first1 != last1 && first2 != last2) {
    if (comp(*first1, *first2)) {
      ++first1;
    } else if (comp(*first2, *first1)) {
      ++first2;
    } else {
      *out = *first1;
      ++out;
      ++first1;
      ++first2;
    }
  }
  return out;
}

template <class _In1, class _In2, class _Out, class _Compare>
_Out set_difference_with(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out,
                         _Compare& comp) {
  while (first1 != last1 && first2 != last2) {
    if (comp(*first1, *first2)) {
      *out = *first1;
      ++out;
      ++first1;
    } else if (comp(*first2, *first1)) {
      ++first2;
    } else {
      ++first1;
      ++first2;
    }
  }
  return std::copy(first1, last1, out);
}

template <class _In1, class _In2, class _Out, class _Compare>
_Out set_symmetric_difference_with(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out,
                                   _Compare& comp) {
  while (first1 != last1 && first2 != last2) {
    if (comp(*first1, *first2)) {
      *out = *first1;
      ++out;
      ++first1;
    } else if (comp(*first2, *first1)) {
      *out = *first2;
      ++out;
      ++first2;
    } else {
      ++first1;
      ++first2;
    }
  }
  return std::copy(first2, last2, std::copy(first1, last1, out));
}

} // namespace __vel

namespace std {

template <class _In1, class _In2>
inline bool includes(_In1 first1, _In1 last1, _In2 first2, _In2 last2) {
  __vel::less_than comp;
  return __vel::includes_with(first1, last1, first2, last2, comp);
}
template <class _In1, class _In2, class _Compare>
inline bool includes(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Compare comp) {
  return __vel::includes_with(first1, last1, first2, last2, comp);
}

template <class _In1, class _In2, class _Out>
inline _Out set_union(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out) {
  __vel::less_than comp;
  return __vel::set_union_with(first1, last1, first2, last2, out, comp);
}
template <class _In1, class _In2, class _Out, class _Compare>
inline _Out set_union(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out,
                      _Compare comp) {
  return __vel::set_union_with(first1, last1, first2, last2, out, comp);
}

template <class _In1, class _In2, class _Out>
inline _Out set_intersection(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out) {
  __vel::less_than comp;
  return __vel::set_intersection_with(first1, last1, first2, last2, out, comp);
}
template <class _In1, class _In2, class _Out, class _Compare>
inline _Out set_intersection(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out,
                             _Compare comp) {
  return __vel::set_intersection_with(first1, last1, first2, last2, out, comp);
}

template <class _In1, class _In2, class _Out>
inline _Out set_difference(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out) {
  __vel::less_than comp;
  return __vel::set_difference_with(first1, last1, first2, last2, out, comp);
}
template <class _In1, class _In2, class _Out, class _Compare>
inline _Out set_difference(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out,
                           _Compare comp) {
  return __vel::set_difference_with(first1, last1, first2, last2, out, comp);
}

template <class _In1, class _In2, class _Out>
inline _Out set_symmetric_difference(_In1 first1, _In1 last1, _In2 first2, _In2 last2,
                                     _Out out) {
  __vel::less_than comp;
  return __vel::set_symmetric_difference_with(first1, last1, first2, last2, out, comp);
}
template <class _In1, class _In2, class _Out, class _Compare>
inline _Out set_symmetric_difference(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out,
                                     _Compare comp) {
  return __vel::set_symmetric_difference_with(first1, last1, first2, last2, out, comp);
}

} // namespace std

#endif
