// std::multimap: keys with mapped values in key order in a __vel::rb_tree; equal keys allowed, a
// new one going after its equals unless a hint places it.
#ifndef __LORB_MULTIMAP_H
#define __LORB_MULTIMAP_H

#include <__lorb/allocator.h>
#include <__lorb/function_base.h>
#include <__lorb/rb_tree.h>
#include <__lorb/reverse_iterator.h>
#include <utility>

namespace std {

template <class _Key, class _T, class _Compare = less<_Key>,
          class _Alloc = allocator<pair<const _Key, _T> > >
class multimap {
public:
  typedef _Key key_type;
  typedef _T mapped_type;
  typedef pair<const _Key, _T> value_type;
  typedef _Compare key_compare;
  typedef _Alloc allocator_type;

  class value_compare : public binary_function<value_type, value_type, bool> {
    friend class multimap;

  protected:
    _Compare comp;
    value_compare(_Compare c) : comp(c) {}

  public:
    bool operator()(const value_type& x, const value_type& y) const {
      return comp(x.first, y.first);
    }
  };

private:
  typedef __vel::rb_tree<_Key, value_type, __vel::first_is_key<value_type>, _Compare, _Alloc>
      tree_type;
  tree_type tree;

public:
  typedef typename _Alloc::reference reference;
  typedef typename _Alloc::const_reference const_reference;
  typedef typename tree_type::iterator iterator;
  typedef typename tree_type::const_iterator const_iterator;
  typedef typename _Alloc::size_type size_type;
  typedef typename _Alloc::difference_type difference_type;
  typedef typename _Alloc::pointer pointer;
  typedef typename _Alloc::const_pointer const_pointer;
  typedef std::reverse_iterator<iterator> reverse_iterator;
  typedef std::reverse_iterator<const_iterator> const_reverse_iterator;

  explicit multimap(const _Compare& comp = _Compare(), const _Alloc& alloc = _Alloc())
      : tree(comp, alloc) {}
  template <class _InputIter>
  multimap(_InputIter first, _InputIter last, const _Compare& comp = _Compare(),
           const _Alloc& alloc = _Alloc())
      : tree(comp, alloc) {
    tree.insert_equal(first, last);
  }
  multimap(const multimap& other) : tree(other.tree) {}
  multimap& operator=(const multimap& other) {
    tree = other.tree;
    return *this;
  }
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

  iterator insert(const value_type& value) { return tree.insert_equal(value); }
  iterator insert(iterator hint, const value_type& value) { return tree.insert_equal(hint, value); }
  template <class _InputIter> void insert(_InputIter first, _InputIter last) {
    tree.insert_equal(first, last);
  }
  void erase(iterator position) { tree.erase(const_iterator(position)); }
  size_type erase(const key_type& key) { return tree.erase(key); }
  void erase(iterator first, iterator last) { tree.erase(first, last); }
  void swap(multimap& other) { tree.swap(other.tree); }
  void clear() { tree.clear(); }

  key_compare key_comp() const { return tree.key_comp(); }
  value_compare value_comp() const { return value_compare(tree.key_comp()); }

  iterator find(const key_type& key) { return tree.find(key); }
  const_iterator find(const key_type& key) const { return tree.find(key); }
  size_type count(const key_type& key) const { return tree.count(key); }
  iterator lower_bound(const key_type& key) { return tree.lower_bound(key); }
  const_iterator lower_bound(const key_type& key) const { return tree.lower_bound(key); }
  iterator upper_bound(const key_type& key) { return tree.upper_bound(key); }
  const_iterator upper_bound(const key_type& key) const { return tree.upper_bound(key); }
  pair<iterator, iterator> equal_range(const key_type& key) { return tree.equal_range(key); }
  pair<const_iterator, const_iterator> equal_range(const key_type& key) const {
    return tree.equal_range(key);
  }

  // The tree's shape, for the library's own tests.
  const __vel::rb_tree_base& __core() const { return tree; }
};

template <class _Key, class _T, class _Compare, class _Alloc>
inline bool operator==(const multimap<_Key, _T, _Compare, _Alloc>& x,
                       const multimap<_Key, _T, _Compare, _Alloc>& y) {
  return x.size() == y.size() && std::equal(x.begin(), x.end(), y.begin());
}
template <class _Key, class _T, class _Compare, class _Alloc>
inline bool operator<(const multimap<_Key, _T, _Compare, _Alloc>& x,
                      const multimap<_Key, _T, _Compare, _Alloc>& y) {
  return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end());
}
template <class _Key, class _T, class _Compare, class _Alloc>
inline bool operator!=(const multimap<_Key, _T, _Compare, _Alloc>& x,
                       const multimap<_Key, _T, _Compare, _Alloc>& y) {
  return !(x == y);
}
template <class _Key, class _T, class _Compare, class _Alloc>
inline bool operator>(const multimap<_Key, _T, _Compare, _Alloc>& x,
                      const multimap<_Key, _T, _Compare, _Alloc>& y) {
  return y < x;
}
template <class _Key, class _T, class _Compare, class _Alloc>
inline bool operator>=(const multimap<_Key, _T, _Compare, _Alloc>& x,
                       const multimap<_Key, _T, _Compare, _Alloc>& y) {
  return !(x < y);
}
template <class _Key, class _T, class _Compare, class _Alloc>
inline bool operator<=(const multimap<_Key, _T, _Compare, _Alloc>& x,
                       const multimap<_Key, _T, _Compare, _Alloc>& y) {
  return !(y < x);
}
template <class _Key, class _T, class _Compare, class _Alloc>
inline void swap(multimap<_Key, _T, _Compare, _Alloc>& x, multimap<_Key, _T, _Compare, _Alloc>& y) {
  x.swap(y);
}

} // namespace std

#endif
