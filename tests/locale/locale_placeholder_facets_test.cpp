// The time and monetary facets that are not built yet: present in every locale,
// and every operation traps. This list shrinks as each facet is built.
#include "locale_test_support.h"
#include "lorb_test.h"
#include <locale>

TEST(every_locale_holds_the_unbuilt_facets) {
  const std::locale& c = std::locale::classic();
  CHECK(std::has_facet<time_get_facet>(c));
  CHECK(std::has_facet<time_put_facet>(c));
  CHECK(std::has_facet<money_get_facet>(c));
  CHECK(std::has_facet<money_put_facet>(c));
}

// Instances over a plain pointer, so the operations can be called before the stream-buffer
// iterators exist; the traps are the same for every iterator type.
template <class _Facet> struct usable : _Facet {
  usable() : _Facet(1) {}
};

static char place_of_stream[64];
static std::ios_base& no_stream = *reinterpret_cast<std::ios_base*>(place_of_stream);
static char text[8];
static int state;
static tm when;

TEST(unbuilt_time_operations_trap) {
  usable<std::time_get<char, char*> > get;
  usable<std::time_put<char, char*> > put;
  EXPECT_ABORT(get.date_order(), "time_get::date_order is not built yet\n");
  EXPECT_ABORT(get.get_time(text, text, no_stream, state, &when),
               "time_get::get_time is not built yet\n");
  EXPECT_ABORT(get.get_date(text, text, no_stream, state, &when),
               "time_get::get_date is not built yet\n");
  EXPECT_ABORT(get.get_weekday(text, text, no_stream, state, &when),
               "time_get::get_weekday is not built yet\n");
  EXPECT_ABORT(get.get_monthname(text, text, no_stream, state, &when),
               "time_get::get_monthname is not built yet\n");
  EXPECT_ABORT(get.get_year(text, text, no_stream, state, &when),
               "time_get::get_year is not built yet\n");
  EXPECT_ABORT(put.put(text, no_stream, ' ', &when, 'c'), "time_put::put is not built yet\n");
  EXPECT_ABORT(put.put(text, no_stream, ' ', &when, text, text),
               "time_put::put is not built yet\n");
}

TEST(unbuilt_monetary_operations_trap) {
  usable<std::money_get<char, char*> > get;
  usable<std::money_put<char, char*> > put;
  long double units = 0;
  EXPECT_ABORT(get.get(text, text, false, no_stream, state, units),
               "money_get::get is not built yet\n");
  EXPECT_ABORT(put.put(text, true, no_stream, ' ', units), "money_put::put is not built yet\n");
}
