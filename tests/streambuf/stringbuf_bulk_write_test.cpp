// Bulk writes to a string buffer: the library's own buffer writes a run at once, with the same
// result as the default bulk write, which calls overflow for each character; a program's buffer
// derived from it still sees every one of those calls.
#include "lorb_test.h"
#include <sstream>
#include <string>

namespace {

// Derived, so that bulk writes go the default way: overflow for each character past the put
// area. Counts them.
struct counted_stringbuf : std::stringbuf {
  explicit counted_stringbuf(std::ios_base::openmode mode) : std::stringbuf(mode), overflows(0) {}
  int_type overflow(int_type c) {
    ++overflows;
    return std::stringbuf::overflow(c);
  }
  long overflows;
};

// A plain buffer's pointers, as offsets from the start of its array.
struct layout {
  long put_next, put_end, allocation, get_next, get_end;
};

layout layout_of(const std::stringbuf& b) {
  const char* base = b.__pbegin ? b.__pbegin : b.__gbegin;
  layout l = {b.__pnext - base, b.__pend - base, b.__end_of_allocation - base,
              b.__gnext ? b.__gnext - base : -1, b.__gend ? b.__gend - base : -1};
  return l;
}

unsigned next_random(unsigned& state) {
  state = state * 1103515245u + 12345u;
  return state >> 8;
}

// The same generated writes and seeks to a plain and a derived buffer.
void compare_writes(std::ios_base::openmode mode, unsigned seed) {
  std::stringbuf plain(mode);
  counted_stringbuf derived(mode);
  std::string text(3000, 'x');
  for (size_t i = 0; i < text.size(); ++i)
    text[i] = static_cast<char>('a' + i % 26);
  unsigned state = seed;
  long appended = 0;
  for (int step = 0; step < 400; ++step) {
    unsigned what = next_random(state) % 10;
    if (what < 6) {
      std::streamsize n = static_cast<std::streamsize>(next_random(state) % 300);
      const char* from = text.data() + next_random(state) % 2000;
      long before = plain.str().size();
      CHECK_EQ(plain.sputn(from, n), n);
      CHECK_EQ(derived.sputn(from, n), n);
      appended += static_cast<long>(plain.str().size()) - before;
    } else if (what < 8) {
      char c = static_cast<char>('A' + next_random(state) % 26);
      plain.sputc(c);
      derived.sputc(c);
    } else {
      long back = static_cast<long>(next_random(state) % 100);
      std::streampos to = plain.pubseekoff(-back, std::ios_base::cur, std::ios_base::out);
      CHECK(derived.pubseekoff(-back, std::ios_base::cur, std::ios_base::out) == to);
    }
    if (!CHECK(plain.str() == derived.str()))
      return;
  }
  layout a = layout_of(plain), b = layout_of(derived);
  CHECK_EQ(a.put_next, b.put_next);
  CHECK_EQ(a.put_end, b.put_end);
  CHECK_EQ(a.allocation, b.allocation);
  CHECK_EQ(a.get_next, b.get_next);
  CHECK_EQ(a.get_end, b.get_end);
  CHECK(appended > 1000);
  CHECK(derived.overflows >= appended); // the derived buffer saw a call for each one
}

} // namespace

TEST(bulk_writes_to_an_output_buffer_match_the_default_way) {
  for (unsigned seed = 1; seed <= 20; ++seed)
    compare_writes(std::ios_base::out, seed);
}

TEST(bulk_writes_to_an_in_out_buffer_match_the_default_way) {
  for (unsigned seed = 21; seed <= 40; ++seed)
    compare_writes(std::ios_base::in | std::ios_base::out, seed);
}

TEST(a_bulk_write_to_a_buffer_without_out_writes_nothing) {
  std::stringbuf input(std::string("abc"), std::ios_base::in);
  CHECK_EQ(input.sputn("xyz", 3), 0L);
  CHECK(input.str() == "abc");
}

TEST(text_inserted_into_an_ostringstream_is_read_back_whole) {
  std::ostringstream out;
  std::string expected;
  for (int i = 0; i < 5000; ++i) {
    out << "word" << i << ' ';
    char number[16];
    snprintf(number, sizeof number, "%d", i);
    expected += "word";
    expected += number;
    expected += ' ';
  }
  CHECK(out.str() == expected);
}
