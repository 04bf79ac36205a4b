// codecvt<char, char, int>: the identity conversion, which never touches buffers or next-pointers.
#include <__lorb/ctype_facets.h>

namespace std {
locale::id codecvt<char, char, int>::id;

codecvt<char, char, int>::~codecvt() {}

codecvt_base::result codecvt<char, char, int>::do_out(state_type&, const intern_type*,
                                                      const intern_type*, const intern_type*&,
                                                      extern_type*, extern_type*,
                                                      extern_type*&) const {
  return noconv;
}

codecvt_base::result codecvt<char, char, int>::do_unshift(state_type&, extern_type*, extern_type*,
                                                          extern_type*&) const {
  return noconv;
}

codecvt_base::result codecvt<char, char, int>::do_in(state_type&, const extern_type*,
                                                     const extern_type*, const extern_type*&,
                                                     intern_type*, intern_type*,
                                                     intern_type*&) const {
  return noconv;
}

bool codecvt<char, char, int>::do_always_noconv() const __LORB_NOEXCEPT { return true; }

int codecvt<char, char, int>::do_length(state_type&, const extern_type* from,
                                        const extern_type* from_end, size_t max) const {
  size_t available = from_end - from;
  return static_cast<int>(available < max ? available : max);
}

int codecvt<char, char, int>::do_max_length() const __LORB_NOEXCEPT { return 1; }
} // namespace std
