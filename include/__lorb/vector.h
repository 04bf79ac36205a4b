// std::vector: the elements in one buffer held as three pointers (start, finish, end of storage);
// the members that grow or refill the buffer are in vector_members.h.
#ifndef __LORB_VECTOR_H
#define __LORB_VECTOR_H

#include <__lorb/algobase.h>
#include <__lorb/allocator.h>
#include <__lorb/checked_allocate.h>
#include <__lorb/config.h>
#include <__lorb/error.h>
#include <__lorb/integer_type.h>
#include <__lorb/iterator_ops.h>
#include <__lorb/reverse_iterator.h>
#include <__lorb/uninitialized.h>
#include <cstddef>
#include <stdexcept>

namespace std {

// Allocators of one type are interchangeable (C++98 lets containers assume so), so none is
// stored: the vector is exactly its three pointers. An empty vector that never grew holds no
// buffer. Growth by one element (insert_aux) takes 10 elements when empty, else twice the
// number of elements; growth by n at once takes the larger of that and size() + n. Constructors,
// assign, operator= and reserve take exactly the room they need.
// clang-format off
template <class _T, class _Alloc = allocator<_T> >
class __LORB_EXPORT vector {
  // clang-format on
public:
  typedef _T value_type;
  typedef _Alloc allocator_type;
  typedef typename _Alloc::reference reference;
  typedef typename _Alloc::const_reference const_reference;
  typedef typename _Alloc::pointer pointer;
  typedef typename _Alloc::const_pointer const_pointer;
  typedef typename _Alloc::size_type size_type;
  typedef typename _Alloc::difference_type difference_type;
  typedef _T* iterator;
  typedef const _T* const_iterator;
  typedef std::reverse_iterator<iterator> reverse_iterator;
  typedef std::reverse_iterator<const_iterator> const_reverse_iterator;

  explicit vector(const _Alloc& = _Alloc()) : __start(0), __finish(0), __end_of_storage(0) {}
  explicit vector(size_type n, const _T& value = _T(), const _Alloc& = _Alloc())
      : __start(0), __finish(0), __end_of_storage(0) {
    __fill_initialize(n, value);
  }
  vector(const vector& other) : __start(0), __finish(0), __end_of_storage(0) {
    __copy_initialize(other.__start, other.__finish);
  }
  // Two integers are a count and a value.
  template <class _InputIter>
  vector(_InputIter first, _InputIter last, const _Alloc& = _Alloc())
      : __start(0), __finish(0), __end_of_storage(0) {
    __initialize_dispatch(first, last,
                          __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  ~vector() { __release(); }

  vector& operator=(const vector& other);
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
  void resize(size_type n, _T value = _T());
  size_type capacity() const { return size_type(__end_of_storage - __start); }
  bool empty() const { return __start == __finish; }
  void reserve(size_type n);

  reference operator[](size_type n) { return __start[n]; }
  const_reference operator[](size_type n) const { return __start[n]; }
  reference at(size_type n) {
    __check_index(n);
    return __start[n];
  }
  const_reference at(size_type n) const {
    __check_index(n);
    return __start[n];
  }
  reference front() { return *__start; }
  const_reference front() const { return *__start; }
  reference back() { return __finish[-1]; }
  const_reference back() const { return __finish[-1]; }

  void push_back(const _T& value) {
    if (__finish != __end_of_storage) {
      __vel::construct_at(__finish, value);
      ++__finish;
    } else {
      insert_aux(__finish, value);
    }
  }
  void pop_back() {
    --__finish;
    __vel::destroy_at(__finish);
  }
  iterator insert(iterator position, const _T& value) {
    size_type index = size_type(position - __start);
    if (position == __finish && __finish != __end_of_storage) {
      __vel::construct_at(__finish, value);
      ++__finish;
    } else {
      insert_aux(position, value);
    }
    return __start + index;
  }
  void insert(iterator position, size_type n, const _T& value) {
    __fill_insert(position, n, value);
  }
  template <class _InputIter> void insert(iterator position, _InputIter first, _InputIter last) {
    __insert_dispatch(position, first, last,
                      __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  iterator erase(iterator position) {
    std::copy(position + 1, __finish, position);
    pop_back();
    return position;
  }
  iterator erase(iterator first, iterator last) {
    iterator kept_end = std::copy(last, __finish, first);
    __vel::destroy_range(kept_end, __finish);
    __finish = kept_end;
    return first;
  }
  void swap(vector& other) {
    std::swap(__start, other.__start);
    std::swap(__finish, other.__finish);
    std::swap(__end_of_storage, other.__end_of_storage);
  }
  void clear() { erase(__start, __finish); }

private:
  _T* __start;
  _T* __finish;
  _T* __end_of_storage;

  static _T* __allocate(size_type n) {
    if (n == 0)
      return 0;
    _Alloc alloc;
    return __vel::checked_allocate(alloc, n);
  }
  static void __deallocate(_T* buffer, size_type n) {
    if (buffer)
      _Alloc().deallocate(buffer, n);
  }
  void __check_index(size_type n) const {
    if (n >= size())
      std::out_of_range::__throw(__vel::container_out_of_range_message);
  }
  void __check_length(size_type n) const {
    if (n > max_size())
      std::length_error::__throw(__vel::length_error_message);
  }
  // Destroys the elements and gives the buffer back, leaving the pointers dangling.
  void __release() {
    __vel::destroy_range(__start, __finish);
    __deallocate(__start, capacity());
  }
  // Makes a fresh buffer of exactly `room` elements the vector's own, keeping `count` elements.
  void __adopt(_T* buffer, size_type count, size_type room) {
    __release();
    __start = buffer;
    __finish = buffer + count;
    __end_of_storage = buffer + room;
  }
  size_type __grown_capacity(size_type added) const;

  void insert_aux(iterator position, const _T& value);
  void __fill_insert(iterator position, size_type n, const _T& value);
  template <class _InputIter>
  void __range_insert(iterator position, _InputIter first, _InputIter last, input_iterator_tag) {
    for (; first != last; ++first, ++position)
      position = insert(position, *first);
  }
  template <class _Forward>
  void __range_insert(iterator position, _Forward first, _Forward last, forward_iterator_tag);
  template <class _Integer>
  void __insert_dispatch(iterator position, _Integer n, _Integer value, __vel::truth<true>) {
    __fill_insert(position, size_type(n), _T(value));
  }
  template <class _InputIter>
  void __insert_dispatch(iterator position, _InputIter first, _InputIter last,
                         __vel::truth<false>) {
    __range_insert(position, first, last, __vel::category_of(first));
  }

  void __fill_initialize(size_type n, const _T& value) {
    __check_length(n);
    __start = __allocate(n);
    __end_of_storage = __start + n;
    std::uninitialized_fill_n(__start, n, value);
    __finish = __end_of_storage;
  }
  template <class _Forward> void __copy_initialize(_Forward first, _Forward last) {
    size_type n = size_type(std::distance(first, last));
    __check_length(n);
    __start = __allocate(n);
    __end_of_storage = __start + n;
    __finish = std::uninitialized_copy(first, last, __start);
  }
  template <class _Integer>
  void __initialize_dispatch(_Integer n, _Integer value, __vel::truth<true>) {
    __fill_initialize(size_type(n), _T(value));
  }
  template <class _InputIter>
  void __initialize_dispatch(_InputIter first, _InputIter last, __vel::truth<false>) {
    __range_initialize(first, last, __vel::category_of(first));
  }
  template <class _InputIter>
  void __range_initialize(_InputIter first, _InputIter last, input_iterator_tag) {
    for (; first != last; ++first)
      push_back(*first);
  }
  template <class _Forward>
  void __range_initialize(_Forward first, _Forward last, forward_iterator_tag) {
    __copy_initialize(first, last);
  }

  template <class _Integer> void __assign_dispatch(_Integer n, _Integer value, __vel::truth<true>) {
    assign(size_type(n), _T(value));
  }
  template <class _InputIter>
  void __assign_dispatch(_InputIter first, _InputIter last, __vel::truth<false>) {
    __range_assign(first, last, __vel::category_of(first));
  }
  template <class _InputIter>
  void __range_assign(_InputIter first, _InputIter last, input_iterator_tag);
  template <class _Forward>
  void __range_assign(_Forward first, _Forward last, forward_iterator_tag);
};

#define __LORB_CONTAINER_HEAD template <class _T, class _Alloc>
#define __LORB_CONTAINER vector<_T, _Alloc>
#include <__lorb/container_comparisons.h>

} // namespace std

#include <__lorb/vector_members.h>

#if __cplusplus >= 201103L
#include <__lorb/locale_core.h>
namespace std {
// The library holds these instances; programs use its copies.
extern template class __LORB_EXPORT vector<void*>;
extern template class __LORB_EXPORT vector<long>;
extern template class __LORB_EXPORT vector<char>;
extern template class __LORB_EXPORT vector<locale::facet*>;
} // namespace std
#endif

#endif
