// std::deque: elements in blocks of 20 reached through a map of block pointers; the members that
// insert and erase in the middle are in deque_members.h.
#ifndef __LORB_DEQUE_H
#define __LORB_DEQUE_H

#include <__lorb/algobase.h>
#include <__lorb/allocator.h>
#include <__lorb/checked_allocate.h>
#include <__lorb/config.h>
#include <__lorb/deque_iterator.h>
#include <__lorb/error.h>
#include <__lorb/integer_type.h>
#include <__lorb/iterator_ops.h>
#include <__lorb/reverse_iterator.h>
#include <__lorb/uninitialized.h>
#include <cstddef>
#include <stdexcept>

namespace std {

// The blocks in use sit in consecutive map slots, from the start's slot to the finish's. The
// finish position always lies inside a block: the back block that fills up gets the next block
// at once (allocate_at_end), while a new front block is taken when an element goes in front of a
// full one (allocate_at_begin). A map with no free slot on the side that grows is replaced by
// one of twice its slots plus 2, holding the block pointers in its middle.
//
// A deque that never held an element, or was cleared, holds no map and no block. Its first
// element brings a map of 2 slots and one block: the block takes slot 0 with the elements
// starting at its beginning when the deque grows at the back, slot 1 with the elements ending
// one place before its end when it grows at the front. A pop gives back the block that no
// longer holds an element or the finish position; the map and the last block stay until
// clear() or destruction. Inserting or erasing inside moves the elements on the shorter side
// (the back side on a tie), and constructors and assignment build by pushing at the back.
// Allocators of one type are interchangeable (C++98 lets containers assume so), so none is
// stored.
// clang-format off
template <class _T, class _Alloc = allocator<_T> >
class __LORB_EXPORT deque {
  // clang-format on
  typedef typename _Alloc::template rebind<_T*>::other __map_allocator;

public:
  typedef _T value_type;
  typedef _Alloc allocator_type;
  typedef typename _Alloc::reference reference;
  typedef typename _Alloc::const_reference const_reference;
  typedef typename _Alloc::pointer pointer;
  typedef typename _Alloc::const_pointer const_pointer;
  typedef typename _Alloc::size_type size_type;
  typedef typename _Alloc::difference_type difference_type;
  typedef __vel::deque_iterator<_T, _T&, _T*> iterator;
  typedef __vel::deque_iterator<_T, const _T&, const _T*> const_iterator;
  typedef std::reverse_iterator<iterator> reverse_iterator;
  typedef std::reverse_iterator<const_iterator> const_reverse_iterator;

  explicit deque(const _Alloc& = _Alloc()) : __map(0), __map_size(0), __start(), __finish() {}
  explicit deque(size_type n, const _T& value = _T(), const _Alloc& = _Alloc())
      : __map(0), __map_size(0), __start(), __finish() {
    __fill_insert(__finish, n, value);
  }
  deque(const deque& other) : __map(0), __map_size(0), __start(), __finish() {
    for (const_iterator it = other.begin(); it != other.end(); ++it)
      push_back(*it);
  }
  // Two integers are a count and a value.
  template <class _InputIter>
  deque(_InputIter first, _InputIter last, const _Alloc& = _Alloc())
      : __map(0), __map_size(0), __start(), __finish() {
    __assign_dispatch(first, last, __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  ~deque() { __release(); }

  deque& operator=(const deque& other) {
    if (&other != this)
      __range_assign(other.begin(), other.end());
    return *this;
  }
  template <class _InputIter> void assign(_InputIter first, _InputIter last) {
    __assign_dispatch(first, last, __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  void assign(size_type n, const _T& value);
  allocator_type get_allocator() const { return allocator_type(); }

  iterator begin() { return __start; }
  const_iterator begin() const { return __start; }
  iterator end() { return __finish; }
  const_iterator end() const { return __finish; }
  reverse_iterator rbegin() { return reverse_iterator(end()); }
  const_reverse_iterator rbegin() const { return const_reverse_iterator(end()); }
  reverse_iterator rend() { return reverse_iterator(begin()); }
  const_reverse_iterator rend() const { return const_reverse_iterator(begin()); }

  size_type size() const { return size_type(__finish - __start); }
  size_type max_size() const { return _Alloc().max_size(); }
  void resize(size_type n, _T value = _T()) {
    if (n < size())
      erase(__start + difference_type(n), __finish);
    else
      __fill_insert(__finish, n - size(), value);
  }
  bool empty() const { return __finish == __start; }

  reference operator[](size_type n) { return __start[difference_type(n)]; }
  const_reference operator[](size_type n) const { return begin()[difference_type(n)]; }
  reference at(size_type n) {
    __check_index(n);
    return (*this)[n];
  }
  const_reference at(size_type n) const {
    __check_index(n);
    return (*this)[n];
  }
  reference front() { return *__start; }
  const_reference front() const { return *__start; }
  reference back() { return *(__finish - 1); }
  const_reference back() const { return *(__finish - 1); }

  void push_front(const _T& value) {
    if (!__map)
      __create_map(true);
    if (__start.__cur == __start.__first) {
      allocate_at_begin();
      __start.__set_node(__start.__node - 1);
      __start.__cur = __start.__last;
    }
    __vel::construct_at(__start.__cur - 1, value);
    --__start.__cur;
  }
  void push_back(const _T& value) {
    if (!__map)
      __create_map(false);
    if (__finish.__cur != __finish.__last - 1) {
      __vel::construct_at(__finish.__cur, value);
      ++__finish.__cur;
      return;
    }
    allocate_at_end();
    __vel::construct_at(__finish.__cur, value);
    __finish.__set_node(__finish.__node + 1);
    __finish.__cur = __finish.__first;
  }
  void pop_front() {
    __vel::destroy_at(__start.__cur);
    if (__start.__cur != __start.__last - 1) {
      ++__start.__cur;
      return;
    }
    __deallocate_block(__start.__first);
    __start.__set_node(__start.__node + 1);
    __start.__cur = __start.__first;
  }
  void pop_back() {
    if (__finish.__cur == __finish.__first) {
      __deallocate_block(__finish.__first);
      __finish.__set_node(__finish.__node - 1);
      __finish.__cur = __finish.__last;
    }
    --__finish.__cur;
    __vel::destroy_at(__finish.__cur);
  }

  iterator insert(iterator position, const _T& value) {
    difference_type index = position - __start;
    __fill_insert(position, 1, value);
    return __start + index;
  }
  void insert(iterator position, size_type n, const _T& value) {
    __fill_insert(position, n, value);
  }
  template <class _InputIter> void insert(iterator position, _InputIter first, _InputIter last) {
    __insert_dispatch(position, first, last,
                      __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  iterator erase(iterator position) { return erase(position, position + 1); }
  iterator erase(iterator first, iterator last);
  void swap(deque& other) {
    std::swap(__map, other.__map);
    std::swap(__map_size, other.__map_size);
    std::swap(__start, other.__start);
    std::swap(__finish, other.__finish);
  }
  // Gives back every block and the map.
  void clear() {
    __release();
    __map = 0;
    __map_size = 0;
    __start = __finish = iterator();
  }

private:
  _T** __map;
  size_type __map_size;
  iterator __start;
  iterator __finish;

  static _T* __allocate_block() {
    _Alloc alloc;
    return __vel::checked_allocate(alloc, __vel::deque_block_elements);
  }
  static void __deallocate_block(_T* block) {
    _Alloc().deallocate(block, __vel::deque_block_elements);
  }
  void __check_index(size_type n) const {
    if (n >= size())
      std::out_of_range::__throw(__vel::container_out_of_range_message);
  }
  void __release();
  void __create_map(bool at_front);
  void __replace_map();
  void allocate_at_end();
  void allocate_at_begin();

  void __fill_insert(iterator position, size_type n, const _T& value);
  template <class _Integer>
  void __insert_dispatch(iterator position, _Integer n, _Integer value, __vel::truth<true>) {
    __fill_insert(position, size_type(n), _T(value));
  }
  template <class _InputIter>
  void __insert_dispatch(iterator position, _InputIter first, _InputIter last,
                         __vel::truth<false>) {
    __range_insert(position, first, last, __vel::category_of(first));
  }
  template <class _InputIter>
  void __range_insert(iterator position, _InputIter first, _InputIter last, input_iterator_tag) {
    for (; first != last; ++first, ++position)
      position = insert(position, *first);
  }
  template <class _Forward>
  void __range_insert(iterator position, _Forward first, _Forward last, forward_iterator_tag);
  template <class _Integer> void __assign_dispatch(_Integer n, _Integer value, __vel::truth<true>) {
    assign(size_type(n), _T(value));
  }
  template <class _InputIter>
  void __assign_dispatch(_InputIter first, _InputIter last, __vel::truth<false>) {
    __range_assign(first, last);
  }
  template <class _InputIter> void __range_assign(_InputIter first, _InputIter last) {
    iterator out = __start;
    for (; first != last && out != __finish; ++first, ++out)
      *out = *first;
    if (first == last)
      erase(out, __finish);
    else
      for (; first != last; ++first)
        push_back(*first);
  }
};

#define __LORB_CONTAINER_HEAD template <class _T, class _Alloc>
#define __LORB_CONTAINER deque<_T, _Alloc>
#include <__lorb/container_comparisons.h>

} // namespace std

#include <__lorb/deque_members.h>

#if __cplusplus >= 201103L
namespace std {
// The library holds these instances; programs use its copies.
extern template class __LORB_EXPORT deque<int>;
extern template class __LORB_EXPORT deque<char>;
} // namespace std
#endif

#endif
