// moneypunct<char, Intl> and moneypunct_byname<char, Intl>: money punctuation read once from the
// C library's LC_MONETARY conventions, international and local.
#include <__lorb/c_locale_switch.h>
#include <__lorb/punct_facets.h>
#include <locale.h>

namespace __vel {
moneypunct_char::~moneypunct_char() {}

char moneypunct_char::do_decimal_point() const { return __decimal_point; }
char moneypunct_char::do_thousands_sep() const { return __thousands_sep; }
moneypunct_char::string_type moneypunct_char::do_grouping() const { return __grouping; }
moneypunct_char::string_type moneypunct_char::do_curr_symbol() const { return __curr_symbol; }
moneypunct_char::string_type moneypunct_char::do_positive_sign() const { return __positive_sign; }
moneypunct_char::string_type moneypunct_char::do_negative_sign() const { return __negative_sign; }
int moneypunct_char::do_frac_digits() const { return __frac_digits; }
moneypunct_char::pattern moneypunct_char::do_pos_format() const { return __pos_format; }
moneypunct_char::pattern moneypunct_char::do_neg_format() const { return __neg_format; }

void moneypunct_char::read_common(const lconv& conventions) {
  __decimal_point = conventions.mon_decimal_point[0];
  __thousands_sep = conventions.mon_thousands_sep[0];
  __positive_sign = conventions.positive_sign;
  __negative_sign = conventions.negative_sign;
  __grouping = conventions.mon_grouping;
}
} // namespace __vel

namespace std {
locale::id moneypunct<char, true>::id;
locale::id moneypunct<char, false>::id;
const bool moneypunct<char, true>::intl;
const bool moneypunct<char, false>::intl;

moneypunct<char, true>::~moneypunct() {}
moneypunct<char, false>::~moneypunct() {}

// Kept: both formats stay "?-0v", whatever the locale's layout numbers say.
void moneypunct<char, true>::init(const char* name) {
  __vel::c_locale_switch reading(LC_MONETARY, name);
  const lconv& conventions = *localeconv();
  __curr_symbol = conventions.int_curr_symbol;
  __frac_digits = conventions.int_frac_digits; // CHAR_MAX (unspecified) is taken as it is
  read_common(conventions);
  __pos_format = get_pat();
  __neg_format = get_pat();
}

namespace {
// The C library's layout numbers, read as signed characters, brought into the table's range:
// the unspecified CHAR_MAX gives symbol first, no space, sign before everything.
money_base::pattern layout_pattern(char cs_precedes, char sep_by_space, char sign_posn,
                                   bool& parens) {
  return money_base::get_pat(cs_precedes > 1 ? 1 : cs_precedes, sep_by_space < 2 ? sep_by_space : 0,
                             sign_posn < 8 ? sign_posn : 4, parens);
}
} // namespace

void moneypunct<char, false>::init(const char* name) {
  __vel::c_locale_switch reading(LC_MONETARY, name);
  const lconv& conventions = *localeconv();
  __curr_symbol = conventions.currency_symbol;
  __frac_digits = conventions.frac_digits;
  read_common(conventions);
  bool parens = false;
  __pos_format = layout_pattern(conventions.p_cs_precedes, conventions.p_sep_by_space,
                                conventions.p_sign_posn, parens);
  if (parens)
    __positive_sign += "()";
  __neg_format = layout_pattern(conventions.n_cs_precedes, conventions.n_sep_by_space,
                                conventions.n_sign_posn, parens);
  if (parens)
    __negative_sign += "()";
}

moneypunct_byname<char, true>::moneypunct_byname(const char* name, size_t refs)
    : moneypunct<char, true>(refs) {
  init(name);
}

moneypunct_byname<char, false>::moneypunct_byname(const char* name, size_t refs)
    : moneypunct<char, false>(refs) {
  init(name);
}

moneypunct_byname<char, true>::~moneypunct_byname() {}
moneypunct_byname<char, false>::~moneypunct_byname() {}
} // namespace std
