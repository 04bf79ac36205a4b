#!/bin/sh
# Builds a small program with the lorb++ driver in one language mode, runs it, checks what it
# printed, and checks that it does not depend on the GNU C++ library.
set -e
driver=$1 mode=$2 work=$3/cxx$mode
mkdir -p "$work"
cat > "$work/prog.cpp" <<'PROG'
#include <new>
#include <cstdio>
#include <cstdlib>
#include <cstring>
struct counted {
  int value;
  counted() : value(7) {}
  ~counted() { std::printf("destroyed %d\n", value); }
};
static counted global_object;
int main() {
  counted* many = new counted[2];
  many[1].value = 9;
  delete[] many;
  char* text = new (std::nothrow) char[6];
  std::strcpy(text, "hello");
  std::printf("%s %d\n", text, global_object.value);
  delete[] text;
  return 0;
}
PROG
"$driver" -std=c++$mode -O2 -Wall "$work/prog.cpp" -o "$work/prog"
out=$(${LORB_I386_LAUNCHER:-} "$work/prog")
want=$(printf 'destroyed 9\ndestroyed 7\nhello 7\ndestroyed 7')
if [ "$out" != "$want" ]; then
  echo "unexpected output:"; echo "$out"; exit 1
fi
# The needed libraries are read from the dynamic section: ldd would run the program's loader,
# which cannot list an i386 program's libraries where the kernel does not run i386 programs.
needed=$(readelf -d "$work/prog" | awk '/NEEDED/ {print $5}')
if echo "$needed" | grep -q 'libstdc++'; then
  echo "the program links the GNU C++ library:"; echo "$needed"; exit 1
fi
# The library is named by its full path, and no rpath is searched.
lib_dir=$(cd "${LORB_BUILD_DIR:?}/lib" && pwd)
echo "$needed" | grep -qx "\[$lib_dir/liblorb++.so.1\]" ||
  { echo "liblorb++ not linked by its path in $lib_dir: $needed"; exit 1; }
if readelf -d "$work/prog" | grep -qE 'RUNPATH|RPATH'; then
  echo "the program carries a search path:"; readelf -d "$work/prog" | grep -E 'RUNPATH|RPATH'; exit 1
fi
# Compiling alone must work too.
"$driver" -std=c++$mode -c "$work/prog.cpp" -o "$work/prog.o"
echo "c++$mode ok"
