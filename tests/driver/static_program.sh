#!/bin/sh
# lorb++ -static: the program carries the library (and the C library) inside itself. Every
# example builds that way and prints what its shared build prints; a program that replaces the
# allocation functions links with the archive and the library allocates through its functions.
set -e
driver=$1 examples=$2 work=$3/static
mkdir -p "$work"
for source in "$examples"/*.cpp; do
  name=$(basename "$source" .cpp)
  # The static C library gives English day and month names whatever the locale: the dates
  # example would differ for that alone (differential/time_put_environment_names_diverges
  # writes the difference down).
  [ "$name" != dates ] || continue
  input=$examples/input/$name.txt
  [ -f "$input" ] || input=/dev/null
  "$driver" -O2 "$source" -o "$work/$name.shared"
  "$driver" -static -O2 "$source" -o "$work/$name.static"
  if readelf -d "$work/$name.static" 2>/dev/null | grep -q NEEDED; then
    echo "$name: the static program needs shared libraries:"; readelf -d "$work/$name.static"; exit 1
  fi
  ${LORB_I386_LAUNCHER:-} "$work/$name.shared" < "$input" > "$work/$name.shared.out" 2>&1 || true
  ${LORB_I386_LAUNCHER:-} "$work/$name.static" < "$input" > "$work/$name.static.out" 2>&1 || true
  # Addresses differ between the two builds; everything else must not.
  for kind in shared static; do
    sed 's/0x[0-9a-f]*/ADDRESS/g' "$work/$name.$kind.out" > "$work/$name.$kind.text"
  done
  cmp -s "$work/$name.shared.text" "$work/$name.static.text" ||
    { echo "$name: the static build printed otherwise:"; diff "$work/$name.shared.text" "$work/$name.static.text"; exit 1; }
done

cat > "$work/replaces.cpp" <<'PROG'
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string>
#include <vector>
static unsigned allocations, releases;
void* operator new(std::size_t n) { ++allocations; return std::malloc(n ? n : 1); }
void operator delete(void* p) throw() { if (p) { ++releases; std::free(p); } }
int main() {
  {
    std::string text(200, 'x');
    std::vector<int> numbers(50, 7);
    int* many = new int[10];
    delete[] many;
  }
  std::printf("%s\n", allocations >= 3 && allocations == releases ? "through the program" : "missed");
  return 0;
}
PROG
"$driver" -static -O2 "$work/replaces.cpp" -o "$work/replaces"
out=$(${LORB_I386_LAUNCHER:-} "$work/replaces")
[ "$out" = "through the program" ] || { echo "replacing program printed '$out'"; exit 1; }
# -static-liblorb++: the library inside, the C library shared.
"$driver" -static-liblorb++ -O2 "$examples/hello_world.cpp" -o "$work/hello_inside"
needed=$(readelf -d "$work/hello_inside" | awk '/NEEDED/ {print $5}')
! echo "$needed" | grep -q 'lorb++' || { echo "-static-liblorb++ still needs liblorb++.so"; exit 1; }
echo "$needed" | grep -qx '\[libc.so.6\]' || { echo "-static-liblorb++ does not need libc.so.6: $needed"; exit 1; }
# Nothing of the library's is looked for at run time, so no search path is kept.
if readelf -d "$work/hello_inside" | grep -qE 'RUNPATH|RPATH'; then
  echo "-static-liblorb++ keeps a search path"; exit 1
fi
${LORB_I386_LAUNCHER:-} "$work/hello_inside" > "$work/hello_inside.out"
${LORB_I386_LAUNCHER:-} "$work/hello_world.shared" | cmp -s - "$work/hello_inside.out" ||
  { echo "-static-liblorb++ program printed otherwise"; exit 1; }
echo "static programs ok"
