// The number formatter past its 200-byte text: huge precisions (the extra zeros beyond 127 digits)
// and huge widths (the padding) are written around the text, never into it, for every kind of
// number and both adjustments.
#include "lorb_test.h"
#include <iomanip>
#include <sstream>
#include <string>

namespace {

bool all_of(const std::string& s, std::string::size_type from, std::string::size_type to, char c) {
  for (std::string::size_type i = from; i < to; ++i)
    if (s[i] != c)
      return false;
  return true;
}

} // namespace

TEST(a_fixed_precision_of_100000_is_127_digits_then_zeros) {
  std::ostringstream out;
  out << std::fixed << std::setprecision(100000) << 1.5;
  std::string s = out.str();
  CHECK_EQ(s.size(), 2u + 100000u); // "1." and the decimals
  CHECK_STR(s.substr(0, 3).c_str(), "1.5");
  CHECK(all_of(s, 3, s.size(), '0'));
}

TEST(a_scientific_precision_of_100000_puts_the_zeros_before_the_exponent) {
  std::ostringstream out;
  out << std::scientific << std::setprecision(100000) << -0.75; // exact in binary
  std::string s = out.str();
  CHECK_EQ(s.size(), 3u + 100000u + 4u); // "-7." the decimals "e-01"
  CHECK_STR(s.substr(0, 4).c_str(), "-7.5");
  CHECK(all_of(s, 4, s.size() - 4, '0'));
  CHECK_STR(s.substr(s.size() - 4).c_str(), "e-01");
}

TEST(a_width_of_100000_pads_every_kind_of_number_on_either_side) {
  const std::streamsize width = 100000;
  for (int kind = 0; kind < 4; ++kind) {
    for (int side = 0; side < 2; ++side) {
      std::ostringstream out;
      out << (side ? std::left : std::right) << std::setfill('*') << std::setw(width);
      std::string text;
      if (kind == 0) {
        out << 123456789L;
        text = "123456789";
      } else if (kind == 1) {
        out << 4294967295UL;
        text = "4294967295";
      } else if (kind == 2) {
        out << 0.25;
        text = "0.25";
      } else {
        out << -1234567890123LL;
        text = "-1234567890123";
      }
      std::string s = out.str();
      CHECK_EQ(s.size(), static_cast<std::string::size_type>(width));
      std::string::size_type pad = s.size() - text.size();
      if (side) {
        CHECK(s.compare(0, text.size(), text) == 0);
        CHECK(all_of(s, text.size(), s.size(), '*'));
      } else {
        CHECK(all_of(s, 0, pad, '*'));
        CHECK(s.compare(pad, text.size(), text) == 0);
      }
      CHECK_EQ(out.width(), 0);
    }
  }
}

TEST(a_huge_precision_and_width_together_stay_apart) {
  std::ostringstream out;
  out << std::fixed << std::setprecision(300) << std::setfill('_') << std::setw(1000) << 7.0;
  std::string s = out.str();
  CHECK_EQ(s.size(), 1000u);
  CHECK(all_of(s, 0, 1000 - 302, '_'));
  CHECK_STR(s.substr(1000 - 302, 2).c_str(), "7.");
  CHECK(all_of(s, 1000 - 300, 1000, '0'));
}
