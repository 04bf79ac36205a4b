// std::list's members that relink nodes (splice, remove, unique, merge, sort) and those that
// refill it (assign, resize).
#ifndef __LORB_LIST_MEMBERS_H
#define __LORB_LIST_MEMBERS_H

#include <__lorb/list.h>
#include <__lorb/runtime.h>
#include <new>

namespace std {

template <class _T, class _Alloc> void list<_T, _Alloc>::assign(size_type n, const _T& value) {
  const _T held = value;
  iterator out = begin();
  for (; n > 0 && out != end(); --n, ++out)
    *out = held;
  if (n > 0)
    insert(end(), n, held);
  else
    erase(out, end());
}

template <class _T, class _Alloc> void list<_T, _Alloc>::resize(size_type n, _T value) {
  if (n >= __size) {
    insert(end(), n - __size, value);
    return;
  }
  iterator kept_end = begin();
  for (; n > 0; --n)
    ++kept_end;
  erase(kept_end, end());
}

template <class _T, class _Alloc> void list<_T, _Alloc>::splice(iterator position, list& other) {
  if (other.empty() || &other == this)
    return;
  __vel::transfer(position.__node, other.begin().__node, other.end().__node);
  __size += other.__size;
  other.__size = 0;
}

template <class _T, class _Alloc>
void list<_T, _Alloc>::splice(iterator position, list& other, iterator i) {
  iterator after = i;
  ++after;
  if (position == i || position == after)
    return;
  __vel::transfer(position.__node, i.__node, after.__node);
  ++__size;
  --other.__size;
}

// Moving a range between lists counts it; within one list the size stays.
template <class _T, class _Alloc>
void list<_T, _Alloc>::splice(iterator position, list& other, iterator first, iterator last) {
  if (first == last)
    return;
  if (&other != this) {
    size_type n = size_type(std::distance(first, last));
    __size += n;
    other.__size -= n;
  }
  __vel::transfer(position.__node, first.__node, last.__node);
}

// value may be one of the elements: that node goes last, after every comparison.
template <class _T, class _Alloc> void list<_T, _Alloc>::remove(const _T& value) {
  iterator value_node = end();
  for (iterator it = begin(); it != end();) {
    iterator next = it;
    ++next;
    if (*it == value) {
      if (&*it == &value)
        value_node = it;
      else
        erase(it);
    }
    it = next;
  }
  if (value_node != end())
    erase(value_node);
}

template <class _T, class _Alloc>
template <class _Predicate>
void list<_T, _Alloc>::remove_if(_Predicate pred) {
  for (iterator it = begin(); it != end();) {
    iterator next = it;
    ++next;
    if (pred(*it))
      erase(it);
    it = next;
  }
}

// Each element is compared with the last one kept.
template <class _T, class _Alloc>
template <class _BinaryPredicate>
void list<_T, _Alloc>::unique(_BinaryPredicate same) {
  if (__size < 2)
    return;
  iterator kept = begin();
  iterator next = kept;
  while (++next != end()) {
    if (same(*kept, *next)) {
      erase(next);
      next = kept;
    } else {
      kept = next;
    }
  }
}

// Stable: of equal elements, those of this list come first.
template <class _T, class _Alloc>
template <class _Compare>
void list<_T, _Alloc>::merge(list& other, _Compare comp) {
  if (&other == this)
    return;
  iterator mine = begin();
  iterator theirs = other.begin();
  while (mine != end() && theirs != other.end()) {
    if (comp(*theirs, *mine)) {
      iterator next = theirs;
      ++next;
      __vel::transfer(mine.__node, theirs.__node, next.__node);
      theirs = next;
    } else {
      ++mine;
    }
  }
  __vel::transfer(end().__node, theirs.__node, other.end().__node);
  __size += other.__size;
  other.__size = 0;
}

// A bottom-up merge sort. bins[i] is empty or holds 2^i sorted elements; each element taken
// from the front is carried up, merged with every full bin it meets (the bin's elements came
// first, so equal elements keep their order), into the first empty one. At the end each bin
// is merged into the next larger one, whose elements came first. The 64 lists are built and
// destroyed by the run-time's array helpers.
template <class _T, class _Alloc>
template <class _Compare>
void list<_T, _Alloc>::sort(_Compare comp) {
  if (__size < 2)
    return;
  const int bin_count = 64;
  list* bins = static_cast<list*>(__vec_new(0, bin_count, sizeof(list), &__construct_bin));
  if (!bins)
    __vel::out_of_memory();
  list carry;
  int filled = 0;
  while (!empty()) {
    carry.splice(carry.begin(), *this, begin());
    int i = 0;
    for (; i < filled && !bins[i].empty(); ++i) {
      bins[i].merge(carry, comp);
      carry.swap(bins[i]);
    }
    carry.swap(bins[i]);
    if (i == filled)
      ++filled;
  }
  for (int i = 1; i < filled; ++i)
    bins[i].merge(bins[i - 1], comp);
  swap(bins[filled - 1]);
  __vec_delete(bins, bin_count, sizeof(list), &__destroy_bin, 1);
}

} // namespace std

#endif
