// A string buffer in a random open mode under a random sequence of writes, reads, putbacks, seeks
// and replacements of its text. After each step its pointers must stay ordered and inside its
// array; while the sequence is only writes and reads over a buffer opened in|out on no text, what
// is read and what str() holds are compared with a model of the characters written.
#include "fuzz_input.h"
#include <sstream>
#include <string.h>
#include <string>

namespace {

struct open_buffer : std::stringbuf {
  explicit open_buffer(std::ios_base::openmode mode) : std::stringbuf(mode) {}
  open_buffer(const std::string& s, std::ios_base::openmode mode) : std::stringbuf(s, mode) {}

  void check_pointers() const {
    FUZZ_CHECK((eback() == 0) == (gptr() == 0) && (gptr() == 0) == (egptr() == 0));
    FUZZ_CHECK(eback() <= gptr() && gptr() <= egptr());
    FUZZ_CHECK((pbase() == 0) == (pptr() == 0) && (pptr() == 0) == (epptr() == 0));
    FUZZ_CHECK(pbase() <= pptr() && pptr() <= epptr());
    // Both areas lie in the one array, which ends at the end of the allocation.
    if (pbase() && __end_of_allocation)
      FUZZ_CHECK(epptr() <= __end_of_allocation);
    if (eback() && pbase()) {
      FUZZ_CHECK(eback() == pbase());
      if (__end_of_allocation)
        FUZZ_CHECK(egptr() <= __end_of_allocation);
    }
  }
};

const std::ios_base::openmode modes[] = {
    std::ios_base::in,
    std::ios_base::out,
    std::ios_base::in | std::ios_base::out,
    std::ios_base::out | std::ios_base::app,
    std::ios_base::in | std::ios_base::out | std::ios_base::app,
    std::ios_base::out | std::ios_base::ate,
    std::ios_base::in | std::ios_base::out | std::ios_base::ate,
    std::ios_base::openmode(0),
};

// The characters written and the count read, while only plain writes and reads have happened.
struct model {
  bool valid;
  std::string written;
  size_t read;
};

void read_one(open_buffer& buffer, model& m, bool take) {
  int c = take ? buffer.sbumpc() : buffer.sgetc();
  if (!m.valid)
    return;
  if (m.read < m.written.size()) {
    FUZZ_CHECK(c == static_cast<unsigned char>(m.written[m.read]));
    if (take)
      ++m.read;
  } else {
    FUZZ_CHECK(c == EOF);
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  std::ios_base::openmode mode = modes[in.below(8)];
  bool with_text = in.flag();
  std::string text = with_text ? in.text() : std::string();
  open_buffer* held = with_text ? new open_buffer(text, mode) : new open_buffer(mode);
  open_buffer& buffer = *held;
  model m = {!with_text && mode == (std::ios_base::in | std::ios_base::out), std::string(), 0};
  buffer.check_pointers();
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    switch (in.below(12)) {
    case 0: {
      char c = static_cast<char>(in.byte());
      int put = buffer.sputc(c);
      if (m.valid) {
        FUZZ_CHECK(put == static_cast<unsigned char>(c));
        m.written += c;
      }
      break;
    }
    case 1: {
      std::string run = in.bytes(in.number() % 300);
      std::streamsize put = buffer.sputn(run.data(), static_cast<std::streamsize>(run.size()));
      FUZZ_CHECK(put >= 0 && put <= static_cast<std::streamsize>(run.size()));
      if (m.valid) {
        FUZZ_CHECK(put == static_cast<std::streamsize>(run.size()));
        m.written += run;
      }
      break;
    }
    case 2: read_one(buffer, m, false); break;
    case 3: read_one(buffer, m, true); break;
    case 4: {
      std::streamsize n = static_cast<std::streamsize>(in.below(64));
      char* to = new char[static_cast<size_t>(n) + 1];
      to[n] = '\x5a';
      std::streamsize got = buffer.sgetn(to, n);
      FUZZ_CHECK(got >= 0 && got <= n);
      FUZZ_CHECK(to[n] == '\x5a');
      if (m.valid) {
        size_t left = m.written.size() - m.read;
        FUZZ_CHECK(static_cast<size_t>(got) == (left < static_cast<size_t>(n) ? left : static_cast<size_t>(n)));
        FUZZ_CHECK(memcmp(to, m.written.data() + m.read, static_cast<size_t>(got)) == 0);
        m.read += static_cast<size_t>(got);
      }
      delete[] to;
      break;
    }
    case 5: {
      char c = static_cast<char>(in.byte());
      int back = buffer.sputbackc(c);
      if (m.valid) {
        if (m.read > 0 && m.written[m.read - 1] == c) {
          FUZZ_CHECK(back == static_cast<unsigned char>(c));
          --m.read;
        } else {
          m.valid = false; // what a refused putback does is the buffer's own rule
        }
      }
      break;
    }
    case 6: {
      int back = buffer.sungetc();
      if (m.valid) {
        if (m.read > 0) {
          FUZZ_CHECK(back == static_cast<unsigned char>(m.written[m.read - 1]));
          --m.read;
        } else {
          FUZZ_CHECK(back == EOF);
        }
      }
      break;
    }
    case 7: {
      static const std::ios_base::seekdir dirs[] = {std::ios_base::beg, std::ios_base::cur,
                                                    std::ios_base::end};
      static const std::ios_base::openmode which[] = {
          std::ios_base::in, std::ios_base::out, std::ios_base::in | std::ios_base::out};
      std::ios_base::seekdir dir = dirs[in.below(3)];
      std::ios_base::openmode w = which[in.below(3)];
      std::streamoff off = static_cast<std::streamoff>(in.number() % 600) - 300;
      buffer.pubseekoff(off, dir, w);
      m.valid = false;
      break;
    }
    case 8: {
      buffer.pubseekpos(static_cast<std::streamoff>(in.number() % 600) - 100,
                        in.flag() ? std::ios_base::in : std::ios_base::out);
      m.valid = false;
      break;
    }
    case 9: {
      std::string held = buffer.str();
      if (m.valid)
        FUZZ_CHECK(held == m.written);
      break;
    }
    case 10:
      buffer.str(in.text());
      m.valid = false;
      break;
    default: {
      std::streamsize avail = buffer.in_avail();
      if (m.valid && m.read < m.written.size())
        FUZZ_CHECK(avail == static_cast<std::streamsize>(m.written.size() - m.read));
      break;
    }
    }
    buffer.check_pointers();
  }
  if (m.valid)
    FUZZ_CHECK(buffer.str() == m.written);
  delete held;
  return 0;
}
