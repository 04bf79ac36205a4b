// std::time_get: the format walk and its storage rules, the name matching, the number reader and
// the public readers over a stream buffer.
#include "time_facet_support.h"

typedef std::istreambuf_iterator<char> buffer_iterator;
typedef std::time_get<char, buffer_iterator> stream_time_get;

TEST(every_locale_holds_the_time_reader) {
  CHECK(std::has_facet<stream_time_get>(std::locale::classic()));
}

TEST(hour_24_fails_and_stores_nothing) {
  scan_result r = scan("24", "%H");
  CHECK_EQ(r.err, fail);
  CHECK_EQ(r.t.tm_hour, untouched);
  r = scan("23", "%H");
  CHECK_EQ(r.err, good);
  CHECK_EQ(r.t.tm_hour, 23);
}

TEST(twelve_hour_clock_maps_to_0_to_11_without_am_or_pm) {
  CHECK_EQ(scan("12", "%I").t.tm_hour, 11);
  CHECK_EQ(scan("01", "%I").t.tm_hour, 0);
  scan_result r = scan("03:00 PM", "%I:%M %p");
  CHECK_EQ(r.err, good);
  CHECK_EQ(r.t.tm_hour, 2); // 'p' reads nothing, so the afternoon is not seen
  CHECK_EQ(r.taken, 6L);
  r = scan("0", "%I");
  CHECK_EQ(r.err, fail | eof);
  CHECK_EQ(r.t.tm_hour, untouched);
  CHECK_EQ(scan("13", "%I").err, fail);
}

TEST(day_of_year_stores_one_more_than_read) {
  CHECK_EQ(scan("0", "%j").t.tm_yday, 1);
  CHECK_EQ(scan("365", "%j").t.tm_yday, 366);
  scan_result r = scan("366", "%j");
  CHECK_EQ(r.err, fail);
  CHECK_EQ(r.t.tm_yday, untouched);
}

TEST(years_above_1900_lose_1900_and_the_others_stay_as_read) {
  CHECK_EQ(scan("2001", "%Y").t.tm_year, 101);
  CHECK_EQ(scan("1996", "%Y").t.tm_year, 96);
  CHECK_EQ(scan("1900", "%Y").t.tm_year, 1900);
  CHECK_EQ(scan("1901", "%Y").t.tm_year, 1);
  CHECK_EQ(scan("96", "%y").t.tm_year, 96);
  CHECK_EQ(scan("0", "%Y").t.tm_year, 0);
  scan_result r = scan("-5", "%Y");
  CHECK_EQ(r.err, fail_eof);
  CHECK_EQ(r.t.tm_year, untouched);
}

TEST(every_numeric_field_has_its_range) {
  CHECK_EQ(scan("59", "%M").t.tm_min, 59);
  CHECK_EQ(scan("60", "%M").err, fail);
  CHECK_EQ(scan("59", "%S").t.tm_sec, 59);
  CHECK_EQ(scan("60", "%S").err, fail);
  CHECK_EQ(scan("31", "%d").t.tm_mday, 31);
  CHECK_EQ(scan("00", "%d").err, fail);
  CHECK_EQ(scan("32", "%d").err, fail);
  CHECK_EQ(scan("01", "%m").t.tm_mon, 0);
  CHECK_EQ(scan("12", "%m").t.tm_mon, 11);
  CHECK_EQ(scan("13", "%m").err, fail);
  CHECK_EQ(scan("00", "%m").err, fail);
  CHECK_EQ(scan("6", "%w").t.tm_wday, 6);
  CHECK_EQ(scan("7", "%w").err, fail); // one digit is the whole width: the end is not seen
}

TEST(negative_numbers_are_read_and_refused_by_the_range) {
  scan_result r = scan("-5", "%M");
  CHECK_EQ(r.err, fail | eof);
  CHECK_EQ(r.t.tm_min, untouched);
  CHECK_EQ(r.taken, 2L);
}

TEST(a_literal_must_match_exactly) {
  scan_result r = scan("12/25", "%m-%d");
  CHECK_EQ(r.err, fail);
  CHECK_EQ(r.t.tm_mon, 11); // fields already stored stay stored
  CHECK_EQ(r.t.tm_mday, untouched);
  CHECK_EQ(r.taken, 2L);
  CHECK_EQ(scan("12 :30", "%H:%M").err, fail);
  CHECK_EQ(scan("at 12", "at %H").t.tm_hour, 12);
  CHECK_EQ(scan("12", "%H:").err, fail_eof);
}

TEST(white_space_before_a_number_is_skipped_only_under_skipws) {
  scan_result r = scan("  7: 5", "%H:%M");
  CHECK_EQ(r.err, eof);
  CHECK_EQ(r.t.tm_hour, 7);
  CHECK_EQ(r.t.tm_min, 5);
  std::istringstream no_skipping;
  no_skipping.unsetf(std::ios_base::skipws);
  r = scan_with(" 7", "%H", no_skipping);
  CHECK_EQ(r.err, fail);
  CHECK_EQ(r.t.tm_hour, untouched);
  CHECK_EQ(r.taken, 0L);
}

TEST(the_width_is_the_most_digits_read) {
  scan_result r = scan("123", "%H");
  CHECK_EQ(r.t.tm_hour, 12);
  CHECK_EQ(r.taken, 2L);
  CHECK_EQ(r.err, good);
  r = scan("20015", "%Y");
  CHECK_EQ(r.t.tm_year, 101);
  CHECK_EQ(r.taken, 4L);
  r = scan("9/", "%m/");
  CHECK_EQ(r.t.tm_mon, 8);
  CHECK_EQ(r.err, good);
}

TEST(week_numbers_and_am_pm_read_nothing) {
  scan_result r = scan("x", "%U%W%px");
  CHECK_EQ(r.err, good);
  CHECK_EQ(r.taken, 1L);
  CHECK_EQ(r.t.tm_wday, untouched);
}

TEST(other_conversions_fail_without_reading) {
  const char* const formats[] = {"%c", "%x", "%X", "%%", "%q", "%e", "%"};
  for (unsigned i = 0; i < sizeof formats / sizeof formats[0]; ++i) {
    scan_result r = scan("12", formats[i]);
    CHECK_EQ(r.err, fail);
    CHECK_EQ(r.taken, 0L);
  }
}

TEST(input_ending_before_the_format_fails) {
  scan_result r = scan("12", "%H:%M");
  CHECK_EQ(r.err, fail_eof);
  CHECK_EQ(r.t.tm_hour, 12);
  r = scan("", "%H");
  CHECK_EQ(r.err, fail_eof);
}

TEST(names_are_abbreviated_or_full) {
  scan_result r = scan("Mon", "%a");
  CHECK_EQ(r.t.tm_wday, 1);
  CHECK_EQ(r.err, eof);
  CHECK_EQ(scan("Monday", "%A").t.tm_wday, 1);
  CHECK_EQ(scan("Thursday", "%a").t.tm_wday, 4);
  CHECK_EQ(scan("Sat", "%A").t.tm_wday, 6);
  r = scan("Tue 05", "%a %d");
  CHECK_EQ(r.t.tm_wday, 2);
  CHECK_EQ(r.t.tm_mday, 5);
  CHECK_EQ(scan("May", "%b").t.tm_mon, 4);
  CHECK_EQ(scan("September", "%B").t.tm_mon, 8);
  CHECK_EQ(scan("Dec", "%b").t.tm_mon, 11);
  r = scan("Jan 2001", "%b %Y");
  CHECK_EQ(r.t.tm_mon, 0);
  CHECK_EQ(r.t.tm_year, 101);
}

TEST(a_name_must_end_where_the_comparing_stops) {
  scan_result r = scan("Mondx", "%a");
  CHECK_EQ(r.err, fail);
  CHECK_EQ(r.taken, 4L);
  CHECK_EQ(r.t.tm_wday, untouched);
  r = scan("Monx", "%a");
  CHECK_EQ(r.err, good);
  CHECK_EQ(r.t.tm_wday, 1);
  CHECK_EQ(r.taken, 3L);
  CHECK_EQ(scan("Sept", "%b").err, fail_eof);
  CHECK_EQ(scan("monday", "%a").err, fail);
  CHECK_EQ(scan("Xyz", "%a").err, fail);
}

TEST(which_matches_takes_the_longest_and_the_first_of_equals) {
  std::string names[4] = {"ab", "abcd", "", "ab"};
  const char text[] = "abcd!";
  const char* in = text;
  const char* end = text + 5;
  time_reader reader;
  CHECK_EQ(reader.which_matches(in, end, names, 4), 1);
  CHECK_EQ(in - text, 4L);
  in = text;
  end = text + 3;
  CHECK_EQ(reader.which_matches(in, end, names, 4), -1); // "abc" passed "ab"
  in = text;
  end = text + 2;
  CHECK_EQ(reader.which_matches(in, end, names, 4), 0);
  in = text;
  CHECK_EQ(reader.which_matches(in, end, names + 2, 1), -1); // the empty name never matches
  CHECK_EQ(in - text, 0L);
}

TEST(get_integral_data_refuses_letters_without_a_number) {
  time_reader reader;
  std::istringstream stream;
  const char text[] = "42";
  int v = untouched;
  iostate err = good;
  const char* const letters = "ABcpxX%q";
  for (const char* l = letters; *l; ++l) {
    err = good;
    CHECK(reader.get_integral_data(text, text + 2, stream, err, *l, v) == text);
    CHECK_EQ(err, fail);
    CHECK_EQ(v, untouched);
  }
  err = good;
  CHECK(reader.get_integral_data(text, text + 2, stream, err, 'a', v) == text + 2);
  CHECK_EQ(v, 42); // 'a' has a width of 3 in the table, so the end was seen
  CHECK_EQ(err, eof);
  err = good;
  reader.get_integral_data(text, text + 2, stream, err, 'w', v);
  CHECK_EQ(v, 4);
}

// Reading through the stream's own instance, over a string buffer.
struct stream_reading {
  tm t;
  iostate err;
  std::string left;
};

enum reader_kind {
  time_reader_kind,
  date_reader_kind,
  weekday_reader_kind,
  month_reader_kind,
  year_reader_kind
};

static stream_reading read_stream(const char* text, reader_kind kind) {
  std::istringstream s(text);
  const stream_time_get& facet = std::use_facet<stream_time_get>(s.getloc());
  stream_reading r = {marked_tm(), good, ""};
  buffer_iterator in(s.rdbuf()), end;
  if (kind == time_reader_kind)
    facet.get_time(in, end, s, r.err, &r.t);
  else if (kind == date_reader_kind)
    facet.get_date(in, end, s, r.err, &r.t);
  else if (kind == weekday_reader_kind)
    facet.get_weekday(in, end, s, r.err, &r.t);
  else if (kind == month_reader_kind)
    facet.get_monthname(in, end, s, r.err, &r.t);
  else
    facet.get_year(in, end, s, r.err, &r.t);
  for (int c = s.rdbuf()->sbumpc(); c != EOF; c = s.rdbuf()->sbumpc())
    r.left += static_cast<char>(c);
  return r;
}

TEST(get_time_reads_hours_minutes_seconds) {
  stream_reading r = read_stream("13:45:30", time_reader_kind);
  CHECK_EQ(r.err, eof);
  CHECK_EQ(r.t.tm_hour, 13);
  CHECK_EQ(r.t.tm_min, 45);
  CHECK_EQ(r.t.tm_sec, 30);
  r = read_stream("13:45:30 rest", time_reader_kind);
  CHECK_EQ(r.err, good);
  CHECK_STR(r.left.c_str(), " rest");
  r = read_stream("13-45", time_reader_kind);
  CHECK_EQ(r.err, fail);
  CHECK_STR(r.left.c_str(), "-45");
}

TEST(get_date_reads_month_day_year) {
  stream_reading r = read_stream("12/25/96", date_reader_kind);
  CHECK_EQ(r.err, eof);
  CHECK_EQ(r.t.tm_mon, 11);
  CHECK_EQ(r.t.tm_mday, 25);
  CHECK_EQ(r.t.tm_year, 96);
  r = read_stream("12/25/1996", date_reader_kind);
  CHECK_EQ(r.t.tm_year, 19); // two digits for 'y'
  CHECK_STR(r.left.c_str(), "96");
}

TEST(get_weekday_get_monthname_and_get_year) {
  stream_reading r = read_stream("Friday,", weekday_reader_kind);
  CHECK_EQ(r.t.tm_wday, 5);
  CHECK_EQ(r.err, good);
  CHECK_STR(r.left.c_str(), ",");
  r = read_stream("Oct", month_reader_kind);
  CHECK_EQ(r.t.tm_mon, 9);
  CHECK_EQ(r.err, eof);
  r = read_stream("Foo", month_reader_kind);
  CHECK_EQ(r.err, fail);
  CHECK_EQ(r.t.tm_mon, untouched);
  r = read_stream("2026", year_reader_kind);
  CHECK_EQ(r.t.tm_year, 126);
  CHECK_EQ(r.err, eof);
}

TEST(the_date_order_is_month_day_year) {
  const stream_time_get& facet = std::use_facet<stream_time_get>(std::locale::classic());
  CHECK_EQ(facet.date_order(), std::time_base::mdy);
}

TEST(a_scan_without_a_ctype_facet_aborts_with_the_bad_cast_message) {
  std::istringstream stream;
  stream.imbue(locale_without<std::ctype<char> >());
  EXPECT_ABORT(scan_with("12", "%H", stream), "bad_cast: Facet not present\n\n");
}
