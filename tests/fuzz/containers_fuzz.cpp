// The tree containers and the sequences under random operation sequences, compared after each
// step with a model: a plain array of ints kept by hand, sorted for the trees. The first byte
// picks the container; values are small, so that keys repeat. Values put into a sequence are
// sometimes references to its own elements, which an insert or a remove must read before it
// moves or frees them.
#include "fuzz_input.h"
#include <algorithm>
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

// What a plain insert answers: a set's says whether the key went in, a multiset's always does.
template <class It> bool inserted(const std::pair<It, bool>& r, int v, bool expected) {
  return *r.first == v && r.second == expected;
}
template <class It> bool inserted(const It& r, int v, bool) { return *r == v; }
template <class It> bool inserted_key(const std::pair<It, bool>& r, int v, bool expected) {
  return r.first->first == v && r.second == expected;
}
template <class It> bool inserted_key(const It& r, int v, bool) { return r->first == v; }

// The model's part of a range insert: each value in turn, as the tree takes it.
void model_insert_all(plain_array& m, const int* values, size_t n, bool unique) {
  for (size_t i = 0; i < n; ++i)
    if (!unique || m.lower(values[i]) == m.upper(values[i]))
      m.insert(m.upper(values[i]), 1, values[i]);
}

size_t read_values(fuzz_input& in, int* values, size_t most, unsigned below) {
  size_t n = in.below(static_cast<unsigned>(most) + 1);
  for (size_t i = 0; i < n; ++i)
    values[i] = static_cast<int>(in.below(below));
  return n;
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
      FUZZ_CHECK(inserted(tree.insert(v), v, !present));
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
    case 8: {
      // A range: inserted, or made into a tree that replaces this one.
      int values[24];
      size_t n = read_values(in, values, 24, 32);
      unsigned how = in.below(8);
      if (how == 0) {
        tree.clear();
        m.clear();
      } else if (how < 5) {
        tree.insert(values, values + n);
        model_insert_all(m, values, n, unique);
      } else {
        Tree made(values, values + n);
        tree = made;
        m.clear();
        model_insert_all(m, values, n, unique);
        FUZZ_CHECK(same(made, m));
      }
      break;
    }
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
    switch (in.below(10)) {
    case 0:
    case 1: {
      bool present = m.lower(v) != m.upper(v);
      FUZZ_CHECK(inserted_key(map.insert(typename Map::value_type(v, v * 3)), v, !present));
      if (!unique || !present)
        m.insert(m.upper(v), 1, v);
      break;
    }
    case 2: {
      typename Map::iterator hint = at(map, in.below(static_cast<unsigned>(map.size()) + 1));
      typename Map::iterator put = map.insert(hint, typename Map::value_type(v, v * 3));
      FUZZ_CHECK(put->first == v);
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
    case 5: {
      size_t first = in.below(static_cast<unsigned>(map.size()) + 1);
      size_t last = first + in.below(static_cast<unsigned>(map.size() - first) + 1);
      map.erase(at(map, first), at(map, last));
      m.erase(first, last - first);
      break;
    }
    case 6: {
      // A range of pairs: inserted, or made into a map that replaces this one.
      int keys[24];
      size_t n = read_values(in, keys, 24, 32);
      std::pair<int, int> pairs[24];
      for (size_t i = 0; i < n; ++i)
        pairs[i] = std::make_pair(keys[i], keys[i] * 3);
      if (in.flag()) {
        map.insert(pairs, pairs + n);
      } else {
        Map made(pairs, pairs + n);
        map.swap(made);
        m.clear();
      }
      model_insert_all(m, keys, n, unique);
      break;
    }
    case 7: {
      // Copies and assignment: the copy is changed, this map must not see it.
      Map copy(map);
      FUZZ_CHECK(same_map(copy, m) && copy == map && !(copy < map));
      copy.insert(typename Map::value_type(v, v * 3));
      copy.erase(copy.begin());
      FUZZ_CHECK(same_map(map, m));
      Map other;
      other.insert(typename Map::value_type(v, v * 3));
      other = map;
      FUZZ_CHECK(same_map(other, m));
      if (in.flag()) {
        map.swap(copy);
        m.clear();
        for (typename Map::const_iterator it = map.begin(); it != map.end(); ++it)
          m.insert(m.size(), 1, it->first);
      }
      if (in.below(8) == 0) {
        map.clear();
        m.clear();
      }
      break;
    }
    default: {
      FUZZ_CHECK(map.count(v) == m.upper(v) - m.lower(v));
      typename Map::iterator found = map.find(v);
      FUZZ_CHECK(found == map.end() ? m.lower(v) == m.upper(v) : found->first == v);
      FUZZ_CHECK(static_cast<size_t>(std::distance(map.begin(), map.lower_bound(v))) == m.lower(v));
      FUZZ_CHECK(static_cast<size_t>(std::distance(map.begin(), map.upper_bound(v))) == m.upper(v));
      std::pair<typename Map::iterator, typename Map::iterator> range = map.equal_range(v);
      FUZZ_CHECK(range.first == map.lower_bound(v) && range.second == map.upper_bound(v));
      const Map& view = map;
      FUZZ_CHECK(view.find(v) == found && view.lower_bound(v) == range.first);
      size_t i = m.size();
      for (typename Map::const_reverse_iterator it = view.rbegin(); it != view.rend(); ++it)
        FUZZ_CHECK(i > 0 && it->first == m[--i]);
      FUZZ_CHECK(i == 0);
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

// push_front and pop_front where the sequence has them; a vector does the same at its begin().
template <bool front_ops> struct front;
template <> struct front<true> {
  template <class Seq> static void push(Seq& seq, const int& v) { seq.push_front(v); }
  template <class Seq> static void pop(Seq& seq) { seq.pop_front(); }
};
template <> struct front<false> {
  template <class Seq> static void push(Seq& seq, const int& v) { seq.insert(seq.begin(), v); }
  template <class Seq> static void pop(Seq& seq) { seq.erase(seq.begin()); }
};

// A value to put in: from the input, or an element of the sequence itself, passed by reference
// into the container that is about to move it.
template <class Seq> const int& some_value(Seq& seq, const int& v, fuzz_input& in) {
  if (seq.empty() || in.below(4) != 0)
    return v;
  return *at(seq, in.below(static_cast<unsigned>(seq.size())));
}

// vector, deque and list: front_ops is whether push_front and pop_front exist.
template <class Seq, bool front_ops> void drive_sequence(fuzz_input& in) {
  Seq seq;
  plain_array m;
  unsigned steps = in.below(64) + 1;
  for (unsigned step = 0; step < steps && !in.empty(); ++step) {
    int v = static_cast<int>(in.byte());
    switch (in.below(14)) {
    case 0: {
      const int& x = some_value(seq, v, in);
      int expect = x;
      seq.push_back(x);
      m.insert(m.size(), 1, expect);
      break;
    }
    case 1:
      if (!seq.empty()) {
        FUZZ_CHECK(seq.back() == m[m.size() - 1]);
        seq.pop_back();
        m.erase(m.size() - 1, 1);
      }
      break;
    case 2: {
      const int& x = some_value(seq, v, in);
      int expect = x;
      front<front_ops>::push(seq, x);
      m.insert(0, 1, expect);
      break;
    }
    case 3: {
      size_t pos = in.below(static_cast<unsigned>(seq.size()) + 1);
      const int& x = some_value(seq, v, in);
      int expect = x;
      typename Seq::iterator put = seq.insert(at(seq, pos), x);
      FUZZ_CHECK(*put == expect && put == at(seq, pos));
      m.insert(pos, 1, expect);
      break;
    }
    case 4: {
      size_t pos = in.below(static_cast<unsigned>(seq.size()) + 1);
      size_t n = in.below(40);
      const int& x = some_value(seq, v, in);
      int expect = x;
      seq.insert(at(seq, pos), n, x);
      m.insert(pos, n, expect);
      break;
    }
    case 11:
      if (!seq.empty()) {
        FUZZ_CHECK(seq.front() == m[0]);
        front<front_ops>::pop(seq);
        m.erase(0, 1);
      }
      break;
    case 12: {
      // A range read through a list's iterators, which are not random access: inserted or
      // assigned.
      int values[16];
      size_t n = read_values(in, values, 16, 256);
      std::list<int> from(values, values + n);
      if (in.flag()) {
        size_t pos = in.below(static_cast<unsigned>(seq.size()) + 1);
        seq.insert(at(seq, pos), from.begin(), from.end());
        for (size_t i = 0; i < n; ++i)
          m.insert(pos + i, 1, values[i]);
      } else {
        if (in.flag())
          seq.assign(from.begin(), from.end());
        else
          seq.assign(values, values + n);
        m.clear();
        for (size_t i = 0; i < n; ++i)
          m.insert(i, 1, values[i]);
      }
      break;
    }
    case 13: {
      // A copy changed at a random place: this sequence must not see it.
      Seq copy(seq);
      if (!copy.empty()) {
        *at(copy, in.below(static_cast<unsigned>(copy.size()))) = v + 1000;
        copy.push_back(v);
      }
      FUZZ_CHECK(same(seq, m));
      Seq made(seq.begin(), seq.end());
      FUZZ_CHECK(made == seq);
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
      const int& x = some_value(seq, v, in);
      int expect = x;
      if (in.below(4) == 0) {
        seq.resize(n);
        expect = 0;
      } else {
        seq.resize(n, x);
      }
      if (n < m.size())
        m.erase(n, m.size() - n);
      else
        m.insert(m.size(), n - m.size(), expect);
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
      // The value may be one of the list's own elements, which remove unlinks on the way.
      const int& x = some_value(list, v, in);
      int expect = x;
      list.remove(x);
      for (size_t i = m.size(); i > 0; --i)
        if (m[i - 1] == expect)
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
      unsigned how = in.below(3);
      if (!other.empty() && how == 0) {
        size_t from = in.below(static_cast<unsigned>(other.size()));
        list.splice(at(list, pos), other, at(other, from));
        m.insert(pos, 1, om[from]);
        om.erase(from, 1);
      } else if (how == 1) {
        size_t first = in.below(static_cast<unsigned>(other.size()) + 1);
        size_t last = first + in.below(static_cast<unsigned>(other.size() - first) + 1);
        list.splice(at(list, pos), other, at(other, first), at(other, last));
        for (size_t i = first; i < last; ++i)
          m.insert(pos + i - first, 1, om[i]);
        om.erase(first, last - first);
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
