// The project's test harness: named tests, checks that report both sides, and child-process tests
// that capture standard output and standard error and expect an exact outcome.
#ifndef LORB_TEST_H
#define LORB_TEST_H

#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>

namespace lt {

typedef void (*test_fn)();

struct registrar {
  registrar(const char* name, test_fn fn);
};

// Failure reporting; every check counts, a failed one marks the running test failed.
bool check(bool ok, const char* file, int line, const char* expression);
void fail(const char* file, int line, const char* what, const char* detail);

// Values are shown as text in the failure message.
struct shown {
  char text[64];
};
shown show(long long value);
shown show(unsigned long long value);
shown show(const void* pointer);
inline shown show(int value) { return show(static_cast<long long>(value)); }
inline shown show(long value) { return show(static_cast<long long>(value)); }
inline shown show(short value) { return show(static_cast<long long>(value)); }
inline shown show(signed char value) { return show(static_cast<long long>(value)); }
inline shown show(char value) { return show(static_cast<long long>(value)); }
inline shown show(bool value) { return show(static_cast<long long>(value)); }
inline shown show(unsigned value) { return show(static_cast<unsigned long long>(value)); }
inline shown show(unsigned long value) { return show(static_cast<unsigned long long>(value)); }
inline shown show(unsigned short value) { return show(static_cast<unsigned long long>(value)); }
inline shown show(unsigned char value) { return show(static_cast<unsigned long long>(value)); }
inline shown show(double value) {
  shown s;
  snprintf(s.text, sizeof s.text, "%.17g", value);
  return s;
}
template <class T> shown show(T* pointer) { return show(static_cast<const void*>(pointer)); }

template <class A, class B>
bool check_eq(const A& actual, const B& expected, const char* file, int line, const char* a_text,
              const char* b_text) {
  if (actual == expected)
    return check(true, file, line, a_text);
  char detail[256];
  snprintf(detail, sizeof detail, "%s is %s, expected %s (%s)", a_text, show(actual).text,
           show(expected).text, b_text);
  fail(file, line, "CHECK_EQ", detail);
  return false;
}

// Compares n bytes exactly; the failure shows both sides with escapes.
bool check_bytes(const char* actual, size_t actual_length, const char* expected,
                 size_t expected_length, const char* file, int line, const char* what);
bool check_str(const char* actual, const char* expected, const char* file, int line,
               const char* what);

// True under `make memcheck`, whose valgrind computes long double with double's precision:
// checks of the full 80-bit precision are left out there.
bool long_double_is_emulated();

// A child process whose standard output and error go to files the parent reads back.
struct outcome {
  bool aborted;    // killed by SIGABRT
  int signal;      // any other killing signal, else 0
  int exit_status; // when it exited
  char* out;       // captured standard output (malloc'd, NUL-terminated)
  size_t out_length;
  char* err;
  size_t err_length;
};

struct child {
  int pid;
  FILE* out_file;
  FILE* err_file;
};

// Returns true in the child, whose standard streams are redirected and unbuffered.
bool start_child(child* c);
outcome finish_child(child* c);
void release(outcome* o);

struct expected_end {
  bool abort;
  int status;
};
inline expected_end aborts() {
  expected_end e = {true, 0};
  return e;
}
inline expected_end exits(int status) {
  expected_end e = {false, status};
  return e;
}

// Checks how the child ended and, when the texts are not null, what it wrote.
void expect_outcome(child* c, expected_end end, const char* out, const char* err, const char* file,
                    int line, const char* statement);

} // namespace lt

#define LT_CONCAT2(a, b) a##b
#define LT_CONCAT(a, b) LT_CONCAT2(a, b)

#define TEST(name)                                                                                 \
  static void name();                                                                              \
  static lt::registrar LT_CONCAT(name, _registrar)(#name, name);                                   \
  static void name()

#define CHECK(cond) lt::check((cond), __FILE__, __LINE__, #cond)
#define CHECK_EQ(actual, expected)                                                                 \
  lt::check_eq((actual), (expected), __FILE__, __LINE__, #actual, #expected)
#define CHECK_STR(actual, expected) lt::check_str((actual), (expected), __FILE__, __LINE__, #actual)
#define CHECK_BYTES(actual, n, expected, m)                                                        \
  lt::check_bytes((actual), (n), (expected), (m), __FILE__, __LINE__, #actual)

// Runs the statement in a child that then calls exit(0); the child must end as `end` says and
// write exactly `out` and `err` (null: not checked).
#define EXPECT_CHILD(statement, end, out, err)                                                     \
  do {                                                                                             \
    lt::child lt_child_;                                                                           \
    if (lt::start_child(&lt_child_)) {                                                             \
      statement;                                                                                   \
      exit(0);                                                                                     \
    }                                                                                              \
    lt::expect_outcome(&lt_child_, (end), (out), (err), __FILE__, __LINE__, #statement);           \
  } while (0)

// Death tests: the exact bytes on standard error and the way the process ends.
#define EXPECT_ABORT(statement, err) EXPECT_CHILD(statement, lt::aborts(), 0, err)
#define EXPECT_EXIT(statement, status, err) EXPECT_CHILD(statement, lt::exits(status), 0, err)

// A test whose body changes process-wide state runs whole in a child and must exit 0.
#define ISOLATED_TEST(name)                                                                        \
  static void LT_CONCAT(name, _body)();                                                            \
  TEST(name) { EXPECT_CHILD(LT_CONCAT(name, _body)(), lt::exits(0), 0, ""); }                      \
  static void LT_CONCAT(name, _body)()

#endif
