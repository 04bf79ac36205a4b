// The small algorithms the containers themselves need: min, max, swap, copy, fill, equal and
// lexicographical comparison.
#ifndef __LORB_ALGOBASE_H
#define __LORB_ALGOBASE_H

#include <__lorb/algo_compare.h>
#include <__lorb/bitwise_copy.h>
#include <__lorb/iterator_tags.h>
#include <string.h>

namespace std {

template <class _T> inline const _T& min(const _T& a, const _T& b) { return b < a ? b : a; }
template <class _T> inline const _T& max(const _T& a, const _T& b) { return a < b ? b : a; }
template <class _T, class _Compare> inline const _T& min(const _T& a, const _T& b, _Compare comp) {
  return comp(b, a) ? b : a;
}
template <class _T, class _Compare> inline const _T& max(const _T& a, const _T& b, _Compare comp) {
  return comp(a, b) ? b : a;
}

template <class _T> inline void swap(_T& a, _T& b) {
  _T held(a);
  a = b;
  b = held;
}

template <class _Iter1, class _Iter2> inline void iter_swap(_Iter1 a, _Iter2 b) {
  typename iterator_traits<_Iter1>::value_type held(*a);
  *a = *b;
  *b = held;
}

} // namespace std

namespace __vel {

template <class _In, class _Out> inline _Out copy_elements(_In first, _In last, _Out out) {
  for (; first != last; ++first, ++out)
    *out = *first;
  return out;
}
template <class _T>
inline _T* copy_pointers(const _T* first, const _T* last, _T* out, truth<true>) {
  size_t n = last - first;
  if (n)
    memmove(out, first, n * sizeof(_T));
  return out + n;
}
template <class _T>
inline _T* copy_pointers(const _T* first, const _T* last, _T* out, truth<false>) {
  return copy_elements(first, last, out);
}

template <class _Bi1, class _Bi2>
inline _Bi2 copy_elements_backward(_Bi1 first, _Bi1 last, _Bi2 out) {
  while (first != last)
    *--out = *--last;
  return out;
}
template <class _T>
inline _T* copy_pointers_backward(const _T* first, const _T* last, _T* out, truth<true>) {
  size_t n = last - first;
  if (n)
    memmove(out - n, first, n * sizeof(_T));
  return out - n;
}
template <class _T>
inline _T* copy_pointers_backward(const _T* first, const _T* last, _T* out, truth<false>) {
  return copy_elements_backward(first, last, out);
}

} // namespace __vel

namespace std {

template <class _In, class _Out> inline _Out copy(_In first, _In last, _Out out) {
  return __vel::copy_elements(first, last, out);
}
template <class _T> inline _T* copy(const _T* first, const _T* last, _T* out) {
  return __vel::copy_pointers(first, last, out,
                              __vel::truth<bool(__vel::is_bitwise_copyable<_T>::value)>());
}
template <class _T> inline _T* copy(_T* first, _T* last, _T* out) {
  return std::copy(static_cast<const _T*>(first), static_cast<const _T*>(last), out);
}

template <class _Bi1, class _Bi2> inline _Bi2 copy_backward(_Bi1 first, _Bi1 last, _Bi2 out) {
  return __vel::copy_elements_backward(first, last, out);
}
template <class _T> inline _T* copy_backward(const _T* first, const _T* last, _T* out) {
  return __vel::copy_pointers_backward(first, last, out,
                                       __vel::truth<bool(__vel::is_bitwise_copyable<_T>::value)>());
}
template <class _T> inline _T* copy_backward(_T* first, _T* last, _T* out) {
  return std::copy_backward(static_cast<const _T*>(first), static_cast<const _T*>(last), out);
}

template <class _Forward, class _T>
inline void fill(_Forward first, _Forward last, const _T& value) {
  for (; first != last; ++first)
    *first = value;
}
template <class _Out, class _Size, class _T>
inline void fill_n(_Out out, _Size n, const _T& value) {
  for (; n > 0; --n, ++out)
    *out = value;
}

template <class _In1, class _In2, class _Predicate>
inline bool equal(_In1 first1, _In1 last1, _In2 first2, _Predicate same) {
  for (; first1 != last1; ++first1, ++first2)
    if (!same(*first1, *first2))
      return false;
  return true;
}

template <class _In1, class _In2, class _Compare>
inline bool lexicographical_compare(_In1 first1, _In1 last1, _In2 first2, _In2 last2,
                                    _Compare comp) {
  for (; first1 != last1 && first2 != last2; ++first1, ++first2) {
    if (comp(*first1, *first2))
      return true;
    if (comp(*first2, *first1))
      return false;
  }
  return first1 == last1 && first2 != last2;
}

template <class _In1, class _In2> inline bool equal(_In1 first1, _In1 last1, _In2 first2) {
  return std::equal(first1, last1, first2, __vel::equal_values());
}
template <class _In1, class _In2>
inline bool lexicographical_compare(_In1 first1, _In1 last1, _In2 first2, _In2 last2) {
  return std::lexicographical_compare(first1, last1, first2, last2, __vel::less_than());
}

} // namespace std

#endif
