// The character, C-string and string extractors, std::getline for strings, and ws.
#include <__lorb/filebuf_lines.h>
#include <__lorb/give_back.h>
#include <__lorb/istream.h>
#include <string>

namespace std {

namespace {
typedef char_traits<char> traits;
const int end_of_file = -1;
} // namespace

// Kept: the end of input sets failbit alone, not eofbit; the width is neither used nor reset.
basic_istream<char>& __vel_extract_char(basic_istream<char>& is, char& c) {
  ios_base::iostate error = ios_base::failbit;
  basic_istream<char>::sentry ok(is, false);
  if (ok) {
    int got = is.rdbuf()->sbumpc();
    if (got != end_of_file) {
      c = traits::to_char_type(got);
      error = ios_base::goodbit;
    }
  }
  is.setstate(error);
  return is;
}

// At most width - 1 characters when the width is positive. The space test comes before the end
// test, so the end reaches ctype as the character 0xFF. Kept: a NUL byte ends the word and is
// dropped, not given back.
basic_istream<char>& __vel_extract_c_string(basic_istream<char>& is, char* s) {
  ios_base::iostate error = ios_base::goodbit;
  basic_istream<char>::sentry ok(is, false);
  char* first = s;
  if (ok) {
    long limit = is.width() > 0 ? is.width() : 2147483647;
    const ctype<char>& ct = use_facet<ctype<char> >(is.__locale);
    basic_streambuf<char>* sb = is.rdbuf();
    for (;;) {
      if (--limit < 1)
        break;
      int c = sb->sbumpc();
      if (ct.is(ctype_base::space, traits::to_char_type(c))) {
        __vel::give_back(sb, c);
        break;
      }
      if (c == end_of_file) {
        error = ios_base::eofbit;
        break;
      }
      if (c == 0)
        break;
      *s++ = traits::to_char_type(c);
    }
  }
  is.width(0);
  *s = 0;
  if (s == first)
    error |= ios_base::failbit;
  is.setstate(error);
  return is;
}

namespace {
// The words and lines are gathered here and appended to the string a buffer at a time.
const size_t gather_size = 512;

struct gathered_text {
  explicit gathered_text(string& s) : target(s), length(0) {}
  void add(char c) {
    if (length == gather_size)
      flush();
    text[length++] = c;
  }
  void flush() {
    target.append(text, length);
    length = 0;
  }
  string& target;
  size_t length;
  char text[gather_size];
};
} // namespace

// A positive width limits the word; otherwise the limit is 4294967294 characters. The end is
// tested before white space; reaching the limit sets no bit. The width is then reset.
basic_istream<char>& operator>>(basic_istream<char>& is, string& s) {
  ios_base::iostate error = ios_base::goodbit;
  basic_istream<char>::sentry ok(is, false);
  unsigned long taken = 0;
  if (ok) {
    s.erase();
    const ctype<char>& ct = use_facet<ctype<char> >(is.__locale);
    basic_streambuf<char>* sb = is.rdbuf();
    unsigned long limit = is.width() > 0 ? static_cast<unsigned long>(is.width()) : 4294967294ul;
    gathered_text word(s);
    for (; taken < limit; ++taken) {
      int c = sb->sbumpc();
      if (c == end_of_file) {
        error = ios_base::eofbit;
        break;
      }
      if (ct.is(ctype_base::space, traits::to_char_type(c))) {
        __vel::give_back(sb, c);
        break;
      }
      word.add(traits::to_char_type(c));
    }
    word.flush();
  }
  is.width(0);
  if (taken == 0)
    error |= ios_base::failbit;
  is.setstate(error);
  return is;
}

// Takes characters up to delim (taken, not stored) or the end (eofbit); a line of max_size()
// characters stops with failbit. Nothing taken at all is failbit.
basic_istream<char>& getline(basic_istream<char>& is, string& s, char delim) {
  ios_base::iostate error = ios_base::goodbit;
  basic_istream<char>::sentry ok(is, true);
  unsigned long taken = 0;
  if (ok) {
    basic_streambuf<char>* sb = is.rdbuf();
    // A plain file buffer hands its characters straight from the C library: the whole line is
    // taken there in one call.
    if (FILE* file = __vel::plain_input_file(sb)) {
      bool delim_met;
      taken = __vel::read_line(file, delim, s, delim_met);
      if (!delim_met)
        error = ios_base::eofbit;
      if (taken == 0)
        error |= ios_base::failbit;
      is.setstate(error);
      return is;
    }
    s.erase();
    const unsigned long limit = s.max_size();
    gathered_text line(s);
    for (;;) {
      int c = sb->sbumpc();
      if (c == end_of_file) {
        error = ios_base::eofbit;
        break;
      }
      ++taken;
      if (traits::to_char_type(c) == delim)
        break;
      if (taken > limit) {
        __vel::give_back(sb, c);
        error = ios_base::failbit;
        break;
      }
      line.add(traits::to_char_type(c));
    }
    line.flush();
  }
  if (taken == 0)
    error |= ios_base::failbit;
  is.setstate(error);
  return is;
}

basic_istream<char>& getline(basic_istream<char>& is, string& s) {
  return getline(is, s, is.widen('\n'));
}

// An unformatted input operation: a stream that is not good gets failbit and is not read.
basic_istream<char>& ws(basic_istream<char>& is) {
  basic_istream<char>::sentry ok(is, true);
  if (!ok)
    return is;
  const ctype<char>& ct = use_facet<ctype<char> >(is.__locale);
  basic_streambuf<char>* sb = is.rdbuf();
  for (int c = sb->sgetc();; c = sb->snextc()) {
    if (c == end_of_file) {
      is.setstate(ios_base::eofbit);
      break;
    }
    if (!ct.is(ctype_base::space, traits::to_char_type(c)))
      break;
  }
  return is;
}

} // namespace std
