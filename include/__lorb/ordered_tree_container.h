// __vel::ordered_tree_container: what map, multimap, set and multiset share over their typed
// tree (iteration, sizes, erasure, searches), so that each of them adds only its own insertions.
#ifndef __LORB_ORDERED_TREE_CONTAINER_H
#define __LORB_ORDERED_TREE_CONTAINER_H

#include <__lorb/rb_tree.h>
#include <__lorb/reverse_iterator.h>
#include <utility>

namespace __vel {

// The typed trees of the two kinds of container.
template <class _Key, class _T, class _Compare, class _Alloc> struct map_tree {
  typedef std::pair<const _Key, _T> value_type;
  typedef rb_tree<_Key, value_type, first_is_key<value_type>, _Compare, _Alloc> type;
};
template <class _Key, class _Compare, class _Alloc> struct set_tree {
  typedef rb_tree<_Key, _Key, value_is_key<_Key>, _Compare, _Alloc> type;
};

// The sets' iterators are both constant: their elements are keys, and changing one in place
// would break the order.
template <class _Tree, bool _ConstantElements> struct tree_container_iterator {
  typedef typename _Tree::iterator type;
};
template <class _Tree> struct tree_container_iterator<_Tree, true> {
  typedef typename _Tree::const_iterator type;
};

template <class _Tree, bool _ConstantElements> class ordered_tree_container {
public:
  typedef typename _Tree::key_type key_type;
  typedef typename _Tree::value_type value_type;
  typedef typename _Tree::key_compare key_compare;
  typedef typename _Tree::allocator_type allocator_type;
  typedef typename allocator_type::reference reference;
  typedef typename allocator_type::const_reference const_reference;
  typedef typename allocator_type::pointer pointer;
  typedef typename allocator_type::const_pointer const_pointer;
  typedef typename allocator_type::size_type size_type;
  typedef typename allocator_type::difference_type difference_type;
  typedef typename tree_container_iterator<_Tree, _ConstantElements>::type iterator;
  typedef typename _Tree::const_iterator const_iterator;
  typedef std::reverse_iterator<iterator> reverse_iterator;
  typedef std::reverse_iterator<const_iterator> const_reverse_iterator;

  allocator_type get_allocator() const { return tree.get_allocator(); }

  iterator begin() { return tree.begin(); }
  const_iterator begin() const { return tree.begin(); }
  iterator end() { return tree.end(); }
  const_iterator end() const { return tree.end(); }
  reverse_iterator rbegin() { return reverse_iterator(end()); }
  const_reverse_iterator rbegin() const { return const_reverse_iterator(end()); }
  reverse_iterator rend() { return reverse_iterator(begin()); }
  const_reverse_iterator rend() const { return const_reverse_iterator(begin()); }

  bool empty() const { return tree.empty(); }
  size_type size() const { return tree.size(); }
  size_type max_size() const { return tree.max_size(); }

  // Converted first, so that a key type that converts from anything is not a candidate.
  void erase(iterator position) { tree.erase(const_iterator(position)); }
  size_type erase(const key_type& key) { return tree.erase(key); }
  void erase(iterator first, iterator last) { tree.erase(first, last); }
  void clear() { tree.clear(); }

  key_compare key_comp() const { return tree.key_comp(); }

  iterator find(const key_type& key) { return tree.find(key); }
  const_iterator find(const key_type& key) const { return tree.find(key); }
  size_type count(const key_type& key) const { return tree.count(key); }
  iterator lower_bound(const key_type& key) { return tree.lower_bound(key); }
  const_iterator lower_bound(const key_type& key) const { return tree.lower_bound(key); }
  iterator upper_bound(const key_type& key) { return tree.upper_bound(key); }
  const_iterator upper_bound(const key_type& key) const { return tree.upper_bound(key); }
  std::pair<iterator, iterator> equal_range(const key_type& key) {
    return std::pair<iterator, iterator>(tree.equal_range(key));
  }
  std::pair<const_iterator, const_iterator> equal_range(const key_type& key) const {
    return tree.equal_range(key);
  }

  // The tree's shape, for the library's own tests.
  const rb_tree_base& __core() const { return tree; }

protected:
  ordered_tree_container(const key_compare& comp, const allocator_type& alloc)
      : tree(comp, alloc) {}

  _Tree tree;
};

} // namespace __vel

#endif
