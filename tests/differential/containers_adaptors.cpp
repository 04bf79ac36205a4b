// std::stack, std::queue and std::priority_queue over generated push and pop sequences with
// their default and other containers: every element given back is printed, with the sizes and
// the comparisons of stacks and queues.
#include "containers_sequence_support.h"
#include <deque>
#include <functional>
#include <list>
#include <queue>
#include <stack>
#include <vector>

template <class _Stack> static void stack_run(const char* name, unsigned seed, int steps) {
  generator gen(seed);
  _Stack s, mirror;
  printf("%s:", name);
  for (int step = 0; step < steps; ++step) {
    if (s.empty() || gen.below(5) < 3) {
      int value = int(gen.below(100));
      s.push(value);
      if (gen.below(2))
        mirror.push(value);
    } else {
      printf(" %d", s.top());
      s.pop();
    }
    if (step % 50 == 0)
      printf(" [%u %d%d%d%d%d%d]", unsigned(s.size()), s == mirror, s != mirror,
             s<mirror, s> mirror, s <= mirror, s >= mirror);
  }
  printf("\n");
}

template <class _Queue> static void queue_run(const char* name, unsigned seed, int steps) {
  generator gen(seed);
  _Queue q, mirror;
  printf("%s:", name);
  for (int step = 0; step < steps; ++step) {
    if (q.empty() || gen.below(5) < 3) {
      int value = int(gen.below(100));
      q.push(value);
      mirror.push(value);
      if (gen.below(4) == 0)
        mirror.pop();
    } else {
      printf(" %d/%d", q.front(), q.back());
      q.pop();
    }
    if (step % 50 == 0)
      printf(" [%u %d%d%d%d%d%d]", unsigned(q.size()), q == mirror, q != mirror,
             q<mirror, q> mirror, q <= mirror, q >= mirror);
  }
  printf("\n");
}

template <class _Queue> static void priority_run(const char* name, unsigned seed, int steps) {
  generator gen(seed);
  int start[20];
  for (int i = 0; i < 20; ++i)
    start[i] = int(gen.below(1000));
  _Queue q(start, start + 20);
  printf("%s:", name);
  for (int step = 0; step < steps; ++step) {
    if (q.empty() || gen.below(2)) {
      q.push(int(gen.below(1000)));
    } else {
      printf(" %d", q.top());
      q.pop();
    }
  }
  printf(" | size %u:", unsigned(q.size()));
  while (!q.empty()) {
    printf(" %d", q.top());
    q.pop();
  }
  printf("\n");
}

int main() {
  stack_run<std::stack<int> >("stack", 51, 600);
  stack_run<std::stack<int, std::vector<int> > >("stack over vector", 52, 600);
  stack_run<std::stack<int, std::list<int> > >("stack over list", 53, 600);
  queue_run<std::queue<int> >("queue", 54, 600);
  queue_run<std::queue<int, std::list<int> > >("queue over list", 55, 600);
  priority_run<std::priority_queue<int> >("priority_queue", 56, 800);
  priority_run<std::priority_queue<int, std::vector<int>, std::greater<int> > >("smallest first",
                                                                                57, 800);
  priority_run<std::priority_queue<int, std::deque<int> > >("over deque", 58, 800);
  return 0;
}
