// The algorithms that rewrite a range in place or into another: swap_ranges, transform, replace,
// generate, remove, unique, reverse and rotate, with their copying forms.
#ifndef __LORB_ALGO_MODIFYING_H
#define __LORB_ALGO_MODIFYING_H

#include <__lorb/algo_compare.h>
#include <__lorb/algo_nonmodifying.h>
#include <__lorb/algobase.h>
#include <__lorb/iterator_ops.h>

namespace std {

template <class _Forward1, class _Forward2>
_Forward2 swap_ranges(_Forward1 first1, _Forward1 last1, _Forward2 first2) {
  for (; first1 != last1; ++first1, ++first2)
    std::iter_swap(first1, first2);
  return first2;
}

template <class _In, class _Out, class _Operation>
_Out transform(_In first, _In last, _Out out, _Operation op) {
  for (; first != last; ++first, ++out)
    *out = op(*first);
  return out;
}
template <class _In1, class _In2, class _Out, class _Operation>
_Out transform(_In1 first1, _In1 last1, _In2 first2, _Out out, _Operation op) {
  for (; first1 != last1; ++first1, ++first2, ++out)
    *out = op(*first1, *first2);
  return out;
}

template <class _Forward, class _T>
void replace(_Forward first, _Forward last, const _T& old_value, const _T& new_value) {
  for (; first != last; ++first)
    if (*first == old_value)
      *first = new_value;
}
template <class _Forward, class _Predicate, class _T>
void replace_if(_Forward first, _Forward last, _Predicate pred, const _T& new_value) {
  for (; first != last; ++first)
    if (pred(*first))
      *first = new_value;
}
template <class _In, class _Out, class _T>
_Out replace_copy(_In first, _In last, _Out out, const _T& old_value, const _T& new_value) {
  for (; first != last; ++first, ++out)
    *out = *first == old_value ? new_value : *first;
  return out;
}
template <class _In, class _Out, class _Predicate, class _T>
_Out replace_copy_if(_In first, _In last, _Out out, _Predicate pred, const _T& new_value) {
  for (; first != last; ++first, ++out)
    *out = pred(*first) ? new_value : *first;
  return out;
}

template <class _Forward, class _Generator>
void generate(_Forward first, _Forward last, _Generator gen) {
  for (; first != last; ++first)
    *first = gen();
}
template <class _Out, class _Size, class _Generator>
void generate_n(_Out out, _Size n, _Generator gen) {
  for (; n > 0; --n, ++out)
    *out = gen();
}

template <class _In, class _Out, class _T>
_Out remove_copy(_In first, _In last, _Out out, const _T& value) {
  for (; first != last; ++first)
    if (!(*first == value)) {
      *out = *first;
      ++out;
    }
  return out;
}
template <class _In, class _Out, class _Predicate>
_Out remove_copy_if(_In first, _In last, _Out out, _Predicate pred) {
  for (; first != last; ++first)
    if (!pred(*first)) {
      *out = *first;
      ++out;
    }
  return out;
}
template <class _Forward, class _T>
_Forward remove(_Forward first, _Forward last, const _T& value) {
  first = std::find(first, last, value);
  if (first == last)
    return first;
  _Forward next = first;
  return std::remove_copy(++next, last, first, value);
}
template <class _Forward, class _Predicate>
_Forward remove_if(_Forward first, _Forward last, _Predicate pred) {
  first = std::find_if(first, last, pred);
  if (first == last)
    return first;
  _Forward next = first;
  return std::remove_copy_if(++next, last, first, pred);
}

} // namespace std

namespace __vel {

// Each element is compared with the last one kept, as the in-place unique does.
template <class _Forward, class _Predicate>
_Forward unique_with(_Forward first, _Forward last, _Predicate& same) {
  first = adjacent_find_with(first, last, same);
  if (first == last)
    return last;
  _Forward kept = first;
  for (++first; ++first != last;)
    if (!same(*kept, *first))
      *++kept = *first;
  return ++kept;
}

// A forward source can be read again, so the last element kept is found through an iterator;
// a pure input source needs a copy of it.
template <class _In, class _Out, class _Predicate>
_Out unique_copy_from(_In first, _In last, _Out out, _Predicate& same, std::forward_iterator_tag) {
  _In kept = first;
  *out = *first;
  for (++out; ++first != last;)
    if (!same(*kept, *first)) {
      kept = first;
      *out = *first;
      ++out;
    }
  return out;
}
template <class _In, class _Out, class _Predicate>
_Out unique_copy_from(_In first, _In last, _Out out, _Predicate& same, std::input_iterator_tag) {
  typename std::iterator_traits<_In>::value_type kept = *first;
  *out = kept;
  for (++out; ++first != last;)
    if (!same(kept, *first)) {
      kept = *first;
      *out = kept;
      ++out;
    }
  return out;
}
template <class _In, class _Out, class _Predicate>
inline _Out unique_copy_with(_In first, _In last, _Out out, _Predicate& same) {
  if (first == last)
    return out;
  return unique_copy_from(first, last, out, same, category_of(first));
}

template <class _Bidirectional>
void reverse_range(_Bidirectional first, _Bidirectional last, std::bidirectional_iterator_tag) {
  for (; first != last && first != --last; ++first)
    std::iter_swap(first, last);
}
template <class _RandomIter>
void reverse_range(_RandomIter first, _RandomIter last, std::random_access_iterator_tag) {
  if (first == last)
    return;
  for (--last; first < last; ++first, --last)
    std::iter_swap(first, last);
}

// Swaps the front block forward over and over, the rest of it following on; forward steps only.
// The first pass ends with the old first element in its final place, which is the answer.
template <class _Forward>
_Forward rotate_range(_Forward first, _Forward middle, _Forward last, std::forward_iterator_tag) {
  if (first == middle)
    return last;
  if (middle == last)
    return first;
  _Forward next = middle;
  do {
    std::iter_swap(first, next);
    ++first;
    ++next;
    if (first == middle)
      middle = next;
  } while (next != last);
  _Forward result = first;
  next = middle;
  while (next != last) {
    std::iter_swap(first, next);
    ++first;
    ++next;
    if (first == middle)
      middle = next;
    else if (next == last)
      next = middle;
  }
  return result;
}
template <class _Bidirectional>
_Bidirectional rotate_range(_Bidirectional first, _Bidirectional middle, _Bidirectional last,
                            std::bidirectional_iterator_tag) {
  if (first == middle)
    return last;
  if (middle == last)
    return first;
  reverse_range(first, middle, std::bidirectional_iterator_tag());
  reverse_range(middle, last, std::bidirectional_iterator_tag());
  for (; first != middle && middle != last; ++first)
    std::iter_swap(first, --last);
  if (first == middle) {
    reverse_range(middle, last, std::bidirectional_iterator_tag());
    return last;
  }
  reverse_range(first, middle, std::bidirectional_iterator_tag());
  return first;
}

} // namespace __vel

namespace std {

template <class _Forward> inline _Forward unique(_Forward first, _Forward last) {
  __vel::equal_values same;
  return __vel::unique_with(first, last, same);
}
template <class _Forward, class _Predicate>
inline _Forward unique(_Forward first, _Forward last, _Predicate same) {
  return __vel::unique_with(first, last, same);
}

template <class _In, class _Out> inline _Out unique_copy(_In first, _In last, _Out out) {
  __vel::equal_values same;
  return __vel::unique_copy_with(first, last, out, same);
}
template <class _In, class _Out, class _Predicate>
inline _Out unique_copy(_In first, _In last, _Out out, _Predicate same) {
  return __vel::unique_copy_with(first, last, out, same);
}

template <class _Bidirectional> inline void reverse(_Bidirectional first, _Bidirectional last) {
  __vel::reverse_range(first, last, __vel::category_of(first));
}
template <class _Bidirectional, class _Out>
_Out reverse_copy(_Bidirectional first, _Bidirectional last, _Out out) {
  while (first != last) {
    *out = *--last;
    ++out;
  }
  return out;
}

#if __cplusplus >= 201103L
template <class _Forward> inline _Forward rotate(_Forward first, _Forward middle, _Forward last) {
  return __vel::rotate_range(first, middle, last, __vel::category_of(first));
}
#else
template <class _Forward> inline void rotate(_Forward first, _Forward middle, _Forward last) {
  __vel::rotate_range(first, middle, last, __vel::category_of(first));
}
#endif
template <class _Forward, class _Out>
inline _Out rotate_copy(_Forward first, _Forward middle, _Forward last, _Out out) {
  return std::copy(first, middle, std::copy(middle, last, out));
}

} // namespace std

#endif
