// std::multimap<int, int> over a long generated sequence: the mapped values number the inserts,
// so the printed contents show where equal keys went (plain inserts and every kind of hint),
// with equal_range, counts, erasures, swaps, copies and the relations.
#include <map>
#include <stdio.h>

typedef std::multimap<int, int> int_multimap;

static unsigned seed = 7u;
static unsigned next_random(unsigned n) {
  seed = seed * 1103515245u + 12345u;
  return ((seed >> 16) & 0x7fff) % n;
}

static void print_map(const char* name, const int_multimap& m) {
  printf("%s size=%u:", name, static_cast<unsigned>(m.size()));
  for (int_multimap::const_iterator i = m.begin(); i != m.end(); ++i)
    printf(" %d=%d", i->first, i->second);
  printf("\n");
}

static void print_position(const int_multimap& m, int_multimap::const_iterator at) {
  if (at == m.end())
    printf(" end");
  else
    printf(" %d=%d", at->first, at->second);
}

static unsigned steps_between(int_multimap::const_iterator first,
                              int_multimap::const_iterator last) {
  unsigned n = 0;
  for (; first != last; ++first)
    ++n;
  return n;
}

// Some element of the map (or end), reached by a random number of steps from either side.
static int_multimap::iterator somewhere(int_multimap& m) {
  unsigned n = next_random(static_cast<unsigned>(m.size()) + 1);
  if (next_random(2)) {
    int_multimap::iterator at = m.begin();
    while (n--)
      ++at;
    return at;
  }
  int_multimap::iterator at = m.end();
  while (n--)
    --at;
  return at;
}

static void step(int n, int_multimap& a, int_multimap& b) {
  int key = static_cast<int>(next_random(40));
  int_multimap& m = next_random(4) ? a : b;
  printf("%d ", n);
  switch (next_random(14)) {
  case 0:
  case 1:
  case 2: {
    int_multimap::iterator at = m.insert(std::make_pair(key, n));
    printf("insert %d ->", key);
    print_position(m, at);
    printf(" at %u", steps_between(m.begin(), at));
    break;
  }
  case 3:
  case 4:
  case 5: {
    int_multimap::iterator hint = somewhere(m);
    printf("hint");
    print_position(m, hint);
    int_multimap::iterator at = m.insert(hint, std::make_pair(key, n));
    printf(" insert %d -> at %u", key, steps_between(m.begin(), at));
    break;
  }
  case 6: {
    std::pair<int_multimap::iterator, int_multimap::iterator> r = m.equal_range(key);
    printf("equal_range %d ->", key);
    for (int_multimap::iterator i = r.first; i != r.second; ++i)
      printf(" %d", i->second);
    printf(" count %u", static_cast<unsigned>(m.count(key)));
    break;
  }
  case 7:
    printf("erase key %d -> %u", key, static_cast<unsigned>(m.erase(key)));
    break;
  case 8: {
    int_multimap::iterator at = somewhere(m);
    printf("erase at");
    print_position(m, at);
    if (at != m.end())
      m.erase(at);
    break;
  }
  case 9: {
    int_multimap::iterator first = m.lower_bound(key);
    int_multimap::iterator last = m.upper_bound(key + static_cast<int>(next_random(4)));
    printf("erase range %d -> %u", key, steps_between(first, last));
    m.erase(first, last);
    break;
  }
  case 10: {
    const int_multimap& c = m;
    printf("lookups %d ->", key);
    print_position(m, c.find(key));
    print_position(m, c.lower_bound(key));
    print_position(m, c.upper_bound(key));
    break;
  }
  case 11:
    if (next_random(2))
      a.swap(b);
    else
      swap(a, b);
    printf("swap sizes %u %u", static_cast<unsigned>(a.size()), static_cast<unsigned>(b.size()));
    break;
  case 12: {
    int_multimap copy(m);
    copy.insert(std::make_pair(key, -1));
    printf("copy sizes %u %u equal %d", static_cast<unsigned>(m.size()),
           static_cast<unsigned>(copy.size()), copy == m);
    if (next_random(4) == 0) {
      b = a;
      printf(" assigned");
    }
    break;
  }
  default:
    printf("relations %d%d%d%d%d%d", a == b, a != b, a<b, a> b, a <= b, a >= b);
    if (next_random(30) == 0) {
      m.clear();
      printf(" clear");
    }
  }
  printf("\n");
}

int main() {
  int_multimap a, b;
  for (int n = 0; n < 3000; ++n) {
    step(n, a, b);
    if (n % 500 == 499) {
      print_map("a", a);
      print_map("b", b);
    }
  }
  print_map("a", a);
  print_map("b", b);
  printf("a reversed:");
  for (int_multimap::reverse_iterator r = a.rbegin(); r != a.rend(); ++r)
    printf(" %d=%d", r->first, r->second);
  printf("\n");
  int_multimap built(a.begin(), a.end());
  built.insert(b.begin(), b.end());
  print_map("built", built);
  return 0;
}
