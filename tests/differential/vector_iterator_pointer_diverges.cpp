// Where Lorb++'s iterator types differ: a vector's and a string's iterators are plain pointers
// (GNU wraps them in a class of namespace std's library), so an unqualified call such as
// sort(v.begin(), v.end()) finds no std:: algorithm by argument-dependent lookup and must be
// written std::sort. The other containers' iterators are classes and find std:: as in GNU.
#include <list>
#include <map>
#include <stdio.h>
#include <string>
#include <vector>

// 1 when the argument is a plain pointer, 0 for anything else.
template <class T> static int is_pointer(T*) { return 1; }
template <class T> static int is_pointer(const T&) { return 0; }

int main() {
  std::vector<int> v(2, 7);
  const std::vector<int>& cv = v;
  std::string s("ab");
  const std::string& cs = s;
  std::list<int> l(1, 3);
  std::map<int, int> m;
  printf("vector<int>::iterator %d, const_iterator %d\n", is_pointer(v.begin()),
         is_pointer(cv.begin()));
  printf("string::iterator %d, const_iterator %d\n", is_pointer(s.begin()),
         is_pointer(cs.begin()));
  printf("list<int>::iterator %d, map<int, int>::iterator %d\n", is_pointer(l.begin()),
         is_pointer(m.begin()));
  return 0;
}
