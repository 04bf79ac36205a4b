// String streams read back what was written: generated integers, doubles and words written to a
// stringstream and read again, writing and reading in turns, str() before and after, str(text)
// to start over, and tellg/seekg within the text on a good stream.
#include <cstdio>
#include <sstream>
#include <string>

#include "input_support.h"

static void round_trip(unsigned seed) {
  generator g(seed);
  std::stringstream ss;
  ss.precision(17);
  long longs[50];
  unsigned long ulongs[50];
  double doubles[50];
  std::string words[50];
  for (int i = 0; i < 50; ++i) {
    longs[i] = static_cast<long>(g.next() << 8) >> g.below(31);
    ulongs[i] = g.next() * 4099ul;
    doubles[i] = static_cast<double>(static_cast<long>(g.next()) - 8388608) / 64.0;
    for (unsigned n = 1 + g.below(9); n > 0; --n)
      words[i] += static_cast<char>('!' + g.below(94));
    ss << longs[i] << ' ' << ulongs[i] << '\n' << doubles[i] << '\t' << words[i] << ' ';
  }
  std::string text = ss.str();
  printf("round trip %u: wrote %lu bytes %08x\n", seed, static_cast<unsigned long>(text.size()),
         checksum(text.data(), text.size()));
  int same = 0;
  for (int i = 0; i < 50; ++i) {
    long l = 0;
    unsigned long u = 0;
    double d = 0;
    std::string w;
    ss >> l >> u >> d >> w;
    if (l == longs[i] && u == ulongs[i] && d == doubles[i] && w == words[i])
      ++same;
    else
      printf("  item %d read %ld %lu %.17g %s\n", i, l, u, d, w.c_str());
  }
  long after = 0;
  ss >> after;
  printf("  %d of 50 read back; then", same);
  print_state(ss);
  printf(" str() still %lu bytes\n", static_cast<unsigned long>(ss.str().size()));
}

static void turns() {
  std::stringstream ss;
  printf("turns:");
  for (int i = 0; i < 200; ++i) {
    ss << i * 37 << ' ';
    int v = -1;
    ss >> v;
    if (v != i * 37)
      printf(" [%d read %d]", i, v);
  }
  print_state(ss);
  std::string text = ss.str();
  printf(" %lu bytes %08x\n", static_cast<unsigned long>(text.size()),
         checksum(text.data(), text.size()));
}

static void seeking() {
  std::istringstream is("alpha beta gamma delta epsilon");
  std::string word;
  printf("seek:");
  for (int i = 0; i < 4; ++i) {
    is >> word;
    printf(" %s@%ld", word.c_str(), static_cast<long>(is.tellg()));
  }
  is.seekg(6);
  is >> word;
  printf(" | seekg(6) %s@%ld", word.c_str(), static_cast<long>(is.tellg()));
  is.seekg(-13, std::ios_base::end);
  is >> word;
  printf(" | seekg(-13,end) %s@%ld", word.c_str(), static_cast<long>(is.tellg()));
  is.seekg(0, std::ios_base::beg);
  is.seekg(11, std::ios_base::cur);
  is >> word;
  printf(" | seekg(11,cur) %s@%ld", word.c_str(), static_cast<long>(is.tellg()));
  is.seekg(std::streampos(0));
  char c = 0;
  is >> c;
  printf(" | start %c@%ld", c, static_cast<long>(is.tellg()));
  print_state(is);
  printf("\n");

  std::stringstream ss;
  ss << "12 34 56";
  int x = 0;
  printf("stringstream: tellg %ld", static_cast<long>(ss.tellg()));
  ss >> x;
  printf(" read %d tellg %ld", x, static_cast<long>(ss.tellg()));
  ss.seekg(3);
  ss >> x;
  printf(" seekg(3) read %d", x);
  ss.seekg(0);
  ss >> x;
  printf(" seekg(0) read %d", x);
  print_state(ss);
  printf("\n");
}

static void replace_text() {
  std::istringstream is("1 2 3");
  int a = 0, b = 0;
  is >> a;
  is.str("40 50");
  is >> b;
  printf("str(text): %d %d str \"%s\"", a, b, is.str().c_str());
  print_state(is);
  is.clear();
  is.str("");
  is >> b;
  printf(" empty:");
  print_state(is);
  std::ostringstream out;
  for (int i = 0; i < 1000; ++i)
    out << i << (i % 10 == 9 ? '\n' : ',');
  out << ','; // each number has its separator, so the loop ends on a number at the end
  std::string text = out.str();
  std::istringstream back(text);
  long sum = 0, v = 0;
  char sep = 0;
  while (back >> v) {
    sum += v;
    back >> sep;
  }
  printf(" | 1000 numbers: %lu bytes %08x sum %ld", static_cast<unsigned long>(text.size()),
         checksum(text.data(), text.size()), sum);
  print_state(back);
  printf("\n");
}

int main() {
  for (unsigned seed = 1; seed <= 4; ++seed)
    round_trip(seed);
  turns();
  seeking();
  replace_text();
  return 0;
}
