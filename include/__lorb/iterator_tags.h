// The iterator category tags and std::iterator_traits, which every iterator header shares.
#ifndef __LORB_ITERATOR_TAGS_H
#define __LORB_ITERATOR_TAGS_H

#include <cstddef>

namespace std {

struct input_iterator_tag {};
struct output_iterator_tag {};
struct forward_iterator_tag : public input_iterator_tag {};
struct bidirectional_iterator_tag : public forward_iterator_tag {};
struct random_access_iterator_tag : public bidirectional_iterator_tag {};

template <class _Iter> struct iterator_traits {
  typedef typename _Iter::iterator_category iterator_category;
  typedef typename _Iter::value_type value_type;
  typedef typename _Iter::difference_type difference_type;
  typedef typename _Iter::pointer pointer;
  typedef typename _Iter::reference reference;
};

template <class _T> struct iterator_traits<_T*> {
  typedef random_access_iterator_tag iterator_category;
  typedef _T value_type;
  typedef ptrdiff_t difference_type;
  typedef _T* pointer;
  typedef _T& reference;
};

template <class _T> struct iterator_traits<const _T*> {
  typedef random_access_iterator_tag iterator_category;
  typedef _T value_type;
  typedef ptrdiff_t difference_type;
  typedef const _T* pointer;
  typedef const _T& reference;
};

template <class _Category, class _T, class _Distance = ptrdiff_t, class _Pointer = _T*,
          class _Reference = _T&>
struct iterator {
  typedef _Category iterator_category;
  typedef _T value_type;
  typedef _Distance difference_type;
  typedef _Pointer pointer;
  typedef _Reference reference;
};

} // namespace std

#endif
