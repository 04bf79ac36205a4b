// A moneypunct whose every value a test chooses, and the locale that holds it.
#ifndef MONEY_CHOSEN_PUNCT_H
#define MONEY_CHOSEN_PUNCT_H

#include <locale>
#include <string.h>
#include <string>

// The moneypunct values a test chooses; by default no signs, no symbol, no grouping.
struct money_values {
  char point;
  char separator;
  std::string grouping;
  std::string symbol;
  std::string positive;
  std::string negative;
  int fraction;
  const char* positive_format;
  const char* negative_format;

  money_values()
      : point('.'), separator(','), grouping(), symbol(), positive(), negative("-"), fraction(2),
        positive_format("?-0v"), negative_format("?-0v") {}
};

inline std::money_base::pattern pattern_of(const char* parts) {
  std::money_base::pattern p;
  memcpy(p.field, parts, 4);
  p.field[4] = 0;
  return p;
}

// Managed (refs 0), so the locale deletes it.
template <bool _Intl> struct chosen_moneypunct : std::moneypunct<char, _Intl> {
  typedef std::basic_string<char> string_type;
  explicit chosen_moneypunct(const money_values& v) : std::moneypunct<char, _Intl>(0), values(v) {}
  money_values values;

protected:
  char do_decimal_point() const { return values.point; }
  char do_thousands_sep() const { return values.separator; }
  string_type do_grouping() const { return values.grouping; }
  string_type do_curr_symbol() const { return values.symbol; }
  string_type do_positive_sign() const { return values.positive; }
  string_type do_negative_sign() const { return values.negative; }
  int do_frac_digits() const { return values.fraction; }
  std::money_base::pattern do_pos_format() const { return pattern_of(values.positive_format); }
  std::money_base::pattern do_neg_format() const { return pattern_of(values.negative_format); }
};

// The classic locale with the local moneypunct of v and an international one of intl_values.
inline std::locale money_locale(const money_values& v, const money_values& intl_values) {
  std::locale local(std::locale::classic(), new chosen_moneypunct<false>(v));
  return std::locale(local, new chosen_moneypunct<true>(intl_values));
}
inline std::locale money_locale(const money_values& v) { return money_locale(v, v); }

#endif
