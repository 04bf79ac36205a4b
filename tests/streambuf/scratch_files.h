// Scratch files for the file-buffer tests: a unique file under /tmp made with the contents asked
// for, read back whole, and removed when the helper goes out of scope.
#ifndef STREAMBUF_SCRATCH_FILES_H
#define STREAMBUF_SCRATCH_FILES_H

#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lt {

class scratch_file {
public:
  // A new file holding contents (up to its terminating NUL).
  explicit scratch_file(const char* contents = "") { make(contents, strlen(contents)); }
  // A new file holding the first length bytes at contents, NULs included.
  scratch_file(const char* contents, size_t length) { make(contents, length); }
  ~scratch_file() { unlink(path_); }

  const char* path() const { return path_; }

  // Removes the file and keeps its name, a name that no file has.
  void remove() { unlink(path_); }
  bool exists() const { return access(path_, F_OK) == 0; }

  // The file's length as the system sees it now (-1 when there is no file).
  long size() const {
    struct stat status;
    return stat(path_, &status) == 0 ? static_cast<long>(status.st_size) : -1;
  }

  // The whole file as it is now, NUL-terminated (the bytes may hold NULs of their own: use
  // size() for the length). Empty when there is no file.
  const char* contents() {
    size_t length = 0;
    int fd = open(path_, O_RDONLY);
    if (fd >= 0) {
      ssize_t got;
      while (length < sizeof read_back_ - 1 &&
             (got = read(fd, read_back_ + length, sizeof read_back_ - 1 - length)) > 0)
        length += static_cast<size_t>(got);
      close(fd);
    }
    read_back_[length] = '\0';
    return read_back_;
  }

private:
  void make(const char* contents, size_t length) {
    strcpy(path_, "/tmp/lorb-filebuf-XXXXXX");
    int fd = mkstemp(path_);
    if (fd < 0) {
      perror("scratch_file: mkstemp");
      exit(2);
    }
    // A short write would make every check on this file meaningless: stop here instead.
    if (write(fd, contents, length) != static_cast<ssize_t>(length)) {
      perror("scratch_file: write");
      exit(2);
    }
    close(fd);
  }

  char path_[32];
  char read_back_[4096];

  scratch_file(const scratch_file&);
  scratch_file& operator=(const scratch_file&);
};

} // namespace lt

#endif
