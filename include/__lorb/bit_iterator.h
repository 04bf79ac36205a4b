// The reference and the random-access iterators of vector<bool>: a bit is a word pointer and a
// bit offset within that 32-bit word.
#ifndef __LORB_BIT_ITERATOR_H
#define __LORB_BIT_ITERATOR_H

#include <__lorb/iterator_tags.h>
#include <cstddef>

namespace __vel {

enum { bits_per_word = 32 };

// No operator~: as the standard's vector<bool>::reference, ~ works on the converted bool.
class bit_reference {
public:
  bit_reference(unsigned* word, unsigned mask) : __word(word), __mask(mask) {}
  bit_reference(const bit_reference& other) : __word(other.__word), __mask(other.__mask) {}
  ~bit_reference() {}
  operator bool() const { return (*__word & __mask) != 0; }
  bit_reference& operator=(bool x) {
    if (x)
      *__word |= __mask;
    else
      *__word &= ~__mask;
    return *this;
  }
  bit_reference& operator=(const bit_reference& other) { return *this = bool(other); }
  void flip() { *__word ^= __mask; }

private:
  unsigned* __word;
  unsigned __mask;
};

// The position both iterators share, with the steps and the comparisons.
class bit_position {
public:
  bit_position(unsigned* word, unsigned offset) : __word(word), __offset(offset) {}

  unsigned* word() const { return __word; }
  unsigned offset() const { return __offset; }
  bit_reference bit() const { return bit_reference(__word, 1u << __offset); }

protected:
  void __step_up() {
    if (++__offset == unsigned(bits_per_word)) {
      __offset = 0;
      ++__word;
    }
  }
  void __step_down() {
    if (__offset-- == 0) {
      __offset = bits_per_word - 1;
      --__word;
    }
  }
  void __move(std::ptrdiff_t n) {
    std::ptrdiff_t bits = n + std::ptrdiff_t(__offset);
    __word += bits / bits_per_word;
    bits %= bits_per_word;
    if (bits < 0) {
      bits += bits_per_word;
      --__word;
    }
    __offset = unsigned(bits);
  }

  unsigned* __word;
  unsigned __offset; // 0 to 31
};

inline std::ptrdiff_t operator-(const bit_position& x, const bit_position& y) {
  return bits_per_word * (x.word() - y.word()) + std::ptrdiff_t(x.offset()) -
         std::ptrdiff_t(y.offset());
}
inline bool operator==(const bit_position& x, const bit_position& y) {
  return x.word() == y.word() && x.offset() == y.offset();
}
inline bool operator!=(const bit_position& x, const bit_position& y) { return !(x == y); }
inline bool operator<(const bit_position& x, const bit_position& y) {
  return x.word() < y.word() || (x.word() == y.word() && x.offset() < y.offset());
}
inline bool operator>(const bit_position& x, const bit_position& y) { return y < x; }
inline bool operator<=(const bit_position& x, const bit_position& y) { return !(y < x); }
inline bool operator>=(const bit_position& x, const bit_position& y) { return !(x < y); }

// _Ref is bit_reference for the iterator and bool for the const_iterator.
// The std::iterator base puts namespace std among the places an unqualified call looks.
template <class _Ref>
class bit_iterator : public std::iterator<std::random_access_iterator_tag, bool, std::ptrdiff_t,
                                          bit_reference*, _Ref>,
                     public bit_position {
public:
  typedef std::random_access_iterator_tag iterator_category;
  typedef bool value_type;
  typedef std::ptrdiff_t difference_type;
  typedef bit_reference* pointer;
  typedef _Ref reference;

  bit_iterator() : bit_position(0, 0) {}
  bit_iterator(unsigned* word, unsigned offset) : bit_position(word, offset) {}
  // The const_iterator is made and assigned from the iterator; for the iterator these two are
  // its own copy operations.
  bit_iterator(const bit_iterator<bit_reference>& other)
      : bit_position(other.word(), other.offset()) {}
  bit_iterator& operator=(const bit_iterator<bit_reference>& other) {
    __word = other.word();
    __offset = other.offset();
    return *this;
  }

  reference operator*() const { return bit(); }
  reference operator[](difference_type n) const { return *(*this + n); }
  bit_iterator& operator++() {
    __step_up();
    return *this;
  }
  bit_iterator operator++(int) {
    bit_iterator old = *this;
    __step_up();
    return old;
  }
  bit_iterator& operator--() {
    __step_down();
    return *this;
  }
  bit_iterator operator--(int) {
    bit_iterator old = *this;
    __step_down();
    return old;
  }
  bit_iterator& operator+=(difference_type n) {
    __move(n);
    return *this;
  }
  bit_iterator& operator-=(difference_type n) {
    __move(-n);
    return *this;
  }
  bit_iterator operator+(difference_type n) const {
    bit_iterator moved = *this;
    return moved += n;
  }
  bit_iterator operator-(difference_type n) const {
    bit_iterator moved = *this;
    return moved -= n;
  }
  friend bit_iterator operator+(difference_type n, const bit_iterator& it) { return it + n; }
};

} // namespace __vel

#endif
