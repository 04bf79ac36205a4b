// __vel::rb_tree: the typed ordered tree behind map, multimap, set and multiset. It owns the
// nodes' values, the comparator and the allocator, finds where keys go, and leaves all
// structural work to the core __vel::rb_tree_base. Longer members are in rb_tree_members.h.
#ifndef __LORB_RB_TREE_H
#define __LORB_RB_TREE_H

#include <__lorb/algobase.h>
#include <__lorb/checked_allocate.h>
#include <__lorb/rb_tree_base.h>
#include <__lorb/rb_tree_iterator.h>
#include <utility>

namespace __vel {

// How the tree reads a key out of a value: a set's value is its key, a map's is the pair's first.
template <class _Value> struct value_is_key {
  const _Value& operator()(const _Value& value) const { return value; }
};
template <class _Pair> struct first_is_key {
  const typename _Pair::first_type& operator()(const _Pair& value) const { return value.first; }
};

template <class _Key, class _Value, class _KeyOfValue, class _Compare, class _Alloc>
class rb_tree : public rb_tree_base {
  typedef rb_tree_node<_Value> node;
  typedef typename _Alloc::template rebind<node>::other node_allocator;

public:
  typedef _Key key_type;
  typedef _Value value_type;
  typedef _Compare key_compare;
  typedef _Alloc allocator_type;
  typedef typename _Alloc::size_type size_type;
  typedef typename _Alloc::difference_type difference_type;
  typedef rb_tree_iterator<_Value> iterator;
  typedef rb_tree_const_iterator<_Value> const_iterator;
  typedef std::pair<iterator, iterator> range;
  typedef std::pair<const_iterator, const_iterator> const_range;

  rb_tree(const _Compare& comp, const _Alloc& alloc) : compare(comp), values(alloc) {
    __initialize();
  }
  rb_tree(const rb_tree& other) : rb_tree_base(), compare(other.compare), values(other.values) {
    __initialize();
    __copy(other, value_offset());
  }
  // The core has no virtual destructor: the typed tree frees everything itself.
  ~rb_tree() { __destroy(); }
  rb_tree& operator=(const rb_tree& other) {
    if (this != &other) {
      __clear();
      compare = other.compare;
      __copy(other, value_offset());
    }
    return *this;
  }

  rb_tree_node_base* make_node(const void* value);
  void destroy_node(rb_tree_node_base* x);

  iterator begin() { return iterator(leftmost); }
  const_iterator begin() const { return const_iterator(leftmost); }
  iterator end() { return iterator(header); }
  const_iterator end() const { return const_iterator(header); }

  bool empty() const { return node_count == 0; }
  size_type size() const { return node_count; }
  size_type max_size() const { return node_allocator(values).max_size(); }
  _Compare key_comp() const { return compare; }
  _Alloc get_allocator() const { return values; }

  std::pair<iterator, bool> insert_unique(const _Value& value);
  iterator insert_unique(const_iterator hint, const _Value& value);
  iterator insert_equal(const _Value& value);
  iterator insert_equal(const_iterator hint, const _Value& value);
  // Sorted input costs amortised constant time per element: each goes in at the end first.
  template <class _InputIter> void insert_unique(_InputIter first, _InputIter last) {
    for (; first != last; ++first)
      insert_unique(end(), *first);
  }
  template <class _InputIter> void insert_equal(_InputIter first, _InputIter last) {
    for (; first != last; ++first)
      insert_equal(end(), *first);
  }

  void erase(const_iterator position) { __erase(position.node); }
  size_type erase(const _Key& key) {
    range found = equal_range(key);
    return __erase(found.first.node, found.second.node);
  }
  void erase(const_iterator first, const_iterator last) { __erase(first.node, last.node); }
  void clear() { __clear(); }
  void swap(rb_tree& other);

  iterator find(const _Key& key) { return iterator(find_node(key)); }
  const_iterator find(const _Key& key) const { return const_iterator(find_node(key)); }
  size_type count(const _Key& key) const {
    return __count(lower_bound_node(key), upper_bound_node(key));
  }
  iterator lower_bound(const _Key& key) { return iterator(lower_bound_node(key)); }
  const_iterator lower_bound(const _Key& key) const {
    return const_iterator(lower_bound_node(key));
  }
  iterator upper_bound(const _Key& key) { return iterator(upper_bound_node(key)); }
  const_iterator upper_bound(const _Key& key) const {
    return const_iterator(upper_bound_node(key));
  }
  range equal_range(const _Key& key) { return range(lower_bound(key), upper_bound(key)); }
  const_range equal_range(const _Key& key) const {
    return const_range(lower_bound(key), upper_bound(key));
  }

private:
  static const _Key& key_of(const rb_tree_node_base* x) {
    return _KeyOfValue()(static_cast<const node*>(x)->value);
  }
  // Where a node's value starts, measured on the header, which every tree has.
  unsigned value_offset() const {
    return static_cast<unsigned>(reinterpret_cast<char*>(&static_cast<node*>(header)->value) -
                                 reinterpret_cast<char*>(header));
  }

  rb_tree_node_base* lower_bound_node(const _Key& key) const;
  rb_tree_node_base* upper_bound_node(const _Key& key) const;
  rb_tree_node_base* find_node(const _Key& key) const;
  iterator insert_equal_before_equals(const _Value& value);
  iterator link(const _Value& value, rb_tree_node_base* parent, bool as_right);
  iterator link_between(const _Value& value, rb_tree_node_base* before, rb_tree_node_base* after);

  _Compare compare;
  _Alloc values;
};

} // namespace __vel

#include <__lorb/rb_tree_members.h>

#endif
