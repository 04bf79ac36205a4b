// The text extractors under a random sequence over random text: the C-string, string and character
// extractors with random widths, both getlines and both gets with random counts and delimiters,
// ignore, read, readsome, peek, putback and seeks. std::getline and the string extractor are
// compared with a model; every array extraction must stay inside its count.
#include "fuzz_input.h"
#include <istream>
#include <sstream>
#include <string.h>
#include <string>

namespace {

bool is_c_space(unsigned char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

// Set for each input: a string stream over no text has no position at all.
bool text_is_empty;

// Where the get pointer stands, whatever the stream's state.
long position(std::istringstream& s) {
  long p = static_cast<long>(s.rdbuf()->pubseekoff(0, std::ios_base::cur, std::ios_base::in));
  return p == -1 && text_is_empty ? 0 : p;
}

// An array of count characters followed by guard bytes that nothing may touch.
struct guarded_array {
  enum { guard = 8 };
  explicit guarded_array(size_t count) : count(count), bytes(new char[count + guard]) {
    memset(bytes, '\x5a', count + guard);
  }
  ~guarded_array() { delete[] bytes; }
  bool guard_intact() const {
    for (size_t i = count; i < count + guard; ++i)
      if (bytes[i] != '\x5a')
        return false;
    return true;
  }
  // The stored text ends at a NUL within the count (when the count leaves room for one).
  bool terminated() const { return count == 0 || memchr(bytes, 0, count) != 0; }
  size_t count;
  char* bytes;

private:
  guarded_array(const guarded_array&);
  guarded_array& operator=(const guarded_array&);
};

// std::getline: everything up to the delimiter, which is taken and not stored.
void check_getline(std::istringstream& s, const std::string& text, char delim) {
  long at = position(s);
  bool was_good = s.good();
  std::string line = "untouched";
  std::getline(s, line, delim);
  if (!was_good) {
    FUZZ_CHECK(s.fail());
    FUZZ_CHECK(position(s) == at);
    return;
  }
  size_t from = static_cast<size_t>(at);
  size_t stop = text.find(delim, from);
  std::string expected = text.substr(from, stop == std::string::npos ? std::string::npos
                                                                     : stop - from);
  FUZZ_CHECK(line == expected);
  long after = stop == std::string::npos ? static_cast<long>(text.size())
                                         : static_cast<long>(stop + 1);
  FUZZ_CHECK(position(s) == after);
  FUZZ_CHECK(s.eof() == (stop == std::string::npos));
  FUZZ_CHECK(s.fail() == (stop == std::string::npos && expected.empty()));
}

// The string extractor: blanks skipped (under skipws), then a word up to a blank, the end or the
// width, which is then reset.
void check_string_word(std::istringstream& s, const std::string& text, std::streamsize width) {
  s.width(width);
  long at = position(s);
  bool was_good = s.good();
  bool skip = (s.flags() & std::ios_base::skipws) != 0;
  std::string word = "untouched";
  s >> word;
  if (!was_good) {
    FUZZ_CHECK(s.fail());
    FUZZ_CHECK(position(s) == at);
    FUZZ_CHECK(word == "untouched");
    return;
  }
  size_t i = static_cast<size_t>(at);
  if (skip)
    while (i < text.size() && is_c_space(static_cast<unsigned char>(text[i])))
      ++i;
  if (i == text.size()) {
    FUZZ_CHECK(s.eof());
    FUZZ_CHECK(s.fail());
    return;
  }
  size_t first = i;
  size_t limit = width > 0 ? static_cast<size_t>(width) : std::string::npos;
  while (i < text.size() && !is_c_space(static_cast<unsigned char>(text[i])) && i - first < limit)
    ++i;
  FUZZ_CHECK(word == text.substr(first, i - first));
  FUZZ_CHECK(position(s) == static_cast<long>(i));
  FUZZ_CHECK(s.width() == 0);
  FUZZ_CHECK(s.fail() == (i == first));
  FUZZ_CHECK(s.eof() == (i == text.size() && i - first < limit));
}

void c_string_word(std::istringstream& s, std::streamsize width) {
  size_t count = width > 0 ? static_cast<size_t>(width) : 1024;
  guarded_array array(count);
  s.width(width);
  s >> array.bytes;
  FUZZ_CHECK(array.guard_intact());
  FUZZ_CHECK(array.terminated() || (width <= 0 && array.count == 0));
  FUZZ_CHECK(s.width() == 0);
}

void array_line(std::istringstream& s, fuzz_input& in, bool keep_delimiter) {
  std::streamsize n = static_cast<std::streamsize>(in.below(40));
  char delim = static_cast<char>(in.byte());
  guarded_array array(n > 0 ? static_cast<size_t>(n) : 1);
  long at = position(s);
  if (keep_delimiter)
    s.get(array.bytes, n, delim);
  else
    s.getline(array.bytes, n, delim);
  FUZZ_CHECK(array.guard_intact());
  FUZZ_CHECK(s.gcount() >= 0 && s.gcount() <= (n > 0 ? n : 1));
  FUZZ_CHECK(position(s) - at == static_cast<long>(s.gcount()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  std::string text = in.text();
  text_is_empty = text.empty();
  std::istringstream s(text);
  unsigned steps = in.below(32) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    unsigned op = in.below(17);
    switch (op) {
    case 0: c_string_word(s, static_cast<std::streamsize>(in.below(24)) - 2); break;
    case 1: check_string_word(s, text, static_cast<std::streamsize>(in.below(24)) - 2); break;
    case 2: check_getline(s, text, static_cast<char>(in.byte())); break;
    case 3: array_line(s, in, false); break;
    case 4: array_line(s, in, true); break;
    case 5: {
      std::stringbuf sink;
      s.get(sink, static_cast<char>(in.byte()));
      FUZZ_CHECK(sink.str().size() == static_cast<size_t>(s.gcount()));
      break;
    }
    case 6: {
      long at = position(s);
      s.ignore(static_cast<std::streamsize>(in.below(40)) - 1, static_cast<int>(in.byte()));
      FUZZ_CHECK(position(s) - at == static_cast<long>(s.gcount()));
      break;
    }
    case 7:
    case 8: {
      std::streamsize n = static_cast<std::streamsize>(in.below(40));
      guarded_array array(static_cast<size_t>(n));
      long at = position(s);
      std::streamsize got = op == 7 ? (s.read(array.bytes, n), s.gcount()) : s.readsome(array.bytes, n);
      FUZZ_CHECK(array.guard_intact());
      FUZZ_CHECK(got >= 0 && got <= n);
      FUZZ_CHECK(position(s) - at == static_cast<long>(got));
      if (got > 0)
        FUZZ_CHECK(memcmp(array.bytes, text.data() + at, static_cast<size_t>(got)) == 0);
      break;
    }
    case 9: s.clear(); break;
    case 10: {
      char c = 0;
      s >> c;
      break;
    }
    case 11: {
      long at = position(s);
      int c = s.get();
      FUZZ_CHECK(c == -1 || (at < static_cast<long>(text.size()) &&
                             c == static_cast<unsigned char>(text[static_cast<size_t>(at)])));
      break;
    }
    case 12: {
      long at = position(s);
      int c = s.peek();
      FUZZ_CHECK(position(s) == at);
      FUZZ_CHECK(c == -1 || c == static_cast<unsigned char>(text[static_cast<size_t>(at)]));
      break;
    }
    case 13: s.putback(static_cast<char>(in.byte())); break;
    case 14: s.unget(); break;
    case 15: s.seekg(static_cast<std::streamoff>(in.below(text.size() + 3)) - 1); break;
    default: s.flags(s.flags() ^ std::ios_base::skipws); break;
    }
    FUZZ_CHECK(position(s) >= -1 && position(s) <= static_cast<long>(text.size()));
  }
  return 0;
}
