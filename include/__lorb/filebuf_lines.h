// Reading whole lines from the library's own file buffer straight from its C library file.
#ifndef __LORB_FILEBUF_LINES_H
#define __LORB_FILEBUF_LINES_H

#include <__lorb/config.h>
#include <__lorb/streambuf.h>
#include <cstdio>
#include <string>

namespace __vel {

// The file under a plain basic_filebuf<char>, whose reads take characters straight from it (its
// get area is always empty); null for any other buffer, a program's derived ones included.
__LORB_EXPORT FILE* plain_input_file(std::basic_streambuf<char>* buffer);

// Takes characters from file up to and including delim, or to its end; line becomes those before
// delim. Returns how many were taken (delim included); delim_met says whether it ended
// the line.
__LORB_EXPORT long read_line(FILE* file, char delim, std::string& line, bool& delim_met);

} // namespace __vel

#endif
