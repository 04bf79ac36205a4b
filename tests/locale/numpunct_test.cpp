// numpunct<char>: the "C" values, named locales against localeconv, the C locale put back, errors.
#include "c_conventions.h"
#include "lorb_test.h"
#include <__lorb/punct_facets.h>
#include <locale.h>
#include <string.h>

struct plain_numpunct : std::numpunct<char> {
  plain_numpunct() : std::numpunct<char>(1) {}
  explicit plain_numpunct(const char* name) : std::numpunct<char>(name, 1) {}
  ~plain_numpunct() {}
};

static void check_c_values(const std::numpunct<char>& np) {
  CHECK_EQ(np.decimal_point(), '.');
  CHECK_EQ(np.thousands_sep(), '\0');
  CHECK_EQ(np.grouping().size(), 0u);
  CHECK_STR(np.truename().c_str(), "true");
  CHECK_STR(np.falsename().c_str(), "false");
}

TEST(c_locale_values) {
  plain_numpunct np("C");
  check_c_values(np);
}

TEST(default_constructor_gives_the_c_values) {
  plain_numpunct np;
  check_c_values(np);
}

TEST(named_locales_match_localeconv) {
  for (int i = 0; i < named_locale_count; ++i) {
    c_conventions c = read_c_conventions(named_locales[i]);
    plain_numpunct np(named_locales[i]);
    CHECK_EQ(np.decimal_point(), c.decimal_point[0]);
    CHECK_EQ(np.thousands_sep(), c.thousands_sep[0]);
    CHECK_STR(np.grouping().c_str(), c.grouping);
    CHECK_STR(np.truename().c_str(), "true");
    CHECK_STR(np.falsename().c_str(), "false");
  }
}

TEST(german_numbers_use_a_comma_and_a_dot) {
  plain_numpunct np("de_DE.UTF-8");
  CHECK_EQ(np.decimal_point(), ',');
  CHECK_EQ(np.thousands_sep(), '.');
  CHECK_STR(np.grouping().c_str(), "\3\3");
}

TEST(french_separator_is_the_first_byte_of_a_space) {
  plain_numpunct np("fr_FR.UTF-8");
  CHECK_EQ(np.decimal_point(), ',');
  // A plain space, or the first byte of the UTF-8 narrow no-break space, by the data's version.
  CHECK(np.thousands_sep() == ' ' || np.thousands_sep() == '\xe2' || np.thousands_sep() == '\xc2');
}

ISOLATED_TEST(construction_puts_the_c_locale_back) {
  setlocale(LC_ALL, "C");
  setlocale(LC_NUMERIC, "it_IT.UTF-8");
  setlocale(LC_MONETARY, "fr_FR.UTF-8");
  char before[512];
  strcpy(before, setlocale(LC_ALL, 0));
  {
    plain_numpunct np("de_DE.UTF-8");
    CHECK_EQ(np.thousands_sep(), '.');
  }
  CHECK_STR(setlocale(LC_ALL, 0), before);
  CHECK_STR(localeconv()->decimal_point, ",");
}

ISOLATED_TEST(c_facet_built_while_another_locale_is_in_force) {
  setlocale(LC_ALL, "de_DE.UTF-8");
  plain_numpunct np("C");
  check_c_values(np);
  CHECK_STR(setlocale(LC_NUMERIC, 0), "de_DE.UTF-8");
}

TEST(facet_keeps_its_values_after_the_c_locale_changes) {
  plain_numpunct np("de_DE.UTF-8");
  EXPECT_CHILD(
      {
        setlocale(LC_ALL, "fr_FR.UTF-8");
        if (np.thousands_sep() != '.' || np.decimal_point() != ',')
          abort();
      },
      lt::exits(0), "", "");
}

TEST(unknown_name_is_an_invalid_locale_name) {
  EXPECT_ABORT(plain_numpunct np("xx_NOWHERE.UTF-8"), "runtime_error: Invalid locale name\n\n");
}

TEST(null_name_is_an_invalid_locale_name) {
  EXPECT_ABORT(plain_numpunct np(static_cast<const char*>(0)),
               "runtime_error: Invalid locale name\n\n");
}

TEST(byname_form_reads_the_same_conventions) {
  struct plain_byname : std::numpunct_byname<char> {
    plain_byname() : std::numpunct_byname<char>("de_DE.UTF-8", 1) {}
    ~plain_byname() {}
  } np;
  CHECK_EQ(np.decimal_point(), ',');
  CHECK(!np.__managed);
}

TEST(refs_zero_makes_a_managed_facet) {
  struct managed_numpunct : std::numpunct<char> {
    managed_numpunct() : std::numpunct<char>("C", 0) {}
    ~managed_numpunct() {}
  } np;
  CHECK(np.__managed);
  CHECK_EQ(np.__refs, 0u);
}

struct custom_numpunct : plain_numpunct {
  char do_decimal_point() const { return '@'; }
  string_type do_truename() const { return "yes"; }
};

TEST(public_operations_call_the_virtual_ones) {
  custom_numpunct np;
  const std::numpunct<char>& as_base = np;
  CHECK_EQ(as_base.decimal_point(), '@');
  CHECK_STR(as_base.truename().c_str(), "yes");
  CHECK_STR(as_base.falsename().c_str(), "false");
}
