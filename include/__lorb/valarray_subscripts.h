// The members of valarray that deal in subsets: the slice, gslice, mask and index subscripts,
// and building from or assigning a subset's elements.
#ifndef __LORB_VALARRAY_SUBSCRIPTS_H
#define __LORB_VALARRAY_SUBSCRIPTS_H

#include <__lorb/valarray.h>
#include <__lorb/valarray_slice.h>
#include <__lorb/valarray_subsets.h>
#include <cstddef>

namespace __vel {

// gen(i) == the i-th element of a subset.
template <class _T, class _Subset> struct subset_elements {
  const _Subset* subset;
  _T operator()(std::size_t i) const { return subset->__at(i); }
};

// gen(i) == first[i * stride].
template <class _T> struct strided_elements {
  const _T* first;
  std::size_t stride;
  _T operator()(std::size_t i) const { return first[i * stride]; }
};

// gen(i) == source[positions[i]].
template <class _T> struct picked_elements {
  const _T* source;
  const std::size_t* positions;
  _T operator()(std::size_t i) const { return source[positions[i]]; }
};

// The positions where the mask is true; mask elements past the array's length are not looked at.
inline std::valarray<std::size_t> mask_positions(const std::valarray<bool>& mask,
                                                 std::size_t length) {
  std::size_t n = smaller_length(mask.size(), length);
  std::size_t count = 0;
  for (std::size_t i = 0; i < n; ++i)
    count += mask[i];
  std::valarray<std::size_t> positions(count);
  for (std::size_t i = 0, found = 0; i < n; ++i)
    if (mask[i])
      positions[found++] = i;
  return positions;
}

} // namespace __vel

namespace std {

#define __LORB_VALARRAY_FROM_SUBSET(_Subset)                                                       \
  template <class _T>                                                                              \
  valarray<_T>::valarray(const _Subset<_T>& subset)                                                \
      : __data(__allocate(subset.__count())), __size(subset.__count()) {                           \
    for (size_t i = 0; i < __size; ++i)                                                            \
      ::new (static_cast<void*>(__data + i)) _T(subset.__at(i));                                   \
  }                                                                                                \
  template <class _T> valarray<_T>& valarray<_T>::operator=(const _Subset<_T>& subset) {           \
    __vel::subset_elements<_T, _Subset<_T> > gen = {&subset};                                      \
    return *this = valarray(__vel::valarray_build_tag(), subset.__count(), gen);                   \
  }
__LORB_VALARRAY_FROM_SUBSET(slice_array)
__LORB_VALARRAY_FROM_SUBSET(gslice_array)
__LORB_VALARRAY_FROM_SUBSET(mask_array)
__LORB_VALARRAY_FROM_SUBSET(indirect_array)
#undef __LORB_VALARRAY_FROM_SUBSET

template <class _T> valarray<_T> valarray<_T>::operator[](slice which) const {
  __vel::strided_elements<_T> gen = {__data + which.start(), which.stride()};
  return valarray(__vel::valarray_build_tag(), which.size(), gen);
}
template <class _T> slice_array<_T> valarray<_T>::operator[](slice which) {
  return slice_array<_T>(__data, which);
}

template <class _T> valarray<_T> valarray<_T>::operator[](const gslice& which) const {
  valarray<size_t> positions = which.__positions();
  __vel::picked_elements<_T> gen = {__data, positions.__elements()};
  return valarray(__vel::valarray_build_tag(), positions.size(), gen);
}
template <class _T> gslice_array<_T> valarray<_T>::operator[](const gslice& which) {
  return gslice_array<_T>(__data, which.__positions());
}

template <class _T> valarray<_T> valarray<_T>::operator[](const valarray<bool>& mask) const {
  valarray<size_t> positions = __vel::mask_positions(mask, __size);
  __vel::picked_elements<_T> gen = {__data, positions.__elements()};
  return valarray(__vel::valarray_build_tag(), positions.size(), gen);
}
template <class _T> mask_array<_T> valarray<_T>::operator[](const valarray<bool>& mask) {
  return mask_array<_T>(__data, __vel::mask_positions(mask, __size));
}

template <class _T> valarray<_T> valarray<_T>::operator[](const valarray<size_t>& indices) const {
  __vel::picked_elements<_T> gen = {__data, indices.__elements()};
  return valarray(__vel::valarray_build_tag(), indices.size(), gen);
}
template <class _T> indirect_array<_T> valarray<_T>::operator[](const valarray<size_t>& indices) {
  return indirect_array<_T>(__data, indices);
}

} // namespace std

#endif
