// stable_sort: merge sort through a scratch buffer of half the range; with a smaller buffer the
// merges split into smaller ones, and with none at all they merge in place by rotations.
#ifndef __LORB_ALGO_STABLE_SORT_H
#define __LORB_ALGO_STABLE_SORT_H

#include <__lorb/algo_buffer.h>
#include <__lorb/algo_compare.h>
#include <__lorb/algo_insertion_sort.h>
#include <__lorb/algo_merge.h>

namespace __vel {

// Sorted runs of this length start the bottom-up merge sort.
enum { stable_sort_run = 7 };

// Merges two sorted random-access runs with no branch on the comparison: the winner is picked by
// a conditional and both positions step by the comparison's outcome. When the runs interleave
// finely (random data), a branch there guesses wrong half the time. Ties take the first run's.
template <class _In, class _Out, class _Compare>
_Out merge_without_guessing(_In first1, _In last1, _In first2, _In last2, _Out out,
                            _Compare& comp) {
  if (first1 != last1 && first2 != last2) {
    for (;;) {
      const bool second_wins = comp(*first2, *first1);
      *out = second_wins ? *first2 : *first1;
      ++out;
      first2 += second_wins;
      first1 += !second_wins;
      if (first1 == last1 || first2 == last2)
        break;
    }
  }
  return std::copy(first2, last2, std::copy(first1, last1, out));
}

// Long merges first take a sample with the plain branching merge and count how often the runs
// take turns: rarely (long stretches from each run, as with many equal keys) means the branch
// guesses well, and the plain merge, faster then, does the rest.
template <class _In, class _Out, class _Compare>
_Out merge_sorted_runs(_In first1, _In last1, _In first2, _In last2, _Out out, _Compare& comp) {
  if ((last1 - first1) + (last2 - first2) < 512)
    return merge_without_guessing(first1, last1, first2, last2, out, comp);
  int turns = 0;
  bool second_won = false;
  for (int sample = 0; sample < 64 && first1 != last1 && first2 != last2; ++sample) {
    const bool second_wins = comp(*first2, *first1);
    if (second_wins) {
      *out = *first2;
      ++first2;
    } else {
      *out = *first1;
      ++first1;
    }
    ++out;
    turns += second_wins != second_won;
    second_won = second_wins;
  }
  if (turns < 8)
    return merge_into(first1, last1, first2, last2, out, comp);
  return merge_without_guessing(first1, last1, first2, last2, out, comp);
}

// Merges neighbouring sorted runs of `step` elements from [first, last) into out; runs already
// in order are copied after one comparison.
template <class _In, class _Out, class _Distance, class _Compare>
void merge_runs(_In first, _In last, _Out out, _Distance step, _Compare& comp) {
  for (;;) {
    const _Distance rest = last - first;
    const _Distance length1 = rest < step ? rest : step;
    const _In middle = first + length1;
    const _In run_last = rest - length1 < step ? last : middle + step;
    if (middle == run_last || !comp(*middle, *(middle - 1)))
      out = std::copy(first, run_last, out);
    else
      out = merge_sorted_runs(first, middle, middle, run_last, out, comp);
    if (run_last == last)
      return;
    first = run_last;
  }
}

// Bottom-up merge sort; the runs go back and forth between the range and the buffer, which holds
// at least as many elements as the range.
template <class _RandomIter, class _Pointer, class _Compare>
void merge_sort_with_buffer(_RandomIter first, _RandomIter last, _Pointer buffer,
                            _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  const _Distance length = last - first;
  const _Pointer buffer_last = buffer + length;
  _Distance step = stable_sort_run;
  _RandomIter run = first;
  for (; last - run >= step; run += step)
    insertion_sort(run, run + step, comp);
  insertion_sort(run, last, comp);
  while (step < length) {
    merge_runs(first, last, buffer, step, comp);
    step *= 2;
    merge_runs(buffer, buffer_last, first, step, comp);
    step *= 2;
  }
}

// Sorts each half with the buffer when it fits, else by halving again, then merges the halves.
template <class _RandomIter, class _Pointer, class _Distance, class _Compare>
void stable_sort_adaptive(_RandomIter first, _RandomIter last, _Pointer buffer,
                          _Distance buffer_size, _Compare& comp) {
  const _Distance length = last - first;
  const _Distance half = (length + 1) / 2;
  const _RandomIter middle = first + half;
  if (half > buffer_size) {
    stable_sort_adaptive(first, middle, buffer, buffer_size, comp);
    stable_sort_adaptive(middle, last, buffer, buffer_size, comp);
  } else {
    merge_sort_with_buffer(first, middle, buffer, comp);
    merge_sort_with_buffer(middle, last, buffer, comp);
  }
  merge_adaptive(first, middle, last, half, _Distance(length - half), buffer, buffer_size, comp);
}

template <class _RandomIter, class _Compare>
void stable_sort_in_place(_RandomIter first, _RandomIter last, _Compare& comp) {
  if (last - first <= insertion_sort_threshold) {
    insertion_sort(first, last, comp);
    return;
  }
  const _RandomIter middle = first + (last - first) / 2;
  stable_sort_in_place(first, middle, comp);
  stable_sort_in_place(middle, last, comp);
  merge_in_place(first, middle, last, middle - first, last - middle, comp);
}

template <class _RandomIter, class _Compare>
void stable_sort_with(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  const _Distance length = last - first;
  if (length <= insertion_sort_threshold) {
    insertion_sort(first, last, comp);
    return;
  }
  scratch_buffer<_T> buffer((length + 1) / 2, *first);
  if (buffer.size() == 0)
    stable_sort_in_place(first, last, comp);
  else
    stable_sort_adaptive(first, last, buffer.begin(), _Distance(buffer.size()), comp);
}

} // namespace __vel

namespace std {

template <class _RandomIter> inline void stable_sort(_RandomIter first, _RandomIter last) {
  __vel::less_than comp;
  __vel::stable_sort_with(first, last, comp);
}
template <class _RandomIter, class _Compare>
inline void stable_sort(_RandomIter first, _RandomIter last, _Compare comp) {
  __vel::stable_sort_with(first, last, comp);
}

} // namespace std

#endif
