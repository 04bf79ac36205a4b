// What the formatted-output programs share: their cases go to a file of their own, which is
// printed at the end with every byte outside the printable range shown as \xNN, so that NUL and
// high fill bytes survive the comparison.
#ifndef CASE_FILE_H
#define CASE_FILE_H

#include <cstdio>
#include <cstring>
#include <fstream>
#include <ostream>
#include <unistd.h>

static char case_file[64];

static void open_cases(std::ofstream& out, const char* program) {
  sprintf(case_file, "/tmp/%s.%ld", program, static_cast<long>(getpid()));
  out.open(case_file);
}

static void begin_case(std::ostream& out, const char* description) {
  out.write(description, static_cast<long>(strlen(description)));
  out.write(" [", 2);
}

static void end_case(std::ostream& out) { out.write("]\n", 2); }

static int print_cases(std::ofstream& out) {
  printf("stream good after the cases: %d\n", out.good() ? 1 : 0);
  out.close();
  FILE* file = fopen(case_file, "r");
  if (!file) {
    printf("cannot read %s\n", case_file);
    return 1;
  }
  for (int c = fgetc(file); c != EOF; c = fgetc(file)) {
    if (c == '\n' || (c >= 32 && c < 127))
      putchar(c);
    else
      printf("\\x%02x", c);
  }
  fclose(file);
  remove(case_file);
  return 0;
}

#endif
