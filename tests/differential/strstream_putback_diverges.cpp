// Where Lorb++'s strstreambuf deliberately differs: putting back a character other than the one
// just read fails even when the buffer is writable (GNU overwrites it there). Putting back the
// same character, and ungetting, work in both.
#include <cstdio>
#include <cstring>

#include "strstream_support.h"

static void put_back(std::iostream& both, const char* what) {
  int first = both.get();
  both.putback('z');
  printf("%s: read %c, putback 'z'", what, first);
  print_stream_state(both);
  both.clear();
  printf(" then reads %c", both.get());
  both.putback('q');
  both.clear();
  both.unget();
  printf(", unget then reads %c", both.get());
  print_stream_state(both);
  printf("\n");
}

int main() {
  {
    std::strstream both;
    both << "abc";
    put_back(both, "dynamic");
    char* text = both.str();
    printf("  text now %.3s\n", text);
    delete[] text;
  }
  {
    char array[8] = "";
    std::strstream over(array, 8);
    over << "abc";
    put_back(over, "over an array");
    printf("  array now %s\n", array);
  }
  {
    // A constant array refuses in both.
    std::istrstream in("abc");
    in.get();
    in.putback('z');
    print_stream_state(in);
    in.clear();
    in.putback('a');
    printf(" istrstream: putback of 'a'");
    print_stream_state(in);
    printf(" reads %c\n", in.get());
  }
  return 0;
}
