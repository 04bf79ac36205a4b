// The failures of std::string: positions beyond the end, lengths that reach npos, and the
// constructors' out_of_range report of an excessive length.
#include "lorb_test.h"
#include <string>

static const char range_error[] = "out_of_range: Out of range exception occurred\n";
static const char length_error[] = "length_error: Length exception occurred\n";
static const std::string::size_type npos = std::string::npos;

TEST(construction_from_beyond_the_end_is_out_of_range) {
  std::string s("abc");
  EXPECT_ABORT(std::string copy(s, s.length() + 1, 2), range_error);
  EXPECT_ABORT(std::string copy(s, 4), range_error);
  EXPECT_ABORT(s.substr(4), range_error);
}

TEST(constructors_report_an_excessive_length_as_out_of_range) {
  EXPECT_ABORT(std::string s("abc", npos), range_error);
  EXPECT_ABORT(std::string s(npos, 'x'), range_error);
}

TEST(positions_beyond_the_length_are_out_of_range) {
  std::string s("abc");
  std::string other("xyz");
  EXPECT_ABORT(s.insert(4, "x"), range_error);
  EXPECT_ABORT(s.insert(4, 1, 'x'), range_error);
  EXPECT_ABORT(s.erase(4), range_error);
  EXPECT_ABORT(s.replace(4, 1, "x"), range_error);
  EXPECT_ABORT(s.replace(4, 0, 2, 'x'), range_error);
  EXPECT_ABORT(s.replace(4, 0, "", 0), range_error);
  char out[4];
  EXPECT_ABORT(s.copy(out, 1, 4), range_error);
  EXPECT_ABORT(s[4] = 'x', range_error);
  EXPECT_ABORT(s.append(other, 4, 1), range_error);
  EXPECT_ABORT(s.assign(other, 4, 1), range_error);
  EXPECT_ABORT(s.insert(0, other, 4, 1), range_error);
  EXPECT_ABORT(s.replace(0, 1, other, 4, 1), range_error);
  EXPECT_ABORT(s.compare(4, 1, other), range_error);
  EXPECT_ABORT(s.compare(0, 1, other, 4, 1), range_error);
  EXPECT_ABORT(s.compare(4, 1, "x"), range_error);
  EXPECT_ABORT(s.compare(4, 1, "x", 1), range_error);
}

TEST(at_checks_against_the_length) {
  std::string s("abc");
  const std::string& view = s;
  EXPECT_ABORT(s.at(3), range_error);
  EXPECT_ABORT(view.at(3), range_error);
  EXPECT_ABORT(std::string().at(0), range_error);
  EXPECT_CHILD(s.at(2) = 'C', lt::exits(0), "", "");
}

TEST(index_at_the_length_is_allowed) {
  std::string s("abc");
  EXPECT_CHILD(if (s[3] != '\0') abort(), lt::exits(0), "", "");
  EXPECT_CHILD(s.erase(3), lt::exits(0), "", "");
  EXPECT_CHILD(s.insert(3, "d"), lt::exits(0), "", "");
  EXPECT_CHILD(s.substr(3), lt::exits(0), "", "");
}

TEST(insert_of_nothing_is_not_checked) {
  std::string s("abc");
  EXPECT_CHILD(s.insert(10, "", 0), lt::exits(0), "", "");
  EXPECT_CHILD(s.insert(10, 0, 'x'), lt::exits(0), "", "");
}

TEST(lengths_that_reach_npos_are_length_errors) {
  std::string s("abc");
  EXPECT_ABORT(s.append("x", npos - 3), length_error);
  EXPECT_ABORT(s.append(npos - 3, 'x'), length_error);
  EXPECT_ABORT(s.assign("x", npos), length_error);
  EXPECT_ABORT(s.assign(npos, 'x'), length_error);
  EXPECT_ABORT(s.insert(1, "x", npos - 3), length_error);
  EXPECT_ABORT(s.insert(1, npos - 3, 'x'), length_error);
  EXPECT_ABORT(s.replace(1, 1, "x", npos - 2), length_error);
  EXPECT_ABORT(s.replace(1, 1, npos - 2, 'x'), length_error);
  EXPECT_ABORT(s.resize(npos), length_error);
  EXPECT_ABORT(s.resize(npos, 'x'), length_error);
  EXPECT_ABORT(s.reserve(npos), length_error);
}

TEST(length_just_below_npos_is_allowed_then_cannot_be_allocated) {
  static const char no_memory[] = "Lorb++ : Could not allocate  memory ...\n";
  std::string s("abc");
  EXPECT_EXIT(s.append(npos - 4, 'x'), 1, no_memory);
  EXPECT_EXIT(std::string big(npos - 1, 'x'), 1, no_memory);
  EXPECT_EXIT(s.reserve(npos - 1), 1, no_memory);
  EXPECT_EXIT(s.resize(npos - 1), 1, no_memory);
}
