// The algorithms that only look: for_each, the finds, count, mismatch, equal, search, search_n,
// adjacent_find and lexicographical_compare, over empty, short and repetitive ranges and through
// weaker iterator categories.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>
#include <string.h>

namespace {

struct summer {
  int total, calls;
  summer() : total(0), calls(0) {}
  void operator()(int x) {
    total = total * 10 + x;
    ++calls;
  }
};

bool is_odd(int x) { return x % 2 != 0; }
bool same_parity(int a, int b) { return (a - b) % 2 == 0; }
bool both_vowels_or_same(char a, char b) {
  return a == b || (strchr("aeiou", a) && strchr("aeiou", b));
}

} // namespace

TEST(for_each_visits_in_order_and_returns_the_function_object_with_its_state) {
  int a[] = {1, 2, 3, 4};
  summer s = std::for_each(a, a + 4, summer());
  CHECK_EQ(s.total, 1234);
  CHECK_EQ(s.calls, 4);
  summer none = std::for_each(a, a, summer());
  CHECK_EQ(none.calls, 0);
}

TEST(find_returns_the_first_match_or_last) {
  int a[] = {5, 7, 9, 7};
  CHECK(std::find(a, a + 4, 7) == a + 1);
  CHECK(std::find(a, a + 4, 8) == a + 4);
  CHECK(std::find(a, a, 5) == a);
  CHECK(std::find(at::in(a), at::in(a + 4), 9) == at::in(a + 2));
}

TEST(find_if_returns_the_first_element_that_passes) {
  int a[] = {4, 6, 3, 5};
  CHECK(std::find_if(a, a + 4, is_odd) == a + 2);
  CHECK(std::find_if(a, a + 2, is_odd) == a + 2);
  CHECK(std::find_if(at::in(a), at::in(a + 4), is_odd) == at::in(a + 2));
}

TEST(find_end_returns_the_last_occurrence_even_overlapping) {
  const char* text = "abcabcab";
  CHECK(std::find_end(text, text + 8, "abc", "abc" + 3) == text + 3);
  const char* as = "aaaa";
  CHECK(std::find_end(as, as + 4, as, as + 2) == as + 2);
  CHECK(std::find_end(text, text + 8, "xy", "xy" + 2) == text + 8);
  CHECK(std::find_end(text, text + 8, "ab", "ab" + 2) == text + 6);
  CHECK(std::find_end(text, text + 2, "abc", "abc" + 3) == text + 2);
}

TEST(find_end_with_an_empty_pattern_returns_last) {
  const char* text = "abc";
  CHECK(std::find_end(text, text + 3, text, text) == text + 3);
  CHECK(std::find_end(text, text, text, text + 1) == text);
}

TEST(find_end_with_a_predicate_and_forward_iterators) {
  char text[] = "xaeybcyio";
  char pattern[] = "ae";
  CHECK(std::find_end(at::fw(text), at::fw(text + 9), at::fw(pattern), at::fw(pattern + 2),
                      both_vowels_or_same) == at::fw(text + 7));
}

TEST(find_first_of_returns_the_first_element_in_the_set) {
  const char* text = "hello world";
  CHECK(std::find_first_of(text, text + 11, "ow", "ow" + 2) == text + 4);
  CHECK(std::find_first_of(text, text + 11, "xyz", "xyz" + 3) == text + 11);
  CHECK(std::find_first_of(text, text + 11, "", "" + 0) == text + 11);
  int a[] = {2, 4, 7, 8};
  int odds[] = {1};
  CHECK(std::find_first_of(a, a + 4, odds, odds + 1, same_parity) == a + 2);
}

TEST(adjacent_find_finds_the_first_equal_pair) {
  int a[] = {1, 2, 3, 3, 4, 4};
  CHECK(std::adjacent_find(a, a + 6) == a + 2);
  CHECK(std::adjacent_find(a, a + 3) == a + 3);
  CHECK(std::adjacent_find(a, a + 1) == a + 1);
  CHECK(std::adjacent_find(a, a) == a);
  CHECK(std::adjacent_find(a, a + 6, std::less<int>()) == a);
  CHECK(std::adjacent_find(at::fw(a + 3), at::fw(a + 6), std::less<int>()) == at::fw(a + 3));
  CHECK(std::adjacent_find(at::fw(a + 4), at::fw(a + 6), std::less<int>()) == at::fw(a + 6));
}

TEST(count_and_count_if_give_the_difference_type) {
  int a[] = {1, 2, 1, 1, 3};
  ptrdiff_t ones = std::count(a, a + 5, 1);
  CHECK_EQ(ones, 3);
  CHECK_EQ(std::count(a, a, 1), 0);
  CHECK_EQ(std::count_if(a, a + 5, is_odd), 4);
  CHECK_EQ(std::count_if(at::in(a), at::in(a + 2), is_odd), 1);
}

TEST(mismatch_returns_the_first_differing_pair) {
  int a[] = {1, 2, 3, 4};
  int b[] = {1, 2, 5, 4, 9};
  std::pair<int*, int*> m = std::mismatch(a, a + 4, b);
  CHECK(m.first == a + 2 && m.second == b + 2);
  m = std::mismatch(a, a + 2, b);
  CHECK(m.first == a + 2 && m.second == b + 2);
  m = std::mismatch(a, a, b);
  CHECK(m.first == a && m.second == b);
  int c[] = {3, 4, 7, 1};
  m = std::mismatch(a, a + 4, c, same_parity);
  CHECK(m.first == a + 3 && m.second == c + 3);
}

TEST(equal_compares_element_by_element) {
  int a[] = {1, 2, 3};
  int b[] = {1, 2, 4};
  CHECK(std::equal(a, a + 2, b));
  CHECK(!std::equal(a, a + 3, b));
  CHECK(std::equal(a, a, b));
  CHECK(std::equal(a, a + 3, b, std::less_equal<int>()));
}

TEST(search_finds_the_first_occurrence) {
  const char* text = "aaabaab";
  CHECK(std::search(text, text + 7, "aab", "aab" + 3) == text + 1);
  CHECK(std::search(text, text + 7, "abaa", "abaa" + 4) == text + 2);
  CHECK(std::search(text, text + 7, "bb", "bb" + 2) == text + 7);
  CHECK(std::search(text, text + 7, "aabx", "aabx" + 4) == text + 7);
  CHECK(std::search(text, text + 2, "aaab", "aaab" + 4) == text + 2);
  CHECK(std::search(text, text + 7, "baab", "baab" + 4) == text + 3);
}

TEST(search_with_an_empty_pattern_returns_first) {
  const char* text = "abc";
  CHECK(std::search(text, text + 3, text, text) == text);
  CHECK(std::search(text, text, text, text) == text);
  CHECK(std::search(text, text, text, text + 1) == text);
}

TEST(search_with_a_predicate_and_forward_iterators) {
  char text[] = "xyzbie";
  char pattern[] = "aa";
  CHECK(std::search(at::fw(text), at::fw(text + 6), at::fw(pattern), at::fw(pattern + 2),
                    both_vowels_or_same) == at::fw(text + 4));
}

TEST(search_n_finds_the_first_run_long_enough) {
  int a[] = {1, 7, 7, 2, 7, 7, 7, 3};
  CHECK(std::search_n(a, a + 8, 3, 7) == a + 4);
  CHECK(std::search_n(a, a + 8, 2, 7) == a + 1);
  CHECK(std::search_n(a, a + 8, 1, 3) == a + 7);
  CHECK(std::search_n(a, a + 8, 4, 7) == a + 8);
  CHECK(std::search_n(a, a + 6, 3, 7) == a + 6);
  CHECK(std::search_n(at::fw(a), at::fw(a + 8), 3, 7) == at::fw(a + 4));
}

TEST(search_n_of_no_elements_matches_at_first) {
  int a[] = {1, 2};
  CHECK(std::search_n(a, a + 2, 0, 9) == a);
  CHECK(std::search_n(a, a + 2, -3, 9) == a);
  CHECK(std::search_n(a, a, 0, 9) == a);
  CHECK(std::search_n(a, a, 1, 1) == a);
}

TEST(search_n_with_a_predicate_passes_element_then_value) {
  int a[] = {5, 1, 2, 9, 8, 3};
  CHECK(std::search_n(a, a + 6, 2, 4, std::greater<int>()) == a + 3);
  CHECK(std::search_n(a, a + 6, 3, 4, std::greater<int>()) == a + 6);
}

TEST(lexicographical_compare_orders_by_first_difference_then_length) {
  const char* abc = "abc";
  const char* abd = "abd";
  CHECK(std::lexicographical_compare(abc, abc + 3, abd, abd + 3));
  CHECK(!std::lexicographical_compare(abd, abd + 3, abc, abc + 3));
  CHECK(std::lexicographical_compare(abc, abc + 2, abc, abc + 3));
  CHECK(!std::lexicographical_compare(abc, abc + 3, abc, abc + 2));
  CHECK(!std::lexicographical_compare(abc, abc + 3, abc, abc + 3));
  CHECK(!std::lexicographical_compare(abc, abc, abc, abc));
  CHECK(std::lexicographical_compare(abc, abc, abc, abc + 1));
  CHECK(std::lexicographical_compare(abd, abd + 3, abc, abc + 3, std::greater<char>()));
}

TEST(generated_searches_agree_with_a_brute_force_model) {
  at::lcg gen(17);
  for (int round = 0; round < 300; ++round) {
    int text[24], pattern[4];
    int n = gen.below(25), m = gen.below(5);
    for (int i = 0; i < n; ++i)
      text[i] = gen.below(2);
    for (int i = 0; i < m; ++i)
      pattern[i] = gen.below(2);
    // Empty patterns: search matches at the start, find_end reports no match.
    int first = n, last = n;
    bool found = false;
    for (int start = n - m; start >= 0 && m > 0; --start)
      if (std::equal(pattern, pattern + m, text + start)) {
        first = start;
        if (!found)
          last = start;
        found = true;
      }
    if (m == 0)
      first = 0;
    CHECK_EQ(std::search(text, text + n, pattern, pattern + m) - text, first);
    CHECK_EQ(std::find_end(text, text + n, pattern, pattern + m) - text, last);
    int run = 0, run_start = n;
    for (int i = 0; i < n && m > 0; ++i) {
      run = text[i] == 1 ? run + 1 : 0;
      if (run == m) {
        run_start = i - m + 1;
        break;
      }
    }
    if (m == 0)
      run_start = 0;
    CHECK_EQ(std::search_n(text, text + n, m, 1) - text, run_start);
  }
}
