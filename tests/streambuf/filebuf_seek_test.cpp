// basic_filebuf<char>: seekoff and seekpos through fseek and ftell, the seeks refused before the
// C library is asked, and showmanyc measuring what is left.
#include "lorb_test.h"
#include "scratch_files.h"
#include <fstream>
#include <string.h>
#include <unistd.h>

typedef std::ios_base io;

// Every fseek of this program, the library's own included, is counted here first, so a test can
// tell a seek refused by the buffer from one the C library refused.
namespace {
int fseek_calls = 0;
}

extern "C" int fseek(FILE* f, long offset, int origin) {
  ++fseek_calls;
  return fseeko(f, offset, origin);
}

namespace {

// Opens the protected virtual operations to the tests.
struct test_filebuf : std::basic_filebuf<char> {
  test_filebuf() {}
  explicit test_filebuf(FILE* f) : std::basic_filebuf<char>(f) {}
  using std::basic_filebuf<char>::seekoff;
  using std::basic_filebuf<char>::seekpos;
  using std::basic_filebuf<char>::showmanyc;
  using std::basic_filebuf<char>::uflow;
};

const std::streamoff invalid = -1;

std::streamoff offset_of(const std::streampos& position) { return position; }

bool state_is_zero(const std::streampos& position) {
  static const std::mbstate_t zero = std::mbstate_t();
  std::mbstate_t state = position.state();
  return memcmp(&state, &zero, sizeof zero) == 0;
}

long position_of(const test_filebuf& buffer) { return ftell(buffer.__file); }

// A buffer over the reading end of a pipe, where every seek fails; the writing end holds text.
struct pipe_buffer {
  pipe_buffer() {
    int ends[2];
    if (pipe(ends) != 0)
      abort();
    if (write(ends[1], "abc", 3) != 3)
      abort();
    close(ends[1]);
    buffer = new test_filebuf(fdopen(ends[0], "r"));
  }
  ~pipe_buffer() { delete buffer; }
  test_filebuf* buffer;
};

} // namespace

// seekoff.

TEST(seekoff_from_the_start_returns_the_new_position) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  std::streampos at = buffer.seekoff(6, io::beg, io::in);
  CHECK_EQ(offset_of(at), 6);
  CHECK(state_is_zero(at));
  CHECK_EQ(buffer.uflow(), 'w');
  CHECK_EQ(offset_of(buffer.seekoff(0, io::beg, io::in)), 0);
  CHECK_EQ(buffer.uflow(), 'h');
}

TEST(seekoff_from_here_moves_by_the_offset) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'h');
  CHECK_EQ(buffer.uflow(), 'e');
  CHECK_EQ(offset_of(buffer.seekoff(3, io::cur, io::in)), 5);
  CHECK_EQ(buffer.uflow(), ' ');
  CHECK_EQ(offset_of(buffer.seekoff(-6, io::cur, io::in)), 0);
  CHECK_EQ(buffer.uflow(), 'h');
  CHECK_EQ(offset_of(buffer.seekoff(0, io::cur, io::in)), 1);
}

TEST(seekoff_from_the_end_moves_back_from_it) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(offset_of(buffer.seekoff(-5, io::end, io::in)), 6);
  CHECK_EQ(buffer.uflow(), 'w');
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end, io::in)), 11);
  CHECK_EQ(buffer.uflow(), -1);
}

TEST(seekoff_before_the_start_is_refused_without_calling_fseek) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'h');
  fseek_calls = 0;
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::beg, io::in)), invalid);
  CHECK_EQ(fseek_calls, 0);
  CHECK_EQ(position_of(buffer), 1L);
  // The counter does see the buffer's own calls.
  CHECK_EQ(offset_of(buffer.seekoff(1, io::beg, io::in)), 1);
  CHECK_EQ(fseek_calls, 1);
}

TEST(seekoff_past_the_end_is_refused_without_calling_fseek) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  fseek_calls = 0;
  CHECK_EQ(offset_of(buffer.seekoff(5, io::end, io::in)), invalid);
  CHECK_EQ(fseek_calls, 0);
  CHECK_EQ(position_of(buffer), 0L);
  CHECK_EQ(buffer.uflow(), 'h');
}

TEST(seekoff_without_a_file_is_invalid) {
  test_filebuf buffer;
  fseek_calls = 0;
  CHECK_EQ(offset_of(buffer.seekoff(0, io::beg, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::cur, io::out)), invalid);
  CHECK_EQ(offset_of(buffer.pubseekoff(0, io::end)), invalid);
  CHECK_EQ(fseek_calls, 0);
}

TEST(seekoff_that_fseek_refuses_is_invalid) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'h');
  fseek_calls = 0;
  CHECK_EQ(offset_of(buffer.seekoff(-5, io::cur, io::in)), invalid);
  CHECK_EQ(fseek_calls, 1);
  CHECK_EQ(position_of(buffer), 1L);

  pipe_buffer unseekable;
  CHECK_EQ(offset_of(unseekable.buffer->seekoff(0, io::beg, io::in)), invalid);
  CHECK_EQ(unseekable.buffer->uflow(), 'a');
}

// A direction that is none of beg, cur and end alone seeks from here; a beg bit in it still
// refuses a negative offset, an end bit a positive one.
TEST(seekoff_with_a_mixed_or_empty_direction_seeks_from_here) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(offset_of(buffer.seekoff(4, io::beg, io::in)), 4);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::beg | io::cur, io::in)), 6);
  CHECK_EQ(offset_of(buffer.seekoff(-1, io::cur | io::end, io::in)), 5);
  CHECK_EQ(offset_of(buffer.seekoff(3, 0, io::in)), 8);
  CHECK_EQ(offset_of(buffer.seekoff(-8, io::beg | io::end, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::beg | io::end, io::in)), invalid);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::beg | io::end, io::in)), 8);
  CHECK_EQ(buffer.uflow(), 'r');
}

TEST(seekoff_ignores_which) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(offset_of(buffer.seekoff(1, io::beg, io::out)), 1);
  CHECK_EQ(offset_of(buffer.seekoff(2, io::beg, 0)), 2);
  CHECK_EQ(offset_of(buffer.pubseekoff(3, io::beg)), 3);
  CHECK_EQ(buffer.uflow(), 'l');
}

TEST(seekoff_beyond_the_end_from_the_start_is_left_to_the_c_library) {
  lt::scratch_file file("abc");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in | io::out) == &buffer);
  CHECK_EQ(offset_of(buffer.seekoff(5, io::beg, io::out)), 5);
  CHECK_EQ(buffer.sputc('z'), 'z');
  CHECK_EQ(buffer.pubsync(), 0);
  CHECK_BYTES(file.contents(), static_cast<size_t>(file.size()), "abc\0\0z", 6);
}

TEST(seekoff_moves_where_the_next_write_goes) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in | io::out) == &buffer);
  CHECK_EQ(offset_of(buffer.seekoff(-5, io::end, io::out)), 6);
  CHECK_EQ(buffer.sputn("W", 1), 1);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::beg, io::out)), 0);
  CHECK_EQ(buffer.sputc('H'), 'H');
  CHECK_EQ(buffer.pubsync(), 0);
  CHECK_STR(file.contents(), "Hello World");
}

// seekpos.

TEST(seekpos_moves_to_the_offset_from_the_start) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'h');
  std::streampos at = buffer.seekpos(std::streampos(4), io::in);
  CHECK_EQ(offset_of(at), 4);
  CHECK(state_is_zero(at));
  CHECK_EQ(buffer.uflow(), 'o');
  CHECK_EQ(offset_of(buffer.pubseekpos(std::streampos(0))), 0);
  CHECK_EQ(buffer.uflow(), 'h');
}

TEST(seekpos_of_the_invalid_position_is_refused_without_calling_fseek) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'h');
  fseek_calls = 0;
  CHECK_EQ(offset_of(buffer.seekpos(std::streampos(-1), io::in)), invalid);
  CHECK_EQ(fseek_calls, 0);
  CHECK_EQ(position_of(buffer), 1L);
  CHECK_EQ(offset_of(buffer.seekpos(std::streampos(2), io::in)), 2);
  CHECK_EQ(fseek_calls, 1);
}

TEST(seekpos_without_a_file_is_invalid) {
  test_filebuf buffer;
  fseek_calls = 0;
  CHECK_EQ(offset_of(buffer.seekpos(std::streampos(0), io::in)), invalid);
  CHECK_EQ(fseek_calls, 0);
}

TEST(seekpos_that_fseek_refuses_is_invalid) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  fseek_calls = 0;
  CHECK_EQ(offset_of(buffer.seekpos(std::streampos(-2), io::in)), invalid);
  CHECK_EQ(fseek_calls, 1);

  pipe_buffer unseekable;
  CHECK_EQ(offset_of(unseekable.buffer->seekpos(std::streampos(1), io::in)), invalid);
  CHECK_EQ(unseekable.buffer->uflow(), 'a');
}

// showmanyc.

TEST(showmanyc_counts_the_characters_left_and_restores_the_position) {
  lt::scratch_file file("hello world");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.showmanyc(), 11);
  CHECK_EQ(position_of(buffer), 0L);
  CHECK_EQ(buffer.uflow(), 'h');
  CHECK_EQ(buffer.uflow(), 'e');
  CHECK_EQ(buffer.uflow(), 'l');
  CHECK_EQ(buffer.showmanyc(), 8);
  CHECK_EQ(position_of(buffer), 3L);
  CHECK_EQ(buffer.uflow(), 'l');
  CHECK_EQ(buffer.in_avail(), 7);
  CHECK_EQ(buffer.uflow(), 'o');
}

TEST(showmanyc_at_the_end_returns_minus_one_and_stays_there) {
  lt::scratch_file file("abc");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(offset_of(buffer.seekoff(0, io::end, io::in)), 3);
  CHECK_EQ(buffer.showmanyc(), -1);
  CHECK_EQ(position_of(buffer), 3L);
  CHECK_EQ(buffer.in_avail(), -1);
}

TEST(showmanyc_of_an_empty_file_returns_minus_one) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.showmanyc(), -1);
  CHECK_EQ(position_of(buffer), 0L);
}

TEST(showmanyc_of_a_file_without_positions_returns_minus_one) {
  pipe_buffer unseekable;
  CHECK_EQ(unseekable.buffer->showmanyc(), -1);
  CHECK_EQ(unseekable.buffer->uflow(), 'a');
}

TEST(showmanyc_without_a_file_returns_minus_one) {
  test_filebuf buffer;
  CHECK_EQ(buffer.showmanyc(), -1);
  CHECK_EQ(buffer.in_avail(), -1);
}
