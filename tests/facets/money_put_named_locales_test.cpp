// money_put in the named locales the build machine has: amounts written through the locale's
// own moneypunct must show the C library's monetary conventions from localeconv.
#include "money_test_support.h"
#include <locale.h>
#include <stdio.h>

static const char* const names[] = {"de_DE.UTF-8", "fr_FR.UTF-8", "en_US.UTF-8", "it_IT.UTF-8"};

// The C library's conventions of one locale, copied while it is set.
struct conventions {
  std::string point, separator, grouping, symbol, int_symbol, positive, negative;
  int fraction, int_fraction;
};

static conventions conventions_of(const char* name) {
  std::string kept = setlocale(LC_ALL, 0);
  setlocale(LC_MONETARY, name);
  const lconv* c = localeconv();
  conventions got;
  got.point = c->mon_decimal_point;
  got.separator = c->mon_thousands_sep;
  got.grouping = c->mon_grouping;
  got.symbol = c->currency_symbol;
  got.int_symbol = c->int_curr_symbol;
  got.positive = c->positive_sign;
  got.negative = c->negative_sign;
  got.fraction = c->frac_digits;
  got.int_fraction = c->int_frac_digits;
  setlocale(LC_ALL, kept.c_str());
  return got;
}

// The value part written by hand from the C library's fields: digits grouped right to left by
// the grouping bytes, the last repeating, then the point and the fraction.
static std::string expected_value(const std::string& whole, const std::string& fraction,
                                  const conventions& c) {
  std::string grouped;
  std::string::size_type left = whole.size(), k = 0;
  while (left > 0) {
    int size = k < c.grouping.size() ? c.grouping[k] : (c.grouping.empty() ? 0 : -1);
    if (size == -1)
      size = c.grouping[c.grouping.size() - 1];
    if (size <= 0 || size == 127 || left <= static_cast<std::string::size_type>(size)) {
      grouped.insert(0, whole.substr(0, left));
      break;
    }
    grouped.insert(0, c.separator.substr(0, 1) + whole.substr(left - size, size));
    left -= size;
    ++k;
  }
  return fraction.empty() ? grouped : grouped + c.point.substr(0, 1) + fraction;
}

// The text the facet's format gives with these parts, none and space written as one fill.
static std::string laid_out(std::money_base::pattern format, const std::string& sign,
                            const std::string& symbol, const std::string& value) {
  std::string text;
  for (int i = 0; i < 4; ++i) {
    char part = format.field[i];
    if (part == ' ' || part == '0')
      text += '~';
    else if (part == '-')
      text += sign.substr(0, sign.size() < 2 ? sign.size() : 1);
    else if (part == '?')
      text += symbol;
    else if (part == 'v')
      text += value;
  }
  if (sign.size() > 1)
    text += sign.substr(1);
  return text;
}

TEST(named_locales_write_the_c_library_conventions) {
  for (unsigned i = 0; i < sizeof names / sizeof names[0]; ++i) {
    conventions c = conventions_of(names[i]);
    CHECK_EQ(c.fraction, 2);
    std::locale loc(names[i]);
    const std::moneypunct<char, false>& local = std::use_facet<std::moneypunct<char, false> >(loc);
    money_layout layout(std::ios_base::showbase, 0, '~');
    std::string value = expected_value("1234567", "89", c);
    std::string positive = laid_out(local.pos_format(), local.positive_sign(), c.symbol, value);
    CHECK(WRITE_MONEY(123456789.0L, loc, false, layout) == positive);
    std::string negative = laid_out(local.neg_format(), local.negative_sign(), c.symbol, value);
    CHECK(WRITE_MONEY(-123456789.0L, loc, false, layout) == negative);
    CHECK(negative.find(c.negative.substr(0, 1)) != std::string::npos);
    CHECK(positive.find(c.symbol) != std::string::npos);

    const std::moneypunct<char, true>& intl = std::use_facet<std::moneypunct<char, true> >(loc);
    CHECK_EQ(c.int_fraction, 2);
    std::string international =
        laid_out(intl.pos_format(), intl.positive_sign(), c.int_symbol, value);
    CHECK(WRITE_MONEY(std::string("123456789"), loc, true, layout) == international);
  }
}
