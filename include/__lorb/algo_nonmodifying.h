// The algorithms that only look at a range: for_each, the finds, count, mismatch, search and
// search_n, find_end and adjacent_find.
#ifndef __LORB_ALGO_NONMODIFYING_H
#define __LORB_ALGO_NONMODIFYING_H

#include <__lorb/algo_compare.h>
#include <__lorb/iterator_tags.h>
#include <utility>

namespace __vel {

template <class _Forward1, class _Forward2, class _Predicate>
_Forward1 search_with(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2,
                      _Predicate& same) {
  if (first2 == last2)
    return first1;
  for (; first1 != last1; ++first1) {
    _Forward1 at = first1;
    _Forward2 pattern = first2;
    while (same(*at, *pattern)) {
      if (++pattern == last2)
        return first1;
      if (++at == last1)
        return last1;
    }
  }
  return last1;
}

// The last match: each search starts one past the previous match, so every starting position is
// still tried once only.
template <class _Forward1, class _Forward2, class _Predicate>
_Forward1 find_end_with(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2,
                        _Predicate& same) {
  if (first2 == last2)
    return last1;
  _Forward1 found = last1;
  for (;;) {
    _Forward1 match = search_with(first1, last1, first2, last2, same);
    if (match == last1)
      return found;
    found = match;
    first1 = match;
    ++first1;
  }
}

template <class _Forward, class _Size, class _T, class _Predicate>
_Forward search_n_with(_Forward first, _Forward last, _Size count, const _T& value,
                       _Predicate& same) {
  if (count <= 0)
    return first;
  for (; first != last; ++first) {
    if (!same(*first, value))
      continue;
    _Forward run_start = first;
    _Size run = 1;
    for (;;) {
      if (run == count)
        return run_start;
      if (++first == last)
        return last;
      if (!same(*first, value))
        break;
      ++run;
    }
  }
  return last;
}

template <class _Forward, class _Predicate>
_Forward adjacent_find_with(_Forward first, _Forward last, _Predicate& same) {
  if (first == last)
    return last;
  _Forward next = first;
  for (++next; next != last; ++first, ++next)
    if (same(*first, *next))
      return first;
  return last;
}

} // namespace __vel

namespace std {

template <class _In, class _Function> inline _Function for_each(_In first, _In last, _Function f) {
  for (; first != last; ++first)
    f(*first);
  return f;
}

template <class _In, class _T> inline _In find(_In first, _In last, const _T& value) {
  for (; first != last; ++first)
    if (*first == value)
      break;
  return first;
}

template <class _In, class _Predicate> inline _In find_if(_In first, _In last, _Predicate pred) {
  for (; first != last; ++first)
    if (pred(*first))
      break;
  return first;
}

template <class _Forward1, class _Forward2>
inline _Forward1 find_end(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2) {
  __vel::equal_values same;
  return __vel::find_end_with(first1, last1, first2, last2, same);
}
template <class _Forward1, class _Forward2, class _Predicate>
inline _Forward1 find_end(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2,
                          _Predicate same) {
  return __vel::find_end_with(first1, last1, first2, last2, same);
}

template <class _Forward1, class _Forward2>
_Forward1 find_first_of(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2) {
  for (; first1 != last1; ++first1)
    for (_Forward2 candidate = first2; candidate != last2; ++candidate)
      if (*first1 == *candidate)
        return first1;
  return last1;
}
template <class _Forward1, class _Forward2, class _Predicate>
_Forward1 find_first_of(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2,
                        _Predicate same) {
  for (; first1 != last1; ++first1)
    for (_Forward2 candidate = first2; candidate != last2; ++candidate)
      if (same(*first1, *candidate))
        return first1;
  return last1;
}

template <class _Forward> inline _Forward adjacent_find(_Forward first, _Forward last) {
  __vel::equal_values same;
  return __vel::adjacent_find_with(first, last, same);
}
template <class _Forward, class _Predicate>
inline _Forward adjacent_find(_Forward first, _Forward last, _Predicate same) {
  return __vel::adjacent_find_with(first, last, same);
}

template <class _In, class _T>
typename iterator_traits<_In>::difference_type count(_In first, _In last, const _T& value) {
  typename iterator_traits<_In>::difference_type n = 0;
  for (; first != last; ++first)
    if (*first == value)
      ++n;
  return n;
}
template <class _In, class _Predicate>
typename iterator_traits<_In>::difference_type count_if(_In first, _In last, _Predicate pred) {
  typename iterator_traits<_In>::difference_type n = 0;
  for (; first != last; ++first)
    if (pred(*first))
      ++n;
  return n;
}

template <class _In1, class _In2>
pair<_In1, _In2> mismatch(_In1 first1, _In1 last1, _In2 first2) {
  while (first1 != last1 && *first1 == *first2) {
    ++first1;
    ++first2;
  }
  return pair<_In1, _In2>(first1, first2);
}
template <class _In1, class _In2, class _Predicate>
pair<_In1, _In2> mismatch(_In1 first1, _In1 last1, _In2 first2, _Predicate same) {
  while (first1 != last1 && same(*first1, *first2)) {
    ++first1;
    ++first2;
  }
  return pair<_In1, _In2>(first1, first2);
}

template <class _Forward1, class _Forward2>
inline _Forward1 search(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2) {
  __vel::equal_values same;
  return __vel::search_with(first1, last1, first2, last2, same);
}
template <class _Forward1, class _Forward2, class _Predicate>
inline _Forward1 search(_Forward1 first1, _Forward1 last1, _Forward2 first2, _Forward2 last2,
                        _Predicate same) {
  return __vel::search_with(first1, last1, first2, last2, same);
}

template <class _Forward, class _Size, class _T>
inline _Forward search_n(_Forward first, _Forward last, _Size count, const _T& value) {
  __vel::equal_values same;
  return __vel::search_n_with(first, last, count, value, same);
}
template <class _Forward, class _Size, class _T, class _Predicate>
inline _Forward search_n(_Forward first, _Forward last, _Size count, const _T& value,
                         _Predicate same) {
  return __vel::search_n_with(first, last, count, value, same);
}

} // namespace std

#endif
