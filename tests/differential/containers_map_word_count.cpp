// Word counting the usual way: map<string, int> with ++counts[word] over generated text, then the
// words by frequency through a multimap<int, string>, lookups, and the rare words erased.
#include <map>
#include <stdio.h>
#include <string>

static unsigned seed = 4711u;
static unsigned next_random(unsigned n) {
  seed = seed * 1103515245u + 12345u;
  return ((seed >> 16) & 0x7fff) % n;
}

// Short words are common and long ones rare, as in text.
static std::string generated_word() {
  static const char* const syllables[] = {"an", "be", "co", "da", "el", "fi", "go", "hu", "is"};
  std::string word;
  unsigned length = 1 + next_random(2) + (next_random(4) == 0 ? next_random(3) : 0);
  for (unsigned i = 0; i < length; ++i)
    word += syllables[next_random(9 - 2 * i > 3 ? 9 - 2 * i : 3)];
  return word;
}

int main() {
  typedef std::map<std::string, int> counts_map;
  counts_map counts;
  for (int n = 0; n < 6000; ++n)
    ++counts[generated_word()];

  printf("distinct %u\n", static_cast<unsigned>(counts.size()));
  for (counts_map::const_iterator i = counts.begin(); i != counts.end(); ++i)
    printf("%s %d\n", i->first.c_str(), i->second);

  std::multimap<int, std::string> by_frequency;
  for (counts_map::const_iterator i = counts.begin(); i != counts.end(); ++i)
    by_frequency.insert(std::make_pair(i->second, i->first));
  printf("most frequent:");
  int shown = 0;
  for (std::multimap<int, std::string>::reverse_iterator r = by_frequency.rbegin();
       r != by_frequency.rend() && shown < 15; ++r, ++shown)
    printf(" %s=%d", r->second.c_str(), r->first);
  printf("\nwords seen once: %u\n", static_cast<unsigned>(by_frequency.count(1)));

  const char* probes[] = {"an", "anbe", "zz", "isisis", "co", "", "gohuis"};
  for (int i = 0; i < 7; ++i) {
    counts_map::const_iterator found = counts.find(probes[i]);
    counts_map::const_iterator after = counts.upper_bound(probes[i]);
    printf("find '%s': %d; next '%s'\n", probes[i], found == counts.end() ? -1 : found->second,
           after == counts.end() ? "(end)" : after->first.c_str());
  }

  unsigned erased = 0;
  for (counts_map::iterator i = counts.begin(); i != counts.end();) {
    if (i->second == 1) {
      counts.erase(i++);
      ++erased;
    } else {
      ++i;
    }
  }
  printf("erased %u, left %u\n", erased, static_cast<unsigned>(counts.size()));
  counts_map copy(counts);
  copy["an"] += 1000;
  printf("copy differs %d, less %d\n", copy != counts, counts < copy);
  std::pair<counts_map::iterator, counts_map::iterator> range = counts.equal_range("be");
  printf("equal_range be: %s\n",
         range.first == range.second ? "(none)" : range.first->first.c_str());
  return 0;
}
