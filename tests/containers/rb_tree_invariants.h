// Checks every structural rule of a tree built on __vel::rb_tree_base (colours, black heights,
// links, header, extremes, count, order), for the tests of the core and of the ordered containers.
#ifndef LORB_RB_TREE_INVARIANTS_H
#define LORB_RB_TREE_INVARIANTS_H

#include "lorb_test.h"
#include <__lorb/rb_tree_base.h>

namespace rb_invariants {

typedef __vel::rb_tree_node_base node;

struct report {
  const char* file;
  int line;
  unsigned budget; // nodes the walk may still visit: a cycle must not hang the test
};

inline bool broken(report& r, const char* what) {
  lt::fail(r.file, r.line, "rb tree invariant", what);
  return false;
}

inline bool is_red(const node* x) { return x && x->colour; }

// The black height of the subtree at x (null counts as one black leaf), or -1 when a rule breaks
// inside it: a child not pointing back to its parent, a red node with a red child, unequal black
// heights, or more nodes than the count allows.
inline int black_height(const node* x, report& r) {
  if (!x)
    return 1;
  if (r.budget == 0) {
    broken(r, "more nodes reachable from the root than the count says");
    return -1;
  }
  --r.budget;
  const node* children[2] = {x->left, x->right};
  int heights[2];
  for (int side = 0; side < 2; ++side) {
    const node* c = children[side];
    if (c && c->parent != x) {
      broken(r, "a child's parent link does not point back to its parent");
      return -1;
    }
    if (x->colour && is_red(c)) {
      broken(r, "a red node has a red child");
      return -1;
    }
    heights[side] = black_height(c, r);
    if (heights[side] < 0)
      return -1;
  }
  if (heights[0] != heights[1]) {
    broken(r, "two paths have different black heights");
    return -1;
  }
  return heights[0] + (x->colour ? 0 : 1);
}

inline const node* lowest(const node* x) {
  while (x->left)
    x = x->left;
  return x;
}

inline const node* highest(const node* x) {
  while (x->right)
    x = x->right;
  return x;
}

// True when every rule holds; the first broken rule is reported at file:line. less(a, b) compares
// two value nodes; with unique_keys, neighbours must be strictly increasing, else not decreasing.
template <class _Less>
bool tree_is_valid(const __vel::rb_tree_base& tree, _Less less, bool unique_keys, const char* file,
                   int line) {
  report r = {file, line, tree.node_count};
  const node* header = tree.header;
  if (!header)
    return broken(r, "no header");
  const node* root = header->parent;
  if (!root) {
    if (tree.node_count != 0)
      return broken(r, "no root but a non-zero count");
    if (tree.leftmost != header || tree.rightmost != header)
      return broken(r, "empty tree whose leftmost or rightmost is not the header");
    if (header->left)
      return broken(r, "empty tree whose header left link is not null");
    return lt::check(true, file, line, "empty rb tree");
  }
  if (root->parent != header)
    return broken(r, "the root's parent is not the header");
  if (root->colour)
    return broken(r, "the root is red");
  if (black_height(root, r) < 0)
    return false;
  if (r.budget != 0)
    return broken(r, "fewer nodes reachable from the root than the count says");
  if (tree.leftmost != lowest(root))
    return broken(r, "leftmost is not the smallest node");
  if (tree.rightmost != highest(root))
    return broken(r, "rightmost is not the largest node");
  if (header->left != tree.rightmost)
    return broken(r, "the header's left link is not the rightmost node");

  unsigned steps = 0;
  const node* previous = 0;
  for (const node* x = tree.leftmost; x != header; x = __vel::rb_tree_base::__next(x)) {
    if (++steps > tree.node_count)
      return broken(r, "stepping forward from leftmost does not reach the header");
    if (previous && (unique_keys ? !less(previous, x) : less(x, previous)))
      return broken(r, "the nodes are out of order");
    previous = x;
  }
  if (steps != tree.node_count)
    return broken(r, "stepping forward visits a different number of nodes than the count");
  steps = 0;
  for (const node* x = header; x != tree.leftmost; x = __vel::rb_tree_base::__prev(x))
    if (++steps > tree.node_count)
      return broken(r, "stepping back from the header does not reach leftmost");
  if (steps != tree.node_count)
    return broken(r, "stepping back visits a different number of nodes than the count");
  return lt::check(true, file, line, "rb tree invariants");
}

} // namespace rb_invariants

#define CHECK_RB_TREE(tree, less, unique_keys)                                                     \
  rb_invariants::tree_is_valid((tree), (less), (unique_keys), __FILE__, __LINE__)

#endif
