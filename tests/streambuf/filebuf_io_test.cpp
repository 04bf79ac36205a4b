// basic_filebuf<char>: the character and bulk operations straight onto the C library FILE, with
// get and put areas that stay empty, and sync, setbuf and imbue.
#include "lorb_test.h"
#include "scratch_files.h"
#include <fstream>
#include <locale>
#include <string.h>

typedef std::ios_base io;

namespace {

// Opens the protected virtual operations to the tests.
struct test_filebuf : std::basic_filebuf<char> {
  test_filebuf() {}
  explicit test_filebuf(FILE* f) : std::basic_filebuf<char>(f) {}
  using std::basic_filebuf<char>::overflow;
  using std::basic_filebuf<char>::xsputn;
  using std::basic_filebuf<char>::underflow;
  using std::basic_filebuf<char>::uflow;
  using std::basic_filebuf<char>::pbackfail;
  using std::basic_filebuf<char>::xsgetn;
  using std::basic_filebuf<char>::sync;
  using std::basic_filebuf<char>::setbuf;
  using std::basic_filebuf<char>::imbue;
};

bool areas_are_empty(const test_filebuf& buffer) {
  return buffer.__gbegin == 0 && buffer.__gnext == 0 && buffer.__gend == 0 &&
         buffer.__pbegin == 0 && buffer.__pnext == 0 && buffer.__pend == 0;
}

long position_of(const test_filebuf& buffer) { return ftell(buffer.__file); }

// A conversion that doubles every character and says so (always_noconv is false), or answers
// with a fixed result: it takes the file buffer off its direct path.
struct doubling_codecvt : std::codecvt<char, char, int> {
  explicit doubling_codecvt(result answer = ok) : answer(answer) {}
  result answer;

protected:
  bool do_always_noconv() const throw() { return false; }
  result do_out(int&, const char* from, const char* from_end, const char*& from_next, char* to,
                char* to_limit, char*& to_next) const {
    if (answer != ok)
      return answer;
    for (; from != from_end && to_limit - to >= 2; ++from) {
      *to++ = *from;
      *to++ = *from;
    }
    from_next = from;
    to_next = to;
    return ok;
  }
};

std::locale converting(std::codecvt_base::result answer) {
  return std::locale(std::locale(), new doubling_codecvt(answer));
}

} // namespace

// No buffer of the file buffer's own.

TEST(the_get_and_put_areas_stay_empty_through_every_operation) {
  lt::scratch_file file("abcdef");
  test_filebuf buffer;
  CHECK(areas_are_empty(buffer));
  CHECK(buffer.open(file.path(), io::in | io::out) == &buffer);
  CHECK(areas_are_empty(buffer));
  CHECK_EQ(buffer.sgetc(), 'a');
  CHECK_EQ(buffer.sbumpc(), 'a');
  char text[2];
  CHECK_EQ(buffer.sgetn(text, 2), 2);
  CHECK(areas_are_empty(buffer));
  CHECK_EQ(buffer.pubseekoff(0, io::cur), std::streampos(3));
  CHECK_EQ(buffer.sputc('X'), 'X');
  CHECK_EQ(buffer.sputn("YZ", 2), 2);
  char own[16];
  CHECK(buffer.pubsetbuf(own, sizeof own) == &buffer);
  CHECK_EQ(buffer.sputc('!'), '!');
  CHECK_EQ(buffer.pubsync(), 0);
  CHECK(areas_are_empty(buffer));
  CHECK_STR(file.contents(), "abcXYZ!");
}

// overflow.

TEST(overflow_puts_the_character_with_fputc_and_returns_it) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK_EQ(buffer.overflow('a'), 'a');
  CHECK_EQ(buffer.overflow('b'), 'b');
  CHECK_EQ(position_of(buffer), 2L);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "ab");
}

TEST(overflow_of_eof_returns_zero_and_writes_nothing) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK_EQ(buffer.overflow(-1), 0);
  CHECK_EQ(buffer.overflow(), 0);
  CHECK_EQ(position_of(buffer), 0L);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_EQ(file.size(), 0);
}

TEST(overflow_without_a_file_returns_eof) {
  test_filebuf buffer;
  CHECK_EQ(buffer.overflow('a'), -1);
  CHECK_EQ(buffer.overflow(-1), -1);
  CHECK_EQ(buffer.sputc('a'), -1);
}

TEST(overflow_writes_a_value_outside_a_byte_as_nul) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK_EQ(buffer.overflow(0x141), 0x141);
  CHECK_EQ(buffer.overflow('x'), 'x');
  CHECK_EQ(buffer.overflow(0x100), 0x100);
  CHECK_EQ(buffer.overflow(-2), -2);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_BYTES(file.contents(), static_cast<size_t>(file.size()), "\0x\0\0", 4);
}

TEST(overflow_writes_a_high_byte_as_itself) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out | io::binary) == &buffer);
  CHECK_EQ(buffer.overflow(0xff), 0xff);
  CHECK_EQ(buffer.sputc('\x80'), 0x80);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_BYTES(file.contents(), static_cast<size_t>(file.size()), "\xff\x80", 2);
}

TEST(overflow_on_a_file_open_for_reading_returns_eof) {
  lt::scratch_file file("abc");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.overflow('x'), -1);
  CHECK_STR(file.contents(), "abc");
}

TEST(overflow_with_a_converting_facet_writes_what_out_gives_with_fputs) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  buffer.pubimbue(converting(std::codecvt_base::ok));
  CHECK_EQ(buffer.overflow('a'), 'a');
  CHECK_EQ(buffer.overflow('b'), 'b');
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "aabb");
}

TEST(overflow_with_a_facet_answering_noconv_puts_the_character_itself) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  buffer.pubimbue(converting(std::codecvt_base::noconv));
  CHECK_EQ(buffer.overflow('a'), 'a');
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "a");
}

TEST(overflow_with_a_partial_or_failed_conversion_returns_eof_and_writes_nothing) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  buffer.pubimbue(converting(std::codecvt_base::partial));
  CHECK_EQ(buffer.overflow('a'), -1);
  buffer.pubimbue(converting(std::codecvt_base::error));
  CHECK_EQ(buffer.overflow('b'), -1);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_EQ(file.size(), 0);
}

namespace {
// A locale of its own whose codecvt<char, char, int> slot is emptied.
void overflow_without_codecvt() {
  std::locale own(std::locale(), new doubling_codecvt);
  std::locale::facet*& slot = own.__imp->facets.data[std::codecvt<char, char, int>::id.__number()];
  slot->__release();
  slot = 0;
  test_filebuf buffer;
  buffer.pubimbue(own);
  buffer.overflow('a');
}
} // namespace

TEST(overflow_without_a_codecvt_facet_reports_bad_cast) {
  EXPECT_ABORT(overflow_without_codecvt(), "bad_cast: Facet not present\n\n");
}

// xsputn.

TEST(xsputn_writes_every_character_with_fwrite_and_returns_the_count) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK_EQ(buffer.xsputn("hello\0world", 11), 11);
  CHECK_EQ(buffer.sputn("!", 1), 1);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_BYTES(file.contents(), static_cast<size_t>(file.size()), "hello\0world!", 12);
}

TEST(xsputn_of_no_characters_returns_zero) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK_EQ(buffer.xsputn("abc", 0), 0);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_EQ(file.size(), 0);
}

TEST(xsputn_without_a_file_returns_zero) {
  test_filebuf buffer;
  CHECK_EQ(buffer.xsputn("abc", 3), 0);
}

TEST(xsputn_on_a_file_open_for_reading_returns_zero) {
  lt::scratch_file file("abc");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.xsputn("xyz", 3), 0);
  CHECK_STR(file.contents(), "abc");
}

TEST(xsputn_with_a_converting_facet_writes_the_conversion_with_fputs) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  buffer.pubimbue(converting(std::codecvt_base::ok));
  CHECK(buffer.xsputn("abc", 3) >= 0);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "aabbcc");
}

// Kept: the conversion goes through seven characters; what does not fit is not written.
TEST(xsputn_with_a_converting_facet_drops_what_does_not_fit_seven_characters) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  buffer.pubimbue(converting(std::codecvt_base::ok));
  CHECK(buffer.xsputn("abcdef", 6) >= 0);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "aabbcc");
}

TEST(xsputn_with_a_facet_answering_noconv_writes_the_characters_themselves) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  buffer.pubimbue(converting(std::codecvt_base::noconv));
  CHECK_EQ(buffer.xsputn("abcdefghij", 10), 10);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "abcdefghij");
}

TEST(xsputn_with_a_partial_or_failed_conversion_returns_zero) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  buffer.pubimbue(converting(std::codecvt_base::partial));
  CHECK_EQ(buffer.xsputn("abc", 3), 0);
  buffer.pubimbue(converting(std::codecvt_base::error));
  CHECK_EQ(buffer.xsputn("abc", 3), 0);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_EQ(file.size(), 0);
}

// underflow and uflow.

TEST(underflow_peeks_without_consuming) {
  lt::scratch_file file("ab");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.underflow(), 'a');
  CHECK_EQ(buffer.underflow(), 'a');
  CHECK_EQ(position_of(buffer), 0L);
  CHECK_EQ(buffer.uflow(), 'a');
  CHECK_EQ(buffer.underflow(), 'b');
  CHECK_EQ(position_of(buffer), 1L);
}

TEST(underflow_at_the_end_returns_eof_and_keeps_the_position) {
  lt::scratch_file file("ab");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.pubseekoff(0, io::end), std::streampos(2));
  CHECK_EQ(buffer.underflow(), -1);
  CHECK_EQ(position_of(buffer), 2L);
  CHECK_EQ(buffer.underflow(), -1);
  CHECK_EQ(position_of(buffer), 2L);
}

TEST(underflow_and_uflow_hand_out_high_bytes_as_unsigned_values) {
  lt::scratch_file file("\xff\x80");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in | io::binary) == &buffer);
  CHECK_EQ(buffer.underflow(), 0xff);
  CHECK_EQ(buffer.uflow(), 0xff);
  CHECK_EQ(buffer.sgetc(), 0x80);
  CHECK_EQ(buffer.sbumpc(), 0x80);
}

TEST(underflow_and_uflow_without_a_file_return_eof) {
  test_filebuf buffer;
  CHECK_EQ(buffer.underflow(), -1);
  CHECK_EQ(buffer.uflow(), -1);
}

TEST(uflow_consumes_one_character_at_a_time) {
  lt::scratch_file file("ab");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'a');
  CHECK_EQ(position_of(buffer), 1L);
  CHECK_EQ(buffer.uflow(), 'b');
  CHECK_EQ(buffer.uflow(), -1);
  CHECK_EQ(position_of(buffer), 2L);
}

// pbackfail.

TEST(pbackfail_of_eof_steps_the_position_back_one_byte) {
  lt::scratch_file file("abc");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'a');
  CHECK_EQ(buffer.uflow(), 'b');
  CHECK_EQ(buffer.pbackfail(-1), 0);
  CHECK_EQ(position_of(buffer), 1L);
  CHECK_EQ(buffer.uflow(), 'b');
  CHECK_EQ(buffer.sungetc(), 0);
  CHECK_EQ(buffer.uflow(), 'b');
}

TEST(pbackfail_of_eof_at_the_start_fails) {
  lt::scratch_file file("abc");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.pbackfail(), -1);
  CHECK_EQ(position_of(buffer), 0L);
  CHECK_EQ(buffer.uflow(), 'a');
}

TEST(pbackfail_pushes_a_character_back_with_ungetc) {
  lt::scratch_file file("abc");
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  CHECK_EQ(buffer.uflow(), 'a');
  CHECK_EQ(buffer.pbackfail('x'), 'x');
  CHECK_EQ(buffer.underflow(), 'x');
  CHECK_EQ(buffer.uflow(), 'x');
  CHECK_EQ(buffer.uflow(), 'b');
  CHECK_EQ(buffer.sputbackc('y'), 'y');
  CHECK_EQ(buffer.sbumpc(), 'y');
  CHECK_STR(file.contents(), "abc");
}

TEST(pbackfail_without_a_file_fails) {
  test_filebuf buffer;
  CHECK_EQ(buffer.pbackfail('x'), -1);
  CHECK_EQ(buffer.pbackfail(-1), -1);
}

// xsgetn.

TEST(xsgetn_reads_with_fread_and_returns_the_count) {
  lt::scratch_file file("hello\0world", 11);
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::in) == &buffer);
  char text[32];
  CHECK_EQ(buffer.xsgetn(text, 3), 3);
  CHECK_BYTES(text, 3, "hel", 3);
  CHECK_EQ(buffer.sgetn(text, sizeof text), 8);
  CHECK_BYTES(text, 8, "lo\0world", 8);
  CHECK_EQ(buffer.xsgetn(text, sizeof text), 0);
}

TEST(xsgetn_without_a_file_returns_zero) {
  test_filebuf buffer;
  char text[4] = "abc";
  CHECK_EQ(buffer.xsgetn(text, 3), 0);
  CHECK_STR(text, "abc");
}

// sync.

TEST(sync_returns_what_fflush_returns_and_hands_the_data_over) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  CHECK_EQ(buffer.sputn("abc", 3), 3);
  CHECK_EQ(file.size(), 0);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "abc");
  CHECK_EQ(buffer.pubsync(), 0);
}

TEST(sync_reports_a_failing_fflush_as_minus_one) {
  test_filebuf buffer;
  CHECK(buffer.open("/dev/full", io::out) == &buffer);
  CHECK_EQ(buffer.sputc('a'), 'a');
  CHECK_EQ(buffer.sync(), -1);
}

TEST(sync_without_a_file_returns_zero) {
  test_filebuf buffer;
  CHECK_EQ(buffer.sync(), 0);
}

// setbuf and imbue.

TEST(setbuf_returns_the_buffer_when_a_file_is_attached_and_ignores_the_array) {
  lt::scratch_file file;
  test_filebuf buffer;
  CHECK(buffer.open(file.path(), io::out) == &buffer);
  char own[8];
  memset(own, '#', sizeof own);
  CHECK(buffer.setbuf(own, sizeof own) == &buffer);
  CHECK(buffer.setbuf(0, 0) == &buffer);
  CHECK_EQ(buffer.sputn("abc", 3), 3);
  CHECK(areas_are_empty(buffer));
  CHECK_BYTES(own, sizeof own, "########", 8);
  CHECK_EQ(buffer.sync(), 0);
  CHECK_STR(file.contents(), "abc");
}

TEST(setbuf_without_a_file_returns_null) {
  test_filebuf buffer;
  char own[8];
  CHECK(buffer.setbuf(own, sizeof own) == 0);
  CHECK(buffer.pubsetbuf(0, 0) == 0);
  CHECK(areas_are_empty(buffer));
}

TEST(imbue_assigns_the_locale) {
  std::locale own(std::locale(), new doubling_codecvt);
  test_filebuf buffer;
  CHECK(buffer.getloc() != own);
  buffer.imbue(own);
  CHECK(buffer.getloc() == own);
  CHECK(buffer.__locale.__imp == own.__imp);
  CHECK(areas_are_empty(buffer));
  CHECK(!buffer.is_open());
}

TEST(pubimbue_returns_the_previous_locale) {
  std::locale own(std::locale(), new doubling_codecvt);
  test_filebuf buffer;
  std::locale first = buffer.getloc();
  CHECK(buffer.pubimbue(own) == first);
  CHECK(buffer.pubimbue(first) == own);
  CHECK(buffer.getloc() == first);
}
