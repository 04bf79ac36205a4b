// Where the vectors' capacities differ from GNU's by design: an empty vector's first growth takes
// 10 elements, each later one twice the element count, and growth by several elements at once
// at least size() + n; vector<bool> counts the same rule in bits, rounded up to 32-bit words.
#include <stdio.h>
#include <vector>

int main() {
  std::vector<long> v;
  unsigned last = 0;
  printf("push:");
  for (int i = 0; i < 100; ++i) {
    v.push_back(i);
    if (v.capacity() != last) {
      last = unsigned(v.capacity());
      printf(" %u@%d", last, i + 1);
    }
  }
  printf("\n");
  std::vector<char> c;
  c.insert(c.end(), 25, 'x');
  printf("insert 25 into an empty vector: %u\n", unsigned(c.capacity()));
  std::vector<int> r;
  r.reserve(15);
  for (int i = 0; i < 16; ++i)
    r.push_back(i);
  printf("reserve 15, then 16 pushes: %u\n", unsigned(r.capacity()));
  std::vector<int> s;
  s.resize(3);
  printf("resize an empty vector to 3: %u\n", unsigned(s.capacity()));
  s.resize(12);
  printf("then to 12: %u\n", unsigned(s.capacity()));
  s.insert(s.end(), 1, 0);
  printf("then one more: %u\n", unsigned(s.capacity()));
  std::vector<long> copy(v.begin(), v.begin() + 11);
  printf("a copy of 11 elements: %u\n", unsigned(copy.capacity()));
  std::vector<bool> b;
  b.push_back(true);
  printf("vector<bool> after 1 push: %u", unsigned(b.capacity()));
  for (int i = 1; i < 33; ++i)
    b.push_back(false);
  printf(", after 33: %u\n", unsigned(b.capacity()));
  return 0;
}
