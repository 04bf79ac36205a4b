// The sequence-container instances the library holds for its own use and for programs. Their
// export mark is on the extern declarations in the headers, which come first here.
#include <deque>
#include <list>
#include <locale>
#include <vector>

namespace std {
template class deque<int>;
template class deque<char>;
template class list<int>;
template class list<char>;
template class vector<void*>;
template class vector<long>;
template class vector<char>;
template class vector<locale::facet*>;
} // namespace std
