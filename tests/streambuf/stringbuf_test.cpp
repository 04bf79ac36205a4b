// basic_stringbuf<char>: growth of the array by 64 characters, epptr as the high-water mark,
// overflow, underflow, pbackfail, the two seeks, setbuf, str() and the release of the array.
#include "lorb_test.h"
#include <sstream>
#include <stdlib.h>
#include <string.h>

typedef std::ios_base io;

// Every new[] and delete[] of the program passes here: the sizes asked for and the arrays
// released are logged since the last reset, so a test sees the buffer's allocations.
namespace {
const int log_capacity = 64;
std::size_t array_sizes[log_capacity];
void* released_arrays[log_capacity];
int array_news = 0, array_deletes = 0;
bool refuse_array_new = false;

void reset_log() { array_news = array_deletes = 0; }
} // namespace

void* operator new[](std::size_t size) {
  if (refuse_array_new)
    return 0;
  if (array_news < log_capacity)
    array_sizes[array_news] = size;
  ++array_news;
  return malloc(size ? size : 1);
}

void operator delete[](void* p) noexcept {
  if (!p)
    return;
  if (array_deletes < log_capacity)
    released_arrays[array_deletes] = p;
  ++array_deletes;
  free(p);
}

namespace {

// Opens the protected pointers and virtual operations to the tests.
struct test_stringbuf : std::basic_stringbuf<char> {
  explicit test_stringbuf(io::openmode mode = io::in | io::out)
      : std::basic_stringbuf<char>(mode) {}
  explicit test_stringbuf(const std::string& s, io::openmode mode = io::in | io::out)
      : std::basic_stringbuf<char>(s, mode) {}
  using std::basic_stringbuf<char>::eback;
  using std::basic_stringbuf<char>::gptr;
  using std::basic_stringbuf<char>::egptr;
  using std::basic_stringbuf<char>::pbase;
  using std::basic_stringbuf<char>::pptr;
  using std::basic_stringbuf<char>::epptr;
  using std::basic_stringbuf<char>::setg;
  using std::basic_stringbuf<char>::overflow;
  using std::basic_stringbuf<char>::underflow;
  using std::basic_stringbuf<char>::uflow;
  using std::basic_stringbuf<char>::pbackfail;
  using std::basic_stringbuf<char>::seekoff;
  using std::basic_stringbuf<char>::seekpos;
  using std::basic_stringbuf<char>::setbuf;
  using std::basic_stringbuf<char>::sync;
  using std::basic_stringbuf<char>::showmanyc;

  long allocated() const { return __end_of_allocation - pbase(); }
  long get_offset() const { return gptr() - eback(); }
  long get_end() const { return egptr() - eback(); }
  long put_offset() const { return pptr() - pbase(); }
  long put_end() const { return epptr() - pbase(); }
};

const std::streamoff invalid = -1;

std::streamoff offset_of(const std::streampos& position) { return position; }

bool state_is_zero(const std::streampos& position) {
  static const std::mbstate_t zero = std::mbstate_t();
  std::mbstate_t state = position.state();
  return memcmp(&state, &zero, sizeof zero) == 0;
}

// A small deterministic generator of characters, every byte value included.
struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned next() {
    state = state * 1103515245ul + 12345ul;
    return (state >> 16) & 0x7fff;
  }
  char next_char() { return static_cast<char>(next() & 0xff); }
};

std::string generated_text(unsigned long seed, long length) {
  generator g(seed);
  std::string text;
  for (long i = 0; i < length; ++i)
    text += g.next_char();
  return text;
}

// The allocation sizes the growth rule asks for when `length` characters are appended one by
// one to an empty buffer: each time the high-water mark meets the end of the allocation, the
// next multiple of 64 strictly above the count written.
int growth_sizes(long length, std::size_t* sizes) {
  std::size_t allocated = 0;
  int count = 0;
  for (long written = 0; written < length; ++written)
    if (static_cast<std::size_t>(written) == allocated) {
      allocated = written / 64 * 64 + 64;
      sizes[count++] = allocated;
    }
  return count;
}

bool holds(const test_stringbuf& buffer, const std::string& text) {
  std::string held = buffer.str();
  return CHECK_BYTES(held.data(), held.size(), text.data(), text.size());
}

} // namespace

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

// seekpos.

TEST(seekpos_to_a_negative_offset_is_invalid) {
  test_stringbuf buffer(std::string("abc"));
  buffer.sbumpc();
  std::streampos at = buffer.seekpos(-1);
  CHECK_EQ(offset_of(at), invalid);
  CHECK(state_is_zero(at));
  CHECK_EQ(offset_of(buffer.seekpos(-3, io::in)), invalid);
  CHECK_EQ(buffer.get_offset(), 1);
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekpos_reaches_the_length_written_and_not_one_beyond) {
  for (long length = 1; length <= 130; ++length) {
    std::string text = generated_text(length, length);
    test_stringbuf buffer;
    buffer.sputn(text.data(), length);
    CHECK_EQ(offset_of(buffer.seekpos(length)), length);
    CHECK_EQ(buffer.get_offset(), length);
    CHECK_EQ(buffer.put_offset(), length);
    CHECK_EQ(offset_of(buffer.seekpos(0)), 0);
    CHECK_EQ(offset_of(buffer.seekpos(length + 1)), invalid);
    CHECK_EQ(buffer.get_offset(), 0);
    CHECK_EQ(buffer.put_offset(), 0);
  }
}

TEST(seekpos_first_raises_egptr_to_pptr) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback(), buffer.eback() + 2);
  CHECK_EQ(offset_of(buffer.seekpos(4, io::in)), 4);
  CHECK_EQ(buffer.get_end(), 6);
  CHECK_EQ(buffer.sbumpc(), 'e');
  CHECK_EQ(buffer.put_offset(), 6);
}

TEST(seekpos_moves_whichever_area_reaches_the_offset) {
  test_stringbuf buffer(std::string("abcdef"));
  // pptr is at 0, below egptr, so egptr stays at 2 and only the put area can reach 4.
  buffer.setg(buffer.eback(), buffer.eback() + 1, buffer.eback() + 2);
  CHECK_EQ(offset_of(buffer.seekpos(4)), 4);
  CHECK_EQ(buffer.get_offset(), 1);
  CHECK_EQ(buffer.put_offset(), 4);
  CHECK_EQ(offset_of(buffer.seekpos(5, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekpos(7)), invalid);
  CHECK_EQ(buffer.put_offset(), 4);
}

TEST(seekpos_needs_the_area_it_is_asked_to_move) {
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK_EQ(offset_of(reader.seekpos(3, io::in)), 3);
  CHECK_EQ(offset_of(reader.seekpos(4, io::in)), invalid);
  CHECK_EQ(offset_of(reader.seekpos(1, io::out)), invalid);
  CHECK_EQ(reader.get_offset(), 3);
  test_stringbuf writer(std::string("abc"), io::out);
  CHECK_EQ(offset_of(writer.seekpos(2, io::out)), 2);
  CHECK_EQ(offset_of(writer.seekpos(1, io::in)), invalid);
  CHECK_EQ(offset_of(writer.seekpos(1)), 1);
  CHECK_EQ(writer.put_offset(), 1);
  test_stringbuf fresh;
  std::streampos at = fresh.seekpos(0);
  CHECK_EQ(offset_of(at), invalid);
  CHECK(state_is_zero(at));
  CHECK_EQ(offset_of(writer.seekpos(1, static_cast<io::openmode>(0))), invalid);
}

// seekoff.

TEST(seekoff_relative_to_here_for_both_areas_is_invalid) {
  test_stringbuf buffer(std::string("abcdef"));
  buffer.sbumpc();
  for (int off = -2; off <= 2; ++off) {
    std::streampos at = buffer.seekoff(off, io::cur);
    CHECK_EQ(offset_of(at), invalid);
    CHECK(state_is_zero(at));
  }
  CHECK_EQ(buffer.get_offset(), 1);
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekoff_of_both_areas_from_the_start_or_the_end) {
  test_stringbuf buffer;
  buffer.sputn("hello", 5);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::beg)), 2);
  CHECK_EQ(buffer.get_offset(), 2);
  CHECK_EQ(buffer.put_offset(), 2);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::end)), 4);
  CHECK_EQ(buffer.get_offset(), 4);
  CHECK_EQ(buffer.put_offset(), 4);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end)), 5);
  CHECK_EQ(offset_of(buffer.seekoff(-5, io::end)), 0);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(-6, io::end)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::beg)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(6, io::beg)), invalid);
  CHECK_EQ(buffer.get_offset(), 0);
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekoff_of_both_areas_measures_the_end_by_the_high_water_mark) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback(), buffer.eback() + 3);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end)), 6);
  CHECK_EQ(buffer.get_offset(), 6);
}

TEST(seekoff_of_the_get_area_alone) {
  test_stringbuf buffer(std::string("abcdef"));
  buffer.sbumpc();
  buffer.sbumpc();
  CHECK_EQ(offset_of(buffer.seekoff(1, io::cur, io::in)), 3);
  CHECK_EQ(buffer.sbumpc(), 'd');
  CHECK_EQ(offset_of(buffer.seekoff(-4, io::cur, io::in)), 0);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::cur, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end, io::in)), 6);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(7, io::beg, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(5, io::beg, io::in)), 5);
  CHECK_EQ(buffer.sbumpc(), 'f');
  CHECK_EQ(buffer.put_offset(), 0);
}

TEST(seekoff_of_the_get_area_measures_the_end_by_egptr) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.setg(buffer.eback(), buffer.eback(), buffer.eback() + 3);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end, io::in)), 3);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(4, io::beg, io::in)), invalid);
}

TEST(seekoff_of_the_put_area_alone) {
  test_stringbuf buffer(std::string("abcdef"));
  buffer.sbumpc();
  CHECK_EQ(offset_of(buffer.seekoff(3, io::beg, io::out)), 3);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::cur, io::out)), 5);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::cur, io::out)), invalid);
  CHECK_EQ(buffer.put_offset(), 5);
  CHECK_EQ(offset_of(buffer.seekoff(-6, io::cur, io::out)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::end, io::out)), 5);
  CHECK_EQ(offset_of(buffer.seekoff(-7, io::end, io::out)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::end, io::out)), invalid);
  CHECK_EQ(buffer.put_offset(), 5);
  CHECK_EQ(buffer.get_offset(), 1);
  buffer.sputc('X');
  holds(buffer, "abcdeX");
}

TEST(seekoff_of_the_put_area_ends_at_the_high_water_mark_not_the_allocation) {
  test_stringbuf writer(io::out);
  writer.sputn("abc", 3);
  CHECK_EQ(writer.allocated(), 64);
  CHECK_EQ(offset_of(writer.seekoff(0, io::end, io::out)), 3);
  CHECK_EQ(offset_of(writer.seekoff(1, io::end, io::out)), invalid);
  CHECK_EQ(offset_of(writer.seekoff(4, io::beg, io::out)), invalid);
  CHECK_EQ(writer.put_offset(), 3);
}

TEST(seekoff_of_both_in_an_output_buffer_moves_the_put_area) {
  test_stringbuf writer(std::string("abcdef"), io::out);
  CHECK_EQ(offset_of(writer.seekoff(2, io::cur)), 2);
  CHECK_EQ(offset_of(writer.seekoff(1, io::cur)), 3);
  CHECK_EQ(writer.put_offset(), 3);
  test_stringbuf reader(std::string("abcdef"), io::in);
  CHECK_EQ(offset_of(reader.seekoff(2, io::cur)), 2);
  CHECK_EQ(reader.sbumpc(), 'c');
}

TEST(seekoff_without_the_areas_it_is_asked_to_move_is_invalid) {
  test_stringbuf fresh;
  CHECK_EQ(offset_of(fresh.seekoff(0, io::beg)), invalid);
  CHECK_EQ(offset_of(fresh.seekoff(0, io::cur, io::in)), invalid);
  CHECK_EQ(offset_of(fresh.seekoff(0, io::end, io::out)), invalid);
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK_EQ(offset_of(reader.seekoff(0, io::beg, io::out)), invalid);
  test_stringbuf writer(std::string("abc"), io::out);
  CHECK_EQ(offset_of(writer.seekoff(0, io::beg, io::in)), invalid);
  CHECK_EQ(offset_of(writer.seekoff(0, io::beg, static_cast<io::openmode>(0))), invalid);
}

// A model of the four offsets, moved by the written rules, against the buffer under a generated
// series of writes, reads and seeks.
namespace {
struct model {
  long get, get_end, put, put_end;
  std::string text;
};

long model_seekoff(model& m, long off, io::seekdir dir, io::openmode which) {
  bool in = (which & io::in) != 0, out = (which & io::out) != 0;
  if (in && out) {
    if (dir == io::cur)
      return -1;
    long target = (dir == io::beg ? 0 : m.put_end) + off;
    if (target < 0 || target > m.put_end)
      return -1;
    m.get = m.put = target;
    return target;
  }
  if (in) {
    long target = (dir == io::beg ? 0 : dir == io::cur ? m.get : m.get_end) + off;
    if (target < 0 || target > m.get_end)
      return -1;
    return m.get = target;
  }
  if (out) {
    long target = (dir == io::beg ? 0 : dir == io::cur ? m.put : m.put_end) + off;
    if (target < 0 || target > m.put_end)
      return -1;
    return m.put = target;
  }
  return -1;
}

long model_seekpos(model& m, long pos, io::openmode which) {
  if (pos < 0)
    return -1;
  if (m.put > m.get_end)
    m.get_end = m.put;
  bool moved = false;
  if ((which & io::in) && pos <= m.get_end) {
    m.get = pos;
    moved = true;
  }
  if ((which & io::out) && pos <= m.put_end) {
    m.put = pos;
    moved = true;
  }
  return moved ? pos : -1;
}

void model_sputc(model& m, char c) {
  if (m.put < m.put_end) {
    m.text[m.put++] = c;
    return;
  }
  m.text += c;
  m.put_end = ++m.put;
  m.get_end = m.put;
}

int model_sbumpc(model& m) {
  if (m.get < m.get_end)
    return static_cast<unsigned char>(m.text[m.get++]);
  if (m.put > m.get_end) {
    m.get_end = m.put;
    return static_cast<unsigned char>(m.text[m.get++]);
  }
  return -1;
}
} // namespace

TEST(generated_writes_reads_and_seeks_follow_the_rules) {
  static const io::seekdir dirs[] = {io::beg, io::cur, io::end};
  static const io::openmode whichs[] = {io::in, io::out, io::in | io::out};
  generator g(2024);
  std::string start = generated_text(99, 10);
  test_stringbuf buffer(start);
  model m = {0, 10, 0, 10, start};
  for (int step = 0; step < 5000; ++step) {
    unsigned choice = g.next() % 4;
    long off = static_cast<long>(g.next() % (m.put_end + 7)) - 3;
    io::openmode which = whichs[g.next() % 3];
    if (choice == 0) {
      io::seekdir dir = dirs[g.next() % 3];
      if (dir != io::beg)
        off -= m.put_end / 2;
      long expected = model_seekoff(m, off, dir, which);
      CHECK_EQ(offset_of(buffer.seekoff(off, dir, which)), expected);
    } else if (choice == 1) {
      long expected = model_seekpos(m, off, which);
      CHECK_EQ(offset_of(buffer.seekpos(off, which)), expected);
    } else if (choice == 2) {
      char c = g.next_char();
      CHECK_EQ(buffer.sputc(c), static_cast<unsigned char>(c));
      model_sputc(m, c);
    } else {
      CHECK_EQ(buffer.sbumpc(), model_sbumpc(m));
    }
    if (!CHECK_EQ(buffer.get_offset(), m.get) || !CHECK_EQ(buffer.get_end(), m.get_end) ||
        !CHECK_EQ(buffer.put_offset(), m.put) || !CHECK_EQ(buffer.put_end(), m.put_end)) {
      printf("at step %d\n", step);
      break;
    }
  }
  holds(buffer, m.text);
}

// setbuf and the other defaults.

TEST(setbuf_returns_the_buffer_and_changes_nothing) {
  test_stringbuf buffer(std::string("abc"));
  char storage[16];
  char* put = buffer.pptr();
  CHECK(buffer.setbuf(storage, sizeof storage) == &buffer);
  CHECK(buffer.pubsetbuf(0, 0) == &buffer);
  CHECK(buffer.pptr() == put);
  CHECK(buffer.eback() != storage);
  holds(buffer, "abc");
}

TEST(sync_and_showmanyc_keep_the_base_defaults) {
  test_stringbuf buffer;
  buffer.sputn("abc", 3);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_EQ(buffer.pubsync(), 0);
  CHECK_EQ(buffer.showmanyc(), 0);
}

// Construction, str() and str(s).

TEST(a_default_buffer_holds_nothing_and_allocates_nothing) {
  reset_log();
  test_stringbuf buffer;
  CHECK_EQ(array_news, 0);
  CHECK(buffer.eback() == 0);
  CHECK(buffer.gptr() == 0);
  CHECK(buffer.egptr() == 0);
  CHECK(buffer.pbase() == 0);
  CHECK(buffer.pptr() == 0);
  CHECK(buffer.epptr() == 0);
  CHECK(buffer.__end_of_allocation == 0);
  CHECK(buffer.__mode == (io::in | io::out));
  CHECK(buffer.str().empty());
}

TEST(a_buffer_given_a_string_reads_all_of_it_and_writes_over_its_start) {
  test_stringbuf buffer(std::string("hello"));
  CHECK(buffer.eback() == buffer.pbase());
  CHECK_EQ(buffer.get_offset(), 0);
  CHECK_EQ(buffer.get_end(), 5);
  CHECK_EQ(buffer.put_offset(), 0);
  CHECK_EQ(buffer.put_end(), 5);
  CHECK_EQ(buffer.sputc('J'), 'J');
  CHECK_EQ(buffer.sbumpc(), 'J');
  CHECK_EQ(buffer.sbumpc(), 'e');
  holds(buffer, "Jello");
}

TEST(a_buffer_given_a_string_with_ate_or_app_writes_at_its_end) {
  static const io::openmode modes[] = {io::ate, io::app, io::ate | io::app};
  for (int i = 0; i < 3; ++i) {
    test_stringbuf buffer(std::string("hello"), io::in | io::out | modes[i]);
    CHECK_EQ(buffer.put_offset(), 5);
    CHECK_EQ(buffer.get_offset(), 0);
    buffer.sputn(", world", 7);
    holds(buffer, "hello, world");
    char read[12];
    CHECK_EQ(buffer.sgetn(read, 12), 12);
    CHECK_BYTES(read, 12, "hello, world", 12);
    test_stringbuf writer(std::string("ab"), io::out | modes[i]);
    writer.sputc('c');
    holds(writer, "abc");
  }
}

TEST(an_input_buffer_given_a_string_has_no_put_area) {
  test_stringbuf reader(std::string("abc"), io::in);
  CHECK(reader.pbase() == 0);
  CHECK(reader.pptr() == 0);
  CHECK(reader.epptr() == 0);
  CHECK_EQ(reader.get_end(), 3);
  CHECK_EQ(reader.sbumpc(), 'a');
  // The whole text, whatever has been read.
  holds(reader, "abc");
}

TEST(an_output_buffer_given_a_string_has_no_get_area) {
  test_stringbuf writer(std::string("abc"), io::out);
  CHECK(writer.eback() == 0);
  CHECK(writer.gptr() == 0);
  CHECK_EQ(writer.sbumpc(), -1);
  holds(writer, "abc");
}

TEST(str_holds_everything_written_up_to_the_high_water_mark) {
  test_stringbuf buffer;
  buffer.sputn("abcdef", 6);
  buffer.seekoff(1, io::beg);
  CHECK_EQ(buffer.sbumpc(), 'b');
  holds(buffer, "abcdef");
}

TEST(str_keeps_embedded_nul_and_every_byte) {
  std::string text;
  for (int c = 0; c < 256; ++c)
    text += static_cast<char>(c);
  test_stringbuf written;
  written.sputn(text.data(), 256);
  holds(written, text);
  test_stringbuf given(text, io::in);
  holds(given, text);
}

TEST(str_of_a_string_replaces_the_content_and_releases_the_old_array) {
  test_stringbuf buffer;
  buffer.sputn("hello world", 11);
  char* old = buffer.pbase();
  reset_log();
  buffer.str("xy");
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == old);
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_sizes[0], 64u);
  holds(buffer, "xy");
  CHECK_EQ(buffer.get_offset(), 0);
  CHECK_EQ(buffer.get_end(), 2);
  CHECK_EQ(buffer.put_offset(), 0);
  CHECK_EQ(buffer.put_end(), 2);
  CHECK_EQ(buffer.sputc('Z'), 'Z');
  holds(buffer, "Zy");
  CHECK_EQ(buffer.sbumpc(), 'Z');
}

TEST(str_of_a_string_keeps_the_mode) {
  test_stringbuf appender(std::string("ab"), io::out | io::app);
  appender.str("xy");
  appender.sputc('z');
  holds(appender, "xyz");
  test_stringbuf reader(std::string("ab"), io::in);
  reader.str("cd");
  CHECK(reader.pbase() == 0);
  CHECK_EQ(reader.sbumpc(), 'c');
  holds(reader, "cd");
}

TEST(str_of_an_empty_string_releases_the_array_and_leaves_no_areas) {
  test_stringbuf buffer;
  buffer.sputn("abc", 3);
  reset_log();
  buffer.str("");
  CHECK_EQ(array_deletes, 1);
  CHECK_EQ(array_news, 0);
  CHECK(buffer.eback() == 0);
  CHECK(buffer.pbase() == 0);
  CHECK(buffer.pptr() == 0);
  CHECK(buffer.str().empty());
  CHECK_EQ(buffer.sbumpc(), -1);
  buffer.sputc('q');
  CHECK_EQ(array_sizes[0], 64u);
  holds(buffer, "q");
}

TEST(str_of_a_long_string_reads_back_whole) {
  std::string text = generated_text(77, 5000);
  test_stringbuf buffer;
  buffer.str(text);
  CHECK_EQ(buffer.allocated(), 5056);
  holds(buffer, text);
  char* read = static_cast<char*>(malloc(5000));
  CHECK_EQ(buffer.sgetn(read, 6000), 5000);
  CHECK_BYTES(read, 5000, text.data(), 5000);
  free(read);
}

// Destruction.

TEST(destruction_releases_the_array) {
  char* array;
  reset_log();
  {
    test_stringbuf buffer;
    buffer.sputn("abc", 3);
    array = buffer.pbase();
  }
  CHECK_EQ(array_news, 1);
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == array);
  reset_log();
  {
    test_stringbuf reader(std::string("abc"), io::in);
    array = reader.eback();
  }
  CHECK_EQ(array_deletes, 1);
  CHECK(released_arrays[0] == array);
  reset_log();
  { test_stringbuf fresh; }
  CHECK_EQ(array_deletes, 0);
}

TEST(a_long_life_of_writes_and_replacements_releases_every_array) {
  reset_log();
  {
    test_stringbuf buffer;
    std::string text = generated_text(5, 700);
    buffer.sputn(text.data(), 700);
    buffer.str(text.substr(0, 100));
    buffer.seekoff(0, io::end, io::out);
    buffer.sputn(text.data(), 300);
    buffer.str("");
    buffer.sputc('a');
  }
  CHECK(array_news > 0);
  CHECK_EQ(array_deletes, array_news);
}
