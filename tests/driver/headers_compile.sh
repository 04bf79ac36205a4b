#!/bin/sh
# Every public header compiles warning-free with the driver in each language mode: each one on its
# own (included twice), and all of them together in alphabetical and in reverse order.
driver=$1 include_dir=$2 work=$3/headers
mkdir -p "$work"
status=0
flags="-Wall -Wextra -pedantic -Werror -fsyntax-only"
compiles_in_every_mode() { # source, what it is
  for mode in 98 11 17; do
    if ! "$driver" -std=c++$mode $flags "$1" 2> "$1.$mode.err"; then
      echo "$2 does not compile cleanly with -std=c++$mode:"
      head -5 "$1.$mode.err"
      status=1
    fi
  done
}
# Every header of the 1998 standard library is there (<strstream> from its annex too).
for name in algorithm bitset complex deque exception fstream functional iomanip ios iosfwd \
  iostream istream iterator limits list locale map memory new numeric ostream queue set sstream \
  stack stdexcept streambuf string strstream typeinfo utility valarray vector cassert cctype \
  cerrno cfloat ciso646 climits clocale cmath csetjmp csignal cstdarg cstddef cstdio cstdlib \
  cstring ctime cwchar cwctype; do
  [ -f "$include_dir/$name" ] || { echo "<$name> is missing"; status=1; }
done
names=""
for header in "$include_dir"/*; do
  [ -f "$header" ] || continue
  name=$(basename "$header")
  names="$names $name"
  printf '#include <%s>\n#include <%s>\nint main() { return 0; }\n' "$name" "$name" > "$work/$name.cpp"
  compiles_in_every_mode "$work/$name.cpp" "<$name>"
done
forward="" backward=""
for name in $names; do
  forward="$forward#include <$name>
"
  backward="#include <$name>
$backward"
done
printf '%sint main() { return 0; }\n' "$forward" > "$work/all_forward.cpp"
printf '%sint main() { return 0; }\n' "$backward" > "$work/all_backward.cpp"
compiles_in_every_mode "$work/all_forward.cpp" "all headers in alphabetical order"
compiles_in_every_mode "$work/all_backward.cpp" "all headers in reverse order"
[ $status = 0 ] && echo "every header of the 1998 library is there; all headers compile in c++98, c++11 and c++17, alone and together"
exit $status
