// std::cin over a file of generated input: integers of several widths and bases, floating-point
// numbers, booleans, words, single characters and whole lines, separated by random blanks, read
// in the order they were written; then the end of the file. The input is written to a temporary
// file that stdin is reopened on before cin is first used.
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string>

#include "input_support.h"

enum item_kind {
  an_int,
  an_unsigned,
  a_hex,
  a_short,
  a_double,
  a_float,
  a_bool,
  a_word,
  a_char,
  a_line,
  kinds
};

static const char* const kind_names[] = {"int",   "unsigned", "hex",  "short", "double",
                                         "float", "bool",     "word", "char",  "line"};

static std::string input;
static item_kind items[600];

static void append_item(generator& g, item_kind kind) {
  char text[64];
  switch (kind) {
  case an_int:
    sprintf(text, "%d", static_cast<int>(g.next() << 8) >> static_cast<int>(g.below(31)));
    break;
  case an_unsigned:
    sprintf(text, "%u", g.next() * 257u);
    break;
  case a_hex:
    sprintf(text, g.below(2) ? "%x" : "0X%X", g.next());
    break;
  case a_short:
    sprintf(text, "%d", static_cast<int>(g.below(65536)) - 32768);
    break;
  case a_double:
    sprintf(text, "%.*g", static_cast<int>(1 + g.below(17)),
            static_cast<double>(static_cast<int>(g.next()) - 8388608) / (1 + g.below(1000)));
    break;
  case a_float:
    sprintf(text, "%.5e", static_cast<double>(g.next()) * 1e-3);
    break;
  case a_bool:
    sprintf(text, "%u", g.below(2));
    break;
  case a_word:
  case a_line: {
    unsigned length = 1 + g.below(kind == a_word ? 12 : 60), i = 0;
    if (kind == a_line)
      text[i++] = ';';
    for (; i < length; ++i)
      text[i] = static_cast<char>(kind == a_line && g.below(6) == 0 ? ' ' : '!' + g.below(94));
    text[i] = 0;
    break;
  }
  case a_char:
    text[0] = static_cast<char>('!' + g.below(94));
    text[1] = 0;
    break;
  default:
    break;
  }
  input += text;
  input += kind == a_line ? "\n" : g.below(3) == 0 ? "\n" : g.below(2) ? " " : " \t ";
}

int main() {
  generator g(7);
  int count = 0;
  for (; count < 600; ++count) {
    items[count] = item_kind(g.below(kinds));
    append_item(g, items[count]);
  }
  input += "\n  \n";
  const char* path = stdin_from("input_cin", input.data(), input.size());
  if (!path)
    return 1;
  printf("cin tied to cout: %d\n", std::cin.tie() == &std::cout ? 1 : 0);
  for (int i = 0; i < count; ++i) {
    printf("%s: ", kind_names[items[i]]);
    switch (items[i]) {
    case an_int: {
      int v = 0;
      std::cin >> v;
      printf("%d", v);
      break;
    }
    case an_unsigned: {
      unsigned v = 0;
      std::cin >> v;
      printf("%u", v);
      break;
    }
    case a_hex: {
      unsigned long v = 0;
      std::cin >> std::hex >> v >> std::dec;
      printf("%lx", v);
      break;
    }
    case a_short: {
      short v = 0;
      std::cin >> v;
      printf("%hd", v);
      break;
    }
    case a_double: {
      double v = 0;
      std::cin >> v;
      printf("%.17g", v);
      break;
    }
    case a_float: {
      float v = 0;
      std::cin >> v;
      printf("%.9g", static_cast<double>(v));
      break;
    }
    case a_bool: {
      bool v = false;
      std::cin >> v;
      printf("%d", v ? 1 : 0);
      break;
    }
    case a_word: {
      std::string v;
      std::cin >> v;
      printf("%s", v.c_str());
      break;
    }
    case a_char: {
      char v = 0;
      std::cin >> v;
      printf("%c", v);
      break;
    }
    default: {
      char mark = 0;
      std::string v;
      std::cin >> mark;
      std::getline(std::cin, v);
      printf("%c|%s|", mark, v.c_str());
      break;
    }
    }
    print_state(std::cin);
    printf("\n");
  }
  // Only blanks are left: a number finds the end.
  long last = 0;
  std::cin >> last;
  printf("at the end:");
  print_state(std::cin);
  std::cin.clear();
  int c = std::cin.get();
  printf(" get %d", c);
  print_state(std::cin);
  printf("\n");
  remove(path);
  return 0;
}
