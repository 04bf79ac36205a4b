// Test view of a string's representation: the object is one pointer to {refs, data, length,
// capacity}; the tests read it to check sharing and the buffer size rule.
#ifndef STRING_REP_VIEW_H
#define STRING_REP_VIEW_H

#include <string>

struct string_rep_view {
  unsigned refs;
  char* data;
  unsigned length;
  unsigned capacity;
};

inline const string_rep_view* rep_of(const std::string& s) {
  return *reinterpret_cast<string_rep_view* const*>(&s);
}

const unsigned unshareable_refs = 0xFFFFFFFFu;

#endif
