// The character, C-string and std::string inserters: a single character is never padded; text is
// padded after itself unless the stream asks for right adjustment alone.
#include "lorb_test.h"
#include "output_test_buffers.h"
#include <ctype.h>
#include <iomanip>
#include <ios>
#include <locale>
#include <ostream>
#include <string>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate bad = std::ios_base::badbit;
const std::ios_base::iostate eof = std::ios_base::eofbit;
const std::ios_base::iostate fail = std::ios_base::failbit;
const std::ios_base::iostate every_bit = bad | eof | fail;

// Widens every character to upper case, so that a widened character is told from a plain one.
struct upper_ctype : std::ctype<char> {
  char do_widen(char c) const { return static_cast<char>(toupper(static_cast<unsigned char>(c))); }
};

// Takes `allowed` copies of `refused`, then refuses that character; takes every other one.
struct fill_refusing_buffer : recording_buffer {
  char refused;
  int allowed;
  fill_refusing_buffer(char c, int n) : refused(c), allowed(n) {}
  int_type overflow(int_type c) {
    if (c == traits_type::to_int_type(refused) && allowed-- <= 0) {
      ++overflows;
      return traits_type::eof();
    }
    return recording_buffer::overflow(c);
  }
};

// The three text inserters, so that one test can pin one rule for all of them.
typedef void (*text_inserter)(std::ostream&, const char*);
void insert_c_string(std::ostream& os, const char* s) { os << s; }
void insert_signed_c_string(std::ostream& os, const char* s) {
  os << reinterpret_cast<const signed char*>(s);
}
void insert_unsigned_c_string(std::ostream& os, const char* s) {
  os << reinterpret_cast<const unsigned char*>(s);
}
void insert_string(std::ostream& os, const char* s) { os << std::string(s); }

const text_inserter every_text_inserter[] = {insert_c_string, insert_signed_c_string,
                                             insert_unsigned_c_string, insert_string};
const int text_inserter_count = sizeof every_text_inserter / sizeof every_text_inserter[0];

// What inserting s with the given adjustment bits, width and fill writes (each inserter must
// agree); the width must be 0 afterwards and the state good.
struct padded_result {
  char text[64];
  int length;
  bool agreed;
};
padded_result insert_padded(const char* s, std::ios_base::fmtflags adjust, long width, char fill) {
  padded_result result;
  result.length = -1;
  result.agreed = true;
  for (int i = 0; i < text_inserter_count; ++i) {
    recording_buffer out;
    std::ostream os(&out);
    os.setf(adjust, std::ios_base::adjustfield);
    os.width(width);
    os.fill(fill);
    every_text_inserter[i](os, s);
    if (os.width() != 0 || os.rdstate() != good)
      result.agreed = false;
    if (result.length == -1) {
      result.length = out.length;
      memcpy(result.text, out.text, sizeof result.text);
    } else if (out.length != result.length || memcmp(out.text, result.text, out.length) != 0) {
      result.agreed = false;
    }
  }
  return result;
}

#define CHECK_PADDED(result, literal)                                                              \
  do {                                                                                             \
    padded_result r_ = (result);                                                                   \
    CHECK(r_.agreed);                                                                              \
    CHECK_BYTES(r_.text, static_cast<size_t>(r_.length), literal, sizeof(literal) - 1);            \
  } while (0)

const std::ios_base::fmtflags no_adjust = 0;
const std::ios_base::fmtflags left = std::ios_base::left;
const std::ios_base::fmtflags right = std::ios_base::right;
const std::ios_base::fmtflags internal = std::ios_base::internal;

} // namespace

// The single-character inserters.

TEST(setw_before_a_char_is_consumed_and_ignored) {
  recording_buffer out;
  std::ostream os(&out);
  os << std::setfill('*') << std::setw(6) << 'a';
  CHECK_WRITTEN(out, "a");
  CHECK_EQ(os.width(), 0L);
  os << std::right << std::setw(3) << 'b' << std::left << std::setw(3) << 'c';
  CHECK_WRITTEN(out, "abc");
}

TEST(setw_before_a_signed_or_unsigned_char_is_consumed_and_ignored) {
  recording_buffer out;
  std::ostream os(&out);
  os << std::setw(6) << static_cast<signed char>('s');
  CHECK_EQ(os.width(), 0L);
  os << std::setw(6) << static_cast<unsigned char>('u');
  CHECK_EQ(os.width(), 0L);
  CHECK_WRITTEN(out, "su");
}

TEST(a_char_takes_the_fast_path_into_the_put_area) {
  area_buffer out(4);
  std::ostream os(&out);
  os << 'x' << static_cast<signed char>('y') << static_cast<unsigned char>('z');
  CHECK_BYTES(out.area, 3, "xyz", 3);
  CHECK_EQ(out.overflows, 0);
}

TEST(a_char_is_widened_through_the_stream_locale) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(std::locale(std::locale(), new upper_ctype));
  os << 'a' << static_cast<signed char>('b') << static_cast<unsigned char>('c');
  CHECK_WRITTEN(out, "ABC");
}

TEST(the_char_worker_writes_its_character_as_given) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(std::locale(std::locale(), new upper_ctype));
  os.width(4);
  std::__vel_insert_char(os, 'q');
  CHECK_WRITTEN(out, "q");
  CHECK_EQ(os.width(), 0L);
}

TEST(a_high_char_is_written_unchanged) {
  recording_buffer out;
  std::ostream os(&out);
  os << '\xE9' << static_cast<unsigned char>(0xFF);
  CHECK_WRITTEN(out, "\xE9\xFF");
  CHECK_EQ(os.rdstate(), good);
}

TEST(a_char_whose_overflow_fails_sets_no_bit) {
  for (int kind = 0; kind < 3; ++kind) {
    full_after_buffer out(0);
    std::ostream os(&out);
    os.width(5);
    if (kind == 0)
      os << 'a';
    else if (kind == 1)
      os << static_cast<signed char>('a');
    else
      os << static_cast<unsigned char>('a');
    CHECK_EQ(out.overflows, 1);
    CHECK_EQ(os.rdstate(), good);
    CHECK_EQ(os.width(), 0L);
  }
}

TEST(a_char_whose_overflow_fails_meets_no_exception_mask) {
  full_after_buffer out(0);
  std::ostream os(&out);
  os.exceptions(every_bit);
  EXPECT_EXIT((os << 'a' << static_cast<signed char>('b') << static_cast<unsigned char>('c')), 0,
              "");
}

TEST(a_char_on_a_stream_that_is_not_good_consumes_the_width_and_writes_nothing) {
  recording_buffer out;
  std::ostream os(&out);
  os.setstate(eof);
  os.width(6);
  os << 'a';
  CHECK_EQ(os.width(), 0L);
  CHECK_EQ(out.length, 0);
  CHECK_EQ(os.rdstate(), eof | fail);
}

TEST(a_char_without_a_ctype_facet_aborts_with_the_bad_cast_message) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(locale_without<std::ctype<char> >());
  CHECK(!std::has_facet<std::ctype<char> >(os.getloc()));
  EXPECT_ABORT(os << 'a', "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(os << static_cast<signed char>('a'), "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(os << static_cast<unsigned char>('a'), "bad_cast: Facet not present\n\n");
  CHECK_EQ(out.length, 0);
}

// The text inserters: C strings of the three character types and std::string.

TEST(text_is_padded_after_itself_by_default) {
  CHECK_PADDED(insert_padded("ab", no_adjust, 6, ' '), "ab    ");
  CHECK_PADDED(insert_padded("ab", no_adjust, 6, '*'), "ab****");
}

TEST(text_is_padded_before_itself_with_right_alone) {
  CHECK_PADDED(insert_padded("ab", right, 6, '*'), "****ab");
}

TEST(text_is_padded_after_itself_with_left_internal_or_any_mixture) {
  CHECK_PADDED(insert_padded("ab", left, 5, '*'), "ab***");
  CHECK_PADDED(insert_padded("ab", internal, 5, '*'), "ab***");
  CHECK_PADDED(insert_padded("ab", left | right, 5, '*'), "ab***");
  CHECK_PADDED(insert_padded("ab", right | internal, 5, '*'), "ab***");
  CHECK_PADDED(insert_padded("ab", left | internal, 5, '*'), "ab***");
  CHECK_PADDED(insert_padded("ab", left | right | internal, 5, '*'), "ab***");
}

TEST(text_as_long_as_the_width_or_longer_is_not_padded) {
  CHECK_PADDED(insert_padded("abc", right, 3, '*'), "abc");
  CHECK_PADDED(insert_padded("abcd", right, 2, '*'), "abcd");
  CHECK_PADDED(insert_padded("abcd", no_adjust, 2, '*'), "abcd");
  CHECK_PADDED(insert_padded("abc", right, -5, '*'), "abc");
}

TEST(empty_text_is_all_padding) {
  CHECK_PADDED(insert_padded("", no_adjust, 3, '*'), "***");
  CHECK_PADDED(insert_padded("", right, 2, '*'), "**");
}

TEST(text_is_not_widened) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(std::locale(std::locale(), new upper_ctype));
  os << "ab" << std::string("cd");
  CHECK_WRITTEN(out, "abcd");
}

TEST(text_inserters_need_no_ctype_facet) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(locale_without<std::ctype<char> >());
  os << std::setw(4) << "ab" << std::string("cd");
  CHECK_WRITTEN(out, "ab  cd");
  CHECK_EQ(os.rdstate(), good);
}

TEST(a_null_c_string_prints_as_the_empty_string_padding_included) {
  recording_buffer out;
  std::ostream os(&out);
  os << static_cast<const char*>(0);
  CHECK_EQ(out.length, 0);
  CHECK_EQ(os.rdstate(), good);
  os << std::setfill('*') << std::setw(3) << static_cast<const char*>(0);
  os << std::setw(2) << static_cast<const signed char*>(0);
  os << std::right << std::setw(1) << static_cast<const unsigned char*>(0);
  CHECK_WRITTEN(out, "******");
  CHECK_EQ(os.width(), 0L);
  CHECK_EQ(os.rdstate(), good);
}

TEST(a_c_string_is_written_with_one_sputn_and_each_fill_with_sputc) {
  area_buffer out(8);
  std::ostream os(&out);
  os << std::right << std::setw(5) << "abc";
  CHECK_BYTES(out.area, 5, "  abc", 5);
  CHECK_EQ(out.overflows, 0);
  recording_buffer counted;
  std::ostream counted_os(&counted);
  counted_os << std::setw(5) << "abc" << std::setw(5) << std::string("de");
  CHECK_EQ(counted.xsputns, 2);
  CHECK_EQ(counted.overflows, 10); // xsputn's loop and the fills
  CHECK_WRITTEN(counted, "abc  de   ");
}

TEST(a_string_writes_its_null_characters_too) {
  recording_buffer out;
  std::ostream os(&out);
  os << std::setfill('*') << std::setw(5) << std::string("a\0b", 3);
  CHECK_WRITTEN(out, "a\0b**");
}

TEST(a_short_sputn_count_sets_failbit_not_badbit) {
  for (int i = 0; i < text_inserter_count; ++i) {
    full_after_buffer out(2);
    std::ostream os(&out);
    every_text_inserter[i](os, "abcd");
    CHECK_WRITTEN(out, "ab");
    CHECK_EQ(os.rdstate(), fail);
  }
}

TEST(a_short_sputn_count_meets_a_failbit_mask) {
  full_after_buffer out(2);
  std::ostream os(&out);
  os.exceptions(fail);
  EXPECT_EXIT(os << "abcd", 1, "Failure in I/O\n");
  EXPECT_EXIT(os << std::string("abcd"), 1, "Failure in I/O\n");
}

TEST(a_short_sputn_count_meets_no_badbit_mask) {
  full_after_buffer out(2);
  std::ostream os(&out);
  os.exceptions(bad);
  EXPECT_EXIT((os << "abcd" << std::string("efgh")), 0, "");
}

TEST(a_short_sputn_count_does_not_stop_the_padding_after_it) {
  fill_refusing_buffer out('c', 0);
  std::ostream os(&out);
  os << std::setfill('*') << std::setw(6) << "abcd";
  CHECK_WRITTEN(out, "ab**");
  CHECK_EQ(os.rdstate(), fail);
}

TEST(a_failing_fill_after_the_text_ends_the_operation) {
  for (int i = 0; i < text_inserter_count; ++i) {
    fill_refusing_buffer out('*', 1);
    std::ostream os(&out);
    os.fill('*');
    os.width(8);
    every_text_inserter[i](os, "ab");
    CHECK_WRITTEN(out, "ab*");
    CHECK_EQ(out.overflows, 4); // a, b, the fill taken, the fill refused; no more tries
    CHECK_EQ(os.rdstate(), good);
    CHECK_EQ(os.width(), 0L);
  }
}

TEST(a_failing_fill_before_the_text_still_lets_the_text_be_written) {
  for (int i = 0; i < text_inserter_count; ++i) {
    fill_refusing_buffer out('*', 1);
    std::ostream os(&out);
    os.fill('*');
    os.width(8);
    os.setf(std::ios_base::right, std::ios_base::adjustfield);
    every_text_inserter[i](os, "ab");
    CHECK_WRITTEN(out, "*ab");
    CHECK_EQ(out.overflows, 4); // the fill taken, the fill refused, a, b
    CHECK_EQ(os.rdstate(), good);
    CHECK_EQ(os.width(), 0L);
  }
}

TEST(a_failing_fill_meets_no_exception_mask) {
  fill_refusing_buffer out('*', 0);
  std::ostream os(&out);
  os.exceptions(every_bit);
  os.fill('*');
  EXPECT_EXIT((os << std::setw(4) << "ab" << std::right << std::setw(4) << std::string("cd")), 0,
              "");
}

TEST(a_fill_of_0xe9_pads_with_null_bytes) {
  CHECK_PADDED(insert_padded("ab", no_adjust, 4, '\xE9'), "ab\0\0");
  CHECK_PADDED(insert_padded("ab", right, 4, '\xE9'), "\0\0ab");
}

TEST(fills_from_128_up_pad_with_null_bytes_and_below_as_they_are) {
  CHECK_PADDED(insert_padded("", no_adjust, 1, '\x80'), "\0");
  CHECK_PADDED(insert_padded("", no_adjust, 1, '\xFF'), "\0");
  CHECK_PADDED(insert_padded("", no_adjust, 1, '\x7F'), "\x7F");
  CHECK_PADDED(insert_padded("", no_adjust, 1, '\x01'), "\x01");
}

TEST(a_high_fill_is_narrowed_only_for_text) {
  recording_buffer out;
  std::ostream os(&out);
  os << std::setfill(0xE9) << std::setw(3) << "a" << std::setw(3) << 7L;
  CHECK_WRITTEN(out, "a\0\0\xE9\xE9"
                     "7");
  CHECK_EQ(os.fill(), '\xE9');
}

TEST(the_width_is_reset_also_when_the_prefix_fails) {
  for (int i = 0; i < text_inserter_count; ++i) {
    recording_buffer out;
    std::ostream os(&out);
    os.setstate(eof);
    os.width(6);
    every_text_inserter[i](os, "ab");
    CHECK_EQ(os.width(), 0L);
    CHECK_EQ(os.rdstate(), eof | fail);
    CHECK_EQ(out.length, 0);
    CHECK_EQ(out.xsputns, 0);
  }
}

TEST(text_on_a_stream_without_buffer_gets_failbit_and_badbit_and_loses_the_width) {
  std::ostream os(0);
  os.width(4);
  os << "ab";
  CHECK_EQ(os.rdstate(), bad | fail);
  CHECK_EQ(os.width(), 0L);
  os.width(4);
  os << std::string("ab");
  CHECK_EQ(os.width(), 0L);
}

TEST(text_on_a_unitbuf_stream_syncs_once) {
  recording_buffer out;
  std::ostream os(&out);
  os << std::unitbuf << std::setw(4) << "ab" << std::string("cd");
  CHECK_EQ(out.syncs, 2);
}
