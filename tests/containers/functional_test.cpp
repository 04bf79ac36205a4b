// <functional>: the arithmetic, comparison and logical function objects and their argument and
// result types, the negators and binders, and the adaptors of plain and member functions.
#include "algorithm_test_support.h"
#include "lorb_test.h"
#include <algorithm>
#include <functional>

namespace {

template <class A, class B> struct same_type {
  enum { value = false };
};
template <class A> struct same_type<A, A> {
  enum { value = true };
};

int negated(int x) { return -x; }
int difference(int a, int b) { return a - b; }

struct counter {
  int value;
  explicit counter(int v) : value(v) {}
  int bump() { return ++value; }
  int add(int n) {
    value += n;
    return value;
  }
  int get() const { return value; }
  int plus(int n) const { return value + n; }
  void reset() { value = 0; }
};

} // namespace

TEST(arithmetic_objects_apply_their_operator) {
  CHECK_EQ(std::plus<int>()(7, 3), 10);
  CHECK_EQ(std::minus<int>()(7, 3), 4);
  CHECK_EQ(std::multiplies<int>()(7, 3), 21);
  CHECK_EQ(std::divides<int>()(7, 3), 2);
  CHECK_EQ(std::modulus<int>()(7, 3), 1);
  CHECK_EQ(std::negate<int>()(7), -7);
  CHECK_EQ(std::divides<double>()(7, 2), 3.5);
  CHECK((same_type<std::plus<long>::result_type, long>::value));
  CHECK((same_type<std::negate<short>::argument_type, short>::value));
  CHECK((same_type<std::modulus<int>::first_argument_type, int>::value));
}

TEST(comparison_and_logical_objects_give_bool) {
  CHECK(std::equal_to<int>()(2, 2) && !std::not_equal_to<int>()(2, 2));
  CHECK(std::less<int>()(1, 2) && !std::greater<int>()(1, 2));
  CHECK(std::less_equal<int>()(2, 2) && std::greater_equal<int>()(2, 2));
  CHECK(std::logical_and<int>()(2, 3) && !std::logical_and<int>()(2, 0));
  CHECK(std::logical_or<int>()(0, 3) && !std::logical_or<int>()(0, 0));
  CHECK(std::logical_not<int>()(0) && !std::logical_not<int>()(5));
  CHECK((same_type<std::logical_or<int>::result_type, bool>::value));
  CHECK((same_type<std::logical_not<int>::result_type, bool>::value));
}

TEST(negators_invert_the_predicate) {
  std::unary_negate<std::logical_not<int> > not_not = std::not1(std::logical_not<int>());
  CHECK(not_not(3) && !not_not(0));
  CHECK(!std::not2(std::less<int>())(1, 2));
  CHECK(std::not2(std::less<int>())(2, 2));
  int a[] = {3, 0, 0, 5};
  CHECK_EQ(std::count_if(a, a + 4, std::not1(std::logical_not<int>())), 2);
  CHECK((same_type<std::binary_negate<std::less<int> >::first_argument_type, int>::value));
}

TEST(binders_fix_the_first_or_second_argument) {
  std::binder1st<std::minus<int> > ten_minus = std::bind1st(std::minus<int>(), 10);
  std::binder2nd<std::minus<int> > minus_ten = std::bind2nd(std::minus<int>(), 10);
  CHECK_EQ(ten_minus(3), 7);
  CHECK_EQ(minus_ten(3), -7);
  CHECK_EQ(std::bind2nd(std::divides<double>(), 4)(2.0), 0.5);
  CHECK_EQ(std::bind1st(std::divides<int>(), 9.9)(2), 4); // kept: 9.9 converts to int first
  int a[] = {1, 5, 2, 7};
  CHECK(std::find_if(a, a + 4, std::bind2nd(std::greater<int>(), 4)) == a + 1);
  CHECK((same_type<std::binder1st<std::minus<int> >::argument_type, int>::value));
  CHECK((same_type<std::binder2nd<std::less<int> >::result_type, bool>::value));
}

TEST(ptr_fun_wraps_plain_functions_for_the_adaptors) {
  std::pointer_to_unary_function<int, int> neg = std::ptr_fun(negated);
  CHECK_EQ(neg(4), -4);
  std::pointer_to_binary_function<int, int, int> diff = std::ptr_fun(difference);
  CHECK_EQ(diff(9, 4), 5);
  CHECK_EQ(std::bind2nd(std::ptr_fun(difference), 1)(5), 4);
  CHECK((
      same_type<std::pointer_to_binary_function<int, int, int>::second_argument_type, int>::value));
}

TEST(mem_fun_calls_members_through_pointers) {
  counter c(5);
  counter* p = &c;
  CHECK_EQ(std::mem_fun(&counter::bump)(p), 6);
  CHECK_EQ(std::mem_fun(&counter::add)(p, 4), 10);
  const counter* cp = &c;
  CHECK_EQ(std::mem_fun(&counter::get)(cp), 10);
  CHECK_EQ(std::mem_fun(&counter::plus)(cp, 2), 12);
  std::mem_fun_t<void, counter> reset = std::mem_fun(&counter::reset);
  reset(p);
  CHECK_EQ(c.value, 0);
  counter a(1), b(2);
  counter* items[] = {&a, &b};
  std::for_each(items, items + 2, std::bind2nd(std::mem_fun(&counter::add), 10));
  CHECK(a.value == 11 && b.value == 12);
  CHECK((same_type<std::const_mem_fun1_t<int, counter, int>::first_argument_type,
                   const counter*>::value));
  CHECK((same_type<std::mem_fun1_t<int, counter, int>::first_argument_type, counter*>::value));
}

TEST(mem_fun_ref_calls_members_through_references) {
  counter items[] = {counter(1), counter(2), counter(3)};
  std::for_each(items, items + 3, std::mem_fun_ref(&counter::bump));
  CHECK(items[0].value == 2 && items[2].value == 4);
  std::for_each(items, items + 2, std::bind2nd(std::mem_fun_ref(&counter::add), 10));
  CHECK(items[0].value == 12 && items[1].value == 13 && items[2].value == 4);
  std::for_each(items, items + 2, std::bind2nd(std::mem_fun_ref(&counter::add), -10));
  CHECK_EQ(std::mem_fun_ref(&counter::add)(items[0], 5), 7);
  const counter& ref = items[1];
  CHECK_EQ(std::mem_fun_ref(&counter::get)(ref), 3);
  CHECK_EQ(std::mem_fun_ref(&counter::plus)(ref, 4), 7);
  std::mem_fun_ref_t<void, counter> reset = std::mem_fun_ref(&counter::reset);
  reset(items[2]);
  CHECK_EQ(items[2].value, 0);
  int sums[3];
  std::transform(items, items + 3, sums, std::bind2nd(std::mem_fun_ref(&counter::plus), 1));
  CHECK(sums[0] == 8 && sums[1] == 4 && sums[2] == 1);
  CHECK((same_type<std::const_mem_fun_ref_t<int, counter>::argument_type, counter>::value));
  CHECK((same_type<std::mem_fun1_ref_t<int, counter, int>::second_argument_type, int>::value));
}
