// ctype<char>: the classic class table, classification, scanning, case mapping, widen and narrow.
#include "lorb_test.h"
#include <__lorb/ctype_facets.h>
#include <string.h>

typedef std::ctype_base base;

// A facet of the program's own, on the stack: the facet destructor is protected.
struct plain_ctype : std::ctype<char> {
  explicit plain_ctype(const mask* table = 0, bool owns = false, size_t refs = 1)
      : std::ctype<char>(table, owns, refs) {}
  ~plain_ctype() {}
};

// The class of a byte as the table is written, range by range.
static unsigned expected_class(int c) {
  const unsigned print = base::print;
  if (c == 0)
    return 0;
  if ((c >= 0x01 && c <= 0x08) || (c >= 0x0E && c <= 0x1F) || c == 0x7F)
    return base::cntrl;
  if (c >= 0x09 && c <= 0x0D)
    return base::space | base::cntrl;
  if (c == 0x20)
    return base::space | print;
  if ((c >= 0x21 && c <= 0x2F) || (c >= 0x3A && c <= 0x40) || (c >= 0x5B && c <= 0x60) ||
      (c >= 0x7B && c <= 0x7E))
    return base::punct | print;
  if (c >= 0x30 && c <= 0x39)
    return base::digit | base::xdigit | print;
  if (c >= 0x41 && c <= 0x46)
    return base::upper | base::alpha | base::xdigit | print;
  if (c >= 0x47 && c <= 0x5A)
    return base::upper | base::alpha | print;
  if (c >= 0x61 && c <= 0x66)
    return base::lower | base::alpha | base::xdigit | print;
  if (c >= 0x67 && c <= 0x7A)
    return base::lower | base::alpha | print;
  return 0;
}

TEST(mask_values_are_the_nine_bits) {
  CHECK_EQ(base::space, 0x001u);
  CHECK_EQ(base::print, 0x002u);
  CHECK_EQ(base::cntrl, 0x004u);
  CHECK_EQ(base::upper, 0x008u);
  CHECK_EQ(base::lower, 0x010u);
  CHECK_EQ(base::alpha, 0x020u);
  CHECK_EQ(base::digit, 0x040u);
  CHECK_EQ(base::punct, 0x080u);
  CHECK_EQ(base::xdigit, 0x100u);
  CHECK_EQ(sizeof(base::mask), 4u);
}

TEST(alnum_and_graph_are_unions) {
  CHECK_EQ(base::alnum, base::alpha | base::digit);
  CHECK_EQ(base::graph, base::alpha | base::digit | base::punct);
}

TEST(classic_table_holds_every_byte_class) {
  for (int c = 0; c < 256; ++c)
    if (!CHECK_EQ(std::ctype<char>::classic_table[c], expected_class(c)))
      printf("  at byte 0x%02X\n", c);
}

TEST(classic_table_boundaries) {
  const base::mask* table = std::ctype<char>::classic_table;
  CHECK_EQ(table[0x00], 0u);
  CHECK_EQ(table[0x7F], base::cntrl);
  CHECK_EQ(table[0x80], 0u);
  CHECK_EQ(table[0xFF], 0u);
  CHECK_EQ(std::ctype<char>::table_size, 256u);
}

TEST(nul_is_not_cntrl_but_del_is) {
  plain_ctype ct;
  CHECK(!ct.is(base::cntrl, '\0'));
  CHECK(ct.is(base::cntrl, '\x7f'));
  CHECK(!ct.is(base::print, '\x7f'));
}

TEST(vertical_tab_is_space) {
  plain_ctype ct;
  CHECK(ct.is(base::space, '\x0b'));
  CHECK(ct.is(base::cntrl, '\x0b'));
  CHECK(ct.is(base::space, ' '));
  CHECK(!ct.is(base::cntrl, ' '));
}

TEST(is_tests_any_bit_of_the_mask) {
  plain_ctype ct;
  CHECK(ct.is(base::alnum, 'q'));
  CHECK(ct.is(base::alnum, '7'));
  CHECK(!ct.is(base::alnum, '_'));
  CHECK(ct.is(base::graph, '_'));
  CHECK(!ct.is(base::graph, ' '));
  CHECK(ct.is(base::xdigit, 'F'));
  CHECK(!ct.is(base::xdigit, 'g'));
  CHECK(!ct.is(0, 'a'));
}

TEST(high_bytes_have_no_class) {
  plain_ctype ct;
  for (int c = 0x80; c <= 0xFF; ++c) {
    char ch = static_cast<char>(c);
    CHECK(!ct.is(base::alpha, ch));
    CHECK(!ct.is(0x1FF, ch));
  }
}

TEST(scan_not_print_stops_on_a_high_byte) {
  plain_ctype ct;
  const char text[] = "abc\x80xyz";
  CHECK_EQ(ct.scan_not(base::print, text, text + 7), text + 3);
  const char last[] = "ok\xff";
  CHECK_EQ(ct.scan_not(base::print, last, last + 3), last + 2);
}

TEST(scan_is_finds_the_first_match_or_returns_high) {
  plain_ctype ct;
  const char text[] = "ab1c2";
  CHECK_EQ(ct.scan_is(base::digit, text, text + 5), text + 2);
  CHECK_EQ(ct.scan_is(base::space, text, text + 5), text + 5);
  CHECK_EQ(ct.scan_is(base::digit, text, text), text);
}

TEST(scan_not_finds_the_first_mismatch_or_returns_high) {
  plain_ctype ct;
  const char text[] = "  \tx ";
  CHECK_EQ(ct.scan_not(base::space, text, text + 5), text + 3);
  CHECK_EQ(ct.scan_not(base::print, text, text + 2), text + 2);
  CHECK_EQ(ct.scan_not(base::space, text, text), text);
}

TEST(is_over_a_range_stores_each_class_and_returns_high) {
  plain_ctype ct;
  const char text[] = {'\0', 'A', 'z', '5', '\x7f', '\x80', '\xff', ' '};
  base::mask vec[9];
  vec[8] = 0xDEAD;
  CHECK_EQ(ct.is(text, text + 8, vec), text + 8);
  for (int i = 0; i < 8; ++i)
    CHECK_EQ(vec[i], expected_class(static_cast<unsigned char>(text[i])));
  CHECK_EQ(vec[8], 0xDEADu);
}

TEST(case_tables_have_the_eof_and_end_entries) {
  CHECK_EQ(std::ctype<char>::toupper_tab[0], -1);
  CHECK_EQ(std::ctype<char>::tolower_tab[0], -1);
  CHECK_EQ(std::ctype<char>::toupper_tab[257], 0);
  CHECK_EQ(std::ctype<char>::tolower_tab[257], 0);
  CHECK_EQ(sizeof std::ctype<char>::toupper_tab, 258 * sizeof(short));
  for (int c = 0; c < 256; ++c) {
    int up = c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c;
    int low = c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c;
    CHECK_EQ(std::ctype<char>::toupper_tab[c + 1], up);
    CHECK_EQ(std::ctype<char>::tolower_tab[c + 1], low);
  }
}

TEST(toupper_and_tolower_map_every_byte) {
  plain_ctype ct;
  for (int c = 0; c < 256; ++c) {
    char ch = static_cast<char>(c);
    char up = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    char low = static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    CHECK_EQ(ct.toupper(ch), up);
    CHECK_EQ(ct.tolower(ch), low);
  }
}

TEST(case_mapping_leaves_high_bytes_alone) {
  plain_ctype ct;
  CHECK_EQ(ct.toupper('\x80'), '\x80');
  CHECK_EQ(ct.tolower('\xff'), '\xff');
  CHECK_EQ(ct.toupper('\xe9'), '\xe9');
  CHECK_EQ(ct.tolower('\xc9'), '\xc9');
}

TEST(case_mapping_over_a_range_works_in_place) {
  plain_ctype ct;
  char text[] = "Hello, World \xe9!";
  size_t n = strlen(text);
  CHECK_EQ(ct.toupper(text, text + n), static_cast<const char*>(text + n));
  CHECK_STR(text, "HELLO, WORLD \xe9!");
  CHECK_EQ(ct.tolower(text, text + 5), static_cast<const char*>(text + 5));
  CHECK_STR(text, "hello, WORLD \xe9!");
}

TEST(widen_returns_the_byte) {
  plain_ctype ct;
  for (int c = 0; c < 256; ++c)
    CHECK_EQ(ct.widen(static_cast<char>(c)), static_cast<char>(c));
}

TEST(narrow_never_substitutes_the_default) {
  plain_ctype ct;
  CHECK_EQ(ct.narrow('x', '?'), 'x');
  CHECK_EQ(ct.narrow('\0', '?'), '\0');
  CHECK_EQ(ct.narrow('\xff', '?'), '\xff');
}

TEST(widen_and_narrow_over_ranges_copy_and_return_high) {
  plain_ctype ct;
  const char from[] = "a\0\x80z";
  char to[6] = "#####";
  CHECK_EQ(ct.widen(from, from + 4, to), from + 4);
  CHECK_BYTES(to, 5, "a\0\x80z#", 5);
  char narrowed[6] = "#####";
  CHECK_EQ(ct.narrow(from, from + 4, '?', narrowed), from + 4);
  CHECK_BYTES(narrowed, 5, "a\0\x80z#", 5);
  CHECK_EQ(ct.narrow(from, from, '?', narrowed), from);
}

TEST(null_table_means_the_classic_table) {
  plain_ctype ct;
  CHECK_EQ(ct.table(), std::ctype<char>::classic_table);
  plain_ctype explicit_classic(std::ctype<char>::classic_table, false);
  CHECK_EQ(explicit_classic.table(), std::ctype<char>::classic_table);
}

TEST(a_table_of_its_own_classifies) {
  base::mask table[256];
  for (int c = 0; c < 256; ++c)
    table[c] = 0;
  table[static_cast<unsigned char>('\xe9')] = base::alpha | base::lower;
  plain_ctype ct(table, false); // not owned: the stack table must not be freed
  CHECK(ct.is(base::alpha, '\xe9'));
  CHECK(!ct.is(base::alpha, 'a'));
  // Case mapping stays on the fixed tables whatever the class table.
  CHECK_EQ(ct.toupper('a'), 'A');
}

TEST(an_owned_table_is_freed_with_the_facet) {
  base::mask* table = new base::mask[256];
  memcpy(table, std::ctype<char>::classic_table, sizeof std::ctype<char>::classic_table);
  table[0] = base::cntrl;
  {
    plain_ctype ct(table, true);
    CHECK(ct.is(base::cntrl, '\0'));
  }
  // Under memcheck a table left behind shows as a definite leak.
  CHECK(true);
}

TEST(refs_decides_whether_locales_manage_the_facet) {
  plain_ctype unmanaged(0, false, 1);
  CHECK(!unmanaged.__managed);
  plain_ctype managed(0, false, 0);
  CHECK(managed.__managed);
  CHECK_EQ(managed.__refs, 0u);
}

struct shouting_ctype : plain_ctype {
  char do_toupper(char) const { return '!'; }
  char do_narrow(char, char dfault) const { return dfault; }
  char do_widen(char) const { return 'w'; }
  char do_tolower(char) const { return '~'; }
};

TEST(public_operations_call_the_virtual_ones) {
  shouting_ctype ct;
  const std::ctype<char>& as_base = ct;
  CHECK_EQ(as_base.toupper('a'), '!');
  CHECK_EQ(as_base.tolower('A'), '~');
  CHECK_EQ(as_base.narrow('a', '?'), '?');
  CHECK_EQ(as_base.widen('a'), 'w');
}
