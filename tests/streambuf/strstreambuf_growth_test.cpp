// strstreambuf: overflow and xsputn, the growth of a dynamic array by 16 or to alsize, the put
// area extended one character at a time, the get pointers rebased on growth, and the writes that
// fail.
#include "strstreambuf_test_support.h"

namespace {
// Counts the calls of overflow that xsputn makes.
struct counting_strstreambuf : test_strstreambuf {
  int overflows;
  counting_strstreambuf() : overflows(0) {}
  int_type overflow(int_type c) {
    ++overflows;
    return test_strstreambuf::overflow(c);
  }
};
} // namespace

// Growth.

TEST(the_first_write_allocates_16_and_the_17th_reallocates_to_32) {
  test_strstreambuf buffer;
  reset_log();
  CHECK_EQ(buffer.sputc('a'), 'a');
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_sizes[0], 16u);
  CHECK_EQ(buffer.__array_size, 16L);
  CHECK_EQ(buffer.__strmode, 1 | 4);
  char* first = buffer.pbase();
  for (int i = 1; i < 16; ++i)
    buffer.sputc(static_cast<char>('a' + i));
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_deletes, 0);
  CHECK_EQ(buffer.sputc('!'), '!');
  CHECK_EQ(array_news, 2);
  CHECK_EQ(array_sizes[1], 32u);
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == first);
  CHECK_EQ(buffer.__array_size, 32L);
  CHECK_EQ(buffer.put_offset(), 17L);
  CHECK_EQ(buffer.put_end(), 17L);
  buffer.holds("abcdefghijklmnop!", 17);
  delete[] buffer.str();
}

TEST(the_put_area_never_runs_ahead_of_what_was_written) {
  test_strstreambuf buffer;
  for (int i = 0; i < 40; ++i) {
    CHECK_EQ(buffer.sputc('x'), 'x');
    CHECK_EQ(buffer.put_offset(), i + 1L);
    CHECK_EQ(buffer.put_end(), i + 1L);
  }
  CHECK_EQ(buffer.__array_size, 48L);
  delete[] buffer.str();
}

TEST(every_growth_adds_16_and_releases_the_array_it_replaces) {
  char text[200];
  for (long length = 0; length <= 200; length += 7) {
    generate(length + 1, text, length);
    std::size_t expected[log_capacity];
    int expected_count = growth_sizes(length, 0, expected);
    test_strstreambuf buffer;
    reset_log();
    for (long i = 0; i < length; ++i)
      CHECK_EQ(buffer.sputc(text[i]), static_cast<unsigned char>(text[i]));
    if (!CHECK_EQ(array_news, expected_count))
      break;
    for (int k = 0; k < expected_count; ++k)
      CHECK_EQ(array_sizes[k], expected[k]);
    CHECK_EQ(array_deletes, expected_count ? expected_count - 1 : 0);
    if (length > 0)
      buffer.holds(text, length);
    delete[] buffer.str();
  }
}

TEST(the_first_growth_goes_straight_to_alsize_and_later_ones_add_16) {
  test_strstreambuf buffer(40);
  reset_log();
  char text[100];
  generate(5, text, 100);
  for (int i = 0; i < 100; ++i)
    buffer.sputc(text[i]);
  std::size_t expected[log_capacity];
  int expected_count = growth_sizes(100, 40, expected);
  CHECK_EQ(expected_count, 5);
  CHECK_EQ(array_news, expected_count);
  CHECK_EQ(array_sizes[0], 40u);
  CHECK_EQ(array_sizes[1], 56u);
  for (int k = 0; k < expected_count; ++k)
    CHECK_EQ(array_sizes[k], expected[k]);
  buffer.holds(text, 100);
  delete[] buffer.str();
}

TEST(an_alsize_below_16_grows_by_16) {
  test_strstreambuf buffer(5);
  reset_log();
  buffer.sputc('a');
  CHECK_EQ(array_sizes[0], 16u);
  test_strstreambuf negative(-100);
  negative.sputc('a');
  CHECK_EQ(array_sizes[1], 16u);
  delete[] buffer.str();
  delete[] negative.str();
}

TEST(growth_goes_through_the_given_functions) {
  reset_log();
  test_strstreambuf buffer(logging_alloc, logging_free);
  char text[50];
  generate(9, text, 50);
  for (int i = 0; i < 50; ++i)
    buffer.sputc(text[i]);
  CHECK_EQ(array_news, 0);
  CHECK_EQ(array_deletes, 0);
  // The suggested size is 16, so the steps are the same as from nothing.
  CHECK_EQ(pallocs, 4);
  CHECK_EQ(palloc_sizes[0], 16u);
  CHECK_EQ(palloc_sizes[1], 32u);
  CHECK_EQ(palloc_sizes[2], 48u);
  CHECK_EQ(palloc_sizes[3], 64u);
  // The first growth had no array to release.
  CHECK_EQ(pfrees, 3);
  buffer.holds(text, 50);
  logging_free(buffer.str());
}

TEST(growth_keeps_the_characters_of_the_put_area) {
  test_strstreambuf buffer;
  char text[16];
  generate(11, text, 16);
  buffer.sputn(text, 16);
  // Writing from the middle again: the put area is not extended until pptr meets epptr.
  buffer.pubseekoff(4, io::beg, io::out);
  buffer.sputn("WXYZ", 4);
  CHECK_EQ(buffer.__array_size, 16L);
  buffer.pubseekoff(0, io::end, io::out);
  buffer.sputc('!');
  CHECK_EQ(buffer.__array_size, 32L);
  memcpy(text + 4, "WXYZ", 4);
  CHECK_BYTES(buffer.pbase(), 16, text, 16);
  CHECK_EQ(buffer.pbase()[16], '!');
  delete[] buffer.str();
}

TEST(growth_rebases_gptr_by_its_distance_from_egptr) {
  test_strstreambuf buffer;
  buffer.sputn("abcdefghijklmnop", 16);
  CHECK_EQ(buffer.sbumpc(), 'a');
  CHECK_EQ(buffer.sbumpc(), 'b');
  CHECK_EQ(buffer.sbumpc(), 'c');
  CHECK_EQ(buffer.get_offset(), 3L);
  CHECK_EQ(buffer.get_end(), 16L);
  buffer.sputc('!');
  CHECK_EQ(buffer.__array_size, 32L);
  CHECK(buffer.eback() == buffer.pbase());
  // Kept: gptr lands at new + (egptr - gptr), 13, not at 3.
  CHECK_EQ(buffer.get_offset(), 13L);
  CHECK_EQ(buffer.get_end(), 16L);
  CHECK_EQ(buffer.sbumpc(), 'n');
  delete[] buffer.str();
}

TEST(the_first_growth_starts_an_empty_get_area_at_the_array) {
  test_strstreambuf buffer;
  buffer.sputc('a');
  CHECK(buffer.eback() == buffer.pbase());
  CHECK(buffer.gptr() == buffer.pbase());
  CHECK(buffer.egptr() == buffer.pbase());
  delete[] buffer.str();
}

// overflow.

TEST(overflow_of_end_of_file_writes_nothing_and_answers_0) {
  test_strstreambuf buffer;
  reset_log();
  CHECK_EQ(buffer.overflow(end_of_file), 0);
  CHECK_EQ(array_news, 0);
  CHECK(buffer.all_pointers_null());
  const char text[] = "abc";
  test_strstreambuf constant(text, 3);
  CHECK_EQ(constant.overflow(end_of_file), 0);
}

TEST(overflow_with_room_stores_the_character) {
  char text[] = "......";
  test_strstreambuf buffer(text, 6, text);
  CHECK_EQ(buffer.overflow('q'), 'q');
  CHECK_EQ(text[0], 'q');
  CHECK_EQ(buffer.put_offset(), 1L);
}

TEST(writing_to_a_constant_buffer_fails) {
  const char text[] = "abc";
  test_strstreambuf buffer(text, 3);
  CHECK_EQ(buffer.sputc('x'), end_of_file);
  CHECK_EQ(buffer.overflow('x'), end_of_file);
  CHECK_EQ(buffer.xsputn("xyz", 3), 0L);
  CHECK_STR(text, "abc");
}

TEST(writing_past_the_end_of_a_caller_array_fails) {
  char text[] = "abcd";
  test_strstreambuf buffer(text, 4, text);
  reset_log();
  CHECK_EQ(buffer.xsputn("12345", 5), 4L);
  CHECK_EQ(buffer.sputc('6'), end_of_file);
  CHECK_EQ(array_news, 0);
  CHECK_STR(text, "1234");
}

TEST(writing_at_the_end_of_a_frozen_dynamic_buffer_fails) {
  test_strstreambuf buffer;
  buffer.sputn("abc", 3);
  buffer.freeze(false);
  reset_log();
  CHECK_EQ(buffer.sputc('d'), end_of_file);
  CHECK_EQ(buffer.xsputn("def", 3), 0L);
  CHECK_EQ(array_news, 0);
  CHECK_EQ(buffer.pcount(), 3);
  // Inside the put area a frozen buffer is still written.
  buffer.pubseekoff(0, io::beg, io::out);
  CHECK_EQ(buffer.sputc('A'), 'A');
  buffer.holds("A", 1);
  // Thawed, it grows again.
  buffer.pubseekoff(0, io::end, io::out);
  buffer.freeze(true);
  CHECK_EQ(buffer.sputc('d'), 'd');
  CHECK_EQ(buffer.pcount(), 4);
  delete[] buffer.str();
}

TEST(a_frozen_buffer_with_no_array_cannot_start_one) {
  test_strstreambuf buffer;
  buffer.freeze(false);
  reset_log();
  CHECK_EQ(buffer.sputc('a'), end_of_file);
  CHECK_EQ(array_news, 0);
  CHECK(buffer.all_pointers_null());
}

TEST(a_refused_allocation_fails_and_leaves_the_buffer_as_it_was) {
  reset_log();
  test_strstreambuf buffer(logging_alloc, logging_free);
  buffer.sputn("0123456789abcdef", 16);
  char* array = buffer.pbase();
  palloc_refuses = true;
  CHECK_EQ(buffer.sputc('g'), end_of_file);
  CHECK_EQ(buffer.xsputn("gh", 2), 0L);
  palloc_refuses = false;
  CHECK(buffer.pbase() == array);
  CHECK_EQ(buffer.put_offset(), 16L);
  CHECK_EQ(buffer.put_end(), 16L);
  CHECK_EQ(buffer.__array_size, 16L);
  CHECK_EQ(pfrees, 0);
  CHECK_EQ(buffer.sputc('g'), 'g');
  CHECK_EQ(buffer.__array_size, 32L);
  buffer.holds("0123456789abcdefg", 17);
  logging_free(buffer.str());
}

TEST(a_refused_first_allocation_leaves_no_array_and_no_allocated_bit) {
  test_strstreambuf buffer;
  refuse_array_new = true;
  int result = buffer.sputc('a');
  refuse_array_new = false;
  CHECK_EQ(result, end_of_file);
  CHECK(buffer.all_pointers_null());
  CHECK_EQ(buffer.__strmode, 4);
  CHECK_EQ(buffer.__array_size, 0L);
}

// xsputn.

TEST(xsputn_writes_everything_to_a_dynamic_buffer_as_single_writes_would) {
  char text[300];
  generate(21, text, 300);
  test_strstreambuf buffer;
  reset_log();
  CHECK_EQ(buffer.sputn(text, 300), 300L);
  std::size_t expected[log_capacity];
  int expected_count = growth_sizes(300, 0, expected);
  CHECK_EQ(array_news, expected_count);
  for (int k = 0; k < expected_count && k < array_news; ++k)
    CHECK_EQ(array_sizes[k], expected[k]);
  buffer.holds(text, 300);
  delete[] buffer.str();
}

TEST(xsputn_hands_each_character_past_the_put_area_to_overflow) {
  counting_strstreambuf buffer;
  CHECK_EQ(buffer.sputn("abcdefghij", 10), 10L);
  CHECK_EQ(buffer.overflows, 10);
  buffer.pubseekoff(0, io::beg, io::out);
  buffer.overflows = 0;
  CHECK_EQ(buffer.sputn("ABCDEFGHIJKL", 12), 12L);
  CHECK_EQ(buffer.overflows, 2);
  buffer.holds("ABCDEFGHIJKL", 12);
  delete[] buffer.str();
}

TEST(xsputn_of_nothing_writes_nothing) {
  test_strstreambuf buffer;
  reset_log();
  CHECK_EQ(buffer.sputn("abc", 0), 0L);
  CHECK_EQ(buffer.sputn("abc", -3), 0L);
  CHECK_EQ(array_news, 0);
}

TEST(xsputn_writes_every_byte_value) {
  char text[256];
  for (int i = 0; i < 256; ++i)
    text[i] = static_cast<char>(255 - i);
  test_strstreambuf buffer;
  CHECK_EQ(buffer.sputn(text, 256), 256L);
  buffer.holds(text, 256);
  delete[] buffer.str();
}
