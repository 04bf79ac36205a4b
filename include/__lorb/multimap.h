// std::multimap: keys with mapped values in key order in a __vel::rb_tree; equal keys allowed, a
// new one going after its equals unless a hint places it.
#ifndef __LORB_MULTIMAP_H
#define __LORB_MULTIMAP_H

#include <__lorb/allocator.h>
#include <__lorb/function_base.h>
#include <__lorb/ordered_tree_container.h>
#include <utility>

namespace std {

template <class _Key, class _T, class _Compare = less<_Key>,
          class _Alloc = allocator<pair<const _Key, _T> > >
class multimap : public __vel::ordered_tree_container<
                     typename __vel::map_tree<_Key, _T, _Compare, _Alloc>::type, false> {
  typedef typename __vel::map_tree<_Key, _T, _Compare, _Alloc>::type __tree;
  typedef __vel::ordered_tree_container<__tree, false> __base;

public:
  typedef _T mapped_type;
  typedef pair<const _Key, _T> value_type;

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

  typedef typename __base::iterator iterator;
  typedef typename __base::const_iterator const_iterator;
  typedef typename __base::size_type size_type;

  explicit multimap(const _Compare& comp = _Compare(), const _Alloc& alloc = _Alloc())
      : __base(comp, alloc) {}
  template <class _InputIter>
  multimap(_InputIter first, _InputIter last, const _Compare& comp = _Compare(),
           const _Alloc& alloc = _Alloc())
      : __base(comp, alloc) {
    this->tree.insert_equal(first, last);
  }

  iterator insert(const value_type& value) { return this->tree.insert_equal(value); }
  iterator insert(iterator hint, const value_type& value) {
    return this->tree.insert_equal(hint, value);
  }
  template <class _InputIter> void insert(_InputIter first, _InputIter last) {
    this->tree.insert_equal(first, last);
  }
  void swap(multimap& other) { this->tree.swap(other.tree); }
  value_compare value_comp() const { return value_compare(this->key_comp()); }
};

#define __LORB_CONTAINER_HEAD template <class _Key, class _T, class _Compare, class _Alloc>
#define __LORB_CONTAINER multimap<_Key, _T, _Compare, _Alloc>
#include <__lorb/container_comparisons.h>

} // namespace std

#endif
