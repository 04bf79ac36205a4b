// std::istreambuf_iterator<char>: the character under the iterator, the step, and equality,
// which asks only whether each side is at its end.
#include "lorb_test.h"
#include <iterator>
#include <sstream>
#include <streambuf>

namespace {

typedef std::istreambuf_iterator<char> iterator;

// No get area: every look goes to underflow, every step to uflow; both are counted.
struct counting_buffer : std::basic_streambuf<char> {
  counting_buffer(const char* text) : next(text), underflows(0), uflows(0) {}
  int_type underflow() {
    ++underflows;
    return *next ? traits_type::to_int_type(*next) : traits_type::eof();
  }
  int_type uflow() {
    ++uflows;
    return *next ? traits_type::to_int_type(*next++) : traits_type::eof();
  }
  const char* next;
  int underflows, uflows;
};

} // namespace

TEST(the_character_comes_from_the_get_area_without_being_taken) {
  std::istringstream s("ab");
  iterator it(s.rdbuf());
  CHECK_EQ(*it, 'a');
  CHECK_EQ(*it, 'a');
  CHECK_EQ(s.rdbuf()->sgetc(), 'a');
}

TEST(without_characters_in_the_get_area_the_character_is_underflows) {
  counting_buffer buffer("xy");
  iterator it(&buffer);
  CHECK_EQ(*it, 'x');
  CHECK_EQ(buffer.underflows, 1);
  CHECK_EQ(buffer.uflows, 0);
}

TEST(without_a_buffer_the_character_is_end_of_file_s) {
  iterator none;
  CHECK_EQ(*none, static_cast<char>(-1));
}

TEST(a_step_takes_one_character) {
  counting_buffer buffer("xyz");
  iterator it(&buffer);
  ++it;
  CHECK_EQ(buffer.uflows, 1);
  CHECK_EQ(*it, 'y');
  CHECK_EQ(*it++, 'y');
  CHECK_EQ(*it, 'z');
  CHECK_EQ(buffer.uflows, 2);
}

TEST(iterators_are_equal_when_both_or_neither_are_at_their_end) {
  std::istringstream one("a"), two("b"), empty("");
  iterator end;
  CHECK(iterator(one.rdbuf()) == iterator(two.rdbuf())); // neither at its end
  CHECK(iterator(one.rdbuf()) != end);
  CHECK(iterator(empty.rdbuf()) == end); // a buffer at its end
  CHECK(end == iterator());
  iterator it(one.rdbuf());
  ++it;
  CHECK(it == end);
  CHECK(it.equal(iterator(empty.rdbuf())));
  CHECK(!it.equal(iterator(two.rdbuf())));
}

TEST(reading_to_the_end_gives_every_character_once) {
  const char text[] = "a line\nand\0more";
  std::string s(text, sizeof text - 1);
  std::istringstream in(s);
  std::string read(iterator(in.rdbuf()), (iterator()));
  CHECK(read == s);
}
