// An output iterator that appends each character to a string: time_put's writes, gathered.
#ifndef FACETS_STRING_SINK_ITERATOR_H
#define FACETS_STRING_SINK_ITERATOR_H

#include <string>

struct string_sink_iterator {
  std::string* to;
  string_sink_iterator& operator*() { return *this; }
  string_sink_iterator& operator=(char c) {
    *to += c;
    return *this;
  }
  string_sink_iterator& operator++() { return *this; }
  string_sink_iterator operator++(int) { return *this; }
};

#endif
