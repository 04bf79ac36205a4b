// Container and algorithm workloads: vector and deque growth, map and set of strings, sorting
// (std::sort, std::stable_sort, list::sort).
#include "bench.h"
#include "scale.h"
#include <algorithm>
#include <deque>
#include <list>
#include <map>
#include <set>
#include <string>
#include <vector>

// The same pseudo-random numbers for both libraries (not rand(): the C library's is the same, but
// this keeps the inputs independent of it).
static unsigned next_number(unsigned& state) {
  state = state * 1103515245u + 12345u;
  return state >> 8;
}

static void vector_push_back() {
  const long count = bench::scaled(10000000);
  double start = bench::now_ns();
  std::vector<int> v;
  for (long i = 0; i < count; ++i)
    v.push_back(static_cast<int>(i));
  bench::keep(&v[0]);
  bench::report("vector_int_push_back_10m", start, count);
}

static void map_insert_then_find() {
  const long count = bench::scaled(1000000);
  std::vector<int> keys(count);
  unsigned state = 1;
  for (long i = 0; i < count; ++i)
    keys[i] = static_cast<int>(next_number(state));
  double start = bench::now_ns();
  std::map<int, int> m;
  for (long i = 0; i < count; ++i)
    m.insert(std::make_pair(keys[i], static_cast<int>(i)));
  bench::report("map_int_int_insert_1m", start, count);
  start = bench::now_ns();
  long found = 0;
  for (long i = 0; i < count; ++i)
    found += m.find(keys[count - 1 - i]) != m.end();
  bench::keep(&found);
  bench::report("map_int_int_find_1m", start, count);
}

static void set_of_words() {
  const long count = bench::scaled(200000);
  std::vector<std::string> words;
  words.reserve(count);
  unsigned state = 7;
  for (long i = 0; i < count; ++i) {
    std::string word;
    unsigned length = 3 + next_number(state) % 8;
    for (unsigned j = 0; j < length; ++j)
      word += static_cast<char>('a' + next_number(state) % 26);
    words.push_back(word);
  }
  double start = bench::now_ns();
  std::set<std::string> s;
  for (long i = 0; i < count; ++i)
    s.insert(words[i]);
  bench::keep(&s);
  bench::report("set_string_insert_200k_words", start, count);
}

static void sort_ints(bool stable) {
  const long count = bench::scaled(1000000);
  std::vector<int> v(count);
  unsigned state = 3;
  for (long i = 0; i < count; ++i)
    v[i] = static_cast<int>(next_number(state));
  double start = bench::now_ns();
  if (stable)
    std::stable_sort(v.begin(), v.end());
  else
    std::sort(v.begin(), v.end());
  bench::keep(&v[0]);
  bench::report(stable ? "stable_sort_1m_ints" : "sort_1m_ints", start, count);
}

static void list_sort() {
  const long count = bench::scaled(1000000);
  std::list<int> l;
  unsigned state = 5;
  for (long i = 0; i < count; ++i)
    l.push_back(static_cast<int>(next_number(state)));
  double start = bench::now_ns();
  l.sort();
  bench::keep(&l.front());
  bench::report("list_int_sort_1m", start, count);
}

static void deque_both_ends() {
  const long count = bench::scaled(10000000);
  double start = bench::now_ns();
  std::deque<int> d;
  for (long i = 0; i < count; i += 2) {
    d.push_back(static_cast<int>(i));
    d.push_front(static_cast<int>(i));
  }
  bench::keep(&d.front());
  bench::report("deque_int_push_both_ends_10m", start, count);
}

int main() {
  vector_push_back();
  map_insert_then_find();
  set_of_words();
  sort_ints(false);
  sort_ints(true);
  list_sort();
  deque_both_ends();
  return 0;
}
