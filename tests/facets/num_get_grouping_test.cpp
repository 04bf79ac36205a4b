// The grouping check of num_get: inline in the integer and floating-point scanners under a
// numpunct of the test's choosing (sizes, the repeated last size, 127, zero sizes, the low four
// bits), __trelk_check_grouping on its own, and the bounds of the scanners' storage: more digits
// or separators than they keep end the scan as an overflow.
#include "lorb_test.h"
#include "num_get_reading.h"
#include <limits.h>
#include <locale>
#include <sstream>
#include <stdio.h>
#include <string.h>
#include <string>

namespace {

const std::ios_base::fmtflags dec = std::ios_base::dec | std::ios_base::skipws;
const std::ios_base::fmtflags hex = std::ios_base::hex | std::ios_base::skipws;
const std::ios_base::fmtflags no_base = std::ios_base::skipws;

// A numpunct with a chosen grouping and separator; managed (refs 0), the locale deletes it.
struct grouping_numpunct : std::numpunct<char> {
  grouping_numpunct(const std::string& grouping, char separator)
      : std::numpunct<char>(0), sizes(grouping), separator(separator) {}
  std::string sizes;
  char separator;

protected:
  char do_thousands_sep() const { return separator; }
  string_type do_grouping() const { return sizes; }
};

std::locale grouped(const std::string& grouping, char separator = ',') {
  return std::locale(std::locale::classic(), new grouping_numpunct(grouping, separator));
}

// Grouping strings that hold a zero byte.
std::string sizes(const char* bytes, size_t n) { return std::string(bytes, n); }

// Both instances must agree; the char* one is returned for the caller's checks.
template <class T>
reading<T> read_both(const std::string& text, std::ios_base::fmtflags flags, const std::locale& loc,
                     T before, const char* file, int line) {
  std::istringstream s(text);
  s.flags(flags);
  s.imbue(loc);
  reading<T> a = read_array(text, s, before);
  reading<T> b = read_buffer(s, text.size(), before);
  lt::check_eq(b.value, a.value, file, line, "value through istreambuf_iterator", "through char*");
  lt::check_eq(static_cast<int>(b.err), static_cast<int>(a.err), file, line,
               "bits through istreambuf_iterator", "through char*");
  lt::check_eq(b.taken, a.taken, file, line, "taken through istreambuf_iterator", "through char*");
  return a;
}

template <class T>
void check_get(const std::string& text, std::ios_base::fmtflags flags, const std::locale& loc,
               T before, T expected, iostate err, size_t taken, const char* file, int line) {
  reading<T> r = read_both(text, flags, loc, before, file, line);
  lt::check_eq(r.value, expected, file, line, text.c_str(), "expected value");
  lt::check_eq(static_cast<int>(r.err), static_cast<int>(err), file, line, "bits", "expected");
  lt::check_eq(r.taken, taken, file, line, "characters taken", "expected");
}

#define CHECK_GET(type, text, flags, loc, expected, err, taken)                                    \
  check_get<type>((text), (flags), (loc), static_cast<type>(77), static_cast<type>(expected),      \
                  (err), (taken), __FILE__, __LINE__)

// Read whole, the input ending after it.
#define CHECK_READS(type, text, loc, expected)                                                     \
  CHECK_GET(type, std::string(text), dec, loc, expected, eof, std::string(text).size())

// Read whole but failing the grouping: the value read is kept.
#define CHECK_MISGROUPED(type, text, loc, value)                                                   \
  CHECK_GET(type, std::string(text), dec, loc, value, fail_eof, std::string(text).size())

// A floating-point text that fails leaves the value as it was.
#define CHECK_FLOAT_FAILS(text, loc)                                                               \
  do {                                                                                             \
    reading<double> r_ = read_both(std::string(text), dec, (loc), 77.0, __FILE__, __LINE__);       \
    CHECK_EQ(r_.value, 77.0);                                                                      \
    CHECK(r_.err& fail);                                                                           \
  } while (0)

// Writes digits with separators where the rule wants them: sizes from the right, the last one
// repeating, 127 ending the grouping.
std::string group(const std::string& digits, const std::string& grouping, char separator) {
  std::string out = digits;
  size_t k = 0, end = digits.size();
  while (k < grouping.size()) {
    unsigned char size = static_cast<unsigned char>(grouping[k]);
    if (size == 127 || size == 0 || size >= end)
      break;
    end -= size;
    out.insert(end, 1, separator);
    if (k + 1 < grouping.size())
      ++k;
  }
  return out;
}

struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned long next() {
    state = state * 1103515245ul + 12345ul;
    return state >> 8;
  }
};

} // namespace

// Groups of three, ','

TEST(groups_of_three_read_1_234_and_1_234_567) {
  std::locale loc = grouped("\3");
  CHECK_READS(unsigned long, "1,234", loc, 1234);
  CHECK_READS(unsigned long, "1,234,567", loc, 1234567);
  CHECK_READS(unsigned long, "4,294,967,295", loc, 0xFFFFFFFFul);
  CHECK_READS(long, "-2,147,483,648", loc, LONG_MIN);
  CHECK_READS(unsigned long, "123", loc, 123);
  CHECK_GET(unsigned long, "1,234 ", dec, loc, 1234, good, 5);
}

TEST(groups_of_three_fail_12_34_and_1234_567_keeping_the_value) {
  std::locale loc = grouped("\3");
  CHECK_MISGROUPED(unsigned long, "12,34", loc, 1234);
  CHECK_MISGROUPED(unsigned long, "1234,567", loc, 1234567);
  CHECK_MISGROUPED(unsigned long, "1,234,56", loc, 123456);
  CHECK_MISGROUPED(long, "-1,2345", loc, -12345);
  CHECK_MISGROUPED(unsigned long, "1,,234", loc, 1234);
  CHECK_MISGROUPED(unsigned long, "1234,", loc, 1234); // the trailing separator is taken
  CHECK_GET(unsigned long, "12,34 ", dec, loc, 1234, fail, 5);
}

// The separator at position 0 is a group of no digits, which the leftmost group may be.
TEST(a_separator_before_the_first_digit_is_an_empty_leftmost_group) {
  CHECK_READS(unsigned long, ",123", grouped("\3"), 123);
  CHECK_MISGROUPED(unsigned long, ",1234", grouped("\3"), 1234);
}

TEST(hex_and_octal_digits_are_grouped_after_the_prefix) {
  std::locale loc = grouped("\3");
  CHECK_GET(unsigned long, "0x1,abc", hex, loc, 0x1ABC, eof, 7);
  CHECK_GET(unsigned long, "0x1a,bc", no_base, loc, 0x1ABC, fail_eof, 7);
  CHECK_GET(unsigned long, "0,123", no_base, loc, 0123, eof, 5); // the leading 0 is a digit
}

TEST(without_a_grouping_the_separator_ends_the_number) {
  CHECK_GET(unsigned long, "1,234", dec, grouped(""), 1, good, 1);
  CHECK_GET(unsigned long, "1.234", dec, grouped("\3", '.'), 1234, eof, 5);
  CHECK_GET(unsigned long, "1,234", dec, grouped("\3", '.'), 1, good, 1);
}

TEST(a_separator_and_point_above_127_are_matched_as_bytes) {
  CHECK_READS(unsigned long,
              "1\xff"
              "234\xff"
              "567",
              grouped("\3", '\xff'), 1234567);
  CHECK_GET(unsigned long,
            "1\xfe"
            "234",
            dec, grouped("\3", '\xff'), 1, good, 1);
  CHECK_READS(double,
              "1\xff"
              "234.5",
              grouped("\3", '\xff'), 1234.5);
}

TEST(the_last_size_repeats) {
  std::locale loc = grouped("\3\2");
  CHECK_READS(unsigned long, "12,34,567", loc, 1234567);
  CHECK_READS(unsigned long, "1,23,45,67,890", loc, 1234567890);
  CHECK_MISGROUPED(unsigned long, "12,345,678", loc, 12345678);
  CHECK_MISGROUPED(unsigned long, "123,45,678", loc, 12345678);
  CHECK_READS(unsigned long, "1,234,567,89,0", grouped("\1\2\3"), 1234567890);
}

TEST(a_separator_that_meets_size_127_fails) {
  CHECK_MISGROUPED(unsigned long, "1,234", grouped("\177"), 1234);
  CHECK_READS(unsigned long, "1234567", grouped("\177"), 1234567);
  CHECK_MISGROUPED(unsigned long, "1,234,567", grouped("\3\177"), 1234567);
}

TEST(size_127_leaves_the_leftmost_integer_group_free) {
  CHECK_READS(unsigned long, "1234567,890", grouped("\3\177"), 1234567890);
  CHECK_READS(unsigned long long, "1234567890123456,789", grouped("\3\177"),
              1234567890123456789ull);
}

TEST(only_the_low_four_bits_of_a_size_count) {
  CHECK_READS(unsigned long, "1,234", grouped("\x13"), 1234);
  CHECK_READS(unsigned long, "1,234", grouped("\xf3"), 1234);
  CHECK_READS(unsigned long long, "1,234567890123456", grouped("\xff"), 1234567890123456ull);
}

// A size of 0 takes no digits: the separator must come after every digit counted so far.
TEST(a_zero_size_wants_the_separator_where_the_digits_end) {
  CHECK_READS(unsigned long, "123,", grouped(sizes("\0\3", 2)), 123);
  CHECK_MISGROUPED(unsigned long, "1,23", grouped(sizes("\0\3", 2)), 123);
  CHECK_MISGROUPED(unsigned long, "5,", grouped(sizes("\0", 1)), 5);
  CHECK_MISGROUPED(unsigned long, "1,234", grouped(sizes("\3\0", 2)), 1234);
}

TEST(generated_grouped_texts_read_and_a_moved_separator_fails) {
  const std::string groupings[] = {"\3", "\3\2", "\1", "\2\3", "\4\1\2", "\3\177", "\1\177"};
  generator g(5);
  for (int i = 0; i < 7; ++i) {
    std::locale loc = grouped(groupings[i], '\'');
    for (int n = 0; n < 40; ++n) {
      unsigned long v = g.next() >> (n % 24);
      char digits[16];
      snprintf(digits, sizeof digits, "%lu", v);
      std::string text = group(digits, groupings[i], '\'');
      CHECK_READS(unsigned long, text, loc, v);
      size_t separator = text.find('\'');
      if (separator != std::string::npos && separator > 0) {
        text[separator] = text[separator - 1]; // one digit moves right
        text[separator - 1] = '\'';
        CHECK_MISGROUPED(unsigned long, text, loc, v);
      }
    }
  }
}

// The floating-point scanner

TEST(float_groups_of_three_read_and_misgrouping_fails) {
  std::locale loc = grouped("\3");
  CHECK_READS(double, "1,234.5", loc, 1234.5);
  CHECK_READS(double, "-1,234,567.25e1", loc, -12345672.5);
  CHECK_READS(double, ",123.5", loc, 123.5);
  CHECK_READS(double, "1,23,45.5", grouped("\2"), 12345.5);
  CHECK_FLOAT_FAILS("12,34.5", loc);
  CHECK_FLOAT_FAILS("1234,567", loc);
  CHECK_FLOAT_FAILS("1,234,.5", loc);
  CHECK_FLOAT_FAILS("1,", loc);
  CHECK_FLOAT_FAILS("1,234,e5", loc);
  CHECK_FLOAT_FAILS("1,234", grouped("\177"));
}

// Kept: the floating-point scanner holds the leftmost group under 127 to 127 & 15 digits.
TEST(float_size_127_limits_the_leftmost_group_to_15_digits) {
  std::locale loc = grouped("\3\177");
  CHECK_READS(double, "123456789012345,678.5", loc, 123456789012345678.5);
  CHECK_FLOAT_FAILS("1234567890123456,789.5", loc);
  CHECK_READS(double, "12345678901234567890.5", grouped("\177"), 12345678901234567890.5);
}

// __trelk_check_grouping on its own

TEST(check_grouping_is_true_without_separators_whatever_the_grouping) {
  CHECK(std::__trelk_check_grouping(4, 0, 0, ""));
  CHECK(std::__trelk_check_grouping(4, 0, 0, "\3"));
  CHECK(std::__trelk_check_grouping(1000, 0, 0, "\177"));
  CHECK(std::__trelk_check_grouping(0, 0, 0, sizes("\0", 1)));
}

TEST(check_grouping_is_false_for_separators_under_an_empty_grouping) {
  const int positions[] = {1, 4};
  CHECK(!std::__trelk_check_grouping(4, 1, positions, ""));
  CHECK(!std::__trelk_check_grouping(7, 2, positions, ""));
}

TEST(check_grouping_walks_the_positions_from_the_last) {
  const int one[] = {1};
  const int two[] = {2};
  const int four[] = {4};
  const int one_four[] = {1, 4};
  const int four_one[] = {4, 1};
  CHECK(std::__trelk_check_grouping(4, 1, one, "\3"));
  CHECK(!std::__trelk_check_grouping(4, 1, two, "\3"));
  CHECK(!std::__trelk_check_grouping(7, 1, four, "\3"));
  CHECK(std::__trelk_check_grouping(7, 2, one_four, "\3"));
  CHECK(!std::__trelk_check_grouping(7, 2, four_one, "\3"));
  CHECK(std::__trelk_check_grouping(6, 2, one_four, "\2\3")); // 1,234,56 under 2 then 3
  CHECK(!std::__trelk_check_grouping(4, 1, one, "\177"));
}

TEST(check_grouping_leaves_the_leftmost_group_free_under_127) {
  const int fifteen[] = {15};
  const int sixteen[] = {16};
  CHECK(std::__trelk_check_grouping(19, 1, sixteen, "\3\177"));
  CHECK(!std::__trelk_check_grouping(19, 1, sixteen, "\3\17"));
  CHECK(std::__trelk_check_grouping(17, 1, fifteen, "\2\17"));
}

TEST(check_grouping_takes_zero_sizes_and_the_low_four_bits) {
  const int zero[] = {0};
  const int three[] = {3};
  const int one[] = {1};
  CHECK(std::__trelk_check_grouping(0, 1, zero, sizes("\0", 1)));
  CHECK(std::__trelk_check_grouping(3, 1, three, sizes("\0\3", 2)));
  CHECK(!std::__trelk_check_grouping(3, 1, three, sizes("\0", 1)));
  CHECK(std::__trelk_check_grouping(4, 1, one, "\x23"));
  CHECK(std::__trelk_check_grouping(16, 1, one, "\xff")); // 255 is no stop: 15 digits
}

TEST(generated_positions_pass_the_check_and_a_moved_one_fails) {
  const std::string groupings[] = {"\3", "\3\2", "\1", "\4\1\2", "\2\177"};
  generator g(6);
  for (int i = 0; i < 5; ++i) {
    for (int n = 0; n < 60; ++n) {
      int digits = 1 + static_cast<int>(g.next() % 20);
      std::string text = group(std::string(static_cast<size_t>(digits), '9'), groupings[i], ',');
      int positions[20];
      int separators = 0, seen = 0;
      for (size_t c = 0; c < text.size(); ++c) {
        if (text[c] == ',')
          positions[separators++] = seen;
        else
          ++seen;
      }
      CHECK(std::__trelk_check_grouping(digits, separators, positions, groupings[i]));
      if (separators) {
        int moved = static_cast<int>(g.next() % separators);
        positions[moved] += g.next() % 2 ? 1 : -1;
        CHECK(!std::__trelk_check_grouping(digits, separators, positions, groupings[i]));
      }
    }
  }
}

// A walk that reads a size past the end of the grouping.
TEST(a_walk_past_the_grouping_aborts_with_the_out_of_range_message) {
  const int positions[] = {1};
  EXPECT_ABORT(__vel::group_positions_fit(4, 1, positions, "", false),
               "out_of_range: Out of range exception occurred\n");
}

// Bounds of the scanners' storage

TEST(two_hundred_decimal_digits_read_and_more_end_as_an_overflow) {
  std::locale loc = std::locale::classic();
  std::string digits(199, '0');
  CHECK_READS(unsigned long, digits + "7", loc, 7);
  CHECK_READS(long, "-" + digits + "7", loc, -7);
  reading<unsigned long> r = read_both(digits + "07", dec, loc, 77ul, __FILE__, __LINE__);
  CHECK_EQ(r.value, 0xFFFFFFFFul);
  CHECK(r.err & fail);
  reading<long> s = read_both("-" + digits + "07", dec, loc, 77L, __FILE__, __LINE__);
  CHECK_EQ(s.value, LONG_MIN);
  CHECK(s.err & fail);
}

TEST(a_huge_decimal_number_ends_as_an_overflow_without_harm) {
  std::string digits(100000, '0');
  reading<unsigned long> r = read_both(digits, dec, grouped("\3"), 77ul, __FILE__, __LINE__);
  CHECK_EQ(r.value, 0xFFFFFFFFul);
  CHECK(r.err & fail);
  CHECK(r.taken <= digits.size());
  reading<unsigned long long> q = read_both(digits, dec, grouped(""), 77ull, __FILE__, __LINE__);
  CHECK_EQ(q.value, ULLONG_MAX);
  CHECK(q.err & fail);
}

TEST(twenty_separators_read_and_more_end_as_an_overflow) {
  std::locale loc = grouped("\1");
  std::string twenty = "0";
  for (int i = 0; i < 19; ++i)
    twenty += ",0";
  twenty += ",5";
  CHECK_READS(unsigned long, twenty, loc, 5);
  CHECK_GET(unsigned long, twenty, hex, loc, 5, eof, twenty.size());
  reading<unsigned long> r = read_both("0," + twenty, dec, loc, 77ul, __FILE__, __LINE__);
  CHECK_EQ(r.value, 0xFFFFFFFFul);
  CHECK(r.err & fail);
  reading<long> s = read_both("-0," + twenty, hex, loc, 77L, __FILE__, __LINE__);
  CHECK_EQ(s.value, LONG_MIN);
  CHECK(s.err & fail);
}

TEST(a_huge_run_of_separators_ends_as_an_overflow_without_harm) {
  std::string text = "1" + std::string(100000, ',') + "1";
  reading<unsigned long> r = read_both(text, dec, grouped("\3"), 77ul, __FILE__, __LINE__);
  CHECK_EQ(r.value, 0xFFFFFFFFul);
  CHECK(r.err & fail);
  CHECK(r.taken <= text.size());
}

TEST(float_twenty_separators_read_and_more_fail) {
  std::locale loc = grouped("\1");
  std::string twenty = "0";
  for (int i = 0; i < 19; ++i)
    twenty += ",0";
  twenty += ",5";
  CHECK_READS(double, twenty + ".5", loc, 5.5);
  CHECK_FLOAT_FAILS("0," + twenty + ".5", loc);
  CHECK_FLOAT_FAILS("1" + std::string(100000, ',') + "1", grouped("\3"));
}

// Hex and octal digits are not kept anywhere: only their value can overflow, and leading zeros
// give it nothing.
TEST(hex_and_octal_leading_zeros_past_200_are_read) {
  std::string zeros(300, '0');
  std::string hex_text = "0x" + zeros + "1F";
  reading<unsigned long> h =
      read_both(hex_text, no_base, std::locale::classic(), 77ul, __FILE__, __LINE__);
  CHECK_EQ(h.value, 31ul);
  CHECK_EQ(static_cast<int>(h.err), static_cast<int>(eof));
  CHECK_EQ(h.taken, hex_text.size());
  std::string oct_text = zeros + "17";
  reading<unsigned long> o =
      read_both(oct_text, std::ios_base::oct, std::locale::classic(), 77ul, __FILE__, __LINE__);
  CHECK_EQ(o.value, 15ul);
  CHECK_EQ(static_cast<int>(o.err), static_cast<int>(eof));
  CHECK_EQ(o.taken, oct_text.size());
}
