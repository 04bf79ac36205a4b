// The deliberate differences again, through std::cin over a file (a file buffer with no buffer of
// its own, giving characters back with ungetc): blanks after the sign, basefield cleared, a zero
// byte ending a word, one character for a 0/1 bool, getline with size 0, a bool name at the end
// of the file, and the char extractor at the end of the file.
#include <cstdio>
#include <cstring>
#include <iomanip>
#include <iostream>

#include "input_support.h"

static void state(const char* label) {
  printf("%s", label);
  print_state(std::cin);
  printf("\n");
}

int main() {
  static const char input[] = "- 12 17 ab\0cd 10 rest of line\ntrue";
  const char* path = stdin_from("input_cin_diverges", input, sizeof input - 1);
  if (!path)
    return 1;
  long v = 7;
  std::cin >> v;
  printf("\"- 12\": %ld", v);
  state("");
  std::cin.unsetf(std::ios_base::basefield);
  std::cin >> v;
  printf("\"17\" without basefield: %ld", v);
  state("");
  std::cin.clear();
  std::cin.setf(std::ios_base::dec, std::ios_base::basefield);
  std::cin >> v;
  printf("then dec: %ld", v);
  state("");
  char word[8];
  std::cin >> std::setw(8) >> word;
  printf("word \"%s\"", word);
  std::cin >> word;
  printf(" then \"%s\"", word);
  state("");
  bool b = false;
  char c = 0;
  std::cin >> b >> c;
  printf("bool %d then char '%c'", b ? 1 : 0, c);
  state("");
  char line[16];
  memset(line, '#', sizeof line);
  std::cin.getline(line, 0);
  printf("getline(0) first byte %d gcount %ld", line[0], static_cast<long>(std::cin.gcount()));
  state("");
  std::cin.clear();
  std::cin.getline(line, sizeof line);
  printf("getline(16) \"%s\" gcount %ld", line, static_cast<long>(std::cin.gcount()));
  state("");
  b = false;
  std::cin >> std::boolalpha >> b;
  printf("\"true\" at the end: %d", b ? 1 : 0);
  state("");
  std::cin.clear();
  c = 'z';
  std::cin >> c;
  printf("char at the end: '%c'", c);
  state("");
  std::cin.clear();
  int last = std::cin.get();
  printf("get at the end: %d", last);
  state("");
  remove(path);
  return 0;
}
