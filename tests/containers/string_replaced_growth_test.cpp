// A string in a program that replaces operator new and delete: every growth step is an
// allocation through them at the 32-byte rule's size, a copy and a release; realloc is not used.
#include "lorb_test.h"
#include <new>
#include <stdlib.h>
#include <string>

extern "C" void* __libc_realloc(void*, size_t);

static size_t new_sizes[64];
static int news = 0, deletes = 0, reallocs = 0;

void* operator new(size_t size) {
  if (news < 64)
    new_sizes[news] = size;
  ++news;
  return malloc(size ? size : 1);
}

void operator delete(void* p) throw() {
  if (p)
    ++deletes;
  free(p);
}

extern "C" void* realloc(void* p, size_t size) {
  ++reallocs;
  return __libc_realloc(p, size);
}

TEST(appending_a_character_at_a_time_allocates_each_size_through_the_program) {
  std::string s;
  s += 'a'; // leaves the shared empty string: a representation and its first buffer
  news = deletes = reallocs = 0;
  for (int i = 1; i < 320; ++i)
    s += static_cast<char>('a' + i % 26);
  CHECK_EQ(reallocs, 0);
  CHECK_EQ(news, 10);
  CHECK_EQ(deletes, 10); // each old buffer is given back
  for (int step = 0; step < 10 && step < news; ++step)
    CHECK_EQ(new_sizes[step], static_cast<size_t>(32 * (step + 2)));
  bool intact = s.size() == 320u;
  for (size_t i = 0; intact && i < s.size(); ++i)
    intact = s[i] == static_cast<char>('a' + i % 26);
  CHECK(intact);
}

TEST(resize_and_reserve_go_through_the_program_too) {
  std::string s(10, 'r');
  news = deletes = reallocs = 0;
  s.resize(100, 's');
  s.reserve(1000);
  CHECK_EQ(reallocs, 0);
  CHECK_EQ(news, 2);
  CHECK_EQ(new_sizes[0], 128u);
  CHECK_EQ(new_sizes[1], 1024u);
  CHECK_EQ(deletes, 2);
  CHECK(s == std::string(10, 'r') + std::string(90, 's'));
}
