// Reading a text through both instances of num_get: the char* one, owned by the test, and the
// stream's own over its string buffer. What each did comes back as a reading.
#ifndef FACETS_NUM_GET_READING_H
#define FACETS_NUM_GET_READING_H

#include <locale>
#include <sstream>
#include <stdio.h>
#include <string.h>
#include <string>

namespace {

typedef std::istreambuf_iterator<char> buffer_iterator;
typedef std::num_get<char, buffer_iterator> buffer_num_get;
typedef std::num_get<char, char*> array_num_get;
typedef std::ios_base::iostate iostate;

const iostate good = std::ios_base::goodbit;
const iostate eof = std::ios_base::eofbit;
const iostate fail = std::ios_base::failbit;
const iostate fail_eof = std::ios_base::failbit | std::ios_base::eofbit;

// The char* instance, owned here (refs 1).
struct array_reader : array_num_get {
  array_reader() : array_num_get(1) {}
  ~array_reader() {}
};

// What one get did: the value left in v, the bits set and the characters taken.
template <class T> struct reading {
  T value;
  iostate err;
  size_t taken;
  bool end_agrees; // the returned iterator is at end exactly when nothing is left
};

// A byte the scanners never take follows the text in the array, so that a scan past the end
// would show.
template <class T> reading<T> read_array(const std::string& text, std::ios_base& str, T before) {
  char* first = new char[text.size() + 1];
  memcpy(first, text.data(), text.size());
  first[text.size()] = '\x7f';
  array_reader facet;
  reading<T> r = {before, good, 0, true};
  char* stop = facet.get(first, first + text.size(), str, r.err, r.value);
  r.taken = static_cast<size_t>(stop - first);
  delete[] first;
  return r;
}

// What is left in the buffer afterwards tells how much was taken.
template <class T> reading<T> read_buffer(std::istringstream& s, size_t length, T before) {
  const buffer_num_get& facet = std::use_facet<buffer_num_get>(s.getloc());
  reading<T> r = {before, good, 0, true};
  buffer_iterator stop =
      facet.get(buffer_iterator(s.rdbuf()), buffer_iterator(), s, r.err, r.value);
  r.end_agrees = (stop == buffer_iterator()) == (s.rdbuf()->sgetc() == EOF);
  size_t left = 0;
  while (s.rdbuf()->sbumpc() != EOF)
    ++left;
  r.taken = length - left;
  return r;
}

} // namespace

#endif
