// Where Lorb++'s strstreams deliberately differ: freeze's flag is inverted. freeze(false) freezes
// a dynamic array, so that it can no longer grow, and freeze(true) or freeze() thaws it; GNU does
// the opposite. str() freezes in both.
#include <cstdio>

#include "strstream_support.h"

static const char longer[] = "a text longer than any first array";

static void write_and_show(std::ostrstream& out, const char* after) {
  out.write(longer, sizeof longer - 1);
  printf("%s: pcount %d", after, out.pcount());
  print_failed(out);
  printf("\n");
  delete[] out.str();
}

int main() {
  {
    std::ostrstream out;
    out.write("abc", 3);
    out.freeze(false);
    write_and_show(out, "after freeze(false)");
  }
  {
    std::ostrstream out;
    out.write("abc", 3);
    out.freeze(true);
    write_and_show(out, "after freeze(true)");
  }
  {
    std::ostrstream out;
    out.write("abc", 3);
    out.freeze();
    write_and_show(out, "after freeze()");
  }
  {
    // str() froze the array; freeze(false) is what thaws it in GNU, and keeps it frozen here.
    std::ostrstream out;
    out.write("abc", 3);
    out.str();
    out.freeze(false);
    write_and_show(out, "after str() and freeze(false)");
  }
  {
    std::strstream both;
    both.write("abc", 3);
    both.freeze(false);
    both.write(longer, sizeof longer - 1);
    printf("strstream after freeze(false): pcount %d", both.pcount());
    print_failed(both);
    printf("\n");
    delete[] both.str();
  }
  return 0;
}
