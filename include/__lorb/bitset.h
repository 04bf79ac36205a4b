// std::bitset: N bits in an array of 32-bit words, whose whole-array work is done by the shared
// word functions; and its stream inserter and extractor.
#ifndef __LORB_BITSET_H
#define __LORB_BITSET_H

#include <__lorb/bitset_words.h>
#include <__lorb/error.h>
#include <cstddef>
#include <iosfwd>
#include <string>

namespace std {

// Bit i is bit i % 32 of word i / 32; the bits of the last word above N are always 0. A bitset of
// 0 bits still keeps one word, always 0: the word functions write word 0 whatever the count, so
// the count handed to them is the number of words kept, and the last-word mask of 0 keeps it 0.
template <size_t _N> class bitset {
  enum { word_bits = 32 };
  enum { word_count = _N == 0 ? 1 : (_N + word_bits - 1) / word_bits };
  static unsigned last_word_mask() {
    return _N % word_bits ? (1u << _N % word_bits) - 1 : _N == 0 ? 0u : ~0u;
  }
  static unsigned bit_of(size_t pos) { return 1u << pos % word_bits; }

public:
  class reference {
    friend class bitset;
    reference(bitset& b, size_t pos) : word(&b.words[pos / word_bits]), bit(bit_of(pos)) {}

  public:
    reference(const reference& other) : word(other.word), bit(other.bit) {}
    ~reference() {}
    reference& operator=(bool x) {
      if (x)
        *word |= bit;
      else
        *word &= ~bit;
      return *this;
    }
    reference& operator=(const reference& other) { return *this = bool(other); }
    bool operator~() const { return (*word & bit) == 0; }
    operator bool() const { return (*word & bit) != 0; }
    reference& flip() {
      *word ^= bit;
      return *this;
    }

  private:
    unsigned* word;
    unsigned bit;
  };

  bitset() { __vel::reset(words, word_count); }
  // unsigned long has 32 bits here: it fills word 0 alone.
  bitset(unsigned long value) {
    __vel::reset(words, word_count);
    words[0] = static_cast<unsigned>(value) & (word_count == 1 ? last_word_mask() : ~0u);
  }
  // The characters [pos, pos + n) (cut at the string's end), the last one giving bit 0; only
  // the first N of them are used, but every one of them must be '0' or '1'.
  template <class _CharT, class _Traits, class _Alloc>
  explicit bitset(const basic_string<_CharT, _Traits, _Alloc>& str,
                  typename basic_string<_CharT, _Traits, _Alloc>::size_type pos = 0,
                  typename basic_string<_CharT, _Traits, _Alloc>::size_type n =
                      basic_string<_CharT, _Traits, _Alloc>::npos) {
    if (pos > str.size())
      __vel::throw_range();
    size_t length = str.size() - pos < n ? str.size() - pos : n;
    for (size_t i = 0; i < length; ++i)
      if (!_Traits::eq(str[pos + i], _CharT('0')) && !_Traits::eq(str[pos + i], _CharT('1')))
        __vel::throw_invalid_value_in_string();
    __vel::reset(words, word_count);
    size_t used = length < _N ? length : _N;
    for (size_t i = 0; i < used; ++i)
      if (_Traits::eq(str[pos + used - 1 - i], _CharT('1')))
        words[i / word_bits] |= bit_of(i);
  }

  bitset& operator&=(const bitset& other) {
    __vel::vector_and(words, words, other.words, word_count);
    return *this;
  }
  bitset& operator|=(const bitset& other) {
    __vel::vector_or(words, words, other.words, word_count);
    return *this;
  }
  bitset& operator^=(const bitset& other) {
    __vel::vector_xor(words, words, other.words, word_count);
    return *this;
  }
  // Shifts of N or more clear the set: the word functions must not see them.
  bitset& operator<<=(size_t shift) {
    if (shift >= _N)
      return reset();
    __vel::shift_left(words, words, shift, word_count, last_word_mask());
    return *this;
  }
  // Kept: a right shift by a non-multiple of 32 leaves the top word 0 and carries bits across
  // words shifted the wrong way, as the word function does.
  bitset& operator>>=(size_t shift) {
    if (shift >= _N)
      return reset();
    __vel::shift_right(words, words, shift, word_count);
    return *this;
  }

  bitset& set() {
    __vel::set(words, word_count, last_word_mask());
    return *this;
  }
  bitset& set(size_t pos, int value = true) {
    if (pos >= _N)
      __vel::throw_range();
    (*this)[pos] = value != 0;
    return *this;
  }
  bitset& reset() {
    __vel::reset(words, word_count);
    return *this;
  }
  bitset& reset(size_t pos) {
    if (pos >= _N)
      __vel::throw_range();
    words[pos / word_bits] &= ~bit_of(pos);
    return *this;
  }
  bitset operator~() const {
    bitset result;
    __vel::vector_not(result.words, words, word_count, last_word_mask());
    return result;
  }
  bitset& flip() {
    __vel::vector_not(words, words, word_count, last_word_mask());
    return *this;
  }
  bitset& flip(size_t pos) {
    if (pos >= _N)
      __vel::throw_range();
    words[pos / word_bits] ^= bit_of(pos);
    return *this;
  }

  // Unchecked, as the standard allows.
  reference operator[](size_t pos) { return reference(*this, pos); }
  bool operator[](size_t pos) const { return (words[pos / word_bits] & bit_of(pos)) != 0; }

  // Any bit from 32 up makes the value too large for unsigned long.
  unsigned long to_ulong() const {
    if (__vel::any(words + 1, word_count - 1))
      __vel::throw_bitset_overflow();
    return words[0];
  }
  // Bit N-1 first.
  template <class _CharT, class _Traits, class _Alloc>
  basic_string<_CharT, _Traits, _Alloc> to_string() const {
    basic_string<_CharT, _Traits, _Alloc> text;
    text.reserve(_N);
    for (size_t i = _N; i > 0; --i)
      text.push_back((*this)[i - 1] ? _CharT('1') : _CharT('0'));
    return text;
  }
  // The shorter spellings later standards added, so that to_string() needs no arguments.
  template <class _CharT, class _Traits>
  basic_string<_CharT, _Traits, allocator<_CharT> > to_string() const {
    return to_string<_CharT, _Traits, allocator<_CharT> >();
  }
  template <class _CharT>
  basic_string<_CharT, char_traits<_CharT>, allocator<_CharT> > to_string() const {
    return to_string<_CharT, char_traits<_CharT>, allocator<_CharT> >();
  }
  basic_string<char, char_traits<char>, allocator<char> > to_string() const {
    return to_string<char, char_traits<char>, allocator<char> >();
  }

  size_t count() const { return __vel::count(words, word_count); }
  size_t size() const { return _N; }
  bool operator==(const bitset& other) const {
    return __vel::equal(words, other.words, word_count);
  }
  bool operator!=(const bitset& other) const { return !(*this == other); }
  bool test(size_t pos) const {
    if (pos >= _N)
      __vel::throw_range();
    return (*this)[pos];
  }
  bool any() const { return __vel::any(words, word_count); }
  bool none() const { return !any(); }
  bitset operator<<(size_t shift) const { return bitset(*this) <<= shift; }
  bitset operator>>(size_t shift) const { return bitset(*this) >>= shift; }

private:
  unsigned words[word_count];
};

template <size_t _N> inline bitset<_N> operator&(const bitset<_N>& x, const bitset<_N>& y) {
  return bitset<_N>(x) &= y;
}
template <size_t _N> inline bitset<_N> operator|(const bitset<_N>& x, const bitset<_N>& y) {
  return bitset<_N>(x) |= y;
}
template <size_t _N> inline bitset<_N> operator^(const bitset<_N>& x, const bitset<_N>& y) {
  return bitset<_N>(x) ^= y;
}

// Skips white space, then reads up to N characters while they are '0' or '1' (the first other
// character stays in the stream). Reading none sets failbit, except for a set of 0 bits.
template <class _CharT, class _Traits, size_t _N>
basic_istream<_CharT, _Traits>& operator>>(basic_istream<_CharT, _Traits>& is, bitset<_N>& x) {
  typedef basic_istream<_CharT, _Traits> istream_type; // ios_base may be incomplete here
  typename istream_type::sentry ok(is);
  if (!ok)
    return is;
  basic_string<_CharT, _Traits, allocator<_CharT> > digits;
  typename istream_type::iostate state = istream_type::goodbit;
  while (digits.size() < _N) {
    typename _Traits::int_type next = is.rdbuf()->sgetc();
    if (_Traits::eq_int_type(next, _Traits::eof())) {
      state |= istream_type::eofbit;
      break;
    }
    _CharT c = _Traits::to_char_type(next);
    if (!_Traits::eq(c, _CharT('0')) && !_Traits::eq(c, _CharT('1')))
      break;
    digits.push_back(c);
    is.rdbuf()->sbumpc();
  }
  if (digits.empty() && _N > 0)
    state |= istream_type::failbit;
  else
    x = bitset<_N>(digits);
  if (state != istream_type::goodbit)
    is.setstate(state);
  return is;
}

template <class _CharT, class _Traits, size_t _N>
basic_ostream<_CharT, _Traits>& operator<<(basic_ostream<_CharT, _Traits>& os,
                                           const bitset<_N>& x) {
  return os << x.template to_string<_CharT, _Traits, allocator<_CharT> >();
}

} // namespace std

#endif
