// Every locale, the classic one and named ones, holds the time and monetary facets.
#include "locale_test_support.h"
#include "lorb_test.h"
#include <locale>

static void check_time_and_money_facets(const std::locale& l) {
  CHECK(std::has_facet<time_get_facet>(l));
  CHECK(std::has_facet<time_put_facet>(l));
  CHECK(std::has_facet<money_get_facet>(l));
  CHECK(std::has_facet<money_put_facet>(l));
}

TEST(the_classic_locale_holds_the_time_and_monetary_facets) {
  check_time_and_money_facets(std::locale::classic());
}

TEST(a_named_locale_holds_the_time_and_monetary_facets) {
  check_time_and_money_facets(std::locale("C"));
  check_time_and_money_facets(std::locale(std::locale::classic(), "C", std::locale::time));
}
