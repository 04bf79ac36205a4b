// std::vector<bool>: bits packed 32 to a word, bit i of the vector being bit i % 32 of word i / 32.
#ifndef __LORB_VECTOR_BOOL_H
#define __LORB_VECTOR_BOOL_H

#include <__lorb/bit_iterator.h>
#include <__lorb/vector.h>

namespace std {

// Growth follows the other vectors' rule counted in bits (10 when empty, else twice the bits,
// at least size() + n), rounded up to whole words: an empty vector's first growth gives 32.
template <class _Alloc> class vector<bool, _Alloc> {
  typedef typename _Alloc::template rebind<unsigned>::other __word_allocator;

public:
  typedef bool value_type;
  typedef _Alloc allocator_type;
  typedef __vel::bit_reference reference;
  typedef bool const_reference;
  typedef __vel::bit_iterator<__vel::bit_reference> iterator;
  typedef __vel::bit_iterator<bool> const_iterator;
  typedef typename _Alloc::size_type size_type;
  typedef typename _Alloc::difference_type difference_type;
  typedef iterator::pointer pointer;
  typedef const bool* const_pointer;
  typedef std::reverse_iterator<iterator> reverse_iterator;
  typedef std::reverse_iterator<const_iterator> const_reverse_iterator;

  explicit vector(const _Alloc& = _Alloc()) : __start(), __finish(), __end_of_storage(0) {}
  explicit vector(size_type n, const bool& value = false, const _Alloc& = _Alloc())
      : __start(), __finish(), __end_of_storage(0) {
    __initialize(n);
    std::fill(__start, __finish, value);
  }
  vector(const vector& other) : __start(), __finish(), __end_of_storage(0) {
    __initialize(other.size());
    std::copy(other.begin(), other.end(), __start);
  }
  // Two integers are a count and a value.
  template <class _InputIter>
  vector(_InputIter first, _InputIter last, const _Alloc& = _Alloc())
      : __start(), __finish(), __end_of_storage(0) {
    __assign_dispatch(first, last, __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  ~vector() { __deallocate(__start.word(), __word_count()); }

  vector& operator=(const vector& other) {
    if (&other != this)
      __range_assign(other.begin(), other.end(), random_access_iterator_tag());
    return *this;
  }
  template <class _InputIter> void assign(_InputIter first, _InputIter last) {
    __assign_dispatch(first, last, __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  void assign(size_type n, const bool& value) {
    bool held = value;
    __drop_for(n);
    __finish = __start + difference_type(n);
    std::fill(__start, __finish, held);
  }
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
  // Iterator differences must fit in a difference_type.
  size_type max_size() const { return size_type(-1) >> 1; }
  void resize(size_type n, bool value = false) {
    if (n < size())
      erase(__start + difference_type(n), __finish);
    else
      __fill_insert(__finish, n - size(), value);
  }
  size_type capacity() const { return __word_count() * __vel::bits_per_word; }
  bool empty() const { return __start == __finish; }
  void reserve(size_type n) {
    if (n > max_size())
      std::length_error::__throw(__vel::length_error_message);
    if (n > capacity())
      __reallocate(n, __finish, 0);
  }

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
  const_reference front() const { return *begin(); }
  reference back() { return *(__finish - 1); }
  const_reference back() const { return *(end() - 1); }

  void push_back(const bool& value) {
    if (__finish.word() != __end_of_storage) {
      *__finish = value;
      ++__finish;
    } else {
      __fill_insert(__finish, 1, value);
    }
  }
  void pop_back() { --__finish; }
  iterator insert(iterator position, const bool& value) {
    difference_type index = position - __start;
    __fill_insert(position, 1, value);
    return __start + index;
  }
  void insert(iterator position, size_type n, const bool& value) {
    __fill_insert(position, n, value);
  }
  template <class _InputIter> void insert(iterator position, _InputIter first, _InputIter last) {
    __insert_dispatch(position, first, last,
                      __vel::truth<bool(__vel::is_integer_type<_InputIter>::value)>());
  }
  iterator erase(iterator position) {
    std::copy(position + 1, __finish, position);
    --__finish;
    return position;
  }
  iterator erase(iterator first, iterator last) {
    __finish = std::copy(last, __finish, first);
    return first;
  }
  void swap(vector& other) {
    std::swap(__start, other.__start);
    std::swap(__finish, other.__finish);
    std::swap(__end_of_storage, other.__end_of_storage);
  }
  static void swap(reference x, reference y) {
    bool held = x;
    x = y;
    y = held;
  }
  void flip() {
    for (iterator it = __start; it != __finish; ++it)
      it.bit().flip();
  }
  void clear() { __finish = __start; }

private:
  iterator __start;
  iterator __finish;
  unsigned* __end_of_storage;

  size_type __word_count() const { return size_type(__end_of_storage - __start.word()); }
  static size_type __words_for(size_type bits) {
    return (bits + __vel::bits_per_word - 1) / __vel::bits_per_word;
  }
  static unsigned* __allocate(size_type words) {
    if (words == 0)
      return 0;
    __word_allocator alloc;
    return __vel::checked_allocate(alloc, words);
  }
  static void __deallocate(unsigned* words, size_type n) {
    if (words)
      __word_allocator().deallocate(words, n);
  }
  void __check_index(size_type n) const {
    if (n >= size())
      std::out_of_range::__throw(__vel::container_out_of_range_message);
  }
  void __initialize(size_type n) {
    if (n > max_size())
      std::length_error::__throw(__vel::length_error_message);
    unsigned* words = __allocate(__words_for(n));
    __start = iterator(words, 0);
    __finish = __start + difference_type(n);
    __end_of_storage = words + __words_for(n);
  }
  size_type __grown_capacity(size_type added) const {
    size_type old_size = size();
    if (added > max_size() - old_size)
      std::length_error::__throw(__vel::length_error_message);
    size_type room = old_size == 0 ? 10 : old_size > max_size() / 2 ? max_size() : 2 * old_size;
    return room < old_size + added ? old_size + added : room;
  }
  // Moves the bits to a buffer of at least `room` bits, leaving a gap of `gap` bits at
  // `position`; returns where the gap starts.
  iterator __reallocate(size_type room, iterator position, size_type gap) {
    size_type words = __words_for(room);
    unsigned* buffer = __allocate(words);
    iterator out = std::copy(__start, position, iterator(buffer, 0));
    iterator gap_start = out;
    iterator new_finish = std::copy(position, __finish, out + difference_type(gap));
    __deallocate(__start.word(), __word_count());
    __start = iterator(buffer, 0);
    __finish = new_finish;
    __end_of_storage = buffer + words;
    return gap_start;
  }
  // Opens a gap of n bits at position, growing when there is no room; returns the gap.
  iterator __open_gap(iterator position, size_type n) {
    if (capacity() - size() >= n) {
      iterator new_finish = __finish + difference_type(n);
      std::copy_backward(position, __finish, new_finish);
      __finish = new_finish;
      return position;
    }
    return __reallocate(__grown_capacity(n), position, n);
  }
  void __fill_insert(iterator position, size_type n, bool value) {
    if (n == 0)
      return;
    iterator gap = __open_gap(position, n);
    std::fill(gap, gap + difference_type(n), value);
  }
  template <class _Integer>
  void __insert_dispatch(iterator position, _Integer n, _Integer value, __vel::truth<true>) {
    __fill_insert(position, size_type(n), bool(value));
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
  void __range_insert(iterator position, _Forward first, _Forward last, forward_iterator_tag) {
    size_type n = size_type(std::distance(first, last));
    if (n == 0)
      return;
    std::copy(first, last, __open_gap(position, n));
  }
  template <class _Integer> void __assign_dispatch(_Integer n, _Integer value, __vel::truth<true>) {
    assign(size_type(n), bool(value));
  }
  template <class _InputIter>
  void __assign_dispatch(_InputIter first, _InputIter last, __vel::truth<false>) {
    __range_assign(first, last, __vel::category_of(first));
  }
  template <class _InputIter>
  void __range_assign(_InputIter first, _InputIter last, input_iterator_tag) {
    clear();
    __range_insert(__finish, first, last, input_iterator_tag());
  }
  template <class _Forward>
  void __range_assign(_Forward first, _Forward last, forward_iterator_tag) {
    __drop_for(size_type(std::distance(first, last)));
    __finish = std::copy(first, last, __start);
  }
  // Before the vector is refilled with n bits: when they do not fit, the words go and exactly
  // the words needed are taken.
  void __drop_for(size_type n) {
    if (n <= capacity())
      return;
    __deallocate(__start.word(), __word_count());
    __start = __finish = iterator();
    __end_of_storage = 0;
    __initialize(n);
  }
};

} // namespace std

#endif
