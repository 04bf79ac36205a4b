// Which element types may be moved with memmove: the fundamental types and pointers.
#ifndef __LORB_BITWISE_COPY_H
#define __LORB_BITWISE_COPY_H

namespace __vel {

template <class _T> struct is_bitwise_copyable {
  enum { value = 0 };
};
template <class _T> struct is_bitwise_copyable<_T*> {
  enum { value = 1 };
};
template <class _T> struct is_bitwise_copyable<const _T> : is_bitwise_copyable<_T> {};

#define __LORB_BITWISE(type)                                                                       \
  template <> struct is_bitwise_copyable<type> {                                                   \
    enum { value = 1 };                                                                            \
  };
__LORB_BITWISE(bool)
__LORB_BITWISE(char)
__LORB_BITWISE(signed char)
__LORB_BITWISE(unsigned char)
__LORB_BITWISE(wchar_t)
__LORB_BITWISE(short)
__LORB_BITWISE(unsigned short)
__LORB_BITWISE(int)
__LORB_BITWISE(unsigned int)
__LORB_BITWISE(long)
__LORB_BITWISE(unsigned long)
// clang-format off
// C++98 has no long long; the compiler's extension does (__extension__ does not quiet it here).
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wlong-long"
__LORB_BITWISE(long long)
__LORB_BITWISE(unsigned long long)
#pragma GCC diagnostic pop
__LORB_BITWISE(float)
__LORB_BITWISE(double)
__LORB_BITWISE(long double)
#undef __LORB_BITWISE

// Chooses between two implementations at compile time.
template <bool> struct truth {};
// clang-format on

} // namespace __vel

#endif
