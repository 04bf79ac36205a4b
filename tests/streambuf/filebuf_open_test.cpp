// basic_filebuf<char>: the open-mode table, open with every mode it accepts and refuses, ate,
// close, is_open, and the rule that stdin, stdout and stderr are never closed.
#include "lorb_test.h"
#include "scratch_files.h"
#include <errno.h>
#include <fcntl.h>
#include <fstream>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

typedef std::basic_filebuf<char> filebuf;
typedef std::ios_base io;

// Every fopen of this program, the library's own included, passes through here first, so a test
// sees the mode strings that open chose, in the order it tried them.
namespace {
char fopen_modes_seen[64];
void forget_fopen_modes() { fopen_modes_seen[0] = '\0'; }
} // namespace

extern "C" FILE* fopen(const char* name, const char* mode) {
  if (fopen_modes_seen[0])
    strncat(fopen_modes_seen, " ", sizeof fopen_modes_seen - strlen(fopen_modes_seen) - 1);
  strncat(fopen_modes_seen, mode, sizeof fopen_modes_seen - strlen(fopen_modes_seen) - 1);
  return fopen64(name, mode);
}

namespace {

// Writes text through the buffer and hands its result to the C library.
bool put_text(filebuf& buffer, const char* text) {
  std::streamsize length = static_cast<std::streamsize>(strlen(text));
  return buffer.sputn(text, length) == length && buffer.pubsync() == 0;
}

// Reads what is left through the buffer, one character at a time.
const char* read_rest(filebuf& buffer) {
  static char text[256];
  size_t length = 0;
  for (int c; length < sizeof text - 1 && (c = buffer.sbumpc()) != -1;)
    text[length++] = static_cast<char>(c);
  text[length] = '\0';
  return text;
}

bool fd_is_open(int fd) { return fcntl(fd, F_GETFD) != -1; }

} // namespace

// The table itself, entry by entry, and the zero entry that ends it.

TEST(the_open_mode_table_lists_the_twelve_modes_in_order) {
  const std::__vel_open_mode* table = std::__vel_open_modes;
  CHECK_EQ(table[0].mode, 0x10);
  CHECK_STR(table[0].fopen_mode, "w");
  CHECK_EQ(table[1].mode, 0x11);
  CHECK_STR(table[1].fopen_mode, "a");
  CHECK_EQ(table[2].mode, 0x30);
  CHECK_STR(table[2].fopen_mode, "w");
  CHECK_EQ(table[3].mode, 0x08);
  CHECK_STR(table[3].fopen_mode, "r");
  CHECK_EQ(table[4].mode, 0x18);
  CHECK_STR(table[4].fopen_mode, "r+");
  CHECK_EQ(table[5].mode, 0x38);
  CHECK_STR(table[5].fopen_mode, "w+");
  CHECK_EQ(table[6].mode, 0x14);
  CHECK_STR(table[6].fopen_mode, "wb");
  CHECK_EQ(table[7].mode, 0x15);
  CHECK_STR(table[7].fopen_mode, "ab");
  CHECK_EQ(table[8].mode, 0x34);
  CHECK_STR(table[8].fopen_mode, "wb");
  CHECK_EQ(table[9].mode, 0x0C);
  CHECK_STR(table[9].fopen_mode, "rb");
  CHECK_EQ(table[10].mode, 0x1C);
  CHECK_STR(table[10].fopen_mode, "r+b");
  CHECK_EQ(table[11].mode, 0x3C);
  CHECK_STR(table[11].fopen_mode, "w+b");
}

TEST(the_open_mode_table_ends_with_a_zero_entry) {
  CHECK_EQ(std::__vel_open_modes[12].mode, 0);
  CHECK(std::__vel_open_modes[12].fopen_mode == 0);
}

TEST(open_hands_each_accepted_mode_to_fopen_with_its_table_string) {
  for (int i = 0; std::__vel_open_modes[i].fopen_mode; ++i) {
    lt::scratch_file file("x");
    filebuf buffer;
    forget_fopen_modes();
    CHECK(buffer.open(file.path(), std::__vel_open_modes[i].mode) == &buffer);
    CHECK_STR(fopen_modes_seen, std::__vel_open_modes[i].fopen_mode);
  }
}

// What each mode string does to the file.

TEST(out_truncates_an_existing_file) {
  lt::scratch_file file("old contents");
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK_EQ(file.size(), 0);
  CHECK(put_text(buffer, "new"));
  CHECK_STR(file.contents(), "new");
}

TEST(out_creates_a_missing_file) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK(file.exists());
}

TEST(out_trunc_truncates_an_existing_file) {
  lt::scratch_file file("old contents");
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::out | io::trunc) == &buffer);
  CHECK_EQ(file.size(), 0);
  CHECK(put_text(buffer, "new"));
  CHECK_STR(file.contents(), "new");
}

TEST(out_app_appends_even_after_a_seek_to_the_start) {
  lt::scratch_file file("old");
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::out | io::app) == &buffer);
  CHECK(put_text(buffer, "+1"));
  CHECK_EQ(static_cast<std::streamoff>(buffer.pubseekoff(0, io::beg)), 0);
  CHECK(put_text(buffer, "+2"));
  CHECK_STR(file.contents(), "old+1+2");
}

TEST(out_app_creates_a_missing_file) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::out | io::app) == &buffer);
  CHECK(put_text(buffer, "new"));
  CHECK_STR(file.contents(), "new");
}

TEST(in_needs_an_existing_file) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == 0);
  CHECK(!buffer.is_open());
  CHECK(!file.exists());
}

TEST(in_reads_the_file_and_cannot_write_it) {
  lt::scratch_file file("abc");
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.sputc('x'), -1);
  CHECK_STR(read_rest(buffer), "abc");
  CHECK_STR(file.contents(), "abc");
}

TEST(in_out_needs_an_existing_file) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::in | io::out) == 0);
  CHECK(!buffer.is_open());
  CHECK(!file.exists());
}

TEST(in_out_keeps_the_contents_and_writes_over_them) {
  lt::scratch_file file("hello");
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::in | io::out) == &buffer);
  CHECK_STR(file.contents(), "hello");
  CHECK(put_text(buffer, "J"));
  CHECK_STR(file.contents(), "Jello");
}

TEST(in_out_trunc_truncates_and_reads_back_what_it_wrote) {
  lt::scratch_file file("old contents");
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::in | io::out | io::trunc) == &buffer);
  CHECK_EQ(file.size(), 0);
  CHECK(put_text(buffer, "new"));
  CHECK_EQ(static_cast<std::streamoff>(buffer.pubseekoff(0, io::beg)), 0);
  CHECK_STR(read_rest(buffer), "new");
}

TEST(binary_modes_behave_as_their_text_modes) {
  lt::scratch_file truncated("old");
  filebuf out_binary;
  CHECK(out_binary.open(truncated.path(), io::out | io::binary) == &out_binary);
  CHECK_EQ(truncated.size(), 0);

  lt::scratch_file trunc_binary_file("old");
  filebuf trunc_binary;
  CHECK(trunc_binary.open(trunc_binary_file.path(), io::out | io::trunc | io::binary) ==
        &trunc_binary);
  CHECK_EQ(trunc_binary_file.size(), 0);

  lt::scratch_file appended("old");
  filebuf app_binary;
  CHECK(app_binary.open(appended.path(), io::out | io::app | io::binary) == &app_binary);
  CHECK(put_text(app_binary, "+"));
  CHECK_STR(appended.contents(), "old+");

  lt::scratch_file read("a\0b", 3);
  filebuf in_binary;
  CHECK(in_binary.open(read.path(), io::in | io::binary) == &in_binary);
  CHECK_EQ(in_binary.sbumpc(), 'a');
  CHECK_EQ(in_binary.sbumpc(), 0);
  CHECK_EQ(in_binary.sbumpc(), 'b');

  lt::scratch_file kept("hello");
  filebuf in_out_binary;
  CHECK(in_out_binary.open(kept.path(), io::in | io::out | io::binary) == &in_out_binary);
  CHECK(put_text(in_out_binary, "J"));
  CHECK_STR(kept.contents(), "Jello");

  lt::scratch_file emptied("old");
  filebuf all_binary;
  CHECK(all_binary.open(emptied.path(), io::in | io::out | io::trunc | io::binary) == &all_binary);
  CHECK_EQ(emptied.size(), 0);

  lt::scratch_file missing;
  missing.remove();
  filebuf missing_in;
  CHECK(missing_in.open(missing.path(), io::in | io::binary) == 0);
  filebuf missing_in_out;
  CHECK(missing_in_out.open(missing.path(), io::in | io::out | io::binary) == 0);
  CHECK(!missing.exists());
}

// Refused combinations: no fopen, no file, the recorded mode as it was.

namespace {
void check_refused(io::openmode mode) {
  lt::scratch_file file("keep");
  filebuf buffer;
  buffer.__mode = io::binary;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), mode) == 0);
  CHECK(!buffer.is_open());
  CHECK(buffer.__file == 0);
  CHECK_EQ(buffer.__mode, io::binary);
  CHECK_STR(fopen_modes_seen, "");
  CHECK_STR(file.contents(), "keep");
}
} // namespace

TEST(in_app_is_refused) { check_refused(io::in | io::app); }

TEST(out_app_trunc_is_refused) { check_refused(io::out | io::app | io::trunc); }

TEST(app_alone_is_refused) { check_refused(io::app); }

TEST(no_mode_bits_is_refused) { check_refused(0); }

TEST(out_ate_trunc_is_refused) { check_refused(io::out | io::ate | io::trunc); }

// ate looks up the mode with in added, so out|app|ate becomes in|out|app, which is no entry.
TEST(out_app_ate_is_refused) { check_refused(io::out | io::app | io::ate); }

TEST(binary_alone_and_trunc_alone_are_refused) {
  check_refused(io::binary);
  check_refused(io::trunc);
  check_refused(io::in | io::trunc);
}

// ate.

TEST(out_ate_on_a_missing_file_tries_r_plus_then_creates_it_with_w) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), io::out | io::ate) == &buffer);
  CHECK_STR(fopen_modes_seen, "r+ w");
  CHECK(file.exists());
  CHECK(put_text(buffer, "new"));
  CHECK_STR(file.contents(), "new");
}

TEST(out_ate_binary_on_a_missing_file_tries_r_plus_b_then_wb) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), io::out | io::ate | io::binary) == &buffer);
  CHECK_STR(fopen_modes_seen, "r+b wb");
  CHECK(file.exists());
}

TEST(out_ate_on_an_existing_file_keeps_it_and_writes_at_the_end) {
  lt::scratch_file file("old");
  filebuf buffer;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), io::out | io::ate) == &buffer);
  CHECK_STR(fopen_modes_seen, "r+");
  CHECK_STR(file.contents(), "old");
  CHECK_EQ(ftell(buffer.__file), 3L);
  CHECK(put_text(buffer, "new"));
  CHECK_STR(file.contents(), "oldnew");
}

TEST(in_ate_opens_with_r_at_the_end) {
  lt::scratch_file file("abc");
  filebuf buffer;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), io::in | io::ate) == &buffer);
  CHECK_STR(fopen_modes_seen, "r");
  CHECK_EQ(ftell(buffer.__file), 3L);
  CHECK_EQ(buffer.sgetc(), -1);
}

TEST(in_ate_on_a_missing_file_fails_without_a_second_try) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), io::in | io::ate) == 0);
  CHECK_STR(fopen_modes_seen, "r");
  CHECK(!buffer.is_open());
  CHECK(!file.exists());
}

TEST(in_out_ate_on_a_missing_file_fails_without_a_second_try) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), io::in | io::out | io::ate) == 0);
  CHECK_STR(fopen_modes_seen, "r+");
  CHECK(!buffer.is_open());
  CHECK(!file.exists());
}

// trunc keeps the mode as it is for the lookup, and in|out|trunc|ate is no entry.
TEST(in_out_trunc_ate_is_refused) { check_refused(io::in | io::out | io::trunc | io::ate); }

// A file whose end cannot be sought (a named pipe) is closed again and open fails.
TEST(ate_on_a_file_without_an_end_closes_it_and_fails) {
  lt::scratch_file file;
  file.remove();
  CHECK_EQ(mkfifo(file.path(), 0600), 0);
  filebuf buffer;
  forget_fopen_modes();
  CHECK(buffer.open(file.path(), io::out | io::ate) == 0);
  CHECK_STR(fopen_modes_seen, "r+");
  CHECK(!buffer.is_open());
  CHECK(buffer.__file == 0);
}

// The recorded mode.

TEST(the_recorded_mode_is_the_mode_passed_ate_included) {
  lt::scratch_file file("old");
  filebuf at_end;
  CHECK(at_end.open(file.path(), io::out | io::ate) == &at_end);
  CHECK_EQ(at_end.__mode, io::out | io::ate);

  filebuf reading;
  CHECK(reading.open(file.path(), io::in | io::binary) == &reading);
  CHECK_EQ(reading.__mode, io::in | io::binary);
}

TEST(a_mode_found_in_the_table_is_recorded_even_when_fopen_fails) {
  lt::scratch_file file;
  file.remove();
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == 0);
  CHECK_EQ(buffer.__mode, io::in);
}

TEST(a_new_buffer_has_no_file_and_no_mode) {
  filebuf buffer;
  CHECK(!buffer.is_open());
  CHECK(buffer.__file == 0);
  CHECK_EQ(buffer.__mode, 0);
}

TEST(a_buffer_from_a_file_attaches_it_without_a_mode) {
  lt::scratch_file file("abc");
  FILE* f = fopen(file.path(), "r");
  filebuf buffer(f);
  CHECK(buffer.is_open());
  CHECK(buffer.__file == f);
  CHECK_EQ(buffer.__mode, 0);
  CHECK_EQ(buffer.sbumpc(), 'a');
}

// open on an attached buffer.

TEST(open_on_an_attached_buffer_fails_and_keeps_the_first_file) {
  lt::scratch_file first("");
  lt::scratch_file second("second");
  filebuf buffer;
  CHECK(buffer.open(first.path(), io::out) == &buffer);
  FILE* attached = buffer.__file;
  forget_fopen_modes();
  CHECK(buffer.open(second.path(), io::out) == 0);
  CHECK_STR(fopen_modes_seen, "");
  CHECK(buffer.__file == attached);
  CHECK_EQ(buffer.__mode, io::out);
  CHECK(put_text(buffer, "to the first"));
  CHECK_STR(first.contents(), "to the first");
  CHECK_STR(second.contents(), "second");
}

// close and is_open.

TEST(close_closes_an_ordinary_file_and_detaches) {
  lt::scratch_file file;
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  int fd = fileno(buffer.__file);
  CHECK_EQ(buffer.sputn("abc", 3), 3);
  CHECK(buffer.is_open());
  CHECK(buffer.close() == &buffer);
  CHECK(!buffer.is_open());
  CHECK(buffer.__file == 0);
  CHECK(!fd_is_open(fd));
  CHECK_STR(file.contents(), "abc");
}

TEST(close_on_an_unattached_buffer_returns_null) {
  filebuf buffer;
  CHECK(buffer.close() == 0);
  CHECK(!buffer.is_open());
}

TEST(close_twice_returns_null_the_second_time) {
  lt::scratch_file file;
  filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK(buffer.close() == &buffer);
  CHECK(buffer.close() == 0);
}

TEST(a_closed_buffer_can_open_again) {
  lt::scratch_file first;
  lt::scratch_file second;
  filebuf buffer;
  CHECK(buffer.open(first.path(), io::out) == &buffer);
  CHECK(buffer.close() == &buffer);
  CHECK(buffer.open(second.path(), io::out | io::app) == &buffer);
  CHECK_EQ(buffer.__mode, io::out | io::app);
  CHECK(put_text(buffer, "second"));
  CHECK_STR(second.contents(), "second");
  CHECK_STR(first.contents(), "");
}

namespace {
void close_stdout_then_write() {
  filebuf buffer(stdout);
  if (buffer.close() != &buffer || buffer.is_open())
    return;
  fputs("stdout still open\n", stdout);
}
} // namespace

TEST(close_on_stdout_detaches_and_leaves_stdout_open) {
  EXPECT_CHILD(close_stdout_then_write(), lt::exits(0), "stdout still open\n", "");
}

// The destructor.

namespace {
void destroy_buffers_over_the_standard_files() {
  bool stdin_was_open = fd_is_open(0);
  delete new filebuf(stdin);
  delete new filebuf(stdout);
  delete new filebuf(stderr);
  fputs("out\n", stdout);
  fputs("err\n", stderr);
  if (stdin_was_open && !fd_is_open(0))
    fputs("stdin closed\n", stdout);
}
} // namespace

TEST(a_buffer_from_stdout_never_closes_stdout) {
  EXPECT_CHILD(destroy_buffers_over_the_standard_files(), lt::exits(0), "out\n", "err\n");
}

TEST(the_destructor_closes_an_ordinary_file) {
  lt::scratch_file file;
  int fd;
  {
    filebuf buffer;
    CHECK(buffer.open(file.path(), io::out) == &buffer);
    fd = fileno(buffer.__file);
    CHECK(fd_is_open(fd));
    CHECK_EQ(buffer.sputn("unflushed", 9), 9);
    CHECK_EQ(file.size(), 0);
  }
  CHECK(!fd_is_open(fd));
  CHECK_STR(file.contents(), "unflushed");
}

TEST(the_destructor_closes_a_file_attached_from_a_pointer) {
  lt::scratch_file file("abc");
  FILE* f = fopen(file.path(), "r");
  int fd = fileno(f);
  delete new filebuf(f);
  CHECK(!fd_is_open(fd));
  CHECK_EQ(errno, EBADF);
}
