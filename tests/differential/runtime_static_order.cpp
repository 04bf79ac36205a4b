// Static objects, local statics and atexit functions are destroyed in reverse order of
// completed construction, after main returns.
#include <cstdio>
#include <cstdlib>

struct tracer {
  const char* name;
  explicit tracer(const char* n) : name(n) { std::printf("construct %s\n", name); }
  ~tracer() { std::printf("destroy %s\n", name); }
};

static tracer first("global first");
static tracer second("global second");

static tracer& local_static() {
  static tracer local("local static");
  return local;
}

static void at_exit_one() { std::printf("atexit one\n"); }
static void at_exit_two() { std::printf("atexit two\n"); }

int main() {
  std::printf("main starts\n");
  std::atexit(at_exit_one);
  local_static();
  local_static();
  std::atexit(at_exit_two);
  { tracer automatic("automatic"); }
  std::printf("main returns\n");
  return 0;
}
