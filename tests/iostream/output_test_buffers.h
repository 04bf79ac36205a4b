// What the output-stream tests share: a buffer that records what reaches it and counts its
// syncs, ones that refuse characters or fail to sync, a source to copy from, a seekable one, and
// a locale that lacks one facet.
#ifndef OUTPUT_TEST_BUFFERS_H
#define OUTPUT_TEST_BUFFERS_H

#include <locale>
#include <ostream>
#include <streambuf>
#include <string.h>

// Compares everything a recording buffer received with a string literal (which may hold '\0').
#define CHECK_WRITTEN(buffer, literal)                                                             \
  CHECK_BYTES((buffer).text, static_cast<size_t>((buffer).length), literal, sizeof(literal) - 1)

// No put area, so every character reaches overflow, which keeps it. Accepts `room` characters
// and then refuses (-1); sync answers sync_result. Counts the virtual calls the streams make.
struct recording_buffer : std::basic_streambuf<char> {
  char text[1024];
  int length;
  int room;
  int overflows;
  int xsputns;
  int syncs;
  int sync_result;

  explicit recording_buffer(int accepted = 1024)
      : length(0), room(accepted), overflows(0), xsputns(0), syncs(0), sync_result(0) {
    memset(text, 0, sizeof text);
  }

  int_type overflow(int_type c) {
    ++overflows;
    if (c == traits_type::eof() || length >= room)
      return traits_type::eof();
    text[length++] = traits_type::to_char_type(c);
    return c;
  }
  std::streamsize xsputn(const char* s, std::streamsize n) {
    ++xsputns;
    return std::basic_streambuf<char>::xsputn(s, n);
  }
  int sync() {
    ++syncs;
    return sync_result;
  }
};

// Takes `accepted` characters, then every overflow fails.
struct full_after_buffer : recording_buffer {
  explicit full_after_buffer(int accepted) : recording_buffer(accepted) {}
};

// Records every character, but every sync fails.
struct failing_sync_buffer : recording_buffer {
  failing_sync_buffer() { sync_result = -1; }
};

// A put area of `size` characters over area[]; overflow refuses and counts, so a character that
// lands in area[] went by the fast path.
struct area_buffer : std::basic_streambuf<char> {
  char area[16];
  int overflows;
  int last_overflow;

  explicit area_buffer(int size) : overflows(0), last_overflow(0) {
    memset(area, 0, sizeof area);
    setp(area, area + size);
  }
  long written() const { return pptr() - area; }
  int_type overflow(int_type c) {
    ++overflows;
    last_overflow = c;
    return traits_type::eof();
  }
};

// A source to copy from: a get area over a copy of text; when it runs out, uflow hands out the
// characters of `more` one by one without touching the get pointer, then end-of-file. pbackfail
// records what it was given and refuses.
struct source_buffer : std::basic_streambuf<char> {
  char area[64];
  const char* more;
  int uflows;
  int pbackfails;
  int last_pbackfail;

  explicit source_buffer(const char* text, const char* after = "")
      : more(after), uflows(0), pbackfails(0), last_pbackfail(0) {
    size_t n = strlen(text);
    memcpy(area, text, n);
    setg(area, area, area + n);
  }
  // From now on every character comes from uflow: the get area is null.
  void drop_get_area() { setg(0, 0, 0); }

  using std::basic_streambuf<char>::eback;
  using std::basic_streambuf<char>::gptr;
  using std::basic_streambuf<char>::egptr;

  int_type uflow() {
    ++uflows;
    if (!*more)
      return traits_type::eof();
    return traits_type::to_int_type(*more++);
  }
  int_type pbackfail(int_type c) {
    ++pbackfails;
    last_pbackfail = c;
    return traits_type::eof();
  }
};

// Seeks answer `answer` and record what they were asked.
struct seekable_buffer : recording_buffer {
  int seekoffs;
  int seekposs;
  off_type last_offset;
  std::ios_base::seekdir last_dir;
  std::ios_base::openmode last_which;
  pos_type answer;

  explicit seekable_buffer(off_type at)
      : seekoffs(0), seekposs(0), last_offset(0), last_dir(std::ios_base::beg), last_which(0),
        answer(at) {}

  pos_type seekoff(off_type off, std::ios_base::seekdir dir, std::ios_base::openmode which) {
    ++seekoffs;
    last_offset = off;
    last_dir = dir;
    last_which = which;
    return answer;
  }
  pos_type seekpos(pos_type pos, std::ios_base::openmode which) {
    ++seekposs;
    last_offset = pos;
    last_which = which;
    return answer;
  }
};

// A locale like the global one whose table has no entry for _Facet: the copy gets a table of its
// own by taking a numpunct stand-in; the entry is then emptied and its hold released.
template <class _Facet> std::locale locale_without() {
  std::locale copy(std::locale(), new std::numpunct<char>);
  std::locale::facet*& entry = copy.__imp->facets.data[_Facet::id.__number()];
  std::locale::facet* held = entry;
  entry = 0;
  held->__release();
  return copy;
}

#endif
