// std::vector over long generated operation sequences mirrored on an array model: every insert,
// erase, assign and resize form, swaps, copies and comparisons; checksums along the way, the
// final contents, and a vector of strings printed after each step.
#include "containers_sequence_support.h"
#include <list>
#include <string>
#include <vector>

static void check(const char* name, int step, bool ok) {
  if (!ok)
    printf("%s: disagrees with the model at step %d\n", name, step);
}

template <class _T> static void compare_all(const std::vector<_T>& a, const std::vector<_T>& b) {
  printf(" cmp %d%d%d%d%d%d", a == b, a != b, a<b, a> b, a <= b, a >= b);
}

template <class _T> static void run(const char* name, unsigned seed, int steps, int spread) {
  generator gen(seed);
  std::vector<_T> v;
  array_model m;
  for (int step = 0; step < steps; ++step) {
    unsigned at = gen.below(m.size + 1);
    _T value = _T(int(gen.below(unsigned(spread))) - spread / 2);
    bool room = m.size < 1500;
    switch (gen.below(15)) {
    case 0:
    case 1:
      if (room) {
        v.push_back(value);
        m.value[m.size++] = int(value);
      }
      break;
    case 2:
      if (m.size) {
        v.pop_back();
        --m.size;
      }
      break;
    case 3:
      if (room) {
        typename std::vector<_T>::iterator it = v.insert(v.begin() + at, value);
        check(name, step, it - v.begin() == int(at) && *it == value);
        m.open(at, 1);
        m.value[at] = int(value);
      }
      break;
    case 4: {
      unsigned n = gen.below(30);
      if (room) {
        v.insert(v.begin() + at, n, value);
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = int(value);
      }
      break;
    }
    case 5: {
      _T raw[25];
      unsigned n = gen.below(25);
      for (unsigned i = 0; i < n; ++i)
        raw[i] = _T(value + _T(i));
      std::list<_T> source(raw, raw + n);
      if (room) {
        if (gen.below(2))
          v.insert(v.begin() + at, raw, raw + n);
        else
          v.insert(v.begin() + at, source.begin(), source.end());
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = int(raw[i]);
      }
      break;
    }
    case 6:
      if (at < m.size) {
        typename std::vector<_T>::iterator it = v.erase(v.begin() + at);
        check(name, step, it - v.begin() == int(at));
        m.close(at, 1);
      }
      break;
    case 7: {
      unsigned n = gen.below(m.size - at + 1);
      v.erase(v.begin() + at, v.begin() + (at + n));
      m.close(at, n);
      break;
    }
    case 8: {
      unsigned n = gen.below(200);
      if (gen.below(2)) {
        v.resize(n, value);
        for (unsigned i = m.size; i < n; ++i)
          m.value[i] = int(value);
      } else {
        v.resize(n);
        for (unsigned i = m.size; i < n; ++i)
          m.value[i] = 0;
      }
      m.size = n;
      break;
    }
    case 9: {
      unsigned n = gen.below(120);
      v.assign(n, value);
      for (unsigned i = 0; i < n; ++i)
        m.value[i] = int(value);
      m.size = n;
      break;
    }
    case 10: {
      std::list<_T> source;
      unsigned n = gen.below(150);
      for (unsigned i = 0; i < n; ++i)
        source.push_back(_T(value - _T(i)));
      v.assign(source.begin(), source.end());
      m.size = 0;
      for (typename std::list<_T>::iterator it = source.begin(); it != source.end(); ++it)
        m.value[m.size++] = int(*it);
      break;
    }
    case 11: {
      std::vector<_T> copy(v), other;
      other = v;
      check(name, step, copy == v && other == v && !(copy < v) && copy >= v);
      if (m.size) {
        unsigned i = at % m.size;
        copy[i] = _T(copy[i] + 1);
        printf("%s step %d", name, step);
        compare_all(copy, v);
        compare_all(v, copy);
        other.pop_back();
        compare_all(other, v);
        printf("\n");
      }
      v.swap(copy);
      std::swap(v, copy);
      break;
    }
    case 12:
      v.reserve(gen.below(400));
      v.clear();
      m.size = 0;
      break;
    default:
      if (m.size) {
        unsigned i = at % m.size;
        check(name, step, v.at(i) == _T(m.value[i]) && v.front() == _T(m.value[0]));
        v.back() = value;
        m.value[m.size - 1] = int(value);
        unsigned sum = 0;
        for (typename std::vector<_T>::reverse_iterator it = v.rbegin(); it != v.rend(); ++it)
          sum = sum * 3 + unsigned(int(*it));
        printf("%s step %d size %u back %d sum %u\n", name, step, unsigned(v.size()), int(v.back()),
               sum);
      }
      break;
    }
    check(name, step, v.size() == m.size && agrees(m, v.begin(), v.end()));
    if (step % 250 == 0)
      printf("%s step %d size %u checksum %08x\n", name, step, unsigned(v.size()),
             checksum(v.begin(), v.end()));
  }
  print_range(name, v.begin(), v.end());
}

static void print_strings(int step, const std::vector<std::string>& v) {
  printf("strings %d:", step);
  for (std::vector<std::string>::const_iterator it = v.begin(); it != v.end(); ++it)
    printf(" %s", it->c_str());
  printf("\n");
}

static void strings(unsigned seed, int steps) {
  generator gen(seed);
  std::vector<std::string> v;
  for (int step = 0; step < steps; ++step) {
    std::string word(1 + gen.below(4), char('a' + gen.below(26)));
    unsigned at = gen.below(unsigned(v.size()) + 1);
    switch (gen.below(6)) {
    case 0:
      v.push_back(word);
      break;
    case 1:
      v.insert(v.begin() + at, gen.below(4), word);
      break;
    case 2:
      if (at < v.size())
        v.erase(v.begin() + at);
      break;
    case 3:
      v.resize(gen.below(12), word);
      break;
    case 4:
      if (!v.empty())
        v.insert(v.begin() + at, v[at % v.size()]);
      break;
    default: {
      std::vector<std::string> copy(v.begin(), v.begin() + at);
      v = copy;
      break;
    }
    }
    print_strings(step, v);
  }
}

int main() {
  run<int>("int", 1, 3000, 1000);
  run<long>("long", 2, 3000, 100000);
  run<char>("char", 3, 2000, 200);
  run<short>("short", 4, 1500, 30);
  strings(5, 150);
  std::vector<int> counted(5, 9); // two integers: a count and a value
  print_range("counted", counted.begin(), counted.end());
  return 0;
}
