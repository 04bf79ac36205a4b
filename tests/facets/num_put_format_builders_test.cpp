// The format builders of num_put: int_fmt over every combination of the flags it reads (and
// none of the others), "%p", and float_fmt over showpos, showpoint, each floatfield and 'L';
// both stay inside their buffers.
#include "num_put_test_support.h"
#include <string.h>

namespace {

typedef std::ios_base ios;

// The flags neither builder reads; setting them all must change nothing.
const ios::fmtflags unread_by_int_fmt = ios::boolalpha | ios::fixed | ios::internal | ios::left |
                                        ios::right | ios::scientific | ios::showpoint |
                                        ios::skipws | ios::unitbuf;
const ios::fmtflags unread_by_float_fmt = ios::boolalpha | ios::basefield | ios::adjustfield |
                                          ios::showbase | ios::skipws | ios::unitbuf |
                                          ios::uppercase;

struct built {
  char text[16];
};

built integer_format(char conv, ios::fmtflags flags) {
  built b;
  memset(b.text, untouched, sizeof b.text);
  format_builders::integer_format(b.text, conv, flags);
  return b;
}

built float_format(char length, ios::fmtflags flags, long precision) {
  formatting_stream s;
  s.flags(flags);
  s.precision(precision);
  built b;
  memset(b.text, untouched, sizeof b.text);
  format_builders::float_format(b.text, length, s);
  return b;
}

// Nothing after the terminator up to the end of the scratch copy is written.
bool untouched_after_terminator(const built& b) {
  for (size_t i = strlen(b.text) + 1; i < sizeof b.text; ++i)
    if (b.text[i] != untouched)
      return false;
  return true;
}

} // namespace

TEST(int_fmt_plain_decimal_is_percent_l_conversion) {
  CHECK_STR(integer_format('d', ios::dec).text, "%ld");
  CHECK_STR(integer_format('u', ios::dec).text, "%lu");
}

TEST(int_fmt_showpos_adds_a_plus) {
  CHECK_STR(integer_format('d', ios::dec | ios::showpos).text, "%+ld");
  CHECK_STR(integer_format('u', ios::showpos).text, "%+lu");
}

TEST(int_fmt_showbase_adds_a_hash_after_the_plus) {
  CHECK_STR(integer_format('d', ios::showbase).text, "%#ld");
  CHECK_STR(integer_format('d', ios::showbase | ios::showpos).text, "%+#ld");
}

TEST(int_fmt_oct_alone_is_o) {
  CHECK_STR(integer_format('d', ios::oct).text, "%lo");
  CHECK_STR(integer_format('u', ios::oct | ios::uppercase).text, "%lo");
}

TEST(int_fmt_hex_alone_is_x_or_X_with_uppercase) {
  CHECK_STR(integer_format('d', ios::hex).text, "%lx");
  CHECK_STR(integer_format('u', ios::hex | ios::uppercase).text, "%lX");
}

TEST(int_fmt_hex_showbase_uppercase_is_hash_lX) {
  CHECK_STR(integer_format('d', ios::hex | ios::showbase | ios::uppercase).text, "%#lX");
  CHECK_STR(integer_format('d', ios::hex | ios::showbase | ios::showpos).text, "%+#lx");
}

TEST(int_fmt_basefield_none_or_mixed_keeps_the_conversion) {
  const ios::fmtflags fields[] = {
      0, ios::dec, ios::dec | ios::oct, ios::dec | ios::hex, ios::oct | ios::hex, ios::basefield};
  for (int i = 0; i < 6; ++i) {
    CHECK_STR(integer_format('d', fields[i] | ios::uppercase).text, "%ld");
    CHECK_STR(integer_format('u', fields[i] | ios::uppercase).text, "%lu");
  }
}

TEST(int_fmt_every_flag_combination) {
  const ios::fmtflags fields[] = {0,
                                  ios::dec,
                                  ios::oct,
                                  ios::hex,
                                  ios::dec | ios::oct,
                                  ios::dec | ios::hex,
                                  ios::oct | ios::hex,
                                  ios::basefield};
  const char conversions[] = {'d', 'u'};
  int combinations = 0;
  for (int c = 0; c < 2; ++c)
    for (int f = 0; f < 8; ++f)
      for (int showpos = 0; showpos < 2; ++showpos)
        for (int showbase = 0; showbase < 2; ++showbase)
          for (int uppercase = 0; uppercase < 2; ++uppercase)
            for (int others = 0; others < 2; ++others) {
              ios::fmtflags flags =
                  fields[f] | (showpos ? ios::showpos : 0) | (showbase ? ios::showbase : 0) |
                  (uppercase ? ios::uppercase : 0) | (others ? unread_by_int_fmt : 0);
              char letter = conversions[c];
              if (fields[f] == ios::oct)
                letter = 'o';
              else if (fields[f] == ios::hex)
                letter = uppercase ? 'X' : 'x';
              char expected[8] = "%";
              if (showpos)
                strcat(expected, "+");
              if (showbase)
                strcat(expected, "#");
              strcat(expected, "l");
              strncat(expected, &letter, 1);
              built b = integer_format(conversions[c], flags);
              CHECK_STR(b.text, expected);
              CHECK(strlen(b.text) < 6);
              CHECK(untouched_after_terminator(b));
              ++combinations;
            }
  CHECK_EQ(combinations, 256);
}

TEST(int_fmt_longest_format_fills_its_6_bytes) {
  built b = integer_format('d', ios::hex | ios::showpos | ios::showbase);
  CHECK_BYTES(b.text, 6, "%+#lx", 6);
  CHECK_EQ(b.text[6], untouched);
}

TEST(int_fmt_p_is_percent_p_whatever_the_flags) {
  const ios::fmtflags flag_sets[] = {0, ios::showpos | ios::showbase, ios::hex | ios::uppercase,
                                     ios::oct, 0x7fff};
  for (int i = 0; i < 5; ++i) {
    built b = integer_format('p', flag_sets[i]);
    CHECK_BYTES(b.text, 3, "%p", 3);
    CHECK(untouched_after_terminator(b));
  }
}

TEST(float_fmt_default_is_precision_star_g) {
  CHECK_STR(float_format(0, 0, 6).text, "%.*g");
  CHECK_STR(float_format('L', 0, 6).text, "%.*Lg");
}

TEST(float_fmt_fixed_is_f_and_scientific_is_e) {
  CHECK_STR(float_format(0, ios::fixed, 6).text, "%.*f");
  CHECK_STR(float_format(0, ios::scientific, 6).text, "%.*e");
  CHECK_STR(float_format('L', ios::fixed, 6).text, "%.*Lf");
  CHECK_STR(float_format('L', ios::scientific, 6).text, "%.*Le");
}

TEST(float_fmt_both_floatfield_bits_are_g) {
  CHECK_STR(float_format(0, ios::floatfield, 6).text, "%.*g");
  CHECK_STR(float_format('L', ios::floatfield, 0).text, "%.*Lg");
}

TEST(float_fmt_showpos_and_showpoint_add_plus_then_hash) {
  CHECK_STR(float_format(0, ios::showpos, 6).text, "%+.*g");
  CHECK_STR(float_format(0, ios::showpoint, 6).text, "%#.*g");
  CHECK_STR(float_format('L', ios::showpoint | ios::showpos | ios::fixed, 6).text, "%+#.*Lf");
}

TEST(float_fmt_uppercase_leaves_the_letter_lower_case) {
  CHECK_STR(float_format(0, ios::uppercase | ios::scientific, 6).text, "%.*e");
  CHECK_STR(float_format(0, ios::uppercase, 6).text, "%.*g");
}

TEST(float_fmt_every_flag_combination) {
  const ios::fmtflags fields[] = {0, ios::fixed, ios::scientific, ios::floatfield};
  const char lengths[] = {0, 'L'};
  const long precisions[] = {6, 0, -1, 300};
  int combinations = 0;
  for (int l = 0; l < 2; ++l)
    for (int f = 0; f < 4; ++f)
      for (int showpos = 0; showpos < 2; ++showpos)
        for (int showpoint = 0; showpoint < 2; ++showpoint)
          for (int others = 0; others < 2; ++others) {
            ios::fmtflags flags = fields[f] | (showpos ? ios::showpos : 0) |
                                  (showpoint ? ios::showpoint : 0) |
                                  (others ? unread_by_float_fmt : 0);
            char expected[12] = "%";
            if (showpos)
              strcat(expected, "+");
            if (showpoint)
              strcat(expected, "#");
            strcat(expected, ".*");
            if (lengths[l])
              strncat(expected, &lengths[l], 1);
            strcat(expected, fields[f] == ios::fixed        ? "f"
                             : fields[f] == ios::scientific ? "e"
                                                            : "g");
            built b = float_format(lengths[l], flags, precisions[combinations % 4]);
            CHECK_STR(b.text, expected);
            CHECK(untouched_after_terminator(b));
            ++combinations;
          }
  CHECK_EQ(combinations, 64);
}

TEST(float_fmt_longest_format_fills_its_8_bytes) {
  built b = float_format('L', ios::showpos | ios::showpoint | ios::fixed, 6);
  CHECK_BYTES(b.text, 8, "%+#.*Lf", 8);
  CHECK_EQ(b.text[8], untouched);
}
