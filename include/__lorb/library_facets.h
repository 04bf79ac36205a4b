// Telling the library's own classes from a program's classes derived from them, by g++'s virtual
// table pointer, so that fast paths take over only where the library's own behaviour is known.
#ifndef __LORB_LIBRARY_FACETS_H
#define __LORB_LIBRARY_FACETS_H

#include <__lorb/ctype_facets.h>
#include <__lorb/filebuf.h>
#include <__lorb/punct_facets.h>
#include <__lorb/stringbuf.h>

// g++'s virtual tables of the two classes; an object's first word points two words in.
extern "C" void* _ZTVSt13basic_filebufIcSt11char_traitsIcEE[];
extern "C" void* _ZTVSt7codecvtIcciE[];
extern "C" void* _ZTVSt15basic_stringbufIcSt11char_traitsIcESaIcEE[];
extern "C" void* _ZTVSt8numpunctIcE[];

namespace __vel {

inline bool has_virtual_table(const void* object, void** table) {
  return *static_cast<void* const*>(object) == static_cast<void*>(table + 2);
}

// The library's codecvt<char, char, int> itself, which never converts.
inline bool is_library_codecvt(const std::codecvt<char, char, int>& convert) {
  return has_virtual_table(&convert, _ZTVSt7codecvtIcciE);
}

// A basic_filebuf<char> itself, whose put area is always empty.
inline bool is_library_filebuf(const std::basic_streambuf<char>* buffer) {
  return has_virtual_table(buffer, _ZTVSt13basic_filebufIcSt11char_traitsIcEE);
}

// The library's numpunct<char> itself (not a by-name one, not a program's), whose virtual
// functions return its fields.
inline bool is_library_numpunct(const std::numpunct<char>& punct) {
  return has_virtual_table(&punct, _ZTVSt8numpunctIcE);
}

// A basic_stringbuf<char> itself, whose bulk writes are its own __append.
inline bool is_library_stringbuf(const std::basic_streambuf<char>* buffer) {
  return has_virtual_table(buffer, _ZTVSt15basic_stringbufIcSt11char_traitsIcESaIcEE);
}

} // namespace __vel

#endif
