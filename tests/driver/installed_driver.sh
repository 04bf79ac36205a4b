#!/bin/sh
# Installs the library into a scratch prefix (plainly, and staged under DESTDIR) and builds and
# runs a program with the installed driver, away from the source tree.
set -e
build_dir=$1 work=$2/installed
rm -rf "$work"
mkdir -p "$work"
cmake --install "$build_dir" --prefix "$work/prefix" >/dev/null
DESTDIR="$work/stage" cmake --install "$build_dir" --prefix /opt/lorb >/dev/null
cat > "$work/prog.cpp" <<'PROG'
#include <new>
#include <cstdio>
int main() {
  int* p = new int(41);
  std::printf("%d\n", *p + 1);
  delete p;
  return 0;
}
PROG
for driver in "$work/prefix/bin/lorb++" "$work/stage/opt/lorb/bin/lorb++"; do
  [ -f "$(dirname "$driver")/../include/lorb++/new" ] || { echo "headers not installed"; exit 1; }
  env -u LORB_BUILD_DIR "$driver" -std=c++98 -O2 "$work/prog.cpp" -o "$work/prog"
  out=$(${LORB_I386_LAUNCHER:-} "$work/prog")
  [ "$out" = 42 ] || { echo "installed program printed '$out'"; exit 1; }
  # Read from the dynamic section, not with ldd (see builds_program.sh): the program needs
  # liblorb++.so.1 and finds it in the installed lib folder.
  lib_dir=$(cd "$(dirname "$driver")/../lib" && pwd)
  readelf -d "$work/prog" | grep -q 'NEEDED.*\[liblorb++.so.1\]' ||
    { echo "liblorb++ not linked:"; readelf -d "$work/prog"; exit 1; }
  readelf -d "$work/prog" | grep -E 'RUNPATH|RPATH' | grep -q "\[$lib_dir\]" ||
    { echo "not linked against the installed library in $lib_dir:"; readelf -d "$work/prog"; exit 1; }
done
echo "installed driver ok"
