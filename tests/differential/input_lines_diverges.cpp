// Where Lorb++'s character, char-array and getline reading deliberately differ: a zero byte ends a
// char-array word and is dropped; the char-array extractor clears the width and stores the
// terminator even when nothing could be read; the char extractor at the end of input sets failbit
// without eofbit; getline with a size below 1 still writes the terminator at s[0].
#include <cstdio>
#include <cstring>
#include <iomanip>
#include <sstream>
#include <string>

#include "input_support.h"

static void show(std::istream& is, const char* stored, unsigned long n) {
  printf(" -> \"");
  print_escaped(stored, n);
  printf("\" width %ld", static_cast<long>(is.width()));
  print_state(is);
  print_rest(is);
  printf("\n");
}

static void char_array(const std::string& text, long width, bool fail_first) {
  std::istringstream is(text);
  if (fail_first)
    is.setstate(std::ios_base::failbit);
  char word[8];
  memset(word, '#', sizeof word);
  printf("char array width %ld%s \"", width, fail_first ? " on a failed stream" : "");
  print_escaped(text.data(), text.size());
  printf("\"");
  is >> std::setw(width) >> word;
  show(is, word, sizeof word);
}

template <class C> static void one_char(const char* label, const char* text, int reads) {
  std::istringstream is(text);
  printf("%s \"", label);
  print_escaped(text, strlen(text));
  printf("\" x%d", reads);
  C c = 'z';
  for (int i = 0; i < reads; ++i)
    is >> c;
  char stored = static_cast<char>(c);
  show(is, &stored, 1);
}

static void getline_small(const char* text, long size) {
  std::istringstream is(text);
  char buffer[4];
  memset(buffer, '#', sizeof buffer);
  is.getline(buffer, size);
  printf("getline(%ld) \"%s\" gcount %ld", size, text, static_cast<long>(is.gcount()));
  show(is, buffer, sizeof buffer);
}

int main() {
  char_array(std::string("ab\0cd ef", 8), 0, false);
  char_array(std::string("\0abc", 4), 0, false);
  char_array(std::string("ab\0", 3), 0, false);
  char_array(std::string("x\0\0y", 4), 8, false);
  char_array("   ", 8, false);
  char_array("", 8, false);
  char_array("abc", 8, true);
  char_array("abcdefghijk", 6, false);

  one_char<char>("char", "", 1);
  one_char<char>("char", " \n\t", 1);
  one_char<char>("char", "a", 2);
  one_char<char>("char", "a  ", 2);
  one_char<signed char>("signed char", "", 1);
  one_char<unsigned char>("unsigned char", " ", 1);
  one_char<char>("char", "ab", 2);

  getline_small("abc", 0);
  getline_small("abc", -1);
  getline_small("", 0);
  return 0;
}
