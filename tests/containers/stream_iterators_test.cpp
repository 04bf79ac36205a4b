// istream_iterator and ostream_iterator: reading one value ahead, the end-of-stream equality
// rules, and writing with and without a delimiter.
#include "lorb_test.h"
#include <__lorb/algobase.h> // std::copy
#include <iterator>
#include <sstream>
#include <string>

namespace {

typedef std::istream_iterator<int> int_reader;

// Tells the category apart at compile time: the overload chosen is the iterator's.
int category(std::input_iterator_tag) { return 1; }
int category(std::output_iterator_tag) { return 2; }
int category(std::forward_iterator_tag) { return 3; }

template <class A, class B> struct same_type {
  enum { value = false };
};
template <class A> struct same_type<A, A> {
  enum { value = true };
};

} // namespace

TEST(istream_iterator_has_the_standard_types_and_defaults) {
  typedef std::istream_iterator<int, char, std::char_traits<char>, ptrdiff_t> spelled_out;
  CHECK((same_type<int_reader, spelled_out>::value));
  CHECK((same_type<int_reader::char_type, char>::value));
  CHECK((same_type<int_reader::traits_type, std::char_traits<char> >::value));
  CHECK((same_type<int_reader::istream_type, std::istream>::value));
  CHECK((same_type<std::iterator_traits<int_reader>::value_type, int>::value));
  CHECK((same_type<std::iterator_traits<int_reader>::difference_type, ptrdiff_t>::value));
  CHECK((same_type<std::iterator_traits<int_reader>::pointer, const int*>::value));
  CHECK((same_type<std::iterator_traits<int_reader>::reference, const int&>::value));
  CHECK_EQ(category(std::iterator_traits<int_reader>::iterator_category()), 1);
}

TEST(istream_iterator_reads_every_value_then_equals_the_end) {
  std::istringstream in(" 4 -17\n 250  ");
  int_reader it(in), end;
  CHECK(it != end);
  CHECK_EQ(*it, 4);
  ++it;
  CHECK_EQ(*it, -17);
  ++it;
  CHECK_EQ(*it, 250);
  CHECK(it != end);
  ++it;
  CHECK(it == end);
  CHECK(end == it);
  CHECK(in.eof());
}

TEST(istream_iterator_reads_its_first_value_when_constructed) {
  std::istringstream in("12 34");
  int_reader it(in);
  // The first number is already taken from the stream.
  int next = 0;
  in >> next;
  CHECK_EQ(next, 34);
  CHECK_EQ(*it, 12);
}

TEST(istream_iterator_on_an_empty_stream_is_the_end_at_once) {
  std::istringstream in("   ");
  int_reader it(in), end;
  CHECK(it == end);
  CHECK(in.fail());
}

TEST(istream_iterator_ends_at_a_value_that_does_not_parse) {
  std::istringstream in("1 2 x 3");
  int_reader it(in), end;
  int sum = 0, count = 0;
  for (; it != end; ++it, ++count)
    sum += *it;
  CHECK_EQ(count, 2);
  CHECK_EQ(sum, 3);
  in.clear();
  char left = 0;
  in >> left;
  CHECK_EQ(left, 'x');
}

TEST(two_end_of_stream_iterators_are_equal) {
  int_reader a, b;
  CHECK(a == b);
  CHECK(!(a != b));
  std::istringstream in("");
  int_reader finished(in);
  CHECK(finished == a);
}

TEST(iterators_reading_the_same_stream_are_equal_and_others_not) {
  std::istringstream in("1 2 3 4"), other("1 2 3 4");
  int_reader a(in), b(in), c(other), end;
  // a read 1 and b read 2; both still read the same stream.
  CHECK_EQ(*a, 1);
  CHECK_EQ(*b, 2);
  CHECK(a == b);
  CHECK(a != c);
  CHECK(a != end);
  CHECK(end != a);
  int_reader copy(a);
  CHECK(copy == a);
  CHECK_EQ(*copy, 1);
}

TEST(istream_iterator_post_increment_returns_the_previous_value) {
  std::istringstream in("5 6 7");
  int_reader it(in);
  int_reader old = it++;
  CHECK_EQ(*old, 5);
  CHECK_EQ(*it, 6);
  int_reader& self = ++it;
  CHECK(&self == &it);
  CHECK_EQ(*it, 7);
}

TEST(istream_iterator_arrow_reaches_the_value_members) {
  std::istringstream in("alpha beta");
  std::istream_iterator<std::string> it(in), end;
  CHECK_EQ(it->size(), 5u);
  CHECK_STR(it->c_str(), "alpha");
  ++it;
  CHECK_STR((*it).c_str(), "beta");
  ++it;
  CHECK(it == end);
}

TEST(istream_iterator_reads_doubles) {
  std::istringstream in("0.5 -2.25 1e3");
  std::istream_iterator<double> it(in), end;
  double values[3];
  int n = 0;
  for (; it != end && n < 3; ++it)
    values[n++] = *it;
  CHECK_EQ(n, 3);
  CHECK_EQ(values[0], 0.5);
  CHECK_EQ(values[1], -2.25);
  CHECK_EQ(values[2], 1000.0);
  CHECK(it == end);
}

TEST(istream_iterator_assignment_copies_the_stream_and_value) {
  std::istringstream in("8 9");
  int_reader a(in), end;
  int_reader b;
  b = a;
  CHECK(b == a);
  CHECK_EQ(*b, 8);
  b = end;
  CHECK(b == end);
}

TEST(ostream_iterator_has_the_standard_types) {
  typedef std::ostream_iterator<int> writer;
  CHECK((same_type<writer, std::ostream_iterator<int, char, std::char_traits<char> > >::value));
  CHECK((same_type<writer::char_type, char>::value));
  CHECK((same_type<writer::traits_type, std::char_traits<char> >::value));
  CHECK((same_type<writer::ostream_type, std::ostream>::value));
  CHECK((same_type<std::iterator_traits<writer>::value_type, void>::value));
  CHECK_EQ(category(std::iterator_traits<writer>::iterator_category()), 2);
}

TEST(ostream_iterator_without_delimiter_writes_values_back_to_back) {
  std::ostringstream out;
  std::ostream_iterator<int> it(out);
  *it = 1;
  ++it;
  *it++ = 23;
  it = -4;
  CHECK_STR(out.str().c_str(), "123-4");
}

TEST(ostream_iterator_writes_the_delimiter_after_every_value) {
  std::ostringstream out;
  std::ostream_iterator<int> it(out, ", ");
  const int values[] = {3, 1, 4, 1, 5};
  std::ostream_iterator<int> after = std::copy(values, values + 5, it);
  CHECK_STR(out.str().c_str(), "3, 1, 4, 1, 5, ");
  *after = 9;
  CHECK_STR(out.str().c_str(), "3, 1, 4, 1, 5, 9, ");
}

TEST(ostream_iterator_operations_return_the_iterator_itself) {
  std::ostringstream out;
  std::ostream_iterator<char> it(out, "|");
  CHECK(&*it == &it);
  CHECK(&++it == &it);
  CHECK(&it++ == &it);
  CHECK(&(it = 'a') == &it);
  CHECK_STR(out.str().c_str(), "a|");
}

TEST(ostream_iterator_uses_the_streams_formatting) {
  std::ostringstream out;
  out.setf(std::ios_base::hex, std::ios_base::basefield);
  std::ostream_iterator<int> it(out, " ");
  *it = 255;
  *it = 16;
  std::ostream_iterator<std::string> words(out, "\n");
  *words = std::string("end");
  CHECK_STR(out.str().c_str(), "ff 10 end\n");
}

TEST(stream_iterators_copy_numbers_from_one_stream_to_another) {
  std::istringstream in("10 20 30 40");
  std::ostringstream out;
  std::copy(int_reader(in), int_reader(), std::ostream_iterator<int>(out, ";"));
  CHECK_STR(out.str().c_str(), "10;20;30;40;");
}
