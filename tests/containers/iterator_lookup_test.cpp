// Unqualified algorithm calls on container iterators find the std algorithms, as they do with
// other libraries: the iterators bring namespace std into the lookup.
#include "lorb_test.h"
#include <algorithm>
#include <deque>
#include <list>
#include <map>
#include <set>
#include <vector>

TEST(unqualified_calls_on_set_and_map_iterators_find_std_algorithms) {
  std::set<int> s;
  for (int i = 0; i < 10; ++i)
    s.insert(i % 4);
  CHECK_EQ(count(s.begin(), s.end(), 3), 1);
  CHECK(find(s.begin(), s.end(), 2) == s.find(2));
  std::multiset<int> ms(s.begin(), s.end());
  ms.insert(3);
  CHECK_EQ(count(ms.begin(), ms.end(), 3), 2);
  std::map<int, int> m;
  m[1] = 2;
  CHECK_EQ(distance(m.begin(), m.end()), 1);
}

TEST(unqualified_calls_on_list_deque_and_bit_iterators_find_std_algorithms) {
  std::list<int> l;
  std::deque<int> d;
  std::vector<bool> bits;
  for (int i = 0; i < 50; ++i) {
    l.push_back(i % 5);
    d.push_front(i % 7);
    bits.push_back(i % 3 == 0);
  }
  CHECK_EQ(count(l.begin(), l.end(), 4), 10);
  CHECK_EQ(count(d.begin(), d.end(), 6), 7);
  CHECK_EQ(count(bits.begin(), bits.end(), true), 17);
  sort(d.begin(), d.end());
  CHECK(d.front() == 0 && d.back() == 6);
  const std::list<int>& constant = l;
  CHECK(find(constant.begin(), constant.end(), 3) != constant.end());
}
