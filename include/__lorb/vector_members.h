// std::vector's members that grow, refill or copy the buffer: insert_aux and the growth rule,
// the many-element inserts, reserve, assign and assignment.
#ifndef __LORB_VECTOR_MEMBERS_H
#define __LORB_VECTOR_MEMBERS_H

#include <__lorb/vector.h>

namespace std {

// 10 elements when empty, else twice the elements; never less than size() + added.
template <class _T, class _Alloc>
typename vector<_T, _Alloc>::size_type vector<_T, _Alloc>::__grown_capacity(size_type added) const {
  size_type old_size = size();
  if (added > max_size() - old_size)
    std::length_error::__throw(__vel::length_error_message);
  size_type room = old_size == 0 ? 10 : old_size > max_size() / 2 ? max_size() : 2 * old_size;
  return room < old_size + added ? old_size + added : room;
}

template <class _T, class _Alloc>
void vector<_T, _Alloc>::insert_aux(iterator position, const _T& value) {
  if (__finish != __end_of_storage) {
    if (position == __finish) {
      __vel::construct_at(__finish, value);
      ++__finish;
      return;
    }
    // Room left: the tail moves up one place, from the end down. value may be one of the
    // elements that move, so it is copied first.
    _T held = value;
    __vel::construct_at(__finish, __finish[-1]);
    ++__finish;
    std::copy_backward(position, __finish - 2, __finish - 1);
    *position = held;
    return;
  }
  size_type room = __grown_capacity(1);
  _T* buffer = __allocate(room);
  _T* out = std::uninitialized_copy(__start, position, buffer);
  __vel::construct_at(out, value);
  out = std::uninitialized_copy(position, __finish, out + 1);
  __adopt(buffer, size_type(out - buffer), room);
}

template <class _T, class _Alloc>
void vector<_T, _Alloc>::__fill_insert(iterator position, size_type n, const _T& value) {
  if (n == 0)
    return;
  if (size_type(__end_of_storage - __finish) >= n) {
    _T held = value;
    _T* old_finish = __finish;
    size_type after = size_type(old_finish - position);
    if (after > n) {
      std::uninitialized_copy(old_finish - n, old_finish, old_finish);
      __finish += n;
      std::copy_backward(position, old_finish - n, old_finish);
      std::fill(position, position + n, held);
    } else {
      std::uninitialized_fill_n(old_finish, n - after, held);
      __finish += n - after;
      std::uninitialized_copy(position, old_finish, __finish);
      __finish += after;
      std::fill(position, old_finish, held);
    }
    return;
  }
  size_type room = __grown_capacity(n);
  _T* buffer = __allocate(room);
  _T* out = std::uninitialized_copy(__start, position, buffer);
  std::uninitialized_fill_n(out, n, value);
  out = std::uninitialized_copy(position, __finish, out + n);
  __adopt(buffer, size_type(out - buffer), room);
}

template <class _T, class _Alloc>
template <class _Forward>
void vector<_T, _Alloc>::__range_insert(iterator position, _Forward first, _Forward last,
                                        forward_iterator_tag) {
  size_type n = size_type(std::distance(first, last));
  if (n == 0)
    return;
  if (size_type(__end_of_storage - __finish) >= n) {
    _T* old_finish = __finish;
    size_type after = size_type(old_finish - position);
    if (after > n) {
      std::uninitialized_copy(old_finish - n, old_finish, old_finish);
      __finish += n;
      std::copy_backward(position, old_finish - n, old_finish);
      std::copy(first, last, position);
    } else {
      _Forward middle = first;
      std::advance(middle, after);
      std::uninitialized_copy(middle, last, old_finish);
      __finish += n - after;
      std::uninitialized_copy(position, old_finish, __finish);
      __finish += after;
      std::copy(first, middle, position);
    }
    return;
  }
  size_type room = __grown_capacity(n);
  _T* buffer = __allocate(room);
  _T* out = std::uninitialized_copy(__start, position, buffer);
  out = std::uninitialized_copy(first, last, out);
  out = std::uninitialized_copy(position, __finish, out);
  __adopt(buffer, size_type(out - buffer), room);
}

template <class _T, class _Alloc> void vector<_T, _Alloc>::reserve(size_type n) {
  __check_length(n);
  if (n <= capacity())
    return;
  _T* buffer = __allocate(n);
  _T* out = std::uninitialized_copy(__start, __finish, buffer);
  __adopt(buffer, size_type(out - buffer), n);
}

template <class _T, class _Alloc> void vector<_T, _Alloc>::resize(size_type n, _T value) {
  if (n < size())
    erase(__start + n, __finish);
  else
    __fill_insert(__finish, n - size(), value);
}

template <class _T, class _Alloc>
vector<_T, _Alloc>& vector<_T, _Alloc>::operator=(const vector& other) {
  if (&other != this)
    __range_assign(other.__start, other.__finish, random_access_iterator_tag());
  return *this;
}

template <class _T, class _Alloc> void vector<_T, _Alloc>::assign(size_type n, const _T& value) {
  if (n > capacity()) {
    __check_length(n);
    // Filled before the old buffer goes: value may be one of its elements.
    _T* buffer = __allocate(n);
    std::uninitialized_fill_n(buffer, n, value);
    __adopt(buffer, n, n);
  } else if (n > size()) {
    std::fill(__start, __finish, value);
    std::uninitialized_fill_n(__finish, n - size(), value);
    __finish = __start + n;
  } else {
    std::fill_n(__start, n, value);
    erase(__start + n, __finish);
  }
}

template <class _T, class _Alloc>
template <class _InputIter>
void vector<_T, _Alloc>::__range_assign(_InputIter first, _InputIter last, input_iterator_tag) {
  iterator out = __start;
  for (; first != last && out != __finish; ++first, ++out)
    *out = *first;
  if (first == last)
    erase(out, __finish);
  else
    __range_insert(__finish, first, last, input_iterator_tag());
}

template <class _T, class _Alloc>
template <class _Forward>
void vector<_T, _Alloc>::__range_assign(_Forward first, _Forward last, forward_iterator_tag) {
  size_type n = size_type(std::distance(first, last));
  if (n > capacity()) {
    __check_length(n);
    _T* buffer = __allocate(n);
    std::uninitialized_copy(first, last, buffer);
    __adopt(buffer, n, n);
  } else if (size() >= n) {
    erase(std::copy(first, last, __start), __finish);
  } else {
    _Forward middle = first;
    std::advance(middle, size());
    std::copy(first, middle, __start);
    __finish = std::uninitialized_copy(middle, last, __finish);
  }
}

} // namespace std

#endif
