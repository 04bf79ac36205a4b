// istrstream, ostrstream, strstream and their input base isstream: the buffers they construct,
// reading and writing through them, freeze and str at the stream, and the seeks.
#include "strstreambuf_test_support.h"

namespace {
// The buffer's fields, reached through the stream's rdbuf().
int mode_of(std::strstreambuf* buffer) { return buffer->__strmode; }
} // namespace

// istrstream and isstream.

TEST(an_istrstream_reads_a_constant_array_up_to_its_nul) {
  const char text[] = "12 word\0hidden";
  std::istrstream in(text);
  CHECK_EQ(mode_of(in.rdbuf()), 2);
  CHECK_EQ(in.rdbuf()->__alsize, 0L);
  CHECK(in.rdbuf() == static_cast<std::basic_ios<char>&>(in).rdbuf());
  CHECK(in.str() == text);
  int n = 0;
  char word[16] = "";
  in >> n >> word;
  CHECK_EQ(n, 12);
  CHECK_STR(word, "word");
  CHECK(in.eof());
  CHECK(!in.fail());
  CHECK_EQ(in.get(), end_of_file);
  CHECK(in.fail());
}

TEST(an_istrstream_over_a_char_array_is_constant_too) {
  char text[] = "abc";
  std::istrstream in(text);
  CHECK_EQ(mode_of(in.rdbuf()), 2);
  CHECK_EQ(in.rdbuf()->pcount(), 0);
  CHECK_EQ(in.rdbuf()->sputc('x'), end_of_file);
  CHECK_STR(text, "abc");
  CHECK_EQ(in.get(), 'a');
}

TEST(an_istrstream_with_a_count_reads_that_many_characters) {
  const char text[] = "abcdef";
  std::istrstream constant(text, 3);
  char got[8] = "";
  constant.read(got, 8);
  CHECK_EQ(constant.gcount(), 3L);
  CHECK_BYTES(got, 3, "abc", 3);
  char writable[] = "a\0b\0c";
  std::istrstream with_nuls(writable, 5);
  with_nuls.read(got, 8);
  CHECK_EQ(with_nuls.gcount(), 5L);
  CHECK_BYTES(got, 5, "a\0b\0c", 5);
  CHECK_EQ(mode_of(with_nuls.rdbuf()), 2);
  std::istrstream zero(text, 0);
  zero.read(got, 8);
  CHECK_EQ(zero.gcount(), 6L);
}

TEST(an_istrstream_reads_past_0xff_bytes_inside_its_text) {
  // Inside the get area the stream takes characters without underflow, so 0xFF is 255 there.
  const char text[] = "ab\377cd";
  std::istrstream in(text);
  int got[6];
  for (int i = 0; i < 6; ++i)
    got[i] = in.get();
  CHECK_EQ(got[2], 255);
  CHECK_EQ(got[3], 'c');
  CHECK_EQ(got[5], end_of_file);
}

TEST(isstream_seekg_positions_the_get_area) {
  std::istrstream in("0123456789");
  std::isstream& base = in;
  CHECK(&base.seekg(std::streampos(4)) == &base);
  CHECK_EQ(in.get(), '4');
  CHECK(&base.seekg(-2, io::end) == &base);
  CHECK_EQ(in.get(), '8');
  base.seekg(-3, io::cur);
  CHECK_EQ(in.get(), '6');
  CHECK_EQ(offset_of(in.tellg()), 7L);
  CHECK(in.good());
}

TEST(isstream_seekg_outside_the_text_sets_failbit) {
  std::istrstream in("0123");
  in.seekg(std::streampos(5));
  CHECK(in.fail());
  CHECK(!in.bad());
  in.clear();
  in.seekg(-1, io::beg);
  CHECK(in.fail());
  in.clear();
  CHECK_EQ(in.get(), '0');
}

TEST(isstream_seekg_forgets_an_end_of_file_met) {
  std::istrstream in("ab");
  char word[4];
  in >> word;
  CHECK(in.eof());
  in.seekg(0, io::beg);
  CHECK(in.good());
  in >> word;
  CHECK_STR(word, "ab");
}

TEST(an_isstream_works_over_any_buffer) {
  const char text[] = "5 6";
  test_strstreambuf buffer(text, 3);
  std::isstream in(&buffer);
  int a = 0, b = 0;
  in >> a >> b;
  CHECK_EQ(a + b, 11);
  in.seekg(std::streampos(2));
  CHECK_EQ(in.get(), '6');
}

// ostrstream.

TEST(an_ostrstream_written_once_allocates_16_and_the_17th_character_32) {
  reset_log();
  std::ostrstream out;
  CHECK_EQ(mode_of(out.rdbuf()), 4);
  CHECK_EQ(out.rdbuf()->__alsize, 0L);
  CHECK_EQ(array_news, 0);
  out << 'a';
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_sizes[0], 16u);
  out << "bcdefghijklmnop";
  CHECK_EQ(array_news, 1);
  CHECK_EQ(out.pcount(), 16);
  out << 'q';
  CHECK_EQ(array_news, 2);
  CHECK_EQ(array_sizes[1], 32u);
  CHECK_EQ(array_deletes, 1);
  CHECK(out.good());
  char* text = out.str();
  CHECK_BYTES(text, 17, "abcdefghijklmnopq", 17);
  delete[] text;
}

TEST(an_ostrstream_formats_numbers_and_str_hands_over_the_text) {
  std::ostrstream out;
  out << 42 << ' ' << -7 << ' ' << 2.5 << std::ends;
  CHECK_EQ(out.pcount(), 10);
  char* text = out.str();
  CHECK_STR(text, "42 -7 2.5");
  CHECK_EQ(mode_of(out.rdbuf()), 1 | 4 | 8);
  delete[] text;
}

TEST(str_freezes_so_an_ostrstream_cannot_grow_afterwards) {
  reset_log();
  std::ostrstream out;
  out << "0123456789abcdef";
  char* text = out.str();
  out.put('g');
  CHECK(out.bad());
  CHECK_EQ(array_news, 1);
  CHECK_EQ(out.pcount(), 16);
  delete[] text;
}

TEST(ostrstream_freeze_is_inverted_like_the_buffers) {
  std::ostrstream out;
  out << "x";
  out.freeze(false);
  CHECK_EQ(mode_of(out.rdbuf()), 1 | 4 | 8);
  out << "too much for the array";
  CHECK(out.fail());
  out.clear();
  out.freeze(true);
  CHECK_EQ(mode_of(out.rdbuf()), 1 | 4);
  out << "now it grows";
  CHECK(out.good());
  CHECK_EQ(out.pcount(), 13);
  delete[] out.str();
}

TEST(an_ostrstream_never_written_has_no_array) {
  reset_log();
  {
    std::ostrstream out;
    CHECK(out.str() == 0);
    CHECK_EQ(out.pcount(), 0);
  }
  CHECK_EQ(array_news, 0);
  CHECK_EQ(array_deletes, 0);
}

TEST(an_ostrstream_over_an_array_writes_until_it_is_full) {
  char text[8];
  reset_log();
  std::ostrstream out(text, 8);
  CHECK_EQ(mode_of(out.rdbuf()), 0);
  CHECK_EQ(out.rdbuf()->__alsize, 16L);
  out << "0123456789";
  CHECK(out.fail());
  CHECK_EQ(out.pcount(), 8);
  CHECK_BYTES(text, 8, "01234567", 8);
  CHECK(out.str() == text);
  CHECK_EQ(array_news, 0);
}

TEST(an_ostrstream_with_app_writes_after_the_text_and_stops_at_the_array_end) {
  char text[16] = "abc";
  memset(text + 4, '.', 12);
  std::ostrstream out(text, 10, io::out | io::app);
  CHECK_EQ(out.pcount(), 0);
  out << "0123456789";
  CHECK(out.fail());
  CHECK_EQ(out.pcount(), 7);
  CHECK_BYTES(text, 16, "abc0123456......", 16);
}

TEST(an_ostrstream_without_app_writes_from_the_start) {
  char text[] = "abcdef";
  std::ostrstream out(text, 6, io::out | io::ate);
  out << "XY";
  CHECK_STR(text, "XYcdef");
  CHECK_EQ(offset_of(out.tellp()), 2L);
  out.seekp(5);
  out << 'Z';
  CHECK_STR(text, "XYcdeZ");
  out.seekp(7);
  CHECK(out.fail());
}

// strstream.

TEST(a_strstream_reads_back_what_it_wrote) {
  std::strstream both;
  CHECK_EQ(mode_of(both.rdbuf()), 4);
  CHECK_EQ(both.rdbuf()->__alsize, 0L);
  both << 12 << ' ' << "words" << ' ' << 3.25;
  int n = 0;
  char word[8] = "";
  double d = 0;
  both >> n >> word >> d;
  CHECK_EQ(n, 12);
  CHECK_STR(word, "words");
  CHECK_EQ(d, 3.25);
  CHECK(both.eof());
  CHECK(!both.fail());
  CHECK_EQ(both.pcount(), 13);
  delete[] both.str();
}

TEST(a_strstream_over_an_array_reads_what_it_writes_there) {
  char text[12] = "";
  std::strstream both(text, 12);
  CHECK_EQ(mode_of(both.rdbuf()), 0);
  both << "7 8";
  int a = 0, b = 0;
  both >> a >> b;
  CHECK_EQ(a * b, 56);
  CHECK_BYTES(text, 3, "7 8", 3);
  CHECK(both.str() == text);
}

TEST(a_strstream_with_app_reads_the_text_first) {
  char text[16] = "12 ";
  std::strstream both(text, 16, io::in | io::out | io::app);
  both << "34";
  int a = 0, b = 0;
  both >> a >> b;
  CHECK_EQ(a, 12);
  CHECK_EQ(b, 34);
  CHECK_BYTES(text, 5, "12 34", 5);
}

TEST(a_strstream_stops_reading_at_a_written_0xff_that_underflow_meets) {
  std::strstream both;
  both << "\377abc";
  CHECK_EQ(both.get(), end_of_file);
  CHECK(both.eof());
  CHECK(both.fail());
  delete[] both.str();
}

TEST(a_strstream_cannot_put_back_a_different_character) {
  std::strstream both;
  both << "ab";
  CHECK_EQ(both.get(), 'a');
  both.putback('z');
  CHECK(both.bad());
  both.clear();
  both.putback('a');
  CHECK(both.good());
  CHECK_EQ(both.get(), 'a');
  delete[] both.str();
}

TEST(strstream_freeze_and_pcount_reach_its_buffer) {
  std::strstream both;
  both << "abc";
  CHECK_EQ(both.pcount(), 3);
  both.freeze(false);
  CHECK_EQ(mode_of(both.rdbuf()), 1 | 4 | 8);
  both.freeze();
  CHECK_EQ(mode_of(both.rdbuf()), 1 | 4);
  char* text = both.str();
  CHECK(text == both.rdbuf()->str());
  delete[] text;
}

TEST(destroying_the_streams_releases_nothing) {
  char* arrays[2];
  reset_log();
  {
    std::ostrstream out;
    out << "x";
    arrays[0] = out.rdbuf()->str();
    std::strstream both;
    both << "y";
    arrays[1] = both.rdbuf()->str();
  }
  CHECK_EQ(array_news, 2);
  CHECK_EQ(array_deletes, 0);
  delete[] arrays[0];
  delete[] arrays[1];
}
