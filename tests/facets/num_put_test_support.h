// What the num_put tests share: a stream buffer that records what it is given (and can refuse
// characters after a count), a stream over it that carries flags, width, precision, fill and
// locale, a numpunct with chosen values, the format builders made reachable, and CHECK_PUT, which
// formats one value through both library instances and compares each with the expected text.
#ifndef NUM_PUT_TEST_SUPPORT_H
#define NUM_PUT_TEST_SUPPORT_H

#include "lorb_test.h"
#include <locale>
#include <ostream>
#include <string.h>
#include <string>

typedef std::ostreambuf_iterator<char> buffer_iterator;
typedef std::num_put<char, buffer_iterator> buffer_num_put;
typedef std::num_put<char, char*> array_num_put;

// Records every character overflow receives (there is no put area); with a limit of n, the
// characters after the first n are refused with end-of-file and counted.
struct recording_buffer : std::basic_streambuf<char> {
  std::string text;
  long limit; // -1: no limit
  long refused;

  recording_buffer() : limit(-1), refused(0) {}

protected:
  int_type overflow(int_type c) {
    if (limit >= 0 && static_cast<long>(text.size()) >= limit) {
      ++refused;
      return traits_type::eof();
    }
    text += traits_type::to_char_type(c);
    return c;
  }
};

// Built ahead of the stream so that the stream is handed a constructed buffer.
struct recording_buffer_holder {
  recording_buffer buffer;
};

// A stream over its own recording buffer: the ios_base argument of every put, and the target of
// the ostreambuf_iterator instance.
struct formatting_stream : recording_buffer_holder, std::basic_ostream<char> {
  formatting_stream() : std::basic_ostream<char>(&buffer) {}
};

// A numpunct with the values a test chooses; managed (refs 0), so the locale deletes it.
struct chosen_numpunct : std::numpunct<char> {
  chosen_numpunct(const std::string& grouping, char separator, char point, const char* truename,
                  const char* falsename)
      : std::numpunct<char>(0), chosen_grouping(grouping), separator(separator), point(point),
        true_text(truename), false_text(falsename) {}

  std::string chosen_grouping;
  char separator;
  char point;
  const char* true_text;
  const char* false_text;

protected:
  char do_decimal_point() const { return point; }
  char do_thousands_sep() const { return separator; }
  string_type do_grouping() const { return chosen_grouping; }
  string_type do_truename() const { return true_text; }
  string_type do_falsename() const { return false_text; }
};

// The classic locale with a numpunct of these values in place of its own.
inline std::locale punctuated(const std::string& grouping, char separator, char point = '.',
                              const char* truename = "true", const char* falsename = "false") {
  return std::locale(std::locale::classic(),
                     new chosen_numpunct(grouping, separator, point, truename, falsename));
}

// The char* instance: locales hold only the stream one, so the tests build their own.
struct array_facet : array_num_put {
  array_facet() : array_num_put(1) {}
  ~array_facet() {}
};

// The protected format builders, reachable from the tests.
struct format_builders : array_num_put {
  static void integer_format(char* fmt, char conv, long flags) { int_fmt(fmt, conv, flags); }
  static void float_format(char* fmt, char length, std::ios_base& str) {
    float_fmt(fmt, length, str);
  }
};

// What the char* instance's array holds where nothing has been written.
const char untouched = '\x7f';

// Formats v with s's flags, width, precision, fill and locale, first through the char* instance
// into an array, then (with the width put back) through the stream's own instance into its
// buffer. Both texts must be expected, the char* instance must return the end of what it wrote
// and write nothing beyond, the iterator must not have failed, and both instances must leave the
// stream with the same width (which the test may then check).
template <class T>
void check_put(formatting_stream& s, T v, const std::string& expected, const char* file, int line,
               const char* what) {
  static char array[8192];
  long width = s.width();
  memset(array, untouched, sizeof array);
  array_facet through_array;
  char* end = through_array.put(array, s, s.fill(), v);
  long width_after_array = s.width();
  if (!lt::check(end >= array && end < array + sizeof array, file, line,
                 "the char* instance returns a pointer into the array"))
    return;
  lt::check_bytes(array, end - array, expected.data(), expected.size(), file, line, what);
  lt::check(*end == untouched, file, line, "the char* instance writes nothing past its result");

  s.width(width);
  s.buffer.text.clear();
  const buffer_num_put& through_buffer = std::use_facet<buffer_num_put>(s.getloc());
  buffer_iterator after = through_buffer.put(buffer_iterator(&s.buffer), s, s.fill(), v);
  lt::check(!after.failed(), file, line, "the ostreambuf_iterator instance did not fail");
  lt::check(after.__buffer == &s.buffer, file, line, "the returned iterator writes the buffer");
  lt::check_bytes(s.buffer.text.data(), s.buffer.text.size(), expected.data(), expected.size(),
                  file, line, what);
  lt::check(s.width() == width_after_array, file, line, "both instances leave the same width");
}

#define CHECK_PUT(stream, value, expected)                                                         \
  check_put((stream), (value), (expected), __FILE__, __LINE__, "text of " #value)

// What snprintf writes for one value, for comparison with texts the C library decides.
template <class T> std::string c_text(const char* format, T v) {
  char text[1024];
  int n = snprintf(text, sizeof text, format, v);
  return std::string(text, n > 0 ? static_cast<size_t>(n) : 0);
}

template <class T> std::string c_text(const char* format, int precision, T v) {
  char text[1024];
  int n = snprintf(text, sizeof text, format, precision, v);
  return std::string(text, n > 0 ? static_cast<size_t>(n) : 0);
}

#endif
