// istringstream, ostringstream and stringstream: their constructors and modes, str() and str(s),
// reading back what was written, round trips of numbers and text, the stream seeks, and the
// release of the array when a stream goes.
#include "stringbuf_test_support.h"
#include <limits.h>
#include <string>

namespace {

bool same(const std::string& actual, const std::string& expected) {
  return CHECK_BYTES(actual.data(), actual.size(), expected.data(), expected.size());
}

io::openmode mode_of(const std::basic_stringbuf<char>* buffer) { return buffer->__mode; }

} // namespace

// Constructors and modes.

TEST(an_istringstream_adds_in_to_its_mode) {
  std::istringstream plain;
  CHECK(mode_of(plain.rdbuf()) == io::in);
  std::istringstream with_out(io::out);
  CHECK(mode_of(with_out.rdbuf()) == (io::in | io::out));
  std::istringstream given("abc", io::out);
  CHECK(mode_of(given.rdbuf()) == (io::in | io::out));
  CHECK(given.good());
  CHECK(given.rdbuf() == static_cast<std::basic_ios<char>&>(given).rdbuf());
}

TEST(an_ostringstream_adds_out_to_its_mode) {
  std::ostringstream plain;
  CHECK(mode_of(plain.rdbuf()) == io::out);
  std::ostringstream with_in(io::in);
  CHECK(mode_of(with_in.rdbuf()) == (io::in | io::out));
  std::ostringstream given("abc", io::app);
  CHECK(mode_of(given.rdbuf()) == (io::out | io::app));
  CHECK(given.good());
}

TEST(a_stringstream_takes_its_mode_as_given) {
  std::stringstream plain;
  CHECK(mode_of(plain.rdbuf()) == (io::in | io::out));
  std::stringstream reader(io::in);
  CHECK(mode_of(reader.rdbuf()) == io::in);
  std::stringstream writer("abc", io::out);
  CHECK(mode_of(writer.rdbuf()) == io::out);
}

TEST(default_streams_hold_an_empty_string_and_allocate_nothing) {
  int before = array_news;
  std::istringstream in;
  std::ostringstream out;
  std::stringstream both;
  CHECK_EQ(array_news, before);
  CHECK(in.str().empty());
  CHECK(out.str().empty());
  CHECK(both.str().empty());
  CHECK(in.good());
  CHECK(out.good());
  CHECK(both.good());
}

// istringstream.

TEST(an_istringstream_reads_its_string) {
  std::istringstream in("12 -34 word 5.5");
  int a = 0, b = 0;
  std::string w;
  double d = 0;
  in >> a >> b >> w >> d;
  CHECK_EQ(a, 12);
  CHECK_EQ(b, -34);
  CHECK_STR(w.c_str(), "word");
  CHECK_EQ(d, 5.5);
  CHECK(!in.fail());
  CHECK(in.eof());
  int more = 7;
  in >> more;
  CHECK(in.fail());
}

TEST(an_empty_istringstream_fails_at_once_with_end_of_file) {
  std::istringstream in;
  int x = 3;
  in >> x;
  CHECK(in.fail());
  CHECK(in.eof());
  CHECK(!in.bad());
  std::istringstream given("");
  CHECK_EQ(given.get(), -1);
  CHECK(given.fail());
  CHECK(given.eof());
}

TEST(an_istringstream_str_is_the_whole_string_whatever_was_read) {
  std::istringstream in("alpha beta");
  std::string w;
  in >> w;
  same(in.str(), "alpha beta");
  in >> w;
  same(in.str(), "alpha beta");
}

TEST(an_istringstream_does_not_write) {
  std::istringstream in("abc");
  CHECK_EQ(in.rdbuf()->sputc('x'), -1);
  same(in.str(), "abc");
  std::istringstream with_out("abc", io::out);
  CHECK_EQ(with_out.rdbuf()->sputc('x'), 'x');
  same(with_out.str(), "xbc");
}

TEST(an_istringstream_reads_every_byte) {
  std::string text;
  for (int c = 0; c < 256; ++c)
    text += static_cast<char>(c);
  std::istringstream in(text);
  for (int c = 0; c < 256; ++c)
    CHECK_EQ(in.get(), c);
  CHECK_EQ(in.get(), -1);
  CHECK(in.eof());
}

TEST(an_istringstream_puts_back_only_what_it_read) {
  std::istringstream in("ab");
  CHECK_EQ(in.get(), 'a');
  in.putback('a');
  CHECK(in.good());
  CHECK_EQ(in.get(), 'a');
  in.putback('z');
  CHECK(in.bad());
  same(in.str(), "ab");
}

TEST(a_stringstream_puts_back_over_what_it_read) {
  std::stringstream both("ab");
  CHECK_EQ(both.get(), 'a');
  both.putback('z');
  CHECK(both.good());
  same(both.str(), "zb");
  CHECK_EQ(both.get(), 'z');
}

TEST(putback_of_0xff_over_another_character_is_stored_yet_reported_as_failure) {
  // The buffer returns the stored character sign-extended, and 0xff comes back as end of file.
  std::stringstream both("ab");
  CHECK_EQ(both.get(), 'a');
  both.putback('\xff');
  CHECK(both.bad());
  same(both.str(), "\xff"
                   "b");
}

// ostringstream.

TEST(an_ostringstream_collects_what_is_written) {
  std::ostringstream out;
  out << 42 << ' ' << "abc" << ' ' << -7L << ' ' << 'c' << ' ' << 2.5;
  CHECK(out.good());
  same(out.str(), "42 abc -7 c 2.5");
}

TEST(an_ostringstream_given_a_string_writes_over_its_start) {
  std::ostringstream out("abc");
  out << "x";
  same(out.str(), "xbc");
  out << "yzw";
  same(out.str(), "xyzw");
}

TEST(an_ostringstream_given_a_string_with_ate_or_app_writes_after_it) {
  std::ostringstream at_end("abc", io::ate);
  at_end << "x";
  same(at_end.str(), "abcx");
  std::ostringstream appending("abc", io::app);
  appending << "xy" << 1;
  same(appending.str(), "abcxy1");
}

TEST(an_ostringstream_does_not_read) {
  std::ostringstream out("abc");
  CHECK_EQ(out.rdbuf()->sgetc(), -1);
  CHECK_EQ(out.rdbuf()->sbumpc(), -1);
}

TEST(an_ostringstream_takes_a_long_text) {
  std::string expected;
  std::ostringstream out;
  for (int i = 0; i < 20000; ++i) {
    char c = static_cast<char>('a' + i % 26);
    out << c;
    expected += c;
  }
  CHECK(out.good());
  same(out.str(), expected);
}

// stringstream.

TEST(a_stringstream_reads_back_what_was_written) {
  std::stringstream both;
  both << 123 << ' ' << "word" << ' ' << 4.5 << '\n' << "a line" << '\n';
  int i = 0;
  std::string w, line;
  double d = 0;
  both >> i >> w >> d;
  CHECK_EQ(i, 123);
  CHECK_STR(w.c_str(), "word");
  CHECK_EQ(d, 4.5);
  CHECK_EQ(both.get(), '\n');
  std::getline(both, line);
  CHECK_STR(line.c_str(), "a line");
  CHECK_EQ(both.get(), -1);
  CHECK(both.eof());
}

TEST(a_stringstream_reads_what_is_written_after_reading_to_the_end) {
  std::stringstream both;
  both << "ab";
  std::string w;
  both >> w;
  CHECK_STR(w.c_str(), "ab");
  CHECK(both.eof());
  both.clear();
  both << "cd";
  both >> w;
  CHECK_STR(w.c_str(), "cd");
  same(both.str(), "abcd");
}

TEST(a_stringstream_given_a_string_reads_it_and_writes_over_its_start) {
  std::stringstream both("hello");
  both << "J";
  std::string w;
  both >> w;
  CHECK_STR(w.c_str(), "Jello");
  same(both.str(), "Jello");
}

TEST(a_stringstream_given_a_string_with_app_writes_after_it) {
  std::stringstream both("12", io::in | io::out | io::app);
  both << "34";
  int n = 0;
  both >> n;
  CHECK_EQ(n, 1234);
}

TEST(a_stringstream_without_out_refuses_writes) {
  std::stringstream reader("abc", io::in);
  reader << "xyz";
  CHECK(reader.fail());
  CHECK(!reader.bad());
  same(reader.str(), "abc");
  reader.clear();
  reader.put('x');
  CHECK(reader.bad());
  same(reader.str(), "abc");
}

TEST(a_stringstream_without_in_refuses_reads) {
  std::stringstream writer(io::out);
  writer << "12";
  int n = 5;
  writer >> n;
  CHECK(writer.fail());
  CHECK(writer.eof());
  same(writer.str(), "12");
}

// str(s).

TEST(str_of_a_string_replaces_the_content_of_each_stream) {
  std::istringstream in("old text");
  std::string w;
  in >> w;
  in.str("new");
  in >> w;
  CHECK_STR(w.c_str(), "new");
  same(in.str(), "new");

  std::ostringstream out;
  out << "hello";
  out.str("ab");
  same(out.str(), "ab");
  out << "c";
  same(out.str(), "cb");
  out.str("");
  same(out.str(), "");
  out << "z";
  same(out.str(), "z");

  std::stringstream both;
  both << "first";
  both.str("second 2");
  int n = 0;
  both >> w >> n;
  CHECK_STR(w.c_str(), "second");
  CHECK_EQ(n, 2);
}

TEST(str_of_a_string_keeps_app_for_the_next_write) {
  std::ostringstream out("x", io::app);
  out.str("ab");
  out << "c";
  same(out.str(), "abc");
}

TEST(str_of_a_string_does_not_touch_the_stream_state) {
  std::istringstream in("1");
  int n = 0;
  in >> n >> n;
  CHECK(in.fail());
  in.str("2");
  CHECK(in.fail());
  in.clear();
  in >> n;
  CHECK_EQ(n, 2);
}

// Round trips.

TEST(integers_round_trip_through_a_stringstream) {
  static const long edges[] = {0, 1, -1, 9, 10, -10, 99, 100, INT_MAX, INT_MIN, LONG_MAX, LONG_MIN};
  const int edge_count = sizeof edges / sizeof edges[0];
  generator g(1);
  std::stringstream both;
  long written[2000];
  for (int i = 0; i < 2000; ++i) {
    written[i] = i < edge_count ? edges[i] : static_cast<long>(g.next_word());
    both << written[i] << ' ';
  }
  for (int i = 0; i < 2000; ++i) {
    long read = 0;
    both >> read;
    if (!CHECK_EQ(read, written[i]))
      break;
  }
  CHECK(both.good());
  long extra = 0;
  both >> extra;
  CHECK(both.fail());
}

TEST(unsigned_integers_round_trip_in_each_base) {
  static const io::fmtflags bases[] = {io::dec, io::oct, io::hex};
  generator g(2);
  for (int b = 0; b < 3; ++b)
    for (int i = 0; i < 500; ++i) {
      unsigned long value = i == 0 ? ULONG_MAX : i == 1 ? 0 : g.next_word();
      std::stringstream both;
      both.setf(bases[b], io::basefield);
      both << value;
      unsigned long read = 1;
      both >> read;
      if (!CHECK_EQ(read, value))
        return;
    }
}

TEST(doubles_round_trip_with_17_digits) {
  generator g(3);
  std::stringstream both;
  both.precision(17);
  double written[1000];
  for (int i = 0; i < 1000; ++i) {
    double mantissa = static_cast<double>(g.next_word()) / 4294967296.0 + 0.5;
    int exponent = static_cast<int>(g.next() % 600) - 300;
    double value = mantissa;
    for (int e = 0; e < (exponent < 0 ? -exponent : exponent); ++e)
      value = exponent < 0 ? value / 2 : value * 2;
    written[i] = i % 2 ? -value : value;
    both << written[i] << '\n';
  }
  for (int i = 0; i < 1000; ++i) {
    double read = 0;
    both >> read;
    if (!CHECK_EQ(read, written[i]))
      break;
  }
}

TEST(strings_and_lines_round_trip) {
  generator g(4);
  std::stringstream both;
  std::string lines[300];
  for (int i = 0; i < 300; ++i) {
    unsigned long length = g.next() % 80;
    for (unsigned long k = 0; k < length; ++k)
      lines[i] += static_cast<char>(' ' + g.next() % 95);
    both << lines[i] << '\n';
  }
  for (int i = 0; i < 300; ++i) {
    std::string read;
    std::getline(both, read);
    if (!same(read, lines[i]))
      break;
  }
  std::string after;
  CHECK(!std::getline(both, after));
}

TEST(words_round_trip_and_every_character_is_kept_by_str) {
  std::ostringstream out;
  std::string expected;
  for (int i = 0; i < 100; ++i) {
    std::string word(1 + i % 7, static_cast<char>('a' + i % 26));
    out << word << ' ';
    expected += word + ' ';
  }
  same(out.str(), expected);
  std::istringstream in(out.str());
  for (int i = 0; i < 100; ++i) {
    std::string word;
    in >> word;
    if (!same(word, std::string(1 + i % 7, static_cast<char>('a' + i % 26))))
      break;
  }
}

// The stream seeks.

TEST(tellg_and_seekg_move_through_an_istringstream) {
  std::istringstream in("hello world");
  CHECK_EQ(offset_of(in.tellg()), 0);
  std::string w;
  in >> w;
  CHECK_EQ(offset_of(in.tellg()), 5);
  in.seekg(6);
  in >> w;
  CHECK_STR(w.c_str(), "world");
  CHECK(in.eof());
  CHECK(!in.fail());
  CHECK_EQ(offset_of(in.tellg()), 11);
  in.seekg(0);
  CHECK(in.good());
  in >> w;
  CHECK_STR(w.c_str(), "hello");
  in.seekg(-2, io::end);
  in >> w;
  CHECK_STR(w.c_str(), "ld");
  in.seekg(1, io::beg);
  in.seekg(2, io::cur);
  CHECK_EQ(in.get(), 'l');
}

TEST(seekg_beyond_the_text_fails) {
  std::istringstream in("abc");
  in.seekg(3);
  CHECK(in.good());
  in.seekg(4);
  CHECK(in.fail());
  CHECK_EQ(offset_of(in.tellg()), invalid);
  in.clear();
  CHECK_EQ(offset_of(in.tellg()), 3);
  in.seekg(-4, io::end);
  CHECK(in.fail());
  in.clear();
  in.seekg(-1, io::beg);
  CHECK(in.fail());
}

TEST(tellg_of_an_empty_istringstream_is_invalid) {
  std::istringstream in;
  CHECK_EQ(offset_of(in.tellg()), invalid);
  in.seekg(0);
  CHECK(in.fail());
}

TEST(tellp_and_seekp_move_through_an_ostringstream) {
  std::ostringstream out;
  out << "hello";
  CHECK_EQ(offset_of(out.tellp()), 5);
  out.seekp(0);
  out << "J";
  CHECK_EQ(offset_of(out.tellp()), 1);
  same(out.str(), "Jello");
  out.seekp(0, io::end);
  out << "!";
  same(out.str(), "Jello!");
  out.seekp(-2, io::cur);
  out << "O";
  same(out.str(), "JellO!");
  out.seekp(10);
  CHECK(out.fail());
  CHECK_EQ(offset_of(out.tellp()), invalid);
  out.clear();
  CHECK_EQ(offset_of(out.tellp()), 5);
}

TEST(tellp_of_an_empty_ostringstream_is_invalid) {
  std::ostringstream out;
  CHECK_EQ(offset_of(out.tellp()), invalid);
  out.seekp(0);
  CHECK(out.fail());
  std::ostringstream given("abc");
  CHECK_EQ(offset_of(given.tellp()), 0);
  std::ostringstream appending("abc", io::app);
  CHECK_EQ(offset_of(appending.tellp()), 3);
}

TEST(a_stringstream_keeps_read_and_write_positions_apart) {
  std::stringstream both;
  both << "abcdef";
  CHECK_EQ(both.get(), 'a');
  CHECK_EQ(offset_of(both.tellg()), 1);
  CHECK_EQ(offset_of(both.tellp()), 6);
  both.seekp(2);
  both << 'X';
  same(both.str(), "abXdef");
  CHECK_EQ(offset_of(both.tellg()), 1);
  CHECK_EQ(both.get(), 'b');
  CHECK_EQ(both.get(), 'X');
  both.seekg(0);
  CHECK_EQ(offset_of(both.tellp()), 3);
  CHECK_EQ(both.get(), 'a');
}

// Destruction.

TEST(each_stream_releases_its_array) {
  std::string text(300, 'q');
  int news = array_news, deletes = array_deletes;
  { std::istringstream in(text); }
  CHECK_EQ(array_news - news, 1);
  CHECK_EQ(array_deletes - deletes, 1);
  news = array_news, deletes = array_deletes;
  {
    std::ostringstream out;
    for (int i = 0; i < 300; ++i)
      out << 'x';
  }
  // 300 characters grow the array five times: 64, 128, 192, 256, 320.
  CHECK_EQ(array_news - news, 5);
  CHECK_EQ(array_deletes - deletes, 5);
  news = array_news, deletes = array_deletes;
  {
    std::stringstream both(text);
    both << text;
    both.str("short");
    both << "more";
    std::string w;
    both >> w;
  }
  CHECK(array_news > news);
  CHECK_EQ(array_news - news, array_deletes - deletes);
}

TEST(streams_made_and_dropped_in_a_loop_keep_new_and_delete_in_balance) {
  int news = array_news, deletes = array_deletes;
  for (int i = 0; i < 200; ++i) {
    std::stringstream both;
    both << i << ' ' << std::string(i, 'z');
    int n = -1;
    both >> n;
    CHECK_EQ(n, i);
    std::ostringstream out("seed", io::app);
    out << i;
    std::istringstream in(out.str());
  }
  CHECK(array_news - news >= 400);
  CHECK_EQ(array_news - news, array_deletes - deletes);
}
