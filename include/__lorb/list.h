// std::list: a doubly linked ring of nodes around a header node held in the list, with a counted
// size; splice, merge, unique, remove, reverse and sort are in list_members.h.
#ifndef __LORB_LIST_H
#define __LORB_LIST_H

#include <__lorb/algobase.h>
#include <__lorb/allocator.h>
#include <__lorb/checked_allocate.h>
#include <__lorb/config.h>
#include <__lorb/function_base.h>
#include <__lorb/integer_type.h>
#include <__lorb/iterator_ops.h>
#include <__lorb/list_node.h>
#include <__lorb/reverse_iterator.h>
#include <__lorb/uninitialized.h>
#include <cstddef>

namespace std {

// Node fields: next, prev, then the value. Every operation that moves elements between
// positions or lists (splice, merge, unique, remove, reverse, sort) relinks nodes and never
// copies an element. Allocators of one type are interchangeable (C++98 lets containers assume
// so), so none is stored.
// clang-format off
template <class _T, class _Alloc = allocator<_T> >
class __LORB_EXPORT list {
  // clang-format on
  typedef __vel::list_node<_T> __node;
  typedef typename _Alloc::template rebind<__node>::other __node_allocator;

public:
  typedef _T value_type;
  typedef _Alloc allocator_type;
  typedef typename _Alloc::reference reference;
  typedef typename _Alloc::const_reference const_reference;
  typedef typename _Alloc::pointer pointer;
  typedef typename _Alloc::const_pointer const_pointer;
  typedef typename _Alloc::size_type size_type;
  typedef typename _Alloc::difference_type difference_type;
  typedef __vel::list_iterator<_T, _T&, _T*> iterator;
  typedef __vel::list_iterator<_T, const _T&, const _T*> const_iterator;
  typedef std::reverse_iterator<iterator> reverse_iterator;
  typedef std::reverse_iterator<const_iterator> const_reverse_iterator;

  explicit list(const _Alloc& = _Alloc()) : __size(0) { __vel::make_empty_ring(__header); }
  explicit list(size_type n, const _T& value = _T(), const _Alloc& = _Alloc()) : __size(0) {
    __vel::make_empty_ring(__header);
    insert(end(), n, value);
  }
  list(const list& other) : __size(0) {
    __vel::make_empty_ring(__header);
    insert(end(), other.begin(), other.end());
  }
  // Two integers are a count and a value.
  template <class _InputIter>
  list(_InputIter first, _InputIter last, const _Alloc& = _Alloc()) : __size(0) {
    __vel::make_empty_ring(__header);
    insert(end(), first, last);
  }
  ~list() { clear(); }

  list& operator=(const list& other) {
    if (&other != this)
      __range_assign(other.begin(), other.end());
    return *this;
  }
  template <class _InputIter> void assign(_InputIter first, _InputIter last) {
    __assign_dispatch(first, last, __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  void assign(size_type n, const _T& value);
  allocator_type get_allocator() const { return allocator_type(); }

  iterator begin() { return iterator(__header.__next); }
  const_iterator begin() const { return const_iterator(__header.__next); }
  iterator end() { return iterator(&__header); }
  const_iterator end() const {
    return const_iterator(const_cast<__vel::list_node_base*>(&__header));
  }
  reverse_iterator rbegin() { return reverse_iterator(end()); }
  const_reverse_iterator rbegin() const { return const_reverse_iterator(end()); }
  reverse_iterator rend() { return reverse_iterator(begin()); }
  const_reverse_iterator rend() const { return const_reverse_iterator(begin()); }

  bool empty() const { return __size == 0; }
  size_type size() const { return __size; }
  size_type max_size() const { return __node_allocator().max_size(); }
  void resize(size_type n, _T value = _T());

  reference front() { return *begin(); }
  const_reference front() const { return *begin(); }
  reference back() { return *--end(); }
  const_reference back() const { return *--end(); }

  void push_front(const _T& value) { insert(begin(), value); }
  void pop_front() { erase(begin()); }
  void push_back(const _T& value) { insert(end(), value); }
  void pop_back() { erase(--end()); }

  iterator insert(iterator position, const _T& value) {
    __node* node = __create_node(value);
    __vel::link_before(position.__node, node);
    ++__size;
    return iterator(node);
  }
  void insert(iterator position, size_type n, const _T& value) {
    for (; n > 0; --n)
      insert(position, value);
  }
  template <class _InputIter> void insert(iterator position, _InputIter first, _InputIter last) {
    __insert_dispatch(position, first, last,
                      __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  iterator erase(iterator position) {
    __vel::list_node_base* next = position.__node->__next;
    __vel::unlink(position.__node);
    __destroy_node(static_cast<__node*>(position.__node));
    --__size;
    return iterator(next);
  }
  iterator erase(iterator first, iterator last) {
    while (first != last)
      first = erase(first);
    return last;
  }
  void swap(list& other) {
    __vel::swap_rings(__header, other.__header);
    std::swap(__size, other.__size);
  }
  void clear() { erase(begin(), end()); }

  void splice(iterator position, list& other);
  void splice(iterator position, list& other, iterator i);
  void splice(iterator position, list& other, iterator first, iterator last);
  void remove(const _T& value);
  template <class _Predicate> void remove_if(_Predicate pred);
  void unique() { unique(equal_to<_T>()); }
  template <class _BinaryPredicate> void unique(_BinaryPredicate same);
  void merge(list& other) { merge(other, less<_T>()); }
  template <class _Compare> void merge(list& other, _Compare comp);
  void sort() { sort(less<_T>()); }
  template <class _Compare> void sort(_Compare comp);
  void reverse() { __vel::reverse_ring(__header); }

private:
  __vel::list_node_base __header;
  size_type __size;

  static __node* __create_node(const _T& value) {
    __node_allocator alloc;
    __node* node = __vel::checked_allocate(alloc, 1);
    __vel::construct_at(&node->__value, value);
    return node;
  }
  static void __destroy_node(__node* node) {
    __vel::destroy_at(&node->__value);
    __node_allocator().deallocate(node, 1);
  }
  // What sort's array of lists is built and destroyed with.
  static void __construct_bin(void* place) { ::new (place) list(); }
  static void __destroy_bin(void* bin, int) { static_cast<list*>(bin)->~list(); }

  template <class _Integer>
  void __insert_dispatch(iterator position, _Integer n, _Integer value, __vel::truth<true>) {
    insert(position, size_type(n), _T(value));
  }
  template <class _InputIter>
  void __insert_dispatch(iterator position, _InputIter first, _InputIter last,
                         __vel::truth<false>) {
    for (; first != last; ++first)
      insert(position, *first);
  }
  template <class _Integer> void __assign_dispatch(_Integer n, _Integer value, __vel::truth<true>) {
    assign(size_type(n), _T(value));
  }
  template <class _InputIter>
  void __assign_dispatch(_InputIter first, _InputIter last, __vel::truth<false>) {
    __range_assign(first, last);
  }
  template <class _InputIter> void __range_assign(_InputIter first, _InputIter last) {
    iterator out = begin();
    for (; first != last && out != end(); ++first, ++out)
      *out = *first;
    if (first == last)
      erase(out, end());
    else
      insert(end(), first, last);
  }
};

#define __LORB_CONTAINER_HEAD template <class _T, class _Alloc>
#define __LORB_CONTAINER list<_T, _Alloc>
#include <__lorb/container_comparisons.h>

} // namespace std

#include <__lorb/list_members.h>

#if __cplusplus >= 201103L
namespace std {
// The library holds these instances; programs use its copies.
extern template class __LORB_EXPORT list<int>;
extern template class __LORB_EXPORT list<char>;
} // namespace std
#endif

#endif
