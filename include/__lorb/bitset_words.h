// The word-array work behind std::bitset, shared by every size (containers/bitset_words.cpp).
// n is the word count; mask holds the bits of the last word that belong to the set.
#ifndef __LORB_BITSET_WORDS_H
#define __LORB_BITSET_WORDS_H

#include <__lorb/config.h>

namespace __vel {

// Word 0 is written even when n is 0.
__LORB_EXPORT void set(unsigned* words, unsigned n, unsigned mask);
__LORB_EXPORT void reset(unsigned* words, unsigned n);
__LORB_EXPORT void vector_not(unsigned* dst, const unsigned* src, unsigned n, unsigned mask);
__LORB_EXPORT void vector_and(unsigned* dst, const unsigned* a, const unsigned* b, unsigned n);
__LORB_EXPORT void vector_or(unsigned* dst, const unsigned* a, const unsigned* b, unsigned n);
__LORB_EXPORT void vector_xor(unsigned* dst, const unsigned* a, const unsigned* b, unsigned n);
__LORB_EXPORT bool any(const unsigned* words, unsigned n);
__LORB_EXPORT unsigned count(const unsigned* words, unsigned n);
// A shift of 32 * n or more with shift % 32 != 0 reads before src: callers clear instead.
__LORB_EXPORT void shift_left(unsigned* dst, const unsigned* src, unsigned shift, unsigned n,
                              unsigned mask);
// Kept: a shift that is not a multiple of 32 leaves the top word 0 (see bitset_words.cpp).
__LORB_EXPORT void shift_right(unsigned* dst, const unsigned* src, unsigned shift, unsigned n);
__LORB_EXPORT bool equal(const unsigned* a, const unsigned* b, unsigned n);

} // namespace __vel

#endif
