// Construction into raw storage: the uninitialized algorithms and the range destruction that the
// containers use.
#ifndef __LORB_UNINITIALIZED_H
#define __LORB_UNINITIALIZED_H

#include <__lorb/algobase.h>
#include <new>

namespace __vel {

template <class _T, class _V> inline void construct_at(_T* p, const _V& value) {
  ::new (static_cast<void*>(p)) _T(value);
}

template <class _T> inline void destroy_at(_T* p) { p->~_T(); }

template <class _Forward> inline void destroy_range(_Forward first, _Forward last) {
  for (; first != last; ++first)
    destroy_at(&*first);
}
// Nothing to do for element types without destructors worth calling.
template <class _T> inline void destroy_range(_T* first, _T* last) {
  if (!is_bitwise_copyable<_T>::value)
    for (; first != last; ++first)
      first->~_T();
}

template <class _In, class _Forward>
inline _Forward construct_copies(_In first, _In last, _Forward out) {
  for (; first != last; ++first, ++out)
    construct_at(&*out, *first);
  return out;
}
template <class _T> inline _T* construct_copies(const _T* first, const _T* last, _T* out) {
  if (is_bitwise_copyable<_T>::value)
    return std::copy(first, last, out);
  for (; first != last; ++first, ++out)
    construct_at(out, *first);
  return out;
}
template <class _T> inline _T* construct_copies(_T* first, _T* last, _T* out) {
  return construct_copies(static_cast<const _T*>(first), static_cast<const _T*>(last), out);
}

} // namespace __vel

namespace std {

template <class _In, class _Forward>
inline _Forward uninitialized_copy(_In first, _In last, _Forward out) {
  return __vel::construct_copies(first, last, out);
}

template <class _Forward, class _T>
inline void uninitialized_fill(_Forward first, _Forward last, const _T& value) {
  for (; first != last; ++first)
    __vel::construct_at(&*first, value);
}

template <class _Forward, class _Size, class _T>
inline void uninitialized_fill_n(_Forward first, _Size n, const _T& value) {
  for (; n > 0; --n, ++first)
    __vel::construct_at(&*first, value);
}

} // namespace std

#endif
