// The unformatted reads that take characters: get in its forms, getline into an array, and
// ignore.
#include "istream_unformatted_support.h"

// get()

TEST(get_returns_each_character_as_unsigned_and_counts_one) {
  std::istringstream is(std::string(" a\xff\0", 4));
  CHECK_EQ(is.get(), ' ');
  CHECK_EQ(is.gcount(), 1L);
  CHECK_EQ(is.get(), 'a');
  CHECK_EQ(is.get(), 0xff);
  CHECK_EQ(is.get(), 0);
  CHECK_EQ(is.gcount(), 1L);
  CHECK_EQ(is.rdstate(), good);
}

TEST(get_at_the_end_returns_minus_one_with_eofbit_and_failbit) {
  std::istringstream is("");
  CHECK_EQ(is.get(), -1);
  CHECK_EQ(is.rdstate(), eof | fail);
  CHECK_EQ(is.gcount(), 0L);
}

TEST(get_after_a_character_then_at_the_end_resets_gcount) {
  std::istringstream is("x");
  CHECK_EQ(is.get(), 'x');
  CHECK_EQ(is.gcount(), 1L);
  CHECK_EQ(is.get(), -1);
  CHECK_EQ(is.gcount(), 0L);
}

TEST(get_on_a_stream_that_is_not_good_returns_minus_one_with_failbit) {
  std::istringstream is("x");
  is.setstate(eof);
  CHECK_EQ(is.get(), -1);
  CHECK_EQ(is.rdstate(), eof | fail);
  std::istream none(0);
  CHECK_EQ(none.get(), -1);
  CHECK_EQ(none.rdstate(), bad | fail);
}

TEST(get_at_the_end_under_a_failbit_mask_ends_the_process) {
  std::istringstream is("");
  is.exceptions(fail);
  EXPECT_EXIT(is.get(), 1, "Failure in I/O\n");
}

TEST(get_at_the_end_under_an_eofbit_mask_ends_the_process) {
  std::istringstream is("");
  is.exceptions(eof);
  EXPECT_EXIT(is.get(), 1, "Failure in I/O\n");
}

// getline(char*, n, delim)

TEST(getline_into_one_character_stores_only_nul_and_gives_the_first_back) {
  std::istringstream is("abc");
  char buf[4] = "zzz";
  is.getline(buf, 1);
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(buf[1], 'z');
  CHECK_EQ(is.rdstate(), fail);
  CHECK_EQ(is.gcount(), 0L);
  is.clear();
  CHECK_EQ(is.get(), 'a');
}

TEST(getline_gives_back_through_pbackfail_without_a_get_area) {
  uflow_buffer in("abc", 3);
  std::istream is(&in);
  char buf[4] = "zzz";
  is.getline(buf, 1);
  CHECK_EQ(in.pbackfails, 1);
  CHECK_EQ(in.last_pbackfail, 'a');
  CHECK_EQ(in.at, 0L);
  CHECK_EQ(buf[0], '\0');
}

TEST(getline_of_a_short_line_stores_it_and_counts_the_newline) {
  std::istringstream is("abc\nd");
  char buf[10];
  memset(buf, 'z', sizeof buf);
  is.getline(buf, 10);
  CHECK_STR(buf, "abc");
  CHECK_EQ(is.gcount(), 4L);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'd');
}

TEST(getline_with_n_zero_still_writes_the_first_element) {
  const std::streamsize sizes[] = {0, -1, -100};
  for (int i = 0; i < 3; ++i) {
    std::istringstream is("abc\n");
    char buf[4] = "zzz";
    is.getline(buf, sizes[i]);
    CHECK_EQ(buf[0], '\0');
    CHECK_EQ(buf[1], 'z');
    CHECK_EQ(is.rdstate(), fail);
    CHECK_EQ(is.gcount(), 0L);
    is.clear();
    CHECK_EQ(is.get(), 'a');
  }
}

TEST(getline_with_a_full_buffer_before_the_delimiter_sets_failbit_and_gives_back) {
  std::istringstream is("abcdef\n");
  char buf[8];
  is.getline(buf, 4);
  CHECK_STR(buf, "abc");
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), fail);
  is.clear();
  CHECK_EQ(is.get(), 'd');
}

TEST(getline_of_a_line_that_exactly_fills_the_buffer_succeeds) {
  std::istringstream is("abc\n");
  char buf[4];
  is.getline(buf, 4);
  CHECK_STR(buf, "abc");
  CHECK_EQ(is.gcount(), 4L);
  CHECK_EQ(is.rdstate(), good);
}

TEST(getline_over_every_line_length_and_buffer_size) {
  generator g(2);
  for (int n = 1; n <= 14; ++n) {
    for (int length = 0; length <= 14; ++length) {
      std::string line;
      for (int i = 0; i < length; ++i)
        line += line_char(g);
      std::istringstream is(line + "\nr");
      char buf[32];
      memset(buf, 'z', sizeof buf);
      is.getline(buf, n);
      int stored = length <= n - 1 ? length : n - 1;
      CHECK(memcmp(buf, line.data(), stored) == 0);
      CHECK_EQ(buf[stored], '\0');
      CHECK_EQ(buf[stored + 1], 'z');
      if (length <= n - 1) {
        CHECK_EQ(is.gcount(), static_cast<long>(length + 1));
        CHECK_EQ(is.rdstate(), good);
        CHECK_EQ(is.get(), 'r');
      } else {
        CHECK_EQ(is.gcount(), static_cast<long>(n - 1));
        if (!CHECK_EQ(is.rdstate(), fail))
          printf("  n %d length %d\n", n, length);
        is.clear();
        CHECK_EQ(is.get(), static_cast<unsigned char>(line[n - 1]));
      }
    }
  }
}

TEST(getline_at_the_end_sets_eofbit_and_failbit_only_when_nothing_was_taken) {
  std::istringstream a("abc"), b("");
  char buf[10];
  a.getline(buf, 10);
  CHECK_STR(buf, "abc");
  CHECK_EQ(a.gcount(), 3L);
  CHECK_EQ(a.rdstate(), eof);
  strcpy(buf, "zzz");
  b.getline(buf, 10);
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(b.gcount(), 0L);
  CHECK_EQ(b.rdstate(), eof | fail);
}

TEST(getline_of_an_empty_line_takes_the_newline_and_succeeds) {
  std::istringstream is("\n\nx");
  char buf[4] = "zzz";
  is.getline(buf, 4);
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(is.gcount(), 1L);
  CHECK_EQ(is.rdstate(), good);
  is.getline(buf, 4);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'x');
}

TEST(getline_compares_the_delimiter_as_a_char) {
  std::istringstream is("ab\xff"
                        "cd\n");
  char buf[10];
  is.getline(buf, 10, '\xff');
  CHECK_STR(buf, "ab");
  CHECK_EQ(is.gcount(), 3L);
  is.getline(buf, 10, 'd');
  CHECK_STR(buf, "c");
  CHECK_EQ(is.get(), '\n');
}

TEST(getline_does_not_skip_blanks_and_keeps_nul_bytes) {
  std::istringstream is(std::string("  a\0b\n", 6));
  char buf[10];
  is.getline(buf, 10);
  CHECK_BYTES(buf, 5, "  a\0b", 5);
  CHECK_EQ(is.gcount(), 6L);
}

TEST(getline_on_a_stream_that_is_not_good_stores_nul_and_adds_failbit) {
  std::istringstream is("abc\n");
  is.setstate(eof);
  char buf[4] = "zzz";
  is.getline(buf, 4);
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(is.rdstate(), eof | fail);
  std::istream none(0);
  strcpy(buf, "zzz");
  none.getline(buf, 4);
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(none.rdstate(), bad | fail);
}

TEST(getline_with_a_full_buffer_under_a_failbit_mask_ends_the_process) {
  std::istringstream is("abcdef\n");
  is.exceptions(fail);
  char buf[4];
  EXPECT_EXIT(is.getline(buf, 4), 1, "Failure in I/O\n");
}

// get(char&)

TEST(get_into_a_char_takes_one_character_without_skipping) {
  std::istringstream is(" x");
  char c = 0;
  is.get(c);
  CHECK_EQ(c, ' ');
  CHECK_EQ(is.gcount(), 1L);
  is.get(c);
  CHECK_EQ(c, 'x');
  CHECK_EQ(is.rdstate(), good);
  c = 'q';
  is.get(c);
  CHECK_EQ(c, 'q');
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.rdstate(), eof | fail);
}

// get(char*, n, delim)

TEST(get_into_an_array_stops_before_the_delimiter_and_leaves_it) {
  std::istringstream is("abc\ndef");
  char buf[10];
  is.get(buf, 10);
  CHECK_STR(buf, "abc");
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), good);
  strcpy(buf, "zzz");
  is.get(buf, 10);
  CHECK_EQ(buf[0], '\0');
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.rdstate(), fail);
  is.clear();
  CHECK_EQ(is.get(), '\n');
}

TEST(get_into_an_array_stops_when_full_without_failing) {
  std::istringstream is("abcdef");
  char buf[10];
  is.get(buf, 3);
  CHECK_STR(buf, "ab");
  CHECK_EQ(is.gcount(), 2L);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'c');
}

TEST(get_into_an_array_at_the_end_sets_eofbit) {
  std::istringstream a("ab"), b("");
  char buf[10];
  a.get(buf, 10, 'x');
  CHECK_STR(buf, "ab");
  CHECK_EQ(a.rdstate(), eof);
  b.get(buf, 10, 'x');
  CHECK_STR(buf, "");
  CHECK_EQ(b.rdstate(), eof | fail);
}

TEST(get_into_an_array_with_its_own_delimiter) {
  std::istringstream is("a;b");
  char buf[10];
  is.get(buf, 10, ';');
  CHECK_STR(buf, "a");
  CHECK_EQ(is.get(), ';');
}

// get(streambuf&, delim)

TEST(get_into_a_stream_buffer_copies_up_to_the_delimiter_and_leaves_it) {
  std::istringstream is("abc\ndef");
  recording_buffer out;
  is.get(out);
  CHECK_WRITTEN(out, "abc");
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), '\n');
  recording_buffer rest;
  is.get(rest, 'x');
  CHECK_WRITTEN(rest, "def");
  CHECK_EQ(is.rdstate(), eof);
}

TEST(get_into_a_stream_buffer_that_copies_nothing_sets_failbit) {
  std::istringstream is("\nabc");
  recording_buffer out;
  is.get(out);
  CHECK_EQ(out.length, 0);
  CHECK(is.fail());
  is.clear();
  CHECK_EQ(is.get(), '\n');
}

TEST(get_into_a_stream_buffer_that_refuses_leaves_the_character) {
  std::istringstream is("abcdef\n");
  full_after_buffer out(2);
  is.get(out);
  CHECK_WRITTEN(out, "ab");
  CHECK_EQ(is.gcount(), 2L);
  CHECK(!is.fail());
  CHECK_EQ(is.get(), 'c');
}

// ignore

TEST(ignore_takes_one_character_by_default) {
  std::istringstream is("abc");
  is.ignore();
  CHECK_EQ(is.gcount(), 1L);
  CHECK_EQ(is.get(), 'b');
}

TEST(ignore_takes_n_characters) {
  std::istringstream is("abcdef");
  is.ignore(3);
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'd');
  is.ignore(0);
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.get(), 'e');
}

TEST(ignore_stops_after_the_delimiter) {
  std::istringstream is("abcdef");
  is.ignore(10, 'c');
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(is.get(), 'd');
}

TEST(ignore_matches_a_high_delimiter_by_its_unsigned_value) {
  std::istringstream is("ab\xff"
                        "cd");
  is.ignore(10, 0xff);
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.get(), 'c');
}

TEST(ignore_past_the_end_sets_eofbit_only) {
  std::istringstream is("abc");
  is.ignore(10);
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), eof);
}

TEST(ignore_without_limit_takes_everything_up_to_the_delimiter) {
  std::string text(5000, 'a');
  text += '\n';
  text += "rest";
  std::istringstream is(text);
  is.ignore(unlimited, '\n');
  CHECK_EQ(is.gcount(), 5001L);
  CHECK_EQ(is.get(), 'r');
  is.ignore(unlimited);
  CHECK_EQ(is.gcount(), 3L);
  CHECK_EQ(is.rdstate(), eof);
}

TEST(ignore_on_a_stream_that_is_not_good_adds_failbit) {
  std::istringstream is("abc");
  is.setstate(eof);
  is.ignore(2);
  CHECK_EQ(is.gcount(), 0L);
  CHECK_EQ(is.rdstate(), eof | fail);
}

// peek
