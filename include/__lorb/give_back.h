// Giving a character just taken back to its stream buffer: the one rule every extractor that
// reads one character too many follows.
#ifndef __LORB_GIVE_BACK_H
#define __LORB_GIVE_BACK_H

#include <__lorb/streambuf.h>

namespace __vel {

// Steps gptr back when the character before it is c, else asks the buffer's pbackfail(c). The
// end-of-file value is never the character before gptr, so it always reaches pbackfail.
inline int give_back(std::basic_streambuf<char>* buffer, int c) {
  if (c != -1)
    return buffer->sputbackc(static_cast<char>(c));
  struct pbackfail_caller : std::basic_streambuf<char> {
    static int call(std::basic_streambuf<char>* target, int c) {
      return (target->*&pbackfail_caller::pbackfail)(c);
    }
  };
  return pbackfail_caller::call(buffer, c);
}

} // namespace __vel

#endif
