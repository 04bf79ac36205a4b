// Where Lorb++'s strstreambuf deliberately differs: underflow returns its character sign-extended,
// so a byte 0xFF that a read meets through underflow reads as end of file (GNU reads 255). Inside
// the get area, where no underflow is asked, the byte reads as 255 in both.
#include <cstdio>

#include "strstream_support.h"

// Reads until end of file, printing each value and the state at the end; clears the state.
static void read_all(std::iostream& both) {
  for (int c = both.get(); c != EOF; c = both.get())
    printf(" %d", c);
  printf(" end");
  print_stream_state(both);
  both.clear();
  printf("\n");
}

int main() {
  {
    std::strstream both;
    both << "\377after";
    printf("first read meets 0xff through underflow:");
    read_all(both);
    printf("read again, now inside the get area:");
    read_all(both);
    delete[] both.str();
  }
  {
    // Each read after a write extends the get area at the first byte of the new text.
    std::strstream both;
    const char* const chunks[] = {"ab", "\377c", "d\xff", "\xff\xff"};
    for (int i = 0; i < 4; ++i) {
      both << chunks[i];
      printf("after chunk %d:", i);
      read_all(both);
    }
    delete[] both.str();
  }
  {
    // 0xFE comes back from underflow as -2, which is not end of file: the read goes on.
    char array[8] = "";
    std::strstream over(array, 8);
    over << "\xfe\xff";
    printf("over an array:");
    read_all(over);
  }
  {
    std::istrstream in("a\377b");
    printf("istrstream:");
    for (int c = in.get(); c != EOF; c = in.get())
      printf(" %d", c);
    print_stream_state(in);
    printf("\n");
  }
  return 0;
}
