// std::valarray: a numeric array held in one buffer, with its element-wise compound assignments,
// reductions, shifts and apply; the subscripts that make subsets are in valarray_subscripts.h.
#ifndef __LORB_VALARRAY_H
#define __LORB_VALARRAY_H

#include <__lorb/allocator.h>
#include <__lorb/checked_allocate.h>
#include <__lorb/config.h>
#include <__lorb/uninitialized.h>
#include <cstddef>
#include <new>

namespace __vel {

// Marks the constructor that builds every element from a generator (element i from gen(i)):
// the one way the operators and functions make their results, without a default-built stage.
struct valarray_build_tag {};

inline std::size_t smaller_length(std::size_t a, std::size_t b) { return a < b ? a : b; }

// gen(i) == source[(start + i) mod length], for cshift.
template <class _T> struct rotated_elements {
  const _T* source;
  std::size_t length;
  std::size_t start;
  _T operator()(std::size_t i) const {
    std::size_t at = start + i;
    return source[at < length ? at : at - length];
  }
};

// gen(i) == source[i + offset] inside the array, _T() outside it, for shift.
template <class _T> struct shifted_elements {
  const _T* source;
  std::size_t length;
  long offset;
  _T operator()(std::size_t i) const {
    long at = long(i) + offset;
    return at >= 0 && std::size_t(at) < length ? source[at] : _T();
  }
};

template <class _T, class _F> struct applied_elements {
  const _T* source;
  _F function;
  _T operator()(std::size_t i) const { return function(source[i]); }
};

} // namespace __vel

namespace std {

class slice;
class gslice;
template <class _T> class slice_array;
template <class _T> class gslice_array;
template <class _T> class mask_array;
template <class _T> class indirect_array;

// Lengths that differ where the standard asks for equal ones are not undefined here: an
// element-wise operation covers the shorter length (results have that length, compound
// assignments leave the rest of the left side as it was), and operator= between arrays of
// different lengths takes the right side's length. Sum, min and max of an empty array are _T().
template <class _T> class valarray {
public:
  typedef _T value_type;

  valarray() : __data(0), __size(0) {}
  explicit valarray(size_t n) : __data(__allocate(n)), __size(n) {
    for (size_t i = 0; i < n; ++i)
      ::new (static_cast<void*>(__data + i)) _T();
  }
  valarray(const _T& value, size_t n) : __data(__allocate(n)), __size(n) {
    std::uninitialized_fill_n(__data, n, value);
  }
  valarray(const _T* source, size_t n) : __data(__allocate(n)), __size(n) {
    __vel::construct_copies(source, source + n, __data);
  }
  valarray(const valarray& other) : __data(__allocate(other.__size)), __size(other.__size) {
    __vel::construct_copies(other.__data, other.__data + __size, __data);
  }
  valarray(const slice_array<_T>& subset);
  valarray(const gslice_array<_T>& subset);
  valarray(const mask_array<_T>& subset);
  valarray(const indirect_array<_T>& subset);
  // Internal: element i is built from gen(i).
  template <class _Gen>
  valarray(__vel::valarray_build_tag, size_t n, _Gen gen) : __data(__allocate(n)), __size(n) {
    for (size_t i = 0; i < n; ++i)
      ::new (static_cast<void*>(__data + i)) _T(gen(i));
  }
  ~valarray() { __release(); }

  valarray& operator=(const valarray& other) {
    if (__size == other.__size) {
      for (size_t i = 0; i < __size; ++i)
        __data[i] = other.__data[i];
    } else {
      __release();
      __data = __allocate(other.__size);
      __size = other.__size;
      __vel::construct_copies(other.__data, other.__data + __size, __data);
    }
    return *this;
  }
  valarray& operator=(const _T& value) {
    for (size_t i = 0; i < __size; ++i)
      __data[i] = value;
    return *this;
  }
  valarray& operator=(const slice_array<_T>& subset);
  valarray& operator=(const gslice_array<_T>& subset);
  valarray& operator=(const mask_array<_T>& subset);
  valarray& operator=(const indirect_array<_T>& subset);

  // Positions are not checked, as with a built-in array.
  const _T& operator[](size_t i) const { return __data[i]; }
  _T& operator[](size_t i) { return __data[i]; }
  valarray operator[](slice which) const;
  slice_array<_T> operator[](slice which);
  valarray operator[](const gslice& which) const;
  gslice_array<_T> operator[](const gslice& which);
  valarray operator[](const valarray<bool>& mask) const;
  mask_array<_T> operator[](const valarray<bool>& mask);
  valarray operator[](const valarray<size_t>& indices) const;
  indirect_array<_T> operator[](const valarray<size_t>& indices);

  valarray operator+() const;
  valarray operator-() const;
  valarray operator~() const;
  valarray<bool> operator!() const;

#define __LORB_VALARRAY_COMPOUND(op)                                                               \
  valarray& operator op(const valarray& other) {                                                   \
    size_t n = __vel::smaller_length(__size, other.__size);                                        \
    for (size_t i = 0; i < n; ++i)                                                                 \
      __data[i] op other.__data[i];                                                                \
    return *this;                                                                                  \
  }                                                                                                \
  valarray& operator op(const _T& value) {                                                         \
    for (size_t i = 0; i < __size; ++i)                                                            \
      __data[i] op value;                                                                          \
    return *this;                                                                                  \
  }
  __LORB_VALARRAY_COMPOUND(*=)
  __LORB_VALARRAY_COMPOUND(/=)
  __LORB_VALARRAY_COMPOUND(%=)
  __LORB_VALARRAY_COMPOUND(+=)
  __LORB_VALARRAY_COMPOUND(-=)
  __LORB_VALARRAY_COMPOUND(^=)
  __LORB_VALARRAY_COMPOUND(&=)
  __LORB_VALARRAY_COMPOUND(|=)
  __LORB_VALARRAY_COMPOUND(<<=)
  __LORB_VALARRAY_COMPOUND(>>=)
#undef __LORB_VALARRAY_COMPOUND

  size_t size() const { return __size; }

  // The first element, then each following one added with +=.
  _T sum() const {
    if (!__size)
      return _T();
    _T total = __data[0];
    for (size_t i = 1; i < __size; ++i)
      total += __data[i];
    return total;
  }
  _T min() const {
    if (!__size)
      return _T();
    const _T* least = __data;
    for (size_t i = 1; i < __size; ++i)
      if (__data[i] < *least)
        least = __data + i;
    return *least;
  }
  _T max() const {
    if (!__size)
      return _T();
    const _T* greatest = __data;
    for (size_t i = 1; i < __size; ++i)
      if (*greatest < __data[i])
        greatest = __data + i;
    return *greatest;
  }

  // Element i of the result is element i + n of this array, or _T() past either end.
  valarray shift(int n) const {
    __vel::shifted_elements<_T> gen = {__data, __size, long(n)};
    return valarray(__vel::valarray_build_tag(), __size, gen);
  }
  // Element i of the result is element (i + n) modulo size() of this array.
  valarray cshift(int n) const {
    if (!__size)
      return valarray();
    long start = long(n) % long(__size);
    if (start < 0)
      start += long(__size);
    __vel::rotated_elements<_T> gen = {__data, __size, size_t(start)};
    return valarray(__vel::valarray_build_tag(), __size, gen);
  }
  valarray apply(_T function(_T)) const {
    __vel::applied_elements<_T, _T (*)(_T)> gen = {__data, function};
    return valarray(__vel::valarray_build_tag(), __size, gen);
  }
  valarray apply(_T function(const _T&)) const {
    __vel::applied_elements<_T, _T (*)(const _T&)> gen = {__data, function};
    return valarray(__vel::valarray_build_tag(), __size, gen);
  }

  // Every element becomes a copy of value, whatever was there.
  void resize(size_t n, _T value = _T()) {
    __release();
    __data = __allocate(n);
    __size = n;
    std::uninitialized_fill_n(__data, n, value);
  }

  // Internal: the elements, for the operators and functions outside the class.
  const _T* __elements() const { return __data; }

private:
  static _T* __allocate(size_t n) {
    if (!n)
      return 0;
    allocator<_T> alloc;
    return __vel::checked_allocate(alloc, n);
  }
  void __release() {
    if (!__data)
      return;
    __vel::destroy_range(__data, __data + __size);
    allocator<_T>().deallocate(__data, __size);
    __data = 0;
    __size = 0;
  }

  _T* __data;
  size_t __size;
};

} // namespace std

#endif
