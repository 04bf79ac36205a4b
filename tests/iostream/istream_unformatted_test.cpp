// The unformatted reads (get, getline, ignore, peek, read, readsome, putback, unget), sync and
// positions, the ws manipulator and std::getline into a string.
#include "lorb_test.h"
#include "output_test_buffers.h"
#include <istream>
#include <sstream>
#include <string.h>
#include <string>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate bad = std::ios_base::badbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate fail = std::ios_base::failbit;

const std::streamsize unlimited = 0x7FFFFFFF;

// No get area, so every character comes from uflow and every give-back reaches pbackfail, which
// takes back the character just read when `accepting`, and counts.
struct uflow_buffer : std::basic_streambuf<char> {
  const char* text;
  long length;
  long at;
  bool accepting;
  int pbackfails;
  int last_pbackfail;
  int syncs;
  int sync_result;
  std::streamsize shown;

  uflow_buffer(const char* t, long n)
      : text(t), length(n), at(0), accepting(true), pbackfails(0), last_pbackfail(0), syncs(0),
        sync_result(0), shown(0) {}

  int_type underflow() {
    return at < length ? traits_type::to_int_type(text[at]) : traits_type::eof();
  }
  int_type uflow() {
    return at < length ? traits_type::to_int_type(text[at++]) : traits_type::eof();
  }
  int_type pbackfail(int_type c) {
    ++pbackfails;
    last_pbackfail = c;
    if (!accepting || at == 0)
      return traits_type::eof();
    if (c != traits_type::eof() && traits_type::to_int_type(text[at - 1]) != c)
      return traits_type::eof();
    --at;
    return traits_type::to_int_type(text[at]);
  }
  int sync() {
    ++syncs;
    return sync_result;
  }
  std::streamsize showmanyc() { return shown; }
};

// A small deterministic generator.
struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned long below(unsigned long n) {
    state = state * 1103515245ul + 12345ul;
    return (state >> 8) % n;
  }
};

// Any byte but the newline, NUL included.
char line_char(generator& g) {
  for (;;) {
    char c = static_cast<char>(g.below(256));
    if (c != '\n')
      return c;
  }
}

} // namespace

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
