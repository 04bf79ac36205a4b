// Where Lorb++'s strstreambuf deliberately differs: a seek of the get area stays inside what has
// been read into it, and a seek of the put area inside what has been written; GNU lets both run
// to the end of the array it allocated. So a strstream written and not yet read refuses seekg.
#include <cstdio>

#include "strstream_support.h"

int main() {
  {
    std::strstream both;
    both << "hello world";
    both.seekg(6);
    printf("seekg(6) before reading");
    print_stream_state(both);
    both.clear();
    char word[16] = "";
    both >> word;
    printf(" then reads %s", word);
    both.seekg(6);
    both >> word;
    printf(", seekg(6) now reads %s", word);
    print_stream_state(both);
    both.clear();
    both.seekg(0, std::ios::end);
    printf(" end of the get area %ld\n", static_cast<long>(both.tellg()));
    delete[] both.str();
  }
  {
    std::ostrstream out;
    out.write("abcdef", 6);
    out.seekp(0, std::ios::end);
    printf("ostrstream: end of the put area %ld", static_cast<long>(out.tellp()));
    out.seekp(10);
    print_failed(out);
    out.clear();
    printf(" pcount %d\n", out.pcount());
    delete[] out.str();
  }
  return 0;
}
