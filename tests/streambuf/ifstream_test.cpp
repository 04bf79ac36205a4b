// basic_ifstream<char>: opening through the member file buffer with in added, the state a failed
// open or close leaves, and reading back what an ofstream wrote: numbers, words and lines.
#include "lorb_test.h"
#include "scratch_files.h"
#include <fcntl.h>
#include <fstream>
#include <limits.h>
#include <string>

typedef std::ios_base io;

namespace {

bool fd_is_open(int fd) { return fcntl(fd, F_GETFD) != -1; }

int fd_of(std::basic_ifstream<char>& in) { return fileno(in.rdbuf()->__file); }

// A folder that does not exist holds no file that could be opened.
const char missing_folder_file[] = "/tmp/lorb-no-such-folder-i5/file";

// A small deterministic generator (the 32-bit LCG of Numerical Recipes).
struct generator {
  unsigned state;
  explicit generator(unsigned seed) : state(seed) {}
  unsigned next() { return state = state * 1664525u + 1013904223u; }
  unsigned below(unsigned n) { return next() % n; }
};

} // namespace

// Constructors.

TEST(a_stream_constructed_from_a_name_opens_it_for_input) {
  lt::scratch_file file("abc");
  std::basic_ifstream<char> in(file.path());
  CHECK(in.is_open());
  CHECK(in.good());
  CHECK_EQ(in.rdbuf()->__mode, io::in);
  std::string word;
  in >> word;
  CHECK(word == "abc");
  CHECK_EQ(in.rdstate(), io::eofbit);
  // Opening for input leaves the file as it was.
  CHECK_STR(file.contents(), "abc");
}

TEST(a_stream_constructed_from_a_string_opens_that_name) {
  lt::scratch_file file("from a string");
  std::string name(file.path());
  std::basic_ifstream<char> in(name);
  CHECK(in.is_open());
  CHECK(in.good());
  CHECK_EQ(in.rdbuf()->__mode, io::in);
  char line[32];
  in.getline(line, sizeof line);
  CHECK_STR(line, "from a string");
}

TEST(the_constructor_adds_in_to_the_mode_given) {
  lt::scratch_file file("keep me");
  std::basic_ifstream<char> binary(file.path(), io::binary);
  CHECK(binary.is_open());
  CHECK_EQ(binary.rdbuf()->__mode, io::in | io::binary);

  // in | out is "r+": the file is kept, not truncated.
  std::basic_ifstream<char> both(file.path(), io::out);
  CHECK(both.is_open());
  CHECK(both.good());
  CHECK_EQ(both.rdbuf()->__mode, io::in | io::out);
  CHECK_STR(file.contents(), "keep me");
}

TEST(a_string_constructor_adds_in_too) {
  lt::scratch_file file("x");
  std::basic_ifstream<char> in(std::string(file.path()), io::binary);
  CHECK(in.is_open());
  CHECK_EQ(in.rdbuf()->__mode, io::in | io::binary);
}

TEST(a_binary_stream_reads_every_byte_as_it_is) {
  const char bytes[] = {'a', '\r', '\n', '\0', 'b', '\x1a', '\xff', '\n'};
  lt::scratch_file file(bytes, sizeof bytes);
  std::basic_ifstream<char> in(file.path(), io::binary);
  char got[sizeof bytes + 4];
  in.read(got, sizeof got);
  CHECK_EQ(in.gcount(), static_cast<std::streamsize>(sizeof bytes));
  CHECK_BYTES(got, static_cast<size_t>(in.gcount()), bytes, sizeof bytes);
  CHECK_EQ(in.rdstate(), io::eofbit | io::failbit);
}

TEST(a_stream_opened_with_ate_starts_at_the_end) {
  lt::scratch_file file("0123456789");
  std::basic_ifstream<char> in(file.path(), io::ate);
  CHECK(in.is_open());
  CHECK_EQ(in.rdbuf()->__mode, io::in | io::ate);
  CHECK(in.tellg() == std::streampos(10));
  CHECK_EQ(in.get(), std::char_traits<char>::eof());
  CHECK_EQ(in.rdstate(), io::eofbit | io::failbit);
}

TEST(a_failed_open_in_the_constructor_sets_failbit) {
  std::basic_ifstream<char> in(missing_folder_file);
  CHECK(!in.is_open());
  CHECK_EQ(in.rdstate(), io::failbit);
  CHECK(!in);

  lt::scratch_file gone;
  gone.remove();
  std::basic_ifstream<char> missing(gone.path());
  CHECK(!missing.is_open());
  CHECK_EQ(missing.rdstate(), io::failbit);
  // Opening for input creates nothing.
  CHECK(!gone.exists());
}

TEST(refused_modes_in_the_constructor_set_failbit_and_keep_the_file) {
  // in | app, in | trunc and in | app | trunc are none of the accepted combinations.
  const io::openmode refused[] = {io::app, io::trunc, io::app | io::trunc, io::app | io::binary,
                                  io::trunc | io::binary};
  for (size_t i = 0; i < sizeof refused / sizeof refused[0]; ++i) {
    lt::scratch_file file("keep");
    std::basic_ifstream<char> in(file.path(), refused[i]);
    if (!CHECK(!in.is_open()) || !CHECK_EQ(in.rdstate(), io::failbit) ||
        !CHECK_STR(file.contents(), "keep"))
      fprintf(stderr, "  with mode 0x%x\n", static_cast<unsigned>(refused[i]));
  }
}

TEST(in_out_trunc_given_to_the_constructor_truncates) {
  lt::scratch_file file("old");
  std::basic_ifstream<char> in(file.path(), io::out | io::trunc);
  CHECK(in.is_open());
  CHECK_EQ(in.rdbuf()->__mode, io::in | io::out | io::trunc);
  CHECK_EQ(file.size(), 0);
}

TEST(a_default_stream_has_no_file_and_is_good) {
  std::basic_ifstream<char> in;
  CHECK(!in.is_open());
  CHECK(in.good());
  CHECK(in.rdbuf()->__file == 0);
  // Reading from it finds the end at once.
  CHECK_EQ(in.get(), std::char_traits<char>::eof());
  CHECK_EQ(in.rdstate(), io::eofbit | io::failbit);
}

TEST(rdbuf_returns_the_member_buffer) {
  lt::scratch_file file("x");
  std::basic_ifstream<char> in(file.path());
  std::basic_filebuf<char>* member = in.rdbuf();
  CHECK(member != 0);
  CHECK(static_cast<std::basic_streambuf<char>*>(member) == in.std::basic_ios<char>::rdbuf());
  CHECK(member->is_open());
  const char* stream_begin = reinterpret_cast<const char*>(&in);
  const char* member_at = reinterpret_cast<const char*>(member);
  CHECK(member_at > stream_begin && member_at < stream_begin + sizeof in);
  // The same buffer whatever the stream's state.
  in.setstate(io::badbit);
  CHECK(in.rdbuf() == member);
}

TEST(an_ifstream_has_no_tie) {
  lt::scratch_file file("x");
  std::basic_ifstream<char> in(file.path());
  CHECK(in.tie() == 0);
  CHECK_EQ(in.flags(), io::skipws | io::dec);
}

// open, close and is_open.

TEST(open_adds_in_and_a_success_clears_the_state) {
  lt::scratch_file file("42");
  std::basic_ifstream<char> in;
  in.setstate(io::eofbit | io::failbit);
  in.open(file.path());
  CHECK(in.is_open());
  CHECK(in.good());
  CHECK_EQ(in.rdbuf()->__mode, io::in);
  int n = 0;
  in >> n;
  CHECK_EQ(n, 42);
}

TEST(open_with_a_string_name_and_a_mode) {
  lt::scratch_file file("text");
  std::basic_ifstream<char> in;
  in.open(std::string(file.path()), io::binary);
  CHECK(in.is_open());
  CHECK(in.good());
  CHECK_EQ(in.rdbuf()->__mode, io::in | io::binary);
}

TEST(a_failed_open_adds_failbit_to_the_state) {
  std::basic_ifstream<char> in;
  in.setstate(io::eofbit);
  in.open(missing_folder_file);
  CHECK(!in.is_open());
  CHECK_EQ(in.rdstate(), io::eofbit | io::failbit);

  lt::scratch_file file("keep");
  std::basic_ifstream<char> refused;
  refused.open(file.path(), io::app);
  CHECK(!refused.is_open());
  CHECK_EQ(refused.rdstate(), io::failbit);
}

TEST(open_on_an_open_stream_sets_failbit_and_keeps_the_first_file) {
  lt::scratch_file first("first");
  lt::scratch_file second("second");
  std::basic_ifstream<char> in(first.path());
  int fd = fd_of(in);
  in.open(second.path());
  CHECK_EQ(in.rdstate(), io::failbit);
  CHECK(in.is_open());
  CHECK_EQ(fd_of(in), fd);
  in.clear();
  std::string word;
  in >> word;
  CHECK(word == "first");
}

TEST(close_closes_the_file_and_keeps_the_state) {
  lt::scratch_file file("x");
  std::basic_ifstream<char> in(file.path());
  int fd = fd_of(in);
  in.close();
  CHECK(!in.is_open());
  CHECK(in.good());
  CHECK(!fd_is_open(fd));
  CHECK(in.rdbuf()->__file == 0);
}

TEST(close_of_a_closed_stream_sets_failbit) {
  std::basic_ifstream<char> never_opened;
  never_opened.close();
  CHECK_EQ(never_opened.rdstate(), io::failbit);

  lt::scratch_file file("x");
  std::basic_ifstream<char> in(file.path());
  in.close();
  CHECK(in.good());
  in.close();
  CHECK_EQ(in.rdstate(), io::failbit);
}

TEST(a_closed_stream_opens_the_next_file) {
  lt::scratch_file first("one");
  lt::scratch_file second("two");
  std::basic_ifstream<char> in(first.path());
  std::string word;
  in >> word;
  CHECK(word == "one");
  CHECK_EQ(in.rdstate(), io::eofbit);
  in.close();
  in.open(second.path());
  CHECK(in.good());
  in >> word;
  CHECK(word == "two");
}

TEST(is_open_follows_the_member_buffer) {
  lt::scratch_file file("x");
  std::basic_ifstream<char> in;
  CHECK(!in.is_open());
  in.open(file.path());
  CHECK(in.is_open());
  CHECK_EQ(in.is_open(), in.rdbuf()->is_open());
  in.close();
  CHECK(!in.is_open());
}

TEST(the_file_is_closed_when_the_stream_is_destroyed) {
  lt::scratch_file file("x");
  int fd;
  {
    std::basic_ifstream<char> in(file.path());
    fd = fd_of(in);
    CHECK(fd_is_open(fd));
  }
  CHECK(!fd_is_open(fd));
}

TEST(a_stream_destroyed_through_a_base_pointer_closes_its_file) {
  lt::scratch_file file("x");
  std::basic_ifstream<char>* in = new std::basic_ifstream<char>(file.path());
  int fd = fd_of(*in);
  std::basic_istream<char>* base = in;
  delete base;
  CHECK(!fd_is_open(fd));
}

// Reading what an ofstream wrote.

TEST(numbers_written_by_an_ofstream_read_back_equal) {
  generator g(11);
  long longs[300];
  unsigned long unsigneds[300];
  double doubles[300];
  short shorts[300];
  const int count = 300;
  for (int i = 0; i < count; ++i) {
    longs[i] = static_cast<long>(g.next()) >> g.below(32);
    unsigneds[i] = g.next() >> g.below(32);
    // n / 8 with |n| < 8000 has at most six significant digits: the default precision keeps it.
    doubles[i] = (static_cast<int>(g.below(16000)) - 8000) / 8.0;
    shorts[i] = static_cast<short>(g.next() >> 16);
  }
  longs[0] = LONG_MIN;
  longs[1] = LONG_MAX;
  unsigneds[0] = ULONG_MAX;
  unsigneds[1] = 0;
  shorts[0] = SHRT_MIN;
  shorts[1] = SHRT_MAX;
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path());
    for (int i = 0; i < count; ++i)
      out << longs[i] << ' ' << unsigneds[i] << (i % 7 ? " " : "\n\t") << doubles[i] << '\n'
          << shorts[i] << ' ';
    CHECK(out.good());
  }
  std::basic_ifstream<char> in(file.path());
  int wrong = 0;
  for (int i = 0; i < count; ++i) {
    long l = 0;
    unsigned long u = 1;
    double d = 0.5;
    short s = 0;
    in >> l >> u >> d >> s;
    if (l != longs[i] || u != unsigneds[i] || d != doubles[i] || s != shorts[i]) {
      if (++wrong < 5)
        fprintf(stderr, "  item %d: %ld %lu %g %d, expected %ld %lu %g %d\n", i, l, u, d, s,
                longs[i], unsigneds[i], doubles[i], shorts[i]);
    }
  }
  CHECK_EQ(wrong, 0);
  CHECK(in.good());
  // Only blanks are left.
  long extra = 77;
  in >> extra;
  CHECK_EQ(in.rdstate(), io::eofbit | io::failbit);
}

TEST(doubles_written_with_precision_17_read_back_exact) {
  generator g(5);
  double values[200];
  for (int i = 0; i < 200; ++i) {
    unsigned long long bits = (static_cast<unsigned long long>(g.next()) << 32) | g.next();
    // Finite values only: an exponent field of all ones is infinity or NaN.
    bits &= ~(1ull << 62);
    memcpy(&values[i], &bits, sizeof bits);
  }
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path());
    out.precision(17);
    for (int i = 0; i < 200; ++i)
      out << values[i] << '\n';
  }
  std::basic_ifstream<char> in(file.path());
  int wrong = 0;
  for (int i = 0; i < 200; ++i) {
    double d = 0;
    in >> d;
    if (memcmp(&d, &values[i], sizeof d) != 0 && ++wrong < 5)
      fprintf(stderr, "  item %d: %.17g, expected %.17g\n", i, d, values[i]);
  }
  CHECK_EQ(wrong, 0);
  CHECK(in.good());
}

TEST(hex_and_octal_numbers_read_back_in_their_base) {
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path());
    out << std::hex << 255 << ' ' << 4096 << ' ' << std::oct << 8 << ' ' << 511 << std::dec << ' '
        << -17;
  }
  std::basic_ifstream<char> in(file.path());
  int a = 0, b = 0, c = 0, d = 0, e = 0;
  in >> std::hex >> a >> b >> std::oct >> c >> d >> std::dec >> e;
  CHECK_EQ(a, 255);
  CHECK_EQ(b, 4096);
  CHECK_EQ(c, 8);
  CHECK_EQ(d, 511);
  CHECK_EQ(e, -17);
  CHECK_EQ(in.rdstate(), io::eofbit);
}

TEST(lines_written_by_an_ofstream_read_back_with_getline) {
  generator g(3);
  std::string lines[120];
  for (int i = 0; i < 120; ++i) {
    // Lengths from 0 to 300, over the printable characters and tabs.
    unsigned length = i < 2 ? i : g.below(301);
    for (unsigned k = 0; k < length; ++k)
      lines[i] += g.below(10) == 0 ? '\t' : static_cast<char>(' ' + g.below(95));
  }
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path());
    for (int i = 0; i < 120; ++i) {
      out << lines[i];
      // The last line has no newline.
      if (i < 119)
        out << std::endl;
    }
  }
  std::basic_ifstream<char> in(file.path());
  int wrong = 0;
  for (int i = 0; i < 120; ++i) {
    std::string line("not read");
    std::getline(in, line);
    if (line != lines[i] && ++wrong < 5)
      fprintf(stderr, "  line %d: \"%s\", expected \"%s\"\n", i, line.c_str(), lines[i].c_str());
    if (i < 119 && !in.good() && ++wrong < 5)
      fprintf(stderr, "  line %d: state %d\n", i, static_cast<int>(in.rdstate()));
  }
  CHECK_EQ(wrong, 0);
  // The unterminated last line was read up to the end of the file.
  CHECK_EQ(in.rdstate(), io::eofbit);
  std::string none("unchanged");
  std::getline(in, none);
  CHECK(in.fail());
}

TEST(getline_into_an_array_counts_the_newline) {
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path());
    out << "abc" << '\n' << "" << '\n' << "0123456789" << '\n' << "end";
  }
  std::basic_ifstream<char> in(file.path());
  char line[8];
  in.getline(line, sizeof line);
  CHECK_STR(line, "abc");
  CHECK_EQ(in.gcount(), 4);
  in.getline(line, sizeof line);
  CHECK_STR(line, "");
  CHECK_EQ(in.gcount(), 1);
  CHECK(in.good());
  // Seven characters fit; the eighth is given back and failbit set.
  in.getline(line, sizeof line);
  CHECK_STR(line, "0123456");
  CHECK_EQ(in.gcount(), 7);
  CHECK_EQ(in.rdstate(), io::failbit);
  in.clear();
  in.getline(line, sizeof line);
  CHECK_STR(line, "789");
  in.getline(line, sizeof line);
  CHECK_STR(line, "end");
  CHECK_EQ(in.gcount(), 3);
  CHECK_EQ(in.rdstate(), io::eofbit);
}

TEST(words_and_characters_read_back) {
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path());
    out << "  alpha\tbeta\n\ngamma" << ' ' << 'x' << "y";
  }
  std::basic_ifstream<char> in(file.path());
  std::string a, b, c;
  char x = 0, y = 0;
  in >> a >> b >> c >> x >> y;
  CHECK(a == "alpha");
  CHECK(b == "beta");
  CHECK(c == "gamma");
  CHECK_EQ(x, 'x');
  CHECK_EQ(y, 'y');
  CHECK(in.good());
  // The character extractor meets the end with failbit alone.
  in >> x;
  CHECK_EQ(in.rdstate(), io::failbit);
  CHECK_EQ(x, 'x');
}

TEST(an_empty_file_reads_nothing) {
  lt::scratch_file file;
  std::basic_ifstream<char> in(file.path());
  CHECK(in.good());
  CHECK_EQ(in.peek(), std::char_traits<char>::eof());
  int n = 5;
  in >> n;
  CHECK(in.fail());
  CHECK(in.eof());
}

TEST(a_large_file_reads_back_whole) {
  const int size = 200000;
  static char written[size], got[size + 1];
  generator g(9);
  for (int i = 0; i < size; ++i)
    written[i] = static_cast<char>(g.next() >> 24);
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path(), io::binary);
    out.write(written, size);
    CHECK(out.good());
  }
  CHECK_EQ(file.size(), size);
  std::basic_ifstream<char> in(file.path(), io::binary);
  in.read(got, size + 1);
  CHECK_EQ(in.gcount(), size);
  CHECK(memcmp(got, written, size) == 0);
  CHECK_EQ(in.rdstate(), io::eofbit | io::failbit);
}

TEST(tellg_and_seekg_move_over_the_file) {
  lt::scratch_file file("0123456789");
  std::basic_ifstream<char> in(file.path());
  CHECK(in.tellg() == std::streampos(0));
  char three[3];
  in.read(three, 3);
  CHECK(in.tellg() == std::streampos(3));
  in.seekg(7);
  CHECK_EQ(in.get(), '7');
  in.seekg(-5, io::cur);
  CHECK_EQ(in.get(), '3');
  in.seekg(-1, io::end);
  CHECK_EQ(in.get(), '9');
  in.seekg(0, io::beg);
  CHECK(in.good());
  CHECK_EQ(in.get(), '0');
  // Before the start: refused.
  in.seekg(-1, io::beg);
  CHECK_EQ(in.rdstate(), io::failbit);
}
