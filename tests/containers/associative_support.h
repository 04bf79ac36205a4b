// What the map, multimap, set and multiset tests share: a generator, a comparator with state that
// counts its calls, a value type that counts its lives, an allocator that counts its nodes, and
// the tree-shape check of a container through the red-black invariant checker. It defines the
// counters: include it in exactly one file of a test program.
#ifndef LORB_ASSOCIATIVE_SUPPORT_H
#define LORB_ASSOCIATIVE_SUPPORT_H

#include "lorb_test.h"
#include "rb_tree_invariants.h"
#include <__lorb/rb_tree_iterator.h>
#include <memory>
#include <stddef.h>

namespace assoc {

struct generator {
  unsigned seed;
  explicit generator(unsigned s) : seed(s) {}
  unsigned below(unsigned n) {
    seed = seed * 1103515245u + 12345u;
    return (seed >> 8) % n;
  }
};

// Orders ints ascending or, when told, descending, and counts every call in a counter of the
// test's own, so tests see both the state a container keeps and the work it does.
struct counting_less {
  unsigned* calls;
  bool descending;
  counting_less() : calls(0), descending(false) {}
  counting_less(unsigned* counter, bool down) : calls(counter), descending(down) {}
  bool operator()(int a, int b) const {
    if (calls)
      ++*calls;
    return descending ? b < a : a < b;
  }
};

// A mapped or stored value that counts how many of it are alive and how it was made.
struct tracked {
  static int live;
  static int defaults;
  int value;
  tracked() : value(-1) {
    ++live;
    ++defaults;
  }
  tracked(int v) : value(v) { ++live; }
  tracked(const tracked& other) : value(other.value) { ++live; }
  ~tracked() { --live; }
  tracked& operator=(const tracked& other) {
    value = other.value;
    return *this;
  }
};
int tracked::live = 0;
int tracked::defaults = 0;
inline bool operator<(const tracked& a, const tracked& b) { return a.value < b.value; }
inline bool operator==(const tracked& a, const tracked& b) { return a.value == b.value; }

// Counts live blocks and block requests across all its instances; `id` is state that
// get_allocator must hand back.
struct allocation_counts {
  static int live_blocks;
  static int requests;
  static size_t last_size;
};
int allocation_counts::live_blocks = 0;
int allocation_counts::requests = 0;
size_t allocation_counts::last_size = 0;

template <class _T> class counting_allocator {
public:
  typedef size_t size_type;
  typedef ptrdiff_t difference_type;
  typedef _T* pointer;
  typedef const _T* const_pointer;
  typedef _T& reference;
  typedef const _T& const_reference;
  typedef _T value_type;
  template <class _U> struct rebind { typedef counting_allocator<_U> other; };

  int id;
  explicit counting_allocator(int i = 0) : id(i) {}
  template <class _U> counting_allocator(const counting_allocator<_U>& other) : id(other.id) {}

  pointer allocate(size_type n, const void* = 0) {
    ++allocation_counts::requests;
    ++allocation_counts::live_blocks;
    allocation_counts::last_size = n * sizeof(_T);
    return static_cast<pointer>(::operator new(n * sizeof(_T)));
  }
  void deallocate(pointer p, size_type) {
    --allocation_counts::live_blocks;
    ::operator delete(p);
  }
  size_type max_size() const { return 1000; }
  void construct(pointer p, const _T& value) { ::new (static_cast<void*>(p)) _T(value); }
  void destroy(pointer p) { p->~_T(); }
};
template <class _T, class _U>
bool operator==(const counting_allocator<_T>& a, const counting_allocator<_U>& b) {
  return a.id == b.id;
}
template <class _T, class _U>
bool operator!=(const counting_allocator<_T>& a, const counting_allocator<_U>& b) {
  return a.id != b.id;
}

// Orders the tree's value nodes with the container's own value comparison.
template <class _Container> struct node_order {
  typedef typename _Container::value_type value_type;
  typename _Container::value_compare before;
  explicit node_order(const _Container& c) : before(c.value_comp()) {}
  static const value_type& value(const __vel::rb_tree_node_base* x) {
    return static_cast<const __vel::rb_tree_node<value_type>*>(x)->value;
  }
  bool operator()(const __vel::rb_tree_node_base* a, const __vel::rb_tree_node_base* b) const {
    return before(value(a), value(b));
  }
};
template <class _Container> node_order<_Container> order_of(const _Container& c) {
  return node_order<_Container>(c);
}

// The number of steps from first to last.
template <class _Iter> unsigned distance(_Iter first, _Iter last) {
  unsigned n = 0;
  for (; first != last; ++first)
    ++n;
  return n;
}

} // namespace assoc

// Every red-black rule holds for the container's tree, and its elements are in order (strictly
// for unique keys).
#define CHECK_SHAPE(container, unique_keys)                                                        \
  CHECK_RB_TREE((container).__core(), assoc::order_of(container), (unique_keys))

#endif
