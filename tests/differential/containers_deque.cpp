// std::deque over long generated operation sequences mirrored on an array model: pushes and pops
// at both ends, every insert and erase form inside, resize, assign, iterator arithmetic, copies
// and comparisons; checksums along the way, the final contents, and a deque of strings.
#include "containers_sequence_support.h"
#include <deque>
#include <list>
#include <string>

static void check(const char* name, int step, bool ok) {
  if (!ok)
    printf("%s: disagrees with the model at step %d\n", name, step);
}

template <class _T> static void compare_all(const std::deque<_T>& a, const std::deque<_T>& b) {
  printf(" cmp %d%d%d%d%d%d", a == b, a != b, a<b, a> b, a <= b, a >= b);
}

template <class _T> static void run(const char* name, unsigned seed, int steps, int spread) {
  generator gen(seed);
  std::deque<_T> d;
  array_model m;
  for (int step = 0; step < steps; ++step) {
    unsigned at = gen.below(m.size + 1);
    _T value = _T(int(gen.below(unsigned(spread))) - spread / 2);
    bool room = m.size < 1500;
    switch (gen.below(16)) {
    case 0:
    case 1:
      if (room) {
        d.push_front(value);
        m.open(0, 1);
        m.value[0] = int(value);
      }
      break;
    case 2:
    case 3:
      if (room) {
        d.push_back(value);
        m.value[m.size++] = int(value);
      }
      break;
    case 4:
      if (m.size) {
        d.pop_front();
        m.close(0, 1);
      }
      break;
    case 5:
      if (m.size) {
        d.pop_back();
        --m.size;
      }
      break;
    case 6:
      if (room) {
        typename std::deque<_T>::iterator it = d.insert(d.begin() + at, value);
        check(name, step, it - d.begin() == int(at) && *it == value);
        m.open(at, 1);
        m.value[at] = int(value);
      }
      break;
    case 7: {
      unsigned n = gen.below(50);
      if (room) {
        d.insert(d.begin() + at, n, value);
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = int(value);
      }
      break;
    }
    case 8: {
      _T raw[45];
      unsigned n = gen.below(45);
      for (unsigned i = 0; i < n; ++i)
        raw[i] = _T(value + _T(i));
      std::list<_T> source(raw, raw + n);
      if (room) {
        if (gen.below(2))
          d.insert(d.begin() + at, raw, raw + n);
        else
          d.insert(d.begin() + at, source.begin(), source.end());
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = int(raw[i]);
      }
      break;
    }
    case 9:
      if (at < m.size) {
        typename std::deque<_T>::iterator it = d.erase(d.begin() + at);
        check(name, step, it - d.begin() == int(at));
        m.close(at, 1);
      }
      break;
    case 10: {
      unsigned n = gen.below(m.size - at + 1);
      typename std::deque<_T>::iterator it = d.erase(d.begin() + at, d.begin() + (at + n));
      check(name, step, it - d.begin() == int(at));
      m.close(at, n);
      break;
    }
    case 11: {
      unsigned n = gen.below(250);
      d.resize(n, value);
      for (unsigned i = m.size; i < n; ++i)
        m.value[i] = int(value);
      m.size = n;
      break;
    }
    case 12: {
      unsigned n = gen.below(150);
      if (gen.below(2)) {
        d.assign(n, value);
        for (unsigned i = 0; i < n; ++i)
          m.value[i] = int(value);
        m.size = n;
      } else {
        std::list<_T> source(n, value);
        d.assign(source.begin(), source.end());
        for (unsigned i = 0; i < n; ++i)
          m.value[i] = int(value);
        m.size = n;
      }
      break;
    }
    case 13: {
      std::deque<_T> copy(d), other;
      other = d;
      check(name, step, copy == d && other == d);
      if (m.size) {
        unsigned i = at % m.size;
        copy[i] = _T(copy[i] + 1);
        printf("%s step %d", name, step);
        compare_all(copy, d);
        compare_all(d, copy);
        other.pop_front();
        compare_all(other, d);
        printf("\n");
      }
      d.swap(copy);
      std::swap(d, copy);
      break;
    }
    case 14:
      if (m.size) {
        int i = int(at % m.size), j = int(gen.below(m.size));
        typename std::deque<_T>::const_iterator a = d.begin() + i, b = d.end() - (int(m.size) - j);
        check(name, step, b - a == j - i && (a < b) == (i < j) && a[j - i] == _T(m.value[j]));
        unsigned sum = 0;
        for (typename std::deque<_T>::reverse_iterator it = d.rbegin(); it != d.rend(); ++it)
          sum = sum * 3 + unsigned(int(*it));
        printf("%s step %d size %u front %d back %d at %d sum %u\n", name, step, unsigned(d.size()),
               int(d.front()), int(d.back()), int(d.at(unsigned(i))), sum);
      }
      break;
    default:
      if (gen.below(3) == 0) {
        d.clear();
        m.size = 0;
      }
      break;
    }
    check(name, step, d.size() == m.size && agrees(m, d.begin(), d.end()));
    if (step % 250 == 0)
      printf("%s step %d size %u checksum %08x\n", name, step, unsigned(d.size()),
             checksum(d.begin(), d.end()));
  }
  print_range(name, d.begin(), d.end());
}

static void strings(unsigned seed, int steps) {
  generator gen(seed);
  std::deque<std::string> d;
  for (int step = 0; step < steps; ++step) {
    std::string word(1 + gen.below(4), char('a' + gen.below(26)));
    unsigned at = gen.below(unsigned(d.size()) + 1);
    switch (gen.below(6)) {
    case 0:
      d.push_front(word);
      break;
    case 1:
      d.insert(d.begin() + at, gen.below(5), word);
      break;
    case 2:
      if (at < d.size())
        d.erase(d.begin() + at);
      break;
    case 3:
      d.resize(gen.below(30), word);
      break;
    case 4:
      if (!d.empty())
        d.push_back(d[at % d.size()]);
      break;
    default:
      if (!d.empty())
        d.pop_front();
      break;
    }
    printf("strings %d:", step);
    for (std::deque<std::string>::const_iterator it = d.begin(); it != d.end(); ++it)
      printf(" %s", it->c_str());
    printf("\n");
  }
}

int main() {
  run<int>("int", 31, 3500, 1000);
  run<char>("char", 32, 2500, 200);
  run<long>("long", 33, 2000, 50);
  strings(34, 150);
  std::deque<int> counted(5, 9); // two integers: a count and a value
  print_range("counted", counted.begin(), counted.end());
  return 0;
}
