// collate<char>: comparison and transformation through the C library's collation, and the hash.
#include <__lorb/ctype_facets.h>
#include <__lorb/error.h>
#include <string.h>

namespace std {
locale::id collate<char>::id;

collate<char>::~collate() {}

// A fresh NUL-terminated copy of [low, high); the C library reads only up to its first NUL.
static char* terminated_copy(const char* low, const char* high) {
  size_t length = high - low;
  char* copy = new char[length + 1];
  if (!copy)
    __vel::out_of_memory();
  memcpy(copy, low, length);
  copy[length] = '\0';
  return copy;
}

int collate<char>::do_compare(const char* low1, const char* high1, const char* low2,
                              const char* high2) const {
  char* first = terminated_copy(low1, high1);
  char* second = terminated_copy(low2, high2);
  int order = strcoll(first, second);
  delete[] first;
  delete[] second;
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

// The source is copied and terminated first and the output sized from the length strxfrm reports,
// so a range not followed by a NUL, or a transformed form longer than the range, stays defined.
collate<char>::string_type collate<char>::do_transform(const char* low, const char* high) const {
  char* source = terminated_copy(low, high);
  size_t length = strxfrm(0, source, 0);
  char* transformed = new char[length + 1];
  if (!transformed)
    __vel::out_of_memory();
  strxfrm(transformed, source, length + 1);
  string_type result(transformed);
  delete[] transformed;
  delete[] source;
  return result;
}

// Kept: the right shift propagates the sign, so this is not a rotation when h is negative.
static int shift_mix(int h) {
  return static_cast<int>(static_cast<unsigned>(h) << 5 | static_cast<unsigned>(h >> 27));
}

// Hash values are compared across runs: every bit of this walk is fixed.
long collate<char>::do_hash(const char* low, const char* high) const {
  size_t length = high - low;
  const unsigned char* bytes = reinterpret_cast<const unsigned char*>(low);
  int h = static_cast<int>(length);
  size_t whole = length - length % 4;
  for (size_t i = 0; i < whole; i += 4) {
    unsigned word = bytes[i] | bytes[i + 1] << 8 | bytes[i + 2] << 16 |
                    static_cast<unsigned>(bytes[i + 3]) << 24;
    h = static_cast<int>(static_cast<unsigned>(shift_mix(h)) ^ word);
  }
  if (whole == length)
    return h;
  // Kept: each remaining byte is sign-extended, so a byte of 0x80 or more sets all upper bits.
  unsigned tail = 0;
  for (size_t i = whole; i < length; ++i)
    tail = tail << 8 | static_cast<unsigned>(static_cast<int>(static_cast<signed char>(bytes[i])));
  return static_cast<int>(tail ^ static_cast<unsigned>(shift_mix(h)));
}
} // namespace std
