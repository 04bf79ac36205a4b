// std::queue, first in, first out over a deque, and std::priority_queue, a heap kept in a vector
// by push_heap and pop_heap.
#ifndef __LORB_QUEUE_H
#define __LORB_QUEUE_H

#include <__lorb/deque.h>
#include <__lorb/function_base.h>
#include <__lorb/heap.h>
#include <__lorb/vector.h>

namespace std {

// clang-format off
template <class _T, class _Container = deque<_T> >
class queue {
  // clang-format on
  template <class _U, class _C>
  friend bool operator==(const queue<_U, _C>& x, const queue<_U, _C>& y);
  template <class _U, class _C>
  friend bool operator<(const queue<_U, _C>& x, const queue<_U, _C>& y);

public:
  typedef typename _Container::value_type value_type;
  typedef typename _Container::size_type size_type;
  typedef _Container container_type;

  explicit queue(const _Container& container = _Container()) : c(container) {}

  bool empty() const { return c.empty(); }
  size_type size() const { return c.size(); }
  value_type& front() { return c.front(); }
  const value_type& front() const { return c.front(); }
  value_type& back() { return c.back(); }
  const value_type& back() const { return c.back(); }
  void push(const value_type& value) { c.push_back(value); }
  void pop() { c.pop_front(); }

protected:
  _Container c;
};

template <class _T, class _Container>
inline bool operator==(const queue<_T, _Container>& x, const queue<_T, _Container>& y) {
  return x.c == y.c;
}
template <class _T, class _Container>
inline bool operator<(const queue<_T, _Container>& x, const queue<_T, _Container>& y) {
  return x.c < y.c;
}
template <class _T, class _Container>
inline bool operator!=(const queue<_T, _Container>& x, const queue<_T, _Container>& y) {
  return !(x == y);
}
template <class _T, class _Container>
inline bool operator>(const queue<_T, _Container>& x, const queue<_T, _Container>& y) {
  return y < x;
}
template <class _T, class _Container>
inline bool operator<=(const queue<_T, _Container>& x, const queue<_T, _Container>& y) {
  return !(y < x);
}
template <class _T, class _Container>
inline bool operator>=(const queue<_T, _Container>& x, const queue<_T, _Container>& y) {
  return !(x < y);
}

// top() is the greatest element by the comparison; c is kept a heap at every step.
// clang-format off
template <class _T, class _Container = vector<_T>,
          class _Compare = less<typename _Container::value_type> >
class priority_queue {
  // clang-format on
public:
  typedef typename _Container::value_type value_type;
  typedef typename _Container::size_type size_type;
  typedef _Container container_type;

  explicit priority_queue(const _Compare& compare = _Compare(),
                          const _Container& container = _Container())
      : c(container), comp(compare) {
    std::make_heap(c.begin(), c.end(), comp);
  }
  template <class _InputIter>
  priority_queue(_InputIter first, _InputIter last, const _Compare& compare = _Compare(),
                 const _Container& container = _Container())
      : c(container), comp(compare) {
    c.insert(c.end(), first, last);
    std::make_heap(c.begin(), c.end(), comp);
  }

  bool empty() const { return c.empty(); }
  size_type size() const { return c.size(); }
  const value_type& top() const { return c.front(); }
  void push(const value_type& value) {
    c.push_back(value);
    std::push_heap(c.begin(), c.end(), comp);
  }
  void pop() {
    std::pop_heap(c.begin(), c.end(), comp);
    c.pop_back();
  }

protected:
  _Container c;
  _Compare comp;
};

} // namespace std

#endif
