// The heap algorithms push_heap, pop_heap, make_heap and sort_heap: a max-heap in a random-access
// range, ordered by < or by a comparator.
#ifndef __LORB_HEAP_H
#define __LORB_HEAP_H

#include <__lorb/algo_compare.h>
#include <__lorb/iterator_tags.h>

namespace __vel {

// Moves value up from the hole while its parent orders before it, stopping at top.
template <class _RandomIter, class _Distance, class _T, class _Compare>
inline void heap_sift_up(_RandomIter first, _Distance hole, _Distance top, const _T& value,
                         _Compare& comp) {
  _Distance parent = (hole - 1) / 2;
  while (hole > top && comp(*(first + parent), value)) {
    *(first + hole) = *(first + parent);
    hole = parent;
    parent = (hole - 1) / 2;
  }
  *(first + hole) = value;
}

// Fills the hole with value, keeping the heap below it: the larger child climbs into the hole all
// the way down to a leaf, then value sifts up from there. One comparison a level on the way down
// instead of two, and value rarely climbs far.
template <class _RandomIter, class _Distance, class _T, class _Compare>
void heap_adjust(_RandomIter first, _Distance hole, _Distance length, _T value, _Compare& comp) {
  const _Distance top = hole;
  _Distance child = 2 * hole + 2;
  while (child < length) {
    if (comp(*(first + child), *(first + (child - 1))))
      --child;
    *(first + hole) = *(first + child);
    hole = child;
    child = 2 * child + 2;
  }
  if (child == length) {
    *(first + hole) = *(first + (child - 1));
    hole = child - 1;
  }
  heap_sift_up(first, hole, top, value, comp);
}

template <class _RandomIter, class _Compare>
inline void heap_push(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  _Distance length = last - first;
  if (length > 1) {
    _T value = *(last - 1);
    heap_sift_up(first, length - 1, _Distance(0), value, comp);
  }
}

template <class _RandomIter, class _Compare>
inline void heap_pop(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  _Distance length = last - first;
  if (length > 1) {
    _T value = *(last - 1);
    *(last - 1) = *first;
    heap_adjust(first, _Distance(0), length - 1, value, comp);
  }
}

template <class _RandomIter, class _Compare>
void heap_make(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::difference_type _Distance;
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  _Distance length = last - first;
  if (length < 2)
    return;
  for (_Distance parent = (length - 2) / 2;; --parent) {
    _T value = *(first + parent);
    heap_adjust(first, parent, length, value, comp);
    if (parent == 0)
      break;
  }
}

template <class _RandomIter, class _Compare>
void heap_sort(_RandomIter first, _RandomIter last, _Compare& comp) {
  for (; last - first > 1; --last)
    heap_pop(first, last, comp);
}

} // namespace __vel

namespace std {

template <class _RandomIter> inline void push_heap(_RandomIter first, _RandomIter last) {
  __vel::less_than comp;
  __vel::heap_push(first, last, comp);
}
template <class _RandomIter, class _Compare>
inline void push_heap(_RandomIter first, _RandomIter last, _Compare comp) {
  __vel::heap_push(first, last, comp);
}

template <class _RandomIter> inline void pop_heap(_RandomIter first, _RandomIter last) {
  __vel::less_than comp;
  __vel::heap_pop(first, last, comp);
}
template <class _RandomIter, class _Compare>
inline void pop_heap(_RandomIter first, _RandomIter last, _Compare comp) {
  __vel::heap_pop(first, last, comp);
}

template <class _RandomIter> inline void make_heap(_RandomIter first, _RandomIter last) {
  __vel::less_than comp;
  __vel::heap_make(first, last, comp);
}
template <class _RandomIter, class _Compare>
inline void make_heap(_RandomIter first, _RandomIter last, _Compare comp) {
  __vel::heap_make(first, last, comp);
}

template <class _RandomIter> inline void sort_heap(_RandomIter first, _RandomIter last) {
  __vel::less_than comp;
  __vel::heap_sort(first, last, comp);
}
template <class _RandomIter, class _Compare>
inline void sort_heap(_RandomIter first, _RandomIter last, _Compare comp) {
  __vel::heap_sort(first, last, comp);
}

} // namespace std

#endif
