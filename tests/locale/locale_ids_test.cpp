// Facet ids are numbered in order of first use: each case runs a fresh helper program.
#include "lorb_test.h"
#include <limits.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

// Runs the helper built beside this test and returns what it printed (at most 4 KiB).
static const char* output_of(const char* helper) {
  static char text[4096];
  char path[PATH_MAX];
  ssize_t length = readlink("/proc/self/exe", path, sizeof path - 1);
  CHECK(length > 0);
  path[length > 0 ? length : 0] = 0;
  char* slash = strrchr(path, '/');
  strcpy(slash ? slash + 1 : path, helper);
  FILE* pipe = popen(path, "r");
  CHECK(pipe != 0);
  size_t got = pipe ? fread(text, 1, sizeof text - 1, pipe) : 0;
  text[got] = 0;
  if (pipe)
    CHECK_EQ(pclose(pipe), 0);
  return text;
}

TEST(the_first_locale_numbers_the_standard_facets_1_to_12_in_creation_order) {
  CHECK_STR(output_of("helper_locale_ids_classic_first"), "global before: null\n"
                                                          "numpunct 0\n"
                                                          "num_get 0\n"
                                                          "num_put 0\n"
                                                          "ctype 0\n"
                                                          "codecvt 0\n"
                                                          "collate 0\n"
                                                          "time_put 0\n"
                                                          "time_get 0\n"
                                                          "moneypunct<true> 0\n"
                                                          "moneypunct<false> 0\n"
                                                          "money_put 0\n"
                                                          "money_get 0\n"
                                                          "global after: classic\n"
                                                          "numpunct 1\n"
                                                          "num_get 2\n"
                                                          "num_put 3\n"
                                                          "ctype 4\n"
                                                          "codecvt 5\n"
                                                          "collate 6\n"
                                                          "time_put 7\n"
                                                          "time_get 8\n"
                                                          "moneypunct<true> 9\n"
                                                          "moneypunct<false> 10\n"
                                                          "money_put 11\n"
                                                          "money_get 12\n"
                                                          "table size 13\n");
}

TEST(facets_used_before_any_locale_keep_their_earlier_numbers_and_the_table_grows) {
  CHECK_STR(output_of("helper_locale_ids_user_first"), "own 1\n"
                                                       "collate 2\n"
                                                       "numpunct 3\n"
                                                       "num_get 4\n"
                                                       "num_put 5\n"
                                                       "ctype 6\n"
                                                       "codecvt 7\n"
                                                       "collate 2\n"
                                                       "time_put 8\n"
                                                       "time_get 9\n"
                                                       "moneypunct<true> 10\n"
                                                       "moneypunct<false> 11\n"
                                                       "money_put 12\n"
                                                       "money_get 13\n"
                                                       "table size 14\n"
                                                       "own held: 0\n"
                                                       "later held: 0\n"
                                                       "later 14\n"
                                                       "table size 14\n");
}
