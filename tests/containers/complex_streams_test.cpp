// <complex>: insertion as "(re,im)" under the stream's flags, precision, locale, width and fill,
// and extraction of "re", "(re)" and "(re,im)", of malformed text and from a failed stream.
#include "lorb_test.h"
#include <complex>
#include <iomanip>
#include <locale>
#include <sstream>
#include <string>

namespace {

typedef std::complex<double> cdouble;

// Inserts z into a fresh stream after `prepare` set it up.
std::string inserted(const cdouble& z, void (*prepare)(std::ostream&)) {
  std::ostringstream os;
  prepare(os);
  os << z;
  return os.str();
}

// The real part and the imaginary part written by the stream's own inserter with the same set-up,
// joined by the delimiters.
std::string parts_joined(const cdouble& z, void (*prepare)(std::ostream&)) {
  std::ostringstream re, im;
  prepare(re);
  prepare(im);
  re.width(0);
  im.width(0);
  re << z.real();
  im << z.imag();
  return "(" + re.str() + "," + im.str() + ")";
}

void nothing(std::ostream&) {}
void precision_3(std::ostream& os) { os.precision(3); }
void show_positive(std::ostream& os) { os.setf(std::ios_base::showpos); }
void fixed_2(std::ostream& os) {
  os.setf(std::ios_base::fixed, std::ios_base::floatfield);
  os.precision(2);
}
void scientific_upper(std::ostream& os) {
  os.setf(std::ios_base::scientific | std::ios_base::uppercase);
  os.precision(1);
}
void show_point(std::ostream& os) { os.setf(std::ios_base::showpoint); }

// Everything left in the stream's buffer.
std::string rest(std::istream& is) {
  std::string left;
  for (int c = is.rdbuf()->sbumpc(); c != EOF; c = is.rdbuf()->sbumpc())
    left += static_cast<char>(c);
  return left;
}

struct semicolon_point : std::numpunct<char> {
  char do_decimal_point() const { return ';'; }
};

} // namespace

TEST(insertion_writes_the_parts_in_parentheses_as_the_stream_formats_numbers) {
  CHECK_STR(inserted(cdouble(1, 2), nothing).c_str(), "(1,2)");
  CHECK_STR(inserted(cdouble(-1.5, 0.25), nothing).c_str(), "(-1.5,0.25)");
  void (*setups[])(std::ostream&) = {nothing, precision_3,      show_positive,
                                     fixed_2, scientific_upper, show_point};
  cdouble samples[] = {cdouble(1, 2), cdouble(-3.14159265, 1e-7), cdouble(123456.789, -0.0),
                       cdouble(1e300, -2.5e-300)};
  for (unsigned s = 0; s < sizeof setups / sizeof *setups; ++s)
    for (unsigned k = 0; k < sizeof samples / sizeof *samples; ++k)
      CHECK_STR(inserted(samples[k], setups[s]).c_str(),
                parts_joined(samples[k], setups[s]).c_str());
  CHECK_STR(inserted(cdouble(1, 2), show_positive).c_str(), "(+1,+2)");
  CHECK_STR(inserted(cdouble(1, -2), fixed_2).c_str(), "(1.00,-2.00)");
  CHECK_STR(inserted(cdouble(1, 2), scientific_upper).c_str(), "(1.0E+00,2.0E+00)");
  CHECK_STR(inserted(cdouble(3.14159, 2), precision_3).c_str(), "(3.14,2)");
}

// The text goes out through the string inserter, whose padding comes after the text unless the
// adjustment is exactly right (see docs/output-streams.md).
TEST(insertion_pads_the_whole_text_to_the_width_as_a_string_and_then_resets_it) {
  std::ostringstream os;
  os << std::setw(10) << std::right << cdouble(1, 2) << '|';
  os << std::setw(9) << std::setfill('*') << std::left << cdouble(-1, 0) << '|';
  os << std::setw(8) << std::internal << std::showpos << cdouble(1, 2) << '|';
  os << std::setw(3) << std::right << cdouble(10, 20) << '|';
  CHECK_STR(os.str().c_str(), "     (1,2)|(-1,0)***|(+1,+2)*|(+10,+20)|");
  CHECK_EQ(os.width(), 0L);
  std::ostringstream by_default, as_string;
  by_default << std::setw(7) << cdouble(1, 2);
  as_string << std::setw(7) << std::string("(1,2)");
  CHECK_STR(by_default.str().c_str(), as_string.str().c_str());
}

TEST(insertion_uses_the_stream_locale_for_the_decimal_point) {
  std::ostringstream os;
  os.imbue(std::locale(std::locale::classic(), new semicolon_point));
  os << cdouble(1.5, -2.25);
  CHECK_STR(os.str().c_str(), "(1;5,-2;25)");
}

TEST(insertion_of_each_type_and_into_a_failed_stream) {
  std::ostringstream os;
  os << std::complex<float>(0.5f, 3) << std::complex<long double>(-2, 0.125L);
  CHECK_STR(os.str().c_str(), "(0.5,3)(-2,0.125)");
  os.setstate(std::ios_base::failbit);
  os << cdouble(7, 7);
  CHECK_STR(os.str().c_str(), "(0.5,3)(-2,0.125)");
}

TEST(extraction_accepts_a_bare_real_part) {
  std::istringstream is("  2.5");
  cdouble z(7, 7);
  is >> z;
  CHECK(z == cdouble(2.5, 0));
  CHECK(!is.fail());
  CHECK(is.eof());
  std::istringstream signed_real("-4e2 (");
  signed_real >> z;
  CHECK(z == cdouble(-400, 0));
  CHECK(signed_real.good());
  CHECK_STR(rest(signed_real).c_str(), " (");
}

TEST(extraction_accepts_a_parenthesised_real_part_and_a_pair) {
  std::istringstream is("(2.5)(1.5,-3) ( -1 , 0.5 )tail");
  cdouble a, b, c;
  is >> a >> b >> c;
  CHECK(a == cdouble(2.5, 0));
  CHECK(b == cdouble(1.5, -3));
  CHECK(c == cdouble(-1, 0.5));
  CHECK(is.good());
  CHECK_STR(rest(is).c_str(), "tail");
}

TEST(extraction_reads_what_insertion_wrote) {
  std::stringstream text;
  text.precision(17);
  cdouble written[] = {cdouble(0.1, -1e-300), cdouble(-123.456, 7), cdouble(0, 0)};
  for (unsigned i = 0; i < 3; ++i)
    text << written[i] << ' ';
  for (unsigned i = 0; i < 3; ++i) {
    cdouble back(9, 9);
    text >> back;
    CHECK(back == written[i]);
  }
  std::istringstream floats("(0.5,-0.25) 3");
  std::complex<float> f;
  std::complex<long double> l;
  floats >> f >> l;
  CHECK(f == std::complex<float>(0.5f, -0.25f));
  CHECK(l == std::complex<long double>(3, 0));
}

TEST(extraction_of_a_malformed_pair_fails_and_leaves_the_offending_character) {
  struct {
    const char* text;
    const char* left;
  } cases[] = {{"(1;2)", ";2)"}, {"(1,2;", ";"}, {"(1 2)", "2)"}, {"(1,2,3)", ",3)"},
               {"x", "x"},       {"(x", "x"},    {"(1,x)", "x)"}, {"((1,2))", "(1,2))"}};
  for (unsigned i = 0; i < sizeof cases / sizeof *cases; ++i) {
    std::istringstream is(cases[i].text);
    cdouble z(7, 7);
    is >> z;
    CHECK(z == cdouble(7, 7));
    CHECK(is.fail());
    CHECK(!is.eof());
    CHECK_STR(rest(is).c_str(), cases[i].left);
  }
}

TEST(extraction_that_meets_the_end_fails_with_eof) {
  const char* texts[] = {"(1", "(1,", "(1,2", "( ", "-"};
  for (unsigned i = 0; i < sizeof texts / sizeof *texts; ++i) {
    std::istringstream is(texts[i]);
    cdouble z(7, 7);
    is >> z;
    CHECK(z == cdouble(7, 7));
    CHECK(is.fail());
    CHECK(is.eof());
  }
}

TEST(extraction_from_nothing_fails_as_reading_a_character_does) {
  std::istringstream empty("   ");
  cdouble z(7, 7);
  char c = 'c';
  empty >> z;
  std::istringstream empty_too("   ");
  empty_too >> c;
  CHECK(z == cdouble(7, 7));
  CHECK(empty.fail());
  CHECK_EQ(empty.rdstate(), empty_too.rdstate()); // kept: the character read sets failbit only
}

TEST(extraction_respects_noskipws_and_a_failed_stream) {
  std::istringstream blank(" (1,2)");
  blank.unsetf(std::ios_base::skipws);
  cdouble z(7, 7);
  blank >> z;
  CHECK(z == cdouble(7, 7));
  CHECK(blank.fail());
  std::istringstream tight("(1,2)");
  tight.unsetf(std::ios_base::skipws);
  tight >> z;
  CHECK(z == cdouble(1, 2));
  std::istringstream failed("(3,4)");
  failed.setstate(std::ios_base::failbit);
  failed >> z;
  CHECK(z == cdouble(1, 2));
  CHECK_STR(rest(failed).c_str(), "(3,4)");
}
