// The harness's runner: runs every registered test in order and prints the closing count.
#include "lorb_test.h"

#include <signal.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>

namespace lt {
namespace {

struct entry {
  const char* name;
  test_fn fn;
};

entry tests[1024];
int test_count = 0;
bool current_failed = false;
bool in_child = false;
int checks_run = 0;

void append_escaped(char* to, size_t room, const char* from, size_t length) {
  size_t used = strlen(to);
  for (size_t i = 0; i < length && used + 5 < room; ++i) {
    unsigned char c = static_cast<unsigned char>(from[i]);
    if (c == '\n')
      used += snprintf(to + used, room - used, "\\n");
    else if (c < 32 || c >= 127 || c == '"' || c == '\\')
      used += snprintf(to + used, room - used, "\\x%02x", c);
    else
      to[used++] = static_cast<char>(c), to[used] = 0;
  }
}

char* read_all(FILE* f, size_t* length) {
  fflush(f);
  long size = ftell(f);
  char* text = static_cast<char*>(malloc(size + 1));
  rewind(f);
  *length = fread(text, 1, size, f);
  text[*length] = 0;
  fclose(f);
  return text;
}

} // namespace

registrar::registrar(const char* name, test_fn fn) {
  if (test_count == 1024)
    abort();
  tests[test_count].name = name;
  tests[test_count].fn = fn;
  ++test_count;
}

void fail(const char* file, int line, const char* what, const char* detail) {
  current_failed = true;
  fprintf(in_child ? stdout : stderr, "%s:%d: %s failed: %s\n", file, line, what, detail);
  if (in_child)
    fprintf(stderr, "check failed in child\n");
}

bool check(bool ok, const char* file, int line, const char* expression) {
  ++checks_run;
  if (!ok)
    fail(file, line, "CHECK", expression);
  return ok;
}

shown show(long long value) {
  shown s;
  snprintf(s.text, sizeof s.text, "%lld", value);
  return s;
}

shown show(unsigned long long value) {
  shown s;
  snprintf(s.text, sizeof s.text, "%llu (0x%llx)", value, value);
  return s;
}

shown show(const void* pointer) {
  shown s;
  snprintf(s.text, sizeof s.text, "%p", pointer);
  return s;
}

bool long_double_is_emulated() {
  const char* memcheck = getenv("LORB_MEMCHECK");
  return memcheck && strcmp(memcheck, "1") == 0;
}

bool check_bytes(const char* actual, size_t actual_length, const char* expected,
                 size_t expected_length, const char* file, int line, const char* what) {
  ++checks_run;
  if (actual_length == expected_length && memcmp(actual, expected, actual_length) == 0)
    return true;
  char detail[2048] = "\"";
  append_escaped(detail, sizeof detail - 600, actual, actual_length);
  strcat(detail, "\", expected \"");
  append_escaped(detail, sizeof detail - 8, expected, expected_length);
  strcat(detail, "\"");
  fail(file, line, what, detail);
  return false;
}

bool check_str(const char* actual, const char* expected, const char* file, int line,
               const char* what) {
  if (!actual)
    actual = "(null)";
  return check_bytes(actual, strlen(actual), expected, strlen(expected), file, line, what);
}

// Under qemu-i386 a child killed by a signal gets one more line on its standard error, written by
// the emulator ("qemu: uncaught target signal 6 (Aborted) - core dumped"). It is not the library's
// output, so exactly one such trailing line is cut; everything before it is compared as it is.
static void drop_emulator_notice(char* err, size_t* length) {
  static const char notice[] = "qemu: uncaught target signal ";
  if (*length == 0 || err[*length - 1] != '\n')
    return;
  size_t start = *length - 1;
  while (start > 0 && err[start - 1] != '\n')
    --start;
  if (*length - start > sizeof notice - 1 && memcmp(err + start, notice, sizeof notice - 1) == 0) {
    *length = start;
    err[start] = '\0';
  }
}

bool start_child(child* c) {
  fflush(stdout);
  fflush(stderr);
  c->out_file = tmpfile();
  c->err_file = tmpfile();
  if (!c->out_file || !c->err_file) {
    perror("tmpfile");
    abort();
  }
  c->pid = fork();
  if (c->pid < 0) {
    perror("fork");
    abort();
  }
  if (c->pid != 0)
    return false;
  in_child = true;
  dup2(fileno(c->out_file), 1);
  dup2(fileno(c->err_file), 2);
  setvbuf(stdout, 0, _IONBF, 0);
  setvbuf(stderr, 0, _IONBF, 0);
  return true;
}

outcome finish_child(child* c) {
  outcome o;
  memset(&o, 0, sizeof o);
  int status = 0;
  waitpid(c->pid, &status, 0);
  if (WIFSIGNALED(status)) {
    o.aborted = WTERMSIG(status) == SIGABRT;
    o.signal = o.aborted ? 0 : WTERMSIG(status);
  } else {
    o.exit_status = WEXITSTATUS(status);
  }
  o.out = read_all(c->out_file, &o.out_length);
  o.err = read_all(c->err_file, &o.err_length);
  drop_emulator_notice(o.err, &o.err_length);
  return o;
}

void release(outcome* o) {
  free(o->out);
  free(o->err);
}

void expect_outcome(child* c, expected_end end, const char* out, const char* err, const char* file,
                    int line, const char* statement) {
  outcome o = finish_child(c);
  char detail[512];
  ++checks_run;
  if (o.signal) {
    snprintf(detail, sizeof detail, "%s was killed by signal %d", statement, o.signal);
    fail(file, line, "child", detail);
  } else if (end.abort && !o.aborted) {
    snprintf(detail, sizeof detail, "%s exited with %d instead of aborting", statement,
             o.exit_status);
    fail(file, line, "child", detail);
  } else if (!end.abort && o.aborted) {
    snprintf(detail, sizeof detail, "%s aborted instead of exiting with %d", statement, end.status);
    fail(file, line, "child", detail);
  } else if (!end.abort && o.exit_status != end.status) {
    snprintf(detail, sizeof detail, "%s exited with %d, expected %d", statement, o.exit_status,
             end.status);
    fail(file, line, "child", detail);
  }
  if (out)
    check_bytes(o.out, o.out_length, out, strlen(out), file, line, "child's standard output");
  else if (o.out_length)
    fputs(o.out, stdout); // what a failing check inside the child reported
  if (err)
    check_bytes(o.err, o.err_length, err, strlen(err), file, line, "child's standard error");
  release(&o);
}

} // namespace lt

int main(int argc, char** argv) {
  int passed = 0, failed = 0;
  for (int i = 0; i < lt::test_count; ++i) {
    if (argc > 1 && strcmp(argv[1], lt::tests[i].name) != 0)
      continue;
    lt::current_failed = false;
    lt::tests[i].fn();
    printf("%s %s\n", lt::current_failed ? "FAIL" : "ok  ", lt::tests[i].name);
    if (lt::current_failed)
      ++failed;
    else
      ++passed;
  }
  printf("%d checks\n%d passed, %d failed\n", lt::checks_run, passed, failed);
  return failed ? 1 : 0;
}
