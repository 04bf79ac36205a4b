// num_get for float, double, long double, void* and bool: the text handed to sscanf ("5.",
// ".5", exponents, white space after a sign, a too long number, the C library's decimal point),
// pointers through %p (the empty collection, ERANGE, errno kept, narrowing), and booleans as
// digits or as names (a user numpunct, the end of input right after a name, ties, prefixes).
// Every reading goes through both instances: over char* and over a string buffer.
#include "lorb_test.h"
#include "num_get_reading.h"
#include <errno.h>
#include <locale.h>
#include <locale>
#include <sstream>
#include <stdio.h>
#include <string.h>
#include <string>

namespace {

const std::ios_base::fmtflags skipws = std::ios_base::skipws | std::ios_base::dec;
const std::ios_base::fmtflags noskipws = std::ios_base::dec;
const std::ios_base::fmtflags alpha = skipws | std::ios_base::boolalpha;
const std::ios_base::fmtflags alpha_noskipws = noskipws | std::ios_base::boolalpha;

// A numpunct with a chosen point, separator, grouping and names; the locale deletes it.
struct chosen_numpunct : std::numpunct<char> {
  chosen_numpunct(char point, char separator, const std::string& grouping, const char* truename,
                  const char* falsename)
      : std::numpunct<char>(0), point(point), separator(separator), sizes(grouping),
        true_text(truename), false_text(falsename) {}
  char point, separator;
  std::string sizes;
  const char *true_text, *false_text;

protected:
  char do_decimal_point() const { return point; }
  char do_thousands_sep() const { return separator; }
  string_type do_grouping() const { return sizes; }
  string_type do_truename() const { return true_text; }
  string_type do_falsename() const { return false_text; }
};

std::locale with_point(char point, char separator = ',', const std::string& grouping = "") {
  return std::locale(std::locale::classic(),
                     new chosen_numpunct(point, separator, grouping, "true", "false"));
}

std::locale with_names(const char* truename, const char* falsename) {
  return std::locale(std::locale::classic(),
                     new chosen_numpunct('.', ',', "", truename, falsename));
}

// Narrows 'q' to 'x' and 'g' to 'f'; the pointer reader keeps what narrow gives.
struct narrowing_ctype : std::ctype<char> {
  narrowing_ctype() : std::ctype<char>(0, false, 0) {}

protected:
  char do_narrow(char c, char dfault) const { return c == 'q' ? 'x' : c == 'g' ? 'f' : c; }
};

void describe(char* out, size_t n, long double v) { snprintf(out, n, "%.21Lg", v); }
void describe(char* out, size_t n, double v) { snprintf(out, n, "%.17g", v); }
void describe(char* out, size_t n, float v) { snprintf(out, n, "%.9g", static_cast<double>(v)); }
void describe(char* out, size_t n, void* v) { snprintf(out, n, "%p", v); }
void describe(char* out, size_t n, bool v) { snprintf(out, n, "%s", v ? "true" : "false"); }

template <class T>
void check_reading(const reading<T>& r, T expected, iostate err, size_t taken, const char* file,
                   int line, const char* text, const char* instance) {
  if (!(r.value == expected)) {
    char detail[300], got[64], want[64];
    describe(got, sizeof got, r.value);
    describe(want, sizeof want, expected);
    snprintf(detail, sizeof detail, "\"%.60s\" through the %s instance read %s, expected %s", text,
             instance, got, want);
    lt::fail(file, line, "value", detail);
  } else {
    lt::check(true, file, line, "value");
  }
  lt::check_eq(static_cast<int>(r.err), static_cast<int>(err), file, line, instance, "bits");
  lt::check_eq(r.taken, taken, file, line, instance, "characters taken");
}

// Reads text into a T holding `before`; both instances must leave `expected`, set exactly
// `err` and take `taken` characters.
template <class T>
void check_get(const std::string& text, std::ios_base::fmtflags flags, const std::locale& loc,
               T before, T expected, iostate err, size_t taken, const char* file, int line) {
  std::istringstream s(text);
  s.flags(flags);
  s.imbue(loc);
  check_reading(read_array(text, s, before), expected, err, taken, file, line, text.c_str(),
                "char*");
  check_reading(read_buffer(s, text.size(), before), expected, err, taken, file, line, text.c_str(),
                "istreambuf_iterator");
}

#define CHECK_GET(type, text, flags, loc, before, expected, err, taken)                            \
  check_get<type>(std::string(text), (flags), (loc), (before), (expected), (err), (taken),         \
                  __FILE__, __LINE__)

// A double read whole, the input ending after it.
#define CHECK_DOUBLE(text, expected)                                                               \
  CHECK_GET(double, text, skipws, std::locale::classic(), 77.0, (expected), eof,                   \
            std::string(text).size())

// A double that fails: the value stays 77.
#define CHECK_DOUBLE_FAILS(text, err, taken)                                                       \
  CHECK_GET(double, text, skipws, std::locale::classic(), 77.0, 77.0, (err), (taken))

// What sscanf makes of a text, the converter the facet hands its text to.
template <class T> T c_value(const char* text, const char* format) {
  T v = 0;
  int n = sscanf(text, format, &v);
  CHECK_EQ(n, 1);
  return v;
}

struct generator {
  unsigned long state;
  explicit generator(unsigned long seed) : state(seed) {}
  unsigned long next() {
    state = state * 1103515245ul + 12345ul;
    unsigned long high = state >> 16;
    state = state * 1103515245ul + 12345ul;
    return (high << 16) ^ (state >> 16);
  }
};

// A bool read from text with v first false, then true: `expected` is 0, 1, or -1 for "v left
// as it was".
void check_bool(const std::string& text, std::ios_base::fmtflags flags, const std::locale& loc,
                int expected, iostate err, size_t taken, const char* file, int line) {
  for (int before = 0; before < 2; ++before) {
    bool want = expected < 0 ? before != 0 : expected != 0;
    check_get<bool>(text, flags, loc, before != 0, want, err, taken, file, line);
  }
}

#define CHECK_BOOL(text, flags, loc, expected, err, taken)                                         \
  check_bool(std::string(text), (flags), (loc), (expected), (err), (taken), __FILE__, __LINE__)

const int unchanged = -1;

template <class _Facet> std::locale locale_without() {
  std::locale copy(std::locale::classic(), new std::numpunct<char>);
  std::locale::facet*& entry = copy.__imp->facets.data[_Facet::id.__number()];
  std::locale::facet* held = entry;
  entry = 0;
  held->__release();
  return copy;
}

template <class T> void read_with_locale(const std::locale& loc, std::ios_base::fmtflags flags) {
  std::istringstream s;
  s.flags(flags);
  s.std::ios_base::imbue(loc); // the stream's own imbue would want the ctype facet
  array_reader facet;
  char text[] = "1 ";
  iostate err = good;
  T v = T();
  facet.get(text, text + 2, s, err, v);
  printf("%s\n", err == good ? "good" : "bad");
}

} // namespace

// Floating point

TEST(generated_doubles_read_back_exactly_from_17_digits) {
  generator g(7);
  for (int i = 0; i < 300; ++i) {
    unsigned long long bits = static_cast<unsigned long long>(g.next()) << 32 | g.next();
    bits &= ~(0x7FFull << 52);
    bits |= static_cast<unsigned long long>(1023 + (i % 200) - 100) << 52;
    double v;
    memcpy(&v, &bits, sizeof v);
    char text[64];
    snprintf(text, sizeof text, "%.17g", v);
    CHECK_DOUBLE(text, v);
  }
}

TEST(generated_floats_and_long_doubles_read_back_exactly) {
  generator g(8);
  for (int i = 0; i < 200; ++i) {
    // Stored through volatile, so that no excess precision of the x87 registers stays in them.
    volatile float stored_f =
        static_cast<float>(g.next()) / static_cast<float>(1 + g.next() % 99991);
    volatile long double stored_ld =
        static_cast<long double>(g.next()) / (1 + g.next() % 997) * 1e-9L;
    float f = stored_f;
    long double ld = stored_ld;
    char text[64];
    snprintf(text, sizeof text, "%.9g", f);
    CHECK_GET(float, text, skipws, std::locale::classic(), 77.0f, f, eof, strlen(text));
    snprintf(text, sizeof text, "%.21Lg", ld);
    CHECK_GET(long double, text, skipws, std::locale::classic(), 77.0L, ld, eof, strlen(text));
  }
}

TEST(each_type_reads_what_sscanf_reads_for_its_conversion) {
  const char* texts[] = {"0.1",  "3.25",  "1e39", "1e-50", "1e400", "123456789.123456789",
                         "-0.0", "4e-320"};
  for (int i = 0; i < 8; ++i) {
    std::string text(texts[i]);
    CHECK_GET(float, text, skipws, std::locale::classic(), 77.0f, c_value<float>(texts[i], "%f"),
              eof, text.size());
    CHECK_GET(double, text, skipws, std::locale::classic(), 77.0, c_value<double>(texts[i], "%lf"),
              eof, text.size());
    CHECK_GET(long double, text, skipws, std::locale::classic(), 77.0L,
              c_value<long double>(texts[i], "%Lf"), eof, text.size());
  }
}

TEST(a_point_with_digits_on_one_side_only_is_a_number) {
  CHECK_DOUBLE("5.", 5.0);
  CHECK_DOUBLE(".5", 0.5);
  CHECK_DOUBLE("-.5", -0.5);
  CHECK_DOUBLE("+5.", 5.0);
  CHECK_DOUBLE("00012.50", 12.5);
  CHECK_DOUBLE_FAILS(".", fail_eof, 1);
  CHECK_DOUBLE_FAILS("-.x", fail, 2);
}

TEST(exponents_take_a_sign_and_need_digits) {
  CHECK_DOUBLE("1E3", 1000.0);
  CHECK_DOUBLE("2.5e-1", 0.25);
  CHECK_DOUBLE("+.5e+2", 50.0);
  CHECK_DOUBLE("5.e1", 50.0);
  CHECK_DOUBLE_FAILS("1e", fail_eof, 2);
  CHECK_DOUBLE_FAILS("1e+", fail_eof, 3);
  CHECK_DOUBLE_FAILS("1ex", fail, 2);
  CHECK_DOUBLE_FAILS("1e-x", fail, 3);
  CHECK_DOUBLE_FAILS("e5", fail, 0);
  CHECK_DOUBLE_FAILS(".e5", fail, 1);
}

TEST(the_number_ends_at_the_first_character_that_cannot_continue_it) {
  CHECK_GET(double, "1.5x", skipws, std::locale::classic(), 77.0, 1.5, good, 3);
  CHECK_GET(double, "1.2.3", skipws, std::locale::classic(), 77.0, 1.2, good, 3);
  CHECK_GET(double, "1e5.3", skipws, std::locale::classic(), 77.0, 1e5, good, 3);
  CHECK_GET(double, "0x1p3", skipws, std::locale::classic(), 77.0, 0.0, good, 1);
  CHECK_GET(double, "2 ", skipws, std::locale::classic(), 77.0, 2.0, good, 1);
  CHECK_GET(double, "1,5", skipws, std::locale::classic(), 77.0, 1.0, good, 1);
}

TEST(white_space_is_skipped_after_a_sign_and_in_the_exponent_only_with_skipws) {
  CHECK_DOUBLE("- 1.5", -1.5);
  CHECK_DOUBLE("  1.5", 1.5);
  CHECK_DOUBLE("1e 5", 1e5);
  CHECK_DOUBLE("1e- 5", 1e-5);
  CHECK_GET(double, "- 1.5", noskipws, std::locale::classic(), 77.0, 77.0, fail, 1);
  CHECK_GET(double, " 1.5", noskipws, std::locale::classic(), 77.0, 77.0, fail, 0);
  CHECK_GET(double, "1e 5", noskipws, std::locale::classic(), 77.0, 77.0, fail, 2);
}

TEST(bad_syntax_leaves_the_value_unchanged) {
  CHECK_DOUBLE_FAILS("", fail_eof, 0);
  CHECK_DOUBLE_FAILS("-", fail_eof, 1);
  CHECK_DOUBLE_FAILS("x", fail, 0);
  CHECK_DOUBLE_FAILS("inf", fail, 0);
  CHECK_DOUBLE_FAILS("nan", fail, 0);
  CHECK_DOUBLE_FAILS("+-1", fail, 1);
  CHECK_DOUBLE_FAILS("   ", fail_eof, 3);
  CHECK_GET(float, "x", skipws, std::locale::classic(), 7.5f, 7.5f, fail, 0);
  CHECK_GET(long double, ".", skipws, std::locale::classic(), 7.5L, 7.5L, fail_eof, 1);
}

TEST(a_number_of_198_characters_reads) {
  std::string text = "-" + std::string(150, '1') + "." + std::string(40, '2') + "e-0100";
  CHECK_EQ(text.size(), 198u);
  CHECK_DOUBLE(text, c_value<double>(text.c_str(), "%lf"));
}

TEST(a_number_longer_than_the_text_fails_cleanly) {
  const size_t lengths[] = {200, 201, 1000, 100000};
  for (int i = 0; i < 4; ++i) {
    std::string digits(lengths[i], '3');
    const std::string texts[] = {digits, "0." + digits, "1e" + digits, "-" + digits + ".5"};
    for (int t = 0; t < 4; ++t) {
      std::istringstream s(texts[t]);
      reading<double> a = read_array(texts[t], s, 77.0);
      reading<double> b = read_buffer(s, texts[t].size(), 77.0);
      CHECK_EQ(a.value, 77.0);
      CHECK(a.err & fail);
      CHECK(a.taken <= texts[t].size());
      CHECK_EQ(b.value, 77.0);
      CHECK(b.err & fail);
    }
  }
}

TEST(the_stream_point_is_read_whatever_the_c_library_uses) {
  std::locale comma = with_point(',', '.');
  CHECK_GET(double, "3,25", skipws, comma, 77.0, 3.25, eof, 4);
  CHECK_GET(double, "-,5e1", skipws, comma, 77.0, -5.0, eof, 5);
  CHECK_GET(double, "3.25", skipws, comma, 77.0, 3.0, good, 1);
  CHECK_GET(long double, "1,5", skipws, with_point(','), 77.0L, 1.5L, eof, 3);
  CHECK_GET(double, "1@5", skipws, with_point('@'), 77.0, 1.5, eof, 3);
}

ISOLATED_TEST(under_a_c_locale_with_a_comma_the_classic_point_still_reads) {
  if (!setlocale(LC_NUMERIC, "de_DE.UTF-8")) {
    CHECK(!"the de_DE.UTF-8 locale is installed");
    return;
  }
  CHECK_EQ(c_value<double>("3,25", "%lf"), 3.25); // the C library now wants a comma
  CHECK_GET(double, "3.25", skipws, std::locale::classic(), 77.0, 3.25, eof, 4);
  CHECK_GET(float, "-.5", skipws, std::locale::classic(), 77.0f, -0.5f, eof, 3);
  CHECK_GET(double, "3,25", skipws, with_point(',', '.'), 77.0, 3.25, eof, 4);
  CHECK_GET(double, "3,25", skipws, std::locale::classic(), 77.0, 3.0, good, 1);
}

TEST(a_missing_facet_aborts_floating_point_input_with_the_bad_cast_message) {
  EXPECT_CHILD(read_with_locale<double>(std::locale::classic(), skipws), lt::exits(0), "good\n",
               "");
  EXPECT_ABORT(read_with_locale<double>(locale_without<std::numpunct<char> >(), skipws),
               "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(read_with_locale<float>(locale_without<std::ctype<char> >(), skipws),
               "bad_cast: Facet not present\n\n");
}

// Pointers

TEST(pointers_printed_with_p_read_back) {
  generator g(9);
  for (int i = 0; i < 200; ++i) {
    void* p = reinterpret_cast<void*>(g.next() >> (i % 32) | 1);
    char text[32];
    snprintf(text, sizeof text, "%p", p);
    CHECK_GET(void*, text, skipws, std::locale::classic(), static_cast<void*>(0), p, eof,
              strlen(text));
  }
}

TEST(pointer_text_is_hex_with_or_without_0x) {
  void* before = &errno;
  std::locale c = std::locale::classic();
  CHECK_GET(void*, "0x1a2B", skipws, c, before, reinterpret_cast<void*>(0x1a2b), eof, 6);
  CHECK_GET(void*, "1a2b", skipws, c, before, reinterpret_cast<void*>(0x1a2b), eof, 4);
  CHECK_GET(void*, "0XFFFFFFFF", skipws, c, before, reinterpret_cast<void*>(0xFFFFFFFFul), eof, 10);
  CHECK_GET(void*, "0x10g", skipws, c, before, reinterpret_cast<void*>(0x10), good, 4);
  CHECK_GET(void*, "0", skipws, c, before, static_cast<void*>(0), eof, 1);
}

// Kept: nothing collected makes sscanf report end of file, which counts as a conversion.
TEST(an_empty_collection_gives_a_null_pointer_without_failbit) {
  void* before = &errno;
  std::locale c = std::locale::classic();
  CHECK_GET(void*, "", skipws, c, before, static_cast<void*>(0), eof, 0);
  CHECK_GET(void*, "zz", skipws, c, before, static_cast<void*>(0), good, 0);
  CHECK_GET(void*, "(nil)", skipws, c, before, static_cast<void*>(0), good, 0);
  CHECK_GET(void*, " 0x10", skipws, c, before, static_cast<void*>(0), good, 0); // no skipping
}

TEST(collected_text_that_sscanf_rejects_fails_and_keeps_the_pointer) {
  void* before = &errno;
  std::locale c = std::locale::classic();
  void* ignored = 0;
  CHECK_EQ(sscanf("x", "%p", &ignored), 0);
  CHECK_GET(void*, "x", skipws, c, before, before, fail_eof, 1);
  CHECK_GET(void*, "xyz", skipws, c, before, before, fail, 1);
}

TEST(a_pointer_out_of_range_fails_and_errno_is_kept) {
  void* before = &errno;
  std::locale c = std::locale::classic();
  errno = 0;
  void* p = 0;
  sscanf("0x123456789", "%p", &p);
  CHECK_EQ(errno, ERANGE); // the C library reports this text out of range
  errno = 77;
  CHECK_GET(void*, "0x123456789", skipws, c, before, before, fail_eof, 11);
  CHECK_EQ(errno, 77);
  CHECK_GET(void*, "0x12", skipws, c, before, reinterpret_cast<void*>(0x12), eof, 4);
  CHECK_EQ(errno, 77);
  errno = ERANGE; // what the reader decides then is its own; errno must come back as it was
  std::istringstream s("0x12");
  read_array(std::string("0x12"), s, before);
  CHECK_EQ(errno, ERANGE);
  errno = 0;
}

TEST(pointer_characters_are_taken_as_the_ctype_narrows_them) {
  std::locale loc(std::locale::classic(), new narrowing_ctype);
  CHECK_GET(void*, "0qgg", skipws, loc, static_cast<void*>(0), reinterpret_cast<void*>(0xff), eof,
            4);
}

TEST(a_long_run_of_pointer_characters_ends_without_harm) {
  std::string zeros(1000, '0');
  std::istringstream s(zeros);
  void* before = &errno;
  reading<void*> a = read_array(zeros, s, before);
  reading<void*> b = read_buffer(s, zeros.size(), before);
  CHECK_EQ(a.value, static_cast<void*>(0));
  CHECK(!(a.err & fail));
  CHECK(a.taken <= zeros.size());
  CHECK_EQ(b.value, static_cast<void*>(0));
  CHECK(!(b.err & fail));
}

TEST(a_missing_ctype_aborts_pointer_input_with_the_bad_cast_message) {
  EXPECT_ABORT(read_with_locale<void*>(locale_without<std::ctype<char> >(), skipws),
               "bad_cast: Facet not present\n\n");
}

// Booleans as digits

TEST(without_boolalpha_one_digit_decides) {
  std::locale c = std::locale::classic();
  CHECK_BOOL("1", skipws, c, 1, eof, 1);
  CHECK_BOOL("0", skipws, c, 0, eof, 1);
  CHECK_BOOL("1 ", skipws, c, 1, good, 1);
  CHECK_BOOL("  \n0", skipws, c, 0, eof, 4);
}

TEST(without_boolalpha_10_reads_true_and_leaves_the_0) {
  CHECK_BOOL("10", skipws, std::locale::classic(), 1, good, 1);
  CHECK_BOOL("01", skipws, std::locale::classic(), 0, good, 1);
}

TEST(without_boolalpha_anything_else_fails_and_is_not_taken) {
  std::locale c = std::locale::classic();
  CHECK_BOOL("2", skipws, c, unchanged, fail, 0);
  CHECK_BOOL("-1", skipws, c, unchanged, fail, 0);
  CHECK_BOOL("true", skipws, c, unchanged, fail, 0);
  CHECK_BOOL("", skipws, c, unchanged, eof, 0);
  CHECK_BOOL("   ", skipws, c, unchanged, eof, 3);
}

TEST(without_skipws_leading_white_space_fails) {
  CHECK_BOOL(" 1", noskipws, std::locale::classic(), unchanged, fail, 0);
  CHECK_BOOL(" true", alpha_noskipws, std::locale::classic(), unchanged, fail, 0);
  CHECK_BOOL("1", noskipws, std::locale::classic(), 1, eof, 1);
  CHECK_BOOL("", noskipws, std::locale::classic(), unchanged, eof, 0);
}

// Booleans as names

TEST(boolalpha_reads_a_name_followed_by_another_character) {
  std::locale c = std::locale::classic();
  CHECK_BOOL("true ", alpha, c, 1, good, 4);
  CHECK_BOOL("false\n", alpha, c, 0, good, 5);
  CHECK_BOOL("  true.", alpha, c, 1, good, 6);
  CHECK_BOOL("truefalse", alpha, c, 1, good, 4);
  CHECK_BOOL("true ", alpha_noskipws, c, 1, good, 4);
}

// Kept: the name is recognised only once the character after it is seen.
TEST(boolalpha_a_name_ending_the_input_gives_only_eofbit) {
  std::locale c = std::locale::classic();
  CHECK_BOOL("true", alpha, c, unchanged, eof, 4);
  CHECK_BOOL("false", alpha, c, unchanged, eof, 5);
  CHECK_BOOL("  true", alpha, c, unchanged, eof, 6);
  CHECK_BOOL("tru", alpha, c, unchanged, eof, 3);
  CHECK_BOOL("", alpha, c, unchanged, eof, 0);
  CHECK_BOOL("  ", alpha, c, unchanged, eof, 2);
}

TEST(boolalpha_a_mismatch_fails_before_the_character_that_differs) {
  std::locale c = std::locale::classic();
  CHECK_BOOL("trux", alpha, c, unchanged, fail, 3);
  CHECK_BOOL("f ", alpha, c, unchanged, fail, 1);
  CHECK_BOOL("x", alpha, c, unchanged, fail, 0);
  CHECK_BOOL("TRUE ", alpha, c, unchanged, fail, 0);
  CHECK_BOOL("1 ", alpha, c, unchanged, fail, 0);
}

TEST(boolalpha_takes_the_names_of_the_stream_numpunct) {
  std::locale loc = with_names("oui", "non");
  CHECK_BOOL("oui.", alpha, loc, 1, good, 3);
  CHECK_BOOL("non!", alpha, loc, 0, good, 3);
  CHECK_BOOL("true ", alpha, loc, unchanged, fail, 0);
  CHECK_BOOL("very true!", alpha, with_names("very true", "very false"), 1, good, 9);
  CHECK_BOOL("1", skipws, loc, 1, eof, 1); // the names play no part without boolalpha
}

TEST(boolalpha_the_false_name_wins_a_tie) {
  std::locale loc = with_names("yes", "yes");
  CHECK_BOOL("yes ", alpha, loc, 0, good, 3);
  CHECK_BOOL("yes", alpha, loc, unchanged, eof, 3);
}

TEST(boolalpha_a_name_that_is_a_prefix_of_the_other_wins_when_it_completes) {
  std::locale short_false = with_names("abc", "ab");
  CHECK_BOOL("abc ", alpha, short_false, 0, good, 2);
  CHECK_BOOL("abx", alpha, short_false, 0, good, 2);
  std::locale short_true = with_names("ab", "abc");
  CHECK_BOOL("abc ", alpha, short_true, 1, good, 2);
  CHECK_BOOL("ab", alpha, short_true, unchanged, eof, 2);
}

TEST(a_missing_facet_aborts_boolean_input_with_the_bad_cast_message) {
  EXPECT_CHILD(read_with_locale<bool>(std::locale::classic(), skipws), lt::exits(0), "good\n", "");
  EXPECT_ABORT(read_with_locale<bool>(locale_without<std::numpunct<char> >(), alpha),
               "bad_cast: Facet not present\n\n");
  EXPECT_ABORT(read_with_locale<bool>(locale_without<std::ctype<char> >(), skipws),
               "bad_cast: Facet not present\n\n");
}
