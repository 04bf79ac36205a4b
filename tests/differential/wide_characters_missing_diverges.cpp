// What Lorb++ deliberately leaves out: only char strings and streams exist. The wchar_t forms
// (std::wstring, std::wostream, ...) are declared templates without a definition here, so each
// probe below finds an incomplete type, where GNU has every one of them.
#include <fstream>
#include <sstream>
#include <stdio.h>
#include <string>

// complete<T>::value is 1 when sizeof(T) can be taken, 0 when T is incomplete.
template <class T> struct complete {
  template <class U> static char probe(char (*)[sizeof(U)]);
  template <class U> static long probe(...);
  enum { value = sizeof(probe<T>(0)) == 1 };
};

int main() {
  printf("char: string %d ostream %d istream %d stringbuf %d filebuf %d\n",
         complete<std::basic_string<char> >::value, complete<std::basic_ostream<char> >::value,
         complete<std::basic_istream<char> >::value, complete<std::basic_stringbuf<char> >::value,
         complete<std::basic_filebuf<char> >::value);
  printf("wchar_t: string %d ostream %d istream %d stringbuf %d filebuf %d\n",
         complete<std::basic_string<wchar_t> >::value,
         complete<std::basic_ostream<wchar_t> >::value,
         complete<std::basic_istream<wchar_t> >::value,
         complete<std::basic_stringbuf<wchar_t> >::value,
         complete<std::basic_filebuf<wchar_t> >::value);
  return 0;
}
