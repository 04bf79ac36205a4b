/* The AFL++ side of a 32-bit fuzz target: edge map, fork server, persistent loop and main. */
/* Debian's AFL++ ships its run-time for x86-64 only, and libFuzzer needs the GNU C++ library,
   so the i386 targets carry this one: plain C, clang's trace-pc-guard instrumentation, and the
   classic fork-server protocol (descriptors 198 and 199, a 4-byte status word each way). */
#include <fcntl.h>
#include <signal.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/shm.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#define MAP_SIZE 65536u /* the largest map; a target gets one just big enough */
#define FORKSRV_FD 198
#define PERSISTENT_RUNS 10000
#define MAX_INPUT (1u << 20)
#define FS_OPT_ENABLED 0x80000001u
#define FS_OPT_MAPSIZE 0x40000000u

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

/* Before the fuzzer hands over its map, edges count into this one and are thrown away. */
static uint8_t startup_map[MAP_SIZE];
static uint8_t *edge_map = startup_map;
static uint32_t edge_count;

/* One slot an edge plus the unused slot 0, rounded up to afl-fuzz's 64-byte granule. */
static uint32_t map_size(void) {
  uint32_t size = (edge_count + 1 + 63) & ~63u;
  return size > MAP_SIZE ? MAP_SIZE : size;
}

/* afl-fuzz looks for these strings in the binary: the first says it is instrumented, the
   second that it loops over inputs in one process. */
__attribute__((used)) static const char shm_env_marker[] = "__AFL_SHM_ID";
__attribute__((used)) static const char persistent_marker[] = "##SIG_AFL_PERSISTENT##";

void __sanitizer_cov_trace_pc_guard_init(uint32_t *start, uint32_t *stop) {
  if (start == stop || *start)
    return;
  for (uint32_t *guard = start; guard < stop; ++guard) {
    /* Index 0 is left alone; past the map's end the edges share slots. */
    *guard = edge_count % (MAP_SIZE - 1) + 1;
    ++edge_count;
  }
}

void __sanitizer_cov_trace_pc_guard(uint32_t *guard) {
  /* A counter that wraps to zero would hide the edge: it skips zero. */
  uint8_t hits = (uint8_t)(edge_map[*guard] + 1);
  edge_map[*guard] = (uint8_t)(hits + (hits == 0));
}

static uint8_t *read_all(int fd, size_t *size) {
  size_t capacity = 4096, used = 0;
  uint8_t *buffer = malloc(capacity);
  for (;;) {
    if (used == capacity) {
      if (capacity >= MAX_INPUT)
        break;
      capacity *= 2;
      buffer = realloc(buffer, capacity);
    }
    ssize_t got = read(fd, buffer + used, capacity - used);
    if (got <= 0)
      break;
    used += (size_t)got;
  }
  /* An exact-size copy, so that a read past the input's end is a heap overflow to ASan. */
  uint8_t *exact = malloc(used ? used : 1);
  memcpy(exact, buffer, used);
  free(buffer);
  *size = used;
  return exact;
}

static int run_file(const char *path) {
  int fd = path ? open(path, O_RDONLY) : 0;
  if (fd < 0) {
    perror(path);
    return 1;
  }
  if (!path)
    lseek(0, 0, SEEK_SET);
  size_t size;
  uint8_t *data = read_all(fd, &size);
  if (path)
    close(fd);
  LLVMFuzzerTestOneInput(data, size);
  free(data);
  return 0;
}

/* Answers afl-fuzz: forks a child for each run, or wakes the stopped persistent child. */
static void serve_forks(void) {
  /* Tells the map's size: without it afl-fuzz would sweep its 8 MiB default map after every run. */
  uint32_t hello = FS_OPT_ENABLED | FS_OPT_MAPSIZE | ((map_size() - 1) << 1);
  if (write(FORKSRV_FD + 1, &hello, 4) != 4)
    return; /* no fuzzer listening: run as a plain program */
  pid_t child = -1;
  int child_stopped = 0;
  for (;;) {
    uint32_t was_killed;
    int status;
    if (read(FORKSRV_FD, &was_killed, 4) != 4)
      _exit(1);
    if (child_stopped && was_killed) {
      child_stopped = 0;
      if (waitpid(child, &status, 0) < 0)
        _exit(1);
    }
    if (!child_stopped) {
      child = fork();
      if (child < 0)
        _exit(1);
      if (child == 0) {
        close(FORKSRV_FD);
        close(FORKSRV_FD + 1);
        return;
      }
    } else {
      kill(child, SIGCONT);
      child_stopped = 0;
    }
    if (write(FORKSRV_FD + 1, &child, 4) != 4)
      _exit(1);
    if (waitpid(child, &status, WUNTRACED) < 0)
      _exit(1);
    if (WIFSTOPPED(status))
      child_stopped = 1;
    if (write(FORKSRV_FD + 1, &status, 4) != 4)
      _exit(1);
  }
}

int main(int argc, char **argv) {
  if (getenv("AFL_DUMP_MAP_SIZE")) {
    printf("%u\n", map_size());
    return 0;
  }
  if (getenv("LORB_FUZZ_EDGE_COUNT")) {
    printf("%u\n", edge_count);
    return 0;
  }
  const char *shm_id = getenv(shm_env_marker);
  if (!shm_id) {
    /* Reproducer mode: each file named once, or standard input. */
    int failed = 0;
    if (argc < 2)
      return run_file(NULL);
    for (int i = 1; i < argc; ++i)
      failed |= run_file(argv[i]);
    return failed;
  }
  uint8_t *shared = shmat(atoi(shm_id), NULL, 0);
  if (shared == (void *)-1) {
    perror("shmat");
    return 1;
  }
  /* One empty run first: what a target sets up on first use (locales, names, tables) would
     otherwise count as coverage of whichever input came first, and afl-fuzz would see the
     same input take different paths. */
  LLVMFuzzerTestOneInput((const uint8_t *)"", 0);
  serve_forks();
  const char *input = argc > 1 ? argv[1] : NULL;
  for (int run = 0; run < PERSISTENT_RUNS; ++run) {
    /* What start-up and the previous stop touched is not this input's coverage. */
    memset(shared, 0, map_size());
    edge_map = shared;
    edge_map[0] = 1;
    run_file(input);
    edge_map = startup_map;
    if (run + 1 < PERSISTENT_RUNS && getenv("__AFL_PERSISTENT"))
      raise(SIGSTOP);
    else
      break;
  }
  return 0;
}
