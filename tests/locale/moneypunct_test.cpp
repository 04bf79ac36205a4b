// moneypunct<char, Intl> and moneypunct_byname: the "C" values, named locales against localeconv,
// the fixed international formats, the C locale put back, invalid names.
#include "c_conventions.h"
#include "lorb_test.h"
#include <__lorb/punct_facets.h>
#include <locale.h>
#include <string.h>

template <bool Intl> struct plain_byname : std::moneypunct_byname<char, Intl> {
  explicit plain_byname(const char* name) : std::moneypunct_byname<char, Intl>(name, 1) {}
  ~plain_byname() {}
};
typedef plain_byname<false> local_money;
typedef plain_byname<true> intl_money;

template <bool Intl> struct plain_moneypunct : std::moneypunct<char, Intl> {
  plain_moneypunct() : std::moneypunct<char, Intl>(1) {}
  ~plain_moneypunct() {}
};

#define CHECK_PATTERN(p, text) CHECK_BYTES((p).field, 5, text, 5)

template <class Money> static void check_c_values(const Money& mp) {
  CHECK_EQ(mp.decimal_point(), '\0');
  CHECK_EQ(mp.thousands_sep(), '\0');
  CHECK_EQ(mp.grouping().size(), 0u);
  CHECK_EQ(mp.curr_symbol().size(), 0u);
  CHECK_EQ(mp.positive_sign().size(), 0u);
  CHECK_EQ(mp.negative_sign().size(), 0u);
  CHECK_EQ(mp.frac_digits(), 127); // CHAR_MAX, taken as it is
  CHECK_PATTERN(mp.pos_format(), "?-0v");
  CHECK_PATTERN(mp.neg_format(), "?-0v");
}

TEST(c_locale_local_values) {
  local_money mp("C");
  check_c_values(mp);
}

TEST(c_locale_international_values) {
  intl_money mp("C");
  check_c_values(mp);
}

TEST(default_constructors_give_the_c_values) {
  plain_moneypunct<false> local;
  check_c_values(local);
  plain_moneypunct<true> intl;
  check_c_values(intl);
}

TEST(intl_constant_tells_the_two_apart) {
  CHECK_EQ((std::moneypunct<char, true>::intl), true);
  CHECK_EQ((std::moneypunct<char, false>::intl), false);
  const bool& intl = std::moneypunct<char, true>::intl;
  CHECK(intl);
}

// The layout numbers brought into range the way the local facet reads them.
static std::money_base::pattern expected_format(int cs_precedes, int sep_by_space, int sign_posn,
                                                bool& parens) {
  int cs = static_cast<signed char>(cs_precedes) > 1 ? 1 : static_cast<signed char>(cs_precedes);
  int sep = static_cast<signed char>(sep_by_space) < 2 ? sep_by_space : 0;
  int posn = static_cast<signed char>(sign_posn) < 8 ? sign_posn : 4;
  return std::money_base::get_pat(cs, sep, posn, parens);
}

static std::string with_parens(const char* sign, bool parens) {
  std::string s(sign);
  if (parens)
    s += "()";
  return s;
}

TEST(local_facets_of_named_locales_match_localeconv) {
  for (int i = 0; i < named_locale_count; ++i) {
    c_conventions c = read_c_conventions(named_locales[i]);
    local_money mp(named_locales[i]);
    CHECK_EQ(mp.decimal_point(), c.mon_decimal_point[0]);
    CHECK_EQ(mp.thousands_sep(), c.mon_thousands_sep[0]);
    CHECK_STR(mp.grouping().c_str(), c.mon_grouping);
    CHECK_STR(mp.curr_symbol().c_str(), c.currency_symbol);
    CHECK_EQ(mp.frac_digits(), c.frac_digits);
    bool parens = false;
    std::money_base::pattern pos =
        expected_format(c.p_cs_precedes, c.p_sep_by_space, c.p_sign_posn, parens);
    CHECK_PATTERN(mp.pos_format(), pos.field);
    CHECK_STR(mp.positive_sign().c_str(), with_parens(c.positive_sign, parens).c_str());
    std::money_base::pattern neg =
        expected_format(c.n_cs_precedes, c.n_sep_by_space, c.n_sign_posn, parens);
    CHECK_PATTERN(mp.neg_format(), neg.field);
    CHECK_STR(mp.negative_sign().c_str(), with_parens(c.negative_sign, parens).c_str());
  }
}

TEST(international_facets_of_named_locales_match_localeconv) {
  for (int i = 0; i < named_locale_count; ++i) {
    c_conventions c = read_c_conventions(named_locales[i]);
    intl_money mp(named_locales[i]);
    CHECK_EQ(mp.decimal_point(), c.mon_decimal_point[0]);
    CHECK_EQ(mp.thousands_sep(), c.mon_thousands_sep[0]);
    CHECK_STR(mp.grouping().c_str(), c.mon_grouping);
    CHECK_STR(mp.curr_symbol().c_str(), c.int_curr_symbol);
    CHECK_EQ(mp.frac_digits(), c.int_frac_digits);
    CHECK_STR(mp.positive_sign().c_str(), c.positive_sign);
    CHECK_STR(mp.negative_sign().c_str(), c.negative_sign);
  }
}

TEST(international_formats_are_fixed_whatever_the_locale) {
  for (int i = 0; i < named_locale_count; ++i) {
    intl_money mp(named_locales[i]);
    CHECK_PATTERN(mp.pos_format(), "?-0v");
    CHECK_PATTERN(mp.neg_format(), "?-0v");
  }
}

TEST(german_money_puts_the_symbol_after_the_value) {
  local_money local("de_DE.UTF-8");
  CHECK_EQ(local.decimal_point(), ',');
  CHECK_EQ(local.thousands_sep(), '.');
  CHECK_STR(local.curr_symbol().c_str(), "\xe2\x82\xac");
  CHECK_EQ(local.frac_digits(), 2);
  CHECK_EQ(local.pos_format().field[3], '?');
  intl_money intl("de_DE.UTF-8");
  CHECK_STR(intl.curr_symbol().c_str(), "EUR ");
}

TEST(american_money_puts_the_symbol_first) {
  local_money local("en_US.UTF-8");
  CHECK_STR(local.curr_symbol().c_str(), "$");
  CHECK_EQ(local.decimal_point(), '.');
  CHECK_EQ(local.thousands_sep(), ',');
  CHECK_STR(local.negative_sign().c_str(), "-");
  CHECK_EQ(local.pos_format().field[0] == '?' || local.pos_format().field[1] == '?', true);
}

ISOLATED_TEST(construction_puts_the_c_locale_back) {
  setlocale(LC_ALL, "C");
  setlocale(LC_MONETARY, "it_IT.UTF-8");
  setlocale(LC_NUMERIC, "fr_FR.UTF-8");
  char before[512];
  strcpy(before, setlocale(LC_ALL, 0));
  {
    local_money local("en_US.UTF-8");
    intl_money intl("de_DE.UTF-8");
    CHECK_STR(local.curr_symbol().c_str(), "$");
  }
  CHECK_STR(setlocale(LC_ALL, 0), before);
}

ISOLATED_TEST(c_facets_built_while_another_locale_is_in_force) {
  setlocale(LC_ALL, "de_DE.UTF-8");
  local_money local("C");
  check_c_values(local);
  intl_money intl("C");
  check_c_values(intl);
  CHECK_STR(setlocale(LC_MONETARY, 0), "de_DE.UTF-8");
}

TEST(unknown_name_is_an_invalid_locale_name_for_both_forms) {
  EXPECT_ABORT(local_money mp("xx_NOWHERE.UTF-8"), "runtime_error: Invalid locale name\n\n");
  EXPECT_ABORT(intl_money mp("xx_NOWHERE.UTF-8"), "runtime_error: Invalid locale name\n\n");
}

TEST(null_name_is_an_invalid_locale_name_for_both_forms) {
  EXPECT_ABORT(local_money mp(0), "runtime_error: Invalid locale name\n\n");
  EXPECT_ABORT(intl_money mp(0), "runtime_error: Invalid locale name\n\n");
}

TEST(refs_decides_whether_locales_manage_the_facet) {
  local_money unmanaged("C");
  CHECK(!unmanaged.__managed);
  struct managed_money : std::moneypunct_byname<char, false> {
    managed_money() : std::moneypunct_byname<char, false>("C") {}
    ~managed_money() {}
  } managed;
  CHECK(managed.__managed);
}

struct custom_money : plain_moneypunct<false> {
  int do_frac_digits() const { return 3; }
  string_type do_curr_symbol() const { return "XTS"; }
  pattern do_neg_format() const {
    bool parens;
    return get_pat(0, 1, 2, parens);
  }
};

TEST(public_operations_call_the_virtual_ones) {
  custom_money mp;
  const std::moneypunct<char, false>& as_base = mp;
  CHECK_EQ(as_base.frac_digits(), 3);
  CHECK_STR(as_base.curr_symbol().c_str(), "XTS");
  CHECK_PATTERN(as_base.neg_format(), "v ?-");
  CHECK_PATTERN(as_base.pos_format(), "?-0v");
}
