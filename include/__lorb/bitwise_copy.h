// Which element types may be moved with memmove: the fundamental types and pointers.
#ifndef __LORB_BITWISE_COPY_H
#define __LORB_BITWISE_COPY_H

#include <__lorb/integer_type.h>

namespace __vel {

template <class _T> struct is_bitwise_copyable {
  enum { value = is_integer_type<_T>::value };
};
template <class _T> struct is_bitwise_copyable<_T*> {
  enum { value = 1 };
};
template <class _T> struct is_bitwise_copyable<const _T> : is_bitwise_copyable<_T> {};
template <> struct is_bitwise_copyable<float> {
  enum { value = 1 };
};
template <> struct is_bitwise_copyable<double> {
  enum { value = 1 };
};
template <> struct is_bitwise_copyable<long double> {
  enum { value = 1 };
};

// Chooses between two implementations at compile time.
template <bool> struct truth {};

} // namespace __vel

#endif
