// peek, read, readsome, putback, unget, sync and positions, the ws manipulator and
// std::getline into a string.
#include "istream_unformatted_support.h"

TEST(peek_looks_without_taking) {
  std::istringstream is("ab");
  is.get();
  CHECK_EQ(is.peek(), 'b');
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.peek(), 'b');
  CHECK_EQ(is.get(), 'b');
}

TEST(peek_at_the_end_returns_minus_one_and_sets_eofbit) {
  std::istringstream is("");
  CHECK_EQ(is.peek(), -1);
  CHECK_EQ(is.rdstate(), eof);
}

TEST(peek_returns_a_high_byte_as_unsigned) {
  std::istringstream is("\xe9");
  CHECK_EQ(is.peek(), 0xe9);
}

TEST(peek_on_a_stream_that_is_not_good_returns_minus_one) {
  std::istringstream is("a");
  is.setstate(eof);
  CHECK_EQ(is.peek(), -1);
  CHECK(is.fail());
}

// read

TEST(read_takes_exactly_n_characters) {
  std::istringstream is(std::string("ab\0def", 6));
  char buf[8];
  is.read(buf, 4);
  CHECK_BYTES(buf, 4, "ab\0d", 4);
  CHECK_EQ(is.gcount(), 4L);
  CHECK_EQ(is.rdstate(), good);
}

TEST(a_short_read_sets_eofbit_and_failbit_and_counts_what_it_took) {
  std::istringstream is("abc");
  char buf[10];
  is.read(buf, 10);
  CHECK_BYTES(buf, 3, "abc", 3);
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(read_of_every_size_around_the_input_length) {
  const char text[] = "0123456789abcdef";
  for (int n = 0; n <= 20; ++n) {
    uflow_buffer in(text, 16);
    std::istream is(&in);
    char buf[24];
    is.read(buf, n);
    long taken = n < 16 ? n : 16;
    CHECK_EQ(is.gcount(), taken);
    CHECK(memcmp(buf, text, taken) == 0);
    CHECK_EQ(is.rdstate(), n <= 16 ? good : eof | fail);
  }
}

TEST(read_of_nothing_succeeds_even_at_the_end) {
  std::istringstream is("");
  char buf[1];
  is.read(buf, 0);
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.rdstate(), good);
}

TEST(read_on_a_stream_that_is_not_good_adds_failbit) {
  std::istringstream is("abc");
  is.setstate(eof);
  char buf[4];
  is.read(buf, 2);
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.rdstate(), eof | fail);
}

// readsome

TEST(readsome_takes_what_the_get_area_holds) {
  std::istringstream is("abcdef");
  char buf[10];
  CHECK_EQ(is.readsome(buf, 4), 4L);
  CHECK_BYTES(buf, 4, "abcd", 4);
  CHECK_EQ(is.gcount(), 4L);
  CHECK_EQ(is.readsome(buf, 10), 2L);
  CHECK_BYTES(buf, 2, "ef", 2);
  CHECK_EQ(is.readsome(buf, 10), 0L);
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.rdstate(), good);
}

TEST(readsome_asks_showmanyc_without_a_get_area) {
  uflow_buffer in("abcdef", 6);
  std::istream is(&in);
  char buf[10];
  in.shown = 3;
  CHECK_EQ(is.readsome(buf, 10), 3L);
  CHECK_BYTES(buf, 3, "abc", 3);
  in.shown = 0;
  CHECK_EQ(is.readsome(buf, 10), 0L);
  CHECK_EQ(is.rdstate(), good);
  in.shown = -1;
  CHECK_EQ(is.readsome(buf, 10), 0L);
  CHECK_EQ(is.rdstate(), eof);
}

TEST(readsome_on_a_stream_that_is_not_good_takes_nothing) {
  std::istringstream is("abc");
  is.setstate(eof);
  char buf[4];
  CHECK_EQ(is.readsome(buf, 2), 0L);
  CHECK(is.fail());
}

// putback and unget

TEST(putback_of_the_character_just_read_steps_back) {
  std::istringstream is("ab");
  CHECK_EQ(is.get(), 'a');
  is.putback('a');
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'a');
}

TEST(putback_refused_sets_badbit) {
  std::istringstream is("ab");
  is.get();
  is.putback('x'); // an input-only buffer will not change its text
  CHECK_EQ(is.rdstate(), bad);
  std::istringstream fresh("ab");
  fresh.putback('a');
  CHECK_EQ(fresh.rdstate(), bad);
}

TEST(putback_without_a_get_area_goes_through_pbackfail) {
  uflow_buffer in("ab", 2);
  std::istream is(&in);
  is.get();
  is.putback('a');
  CHECK_EQ(in.pbackfails, 1);
  CHECK_EQ(in.last_pbackfail, 'a');
  CHECK_EQ(is.rdstate(), good);
  in.accepting = false;
  is.get();
  is.putback('a');
  CHECK_EQ(is.rdstate(), bad);
}

TEST(unget_steps_back_over_the_last_character) {
  std::istringstream is("ab");
  is.get();
  is.get();
  is.unget();
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'b');
}

TEST(unget_at_the_start_sets_badbit) {
  std::istringstream is("ab");
  is.unget();
  CHECK_EQ(is.rdstate(), bad);
}

TEST(unget_without_a_get_area_asks_pbackfail_with_the_end_value) {
  uflow_buffer in("ab", 2);
  std::istream is(&in);
  is.get();
  is.unget();
  CHECK_EQ(in.pbackfails, 1);
  CHECK_EQ(in.last_pbackfail, -1);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'a');
}

TEST(putback_and_unget_on_a_stream_that_is_not_good_add_failbit) {
  std::istringstream is("ab");
  is.get();
  is.setstate(eof);
  is.putback('a');
  CHECK_EQ(is.rdstate(), eof | fail);
  is.clear(eof);
  is.unget();
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(a_refused_putback_under_a_badbit_mask_ends_the_process) {
  std::istringstream is("ab");
  is.exceptions(bad);
  EXPECT_EXIT(is.putback('z'), 1, "Failure in I/O\n");
}

// sync

TEST(sync_asks_the_buffer_and_answers_zero) {
  uflow_buffer in("ab", 2);
  std::istream is(&in);
  CHECK_EQ(is.sync(), 0);
  CHECK_EQ(in.syncs, 1);
  CHECK_EQ(is.rdstate(), good);
}

TEST(a_failed_sync_sets_badbit_and_answers_minus_one) {
  uflow_buffer in("ab", 2);
  in.sync_result = -1;
  std::istream is(&in);
  CHECK_EQ(is.sync(), -1);
  CHECK_EQ(is.rdstate(), bad);
}

TEST(sync_without_a_buffer_answers_minus_one) {
  std::istream is(0);
  CHECK_EQ(is.sync(), -1);
}

// Positions

TEST(tellg_tells_the_read_position) {
  std::istringstream is("abcdef");
  CHECK_EQ(std::streamoff(is.tellg()), 0L);
  is.get();
  is.get();
  CHECK_EQ(std::streamoff(is.tellg()), 2L);
}

TEST(seekg_moves_to_absolute_and_relative_positions) {
  std::istringstream is("abcdef");
  is.seekg(4);
  CHECK_EQ(is.get(), 'e');
  is.seekg(-2, std::ios_base::cur);
  CHECK_EQ(is.get(), 'd');
  is.seekg(-1, std::ios_base::end);
  CHECK_EQ(is.get(), 'f');
  is.seekg(0, std::ios_base::end);
  CHECK_EQ(std::streamoff(is.tellg()), 6L);
  is.seekg(0, std::ios_base::beg);
  CHECK_EQ(is.get(), 'a');
  CHECK_EQ(is.rdstate(), good);
}

TEST(a_seek_outside_the_text_sets_failbit) {
  std::istringstream is("abc");
  is.seekg(10);
  CHECK_EQ(is.rdstate(), fail);
  std::istringstream is2("abc");
  is2.seekg(-1, std::ios_base::beg);
  CHECK_EQ(is2.rdstate(), fail);
}

TEST(tellg_on_a_failed_stream_answers_minus_one) {
  std::istringstream is("abc");
  is.setstate(fail);
  CHECK_EQ(std::streamoff(is.tellg()), -1L);
}

TEST(a_seek_after_the_end_lets_the_stream_read_again) {
  std::istringstream is("ab");
  char buf[4];
  is.read(buf, 2);
  CHECK_EQ(is.peek(), -1);
  CHECK_EQ(is.rdstate(), eof);
  is.seekg(0);
  CHECK(!is.eof());
  CHECK_EQ(is.get(), 'a');
}

// ws

TEST(ws_skips_blanks_and_stops_at_the_next_character) {
  std::istringstream is(" \t\n\v\f\rx ");
  is >> std::ws;
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'x');
  is >> std::ws;
  CHECK_EQ(is.rdstate(), eof);
}

TEST(ws_at_the_end_sets_eofbit_only) {
  const char* inputs[] = {"", "   ", "\n"};
  for (int i = 0; i < 3; ++i) {
    std::istringstream is(inputs[i]);
    std::ws(is);
    CHECK_EQ(is.rdstate(), eof);
  }
}

TEST(ws_skips_even_without_skipws) {
  std::istringstream is("   y");
  is.unsetf(std::ios_base::skipws);
  is >> std::ws;
  CHECK_EQ(is.get(), 'y');
}

TEST(ws_on_a_stream_that_is_not_good_adds_failbit_and_skips_nothing) {
  std::istringstream is("   x");
  is.setstate(std::ios_base::failbit);
  is >> std::ws;
  CHECK_EQ(is.rdstate(), fail);
  is.clear();
  CHECK_EQ(is.peek(), ' ');
}

// std::getline into a string

TEST(string_getline_reads_lines_and_empty_lines) {
  std::istringstream is("one\n\ntwo\n");
  std::string s;
  std::getline(is, s);
  CHECK(s == "one");
  std::getline(is, s);
  CHECK(s.empty());
  CHECK_EQ(is.rdstate(), good);
  std::getline(is, s);
  CHECK(s == "two");
  CHECK_EQ(is.rdstate(), good);
  s = "old";
  std::getline(is, s);
  CHECK(s.empty());
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(string_getline_of_a_last_line_without_newline_sets_eofbit_only) {
  std::istringstream is("a\nlast");
  std::string s;
  std::getline(is, s);
  std::getline(is, s);
  CHECK(s == "last");
  CHECK_EQ(is.rdstate(), eof);
}

TEST(string_getline_with_its_own_delimiter) {
  std::istringstream is("a,b\n,c");
  std::string s;
  std::getline(is, s, ',');
  CHECK(s == "a");
  std::getline(is, s, ',');
  CHECK(s == "b\n");
  std::getline(is, s, ',');
  CHECK(s == "c");
  CHECK_EQ(is.rdstate(), eof);
}

TEST(string_getline_of_long_lines_with_nul_bytes) {
  generator g(17);
  std::string text;
  std::string lines[1301];
  for (int length = 0; length <= 1300; ++length) {
    for (int i = 0; i < length; ++i)
      lines[length] += line_char(g);
    text += lines[length];
    if (length < 1300)
      text += '\n';
  }
  std::istringstream is(text);
  for (int length = 0; length <= 1300; ++length) {
    std::string s = "old";
    std::getline(is, s);
    if (!CHECK_EQ(s.size(), static_cast<size_t>(length)) || !CHECK(s == lines[length]))
      printf("  length %d\n", length);
    CHECK_EQ(is.rdstate(), length < 1300 ? good : eof);
  }
}

TEST(string_getline_at_the_gathering_edges_through_uflow) {
  const int lengths[] = {511, 512, 513, 1024, 1025};
  generator g(23);
  for (int i = 0; i < 5; ++i) {
    std::string line;
    for (int k = 0; k < lengths[i]; ++k)
      line += line_char(g);
    std::string text = line + "\nz";
    uflow_buffer in(text.data(), static_cast<long>(text.size()));
    std::istream is(&in);
    std::string s;
    std::getline(is, s);
    CHECK(s == line);
    CHECK_EQ(is.rdstate(), good);
    CHECK_EQ(is.get(), 'z');
  }
}

TEST(string_getline_does_not_skip_blanks) {
  std::istringstream is("  a b\n");
  std::string s;
  std::getline(is, s);
  CHECK(s == "  a b");
}

TEST(string_getline_on_a_stream_that_is_not_good_leaves_the_string) {
  std::istringstream is("abc\n");
  is.setstate(eof);
  std::string s = "old";
  std::getline(is, s);
  CHECK(s == "old");
  CHECK_EQ(is.rdstate(), eof | fail);
}

TEST(string_getline_with_nothing_under_a_failbit_mask_ends_the_process) {
  std::istringstream is("");
  is.exceptions(fail);
  std::string s;
  EXPECT_EXIT(std::getline(is, s), 1, "Failure in I/O\n");
}
