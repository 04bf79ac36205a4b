// The searches of std::string: find, rfind and the character-set searches, at their boundaries.
#include "lorb_test.h"
#include <string>

static const std::string::size_type npos = std::string::npos;

TEST(find_locates_the_first_occurrence_from_pos) {
  std::string s("abcabcabc");
  CHECK_EQ(s.find("bc"), 1u);
  CHECK_EQ(s.find("bc", 2), 4u);
  CHECK_EQ(s.find("abc", 6), 6u);
  CHECK_EQ(s.find("abc", 7), npos);
  CHECK_EQ(s.find(std::string("cab")), 2u);
  CHECK_EQ(s.find('c'), 2u);
  CHECK_EQ(s.find('c', 3), 5u);
  CHECK_EQ(s.find("abcd"), npos);
  CHECK_EQ(s.find("abcabcabcabc"), npos);
  CHECK_EQ(s.find("bcx", 0, 2), 1u);
}

TEST(find_continues_after_a_failed_first_character_match) {
  std::string s("aaab aab ab");
  CHECK_EQ(s.find("ab"), 2u);
  CHECK_EQ(s.find("ab", 3), 6u);
  CHECK_EQ(s.find("ab", 7), 9u);
  CHECK_EQ(s.find("b a"), 3u);
}

TEST(find_of_an_empty_pattern_is_never_found) {
  std::string s("text");
  CHECK_EQ(s.find(""), npos);
  CHECK_EQ(s.find("", 2), npos);
  CHECK_EQ(s.find(std::string()), npos);
  CHECK_EQ(std::string().find(""), npos);
  CHECK_EQ(s.rfind(""), npos);
  CHECK_EQ(s.rfind("", 2), npos);
  CHECK_EQ(std::string().rfind(""), npos);
}

TEST(find_beyond_the_end_finds_nothing) {
  std::string s("abc");
  CHECK_EQ(s.find("c", 3), npos);
  CHECK_EQ(s.find("c", 4), npos);
  CHECK_EQ(s.find('a', npos), npos);
  CHECK_EQ(std::string().find('a'), npos);
}

TEST(find_handles_embedded_nuls_and_high_characters) {
  std::string s("a\0b\xff"
                "c",
                5);
  CHECK_EQ(s.find(std::string("\0b", 2)), 1u);
  CHECK_EQ(s.find('\xff'), 3u);
  CHECK_EQ(s.find('\0'), 1u);
}

TEST(rfind_walks_back_from_pos) {
  std::string s("abcabcabc");
  CHECK_EQ(s.rfind("abc"), 6u);
  CHECK_EQ(s.rfind("abc", 5), 3u);
  CHECK_EQ(s.rfind("abc", 0), 0u);
  CHECK_EQ(s.rfind("bc", 0), npos);
  CHECK_EQ(s.rfind('a'), 6u);
  CHECK_EQ(s.rfind('a', 5), 3u);
  CHECK_EQ(s.rfind(std::string("ca")), 5u);
  CHECK_EQ(s.rfind("abcabcabcx"), npos);
  CHECK_EQ(s.rfind("abcabcabc"), 0u);
  CHECK_EQ(s.rfind('z'), npos);
  CHECK_EQ(std::string().rfind('a'), npos);
}

TEST(find_first_of_looks_for_any_character_of_the_set) {
  std::string s("hello, world");
  CHECK_EQ(s.find_first_of(",w"), 5u);
  CHECK_EQ(s.find_first_of("o", 5), 8u);
  CHECK_EQ(s.find_first_of('l'), 2u);
  CHECK_EQ(s.find_first_of(std::string("dr")), 9u);
  CHECK_EQ(s.find_first_of("xyz"), npos);
  CHECK_EQ(s.find_first_of(""), npos);
  CHECK_EQ(s.find_first_of("h", 12), npos);
  CHECK_EQ(s.find_first_of("d", 11), 11u);
}

TEST(find_last_of_walks_back) {
  std::string s("hello, world");
  CHECK_EQ(s.find_last_of("o"), 8u);
  CHECK_EQ(s.find_last_of("o", 7), 4u);
  CHECK_EQ(s.find_last_of("h", 0), 0u);
  CHECK_EQ(s.find_last_of('l', 100), 10u);
  CHECK_EQ(s.find_last_of("xyz"), npos);
  CHECK_EQ(s.find_last_of(""), npos);
  CHECK_EQ(std::string().find_last_of("a"), npos);
}

TEST(find_first_not_of_skips_the_set) {
  std::string s("   padded  ");
  CHECK_EQ(s.find_first_not_of(' '), 3u);
  CHECK_EQ(s.find_first_not_of(" pad"), 7u);
  CHECK_EQ(s.find_first_not_of(" padde"), npos);
  CHECK_EQ(s.find_first_not_of(" ", 9), npos);
  CHECK_EQ(s.find_first_not_of(std::string(" "), 4), 4u);
  CHECK_EQ(s.find_first_not_of("x", 11), npos);
}

TEST(find_first_not_of_an_empty_set_is_pos) {
  std::string s("abc");
  CHECK_EQ(s.find_first_not_of(""), 0u);
  CHECK_EQ(s.find_first_not_of("", 2), 2u);
  CHECK_EQ(s.find_first_not_of("", 3), npos);
}

TEST(find_last_not_of_walks_back_over_the_set) {
  std::string s("  trailing   ");
  CHECK_EQ(s.find_last_not_of(' '), 9u);
  CHECK_EQ(s.find_last_not_of(" g"), 8u);
  CHECK_EQ(s.find_last_not_of(" ", 1), npos);
  CHECK_EQ(s.find_last_not_of("", 4), 4u);
  CHECK_EQ(s.find_last_not_of(""), 12u);
  CHECK_EQ(std::string().find_last_not_of("a"), npos);
  CHECK_EQ(s.find_last_not_of(std::string(" "), 100), 9u);
}

TEST(find_in_a_long_text) {
  std::string text(100000, 'a');
  text.replace(99990, 3, "xyz");
  CHECK_EQ(text.find("axyza"), 99989u);
  CHECK_EQ(text.rfind("aaxy"), 99988u);
  CHECK_EQ(text.find_first_of("zy"), 99991u);
  CHECK_EQ(text.find_last_not_of('a'), 99992u);
  CHECK_EQ(text.find("aaaaab"), npos);
}
