// Text padding of the character-string inserters: the fill narrowing and the fill writer.
#ifndef __LORB_PADDING_H
#define __LORB_PADDING_H

#include <__lorb/streambuf.h>

namespace __vel {

// Kept: a fill character of 128..255 pads with '\0'; 0..127 pads as it is.
inline char narrowed_fill(char fill) {
  return static_cast<unsigned char>(fill) < 128 ? fill : '\0';
}

// Writes count copies of fill with sputc; stops at the first that fails and then says false.
inline bool write_fill(std::basic_streambuf<char>* buffer, char fill, long count) {
  for (; count > 0; --count)
    if (buffer->sputc(fill) == -1)
      return false;
  return true;
}

} // namespace __vel

#endif
