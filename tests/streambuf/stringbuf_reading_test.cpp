// basic_stringbuf<char>: reading what was written, underflow and pbackfail.
#include "stringbuf_test_support.h"

// Reading what was written.

TEST(in_out_mode_reads_a_character_at_once_after_sputc) {
  test_stringbuf buffer;
  for (int c = 0; c < 256; ++c) {
    CHECK_EQ(buffer.sputc(static_cast<char>(c)), c);
    CHECK_EQ(buffer.in_avail(), 1);
    CHECK_EQ(buffer.sbumpc(), c);
    CHECK_EQ(buffer.sgetc(), -1);
  }
  CHECK_EQ(buffer.sbumpc(), -1);
}

TEST(bulk_reads_take_what_was_written_and_stop_at_its_end) {
  std::string text = generated_text(21, 150);
  test_stringbuf buffer;
  buffer.sputn(text.data(), 150);
  char read[200];
  CHECK_EQ(buffer.sgetn(read, 200), 150);
  CHECK_BYTES(read, 150, text.data(), 150);
  CHECK_EQ(buffer.sgetn(read, 10), 0);
}

// underflow.

TEST(underflow_without_a_get_area_returns_end_of_file) {
  test_stringbuf buffer;
  CHECK_EQ(buffer.underflow(), -1);
  CHECK_EQ(buffer.uflow(), -1);
  CHECK_EQ(buffer.sbumpc(), -1);
}

TEST(underflow_without_out_returns_end_of_file) {
  test_stringbuf reader(std::string("abc"), io::in);
  reader.setg(reader.eback(), reader.eback(), reader.eback() + 1);
  CHECK_EQ(reader.sbumpc(), 'a');
  CHECK_EQ(reader.underflow(), -1);
  CHECK_EQ(reader.sbumpc(), -1);
}

TEST(underflow_with_characters_left_in_the_get_area_returns_end_of_file) {
  test_stringbuf buffer(std::string("abc"));
  CHECK_EQ(buffer.underflow(), -1);
  CHECK_EQ(buffer.get_offset(), 0);
  CHECK_EQ(buffer.sgetc(), 'a');
}

TEST(underflow_leaves_the_get_area_alone_while_characters_are_left_in_it) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback() + 1, buffer.eback() + 2);
  CHECK_EQ(buffer.underflow(), -1);
  CHECK_EQ(buffer.get_end(), 2);
  CHECK_EQ(buffer.get_offset(), 1);
}

TEST(underflow_at_the_end_of_what_was_written_returns_end_of_file) {
  test_stringbuf buffer;
  buffer.sputn("abc", 3);
  buffer.setg(buffer.eback(), buffer.egptr(), buffer.egptr());
  CHECK_EQ(buffer.underflow(), -1);
  CHECK_EQ(buffer.get_end(), 3);
}

TEST(underflow_extends_the_get_area_to_pptr) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback() + 2, buffer.eback() + 2);
  CHECK_EQ(buffer.underflow(), 'c');
  CHECK_EQ(buffer.get_offset(), 2);
  CHECK_EQ(buffer.get_end(), 6);
  CHECK_EQ(buffer.sbumpc(), 'c');
  CHECK_EQ(buffer.sbumpc(), 'd');
}

TEST(underflow_returns_the_character_as_unsigned_char) {
  test_stringbuf buffer;
  buffer.sputn("a\xe9", 2);
  buffer.setg(buffer.eback(), buffer.eback() + 1, buffer.eback() + 1);
  CHECK_EQ(buffer.underflow(), 0xe9);
}

TEST(a_bulk_read_extends_the_get_area_through_uflow) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback(), buffer.eback() + 2);
  char read[10];
  CHECK_EQ(buffer.sgetn(read, 10), 6);
  CHECK_BYTES(read, 6, "abcdef", 6);
}

// pbackfail.

TEST(pbackfail_in_out_mode_overwrites_the_character_before_gptr) {
  test_stringbuf buffer(std::string("abcd"));
  buffer.sbumpc();
  buffer.sbumpc();
  CHECK_EQ(buffer.pbackfail('x'), 'x');
  CHECK_EQ(buffer.get_offset(), 1);
  holds(buffer, "axcd");
  CHECK_EQ(buffer.sbumpc(), 'x');
  // sputbackc of a character that differs takes the same path.
  CHECK_EQ(buffer.sputbackc('y'), 'y');
  holds(buffer, "aycd");
}

TEST(pbackfail_returns_the_stored_character_sign_extended) {
  for (int c = 0; c < 256; ++c) {
    test_stringbuf buffer(std::string("ab"));
    buffer.sbumpc();
    int expected = c < 128 ? c : c - 256;
    CHECK_EQ(buffer.pbackfail(c), expected);
    CHECK_EQ(buffer.get_offset(), 0);
    CHECK_EQ(buffer.sbumpc(), c);
  }
}

TEST(pbackfail_of_0xff_stores_it_and_returns_the_end_of_file_value) {
  test_stringbuf buffer(std::string("ab"));
  buffer.sbumpc();
  CHECK_EQ(buffer.pbackfail(0xff), -1);
  CHECK_EQ(buffer.get_offset(), 0);
  holds(buffer, "\xff"
                "b");
}

TEST(pbackfail_stores_a_value_outside_0_to_255_as_0) {
  test_stringbuf buffer(std::string("ab"));
  buffer.sbumpc();
  CHECK_EQ(buffer.pbackfail(0x161), 0);
  holds(buffer, std::string("\0b", 2));
}

TEST(pbackfail_of_end_of_file_steps_back_and_returns_0) {
  test_stringbuf both(std::string("ab"));
  both.sbumpc();
  CHECK_EQ(both.pbackfail(-1), 0);
  CHECK_EQ(both.get_offset(), 0);
  holds(both, "ab");
  test_stringbuf reader(std::string("ab"), io::in);
  reader.sbumpc();
  reader.sbumpc();
  CHECK_EQ(reader.pbackfail(-1), 0);
  CHECK_EQ(reader.get_offset(), 1);
  CHECK_EQ(reader.sbumpc(), 'b');
}

TEST(pbackfail_without_out_steps_back_over_a_matching_character) {
  test_stringbuf reader(std::string("a\xe9"), io::in);
  reader.sbumpc();
  reader.sbumpc();
  CHECK_EQ(reader.pbackfail(0xe9), 0xe9);
  CHECK_EQ(reader.get_offset(), 1);
  CHECK_EQ(reader.pbackfail('a'), 'a');
  CHECK_EQ(reader.get_offset(), 0);
  holds(reader, "a\xe9");
}

TEST(pbackfail_without_out_refuses_a_different_character) {
  test_stringbuf reader(std::string("ab"), io::in);
  reader.sbumpc();
  CHECK_EQ(reader.pbackfail('z'), -1);
  CHECK_EQ(reader.pbackfail('a' + 256), -1);
  CHECK_EQ(reader.get_offset(), 1);
  CHECK_EQ(reader.sputbackc('z'), -1);
  holds(reader, "ab");
}

TEST(pbackfail_at_the_start_of_the_get_area_returns_end_of_file) {
  test_stringbuf both(std::string("ab"));
  CHECK_EQ(both.pbackfail('x'), -1);
  CHECK_EQ(both.pbackfail(-1), -1);
  CHECK_EQ(both.sungetc(), -1);
  holds(both, "ab");
  test_stringbuf reader(std::string("ab"), io::in);
  CHECK_EQ(reader.pbackfail('a'), -1);
  test_stringbuf fresh;
  CHECK_EQ(fresh.pbackfail('a'), -1);
  CHECK_EQ(fresh.pbackfail(-1), -1);
}
