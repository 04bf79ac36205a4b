// Runs of characters into a stream buffer, with the file buffer's fast path: the characters
// that overflow would hand to the C library one call at a time go there directly.
#include <__lorb/char_runs.h>
#include <__lorb/library_facets.h>
#include <stdio.h>

namespace __vel {

namespace {

// The buffer's own overflow would take each character: a plain file buffer (its put area always
// empty) whose locale holds the library's codecvt, which never converts.
FILE* direct_file(std::basic_streambuf<char>* buffer) {
  if (!is_library_filebuf(buffer))
    return 0;
  std::basic_filebuf<char>* file_buffer = static_cast<std::basic_filebuf<char>*>(buffer);
  const std::codecvt<char, char, int>& convert =
      std::use_facet<std::codecvt<char, char, int> >(file_buffer->__locale);
  if (!is_library_codecvt(convert))
    return 0;
  return file_buffer->__file;
}

} // namespace

bool put_run(std::basic_streambuf<char>* buffer, const char* s, size_t n) {
  if (is_library_stringbuf(buffer)) // its bulk write is the run of overflows
    return buffer->sputn(s, static_cast<std::streamsize>(n)) == static_cast<std::streamsize>(n);
  const char* end = s + n;
  if (FILE* file = direct_file(buffer)) {
    for (; s < end; ++s)
      if (putc_unlocked(*s, file) == EOF)
        return false;
    return true;
  }
  for (; s < end; ++s)
    if (buffer->sputc(*s) == EOF)
      return false;
  return true;
}

bool put_copies(std::basic_streambuf<char>* buffer, char c, long n) {
  if (FILE* file = direct_file(buffer)) {
    for (; n > 0; --n)
      if (putc_unlocked(c, file) == EOF)
        return false;
    return true;
  }
  for (; n > 0; --n)
    if (buffer->sputc(c) == EOF)
      return false;
  return true;
}

} // namespace __vel
