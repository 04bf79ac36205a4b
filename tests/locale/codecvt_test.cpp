// codecvt<char, char, int>: the identity conversion reports noconv and touches nothing.
#include "lorb_test.h"
#include <__lorb/ctype_facets.h>

typedef std::codecvt<char, char, int> identity;

struct plain_codecvt : identity {
  plain_codecvt() : identity(1) {}
  ~plain_codecvt() {}
};

TEST(result_values_are_numbered_in_order) {
  CHECK_EQ(static_cast<int>(std::codecvt_base::ok), 0);
  CHECK_EQ(static_cast<int>(std::codecvt_base::partial), 1);
  CHECK_EQ(static_cast<int>(std::codecvt_base::error), 2);
  CHECK_EQ(static_cast<int>(std::codecvt_base::noconv), 3);
}

TEST(always_noconv_and_max_length_one) {
  plain_codecvt cv;
  CHECK(cv.always_noconv());
  CHECK_EQ(cv.max_length(), 1);
}

TEST(out_returns_noconv_and_touches_nothing) {
  plain_codecvt cv;
  int state = 17;
  const char from[] = "abc";
  char to[4] = "xyz";
  const char* from_next = 0;
  char* to_next = 0;
  CHECK_EQ(cv.out(state, from, from + 3, from_next, to, to + 3, to_next), identity::noconv);
  CHECK(from_next == 0);
  CHECK(to_next == 0);
  CHECK_STR(to, "xyz");
  CHECK_EQ(state, 17);
}

TEST(in_returns_noconv_and_touches_nothing) {
  plain_codecvt cv;
  int state = 5;
  const char from[] = "abc";
  char to[4] = "xyz";
  const char* from_next = from + 1;
  char* to_next = to + 2;
  CHECK_EQ(cv.in(state, from, from + 3, from_next, to, to + 3, to_next), identity::noconv);
  CHECK(from_next == from + 1);
  CHECK(to_next == to + 2);
  CHECK_STR(to, "xyz");
  CHECK_EQ(state, 5);
}

TEST(unshift_returns_noconv_and_touches_nothing) {
  plain_codecvt cv;
  int state = 0;
  char to[4] = "xyz";
  char* to_next = to + 1;
  CHECK_EQ(cv.unshift(state, to, to + 3, to_next), identity::noconv);
  CHECK(to_next == to + 1);
  CHECK_STR(to, "xyz");
}

TEST(length_is_the_smaller_of_the_range_and_max) {
  plain_codecvt cv;
  int state = 0;
  const char text[] = "abcdefgh";
  CHECK_EQ(cv.length(state, text, text + 8, 3), 3);
  CHECK_EQ(cv.length(state, text, text + 8, 8), 8);
  CHECK_EQ(cv.length(state, text, text + 8, 100), 8);
  CHECK_EQ(cv.length(state, text, text, 100), 0);
  CHECK_EQ(cv.length(state, text, text + 8, 0), 0);
}

TEST(a_default_codecvt_is_managed) {
  struct managed_codecvt : identity {
    ~managed_codecvt() {}
  } cv;
  CHECK(cv.__managed);
}
