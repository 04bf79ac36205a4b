// Calls the project's C part from C++ and prints through the library's streams.
#include <iostream>

extern "C" void shout(const char* word, char* out);

int main() {
  char loud[16];
  shout("quiet", loud);
  std::cout << loud << ' ' << sizeof(void*) << std::endl;
  return 0;
}
