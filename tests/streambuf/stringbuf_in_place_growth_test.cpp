// A string buffer in a program that keeps the library's allocation functions: each 64-character
// step is a realloc at the rule's size, and the text and the read position survive it.
#include "lorb_test.h"
#include "recording_realloc.h"
#include <sstream>
#include <stdlib.h>
#include <string>

TEST(each_step_after_the_first_is_a_realloc_at_the_next_multiple_of_64) {
  realloc_calls = 0;
  std::ostringstream out;
  for (int i = 0; i < 64 * 10; ++i)
    out.put(static_cast<char>('a' + i % 26));
  CHECK_EQ(realloc_calls, 9); // the first array of 64 is a new[], the next nine grow it
  for (int step = 0; step < 9 && step < realloc_calls; ++step)
    CHECK_EQ(realloc_sizes[step], static_cast<size_t>(64 * (step + 2)));
  std::string text = out.str();
  bool intact = text.size() == 640u;
  for (size_t i = 0; intact && i < text.size(); ++i)
    intact = text[i] == static_cast<char>('a' + i % 26);
  CHECK(intact);
}

TEST(a_reader_keeps_its_place_across_in_place_growth) {
  std::stringstream both;
  std::string read;
  for (int i = 0; i < 1000; ++i) {
    both.put(static_cast<char>('0' + i % 10));
    if (i % 3 == 0) // read one character for every three written
      read += static_cast<char>(both.get());
  }
  CHECK_EQ(read.size(), 334u);
  bool in_order = true;
  for (size_t i = 0; i < read.size(); ++i)
    in_order = in_order && read[i] == static_cast<char>('0' + i % 10);
  CHECK(in_order);
  CHECK_EQ(both.str().size(), 1000u);
}
