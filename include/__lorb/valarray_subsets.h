// slice_array, gslice_array, mask_array and indirect_array: views of chosen elements of a
// valarray, made by its non-const subscripts, that assign through to those elements.
#ifndef __LORB_VALARRAY_SUBSETS_H
#define __LORB_VALARRAY_SUBSETS_H

#include <__lorb/valarray.h>
#include <__lorb/valarray_slice.h>
#include <cstddef>

// The assignments every subset has, written over its __count() and __at(i). Assigning from a
// valarray of another length covers the shorter of the two lengths.
#define __LORB_SUBSET_COMPOUND(op)                                                                 \
  void operator op(const valarray<_T>& source) const {                                             \
    size_t n = __vel::smaller_length(__count(), source.size());                                    \
    for (size_t i = 0; i < n; ++i)                                                                 \
      __at(i) op source[i];                                                                        \
  }
#define __LORB_SUBSET_ASSIGNMENTS(_Subset)                                                         \
  __LORB_SUBSET_COMPOUND(=)                                                                        \
  __LORB_SUBSET_COMPOUND(*=)                                                                       \
  __LORB_SUBSET_COMPOUND(/=)                                                                       \
  __LORB_SUBSET_COMPOUND(%=)                                                                       \
  __LORB_SUBSET_COMPOUND(+=)                                                                       \
  __LORB_SUBSET_COMPOUND(-=)                                                                       \
  __LORB_SUBSET_COMPOUND(^=)                                                                       \
  __LORB_SUBSET_COMPOUND(&=)                                                                       \
  __LORB_SUBSET_COMPOUND(|=)                                                                       \
  __LORB_SUBSET_COMPOUND(<<=)                                                                      \
  __LORB_SUBSET_COMPOUND(>>=)                                                                      \
  void operator=(const _T& value) const {                                                          \
    size_t n = __count();                                                                          \
    for (size_t i = 0; i < n; ++i)                                                                 \
      __at(i) = value;                                                                             \
  }                                                                                                \
  /* Copies the other subset's elements into this one's, in order. */                              \
  const _Subset& operator=(const _Subset& other) const {                                           \
    size_t n = __vel::smaller_length(__count(), other.__count());                                  \
    for (size_t i = 0; i < n; ++i)                                                                 \
      __at(i) = other.__at(i);                                                                     \
    return *this;                                                                                  \
  }

namespace std {

template <class _T> class slice_array {
public:
  typedef _T value_type;

  slice_array(const slice_array& other) : __array(other.__array), __which(other.__which) {}
  ~slice_array() {}
  __LORB_SUBSET_ASSIGNMENTS(slice_array)

  // Internal: how many elements, and the i-th of them.
  size_t __count() const { return __which.size(); }
  _T& __at(size_t i) const { return __array[__which.start() + i * __which.stride()]; }

private:
  friend class valarray<_T>;
  slice_array(_T* array, const slice& which) : __array(array), __which(which) {}

  _T* __array;
  slice __which;
};

// The subsets below keep the positions they stand for, worked out when they are made.
template <class _T> class gslice_array {
public:
  typedef _T value_type;

  gslice_array(const gslice_array& other)
      : __array(other.__array), __positions(other.__positions) {}
  ~gslice_array() {}
  __LORB_SUBSET_ASSIGNMENTS(gslice_array)

  size_t __count() const { return __positions.size(); }
  _T& __at(size_t i) const { return __array[__positions[i]]; }

private:
  friend class valarray<_T>;
  gslice_array(_T* array, const valarray<size_t>& positions)
      : __array(array), __positions(positions) {}

  _T* __array;
  valarray<size_t> __positions;
};

template <class _T> class mask_array {
public:
  typedef _T value_type;

  mask_array(const mask_array& other) : __array(other.__array), __positions(other.__positions) {}
  ~mask_array() {}
  __LORB_SUBSET_ASSIGNMENTS(mask_array)

  size_t __count() const { return __positions.size(); }
  _T& __at(size_t i) const { return __array[__positions[i]]; }

private:
  friend class valarray<_T>;
  mask_array(_T* array, const valarray<size_t>& positions)
      : __array(array), __positions(positions) {}

  _T* __array;
  valarray<size_t> __positions;
};

template <class _T> class indirect_array {
public:
  typedef _T value_type;

  indirect_array(const indirect_array& other)
      : __array(other.__array), __positions(other.__positions) {}
  ~indirect_array() {}
  __LORB_SUBSET_ASSIGNMENTS(indirect_array)

  size_t __count() const { return __positions.size(); }
  _T& __at(size_t i) const { return __array[__positions[i]]; }

private:
  friend class valarray<_T>;
  indirect_array(_T* array, const valarray<size_t>& positions)
      : __array(array), __positions(positions) {}

  _T* __array;
  valarray<size_t> __positions;
};

} // namespace std

#undef __LORB_SUBSET_ASSIGNMENTS
#undef __LORB_SUBSET_COMPOUND

#endif
