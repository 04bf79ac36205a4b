// What the sequence-container programs share: a seeded generator, an array model of the
// contents, a checksum and the printing of a range.
#ifndef CONTAINERS_SEQUENCE_SUPPORT_H
#define CONTAINERS_SEQUENCE_SUPPORT_H

#include <stdio.h>

// Linear congruential generator; 32-bit arithmetic so both builds draw the same numbers.
struct generator {
  unsigned seed;
  explicit generator(unsigned s) : seed(s) {}
  unsigned next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  unsigned below(unsigned n) { return n ? next() % n : 0; }
};

// The expected contents, as a plain array the operations are mirrored on.
struct array_model {
  enum { room = 2000 };
  int value[room];
  unsigned size;
  array_model() : size(0) {}
  void open(unsigned at, unsigned n) {
    for (unsigned i = size; i > at; --i)
      value[i - 1 + n] = value[i - 1];
    size += n;
  }
  void close(unsigned at, unsigned n) {
    for (unsigned i = at; i + n < size; ++i)
      value[i] = value[i + n];
    size -= n;
  }
};

// Whether [first, last) holds exactly the model's values.
template <class _Iter> bool agrees(const array_model& m, _Iter first, _Iter last) {
  unsigned i = 0;
  for (; first != last; ++first, ++i)
    if (i == m.size || int(*first) != m.value[i])
      return false;
  return i == m.size;
}

// FNV-1a over the values, with the count.
template <class _Iter> unsigned checksum(_Iter first, _Iter last) {
  unsigned h = 2166136261u, n = 0;
  for (; first != last; ++first, ++n)
    h = (h ^ unsigned(int(*first))) * 16777619u;
  return h ^ n;
}

template <class _Iter> void print_range(const char* label, _Iter first, _Iter last) {
  printf("%s:", label);
  for (; first != last; ++first)
    printf(" %d", int(*first));
  printf("\n");
}

#endif
