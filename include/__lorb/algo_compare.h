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

} // namespace __vel

#endif
