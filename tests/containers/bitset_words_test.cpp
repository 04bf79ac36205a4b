// The bitset word functions: their edge cases, and generated cross-checks against a bit-by-bit
// model over many word counts and shifts, with the destination also being the source.
#include "lorb_test.h"
#include <__lorb/bitset_words.h>
#include <string.h>

namespace {

const unsigned max_words = 9;
const unsigned guard = 0xDEADBEEFu;

struct lcg {
  unsigned state;
  explicit lcg(unsigned seed) : state(seed) {}
  unsigned next() {
    state = state * 1664525u + 1013904223u;
    return state;
  }
};

// Words with a guard word on each side, to catch writes outside the n words.
struct guarded {
  unsigned buffer[max_words + 2];
  explicit guarded(unsigned n) {
    for (unsigned i = 0; i < max_words + 2; ++i)
      buffer[i] = guard;
    for (unsigned i = 0; i < n; ++i)
      buffer[i + 1] = 0;
    size = n;
  }
  unsigned* words() { return buffer + 1; }
  bool guards_intact() const { return buffer[0] == guard && buffer[size + 1] == guard; }
  unsigned size;
};

// Random words of several kinds: dense, sparse, all ones, all zeros.
void fill(unsigned* words, unsigned n, lcg& random) {
  unsigned kind = random.next() >> 30;
  for (unsigned i = 0; i < n; ++i) {
    unsigned w = random.next();
    if (kind == 1)
      w &= random.next() & random.next();
    else if (kind == 2)
      w = ~0u;
    else if (kind == 3)
      w = random.next() % 3 == 0 ? 1u << (w % 32) : 0;
    words[i] = w;
  }
}

bool bit(const unsigned* words, unsigned i) { return (words[i / 32] >> (i % 32)) & 1; }

void set_bit(unsigned* words, unsigned i, bool on) {
  if (on)
    words[i / 32] |= 1u << (i % 32);
}

// A mask of the low `bits` bits of the last word, as the bit set passes (1 to 32 bits).
unsigned mask_of(unsigned bits) { return bits == 32 ? ~0u : (1u << bits) - 1; }

void model_shift_left(unsigned* out, const unsigned* src, unsigned shift, unsigned n,
                      unsigned mask) {
  memset(out, 0, n * sizeof(unsigned));
  for (unsigned i = shift; i < 32 * n; ++i)
    set_bit(out, i, bit(src, i - shift));
  out[n - 1] &= mask;
}

// A whole-word shift moves every bit down by the shift.
void model_shift_right_whole_words(unsigned* out, const unsigned* src, unsigned shift, unsigned n) {
  memset(out, 0, n * sizeof(unsigned));
  for (unsigned i = 0; i + shift < 32 * n; ++i)
    set_bit(out, i, bit(src, i + shift));
}

// What the library does for a shift with b = shift % 32 != 0: destination word i (while word
// i + q + 1 exists) takes its own word's bits from b up, plus the next word's bits from 32 - b
// up in its low b bits; every later word, the top one included, is 0.
void model_shift_right_partial(unsigned* out, const unsigned* src, unsigned shift, unsigned n) {
  unsigned q = shift / 32, b = shift % 32;
  memset(out, 0, n * sizeof(unsigned));
  for (unsigned i = 0; i + q + 1 < n; ++i)
    for (unsigned j = 0; j < 32; ++j) {
      bool own = j + b < 32 && bit(src, 32 * (i + q) + j + b);
      bool carried = j < b && bit(src, 32 * (i + q + 1) + j + 32 - b);
      set_bit(out, 32 * i + j, own || carried);
    }
}

unsigned model_count(const unsigned* words, unsigned n) {
  unsigned total = 0;
  for (unsigned i = 0; i < 32 * n; ++i)
    total += bit(words, i);
  return total;
}

bool words_equal(const unsigned* a, const unsigned* b, unsigned n) {
  return memcmp(a, b, n * sizeof(unsigned)) == 0;
}

} // namespace

TEST(count_of_all_ones_is_32_of_top_and_bottom_bits_is_2_of_no_words_is_0) {
  unsigned ones = 0xFFFFFFFFu, ends = 0x80000001u;
  CHECK_EQ(__vel::count(&ones, 1), 32u);
  CHECK_EQ(__vel::count(&ends, 1), 2u);
  CHECK_EQ(__vel::count(&ones, 0), 0u);
  unsigned several[3] = {0xFFFFFFFFu, 0x80000001u, 0x00F0F000u};
  CHECK_EQ(__vel::count(several, 3), 42u);
}

TEST(set_fills_the_lower_words_and_masks_the_last) {
  guarded g(3);
  __vel::set(g.words(), 3, 0x0000000Fu);
  unsigned expected[3] = {0xFFFFFFFFu, 0xFFFFFFFFu, 0x0000000Fu};
  CHECK(words_equal(g.words(), expected, 3));
  CHECK(g.guards_intact());
}

TEST(set_of_one_word_stores_the_mask) {
  guarded g(1);
  __vel::set(g.words(), 1, 0x3FFu);
  CHECK_EQ(g.words()[0], 0x3FFu);
  CHECK(g.guards_intact());
}

TEST(set_of_no_words_still_writes_word_zero) {
  unsigned word = 0x12345678u;
  __vel::set(&word, 0, 0x7u);
  CHECK_EQ(word, 0x7u);
}

TEST(reset_clears_exactly_n_words) {
  guarded g(4);
  memset(g.words(), 0xFF, 4 * sizeof(unsigned));
  __vel::reset(g.words(), 4);
  unsigned zeros[4] = {0, 0, 0, 0};
  CHECK(words_equal(g.words(), zeros, 4));
  CHECK(g.guards_intact());
  unsigned untouched = 5;
  __vel::reset(&untouched, 0);
  CHECK_EQ(untouched, 5u);
}

TEST(not_of_two_zero_words_with_mask_seven) {
  unsigned src[2] = {0, 0};
  guarded g(2);
  __vel::vector_not(g.words(), src, 2, 0x7u);
  CHECK_EQ(g.words()[0], 0xFFFFFFFFu);
  CHECK_EQ(g.words()[1], 0x7u);
  CHECK(g.guards_intact());
}

TEST(not_of_one_or_no_words_writes_word_zero_masked) {
  unsigned src = 0xF0u, dst = 0;
  __vel::vector_not(&dst, &src, 1, 0xFFu);
  CHECK_EQ(dst, 0x0Fu);
  dst = 0xAAAAAAAAu;
  __vel::vector_not(&dst, &src, 0, 0x3Fu);
  CHECK_EQ(dst, 0x0Fu);
}

TEST(shift_left_of_one_zero_by_33_gives_zero_two_and_by_64_gives_zeros) {
  unsigned src[2] = {1, 0};
  guarded g(2);
  __vel::shift_left(g.words(), src, 33, 2, 0xFFFFFFFFu);
  CHECK_EQ(g.words()[0], 0u);
  CHECK_EQ(g.words()[1], 2u);
  memset(g.words(), 0xFF, 2 * sizeof(unsigned));
  __vel::shift_left(g.words(), src, 64, 2, 0xFFFFFFFFu);
  CHECK_EQ(g.words()[0], 0u);
  CHECK_EQ(g.words()[1], 0u);
  CHECK(g.guards_intact());
}

TEST(shift_right_by_a_whole_word_moves_words_down) {
  unsigned src[2] = {0, 1};
  guarded g(2);
  __vel::shift_right(g.words(), src, 32, 2);
  CHECK_EQ(g.words()[0], 1u);
  CHECK_EQ(g.words()[1], 0u);
  CHECK(g.guards_intact());
}

TEST(shift_right_by_four_carries_the_wrong_way_and_clears_the_top_word) {
  unsigned src[2] = {0x10u, 0x1u};
  guarded g(2);
  __vel::shift_right(g.words(), src, 4, 2);
  CHECK_EQ(g.words()[0], 1u);
  CHECK_EQ(g.words()[1], 0u);
  CHECK(g.guards_intact());
}

TEST(shift_right_of_one_word_by_a_partial_shift_gives_zero) {
  unsigned word = 0x80u;
  __vel::shift_right(&word, &word, 1, 1);
  CHECK_EQ(word, 0u);
}

TEST(shifts_of_no_words_write_nothing) {
  unsigned src = 0x1234u, dst = 0x5678u;
  __vel::shift_left(&dst, &src, 3, 0, ~0u);
  CHECK_EQ(dst, 0x5678u);
  __vel::shift_right(&dst, &src, 3, 0);
  CHECK_EQ(dst, 0x5678u);
}

TEST(equal_and_any_of_no_words) {
  unsigned a = 1, b = 2;
  CHECK(__vel::equal(&a, &b, 0));
  CHECK(!__vel::any(&a, 0));
}

TEST(any_finds_a_bit_in_any_word) {
  unsigned words[4] = {0, 0, 0, 0};
  CHECK(!__vel::any(words, 4));
  for (unsigned i = 0; i < 4; ++i) {
    words[i] = 0x80000000u;
    CHECK(__vel::any(words, 4));
    CHECK_EQ(__vel::any(words, i), false);
    words[i] = 0;
  }
}

TEST(logic_count_any_and_equal_match_the_bit_model) {
  lcg random(2024);
  for (unsigned n = 1; n <= max_words; ++n)
    for (int round = 0; round < 40; ++round) {
      unsigned a[max_words], b[max_words];
      fill(a, n, random);
      fill(b, n, random);
      unsigned expected_and[max_words] = {0}, expected_or[max_words] = {0};
      unsigned expected_xor[max_words] = {0};
      bool expected_any = false;
      for (unsigned i = 0; i < 32 * n; ++i) {
        set_bit(expected_and, i, bit(a, i) && bit(b, i));
        set_bit(expected_or, i, bit(a, i) || bit(b, i));
        set_bit(expected_xor, i, bit(a, i) != bit(b, i));
        expected_any = expected_any || bit(a, i);
      }
      guarded g(n);
      __vel::vector_and(g.words(), a, b, n);
      CHECK(words_equal(g.words(), expected_and, n));
      __vel::vector_or(g.words(), a, b, n);
      CHECK(words_equal(g.words(), expected_or, n));
      __vel::vector_xor(g.words(), a, b, n);
      CHECK(words_equal(g.words(), expected_xor, n));
      CHECK(g.guards_intact());
      CHECK_EQ(__vel::count(a, n), model_count(a, n));
      CHECK_EQ(__vel::any(a, n), expected_any);
      CHECK_EQ(__vel::equal(a, b, n), words_equal(a, b, n));
      unsigned same[max_words];
      memcpy(same, a, sizeof same);
      CHECK(__vel::equal(a, same, n));
      same[random.next() % n] ^= 1u << (random.next() % 32);
      CHECK(!__vel::equal(a, same, n));
    }
}

TEST(not_and_set_match_the_bit_model_for_every_mask) {
  lcg random(77);
  for (unsigned n = 1; n <= max_words; ++n)
    for (unsigned bits = 1; bits <= 32; ++bits) {
      unsigned mask = mask_of(bits);
      unsigned src[max_words], expected[max_words] = {0};
      fill(src, n, random);
      for (unsigned i = 0; i < 32 * n; ++i)
        set_bit(expected, i, !bit(src, i) && (i < 32 * (n - 1) || i % 32 < bits));
      guarded g(n);
      __vel::vector_not(g.words(), src, n, mask);
      CHECK(words_equal(g.words(), expected, n));
      __vel::vector_not(src, src, n, mask); // in place
      CHECK(words_equal(src, expected, n));
      unsigned all[max_words] = {0};
      for (unsigned i = 0; i < 32 * (n - 1) + bits; ++i)
        set_bit(all, i, true);
      __vel::set(g.words(), n, mask);
      CHECK(words_equal(g.words(), all, n));
      CHECK(g.guards_intact());
    }
}

TEST(logic_works_in_place) {
  lcg random(5);
  for (unsigned n = 1; n <= max_words; ++n) {
    unsigned a[max_words], b[max_words], expected[max_words];
    fill(a, n, random);
    fill(b, n, random);
    for (unsigned i = 0; i < n; ++i)
      expected[i] = (a[i] ^ b[i]) | b[i];
    __vel::vector_xor(a, a, b, n);
    __vel::vector_or(b, a, b, n); // the destination is the second operand
    CHECK(words_equal(b, expected, n));
    for (unsigned i = 0; i < n; ++i)
      expected[i] = a[i] & b[i];
    __vel::vector_and(a, a, b, n);
    CHECK(words_equal(a, expected, n));
  }
}

TEST(shift_left_matches_the_bit_model_for_every_shift_below_the_width) {
  lcg random(31);
  for (unsigned n = 1; n <= max_words; ++n)
    for (unsigned shift = 0; shift < 32 * n; ++shift) {
      unsigned mask = mask_of(1 + random.next() % 32);
      unsigned src[max_words], expected[max_words];
      fill(src, n, random);
      model_shift_left(expected, src, shift, n, mask);
      guarded g(n);
      __vel::shift_left(g.words(), src, shift, n, mask);
      if (!CHECK(words_equal(g.words(), expected, n)))
        return;
      CHECK(g.guards_intact());
      __vel::shift_left(src, src, shift, n, mask); // in place
      CHECK(words_equal(src, expected, n));
    }
}

TEST(shift_left_by_whole_words_past_the_width_clears_everything) {
  lcg random(8);
  for (unsigned n = 1; n <= max_words; ++n)
    for (unsigned q = n; q < n + 3; ++q) {
      guarded g(n);
      fill(g.words(), n, random);
      __vel::shift_left(g.words(), g.words(), 32 * q, n, ~0u);
      CHECK(!__vel::any(g.words(), n));
      CHECK(g.guards_intact());
    }
}

TEST(shift_right_by_whole_words_matches_a_plain_shift) {
  lcg random(41);
  for (unsigned n = 1; n <= max_words; ++n)
    for (unsigned q = 0; q < n + 3; ++q) {
      unsigned src[max_words], expected[max_words];
      fill(src, n, random);
      model_shift_right_whole_words(expected, src, 32 * q, n);
      guarded g(n);
      __vel::shift_right(g.words(), src, 32 * q, n);
      CHECK(words_equal(g.words(), expected, n));
      CHECK(g.guards_intact());
      __vel::shift_right(src, src, 32 * q, n); // in place
      CHECK(words_equal(src, expected, n));
    }
}

TEST(shift_right_by_a_partial_word_keeps_its_carry_and_top_word_behaviour) {
  lcg random(59);
  for (unsigned n = 1; n <= max_words; ++n)
    for (unsigned shift = 1; shift < 32 * n; ++shift) {
      if (shift % 32 == 0)
        continue;
      unsigned src[max_words], expected[max_words];
      fill(src, n, random);
      model_shift_right_partial(expected, src, shift, n);
      guarded g(n);
      __vel::shift_right(g.words(), src, shift, n);
      if (!CHECK(words_equal(g.words(), expected, n)))
        return;
      CHECK_EQ(g.words()[n - 1], 0u);
      CHECK(g.guards_intact());
      __vel::shift_right(src, src, shift, n); // in place
      CHECK(words_equal(src, expected, n));
    }
}
