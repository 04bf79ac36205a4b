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
__extension__ __LORB_BITWISE(long long) __extension__ __LORB_BITWISE(unsigned long long)
    __LORB_BITWISE(float) __LORB_BITWISE(double) __LORB_BITWISE(long double)
#undef __LORB_BITWISE

    // Chooses between two implementations at compile time.
    template <bool>
    struct truth {
};

} // namespace __vel

#endif
