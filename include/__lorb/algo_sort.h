// sort, partial_sort, partial_sort_copy and nth_element: quicksort with median-of-three pivots
// that hands small runs to insertion sort and falls back to heapsort when the partitions keep
// coming out lopsided, so the worst case stays N log N.
#ifndef __LORB_ALGO_SORT_H
#define __LORB_ALGO_SORT_H

#include <__lorb/algo_compare.h>
#include <__lorb/algo_insertion_sort.h>
#include <__lorb/algobase.h>
#include <__lorb/bitwise_copy.h>
#include <__lorb/heap.h>

namespace __vel {

// How short a run quicksort leaves to the final insertion sort: longer for plain values under
// the built-in <, whose comparisons and moves cost little next to a mispredicted partition step.
template <class _T, class _Compare> struct quicksort_cutoff {
  enum { value = insertion_sort_threshold };
};
template <class _T> struct quicksort_cutoff<_T, less_than> {
  enum { value = is_bitwise_copyable<_T>::value ? 48 : int(insertion_sort_threshold) };
};

// Which of a, b and c holds the median of the three.
template <class _RandomIter, class _Compare>
inline _RandomIter median_of(_RandomIter a, _RandomIter b, _RandomIter c, _Compare& comp) {
  if (comp(*a, *b)) {
    if (comp(*b, *c))
      return b;
    return comp(*a, *c) ? c : a;
  }
  if (comp(*a, *c))
    return a;
  return comp(*b, *c) ? c : b;
}

// Partitions [first, last) around *pivot, which lies before first. Both scans stop on elements
// equal to the pivot, so runs of equal elements split evenly; the pivot's own copy and the median
// choice guard the scans, so they need no bounds checks.
template <class _RandomIter, class _Compare>
inline _RandomIter partition_unguarded(_RandomIter first, _RandomIter last, _RandomIter pivot,
                                       _Compare& comp) {
  for (;;) {
    while (comp(*first, *pivot))
      ++first;
    --last;
    while (comp(*pivot, *last))
      --last;
    if (!(first < last))
      return first;
    std::iter_swap(first, last);
    ++first;
  }
}

// Moves a pivot to the front and partitions the rest around it. The pivot is the median of the
// second, middle and last elements; for long runs, the median of three such medians, which keeps
// sawtooth and organ-pipe orders from splitting badly.
template <class _RandomIter, class _Compare>
inline _RandomIter partition_around_median(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  const _Distance length = last - first;
  _RandomIter middle = first + length / 2;
  _RandomIter pivot;
  if (length > 128) {
    const _Distance step = length / 8;
    pivot = median_of(median_of(first + 1, first + 1 + step, first + 1 + 2 * step, comp),
                      median_of(middle - step, middle, middle + step, comp),
                      median_of(last - 1 - 2 * step, last - 1 - step, last - 1, comp), comp);
  } else {
    pivot = median_of(first + 1, middle, last - 1, comp);
  }
  std::iter_swap(first, pivot);
  return partition_unguarded(first + 1, last, first, comp);
}

// Twice the floor of log2(n): how deep quicksort may go before heapsort takes over.
template <class _Distance> inline int depth_limit_for(_Distance n) {
  int depth = 0;
  for (; n > 1; n /= 2)
    ++depth;
  return 2 * depth;
}

// Leaves every run of up to `cutoff` elements unsorted, in its final place.
template <class _RandomIter, class _Compare>
void introsort_loop(_RandomIter first, _RandomIter last, int depth_limit, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  while (last - first > quicksort_cutoff<_T, _Compare>::value) {
    if (depth_limit == 0) {
      heap_make(first, last, comp);
      heap_sort(first, last, comp);
      return;
    }
    --depth_limit;
    _RandomIter cut = partition_around_median(first, last, comp);
    introsort_loop(cut, last, depth_limit, comp);
    last = cut;
  }
}

// After introsort_loop, the smallest element lies in the first run, so past it insertion needs
// no bounds check.
template <class _RandomIter, class _Compare>
void final_insertion_sort(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  const int cutoff = quicksort_cutoff<_T, _Compare>::value;
  if (last - first > cutoff) {
    insertion_sort(first, first + cutoff, comp);
    insertion_sort_unguarded(first + cutoff, last, comp);
  } else {
    insertion_sort(first, last, comp);
  }
}

template <class _RandomIter, class _Compare>
inline void sort_with(_RandomIter first, _RandomIter last, _Compare& comp) {
  if (last - first < 2)
    return;
  introsort_loop(first, last, depth_limit_for(last - first), comp);
  final_insertion_sort(first, last, comp);
}

// Leaves the middle - first smallest elements in [first, middle) as a heap.
template <class _RandomIter, class _Compare>
void heap_select(_RandomIter first, _RandomIter middle, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  heap_make(first, middle, comp);
  const _Distance length = middle - first;
  for (_RandomIter candidate = middle; candidate < last; ++candidate)
    if (comp(*candidate, *first)) {
      _T value = *candidate;
      *candidate = *first;
      heap_adjust(first, _Distance(0), length, value, comp);
    }
}

template <class _RandomIter, class _Compare>
inline void partial_sort_with(_RandomIter first, _RandomIter middle, _RandomIter last,
                              _Compare& comp) {
  if (first == middle)
    return;
  heap_select(first, middle, last, comp);
  heap_sort(first, middle, comp);
}

template <class _In, class _RandomIter, class _Compare>
_RandomIter partial_sort_copy_with(_In first, _In last, _RandomIter result_first,
                                   _RandomIter result_last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  _RandomIter result_end = result_first;
  for (; first != last && result_end != result_last; ++first, ++result_end)
    *result_end = *first;
  if (result_end == result_first)
    return result_end;
  heap_make(result_first, result_end, comp);
  const _Distance length = result_end - result_first;
  for (; first != last; ++first)
    if (comp(*first, *result_first)) {
      _T value = *first;
      heap_adjust(result_first, _Distance(0), length, value, comp);
    }
  heap_sort(result_first, result_end, comp);
  return result_end;
}

// Quickselect: keeps only the side of each partition that holds nth; heap selection takes over
// when the partitions keep coming out lopsided.
template <class _RandomIter, class _Compare>
void nth_element_with(_RandomIter first, _RandomIter nth, _RandomIter last, _Compare& comp) {
  if (first == last || nth == last)
    return;
  int depth_limit = depth_limit_for(last - first);
  while (last - first > 3) {
    if (depth_limit == 0) {
      heap_select(first, nth + 1, last, comp);
      std::iter_swap(first, nth);
      return;
    }
    --depth_limit;
    _RandomIter cut = partition_around_median(first, last, comp);
    if (cut <= nth)
      first = cut;
    else
      last = cut;
  }
  insertion_sort(first, last, comp);
}

} // namespace __vel

namespace std {

template <class _RandomIter> inline void sort(_RandomIter first, _RandomIter last) {
  __vel::less_than comp;
  __vel::sort_with(first, last, comp);
}
template <class _RandomIter, class _Compare>
inline void sort(_RandomIter first, _RandomIter last, _Compare comp) {
  __vel::sort_with(first, last, comp);
}

template <class _RandomIter>
inline void partial_sort(_RandomIter first, _RandomIter middle, _RandomIter last) {
  __vel::less_than comp;
  __vel::partial_sort_with(first, middle, last, comp);
}
template <class _RandomIter, class _Compare>
inline void partial_sort(_RandomIter first, _RandomIter middle, _RandomIter last,
                         _Compare comp) {
  __vel::partial_sort_with(first, middle, last, comp);
}

template <class _In, class _RandomIter>
inline _RandomIter partial_sort_copy(_In first, _In last, _RandomIter result_first,
                                     _RandomIter result_last) {
  __vel::less_than comp;
  return __vel::partial_sort_copy_with(first, last, result_first, result_last, comp);
}
template <class _In, class _RandomIter, class _Compare>
inline _RandomIter partial_sort_copy(_In first, _In last, _RandomIter result_first,
                                     _RandomIter result_last, _Compare comp) {
  return __vel::partial_sort_copy_with(first, last, result_first, result_last, comp);
}

template <class _RandomIter>
inline void nth_element(_RandomIter first, _RandomIter nth, _RandomIter last) {
  __vel::less_than comp;
  __vel::nth_element_with(first, nth, last, comp);
}
template <class _RandomIter, class _Compare>
inline void nth_element(_RandomIter first, _RandomIter nth, _RandomIter last, _Compare comp) {
  __vel::nth_element_with(first, nth, last, comp);
}

} // namespace std

#endif
