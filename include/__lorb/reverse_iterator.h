// std::reverse_iterator: walks a bidirectional range backwards; base() is one past the element.
#ifndef __LORB_REVERSE_ITERATOR_H
#define __LORB_REVERSE_ITERATOR_H

#include <__lorb/iterator_tags.h>

namespace std {

template <class _Iter>
class reverse_iterator : public iterator<typename iterator_traits<_Iter>::iterator_category,
                                         typename iterator_traits<_Iter>::value_type,
                                         typename iterator_traits<_Iter>::difference_type,
                                         typename iterator_traits<_Iter>::pointer,
                                         typename iterator_traits<_Iter>::reference> {
protected:
  _Iter current;

public:
  typedef _Iter iterator_type;
  typedef typename iterator_traits<_Iter>::difference_type difference_type;
  typedef typename iterator_traits<_Iter>::reference reference;
  typedef typename iterator_traits<_Iter>::pointer pointer;

  reverse_iterator() : current() {}
  explicit reverse_iterator(_Iter position) : current(position) {}
  template <class _U> reverse_iterator(const reverse_iterator<_U>& other) : current(other.base()) {}

  _Iter base() const { return current; }
  reference operator*() const {
    _Iter before = current;
    return *--before;
  }
  pointer operator->() const { return &(operator*()); }

  reverse_iterator& operator++() {
    --current;
    return *this;
  }
  reverse_iterator operator++(int) {
    reverse_iterator old(*this);
    --current;
    return old;
  }
  reverse_iterator& operator--() {
    ++current;
    return *this;
  }
  reverse_iterator operator--(int) {
    reverse_iterator old(*this);
    ++current;
    return old;
  }
  reverse_iterator operator+(difference_type n) const { return reverse_iterator(current - n); }
  reverse_iterator& operator+=(difference_type n) {
    current -= n;
    return *this;
  }
  reverse_iterator operator-(difference_type n) const { return reverse_iterator(current + n); }
  reverse_iterator& operator-=(difference_type n) {
    current += n;
    return *this;
  }
  reference operator[](difference_type n) const { return *(*this + n); }
};

template <class _I1, class _I2>
inline bool operator==(const reverse_iterator<_I1>& x, const reverse_iterator<_I2>& y) {
  return x.base() == y.base();
}
template <class _I1, class _I2>
inline bool operator!=(const reverse_iterator<_I1>& x, const reverse_iterator<_I2>& y) {
  return !(x.base() == y.base());
}
template <class _I1, class _I2>
inline bool operator<(const reverse_iterator<_I1>& x, const reverse_iterator<_I2>& y) {
  return y.base() < x.base();
}
template <class _I1, class _I2>
inline bool operator>(const reverse_iterator<_I1>& x, const reverse_iterator<_I2>& y) {
  return x.base() < y.base();
}
template <class _I1, class _I2>
inline bool operator<=(const reverse_iterator<_I1>& x, const reverse_iterator<_I2>& y) {
  return !(x.base() < y.base());
}
template <class _I1, class _I2>
inline bool operator>=(const reverse_iterator<_I1>& x, const reverse_iterator<_I2>& y) {
  return !(y.base() < x.base());
}
template <class _I1, class _I2>
inline typename reverse_iterator<_I1>::difference_type operator-(const reverse_iterator<_I1>& x,
                                                                 const reverse_iterator<_I2>& y) {
  return y.base() - x.base();
}
template <class _Iter>
inline reverse_iterator<_Iter> operator+(typename reverse_iterator<_Iter>::difference_type n,
                                         const reverse_iterator<_Iter>& x) {
  return x + n;
}

} // namespace std

#endif
