// The word-array operations behind every std::bitset: fill, logic, counting, shifting, comparing.
#include <__lorb/bitset_words.h>

namespace __vel {

void set(unsigned* words, unsigned n, unsigned mask) {
  if (n <= 1) {
    words[0] = mask; // kept: word 0 is written even when n is 0
    return;
  }
  for (unsigned i = 0; i < n - 1; ++i)
    words[i] = ~0u;
  words[n - 1] = mask;
}

void reset(unsigned* words, unsigned n) {
  for (unsigned i = 0; i < n; ++i)
    words[i] = 0;
}

void vector_not(unsigned* dst, const unsigned* src, unsigned n, unsigned mask) {
  if (n <= 1) {
    dst[0] = ~src[0] & mask; // kept: as for set, word 0 is written even when n is 0
    return;
  }
  for (unsigned i = 0; i < n - 1; ++i)
    dst[i] = ~src[i];
  dst[n - 1] = ~src[n - 1] & mask;
}

void vector_and(unsigned* dst, const unsigned* a, const unsigned* b, unsigned n) {
  for (unsigned i = 0; i < n; ++i)
    dst[i] = a[i] & b[i];
}

void vector_or(unsigned* dst, const unsigned* a, const unsigned* b, unsigned n) {
  for (unsigned i = 0; i < n; ++i)
    dst[i] = a[i] | b[i];
}

void vector_xor(unsigned* dst, const unsigned* a, const unsigned* b, unsigned n) {
  for (unsigned i = 0; i < n; ++i)
    dst[i] = a[i] ^ b[i];
}

bool any(const unsigned* words, unsigned n) {
  for (unsigned i = 0; i < n; ++i)
    if (words[i])
      return true;
  return false;
}

// A branch-free population count per word: pairs, nibbles, bytes, then the bytes summed.
unsigned count(const unsigned* words, unsigned n) {
  unsigned total = 0;
  for (unsigned i = 0; i < n; ++i) {
    unsigned w = words[i];
    w = (w & 0x55555555u) + ((w >> 1) & 0x55555555u);
    w = (w & 0x33333333u) + ((w >> 2) & 0x33333333u);
    w = (w + (w >> 4)) & 0x0F0F0F0Fu;
    w = w + (w >> 8);
    w = w + (w >> 16);
    total += w & 0xFF;
  }
  return total;
}

// Words are written from the top down, so dst may be src.
void shift_left(unsigned* dst, const unsigned* src, unsigned shift, unsigned n, unsigned mask) {
  if (n == 0)
    return;
  unsigned q = shift / 32;
  unsigned b = shift % 32;
  if (b == 0) {
    if (q >= n) {
      reset(dst, n);
      return;
    }
    dst[n - 1] = src[n - 1 - q] & mask;
    for (unsigned i = n - 1; i-- > q;)
      dst[i] = src[i - q];
    reset(dst, q);
    return;
  }
  if (q < n - 1) {
    dst[n - 1] = ((src[n - 1 - q] << b) | (src[n - 2 - q] >> (32 - b))) & mask;
    for (unsigned i = n - 2; i > q; --i)
      dst[i] = (src[i - q] << b) | (src[i - q - 1] >> (32 - b));
    dst[q] = src[0] << b;
    reset(dst, q);
    return;
  }
  // q is n - 1 here as long as the caller keeps the shift below 32 * n.
  dst[n - 1] = (src[n - 1 - q] << b) & mask;
  reset(dst, n - 1);
}

// Words are read ahead of the words written, so dst may be src. With shift % 32 != 0 a shift of
// 32 * n or more reads past the end of src (callers clear instead).
void shift_right(unsigned* dst, const unsigned* src, unsigned shift, unsigned n) {
  if (n == 0)
    return;
  unsigned q = shift / 32;
  unsigned b = shift % 32;
  unsigned i = 0;
  if (b == 0) {
    for (; i + q < n; ++i)
      dst[i] = src[i + q];
    for (; i < n; ++i)
      dst[i] = 0;
    return;
  }
  // kept: the carry from the higher word is shifted right by 32 - b, not left.
  for (; i + q + 1 < n; ++i)
    dst[i] = (src[i + q] >> b) | (src[i + q + 1] >> (32 - b));
  // kept: the highest partial word is written and then cleared with the words above it, so
  // the top destination word always ends 0.
  dst[i] = src[i + q] >> b;
  for (; i < n; ++i)
    dst[i] = 0;
}

bool equal(const unsigned* a, const unsigned* b, unsigned n) {
  for (unsigned i = 0; i < n; ++i)
    if (a[i] != b[i])
      return false;
  return true;
}

} // namespace __vel
