// What the strstreambuf and strstream tests share: the logging new[] and delete[], logging
// allocation functions to hand a buffer, a buffer that opens its protected pointers and
// operations, and a generator. Include it in exactly one file of a test program.
#ifndef STREAMBUF_STRSTREAMBUF_TEST_SUPPORT_H
#define STREAMBUF_STRSTREAMBUF_TEST_SUPPORT_H

#include "lorb_test.h"
#include <stdlib.h>
#include <string.h>
#include <strstream>

typedef std::ios_base io;

// Every new[] and delete[] of the program passes here: the sizes asked for and the arrays
// released are logged since the last reset, so a test sees a dynamic buffer's allocations.
namespace {
const int log_capacity = 64;
std::size_t array_sizes[log_capacity];
void* released_arrays[log_capacity];
int array_news = 0, array_deletes = 0;
bool refuse_array_new = false;

// The same for the allocation functions a buffer is given.
std::size_t palloc_sizes[log_capacity];
void* pfreed_arrays[log_capacity];
int pallocs = 0, pfrees = 0;
bool palloc_refuses = false;

void reset_log() { array_news = array_deletes = pallocs = pfrees = 0; }

void* logging_alloc(std::size_t size) {
  if (palloc_refuses)
    return 0;
  if (pallocs < log_capacity)
    palloc_sizes[pallocs] = size;
  ++pallocs;
  return malloc(size);
}

void logging_free(void* p) {
  if (pfrees < log_capacity)
    pfreed_arrays[pfrees] = p;
  ++pfrees;
  free(p);
}
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

const int end_of_file = -1;
const std::streamoff invalid = -1;

std::streamoff offset_of(const std::streampos& position) { return position; }

// Opens the protected pointers and virtual operations to the tests.
struct test_strstreambuf : std::strstreambuf {
  explicit test_strstreambuf(std::streamsize alsize = 0) : std::strstreambuf(alsize) {}
  test_strstreambuf(void* (*palloc)(std::size_t), void (*pfree)(void*))
      : std::strstreambuf(palloc, pfree) {}
  test_strstreambuf(char* gnext, std::streamsize n, char* pbeg = 0)
      : std::strstreambuf(gnext, n, pbeg) {}
  test_strstreambuf(const char* gnext, std::streamsize n) : std::strstreambuf(gnext, n) {}
  test_strstreambuf(signed char* gnext, std::streamsize n, signed char* pbeg = 0)
      : std::strstreambuf(gnext, n, pbeg) {}
  test_strstreambuf(const signed char* gnext, std::streamsize n) : std::strstreambuf(gnext, n) {}
  test_strstreambuf(unsigned char* gnext, std::streamsize n, unsigned char* pbeg = 0)
      : std::strstreambuf(gnext, n, pbeg) {}
  test_strstreambuf(const unsigned char* gnext, std::streamsize n) : std::strstreambuf(gnext, n) {}

  using std::strstreambuf::eback;
  using std::strstreambuf::egptr;
  using std::strstreambuf::epptr;
  using std::strstreambuf::gptr;
  using std::strstreambuf::overflow;
  using std::strstreambuf::pbackfail;
  using std::strstreambuf::pbase;
  using std::strstreambuf::pptr;
  using std::strstreambuf::seekoff;
  using std::strstreambuf::seekpos;
  using std::strstreambuf::setg;
  using std::strstreambuf::setp;
  using std::strstreambuf::uflow;
  using std::strstreambuf::underflow;
  using std::strstreambuf::xsputn;

  long get_offset() const { return gptr() - eback(); }
  long get_end() const { return egptr() - eback(); }
  long put_offset() const { return pptr() - pbase(); }
  long put_end() const { return epptr() - pbase(); }
  bool all_pointers_null() const {
    return !eback() && !gptr() && !egptr() && !pbase() && !pptr() && !epptr();
  }
  // The dynamic array's first `length` characters are `text`.
  bool holds(const char* text, long length) const {
    return CHECK_BYTES(pbase(), static_cast<size_t>(put_offset()), text,
                       static_cast<size_t>(length));
  }
};

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

void generate(unsigned long seed, char* text, long length) {
  generator g(seed);
  for (long i = 0; i < length; ++i)
    text[i] = g.next_char();
}

// The allocation sizes a dynamic buffer asks for when `length` characters are written one by
// one: whenever the array is full, 16 more than it holds, or alsize when that is larger.
int growth_sizes(long length, long alsize, std::size_t* sizes) {
  long allocated = 0;
  int count = 0;
  for (long written = 0; written < length; ++written)
    if (written == allocated) {
      allocated = written + 16 > alsize ? written + 16 : alsize;
      sizes[count++] = static_cast<std::size_t>(allocated);
    }
  return count;
}

} // namespace

#endif
