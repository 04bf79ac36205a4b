// std::char_traits<char>: the character operations of std::string and the streams.
#ifndef __LORB_STRING_TRAITS_H
#define __LORB_STRING_TRAITS_H

#include <__lorb/config.h>
#include <cstddef>
#include <cstring>
#include <cwchar>

namespace std {
// The stream position types, declared here because char_traits<char> names them; the stream base
// defines fpos.
typedef long streamoff;
template <class _State> class fpos;
typedef fpos<mbstate_t> streampos;

template <class _CharT> struct char_traits;

// Characters leave as unsigned char values 0 to 255 so that none of them equals eof().
template <> struct __LORB_EXPORT char_traits<char> {
  typedef char char_type;
  typedef int int_type;
  typedef streamoff off_type;
  typedef streampos pos_type;
  typedef mbstate_t state_type;

  static void assign(char_type& to, const char_type& from) { to = from; }
  static bool eq(const char_type& a, const char_type& b) { return a == b; }
  static bool lt(const char_type& a, const char_type& b) {
    return static_cast<unsigned char>(a) < static_cast<unsigned char>(b);
  }
  static int compare(const char_type* a, const char_type* b, size_t n) {
    return n ? memcmp(a, b, n) : 0;
  }
  static size_t length(const char_type* s) { return strlen(s); }
  static const char_type* find(const char_type* s, size_t n, const char_type& c) {
    return n ? static_cast<const char_type*>(memchr(s, static_cast<unsigned char>(c), n)) : 0;
  }
  static char_type* move(char_type* to, const char_type* from, size_t n) {
    return n ? static_cast<char_type*>(memmove(to, from, n)) : to;
  }
  static char_type* copy(char_type* to, const char_type* from, size_t n) {
    return n ? static_cast<char_type*>(memcpy(to, from, n)) : to;
  }
  static char_type* assign(char_type* s, size_t n, char_type c) {
    return n ? static_cast<char_type*>(memset(s, static_cast<unsigned char>(c), n)) : s;
  }
  static int_type not_eof(const int_type& c) { return c == eof() ? 0 : c; }
  static char_type to_char_type(const int_type& c) { return static_cast<char_type>(c); }
  static int_type to_int_type(const char_type& c) { return static_cast<unsigned char>(c); }
  static bool eq_int_type(const int_type& a, const int_type& b) { return a == b; }
  static int_type eof() { return -1; }
};
} // namespace std

#endif
