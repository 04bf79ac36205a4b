// A string buffer in a random open mode under a random sequence of writes, reads, putbacks, seeks
// and replacements of its text, against a model of the buffer's documented rules: one array of
// what was written up to the furthest point, a read and a write position, a reader in in|out mode
// seeing each character as soon as it is written, a putback of another character overwriting in
// an output-capable buffer (reported sign-extended), no position while there is no array, and a
// relative seek of both areas refused. Two buffers take every step: one of a class of our own,
// whose pointers are checked against the model, so that its bulk writes go through overflow, and
// a plain std::stringbuf, whose bulk writes take the library's run-at-once path.
#include "fuzz_input.h"
#include <sstream>
#include <string.h>
#include <string>

namespace {

typedef std::ios_base::openmode openmode;
const int end_of_file = -1;

struct open_buffer : std::stringbuf {
  explicit open_buffer(openmode mode) : std::stringbuf(mode) {}
  open_buffer(const std::string& s, openmode mode) : std::stringbuf(s, mode) {}
  char* eb() const { return eback(); }
  char* g() const { return gptr(); }
  char* eg() const { return egptr(); }
  char* pb() const { return pbase(); }
  char* p() const { return pptr(); }
  char* ep() const { return epptr(); }
};

const openmode modes[] = {
    std::ios_base::in,
    std::ios_base::out,
    std::ios_base::in | std::ios_base::out,
    std::ios_base::out | std::ios_base::app,
    std::ios_base::in | std::ios_base::out | std::ios_base::app,
    std::ios_base::out | std::ios_base::ate,
    std::ios_base::in | std::ios_base::out | std::ios_base::ate,
    std::ios_base::in | std::ios_base::ate,
    std::ios_base::openmode(0),
};

// The buffer as its rules describe it. data is what the array holds up to its end (the furthest
// point written, or the text given); the get area ends there too, as a reader sees every write.
struct model {
  bool in, out, at_end;
  bool array;
  std::string data;
  long g, p; // meaningful while array (g when in, p when out)

  explicit model(openmode mode)
      : in((mode & std::ios_base::in) != 0), out((mode & std::ios_base::out) != 0),
        at_end((mode & (std::ios_base::ate | std::ios_base::app)) != 0), array(false), g(0),
        p(0) {}

  bool has_get() const { return array && in; }
  bool has_put() const { return array && out; }
  long size() const { return static_cast<long>(data.size()); }

  void adopt(const std::string& s) {
    data = s;
    array = !s.empty() && (in || out);
    if (!array)
      data.clear();
    g = 0;
    p = at_end ? size() : 0;
  }

  int sputc(char c) {
    if (!out)
      return end_of_file;
    if (!array) {
      array = true;
      data.clear();
      g = p = 0;
    }
    if (p < size())
      data[p] = c;
    else
      data += c;
    ++p;
    return static_cast<unsigned char>(c);
  }
  int sgetc() const {
    return has_get() && g < size() ? static_cast<unsigned char>(data[g]) : end_of_file;
  }
  int sbumpc() {
    int c = sgetc();
    if (c != end_of_file)
      ++g;
    return c;
  }
  int sputbackc(char c) {
    if (!has_get() || g == 0)
      return end_of_file;
    if (data[g - 1] == c) {
      --g;
      return static_cast<unsigned char>(c);
    }
    if (!out)
      return end_of_file;
    data[--g] = c;
    return static_cast<signed char>(c);
  }
  int sungetc() {
    if (!has_get() || g == 0)
      return end_of_file;
    return static_cast<unsigned char>(data[--g]);
  }
  long seekoff(long off, std::ios_base::seekdir dir, openmode which) {
    bool win = (which & std::ios_base::in) != 0, wout = (which & std::ios_base::out) != 0;
    long long base;
    if (win && wout && has_get() && has_put()) {
      if (dir == std::ios_base::cur)
        return -1;
      base = dir == std::ios_base::beg ? 0 : size();
      long long target = base + off;
      if (target < 0 || target > size())
        return -1;
      g = p = static_cast<long>(target);
      return g;
    }
    long* at = win && has_get() ? &g : wout && has_put() ? &p : 0;
    if (!at)
      return -1;
    base = dir == std::ios_base::beg ? 0 : dir == std::ios_base::cur ? *at : size();
    long long target = base + off;
    if (target < 0 || target > size())
      return -1;
    *at = static_cast<long>(target);
    return *at;
  }
  long seekpos(long pos, openmode which) {
    if (pos < 0 || pos > size())
      return -1;
    bool moved = false;
    if ((which & std::ios_base::in) && has_get()) {
      g = pos;
      moved = true;
    }
    if ((which & std::ios_base::out) && has_put()) {
      p = pos;
      moved = true;
    }
    return moved ? pos : -1;
  }
  std::string str() const { return array ? data : std::string(); }
};

// The pointers against the model: the areas share the one array, the get area ends at the
// furthest point written, the put area too, and the allocation is the next multiple of 64 above
// what was written when it was made, so it holds at most 64 characters more than the text.
void check_pointers(const open_buffer& b, const model& m) {
  if (m.has_get()) {
    FUZZ_CHECK(b.eb() != 0);
    FUZZ_CHECK(b.g() - b.eb() == m.g);
    FUZZ_CHECK(b.eg() - b.eb() == m.size());
  } else {
    FUZZ_CHECK(b.eb() == 0 && b.g() == 0 && b.eg() == 0);
  }
  if (m.has_put()) {
    FUZZ_CHECK(b.pb() != 0);
    FUZZ_CHECK(b.p() - b.pb() == m.p);
    FUZZ_CHECK(b.ep() - b.pb() == m.size());
  } else {
    FUZZ_CHECK(b.pb() == 0 && b.p() == 0 && b.ep() == 0);
  }
  if (m.has_get() && m.has_put())
    FUZZ_CHECK(b.eb() == b.pb());
  if (m.array) {
    char* start = m.has_put() ? b.pb() : b.eb();
    FUZZ_CHECK(b.__end_of_allocation != 0);
    long room = static_cast<long>(b.__end_of_allocation - start);
    FUZZ_CHECK(room % 64 == 0);
    FUZZ_CHECK(m.size() <= room && room <= m.size() + 64);
  }
}

// Both buffers' answers must be the model's.
#define SAME(model_value, ...)                                                                   \
  do {                                                                                           \
    long expected = static_cast<long>(model_value);                                              \
    FUZZ_CHECK(static_cast<long>(probe.__VA_ARGS__) == expected);                                \
    FUZZ_CHECK(static_cast<long>(plain.__VA_ARGS__) == expected);                                \
  } while (0)

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  openmode mode = modes[in.below(9)];
  bool with_text = in.flag();
  std::string text = with_text ? in.text() : std::string();
  model m(mode);
  open_buffer* probe_held;
  std::stringbuf* plain_held;
  if (with_text) {
    probe_held = new open_buffer(text, mode);
    plain_held = new std::stringbuf(text, mode);
    m.adopt(text);
  } else {
    probe_held = new open_buffer(mode);
    plain_held = new std::stringbuf(mode);
  }
  open_buffer& probe = *probe_held;
  std::stringbuf& plain = *plain_held;
  check_pointers(probe, m);
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    switch (in.below(13)) {
    case 0: {
      char c = static_cast<char>(in.byte());
      SAME(m.sputc(c), sputc(c));
      break;
    }
    case 1: {
      std::string run = in.bytes(in.number() % 300);
      std::streamsize n = static_cast<std::streamsize>(run.size());
      long put = 0;
      for (size_t i = 0; i < run.size() && m.sputc(run[i]) != end_of_file; ++i)
        ++put;
      SAME(put, sputn(run.data(), n));
      break;
    }
    case 2: SAME(m.sgetc(), sgetc()); break;
    case 3: SAME(m.sbumpc(), sbumpc()); break;
    case 4: {
      int c = m.sbumpc();
      SAME(c == end_of_file ? end_of_file : m.sgetc(), snextc());
      break;
    }
    case 5: {
      std::streamsize n = static_cast<std::streamsize>(in.below(80));
      char to[2][81];
      memset(to, '\x5a', sizeof to);
      long ready = m.has_get() ? m.size() - m.g : 0;
      long got = ready < n ? ready : n;
      std::string expected = got > 0 ? m.data.substr(m.g, got) : std::string();
      m.g += got;
      FUZZ_CHECK(probe.sgetn(to[0], n) == got);
      FUZZ_CHECK(plain.sgetn(to[1], n) == got);
      FUZZ_CHECK(memcmp(to[0], expected.data(), got) == 0 && to[0][got] == '\x5a');
      FUZZ_CHECK(memcmp(to[1], expected.data(), got) == 0 && to[1][got] == '\x5a');
      break;
    }
    case 6: {
      // The character just read, or another one.
      bool matching = in.flag() && m.has_get() && m.g > 0;
      char c = matching ? m.data[m.g - 1] : static_cast<char>(in.byte());
      SAME(m.sputbackc(c), sputbackc(c));
      break;
    }
    case 7: SAME(m.sungetc(), sungetc()); break;
    case 8: {
      static const std::ios_base::seekdir dirs[] = {std::ios_base::beg, std::ios_base::cur,
                                                    std::ios_base::end};
      static const openmode which[] = {std::ios_base::in, std::ios_base::out,
                                       std::ios_base::in | std::ios_base::out};
      std::ios_base::seekdir dir = dirs[in.below(3)];
      openmode w = which[in.below(3)];
      long off = static_cast<long>(in.number() % 800) - 400;
      SAME(m.seekoff(off, dir, w), pubseekoff(off, dir, w));
      break;
    }
    case 9: {
      static const openmode which[] = {std::ios_base::in, std::ios_base::out,
                                       std::ios_base::in | std::ios_base::out};
      openmode w = which[in.below(3)];
      long pos = static_cast<long>(in.number() % 700) - 100;
      SAME(m.seekpos(pos, w), pubseekpos(pos, w));
      break;
    }
    case 10: {
      std::string expected = m.str();
      FUZZ_CHECK(probe.str() == expected);
      FUZZ_CHECK(plain.str() == expected);
      break;
    }
    case 11: {
      std::string s = in.text();
      probe.str(s);
      plain.str(s);
      m.adopt(s);
      break;
    }
    default: SAME(m.has_get() ? m.size() - m.g : 0, in_avail()); break;
    }
    check_pointers(probe, m);
  }
  FUZZ_CHECK(probe.str() == m.str());
  FUZZ_CHECK(plain.str() == m.str());
  delete probe_held;
  delete plain_held;
  return 0;
}
