// std::multiset: keys kept in order in a __vel::rb_tree; equal keys allowed, a new one going after
// its equals unless a hint places it.
#ifndef __LORB_MULTISET_H
#define __LORB_MULTISET_H

#include <__lorb/allocator.h>
#include <__lorb/function_base.h>
#include <__lorb/ordered_tree_container.h>
#include <utility>

namespace std {

template <class _Key, class _Compare = less<_Key>, class _Alloc = allocator<_Key> >
class multiset
    : public __vel::ordered_tree_container<typename __vel::set_tree<_Key, _Compare, _Alloc>::type,
                                           true> {
  typedef typename __vel::set_tree<_Key, _Compare, _Alloc>::type __tree;
  typedef __vel::ordered_tree_container<__tree, true> __base;

public:
  typedef _Key value_type;
  typedef _Compare value_compare;

  typedef typename __base::iterator iterator;
  typedef typename __base::const_iterator const_iterator;
  typedef typename __base::size_type size_type;

  explicit multiset(const _Compare& comp = _Compare(), const _Alloc& alloc = _Alloc())
      : __base(comp, alloc) {}
  template <class _InputIter>
  multiset(_InputIter first, _InputIter last, const _Compare& comp = _Compare(),
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
  void swap(multiset& other) { this->tree.swap(other.tree); }
  value_compare value_comp() const { return this->key_comp(); }
};

#define __LORB_CONTAINER_HEAD template <class _Key, class _Compare, class _Alloc>
#define __LORB_CONTAINER multiset<_Key, _Compare, _Alloc>
#include <__lorb/container_comparisons.h>

} // namespace std

#endif
