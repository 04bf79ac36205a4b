// What the algorithm tests share: iterators over plain arrays that offer only a weaker category,
// an output iterator that cannot be read, counting comparators, keyed records for stability
// checks, a small generator, and checks of order and of permutation.
#ifndef ALGORITHM_TEST_SUPPORT_H
#define ALGORITHM_TEST_SUPPORT_H

#include <__lorb/iterator_tags.h>
#include <stddef.h>

namespace at {

// Walks an array but claims only the given category, so the algorithms take that category's path.
template <class T, class Category> struct walker : std::iterator<Category, T> {
  T* at;
  walker() : at(0) {}
  explicit walker(T* p) : at(p) {}
  T& operator*() const { return *at; }
  T* operator->() const { return at; }
  walker& operator++() {
    ++at;
    return *this;
  }
  walker operator++(int) {
    walker old = *this;
    ++at;
    return old;
  }
  walker& operator--() {
    --at;
    return *this;
  }
  walker operator--(int) {
    walker old = *this;
    --at;
    return old;
  }
  bool operator==(const walker& other) const { return at == other.at; }
  bool operator!=(const walker& other) const { return at != other.at; }
};

template <class T> struct forward {
  typedef walker<T, std::forward_iterator_tag> type;
};
template <class T> struct bidirectional {
  typedef walker<T, std::bidirectional_iterator_tag> type;
};
template <class T> struct input {
  typedef walker<T, std::input_iterator_tag> type;
};
template <class T> inline walker<T, std::forward_iterator_tag> fw(T* p) {
  return walker<T, std::forward_iterator_tag>(p);
}
template <class T> inline walker<T, std::bidirectional_iterator_tag> bi(T* p) {
  return walker<T, std::bidirectional_iterator_tag>(p);
}
template <class T> inline walker<T, std::input_iterator_tag> in(T* p) {
  return walker<T, std::input_iterator_tag>(p);
}

// An output iterator whose elements can only be assigned.
template <class T> struct write_only : std::iterator<std::output_iterator_tag, void, void, void, void> {
  T* at;
  explicit write_only(T* p) : at(p) {}
  write_only& operator*() { return *this; }
  write_only& operator=(const T& value) {
    *at = value;
    return *this;
  }
  write_only& operator++() {
    ++at;
    return *this;
  }
  write_only operator++(int) {
    write_only old = *this;
    ++at;
    return old;
  }
};

// < that counts its calls.
struct counting_less {
  long* calls;
  explicit counting_less(long* counter) : calls(counter) {}
  template <class A, class B> bool operator()(const A& a, const B& b) const {
    ++*calls;
    return a < b;
  }
};

// A key to order by and an id to tell equal keys apart; < and == look at the key only.
struct record {
  int key;
  int id;
};
inline bool operator<(const record& a, const record& b) { return a.key < b.key; }
inline bool operator==(const record& a, const record& b) { return a.key == b.key; }
inline record make_record(int key, int id) {
  record r = {key, id};
  return r;
}

// Linear congruential generator, so every run draws the same inputs.
struct lcg {
  unsigned state;
  explicit lcg(unsigned seed) : state(seed) {}
  unsigned next() {
    state = state * 1103515245u + 12345u;
    return state >> 8;
  }
  int below(int n) { return static_cast<int>(next() % static_cast<unsigned>(n)); }
};

template <class T> bool is_sorted(const T* first, const T* last) {
  for (const T* p = first; p != last && p + 1 != last; ++p)
    if (p[1] < p[0])
      return false;
  return true;
}

// Equal keys keep their ids in increasing order.
inline bool is_stably_sorted(const record* first, const record* last) {
  for (const record* p = first; p != last && p + 1 != last; ++p)
    if (p[1].key < p[0].key || (p[1].key == p[0].key && p[1].id < p[0].id))
      return false;
  return true;
}

// Both arrays hold the same values as often, values in [0, limit).
inline bool same_values(const int* a, const int* b, int n, int limit) {
  int counts[4096] = {0};
  if (limit > 4096)
    return false;
  for (int i = 0; i < n; ++i) {
    if (a[i] < 0 || a[i] >= limit || b[i] < 0 || b[i] >= limit)
      return false;
    ++counts[a[i]];
    --counts[b[i]];
  }
  for (int v = 0; v < limit; ++v)
    if (counts[v])
      return false;
  return true;
}

// floor(log2(n)) for n > 0.
inline int log2_floor(long n) {
  int bits = 0;
  for (; n > 1; n /= 2)
    ++bits;
  return bits;
}

// The input shapes every sorting test goes through.
enum shape { random_values, few_values, all_equal, ascending, descending, organ_pipe, sawtooth,
             shape_count };
inline void fill_shape(int* a, int n, int which, lcg& gen) {
  for (int i = 0; i < n; ++i)
    switch (which) {
    case random_values: a[i] = gen.below(n + 1); break;
    case few_values: a[i] = gen.below(3); break;
    case all_equal: a[i] = 7; break;
    case ascending: a[i] = i; break;
    case descending: a[i] = n - i; break;
    case organ_pipe: a[i] = i < n / 2 ? i : n - i; break;
    default: a[i] = i % 17; break;
    }
}

// A comparator over indices that makes up the values as quicksort asks, always so that the
// element it compares against the pivot candidate is the smaller: median-of-three quicksort
// then splits off a few elements at a time and would need about N*N/4 comparisons.
struct adversary {
  int* values;
  int undecided;
  int decided;
  int candidate;
  long calls;
  adversary(int* storage, int n) : values(storage), undecided(n), decided(0), candidate(0),
                                   calls(0) {
    for (int i = 0; i < n; ++i)
      values[i] = undecided;
  }
  bool less(int x, int y) {
    ++calls;
    if (values[x] == undecided && values[y] == undecided) {
      if (x == candidate)
        values[x] = decided++;
      else
        values[y] = decided++;
    }
    if (values[x] == undecided)
      candidate = x;
    else if (values[y] == undecided)
      candidate = y;
    return values[x] < values[y];
  }
};
struct adversary_less {
  adversary* judge;
  explicit adversary_less(adversary* a) : judge(a) {}
  bool operator()(int x, int y) const { return judge->less(x, y); }
};

} // namespace at

#endif
