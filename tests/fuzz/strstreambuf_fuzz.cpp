// A character-array buffer from each of its constructors under a random sequence of writes,
// reads, putbacks, seeks, freezes and takings of the array. After each step its pointers must stay
// ordered and inside the array, a caller's array must not be written past its end, and a buffer
// with allocation functions must hold one array at most. While a dynamic buffer has only been
// written, what it holds is compared with the characters written.
#include "fuzz_input.h"
#include <stdlib.h>
#include <string.h>
#include <string>
#include <strstream>

namespace {

struct open_buffer : std::strstreambuf {
  explicit open_buffer(std::streamsize alsize) : std::strstreambuf(alsize) {}
  open_buffer(void* (*palloc)(size_t), void (*pfree)(void*)) : std::strstreambuf(palloc, pfree) {}
  open_buffer(char* gnext, std::streamsize n, char* pbeg) : std::strstreambuf(gnext, n, pbeg) {}
  open_buffer(const char* gnext, std::streamsize n) : std::strstreambuf(gnext, n) {}

  void check_pointers() const {
    FUZZ_CHECK(eback() <= gptr() && gptr() <= egptr());
    FUZZ_CHECK(pbase() <= pptr() && pptr() <= epptr());
    if (pbase() && eback())
      FUZZ_CHECK(eback() <= pbase());
  }
  char* put_base() const { return pbase(); }
};

// The allocation functions of the buffer that has them: the arrays it holds now.
int live_arrays;
void* counting_alloc(size_t n) {
  ++live_arrays;
  return malloc(n);
}
void counting_free(void* p) {
  if (p)
    --live_arrays;
  free(p);
}

// A caller's array: guard bytes follow its count, and nothing may touch them.
const size_t guard = 16;
struct caller_array {
  char* bytes;
  size_t count;
  bool intact() const {
    for (size_t i = count; i < count + guard; ++i)
      if (bytes[i] != '\x5a')
        return false;
    return true;
  }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  unsigned kind = in.below(6);
  caller_array array = {0, 0};
  open_buffer* buffer;
  bool dynamic = kind <= 1;
  if (kind == 0) {
    buffer = new open_buffer(static_cast<std::streamsize>(in.below(64)));
  } else if (kind == 1) {
    live_arrays = 0;
    buffer = new open_buffer(counting_alloc, counting_free);
  } else {
    // n > 0, n == 0 (up to the NUL) or read-only; pbeg inside the array or none.
    std::string text = in.text();
    // Up to the first NUL: one ends the array, so that the array's count holds.
    // Elsewhere a count of 0 would mean the same: the array holds a character at least.
    if (kind == 3)
      text += '\0';
    else if (text.empty())
      text = "?";
    array.count = text.size();
    array.bytes = new char[array.count + guard];
    memcpy(array.bytes, text.data(), text.size());
    memset(array.bytes + array.count, '\x5a', guard);
    std::streamsize n = kind == 3 ? 0 : static_cast<std::streamsize>(array.count);
    if (kind == 5) {
      buffer = new open_buffer(static_cast<const char*>(array.bytes), n);
    } else {
      char* pbeg = kind == 4 || array.count == 0 ? 0 : array.bytes + in.below(array.count + 1);
      buffer = new open_buffer(array.bytes, n, pbeg);
    }
  }
  std::string written;
  bool model_valid = dynamic;
  buffer->check_pointers();
  unsigned steps = in.below(48) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    switch (in.below(11)) {
    case 0: {
      char c = static_cast<char>(in.byte());
      int put = buffer->sputc(c);
      if (model_valid) {
        FUZZ_CHECK(put == static_cast<unsigned char>(c));
        written += c;
      }
      break;
    }
    case 1: {
      std::string run = in.bytes(in.number() % 200);
      std::streamsize put = buffer->sputn(run.data(), static_cast<std::streamsize>(run.size()));
      FUZZ_CHECK(put >= 0 && put <= static_cast<std::streamsize>(run.size()));
      if (model_valid) {
        FUZZ_CHECK(put == static_cast<std::streamsize>(run.size()));
        written += run;
      }
      break;
    }
    case 2: buffer->sgetc(); break;
    case 3: buffer->sbumpc(); model_valid = false; break;
    case 4: buffer->sputbackc(static_cast<char>(in.byte())); model_valid = false; break;
    case 5: buffer->sungetc(); model_valid = false; break;
    case 6: {
      static const std::ios_base::seekdir dirs[] = {std::ios_base::beg, std::ios_base::cur,
                                                    std::ios_base::end};
      static const std::ios_base::openmode which[] = {
          std::ios_base::in, std::ios_base::out, std::ios_base::in | std::ios_base::out};
      buffer->pubseekoff(static_cast<std::streamoff>(in.number() % 400) - 200, dirs[in.below(3)],
                         which[in.below(3)]);
      model_valid = false;
      break;
    }
    case 7:
      buffer->pubseekpos(static_cast<std::streamoff>(in.number() % 400) - 50,
                         in.flag() ? std::ios_base::in : std::ios_base::out);
      model_valid = false;
      break;
    case 8: buffer->freeze(in.flag()); break;
    case 9: {
      // Taking the array freezes a dynamic buffer; what it holds starts at pbase.
      buffer->str();
      break;
    }
    default: {
      int count = buffer->pcount();
      FUZZ_CHECK(count >= 0);
      if (model_valid) {
        FUZZ_CHECK(count == static_cast<int>(written.size()));
        FUZZ_CHECK(count == 0 || memcmp(buffer->put_base(), written.data(), written.size()) == 0);
      }
      break;
    }
    }
    buffer->check_pointers();
    if (array.bytes)
      FUZZ_CHECK(array.intact());
    if (kind == 1)
      FUZZ_CHECK(live_arrays <= 1);
    // A write refused by a frozen buffer leaves the model behind.
    if (dynamic && (buffer->__strmode & std::strstreambuf::__frozen))
      model_valid = false;
  }
  // The destructor releases nothing: the array goes back the way it came.
  char* held = buffer->str();
  delete buffer;
  if (kind == 0)
    delete[] held;
  if (kind == 1) {
    counting_free(held);
    FUZZ_CHECK(live_arrays == 0);
  }
  delete[] array.bytes;
  return 0;
}
