// Insertion sort, which sort and stable_sort both finish small runs with; stable, since an
// element only moves past elements that order strictly after it.
#ifndef __LORB_ALGO_INSERTION_SORT_H
#define __LORB_ALGO_INSERTION_SORT_H

#include <__lorb/iterator_tags.h>

namespace __vel {

// Runs of up to this many elements are left to insertion sort.
enum { insertion_sort_threshold = 16 };

// Moves value back from the hole at position until an element not after it is met; some element
// before position must stop it.
template <class _RandomIter, class _T, class _Compare>
inline void insert_unguarded(_RandomIter position, const _T& value, _Compare& comp) {
  _RandomIter before = position;
  --before;
  while (comp(value, *before)) {
    *position = *before;
    position = before;
    --before;
  }
  *position = value;
}

template <class _RandomIter, class _Compare>
void insertion_sort(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  if (first == last)
    return;
  for (_RandomIter next = first + 1; next != last; ++next) {
    _T value = *next;
    if (comp(value, *first)) {
      // A plain loop: the runs are short, a call to memmove costs more than it saves.
      for (_RandomIter hole = next; hole != first; --hole)
        *hole = *(hole - 1);
      *first = value;
    } else {
      insert_unguarded(next, value, comp);
    }
  }
}

// Every element of [first, last) has an element before first that does not order after it.
template <class _RandomIter, class _Compare>
void insertion_sort_unguarded(_RandomIter first, _RandomIter last, _Compare& comp) {
  typedef typename std::iterator_traits<_RandomIter>::value_type _T;
  for (; first != last; ++first) {
    _T value = *first;
    insert_unguarded(first, value, comp);
  }
}

} // namespace __vel

#endif
