// The random-access iterator of std::deque: an element pointer, the bounds of its block and the
// map slot that holds the block.
#ifndef __LORB_DEQUE_ITERATOR_H
#define __LORB_DEQUE_ITERATOR_H

#include <__lorb/iterator_tags.h>
#include <cstddef>

namespace __vel {

// Every block holds this many elements, whatever their size.
enum { deque_block_elements = 20 };

// A default iterator is all null: the begin and the end of a deque that holds no map.
// The std::iterator base puts namespace std among the places an unqualified call looks.
template <class _T, class _Ref, class _Ptr>
class deque_iterator
    : public std::iterator<std::random_access_iterator_tag, _T, std::ptrdiff_t, _Ptr, _Ref> {
public:
  typedef std::random_access_iterator_tag iterator_category;
  typedef _T value_type;
  typedef std::ptrdiff_t difference_type;
  typedef _Ptr pointer;
  typedef _Ref reference;
  typedef deque_iterator<_T, _T&, _T*> __mutable_iterator;

  deque_iterator() : __cur(0), __first(0), __last(0), __node(0) {}
  deque_iterator(_T* cur, _T** node)
      : __cur(cur), __first(*node), __last(*node + deque_block_elements), __node(node) {}
  // The const_iterator is made and assigned from the iterator; for the iterator these two are
  // its own copy operations.
  deque_iterator(const __mutable_iterator& other)
      : __cur(other.__cur), __first(other.__first), __last(other.__last), __node(other.__node) {}
  deque_iterator& operator=(const __mutable_iterator& other) {
    __cur = other.__cur;
    __first = other.__first;
    __last = other.__last;
    __node = other.__node;
    return *this;
  }

  reference operator*() const { return *__cur; }
  pointer operator->() const { return __cur; }
  reference operator[](difference_type n) const { return *(*this + n); }

  deque_iterator& operator++() {
    if (++__cur == __last) {
      __set_node(__node + 1);
      __cur = __first;
    }
    return *this;
  }
  deque_iterator operator++(int) {
    deque_iterator old = *this;
    ++*this;
    return old;
  }
  deque_iterator& operator--() {
    if (__cur == __first) {
      __set_node(__node - 1);
      __cur = __last;
    }
    --__cur;
    return *this;
  }
  deque_iterator operator--(int) {
    deque_iterator old = *this;
    --*this;
    return old;
  }
  deque_iterator& operator+=(difference_type n) {
    difference_type offset = n + (__cur - __first);
    if (offset >= 0 && offset < difference_type(deque_block_elements)) {
      __cur += n;
      return *this;
    }
    difference_type blocks =
        offset > 0 ? offset / deque_block_elements : -((-offset - 1) / deque_block_elements) - 1;
    __set_node(__node + blocks);
    __cur = __first + (offset - blocks * deque_block_elements);
    return *this;
  }
  deque_iterator& operator-=(difference_type n) { return *this += -n; }
  deque_iterator operator+(difference_type n) const {
    deque_iterator moved = *this;
    return moved += n;
  }
  deque_iterator operator-(difference_type n) const {
    deque_iterator moved = *this;
    return moved -= n;
  }
  friend deque_iterator operator+(difference_type n, const deque_iterator& it) { return it + n; }

  void __set_node(_T** node) {
    __node = node;
    __first = *node;
    __last = __first + deque_block_elements;
  }

  _T* __cur;
  _T* __first;
  _T* __last;
  _T** __node;
};

// Written so that two null iterators are 0 apart.
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline std::ptrdiff_t operator-(const deque_iterator<_T, _R1, _P1>& x,
                                const deque_iterator<_T, _R2, _P2>& y) {
  return std::ptrdiff_t(deque_block_elements) * (x.__node - y.__node) + (x.__cur - x.__first) -
         (y.__cur - y.__first);
}
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator==(const deque_iterator<_T, _R1, _P1>& x,
                       const deque_iterator<_T, _R2, _P2>& y) {
  return x.__cur == y.__cur;
}
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator!=(const deque_iterator<_T, _R1, _P1>& x,
                       const deque_iterator<_T, _R2, _P2>& y) {
  return x.__cur != y.__cur;
}
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator<(const deque_iterator<_T, _R1, _P1>& x,
                      const deque_iterator<_T, _R2, _P2>& y) {
  return x.__node == y.__node ? x.__cur < y.__cur : x.__node < y.__node;
}
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator>(const deque_iterator<_T, _R1, _P1>& x,
                      const deque_iterator<_T, _R2, _P2>& y) {
  return y < x;
}
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator<=(const deque_iterator<_T, _R1, _P1>& x,
                       const deque_iterator<_T, _R2, _P2>& y) {
  return !(y < x);
}
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator>=(const deque_iterator<_T, _R1, _P1>& x,
                       const deque_iterator<_T, _R2, _P2>& y) {
  return !(x < y);
}

} // namespace __vel

#endif
