// Construction, element access, comparison and iteration of std::string over generated inputs.
#include <stdio.h>
#include <string.h>
#include <string>

static unsigned seed = 4242;
static unsigned next_random() {
  seed = seed * 1103515245u + 12345u;
  return (seed >> 16) & 0x7fff;
}

static int sign(int value) { return (value > 0) - (value < 0); }

int main() {
  char buffer[128];
  for (int round = 0; round < 300; ++round) {
    unsigned length = next_random() % 100;
    for (unsigned i = 0; i < length; ++i)
      buffer[i] = static_cast<char>("ab\xe9z"[next_random() % 4]);
    buffer[length] = 0;
    std::string from_c(buffer);
    std::string from_count(buffer, length / 2);
    std::string filled(length, buffer[0] ? buffer[0] : 'x');
    std::string from_range(buffer, buffer + length);
    std::string copied(from_c);
    unsigned pos = length ? next_random() % length : 0;
    std::string part(from_c, pos, next_random() % 10);
    std::string rest(from_c, pos);
    printf("%u: %u %u %u %u %u %u %u |%s|%s|", length, static_cast<unsigned>(from_c.size()),
           static_cast<unsigned>(from_count.size()), static_cast<unsigned>(filled.size()),
           static_cast<unsigned>(from_range.size()), static_cast<unsigned>(copied.size()),
           static_cast<unsigned>(part.size()), static_cast<unsigned>(rest.size()), part.c_str(),
           from_count.c_str());
    printf(" %d %d %d %d %d", sign(from_c.compare(from_count)), sign(from_count.compare(from_c)),
           sign(from_c.compare(filled)), sign(part.compare(rest)), sign(from_c.compare(buffer)));
    printf(" %d%d%d%d%d%d", from_c == copied, from_c != from_count,
           from_count<from_c, filled> from_c, part <= rest, rest >= part);
    printf(" %d%d%d", from_c == buffer, buffer == from_range, from_count < buffer);
    unsigned sum = 0;
    for (std::string::const_iterator i = from_c.begin(); i != from_c.end(); ++i)
      sum = sum * 31 + static_cast<unsigned char>(*i);
    std::string reversed(from_c.rbegin(), from_c.rend());
    printf(" %u %s", sum, reversed.c_str());
    if (length)
      printf(" %c%c", from_c[0], from_c.at(length - 1));
    std::string empty;
    printf(" %d %u", empty.empty(), static_cast<unsigned>(strlen(empty.c_str())));
    copied[0] = 'Q';
    printf(" %c %c\n", from_c.c_str()[0] ? from_c.c_str()[0] : '-', copied[0]);
  }
  return 0;
}
