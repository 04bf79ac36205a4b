// The element-type traits the containers and the string share: which types are integers (a pair
// of them given to a range member is a count and a value) and which may be moved with memmove.
#include "lorb_test.h"
#include <__lorb/bitwise_copy.h>
#include <__lorb/integer_type.h>
#include <string>

struct with_members {
  int value;
};

template <class _A, class _B> struct same_type {
  enum { value = 0 };
};
template <class _A> struct same_type<_A, _A> {
  enum { value = 1 };
};

TEST(integer_types_are_the_integral_types_and_nothing_else) {
  CHECK(__vel::is_integer_type<bool>::value);
  CHECK(__vel::is_integer_type<char>::value);
  CHECK(__vel::is_integer_type<unsigned long>::value);
  CHECK(__vel::is_integer_type<unsigned long long>::value);
  CHECK(!__vel::is_integer_type<double>::value);
  CHECK(!__vel::is_integer_type<char*>::value);
  CHECK(!__vel::is_integer_type<with_members>::value);
}

TEST(fundamental_types_and_pointers_move_bitwise_and_classes_do_not) {
  CHECK(__vel::is_bitwise_copyable<int>::value);
  CHECK(__vel::is_bitwise_copyable<const long long>::value);
  CHECK(__vel::is_bitwise_copyable<long double>::value);
  CHECK(__vel::is_bitwise_copyable<with_members*>::value);
  CHECK(!__vel::is_bitwise_copyable<with_members>::value);
  CHECK(!__vel::is_bitwise_copyable<std::string>::value);
}

TEST(the_string_reads_integer_pairs_as_a_count_and_a_character) {
  CHECK((same_type<__vel::string_arguments<int>::kind, __vel::string_integer_args>::value));
  CHECK((same_type<__vel::string_arguments<char>::kind, __vel::string_integer_args>::value));
  CHECK((same_type<__vel::string_arguments<char*>::kind, __vel::string_iterator_args>::value));
  std::string counted(3, 'x');
  std::string from_ints(static_cast<int>(3), static_cast<int>('y'));
  CHECK_STR(from_ints.c_str(), "yyy");
  CHECK_EQ(counted.size(), 3u);
}
