// put, write, flush, the stream-buffer inserter, endl, ends and flush as manipulators, the
// manipulator inserters, and tellp/seekp.
#include "lorb_test.h"
#include "output_test_buffers.h"
#include <ios>
#include <locale>
#include <ostream>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate bad = std::ios_base::badbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate fail = std::ios_base::failbit;

// Notes how many characters it held when it was synced.
struct sync_watching_buffer : recording_buffer {
  int length_at_sync;
  sync_watching_buffer() : length_at_sync(-1) {}
  int sync() {
    length_at_sync = length;
    return recording_buffer::sync();
  }
};

// Widens the new-line character to '$', everything else as it is.
struct dollar_newline_ctype : std::ctype<char> {
  char do_widen(char c) const { return c == '\n' ? '$' : c; }
};

int basic_ios_manipulator_calls = 0;
std::basic_ios<char>& hash_fill(std::basic_ios<char>& ios) {
  ++basic_ios_manipulator_calls;
  ios.fill('#');
  return ios;
}

std::ostream* ostream_manipulator_saw = 0;
std::ostream& write_marker(std::ostream& os) {
  ostream_manipulator_saw = &os;
  return os.put('!');
}

} // namespace

// put.

TEST(put_stores_into_the_put_area_without_overflow) {
  area_buffer out(4);
  std::ostream os(&out);
  os.put('x').put('y');
  CHECK_EQ(out.written(), 2L);
  CHECK_BYTES(out.area, 2, "xy", 2);
  CHECK_EQ(out.overflows, 0);
  CHECK_EQ(os.rdstate(), good);
}

TEST(put_hands_the_character_to_overflow_when_there_is_no_room) {
  recording_buffer out;
  std::ostream os(&out);
  os.put('z');
  CHECK_WRITTEN(out, "z");
  CHECK_EQ(out.overflows, 1);
  CHECK_EQ(os.rdstate(), good);
}

TEST(put_hands_overflow_the_character_as_an_unsigned_value) {
  area_buffer out(0);
  std::ostream os(&out);
  os.put('\xE9');
  CHECK_EQ(out.last_overflow, 0xE9);
}

TEST(put_of_the_character_ff_is_not_taken_for_end_of_file) {
  recording_buffer out;
  std::ostream os(&out);
  os.put('\xFF');
  CHECK_WRITTEN(out, "\xFF");
  CHECK_EQ(os.rdstate(), good);
}

TEST(put_whose_overflow_fails_sets_badbit) {
  area_buffer out(1);
  std::ostream os(&out);
  os.put('a');
  CHECK_EQ(os.rdstate(), good);
  os.put('b');
  CHECK_EQ(out.overflows, 1);
  CHECK_EQ(out.last_overflow, 'b');
  CHECK_EQ(os.rdstate(), bad);
}

TEST(put_whose_overflow_fails_meets_the_exception_mask) {
  full_after_buffer out(0);
  std::ostream os(&out);
  os.exceptions(bad);
  EXPECT_EXIT(os.put('a'), 1, "Failure in I/O\n");
}

TEST(put_on_an_eofbit_stream_adds_failbit_and_badbit_writes_nothing_and_leaves_the_tie) {
  recording_buffer out;
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  os.setstate(eof);
  os.put('x');
  CHECK_EQ(os.rdstate(), eof | fail | bad);
  CHECK_EQ(out.length, 0);
  CHECK_EQ(out.overflows, 0);
  CHECK_EQ(tied_buffer.syncs, 0);
}

TEST(put_on_a_failed_stream_adds_badbit) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(fail);
  os.put('x');
  CHECK_EQ(os.rdstate(), fail | bad);
  CHECK_EQ(out.length, 0);
}

TEST(put_on_a_stream_that_is_not_good_meets_a_badbit_mask) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(eof);
  os.exceptions(bad); // the prefix adds only failbit; the badbit is put's own
  EXPECT_EXIT(os.put('x'), 1, "Failure in I/O\n");
}

// write.

TEST(write_passes_the_whole_count_to_one_sputn) {
  recording_buffer out;
  std::ostream os(&out);
  os.write("ab\0cd", 5);
  CHECK_WRITTEN(out, "ab\0cd");
  CHECK_EQ(out.xsputns, 1);
  CHECK_EQ(os.rdstate(), good);
}

TEST(write_of_nothing_writes_nothing_and_stays_good) {
  recording_buffer out;
  std::ostream os(&out);
  os.write("ab", 0);
  CHECK_EQ(out.length, 0);
  CHECK_EQ(os.rdstate(), good);
}

TEST(write_with_a_short_count_sets_badbit) {
  full_after_buffer out(3);
  std::ostream os(&out);
  os.write("abcdef", 6);
  CHECK_WRITTEN(out, "abc");
  CHECK_EQ(os.rdstate(), bad);
}

TEST(write_with_a_short_count_meets_the_exception_mask) {
  full_after_buffer out(3);
  std::ostream os(&out);
  os.exceptions(bad);
  EXPECT_EXIT(os.write("abcdef", 6), 1, "Failure in I/O\n");
}

TEST(write_on_a_stream_that_is_not_good_adds_failbit_only) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(eof);
  os.write("ab", 2);
  CHECK_EQ(os.rdstate(), eof | fail);
  CHECK_EQ(out.xsputns, 0);
}

// flush.

TEST(flush_syncs_the_buffer_once) {
  recording_buffer out;
  std::ostream os(&out);
  os.flush();
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), good);
}

TEST(flush_whose_sync_fails_sets_badbit) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os.flush();
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), bad);
}

TEST(flush_whose_sync_fails_meets_the_exception_mask) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os.exceptions(bad);
  EXPECT_EXIT(os.flush(), 1, "Failure in I/O\n");
}

TEST(flush_of_a_stream_that_is_not_good_adds_failbit_and_does_not_sync) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(eof);
  os.flush();
  CHECK_EQ(out.syncs, 0);
  CHECK_EQ(os.rdstate(), eof | fail);
}

TEST(flush_of_a_stream_without_buffer_adds_failbit_and_badbit) {
  std::ostream os(0);
  os.flush();
  CHECK_EQ(os.rdstate(), fail | bad);
}

TEST(do_flush_flushes_the_stream_it_is_given) {
  recording_buffer out;
  std::ostream os(&out);
  std::__vel_do_flush(&os);
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), good);
}

// The stream-buffer inserter.

TEST(inserting_a_stream_buffer_copies_all_of_it) {
  recording_buffer out;
  std::ostream os(&out);
  source_buffer sb("hello");
  os << &sb;
  CHECK_WRITTEN(out, "hello");
  CHECK(sb.gptr() == sb.egptr());
  CHECK_EQ(os.rdstate(), good);
}

TEST(inserting_a_stream_buffer_copies_what_its_uflow_delivers_too) {
  recording_buffer out;
  std::ostream os(&out);
  source_buffer sb("ab", "cd");
  os << &sb;
  CHECK_WRITTEN(out, "abcd");
  CHECK_EQ(sb.uflows, 3); // c, d, then end-of-file
  CHECK_EQ(os.rdstate(), good);
}

TEST(inserting_a_stream_buffer_copies_the_character_ff) {
  recording_buffer out;
  std::ostream os(&out);
  source_buffer sb("\xFF\x01");
  os << &sb;
  CHECK_WRITTEN(out, "\xFF\x01");
  CHECK_EQ(os.rdstate(), good);
}

TEST(inserting_a_null_stream_buffer_sets_badbit_and_failbit) {
  recording_buffer out;
  std::ostream os(&out);
  os << static_cast<std::streambuf*>(0);
  CHECK_EQ(os.rdstate(), bad | fail);
  CHECK_EQ(out.length, 0);
}

TEST(inserting_a_null_stream_buffer_meets_a_failbit_mask) {
  recording_buffer out;
  std::ostream os(&out);
  os.exceptions(fail);
  EXPECT_EXIT(os << static_cast<std::streambuf*>(0), 1, "Failure in I/O\n");
}

TEST(inserting_a_null_stream_buffer_meets_a_badbit_mask) {
  recording_buffer out;
  std::ostream os(&out);
  os.exceptions(bad);
  EXPECT_EXIT(os << static_cast<std::streambuf*>(0), 1, "Failure in I/O\n");
}

TEST(inserting_a_stream_buffer_at_its_end_from_the_start_sets_failbit) {
  recording_buffer out;
  std::ostream os(&out);
  source_buffer sb("");
  os << &sb;
  CHECK_EQ(os.rdstate(), fail);
  CHECK_EQ(sb.uflows, 1);
  CHECK_EQ(out.length, 0);
}

TEST(inserting_an_empty_stream_buffer_meets_a_failbit_mask) {
  recording_buffer out;
  std::ostream os(&out);
  source_buffer sb("");
  os.exceptions(fail);
  EXPECT_EXIT(os << &sb, 1, "Failure in I/O\n");
}

TEST(inserting_a_stream_buffer_into_a_stream_that_is_not_good_copies_nothing) {
  recording_buffer out;
  std::ostream os(&out);
  source_buffer sb("abc");
  os.setstate(eof);
  os << &sb;
  CHECK_EQ(os.rdstate(), eof | bad | fail);
  CHECK(sb.gptr() == sb.eback());
  CHECK_EQ(sb.uflows, 0);
  CHECK_EQ(out.length, 0);
}

TEST(a_refused_character_steps_back_in_the_source_get_area) {
  full_after_buffer out(3);
  std::ostream os(&out);
  source_buffer sb("abcdef");
  os << &sb;
  CHECK_WRITTEN(out, "abc");
  CHECK(sb.gptr() == sb.eback() + 3);
  CHECK_EQ(sb.pbackfails, 0);
  CHECK_EQ(os.rdstate(), good); // three characters were copied
  CHECK_EQ(sb.sbumpc(), 'd');
}

TEST(a_first_character_refused_leaves_the_source_untouched_and_sets_failbit) {
  full_after_buffer out(0);
  std::ostream os(&out);
  source_buffer sb("abc");
  os << &sb;
  CHECK(sb.gptr() == sb.eback());
  CHECK_EQ(sb.pbackfails, 0);
  CHECK_EQ(os.rdstate(), fail);
}

TEST(a_refused_character_other_than_the_one_before_gptr_goes_to_pbackfail) {
  full_after_buffer out(2);
  std::ostream os(&out);
  source_buffer sb("ab", "z"); // 'z' comes from uflow, gptr stays after 'b'
  os << &sb;
  CHECK_WRITTEN(out, "ab");
  CHECK_EQ(sb.pbackfails, 1);
  CHECK_EQ(sb.last_pbackfail, 'z');
  CHECK(sb.gptr() == sb.egptr());
  CHECK_EQ(os.rdstate(), good);
}

TEST(a_refused_character_from_a_source_without_get_area_goes_to_pbackfail) {
  full_after_buffer out(1);
  std::ostream os(&out);
  source_buffer sb("", "x\xE9");
  sb.drop_get_area();
  os << &sb;
  CHECK_WRITTEN(out, "x");
  CHECK_EQ(sb.pbackfails, 1);
  CHECK_EQ(sb.last_pbackfail, 0xE9);
  CHECK_EQ(os.rdstate(), good);
}

// endl, ends and flush as manipulators.

TEST(endl_puts_a_new_line_and_then_flushes) {
  sync_watching_buffer out;
  std::ostream os(&out);
  os << "a" << std::endl;
  CHECK_WRITTEN(out, "a\n");
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(out.length_at_sync, 2);
  CHECK_EQ(os.rdstate(), good);
}

TEST(endl_returns_the_stream) {
  recording_buffer out;
  std::ostream os(&out);
  CHECK(&std::endl(os) == &os);
}

TEST(endl_writes_the_new_line_the_stream_locale_widens_to) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(std::locale(std::locale(), new dollar_newline_ctype));
  os << std::endl;
  CHECK_WRITTEN(out, "$");
}

TEST(endl_whose_put_fails_gets_badbit_and_then_failbit_from_the_flush) {
  full_after_buffer out(0);
  std::ostream os(&out);
  os << std::endl;
  CHECK_EQ(os.rdstate(), bad | fail);
  CHECK_EQ(out.syncs, 0);
}

TEST(endl_whose_flush_fails_gets_badbit) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os << std::endl;
  CHECK_WRITTEN(out, "\n");
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), bad);
}

TEST(endl_whose_flush_fails_meets_the_exception_mask) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os.exceptions(bad);
  EXPECT_EXIT(os << std::endl, 1, "Failure in I/O\n");
}

TEST(endl_on_a_stream_that_is_not_good_writes_nothing_and_does_not_sync) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(eof);
  os << std::endl;
  CHECK_EQ(os.rdstate(), eof | fail | bad);
  CHECK_EQ(out.length, 0);
  CHECK_EQ(out.syncs, 0);
}

TEST(endl_on_a_unitbuf_stream_syncs_three_times) {
  recording_buffer out;
  std::ostream os(&out);
  os.setf(std::ios_base::unitbuf);
  os << std::endl; // once after put, twice for flush
  CHECK_EQ(out.syncs, 3);
}

TEST(endl_without_a_ctype_facet_aborts_with_the_bad_cast_message) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(locale_without<std::ctype<char> >());
  EXPECT_ABORT(os << std::endl, "bad_cast: Facet not present\n\n");
}

TEST(ends_puts_a_null_character_and_does_not_flush) {
  recording_buffer out;
  std::ostream os(&out);
  os << "a" << std::ends << "b";
  CHECK_WRITTEN(out, "a\0b");
  CHECK_EQ(out.syncs, 0);
}

TEST(ends_fails_like_put) {
  full_after_buffer out(0);
  std::ostream os(&out);
  os << std::ends;
  CHECK_EQ(os.rdstate(), bad);
}

TEST(the_flush_manipulator_flushes) {
  failing_sync_buffer out;
  std::ostream os(&out);
  os << "a" << std::flush;
  CHECK_EQ(out.syncs, 1);
  CHECK_EQ(os.rdstate(), bad);
}

// The manipulator inserters call the function on the stream and run no sentry.

TEST(an_ios_base_manipulator_changes_the_flags_and_returns_the_stream) {
  recording_buffer out;
  std::ostream os(&out);
  CHECK(&(os << std::hex) == &os);
  CHECK_EQ(os.flags() & std::ios_base::basefield, std::ios_base::hex);
  os << 255L << std::uppercase << ' ' << 255L;
  CHECK_WRITTEN(out, "ff FF");
}

TEST(a_basic_ios_manipulator_is_called_once_on_the_stream) {
  recording_buffer out;
  std::ostream os(&out);
  basic_ios_manipulator_calls = 0;
  CHECK(&(os << hash_fill) == &os);
  CHECK_EQ(basic_ios_manipulator_calls, 1);
  CHECK_EQ(os.fill(), '#');
}

TEST(an_ostream_manipulator_is_called_on_the_stream_and_its_result_returned) {
  recording_buffer out;
  std::ostream os(&out);
  ostream_manipulator_saw = 0;
  CHECK(&(os << write_marker) == &os);
  CHECK(ostream_manipulator_saw == &os);
  CHECK_WRITTEN(out, "!");
}

TEST(manipulators_run_no_sentry) {
  recording_buffer out;
  recording_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  os.setf(std::ios_base::unitbuf);
  os.setstate(eof);
  os << std::hex << hash_fill;
  CHECK_EQ(os.rdstate(), eof);
  CHECK_EQ(out.syncs, 0);
  CHECK_EQ(tied_buffer.syncs, 0);
  CHECK_EQ(os.fill(), '#');
}

// tellp and seekp.

TEST(tellp_asks_the_buffer_for_the_current_output_position) {
  seekable_buffer out(42);
  std::ostream os(&out);
  std::streampos at = os.tellp();
  CHECK_EQ(static_cast<std::streamoff>(at), 42L);
  CHECK_EQ(out.seekoffs, 1);
  CHECK_EQ(out.last_offset, 0L);
  CHECK_EQ(out.last_dir, std::ios_base::cur);
  CHECK_EQ(out.last_which, std::ios_base::out);
  CHECK_EQ(os.rdstate(), good);
}

TEST(tellp_on_a_buffer_without_seeking_is_the_invalid_position) {
  recording_buffer out;
  std::ostream os(&out);
  CHECK_EQ(static_cast<std::streamoff>(os.tellp()), -1L);
  CHECK_EQ(os.rdstate(), good);
}

TEST(tellp_on_a_failed_stream_is_the_invalid_position_without_asking) {
  seekable_buffer out(42);
  std::ostream os(&out);
  os.setstate(fail);
  CHECK_EQ(static_cast<std::streamoff>(os.tellp()), -1L);
  CHECK_EQ(out.seekoffs, 0);
  CHECK_EQ(os.rdstate(), fail);
}

TEST(seekp_to_a_position_asks_the_buffer_for_the_output_side) {
  seekable_buffer out(7);
  std::ostream os(&out);
  CHECK(&os.seekp(std::streampos(7)) == &os);
  CHECK_EQ(out.seekposs, 1);
  CHECK_EQ(out.last_offset, 7L);
  CHECK_EQ(out.last_which, std::ios_base::out);
  CHECK_EQ(os.rdstate(), good);
}

TEST(seekp_by_an_offset_asks_the_buffer_for_the_output_side) {
  seekable_buffer out(3);
  std::ostream os(&out);
  os.seekp(-4, std::ios_base::end);
  CHECK_EQ(out.seekoffs, 1);
  CHECK_EQ(out.last_offset, -4L);
  CHECK_EQ(out.last_dir, std::ios_base::end);
  CHECK_EQ(out.last_which, std::ios_base::out);
  CHECK_EQ(os.rdstate(), good);
}

TEST(seekp_on_a_buffer_without_seeking_sets_failbit) {
  recording_buffer out;
  std::ostream os(&out);
  os.seekp(std::streampos(7));
  CHECK_EQ(os.rdstate(), fail);
  os.clear();
  os.seekp(1, std::ios_base::beg);
  CHECK_EQ(os.rdstate(), fail);
}

TEST(seekp_to_the_invalid_position_answer_sets_failbit) {
  seekable_buffer out(-1);
  std::ostream os(&out);
  os.seekp(0, std::ios_base::cur);
  CHECK_EQ(os.rdstate(), fail);
}

TEST(seekp_on_a_failed_stream_does_not_ask_the_buffer) {
  seekable_buffer out(3);
  std::ostream os(&out);
  os.setstate(bad);
  os.seekp(std::streampos(1));
  os.seekp(1, std::ios_base::cur);
  CHECK_EQ(out.seekoffs + out.seekposs, 0);
  CHECK_EQ(os.rdstate(), bad);
}
