// Counts how often each word occurs on standard input and prints the ten most
// frequent:
//   word_frequency < examples/input/word_frequency.txt
#include <algorithm>
#include <cctype>
#include <iomanip>
#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

// Letters only, in lower case: "The" and "the," are the same word.
static std::string normalised(const std::string& word) {
  std::string letters;
  for (std::string::size_type i = 0; i < word.size(); ++i) {
    unsigned char c = static_cast<unsigned char>(word[i]);
    if (std::isalpha(c))
      letters += static_cast<char>(std::tolower(c));
  }
  return letters;
}

// Most frequent first; words that occur equally often in alphabetical order.
static bool more_frequent(const std::pair<std::string, int>& a,
                          const std::pair<std::string, int>& b) {
  if (a.second != b.second)
    return a.second > b.second;
  return a.first < b.first;
}

int main() {
  // A map keeps its keys sorted; operator[] adds a word with the count 0 the
  // first time it is met.
  std::map<std::string, int> counts;
  std::string word;
  long total = 0;
  while (std::cin >> word) {
    std::string key = normalised(word);
    if (key.empty())
      continue;
    ++counts[key];
    ++total;
  }

  // Copy the (word, count) pairs into a vector to sort them by count instead of
  // by word.
  std::vector<std::pair<std::string, int> > ranked(counts.begin(), counts.end());
  std::sort(ranked.begin(), ranked.end(), more_frequent);

  std::cout << total << " words, " << counts.size() << " different\n";
  std::size_t shown = std::min<std::size_t>(10, ranked.size());
  for (std::size_t i = 0; i < shown; ++i)
    std::cout << std::left << std::setw(12) << ranked[i].first << ' ' << ranked[i].second << '\n';
  return 0;
}
