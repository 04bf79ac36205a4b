// The nodes of std::list, the relinking steps every list operation is made of, and the list's
// bidirectional iterator.
#ifndef __LORB_LIST_NODE_H
#define __LORB_LIST_NODE_H

#include <__lorb/iterator_tags.h>
#include <cstddef>

namespace __vel {

// The header node of a list is one of these, inside the list object; element nodes add the value.
struct list_node_base {
  list_node_base* __next;
  list_node_base* __prev;
};

template <class _T> struct list_node : list_node_base { _T __value; };

inline void make_empty_ring(list_node_base& header) { header.__next = header.__prev = &header; }

inline void link_before(list_node_base* position, list_node_base* node) {
  node->__next = position;
  node->__prev = position->__prev;
  position->__prev->__next = node;
  position->__prev = node;
}

inline void unlink(list_node_base* node) {
  node->__prev->__next = node->__next;
  node->__next->__prev = node->__prev;
}

// Moves the nodes [first, last) before position, from this ring or another; position must not
// lie inside [first, last).
inline void transfer(list_node_base* position, list_node_base* first, list_node_base* last) {
  if (first == last || position == last)
    return;
  list_node_base* final_node = last->__prev;
  first->__prev->__next = last;
  last->__prev = first->__prev;
  list_node_base* before = position->__prev;
  before->__next = first;
  first->__prev = before;
  final_node->__next = position;
  position->__prev = final_node;
}

// After the two headers' pointers were exchanged: the ring now hung on `header` points back to
// it, or the header closes on itself when the ring it took was empty (it pointed to `other`).
inline void adopt_ring(list_node_base& header, list_node_base& other) {
  if (header.__next == &other) {
    make_empty_ring(header);
    return;
  }
  header.__next->__prev = &header;
  header.__prev->__next = &header;
}

inline void swap_rings(list_node_base& x, list_node_base& y) {
  list_node_base held = x;
  x = y;
  y = held;
  adopt_ring(x, y);
  adopt_ring(y, x);
}

// Every node swaps its two links, the header included.
inline void reverse_ring(list_node_base& header) {
  list_node_base* node = &header;
  do {
    list_node_base* next = node->__next;
    node->__next = node->__prev;
    node->__prev = next;
    node = next;
  } while (node != &header);
}

// The std::iterator base puts namespace std among the places an unqualified call looks.
template <class _T, class _Ref, class _Ptr>
class list_iterator
    : public std::iterator<std::bidirectional_iterator_tag, _T, std::ptrdiff_t, _Ptr, _Ref> {
public:
  typedef std::bidirectional_iterator_tag iterator_category;
  typedef _T value_type;
  typedef std::ptrdiff_t difference_type;
  typedef _Ptr pointer;
  typedef _Ref reference;
  typedef list_iterator<_T, _T&, _T*> __mutable_iterator;

  list_iterator() : __node(0) {}
  explicit list_iterator(list_node_base* node) : __node(node) {}
  // The const_iterator is made and assigned from the iterator; for the iterator these two are
  // its own copy operations.
  list_iterator(const __mutable_iterator& other) : __node(other.__node) {}
  list_iterator& operator=(const __mutable_iterator& other) {
    __node = other.__node;
    return *this;
  }

  reference operator*() const { return static_cast<list_node<_T>*>(__node)->__value; }
  pointer operator->() const { return &static_cast<list_node<_T>*>(__node)->__value; }
  list_iterator& operator++() {
    __node = __node->__next;
    return *this;
  }
  list_iterator operator++(int) {
    list_iterator old = *this;
    __node = __node->__next;
    return old;
  }
  list_iterator& operator--() {
    __node = __node->__prev;
    return *this;
  }
  list_iterator operator--(int) {
    list_iterator old = *this;
    __node = __node->__prev;
    return old;
  }

  list_node_base* __node;
};

template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator==(const list_iterator<_T, _R1, _P1>& x, const list_iterator<_T, _R2, _P2>& y) {
  return x.__node == y.__node;
}
template <class _T, class _R1, class _P1, class _R2, class _P2>
inline bool operator!=(const list_iterator<_T, _R1, _P1>& x, const list_iterator<_T, _R2, _P2>& y) {
  return x.__node != y.__node;
}

} // namespace __vel

#endif
