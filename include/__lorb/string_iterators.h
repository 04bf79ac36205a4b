// The iterator helpers of std::string: its reverse iterator and the test that tells an integer
// pair from an iterator range in the range members.
#ifndef __LORB_STRING_ITERATORS_H
#define __LORB_STRING_ITERATORS_H

#include <__lorb/integer_type.h>
#include <cstddef>

namespace __vel {
// Walks a character array backwards; dereferencing yields the character before the position.
template <class _Pointer, class _Reference> class string_reverse_iterator {
public:
  typedef char value_type;
  typedef std::ptrdiff_t difference_type;
  typedef _Pointer pointer;
  typedef _Reference reference;

  string_reverse_iterator() : __current(0) {}
  explicit string_reverse_iterator(_Pointer position) : __current(position) {}
  // The mutable form converts to the constant one.
  template <class _P, class _R>
  string_reverse_iterator(const string_reverse_iterator<_P, _R>& other) : __current(other.base()) {}

  _Pointer base() const { return __current; }
  _Reference operator*() const { return *(__current - 1); }
  _Pointer operator->() const { return __current - 1; }
  _Reference operator[](difference_type n) const { return *(__current - n - 1); }

  string_reverse_iterator& operator++() {
    --__current;
    return *this;
  }
  string_reverse_iterator operator++(int) {
    string_reverse_iterator old(*this);
    --__current;
    return old;
  }
  string_reverse_iterator& operator--() {
    ++__current;
    return *this;
  }
  string_reverse_iterator operator--(int) {
    string_reverse_iterator old(*this);
    ++__current;
    return old;
  }
  string_reverse_iterator& operator+=(difference_type n) {
    __current -= n;
    return *this;
  }
  string_reverse_iterator& operator-=(difference_type n) {
    __current += n;
    return *this;
  }
  string_reverse_iterator operator+(difference_type n) const {
    return string_reverse_iterator(__current - n);
  }
  string_reverse_iterator operator-(difference_type n) const {
    return string_reverse_iterator(__current + n);
  }

private:
  _Pointer __current;
};

template <class _P1, class _R1, class _P2, class _R2>
inline bool operator==(const string_reverse_iterator<_P1, _R1>& a,
                       const string_reverse_iterator<_P2, _R2>& b) {
  return a.base() == b.base();
}
template <class _P1, class _R1, class _P2, class _R2>
inline bool operator!=(const string_reverse_iterator<_P1, _R1>& a,
                       const string_reverse_iterator<_P2, _R2>& b) {
  return a.base() != b.base();
}
template <class _P1, class _R1, class _P2, class _R2>
inline bool operator<(const string_reverse_iterator<_P1, _R1>& a,
                      const string_reverse_iterator<_P2, _R2>& b) {
  return b.base() < a.base();
}
template <class _P1, class _R1, class _P2, class _R2>
inline bool operator>(const string_reverse_iterator<_P1, _R1>& a,
                      const string_reverse_iterator<_P2, _R2>& b) {
  return a.base() < b.base();
}
template <class _P1, class _R1, class _P2, class _R2>
inline bool operator<=(const string_reverse_iterator<_P1, _R1>& a,
                       const string_reverse_iterator<_P2, _R2>& b) {
  return !(b.base() > a.base());
}
template <class _P1, class _R1, class _P2, class _R2>
inline bool operator>=(const string_reverse_iterator<_P1, _R1>& a,
                       const string_reverse_iterator<_P2, _R2>& b) {
  return !(a.base() > b.base());
}
template <class _P1, class _R1, class _P2, class _R2>
inline std::ptrdiff_t operator-(const string_reverse_iterator<_P1, _R1>& a,
                                const string_reverse_iterator<_P2, _R2>& b) {
  return b.base() - a.base();
}
template <class _P, class _R>
inline string_reverse_iterator<_P, _R> operator+(std::ptrdiff_t n,
                                                 const string_reverse_iterator<_P, _R>& i) {
  return i + n;
}

// Members taking a string iterator are templates that accept exactly char*: a literal 0 given as
// a position then never converts to a null iterator and makes the call ambiguous.
template <class _Iter, class _Result> struct string_iterator_only {};
template <class _Result> struct string_iterator_only<char*, _Result> { typedef _Result type; };

// Tag types for the range members: an integer pair means (count, character).
struct string_integer_args {};
struct string_iterator_args {};

template <bool _Integer> struct string_argument_kind { typedef string_iterator_args kind; };
template <> struct string_argument_kind<true> { typedef string_integer_args kind; };
template <class _T>
struct string_arguments : string_argument_kind<bool(is_integer_type<_T>::value)> {};
} // namespace __vel

#endif
