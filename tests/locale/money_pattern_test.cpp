// money_base::get_pat: the default pattern and the whole table, with the column wrap and parens.
#include "lorb_test.h"
#include <__lorb/punct_facets.h>

#define CHECK_PATTERN(p, text) CHECK_BYTES((p).field, 5, text, 5)

TEST(parts_are_stored_as_characters) {
  CHECK_EQ(static_cast<char>(std::money_base::symbol), '?');
  CHECK_EQ(static_cast<char>(std::money_base::sign), '-');
  CHECK_EQ(static_cast<char>(std::money_base::value), 'v');
  CHECK_EQ(static_cast<char>(std::money_base::space), ' ');
  CHECK_EQ(static_cast<char>(std::money_base::none), '0');
  CHECK_EQ(sizeof(std::money_base::pattern), 5u);
}

TEST(default_pattern_is_symbol_sign_none_value) {
  std::money_base::pattern p = std::money_base::get_pat();
  CHECK_PATTERN(p, "?-0v");
  CHECK_EQ(p.field[0], static_cast<char>(std::money_base::symbol));
  CHECK_EQ(p.field[3], static_cast<char>(std::money_base::value));
}

// The table as it stands, rows cs_precedes * 2 + sep_by_space, columns for sign_posn 1 to 4.
static const char* const table[4][4] = {
    {"-v0?", "v0?-", "v0-?", "v0?-"},
    {"-v ?", "v ?-", "v -?", "v ?-"},
    {"-?0v", "?0v-", "-?0v", "?-0v"},
    {"-? v", "? v-", "-? v", "?- v"},
};

TEST(every_entry_of_the_table) {
  for (int cs = 0; cs < 2; ++cs)
    for (int sep = 0; sep < 2; ++sep)
      for (int posn = 1; posn <= 4; ++posn) {
        bool parens = true;
        std::money_base::pattern p = std::money_base::get_pat(cs, sep, posn, parens);
        CHECK_PATTERN(p, table[cs * 2 + sep][posn - 1]);
        CHECK(!parens);
      }
}

TEST(sign_posn_zero_uses_the_first_column_and_sets_parens) {
  for (int row = 0; row < 4; ++row) {
    bool parens = false;
    std::money_base::pattern p = std::money_base::get_pat(row / 2, row % 2, 0, parens);
    CHECK_PATTERN(p, table[row][0]);
    CHECK(parens);
  }
}

TEST(get_pat_0_0_0_is_minus_v_0_symbol_in_parens) {
  bool parens = false;
  CHECK_PATTERN(std::money_base::get_pat(0, 0, 0, parens), "-v0?");
  CHECK(parens);
}

TEST(sign_posn_5_to_7_wrap_to_the_first_columns) {
  bool parens = true;
  CHECK_PATTERN(std::money_base::get_pat(1, 1, 5, parens), "-? v");
  CHECK(!parens);
  for (int row = 0; row < 4; ++row)
    for (int posn = 5; posn <= 7; ++posn) {
      parens = true;
      CHECK_PATTERN(std::money_base::get_pat(row / 2, row % 2, posn, parens), table[row][posn - 5]);
      CHECK(!parens);
    }
}

TEST(first_row_repeats_its_second_column_in_the_fourth) {
  bool parens;
  CHECK_PATTERN(std::money_base::get_pat(0, 0, 4, parens), "v0?-");
  CHECK_PATTERN(std::money_base::get_pat(0, 0, 2, parens), "v0?-");
}

TEST(c_locale_layout_numbers_give_the_default_pattern) {
  bool parens = true;
  // CHAR_MAX brought into range: symbol first, no space, sign position 4.
  CHECK_PATTERN(std::money_base::get_pat(1, 0, 4, parens), "?-0v");
  CHECK(!parens);
}

TEST(layout_numbers_other_than_zero_and_one_read_as_one) {
  bool parens;
  CHECK_PATTERN(std::money_base::get_pat(127, 0, 2, parens), "?0v-");
  CHECK_PATTERN(std::money_base::get_pat(0, 5, 2, parens), "v ?-");
  CHECK_PATTERN(std::money_base::get_pat(-1, -1, 2, parens), "? v-");
}
