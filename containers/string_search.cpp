// std::string's searches: find, rfind and the four character-set searches.
#include <string>

namespace std {
typedef string::size_type size_type;

static bool among(char c, const char* set, size_type n) {
  return string::traits_type::find(set, n, c) != 0;
}

// Compares after a first-character hit; most hits fail within a few characters, so a plain loop
// costs less than a call.
static bool rest_matches(const char* at, const char* pattern, size_type n) {
  for (size_type i = 1; i < n; ++i)
    if (at[i] != pattern[i])
      return false;
  return true;
}

// Kept: an empty pattern is never found, not even at pos.
size_type string::find(const char* s, size_type pos, size_type n) const {
  size_type length = __r->length;
  if (n == 0 || length == 0 || pos > length || n > length - pos)
    return npos;
  const char* text = __r->data;
  const char* last_start = text + (length - n);
  const char* at = text + pos;
  while (at <= last_start) {
    if (*at != s[0]) { // a hit at once is common and needs no call
      at = traits_type::find(at, last_start - at + 1, s[0]);
      if (!at)
        return npos;
    }
    if (rest_matches(at, s, n))
      return at - text;
    ++at;
  }
  return npos;
}

// Kept: an empty pattern is never found.
size_type string::rfind(const char* s, size_type pos, size_type n) const {
  size_type length = __r->length;
  if (n == 0 || n > length)
    return npos;
  size_type start = length - n < pos ? length - n : pos;
  for (const char* at = __r->data + start;; --at) {
    if (traits_type::compare(at, s, n) == 0)
      return at - __r->data;
    if (at == __r->data)
      return npos;
  }
}

size_type string::find_first_of(const char* s, size_type pos, size_type n) const {
  if (n == 0 || pos >= __r->length)
    return npos;
  for (size_type i = pos; i < __r->length; ++i)
    if (among(__r->data[i], s, n))
      return i;
  return npos;
}

size_type string::find_last_of(const char* s, size_type pos, size_type n) const {
  if (n == 0 || __r->length == 0)
    return npos;
  for (size_type i = pos < __r->length ? pos : __r->length - 1;; --i) {
    if (among(__r->data[i], s, n))
      return i;
    if (i == 0)
      return npos;
  }
}

size_type string::find_first_not_of(const char* s, size_type pos, size_type n) const {
  for (size_type i = pos; i < __r->length; ++i)
    if (!among(__r->data[i], s, n))
      return i;
  return npos;
}

size_type string::find_last_not_of(const char* s, size_type pos, size_type n) const {
  if (__r->length == 0)
    return npos;
  for (size_type i = pos < __r->length ? pos : __r->length - 1;; --i) {
    if (!among(__r->data[i], s, n))
      return i;
    if (i == 0)
      return npos;
  }
}
} // namespace std
