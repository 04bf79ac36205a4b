// The searches of std::string over generated texts and patterns (never an empty pattern for find
// and rfind), printed position by position.
#include <stdio.h>
#include <string>

static unsigned seed = 12345;
static unsigned next_random() {
  seed = seed * 1103515245u + 12345u;
  return (seed >> 16) & 0x7fff;
}

static std::string random_text(unsigned max_length) {
  static const char alphabet[] = "abca b\xff";
  unsigned length = next_random() % (max_length + 1);
  std::string text;
  for (unsigned i = 0; i < length; ++i)
    text += alphabet[next_random() % 7];
  return text;
}

static long shown(std::string::size_type position) {
  return position == std::string::npos ? -1L : static_cast<long>(position);
}

int main() {
  for (int round = 0; round < 400; ++round) {
    std::string text = random_text(24);
    std::string pattern = random_text(4);
    if (pattern.empty())
      pattern = "a";
    std::string set = random_text(3);
    std::string::size_type positions[] = {
        0, 1, 2, 5, text.size() / 2, text.size(), text.size() + 1, std::string::npos};
    printf("[%s] [%s] {%s}:", text.c_str(), pattern.c_str(), set.c_str());
    for (unsigned i = 0; i < sizeof positions / sizeof positions[0]; ++i) {
      std::string::size_type pos = positions[i];
      printf(" %ld/%ld/%ld/%ld/%ld/%ld/%ld/%ld", shown(text.find(pattern, pos)),
             shown(text.rfind(pattern, pos)), shown(text.find(pattern[0], pos)),
             shown(text.rfind(pattern[0], pos)), shown(text.find_first_of(set, pos)),
             shown(text.find_last_of(set, pos)), shown(text.find_first_not_of(set, pos)),
             shown(text.find_last_not_of(set, pos)));
    }
    printf(" %ld %ld\n", shown(text.find(pattern.c_str(), 0, 1)),
           shown(text.rfind(pattern.c_str())));
  }
  return 0;
}
