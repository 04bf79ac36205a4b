// Where Lorb++'s strstreams deliberately differ: with app, writing starts after the text in the
// caller's array and stops at the end of the n characters given; GNU lets the put area run n
// characters past the text, beyond the array the program named.
#include <cstdio>
#include <cstring>

#include "strstream_support.h"

int main() {
  {
    // The program's array is larger than the 10 characters it gives, so GNU's writes stay in it.
    char array[16] = "abc";
    memset(array + 4, '.', 12);
    std::ostrstream out(array, 10, std::ios::out | std::ios::app);
    out.write("0123456789", 10);
    printf("ostrstream: pcount %d", out.pcount());
    print_failed(out);
    printf(" \"");
    print_escaped(array, sizeof array);
    printf("\"\n");
    out.clear();
    out.seekp(0, std::ios::end);
    printf("  end of the put area %ld\n", static_cast<long>(out.tellp()));
  }
  {
    char array[16] = "12 ";
    memset(array + 4, '.', 12);
    std::strstream both(array, 8, std::ios::in | std::ios::out | std::ios::app);
    both.write("3456789", 7);
    printf("strstream: pcount %d", both.pcount());
    print_failed(both);
    both.clear();
    long a = 0, b = 0;
    both >> a >> b;
    printf(" read %ld %ld \"", a, b);
    print_escaped(array, sizeof array);
    printf("\"\n");
  }
  {
    // Inside the array both agree.
    char array[12] = "ab";
    std::ostrstream out(array, 12, std::ios::out | std::ios::app);
    out << "cdef" << std::ends;
    printf("inside: %s pcount %d", array, out.pcount());
    print_failed(out);
    printf("\n");
  }
  return 0;
}
