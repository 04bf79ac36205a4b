// The numeric and pointer inserters: each reaches num_put with its value, the stream's fill and
// width; what that writes, and the state a failing write or a missing facet leaves.
#include "lorb_test.h"
#include "output_test_buffers.h"
#include <iomanip>
#include <ios>
#include <limits.h>
#include <locale>
#include <ostream>
#include <stdio.h>

namespace {

const std::ios_base::iostate good = std::ios_base::goodbit;
const std::ios_base::iostate every_bit =
    std::ios_base::badbit | std::ios_base::eofbit | std::ios_base::failbit;

// Sets eofbit on a victim stream when synced.
struct eof_setting_buffer : recording_buffer {
  std::ostream* victim;
  eof_setting_buffer() : victim(0) {}
  int sync() {
    victim->setstate(std::ios_base::eofbit);
    return 0;
  }
};

// Says on standard output that it was synced, for the tests that end in a child process.
struct announcing_buffer : recording_buffer {
  int sync() {
    fputs("tie flushed\n", stdout);
    return 0;
  }
};

} // namespace

// Each inserter reaches num_put with the value, the stream's fill and its width; num_put, not
// the inserter, resets the width.

TEST(bool_prints_as_a_digit_or_a_name_and_its_inserter_leaves_the_width) {
  recording_buffer out;
  std::ostream os(&out);
  os << true << false << std::boolalpha << true << ' ' << false;
  CHECK_WRITTEN(out, "10true false");
  os << std::setfill('*') << std::setw(5) << true;
  CHECK_WRITTEN(out, "10true falsetrue");
  CHECK_EQ(os.width(), 5L); // the bool writer neither pads nor resets, and nor does the inserter
}

TEST(short_prints_in_decimal_and_as_its_own_sixteen_bits_in_hex_and_oct) {
  recording_buffer out;
  std::ostream os(&out);
  os << static_cast<short>(-5) << ' ' << static_cast<short>(32767) << ' ';
  os << std::hex << static_cast<short>(-1) << ' ' << std::oct << static_cast<short>(-1);
  CHECK_WRITTEN(out, "-5 32767 ffff 177777");
}

TEST(short_is_padded_with_the_stream_fill_to_its_width) {
  recording_buffer out;
  std::ostream os(&out);
  os << std::setfill('*') << std::setw(6) << static_cast<short>(-42) << '|';
  os << std::setfill('0') << std::setw(6) << std::internal << static_cast<short>(-42);
  CHECK_WRITTEN(out, "***-42|-00042");
  CHECK_EQ(os.width(), 0L);
}

TEST(unsigned_short_prints_its_value_padded) {
  recording_buffer out;
  std::ostream os(&out);
  os << static_cast<unsigned short>(65535) << ' ' << std::hex << static_cast<unsigned short>(48879)
     << ' ';
  os << std::setfill('.') << std::setw(7) << static_cast<unsigned short>(1);
  CHECK_WRITTEN(out, "65535 beef ......1");
  CHECK_EQ(os.width(), 0L);
}

TEST(int_prints_in_decimal_and_as_its_own_bits_in_hex) {
  recording_buffer out;
  std::ostream os(&out);
  os << -123 << ' ' << INT_MIN << ' ' << std::hex << -1 << ' ' << std::oct << 8 << ' ';
  os << std::dec << std::left << std::setfill('#') << std::setw(5) << 12;
  CHECK_WRITTEN(out, "-123 -2147483648 ffffffff 10 12###");
  CHECK_EQ(os.width(), 0L);
}

TEST(unsigned_int_prints_its_value_padded) {
  recording_buffer out;
  std::ostream os(&out);
  os << 4294967295u << ' ' << 0u << ' ' << std::setfill('-') << std::setw(3) << 7u;
  CHECK_WRITTEN(out, "4294967295 0 --7");
  CHECK_EQ(os.width(), 0L);
}

TEST(long_prints_with_its_base_showbase_and_padding) {
  recording_buffer out;
  std::ostream os(&out);
  os << LONG_MIN << ' ' << LONG_MAX << ' ' << std::hex << std::showbase << 255L << ' ';
  os << std::setfill('0') << std::internal << std::setw(6) << 255L;
  CHECK_WRITTEN(out, "-2147483648 2147483647 0xff 0x00ff");
  CHECK_EQ(os.width(), 0L);
}

TEST(unsigned_long_prints_its_value_padded) {
  recording_buffer out;
  std::ostream os(&out);
  os << ULONG_MAX << ' ' << std::showpos << 7UL << ' ' << std::setfill('*') << std::setw(4) << 8UL;
  CHECK_WRITTEN(out, "4294967295 7 ***8");
  CHECK_EQ(os.width(), 0L);
}

TEST(long_long_prints_all_its_digits_padded) {
  recording_buffer out;
  std::ostream os(&out);
  __extension__ long long big = -9000000000LL;
  __extension__ long long minus_one = -1;
  os << big << ' ' << std::hex << minus_one << ' ' << std::setfill('*') << std::setw(12) << -big;
  CHECK_WRITTEN(out, "-9000000000 ffffffffffffffff ***218711a00");
  CHECK_EQ(os.width(), 0L);
}

TEST(unsigned_long_long_prints_all_its_digits_padded) {
  recording_buffer out;
  std::ostream os(&out);
  __extension__ unsigned long long biggest = 18446744073709551615ULL;
  __extension__ unsigned long long small = 5;
  os << biggest << ' ' << std::setfill('*') << std::setw(3) << small;
  CHECK_WRITTEN(out, "18446744073709551615 **5");
  CHECK_EQ(os.width(), 0L);
}

TEST(float_prints_as_the_double_it_widens_to) {
  recording_buffer out;
  std::ostream os(&out);
  os << 1.5f << ' ' << 0.1f << ' ' << std::setprecision(10) << 0.1f << ' ';
  os << std::setprecision(6) << std::setfill('*') << std::setw(5) << 2.5f;
  CHECK_WRITTEN(out, "1.5 0.1 0.1000000015 **2.5");
  CHECK_EQ(os.width(), 0L);
}

TEST(double_prints_with_precision_notation_and_padding) {
  recording_buffer out;
  std::ostream os(&out);
  os << 1.5 << ' ' << 1e10 << ' ' << std::fixed << std::setprecision(2) << 3.14159 << ' ';
  os << std::left << std::setfill('*') << std::setw(7) << -1.0;
  CHECK_WRITTEN(out, "1.5 1e+10 3.14 -1.00**");
  CHECK_EQ(os.width(), 0L);
}

TEST(long_double_prints_with_precision_notation_and_padding) {
  recording_buffer out;
  std::ostream os(&out);
  os << 2.5L << ' ' << std::scientific << std::uppercase << 1.5L << ' ';
  os << std::fixed << std::setprecision(1) << std::setfill('_') << std::setw(6) << 0.25L;
  CHECK_WRITTEN(out, "2.5 1.500000E+00 ___0.2");
  CHECK_EQ(os.width(), 0L);
}

TEST(a_pointer_prints_as_the_c_library_prints_it_with_its_own_padding) {
  recording_buffer out;
  std::ostream os(&out);
  os << reinterpret_cast<const void*>(0x1234) << ' ' << static_cast<const void*>(0) << ' ';
  os << std::setfill('*') << std::setw(9) << reinterpret_cast<const void*>(0x1234) << ' ';
  CHECK_EQ(os.width(), 0L);
  os << std::left << std::setw(9) << reinterpret_cast<const void*>(0x1234);
  CHECK_WRITTEN(out, "0x1234 (nil) 0x1234 ***0x1234");
  CHECK_EQ(os.width(), 0L);
}

// Failures.

TEST(a_write_failure_inside_num_put_sets_no_state_bit) {
  full_after_buffer out(2);
  std::ostream os(&out);
  os << 12345L;
  CHECK_WRITTEN(out, "12");
  CHECK_EQ(os.rdstate(), good);
  os << 6.5 << true << static_cast<const void*>(&out) << 9UL;
  CHECK_WRITTEN(out, "12");
  CHECK_EQ(os.rdstate(), good);
}

TEST(a_write_failure_inside_num_put_does_not_meet_any_exception_mask) {
  full_after_buffer out(0);
  std::ostream os(&out);
  os.exceptions(every_bit);
  EXPECT_EXIT((os << 12345L << 1.5 << false << static_cast<const void*>(&out)), 0, "");
}

TEST(a_refused_character_ends_the_numeric_output_at_once) {
  full_after_buffer out(3);
  std::ostream os(&out);
  os << std::setfill('*') << std::setw(8) << 42L;
  CHECK_WRITTEN(out, "***");
  CHECK_EQ(out.overflows, 4); // later characters are dropped without reaching the buffer
  CHECK_EQ(os.width(), 0L);
}

TEST(a_missing_num_put_facet_aborts_with_the_bad_cast_message) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(locale_without<std::num_put<char> >());
  CHECK(!std::has_facet<std::num_put<char> >(os.getloc()));
  EXPECT_ABORT(os << 1L, "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(os << 1.5, "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(os << true, "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(os << static_cast<const void*>(0), "bad_cast: Facet not present\n\n");
  CHECK_EQ(out.length, 0);
}

TEST(a_missing_num_put_facet_is_found_missing_after_the_tie_is_flushed) {
  recording_buffer out;
  announcing_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  std::ostream os(&out);
  os.tie(&tied);
  os.imbue(locale_without<std::num_put<char> >());
  EXPECT_CHILD(os << 1L, lt::aborts(), "tie flushed\n", "bad_cast: Facet not present\n\n");
}

TEST(a_missing_num_put_facet_is_not_looked_up_when_the_prefix_fails) {
  recording_buffer out;
  std::ostream os(&out);
  os.imbue(locale_without<std::num_put<char> >());
  eof_setting_buffer tied_buffer;
  std::ostream tied(&tied_buffer);
  tied_buffer.victim = &os;
  os.tie(&tied);
  os << 1L;
  CHECK_EQ(os.rdstate(), std::ios_base::eofbit | std::ios_base::failbit);
}

namespace {

// A num_put that writes nothing and keeps what it was given; it leaves the
// width alone, so whatever happens to the width is the inserter's doing.
struct spy_num_put : std::num_put<char> {
  mutable int calls;
  mutable char kind; // b, l, u, d, L (long double), p, x (long long), y
                     // (unsigned long long)
  mutable long long integer;
  mutable unsigned long long unsigned_integer;
  mutable long double real;
  mutable const void* pointer;
  mutable char fill;
  mutable long width;
  mutable const std::ios_base* format;
  mutable std::streambuf* target;
  mutable bool target_failed;

  spy_num_put()
      : calls(0), kind(0), integer(0), unsigned_integer(0), real(0), pointer(0), fill(0), width(-1),
        format(0), target(0), target_failed(true) {}

  iter_type seen(char k, iter_type out, std::ios_base& str, char f) const {
    ++calls;
    kind = k;
    fill = f;
    width = str.width();
    format = &str;
    target = out.__buffer;
    target_failed = out.failed();
    return out;
  }
  iter_type do_put(iter_type out, std::ios_base& str, char f, bool v) const {
    integer = v;
    return seen('b', out, str, f);
  }
  iter_type do_put(iter_type out, std::ios_base& str, char f, long v) const {
    integer = v;
    return seen('l', out, str, f);
  }
  iter_type do_put(iter_type out, std::ios_base& str, char f, unsigned long v) const {
    unsigned_integer = v;
    return seen('u', out, str, f);
  }
  iter_type do_put(iter_type out, std::ios_base& str, char f, double v) const {
    real = v;
    return seen('d', out, str, f);
  }
  iter_type do_put(iter_type out, std::ios_base& str, char f, long double v) const {
    real = v;
    return seen('L', out, str, f);
  }
  iter_type do_put(iter_type out, std::ios_base& str, char f, const void* v) const {
    pointer = v;
    return seen('p', out, str, f);
  }
  __extension__ iter_type do_put(iter_type out, std::ios_base& str, char f, long long v) const {
    integer = v;
    return seen('x', out, str, f);
  }
  __extension__ iter_type do_put(iter_type out, std::ios_base& str, char f,
                                 unsigned long long v) const {
    unsigned_integer = v;
    return seen('y', out, str, f);
  }
};

// A stream over a recording buffer whose locale holds the spy, with fill '*'
// and width 9.
struct spied_stream {
  recording_buffer out;
  spy_num_put* spy;
  std::ostream os;

  spied_stream() : spy(new spy_num_put), os(&out) {
    os.imbue(std::locale(std::locale(), spy));
    os.fill('*');
    os.width(9);
  }
  // The spy got exactly one call of this kind with the stream's fill and width,
  // aimed at the stream's buffer through an iterator that had not failed; the
  // width is still there.
  bool reached_with(char kind) {
    return spy->calls == 1 && spy->kind == kind && spy->fill == '*' && spy->width == 9 &&
           spy->format == &os && spy->target == &out && !spy->target_failed && os.width() == 9 &&
           out.length == 0 && os.rdstate() == good;
  }
};

} // namespace

// What reaches num_put.

TEST(bool_reaches_num_put_with_the_fill_and_width) {
  spied_stream s;
  s.os << true;
  CHECK(s.reached_with('b'));
  CHECK_EQ(s.spy->integer, 1LL);
  s.spy->calls = 0;
  s.os << false;
  CHECK(s.reached_with('b'));
  CHECK_EQ(s.spy->integer, 0LL);
}

TEST(short_reaches_num_put_as_long) {
  spied_stream s;
  s.os << static_cast<short>(-5);
  CHECK(s.reached_with('l'));
  CHECK_EQ(s.spy->integer, -5LL);
  s.spy->calls = 0;
  s.os << static_cast<short>(SHRT_MIN);
  CHECK(s.reached_with('l'));
  CHECK_EQ(s.spy->integer, static_cast<long long>(SHRT_MIN));
}

TEST(short_in_hex_or_oct_reaches_num_put_as_its_own_sixteen_bits) {
  spied_stream s;
  s.os << std::hex << static_cast<short>(-1);
  CHECK(s.reached_with('l'));
  CHECK_EQ(s.spy->integer, 0xFFFFLL);
  s.spy->calls = 0;
  s.os << std::oct << static_cast<short>(-2);
  CHECK(s.reached_with('l'));
  CHECK_EQ(s.spy->integer, 0xFFFELL);
}

TEST(unsigned_short_reaches_num_put_as_unsigned_long) {
  spied_stream s;
  s.os << static_cast<unsigned short>(65535);
  CHECK(s.reached_with('u'));
  CHECK_EQ(s.spy->unsigned_integer, 65535ULL);
}

TEST(int_reaches_num_put_as_long) {
  spied_stream s;
  s.os << INT_MIN;
  CHECK(s.reached_with('l'));
  CHECK_EQ(s.spy->integer, static_cast<long long>(INT_MIN));
  s.spy->calls = 0;
  s.os << std::hex << -1;
  CHECK(s.reached_with('l'));
  CHECK_EQ(static_cast<unsigned long>(s.spy->integer), 0xFFFFFFFFUL);
}

TEST(unsigned_int_reaches_num_put_as_unsigned_long) {
  spied_stream s;
  s.os << 4000000000u;
  CHECK(s.reached_with('u'));
  CHECK_EQ(s.spy->unsigned_integer, 4000000000ULL);
}

TEST(long_reaches_num_put_as_long) {
  spied_stream s;
  s.os << LONG_MIN;
  CHECK(s.reached_with('l'));
  CHECK_EQ(s.spy->integer, static_cast<long long>(LONG_MIN));
}

TEST(unsigned_long_reaches_num_put_as_unsigned_long) {
  spied_stream s;
  s.os << ULONG_MAX;
  CHECK(s.reached_with('u'));
  CHECK_EQ(s.spy->unsigned_integer, static_cast<unsigned long long>(ULONG_MAX));
}

TEST(long_long_reaches_num_put_whole) {
  spied_stream s;
  __extension__ long long big = -9000000000LL;
  s.os << big;
  CHECK(s.reached_with('x'));
  CHECK_EQ(s.spy->integer, -9000000000LL);
}

TEST(unsigned_long_long_reaches_num_put_whole) {
  spied_stream s;
  __extension__ unsigned long long big = 18000000000000000000ULL;
  s.os << big;
  CHECK(s.reached_with('y'));
  CHECK_EQ(s.spy->unsigned_integer, 18000000000000000000ULL);
}

TEST(float_reaches_num_put_as_double) {
  spied_stream s;
  s.os << 0.1f;
  CHECK(s.reached_with('d'));
  CHECK(s.spy->real == static_cast<long double>(static_cast<double>(0.1f)));
}

TEST(double_reaches_num_put_as_double) {
  spied_stream s;
  s.os << -2.25;
  CHECK(s.reached_with('d'));
  CHECK(s.spy->real == -2.25L);
}

TEST(long_double_reaches_num_put_as_long_double) {
  spied_stream s;
  long double third = 1.0L / 3;
  s.os << third;
  CHECK(s.reached_with('L'));
  CHECK(s.spy->real == third);
}

TEST(a_pointer_reaches_num_put_as_const_void_pointer) {
  spied_stream s;
  int here = 0;
  s.os << static_cast<const void*>(&here);
  CHECK(s.reached_with('p'));
  CHECK(s.spy->pointer == &here);
}

TEST(the_inserters_leave_the_width_for_num_put) {
  spied_stream s;
  s.os << 1L << 2.0 << true;
  CHECK_EQ(s.spy->calls, 3);
  CHECK_EQ(s.os.width(), 9L);
}

TEST(num_put_is_not_called_when_the_prefix_fails) {
  spied_stream s;
  s.os.setstate(std::ios_base::eofbit);
  s.os << 1L << 2.0 << true << static_cast<const void*>(0);
  CHECK_EQ(s.spy->calls, 0);
  CHECK_EQ(s.os.width(), 9L);
}
