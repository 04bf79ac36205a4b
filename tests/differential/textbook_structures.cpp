// Textbook data structures on generated data: bracket matching with a stack,
// breadth-first search with a queue over adjacency lists, an event simulation
// with a priority queue, a sliding window in a deque, a prime sieve in a bitset
// and permutations in order.
#include <algorithm>
#include <bitset>
#include <deque>
#include <functional>
#include <iostream>
#include <list>
#include <queue>
#include <stack>
#include <string>
#include <vector>

static unsigned state = 77;
static unsigned draw(unsigned limit) {
  state = state * 1103515245u + 12345u;
  return (state >> 8) % limit;
}

static bool brackets_match(const std::string& text) {
  std::stack<char> open;
  for (std::string::size_type i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '(' || c == '[' || c == '{') {
      open.push(c);
    } else {
      if (open.empty())
        return false;
      char o = open.top();
      open.pop();
      if ((c == ')' && o != '(') || (c == ']' && o != '[') || (c == '}' && o != '{'))
        return false;
    }
  }
  return open.empty();
}

static void bracket_exercise() {
  static const char brackets[] = "()[]{}";
  int matched = 0;
  for (int i = 0; i < 300; ++i) {
    std::string text;
    unsigned length = draw(12);
    for (unsigned j = 0; j < length; ++j)
      text += brackets[draw(6)];
    if (brackets_match(text)) {
      ++matched;
      std::cout << "balanced: \"" << text << "\"\n";
    }
  }
  std::cout << matched << " balanced\n";
}

static void search_exercise() {
  for (int graph = 0; graph < 10; ++graph) {
    unsigned n = 1 + draw(30);
    std::vector<std::list<unsigned> > edges(n);
    unsigned edge_count = draw(3 * n);
    for (unsigned i = 0; i < edge_count; ++i) {
      unsigned a = draw(n), b = draw(n);
      edges[a].push_back(b);
      edges[b].push_front(a);
    }
    std::vector<int> distance(n, -1);
    std::queue<unsigned> frontier;
    distance[0] = 0;
    frontier.push(0);
    while (!frontier.empty()) {
      unsigned at = frontier.front();
      frontier.pop();
      for (std::list<unsigned>::const_iterator it = edges[at].begin(); it != edges[at].end(); ++it)
        if (distance[*it] < 0) {
          distance[*it] = distance[at] + 1;
          frontier.push(*it);
        }
    }
    std::cout << "graph " << graph << ":";
    for (unsigned i = 0; i < n; ++i)
      std::cout << ' ' << distance[i];
    std::cout << '\n';
  }
}

struct event {
  int time;
  int id;
  bool operator<(const event& other) const {
    return time != other.time ? time > other.time : id > other.id;
  }
};

static void simulation_exercise() {
  std::priority_queue<event> pending;
  int next_id = 0;
  for (int i = 0; i < 20; ++i) {
    event e = {static_cast<int>(draw(100)), next_id++};
    pending.push(e);
  }
  int handled = 0;
  while (!pending.empty() && handled < 200) {
    event e = pending.top();
    pending.pop();
    ++handled;
    std::cout << e.time << ':' << e.id << ' ';
    if (draw(3) == 0) {
      event follow = {e.time + 1 + static_cast<int>(draw(20)), next_id++};
      pending.push(follow);
    }
  }
  std::cout << "\nhandled " << handled << ", left " << pending.size() << '\n';
  std::priority_queue<int, std::vector<int>, std::greater<int> > smallest;
  for (int i = 0; i < 50; ++i)
    smallest.push(static_cast<int>(draw(1000)));
  while (!smallest.empty()) {
    std::cout << smallest.top() << ' ';
    smallest.pop();
  }
  std::cout << '\n';
}

static void window_exercise() {
  std::deque<int> window;
  long sum = 0;
  for (int i = 0; i < 500; ++i) {
    int value = static_cast<int>(draw(1000));
    window.push_back(value);
    sum += value;
    if (window.size() > 7) {
      sum -= window.front();
      window.pop_front();
    }
    if (i % 50 == 0)
      std::cout << "window sum " << sum << " max "
                << *std::max_element(window.begin(), window.end()) << '\n';
  }
}

static void sieve_exercise() {
  std::bitset<1000> composite;
  composite.set(0);
  composite.set(1);
  for (std::size_t i = 2; i * i < composite.size(); ++i)
    if (!composite.test(i))
      for (std::size_t j = i * i; j < composite.size(); j += i)
        composite.set(j);
  std::cout << "primes below 1000: " << (~composite).count() << '\n';
  std::bitset<32> low(static_cast<unsigned long>(0xA5A5F00Ful));
  std::cout << low << ' ' << low.count() << ' ' << (low << 4) << ' ' << low.to_ulong() << '\n';
}

static void permutation_exercise() {
  std::vector<char> letters;
  letters.push_back('c');
  letters.push_back('a');
  letters.push_back('b');
  letters.push_back('a');
  std::sort(letters.begin(), letters.end());
  int count = 0;
  do {
    std::cout << std::string(letters.begin(), letters.end()) << ' ';
    ++count;
  } while (std::next_permutation(letters.begin(), letters.end()));
  std::cout << count << " permutations\n";
}

int main() {
  bracket_exercise();
  search_exercise();
  simulation_exercise();
  window_exercise();
  sieve_exercise();
  permutation_exercise();
  return 0;
}
