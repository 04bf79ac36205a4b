// Textbook exercises on lists and stream iterators: reading numbers with
// istream_iterator, merging and splicing sorted lists, removing repeats, owning
// objects with auto_ptr, and the limits of the number types.
#include <algorithm>
#include <functional>
#include <iostream>
#include <iterator>
#include <limits>
#include <list>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

static unsigned state = 5;
static unsigned draw(unsigned limit) {
  state = state * 1103515245u + 12345u;
  return (state >> 8) % limit;
}

template <class Container> static void print(const char* title, const Container& c) {
  std::cout << title << " (" << c.size() << "):";
  for (typename Container::const_iterator it = c.begin(); it != c.end(); ++it)
    std::cout << ' ' << *it;
  std::cout << '\n';
}

static bool is_odd(int x) { return x % 2 != 0; }

struct counter {
  explicit counter(int v) : value(v) { ++alive; }
  ~counter() { --alive; }
  int value;
  static int alive;
};
int counter::alive = 0;

static std::auto_ptr<counter> make_counter(int v) { return std::auto_ptr<counter>(new counter(v)); }

int main() {
  for (int round = 0; round < 15; ++round) {
    std::ostringstream text;
    unsigned n = draw(25);
    for (unsigned i = 0; i < n; ++i)
      text << static_cast<int>(draw(50)) - 10 << (draw(4) == 0 ? "\n" : " ");
    std::istringstream in(text.str());
    std::vector<int> numbers((std::istream_iterator<int>(in)), std::istream_iterator<int>());
    print("read", numbers);

    std::list<int> a(numbers.begin(), numbers.begin() + numbers.size() / 2);
    std::list<int> b(numbers.begin() + numbers.size() / 2, numbers.end());
    a.sort();
    b.sort(std::greater<int>());
    b.reverse();
    a.merge(b);
    print("merged", a);
    a.unique();
    print("unique", a);
    std::list<int> odd;
    for (std::list<int>::iterator it = a.begin(); it != a.end();) {
      std::list<int>::iterator here = it++;
      if (is_odd(*here))
        odd.splice(odd.end(), a, here);
    }
    print("even", a);
    print("odd", odd);
    odd.remove_if(std::bind2nd(std::less<int>(), 0));
    print("odd, not negative", odd);
    a.splice(a.begin(), odd);
    a.insert(a.end(), 3, 7);
    a.remove(7);
    print("joined", a);
    std::list<int>::iterator middle = a.begin();
    std::advance(middle, a.size() / 2);
    std::list<int> tail;
    tail.splice(tail.begin(), a, middle, a.end());
    print("head", a);
    print("tail", tail);
    std::cout << (a < tail) << (a == a) << (tail != a) << '\n';
  }

  {
    std::auto_ptr<counter> first = make_counter(1);
    std::auto_ptr<counter> second(first);
    std::cout << (first.get() == 0) << ' ' << second->value << ' ' << counter::alive << '\n';
    second.reset(new counter(2));
    std::cout << second->value << ' ' << counter::alive << '\n';
    counter* raw = second.release();
    std::cout << (second.get() == 0) << ' ' << counter::alive << '\n';
    delete raw;
  }
  std::cout << counter::alive << " alive\n";

  std::cout << std::numeric_limits<int>::max() << ' ' << std::numeric_limits<int>::min() << ' '
            << std::numeric_limits<unsigned char>::digits << ' '
            << std::numeric_limits<char>::is_signed << ' ' << std::numeric_limits<double>::digits10
            << ' ' << std::numeric_limits<float>::epsilon() << ' '
            << std::numeric_limits<long>::max() << '\n';
  return 0;
}
