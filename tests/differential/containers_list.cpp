// std::list over long generated operation sequences mirrored on two array models: inserts,
// erases, the three splices, sort (stable, with ties under a key comparison), unique with a
// predicate that is not an equivalence, merge, reverse, remove and remove_if; checksums along
// the way and the final contents.
#include "containers_sequence_support.h"
#include <iterator>
#include <list>
#include <string>

typedef std::list<int> ints;

static void check(int step, bool ok) {
  if (!ok)
    printf("disagrees with the model at step %d\n", step);
}

static ints::iterator at_index(ints& l, unsigned i) {
  ints::iterator it = l.begin();
  std::advance(it, int(i));
  return it;
}

struct by_key { // ties among values with the same tens
  bool operator()(int a, int b) const { return a / 10 < b / 10; }
};
struct close_above { // not an equivalence: compared with the element kept before
  bool operator()(int kept, int next) const { return next - kept >= 0 && next - kept <= 3; }
};
struct multiple_of_3 {
  bool operator()(int x) const { return x % 3 == 0; }
};

// Stable insertion sort of the model by the comparison.
template <class _Compare> static void sort_model(array_model& m, _Compare less) {
  for (unsigned i = 1; i < m.size; ++i) {
    int value = m.value[i];
    unsigned j = i;
    for (; j > 0 && less(value, m.value[j - 1]); --j)
      m.value[j] = m.value[j - 1];
    m.value[j] = value;
  }
}

// Stable merge of other into m, other emptied.
template <class _Compare>
static void merge_model(array_model& m, array_model& other, _Compare less) {
  int merged[array_model::room];
  unsigned i = 0, j = 0, n = 0;
  while (i < m.size && j < other.size)
    merged[n++] = less(other.value[j], m.value[i]) ? other.value[j++] : m.value[i++];
  while (i < m.size)
    merged[n++] = m.value[i++];
  while (j < other.size)
    merged[n++] = other.value[j++];
  for (unsigned k = 0; k < n; ++k)
    m.value[k] = merged[k];
  m.size = n;
  other.size = 0;
}

template <class _Predicate> static void unique_model(array_model& m, _Predicate same) {
  if (m.size == 0)
    return;
  unsigned kept = 0;
  for (unsigned i = 1; i < m.size; ++i)
    if (!same(m.value[kept], m.value[i]))
      m.value[++kept] = m.value[i];
  m.size = kept + 1;
}

template <class _Predicate> static void remove_model(array_model& m, _Predicate doomed) {
  unsigned kept = 0;
  for (unsigned i = 0; i < m.size; ++i)
    if (!doomed(m.value[i]))
      m.value[kept++] = m.value[i];
  m.size = kept;
}

struct equals {
  int value;
  bool operator()(int x) const { return x == value; }
};
struct same_value {
  bool operator()(int a, int b) const { return a == b; }
};
struct plain_less {
  bool operator()(int a, int b) const { return a < b; }
};

static void run(unsigned seed, int steps) {
  generator gen(seed);
  ints l, other;
  array_model m, o;
  for (int step = 0; step < steps; ++step) {
    unsigned at = gen.below(m.size + 1);
    int value = int(gen.below(300));
    bool room = m.size + o.size < 1200;
    switch (gen.below(20)) {
    case 0:
      if (room) {
        l.push_front(value);
        m.open(0, 1);
        m.value[0] = value;
      }
      break;
    case 1:
      if (room) {
        other.push_back(value);
        o.value[o.size++] = value;
      }
      break;
    case 2:
      if (m.size) {
        l.pop_back();
        --m.size;
      }
      break;
    case 3:
      if (room) {
        check(step, *l.insert(at_index(l, at), value) == value);
        m.open(at, 1);
        m.value[at] = value;
      }
      break;
    case 4: {
      unsigned n = gen.below(20);
      if (room) {
        l.insert(at_index(l, at), n, value);
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = value;
      }
      break;
    }
    case 5: {
      int raw[30];
      unsigned n = gen.below(30);
      for (unsigned i = 0; i < n; ++i)
        raw[i] = int(gen.below(300));
      if (room) {
        l.insert(at_index(l, at), raw, raw + n);
        m.open(at, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[at + i] = raw[i];
      }
      break;
    }
    case 6:
      if (at < m.size) {
        ints::iterator next = l.erase(at_index(l, at));
        check(step, next == at_index(l, at));
        m.close(at, 1);
      }
      break;
    case 7: {
      unsigned n = gen.below(m.size - at + 1);
      l.erase(at_index(l, at), at_index(l, at + n));
      m.close(at, n);
      break;
    }
    case 8: // the whole other list
      l.splice(at_index(l, at), other);
      m.open(at, o.size);
      for (unsigned i = 0; i < o.size; ++i)
        m.value[at + i] = o.value[i];
      o.size = 0;
      break;
    case 9: // one element of the other list
      if (o.size) {
        unsigned from = gen.below(o.size);
        l.splice(at_index(l, at), other, at_index(other, from));
        m.open(at, 1);
        m.value[at] = o.value[from];
        o.close(from, 1);
      }
      break;
    case 10: { // a range of this list to the other
      unsigned n = gen.below(m.size - at + 1);
      unsigned to = gen.below(o.size + 1);
      other.splice(at_index(other, to), l, at_index(l, at), at_index(l, at + n));
      o.open(to, n);
      for (unsigned i = 0; i < n; ++i)
        o.value[to + i] = m.value[at + i];
      m.close(at, n);
      break;
    }
    case 11: // a range to the front of the same list; the front must lie outside the range
      if (at > 0 && at < m.size) {
        unsigned n = gen.below(m.size - at + 1);
        l.splice(l.begin(), l, at_index(l, at), at_index(l, at + n));
        int moved[array_model::room];
        for (unsigned i = 0; i < n; ++i)
          moved[i] = m.value[at + i];
        m.close(at, n);
        m.open(0, n);
        for (unsigned i = 0; i < n; ++i)
          m.value[i] = moved[i];
      }
      break;
    case 12:
      if (gen.below(2)) {
        l.sort();
        sort_model(m, plain_less());
      } else {
        l.sort(by_key());
        sort_model(m, by_key());
      }
      break;
    case 13:
      if (gen.below(2)) {
        l.unique();
        unique_model(m, same_value());
      } else {
        l.unique(close_above());
        unique_model(m, close_above());
      }
      break;
    case 14:
      l.sort(by_key());
      sort_model(m, by_key());
      other.sort(by_key());
      sort_model(o, by_key());
      l.merge(other, by_key());
      merge_model(m, o, by_key());
      break;
    case 15:
      other.sort();
      sort_model(o, plain_less());
      l.sort();
      sort_model(m, plain_less());
      l.merge(other);
      merge_model(m, o, plain_less());
      break;
    case 16:
      l.reverse();
      for (unsigned i = 0; i < m.size / 2; ++i) {
        int held = m.value[i];
        m.value[i] = m.value[m.size - 1 - i];
        m.value[m.size - 1 - i] = held;
      }
      break;
    case 17:
      if (m.size && gen.below(2)) {
        equals doomed = {l.front()};
        l.remove(l.front());
        remove_model(m, doomed);
      } else {
        l.remove_if(multiple_of_3());
        remove_model(m, multiple_of_3());
      }
      break;
    case 18: {
      unsigned n = gen.below(150);
      l.resize(n, value);
      for (unsigned i = m.size; i < n; ++i)
        m.value[i] = value;
      m.size = n;
      break;
    }
    default: {
      ints copy(l);
      check(step, copy == l && !(copy != l) && copy <= l);
      printf("step %d cmp %d%d%d%d%d%d size %u/%u", step, l == other, l != other, l<other, l> other,
             l <= other, l >= other, unsigned(l.size()), unsigned(other.size()));
      if (m.size)
        printf(" front %d back %d", l.front(), l.back());
      printf("\n");
      l.swap(other);
      std::swap(l, other);
      copy.assign(3, 4);
      other.swap(copy);
      std::swap(other, copy);
      break;
    }
    }
    check(step, l.size() == m.size && agrees(m, l.begin(), l.end()));
    check(step, other.size() == o.size && agrees(o, other.begin(), other.end()));
    if (step % 200 == 0)
      printf("step %d size %u checksum %08x other %08x\n", step, unsigned(l.size()),
             checksum(l.begin(), l.end()), checksum(other.begin(), other.end()));
  }
  print_range("final", l.begin(), l.end());
  print_range("other", other.rbegin(), other.rend());
}

int main() {
  run(41, 5000);
  std::list<int> counted(5, 9); // two integers: a count and a value
  print_range("counted", counted.begin(), counted.end());
  std::list<std::string> words;
  words.push_back("pear");
  words.push_back("fig");
  words.push_front("apple");
  words.push_back("fig");
  words.sort();
  words.unique();
  for (std::list<std::string>::iterator it = words.begin(); it != words.end(); ++it)
    printf("%s ", it->c_str());
  printf("\n");
  return 0;
}
