// collate<char>: comparison by strcoll reduced to -1/0/1, transformation by strxfrm, the hash.
#include "lorb_test.h"
#include <__lorb/ctype_facets.h>
#include <locale.h>
#include <stdlib.h>
#include <string.h>

struct plain_collate : std::collate<char> {
  plain_collate() : std::collate<char>(1) {}
  ~plain_collate() {}
};

static int compare_texts(const char* a, const char* b) {
  plain_collate co;
  return co.compare(a, a + strlen(a), b, b + strlen(b));
}

TEST(compare_orders_abc_before_abd) {
  CHECK_EQ(compare_texts("abc", "abd"), -1);
  CHECK_EQ(compare_texts("abd", "abc"), 1);
}

TEST(compare_of_equal_ranges_is_zero) {
  CHECK_EQ(compare_texts("abc", "abc"), 0);
  CHECK_EQ(compare_texts("", ""), 0);
}

TEST(compare_gives_unit_results_whatever_the_magnitude) {
  CHECK_EQ(compare_texts("a", "z"), -1);
  CHECK_EQ(compare_texts("\x7f", "\x01"), 1);
  CHECK_EQ(compare_texts("", "zzzz"), -1);
  CHECK_EQ(compare_texts("zzzz", ""), 1);
}

TEST(compare_reads_only_the_ranges) {
  plain_collate co;
  const char text[] = "abcdef";
  const char other[] = "abcxyz";
  // Neither range is followed by a NUL.
  CHECK_EQ(co.compare(text, text + 3, other, other + 3), 0);
  CHECK_EQ(co.compare(text, text + 4, other, other + 4), -1);
  CHECK_EQ(co.compare(text, text + 2, other, other + 3), -1);
}

TEST(compare_stops_at_the_first_nul_of_each_range) {
  plain_collate co;
  const char first[] = {'a', 'b', '\0', 'z'};
  const char second[] = {'a', 'b', '\0', 'a'};
  CHECK_EQ(co.compare(first, first + 4, second, second + 4), 0);
  const char third[] = {'a', 'b'};
  CHECK_EQ(co.compare(first, first + 4, third, third + 2), 0);
}

ISOLATED_TEST(compare_in_a_named_collation_follows_strcoll) {
  if (!setlocale(LC_COLLATE, "en_US.UTF-8")) {
    puts("en_US.UTF-8 is not installed");
    exit(1);
  }
  const char* pairs[][2] = {{"a", "B"}, {"B", "a"}, {"resume", "Resume"}, {"x", "x"}, {"ab", "a"}};
  for (size_t i = 0; i < sizeof pairs / sizeof pairs[0]; ++i) {
    int c = strcoll(pairs[i][0], pairs[i][1]);
    int expected = c < 0 ? -1 : c > 0 ? 1 : 0;
    CHECK_EQ(compare_texts(pairs[i][0], pairs[i][1]), expected);
  }
  // The C locale orders by byte value and puts 'B' first; this collation does not.
  CHECK_EQ(compare_texts("a", "B"), -1);
}

TEST(transform_in_the_c_locale_is_the_text_itself) {
  plain_collate co;
  const char text[] = "hello";
  std::string t = co.transform(text, text + 5);
  CHECK_STR(t.c_str(), "hello");
  CHECK_EQ(co.transform(text, text).size(), 0u);
}

TEST(transform_reads_only_the_range) {
  plain_collate co;
  const char text[] = "abcdef";
  CHECK_STR(co.transform(text, text + 3).c_str(), "abc");
}

// The transformed forms of a real collation are longer than the text.
ISOLATED_TEST(transform_keeps_a_form_longer_than_the_text) {
  if (!setlocale(LC_COLLATE, "en_US.UTF-8")) {
    puts("en_US.UTF-8 is not installed");
    exit(1);
  }
  plain_collate co;
  const char* texts[] = {"a", "Hello World", "resume", "zebra"};
  for (size_t i = 0; i < 4; ++i) {
    char expected[512];
    size_t length = strxfrm(expected, texts[i], sizeof expected);
    CHECK(length < sizeof expected);
    CHECK(length > strlen(texts[i]));
    std::string t = co.transform(texts[i], texts[i] + strlen(texts[i]));
    CHECK_EQ(t.size(), length);
    CHECK_STR(t.c_str(), expected);
  }
  // Transformed forms order as compare does.
  std::string a = co.transform("a", "a" + 1), b = co.transform("B", "B" + 1);
  CHECK_EQ(strcmp(a.c_str(), b.c_str()) < 0, compare_texts("a", "B") < 0);
}

// The hash as written, computed another way: 64-bit values, floor division for the shifted-in
// sign bits, and a sign-extended byte that replaces everything folded before it.
static long long wrap32(long long v) {
  v &= 0xFFFFFFFFLL;
  return v >= 0x80000000LL ? v - 0x100000000LL : v;
}

static long long floor_div(long long a, long long b) {
  long long q = a / b;
  return (a % b != 0 && a < 0) ? q - 1 : q;
}

static long long mix(long long h) {
  return wrap32(((h * 32) & 0xFFFFFFFFLL) | (floor_div(h, 1 << 27) & 0xFFFFFFFFLL));
}

static long reference_hash(const unsigned char* bytes, size_t n) {
  long long h = static_cast<long long>(n);
  size_t whole = n / 4 * 4;
  for (size_t i = 0; i < whole; i += 4) {
    long long word =
        bytes[i] + bytes[i + 1] * 0x100LL + bytes[i + 2] * 0x10000LL + bytes[i + 3] * 0x1000000LL;
    h = wrap32(mix(h) ^ word);
  }
  if (whole == n)
    return static_cast<long>(h);
  long long t = 0;
  for (size_t i = whole; i < n; ++i)
    t = bytes[i] >= 0x80 ? (0xFFFFFF00LL | bytes[i]) : (((t * 256) & 0xFFFFFFFFLL) | bytes[i]);
  return static_cast<long>(wrap32(t ^ (mix(h) & 0xFFFFFFFFLL)));
}

static long hash_of(const char* text, size_t n) {
  plain_collate co;
  return co.hash(text, text + n);
}

TEST(hash_of_the_empty_range_is_zero) { CHECK_EQ(hash_of("", 0), 0L); }

TEST(hash_of_one_word_is_0x80_xor_the_word) {
  CHECK_EQ(hash_of("abcd", 4), 0x80L ^ 0x64636261L);
  CHECK_EQ(static_cast<unsigned long>(hash_of("\x01\x00\x00\x00", 4)), 0x81ul);
}

TEST(hash_of_one_byte_0x61_is_0x41) { CHECK_EQ(hash_of("a", 1), 0x41L); }

TEST(hash_tail_bytes_are_sign_extended) {
  CHECK_EQ(hash_of("\x80", 1), -96L);
  CHECK_EQ(hash_of("a\x80"
                   "b",
                   3),
           -32766L);
}

TEST(hash_shift_brings_in_ones_when_negative) {
  // After the word the running value is negative: the shift mixes in all ones.
  CHECK_EQ(hash_of("\xff\xfe\xfd\xfc\x80", 5), 0x7FL);
  CHECK_EQ(hash_of("\xff\xff\xff\xff\xff\xff\xff\xff", 8), 0L);
}

TEST(hash_of_known_texts) {
  CHECK_EQ(hash_of("hello world", 11), -7498856L);
  CHECK_EQ(hash_of("Lorb++ collate hash", 19), -6386534L);
  CHECK_EQ(hash_of("abc\0def", 7), 201864518L); // a NUL inside the range is hashed too
}

TEST(hash_matches_the_written_walk_for_many_ranges) {
  unsigned char bytes[64];
  unsigned seed = 12345;
  for (int round = 0; round < 2000; ++round) {
    size_t n = round % 40;
    for (size_t i = 0; i < n; ++i) {
      seed = seed * 1103515245u + 12345u;
      bytes[i] = static_cast<unsigned char>(seed >> 16);
    }
    long expected = reference_hash(bytes, n);
    if (!CHECK_EQ(hash_of(reinterpret_cast<const char*>(bytes), n), expected))
      break;
  }
}

TEST(hash_does_not_need_alignment) {
  char buffer[16] = "xabcdefgh";
  CHECK_EQ(hash_of(buffer + 1, 8),
           reference_hash(reinterpret_cast<const unsigned char*>("abcdefgh"), 8));
}
