// The grouping check of the parsers: do the thousands separators met split the digits as the
// locale's grouping says?
#include <__lorb/num_get.h>

namespace __vel {

// Walks the separators from the last to the first; k, the index of the group size, stops at
// the last size, which repeats. at() reports a walk past the end of the sizes.
bool group_positions_fit(int digits, int separators, const int* positions,
                         const std::string& grouping, bool limit_free_leftmost) {
  std::string::size_type k = 0;
  int remaining = digits;
  for (int i = separators - 1; i >= 0; --i) {
    unsigned char size = static_cast<unsigned char>(grouping.at(k));
    if (size == 127)
      return false;
    remaining -= size & 15;
    if (positions[i] != remaining)
      return false;
    if (k + 1 < grouping.size())
      ++k;
  }
  unsigned char leftmost = static_cast<unsigned char>(grouping.at(k));
  // Kept: the floating-point scanner reads the 127 that ends grouping as a limit of 15 digits.
  if (leftmost == 127 && !limit_free_leftmost)
    return true;
  return remaining <= (leftmost & 15);
}

} // namespace __vel

namespace std {

bool __trelk_check_grouping(int digits, int separators, const int* positions,
                            const string& grouping) {
  if (separators == 0)
    return true;
  if (grouping.empty())
    return false;
  return __vel::group_positions_fit(digits, separators, positions, grouping, false);
}

} // namespace std
