// partition, stable_partition and random_shuffle. Each partition tests every element with the
// predicate exactly once.
#ifndef __LORB_ALGO_PARTITION_H
#define __LORB_ALGO_PARTITION_H

#include <__lorb/algo_buffer.h>
#include <__lorb/algo_modifying.h>
#include <__lorb/algobase.h>
#include <__lorb/iterator_ops.h>
#include <__lorb/random_generator.h>

namespace __vel {

// Keeps the elements that pass in order at the front and gathers the rest, in order, in the
// buffer, which holds at least length elements; then puts the rest back behind them.
template <class _Forward, class _Pointer, class _Predicate>
_Forward stable_partition_through_buffer(_Forward first, _Forward last, _Pointer buffer,
                                         _Predicate& pred) {
  _Forward kept = first;
  _Pointer rest = buffer;
  for (; first != last; ++first)
    if (pred(*first)) {
      *kept = *first;
      ++kept;
    } else {
      *rest = *first;
      ++rest;
    }
  std::copy(buffer, rest, kept);
  return kept;
}

// Partitions each half, then rotates the first half's failures past the second half's passes.
template <class _Forward, class _Pointer, class _Predicate, class _Distance>
_Forward stable_partition_adaptive(_Forward first, _Forward last, _Predicate& pred,
                                   _Distance length, _Pointer buffer, _Distance buffer_size) {
  if (length <= buffer_size)
    return stable_partition_through_buffer(first, last, buffer, pred);
  if (length == 1) {
    if (pred(*first))
      ++first;
    return first;
  }
  const _Distance half = length / 2;
  _Forward middle = first;
  std::advance(middle, half);
  _Forward left_end = stable_partition_adaptive(first, middle, pred, half, buffer, buffer_size);
  _Forward right_end =
      stable_partition_adaptive(middle, last, pred, _Distance(length - half), buffer, buffer_size);
  return rotate_range(left_end, middle, right_end, category_of(first));
}

template <class _Bidirectional, class _Predicate>
_Bidirectional stable_partition_with(_Bidirectional first, _Bidirectional last,
                                     _Predicate& pred) {
  typedef typename std::iterator_traits<_Bidirectional>::value_type _T;
  typedef typename std::iterator_traits<_Bidirectional>::difference_type _Distance;
  if (first == last)
    return first;
  const _Distance length = std::distance(first, last);
  scratch_buffer<_T> buffer(length, *first);
  return stable_partition_adaptive(first, last, pred, length, buffer.begin(),
                                   _Distance(buffer.size()));
}

template <class _RandomIter, class _Generator>
void shuffle_with(_RandomIter first, _RandomIter last, _Generator& gen) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  if (first == last)
    return;
  for (_RandomIter next = first + 1; next != last; ++next)
    std::iter_swap(next, first + _Distance(gen(_Distance((next - first) + 1))));
}

} // namespace __vel

namespace std {

// Swaps each failing element from the front with a passing one from the back.
template <class _Bidirectional, class _Predicate>
_Bidirectional partition(_Bidirectional first, _Bidirectional last, _Predicate pred) {
  for (;;) {
    for (;; ++first) {
      if (first == last)
        return first;
      if (!pred(*first))
        break;
    }
    for (;;) {
      --last;
      if (first == last)
        return first;
      if (pred(*last))
        break;
    }
    std::iter_swap(first, last);
    ++first;
  }
}

template <class _Bidirectional, class _Predicate>
inline _Bidirectional stable_partition(_Bidirectional first, _Bidirectional last,
                                       _Predicate pred) {
  return __vel::stable_partition_with(first, last, pred);
}

// Without a generator the numbers come from the library's own generator, std::__trelk_rd.
template <class _RandomIter> inline void random_shuffle(_RandomIter first, _RandomIter last) {
  __vel::shuffle_with(first, last, __trelk_rd);
}
#if __cplusplus >= 201103L
template <class _RandomIter, class _Generator>
inline void random_shuffle(_RandomIter first, _RandomIter last, _Generator&& gen) {
  __vel::shuffle_with(first, last, gen);
}
#else
template <class _RandomIter, class _Generator>
inline void random_shuffle(_RandomIter first, _RandomIter last, _Generator& gen) {
  __vel::shuffle_with(first, last, gen);
}
#endif

} // namespace std

#endif
