// std::time_put: the pattern walk, the fixed expansions of 'X', 'c' and 'x', and the text of the
// other conversions.
#include "time_facet_support.h"
#include <locale.h>

typedef std::time_put<char, std::ostreambuf_iterator<char> > stream_time_put;

// Monday 5 March 2001, 14:07:09, day 63 of the year.
static tm sample() { return date_of(101, 2, 5, 14, 7, 9, 1, 63); }

TEST(every_locale_holds_the_time_writer) {
  CHECK(std::has_facet<stream_time_put>(std::locale::classic()));
}

TEST(a_pattern_is_copied_with_its_conversions_replaced) {
  CHECK_STR(put_pattern(sample(), "%a %b %d %H:%M:%S %Y").c_str(), "Mon Mar 05 14:07:09 2001");
  CHECK_STR(put_pattern(sample(), "[%A, %B %j %I%p %w %U %W]").c_str(),
            "[Monday, March 064 02PM 1 09 10]");
  CHECK_STR(put_pattern(sample(), "no conversion").c_str(), "no conversion");
}

TEST(x_capital_x_and_c_are_the_fixed_patterns) {
  tm t = sample();
  CHECK_STR(put_pattern(t, "%x").c_str(), "03/05/101"); // 'y' prints the year field as it is
  CHECK_STR(put_pattern(t, "%X").c_str(), "14:07:09");
  CHECK_STR(put_pattern(t, "%c").c_str(), "Mon Mar 05 14:07:09 2001");
  t.tm_year = 96;
  CHECK_STR(put_pattern(t, "<%x>").c_str(), "<03/05/96>");
}

TEST(do_put_expands_the_fixed_patterns_too) {
  time_writer writer;
  std::ostringstream stream;
  tm t = sample();
  const char letters[] = {'x', 'X', 'c'};
  const char* const expected[] = {"03/05/101", "14:07:09", "Mon Mar 05 14:07:09 2001"};
  for (int i = 0; i < 3; ++i) {
    std::string text;
    string_sink_iterator out = {&text};
    writer.do_put(out, stream, ' ', &t, letters[i], 0);
    CHECK_STR(text.c_str(), expected[i]);
    text.clear();
    writer.put(out, stream, ' ', &t, letters[i]);
    CHECK_STR(text.c_str(), expected[i]);
  }
}

TEST(a_percent_at_the_end_ends_the_output) {
  CHECK_STR(put_pattern(sample(), "ab%").c_str(), "ab");
  CHECK_STR(put_pattern(sample(), "100%%").c_str(), "100%");
}

TEST(e_and_o_are_not_modifiers) {
  // 'E' and 'O' are unknown conversions with empty text; the letter after them is copied.
  CHECK_STR(put_pattern(sample(), "%Ey|%OH").c_str(), "y|H");
}

TEST(a_field_out_of_range_gives_empty_text) {
  tm t = sample();
  t.tm_mon = 12;
  t.tm_hour = 24;
  CHECK_STR(put_pattern(t, "[%b][%H][%m]").c_str(), "[][][]");
}

TEST(the_fill_and_the_width_are_not_used_and_the_width_stays) {
  std::ostringstream out;
  out.width(30);
  const stream_time_put& facet = std::use_facet<stream_time_put>(out.getloc());
  tm t = sample();
  const char pattern[] = "%H";
  facet.put(std::ostreambuf_iterator<char>(out), out, '*', &t, pattern, pattern + 2);
  facet.put(std::ostreambuf_iterator<char>(out), out, '*', &t, 'M');
  CHECK_STR(out.str().c_str(), "1407");
  CHECK_EQ(out.width(), 30L);
}

// Records the conversions put hands to do_put.
struct recording_writer : time_writer {
  mutable std::string calls;
  iter_type do_put(iter_type out, std::ios_base&, char, const tm*, char format,
                   char modifier) const {
    calls += format;
    calls += modifier == 0 ? '0' : '?';
    return out;
  }
};

TEST(put_calls_do_put_for_every_conversion_but_the_fixed_ones) {
  recording_writer writer;
  std::ostringstream stream;
  tm t = sample();
  std::string text;
  string_sink_iterator out = {&text};
  const char pattern[] = "%a-%x-%%";
  writer.put(out, stream, ' ', &t, pattern, pattern + sizeof pattern - 1);
  // 'x' is expanded by put itself into "%m/%d/%y", whose conversions reach do_put.
  CHECK_STR(writer.calls.c_str(), "a0m0d0y0%0");
  CHECK_STR(text.c_str(), "-//-");
}

ISOLATED_TEST(names_follow_the_environment_and_x_stays_fixed) {
  if (!setlocale(LC_ALL, "de_DE.UTF-8"))
    return; // the locale is not installed here
  setlocale(LC_ALL, "C");
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  CHECK_STR(put_pattern(sample(), "%A %d. %B").c_str(), "Montag 05. M\xC3\xA4rz");
  CHECK_STR(put_pattern(sample(), "%x").c_str(), "03/05/101");
  std::istringstream stream;
  scan_result r = scan_with("Dienstag", "%A", stream);
  CHECK_EQ(r.t.tm_wday, 2);
}

TEST(a_pattern_without_a_ctype_facet_aborts_with_the_bad_cast_message) {
  std::ostringstream out;
  out.imbue(locale_without<std::ctype<char> >());
  EXPECT_ABORT(put_pattern_on(out, sample(), "%H"), "bad_cast: Facet not present\n\n");
}
