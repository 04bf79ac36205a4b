// Which types are integers: a sequence container's range constructor, assign and insert take two
// integers as a count and a value, not as iterators.
#ifndef __LORB_INTEGER_TYPE_H
#define __LORB_INTEGER_TYPE_H

namespace __vel {

template <class _T> struct is_integer_type {
  enum { value = 0 };
};

#define __LORB_INTEGER(type)                                                                       \
  template <> struct is_integer_type<type> {                                                       \
    enum { value = 1 };                                                                            \
  };
// clang-format off
__LORB_INTEGER(bool)
__LORB_INTEGER(char)
__LORB_INTEGER(signed char)
__LORB_INTEGER(unsigned char)
__LORB_INTEGER(wchar_t)
__LORB_INTEGER(short)
__LORB_INTEGER(unsigned short)
__LORB_INTEGER(int)
__LORB_INTEGER(unsigned int)
__LORB_INTEGER(long)
__LORB_INTEGER(unsigned long)
// C++98 has no long long; the compiler's extension does (__extension__ does not quiet it here).
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wlong-long"
__LORB_INTEGER(long long)
__LORB_INTEGER(unsigned long long)
#pragma GCC diagnostic pop
#if __cplusplus >= 201103L
__LORB_INTEGER(char16_t)
__LORB_INTEGER(char32_t)
#endif
// clang-format on
#undef __LORB_INTEGER

} // namespace __vel

#endif
