// The insert iterators over a small container of the test's own, and the other iterator pieces
// that <iterator> gathers: reverse_iterator, advance and distance.
#include "lorb_test.h"
#include <__lorb/algobase.h> // std::copy
#include <iterator>

namespace {

// A fixed-capacity sequence with the members the insert iterators use; it counts the calls.
struct small_sequence {
  typedef int value_type;
  typedef int* iterator;
  typedef const int& const_reference;

  int items[32];
  int size;
  int push_backs, push_fronts, inserts;

  small_sequence() : size(0), push_backs(0), push_fronts(0), inserts(0) {}
  int* begin() { return items; }
  int* end() { return items + size; }
  void push_back(const int& value) {
    ++push_backs;
    items[size++] = value;
  }
  void push_front(const int& value) {
    ++push_fronts;
    insert_at(0, value);
  }
  int* insert(int* position, const int& value) {
    ++inserts;
    int index = static_cast<int>(position - items);
    insert_at(index, value);
    return items + index;
  }
  void insert_at(int index, int value) {
    for (int i = size; i > index; --i)
      items[i] = items[i - 1];
    items[index] = value;
    ++size;
  }
};

// "1 2 3" for the sequence's items.
struct items_text {
  char text[160];
};
items_text text_of(const small_sequence& s) {
  items_text t;
  t.text[0] = 0;
  int used = 0;
  for (int i = 0; i < s.size; ++i)
    used += snprintf(t.text + used, sizeof t.text - used, i ? " %d" : "%d", s.items[i]);
  return t;
}

int category(std::input_iterator_tag) { return 1; }
int category(std::output_iterator_tag) { return 2; }
int category(std::bidirectional_iterator_tag) { return 4; }
int category(std::random_access_iterator_tag) { return 5; }

template <class A, class B> struct same_type {
  enum { value = false };
};
template <class A> struct same_type<A, A> {
  enum { value = true };
};

// A bidirectional iterator over an array, so that advance and distance take their stepping path.
struct stepper : std::iterator<std::bidirectional_iterator_tag, int> {
  int* at;
  int* steps;
  stepper(int* p, int* counter) : at(p), steps(counter) {}
  int& operator*() const { return *at; }
  stepper& operator++() {
    ++at;
    ++*steps;
    return *this;
  }
  stepper& operator--() {
    --at;
    ++*steps;
    return *this;
  }
  bool operator==(const stepper& other) const { return at == other.at; }
  bool operator!=(const stepper& other) const { return at != other.at; }
};

const int source[] = {1, 2, 3, 4, 5};

} // namespace

TEST(back_inserter_appends_in_order) {
  small_sequence s;
  s.push_back(0);
  std::copy(source, source + 5, std::back_inserter(s));
  CHECK_STR(text_of(s).text, "0 1 2 3 4 5");
  CHECK_EQ(s.push_backs, 6);
  CHECK_EQ(s.push_fronts, 0);
}

TEST(front_inserter_prepends_so_the_order_reverses) {
  small_sequence s;
  s.push_back(0);
  std::copy(source, source + 5, std::front_inserter(s));
  CHECK_STR(text_of(s).text, "5 4 3 2 1 0");
  CHECK_EQ(s.push_fronts, 5);
}

TEST(inserter_keeps_the_order_before_the_position) {
  small_sequence s;
  s.push_back(10);
  s.push_back(20);
  std::copy(source, source + 3, std::inserter(s, s.begin() + 1));
  CHECK_STR(text_of(s).text, "10 1 2 3 20");
  CHECK_EQ(s.inserts, 3);
  std::copy(source + 3, source + 5, std::inserter(s, s.end()));
  CHECK_STR(text_of(s).text, "10 1 2 3 20 4 5");
}

TEST(inserter_converts_the_position_to_the_containers_iterator) {
  small_sequence s;
  s.push_back(7);
  // The position may be of any type that converts to the container's iterator.
  struct position {
    int* p;
    operator int*() const { return p; }
  } at = {s.begin()};
  std::insert_iterator<small_sequence> it = std::inserter(s, at);
  *it = 6;
  CHECK_STR(text_of(s).text, "6 7");
}

TEST(insert_iterator_operations_return_the_iterator_itself) {
  small_sequence s;
  std::insert_iterator<small_sequence> it(s, s.begin());
  CHECK(&*it == &it);
  CHECK(&++it == &it);
  CHECK(&it++ == &it); // by reference, as the 1998 standard has it
  CHECK(&(it = 3) == &it);
  CHECK_STR(text_of(s).text, "3");
}

TEST(back_and_front_insert_iterators_step_to_themselves) {
  small_sequence s;
  std::back_insert_iterator<small_sequence> back(s);
  CHECK(&*back == &back);
  CHECK(&++back == &back);
  std::back_insert_iterator<small_sequence> copy = back++;
  copy = 1;
  back = 2;
  std::front_insert_iterator<small_sequence> front(s);
  CHECK(&*front == &front);
  CHECK(&++front == &front);
  std::front_insert_iterator<small_sequence> front_copy = front++;
  front_copy = 0;
  CHECK_STR(text_of(s).text, "0 1 2");
}

TEST(insert_iterators_are_output_iterators_of_void) {
  typedef std::back_insert_iterator<small_sequence> back;
  typedef std::front_insert_iterator<small_sequence> front;
  typedef std::insert_iterator<small_sequence> middle;
  CHECK_EQ(category(std::iterator_traits<back>::iterator_category()), 2);
  CHECK_EQ(category(std::iterator_traits<front>::iterator_category()), 2);
  CHECK_EQ(category(std::iterator_traits<middle>::iterator_category()), 2);
  CHECK((same_type<std::iterator_traits<back>::value_type, void>::value));
  CHECK((same_type<std::iterator_traits<middle>::difference_type, void>::value));
  CHECK((same_type<std::iterator_traits<front>::pointer, void>::value));
  CHECK((same_type<std::iterator_traits<front>::reference, void>::value));
  CHECK((same_type<back::container_type, small_sequence>::value));
  CHECK((same_type<front::container_type, small_sequence>::value));
  CHECK((same_type<middle::container_type, small_sequence>::value));
}

TEST(a_derived_insert_iterator_reaches_the_protected_members) {
  struct peek : std::insert_iterator<small_sequence> {
    peek(small_sequence& s) : std::insert_iterator<small_sequence>(s, s.begin()) {}
    small_sequence* held() const { return container; }
    int* where() const { return iter; }
  };
  small_sequence s;
  peek p(s);
  CHECK(p.held() == &s);
  CHECK(p.where() == s.begin());
  *p = 4; // the base's assignment: the derived class's own one hides it
  CHECK(p.where() == s.begin() + 1);
}

TEST(reverse_iterator_comes_with_iterator) {
  int values[] = {1, 2, 3};
  std::reverse_iterator<int*> r(values + 3), rend(values);
  CHECK_EQ(*r, 3);
  CHECK_EQ(rend - r, 3);
  CHECK_EQ(r[2], 1);
  CHECK_EQ(category(std::iterator_traits<std::reverse_iterator<int*> >::iterator_category()), 5);
}

TEST(advance_and_distance_step_by_category) {
  int values[] = {1, 2, 3, 4, 5, 6};
  int steps = 0;
  stepper first(values, &steps), last(values + 6, &steps);
  CHECK_EQ(std::distance(first, last), 6);
  CHECK_EQ(steps, 6);
  stepper it = first;
  std::advance(it, 4);
  CHECK_EQ(*it, 5);
  std::advance(it, -3);
  CHECK_EQ(*it, 2);
  CHECK_EQ(steps, 13);
  int* p = values;
  std::advance(p, 5);
  CHECK_EQ(*p, 6);
  CHECK_EQ(std::distance(p, values + 1), -4);
}
