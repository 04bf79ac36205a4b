// The function objects that stand in for < and == in the algorithms called without a comparator,
// so each algorithm is written once, over a comparator.
#ifndef __LORB_ALGO_COMPARE_H
#define __LORB_ALGO_COMPARE_H

namespace __vel {

struct less_than {
  template <class _A, class _B> bool operator()(const _A& a, const _B& b) const { return a < b; }
};

struct equal_values {
  template <class _A, class _B> bool operator()(const _A& a, const _B& b) const { return a == b; }
};

// Tests each element against one fixed value with ==, for the _if algorithms' plain forms.
template <class _T> struct equals_value {
  const _T& value;
  explicit equals_value(const _T& v) : value(v) {}
  template <class _A> bool operator()(const _A& a) const { return a == value; }
};

// A comparator with its arguments swapped: the order turned round, so that an algorithm and its
// mirror image (max_element of min_element, prev_permutation of next_permutation) are one body.
template <class _Compare> struct swapped_arguments {
  _Compare& comp;
  explicit swapped_arguments(_Compare& c) : comp(c) {}
  template <class _A, class _B> bool operator()(const _A& a, const _B& b) { return comp(b, a); }
};

} // namespace __vel

#endif
