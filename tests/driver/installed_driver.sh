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
# The plain install is run; the staged one names the library where it will be once installed.
for case in "$work/prefix:$work/prefix" "$work/stage/opt/lorb:/opt/lorb"; do
  root=${case%%:*} final=${case#*:}
  driver=$root/bin/lorb++
  [ -f "$root/include/lorb++/new" ] || { echo "headers not installed"; exit 1; }
  env -u LORB_BUILD_DIR "$driver" -std=c++98 -O2 "$work/prog.cpp" -o "$work/prog"
  # Read from the dynamic section, not with ldd (see builds_program.sh): the program names the
  # installed library by its full path, and carries no search path.
  readelf -d "$work/prog" | grep -q "NEEDED.*\[$final/lib/liblorb++.so.1\]" ||
    { echo "not linked against $final/lib/liblorb++.so.1:"; readelf -d "$work/prog"; exit 1; }
  if readelf -d "$work/prog" | grep -qE 'RUNPATH|RPATH'; then
    echo "the installed driver's program carries a search path:"; readelf -d "$work/prog"; exit 1
  fi
  [ "$root" = "$final" ] || continue
  out=$(${LORB_I386_LAUNCHER:-} "$work/prog")
  [ "$out" = 42 ] || { echo "installed program printed '$out'"; exit 1; }
done
echo "installed driver ok"
