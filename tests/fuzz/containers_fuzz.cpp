// The tree containers and the sequences under random operation sequences, compared after each
// step with a model: a plain array of ints kept by hand, sorted for the trees. The first byte
// picks the container; values are small, so that keys repeat.
#include "fuzz_input.h"
#include <deque>
#include <list>
#include <map>
#include <set>
#include <stdlib.h>
#include <string.h>
#include <vector>

namespace {

// The model: an array grown and shifted by hand, sharing no code with the containers.
class plain_array {
public:
  plain_array() : items_(0), size_(0), capacity_(0) {}
  ~plain_array() { free(items_); }
  size_t size() const { return size_; }
  int operator[](size_t i) const { return items_[i]; }
  void insert(size_t pos, size_t n, int v) {
    if (n == 0)
      return;
    reserve(size_ + n);
    memmove(items_ + pos + n, items_ + pos, (size_ - pos) * sizeof(int));
    for (size_t i = 0; i < n; ++i)
      items_[pos + i] = v;
    size_ += n;
  }
  void erase(size_t pos, size_t n) {
    if (n == 0)
      return;
    memmove(items_ + pos, items_ + pos + n, (size_ - pos - n) * sizeof(int));
    size_ -= n;
  }
  void clear() { size_ = 0; }
  // Where v goes in a sorted array: before the first greater (after its equals) or before the
  // first not less.
  size_t upper(int v) const {
    size_t i = 0;
    while (i < size_ && items_[i] <= v)
      ++i;
    return i;
  }
  size_t lower(int v) const {
    size_t i = 0;
    while (i < size_ && items_[i] < v)
      ++i;
    return i;
  }
  void swap(plain_array& other) {
    int* items = items_;
    size_t size = size_, capacity = capacity_;
    items_ = other.items_, size_ = other.size_, capacity_ = other.capacity_;
    other.items_ = items, other.size_ = size, other.capacity_ = capacity;
  }
  void assign(const plain_array& other) {
    clear();
    for (size_t i = 0; i < other.size(); ++i)
      insert(size_, 1, other[i]);
  }

private:
  void reserve(size_t n) {
    if (n <= capacity_)
      return;
    capacity_ = n * 2 + 4;
    items_ = static_cast<int*>(realloc(items_, capacity_ * sizeof(int)));
  }
  plain_array(const plain_array&);
  plain_array& operator=(const plain_array&);
  int* items_;
  size_t size_;
  size_t capacity_;
};

template <class Range> bool same(const Range& c, const plain_array& m) {
  if (c.size() != m.size())
    return false;
  size_t i = 0;
  for (typename Range::const_iterator it = c.begin(); it != c.end(); ++it, ++i)
    if (*it != m[i])
      return false;
  return i == m.size();
}

// The map's keys, in order; each value must be its key times 3.
template <class Map> bool same_map(const Map& c, const plain_array& m) {
  if (c.size() != m.size())
    return false;
  size_t i = 0;
  for (typename Map::const_iterator it = c.begin(); it != c.end(); ++it, ++i)
    if (it->first != m[i] || it->second != it->first * 3)
      return false;
  return true;
}

int small_value(fuzz_input& in) { return static_cast<int>(in.below(32)); }

template <class C> typename C::iterator at(C& c, size_t i) {
  typename C::iterator it = c.begin();
  std::advance(it, static_cast<long>(i));
  return it;
}

// set and multiset: unique is whether equal keys are refused.
template <class Tree, bool unique> void drive_set(fuzz_input& in) {
  Tree tree;
  plain_array m;
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    int v = small_value(in);
    switch (in.below(10)) {
    case 0:
    case 1: {
      size_t before = tree.size();
      bool present = m.lower(v) != m.upper(v);
      tree.insert(v);
      if (!unique || !present)
        m.insert(m.upper(v), 1, v);
      FUZZ_CHECK(tree.size() == before + (unique && present ? 0 : 1));
      break;
    }
    case 2: {
      // With a hint anywhere: the hint may be wrong, the result may not.
      typename Tree::iterator hint = at(tree, in.below(static_cast<unsigned>(tree.size()) + 1));
      typename Tree::iterator put = tree.insert(hint, v);
      FUZZ_CHECK(*put == v);
      if (!unique || m.lower(v) == m.upper(v))
        m.insert(m.upper(v), 1, v);
      break;
    }
    case 3: {
      size_t erased = tree.erase(v);
      FUZZ_CHECK(erased == m.upper(v) - m.lower(v));
      m.erase(m.lower(v), erased);
      break;
    }
    case 4:
      if (!tree.empty()) {
        size_t i = in.below(static_cast<unsigned>(tree.size()));
        tree.erase(at(tree, i));
        m.erase(i, 1);
      }
      break;
    case 5: {
      size_t first = in.below(static_cast<unsigned>(tree.size()) + 1);
      size_t last = first + in.below(static_cast<unsigned>(tree.size() - first) + 1);
      tree.erase(at(tree, first), at(tree, last));
      m.erase(first, last - first);
      break;
    }
    case 6: {
      FUZZ_CHECK(tree.count(v) == m.upper(v) - m.lower(v));
      typename Tree::iterator found = tree.find(v);
      FUZZ_CHECK((found == tree.end()) == (m.upper(v) == m.lower(v)));
      FUZZ_CHECK(static_cast<size_t>(std::distance(tree.begin(), tree.lower_bound(v))) == m.lower(v));
      FUZZ_CHECK(static_cast<size_t>(std::distance(tree.begin(), tree.upper_bound(v))) == m.upper(v));
      std::pair<typename Tree::iterator, typename Tree::iterator> range = tree.equal_range(v);
      FUZZ_CHECK(range.first == tree.lower_bound(v) && range.second == tree.upper_bound(v));
      break;
    }
    case 7: {
      Tree copy(tree);
      FUZZ_CHECK(same(copy, m) && copy == tree);
      Tree other;
      other.insert(v);
      other = tree;
      FUZZ_CHECK(same(other, m));
      other.swap(copy);
      FUZZ_CHECK(same(other, m) && same(copy, m));
      break;
    }
    case 8:
      if (in.below(8) == 0) {
        tree.clear();
        m.clear();
      }
      break;
    default: {
      // Reversed walk.
      size_t i = m.size();
      for (typename Tree::reverse_iterator it = tree.rbegin(); it != tree.rend(); ++it)
        FUZZ_CHECK(i > 0 && *it == m[--i]);
      FUZZ_CHECK(i == 0);
      break;
    }
    }
    FUZZ_CHECK(same(tree, m));
  }
}

template <class Map, bool unique> void drive_map(fuzz_input& in) {
  Map map;
  plain_array m;
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    int v = small_value(in);
    switch (in.below(6)) {
    case 0:
    case 1:
      map.insert(typename Map::value_type(v, v * 3));
      if (!unique || m.lower(v) == m.upper(v))
        m.insert(m.upper(v), 1, v);
      break;
    case 2: {
      typename Map::iterator hint = at(map, in.below(static_cast<unsigned>(map.size()) + 1));
      map.insert(hint, typename Map::value_type(v, v * 3));
      if (!unique || m.lower(v) == m.upper(v))
        m.insert(m.upper(v), 1, v);
      break;
    }
    case 3: {
      size_t erased = map.erase(v);
      FUZZ_CHECK(erased == m.upper(v) - m.lower(v));
      m.erase(m.lower(v), erased);
      break;
    }
    case 4:
      if (!map.empty()) {
        size_t i = in.below(static_cast<unsigned>(map.size()));
        map.erase(at(map, i));
        m.erase(i, 1);
      }
      break;
    default: {
      FUZZ_CHECK(map.count(v) == m.upper(v) - m.lower(v));
      FUZZ_CHECK(static_cast<size_t>(std::distance(map.begin(), map.lower_bound(v))) == m.lower(v));
      FUZZ_CHECK(static_cast<size_t>(std::distance(map.begin(), map.upper_bound(v))) == m.upper(v));
      Map copy(map);
      FUZZ_CHECK(same_map(copy, m));
      break;
    }
    }
    FUZZ_CHECK(same_map(map, m));
  }
}

// map's operator[]: a missing key is put in with a value-initialised int.
void drive_map_subscript(fuzz_input& in) {
  std::map<int, int> map;
  plain_array m;
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    int v = small_value(in);
    bool had = m.lower(v) != m.upper(v);
    int& slot = map[v];
    FUZZ_CHECK(had || slot == 0);
    slot = v * 3;
    if (!had)
      m.insert(m.upper(v), 1, v);
    FUZZ_CHECK(same_map(map, m));
  }
}

// vector, deque and list: front_ops is whether push_front and pop_front exist.
template <class Seq, bool front_ops> void drive_sequence(fuzz_input& in) {
  Seq seq;
  plain_array m;
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    int v = static_cast<int>(in.byte());
    switch (in.below(11)) {
    case 0:
      seq.push_back(v);
      m.insert(m.size(), 1, v);
      break;
    case 1:
      if (!seq.empty()) {
        FUZZ_CHECK(seq.back() == m[m.size() - 1]);
        seq.pop_back();
        m.erase(m.size() - 1, 1);
      }
      break;
    case 2:
      if (front_ops) {
        seq.insert(seq.begin(), v); // as push_front would; the front forms follow below
        m.insert(0, 1, v);
      }
      break;
    case 3: {
      size_t pos = in.below(static_cast<unsigned>(seq.size()) + 1);
      typename Seq::iterator put = seq.insert(at(seq, pos), v);
      FUZZ_CHECK(*put == v);
      m.insert(pos, 1, v);
      break;
    }
    case 4: {
      size_t pos = in.below(static_cast<unsigned>(seq.size()) + 1);
      size_t n = in.below(40);
      seq.insert(at(seq, pos), n, v);
      m.insert(pos, n, v);
      break;
    }
    case 5: {
      // A range from an array of the input's bytes.
      size_t pos = in.below(static_cast<unsigned>(seq.size()) + 1);
      int values[16];
      size_t n = in.below(17);
      for (size_t i = 0; i < n; ++i)
        values[i] = static_cast<int>(in.byte());
      seq.insert(at(seq, pos), values, values + n);
      for (size_t i = 0; i < n; ++i)
        m.insert(pos + i, 1, values[i]);
      break;
    }
    case 6:
      if (!seq.empty()) {
        size_t pos = in.below(static_cast<unsigned>(seq.size()));
        typename Seq::iterator after = seq.erase(at(seq, pos));
        m.erase(pos, 1);
        FUZZ_CHECK(after == at(seq, pos));
      }
      break;
    case 7: {
      size_t first = in.below(static_cast<unsigned>(seq.size()) + 1);
      size_t last = first + in.below(static_cast<unsigned>(seq.size() - first) + 1);
      seq.erase(at(seq, first), at(seq, last));
      m.erase(first, last - first);
      break;
    }
    case 8: {
      size_t n = in.below(80);
      seq.resize(n, v);
      if (n < m.size())
        m.erase(n, m.size() - n);
      else
        m.insert(m.size(), n - m.size(), v);
      break;
    }
    case 9: {
      Seq copy(seq);
      FUZZ_CHECK(same(copy, m) && copy == seq);
      Seq other(in.below(5), v);
      other = seq;
      FUZZ_CHECK(same(other, m));
      other.swap(copy);
      if (in.flag()) {
        seq.assign(in.below(20), v);
        plain_array fresh;
        fresh.insert(0, seq.size(), v);
        m.assign(fresh);
      }
      break;
    }
    default:
      if (in.below(8) == 0) {
        seq.clear();
        m.clear();
      }
      break;
    }
    FUZZ_CHECK(same(seq, m));
  }
}

// The front operations of deque and list, and list's own operations.
template <class Seq> void drive_front(fuzz_input& in) {
  Seq seq;
  plain_array m;
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    int v = static_cast<int>(in.byte());
    switch (in.below(4)) {
    case 0:
      seq.push_front(v);
      m.insert(0, 1, v);
      break;
    case 1:
      if (!seq.empty()) {
        FUZZ_CHECK(seq.front() == m[0]);
        seq.pop_front();
        m.erase(0, 1);
      }
      break;
    case 2:
      seq.push_back(v);
      m.insert(m.size(), 1, v);
      break;
    default:
      if (!seq.empty()) {
        seq.pop_back();
        m.erase(m.size() - 1, 1);
      }
      break;
    }
    FUZZ_CHECK(same(seq, m));
  }
}

void sort_model(plain_array& m) {
  plain_array sorted;
  for (size_t i = 0; i < m.size(); ++i)
    sorted.insert(sorted.upper(m[i]), 1, m[i]);
  m.assign(sorted);
}

void drive_list_operations(fuzz_input& in) {
  std::list<int> list, other;
  plain_array m, om;
  unsigned steps = in.below(48) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    int v = small_value(in);
    switch (in.below(9)) {
    case 0:
      list.push_back(v);
      m.insert(m.size(), 1, v);
      break;
    case 1:
      other.push_back(v);
      om.insert(om.size(), 1, v);
      break;
    case 2: {
      list.remove(v);
      for (size_t i = m.size(); i > 0; --i)
        if (m[i - 1] == v)
          m.erase(i - 1, 1);
      break;
    }
    case 3: {
      list.unique();
      for (size_t i = m.size(); i > 1; --i)
        if (m[i - 1] == m[i - 2])
          m.erase(i - 1, 1);
      break;
    }
    case 4:
      list.sort();
      sort_model(m);
      break;
    case 5:
      list.reverse();
      {
        plain_array reversed;
        for (size_t i = m.size(); i > 0; --i)
          reversed.insert(reversed.size(), 1, m[i - 1]);
        m.assign(reversed);
      }
      break;
    case 6: {
      // Splices the whole other list, or one element of it, at a random place.
      size_t pos = in.below(static_cast<unsigned>(list.size()) + 1);
      if (!other.empty() && in.flag()) {
        size_t from = in.below(static_cast<unsigned>(other.size()));
        list.splice(at(list, pos), other, at(other, from));
        m.insert(pos, 1, om[from]);
        om.erase(from, 1);
      } else {
        list.splice(at(list, pos), other);
        for (size_t i = 0; i < om.size(); ++i)
          m.insert(pos + i, 1, om[i]);
        om.clear();
      }
      break;
    }
    case 7: {
      // Both sorted, then merged: the other list ends empty.
      list.sort();
      other.sort();
      sort_model(m);
      sort_model(om);
      list.merge(other);
      for (size_t i = 0; i < om.size(); ++i)
        m.insert(m.upper(om[i]), 1, om[i]);
      om.clear();
      break;
    }
    default:
      list.swap(other);
      m.swap(om);
      break;
    }
    FUZZ_CHECK(same(list, m));
    FUZZ_CHECK(same(other, om));
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  fuzz_input in(data, size);
  switch (in.below(12)) {
  case 0: drive_set<std::set<int>, true>(in); break;
  case 1: drive_set<std::multiset<int>, false>(in); break;
  case 2: drive_map<std::map<int, int>, true>(in); break;
  case 3: drive_map<std::multimap<int, int>, false>(in); break;
  case 4: drive_map_subscript(in); break;
  case 5: drive_sequence<std::vector<int>, false>(in); break;
  case 6: drive_sequence<std::deque<int>, true>(in); break;
  case 7: drive_sequence<std::list<int>, true>(in); break;
  case 8: drive_front<std::deque<int> >(in); break;
  case 9: drive_front<std::list<int> >(in); break;
  default: drive_list_operations(in); break;
  }
  return 0;
}
