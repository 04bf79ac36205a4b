// bool read from string streams, as 0/1 and with boolalpha as the classic names true/false:
// generated runs of values separated by blanks and ended by a character that is not a value,
// and single words that stop early or go on. No input here ends right after a value, and the
// value is printed only when the reading succeeded.
#include <cstdio>
#include <cstring>
#include <sstream>
#include <string>

#include "input_support.h"

static void read_run(const std::string& text, bool alpha) {
  std::istringstream is(text);
  if (alpha)
    is.setf(std::ios_base::boolalpha);
  printf("%s \"", alpha ? "alpha" : "digits");
  print_escaped(text.data(), text.size());
  printf("\" ->");
  for (int n = 0; n < 64; ++n) {
    bool v = false;
    is >> v;
    if (!is) {
      printf(" stop");
      break;
    }
    printf(" %d", v ? 1 : 0);
  }
  print_state(is);
  print_rest(is);
  printf("\n");
}

static void read_one(const char* text, bool alpha, bool skip) {
  std::istringstream is(text);
  if (alpha)
    is.setf(std::ios_base::boolalpha);
  if (!skip)
    is.unsetf(std::ios_base::skipws);
  printf("%s%s \"", alpha ? "alpha" : "digits", skip ? "" : " noskipws");
  print_escaped(text, strlen(text));
  printf("\" -> ");
  bool v = false;
  is >> v;
  if (is.fail())
    printf("-");
  else
    printf("%d", v ? 1 : 0);
  print_state(is);
  print_rest(is);
  printf("\n");
}

static const char* const blanks[] = {" ", "  ", "\t", "\n", " \r\n"};
// What follows the run: never a value name for boolalpha (a name that ends the input is not read
// the same way), never a sign or another digit for digits (GNU reads those as part of a number).
static const char* const word_ends[] = {";", "x", " .", "\n-", " 1"};
static const char* const digit_ends[] = {";", "x", " .", "\ntrue", " 1"};

int main() {
  generator g(42);
  for (int alpha = 0; alpha < 2; ++alpha)
    for (int run = 0; run < 40; ++run) {
      std::string text = g.below(2) ? " " : "";
      unsigned count = g.below(9);
      for (unsigned i = 0; i < count; ++i) {
        bool value = g.below(2) == 1;
        text += alpha ? (value ? "true" : "false") : (value ? "1" : "0");
        text += blanks[g.below(5)];
      }
      if (count && g.below(2))
        text.erase(text.size() - 1); // the end marker right after the last value
      text += alpha ? word_ends[g.below(5)] : digit_ends[g.below(5)];
      read_run(text, alpha != 0);
    }

  static const char* const digit_cases[] = {"0 ", "1 ", "1;", "0x", " \t1\n", "1.5",
                                            "0,", "a",  ";",  " x", "true ",  "\x01"};
  for (size_t i = 0; i < sizeof digit_cases / sizeof digit_cases[0]; ++i)
    read_one(digit_cases[i], false, true);
  read_one("1 ", false, false);
  read_one(" 1", false, false);

  static const char* const word_cases[] = {
      "true ",     "false ", "true;", "false\n", "truex", "falsey", "truetrue", "falsetrue",
      " \n true ", "tru;",   "fals ", "t;",      "f.",    "trUe ",  "TRUE ",    "False ",
      "1 ",        "0 ",     "x",     "fx",      "tx",    "truth ", "fa se"};
  for (size_t i = 0; i < sizeof word_cases / sizeof word_cases[0]; ++i)
    read_one(word_cases[i], true, true);
  read_one("true ", true, false);
  read_one(" true ", true, false);
  read_one("\tfalse ", true, false);
  return 0;
}
