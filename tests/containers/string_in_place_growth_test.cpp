// A string in a program that keeps the library's allocation functions: each growth step is a
// realloc at the size the 32-byte rule asks for, and the characters survive it.
#include "lorb_test.h"
#include "recording_realloc.h"
#include <stdlib.h>
#include <string>

static bool holds_the_alphabet_run(const std::string& s, size_t length) {
  if (s.size() != length || s.c_str()[length] != 0)
    return false;
  for (size_t i = 0; i < length; ++i)
    if (s[i] != static_cast<char>('a' + i % 26))
      return false;
  return true;
}

TEST(appending_a_character_at_a_time_reallocs_at_each_multiple_of_32) {
  realloc_calls = 0;
  std::string s;
  for (int i = 0; i < 320; ++i)
    s += static_cast<char>('a' + i % 26);
  // The first buffer (32 bytes) is allocated when the shared empty string is left; lengths 32,
  // 64, ..., 320 then each ask for the next multiple of 32.
  CHECK_EQ(realloc_calls, 10);
  for (int step = 0; step < 10 && step < realloc_calls; ++step)
    CHECK_EQ(realloc_sizes[step], static_cast<size_t>(32 * (step + 2)));
  CHECK_EQ(s.capacity(), 352u);
  CHECK(holds_the_alphabet_run(s, 320));
}

TEST(append_of_a_block_resize_and_reserve_realloc_at_the_rules_size) {
  std::string s(10, 'a');
  for (size_t i = 0; i < s.size(); ++i)
    s[i] = static_cast<char>('a' + i % 26);
  realloc_calls = 0;
  s.append("klmnopqrstuvwxyzabcdefghijklmnopqrstuvwxyz", 42); // length 52
  s.resize(100, 'z');
  s.reserve(1000);
  CHECK_EQ(realloc_calls, 3);
  CHECK_EQ(realloc_sizes[0], 64u);
  CHECK_EQ(realloc_sizes[1], 128u);
  CHECK_EQ(realloc_sizes[2], 1024u);
  CHECK_EQ(s.capacity(), 1024u);
  CHECK(holds_the_alphabet_run(s.substr(0, 52), 52));
  CHECK_EQ(s.find_first_not_of('z', 52), std::string::npos);
}

TEST(appending_its_own_characters_moves_the_buffer_instead) {
  std::string s(31, 'x');
  s[0] = 'a';
  realloc_calls = 0;
  s.append(s.data(), 31); // the source is the buffer that has to grow
  CHECK_EQ(realloc_calls, 0);
  CHECK_EQ(s.size(), 62u);
  CHECK_EQ(s[31], 'a');
  CHECK_EQ(s.capacity(), 64u);
}

TEST(a_shared_buffer_grown_by_reserve_stays_shared) {
  std::string a(40, 'q');
  std::string b(a);
  a.reserve(200);
  CHECK_EQ(a.data(), b.data()); // both owners see the larger buffer
  CHECK_EQ(b.capacity(), 224u);
  CHECK(b == std::string(40, 'q'));
}

// Kept to 64 KB: under valgrind every realloc copies.
TEST(sixty_four_thousand_characters_one_at_a_time) {
  std::string s;
  for (int i = 0; i < (1 << 16); ++i)
    s += static_cast<char>('a' + i % 26);
  CHECK(holds_the_alphabet_run(s, 1 << 16));
  CHECK_EQ(s.capacity(), (1u << 16) + 32);
}
