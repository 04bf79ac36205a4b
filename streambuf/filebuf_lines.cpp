// Lines from a plain file buffer straight out of the C library's buffer, as sbumpc would take
// them one character at a time.
#include <__lorb/filebuf_lines.h>
#include <__lorb/library_facets.h>
#include <stdio.h>
#include <string.h>

namespace __vel {

FILE* plain_input_file(std::basic_streambuf<char>* buffer) {
  if (!is_library_filebuf(buffer))
    return 0;
  return static_cast<std::basic_filebuf<char>*>(buffer)->__file;
}

// The characters the C library has read ahead lie between the FILE's read pointer and read end
// (pushed-back characters included); they are searched and taken from there, and getc refills.
long read_line(FILE* file, char delim, std::string& line, bool& delim_met) {
  long taken = 0;
  bool started = false; // the line's first piece replaces what the string held
  delim_met = false;
  for (;;) {
    char* next = file->_IO_read_ptr;
    char* end = file->_IO_read_end;
    if (next && next < end) {
      char* found = static_cast<char*>(memchr(next, static_cast<unsigned char>(delim), end - next));
      char* stop = found ? found : end;
      if (started)
        line.append(next, stop - next);
      else
        line.assign(next, stop - next); // the usual case: the whole line read ahead
      started = true;
      taken += stop - next;
      file->_IO_read_ptr = found ? found + 1 : end;
      if (found) {
        delim_met = true;
        return taken + 1;
      }
    }
    int c = getc_unlocked(file); // refills the read-ahead
    if (c == EOF || c == static_cast<unsigned char>(delim)) {
      if (!started)
        line.erase();
      if (c == EOF)
        return taken;
      delim_met = true;
      return taken + 1;
    }
    ++taken;
    if (started)
      line.append(1, static_cast<char>(c));
    else
      line.assign(1, static_cast<char>(c));
    started = true;
  }
}

} // namespace __vel
