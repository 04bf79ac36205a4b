// strstreambuf: the eight constructors and the areas they make, freeze, str, pcount, and the
// destructor that releases nothing.
#include "strstreambuf_test_support.h"

namespace {
// Far below the top of the address space, so that an unlimited count ends where the rule says.
char static_text[] = "static text";
} // namespace

// The dynamic constructors.

TEST(the_alsize_constructor_makes_an_empty_dynamic_buffer) {
  reset_log();
  test_strstreambuf buffer(40);
  CHECK_EQ(buffer.__strmode, 4);
  CHECK_EQ(buffer.__alsize, 40L);
  CHECK_EQ(buffer.__array_size, 0L);
  CHECK(buffer.__palloc != 0);
  CHECK(buffer.__pfree != 0);
  CHECK(buffer.all_pointers_null());
  CHECK_EQ(array_news, 0);
  CHECK_EQ(buffer.pcount(), 0);
}

TEST(the_default_constructor_suggests_no_size) {
  test_strstreambuf buffer;
  CHECK_EQ(buffer.__strmode, 4);
  CHECK_EQ(buffer.__alsize, 0L);
  CHECK_EQ(buffer.__array_size, 0L);
  CHECK(buffer.all_pointers_null());
}

TEST(the_default_functions_are_new_and_delete_of_char_arrays) {
  test_strstreambuf buffer;
  reset_log();
  char* array = static_cast<char*>(buffer.__palloc(24));
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_sizes[0], 24u);
  buffer.__pfree(array);
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == array);
}

TEST(the_function_constructor_keeps_its_functions_and_suggests_16) {
  test_strstreambuf buffer(logging_alloc, logging_free);
  CHECK_EQ(buffer.__strmode, 4);
  CHECK_EQ(buffer.__alsize, 16L);
  CHECK_EQ(buffer.__array_size, 0L);
  CHECK(buffer.__palloc == logging_alloc);
  CHECK(buffer.__pfree == logging_free);
  CHECK(buffer.all_pointers_null());
}

TEST(null_functions_are_replaced_by_the_default_ones) {
  void* (*no_alloc)(std::size_t) = 0;
  void (*no_free)(void*) = 0;
  test_strstreambuf both_null(no_alloc, no_free);
  test_strstreambuf plain;
  CHECK(both_null.__palloc == plain.__palloc);
  CHECK(both_null.__pfree == plain.__pfree);
  test_strstreambuf free_null(logging_alloc, no_free);
  CHECK(free_null.__palloc == logging_alloc);
  CHECK(free_null.__pfree == plain.__pfree);
  test_strstreambuf alloc_null(no_alloc, logging_free);
  CHECK(alloc_null.__palloc == plain.__palloc);
  CHECK(alloc_null.__pfree == logging_free);
}

// The array constructors.

TEST(the_char_constructor_makes_a_writable_buffer_suggesting_16) {
  char text[] = "abcdef";
  test_strstreambuf buffer(text, 6, text + 2);
  CHECK_EQ(buffer.__strmode, 0);
  CHECK_EQ(buffer.__alsize, 16L);
  CHECK_EQ(buffer.__array_size, 6L);
  CHECK(buffer.__palloc == 0);
  CHECK(buffer.__pfree == 0);
}

TEST(the_const_char_constructor_makes_a_constant_buffer_suggesting_nothing) {
  const char text[] = "abcdef";
  test_strstreambuf buffer(text, 6);
  CHECK_EQ(buffer.__strmode, 2);
  CHECK_EQ(buffer.__alsize, 0L);
  CHECK_EQ(buffer.__array_size, 6L);
  CHECK(buffer.__palloc == 0);
  CHECK(buffer.__pfree == 0);
  CHECK(buffer.eback() == text);
  CHECK(buffer.gptr() == text);
  CHECK(buffer.egptr() == text + 6);
  CHECK(!buffer.pbase() && !buffer.pptr() && !buffer.epptr());
}

TEST(the_signed_and_unsigned_char_constructors_suggest_nothing_unlike_char) {
  signed char s[] = {'a', 'b', 'c', 0};
  unsigned char u[] = {'a', 'b', 'c', 0};
  test_strstreambuf writable_signed(s, 3, s);
  CHECK_EQ(writable_signed.__strmode, 0);
  CHECK_EQ(writable_signed.__alsize, 0L);
  CHECK_EQ(writable_signed.__array_size, 3L);
  CHECK(writable_signed.pbase() == reinterpret_cast<char*>(s));
  CHECK(writable_signed.epptr() == reinterpret_cast<char*>(s) + 3);
  test_strstreambuf writable_unsigned(u, 3, u + 1);
  CHECK_EQ(writable_unsigned.__strmode, 0);
  CHECK_EQ(writable_unsigned.__alsize, 0L);
  CHECK(writable_unsigned.egptr() == reinterpret_cast<char*>(u) + 1);
  CHECK(writable_unsigned.pbase() == reinterpret_cast<char*>(u) + 1);
  const signed char* cs = s;
  const unsigned char* cu = u;
  test_strstreambuf constant_signed(cs, 0);
  CHECK_EQ(constant_signed.__strmode, 2);
  CHECK_EQ(constant_signed.__alsize, 0L);
  CHECK_EQ(constant_signed.get_end(), 3L);
  test_strstreambuf constant_unsigned(cu, 2);
  CHECK_EQ(constant_unsigned.__strmode, 2);
  CHECK_EQ(constant_unsigned.__alsize, 0L);
  CHECK_EQ(constant_unsigned.get_end(), 2L);
  CHECK(constant_unsigned.__palloc == 0 && constant_unsigned.__pfree == 0);
}

// The array's size and areas.

TEST(without_pbeg_the_whole_array_is_the_get_area) {
  char text[] = "abcdef";
  test_strstreambuf buffer(text, 4);
  CHECK(buffer.eback() == text);
  CHECK(buffer.gptr() == text);
  CHECK(buffer.egptr() == text + 4);
  CHECK(!buffer.pbase() && !buffer.pptr() && !buffer.epptr());
  CHECK_EQ(buffer.sbumpc(), 'a');
}

TEST(a_count_of_zero_takes_the_text_up_to_its_nul) {
  char text[] = "abc\0def";
  test_strstreambuf buffer(text, 0);
  CHECK_EQ(buffer.__array_size, 3L);
  CHECK_EQ(buffer.get_end(), 3L);
  char empty[] = "";
  test_strstreambuf nothing(empty, 0, empty);
  CHECK_EQ(nothing.__array_size, 0L);
  CHECK_EQ(nothing.put_end(), 0L);
  CHECK_EQ(nothing.sputc('x'), end_of_file);
}

TEST(a_negative_count_makes_a_get_area_of_0x7fffffff_characters) {
  test_strstreambuf buffer(static_text, -1, 0);
  CHECK_EQ(buffer.__array_size, 0x7FFFFFFFL);
  CHECK(buffer.eback() == static_text);
  CHECK_EQ(buffer.get_end(), 0x7FFFFFFFL);
  CHECK_EQ(buffer.sbumpc(), 's');
  test_strstreambuf constant(const_cast<const char*>(static_text), -5);
  CHECK_EQ(constant.get_end(), 0x7FFFFFFFL);
}

TEST(an_unlimited_array_near_the_top_of_memory_still_reads) {
  // A local array may lie less than 0x7fffffff below the top; its get area then ends at the top.
  char local[] = "local";
  test_strstreambuf buffer(local, -1, 0);
  CHECK(buffer.egptr() > buffer.eback());
  CHECK(buffer.get_end() <= 0x7FFFFFFFL);
  CHECK_EQ(buffer.sbumpc(), 'l');
  CHECK_EQ(buffer.sbumpc(), 'o');
  test_strstreambuf writer(local, -1, local);
  CHECK(writer.epptr() > writer.pbase());
  CHECK_EQ(writer.sputc('L'), 'L');
  CHECK_EQ(local[0], 'L');
}

TEST(with_pbeg_the_get_area_ends_where_the_put_area_starts) {
  char text[] = "abcdefgh";
  test_strstreambuf buffer(text, 8, text + 3);
  CHECK(buffer.eback() == text);
  CHECK(buffer.gptr() == text);
  CHECK(buffer.egptr() == text + 3);
  CHECK(buffer.pbase() == text + 3);
  CHECK(buffer.pptr() == text + 3);
  CHECK_EQ(buffer.__array_size, 8L);
}

TEST(with_pbeg_at_the_start_the_put_area_is_the_whole_array) {
  char text[] = "abcdefgh";
  test_strstreambuf buffer(text, 8, text);
  CHECK_EQ(buffer.get_end(), 0L);
  CHECK(buffer.pbase() == text);
  CHECK(buffer.epptr() == text + 8);
  CHECK_EQ(buffer.xsputn("12345678", 8), 8L);
  CHECK_EQ(buffer.sputc('9'), end_of_file);
  CHECK_BYTES(text, 8, "12345678", 8);
}

TEST(with_pbeg_inside_the_array_writes_stop_at_the_array_end) {
  // The put area would run to pbeg + N; it stops at the end of the caller's N characters.
  char text[16] = "abc";
  memset(text + 4, '.', 12);
  test_strstreambuf buffer(text, 10, text + 3);
  CHECK(buffer.epptr() == text + 10);
  CHECK_EQ(buffer.xsputn("0123456789", 10), 7L);
  CHECK_EQ(buffer.sputc('!'), end_of_file);
  CHECK_BYTES(text, 16, "abc0123456......", 16);
  CHECK_EQ(buffer.pcount(), 7);
}

TEST(an_unlimited_count_with_pbeg_stops_the_put_area_at_the_array_end) {
  test_strstreambuf buffer(static_text, -1, static_text + 4);
  CHECK_EQ(buffer.get_end(), 4L);
  CHECK_EQ(buffer.put_end(), 0x7FFFFFFFL - 4);
}

TEST(a_pbeg_beyond_the_array_end_makes_an_empty_put_area) {
  char text[] = "abcdefgh";
  test_strstreambuf buffer(text, 4, text + 6);
  CHECK(buffer.pbase() == text + 6);
  CHECK(buffer.epptr() == text + 6);
  CHECK_EQ(buffer.sputc('x'), end_of_file);
  CHECK_STR(text, "abcdefgh");
}

// freeze, str and pcount.

TEST(freeze_true_thaws_and_freeze_false_freezes_a_dynamic_buffer) {
  test_strstreambuf buffer;
  buffer.freeze(false);
  CHECK_EQ(buffer.__strmode, 4 | 8);
  buffer.freeze(false);
  CHECK_EQ(buffer.__strmode, 4 | 8);
  buffer.freeze(true);
  CHECK_EQ(buffer.__strmode, 4);
  buffer.freeze(false);
  buffer.freeze();
  CHECK_EQ(buffer.__strmode, 4);
}

TEST(freeze_does_nothing_to_a_buffer_that_is_not_dynamic) {
  char text[] = "abc";
  test_strstreambuf writable(text, 3, text);
  writable.freeze(false);
  CHECK_EQ(writable.__strmode, 0);
  writable.__strmode = 8;
  writable.freeze(true);
  CHECK_EQ(writable.__strmode, 8);
  test_strstreambuf constant(const_cast<const char*>(text), 3);
  constant.freeze(false);
  CHECK_EQ(constant.__strmode, 2);
}

TEST(str_freezes_a_dynamic_buffer_and_hands_over_its_array) {
  test_strstreambuf buffer;
  CHECK(buffer.str() == 0);
  CHECK_EQ(buffer.__strmode, 4 | 8);
  buffer.freeze(true);
  buffer.sputn("hello", 5);
  char* array = buffer.str();
  CHECK(array == buffer.pbase());
  CHECK(array == buffer.eback());
  CHECK_EQ(buffer.__strmode, 1 | 4 | 8);
  CHECK_BYTES(array, 5, "hello", 5);
  delete[] array;
}

TEST(str_of_an_array_buffer_is_its_start_and_changes_nothing) {
  char text[] = "abcdef";
  test_strstreambuf writable(text, 6, text + 2);
  CHECK(writable.str() == text);
  CHECK_EQ(writable.__strmode, 0);
  test_strstreambuf constant(const_cast<const char*>(text) + 1, 3);
  CHECK(constant.str() == text + 1);
  CHECK_EQ(constant.__strmode, 2);
}

TEST(pcount_is_what_pptr_has_passed_of_the_put_area) {
  char text[] = "abcdef";
  test_strstreambuf buffer(text, 6, text + 2);
  CHECK_EQ(buffer.pcount(), 0);
  buffer.sputc('x');
  buffer.sputc('y');
  CHECK_EQ(buffer.pcount(), 2);
  buffer.pubseekoff(1, io::beg, io::out);
  CHECK_EQ(buffer.pcount(), 1);
  test_strstreambuf constant(const_cast<const char*>(text), 6);
  CHECK_EQ(constant.pcount(), 0);
}

// The destructor.

TEST(destroying_a_dynamic_buffer_releases_nothing) {
  char* array = 0;
  reset_log();
  {
    test_strstreambuf buffer;
    buffer.sputn("some text that grows the array", 30);
    array = buffer.pbase();
    CHECK_EQ(array_deletes, 1);
  }
  CHECK_EQ(array_deletes, 1);
  CHECK_EQ(array[0], 's');
  delete[] array;
  CHECK_EQ(array_deletes, 2);
  {
    test_strstreambuf buffer(logging_alloc, logging_free);
    buffer.sputc('x');
    array = buffer.pbase();
  }
  CHECK_EQ(pfrees, 0);
  logging_free(array);
}

TEST(destroying_an_unwritten_or_frozen_buffer_releases_nothing_either) {
  reset_log();
  { test_strstreambuf buffer; }
  CHECK_EQ(array_deletes, 0);
  char* array = 0;
  {
    test_strstreambuf buffer;
    buffer.sputc('x');
    array = buffer.str();
  }
  CHECK_EQ(array_deletes, 0);
  delete[] array;
}
