// Where Lorb++'s string streams deliberately differ: a string stream that holds no text has no
// position yet (tellp and tellg answer -1, and seeking to 0 fails), and putting back a byte of
// 128..255 over a different character stores it but reports it sign-extended, so
// putback('\xff') sets badbit. GNU answers 0 and accepts the character.
#include <sstream>
#include <stdio.h>

static void print_state(const std::ios& s) {
  printf("[%c%c%c]", s.eof() ? 'e' : '-', s.fail() ? 'f' : '-', s.bad() ? 'b' : '-');
}

int main() {
  std::ostringstream out;
  printf("new ostringstream: tellp %ld", static_cast<long>(out.tellp()));
  out.seekp(0);
  print_state(out);
  out.clear();
  out << "abc";
  printf(", after writing: tellp %ld\n", static_cast<long>(out.tellp()));

  std::istringstream in;
  printf("empty istringstream: tellg %ld", static_cast<long>(in.tellg()));
  in.seekg(0);
  print_state(in);
  printf("\n");

  const char high[] = {'\x80', '\xe9', '\xff'};
  for (int i = 0; i < 3; ++i) {
    std::stringstream both;
    both << "xyz";
    both.get();
    both.putback(high[i]);
    printf("putback 0x%02x over 'x':", static_cast<unsigned char>(high[i]));
    print_state(both);
    both.clear();
    printf(" then reads 0x%02x, text now %02x%s\n", static_cast<unsigned char>(both.get()),
           static_cast<unsigned char>(both.str()[0]), both.str().c_str() + 1);
  }
  std::stringstream same;
  same << "xyz";
  same.get();
  same.putback('x');
  printf("putback of the character read:");
  print_state(same);
  printf("\n");
  return 0;
}
