// What the standard-stream tests share: the counting allocation functions, children whose
// standard files are scratch files, the tear-down log and the hand-run tear-down.
// Include it in exactly one file of a test program.
#ifndef IOSTREAM_STANDARD_STREAMS_SUPPORT_H
#define IOSTREAM_STANDARD_STREAMS_SUPPORT_H

#include "../streambuf/scratch_files.h"
#include "lorb_test.h"
#include <__lorb/runtime.h>
#include <fcntl.h>
#include <iostream>
#include <locale>
#include <new>
#include <stdlib.h>
#include <string>
#include <unistd.h>

typedef std::ios_base io;

// The program's own allocation functions, which the library uses too: they count the file
// buffers built and keep, while asked to, the addresses deleted.
static int filebuf_news = 0;
static bool logging_deletes = false;
static void* deleted[64];
static int deleted_count = 0;

void* operator new(size_t size) {
  if (size == sizeof(std::basic_filebuf<char>))
    ++filebuf_news;
  return malloc(size ? size : 1);
}
void operator delete(void* p) noexcept {
  if (logging_deletes && p && deleted_count < 64)
    deleted[deleted_count++] = p;
  free(p);
}

namespace {

// This unit includes <iostream>, so it holds one Init of its own beside the library's two.
const int library_inits = 2;
const int this_units_inits = 1;

bool fd_is_open(int fd) { return fcntl(fd, F_GETFD) != -1; }

// In a child: the C file f (stdout or stderr) writes into path, fully buffered, until restore
// hands it back to the harness's capture file, unbuffered as the harness keeps it.
class redirected {
public:
  redirected(FILE* f, const char* path) : file_(f), saved_(-1) {
    fflush(f);
    saved_ = dup(fileno(f));
    if (saved_ < 0 || freopen(path, "w", f) != f) {
      perror("redirected: freopen");
      _exit(3);
    }
    setvbuf(f, 0, _IOFBF, BUFSIZ);
  }
  void restore() {
    fflush(file_);
    dup2(saved_, fileno(file_));
    close(saved_);
    setvbuf(file_, 0, _IONBF, 0);
  }

private:
  FILE* file_;
  int saved_;
};

// stdin reads path from here on.
void stdin_from(const char* path) {
  if (freopen(path, "r", stdin) != stdin) {
    perror("stdin_from: freopen");
    _exit(3);
  }
}

// After a tear-down run by hand the child leaves without the exit processing, which would destroy
// this unit's Init a second time.
void leave_child() {
  fflush(stdout);
  fflush(stderr);
  _exit(0);
}

// What the tear-down did, in order, one letter a step.
char trace[64];
void note(char c) {
  size_t n = strlen(trace);
  if (n + 1 < sizeof trace) {
    trace[n] = c;
    trace[n + 1] = 0;
  }
}

// A buffer that notes each sync with its letter and answers sync_result.
struct noting_buffer : std::basic_streambuf<char> {
  char letter;
  int sync_result;
  explicit noting_buffer(char c, int result = 0) : letter(c), sync_result(result) {}
  int sync() {
    note(letter);
    return sync_result;
  }
};

// Erase callbacks: the index names the stream (its letter); the state it had is kept.
io::iostate state_at_erase[128];
void note_erase(io::event ev, io& stream, int index) {
  if (ev != io::erase_event)
    return;
  note(static_cast<char>(index));
  state_at_erase[index] = static_cast<std::basic_ios<char>&>(stream).rdstate();
}

void watch_erase_of_the_four_streams() {
  std::cin.register_callback(note_erase, 'I');
  std::cout.register_callback(note_erase, 'O');
  std::cerr.register_callback(note_erase, 'E');
  std::clog.register_callback(note_erase, 'L');
}

// Removes this unit's Init by hand, then runs the needed-destruction list, which holds the
// library's two: the last of them tears the streams down.
void tear_down_by_hand() {
  std::__ioinit.~Init();
  __process_needed_destructions();
}

std::basic_ios<char>* const all_four[] = {&std::cin, &std::cout, &std::cerr, &std::clog};
const char* const all_four_names[] = {"cin", "cout", "cerr", "clog"};

} // namespace

#endif
