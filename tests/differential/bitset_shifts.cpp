// bitset shifts where every library agrees: left shifts by any amount, right shifts by whole
// words and by the size or more, over generated patterns of several sizes.
#include <bitset>
#include <stdio.h>
#include <string>

static unsigned seed = 4242;
static unsigned next_random() {
  seed = seed * 1103515245u + 12345u;
  return seed >> 8;
}

// Pattern 0: all ones; 1: only the top and bottom bits; others random. Bit n-1 comes first.
static std::string pattern_text(size_t n, unsigned pattern) {
  std::string text;
  for (size_t i = 0; i < n; ++i) {
    bool one = pattern == 0 || (pattern == 1 ? i == 0 || i == n - 1 : next_random() % 2 == 1);
    text += one ? '1' : '0';
  }
  return text;
}

template <size_t N> static std::string text_of(const std::bitset<N>& b) {
  return b.template to_string<char, std::char_traits<char>, std::allocator<char> >();
}

template <size_t N> static void shifts_of_size() {
  const size_t amounts[] = {0,  1,  2,  5,   31,  32,  33,  47,  63,    64, 65,
                            96, 97, 99, 100, 127, 128, 129, 200, N - 1, N,  N + 1};
  for (unsigned pattern = 0; pattern < 4; ++pattern) {
    std::string in = pattern_text(N, pattern);
    std::bitset<N> b(in);
    printf("%u: %s\n", unsigned(N), in.c_str());
    for (unsigned i = 0; i < sizeof amounts / sizeof amounts[0]; ++i) {
      size_t s = amounts[i];
      std::bitset<N> left = b;
      left <<= s;
      printf("  << %u: %s%s\n", unsigned(s), text_of(b << s).c_str(),
             left == (b << s) ? "" : " (<<= differs)");
      if (s % 32 != 0 && s < N)
        continue; // there this library's right shift differs on purpose
      std::bitset<N> right = b;
      right >>= s;
      printf("  >> %u: %s%s\n", unsigned(s), text_of(b >> s).c_str(),
             right == (b >> s) ? "" : " (>>= differs)");
    }
  }
}

int main() {
  shifts_of_size<1>();
  shifts_of_size<31>();
  shifts_of_size<32>();
  shifts_of_size<33>();
  shifts_of_size<63>();
  shifts_of_size<64>();
  shifts_of_size<65>();
  shifts_of_size<100>();
  shifts_of_size<128>();
  return 0;
}
