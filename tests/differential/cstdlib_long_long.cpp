// std::abs and std::div of long long in C++98, where long long is the compiler's extension: both
// libraries give them. Generated values over the whole range, both signs.
#include <cstdio>
#include <cstdlib>

static unsigned long long state = 88172645463325252ULL;
static long long next_value() {
  state ^= state << 13;
  state ^= state >> 7;
  state ^= state << 17;
  return static_cast<long long>(state >> (state % 50));
}

int main() {
  unsigned long long sum = 0;
  for (int i = 0; i < 2000; ++i) {
    long long a = next_value(), b = next_value() % 1000003 + 1;
    if (i & 1)
      a = -a;
    ::lldiv_t q = std::div(a, b);
    sum = sum * 31 + static_cast<unsigned long long>(std::abs(a)) + q.quot * 7 + q.rem;
    if (i % 400 == 0)
      std::printf("abs(%lld) = %lld, div(%lld, %lld) = %lld rem %lld\n", a, std::abs(a), a, b,
                  q.quot, q.rem);
  }
  std::printf("checksum %llu\n", sum);
  return 0;
}
