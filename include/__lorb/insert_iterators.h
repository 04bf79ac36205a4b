// The insert iterators: output iterators whose assignments add elements to a container at its
// back, at its front, or before a position.
#ifndef __LORB_INSERT_ITERATORS_H
#define __LORB_INSERT_ITERATORS_H

#include <__lorb/iterator_tags.h>

namespace std {

template <class _Container>
class back_insert_iterator : public iterator<output_iterator_tag, void, void, void, void> {
protected:
  _Container* container;

public:
  typedef _Container container_type;

  explicit back_insert_iterator(_Container& x) : container(&x) {}
  back_insert_iterator& operator=(const typename _Container::value_type& value) {
    container->push_back(value);
    return *this;
  }
  back_insert_iterator& operator*() { return *this; }
  back_insert_iterator& operator++() { return *this; }
  back_insert_iterator operator++(int) { return *this; }
};

template <class _Container> inline back_insert_iterator<_Container> back_inserter(_Container& x) {
  return back_insert_iterator<_Container>(x);
}

template <class _Container>
class front_insert_iterator : public iterator<output_iterator_tag, void, void, void, void> {
protected:
  _Container* container;

public:
  typedef _Container container_type;

  explicit front_insert_iterator(_Container& x) : container(&x) {}
  front_insert_iterator& operator=(const typename _Container::value_type& value) {
    container->push_front(value);
    return *this;
  }
  front_insert_iterator& operator*() { return *this; }
  front_insert_iterator& operator++() { return *this; }
  front_insert_iterator operator++(int) { return *this; }
};

template <class _Container> inline front_insert_iterator<_Container> front_inserter(_Container& x) {
  return front_insert_iterator<_Container>(x);
}

// Each assignment inserts before iter and moves iter past the new element, so a sequence of
// assignments keeps its order.
template <class _Container>
class insert_iterator : public iterator<output_iterator_tag, void, void, void, void> {
protected:
  _Container* container;
  typename _Container::iterator iter;

public:
  typedef _Container container_type;

  insert_iterator(_Container& x, typename _Container::iterator i) : container(&x), iter(i) {}
  insert_iterator& operator=(const typename _Container::value_type& value) {
    iter = container->insert(iter, value);
    ++iter;
    return *this;
  }
  insert_iterator& operator*() { return *this; }
  insert_iterator& operator++() { return *this; }
  insert_iterator& operator++(int) { return *this; }
};

template <class _Container, class _Iter>
inline insert_iterator<_Container> inserter(_Container& x, _Iter i) {
  return insert_iterator<_Container>(x, typename _Container::iterator(i));
}

} // namespace std

#endif
