// The file buffer's conversion buffers (3 characters for overflow, 7 for xsputn) under a program's
// conversion facet: what fits is written, what the facet stops short of is not, and a facet that
// claims to have written past the end it was given is not believed: nothing is written and
// nothing lands outside the buffer.
#include "lorb_test.h"
#include <fstream>
#include <locale>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

namespace {

typedef std::ios_base io;

// Writes each character `copies` times while there is room; with `overshoot`, reports to_next
// that many characters past the end it was given (a facet with a bug).
struct copying_codecvt : std::codecvt<char, char, int> {
  copying_codecvt(int copies, int overshoot) : copies(copies), overshoot(overshoot) {}
  int copies, overshoot;

protected:
  bool do_always_noconv() const throw() { return false; }
  result do_out(int&, const char* from, const char* from_end, const char*& from_next, char* to,
                char* to_limit, char*& to_next) const {
    for (; from != from_end && to_limit - to >= copies; ++from)
      for (int k = 0; k < copies; ++k)
        *to++ = *from;
    from_next = from;
    to_next = overshoot ? to_limit + overshoot : to;
    return ok;
  }
};

// What a file buffer with the given facet writes for sputc('a') then sputn(text): the file's
// contents and the two results.
std::string written(int copies, int overshoot, const char* text, int* put_char, long* put_count) {
  char path[] = "/tmp/lorb-conversion-XXXXXX";
  int fd = mkstemp(path);
  close(fd);
  {
    std::filebuf buffer;
    buffer.pubimbue(std::locale(std::locale(), new copying_codecvt(copies, overshoot)));
    buffer.open(path, io::out | io::trunc);
    *put_char = buffer.sputc('a');
    *put_count = buffer.sputn(text, static_cast<std::streamsize>(strlen(text)));
  }
  char contents[64] = {0};
  FILE* f = fopen(path, "r");
  size_t n = fread(contents, 1, sizeof contents - 1, f);
  fclose(f);
  remove(path);
  return std::string(contents, n);
}

} // namespace

TEST(conversions_that_fit_are_written_whole) {
  int c;
  long n;
  std::string out = written(3, 0, "xy", &c, &n);
  CHECK_STR(out.c_str(), "aaaxxxyyy");
  CHECK_EQ(c, 'a');
  CHECK(n > 0); // what the C library's fputs answers
}

TEST(the_seven_character_buffer_keeps_what_fits_and_drops_the_rest) {
  int c;
  long n;
  std::string out = written(2, 0, "abcdefgh", &c, &n); // 16 characters asked, 6 fit in 7
  CHECK_EQ(c, 'a');
  CHECK_STR(out.c_str(), "aaaabbcc");
  CHECK(n > 0);
}

TEST(a_facet_that_claims_to_overrun_the_buffers_writes_nothing) {
  for (int overshoot = 1; overshoot <= 1000; overshoot *= 10) {
    int c;
    long n;
    std::string out = written(1, overshoot, "xyz", &c, &n);
    CHECK_EQ(out.size(), 0u);
    CHECK_EQ(c, -1);
    CHECK_EQ(n, 0L);
  }
}
