// std::map<int, int> over a long generated sequence of every member: inserts with and without
// hints, subscripts, erasures of all three kinds, lookups and bounds, swaps, copies, assignment
// and the relations, with each result printed and the contents printed at checkpoints.
#include <map>
#include <stdio.h>

typedef std::map<int, int> int_map;

static unsigned seed = 20240601u;
static unsigned next_random(unsigned n) {
  seed = seed * 1103515245u + 12345u;
  return ((seed >> 16) & 0x7fff) % n;
}

static void print_map(const char* name, const int_map& m) {
  printf("%s size=%u:", name, static_cast<unsigned>(m.size()));
  for (int_map::const_iterator i = m.begin(); i != m.end(); ++i)
    printf(" %d=%d", i->first, i->second);
  printf("\n");
}

static void print_backwards(const char* name, const int_map& m) {
  printf("%s reversed:", name);
  for (int_map::const_reverse_iterator i = m.rbegin(); i != m.rend(); ++i)
    printf(" %d", i->first);
  printf("\n");
}

static void print_position(const int_map& m, int_map::const_iterator at) {
  if (at == m.end())
    printf(" end");
  else
    printf(" %d=%d", at->first, at->second);
}

static unsigned steps_between(int_map::const_iterator first, int_map::const_iterator last) {
  unsigned n = 0;
  for (; first != last; ++first)
    ++n;
  return n;
}

// A hint drawn from: begin, end, the bound of a random key, or the key's own place.
static int_map::iterator some_hint(int_map& m, int key) {
  switch (next_random(4)) {
  case 0:
    return m.begin();
  case 1:
    return m.end();
  case 2:
    return m.lower_bound(static_cast<int>(next_random(200)));
  default:
    return m.upper_bound(key);
  }
}

static void step(int n, int_map& a, int_map& b) {
  int key = static_cast<int>(next_random(200));
  int value = static_cast<int>(next_random(10000));
  int_map& m = next_random(3) ? a : b;
  printf("%d ", n);
  switch (next_random(16)) {
  case 0:
  case 1: {
    std::pair<int_map::iterator, bool> r = m.insert(std::make_pair(key, value));
    printf("insert %d %d -> %d", key, value, r.second ? 1 : 0);
    print_position(m, r.first);
    break;
  }
  case 2:
  case 3: {
    int_map::iterator at = m.insert(some_hint(m, key), std::make_pair(key, value));
    printf("hint insert %d %d ->", key, value);
    print_position(m, at);
    printf(" next");
    print_position(m, ++at);
    break;
  }
  case 4:
    m[key] = value;
    printf("subscript set %d %d", key, value);
    break;
  case 5:
    printf("subscript read %d -> %d", key, m[key]);
    break;
  case 6:
    printf("erase key %d -> %u", key, static_cast<unsigned>(m.erase(key)));
    break;
  case 7: {
    int_map::iterator at = m.lower_bound(key);
    printf("erase at %d ->", key);
    print_position(m, at);
    if (at != m.end())
      m.erase(at);
    break;
  }
  case 8: {
    int last = key + static_cast<int>(next_random(40));
    int_map::iterator first = m.lower_bound(key);
    int_map::iterator end = m.lower_bound(last);
    printf("erase range %d %d -> %u", key, last, steps_between(first, end));
    m.erase(first, end);
    break;
  }
  case 9: {
    const int_map& c = m;
    int_map::const_iterator at = c.find(key);
    printf("find %d ->", key);
    print_position(m, at);
    printf(" count %u", static_cast<unsigned>(c.count(key)));
    break;
  }
  case 10:
    printf("bounds %d ->", key);
    print_position(m, m.lower_bound(key));
    print_position(m, m.upper_bound(key));
    break;
  case 11: {
    std::pair<int_map::iterator, int_map::iterator> r = m.equal_range(key);
    printf("equal_range %d -> %u", key, steps_between(r.first, r.second));
    print_position(m, r.first);
    print_position(m, r.second);
    break;
  }
  case 12:
    if (next_random(2))
      a.swap(b);
    else
      std::swap(a, b);
    printf("swap sizes %u %u", static_cast<unsigned>(a.size()), static_cast<unsigned>(b.size()));
    break;
  case 13: {
    int_map copy(m);
    copy[key] = value;
    printf("copy changed %d; original count %u, copy size %u", key,
           static_cast<unsigned>(m.count(key)), static_cast<unsigned>(copy.size()));
    break;
  }
  case 14:
    printf("relations %d%d%d%d%d%d", a == b, a != b, a<b, a> b, a <= b, a >= b);
    if (next_random(8) == 0) {
      b = a;
      printf(" assigned, equal %d", a == b);
    }
    break;
  default:
    if (next_random(10) == 0) {
      m.clear();
      printf("clear");
    } else {
      printf("size %u empty %d", static_cast<unsigned>(m.size()), m.empty() ? 1 : 0);
    }
  }
  printf("\n");
}

int main() {
  int_map a, b;
  for (int n = 0; n < 4000; ++n) {
    step(n, a, b);
    if (n % 500 == 499) {
      print_map("a", a);
      print_map("b", b);
    }
  }
  print_map("a", a);
  print_map("b", b);
  print_backwards("a", a);
  print_backwards("b", b);
  int items[] = {3, 1, 4, 1, 5, 9, 2, 6, 5, 3, 5};
  int_map from_range;
  for (int i = 0; i < 11; ++i)
    from_range.insert(std::make_pair(items[i], i));
  int_map built(from_range.begin(), from_range.end());
  print_map("built", built);
  printf("value_comp %d %d\n", built.value_comp()(*built.begin(), *++built.begin()),
         built.key_comp()(2, 1));
  return 0;
}
