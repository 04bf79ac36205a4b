/* Runs a program RUNS times, its output thrown away, and prints the mean wall time of one run
 * from start to reaped exit in microseconds. Usage: spawn_timer RUNS PROGRAM [ARGS...]; a host
 * program, built natively, so that the timing loop costs the same for every program timed. */
#include <fcntl.h>
#include <spawn.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

extern char** environ;

static double now_us(void) {
  struct timespec t;
  clock_gettime(CLOCK_MONOTONIC, &t);
  return t.tv_sec * 1e6 + t.tv_nsec / 1e3;
}

int main(int argc, char** argv) {
  if (argc < 3) {
    fprintf(stderr, "usage: spawn_timer RUNS PROGRAM [ARGS...]\n");
    return 2;
  }
  long runs = atol(argv[1]);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
  double start = now_us();
  for (long i = 0; i < runs; ++i) {
    pid_t child;
    int status;
    if (posix_spawn(&child, argv[2], &actions, NULL, argv + 2, environ) != 0) {
      fprintf(stderr, "spawn_timer: cannot start %s\n", argv[2]);
      return 1;
    }
    /* A program that fails would be timed for less than its work. */
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
      fprintf(stderr, "spawn_timer: %s did not exit with status 0\n", argv[2]);
      return 1;
    }
  }
  printf("%.1f\n", (now_us() - start) / runs);
  return 0;
}
