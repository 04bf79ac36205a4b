// The merging steps that merge, inplace_merge and stable_sort share: merges into another range,
// merges through a scratch buffer, and the merge in place by rotations when no buffer is had.
// On ties the element of the first run always comes first, which keeps them stable.
#ifndef __LORB_ALGO_MERGE_H
#define __LORB_ALGO_MERGE_H

#include <__lorb/algo_buffer.h>
#include <__lorb/algo_modifying.h>
#include <__lorb/algo_search.h>
#include <__lorb/algobase.h>
#include <__lorb/iterator_ops.h>

namespace __vel {

template <class _In1, class _In2, class _Out, class _Compare>
_Out merge_into(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out, _Compare& comp) {
  while (first1 != last1 && first2 != last2) {
    if (comp(*first2, *first1)) {
      *out = *first2;
      ++first2;
    } else {
      *out = *first1;
      ++first1;
    }
    ++out;
  }
  return std::copy(first2, last2, std::copy(first1, last1, out));
}

// The first run was moved to the buffer; the output, starting where that run was, never
// overtakes the second run, and whatever is left of the second run is already in place.
template <class _Pointer, class _Bidirectional, class _Compare>
void merge_from_buffer_forward(_Pointer buffer, _Pointer buffer_last, _Bidirectional second,
                               _Bidirectional last, _Bidirectional out, _Compare& comp) {
  while (buffer != buffer_last && second != last) {
    if (comp(*second, *buffer)) {
      *out = *second;
      ++second;
    } else {
      *out = *buffer;
      ++buffer;
    }
    ++out;
  }
  std::copy(buffer, buffer_last, out);
}

// The second run was moved to the buffer; the merge fills the range from its end, and whatever
// is left of the first run is already in place.
template <class _Bidirectional, class _Pointer, class _Compare>
void merge_from_buffer_backward(_Bidirectional first, _Bidirectional middle, _Pointer buffer,
                                _Pointer buffer_last, _Bidirectional out_last, _Compare& comp) {
  while (first != middle && buffer != buffer_last) {
    _Bidirectional before_middle = middle;
    --before_middle;
    _Pointer before_buffer_last = buffer_last - 1;
    if (comp(*before_buffer_last, *before_middle)) {
      *--out_last = *before_middle;
      middle = before_middle;
    } else {
      *--out_last = *before_buffer_last;
      buffer_last = before_buffer_last;
    }
  }
  std::copy_backward(buffer, buffer_last, out_last);
}

// Rotates through the buffer when the shorter block fits in it, else by swaps.
template <class _Bidirectional, class _Distance, class _Pointer>
_Bidirectional rotate_through_buffer(_Bidirectional first, _Bidirectional middle,
                                     _Bidirectional last, _Distance length1, _Distance length2,
                                     _Pointer buffer, _Distance buffer_size) {
  if (length2 <= buffer_size && length2 < length1) {
    if (length2 == 0)
      return first;
    _Pointer buffer_last = std::copy(middle, last, buffer);
    std::copy_backward(first, middle, last);
    return std::copy(buffer, buffer_last, first);
  }
  if (length1 <= buffer_size) {
    if (length1 == 0)
      return last;
    _Pointer buffer_last = std::copy(first, middle, buffer);
    _Bidirectional moved_second = std::copy(middle, last, first);
    std::copy(buffer, buffer_last, moved_second);
    return moved_second;
  }
  return rotate_range(first, middle, last, category_of(first));
}

// Splits the longer run in half, finds where its middle element falls in the other run, and
// rotates the two inner blocks past each other: two smaller merges are left.
template <class _Bidirectional, class _Distance, class _Pointer, class _Compare>
void merge_adaptive(_Bidirectional first, _Bidirectional middle, _Bidirectional last,
                    _Distance length1, _Distance length2, _Pointer buffer, _Distance buffer_size,
                    _Compare& comp) {
  for (;;) {
    if (length1 == 0 || length2 == 0)
      return;
    if (length1 <= length2 && length1 <= buffer_size) {
      _Pointer buffer_last = std::copy(first, middle, buffer);
      merge_from_buffer_forward(buffer, buffer_last, middle, last, first, comp);
      return;
    }
    if (length2 <= buffer_size) {
      _Pointer buffer_last = std::copy(middle, last, buffer);
      merge_from_buffer_backward(first, middle, buffer, buffer_last, last, comp);
      return;
    }
    if (length1 + length2 == 2) {
      if (comp(*middle, *first))
        std::iter_swap(first, middle);
      return;
    }
    _Bidirectional cut1 = first;
    _Bidirectional cut2 = middle;
    _Distance length11, length22;
    if (length1 > length2) {
      length11 = length1 / 2;
      std::advance(cut1, length11);
      cut2 = lower_bound_with(middle, last, *cut1, comp);
      length22 = std::distance(middle, cut2);
    } else {
      length22 = length2 / 2;
      std::advance(cut2, length22);
      cut1 = upper_bound_with(first, middle, *cut2, comp);
      length11 = std::distance(first, cut1);
    }
    _Bidirectional new_middle = rotate_through_buffer(cut1, middle, cut2, length1 - length11,
                                                      length22, buffer, buffer_size);
    merge_adaptive(first, cut1, new_middle, length11, length22, buffer, buffer_size, comp);
    first = new_middle;
    middle = cut2;
    length1 -= length11;
    length2 -= length22;
  }
}

// The same merge with no buffer at all: rotations only.
template <class _Bidirectional, class _Distance, class _Compare>
inline void merge_in_place(_Bidirectional first, _Bidirectional middle, _Bidirectional last,
                           _Distance length1, _Distance length2, _Compare& comp) {
  typedef typename std::iterator_traits<_Bidirectional>::value_type _T;
  merge_adaptive(first, middle, last, length1, length2, static_cast<_T*>(0), _Distance(0), comp);
}

template <class _Bidirectional, class _Compare>
void inplace_merge_with(_Bidirectional first, _Bidirectional middle, _Bidirectional last,
                        _Compare& comp) {
  typedef typename std::iterator_traits<_Bidirectional>::value_type _T;
  typedef typename std::iterator_traits<_Bidirectional>::difference_type _Distance;
  if (first == middle || middle == last)
    return;
  _Distance length1 = std::distance(first, middle);
  _Distance length2 = std::distance(middle, last);
  scratch_buffer<_T> buffer(length1 < length2 ? length1 : length2, *first);
  merge_adaptive(first, middle, last, length1, length2, buffer.begin(), _Distance(buffer.size()),
                 comp);
}

} // namespace __vel

namespace std {

template <class _In1, class _In2, class _Out>
inline _Out merge(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out) {
  __vel::less_than comp;
  return __vel::merge_into(first1, last1, first2, last2, out, comp);
}
template <class _In1, class _In2, class _Out, class _Compare>
inline _Out merge(_In1 first1, _In1 last1, _In2 first2, _In2 last2, _Out out, _Compare comp) {
  return __vel::merge_into(first1, last1, first2, last2, out, comp);
}

template <class _Bidirectional>
inline void inplace_merge(_Bidirectional first, _Bidirectional middle, _Bidirectional last) {
  __vel::less_than comp;
  __vel::inplace_merge_with(first, middle, last, comp);
}
template <class _Bidirectional, class _Compare>
inline void inplace_merge(_Bidirectional first, _Bidirectional middle, _Bidirectional last,
                          _Compare comp) {
  __vel::inplace_merge_with(first, middle, last, comp);
}

} // namespace std

#endif
