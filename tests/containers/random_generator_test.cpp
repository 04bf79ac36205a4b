// The shared subtractive generator (layout, seeding, the start-up seed) and the library's
// instance of __lower_bound over unsigned words.
#include "lorb_test.h"
#include <__lorb/lower_bound.h>
#include <__lorb/random_generator.h>
#include <stddef.h>
#include <string.h>

using std::__random_generator;

namespace {

// The shared generator as the program's own start-up found it; the library's initialisers run
// before the program's, so this is what the library left there.
__random_generator at_start_up;
struct capture_at_start_up {
  capture_at_start_up() { at_start_up = std::__trelk_rd; }
};
capture_at_start_up capture;

typedef unsigned long long wide;

// The seeding rule written another way: 64-bit arithmetic cut to 32 bits, the k sequence worked
// out first and then scattered along the stride of 21, and the mixing rounds counted as one run.
void reference_seed(unsigned table[55], unsigned long s) {
  const wide cut = 0xFFFFFFFFull;
  wide ks[55];
  wide previous = s, current = 1;
  for (int i = 0; i < 55; ++i) {
    ks[i] = current;
    wide following = (previous - current) & cut;
    previous = current;
    current = following;
  }
  wide t[55];
  for (int i = 0; i < 55; ++i)
    t[i] = 0;
  t[54] = s & cut;
  int position = 0;
  for (int i = 0; i < 55; ++i, position = (position + 21) % 55)
    t[position] = ks[i];
  for (int step = 0; step < 4 * 55; ++step) {
    int i = step % 55;
    t[i] = (t[i] + (cut + 1) - t[(i + 31) % 55]) & cut;
  }
  for (int i = 0; i < 55; ++i)
    table[i] = static_cast<unsigned>(t[i]);
}

bool same_table(const __random_generator& a, const unsigned* b) {
  return memcmp(a.table, b, sizeof a.table) == 0;
}

bool same_state(const __random_generator& a, const __random_generator& b) {
  return same_table(a, b.table) && a.index1 == b.index1 && a.index2 == b.index2;
}

struct lcg {
  unsigned state;
  explicit lcg(unsigned seed) : state(seed) {}
  unsigned next() {
    state = state * 69069u + 1u;
    return state;
  }
};

unsigned* library_lower_bound(unsigned* first, unsigned* last, unsigned value) {
  return std::__lower_bound(first, last, value, static_cast<int*>(0),
                            std::random_access_iterator_tag());
}

} // namespace

TEST(the_generator_is_the_table_then_the_two_indices) {
  __random_generator g;
  CHECK_EQ(sizeof(__random_generator), 55u * 4 + 8);
  CHECK_EQ(offsetof(__random_generator, table), 0u);
  CHECK_EQ(offsetof(__random_generator, index1), 220u);
  CHECK_EQ(offsetof(__random_generator, index2), 224u);
  CHECK_EQ(sizeof g.table[0], 4u);
}

TEST(seeding_leaves_index1_at_0_and_index2_at_31) {
  __random_generator g;
  g.index1 = 17;
  g.index2 = 3;
  g.seed(161803398);
  CHECK_EQ(g.index1, 0u);
  CHECK_EQ(g.index2, 31u);
}

TEST(seeding_twice_with_the_same_value_gives_the_same_table) {
  __random_generator a, b;
  a.seed(161803398);
  memset(&b, 0x6B, sizeof b);
  b.seed(161803398);
  CHECK(same_state(a, b));
  for (int i = 0; i < 100; ++i)
    a(1000);
  a.seed(161803398);
  CHECK(same_state(a, b));
}

TEST(seeding_matches_an_independent_computation) {
  unsigned long seeds[] = {161803398ul, 0ul, 1ul, 2ul, 0x7FFFFFFFul, 0x80000000ul, 0xFFFFFFFFul};
  for (unsigned i = 0; i < sizeof seeds / sizeof seeds[0]; ++i) {
    __random_generator g;
    g.seed(seeds[i]);
    unsigned expected[55];
    reference_seed(expected, seeds[i]);
    CHECK(same_table(g, expected));
  }
  lcg random(12345);
  for (int i = 0; i < 200; ++i) {
    unsigned long s = random.next();
    __random_generator g;
    g.seed(s);
    unsigned expected[55];
    reference_seed(expected, s);
    if (!CHECK(same_table(g, expected)))
      return;
  }
}

TEST(different_seeds_give_different_tables) {
  __random_generator a, b;
  a.seed(1);
  b.seed(2);
  CHECK(!same_table(a, b.table));
}

TEST(the_shared_generator_is_seeded_with_161803398_before_main) {
  __random_generator fresh;
  fresh.seed(161803398);
  CHECK(same_state(at_start_up, fresh));
  CHECK(same_state(std::__trelk_rd, fresh));
}

TEST(reseeding_restarts_the_drawn_sequence) {
  __random_generator g;
  g.seed(99);
  unsigned long first[300];
  for (int i = 0; i < 300; ++i) {
    first[i] = g(1000003);
    CHECK(first[i] < 1000003);
  }
  g.seed(99);
  bool same = true;
  for (int i = 0; i < 300; ++i)
    same = same && g(1000003) == first[i];
  CHECK(same);
}

ISOLATED_TEST(reseeding_the_shared_generator_restarts_its_sequence) {
  unsigned long first[100];
  for (int i = 0; i < 100; ++i)
    first[i] = std::__trelk_rd(52);
  std::__trelk_rd.seed(161803398);
  bool same = true;
  for (int i = 0; i < 100; ++i)
    same = same && std::__trelk_rd(52) == first[i];
  CHECK(same);
}

TEST(lower_bound_of_an_empty_range_is_first) {
  unsigned words[1] = {5};
  CHECK(library_lower_bound(words, words, 5) == words);
}

TEST(lower_bound_finds_the_first_of_equal_elements) {
  unsigned words[4] = {1, 2, 2, 3};
  CHECK(library_lower_bound(words, words + 4, 2) == words + 1);
  CHECK(library_lower_bound(words, words + 4, 3) == words + 3);
}

TEST(lower_bound_past_every_element_is_last_and_below_every_element_is_first) {
  unsigned words[4] = {1, 2, 2, 3};
  CHECK(library_lower_bound(words, words + 4, 4) == words + 4);
  CHECK(library_lower_bound(words, words + 4, 0) == words);
  CHECK(library_lower_bound(words, words + 4, 1) == words);
}

TEST(lower_bound_compares_as_unsigned) {
  unsigned words[3] = {1, 0x7FFFFFFFu, 0x80000000u};
  CHECK(library_lower_bound(words, words + 3, 0x80000000u) == words + 2);
  CHECK(library_lower_bound(words, words + 3, 0xFFFFFFFFu) == words + 3);
}

TEST(lower_bound_matches_a_linear_scan_over_generated_sorted_arrays) {
  lcg random(4242);
  unsigned words[64];
  for (unsigned n = 0; n <= 64; ++n)
    for (int round = 0; round < 20; ++round) {
      // Non-decreasing, with runs of equal words, over the whole unsigned range.
      unsigned step_limit = round % 2 ? 3 : 0x03F00000u;
      unsigned value = random.next() % step_limit;
      for (unsigned i = 0; i < n; ++i) {
        words[i] = value;
        value += random.next() % step_limit;
      }
      for (int probe = 0; probe < 8; ++probe) {
        unsigned target = n && probe < 5 ? words[random.next() % n] + probe % 2 : random.next();
        unsigned expected = 0;
        while (expected < n && words[expected] < target)
          ++expected;
        if (!CHECK(library_lower_bound(words, words + n, target) == words + expected))
          return;
      }
    }
}
