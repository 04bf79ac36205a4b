// __vel::rb_tree_base: the type-independent half of map, multimap, set and multiset, which owns
// the tree's shape and does all structural work (containers/rb_tree.cpp).
#ifndef __LORB_RB_TREE_BASE_H
#define __LORB_RB_TREE_BASE_H

#include <__lorb/config.h>

namespace __vel {

// The typed node places its value right after these fields.
struct __LORB_EXPORT rb_tree_node_base {
  rb_tree_node_base* left;
  rb_tree_node_base* right;
  rb_tree_node_base* parent; // the root's parent is the header
  bool colour;               // true: red
};

// The header is a node without a value: its parent is the root (null when empty) and its left
// link is the rightmost node (null when empty), so that stepping back from the header reaches
// the largest element. Its colour is never looked at.
struct __LORB_EXPORT rb_tree_base_data {
  rb_tree_node_base* header;
  unsigned node_count;
  rb_tree_node_base* leftmost;  // the header when empty
  rb_tree_node_base* rightmost; // the header when empty
};

class __LORB_EXPORT rb_tree_base : public rb_tree_base_data {
public:
  // Frees a node made by make_node; the base frees nothing.
  virtual void destroy_node(rb_tree_node_base* node);
  // A new node holding a copy of *value, or a node without a value when value is null.
  virtual rb_tree_node_base* make_node(const void* value) = 0;

  // Makes the header and an empty tree.
  void __initialize();
  // Links z under y (as the right child when w == y, else the left child; y == header means the
  // tree was empty) and rebalances. Returns z.
  rb_tree_node_base* __finish_insert(rb_tree_node_base* z, rb_tree_node_base* y,
                                     rb_tree_node_base* w);
  // In-order steps; from the rightmost node __next reaches the header, and __prev of the header
  // is the rightmost node.
  static rb_tree_node_base* __next(const rb_tree_node_base* x);
  static rb_tree_node_base* __prev(const rb_tree_node_base* x);
  // Unlinks z, rebalances and hands z to destroy_node.
  void __erase(rb_tree_node_base* z);
  // Erases [first, last) and returns how many nodes went.
  unsigned __erase(rb_tree_node_base* first, rb_tree_node_base* last);
  unsigned __count(const rb_tree_node_base* first, const rb_tree_node_base* last) const;
  // Destroys every node, the header last; the tree is unusable until __initialize.
  void __destroy();
  // Destroys every value node and keeps the header.
  void __clear();
  // Copies other's shape and values into this empty tree; value_offset is where a node's value
  // starts, in bytes from the node.
  void __copy(const rb_tree_base& other, unsigned value_offset);

  void destroy_tree(rb_tree_node_base* node);
  rb_tree_node_base* copy_tree(const rb_tree_node_base* source, rb_tree_node_base* parent,
                               unsigned value_offset);
};

} // namespace __vel

#endif
