// Counts the lines, words and characters of standard input, as the wc command does:
//   word_count < examples/input/word_count.txt
#include <iostream>
#include <sstream>
#include <string>

int main() {
  long lines = 0, words = 0, characters = 0;
  std::string line;
  // std::getline reads up to the next newline, which it takes out of the input but does not put
  // into line. It returns the stream, which tests false once nothing more could be read.
  while (std::getline(std::cin, line)) {
    characters += line.size();
    // eof() is set only when the input ended before a newline: a last line without one. Such a
    // line is not counted as a line, as wc counts the newlines.
    if (!std::cin.eof()) {
      ++lines;
      ++characters; // the newline
    }
    // An istringstream reads from a string as std::cin reads from the keyboard or a file. >> into
    // a string skips spaces, tabs and the like, then takes characters up to the next one of them.
    std::istringstream in(line);
    std::string word;
    while (in >> word)
      ++words;
  }
  std::cout << "lines: " << lines << '\n';
  std::cout << "words: " << words << '\n';
  std::cout << "characters: " << characters << '\n';
  return 0;
}
