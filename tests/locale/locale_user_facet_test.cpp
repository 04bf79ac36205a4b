// Installing a program's own facet in a copy of a locale, comparing locales, and comparing
// strings with a locale's collation.
#include "locale_test_support.h"
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <locale>
#include <string>

namespace {
int dot_punct_destroyed = 0;
struct dot_punct : std::numpunct<char> {
  explicit dot_punct(size_t refs = 0) : std::numpunct<char>(refs) {}
  ~dot_punct() { ++dot_punct_destroyed; }
  char do_thousands_sep() const { return '.'; }
  std::string do_grouping() const { return "\3"; }
};

// Orders strings backwards, so that a comparison through the locale is told from a plain one.
struct reversed_collate : std::collate<char> {
  int do_compare(const char* low1, const char* high1, const char* low2, const char* high2) const {
    return -std::collate<char>::do_compare(low1, high1, low2, high2);
  }
};
} // namespace

TEST(a_user_facet_takes_the_place_of_its_class_in_a_copy) {
  std::locale base;
  dot_punct* punct = new dot_punct;
  std::locale with(base, punct);
  CHECK(&std::use_facet<std::numpunct<char> >(with) == punct);
  CHECK(&std::use_facet<std::numpunct<char> >(base) != punct);
  CHECK(with.__imp != base.__imp);
  CHECK_EQ(std::use_facet<std::numpunct<char> >(with).thousands_sep(), '.');
}

TEST(a_locale_with_a_user_facet_has_no_name) {
  std::locale with(std::locale(), new dot_punct);
  CHECK_STR(with.name().c_str(), "*");
}

TEST(the_other_facets_are_shared_and_counted_once_more) {
  std::locale base;
  const std::locale::facet* ctype_facet = facet_of<std::ctype<char> >(base);
  unsigned before = ctype_facet->__refs;
  {
    std::locale with(base, new dot_punct);
    CHECK(facet_of<std::ctype<char> >(with) == ctype_facet);
    CHECK_EQ(ctype_facet->__refs, before + 1);
  }
  CHECK_EQ(ctype_facet->__refs, before);
}

TEST(a_managed_user_facet_dies_with_its_last_locale) {
  dot_punct_destroyed = 0;
  {
    std::locale with(std::locale(), new dot_punct);
    std::locale copy(with);
    CHECK_EQ(dot_punct_destroyed, 0);
  }
  CHECK_EQ(dot_punct_destroyed, 1);
}

TEST(a_user_facet_made_with_refs_1_outlives_its_locales) {
  dot_punct_destroyed = 0;
  dot_punct* kept = new dot_punct(1);
  { std::locale with(std::locale(), kept); }
  CHECK_EQ(dot_punct_destroyed, 0);
  CHECK_EQ(kept->__refs, 0u);
  delete kept;
  CHECK_EQ(dot_punct_destroyed, 1);
}

TEST(a_null_facet_gives_a_copy_with_the_same_facets_and_name) {
  std::locale base;
  std::locale copy(base, static_cast<dot_punct*>(0));
  CHECK(facet_of<std::numpunct<char> >(copy) == facet_of<std::numpunct<char> >(base));
  CHECK_STR(copy.name().c_str(), "C");
}

TEST(the_replaced_facet_is_released) {
  std::locale base;
  const std::locale::facet* old = facet_of<std::numpunct<char> >(base);
  unsigned before = old->__refs;
  std::locale with(base, new dot_punct);
  CHECK_EQ(old->__refs, before);
}

TEST(locales_are_equal_when_they_share_a_representation_or_a_real_name) {
  std::locale a;
  std::locale b(a);
  CHECK(a == b);
  CHECK(!(a != b));
  std::locale named("C");
  CHECK(named.__imp != a.__imp);
  CHECK(named == a);
  std::locale with(a, new dot_punct);
  std::locale other_with(a, new dot_punct);
  CHECK(with != a);
  CHECK(with != other_with); // both are named "*"
  std::locale with_copy(with);
  CHECK(with == with_copy);
}

TEST(a_locale_compares_strings_with_its_collation) {
  std::locale plain;
  std::locale backwards(plain, new reversed_collate);
  std::string apple("apple"), banana("banana");
  CHECK(plain(apple, banana));
  CHECK(!plain(banana, apple));
  CHECK(backwards(banana, apple));
  CHECK(!backwards(apple, banana));
}

ISOLATED_TEST(global_installs_a_locale_for_default_construction_and_returns_the_old_one) {
  std::locale with(std::locale(), new dot_punct);
  std::locale previous = std::locale::global(with);
  CHECK(previous == std::locale::classic());
  std::locale now;
  CHECK(now.__imp == with.__imp);
  CHECK(std::locale::global_ == with.__imp);
  std::locale back = std::locale::global(previous);
  CHECK(back.__imp == with.__imp);
  CHECK(std::locale().__imp == std::locale::classic().__imp);
}

ISOLATED_TEST(the_global_locale_holds_its_representation_after_every_other_handle_is_gone) {
  dot_punct_destroyed = 0;
  std::locale::global(std::locale(std::locale(), new dot_punct));
  CHECK_EQ(dot_punct_destroyed, 0);
  std::locale now;
  CHECK_EQ(std::use_facet<std::numpunct<char> >(now).thousands_sep(), '.');
}

ISOLATED_TEST(a_named_global_locale_sets_the_c_library_locale) {
  std::locale::global(std::locale("de_DE.UTF-8"));
  CHECK_STR(setlocale(LC_ALL, 0), "de_DE.UTF-8");
  std::locale::global(std::locale(std::locale(), new dot_punct)); // unnamed: C locale unchanged
  CHECK_STR(setlocale(LC_ALL, 0), "de_DE.UTF-8");
}

ISOLATED_TEST(the_global_locale_is_recorded_for_destruction_and_clears_global) {
  std::locale::global(std::locale(std::locale(), new dot_punct));
  dot_punct_destroyed = 0;
  __process_needed_destructions();
  CHECK_EQ(dot_punct_destroyed, 1);
  CHECK(std::locale::global_ == 0);
}
