// ctype<char>: classification through the facet's table, case mapping and the identity
// widen/narrow.
#include <__lorb/ctype_facets.h>
#include <string.h>

namespace std {
// Storage for the class constants, for code that takes their address or binds a reference.
const ctype_base::mask ctype_base::space;
const ctype_base::mask ctype_base::print;
const ctype_base::mask ctype_base::cntrl;
const ctype_base::mask ctype_base::upper;
const ctype_base::mask ctype_base::lower;
const ctype_base::mask ctype_base::alpha;
const ctype_base::mask ctype_base::digit;
const ctype_base::mask ctype_base::punct;
const ctype_base::mask ctype_base::xdigit;
const ctype_base::mask ctype_base::alnum;
const ctype_base::mask ctype_base::graph;
const size_t ctype<char>::table_size;

locale::id ctype<char>::id;

ctype<char>::ctype(const mask* table, bool owns_table, size_t refs)
    : locale::facet(refs), __table(table ? table : classic_table),
      __owns_table(table && owns_table) {}

ctype<char>::~ctype() {
  if (__owns_table)
    delete[] __table;
}

const char* ctype<char>::is(const char* low, const char* high, mask* vec) const {
  for (; low != high; ++low, ++vec)
    *vec = __table[static_cast<unsigned char>(*low)];
  return high;
}

const char* ctype<char>::scan_is(mask m, const char* low, const char* high) const {
  while (low != high && !is(m, *low))
    ++low;
  return low;
}

const char* ctype<char>::scan_not(mask m, const char* low, const char* high) const {
  while (low != high && is(m, *low))
    ++low;
  return low;
}

// The tables are indexed by the unsigned byte value plus one, so bytes 0x80 to 0xFF reach their
// own entries (which map them to themselves) instead of falling before the table's start.
static char map_byte(const short* table, char c) {
  return static_cast<char>(table[static_cast<unsigned char>(c) + 1]);
}

static const char* map_range(const short* table, char* low, const char* high) {
  for (; low != high; ++low)
    *low = map_byte(table, *low);
  return high;
}

char ctype<char>::do_toupper(char c) const { return map_byte(toupper_tab, c); }

const char* ctype<char>::do_toupper(char* low, const char* high) const {
  return map_range(toupper_tab, low, high);
}

char ctype<char>::do_tolower(char c) const { return map_byte(tolower_tab, c); }

const char* ctype<char>::do_tolower(char* low, const char* high) const {
  return map_range(tolower_tab, low, high);
}

char ctype<char>::do_widen(char c) const { return c; }

const char* ctype<char>::do_widen(const char* low, const char* high, char* to) const {
  memcpy(to, low, high - low);
  return high;
}

// Kept: narrowing never substitutes the default character.
char ctype<char>::do_narrow(char c, char) const { return c; }

const char* ctype<char>::do_narrow(const char* low, const char* high, char, char* to) const {
  memcpy(to, low, high - low);
  return high;
}
} // namespace std
