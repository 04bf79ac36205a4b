// The typed tree's node and its bidirectional iterators, which step through the tree core.
#ifndef __LORB_RB_TREE_ITERATOR_H
#define __LORB_RB_TREE_ITERATOR_H

#include <__lorb/iterator_tags.h>
#include <__lorb/rb_tree_base.h>
#include <cstddef>

namespace __vel {

// Only the links are ever built as a whole; the value is constructed in place on its own, and
// the header node never gets one.
template <class _Value> struct rb_tree_node : rb_tree_node_base { _Value value; };

// What both iterator kinds share: the node (the header for end()) and the steps.
struct rb_tree_iterator_base {
  rb_tree_node_base* node;

  explicit rb_tree_iterator_base(const rb_tree_node_base* x)
      : node(const_cast<rb_tree_node_base*>(x)) {}
  void forward() { node = rb_tree_base::__next(node); }
  void back() { node = rb_tree_base::__prev(node); }
};

// The std::iterator bases put namespace std among the places an unqualified call looks, so that
// count(s.begin(), s.end(), x) finds std::count as it does with other libraries.
template <class _Value>
struct rb_tree_iterator
    : std::iterator<std::bidirectional_iterator_tag, _Value, std::ptrdiff_t, _Value*, _Value&>,
      rb_tree_iterator_base {
  typedef std::bidirectional_iterator_tag iterator_category;
  typedef _Value value_type;
  typedef std::ptrdiff_t difference_type;
  typedef _Value* pointer;
  typedef _Value& reference;

  rb_tree_iterator() : rb_tree_iterator_base(0) {}
  explicit rb_tree_iterator(const rb_tree_node_base* x) : rb_tree_iterator_base(x) {}

  reference operator*() const { return static_cast<rb_tree_node<_Value>*>(node)->value; }
  pointer operator->() const { return &static_cast<rb_tree_node<_Value>*>(node)->value; }
  rb_tree_iterator& operator++() {
    forward();
    return *this;
  }
  rb_tree_iterator operator++(int) {
    rb_tree_iterator old(*this);
    forward();
    return old;
  }
  rb_tree_iterator& operator--() {
    back();
    return *this;
  }
  rb_tree_iterator operator--(int) {
    rb_tree_iterator old(*this);
    back();
    return old;
  }

  friend bool operator==(const rb_tree_iterator& x, const rb_tree_iterator& y) {
    return x.node == y.node;
  }
  friend bool operator!=(const rb_tree_iterator& x, const rb_tree_iterator& y) {
    return x.node != y.node;
  }
};

// The mutable kind converts to this one, so the two compare with each other in either order.
template <class _Value>
struct rb_tree_const_iterator : std::iterator<std::bidirectional_iterator_tag, _Value,
                                              std::ptrdiff_t, const _Value*, const _Value&>,
                                rb_tree_iterator_base {
  typedef std::bidirectional_iterator_tag iterator_category;
  typedef _Value value_type;
  typedef std::ptrdiff_t difference_type;
  typedef const _Value* pointer;
  typedef const _Value& reference;

  rb_tree_const_iterator() : rb_tree_iterator_base(0) {}
  explicit rb_tree_const_iterator(const rb_tree_node_base* x) : rb_tree_iterator_base(x) {}
  rb_tree_const_iterator(const rb_tree_iterator<_Value>& other)
      : rb_tree_iterator_base(other.node) {}

  reference operator*() const { return static_cast<rb_tree_node<_Value>*>(node)->value; }
  pointer operator->() const { return &static_cast<rb_tree_node<_Value>*>(node)->value; }
  rb_tree_const_iterator& operator++() {
    forward();
    return *this;
  }
  rb_tree_const_iterator operator++(int) {
    rb_tree_const_iterator old(*this);
    forward();
    return old;
  }
  rb_tree_const_iterator& operator--() {
    back();
    return *this;
  }
  rb_tree_const_iterator operator--(int) {
    rb_tree_const_iterator old(*this);
    back();
    return old;
  }

  friend bool operator==(const rb_tree_const_iterator& x, const rb_tree_const_iterator& y) {
    return x.node == y.node;
  }
  friend bool operator!=(const rb_tree_const_iterator& x, const rb_tree_const_iterator& y) {
    return x.node != y.node;
  }
};

} // namespace __vel

#endif
