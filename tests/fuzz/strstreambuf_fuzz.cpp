// A character-array buffer from each of its constructors (and from the three strstreams) under a
// random sequence of writes, reads, putbacks, seeks, freezes and takings of the array, against a
// model of the buffer's documented rules, peculiarities included: freeze inverted, a dynamic
// array growing 16 characters at a time (or straight to the suggested size), underflow returning
// the character sign-extended, a putback of another character failing, the read position carried
// from the end of the get area across a growth, seeks kept inside what was read or written, and a
// destructor that frees nothing. Two buffers take every step: one of a class of our own, whose
// pointers are checked, and a plain one (or a stream's), whose bulk writes take the library's
// run-at-once path. A caller's array must hold what the model says and nothing past its end may
// change; the arrays the allocation functions hand out are counted.
#include "fuzz_input.h"
#include <stdlib.h>
#include <string.h>
#include <string>
#include <strstream>

namespace {

typedef std::ios_base::openmode openmode;
const int end_of_file = -1;
// Where an unlimited count (a negative n) puts the end of an area, for the model.
const long long unlimited = 1LL << 40;

struct open_buffer : std::strstreambuf {
  explicit open_buffer(std::streamsize alsize) : std::strstreambuf(alsize) {}
  open_buffer(void* (*palloc)(size_t), void (*pfree)(void*)) : std::strstreambuf(palloc, pfree) {}
  open_buffer(char* gnext, std::streamsize n, char* pbeg) : std::strstreambuf(gnext, n, pbeg) {}
  open_buffer(const char* gnext, std::streamsize n) : std::strstreambuf(gnext, n) {}
  char* eb() const { return eback(); }
  char* g() const { return gptr(); }
  char* eg() const { return egptr(); }
  char* pb() const { return pbase(); }
  char* p() const { return pptr(); }
  char* ep() const { return epptr(); }
};

// The allocation functions: the arrays handed out and not yet released, the size last asked.
int live_arrays;
int allocations;
size_t last_size;
void* counting_alloc(size_t n) {
  ++live_arrays;
  ++allocations;
  last_size = n;
  return malloc(n);
}
void counting_free(void* p) {
  FUZZ_CHECK(p != 0);
  --live_arrays;
  free(p);
}

// The buffer as its rules describe it. Offsets count from the array's start: for a dynamic
// buffer the array it holds now, whose characters up to the end of the put area are data; for a
// caller's array all of it.
struct model {
  bool dynamic, frozen;
  long long alsize, array_size;
  bool has_get, has_put;
  long long g, gend, pb, p, pend;
  std::string data;
  int grows;

  int sputc(char c) {
    if (has_put && p < pend) {
      store(c);
      return static_cast<unsigned char>(c);
    }
    if (!dynamic || frozen)
      return end_of_file;
    long long size = has_put ? pend - pb : 0;
    if (array_size > size) {
      p = size;
      pend = size + 1;
    } else {
      long long new_size = size + 16 > alsize ? size + 16 : alsize;
      array_size = new_size;
      // The read position keeps its distance from the end of the get area.
      long long get_end = has_get ? gend : 0;
      long long get_next = has_get ? gend - g : 0;
      g = get_next;
      gend = get_end;
      has_get = has_put = true;
      pb = 0;
      p = size;
      pend = size + 1;
      ++grows;
    }
    store(c);
    return static_cast<unsigned char>(c);
  }
  void store(char c) {
    if (p < static_cast<long long>(data.size()))
      data[static_cast<size_t>(p)] = c;
    else
      data += c; // only a dynamic array grows its data
    ++p;
  }
  // Sign-extended, so that 0xFF reads as end of file.
  int underflow() {
    if (has_get && g < gend)
      return static_cast<signed char>(at(g));
    if (!has_get || !has_put || p <= gend)
      return end_of_file;
    gend = p;
    return static_cast<signed char>(at(g));
  }
  int sgetc() { return has_get && g < gend ? static_cast<unsigned char>(at(g)) : underflow(); }
  int sbumpc() {
    if (!(has_get && g < gend) && underflow() == end_of_file)
      return end_of_file;
    return static_cast<unsigned char>(at(g++));
  }
  // Only the character already there goes back.
  int sputbackc(char c) {
    if (!has_get || g == 0 || at(g - 1) != c)
      return end_of_file;
    --g;
    return static_cast<unsigned char>(c);
  }
  int sungetc() {
    if (!has_get || g == 0)
      return end_of_file;
    return static_cast<unsigned char>(at(--g));
  }
  char at(long long i) const { return data[static_cast<size_t>(i)]; }

  static long long target(long long off, std::ios_base::seekdir dir, long long now,
                          long long limit) {
    long long base = dir == std::ios_base::beg ? 0 : dir == std::ios_base::cur ? now : limit;
    long long t = base + off;
    return t < 0 || t > limit ? -1 : t;
  }
  long long seekoff(long long off, std::ios_base::seekdir dir, openmode which) {
    long long result = -1;
    if ((which & std::ios_base::in) && has_get) {
      long long t = target(off, dir, g, gend);
      if (t < 0)
        return -1;
      g = result = t;
    }
    bool relative_to_both = dir == std::ios_base::cur && (which & std::ios_base::in);
    if ((which & std::ios_base::out) && has_put && !relative_to_both) {
      long long t = target(off, dir, p - pb, pend - pb);
      if (t < 0)
        return -1;
      p = pb + t;
      return t;
    }
    return result;
  }
  long long seekpos(long long pos, openmode which) {
    if (pos < 0)
      return -1;
    long long result = -1;
    if (which & std::ios_base::in) {
      if (!has_get || pos > gend)
        return -1;
      g = result = pos;
    }
    if ((which & std::ios_base::out) && has_put && pos <= pend - pb) {
      p = pb + pos;
      return pos;
    }
    return result;
  }
  void freeze(bool fl) {
    if (dynamic)
      frozen = !fl;
  }
  int pcount() const { return has_put ? static_cast<int>(p - pb) : 0; }
};

struct areas {
  char *eb, *g, *eg, *pb, *p, *ep;
};
areas areas_of(const open_buffer& b) {
  areas a = {b.eb(), b.g(), b.eg(), b.pb(), b.p(), b.ep()};
  return a;
}
// The plain buffer's areas, through the fields the base class makes public.
areas areas_of(const std::strstreambuf& b) {
  areas a = {b.__gbegin, b.__gnext, b.__gend, b.__pbegin, b.__pnext, b.__pend};
  return a;
}

// The pointers against the model; start is the caller's array, or null for a dynamic buffer.
void check_areas(const areas& a, const model& m, char* start) {
  FUZZ_CHECK(a.eb <= a.g && a.g <= a.eg);
  FUZZ_CHECK(a.pb <= a.p && a.p <= a.ep);
  if (!m.has_get) {
    FUZZ_CHECK(a.eb == 0 && a.g == 0 && a.eg == 0);
  } else {
    FUZZ_CHECK(a.eb != 0);
    if (start)
      FUZZ_CHECK(a.eb == start);
    FUZZ_CHECK(a.g - a.eb == m.g);
    if (m.gend < unlimited)
      FUZZ_CHECK(a.eg - a.eb == m.gend);
  }
  if (!m.has_put) {
    FUZZ_CHECK(a.pb == 0 && a.p == 0 && a.ep == 0);
  } else {
    FUZZ_CHECK(a.pb - a.eb == m.pb);
    FUZZ_CHECK(a.p - a.pb == m.p - m.pb);
    if (m.pend < unlimited)
      FUZZ_CHECK(a.ep - a.pb == m.pend - m.pb);
  }
  if (m.dynamic && m.has_put) {
    FUZZ_CHECK(memcmp(a.pb, m.data.data(), m.data.size()) == 0);
  }
}

// A caller's array (two of them, one for each buffer): guard bytes follow its count.
const size_t guard = 16;
char* new_array(const std::string& text) {
  char* bytes = new char[text.size() + guard];
  memcpy(bytes, text.data(), text.size());
  memset(bytes + text.size(), '\x5a', guard);
  return bytes;
}
void check_array(const char* bytes, const model& m) {
  FUZZ_CHECK(memcmp(bytes, m.data.data(), m.data.size()) == 0);
  for (size_t i = m.data.size(); i < m.data.size() + guard; ++i)
    FUZZ_CHECK(bytes[i] == '\x5a');
}

// What an area of n characters at offset from holds for the model: n, up to the NUL when n is 0,
// unlimited when negative.
long long count_of(long n, const std::string& text) {
  return n > 0 ? n : n == 0 ? static_cast<long long>(strlen(text.c_str())) : unlimited;
}

enum kind {
  dynamic_sized, dynamic_counted, caller_array, caller_constant, stream_out_dynamic,
  stream_both_dynamic, stream_in, stream_out_array, stream_both_array, kinds
};

#define SAME(model_value, ...)                                                                   \
  do {                                                                                           \
    long long expected = static_cast<long long>(model_value);                                    \
    FUZZ_CHECK(static_cast<long long>(probe->__VA_ARGS__) == expected);                          \
    FUZZ_CHECK(static_cast<long long>(plain->__VA_ARGS__) == expected);                          \
  } while (0)

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  kind k = static_cast<kind>(in.below(kinds));
  model m = {false, false, 0, 0, false, false, 0, 0, 0, 0, 0, std::string(), 0};
  live_arrays = allocations = 0;
  last_size = 0;

  // The text of a caller's array always ends with a NUL, so that a count of 0 and app find one.
  std::string text;
  long n = 0;
  long long pbeg = -1;
  bool counted = k == dynamic_counted;
  bool array_kind = k == caller_array || k == caller_constant || k == stream_in ||
                    k == stream_out_array || k == stream_both_array;
  bool app = false;
  if (!array_kind) {
    m.dynamic = true;
    m.alsize = k == dynamic_sized ? in.below(80) : counted ? 16 : 0;
  } else {
    text = in.text();
    text += '\0';
    unsigned choice = in.below(3);
    n = choice == 0 ? static_cast<long>(text.size()) - static_cast<long>(in.below(2))
        : choice == 1 ? 0
                      : -1 - static_cast<long>(in.below(100));
    long long count = count_of(n, text);
    m.data = text;
    m.has_get = true;
    m.g = 0;
    if (k == caller_array) {
      if (in.flag()) {
        long long limit = count < static_cast<long long>(text.size()) ? count : text.size();
        pbeg = in.below(static_cast<unsigned>(limit) + 1);
      }
    } else if (k == stream_out_array || k == stream_both_array) {
      app = in.flag();
      pbeg = app ? static_cast<long long>(strlen(text.c_str())) : 0;
    }
    if (pbeg < 0) {
      m.gend = count;
    } else {
      m.gend = pbeg;
      m.has_put = true;
      m.pb = m.p = pbeg;
      long long put_end = pbeg + count < count ? pbeg + count : count;
      if (count >= unlimited)
        put_end = unlimited;
      m.pend = put_end < pbeg ? pbeg : put_end;
    }
  }
  // Over an unlimited count the steps keep to the array the target owns.
  bool unlimited_count = n < 0;
  long long within = unlimited_count ? static_cast<long long>(text.size()) : unlimited;

  char* arrays[2] = {0, 0};
  open_buffer* probe;
  std::strstreambuf* plain;
  std::strstreambuf* plain_held = 0;
  std::istrstream* is_held = 0;
  std::ostrstream* os_held = 0;
  std::strstream* ios_held = 0;
  std::istream* is = 0;
  std::ostream* os = 0;
  switch (k) {
  case dynamic_sized:
    probe = new open_buffer(static_cast<std::streamsize>(m.alsize));
    plain = plain_held = new std::strstreambuf(static_cast<std::streamsize>(m.alsize));
    break;
  case dynamic_counted:
    probe = new open_buffer(counting_alloc, counting_free);
    plain = plain_held = new std::strstreambuf(counting_alloc, counting_free);
    break;
  case stream_out_dynamic:
    probe = new open_buffer(static_cast<std::streamsize>(0));
    os = os_held = new std::ostrstream;
    plain = os_held->rdbuf();
    break;
  case stream_both_dynamic:
    probe = new open_buffer(static_cast<std::streamsize>(0));
    ios_held = new std::strstream;
    is = ios_held;
    os = ios_held;
    plain = ios_held->rdbuf();
    break;
  default:
    arrays[0] = new_array(text);
    arrays[1] = new_array(text);
    if (k == caller_array) {
      probe = new open_buffer(arrays[0], n, pbeg < 0 ? 0 : arrays[0] + pbeg);
      plain = plain_held = new std::strstreambuf(arrays[1], n, pbeg < 0 ? 0 : arrays[1] + pbeg);
    } else if (k == caller_constant || k == stream_in) {
      probe = new open_buffer(static_cast<const char*>(arrays[0]), n);
      if (k == caller_constant) {
        plain = plain_held = new std::strstreambuf(static_cast<const char*>(arrays[1]), n);
      } else {
        is = is_held = n == 0 && in.flag() ? new std::istrstream(arrays[1])
                                           : new std::istrstream(arrays[1], n);
        plain = is_held->rdbuf();
      }
    } else {
      probe = new open_buffer(arrays[0], n, arrays[0] + pbeg);
      openmode mode = app ? std::ios_base::out | std::ios_base::app : std::ios_base::out;
      if (k == stream_out_array) {
        os = os_held = new std::ostrstream(arrays[1], static_cast<int>(n), mode);
        plain = os_held->rdbuf();
      } else {
        ios_held = new std::strstream(arrays[1], static_cast<int>(n), mode | std::ios_base::in);
        is = ios_held;
        os = ios_held;
        plain = ios_held->rdbuf();
      }
    }
    break;
  }

  check_areas(areas_of(*probe), m, arrays[0]);
  check_areas(areas_of(*plain), m, arrays[1]);
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    long long room = m.has_put ? within - m.p : unlimited;
    long long ready = m.has_get ? within - m.g : unlimited;
    switch (in.below(14)) {
    case 0: {
      char c = static_cast<char>(in.byte());
      if (room > 0)
        SAME(m.sputc(c), sputc(c));
      break;
    }
    case 1: {
      std::string run = in.bytes(in.number() % 200);
      if (static_cast<long long>(run.size()) > room)
        run.resize(room > 0 ? static_cast<size_t>(room) : 0);
      long put = 0;
      for (size_t i = 0; i < run.size() && m.sputc(run[i]) != end_of_file; ++i)
        ++put;
      SAME(put, sputn(run.data(), static_cast<std::streamsize>(run.size())));
      break;
    }
    case 2:
      if (ready > 0)
        SAME(m.sgetc(), sgetc());
      break;
    case 3:
      if (ready > 0)
        SAME(m.sbumpc(), sbumpc());
      break;
    case 4: {
      bool matching = in.flag() && m.has_get && m.g > 0 && m.g <= within;
      char c = matching ? m.at(m.g - 1) : static_cast<char>(in.byte());
      if (m.g <= within)
        SAME(m.sputbackc(c), sputbackc(c));
      break;
    }
    case 5:
      if (m.g <= within || !m.has_get)
        SAME(m.sungetc(), sungetc());
      break;
    case 6: {
      static const std::ios_base::seekdir dirs[] = {std::ios_base::beg, std::ios_base::cur,
                                                    std::ios_base::end};
      static const openmode which[] = {std::ios_base::in, std::ios_base::out,
                                       std::ios_base::in | std::ios_base::out};
      std::ios_base::seekdir dir = dirs[in.below(3)];
      openmode w = which[in.below(3)];
      long off = static_cast<long>(in.number() % 600) - 300;
      if (!(unlimited_count && dir == std::ios_base::end))
        SAME(m.seekoff(off, dir, w), pubseekoff(off, dir, w));
      break;
    }
    case 7: {
      static const openmode which[] = {std::ios_base::in, std::ios_base::out,
                                       std::ios_base::in | std::ios_base::out};
      openmode w = which[in.below(3)];
      long pos = static_cast<long>(in.number() % 500) - 50;
      SAME(m.seekpos(pos, w), pubseekpos(pos, w));
      break;
    }
    case 8: {
      bool fl = in.flag();
      probe->freeze(fl);
      if (in.flag() && os_held)
        os_held->freeze(fl);
      else if (ios_held)
        ios_held->freeze(fl);
      else
        plain->freeze(fl);
      m.freeze(fl);
      break;
    }
    case 9: {
      // Taking the array freezes a dynamic buffer; the array is the get area's start.
      char* a = probe->str();
      char* b = os_held ? os_held->str() : ios_held ? ios_held->str()
                        : is_held ? is_held->str() : plain->str();
      m.freeze(false);
      FUZZ_CHECK(a == probe->eb() && b == plain->__gbegin);
      FUZZ_CHECK((a != 0) == m.has_get && (b != 0) == m.has_get);
      if (!m.dynamic)
        FUZZ_CHECK(a == arrays[0] && b == arrays[1]);
      break;
    }
    case 10: {
      int expected = m.pcount();
      FUZZ_CHECK(probe->pcount() == expected && plain->pcount() == expected);
      if (os_held)
        FUZZ_CHECK(os_held->pcount() == expected);
      if (ios_held)
        FUZZ_CHECK(ios_held->pcount() == expected);
      break;
    }
    case 11: {
      // A stream's write: the buffer's, and a short one sets badbit.
      std::string run = in.bytes(in.below(40));
      if (!os || static_cast<long long>(run.size()) > room)
        break;
      long put = 0;
      for (size_t i = 0; i < run.size() && m.sputc(run[i]) != end_of_file; ++i)
        ++put;
      FUZZ_CHECK(probe->sputn(run.data(), static_cast<std::streamsize>(run.size())) == put);
      os->clear();
      os->write(run.data(), static_cast<std::streamsize>(run.size()));
      FUZZ_CHECK(os->bad() == (put < static_cast<long>(run.size())));
      os->clear();
      break;
    }
    case 12: {
      // A stream's read of one character.
      if (!is || ready <= 0)
        break;
      int expected = m.sbumpc();
      FUZZ_CHECK(probe->sbumpc() == expected);
      is->clear();
      FUZZ_CHECK(is->get() == expected);
      FUZZ_CHECK(is->fail() == (expected == end_of_file));
      is->clear();
      break;
    }
    default: {
      // A stream's seek of the get area: tellg then seekg back to where it was, and a putback.
      if (!is || m.g > within)
        break;
      long long where = m.has_get ? m.g : -1;
      is->clear();
      FUZZ_CHECK(static_cast<long long>(is->tellg()) == where);
      is->seekg(0, std::ios_base::beg);
      FUZZ_CHECK(is->fail() == !m.has_get);
      if (m.has_get)
        is->seekg(where);
      char c = static_cast<char>(in.byte());
      int expected = m.sputbackc(c);
      FUZZ_CHECK(probe->sputbackc(c) == expected);
      is->clear();
      is->putback(c);
      FUZZ_CHECK(is->bad() == (expected == end_of_file));
      is->clear();
      break;
    }
    }
    check_areas(areas_of(*probe), m, arrays[0]);
    check_areas(areas_of(*plain), m, arrays[1]);
    if (arrays[0]) {
      check_array(arrays[0], m);
      check_array(arrays[1], m);
    }
    if (counted) {
      // One array each while they hold one; every growth asked for the size the rules give.
      FUZZ_CHECK(live_arrays == (m.has_put ? 2 : 0));
      FUZZ_CHECK(allocations == 2 * m.grows);
      if (m.grows)
        FUZZ_CHECK(last_size == static_cast<size_t>(m.array_size));
    }
  }

  // The destructors release nothing: the arrays go back the way they came.
  char* held[2] = {probe->str(), os_held ? os_held->str() : ios_held ? ios_held->str()
                                                                     : plain->str()};
  delete probe;
  delete plain_held;
  delete is_held;
  delete os_held;
  delete ios_held;
  if (counted) {
    FUZZ_CHECK(live_arrays == (m.has_put ? 2 : 0));
    if (held[0]) {
      counting_free(held[0]);
      counting_free(held[1]);
    }
    FUZZ_CHECK(live_arrays == 0);
  } else if (m.dynamic) {
    delete[] held[0];
    delete[] held[1];
  }
  delete[] arrays[0];
  delete[] arrays[1];
  return 0;
}
