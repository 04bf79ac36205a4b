// A small program that uses streams, strings and containers: counts the words of its text.
#include <iostream>
#include <map>
#include <sstream>
#include <string>

int main() {
  std::istringstream text("to be or not to be");
  std::map<std::string, int> counts;
  std::string word;
  while (text >> word)
    ++counts[word];
  for (std::map<std::string, int>::const_iterator i = counts.begin(); i != counts.end(); ++i)
    std::cout << i->first << ' ' << i->second << '\n';
  return 0;
}
