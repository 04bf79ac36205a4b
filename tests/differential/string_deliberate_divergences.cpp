// Where Lorb++'s string deliberately differs: an empty pattern is never found, inserting nothing
// checks no position, and a constructor given an excessive length reports out_of_range (seen
// from a child process, whose end the parent prints).
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

static long shown(std::string::size_type position) {
  return position == std::string::npos ? -1L : static_cast<long>(position);
}

int main() {
  std::string text("some text");
  printf("find empty: %ld %ld %ld\n", shown(text.find("")), shown(text.find("", 4)),
         shown(text.find(std::string())));
  printf("rfind empty: %ld %ld\n", shown(text.rfind("")), shown(text.rfind("", 3)));
  printf("empty in empty: %ld %ld\n", shown(std::string().find("")),
         shown(std::string().rfind("")));
  text.insert(100, "", 0);
  printf("insert of nothing at 100: [%s]\n", text.c_str());
  fflush(stdout);
  pid_t child = fork();
  if (child == 0) {
    std::string too_long("abc", std::string::npos);
    printf("not reached: %u\n", static_cast<unsigned>(too_long.size()));
    exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  printf("constructor with length npos: %s\n",
         WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT ? "aborted" : "did not abort");
  return 0;
}
