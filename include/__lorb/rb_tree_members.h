// The longer members of __vel::rb_tree: node making and freeing, the searches, and where
// insertions go, with and without a hint.
#ifndef __LORB_RB_TREE_MEMBERS_H
#define __LORB_RB_TREE_MEMBERS_H

#include <__lorb/rb_tree.h>

namespace __vel {

#define __LORB_RB_TREE_TEMPLATE                                                                    \
  template <class _Key, class _Value, class _KeyOfValue, class _Compare, class _Alloc>
#define __LORB_RB_TREE rb_tree<_Key, _Value, _KeyOfValue, _Compare, _Alloc>

// The header is made with a null value and gets no value constructed.
__LORB_RB_TREE_TEMPLATE
rb_tree_node_base* __LORB_RB_TREE::make_node(const void* value) {
  node_allocator nodes(values);
  node* made = checked_allocate(nodes, 1);
  if (value)
    values.construct(&made->value, *static_cast<const _Value*>(value));
  return made;
}

__LORB_RB_TREE_TEMPLATE
void __LORB_RB_TREE::destroy_node(rb_tree_node_base* x) {
  node* held = static_cast<node*>(x);
  if (x != header)
    values.destroy(&held->value);
  node_allocator nodes(values);
  nodes.deallocate(held, 1);
}

// The cores trade places whole: each header, and so each tree's nodes, stays where it is.
__LORB_RB_TREE_TEMPLATE
void __LORB_RB_TREE::swap(rb_tree& other) {
  rb_tree_base_data mine = *this;
  static_cast<rb_tree_base_data&>(*this) = other;
  static_cast<rb_tree_base_data&>(other) = mine;
  std::swap(compare, other.compare);
  std::swap(values, other.values);
}

// The first node whose key is not less than key, else the header.
__LORB_RB_TREE_TEMPLATE
rb_tree_node_base* __LORB_RB_TREE::lower_bound_node(const _Key& key) const {
  rb_tree_node_base* bound = header;
  for (rb_tree_node_base* x = header->parent; x;) {
    if (!compare(key_of(x), key)) {
      bound = x;
      x = x->left;
    } else {
      x = x->right;
    }
  }
  return bound;
}

// The first node whose key is greater than key, else the header.
__LORB_RB_TREE_TEMPLATE
rb_tree_node_base* __LORB_RB_TREE::upper_bound_node(const _Key& key) const {
  rb_tree_node_base* bound = header;
  for (rb_tree_node_base* x = header->parent; x;) {
    if (compare(key, key_of(x))) {
      bound = x;
      x = x->left;
    } else {
      x = x->right;
    }
  }
  return bound;
}

__LORB_RB_TREE_TEMPLATE
rb_tree_node_base* __LORB_RB_TREE::find_node(const _Key& key) const {
  rb_tree_node_base* found = lower_bound_node(key);
  if (found == header || compare(key, key_of(found)))
    return header;
  return found;
}

__LORB_RB_TREE_TEMPLATE
typename __LORB_RB_TREE::iterator __LORB_RB_TREE::link(const _Value& value,
                                                       rb_tree_node_base* parent, bool as_right) {
  rb_tree_node_base* made = make_node(&value);
  return iterator(__finish_insert(made, parent, as_right ? parent : 0));
}

// before and after are neighbours; the new node goes between them. One of the two always has a
// free link on the side facing the other.
__LORB_RB_TREE_TEMPLATE
typename __LORB_RB_TREE::iterator __LORB_RB_TREE::link_between(const _Value& value,
                                                               rb_tree_node_base* before,
                                                               rb_tree_node_base* after) {
  if (!before->right)
    return link(value, before, true);
  return link(value, after, false);
}

// The walk from the root ends at the parent the new key would hang from; the key is new unless
// the node just before that place holds an equivalent one. Nothing is allocated for a duplicate.
__LORB_RB_TREE_TEMPLATE
std::pair<typename __LORB_RB_TREE::iterator, bool>
__LORB_RB_TREE::insert_unique(const _Value& value) {
  const _Key& k = _KeyOfValue()(value);
  rb_tree_node_base* parent = header;
  bool goes_left = true;
  for (rb_tree_node_base* x = header->parent; x;) {
    parent = x;
    goes_left = compare(k, key_of(x));
    x = goes_left ? x->left : x->right;
  }
  rb_tree_node_base* before = parent;
  if (goes_left) {
    if (parent == leftmost) // also the empty tree, whose leftmost is the header
      return std::pair<iterator, bool>(link(value, parent, false), true);
    before = __prev(parent);
  }
  if (compare(key_of(before), k))
    return std::pair<iterator, bool>(link(value, parent, !goes_left), true);
  return std::pair<iterator, bool>(iterator(before), false);
}

// Equal keys keep their insertion order: a new one goes after those already there.
__LORB_RB_TREE_TEMPLATE
typename __LORB_RB_TREE::iterator __LORB_RB_TREE::insert_equal(const _Value& value) {
  const _Key& k = _KeyOfValue()(value);
  rb_tree_node_base* parent = header;
  bool goes_left = true;
  for (rb_tree_node_base* x = header->parent; x;) {
    parent = x;
    goes_left = compare(k, key_of(x));
    x = goes_left ? x->left : x->right;
  }
  return link(value, parent, !goes_left);
}

// The mirror of insert_equal: the new key goes before its equals.
__LORB_RB_TREE_TEMPLATE
typename __LORB_RB_TREE::iterator __LORB_RB_TREE::insert_equal_before_equals(const _Value& value) {
  const _Key& k = _KeyOfValue()(value);
  rb_tree_node_base* parent = header;
  bool goes_left = true;
  for (rb_tree_node_base* x = header->parent; x;) {
    parent = x;
    goes_left = !compare(key_of(x), k);
    x = goes_left ? x->left : x->right;
  }
  return link(value, parent, !goes_left);
}

// A right hint (the key belongs just before it, or just after it) costs amortised constant
// time; any other hint falls back to the search from the root.
__LORB_RB_TREE_TEMPLATE
typename __LORB_RB_TREE::iterator __LORB_RB_TREE::insert_unique(const_iterator hint,
                                                                const _Value& value) {
  const _Key& k = _KeyOfValue()(value);
  rb_tree_node_base* at = hint.node;
  if (at == header) {
    if (node_count && compare(key_of(rightmost), k))
      return link(value, rightmost, true);
    return insert_unique(value).first;
  }
  if (compare(k, key_of(at))) {
    if (at == leftmost)
      return link(value, at, false);
    rb_tree_node_base* before = __prev(at);
    if (compare(key_of(before), k))
      return link_between(value, before, at);
    return insert_unique(value).first;
  }
  if (compare(key_of(at), k)) {
    if (at == rightmost)
      return link(value, at, true);
    rb_tree_node_base* after = __next(at);
    if (compare(k, key_of(after)))
      return link_between(value, at, after);
    return insert_unique(value).first;
  }
  return iterator(at); // the hint holds the key already
}

// The new element goes as close to the place just before the hint as the order allows: right
// before it when it fits there, else right after it, else at the near end of its equals.
__LORB_RB_TREE_TEMPLATE
typename __LORB_RB_TREE::iterator __LORB_RB_TREE::insert_equal(const_iterator hint,
                                                               const _Value& value) {
  const _Key& k = _KeyOfValue()(value);
  rb_tree_node_base* at = hint.node;
  if (at == header) {
    if (node_count && !compare(k, key_of(rightmost)))
      return link(value, rightmost, true);
    return insert_equal(value);
  }
  if (!compare(key_of(at), k)) {
    if (at == leftmost)
      return link(value, at, false);
    rb_tree_node_base* before = __prev(at);
    if (!compare(k, key_of(before)))
      return link_between(value, before, at);
    return insert_equal(value); // the key lies before the hint: its last equal is nearest
  }
  if (at == rightmost)
    return link(value, at, true);
  rb_tree_node_base* after = __next(at);
  if (!compare(key_of(after), k))
    return link_between(value, at, after);
  return insert_equal_before_equals(value); // the key lies after: its first equal is nearest
}

#undef __LORB_RB_TREE
#undef __LORB_RB_TREE_TEMPLATE

} // namespace __vel

#endif
