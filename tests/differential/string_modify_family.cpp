// The mutators of std::string over generated strings and positions inside them: replace, insert,
// erase, append, assign, resize and substr, each result printed.
#include <stdio.h>
#include <string>

static unsigned seed = 777;
static unsigned next_random() {
  seed = seed * 1103515245u + 12345u;
  return (seed >> 16) & 0x7fff;
}

static std::string random_text(unsigned max_length) {
  unsigned length = next_random() % (max_length + 1);
  std::string text;
  for (unsigned i = 0; i < length; ++i)
    text += static_cast<char>('a' + next_random() % 26);
  return text;
}

static void show(const char* what, const std::string& s) {
  printf(" %s=%u:%s", what, static_cast<unsigned>(s.size()), s.c_str());
}

int main() {
  for (int round = 0; round < 300; ++round) {
    std::string base = random_text(70);
    std::string other = random_text(40);
    std::string::size_type pos = base.empty() ? 0 : next_random() % (base.size() + 1);
    std::string::size_type n = next_random() % 12;
    std::string::size_type n2 = 1 + next_random() % 40;
    char c = static_cast<char>('A' + next_random() % 26);
    printf("%d [%s] [%s] %u %u %u %c:", round, base.c_str(), other.c_str(),
           static_cast<unsigned>(pos), static_cast<unsigned>(n), static_cast<unsigned>(n2), c);

    std::string s = base;
    s.replace(pos, n, other);
    show("replace", s);
    s = base;
    s.replace(pos, n, n2, c);
    show("replace_n", s);
    s = base;
    if (!other.empty())
      s.insert(pos, other);
    show("insert", s);
    s = base;
    s.insert(pos, n2, c);
    show("insert_n", s);
    s = base;
    s.erase(pos, n);
    show("erase", s);
    s = base;
    s.erase(pos);
    show("erase_tail", s);
    s = base;
    s.append(other).append(n2, c).append("xyz", 2);
    show("append", s);
    s = base;
    s += other;
    s += c;
    show("plus_assign", s);
    s = base;
    s.assign(other, 0, n);
    show("assign", s);
    s = base;
    s.resize(n2 + pos, c);
    show("resize", s);
    show("substr", base.substr(pos, n));
    show("concat", base + c + other + "!" + base);
    std::string shared = base;
    std::string copy = shared;
    copy.append(1, c);
    if (!copy.empty())
      copy[0] = c;
    show("copy", copy);
    show("shared", shared);
    printf(" cmp=%d/%d/%d\n", (base.compare(other) > 0) - (base.compare(other) < 0),
           (base < other) + 2 * (base == other),
           (base.compare(0, n, other, 0, n) > 0) - (base.compare(0, n, other, 0, n) < 0));
  }
  return 0;
}
