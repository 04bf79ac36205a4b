// std::set over a long generated sequence: two ascending sets of ints and a descending one, with
// inserts (plain, hinted, ranges), erasures, lookups, bounds, swaps, copies, assignment and the
// relations, each result printed and the contents printed at checkpoints; then a set of strings.
#include <functional>
#include <set>
#include <stdio.h>
#include <string>

typedef std::set<int> int_set;
typedef std::set<int, std::greater<int> > descending_set;

static unsigned seed = 99991u;
static unsigned next_random(unsigned n) {
  seed = seed * 1103515245u + 12345u;
  return ((seed >> 16) & 0x7fff) % n;
}

template <class _Set> static void print_set(const char* name, const _Set& s) {
  printf("%s size=%u:", name, static_cast<unsigned>(s.size()));
  for (typename _Set::const_iterator i = s.begin(); i != s.end(); ++i)
    printf(" %d", *i);
  printf("\n");
}

template <class _Set> static void print_position(const _Set& s, typename _Set::const_iterator at) {
  if (at == s.end())
    printf(" end");
  else
    printf(" %d", *at);
}

template <class _Iter> static unsigned steps_between(_Iter first, _Iter last) {
  unsigned n = 0;
  for (; first != last; ++first)
    ++n;
  return n;
}

// The same operation on an ascending or the descending set.
template <class _Set> static void operate(_Set& s, int key, unsigned what) {
  switch (what) {
  case 0:
  case 1: {
    std::pair<typename _Set::iterator, bool> r = s.insert(key);
    printf("insert %d -> %d at %u", key, r.second ? 1 : 0, steps_between(s.begin(), r.first));
    break;
  }
  case 2:
  case 3: {
    typename _Set::iterator hint = next_random(2) ? s.lower_bound(key + 1) : s.begin();
    typename _Set::iterator at = s.insert(hint, key);
    printf("hint insert %d -> at %u", key, steps_between(s.begin(), at));
    break;
  }
  case 4: {
    int items[5];
    for (int i = 0; i < 5; ++i)
      items[i] = static_cast<int>(next_random(300));
    s.insert(items, items + 5);
    printf("insert range %d %d %d %d %d", items[0], items[1], items[2], items[3], items[4]);
    break;
  }
  case 5:
    printf("erase key %d -> %u", key, static_cast<unsigned>(s.erase(key)));
    break;
  case 6: {
    typename _Set::iterator at = s.upper_bound(key);
    printf("erase after %d ->", key);
    print_position(s, at);
    if (at != s.end())
      s.erase(at);
    break;
  }
  case 7: {
    typename _Set::iterator first = s.lower_bound(key);
    typename _Set::iterator last = first;
    for (unsigned n = next_random(20); n > 0 && last != s.end(); --n)
      ++last;
    printf("erase range from %d -> %u", key, steps_between(first, last));
    s.erase(first, last);
    break;
  }
  case 8:
    printf("find %d ->", key);
    print_position(s, s.find(key));
    printf(" count %u", static_cast<unsigned>(s.count(key)));
    break;
  case 9: {
    std::pair<typename _Set::iterator, typename _Set::iterator> r = s.equal_range(key);
    printf("bounds %d ->", key);
    print_position(s, s.lower_bound(key));
    print_position(s, s.upper_bound(key));
    printf(" range %u", steps_between(r.first, r.second));
    break;
  }
  default:
    if (next_random(12) == 0) {
      s.clear();
      printf("clear");
    } else {
      printf("size %u empty %d", static_cast<unsigned>(s.size()), s.empty() ? 1 : 0);
    }
  }
}

int main() {
  int_set a, b;
  descending_set down;
  for (int n = 0; n < 4000; ++n) {
    int key = static_cast<int>(next_random(300));
    unsigned what = next_random(14);
    printf("%d ", n);
    switch (next_random(5)) {
    case 0:
      printf("down ");
      operate(down, key, what);
      break;
    case 1:
      printf("b ");
      operate(b, key, what);
      break;
    default:
      printf("a ");
      if (what == 11) {
        if (next_random(2))
          a.swap(b);
        else
          std::swap(a, b);
        printf("swap sizes %u %u", static_cast<unsigned>(a.size()),
               static_cast<unsigned>(b.size()));
      } else if (what == 12) {
        int_set copy(a);
        copy.insert(key);
        printf("copy grew %u", static_cast<unsigned>(copy.size() - a.size()));
        if (next_random(6) == 0) {
          b = copy;
          printf(" assigned");
        }
      } else if (what == 13) {
        printf("relations %d%d%d%d%d%d", a == b, a != b, a<b, a> b, a <= b, a >= b);
      } else {
        operate(a, key, what);
      }
    }
    printf("\n");
    if (n % 500 == 499) {
      print_set("a", a);
      print_set("b", b);
      print_set("down", down);
    }
  }
  print_set("a", a);
  print_set("b", b);
  print_set("down", down);
  printf("a reversed:");
  for (int_set::const_reverse_iterator r = a.rbegin(); r != a.rend(); ++r)
    printf(" %d", *r);
  printf("\n");
  descending_set from_a(a.begin(), a.end());
  print_set("a descending", from_a);

  std::set<std::string> words;
  const char* syllables[] = {"ka", "lo", "ri", "ne", "tu", "sa"};
  for (int n = 0; n < 300; ++n) {
    std::string word;
    for (unsigned length = 1 + next_random(3); length > 0; --length)
      word += syllables[next_random(6)];
    words.insert(word);
  }
  printf("words %u:", static_cast<unsigned>(words.size()));
  for (std::set<std::string>::const_iterator i = words.begin(); i != words.end(); ++i)
    printf(" %s", i->c_str());
  printf("\n");
  return 0;
}
