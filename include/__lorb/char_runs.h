// Writing a run of characters through an output iterator, as one assignment per character
// would, with a fast path for the library's own file buffer.
#ifndef __LORB_CHAR_RUNS_H
#define __LORB_CHAR_RUNS_H

#include <__lorb/config.h>
#include <__lorb/streambuf.h>
#include <__lorb/streambuf_iterators.h>
#include <cstddef>

namespace __vel {

// Does what n calls of buffer->sputc(s[i]) do, stopping at the first that returns end-of-file
// (then false). A plain basic_filebuf<char> over the library's own codecvt is written with one
// putc_unlocked a character, the work its overflow would do, without the calls around it.
__LORB_EXPORT bool put_run(std::basic_streambuf<char>* buffer, const char* s, size_t n);
// The same for n copies of c.
__LORB_EXPORT bool put_copies(std::basic_streambuf<char>* buffer, char c, long n);

template <class _OutputIter>
inline _OutputIter put_chars(_OutputIter out, const char* s, size_t n) {
  for (const char* end = s + n; s < end; ++s, ++out)
    *out = *s;
  return out;
}
template <class _OutputIter> inline _OutputIter put_fill(_OutputIter out, char c, long n) {
  for (; n > 0; --n, ++out)
    *out = c;
  return out;
}

// Once the iterator has failed, every later character is dropped, as its assignment does.
inline std::ostreambuf_iterator<char> put_chars(std::ostreambuf_iterator<char> out, const char* s,
                                                size_t n) {
  if (!out.__failed && n && !put_run(out.__buffer, s, n))
    out.__failed = true;
  return out;
}
inline std::ostreambuf_iterator<char> put_fill(std::ostreambuf_iterator<char> out, char c, long n) {
  if (!out.__failed && n > 0 && !put_copies(out.__buffer, c, n))
    out.__failed = true;
  return out;
}

} // namespace __vel

#endif
