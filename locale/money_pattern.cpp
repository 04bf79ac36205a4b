// money_base::get_pat: the four-part money patterns for the C library's layout numbers.
#include <__lorb/punct_facets.h>
#include <string.h>

namespace std {
namespace {
// Rows: cs_precedes * 2 + sep_by_space. Columns: sign_posn 1 to 4 (0, in parentheses, uses the
// first). Kept as it stands: the third column of the first rows and the fourth of the second
// ones are irregular, and the last column of the first row repeats its second.
const char pattern_table[4][4][5] = {
    {"-v0?", "v0?-", "v0-?", "v0?-"},
    {"-v ?", "v ?-", "v -?", "v ?-"},
    {"-?0v", "?0v-", "-?0v", "?-0v"},
    {"-? v", "? v-", "-? v", "?- v"},
};

money_base::pattern make_pattern(const char* text) {
  money_base::pattern p;
  memcpy(p.field, text, sizeof p.field);
  return p;
}
} // namespace

money_base::pattern money_base::get_pat() { return make_pattern("?-0v"); }

money_base::pattern money_base::get_pat(int cs_precedes, int sep_by_space, int sign_posn,
                                        bool& parens) {
  parens = sign_posn == 0;
  // Kept: 5, 6 and 7 wrap round to the first three columns.
  int column = parens ? 0 : (sign_posn - 1) & 3;
  // Layout numbers other than 0 and 1 are read as 1, which keeps the row inside the table.
  int row = (cs_precedes != 0) * 2 + (sep_by_space != 0);
  return make_pattern(pattern_table[row][column]);
}
} // namespace std
