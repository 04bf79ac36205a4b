// std::stack: last in, first out, over a container's back (a deque unless another is given).
#ifndef __LORB_STACK_H
#define __LORB_STACK_H

#include <__lorb/deque.h>

namespace std {

// clang-format off
template <class _T, class _Container = deque<_T> >
class stack {
  // clang-format on
  template <class _U, class _C>
  friend bool operator==(const stack<_U, _C>& x, const stack<_U, _C>& y);
  template <class _U, class _C>
  friend bool operator<(const stack<_U, _C>& x, const stack<_U, _C>& y);

public:
  typedef typename _Container::value_type value_type;
  typedef typename _Container::size_type size_type;
  typedef _Container container_type;

  explicit stack(const _Container& container = _Container()) : c(container) {}

  bool empty() const { return c.empty(); }
  size_type size() const { return c.size(); }
  value_type& top() { return c.back(); }
  const value_type& top() const { return c.back(); }
  void push(const value_type& value) { c.push_back(value); }
  void pop() { c.pop_back(); }

protected:
  _Container c;
};

template <class _T, class _Container>
inline bool operator==(const stack<_T, _Container>& x, const stack<_T, _Container>& y) {
  return x.c == y.c;
}
template <class _T, class _Container>
inline bool operator<(const stack<_T, _Container>& x, const stack<_T, _Container>& y) {
  return x.c < y.c;
}
template <class _T, class _Container>
inline bool operator!=(const stack<_T, _Container>& x, const stack<_T, _Container>& y) {
  return !(x == y);
}
template <class _T, class _Container>
inline bool operator>(const stack<_T, _Container>& x, const stack<_T, _Container>& y) {
  return y < x;
}
template <class _T, class _Container>
inline bool operator<=(const stack<_T, _Container>& x, const stack<_T, _Container>& y) {
  return !(y < x);
}
template <class _T, class _Container>
inline bool operator>=(const stack<_T, _Container>& x, const stack<_T, _Container>& y) {
  return !(x < y);
}

} // namespace std

#endif
