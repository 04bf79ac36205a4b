// What the algorithm programs share: a seeded generator of their own, the input shapes they run
// every algorithm over, printing of int arrays, and records whose equal keys can be told apart.
#ifndef ALGORITHMS_SUPPORT_H
#define ALGORITHMS_SUPPORT_H

#include <stdio.h>

// Linear congruential generator; 32-bit arithmetic so both builds draw the same numbers.
struct generator {
  unsigned int seed;
  explicit generator(unsigned int s) : seed(s) {}
  unsigned int next() {
    seed = seed * 1103515245u + 12345u;
    return seed >> 8;
  }
  int below(int n) { return static_cast<int>(next() % static_cast<unsigned int>(n)); }
};

// Sizes every program goes through, short ones each, and the value spans: 2 makes duplicates the
// rule, 1000 makes them rare.
static const int sizes[] = {0, 1, 2, 3, 4, 7, 16, 17, 31, 50, 100, 257};
static const int size_count = sizeof sizes / sizeof sizes[0];
static const int spans[] = {2, 10, 1000};
static const int span_count = sizeof spans / sizeof spans[0];

static inline void fill(int* a, int n, int span, generator& gen) {
  for (int i = 0; i < n; ++i)
    a[i] = gen.below(span);
}

static inline void print(const char* name, const int* first, const int* last) {
  printf("%s [", name);
  for (const int* p = first; p != last; ++p)
    printf(p == first ? "%d" : " %d", *p);
  printf("]\n");
}

struct record {
  int key;
  int id;
};
static inline bool operator<(const record& a, const record& b) { return a.key < b.key; }
static inline bool operator==(const record& a, const record& b) { return a.key == b.key; }

static inline void print_records(const char* name, const record* first, const record* last) {
  printf("%s [", name);
  for (const record* p = first; p != last; ++p)
    printf(p == first ? "%d/%d" : " %d/%d", p->key, p->id);
  printf("]\n");
}

#endif
