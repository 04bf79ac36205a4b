// moneypunct<char, Intl> of the classic locale: symbols, signs, grouping and the two formats.
// Fraction digits and the decimal point differ on purpose: see facets_moneypunct_classic_c_values.
#include <locale>
#include <stdio.h>

static const char* part_name(char part) {
  switch (part) {
  case std::money_base::none:
    return "none";
  case std::money_base::space:
    return "space";
  case std::money_base::symbol:
    return "symbol";
  case std::money_base::sign:
    return "sign";
  case std::money_base::value:
    return "value";
  }
  return "?";
}

static void show_format(const char* title, std::money_base::pattern p) {
  printf("%s:", title);
  for (int i = 0; i < 4; ++i)
    printf(" %s", part_name(p.field[i]));
  printf("\n");
}

template <bool Intl> static void show(const char* title) {
  typedef std::moneypunct<char, Intl> punct;
  const punct& mp = std::use_facet<punct>(std::locale::classic());
  printf("%s: symbol \"%s\" positive \"%s\" negative \"%s\" grouping %d\n", title,
         mp.curr_symbol().c_str(), mp.positive_sign().c_str(), mp.negative_sign().c_str(),
         static_cast<int>(mp.grouping().size()));
  show_format("  positive format", mp.pos_format());
  show_format("  negative format", mp.neg_format());
}

int main() {
  show<false>("local");
  show<true>("international");
  return 0;
}
