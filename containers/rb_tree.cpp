// The red-black tree's structural work: linking, rebalancing, stepping, erasing, clearing, copying.
#include <__lorb/rb_tree_base.h>

namespace __vel {
namespace {

typedef rb_tree_node_base node;

// Child links by side (0 = left, 1 = right), so that each pair of mirror cases shares one body.
inline node*& child(node* x, int side) { return side ? x->right : x->left; }

// Missing children count as black.
inline bool is_red(const node* x) { return x && x->colour; }

inline node* minimum(node* x) {
  while (x->left)
    x = x->left;
  return x;
}

inline node* maximum(node* x) {
  while (x->right)
    x = x->right;
  return x;
}

// Puts replacement where x hangs from its parent (the header's root link for the root).
inline void replace_child(node* x, node* replacement, node* header) {
  if (header->parent == x)
    header->parent = replacement;
  else if (x->parent->left == x)
    x->parent->left = replacement;
  else
    x->parent->right = replacement;
}

// Moves x down towards `side`; its child on the other side takes its place.
void rotate(node* x, int side, node* header) {
  node* y = child(x, !side);
  child(x, !side) = child(y, side);
  if (child(y, side))
    child(y, side)->parent = x;
  y->parent = x->parent;
  replace_child(x, y, header);
  child(y, side) = x;
  x->parent = y;
}

void rebalance_after_insert(node* x, node* header) {
  while (x != header->parent && x->parent->colour) {
    node* p = x->parent;
    node* g = p->parent; // exists: a red parent is never the root
    int side = p == g->right ? 1 : 0;
    node* uncle = child(g, !side);
    if (is_red(uncle)) {
      p->colour = false;
      uncle->colour = false;
      g->colour = true;
      x = g;
      continue;
    }
    if (x == child(p, !side)) { // inner side: turn it into the outer case
      x = p;
      rotate(x, side, header);
    }
    x->parent->colour = false;
    g->colour = true;
    rotate(g, !side, header);
    break;
  }
  header->parent->colour = false;
}

// x (possibly null) sits under x_parent where a black node was taken out.
void rebalance_after_erase(node* x, node* x_parent, node* header) {
  while (x != header->parent && !is_red(x)) {
    int side = x == x_parent->left ? 0 : 1;
    node* w = child(x_parent, !side); // exists: its side holds at least one black node
    if (w->colour) {
      w->colour = false;
      x_parent->colour = true;
      rotate(x_parent, side, header);
      w = child(x_parent, !side);
    }
    if (!is_red(w->left) && !is_red(w->right)) {
      w->colour = true;
      x = x_parent;
      x_parent = x_parent->parent;
      continue;
    }
    if (!is_red(child(w, !side))) {
      child(w, side)->colour = false;
      w->colour = true;
      rotate(w, !side, header);
      w = child(x_parent, !side);
    }
    w->colour = x_parent->colour;
    x_parent->colour = false;
    child(w, !side)->colour = false;
    rotate(x_parent, side, header);
    break;
  }
  if (x)
    x->colour = false;
}

} // namespace

void rb_tree_base::destroy_node(rb_tree_node_base*) {}

void rb_tree_base::__initialize() {
  header = make_node(0);
  node_count = 0;
  header->left = 0;
  header->right = 0;
  header->parent = 0;
  leftmost = header;
  rightmost = header;
}

rb_tree_node_base* rb_tree_base::__finish_insert(rb_tree_node_base* z, rb_tree_node_base* y,
                                                 rb_tree_node_base* w) {
  z->left = 0;
  z->right = 0;
  z->parent = y;
  z->colour = true;
  ++node_count;
  // The empty tree is tested first: the header never takes a right child, whatever w says.
  if (y == header) {
    header->parent = z;
    header->left = z;
    leftmost = z;
    rightmost = z;
  } else if (w == y) {
    y->right = z;
    if (y == rightmost) {
      rightmost = z;
      header->left = z;
    }
  } else {
    y->left = z;
    if (y == leftmost)
      leftmost = z;
  }
  rebalance_after_insert(z, header);
  return z;
}

rb_tree_node_base* rb_tree_base::__next(const rb_tree_node_base* x) {
  node* at = const_cast<node*>(x);
  if (at->right)
    return minimum(at->right);
  node* up = at->parent;
  while (at == up->right) { // from the rightmost node this ends at the header
    at = up;
    up = up->parent;
  }
  return up;
}

rb_tree_node_base* rb_tree_base::__prev(const rb_tree_node_base* x) {
  node* at = const_cast<node*>(x);
  if (at->left) // the header's left link is the rightmost node
    return maximum(at->left);
  node* up = at->parent;
  while (at == up->left) {
    at = up;
    up = up->parent;
  }
  return up;
}

void rb_tree_base::__erase(rb_tree_node_base* z) {
  node* y = z; // the node that leaves the shape
  node* x;     // the child that takes y's place, possibly null
  node* x_parent;
  if (!z->left)
    x = z->right;
  else if (!z->right)
    x = z->left;
  else {
    y = minimum(z->right);
    x = y->right;
  }

  bool removed_red;
  if (y != z) { // the successor y takes z's place and colour
    z->left->parent = y;
    y->left = z->left;
    if (y != z->right) {
      x_parent = y->parent;
      if (x)
        x->parent = x_parent;
      x_parent->left = x;
      y->right = z->right;
      z->right->parent = y;
    } else {
      x_parent = y;
    }
    replace_child(z, y, header);
    y->parent = z->parent;
    bool colour = y->colour;
    y->colour = z->colour;
    z->colour = colour;
    removed_red = z->colour;
  } else {
    x_parent = z->parent;
    if (x)
      x->parent = x_parent;
    replace_child(z, x, header);
    if (leftmost == z)
      leftmost = z->right ? minimum(x) : z->parent;
    if (rightmost == z) {
      rightmost = z->left ? maximum(x) : z->parent;
      header->left = rightmost == header ? 0 : rightmost;
    }
    removed_red = z->colour;
  }

  if (!removed_red)
    rebalance_after_erase(x, x_parent, header);
  --node_count;
  destroy_node(z);
}

unsigned rb_tree_base::__erase(rb_tree_node_base* first, rb_tree_node_base* last) {
  if (first == leftmost && last == header) {
    unsigned erased = node_count;
    __clear();
    return erased;
  }
  unsigned erased = 0;
  while (first != last) {
    node* next = __next(first);
    __erase(first); // relinks nodes without moving values, so next stays valid
    first = next;
    ++erased;
  }
  return erased;
}

unsigned rb_tree_base::__count(const rb_tree_node_base* first,
                               const rb_tree_node_base* last) const {
  unsigned steps = 0;
  for (; first != last; first = __next(first))
    ++steps;
  return steps;
}

void rb_tree_base::__destroy() {
  destroy_tree(header->parent);
  destroy_node(header);
}

void rb_tree_base::__clear() {
  if (header->parent)
    destroy_tree(header->parent);
  node_count = 0;
  leftmost = header;
  rightmost = header;
  header->parent = 0;
  header->left = 0;
}

void rb_tree_base::__copy(const rb_tree_base& other, unsigned value_offset) {
  node* source_root = other.header->parent;
  if (source_root) {
    node* root = copy_tree(source_root, header, value_offset);
    header->parent = root;
    root->parent = header;
    leftmost = minimum(root);
    rightmost = maximum(root);
    header->left = rightmost;
  }
  node_count = other.node_count;
}

// Recursion goes right only; the left links are followed in a loop.
void rb_tree_base::destroy_tree(rb_tree_node_base* x) {
  while (x) {
    destroy_tree(x->right);
    node* left = x->left;
    destroy_node(x);
    x = left;
  }
}

// Recursion goes right only; the left spine is copied in a loop.
rb_tree_node_base* rb_tree_base::copy_tree(const rb_tree_node_base* source,
                                           rb_tree_node_base* parent, unsigned value_offset) {
  node* top = 0;
  node* above = parent;
  node** link = &top;
  for (; source; source = source->left) {
    node* copy = make_node(reinterpret_cast<const char*>(source) + value_offset);
    copy->colour = source->colour;
    copy->parent = above;
    copy->right = source->right ? copy_tree(source->right, copy, value_offset) : 0;
    *link = copy;
    link = &copy->left;
    above = copy;
  }
  *link = 0;
  return top;
}

} // namespace __vel
