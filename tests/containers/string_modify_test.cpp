// The mutators of std::string: results, buffer sizes and the characters that may come from the
// string itself.
#include "lorb_test.h"
#include "string_rep_view.h"
#include <string>

TEST(append_forms) {
  std::string s("ab");
  std::string other("cdef");
  s.append(other);
  s.append(other, 1, 2);
  s.append("gh", 1);
  s.append("ij");
  s.append(2, 'k');
  s += other;
  s += "!";
  s += '?';
  s.push_back('.');
  CHECK_STR(s.c_str(), "abcdefdegijkkcdef!?.");
  const char range[] = "xyz";
  s.append(range, range + 3);
  s.append(3, 'w');
  s.append(2, 66);
  CHECK_STR(s.c_str(), "abcdefdegijkkcdef!?.xyzwwwBB");
}

TEST(append_grows_by_the_size_rule_without_doubling) {
  std::string s;
  unsigned growths = 0;
  std::string::size_type capacity = s.capacity();
  bool intact = true;
  for (int i = 0; i < 1000; ++i) {
    s += static_cast<char>('a' + i % 26);
    if (s.capacity() != capacity) {
      ++growths;
      CHECK_EQ(s.capacity(), capacity + 32); // one step of 32, never more
      capacity = s.capacity();
    }
    CHECK_EQ(s.capacity(), (s.size() & ~31u) + 32);
    intact = intact && s[i / 2] == static_cast<char>('a' + (i / 2) % 26) && s.c_str()[i + 1] == 0;
  }
  CHECK(intact);
  CHECK_EQ(growths, 31u); // at lengths 32, 64, ..., 992: the empty string's buffer already holds 31
}

TEST(append_of_itself) {
  std::string s("abc");
  s.append(s);
  CHECK_STR(s.c_str(), "abcabc");
  std::string big(31, 'x');
  big.append(big.data(), 31); // reallocates while the source is the old buffer
  CHECK_EQ(big.size(), 62u);
  CHECK_EQ(big.find_first_not_of('x'), std::string::npos);
  std::string shared("shr"), copy(shared);
  copy.append(copy);
  CHECK_STR(copy.c_str(), "shrshr");
  CHECK_STR(shared.c_str(), "shr");
}

// Iterators over the string's own characters that are not pointers: append reads the range as
// if copied first, even when appending it grows the buffer it reads (more than 128 characters,
// the most read before the first growth).
TEST(append_of_its_own_characters_through_reverse_iterators) {
  for (size_t length = 1; length < 700; length += 37) {
    std::string s;
    for (size_t i = 0; i < length; ++i)
      s += static_cast<char>('a' + i % 26);
    std::string expected = s;
    for (size_t i = length; i > 0; --i)
      expected += s[i - 1];
    s.append(s.rbegin(), s.rend());
    CHECK(s == expected);
  }
}

TEST(append_nothing_keeps_the_string) {
  std::string s("same");
  s.append("", 0);
  s.append(0, 'x');
  CHECK_STR(s.c_str(), "same");
}

TEST(assign_forms) {
  std::string s("start"), other("0123456");
  s.assign(other, 2, 3);
  CHECK_STR(s.c_str(), "234");
  s.assign("abcdef", 2);
  CHECK_STR(s.c_str(), "ab");
  s.assign("text");
  CHECK_STR(s.c_str(), "text");
  s.assign(4, 'z');
  CHECK_STR(s.c_str(), "zzzz");
  s.assign(other);
  CHECK(s.data() == other.data());
  const char range[] = "range";
  s.assign(range, range + 3);
  CHECK_STR(s.c_str(), "ran");
  s.assign(3, 67);
  CHECK_STR(s.c_str(), "CCC");
}

TEST(assign_reallocates_only_when_the_buffer_is_too_small) {
  std::string s(40, 'a');
  const char* buffer = s.data();
  s.assign(63, 'b');
  CHECK(s.data() == buffer);
  s.assign(64, 'c');
  CHECK_EQ(s.capacity(), 96u);
  s.assign("x", 1);
  CHECK_EQ(s.capacity(), 96u);
  CHECK_STR(s.c_str(), "x");
}

TEST(assign_from_inside_itself) {
  std::string s("abcdefgh");
  s.assign(s.data() + 3, 4);
  CHECK_STR(s.c_str(), "defg");
  std::string t("abcdefgh");
  t.assign(t.begin() + 1, t.end());
  CHECK_STR(t.c_str(), "bcdefgh");
}

TEST(insert_forms) {
  std::string s("ace");
  s.insert(1, "b");
  s.insert(3, std::string("d"));
  s.insert(5, "fgh", 1);
  CHECK_STR(s.c_str(), "abcdef");
  s.insert(0, 2, '>');
  s.insert(s.size(), std::string("123"), 1, 5);
  CHECK_STR(s.c_str(), ">>abcdef23");
  std::string t("xz");
  std::string::iterator at = t.insert(t.begin() + 1, 'y');
  CHECK_EQ(*at, 'y');
  t.insert(t.end(), 2, '!');
  const char range[] = "<<";
  t.insert(t.begin(), range, range + 2);
  t.insert(t.begin(), 1, 'A');
  CHECK_STR(t.c_str(), "A<<xyz!!");
}

TEST(insert_sizes_a_new_buffer_for_the_longer_string) {
  std::string s(10, 'a');
  s.reserve(200);
  CHECK_EQ(s.capacity(), 224u);
  s.insert(5, "bb");
  CHECK_EQ(s.capacity(), 32u);
  CHECK_STR(s.c_str(), "aaaaabbaaaaa");
}

TEST(insert_from_inside_itself) {
  std::string s("abc");
  s.insert(1, s.c_str(), 3);
  CHECK_STR(s.c_str(), "aabcbc");
  std::string t("xy");
  t.insert(t.begin() + 1, t.begin(), t.end());
  CHECK_STR(t.c_str(), "xxyy");
}

TEST(insert_of_nothing_does_nothing) {
  std::string s("same");
  const char* buffer = s.data();
  s.insert(2, "abc", 0);
  s.insert(2, static_cast<const char*>(0), 3);
  s.insert(2, static_cast<const char*>(0));
  s.insert(2, 0, 'x');
  CHECK(s.data() == buffer);
  CHECK_STR(s.c_str(), "same");
}

TEST(erase_forms) {
  std::string s("0123456789");
  s.erase(8);
  CHECK_STR(s.c_str(), "01234567");
  s.erase(1, 2);
  CHECK_STR(s.c_str(), "034567");
  s.erase(2, 100);
  CHECK_STR(s.c_str(), "03");
  std::string t("abcdef");
  std::string::iterator next = t.erase(t.begin() + 1);
  CHECK_EQ(*next, 'c');
  next = t.erase(t.begin() + 1, t.begin() + 3);
  CHECK_EQ(*next, 'e');
  CHECK_STR(t.c_str(), "aef");
  t.erase();
  CHECK_STR(t.c_str(), "");
}

TEST(erase_at_the_length_removes_nothing) {
  std::string s("abc");
  const char* buffer = s.data();
  s.erase(3);
  s.erase(3, 5);
  CHECK(s.data() == buffer);
  CHECK_STR(s.c_str(), "abc");
}

TEST(erase_in_place_keeps_the_buffer_and_a_shared_erase_sizes_a_new_one) {
  std::string s(100, 'a');
  const char* buffer = s.data();
  s.erase(10);
  CHECK(s.data() == buffer);
  CHECK_EQ(s.capacity(), 128u);
  std::string a(100, 'b'), b(a);
  b.erase(10);
  CHECK_EQ(b.capacity(), 32u);
  CHECK_EQ(a.size(), 100u);
}

TEST(replace_forms) {
  std::string s("hello world");
  s.replace(0, 5, "HELLO");
  CHECK_STR(s.c_str(), "HELLO world");
  s.replace(6, 100, std::string("there"));
  CHECK_STR(s.c_str(), "HELLO there");
  s.replace(5, 1, std::string("--+--"), 1, 3);
  CHECK_STR(s.c_str(), "HELLO-+-there");
  s.replace(0, 0, 2, '#');
  CHECK_STR(s.c_str(), "##HELLO-+-there");
  s.replace(2, 5, "hi", 1);
  CHECK_STR(s.c_str(), "##h-+-there");
  s.replace(s.size(), 0, "!");
  CHECK_STR(s.c_str(), "##h-+-there!");
  std::string t("abcdef");
  t.replace(t.begin(), t.begin() + 2, "XY");
  t.replace(t.begin(), t.begin() + 1, std::string("Z"));
  t.replace(t.begin() + 2, t.end(), 3, '.');
  CHECK_STR(t.c_str(), "ZY...");
  t.replace(t.begin(), t.begin() + 2, "qrs", 3);
  const char range[] = "123";
  t.replace(t.begin(), t.begin() + 1, range, range + 3);
  CHECK_STR(t.c_str(), "123rs...");
  t.replace(t.begin(), t.end(), 2, 70);
  CHECK_STR(t.c_str(), "FF");
}

TEST(replace_sizes_the_buffer_for_the_string_with_both_texts) {
  std::string s(20, 'a');
  s.replace(0, 20, std::string(20, 'b'));
  CHECK_EQ(s.size(), 20u);
  CHECK_EQ(s.capacity(), 64u); // 40 characters existed between the insert and the erase
  CHECK_EQ(s.find_first_not_of('b'), std::string::npos);
}

TEST(replace_with_itself) {
  std::string s("abcdef");
  s.replace(1, 2, s);
  CHECK_STR(s.c_str(), "aabcdefdef");
  std::string t("abcdef");
  t.replace(0, 3, t.c_str() + 3, 3);
  CHECK_STR(t.c_str(), "defdef");
}

TEST(resize_shrinks_by_moving_the_nul) {
  std::string s("abcdef");
  const char* buffer = s.data();
  s.resize(2);
  CHECK(s.data() == buffer);
  CHECK_STR(s.c_str(), "ab");
  s.resize(5, 'x');
  CHECK(s.data() == buffer);
  CHECK_STR(s.c_str(), "abxxx");
  s.resize(7);
  CHECK_BYTES(s.data(), 8, "abxxx\0\0\0", 8);
}

TEST(resize_to_the_buffer_size_reallocates_for_the_nul) {
  std::string s(31, 'a');
  CHECK_EQ(s.capacity(), 32u);
  s.resize(32, 'b');
  CHECK_EQ(s.capacity(), 64u);
  CHECK_EQ(s[31], 'b');
  CHECK_EQ(s.c_str()[32], '\0');
  std::string t(10, 'a');
  t.resize(31, 'c');
  CHECK_EQ(t.capacity(), 32u);
  CHECK_EQ(t.c_str()[31], '\0');
}

TEST(resize_of_a_shared_string_builds_a_new_one) {
  std::string a("shared"), b(a);
  b.resize(3);
  CHECK_STR(b.c_str(), "sha");
  CHECK_STR(a.c_str(), "shared");
  b = a;
  b.resize(40, '+');
  CHECK_EQ(b.capacity(), 64u);
  CHECK_EQ(b.find_first_of('+'), 6u);
  CHECK_STR(a.c_str(), "shared");
}

TEST(reserve_never_shrinks) {
  std::string s("abc");
  s.reserve(64);
  CHECK_EQ(s.capacity(), 96u);
  s.reserve(10);
  CHECK_EQ(s.capacity(), 96u);
  s.reserve(96);
  CHECK_EQ(s.capacity(), 96u);
  s.reserve();
  CHECK_EQ(s.capacity(), 96u);
  CHECK_STR(s.c_str(), "abc");
}

TEST(copy_out_takes_no_nul) {
  std::string s("abcdef");
  char out[8] = "-------";
  CHECK_EQ(s.copy(out, 3, 2), 3u);
  CHECK_STR(out, "cde----");
  CHECK_EQ(s.copy(out, 100), 6u);
  CHECK_STR(out, "abcdef-");
  CHECK_EQ(s.copy(out, 5, 6), 0u);
}

TEST(substr_and_at) {
  std::string s("substring");
  CHECK_STR(s.substr(3).c_str(), "string");
  CHECK_STR(s.substr(3, 3).c_str(), "str");
  CHECK_STR(s.substr(9).c_str(), "");
  CHECK_EQ(s.at(0), 's');
  CHECK_EQ(s.at(8), 'g');
}

TEST(concatenation_forms) {
  std::string a("ab"), b("cd");
  CHECK_STR((a + b).c_str(), "abcd");
  CHECK_STR(("x" + a).c_str(), "xab");
  CHECK_STR(('y' + a).c_str(), "yab");
  CHECK_STR((a + "z").c_str(), "abz");
  CHECK_STR((a + 'w').c_str(), "abw");
  CHECK_STR((a + std::string()).c_str(), "ab");
  CHECK_STR(a.c_str(), "ab");
}

TEST(comparison_forms) {
  std::string abc("abc"), abd("abd"), ab("ab");
  CHECK(abc.compare(abd) < 0);
  CHECK(abd.compare(abc) > 0);
  CHECK(abc.compare(abc) == 0);
  CHECK(ab.compare(abc) < 0);
  CHECK(abc.compare(ab) > 0);
  CHECK(abc.compare("abc") == 0);
  CHECK(abc.compare(1, 2, "bc") == 0);
  CHECK(abc.compare(1, 5, "bcx", 2) == 0);
  CHECK(abc.compare(0, 2, ab) == 0);
  CHECK(abc.compare(0, 2, abd, 0, 2) == 0);
  CHECK(abc.compare(3, 1, "") == 0);
  CHECK(abc == "abc" && "abc" == abc && abc == std::string("abc"));
  CHECK(abc != abd && abc != "abd" && "abd" != abc);
  CHECK(abc < abd && abc < "abd" && "ab" < abc);
  CHECK(abd > abc && abd > "abc" && "abe" > abd);
  CHECK(abc <= abc && abc <= "abd" && "abc" <= abc);
  CHECK(abc >= abc && abd >= "abc" && "abd" >= abd);
  std::string high("\xff"), low("\x01");
  CHECK(low < high); // characters compare as unsigned
  std::string nul1("a\0b", 3), nul2("a\0c", 3);
  CHECK(nul1 < nul2);
  CHECK(nul1 != nul2);
}

TEST(char_traits_hand_out_unsigned_values) {
  typedef std::char_traits<char> traits;
  CHECK_EQ(traits::eof(), -1);
  CHECK_EQ(traits::to_int_type('\xff'), 255);
  CHECK(!traits::eq_int_type(traits::to_int_type('\xff'), traits::eof()));
  CHECK_EQ(traits::not_eof(traits::eof()), 0);
  CHECK_EQ(traits::not_eof('a'), 'a');
  CHECK(traits::lt('a', '\x80'));
  CHECK_EQ(traits::length("four"), 4u);
  CHECK(traits::find("abc", 3, 'c') != 0);
  CHECK(traits::find("abc", 3, 'd') == 0);
}

TEST(allocator_hands_out_storage) {
  std::allocator<char> a;
  char* p = a.allocate(10);
  CHECK(p != 0);
  a.construct(p, 'x');
  CHECK_EQ(*p, 'x');
  a.deallocate(p, 10);
  std::allocator<int> ints(a);
  CHECK(ints == a);
  CHECK_EQ(ints.max_size(), 0xFFFFFFFFu / 4);
  CHECK(ints.allocate(0x40000000u) == 0);
}
