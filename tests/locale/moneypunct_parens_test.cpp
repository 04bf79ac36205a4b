// moneypunct<char, false> of a locale whose sign position 0 asks for parentheses: the pattern's
// first column, and "()" appended to the sign strings. The locale is compiled for the test.
#include "lorb_test.h"
#include <__lorb/punct_facets.h>
#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

template <bool Intl> struct plain_byname : std::moneypunct_byname<char, Intl> {
  explicit plain_byname(const char* name) : std::moneypunct_byname<char, Intl>(name, 1) {}
  ~plain_byname() {}
};

#define CHECK_PATTERN(p, text) CHECK_BYTES((p).field, 5, text, 5)

static const char parens_locale_source[] = "LC_CTYPE\ncopy \"POSIX\"\nEND LC_CTYPE\n"
                                           "LC_COLLATE\ncopy \"POSIX\"\nEND LC_COLLATE\n"
                                           "LC_NUMERIC\ncopy \"POSIX\"\nEND LC_NUMERIC\n"
                                           "LC_TIME\ncopy \"POSIX\"\nEND LC_TIME\n"
                                           "LC_MESSAGES\ncopy \"POSIX\"\nEND LC_MESSAGES\n"
                                           "LC_MONETARY\n"
                                           "int_curr_symbol \"XTS \"\n"
                                           "currency_symbol \"T\"\n"
                                           "mon_decimal_point \".\"\n"
                                           "mon_thousands_sep \",\"\n"
                                           "mon_grouping 3\n"
                                           "positive_sign \"+\"\n"
                                           "negative_sign \"-\"\n"
                                           "int_frac_digits 2\n"
                                           "frac_digits 2\n"
                                           "p_cs_precedes 1\n"
                                           "p_sep_by_space 0\n"
                                           "n_cs_precedes 0\n"
                                           "n_sep_by_space 1\n"
                                           "p_sign_posn 0\n"
                                           "n_sign_posn 0\n"
                                           "END LC_MONETARY\n";

static char dir[] = "/tmp/lorb_parens_XXXXXX";

static void remove_parens_locale() {
  char command[128];
  snprintf(command, sizeof command, "rm -rf %s", dir);
  if (system(command) != 0)
    puts("could not remove the test locale");
}

// Compiles the locale into a fresh directory and points the C library at it (in this process).
// Under memcheck every process is followed into its own log, and the shell that runs localedef
// would leave one without a summary, so there the compiled locale is not available: the checks
// run in the plain test run only.
static bool install_parens_locale() {
  const char* memcheck = getenv("LORB_MEMCHECK");
  if (memcheck && strcmp(memcheck, "1") == 0)
    return false;
  if (!mkdtemp(dir)) {
    puts("mkdtemp failed");
    exit(1);
  }
  char path[256];
  snprintf(path, sizeof path, "%s/source", dir);
  FILE* f = fopen(path, "w");
  fputs(parens_locale_source, f);
  fclose(f);
  char command[768];
  snprintf(command, sizeof command,
           "localedef -c -i %s/source -f UTF-8 %s/xx_PARENS.UTF-8 >/dev/null 2>&1; "
           "rm -f %s/source",
           dir, dir, dir);
  if (system(command) == -1) {
    puts("localedef could not be run");
    exit(1);
  }
  atexit(remove_parens_locale);
  setenv("LOCPATH", dir, 1);
  if (!setlocale(LC_MONETARY, "xx_PARENS.UTF-8") || localeconv()->p_sign_posn != 0) {
    puts("the test locale could not be compiled");
    exit(1);
  }
  setlocale(LC_ALL, "C");
  return true;
}

ISOLATED_TEST(sign_position_zero_appends_parentheses_to_both_signs) {
  if (!install_parens_locale())
    return;
  plain_byname<false> mp("xx_PARENS.UTF-8");
  CHECK_STR(mp.positive_sign().c_str(), "+()");
  CHECK_STR(mp.negative_sign().c_str(), "-()");
  CHECK_PATTERN(mp.pos_format(), "-?0v"); // symbol first, no space: first column
  CHECK_PATTERN(mp.neg_format(), "-v ?"); // symbol after, a space: first column
  CHECK_STR(mp.curr_symbol().c_str(), "T");
  CHECK_EQ(mp.frac_digits(), 2);
}

ISOLATED_TEST(international_signs_get_no_parentheses) {
  if (!install_parens_locale())
    return;
  plain_byname<true> mp("xx_PARENS.UTF-8");
  CHECK_STR(mp.positive_sign().c_str(), "+");
  CHECK_STR(mp.negative_sign().c_str(), "-");
  CHECK_PATTERN(mp.pos_format(), "?-0v");
  CHECK_PATTERN(mp.neg_format(), "?-0v");
  CHECK_STR(mp.curr_symbol().c_str(), "XTS ");
}
