// std::deque's members that take and give back blocks and maps, and those that insert and erase
// inside, moving the shorter side.
#ifndef __LORB_DEQUE_MEMBERS_H
#define __LORB_DEQUE_MEMBERS_H

#include <__lorb/deque.h>

namespace std {

template <class _T, class _Alloc> void deque<_T, _Alloc>::__release() {
  if (!__map)
    return;
  __vel::destroy_range(__start, __finish);
  for (_T** node = __start.__node; node <= __finish.__node; ++node)
    __deallocate_block(*node);
  __map_allocator().deallocate(__map, __map_size);
}

template <class _T, class _Alloc> void deque<_T, _Alloc>::__create_map(bool at_front) {
  __map_allocator map_alloc;
  __map = __vel::checked_allocate(map_alloc, 2);
  __map_size = 2;
  _T** node = __map + (at_front ? 1 : 0);
  *node = __allocate_block();
  _T* position = at_front ? *node + (__vel::deque_block_elements - 1) : *node;
  __start = __finish = iterator(position, node);
}

// Twice the slots plus 2; the block pointers are copied to the middle of the new map.
template <class _T, class _Alloc> void deque<_T, _Alloc>::__replace_map() {
  size_type new_size = 2 * __map_size + 2;
  __map_allocator map_alloc;
  _T** new_map = __vel::checked_allocate(map_alloc, new_size);
  size_type used = size_type(__finish.__node - __start.__node) + 1;
  _T** new_start = new_map + (new_size - used) / 2;
  std::copy(__start.__node, __finish.__node + 1, new_start);
  map_alloc.deallocate(__map, __map_size);
  __map = new_map;
  __map_size = new_size;
  __start.__node = new_start;
  __finish.__node = new_start + (used - 1);
}

template <class _T, class _Alloc> void deque<_T, _Alloc>::allocate_at_end() {
  if (__finish.__node + 1 == __map + __map_size)
    __replace_map();
  __finish.__node[1] = __allocate_block();
}

template <class _T, class _Alloc> void deque<_T, _Alloc>::allocate_at_begin() {
  if (__start.__node == __map)
    __replace_map();
  __start.__node[-1] = __allocate_block();
}

// n copies are pushed on the shorter side, then the elements between that end and the position
// move over them and the copies land at the position. Pushing may replace the map, so positions
// are counted from the start.
template <class _T, class _Alloc>
void deque<_T, _Alloc>::__fill_insert(iterator position, size_type n, const _T& value) {
  if (n == 0)
    return;
  const _T held = value;
  difference_type before = position - __start;
  difference_type after = __finish - position;
  difference_type count = difference_type(n);
  if (n > max_size() - size())
    std::length_error::__throw(__vel::length_error_message);
  if (before < after) {
    for (size_type i = 0; i < n; ++i)
      push_front(held);
    std::copy(__start + count, __start + (count + before), __start);
  } else {
    for (size_type i = 0; i < n; ++i)
      push_back(held);
    std::copy_backward(__start + before, __start + (before + after), __finish);
  }
  std::fill(__start + before, __start + (before + count), held);
}

template <class _T, class _Alloc>
template <class _Forward>
void deque<_T, _Alloc>::__range_insert(iterator position, _Forward first, _Forward last,
                                       forward_iterator_tag) {
  difference_type before = position - __start;
  difference_type after = __finish - position;
  difference_type count = difference_type(std::distance(first, last));
  if (after == 0) {
    for (; first != last; ++first)
      push_back(*first);
    return;
  }
  // Places are opened with copies of the end element, then overwritten.
  if (before < after) {
    for (difference_type i = 0; i < count; ++i)
      push_front(front());
    std::copy(__start + count, __start + (count + before), __start);
  } else {
    for (difference_type i = 0; i < count; ++i)
      push_back(back());
    std::copy_backward(__start + before, __start + (before + after), __finish);
  }
  std::copy(first, last, __start + before);
}

template <class _T, class _Alloc>
typename deque<_T, _Alloc>::iterator deque<_T, _Alloc>::erase(iterator first, iterator last) {
  difference_type before = first - __start;
  difference_type count = last - first;
  difference_type after = __finish - last;
  if (before < after) {
    std::copy_backward(__start, first, last);
    for (difference_type i = 0; i < count; ++i)
      pop_front();
  } else {
    std::copy(last, __finish, first);
    for (difference_type i = 0; i < count; ++i)
      pop_back();
  }
  return __start + before;
}

template <class _T, class _Alloc> void deque<_T, _Alloc>::assign(size_type n, const _T& value) {
  const _T held = value;
  if (n > size()) {
    std::fill(__start, __finish, held);
    __fill_insert(__finish, n - size(), held);
  } else {
    erase(__start + difference_type(n), __finish);
    std::fill(__start, __finish, held);
  }
}

} // namespace std

#endif
