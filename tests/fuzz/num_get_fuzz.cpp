// num_get over random text: every target type, every basefield, boolalpha, with and without a
// grouping. The char* instance and the stream's own instance must agree on the value, the bits and
// the characters taken, and neither may read past the text.
#include "facets/num_get_reading.h"
#include "fuzz_input.h"
#include <locale>
#include <sstream>
#include <string.h>
#include <string>

namespace {

struct fuzz_numpunct : std::numpunct<char> {
  fuzz_numpunct(const std::string& grouping, char separator, char point, bool names)
      : std::numpunct<char>(0), sizes(grouping), separator(separator), point(point),
        names(names) {}
  std::string sizes;
  char separator;
  char point;
  bool names;

protected:
  char do_thousands_sep() const { return separator; }
  char do_decimal_point() const { return point; }
  string_type do_grouping() const { return sizes; }
  string_type do_truename() const { return names ? "yes" : "true"; }
  string_type do_falsename() const { return names ? "no" : "false"; }
};

// The classic locale, or one with a numpunct whose grouping and characters come from the input.
std::locale chosen_locale(fuzz_input& in) {
  if (!in.flag())
    return std::locale::classic();
  std::string grouping = in.bytes(in.below(5));
  char separator = static_cast<char>(in.byte());
  char point = static_cast<char>(in.byte());
  return std::locale(std::locale::classic(),
                     new fuzz_numpunct(grouping, separator, point, in.flag()));
}

std::ios_base::fmtflags chosen_flags(fuzz_input& in) {
  static const std::ios_base::fmtflags bases[] = {std::ios_base::fmtflags(0), std::ios_base::dec,
                                                  std::ios_base::oct, std::ios_base::hex,
                                                  std::ios_base::dec | std::ios_base::hex};
  unsigned choice = in.byte();
  std::ios_base::fmtflags flags = bases[choice % 5];
  if (choice & 0x10)
    flags |= std::ios_base::boolalpha;
  if (choice & 0x20)
    flags |= std::ios_base::skipws;
  return flags;
}

// What v holds before the read: a byte pattern, which a failed read must leave alone; a bool
// must hold one of its two values.
template <class T> T initial() {
  T v;
  memset(&v, 0x5a, sizeof v);
  return v;
}
template <> bool initial<bool>() { return true; }

// The bytes that hold the value: a long double's last two of twelve are padding.
template <class T> bool same_bits(const T& a, const T& b) {
  size_t n = sizeof(T) == 12 ? 10 : sizeof(T);
  return memcmp(&a, &b, n) == 0;
}

template <class T> void read_both(const std::string& text, fuzz_input& in) {
  std::ios_base::fmtflags flags = chosen_flags(in);
  std::locale loc = chosen_locale(in);
  std::istringstream s(text);
  s.flags(flags);
  s.imbue(loc);
  T before = initial<T>();
  reading<T> a = read_array(text, s, before);
  reading<T> b = read_buffer(s, text.size(), before);
  FUZZ_CHECK(a.taken <= text.size());
  FUZZ_CHECK(b.taken == a.taken);
  FUZZ_CHECK(b.err == a.err);
  FUZZ_CHECK(same_bits(a.value, b.value));
  FUZZ_CHECK(b.end_agrees);
  // The end is reached exactly when eofbit is set.
  FUZZ_CHECK(((a.err & std::ios_base::eofbit) != 0) == (a.taken == text.size()));
}

// The stream's extractors, short and int included, which narrow a long with their own checks.
template <class T> void extract(const std::string& text, fuzz_input& in) {
  std::istringstream s(text);
  s.flags(chosen_flags(in));
  s.imbue(chosen_locale(in));
  T v = T();
  s >> v;
  FUZZ_CHECK(s.tellg() == std::streampos(-1) || s.tellg() <= std::streampos(text.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  unsigned kind = in.below(14);
  std::string text = in.text();
  switch (kind) {
  case 0: read_both<bool>(text, in); break;
  case 1: read_both<long>(text, in); break;
  case 2: read_both<unsigned short>(text, in); break;
  case 3: read_both<unsigned int>(text, in); break;
  case 4: read_both<unsigned long>(text, in); break;
  case 5: read_both<float>(text, in); break;
  case 6: read_both<double>(text, in); break;
  case 7: read_both<long double>(text, in); break;
  case 8: read_both<void*>(text, in); break;
  case 9: read_both<long long>(text, in); break;
  case 10: read_both<unsigned long long>(text, in); break;
  case 11: extract<short>(text, in); break;
  case 12: extract<int>(text, in); break;
  default: extract<double>(text, in); break;
  }
  return 0;
}
