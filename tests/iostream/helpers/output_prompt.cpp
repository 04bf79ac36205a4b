// A prompt on cout without a newline, then a word read from cin: the read flushes the prompt
// first. stdout is fully buffered and stderr unbuffered, as in output_ties.
#include <cstdio>
#include <iostream>
#include <string>

int main() {
  std::setvbuf(stdout, 0, _IOFBF, BUFSIZ);
  std::setvbuf(stderr, 0, _IONBF, 0);
  std::cout << "name? ";
  std::string word;
  std::cin >> word;
  std::fputs("[read]", stderr);
  std::cout << "hello " << word << '\n';
  int n = 0;
  std::cout << "number? ";
  std::cin >> n;
  std::fputs("[read]", stderr);
  std::cout << n * 2 << '\n';
  return 0;
}
