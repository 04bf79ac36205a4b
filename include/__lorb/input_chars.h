// Reading a parser's input one character at a time: look at the next character (-1 when the
// input has ended) and step past it. Over the stream-buffer iterator the look is one sgetc.
#ifndef __LORB_INPUT_CHARS_H
#define __LORB_INPUT_CHARS_H

#include <__lorb/streambuf_iterators.h>

namespace __vel {

// The next character as 0..255, or -1 when in has reached end.
template <class _InputIter> inline int peek_char(const _InputIter& in, const _InputIter& end) {
  return in == end ? -1 : static_cast<unsigned char>(*in);
}

// An end iterator without a buffer is the usual end-of-stream: one sgetc answers both questions.
inline int peek_char(const std::istreambuf_iterator<char>& in,
                     const std::istreambuf_iterator<char>& end) {
  if (!in.__buffer)
    return -1;
  if (end.__buffer)
    return in == end ? -1 : static_cast<unsigned char>(*in);
  return in.__buffer->sgetc();
}

// Whether in has reached end.
template <class _InputIter> inline bool at_end(const _InputIter& in, const _InputIter& end) {
  return peek_char(in, end) == -1;
}

} // namespace __vel

#endif
