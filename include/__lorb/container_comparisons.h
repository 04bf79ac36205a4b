// The six comparisons and swap of one container template, written once for all of them: a header
// that defines __LORB_CONTAINER_HEAD (its template head) and __LORB_CONTAINER (its type) includes
// this file inside namespace std. Equality is equal sizes and equal elements; order is the
// lexicographical order of the elements.
// No include guard: each container includes it once for itself.

__LORB_CONTAINER_HEAD
inline bool operator==(const __LORB_CONTAINER& x, const __LORB_CONTAINER& y) {
  return x.size() == y.size() && std::equal(x.begin(), x.end(), y.begin());
}
__LORB_CONTAINER_HEAD
inline bool operator<(const __LORB_CONTAINER& x, const __LORB_CONTAINER& y) {
  return std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end());
}
__LORB_CONTAINER_HEAD
inline bool operator!=(const __LORB_CONTAINER& x, const __LORB_CONTAINER& y) { return !(x == y); }
__LORB_CONTAINER_HEAD
inline bool operator>(const __LORB_CONTAINER& x, const __LORB_CONTAINER& y) { return y < x; }
__LORB_CONTAINER_HEAD
inline bool operator<=(const __LORB_CONTAINER& x, const __LORB_CONTAINER& y) { return !(y < x); }
__LORB_CONTAINER_HEAD
inline bool operator>=(const __LORB_CONTAINER& x, const __LORB_CONTAINER& y) { return !(x < y); }
__LORB_CONTAINER_HEAD inline void swap(__LORB_CONTAINER& x, __LORB_CONTAINER& y) { x.swap(y); }

#undef __LORB_CONTAINER_HEAD
#undef __LORB_CONTAINER
