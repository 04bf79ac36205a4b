// A model of std::bitset for the tests: one bool per bit, with the standard's meaning for every
// operation except the right shift, which follows the library's word algorithm bit by bit.
#ifndef BITSET_MODEL_H
#define BITSET_MODEL_H

#include <string>

struct bit_model {
  enum { most = 256 };
  unsigned n;
  bool bits[most];

  explicit bit_model(unsigned size) : n(size) { clear(); }
  void clear() {
    for (unsigned i = 0; i < most; ++i)
      bits[i] = false;
  }
  // Bit i of the set; positions at or above n read as 0.
  bool at(unsigned i) const { return i < n && bits[i]; }

  // The first min(n, length) characters, the last of them giving bit 0, as the constructor
  // from a string takes them.
  static bit_model from_text(unsigned size, const std::string& text) {
    bit_model m(size);
    unsigned used = text.size() < size ? static_cast<unsigned>(text.size()) : size;
    for (unsigned i = 0; i < used; ++i)
      m.bits[i] = text[used - 1 - i] == '1';
    return m;
  }
  std::string text() const {
    std::string t;
    for (unsigned i = n; i > 0; --i)
      t += bits[i - 1] ? '1' : '0';
    return t;
  }
  unsigned count() const {
    unsigned c = 0;
    for (unsigned i = 0; i < n; ++i)
      c += bits[i];
    return c;
  }

  bit_model shifted_left(unsigned shift) const {
    bit_model m(n);
    for (unsigned i = 0; i < n; ++i)
      m.bits[i] = i >= shift && at(i - shift);
    return m;
  }

  // Right shifts follow the word algorithm: with q = shift / 32 and b = shift % 32 over W words,
  // destination word i (while i + q + 1 < W) is (src[i+q] >> b) | (src[i+q+1] >> (32 - b)) and
  // every word from W - 1 - q up is 0. Bit k of word i is then bit k + b of src[i+q] when
  // k + b < 32, or'ed with bit k + 32 - b of src[i+q+1] when k < b. A multiple of 32 moves
  // whole words, the standard's result; a shift of n or more clears the set.
  bit_model shifted_right_as_words(unsigned shift) const {
    bit_model m(n);
    if (shift >= n)
      return m;
    unsigned words = (n + 31) / 32, q = shift / 32, b = shift % 32;
    for (unsigned p = 0; p < n; ++p) {
      if (b == 0) {
        m.bits[p] = at(p + shift);
        continue;
      }
      unsigned i = p / 32, k = p % 32;
      if (i + q + 1 >= words)
        continue;
      bool from_same_word = k + b < 32 && at(p + shift);
      bool from_next_word = k < b && at(32 * (i + q + 1) + k + 32 - b);
      m.bits[p] = from_same_word || from_next_word;
    }
    return m;
  }

  // The standard's right shift, for the cases where the two agree.
  bit_model shifted_right(unsigned shift) const {
    bit_model m(n);
    for (unsigned i = 0; i < n; ++i)
      m.bits[i] = at(i + shift);
    return m;
  }
};

#endif
