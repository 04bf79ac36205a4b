// The insert iterators filling strings from generated character runs (back_inserter appends,
// inserter keeps the run's order before its position, and copies through them chain), and
// filling vectors, lists and deques through std::copy, front_inserter included.
#include <algorithm>
#include <deque>
#include <iterator>
#include <list>
#include <stdio.h>
#include <string>
#include <vector>

static unsigned seed = 31337;
static unsigned next_random() {
  seed = seed * 1103515245u + 12345u;
  return seed >> 8;
}

template <class In, class Out> static Out copy_all(In first, In last, Out out) {
  for (; first != last; ++first, ++out)
    *out = *first;
  return out;
}

static std::string random_run(unsigned max_length) {
  std::string run;
  unsigned length = next_random() % (max_length + 1);
  for (unsigned i = 0; i < length; ++i)
    run += char('a' + next_random() % 26);
  return run;
}

template <class Container> static void print(const char* name, const Container& c) {
  printf("  %s:", name);
  for (typename Container::const_iterator it = c.begin(); it != c.end(); ++it)
    printf(" %d", *it);
  printf("\n");
}

// The same generated runs copied into each container through each insert iterator it supports.
static void containers() {
  std::vector<int> vector_back, vector_middle;
  std::list<int> list_back, list_front, list_middle;
  std::deque<int> deque_back, deque_front, deque_middle;
  for (int round = 0; round < 12; ++round) {
    int run[5];
    unsigned length = next_random() % 6;
    for (unsigned i = 0; i < length; ++i)
      run[i] = int(next_random() % 100);
    std::copy(run, run + length, std::back_inserter(vector_back));
    std::copy(run, run + length, std::back_inserter(list_back));
    std::copy(run, run + length, std::back_inserter(deque_back));
    std::copy(run, run + length, std::front_inserter(list_front));
    std::copy(run, run + length, std::front_inserter(deque_front));
    unsigned at = next_random() % (vector_middle.size() + 1);
    std::copy(run, run + length, std::inserter(vector_middle, vector_middle.begin() + at));
    std::list<int>::iterator list_at = list_middle.begin();
    std::advance(list_at, at < list_middle.size() ? at : list_middle.size());
    std::copy(run, run + length, std::inserter(list_middle, list_at));
    std::copy(run, run + length, std::inserter(deque_middle, deque_middle.begin() + at));
    printf("round %d, %u values at %u\n", round, length, at);
    print("vector back", vector_back);
    print("vector middle", vector_middle);
    print("list back", list_back);
    print("list front", list_front);
    print("list middle", list_middle);
    print("deque back", deque_back);
    print("deque front", deque_front);
    print("deque middle", deque_middle);
  }
}

int main() {
  containers();
  std::string appended, inserted;
  for (int round = 0; round < 80; ++round) {
    std::string run = random_run(6);
    copy_all(run.begin(), run.end(), std::back_inserter(appended));
    std::string::size_type at = inserted.empty() ? 0 : next_random() % (inserted.size() + 1);
    copy_all(run.begin(), run.end(), std::inserter(inserted, inserted.begin() + at));
    printf("%2d +%-6s back %s\n   at %2u      mid  %s\n", round, run.c_str(), appended.c_str(),
           unsigned(at), inserted.c_str());
    if (appended.size() > 60)
      appended.erase(0, 30);
    if (inserted.size() > 60)
      inserted.erase(30);
  }
  // One insert_iterator used for two copies continues where the first stopped.
  std::string text("[]");
  std::insert_iterator<std::string> middle(text, text.begin() + 1);
  const std::string head("abc");
  middle = copy_all(head.begin(), head.end(), middle);
  const char tail[] = "xyz";
  copy_all(tail, tail + 3, middle);
  printf("%s\n", text.c_str());
  std::back_insert_iterator<std::string> back(text);
  *back++ = '!';
  *++back = '?';
  back = '.';
  printf("%s\n", text.c_str());
  return 0;
}
