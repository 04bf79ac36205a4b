// bitset members over generated operation sequences of several sizes, the constructors from
// numbers and strings, and reading and writing through streams.
#include <bitset>
#include <sstream>
#include <stdio.h>
#include <string>

static unsigned seed = 99;
static unsigned next_random() {
  seed = seed * 1103515245u + 12345u;
  return seed >> 8;
}
static unsigned below(size_t n) { return n ? next_random() % unsigned(n) : 0; }

static std::string random_text(size_t n, const char* alphabet, unsigned letters) {
  std::string text;
  for (size_t i = 0; i < n; ++i)
    text += alphabet[below(letters)];
  return text;
}

template <size_t N> static std::string text_of(const std::bitset<N>& b) {
  return b.template to_string<char, std::char_traits<char>, std::allocator<char> >();
}

// The set, its count, any/none, and to_ulong when no bit from 32 up is set.
template <size_t N> static void show(const char* what, const std::bitset<N>& b) {
  bool fits = true;
  for (size_t i = 32; i < N; ++i)
    fits = fits && !b.test(i);
  printf("  %-6s %s count %u any %d none %d", what, text_of(b).c_str(), unsigned(b.count()),
         b.any(), b.none());
  if (fits)
    printf(" ulong %lu", b.to_ulong());
  printf("\n");
}

template <size_t N> static void operations(int steps) {
  printf("bitset<%u> size %u\n", unsigned(N), unsigned(std::bitset<N>().size()));
  std::bitset<N> b(static_cast<unsigned long>(next_random()) * 2654435761ul);
  show("start", b);
  for (int step = 0; step < steps; ++step) {
    size_t pos = below(N);
    std::bitset<N> other(random_text(N, "01", 2));
    switch (below(16)) {
    case 0:
      show("set", b.set());
      break;
    case 1:
      show("reset", b.reset());
      break;
    case 2:
      show("flip", b.flip());
      break;
    case 3:
      if (N)
        show("setpos", b.set(pos, int(below(3))));
      break;
    case 4:
      if (N)
        show("rstpos", b.reset(pos));
      break;
    case 5:
      if (N)
        show("flppos", b.flip(pos));
      break;
    case 6:
      show("&=", b &= other);
      break;
    case 7:
      show("|=", b |= other);
      break;
    case 8:
      show("^=", b ^= other);
      break;
    case 9:
      show("~", b = ~b);
      break;
    case 10:
      show("&", b = b & other);
      break;
    case 11:
      show("|", b = b | other);
      break;
    case 12:
      show("^", b = b ^ other);
      break;
    case 13:
      if (N) {
        b[pos] = other[pos];
        b[below(N)].flip();
        bool before = b[pos];
        printf("  ref %d %d %d\n", before, ~b[pos], b.test(pos));
        show("[]", b);
      }
      break;
    case 14:
      printf("  == %d != %d self %d\n", b == other, b != other, b == b);
      break;
    default: {
      const std::bitset<N>& c = b;
      printf("  const[] %d test %d\n", N ? c[pos] : 0, N ? b.test(pos) : 0);
    }
    }
  }
}

template <size_t N> static void constructors() {
  printf("constructors of bitset<%u>\n", unsigned(N));
  const unsigned long numbers[] = {0ul, 1ul, 0x80000000ul, 0xFFFFFFFFul, 0x12345678ul};
  for (unsigned i = 0; i < 5; ++i)
    show("ulong", std::bitset<N>(numbers[i]));
  for (int round = 0; round < 6; ++round) {
    std::string text = random_text(below(N + 10), "01", 2);
    size_t pos = below(text.size() + 1);
    size_t n = below(text.size() + 3);
    printf("  from \"%s\" pos %u n %u\n", text.c_str(), unsigned(pos), unsigned(n));
    show("str", std::bitset<N>(text));
    show("pos", std::bitset<N>(text, pos));
    show("pos,n", std::bitset<N>(text, pos, n));
  }
}

// Newlines shown as '|'.
static std::string shown(std::string text) {
  for (size_t i = 0; i < text.size(); ++i)
    if (text[i] == '\n')
      text[i] = '|';
  return text;
}

template <size_t N> static void streams() {
  printf("streams of bitset<%u>\n", unsigned(N));
  for (int round = 0; round < 12; ++round) {
    std::string text = random_text(below(N + 6), "0011 \nx", 7);
    std::istringstream in(text);
    std::bitset<N> b;
    if (N)
      b.set(0); // a bit that a failed read leaves in place
    in >> b;
    std::string rest;
    for (int c = in.rdbuf()->sbumpc(); c != EOF; c = in.rdbuf()->sbumpc())
      rest += char(c);
    printf("  read \"%s\": [%c%c%c] rest \"%s\"\n", shown(text).c_str(), in.eof() ? 'e' : '-',
           in.fail() ? 'f' : '-', in.bad() ? 'b' : '-', shown(rest).c_str());
    show("read", b);
    std::ostringstream out;
    out << b << '|';
    printf("  wrote %s\n", out.str().c_str());
  }
}

template <size_t N> static void all() {
  operations<N>(60);
  constructors<N>();
  if (N) // reading a set of no bits differs: bitset_read_no_bits_diverges
    streams<N>();
}

int main() {
  all<0>();
  all<1>();
  all<7>();
  all<31>();
  all<32>();
  all<33>();
  all<64>();
  all<65>();
  all<100>();
  return 0;
}
