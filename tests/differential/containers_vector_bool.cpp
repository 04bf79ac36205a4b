// std::vector<bool> over long generated operation sequences mirrored on an array model: the
// insert, erase, assign and resize forms, flip, the bit reference, iterator steps across words,
// copies and comparisons; checksums along the way and the final bits.
#include "containers_sequence_support.h"
#include <deque>
#include <vector>

typedef std::vector<bool> bits;

static void check(int step, bool ok) {
  if (!ok)
    printf("disagrees with the model at step %d\n", step);
}

static void print_bits(const char* label, const bits& v) {
  printf("%s %u:", label, unsigned(v.size()));
  for (bits::const_iterator it = v.begin(); it != v.end(); ++it)
    putchar(*it ? '1' : '0');
  printf("\n");
}

static void compare_all(const bits& a, const bits& b) {
  printf(" cmp %d%d%d%d%d%d", a == b, a != b, a<b, a> b, a <= b, a >= b);
}

static void run(unsigned seed, int steps) {
  generator gen(seed);
  bits v;
  array_model m;
  for (int step = 0; step < steps; ++step) {
    unsigned at = gen.below(m.size + 1);
    bool value = gen.below(3) != 0;
    bool room = m.size < 1500;
    switch (gen.below(14)) {
    case 0:
      if (room) {
        v.push_back(value);
        m.value[m.size++] = value;
      }
      break;
    case 1:
      if (m.size) {
        v.pop_back();
        --m.size;
      }
      break;
    case 2:
      if (room) {
        bits::iterator it = v.insert(v.begin() + at, value);
        check(step, it - v.begin() == int(at) && *it == value);
        m.open(at, 1);
        m.value[at] = value;
      }
      break;
    case 3: {
      unsigned n = gen.below(70);
      if (room) {
        v.insert(v.begin() + at, n, value);
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = value;
      }
      break;
    }
    case 4: {
      bool raw[40];
      unsigned n = gen.below(40);
      for (unsigned i = 0; i < n; ++i)
        raw[i] = gen.below(2) != 0;
      std::deque<bool> source(raw, raw + n);
      if (room) {
        if (gen.below(2))
          v.insert(v.begin() + at, raw, raw + n);
        else
          v.insert(v.begin() + at, source.begin(), source.end());
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = raw[i];
      }
      break;
    }
    case 5:
      if (at < m.size) {
        bits::iterator it = v.erase(v.begin() + at);
        check(step, it - v.begin() == int(at));
        m.close(at, 1);
      }
      break;
    case 6: {
      unsigned n = gen.below(m.size - at + 1);
      v.erase(v.begin() + at, v.begin() + (at + n));
      m.close(at, n);
      break;
    }
    case 7: {
      unsigned n = gen.below(300);
      v.resize(n, value);
      for (unsigned i = m.size; i < n; ++i)
        m.value[i] = value;
      m.size = n;
      break;
    }
    case 8: {
      unsigned n = gen.below(200);
      v.assign(n, value);
      for (unsigned i = 0; i < n; ++i)
        m.value[i] = value;
      m.size = n;
      break;
    }
    case 9:
      v.flip();
      for (unsigned i = 0; i < m.size; ++i)
        m.value[i] = !m.value[i];
      break;
    case 10:
      if (m.size) {
        unsigned i = at % m.size, j = gen.below(m.size);
        bits::swap(v[i], v[j]);
        int held = m.value[i];
        m.value[i] = m.value[j];
        m.value[j] = held;
        v[j].flip();
        m.value[j] = !m.value[j];
        v.at(i) = v[j];
        m.value[i] = m.value[j];
        check(step, v[i] == (m.value[i] != 0));
        printf("step %d complement %d\n", step, ~v[i]);
      }
      break;
    case 11: {
      bits copy(v), other;
      other = v;
      check(step, copy == v && other == v);
      if (m.size) {
        unsigned i = at % m.size;
        copy[i].flip();
        printf("step %d", step);
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
      if (m.size) {
        unsigned k = gen.below(m.size + 1);
        bits::const_iterator it = v.begin() + k;
        it -= k / 2;
        unsigned ones = 0;
        for (bits::const_reverse_iterator r = v.rbegin(); r != v.rend(); ++r)
          ones += *r;
        printf("step %d at %d ones %u front %d back %d\n", step, int(it - v.begin()), ones,
               int(v.front()), int(v.back()));
      }
      break;
    default:
      v.reserve(gen.below(600));
      if (gen.below(4) == 0) {
        v.clear();
        m.size = 0;
      }
      break;
    }
    check(step, v.size() == m.size && agrees(m, v.begin(), v.end()));
    if (step % 250 == 0)
      printf("step %d size %u checksum %08x\n", step, unsigned(v.size()),
             checksum(v.begin(), v.end()));
  }
  print_bits("final", v);
}

int main() {
  run(17, 4000);
  bits counted(5, 1); // two integers: a count and a value
  print_bits("counted", counted);
  return 0;
}
