// The prefix every input operation runs: gcount reset, the tie flush, white-space skipping and
// the give-back of the first character that is not space, and the state of a stream that is not
// good.
#include "lorb_test.h"
#include "output_test_buffers.h"
#include <istream>
#include <sstream>
#include <string.h>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate bad = std::ios_base::badbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate fail = std::ios_base::failbit;

// No get area at all, so every character comes from uflow and every give-back reaches pbackfail,
// which takes back the character just read (and counts).
struct uflow_buffer : std::basic_streambuf<char> {
  const char* text;
  int length;
  int at;
  int uflows;
  int underflows;
  int pbackfails;
  int last_pbackfail;

  uflow_buffer(const char* t, int n)
      : text(t), length(n), at(0), uflows(0), underflows(0), pbackfails(0), last_pbackfail(0) {}

  int_type underflow() {
    ++underflows;
    return at < length ? traits_type::to_int_type(text[at]) : traits_type::eof();
  }
  int_type uflow() {
    ++uflows;
    return at < length ? traits_type::to_int_type(text[at++]) : traits_type::eof();
  }
  int_type pbackfail(int_type c) {
    ++pbackfails;
    last_pbackfail = c;
    if (c == traits_type::eof() || at == 0 || traits_type::to_int_type(text[at - 1]) != c)
      return traits_type::eof();
    --at;
    return c;
  }
};

// A get area over text; pbackfail is counted and refuses.
struct area_source : std::basic_streambuf<char> {
  char area[300];
  int pbackfails;

  area_source(const char* t, int n) : pbackfails(0) {
    memcpy(area, t, n);
    setg(area, area, area + n);
  }
  using std::basic_streambuf<char>::eback;
  using std::basic_streambuf<char>::gptr;
  int_type pbackfail(int_type c) {
    ++pbackfails;
    return traits_type::eof();
  }
};

// A tied stream's buffer that notes how many characters the watched input had given out when it
// was synced.
struct watching_sync_buffer : recording_buffer {
  const uflow_buffer* watched;
  int uflows_at_sync;
  explicit watching_sync_buffer(const uflow_buffer* w) : watched(w), uflows_at_sync(-1) {}
  int sync() {
    uflows_at_sync = watched->uflows;
    return recording_buffer::sync();
  }
};

bool is_c_space(int byte) { return byte == ' ' || (byte >= 9 && byte <= 13); }

bool sentry_result(std::istream& is, bool noskipws) {
  std::istream::sentry ok(is, noskipws);
  return static_cast<bool>(ok);
}

} // namespace

// gcount

TEST(the_sentry_sets_gcount_to_zero) {
  std::istringstream is("abcdef");
  char buf[4];
  is.read(buf, 3);
  CHECK_EQ(is.gcount(), 3L);
  CHECK(sentry_result(is, true));
  CHECK_EQ(is.gcount(), 0L);
  is.read(buf, 2);
  CHECK_EQ(is.gcount(), 2L);
  CHECK(sentry_result(is, false));
  CHECK_EQ(is.gcount(), 0L);
}

TEST(the_sentry_sets_gcount_to_zero_on_a_stream_that_is_not_good) {
  std::istringstream is("abc");
  char buf[4];
  is.read(buf, 2);
  CHECK_EQ(is.gcount(), 2L);
  is.setstate(eof);
  CHECK(!sentry_result(is, true));
  CHECK_EQ(is.gcount(), 0L);
}

// The tie

TEST(a_good_stream_flushes_its_tie_once_per_sentry) {
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::istringstream is("1 2");
  is.tie(&tied);
  CHECK(sentry_result(is, false));
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK(sentry_result(is, true));
  CHECK_EQ(tied_buffer.syncs, 2);
  long n = 0;
  is >> n;
  CHECK_EQ(tied_buffer.syncs, 3);
  is >> n;
  CHECK_EQ(tied_buffer.syncs, 4);
  CHECK_EQ(n, 2L);
}

TEST(the_tie_is_flushed_before_any_character_is_read) {
  uflow_buffer in("  x", 3);
  watching_sync_buffer tied_buffer(&in);
  std::ostream tied(&tied_buffer);
  std::istream is(&in);
  is.tie(&tied);
  CHECK(sentry_result(is, false));
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK_EQ(tied_buffer.uflows_at_sync, 0);
  CHECK_EQ(in.uflows, 3);
}

TEST(the_tied_stream_receives_a_flush_so_its_output_reaches_its_buffer_first) {
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  tied << "prompt";
  std::istringstream is("x");
  is.tie(&tied);
  char c = 0;
  is >> c;
  CHECK_EQ(c, 'x');
  CHECK_WRITTEN(tied_buffer, "prompt");
  CHECK_EQ(tied_buffer.syncs, 1);
}

TEST(a_stream_that_is_not_good_leaves_its_tie_alone) {
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::istringstream is("x");
  is.tie(&tied);
  is.setstate(eof);
  CHECK(!sentry_result(is, false));
  CHECK_EQ(tied_buffer.syncs, 0);
}

TEST(a_tie_whose_sync_fails_keeps_the_failure_to_itself) {
  failing_sync_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::istringstream is("x");
  is.tie(&tied);
  CHECK(sentry_result(is, false));
  CHECK_EQ(tied_buffer.syncs, 1);
  CHECK_EQ(tied.rdstate(), bad);
  CHECK_EQ(is.rdstate(), good);
}

// Skipping white space

TEST(every_byte_of_the_space_class_is_skipped_and_no_other) {
  for (int byte = 0; byte < 256; ++byte) {
    char text[2] = {static_cast<char>(byte), 'x'};
    std::istringstream is(std::string(text, 2));
    CHECK(sentry_result(is, false));
    int next = is.rdbuf()->sbumpc();
    if (!CHECK_EQ(next, is_c_space(byte) ? 'x' : byte))
      printf("  byte %d\n", byte);
    CHECK_EQ(is.rdstate(), good);
  }
}

TEST(a_run_of_every_space_character_is_skipped_whole) {
  std::istringstream is(" \t\n\v\f\r  \n\tz ");
  CHECK(sentry_result(is, false));
  CHECK_EQ(is.rdbuf()->sbumpc(), 'z');
}

TEST(noskipws_true_skips_nothing) {
  for (int byte = 0; byte < 256; ++byte) {
    char text[2] = {static_cast<char>(byte), 'x'};
    std::istringstream is(std::string(text, 2));
    CHECK(sentry_result(is, true));
    CHECK_EQ(is.rdbuf()->sbumpc(), byte);
  }
}

TEST(a_stream_without_skipws_skips_nothing) {
  std::istringstream is("  \t x");
  is.unsetf(std::ios_base::skipws);
  CHECK(sentry_result(is, false));
  CHECK_EQ(is.rdbuf()->sbumpc(), ' ');
}

TEST(skipping_asks_the_stream_locale_ctype) {
  // a table where only 'q' is space
  static std::ctype_base::mask table[256];
  table[static_cast<unsigned char>('q')] = std::ctype_base::space;
  std::locale q_space(std::locale(), new std::ctype<char>(table));
  std::istringstream is("qq  x");
  is.imbue(q_space);
  CHECK(sentry_result(is, false));
  CHECK_EQ(is.rdbuf()->sbumpc(), ' ');
}

// The give-back

TEST(the_first_character_that_is_not_space_is_given_back_by_stepping_gptr_back) {
  const char text[] = "   \tword";
  area_source in(text, 8);
  std::istream is(&in);
  CHECK(sentry_result(is, false));
  CHECK_EQ(in.gptr() - in.eback(), 4L);
  CHECK_EQ(in.pbackfails, 0);
  CHECK_EQ(is.rdbuf()->sbumpc(), 'w');
}

TEST(without_a_get_area_the_character_is_given_back_through_pbackfail) {
  uflow_buffer in("  \n y", 5);
  std::istream is(&in);
  CHECK(sentry_result(is, false));
  CHECK_EQ(in.uflows, 5);
  CHECK_EQ(in.pbackfails, 1);
  CHECK_EQ(in.last_pbackfail, 'y');
  CHECK_EQ(in.at, 4);
  CHECK_EQ(is.rdstate(), good);
}

TEST(a_first_character_that_is_not_space_reaches_pbackfail_alone) {
  uflow_buffer in("y", 1);
  std::istream is(&in);
  CHECK(sentry_result(is, false));
  CHECK_EQ(in.uflows, 1);
  CHECK_EQ(in.pbackfails, 1);
  CHECK_EQ(in.last_pbackfail, 'y');
}

TEST(a_character_unlike_the_one_before_gptr_goes_to_pbackfail) {
  // the get area holds the blanks; uflow delivers the 'q' without moving gptr, so the character
  // before gptr is a blank
  source_buffer in("  ", "q");
  std::istream is(&in);
  CHECK(sentry_result(is, false));
  CHECK_EQ(in.uflows, 1);
  CHECK_EQ(in.pbackfails, 1);
  CHECK_EQ(in.last_pbackfail, 'q');
  CHECK_EQ(in.gptr() - in.eback(), 2L);
}

TEST(a_byte_above_127_is_given_back_as_its_unsigned_value) {
  uflow_buffer in(" \xe9", 2);
  std::istream is(&in);
  CHECK(sentry_result(is, false));
  CHECK_EQ(in.last_pbackfail, 0xe9);
  CHECK_EQ(in.at, 1);
}

TEST(nothing_is_given_back_when_no_character_is_read) {
  uflow_buffer in(" x", 2);
  std::istream is(&in);
  CHECK(sentry_result(is, true));
  CHECK_EQ(in.uflows, 0);
  CHECK_EQ(in.pbackfails, 0);
}

// The end of input while skipping

TEST(the_end_of_input_while_skipping_sets_no_bit) {
  const char* inputs[] = {"", " ", "   \t\n", "\v\f\r"};
  for (int i = 0; i < 4; ++i) {
    std::istringstream is(inputs[i]);
    CHECK(sentry_result(is, false));
    CHECK_EQ(is.rdstate(), good);
  }
  uflow_buffer in("  ", 2);
  std::istream is(&in);
  CHECK(sentry_result(is, false));
  CHECK_EQ(is.rdstate(), good);
  CHECK_EQ(in.uflows, 3);
  CHECK_EQ(in.pbackfails, 0);
}

TEST(the_end_while_skipping_does_not_end_the_process_under_a_full_mask) {
  std::istringstream is("   ");
  is.exceptions(eof | fail | bad);
  EXPECT_EXIT(sentry_result(is, false), 0, "");
}

// A stream that is not good

TEST(a_stream_that_is_not_good_gets_failbit_and_reads_nothing) {
  const std::ios_base::iostate starts[] = {eof, fail, bad, eof | fail, eof | bad};
  for (int i = 0; i < 5; ++i) {
    uflow_buffer in(" x", 2);
    std::istream is(&in);
    is.setstate(starts[i]);
    CHECK(!sentry_result(is, false));
    CHECK_EQ(is.rdstate(), starts[i] | fail);
    CHECK_EQ(in.uflows, 0);
    CHECK_EQ(in.underflows, 0);
  }
}

TEST(a_stream_without_buffer_gets_failbit_and_keeps_badbit) {
  std::istream is(0);
  CHECK_EQ(is.rdstate(), bad);
  CHECK(!sentry_result(is, false));
  CHECK_EQ(is.rdstate(), bad | fail);
}

TEST(a_stream_without_buffer_whose_state_lacks_badbit_gets_it_from_the_state_rule) {
  std::istream is(0);
  is.__state = eof; // a state only the field can give
  CHECK(!sentry_result(is, true));
  CHECK_EQ(is.rdstate(), eof | fail | bad);
}

TEST(a_good_stream_with_a_buffer_is_ok_without_reading) {
  uflow_buffer in("x", 1);
  std::istream is(&in);
  CHECK(sentry_result(is, true));
  CHECK_EQ(is.rdstate(), good);
}

// The exception mask

TEST(the_sentry_failbit_meets_the_exception_mask_and_ends_the_process) {
  std::istringstream is("x");
  is.setstate(eof);
  is.exceptions(fail);
  EXPECT_EXIT(sentry_result(is, false), 1, "Failure in I/O\n");
}

TEST(a_failed_extraction_under_a_failbit_mask_ends_the_process) {
  std::istringstream is("abc");
  is.exceptions(fail);
  long n = 0;
  EXPECT_EXIT(is >> n, 1, "Failure in I/O\n");
}

TEST(a_stream_without_buffer_under_a_badbit_mask_ends_the_process_at_the_sentry) {
  std::istream is(0);
  is.__exceptions = bad; // set past the state rule, which would end the process here
  EXPECT_EXIT(sentry_result(is, false), 1, "Failure in I/O\n");
}

TEST(a_good_extraction_under_a_full_mask_goes_on) {
  std::istringstream is(" 12 ");
  is.exceptions(eof | fail | bad);
  long n = 0;
  EXPECT_EXIT(is >> n, 0, "");
  is >> n;
  CHECK_EQ(n, 12L);
  CHECK_EQ(is.rdstate(), good);
}

// A missing ctype facet

TEST(skipping_on_a_locale_without_ctype_reports_the_missing_facet) {
  std::istringstream is(" x");
  is.imbue(locale_without<std::ctype<char> >());
  EXPECT_ABORT(sentry_result(is, false), "bad_cast: Facet not present\n\n");
}

TEST(a_sentry_that_does_not_skip_needs_no_ctype) {
  std::istringstream is(" x");
  is.imbue(locale_without<std::ctype<char> >());
  EXPECT_EXIT(sentry_result(is, true), 0, "");
  is.unsetf(std::ios_base::skipws);
  EXPECT_EXIT(sentry_result(is, false), 0, "");
}
