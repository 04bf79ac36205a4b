// Where Lorb++'s strstreambuf deliberately differs: when a dynamic array grows, the read position
// is carried to the new array by its distance from the end of the get area, not from its start,
// so a strstream read part way and then written past its array reads on from the wrong place
// (GNU reads on where it was).
#include <cstdio>

#include "strstream_support.h"

static void read_rest(std::iostream& both) {
  for (int c = both.get(); c != EOF; c = both.get())
    putchar(c);
  print_stream_state(both);
  both.clear();
  printf("\n");
}

int main() {
  {
    std::strstream both;
    both << "abcdefghijklmnop";
    char first[4] = "";
    both.read(first, 3);
    printf("read %.3s, then written past the array; reads on: ", first);
    both << "XYZ";
    read_rest(both);
    delete[] both.str();
  }
  {
    // Without a growth in between both read on where they were.
    std::strstream both;
    both << "abcdefgh";
    char first[4] = "";
    both.read(first, 3);
    printf("read %.3s, then written inside the array; reads on: ", first);
    both << "XYZ";
    read_rest(both);
    delete[] both.str();
  }
  return 0;
}
