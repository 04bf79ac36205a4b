// How Lorb++ reports errors that the 1998 library throws: it prints "class: message" on standard
// error and aborts (a container message carries its own newline, so an empty line follows), and a
// stream whose exception mask catches a state bit prints "Failure in I/O" and exits with 1.
// Each error runs in a child process whose end the parent prints; GNU throws instead, and an
// exception nobody catches ends in its terminate handler.
#include <bitset>
#include <locale>
#include <signal.h>
#include <sstream>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// What a dying child builds is static, so that it stays reachable rather than leaked.
static void vector_at() {
  static std::vector<int> v(3);
  printf("not reached: %d\n", v.at(3));
}

static void string_at() {
  static std::string s("abc");
  printf("not reached: %c\n", s.at(3));
}

static void string_substr() {
  static std::string s("abc");
  printf("not reached: %s\n", s.substr(4).c_str());
}

static void bitset_set() {
  std::bitset<8> b;
  b.set(8);
}

static void bitset_text() {
  static std::string text("10x1");
  std::bitset<8> b(text);
  printf("not reached: %lu\n", b.to_ulong());
}

static void vector_reserve() {
  static std::vector<int> v;
  v.reserve(v.max_size() + 1);
}

static void locale_name() {
  std::locale bad("no_such_locale_anywhere");
  printf("not reached: %s\n", bad.name().c_str());
}

static void stream_mask() {
  static std::istringstream in("words");
  in.exceptions(std::ios_base::failbit);
  int n = 0;
  in >> n;
  printf("not reached: %d\n", n);
}

static void run(const char* label, void (*error)()) {
  fflush(stdout);
  fflush(stderr);
  pid_t child = fork();
  if (child == 0) {
    error();
    exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  if (WIFSIGNALED(status))
    printf("%s: %s\n", label, WTERMSIG(status) == SIGABRT ? "aborted" : "killed");
  else
    printf("%s: exit %d\n", label, WEXITSTATUS(status));
  fflush(stdout);
}

int main() {
  run("vector at", vector_at);
  run("string at", string_at);
  run("string substr", string_substr);
  run("bitset set", bitset_set);
  run("bitset text", bitset_text);
  run("vector reserve", vector_reserve);
  run("locale name", locale_name);
  run("stream mask", stream_mask);
  return 0;
}
