// Construction of std::string: the sources it takes, the buffer size rule and the shared empty
// representation.
#include "lorb_test.h"
#include "string_rep_view.h"
#include <string.h>
#include <string>

TEST(string_is_one_pointer_and_npos_is_all_ones) {
  CHECK_EQ(sizeof(std::string), sizeof(void*));
  CHECK_EQ(std::string::npos, 0xFFFFFFFFu);
  CHECK_EQ(std::string().max_size(), 0xFFFFFFFEu);
}

TEST(default_strings_share_one_empty_representation) {
  std::string a, b;
  CHECK(rep_of(a) == rep_of(b));
  CHECK_EQ(a.size(), 0u);
  CHECK_EQ(a.capacity(), 32u);
  CHECK_STR(a.c_str(), "");
  unsigned before = rep_of(a)->refs;
  {
    std::string c;
    CHECK_EQ(rep_of(a)->refs, before + 1);
  }
  CHECK_EQ(rep_of(a)->refs, before);
}

TEST(cleared_shared_string_takes_the_empty_representation) {
  std::string empty;
  std::string a("text"), b(a);
  a.clear();
  CHECK(rep_of(a) == rep_of(empty));
  CHECK_STR(b.c_str(), "text");
}

TEST(c_string_constructor_copies_up_to_the_nul) {
  std::string s("hello");
  CHECK_EQ(s.size(), 5u);
  CHECK_EQ(s.length(), 5u);
  CHECK_STR(s.c_str(), "hello");
  CHECK_EQ(rep_of(s)->refs, 1u);
  CHECK_EQ(s.capacity(), 32u);
}

TEST(null_c_string_gives_an_empty_string_with_its_own_buffer) {
  std::string s(static_cast<const char*>(0));
  CHECK_EQ(s.size(), 0u);
  CHECK_STR(s.c_str(), "");
  CHECK(rep_of(s) != rep_of(std::string()));
  CHECK_EQ(s.capacity(), 32u);
}

TEST(pointer_and_count_keep_embedded_nuls) {
  std::string s("a\0b\0c", 5);
  CHECK_EQ(s.size(), 5u);
  CHECK_BYTES(s.data(), s.size(), "a\0b\0c", 5);
  CHECK_EQ(s.c_str()[5], '\0');
}

TEST(null_pointer_with_count_copies_nothing_and_keeps_the_length) {
  std::string s(static_cast<const char*>(0), 3);
  CHECK_EQ(s.size(), 3u);
  CHECK_BYTES(s.data(), 4, "\0\0\0\0", 4);
}

TEST(fill_constructor_repeats_the_character) {
  std::string s(40, 'z');
  CHECK_EQ(s.size(), 40u);
  CHECK_EQ(s.capacity(), 64u);
  CHECK_EQ(s.find_first_not_of('z'), std::string::npos);
  std::string none(0, 'z');
  CHECK_EQ(none.size(), 0u);
  CHECK_EQ(none.capacity(), 32u);
}

TEST(buffer_is_the_next_multiple_of_32_strictly_above_the_length) {
  static const unsigned lengths[] = {0, 1, 31, 32, 33, 63, 64, 65, 100, 1000, 4095, 4096};
  for (unsigned i = 0; i < sizeof lengths / sizeof lengths[0]; ++i) {
    std::string s(lengths[i], 'q');
    CHECK_EQ(s.capacity(), (lengths[i] & ~31u) + 32);
    CHECK_EQ(rep_of(s)->capacity % 32, 0u);
    CHECK(rep_of(s)->capacity > rep_of(s)->length);
  }
}

TEST(thirty_one_characters_fill_32_bytes_and_one_more_reallocates_to_64) {
  std::string s(31, 'a');
  CHECK_EQ(s.capacity(), 32u);
  const char* before = s.data();
  s += 'b';
  CHECK_EQ(s.capacity(), 64u);
  CHECK(s.data() != before);
  CHECK_EQ(s.size(), 32u);
  CHECK_EQ(s[31], 'b');
  CHECK_EQ(s.c_str()[32], '\0');
}

TEST(copy_constructor_shares_the_representation) {
  std::string a("shared");
  std::string b(a);
  CHECK(rep_of(a) == rep_of(b));
  CHECK(a.data() == b.data());
  CHECK_EQ(rep_of(a)->refs, 2u);
}

TEST(whole_substring_construction_shares_too) {
  std::string a("shared");
  std::string b(a, 0, 100);
  CHECK(b.data() == a.data());
  std::string c = a.substr();
  CHECK(c.data() == a.data());
  CHECK_EQ(rep_of(a)->refs, 3u);
}

TEST(part_of_a_string_is_copied) {
  std::string a("abcdef");
  std::string b(a, 2, 3);
  CHECK_STR(b.c_str(), "cde");
  CHECK(b.data() != a.data());
  std::string c(a, 4);
  CHECK_STR(c.c_str(), "ef");
  std::string d(a, 6);
  CHECK_STR(d.c_str(), "");
  CHECK_EQ(d.capacity(), 32u);
  std::string e(a, 1, 0);
  CHECK_STR(e.c_str(), "");
}

TEST(iterator_range_constructors) {
  const char text[] = "range of chars";
  std::string from_pointers(text, text + 5);
  CHECK_STR(from_pointers.c_str(), "range");
  std::string a("copy me");
  std::string from_iterators(a.begin() + 5, a.end());
  CHECK_STR(from_iterators.c_str(), "me");
  std::string::const_iterator first = a.begin(), last = a.end();
  std::string whole(first, last);
  CHECK_STR(whole.c_str(), "copy me");
}

TEST(integer_pair_constructor_is_a_count_and_a_character) {
  std::string s(3, 65);
  CHECK_STR(s.c_str(), "AAA");
  std::string t(2L, 66L);
  CHECK_STR(t.c_str(), "BB");
}

// An input iterator that is read once, character by character.
struct counting_iterator {
  int value;
  bool operator!=(const counting_iterator& other) const { return value != other.value; }
  counting_iterator& operator++() {
    ++value;
    return *this;
  }
  char operator*() const { return static_cast<char>('a' + value % 26); }
};

TEST(long_input_iterator_range_is_read_in_blocks) {
  counting_iterator first = {0}, last = {1000};
  std::string s(first, last);
  CHECK_EQ(s.size(), 1000u);
  CHECK_EQ(s.capacity(), 1024u);
  CHECK_EQ(s[0], 'a');
  CHECK_EQ(s[999], static_cast<char>('a' + 999 % 26));
  counting_iterator none = {5};
  std::string empty(none, none);
  CHECK_EQ(empty.size(), 0u);
}

TEST(assignment_from_a_string_shares_it) {
  std::string a("source"), b("target");
  b = a;
  CHECK(a.data() == b.data());
  CHECK_EQ(rep_of(a)->refs, 2u);
  b = b;
  CHECK_EQ(rep_of(a)->refs, 2u);
  CHECK_STR(b.c_str(), "source");
}

TEST(assignment_from_an_unshareable_string_copies_it) {
  std::string a("source"), b;
  a[0] = 'S';
  b = a;
  CHECK(a.data() != b.data());
  CHECK_STR(b.c_str(), "Source");
  CHECK_EQ(rep_of(b)->refs, 1u);
  CHECK_EQ(b.capacity(), 32u);
}

TEST(assignment_from_a_c_string_reuses_a_large_enough_buffer) {
  std::string s(50, 'x');
  const char* buffer = s.data();
  s = "short";
  CHECK(s.data() == buffer);
  CHECK_EQ(s.capacity(), 64u);
  CHECK_STR(s.c_str(), "short");
  s = "0123456789012345678901234567890123456789012345678901234567890123456789";
  CHECK_EQ(s.capacity(), 96u);
  CHECK_EQ(s.size(), 70u);
}

TEST(assignment_from_a_c_string_inside_itself) {
  std::string s("abcdef");
  s = s.c_str() + 2;
  CHECK_STR(s.c_str(), "cdef");
}

TEST(assignment_of_a_character_makes_one_character) {
  std::string s("long text"), t;
  s = 'x';
  CHECK_STR(s.c_str(), "x");
  CHECK_EQ(s.size(), 1u);
  t = 'y';
  CHECK_STR(t.c_str(), "y");
  CHECK_EQ(t.capacity(), 32u);
}

TEST(swap_exchanges_representations) {
  std::string a("one"), b("two");
  const char* a_data = a.data();
  a.swap(b);
  CHECK(b.data() == a_data);
  std::swap(a, b);
  CHECK_STR(a.c_str(), "one");
  CHECK_STR(b.c_str(), "two");
}

TEST(reverse_iterators_walk_backwards) {
  const std::string s("abc");
  std::string out;
  for (std::string::const_reverse_iterator i = s.rbegin(); i != s.rend(); ++i)
    out += *i;
  CHECK_STR(out.c_str(), "cba");
  CHECK_EQ(s.rend() - s.rbegin(), 3);
  std::string m("xyz");
  std::string::reverse_iterator r = m.rbegin();
  *r = 'Z';
  CHECK_STR(m.c_str(), "xyZ");
  CHECK_EQ(rep_of(m)->refs, unshareable_refs);
}
