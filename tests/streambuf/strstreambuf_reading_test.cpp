// strstreambuf: underflow with its sign-extended character and the get area extended over what
// was written, and pbackfail, which never overwrites.
#include "strstreambuf_test_support.h"
#include <istream>

// underflow.

TEST(underflow_returns_the_character_at_gptr_without_taking_it) {
  const char text[] = "abc";
  test_strstreambuf buffer(text, 3);
  CHECK_EQ(buffer.underflow(), 'a');
  CHECK_EQ(buffer.underflow(), 'a');
  CHECK_EQ(buffer.get_offset(), 0L);
}

TEST(underflow_sign_extends_so_the_byte_0xff_reads_as_end_of_file) {
  const char text[] = "\x7f\x80\xfe\xff";
  test_strstreambuf buffer(text, 4);
  CHECK_EQ(buffer.underflow(), 0x7f);
  buffer.sbumpc();
  CHECK_EQ(buffer.underflow(), -128);
  buffer.sbumpc();
  CHECK_EQ(buffer.underflow(), -2);
  buffer.sbumpc();
  // Kept: 0xFF comes back as -1, which is end of file.
  CHECK_EQ(buffer.underflow(), end_of_file);
  CHECK_EQ(buffer.get_offset(), 3L);
}

TEST(uflow_over_the_byte_0xff_reports_end_of_file_and_takes_nothing) {
  char text[] = "\377ab";
  test_strstreambuf buffer(text, 3, text);
  buffer.sputc('\xff');
  buffer.sputc('z');
  // The get area is empty; uflow asks underflow, which extends it and meets 0xFF.
  CHECK_EQ(buffer.uflow(), end_of_file);
  CHECK_EQ(buffer.get_offset(), 0L);
  CHECK_EQ(buffer.get_end(), 2L);
  // Inside the get area the inline read takes the byte as 255.
  CHECK_EQ(buffer.sbumpc(), 255);
  CHECK_EQ(buffer.sbumpc(), 'z');
}

TEST(an_istrstream_text_with_0xff_ends_at_that_byte_for_underflow) {
  // The stream's own reads take characters inside the get area without underflow; underflow,
  // when asked there, answers end of file.
  const char text[] = "ab\377cd";
  test_strstreambuf buffer(text, 0);
  std::istream in(&buffer);
  CHECK_EQ(in.get(), 'a');
  CHECK_EQ(in.get(), 'b');
  CHECK_EQ(buffer.underflow(), end_of_file);
  CHECK_EQ(in.get(), 255);
  CHECK_EQ(in.get(), 'c');
}

TEST(underflow_at_the_end_of_a_constant_array_is_end_of_file) {
  const char text[] = "ab";
  test_strstreambuf buffer(text, 2);
  buffer.sbumpc();
  buffer.sbumpc();
  CHECK_EQ(buffer.underflow(), end_of_file);
  CHECK_EQ(buffer.sbumpc(), end_of_file);
  CHECK_EQ(buffer.get_offset(), 2L);
}

TEST(underflow_extends_the_get_area_over_what_was_written) {
  test_strstreambuf buffer;
  buffer.sputn("xyz", 3);
  CHECK_EQ(buffer.get_end(), 0L);
  CHECK_EQ(buffer.underflow(), 'x');
  CHECK(buffer.egptr() == buffer.pptr());
  CHECK_EQ(buffer.sbumpc(), 'x');
  CHECK_EQ(buffer.sbumpc(), 'y');
  CHECK_EQ(buffer.sbumpc(), 'z');
  CHECK_EQ(buffer.sbumpc(), end_of_file);
  buffer.sputn("12", 2);
  CHECK_EQ(buffer.sbumpc(), '1');
  CHECK_EQ(buffer.sbumpc(), '2');
  CHECK_EQ(buffer.underflow(), end_of_file);
  delete[] buffer.str();
}

TEST(underflow_without_a_get_or_put_pointer_is_end_of_file) {
  test_strstreambuf empty;
  CHECK_EQ(empty.underflow(), end_of_file);
  CHECK_EQ(empty.sgetc(), end_of_file);
  // A put area without a get area: nothing to extend.
  char text[] = "abc";
  test_strstreambuf writer(text, 3, text);
  writer.sputc('q');
  writer.setg(0, 0, 0);
  CHECK_EQ(writer.underflow(), end_of_file);
}

TEST(underflow_when_pptr_is_not_beyond_egptr_is_end_of_file) {
  char text[] = "abcdef";
  test_strstreambuf buffer(text, 6, text + 3);
  buffer.sbumpc();
  buffer.sbumpc();
  buffer.sbumpc();
  // pptr is at egptr: nothing written since.
  CHECK_EQ(buffer.underflow(), end_of_file);
  buffer.sputc('D');
  CHECK_EQ(buffer.underflow(), 'D');
  CHECK_EQ(buffer.get_end(), 4L);
}

// pbackfail.

TEST(pbackfail_of_the_character_just_read_steps_back) {
  const char text[] = "xy";
  test_strstreambuf buffer(text, 2);
  CHECK_EQ(buffer.sbumpc(), 'x');
  CHECK_EQ(buffer.pbackfail('x'), 'x');
  CHECK_EQ(buffer.get_offset(), 0L);
}

TEST(pbackfail_of_another_character_fails_and_moves_nothing) {
  const char text[] = "yx";
  test_strstreambuf buffer(text, 2);
  CHECK_EQ(buffer.sbumpc(), 'y');
  CHECK_EQ(buffer.pbackfail('x'), end_of_file);
  CHECK_EQ(buffer.get_offset(), 1L);
  CHECK_EQ(buffer.sputbackc('x'), end_of_file);
  CHECK_EQ(buffer.sputbackc('y'), 'y');
}

TEST(pbackfail_never_overwrites_even_a_writable_buffer) {
  char text[] = "abcd";
  test_strstreambuf writable(text, 4, text + 4);
  writable.sbumpc();
  CHECK_EQ(writable.pbackfail('z'), end_of_file);
  CHECK_STR(text, "abcd");
  test_strstreambuf dynamic;
  dynamic.sputn("ab", 2);
  dynamic.sbumpc();
  CHECK_EQ(dynamic.sputbackc('z'), end_of_file);
  CHECK_EQ(dynamic.get_offset(), 1L);
  dynamic.holds("ab", 2);
  delete[] dynamic.str();
}

TEST(pbackfail_of_end_of_file_steps_back_and_answers_0) {
  const char text[] = "abc";
  test_strstreambuf buffer(text, 3);
  buffer.sbumpc();
  buffer.sbumpc();
  CHECK_EQ(buffer.pbackfail(end_of_file), 0);
  CHECK_EQ(buffer.get_offset(), 1L);
  CHECK_EQ(buffer.sungetc(), 'a');
  CHECK_EQ(buffer.get_offset(), 0L);
}

TEST(pbackfail_at_the_start_of_the_get_area_fails) {
  const char text[] = "abc";
  test_strstreambuf buffer(text, 3);
  CHECK_EQ(buffer.pbackfail('a'), end_of_file);
  CHECK_EQ(buffer.pbackfail(end_of_file), end_of_file);
  CHECK_EQ(buffer.sungetc(), end_of_file);
  CHECK_EQ(buffer.get_offset(), 0L);
  test_strstreambuf empty;
  CHECK_EQ(empty.pbackfail(end_of_file), end_of_file);
  CHECK_EQ(empty.pbackfail('a'), end_of_file);
}

TEST(pbackfail_compares_the_byte_as_unsigned) {
  const char text[] = "\xff\x80";
  test_strstreambuf buffer(text, 2);
  buffer.sbumpc();
  CHECK_EQ(buffer.pbackfail(0x1ff), end_of_file);
  CHECK_EQ(buffer.pbackfail(255), 255);
  CHECK_EQ(buffer.get_offset(), 0L);
  buffer.sbumpc();
  CHECK_EQ(buffer.sbumpc(), 0x80);
  CHECK_EQ(buffer.pbackfail(-128), end_of_file);
  CHECK_EQ(buffer.pbackfail(0x80), 0x80);
  CHECK_EQ(buffer.get_offset(), 1L);
}
