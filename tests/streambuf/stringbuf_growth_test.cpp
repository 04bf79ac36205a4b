// basic_stringbuf<char>: growth of the array by 64 characters, epptr as the high-water mark,
// and overflow.
#include "stringbuf_test_support.h"

// Growth.

TEST(sixty_five_characters_allocate_64_on_the_first_write_and_128_on_the_65th) {
  test_stringbuf buffer(io::out);
  reset_log();
  CHECK_EQ(buffer.sputc('a'), 'a');
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_sizes[0], 64u);
  CHECK_EQ(array_deletes, 0);
  char* first = buffer.pbase();
  for (int i = 1; i < 64; ++i)
    buffer.sputc(static_cast<char>('a' + i % 26));
  CHECK_EQ(array_news, 1);
  CHECK_EQ(buffer.allocated(), 64);
  CHECK_EQ(buffer.sputc('!'), '!');
  CHECK_EQ(array_news, 2);
  CHECK_EQ(array_sizes[1], 128u);
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == first);
  CHECK_EQ(buffer.allocated(), 128);
  CHECK_EQ(buffer.put_offset(), 65);
  CHECK_EQ(buffer.put_end(), 65);
  std::string expected;
  for (int i = 0; i < 64; ++i)
    expected += static_cast<char>('a' + i % 26);
  expected += '!';
  holds(buffer, expected);
}

TEST(every_growth_asks_for_the_next_multiple_of_64_above_the_characters_written) {
  for (long length = 0; length <= 1000; ++length) {
    std::string text = generated_text(length + 1, length);
    std::size_t expected[log_capacity];
    int expected_count = growth_sizes(length, expected);
    {
      test_stringbuf buffer(io::out);
      reset_log();
      for (long i = 0; i < length; ++i) {
        int before = array_news;
        CHECK_EQ(buffer.sputc(text[i]), static_cast<unsigned char>(text[i]));
        if (array_news != before) {
          std::size_t size = array_sizes[array_news - 1];
          CHECK_EQ(size % 64, 0u);
          CHECK(size > static_cast<std::size_t>(i));
          CHECK(size - 64 <= static_cast<std::size_t>(i));
        }
      }
      if (!CHECK_EQ(array_news, expected_count))
        break;
      for (int k = 0; k < expected_count; ++k)
        CHECK_EQ(array_sizes[k], expected[k]);
      // Each growth releases the array it replaces.
      CHECK_EQ(array_deletes, expected_count ? expected_count - 1 : 0);
      holds(buffer, text);
    }
    CHECK_EQ(array_deletes, expected_count);
  }
}

TEST(bulk_writes_grow_the_array_the_same_way) {
  std::string text = generated_text(7, 1000);
  std::size_t expected[log_capacity];
  int expected_count = growth_sizes(1000, expected);
  test_stringbuf buffer(io::out);
  reset_log();
  CHECK_EQ(buffer.sputn(text.data(), 1000), 1000);
  CHECK_EQ(array_news, expected_count);
  for (int k = 0; k < expected_count && k < array_news; ++k)
    CHECK_EQ(array_sizes[k], expected[k]);
  holds(buffer, text);
}

TEST(growth_keeps_the_characters_before_pptr_only) {
  std::string text = generated_text(3, 64);
  test_stringbuf buffer(io::out);
  buffer.sputn(text.data(), 64);
  CHECK_EQ(buffer.allocated(), 64);
  CHECK_EQ(offset_of(buffer.seekoff(10, io::beg, io::out)), 10);
  reset_log();
  // The high-water mark is at the end of the allocation: growth copies the 10 characters before
  // pptr and the high-water mark follows the new character.
  CHECK_EQ(buffer.overflow('Z'), 'Z');
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_sizes[0], 64u);
  CHECK_EQ(buffer.put_offset(), 11);
  CHECK_EQ(buffer.put_end(), 11);
  holds(buffer, text.substr(0, 10) + "Z");
}

TEST(growth_in_in_out_mode_keeps_the_get_offset) {
  std::string text = generated_text(11, 300);
  test_stringbuf buffer;
  buffer.sputn(text.data(), 100);
  for (int i = 0; i < 30; ++i)
    CHECK_EQ(buffer.sbumpc(), static_cast<unsigned char>(text[i]));
  buffer.sputn(text.data() + 100, 200);
  CHECK_EQ(buffer.allocated(), 320);
  CHECK(buffer.eback() == buffer.pbase());
  CHECK_EQ(buffer.get_offset(), 30);
  CHECK_EQ(buffer.get_end(), 300);
  for (int i = 30; i < 300; ++i)
    CHECK_EQ(buffer.sbumpc(), static_cast<unsigned char>(text[i]));
  CHECK_EQ(buffer.sbumpc(), -1);
}

TEST(growth_in_out_mode_leaves_no_get_area) {
  test_stringbuf buffer(io::out);
  for (int i = 0; i < 70; ++i)
    buffer.sputc('x');
  CHECK(buffer.eback() == 0);
  CHECK(buffer.gptr() == 0);
  CHECK(buffer.egptr() == 0);
  CHECK_EQ(buffer.sbumpc(), -1);
  CHECK_EQ(buffer.sgetc(), -1);
}

TEST(a_buffer_given_a_string_starts_with_the_next_multiple_of_64_above_its_length) {
  for (long length = 0; length <= 200; ++length) {
    std::string text = generated_text(length + 5, length);
    reset_log();
    test_stringbuf buffer(text);
    if (length == 0) {
      CHECK_EQ(array_news, 0);
      CHECK(buffer.pbase() == 0);
      CHECK(buffer.eback() == 0);
      continue;
    }
    CHECK_EQ(array_news, 1);
    CHECK_EQ(array_sizes[0], static_cast<std::size_t>(length / 64 * 64 + 64));
    holds(buffer, text);
  }
}

TEST(running_out_of_memory_while_growing_reports_and_exits) {
  test_stringbuf buffer(io::out);
  EXPECT_EXIT((refuse_array_new = true, buffer.sputc('a')), 1,
              "Lorb++ : Could not allocate  memory ...\n");
  for (int i = 0; i < 64; ++i)
    buffer.sputc('a');
  EXPECT_EXIT((refuse_array_new = true, buffer.sputc('b')), 1,
              "Lorb++ : Could not allocate  memory ...\n");
  CHECK_EQ(buffer.allocated(), 64);
}

TEST(running_out_of_memory_while_taking_a_string_reports_and_exits) {
  test_stringbuf buffer;
  EXPECT_EXIT((refuse_array_new = true, buffer.str("abc")), 1,
              "Lorb++ : Could not allocate  memory ...\n");
}

// epptr, the high-water mark.

TEST(epptr_is_one_past_the_highest_character_written) {
  test_stringbuf buffer(io::out);
  for (int i = 1; i <= 130; ++i) {
    buffer.sputc('a');
    CHECK_EQ(buffer.put_end(), i);
    CHECK_EQ(buffer.put_offset(), i);
  }
  CHECK_EQ(buffer.allocated(), 192);
}

TEST(writing_below_the_high_water_mark_leaves_it) {
  test_stringbuf buffer(io::out);
  buffer.sputn("abcdef", 6);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::beg, io::out)), 2);
  CHECK_EQ(buffer.sputc('X'), 'X');
  CHECK_EQ(buffer.put_end(), 6);
  holds(buffer, "abXdef");
  // Three characters fit below the mark, the fourth raises it by one.
  CHECK_EQ(buffer.sputn("YZWV", 4), 4);
  CHECK_EQ(buffer.put_end(), 7);
  CHECK_EQ(buffer.allocated(), 64);
  holds(buffer, "abXYZWV");
}

TEST(overflow_below_the_end_of_the_allocation_raises_the_mark_by_one) {
  test_stringbuf buffer(io::out);
  buffer.sputn("abcdef", 6);
  buffer.seekoff(2, io::beg, io::out);
  CHECK_EQ(buffer.overflow('X'), 'X');
  CHECK_EQ(buffer.put_offset(), 3);
  CHECK_EQ(buffer.put_end(), 7);
  std::string held = buffer.str();
  CHECK_EQ(held.size(), 7u);
  CHECK_BYTES(held.data(), 6, "abXdef", 6);
}

// overflow.

TEST(overflow_of_end_of_file_returns_0_and_writes_nothing) {
  test_stringbuf fresh(io::out);
  reset_log();
  CHECK_EQ(fresh.overflow(-1), 0);
  CHECK_EQ(array_news, 0);
  CHECK(fresh.pptr() == 0);
  test_stringbuf written(std::string("abc"), io::out);
  written.seekoff(0, io::end, io::out);
  CHECK_EQ(written.overflow(-1), 0);
  CHECK_EQ(written.put_offset(), 3);
  CHECK_EQ(written.put_end(), 3);
  holds(written, "abc");
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK_EQ(reader.overflow(-1), 0);
}

TEST(overflow_without_out_returns_end_of_file) {
  test_stringbuf empty(io::in);
  reset_log();
  CHECK_EQ(empty.overflow('a'), -1);
  CHECK_EQ(empty.sputc('a'), -1);
  CHECK_EQ(array_news, 0);
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK_EQ(reader.sputc('x'), -1);
  CHECK_EQ(reader.sputn("xyz", 3), 0);
  holds(reader, "abc");
  test_stringbuf neither(static_cast<io::openmode>(0));
  CHECK_EQ(neither.overflow('a'), -1);
}

TEST(overflow_returns_its_character_and_stores_a_value_outside_0_to_255_as_0) {
  test_stringbuf buffer(io::out);
  CHECK_EQ(buffer.overflow('a'), 'a');
  CHECK_EQ(buffer.overflow(255), 255);
  CHECK_EQ(buffer.overflow(0x141), 0x141);
  CHECK_EQ(buffer.overflow(-2), -2);
  CHECK_EQ(buffer.overflow(256), 256);
  CHECK_EQ(buffer.overflow(0), 0);
  holds(buffer, std::string("a\xff\0\0\0\0", 6));
}

TEST(sputc_returns_the_character_as_unsigned_char) {
  test_stringbuf buffer(io::out);
  CHECK_EQ(buffer.sputc('\xe9'), 0xe9);
  CHECK_EQ(buffer.sputc('\xe9'), 0xe9);
  CHECK_EQ(buffer.sputc('\xff'), 0xff);
  holds(buffer, "\xe9\xe9\xff");
}
