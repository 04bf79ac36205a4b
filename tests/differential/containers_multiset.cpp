// std::multiset over a long generated sequence: ints, and items ordered by key alone whose serial
// numbers show where equal keys went (plain inserts and every kind of hint), with counts, bounds,
// equal_range, erasures, swaps, copies, assignment and the relations.
#include <set>
#include <stdio.h>

typedef std::multiset<int> int_multiset;

struct item {
  int key;
  int serial;
  item(int k, int s) : key(k), serial(s) {}
};
struct by_key {
  bool operator()(const item& a, const item& b) const { return a.key < b.key; }
};
typedef std::multiset<item, by_key> item_multiset;

static unsigned seed = 31337u;
static unsigned next_random(unsigned n) {
  seed = seed * 1103515245u + 12345u;
  return ((seed >> 16) & 0x7fff) % n;
}

static void print_ints(const char* name, const int_multiset& s) {
  printf("%s size=%u:", name, static_cast<unsigned>(s.size()));
  for (int_multiset::const_iterator i = s.begin(); i != s.end(); ++i)
    printf(" %d", *i);
  printf("\n");
}

static void print_items(const item_multiset& s) {
  printf("items size=%u:", static_cast<unsigned>(s.size()));
  for (item_multiset::const_iterator i = s.begin(); i != s.end(); ++i)
    printf(" %d.%d", i->key, i->serial);
  printf("\n");
}

template <class _Iter> static unsigned steps_between(_Iter first, _Iter last) {
  unsigned n = 0;
  for (; first != last; ++first)
    ++n;
  return n;
}

template <class _Set> static typename _Set::iterator somewhere(_Set& s) {
  typename _Set::iterator at = s.begin();
  for (unsigned n = next_random(static_cast<unsigned>(s.size()) + 1); n > 0; --n)
    ++at;
  return at;
}

static void int_step(int_multiset& a, int_multiset& b) {
  int key = static_cast<int>(next_random(50));
  int_multiset& s = next_random(3) ? a : b;
  switch (next_random(11)) {
  case 0:
  case 1:
    printf("insert %d -> at %u", key, steps_between(s.begin(), s.insert(key)));
    break;
  case 2: {
    int_multiset::iterator at = s.insert(somewhere(s), key);
    printf("hint insert %d -> at %u", key, steps_between(s.begin(), at));
    break;
  }
  case 3:
    printf("erase key %d -> %u", key, static_cast<unsigned>(s.erase(key)));
    break;
  case 4: {
    int_multiset::iterator at = s.find(key);
    printf("erase found %d -> %d", key, at != s.end());
    if (at != s.end())
      s.erase(at);
    break;
  }
  case 5: {
    int_multiset::iterator first = s.lower_bound(key);
    int_multiset::iterator last = s.upper_bound(key + static_cast<int>(next_random(5)));
    printf("erase range %d -> %u", key, steps_between(first, last));
    s.erase(first, last);
    break;
  }
  case 6: {
    std::pair<int_multiset::iterator, int_multiset::iterator> r = s.equal_range(key);
    printf("count %d -> %u %u at %u %u", key, static_cast<unsigned>(s.count(key)),
           steps_between(r.first, r.second), steps_between(s.begin(), s.lower_bound(key)),
           steps_between(s.begin(), s.upper_bound(key)));
    break;
  }
  case 7:
    if (next_random(2))
      a.swap(b);
    else
      std::swap(a, b);
    printf("swap sizes %u %u", static_cast<unsigned>(a.size()), static_cast<unsigned>(b.size()));
    break;
  case 8: {
    int_multiset copy(s);
    copy.insert(key);
    printf("copy %u %u", static_cast<unsigned>(copy.size()), static_cast<unsigned>(s.size()));
    if (next_random(5) == 0) {
      b = a;
      printf(" assigned");
    }
    break;
  }
  case 9:
    printf("relations %d%d%d%d%d%d", a == b, a != b, a<b, a> b, a <= b, a >= b);
    break;
  default:
    if (next_random(20) == 0) {
      s.clear();
      printf("clear");
    } else {
      printf("size %u", static_cast<unsigned>(s.size()));
    }
  }
}

static void item_step(int n, item_multiset& s) {
  int key = static_cast<int>(next_random(12));
  switch (next_random(6)) {
  case 0:
    s.insert(item(key, n));
    printf("item insert %d", key);
    break;
  case 1:
  case 2: {
    item_multiset::iterator hint = somewhere(s);
    item_multiset::iterator at = s.insert(hint, item(key, n));
    printf("item hint insert %d -> at %u", key, steps_between(s.begin(), at));
    break;
  }
  case 3: {
    std::pair<item_multiset::iterator, item_multiset::iterator> r = s.equal_range(item(key, 0));
    printf("item equal_range %d ->", key);
    for (; r.first != r.second; ++r.first)
      printf(" %d", r.first->serial);
    break;
  }
  case 4:
    if (next_random(4) == 0)
      printf("item erase key %d -> %u", key, static_cast<unsigned>(s.erase(item(key, 0))));
    else
      printf("item count %d -> %u", key, static_cast<unsigned>(s.count(item(key, 0))));
    break;
  default: {
    item_multiset::iterator at = somewhere(s);
    if (at != s.end()) {
      printf("item erase %d.%d", at->key, at->serial);
      s.erase(at);
    } else {
      printf("item erase none");
    }
  }
  }
}

int main() {
  int_multiset a, b;
  item_multiset items;
  for (int n = 0; n < 4000; ++n) {
    printf("%d ", n);
    if (next_random(2))
      int_step(a, b);
    else
      item_step(n, items);
    printf("\n");
    if (n % 500 == 499) {
      print_ints("a", a);
      print_ints("b", b);
      print_items(items);
    }
  }
  print_ints("a", a);
  print_ints("b", b);
  print_items(items);
  printf("items reversed:");
  for (item_multiset::const_reverse_iterator r = items.rbegin(); r != items.rend(); ++r)
    printf(" %d.%d", r->key, r->serial);
  printf("\n");
  item_multiset copied(items.begin(), items.end());
  print_items(copied);
  return 0;
}
