// Combining locales by category: which facets travel, which stay, names and counts.
#include "locale_test_support.h"
#include "lorb_test.h"
#include <locale>

// The twelve standard facets of a locale, in a fixed order.
struct standard_facets {
  const std::locale::facet* f[12];
  explicit standard_facets(const std::locale& l) {
    f[0] = facet_of<std::numpunct<char> >(l);
    f[1] = facet_of<num_get_facet>(l);
    f[2] = facet_of<num_put_facet>(l);
    f[3] = facet_of<std::ctype<char> >(l);
    f[4] = facet_of<codecvt_facet>(l);
    f[5] = facet_of<std::collate<char> >(l);
    f[6] = facet_of<time_put_facet>(l);
    f[7] = facet_of<time_get_facet>(l);
    f[8] = facet_of<std::moneypunct<char, true> >(l);
    f[9] = facet_of<std::moneypunct<char, false> >(l);
    f[10] = facet_of<money_put_facet>(l);
    f[11] = facet_of<money_get_facet>(l);
  }
};

// Checks that combined holds one's facets exactly where taken[i] is set, other's elsewhere.
static void expect_facets(const std::locale& combined, const std::locale& other,
                          const std::locale& one, const bool taken[12]) {
  standard_facets c(combined), o(other), n(one);
  for (int i = 0; i < 12; ++i) {
    if (taken[i])
      CHECK(c.f[i] == n.f[i]);
    else
      CHECK(c.f[i] == o.f[i]);
    CHECK(o.f[i] != n.f[i]); // the two sources really differ
  }
}

static const bool numeric_taken[12] = {1, 1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0};
static const bool ctype_taken[12] = {0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0};
static const bool collate_taken[12] = {0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0};
static const bool monetary_taken[12] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1};
static const bool none_taken[12] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
static const bool all_taken[12] = {1, 1, 1, 1, 0, 1, 0, 0, 1, 1, 1, 1};

TEST(combining_numeric_takes_numpunct_num_put_and_num_get) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  expect_facets(std::locale(other, one, std::locale::numeric), other, one, numeric_taken);
}

TEST(combining_ctype_takes_ctype_but_keeps_the_codecvt_facet) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  expect_facets(std::locale(other, one, std::locale::ctype), other, one, ctype_taken);
}

TEST(combining_collate_takes_collate) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  expect_facets(std::locale(other, one, std::locale::collate), other, one, collate_taken);
}

TEST(combining_monetary_takes_both_moneypuncts_money_put_and_money_get) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  expect_facets(std::locale(other, one, std::locale::monetary), other, one, monetary_taken);
}

TEST(combining_time_or_messages_takes_nothing) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  expect_facets(std::locale(other, one, std::locale::time), other, one, none_taken);
  expect_facets(std::locale(other, one, std::locale::messages), other, one, none_taken);
}

TEST(combining_all_leaves_codecvt_and_the_time_facets) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  expect_facets(std::locale(other, one, std::locale::all), other, one, all_taken);
}

TEST(combining_with_a_name_for_time_keeps_the_time_facets) {
  std::locale other("de_DE.UTF-8");
  std::locale combined(other, "C", std::locale::time);
  standard_facets c(combined), o(other);
  for (int i = 0; i < 12; ++i)
    CHECK(c.f[i] == o.f[i]);
  CHECK(combined.__imp != other.__imp);
}

TEST(combining_with_a_name_takes_new_facets_of_that_name) {
  std::locale other("C");
  std::locale combined(other, "de_DE.UTF-8", std::locale::numeric | std::locale::monetary);
  CHECK_EQ(std::use_facet<std::numpunct<char> >(combined).decimal_point(), ',');
  CHECK_EQ(std::use_facet<std::numpunct<char> >(other).decimal_point(), '.');
  CHECK(facet_of<std::ctype<char> >(combined) == facet_of<std::ctype<char> >(other));
  // The temporary representation is gone; the taken facets are held by this table alone.
  CHECK_EQ(facet_of<std::numpunct<char> >(combined)->__refs, 1u);
  CHECK_EQ(facet_of<money_get_facet>(combined)->__refs, 1u);
  CHECK_EQ(facet_of<std::ctype<char> >(combined)->__refs, 2u);
}

TEST(a_combined_locale_keeps_the_first_arguments_name) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  CHECK_STR(std::locale(other, one, std::locale::all).name().c_str(), "de_DE.UTF-8");
  CHECK_STR(std::locale(other, "it_IT.UTF-8", std::locale::all).name().c_str(), "de_DE.UTF-8");
}

TEST(combining_counts_every_shared_facet_once_more) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  {
    std::locale combined(other, one, std::locale::ctype);
    CHECK_EQ(refs_of(combined), 1u);
    CHECK_EQ(refs_of(other), 1u);
    CHECK_EQ(facet_of<std::ctype<char> >(one)->__refs, 2u);
    CHECK_EQ(facet_of<std::ctype<char> >(other)->__refs, 1u); // replaced in the copy
    CHECK_EQ(facet_of<codecvt_facet>(other)->__refs, 2u);
    CHECK_EQ(facet_of<std::numpunct<char> >(other)->__refs, 2u);
  }
  CHECK_EQ(facet_of<std::ctype<char> >(one)->__refs, 1u);
  CHECK_EQ(facet_of<codecvt_facet>(other)->__refs, 1u);
}

TEST(combining_a_locale_with_itself_changes_no_facet) {
  std::locale other("de_DE.UTF-8");
  std::locale combined(other, other, std::locale::all);
  standard_facets c(combined), o(other);
  for (int i = 0; i < 12; ++i) {
    CHECK(c.f[i] == o.f[i]);
    CHECK_EQ(o.f[i]->__refs, 2u);
  }
}

// A source table one entry too short for the facet is treated as not holding it, even though
// the shrunk buffer still has the old pointer just past the end.
TEST(a_source_table_ending_at_the_facets_id_does_not_provide_it) {
  std::locale other("de_DE.UTF-8"), one("fr_FR.UTF-8");
  unsigned money_get_index = money_get_facet::id.__number();
  unsigned ctype_index = std::ctype<char>::id.__number();
  CHECK(money_get_index > ctype_index);
  __vel::lw_vector<std::locale::facet*>& table = one.__imp->facets;
  std::locale::facet* saved[64];
  unsigned full_size = table.size;
  for (unsigned i = 0; i < full_size; ++i)
    saved[i] = table.data[i];
  table.resize(money_get_index, 0);
  {
    std::locale combined(other, one, std::locale::monetary | std::locale::ctype);
    CHECK(facet_of<money_get_facet>(combined) == facet_of<money_get_facet>(other));
    CHECK(facet_of<std::ctype<char> >(combined) == saved[ctype_index]);
  }
  table.resize(full_size, 0);
  for (unsigned i = 0; i < full_size; ++i)
    table.data[i] = saved[i];
  CHECK_EQ(saved[money_get_index]->__refs, 1u);
}

static void combine_with_null_name(const std::locale* other) {
  report_c_locale_on_abort("de_DE.UTF-8");
  std::locale broken(*other, static_cast<const char*>(0), std::locale::numeric);
}

static void combine_with_unknown_name(const std::locale* other) {
  report_c_locale_on_abort("it_IT.UTF-8");
  std::locale broken(*other, "xx_NOWHERE", std::locale::all);
}

TEST(combining_with_a_bad_name_is_an_invalid_locale_name_and_leaves_the_c_locale) {
  std::locale other("fr_FR.UTF-8");
  EXPECT_CHILD(combine_with_null_name(&other), lt::aborts(), "de_DE.UTF-8",
               "runtime_error: Invalid locale name\n\n");
  EXPECT_CHILD(combine_with_unknown_name(&other), lt::aborts(), "it_IT.UTF-8",
               "runtime_error: Invalid locale name\n\n");
}
