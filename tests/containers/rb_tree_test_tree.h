// A small typed tree over the red-black core for its tests: int values with an insertion serial,
// malloc'd nodes, counts of the nodes made and destroyed, and a sorted-array model to compare with.
#ifndef LORB_RB_TREE_TEST_TREE_H
#define LORB_RB_TREE_TEST_TREE_H

#include "lorb_test.h"
#include "rb_tree_invariants.h"
#include <__lorb/rb_tree_base.h>
#include <stddef.h>
#include <stdlib.h>
#include <string.h>

typedef __vel::rb_tree_node_base node;

// What a node holds: the value, and the order of insertion so that equal values stay apart.
struct payload {
  int value;
  unsigned serial;
};

struct test_node {
  node base;
  payload held;
};

inline const payload& held(const node* x) { return reinterpret_cast<const test_node*>(x)->held; }
inline int value_of(const node* x) { return held(x).value; }

// Equal values are kept in insertion order, so (value, serial) is strictly increasing in order.
inline bool held_less(const node* a, const node* b) {
  const payload& x = held(a);
  const payload& y = held(b);
  return x.value < y.value || (x.value == y.value && x.serial < y.serial);
}

const unsigned value_offset = offsetof(test_node, held);

struct test_tree : __vel::rb_tree_base {
  unsigned made;
  unsigned destroyed;
  unsigned next_serial;
  bool alive; // false once a test has called __destroy itself

  test_tree() : made(0), destroyed(0), next_serial(0), alive(true) { __initialize(); }
  ~test_tree() {
    if (alive)
      __destroy();
  }

  node* make_node(const void* value) {
    test_node* n = static_cast<test_node*>(malloc(sizeof(test_node)));
    // Links and colour are left as garbage: the core must set every one it relies on.
    memset(n, 0xA5, sizeof(test_node));
    if (value)
      n->held = *static_cast<const payload*>(value);
    ++made;
    return &n->base;
  }
  void destroy_node(node* x) {
    ++destroyed;
    free(x);
  }

  node* root() const { return header->parent; }

  // Finds the place the way a multiset does (after the equal values) and links a new node there.
  node* insert(int value) {
    node* y = header;
    for (node* x = root(); x;) {
      y = x;
      x = value < value_of(x) ? x->left : x->right;
    }
    payload p = {value, next_serial++};
    node* z = make_node(&p);
    node* w = y != header && !(value < value_of(y)) ? y : 0;
    return __finish_insert(z, y, w);
  }

  // The node at in-order position k (the header when k is the count).
  node* at(unsigned k) const {
    node* x = leftmost;
    while (k--)
      x = __next(x);
    return x;
  }

  unsigned value_nodes_alive() const { return made - destroyed - (alive ? 1 : 0); }
};

// The same values in order, kept in a sorted array.
struct sorted_model {
  enum { capacity = 1024 };
  payload items[capacity];
  unsigned size;

  sorted_model() : size(0) {}
  // New serials are the largest, so the new item goes after every equal value.
  void insert(const payload& p) {
    unsigned at = size;
    while (at > 0 && p.value < items[at - 1].value)
      --at;
    memmove(items + at + 1, items + at, (size - at) * sizeof(payload));
    items[at] = p;
    ++size;
  }
  void erase(unsigned first, unsigned last) {
    memmove(items + first, items + last, (size - last) * sizeof(payload));
    size -= last - first;
  }
};

// The tree holds exactly the model's items in the same order.
inline bool tree_matches(const test_tree& tree, const sorted_model& model, const char* file,
                         int line) {
  if (tree.node_count != model.size) {
    lt::fail(file, line, "model", "the tree's count differs from the model's size");
    return false;
  }
  const node* x = tree.leftmost;
  for (unsigned i = 0; i < model.size; ++i, x = __vel::rb_tree_base::__next(x))
    if (value_of(x) != model.items[i].value || held(x).serial != model.items[i].serial) {
      lt::fail(file, line, "model", "the tree's values differ from the model's");
      return false;
    }
  return lt::check(x == tree.header, file, line, "the walk ends at the header");
}

#define CHECK_TEST_TREE(tree) CHECK_RB_TREE((tree), held_less, true)
#define CHECK_MATCHES(tree, model) tree_matches((tree), (model), __FILE__, __LINE__)

// Same shape, colours and values, in distinct nodes.
inline bool same_shape(const node* a, const node* b) {
  if (!a || !b)
    return a == b;
  return a != b && a->colour == b->colour && value_of(a) == value_of(b) &&
         held(a).serial == held(b).serial && same_shape(a->left, b->left) &&
         same_shape(a->right, b->right);
}

// A small generator of the test's own, so sequences repeat from their seed.
struct lcg {
  unsigned state;
  explicit lcg(unsigned seed) : state(seed) {}
  unsigned below(unsigned limit) {
    state = state * 1103515245u + 12345u;
    return (state >> 8) % limit;
  }
};

#endif
