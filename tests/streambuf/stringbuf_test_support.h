// What the string-buffer and string-stream tests share: the logging new[] and delete[], a buffer
// that opens its protected pointers and operations, a generator and the growth rule worked out.
// Include it in exactly one file of a test program.
#ifndef STREAMBUF_STRINGBUF_TEST_SUPPORT_H
#define STREAMBUF_STRINGBUF_TEST_SUPPORT_H

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

// A small deterministic generator of characters, every byte value included, and of words.
struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned next() {
    state = state * 1103515245ul + 12345ul;
    return (state >> 16) & 0x7fff;
  }
  char next_char() { return static_cast<char>(next() & 0xff); }
  unsigned long next_word() { return next() << 17 ^ next() << 2 ^ next(); }
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

#endif
