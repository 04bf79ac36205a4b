// Copy-on-write: which operations share a representation, which take a private copy, and the
// unshareable mark left by handing out writable characters.
#include "lorb_test.h"
#include "string_rep_view.h"
#include <string>

TEST(modifying_a_copy_leaves_the_original_unchanged) {
  std::string a("original");
  std::string b(a);
  b.append("!");
  CHECK_STR(a.c_str(), "original");
  CHECK_STR(b.c_str(), "original!");
  CHECK(a.data() != b.data());
  CHECK_EQ(rep_of(a)->refs, 1u);
  CHECK_EQ(rep_of(b)->refs, 1u);
}

TEST(every_mutator_unshares_before_changing) {
  const std::string base("0123456789");
  std::string s;
  s = base;
  s.append(2, 'x');
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.assign("new");
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.assign(3, 'n');
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.insert(2, "ins");
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.insert(2, 2, 'i');
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.erase(1, 3);
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.replace(1, 2, "rr");
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.replace(1, 2, 3, 'r');
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.resize(3);
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.resize(12, 'g');
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s = "other";
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s = 'c';
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s[0] = 'w';
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  *s.begin() = 'w';
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.at(1) = 'w';
  CHECK_STR(base.c_str(), "0123456789");
  s = base;
  s.clear();
  CHECK_STR(base.c_str(), "0123456789");
  CHECK_EQ(rep_of(base)->refs, 1u);
}

TEST(writable_index_marks_the_string_unshareable) {
  std::string a("mark me");
  std::string b(a);
  a[0] = 'M';
  CHECK_EQ(rep_of(a)->refs, unshareable_refs);
  CHECK_EQ(rep_of(b)->refs, 1u);
  CHECK_STR(b.c_str(), "mark me");
  std::string c(a);
  CHECK(c.data() != a.data());
  CHECK_EQ(rep_of(c)->refs, 1u);
  CHECK_STR(c.c_str(), "Mark me");
}

TEST(reference_taken_before_a_copy_does_not_reach_the_copy) {
  std::string a("abc");
  char& first = a[0];
  std::string b(a);
  first = 'X';
  CHECK_STR(a.c_str(), "Xbc");
  CHECK_STR(b.c_str(), "abc");
}

TEST(index_at_the_length_yields_the_nul) {
  std::string s("four");
  CHECK_EQ(s[s.length()], '\0');
  const std::string& view = s;
  CHECK_EQ(view[view.length()], '\0');
}

TEST(writable_index_on_a_sole_owner_keeps_the_buffer) {
  std::string s("alone");
  const char* before = s.data();
  s[1] = 'L';
  CHECK(s.data() == before);
  CHECK_EQ(rep_of(s)->refs, unshareable_refs);
}

TEST(writable_index_on_the_empty_representation_takes_a_copy) {
  std::string empty, s;
  char& nul = s[0];
  CHECK_EQ(nul, '\0');
  CHECK(rep_of(s) != rep_of(empty));
  CHECK_EQ(rep_of(s)->refs, unshareable_refs);
  CHECK_EQ(s.capacity(), 32u);
}

TEST(mutable_begin_and_end_mark_unshareable_but_const_ones_do_not) {
  std::string a("iter");
  const std::string& view = a;
  std::string::const_iterator i = view.begin();
  CHECK_EQ(*i, 'i');
  CHECK_EQ(view.end() - view.begin(), 4);
  CHECK_EQ(rep_of(a)->refs, 1u);
  std::string b(a);
  std::string::iterator e = a.end();
  CHECK_EQ(rep_of(a)->refs, unshareable_refs);
  CHECK(a.data() != b.data());
  CHECK(e == a.data() + 4);
  std::string c("rbegin");
  c.rbegin();
  CHECK_EQ(rep_of(c)->refs, unshareable_refs);
}

TEST(unshareable_string_changes_in_place_and_stays_unshareable) {
  std::string s("keep");
  s[0] = 'K';
  s.append("!");
  CHECK_EQ(rep_of(s)->refs, unshareable_refs);
  s.erase(0, 1);
  CHECK_EQ(rep_of(s)->refs, unshareable_refs);
  CHECK_STR(s.c_str(), "eep!");
}

TEST(clearing_a_private_string_empties_it_in_place_and_makes_it_shareable) {
  std::string s("private");
  s[0] = 'P';
  const char* buffer = s.data();
  s.clear();
  CHECK(s.data() == buffer);
  CHECK_EQ(rep_of(s)->refs, 1u);
  CHECK_EQ(s.size(), 0u);
  CHECK_STR(s.c_str(), "");
  std::string copy(s);
  CHECK(copy.data() == s.data());
}

TEST(reserve_grows_the_shared_buffer_without_unsharing) {
  std::string a("shared");
  std::string b(a);
  a.reserve(100);
  CHECK(rep_of(a) == rep_of(b));
  CHECK(a.data() == b.data());
  CHECK_EQ(b.capacity(), 128u);
  CHECK_STR(b.c_str(), "shared");
}

TEST(const_access_never_unshares) {
  std::string a("read");
  std::string b(a);
  const std::string& view = a;
  CHECK_EQ(view[1], 'e');
  CHECK_EQ(view.at(2), 'a');
  CHECK_EQ(a.find('d'), 3u);
  CHECK(a.c_str() == b.c_str());
  CHECK_EQ(rep_of(a)->refs, 2u);
}

TEST(last_owner_frees_and_others_keep_the_characters) {
  std::string* a = new std::string("lifetime");
  std::string b(*a);
  CHECK_EQ(rep_of(b)->refs, 2u);
  delete a;
  CHECK_EQ(rep_of(b)->refs, 1u);
  CHECK_STR(b.c_str(), "lifetime");
}

TEST(unchanged_mutations_do_not_unshare) {
  std::string a("stay");
  std::string b(a);
  b.erase(4);
  b.erase(2, 0);
  b.insert(1, "", 0);
  b.insert(1, 0, 'x');
  b.resize(4);
  b.reserve(10);
  CHECK(a.data() == b.data());
  CHECK_EQ(rep_of(a)->refs, 2u);
}

TEST(push_back_takes_a_private_copy_of_a_shared_string) {
  std::string a("push"), b(a);
  b.push_back('!');
  b += '?';
  CHECK_STR(a.c_str(), "push");
  CHECK_STR(b.c_str(), "push!?");
  CHECK_EQ(rep_of(a)->refs, 1u);
  std::string empty, c;
  c += 'x';
  CHECK(rep_of(c) != rep_of(empty));
  CHECK_EQ(empty.size(), 0u);
  CHECK_STR(empty.c_str(), "");
}

TEST(push_back_on_an_unshareable_string_stays_in_place_and_unshareable) {
  std::string s("ab");
  s[0] = 'A';
  const char* buffer = s.data();
  s.push_back('c');
  CHECK(s.data() == buffer);
  CHECK_EQ(rep_of(s)->refs, unshareable_refs);
  CHECK_STR(s.c_str(), "Abc");
}
