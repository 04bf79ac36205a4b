// long long and unsigned long long (an extension before C++11) read from string streams:
// generated values of every size in every base, with signs, blanks and trailing text, and the
// limits themselves. Nothing out of range: how that is reported is not written down.
#include <climits>
#include <cstdio>
#include <cstring>
#include <sstream>

#include "input_support.h"

static void begin(const char* label, std::ios_base::fmtflags base, const char* text) {
  printf("%s %s \"", label,
         base == std::ios_base::hex   ? "hex"
         : base == std::ios_base::oct ? "oct"
                                      : "dec");
  print_escaped(text, strlen(text));
  printf("\" -> ");
}

static void end(std::istream& is) {
  print_state(is);
  print_rest(is);
  printf("\n");
}

static void read_signed(std::ios_base::fmtflags base, const char* text) {
  std::istringstream is(text);
  is.setf(base, std::ios_base::basefield);
  begin("llong", base, text);
  long long v = 0;
  is >> v;
  printf("%lld", v);
  end(is);
}

static void read_unsigned(std::ios_base::fmtflags base, const char* text) {
  std::istringstream is(text);
  is.setf(base, std::ios_base::basefield);
  begin("ullong", base, text);
  unsigned long long v = 0;
  is >> v;
  printf("%llu", v);
  end(is);
}

static const char* const tails[] = {"", " ", "\n", "z", ";", " 12"};

int main() {
  const std::ios_base::fmtflags bases[] = {std::ios_base::dec, std::ios_base::hex,
                                           std::ios_base::oct};
  generator g(64);
  for (int i = 0; i < 120; ++i) {
    unsigned long long magnitude = g.next();
    magnitude = magnitude << 24 ^ g.next();
    magnitude = magnitude << 24 ^ g.next();
    magnitude >>= g.below(64);
    bool is_signed = i % 2 == 0;
    if (is_signed)
      magnitude &= LLONG_MAX;
    std::ios_base::fmtflags base = bases[g.below(3)];
    const char* sign = g.below(3) == 0 ? "-" : "";
    if (!is_signed && *sign)
      magnitude >>= 40; // a small negative number for the unsigned type
    char number[40], text[64];
    if (base == std::ios_base::hex)
      sprintf(number, "%s%llx", sign, magnitude);
    else if (base == std::ios_base::oct)
      sprintf(number, "%s%llo", sign, magnitude);
    else
      sprintf(number, "%s%llu", sign, magnitude);
    sprintf(text, "%s%s%s", g.below(2) ? " " : "", number, tails[g.below(6)]);
    if (is_signed)
      read_signed(base, text);
    else
      read_unsigned(base, text);
  }
  const std::ios_base::fmtflags dec = std::ios_base::dec, hex = std::ios_base::hex;
  read_signed(dec, "9223372036854775807");
  read_signed(dec, "-9223372036854775808");
  read_signed(hex, "7fffffffffffffff");
  read_signed(dec, "0");
  read_signed(dec, "-x");
  read_unsigned(dec, "18446744073709551615");
  read_unsigned(hex, "FFFFFFFFFFFFFFFF");
  read_unsigned(dec, "4294967296");
  read_unsigned(dec, "abc");
  return 0;
}
