// std::stack, std::queue and std::priority_queue: their default containers, the orders they
// give back elements in over generated sequences, their comparisons and the protected container.
#include "lorb_test.h"
#include "sequence_allocation_log.h"
#include "sequence_tracked.h"
#include <functional>
#include <list>
#include <queue>
#include <stack>
#include <vector>

using seq::allocations;

template <class _A, class _B> struct same_type {
  enum { value = 0 };
};
template <class _A> struct same_type<_A, _A> {
  enum { value = 1 };
};

TEST(the_default_containers_are_deque_deque_and_vector) {
  CHECK((same_type<std::stack<int>::container_type, std::deque<int> >::value));
  CHECK((same_type<std::queue<char>::container_type, std::deque<char> >::value));
  CHECK((same_type<std::priority_queue<long>::container_type, std::vector<long> >::value));
  CHECK((same_type<std::stack<int>::value_type, int>::value));
  CHECK((same_type<std::queue<int>::size_type, std::deque<int>::size_type>::value));
  CHECK((!same_type<std::stack<int>::container_type, std::vector<int> >::value));
}

template <class _Stack> static void check_last_in_first_out(unsigned seed) {
  seq::generator gen(seed);
  _Stack s;
  int model[500];
  unsigned size = 0;
  for (int step = 0; step < 3000; ++step) {
    if (size < 500 && (size == 0 || gen.below(3) != 0)) {
      int value = int(gen.below(10000));
      s.push(value);
      model[size++] = value;
    } else {
      CHECK_EQ(s.top(), model[size - 1]);
      s.pop();
      --size;
    }
    CHECK_EQ(s.size(), size);
    CHECK_EQ(s.empty(), size == 0);
    if (size) {
      const _Stack& c = s;
      CHECK_EQ(c.top(), model[size - 1]);
    }
  }
}

TEST(a_stack_gives_back_the_last_element_pushed_over_any_container) {
  check_last_in_first_out<std::stack<int> >(1);
  check_last_in_first_out<std::stack<int, std::vector<int> > >(2);
  check_last_in_first_out<std::stack<int, std::list<int> > >(3);
}

template <class _Queue> static void check_first_in_first_out(unsigned seed) {
  seq::generator gen(seed);
  _Queue q;
  int model[4000];
  unsigned first = 0, last = 0;
  for (int step = 0; step < 3000; ++step) {
    if (first == last || gen.below(3) != 0) {
      int value = int(gen.below(10000));
      q.push(value);
      model[last++] = value;
    } else {
      CHECK_EQ(q.front(), model[first]);
      q.pop();
      ++first;
    }
    CHECK_EQ(q.size(), last - first);
    if (first != last) {
      const _Queue& c = q;
      CHECK_EQ(c.front(), model[first]);
      CHECK_EQ(c.back(), model[last - 1]);
      CHECK_EQ(q.back(), model[last - 1]);
    }
  }
}

TEST(a_queue_gives_back_the_first_element_pushed_over_any_container) {
  check_first_in_first_out<std::queue<int> >(4);
  check_first_in_first_out<std::queue<int, std::list<int> > >(5);
}

// The model is an unsorted array whose greatest element (by the comparison) is found by a scan.
template <class _Compare> static void check_greatest_first(unsigned seed) {
  seq::generator gen(seed);
  std::priority_queue<int, std::vector<int>, _Compare> q;
  _Compare comp;
  int model[3000];
  unsigned size = 0;
  for (int step = 0; step < 3000; ++step) {
    if (size == 0 || gen.below(5) < 3) {
      int value = int(gen.below(200));
      q.push(value);
      model[size++] = value;
    } else {
      unsigned best = 0;
      for (unsigned i = 1; i < size; ++i)
        if (comp(model[best], model[i]))
          best = i;
      CHECK_EQ(q.top(), model[best]);
      q.pop();
      model[best] = model[--size];
    }
    CHECK_EQ(q.size(), size);
    CHECK_EQ(q.empty(), size == 0);
  }
}

TEST(a_priority_queue_gives_back_the_greatest_element_first) {
  check_greatest_first<std::less<int> >(6);
  check_greatest_first<std::greater<int> >(7);
}

TEST(a_priority_queue_built_from_a_range_or_a_container_is_made_a_heap) {
  int raw[] = {5, 1, 9, 3, 7, 9, 2};
  std::priority_queue<int> from_range(raw, raw + 7);
  std::vector<int> values(raw, raw + 7);
  std::priority_queue<int> from_container(std::less<int>(), values);
  std::priority_queue<int, std::vector<int>, std::greater<int> > smallest(raw, raw + 7);
  int descending[] = {9, 9, 7, 5, 3, 2, 1};
  for (int i = 0; i < 7; ++i) {
    CHECK_EQ(from_range.top(), descending[i]);
    CHECK_EQ(from_container.top(), descending[i]);
    CHECK_EQ(smallest.top(), descending[6 - i]);
    from_range.pop();
    from_container.pop();
    smallest.pop();
  }
  CHECK(from_range.empty());
  std::vector<int> start(2, 4);
  std::priority_queue<int> both(raw, raw + 2, std::less<int>(), start);
  CHECK_EQ(both.size(), 4u);
  CHECK_EQ(both.top(), 5);
}

TEST(a_priority_queue_of_longs_grows_its_vector_by_the_vector_rule) {
  std::priority_queue<long> q;
  seq::mark();
  for (long i = 0; i < 11; ++i)
    q.push(i);
  CHECK_EQ(allocations.logged, 2u);
  CHECK_EQ(allocations.sizes[0], 40u);
  CHECK_EQ(allocations.sizes[1], 80u);
  CHECK_EQ(q.top(), 10L);
}

TEST(stacks_and_queues_compare_as_their_containers) {
  seq::generator gen(8);
  for (int round = 0; round < 200; ++round) {
    std::deque<int> a, b;
    unsigned na = gen.below(4), nb = gen.below(4);
    for (unsigned i = 0; i < na; ++i)
      a.push_back(int(gen.below(2)));
    for (unsigned i = 0; i < nb; ++i)
      b.push_back(int(gen.below(2)));
    std::stack<int> sa(a), sb(b);
    std::queue<int> qa(a), qb(b);
    CHECK_EQ(sa == sb, a == b);
    CHECK_EQ(sa != sb, a != b);
    CHECK_EQ(sa < sb, a < b);
    CHECK_EQ(sa > sb, a > b);
    CHECK_EQ(sa <= sb, a <= b);
    CHECK_EQ(sa >= sb, a >= b);
    CHECK_EQ(qa == qb, a == b);
    CHECK_EQ(qa != qb, a != b);
    CHECK_EQ(qa < qb, a < b);
    CHECK_EQ(qa > qb, a > b);
    CHECK_EQ(qa <= qb, a <= b);
    CHECK_EQ(qa >= qb, a >= b);
  }
}

// The container is the protected member c, reachable from a derived class.
struct open_stack : std::stack<seq::tracked> {
  const std::deque<seq::tracked>& container() const { return c; }
};
struct open_queue : std::priority_queue<int> {
  const std::vector<int>& container() const { return c; }
};

TEST(the_adapted_container_is_the_protected_member_c) {
  open_stack s;
  s.push(seq::tracked(1));
  s.push(seq::tracked(2));
  CHECK_EQ(s.container().size(), 2u);
  CHECK_EQ(s.container().back().value, 2);
  open_queue q;
  q.push(3);
  q.push(8);
  q.push(5);
  CHECK_EQ(q.container().front(), 8);
  CHECK_EQ(q.container().size(), 3u);
}

TEST(every_element_and_buffer_is_given_back) {
  unsigned news = allocations.news, deletes = allocations.deletes;
  {
    std::stack<seq::tracked> s;
    std::queue<seq::tracked> q;
    for (int i = 0; i < 100; ++i) {
      s.push(seq::tracked(i));
      q.push(seq::tracked(i));
    }
    for (int i = 0; i < 50; ++i) {
      s.pop();
      q.pop();
    }
  }
  CHECK_EQ(seq::tracking.live, 0);
  CHECK_EQ(allocations.news - news, allocations.deletes - deletes);
}
