// basic_fstream<char>: the mode goes to the member file buffer as it is given (in | out when none
// is), the state a failed open or close leaves, and reading back what was written after a seek.
#include "lorb_test.h"
#include "scratch_files.h"
#include <fcntl.h>
#include <fstream>
#include <string>

typedef std::ios_base io;

namespace {

bool fd_is_open(int fd) { return fcntl(fd, F_GETFD) != -1; }

int fd_of(std::basic_fstream<char>& f) { return fileno(f.rdbuf()->__file); }

const char missing_folder_file[] = "/tmp/lorb-no-such-folder-f6/file";

// The rest of the stream from where it stands, read character by character.
std::string rest_of(std::basic_fstream<char>& f) {
  std::string text;
  int c;
  while ((c = f.get()) != std::char_traits<char>::eof())
    text += static_cast<char>(c);
  return text;
}

} // namespace

// Constructors and the modes they pass on.

TEST(the_default_mode_is_in_out_and_keeps_the_file) {
  lt::scratch_file file("old contents");
  std::basic_fstream<char> f(file.path());
  CHECK(f.is_open());
  CHECK(f.good());
  CHECK_EQ(f.rdbuf()->__mode, io::in | io::out);
  CHECK_STR(file.contents(), "old contents");
  std::string word;
  f >> word;
  CHECK(word == "old");
}

TEST(the_default_mode_does_not_create_a_missing_file) {
  lt::scratch_file gone;
  gone.remove();
  std::basic_fstream<char> f(gone.path());
  CHECK(!f.is_open());
  CHECK_EQ(f.rdstate(), io::failbit);
  CHECK(!gone.exists());
}

TEST(a_stream_constructed_from_a_string_opens_that_name) {
  lt::scratch_file file("by string");
  std::basic_fstream<char> f(std::string(file.path()));
  CHECK(f.is_open());
  CHECK(f.good());
  CHECK_EQ(f.rdbuf()->__mode, io::in | io::out);
  std::basic_fstream<char> g(std::string(file.path()), io::in);
  CHECK(g.is_open());
  CHECK_EQ(g.rdbuf()->__mode, io::in);
}

TEST(out_alone_is_used_as_given_and_truncates) {
  lt::scratch_file file("old");
  std::basic_fstream<char> f(file.path(), io::out);
  CHECK(f.is_open());
  CHECK_EQ(f.rdbuf()->__mode, io::out);
  CHECK_EQ(file.size(), 0);
  f << "new" << std::flush;
  CHECK_STR(file.contents(), "new");
  // Opened for writing only: nothing can be read.
  f.seekg(0);
  CHECK_EQ(f.get(), std::char_traits<char>::eof());
  CHECK(f.fail());
}

TEST(in_alone_is_used_as_given_and_refuses_output) {
  lt::scratch_file file("read only");
  std::basic_fstream<char> f(file.path(), io::in);
  CHECK(f.is_open());
  CHECK_EQ(f.rdbuf()->__mode, io::in);
  CHECK_EQ(f.get(), 'r');
  f.seekp(0);
  f.put('X');
  f.flush();
  CHECK(f.bad());
  CHECK_STR(file.contents(), "read only");
}

TEST(in_out_trunc_creates_or_empties_the_file) {
  lt::scratch_file file("old");
  {
    std::basic_fstream<char> f(file.path(), io::in | io::out | io::trunc);
    CHECK(f.is_open());
    CHECK_EQ(f.rdbuf()->__mode, io::in | io::out | io::trunc);
    CHECK_EQ(file.size(), 0);
  }
  file.remove();
  std::basic_fstream<char> f(file.path(), io::in | io::out | io::trunc);
  CHECK(f.is_open());
  CHECK(file.exists());
}

TEST(out_app_appends) {
  lt::scratch_file file("old");
  std::basic_fstream<char> f(file.path(), io::out | io::app);
  CHECK(f.is_open());
  CHECK_EQ(f.rdbuf()->__mode, io::out | io::app);
  f << "+new" << std::flush;
  CHECK_STR(file.contents(), "old+new");
}

TEST(out_ate_keeps_the_file_and_starts_at_its_end) {
  lt::scratch_file file("old");
  std::basic_fstream<char> f(file.path(), io::out | io::ate);
  CHECK(f.is_open());
  CHECK_EQ(f.rdbuf()->__mode, io::out | io::ate);
  CHECK(f.tellp() == std::streampos(3));
  f << "+new" << std::flush;
  CHECK_STR(file.contents(), "old+new");
}

TEST(modes_outside_the_table_are_refused_and_keep_the_file) {
  // No direction is added, so app alone, trunc alone and in | app are all refused.
  const io::openmode refused[] = {
      io::app,    io::trunc,          io::in | io::app,  io::out | io::app | io::trunc,
      io::binary, io::in | io::trunc, io::ate | io::app, io::openmode(0)};
  for (size_t i = 0; i < sizeof refused / sizeof refused[0]; ++i) {
    lt::scratch_file file("keep");
    std::basic_fstream<char> f(file.path(), refused[i]);
    if (!CHECK(!f.is_open()) || !CHECK_EQ(f.rdstate(), io::failbit) ||
        !CHECK_STR(file.contents(), "keep"))
      fprintf(stderr, "  with mode 0x%x\n", static_cast<unsigned>(refused[i]));
  }
}

TEST(a_failed_open_in_the_constructor_sets_failbit) {
  std::basic_fstream<char> f(missing_folder_file, io::in | io::out | io::trunc);
  CHECK(!f.is_open());
  CHECK_EQ(f.rdstate(), io::failbit);
}

TEST(a_default_stream_has_no_file_and_is_good) {
  std::basic_fstream<char> f;
  CHECK(!f.is_open());
  CHECK(f.good());
  CHECK(f.tie() == 0);
  CHECK_EQ(f.flags(), io::skipws | io::dec);
}

TEST(rdbuf_returns_the_member_buffer_seen_by_both_directions) {
  lt::scratch_file file("x");
  std::basic_fstream<char> f(file.path());
  std::basic_filebuf<char>* member = f.rdbuf();
  CHECK(member != 0);
  std::basic_istream<char>& as_input = f;
  std::basic_ostream<char>& as_output = f;
  CHECK(as_input.rdbuf() == member);
  CHECK(as_output.rdbuf() == member);
  const char* stream_begin = reinterpret_cast<const char*>(&f);
  const char* member_at = reinterpret_cast<const char*>(member);
  CHECK(member_at > stream_begin && member_at < stream_begin + sizeof f);
}

// open, close and is_open.

TEST(open_uses_the_mode_as_given_and_a_success_clears_the_state) {
  lt::scratch_file file("old");
  std::basic_fstream<char> f;
  f.setstate(io::eofbit | io::failbit);
  f.open(file.path(), io::out);
  CHECK(f.is_open());
  CHECK(f.good());
  CHECK_EQ(f.rdbuf()->__mode, io::out);
  CHECK_EQ(file.size(), 0);
}

TEST(open_without_a_mode_uses_in_out) {
  lt::scratch_file file("kept");
  std::basic_fstream<char> f;
  f.open(file.path());
  CHECK(f.is_open());
  CHECK_EQ(f.rdbuf()->__mode, io::in | io::out);
  CHECK_STR(file.contents(), "kept");

  std::basic_fstream<char> g;
  g.open(std::string(file.path()));
  CHECK(g.is_open());
  CHECK_EQ(g.rdbuf()->__mode, io::in | io::out);
}

TEST(a_failed_open_adds_failbit_to_the_state) {
  std::basic_fstream<char> f;
  f.setstate(io::eofbit);
  f.open(missing_folder_file);
  CHECK(!f.is_open());
  CHECK_EQ(f.rdstate(), io::eofbit | io::failbit);
}

TEST(open_on_an_open_stream_sets_failbit_and_keeps_the_first_file) {
  lt::scratch_file first("first");
  lt::scratch_file second("second");
  std::basic_fstream<char> f(first.path());
  int fd = fd_of(f);
  f.open(second.path(), io::out);
  CHECK_EQ(f.rdstate(), io::failbit);
  CHECK(f.is_open());
  CHECK_EQ(fd_of(f), fd);
  CHECK_STR(second.contents(), "second");
}

TEST(close_hands_over_the_data_and_closes_the_file) {
  lt::scratch_file file;
  std::basic_fstream<char> f(file.path(), io::out);
  int fd = fd_of(f);
  f << "unflushed " << 12;
  CHECK_EQ(file.size(), 0);
  f.close();
  CHECK(f.good());
  CHECK(!f.is_open());
  CHECK(!fd_is_open(fd));
  CHECK_STR(file.contents(), "unflushed 12");
  f.close();
  CHECK_EQ(f.rdstate(), io::failbit);
}

TEST(a_closed_stream_opens_the_next_file) {
  lt::scratch_file first("one");
  lt::scratch_file second("two");
  std::basic_fstream<char> f(first.path());
  f.close();
  f.open(second.path());
  CHECK(f.good());
  std::string word;
  f >> word;
  CHECK(word == "two");
}

TEST(the_file_is_closed_when_the_stream_is_destroyed) {
  lt::scratch_file file;
  int fd;
  {
    std::basic_fstream<char> f(file.path(), io::out);
    fd = fd_of(f);
    f << "written at the end";
    CHECK_EQ(file.size(), 0);
  }
  CHECK(!fd_is_open(fd));
  CHECK_STR(file.contents(), "written at the end");
}

TEST(a_stream_destroyed_through_a_base_pointer_closes_its_file) {
  lt::scratch_file file;
  std::basic_fstream<char>* f = new std::basic_fstream<char>(file.path(), io::out);
  int fd = fd_of(*f);
  *f << 42;
  std::basic_iostream<char>* base = f;
  delete base;
  CHECK(!fd_is_open(fd));
  CHECK_STR(file.contents(), "42");
}

// Reading what was written.

TEST(what_was_written_reads_back_after_seekg) {
  lt::scratch_file file;
  std::basic_fstream<char> f(file.path(), io::in | io::out | io::trunc);
  f << -12 << ' ' << 2.5 << ' ' << "word" << '\n' << "a whole line" << '\n';
  CHECK(f.tellp() == std::streampos(26));
  f.seekg(0);
  CHECK(f.good());
  int n = 0;
  double d = 0;
  std::string word, line;
  f >> n >> d >> word;
  f.ignore();
  std::getline(f, line);
  CHECK_EQ(n, -12);
  CHECK_EQ(d, 2.5);
  CHECK(word == "word");
  CHECK(line == "a whole line");
  CHECK(f.good());
  CHECK_EQ(f.get(), std::char_traits<char>::eof());
}

TEST(writing_after_reading_goes_where_seekp_says) {
  lt::scratch_file file("hello world\n");
  std::basic_fstream<char> f(file.path());
  std::string first;
  f >> first;
  CHECK(first == "hello");
  f.seekp(6);
  f << "WORLD";
  f.seekp(0, io::end);
  f << "more\n";
  f.seekg(0);
  CHECK_STR(rest_of(f).c_str(), "hello WORLD\nmore\n");
  CHECK_STR(file.contents(), "hello WORLD\nmore\n");
}

TEST(many_numbers_read_back_after_a_seek_to_the_start) {
  lt::scratch_file file;
  std::basic_fstream<char> f(file.path(), io::in | io::out | io::trunc);
  for (int i = -500; i < 500; ++i)
    f << i * 7919 << (i % 10 ? ' ' : '\n');
  f.seekg(0, io::beg);
  int wrong = 0;
  for (int i = -500; i < 500; ++i) {
    int n = 0;
    f >> n;
    if (n != i * 7919 && ++wrong < 5)
      fprintf(stderr, "  %d read as %d\n", i * 7919, n);
  }
  CHECK_EQ(wrong, 0);
  CHECK(f.good());
  int extra = 0;
  f >> extra;
  CHECK_EQ(f.rdstate(), io::eofbit | io::failbit);
}

TEST(a_stream_read_to_its_end_reads_again_after_clear_and_seekg) {
  lt::scratch_file file("abc");
  std::basic_fstream<char> f(file.path());
  CHECK_STR(rest_of(f).c_str(), "abc");
  CHECK_EQ(f.rdstate(), io::eofbit | io::failbit);
  f.clear();
  f.seekg(1);
  CHECK(f.good());
  CHECK_STR(rest_of(f).c_str(), "bc");
}

TEST(tellg_and_tellp_follow_the_one_file_position) {
  lt::scratch_file file("0123456789");
  std::basic_fstream<char> f(file.path());
  f.seekg(4);
  CHECK(f.tellg() == std::streampos(4));
  CHECK(f.tellp() == std::streampos(4));
  f.seekp(8);
  CHECK(f.tellg() == std::streampos(8));
  CHECK_EQ(f.get(), '8');
}
