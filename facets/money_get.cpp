// std::money_get: the library's two instances, their ids, and the pieces that do not depend on
// the iterator (the choice of moneypunct, the grouping check of the value).
#include <__lorb/money_facets.h>

namespace __vel {

const moneypunct_char& money_punct(const std::locale& loc, bool intl) {
  if (intl)
    return std::use_facet<std::moneypunct<char, true> >(loc);
  return std::use_facet<std::moneypunct<char, false> >(loc);
}

// The groups are walked from the last with the numbers' grouping walk, given the sizes this
// reader uses: the walk moves on only to a size above 0 and stays on the last one, so the sizes
// end before the first that is not; and a size of 127 ends the check, so only the separators to
// its right are handed over. Kept: sizes are read through their low four bits, as by the walk.
bool money_groups_fit(int digits, int separators, const int* positions,
                      const std::string& grouping) {
  std::string sizes(1, grouping[0]);
  for (std::string::size_type i = 1;
       i < grouping.size() && static_cast<signed char>(grouping[i]) > 0; ++i)
    sizes += grouping[i];
  int checked = separators;
  for (std::string::size_type k = 0; k < sizes.size(); ++k)
    if (static_cast<unsigned char>(sizes[k]) == 127) {
      if (static_cast<int>(k) < checked)
        checked = static_cast<int>(k);
      break;
    }
  return group_positions_fit(digits, checked, positions + (separators - checked), sizes, false);
}

} // namespace __vel

namespace std {

template <> __LORB_EXPORT locale::id money_get<char, istreambuf_iterator<char> >::id = locale::id();
template <> __LORB_EXPORT locale::id money_get<char, char*>::id = locale::id();

template class money_get<char, istreambuf_iterator<char> >;
template class money_get<char, char*>;

} // namespace std
