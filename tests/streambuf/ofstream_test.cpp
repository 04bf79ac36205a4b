// basic_ofstream<char>: opening through the member file buffer with out added, the state a failed
// open or close leaves, and formatted output that reaches the file byte for byte.
#include "lorb_test.h"
#include "scratch_files.h"
#include <fcntl.h>
#include <fstream>
#include <iomanip>
#include <string>

typedef std::ios_base io;

namespace {

bool fd_is_open(int fd) { return fcntl(fd, F_GETFD) != -1; }

int fd_of(std::basic_ofstream<char>& out) { return fileno(out.rdbuf()->__file); }

// A folder that does not exist holds no file that could be opened.
const char missing_folder_file[] = "/tmp/lorb-no-such-folder-h4/file";

} // namespace

// Constructors.

TEST(a_stream_constructed_from_a_name_opens_it_for_output_and_truncates) {
  lt::scratch_file file("old contents");
  std::basic_ofstream<char> out(file.path());
  CHECK(out.is_open());
  CHECK(out.good());
  CHECK_EQ(out.rdbuf()->__mode, io::out);
  CHECK_EQ(file.size(), 0);
  out << "new";
  out.flush();
  CHECK_STR(file.contents(), "new");
}

TEST(a_stream_opened_with_trunc_uses_out_trunc) {
  lt::scratch_file file("old contents");
  std::basic_ofstream<char> out(file.path(), io::trunc);
  CHECK(out.is_open());
  CHECK(out.good());
  CHECK_EQ(out.rdbuf()->__mode, io::out | io::trunc);
  CHECK_EQ(file.size(), 0);
  out << "new" << std::flush;
  CHECK_STR(file.contents(), "new");
}

TEST(a_stream_opened_with_app_appends) {
  lt::scratch_file file("old");
  std::basic_ofstream<char> out(file.path(), io::app);
  CHECK(out.is_open());
  CHECK_EQ(out.rdbuf()->__mode, io::out | io::app);
  out << "+new" << std::flush;
  CHECK_STR(file.contents(), "old+new");
}

TEST(a_stream_opened_with_ate_keeps_the_file_and_writes_at_its_end) {
  lt::scratch_file file("old");
  std::basic_ofstream<char> out(file.path(), io::ate);
  CHECK(out.is_open());
  CHECK_EQ(out.rdbuf()->__mode, io::out | io::ate);
  out << "+new" << std::flush;
  CHECK_STR(file.contents(), "old+new");
}

TEST(a_stream_constructed_from_a_string_opens_that_name) {
  lt::scratch_file file("old");
  std::string name(file.path());
  std::basic_ofstream<char> out(name);
  CHECK(out.is_open());
  CHECK(out.good());
  out << "from a string" << std::flush;
  CHECK_STR(file.contents(), "from a string");
}

TEST(a_failed_open_in_the_constructor_sets_failbit) {
  std::basic_ofstream<char> out(missing_folder_file);
  CHECK(!out.is_open());
  CHECK_EQ(out.rdstate(), io::failbit);
  CHECK(!out);
}

TEST(a_refused_mode_in_the_constructor_sets_failbit) {
  lt::scratch_file file("keep");
  std::basic_ofstream<char> out(file.path(), io::app | io::trunc);
  CHECK(!out.is_open());
  CHECK_EQ(out.rdstate(), io::failbit);
  CHECK_STR(file.contents(), "keep");
}

TEST(a_default_stream_has_no_file_and_is_good) {
  std::basic_ofstream<char> out;
  CHECK(!out.is_open());
  CHECK(out.good());
}

TEST(rdbuf_returns_the_member_buffer) {
  lt::scratch_file file;
  std::basic_ofstream<char> out(file.path());
  std::basic_filebuf<char>* member = out.rdbuf();
  CHECK(member != 0);
  CHECK(static_cast<std::basic_streambuf<char>*>(member) == out.std::basic_ios<char>::rdbuf());
  CHECK(member->is_open());
  // The member lies inside the stream object.
  const char* stream_begin = reinterpret_cast<const char*>(&out);
  const char* member_at = reinterpret_cast<const char*>(member);
  CHECK(member_at > stream_begin && member_at < stream_begin + sizeof out);
}

// open, close and is_open.

TEST(open_after_close_opens_the_new_file_and_clears_the_state) {
  lt::scratch_file first;
  lt::scratch_file second("old");
  std::basic_ofstream<char> out(first.path());
  out << "first";
  out.close();
  CHECK(!out.is_open());
  CHECK(out.good());
  CHECK_STR(first.contents(), "first");
  out.setstate(io::eofbit);
  out.open(second.path(), io::app);
  CHECK(out.is_open());
  CHECK(out.good());
  CHECK_EQ(out.rdbuf()->__mode, io::out | io::app);
  out << "+second" << std::flush;
  CHECK_STR(second.contents(), "old+second");
  CHECK_STR(first.contents(), "first");
}

TEST(open_with_a_string_name) {
  lt::scratch_file file("old");
  std::basic_ofstream<char> out;
  out.open(std::string(file.path()));
  CHECK(out.is_open());
  CHECK(out.good());
  CHECK_EQ(file.size(), 0);
}

TEST(open_on_an_open_stream_sets_failbit_and_keeps_the_first_file) {
  lt::scratch_file first;
  lt::scratch_file second("second");
  std::basic_ofstream<char> out(first.path());
  int fd = fd_of(out);
  out.open(second.path());
  CHECK_EQ(out.rdstate(), io::failbit);
  CHECK(out.is_open());
  CHECK_EQ(fd_of(out), fd);
  CHECK_STR(second.contents(), "second");
  out.clear();
  out << "to the first" << std::flush;
  CHECK_STR(first.contents(), "to the first");
}

TEST(a_failed_open_adds_failbit_to_the_state) {
  std::basic_ofstream<char> out;
  out.setstate(io::eofbit);
  out.open(missing_folder_file);
  CHECK(!out.is_open());
  CHECK_EQ(out.rdstate(), io::eofbit | io::failbit);
}

TEST(close_of_a_closed_stream_sets_failbit) {
  std::basic_ofstream<char> never_opened;
  never_opened.close();
  CHECK_EQ(never_opened.rdstate(), io::failbit);

  lt::scratch_file file;
  std::basic_ofstream<char> out(file.path());
  out.close();
  CHECK(out.good());
  out.close();
  CHECK_EQ(out.rdstate(), io::failbit);
}

TEST(close_closes_the_file_and_hands_over_the_data) {
  lt::scratch_file file;
  std::basic_ofstream<char> out(file.path());
  int fd = fd_of(out);
  out << "unflushed";
  CHECK_EQ(file.size(), 0);
  out.close();
  CHECK(!fd_is_open(fd));
  CHECK_STR(file.contents(), "unflushed");
}

TEST(is_open_follows_the_member_buffer) {
  lt::scratch_file file;
  std::basic_ofstream<char> out;
  CHECK(!out.is_open());
  out.open(file.path());
  CHECK(out.is_open());
  CHECK_EQ(out.is_open(), out.rdbuf()->is_open());
  out.close();
  CHECK(!out.is_open());
}

TEST(the_file_is_closed_when_the_stream_is_destroyed) {
  lt::scratch_file file;
  int fd;
  {
    std::basic_ofstream<char> out(file.path());
    fd = fd_of(out);
    CHECK(fd_is_open(fd));
    out << "written at the end";
    CHECK_EQ(file.size(), 0);
  }
  CHECK(!fd_is_open(fd));
  CHECK_STR(file.contents(), "written at the end");
}

TEST(a_stream_destroyed_through_a_base_pointer_closes_its_file) {
  lt::scratch_file file;
  std::basic_ostream<char>* out = new std::basic_ofstream<char>(file.path());
  *out << 42;
  delete out;
  CHECK_STR(file.contents(), "42");
}

// Formatted output reaching the file.

TEST(a_formatted_table_reaches_the_file_byte_for_byte) {
  lt::scratch_file file;
  {
    std::basic_ofstream<char> out(file.path());
    out << std::setw(10) << std::left << "name" << '|' << std::setw(8) << std::setfill('*')
        << std::internal << -1234 << '|' << std::fixed << std::setprecision(2) << 3.14159
        << std::endl;
    out << std::setw(10) << std::left << "x" << '|' << std::setw(8) << std::internal << 56 << '|'
        << std::setprecision(3) << 2.5 << '\n';
    out << std::setw(6) << std::right << std::hex << std::showbase << 255 << '|' << std::setw(8)
        << std::internal << 255 << '\n';
    CHECK(out.good());
  }
  CHECK_STR(file.contents(), "name      |-***1234|3.14\n"
                             "x*********|******56|2.500\n"
                             "**0xff|0x****ff\n");
}

TEST(endl_hands_the_line_to_the_file_at_once) {
  lt::scratch_file file;
  std::basic_ofstream<char> out(file.path());
  out << "line" << 1;
  CHECK_EQ(file.size(), 0);
  out << std::endl;
  CHECK_STR(file.contents(), "line1\n");
}

TEST(writing_to_a_full_device_fails_at_the_flush) {
  std::basic_ofstream<char> out("/dev/full");
  CHECK(out.is_open());
  out << "lost";
  CHECK(out.good());
  out.flush();
  CHECK(out.bad());
}
