// Facet ids are numbered in order of first use. The library's start-up builds the standard
// streams, whose first locale is the classic one: every program starts with the standard facets
// numbered, and its own facets come after them.
#include "locale_test_support.h"
#include "lorb_test.h"
#include <locale>
#include <stdio.h>
#include <string.h>

static char listing[2048];

static void list(const char* line, unsigned value) {
  size_t used = strlen(listing);
  snprintf(listing + used, sizeof listing - used, "%s %u\n", line, value);
}

// The ids of the twelve standard facets, in the order a locale creates them.
static void list_standard_ids() {
  list("numpunct", std::numpunct<char>::id.__value);
  list("num_get", num_get_facet::id.__value);
  list("num_put", num_put_facet::id.__value);
  list("ctype", std::ctype<char>::id.__value);
  list("codecvt", codecvt_facet::id.__value);
  list("collate", std::collate<char>::id.__value);
  list("time_put", time_put_facet::id.__value);
  list("time_get", time_get_facet::id.__value);
  list("moneypunct<true>", std::moneypunct<char, true>::id.__value);
  list("moneypunct<false>", std::moneypunct<char, false>::id.__value);
  list("money_put", money_put_facet::id.__value);
  list("money_get", money_get_facet::id.__value);
}

ISOLATED_TEST(the_start_up_numbers_the_standard_facets_1_to_12_in_creation_order) {
  CHECK(std::locale::global_ == std::locale::classic().__imp);
  list_standard_ids();
  std::locale first;
  list("table size", first.__imp->facets.size);
  CHECK_STR(listing, "numpunct 1\nnum_get 2\nnum_put 3\nctype 4\ncodecvt 5\ncollate 6\n"
                     "time_put 7\ntime_get 8\nmoneypunct<true> 9\nmoneypunct<false> 10\n"
                     "money_put 11\nmoney_get 12\n"
                     "table size 13\n");
}

struct own_facet : std::locale::facet {
  static std::locale::id id;
};
std::locale::id own_facet::id;

struct later_facet : std::locale::facet {
  static std::locale::id id;
};
std::locale::id later_facet::id;

ISOLATED_TEST(a_program_facet_takes_the_next_number_beyond_the_standard_table) {
  list("own", own_facet::id.__number());
  list("collate", std::collate<char>::id.__number());
  std::locale named("en_US.UTF-8");
  list_standard_ids();
  list("table size", named.__imp->facets.size);
  CHECK(!std::has_facet<own_facet>(named)); // number 13 lies beyond the table
  CHECK(!std::has_facet<later_facet>(named));
  list("later", later_facet::id.__value);
  list("table size", named.__imp->facets.size);
  CHECK_STR(listing, "own 13\ncollate 6\n"
                     "numpunct 1\nnum_get 2\nnum_put 3\nctype 4\ncodecvt 5\ncollate 6\n"
                     "time_put 7\ntime_get 8\nmoneypunct<true> 9\nmoneypunct<false> 10\n"
                     "money_put 11\nmoney_get 12\n"
                     "table size 13\nlater 14\ntable size 13\n");
}
