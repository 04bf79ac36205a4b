// A dynamic strstreambuf whose array cannot be had: the library's new[] gives null, the write
// fails with end of file, and the stream carries on with its state set.
#include "failing_malloc.h"
#include "lorb_test.h"
#include <stdio.h>
#include <strstream>

namespace {

// Writes with every allocation refused, then again with memory back; prints what each saw.
void write_without_memory() {
  std::ostrstream out;
  lt::malloc_fails = true;
  int first = out.rdbuf()->sputc('a');
  out << "text";
  bool failed = out.fail();
  int refused = lt::refused_mallocs;
  lt::malloc_fails = false;
  out.clear();
  out << "later";
  printf("sputc %d, stream failed %d, refused %d, then pcount %d good %d\n", first, failed,
         refused > 0, out.pcount(), out.good());
  delete[] out.str();
}

void grow_without_memory() {
  std::strstream both;
  both << "0123456789abcdef";
  lt::malloc_fails = true;
  int grown = both.rdbuf()->sputc('g');
  lt::malloc_fails = false;
  char* text = both.str();
  printf("sputc %d, pcount %d, text kept %d\n", grown, both.pcount(), text[15] == 'f');
  delete[] text;
}

} // namespace

TEST(a_first_array_that_cannot_be_allocated_fails_the_write_and_nothing_else) {
  EXPECT_CHILD(write_without_memory(), lt::exits(0),
               "sputc -1, stream failed 1, refused 1, then pcount 5 good 1\n", "");
}

TEST(a_growth_that_cannot_be_allocated_keeps_the_old_array) {
  EXPECT_CHILD(grow_without_memory(), lt::exits(0), "sputc -1, pcount 16, text kept 1\n", "");
}
