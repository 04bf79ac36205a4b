// Where Lorb++'s string capacities deliberately differ: a buffer is the next multiple of 32 bytes
// strictly above the length and capacity() counts the terminating NUL's byte, growth adds 32
// bytes at a time (no doubling), copies share one buffer until one changes, and max_size() is
// npos - 1. GNU keeps short strings inside the object and doubles.
#include <stdio.h>
#include <string>

// A small generator of the program's own, so both builds see the same lengths.
static unsigned int seed = 20260611u;
static unsigned int next_length() {
  seed = seed * 1103515245u + 12345u;
  return (seed >> 8) % 300;
}

int main() {
  printf("empty: capacity %lu\n", static_cast<unsigned long>(std::string().capacity()));
  for (int i = 0; i < 8; ++i) {
    unsigned int n = next_length();
    std::string s(n, 'x');
    printf("length %u: capacity %lu\n", n, static_cast<unsigned long>(s.capacity()));
  }
  std::string grown;
  std::string::size_type capacity = grown.capacity();
  printf("appending 200 characters grows the buffer at lengths:");
  for (int i = 0; i < 200; ++i) {
    grown += 'g';
    if (grown.capacity() != capacity) {
      capacity = grown.capacity();
      printf(" %lu", static_cast<unsigned long>(grown.size()));
    }
  }
  printf("\n");
  std::string reserved;
  reserved.reserve(100);
  printf("reserve(100): capacity %lu\n", static_cast<unsigned long>(reserved.capacity()));
  const std::string original(40, 'o');
  const std::string copy(original);
  printf("a copy shares the buffer: %d\n", copy.data() == original.data() ? 1 : 0);
  std::string changed(original);
  changed += '!';
  printf("a changed copy keeps it: %d\n", changed.data() == original.data() ? 1 : 0);
  printf("max_size: %lu\n", static_cast<unsigned long>(std::string().max_size()));
  return 0;
}
