// strstreambuf: seekoff and seekpos over the get area, the put area, or both.
#include "strstreambuf_test_support.h"

namespace {
// A buffer over "0123456789" that reads [0, 4) and writes from 4: gptr at 1, pptr at 4 + 2.
struct split_buffer {
  char text[11];
  test_strstreambuf buffer;
  split_buffer() : buffer(text, 10, text + 4) {
    memcpy(text, "0123456789", 11);
    buffer.sbumpc();
    buffer.sputc('a');
    buffer.sputc('b');
  }
};
} // namespace

// seekoff of the get area.

TEST(seekoff_in_moves_gptr_from_the_start_the_current_place_or_the_end) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(2, io::beg, io::in)), 2L);
  CHECK_EQ(s.buffer.get_offset(), 2L);
  CHECK_EQ(offset_of(s.buffer.seekoff(1, io::cur, io::in)), 3L);
  CHECK_EQ(s.buffer.get_offset(), 3L);
  CHECK_EQ(offset_of(s.buffer.seekoff(-4, io::end, io::in)), 0L);
  CHECK_EQ(s.buffer.get_offset(), 0L);
  CHECK_EQ(offset_of(s.buffer.seekoff(0, io::end, io::in)), 4L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

TEST(seekoff_in_before_the_start_or_past_egptr_fails_and_moves_nothing) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(-2, io::cur, io::in)), invalid);
  CHECK_EQ(offset_of(s.buffer.seekoff(5, io::beg, io::in)), invalid);
  CHECK_EQ(offset_of(s.buffer.seekoff(1, io::end, io::in)), invalid);
  CHECK_EQ(s.buffer.get_offset(), 1L);
}

TEST(seekoff_by_the_largest_offsets_fails_without_wrapping_into_the_areas) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(0x7FFFFFFF, io::cur, io::in)), invalid);
  CHECK_EQ(offset_of(s.buffer.seekoff(0x7FFFFFFF, io::end, io::in)), invalid);
  CHECK_EQ(s.buffer.get_offset(), 1L);
  CHECK_EQ(offset_of(s.buffer.seekoff(0x7FFFFFFF, io::cur, io::out)), invalid);
  CHECK_EQ(offset_of(s.buffer.seekoff(-0x7FFFFFFF - 1, io::cur, io::out)), invalid);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

TEST(seekoff_in_without_a_get_area_fails) {
  test_strstreambuf empty;
  CHECK_EQ(offset_of(empty.seekoff(0, io::beg, io::in)), invalid);
  CHECK_EQ(offset_of(empty.seekoff(0, io::beg, io::in | io::out)), invalid);
}

// seekoff of the put area.

TEST(seekoff_out_moves_pptr_from_the_start_the_current_place_or_the_end) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(1, io::beg, io::out)), 1L);
  CHECK_EQ(s.buffer.put_offset(), 1L);
  CHECK_EQ(offset_of(s.buffer.seekoff(3, io::cur, io::out)), 4L);
  CHECK_EQ(offset_of(s.buffer.seekoff(-1, io::end, io::out)), 5L);
  CHECK_EQ(s.buffer.put_offset(), 5L);
  CHECK_EQ(s.buffer.get_offset(), 1L);
}

TEST(seekoff_out_outside_the_put_area_fails_and_leaves_pptr) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(-3, io::cur, io::out)), invalid);
  CHECK_EQ(offset_of(s.buffer.seekoff(7, io::beg, io::out)), invalid);
  CHECK_EQ(offset_of(s.buffer.seekoff(1, io::end, io::out)), invalid);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

TEST(seekoff_out_of_a_dynamic_buffer_reaches_what_was_written) {
  test_strstreambuf buffer;
  CHECK_EQ(offset_of(buffer.seekoff(0, io::beg, io::out)), invalid);
  buffer.sputn("abcdefgh", 8);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end, io::out)), 8L);
  CHECK_EQ(offset_of(buffer.seekoff(9, io::beg, io::out)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::beg, io::out)), 2L);
  buffer.sputc('C');
  buffer.pubseekoff(0, io::end, io::out);
  buffer.holds("abCdefgh", 8);
  delete[] buffer.str();
}

// seekoff of both areas.

TEST(seekoff_of_both_from_the_start_or_the_end_moves_both) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(3, io::beg, io::in | io::out)), 3L);
  CHECK_EQ(s.buffer.get_offset(), 3L);
  CHECK_EQ(s.buffer.put_offset(), 3L);
  CHECK_EQ(offset_of(s.buffer.seekoff(-4, io::end, io::in | io::out)), 2L);
  CHECK_EQ(s.buffer.get_offset(), 0L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

TEST(seekoff_of_both_from_the_current_place_moves_the_get_area_alone) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(2, io::cur, io::in | io::out)), 3L);
  CHECK_EQ(s.buffer.get_offset(), 3L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

TEST(seekoff_of_both_fails_at_once_when_the_get_area_refuses) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(5, io::beg, io::in | io::out)), invalid);
  CHECK_EQ(s.buffer.get_offset(), 1L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

TEST(seekoff_of_both_fails_when_the_put_area_refuses_after_the_get_area_moved) {
  char text[] = "0123456789";
  test_strstreambuf buffer(text, 10, text + 8);
  // The put area holds 2; the get area 8.
  CHECK_EQ(offset_of(buffer.seekoff(-5, io::end, io::in | io::out)), invalid);
  CHECK_EQ(buffer.get_offset(), 3L);
  CHECK_EQ(buffer.put_offset(), 0L);
}

TEST(seekoff_of_both_without_a_put_area_is_the_get_result) {
  const char text[] = "0123";
  test_strstreambuf buffer(text, 4);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::beg, io::in | io::out)), 2L);
  CHECK_EQ(buffer.get_offset(), 2L);
}

TEST(seekoff_of_neither_area_fails) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekoff(0, io::beg, io::openmode(0))), invalid);
  CHECK_EQ(offset_of(s.buffer.seekoff(0, io::beg, io::app)), invalid);
  CHECK_EQ(s.buffer.get_offset(), 1L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

// seekpos.

TEST(seekpos_moves_the_areas_it_is_asked_to) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekpos(3, io::in)), 3L);
  CHECK_EQ(s.buffer.get_offset(), 3L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
  CHECK_EQ(offset_of(s.buffer.seekpos(5, io::out)), 5L);
  CHECK_EQ(s.buffer.put_offset(), 5L);
  CHECK_EQ(offset_of(s.buffer.seekpos(1, io::in | io::out)), 1L);
  CHECK_EQ(s.buffer.get_offset(), 1L);
  CHECK_EQ(s.buffer.put_offset(), 1L);
}

TEST(seekpos_to_a_negative_position_fails) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekpos(-1, io::in | io::out)), invalid);
  CHECK_EQ(offset_of(s.buffer.seekpos(-1, io::out)), invalid);
  CHECK_EQ(s.buffer.get_offset(), 1L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
}

TEST(seekpos_past_egptr_or_without_a_get_area_fails_when_in_is_asked) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekpos(5, io::in | io::out)), invalid);
  CHECK_EQ(s.buffer.get_offset(), 1L);
  CHECK_EQ(s.buffer.put_offset(), 2L);
  test_strstreambuf empty;
  CHECK_EQ(offset_of(empty.seekpos(0, io::in)), invalid);
}

TEST(seekpos_where_the_put_area_refuses_keeps_what_the_get_area_did) {
  char text[] = "0123456789";
  test_strstreambuf buffer(text, 10, text + 8);
  CHECK_EQ(offset_of(buffer.seekpos(4, io::in | io::out)), 4L);
  CHECK_EQ(buffer.get_offset(), 4L);
  CHECK_EQ(buffer.put_offset(), 0L);
  CHECK_EQ(offset_of(buffer.seekpos(3, io::out)), invalid);
  CHECK_EQ(buffer.put_offset(), 0L);
  CHECK_EQ(offset_of(buffer.seekpos(2, io::out)), 2L);
}

TEST(seekpos_out_without_a_put_area_fails) {
  const char text[] = "0123";
  test_strstreambuf buffer(text, 4);
  CHECK_EQ(offset_of(buffer.seekpos(1, io::out)), invalid);
  CHECK_EQ(offset_of(buffer.seekpos(1, io::in | io::out)), 1L);
}

TEST(seekpos_of_neither_area_fails) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekpos(1, io::openmode(0))), invalid);
  CHECK_EQ(s.buffer.get_offset(), 1L);
}

TEST(seekpos_to_the_ends_of_the_areas_succeeds_and_one_beyond_fails) {
  split_buffer s;
  CHECK_EQ(offset_of(s.buffer.seekpos(4, io::in)), 4L);
  CHECK_EQ(offset_of(s.buffer.seekpos(6, io::out)), 6L);
  CHECK_EQ(offset_of(s.buffer.seekpos(7, io::out)), invalid);
  CHECK_EQ(s.buffer.put_offset(), 6L);
}
