// std::basic_ios<char>: the defaults every stream starts from, imbue, destruction.
#include <__lorb/basic_ios.h>

namespace std {

void basic_ios<char>::init(basic_streambuf<char>* sb) {
  __buffer = sb;
  __tie = 0;
  __state = sb ? goodbit : badbit;
  __exceptions = goodbit;
  __flags = skipws | dec;
  __width = 0;
  __precision = 6;
  __fill = use_facet<ctype<char> >(__locale).widen(' ');
  __locale = locale();
}

// Kept in this order: the callbacks see the new locale before the buffer is told.
locale basic_ios<char>::imbue(const locale& loc) {
  locale previous(__locale);
  __locale = loc;
  __call_callbacks(imbue_event);
  if (__buffer)
    __buffer->pubimbue(loc);
  return previous;
}

// Neither flushes nor touches the buffer.
basic_ios<char>::~basic_ios() {}

} // namespace std
