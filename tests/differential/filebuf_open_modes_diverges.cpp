// Where Lorb++'s file buffer deliberately differs in opening: exactly the twelve mode combinations
// of the 1998 table are accepted (GNU also takes app alone, in|app and their binary forms), and
// out|ate keeps an existing file and writes at its end (GNU truncates it, as for out alone).
#include <cstdio>
#include <fstream>
#include <unistd.h>

typedef std::ios_base io;

static char path[96];

static void write_file(const char* text) {
  FILE* file = fopen(path, "wb");
  if (!file || fputs(text, file) < 0 || fclose(file) != 0)
    printf("cannot write %s\n", path);
}

static void show_file(const char* label) {
  char text[64] = "";
  FILE* file = fopen(path, "rb");
  size_t n = file ? fread(text, 1, sizeof text - 1, file) : 0;
  if (file)
    fclose(file);
  text[n] = '\0';
  printf("%s: file holds \"%s\"\n", label, text);
}

struct named_mode {
  const char* name;
  io::openmode mode;
};

int main() {
  sprintf(path, "/tmp/filebuf_open_modes_diverges.%ld", static_cast<long>(getpid()));
  static const named_mode modes[] = {
      {"out", io::out},
      {"out|app", io::out | io::app},
      {"out|trunc", io::out | io::trunc},
      {"in", io::in},
      {"in|out", io::in | io::out},
      {"in|out|trunc", io::in | io::out | io::trunc},
      {"out|ate", io::out | io::ate},
      {"in|binary", io::in | io::binary},
      {"app", io::app},
      {"in|app", io::in | io::app},
      {"in|out|app", io::in | io::out | io::app},
      {"app|binary", io::app | io::binary},
      {"out|app|trunc", io::out | io::app | io::trunc},
      {"in|trunc", io::in | io::trunc},
      {"trunc", io::trunc},
      {"no bits", io::openmode()},
  };
  for (size_t i = 0; i < sizeof modes / sizeof modes[0]; ++i) {
    write_file("kept");
    std::filebuf buffer;
    bool opened = buffer.open(path, modes[i].mode) != 0;
    printf("%-14s %s\n", modes[i].name, opened ? "opens" : "refused");
  }
  write_file("hello");
  {
    std::ofstream out(path, io::out | io::ate);
    out << "+more";
  }
  show_file("out|ate over \"hello\"");
  write_file("hello");
  {
    std::fstream both(path, io::in | io::out | io::ate);
    both << "+more";
  }
  show_file("in|out|ate over \"hello\"");
  unlink(path);
  return 0;
}
