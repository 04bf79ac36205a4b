// A dynamic strstreambuf in a program that keeps the library's allocation functions: after its
// first array, each growth is a realloc at the size the rule asks for (16 more, or alsize), and
// the text and the read position survive it. Arrays from the program's own palloc never are.
#include "lorb_test.h"
#include "recording_realloc.h"
#include <stdlib.h>
#include <strstream>

static bool holds_the_digit_run(const char* text, int length) {
  for (int i = 0; i < length; ++i)
    if (text[i] != static_cast<char>('0' + i % 10))
      return false;
  return true;
}

TEST(each_growth_after_the_first_array_is_a_realloc_16_larger) {
  realloc_calls = 0;
  std::ostrstream out;
  for (int i = 0; i < 160; ++i)
    out.put(static_cast<char>('0' + i % 10));
  CHECK_EQ(realloc_calls, 9); // the first array of 16 is a new[]; 32, 48, ..., 160 grow it
  for (int step = 0; step < 9 && step < realloc_calls; ++step)
    CHECK_EQ(realloc_sizes[step], static_cast<size_t>(16 * (step + 2)));
  CHECK_EQ(out.pcount(), 160);
  char* text = out.str();
  CHECK(holds_the_digit_run(text, 160));
  delete[] text;
}

TEST(an_alsize_sets_the_first_array_and_later_ones_add_16) {
  realloc_calls = 0;
  std::strstreambuf buffer(100);
  for (int i = 0; i < 140; ++i)
    buffer.sputc(static_cast<char>('0' + i % 10));
  CHECK_EQ(realloc_calls, 3);
  CHECK_EQ(realloc_sizes[0], 116u);
  CHECK_EQ(realloc_sizes[1], 132u);
  CHECK_EQ(realloc_sizes[2], 148u);
  char* text = buffer.str();
  CHECK(holds_the_digit_run(text, 140));
  delete[] text;
}

namespace {
struct open_strstreambuf : std::strstreambuf {
  long get_next() const { return gptr() - eback(); }
  long get_end() const { return egptr() - eback(); }
};
} // namespace

// Kept across in-place growth too: gptr lands as far from the array's start as it was from egptr.
TEST(growth_in_place_rebases_the_get_pointers_by_the_same_rule) {
  open_strstreambuf buffer;
  for (int i = 0; i < 16; ++i)
    buffer.sputc(static_cast<char>('0' + i % 10));
  for (int i = 0; i < 5; ++i)
    buffer.sbumpc();
  long before_next = buffer.get_next(), before_end = buffer.get_end();
  CHECK_EQ(before_next, 5L);
  realloc_calls = 0;
  buffer.sputc('x');
  CHECK_EQ(realloc_calls, 1);
  CHECK_EQ(buffer.get_end(), before_end);
  CHECK_EQ(buffer.get_next(), before_end - before_next);
  char* text = buffer.str();
  CHECK(holds_the_digit_run(text, 16));
  CHECK_EQ(text[16], 'x');
  delete[] text;
}

static int pallocs = 0;
static void* counting_palloc(size_t n) {
  ++pallocs;
  return malloc(n);
}
static void counting_pfree(void* p) { free(p); }

TEST(arrays_of_the_programs_palloc_are_never_reallocated) {
  realloc_calls = 0;
  pallocs = 0;
  std::strstreambuf buffer(counting_palloc, counting_pfree);
  for (int i = 0; i < 100; ++i)
    buffer.sputc(static_cast<char>('0' + i % 10));
  CHECK_EQ(realloc_calls, 0);
  CHECK_EQ(pallocs, 7); // 16, 32, ..., 112
  free(buffer.str()); // the buffer frees nothing itself; its array came from counting_palloc
}
