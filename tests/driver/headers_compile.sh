#!/bin/sh
# Every public header compiles on its own, warning-free, with the driver in each language mode.
driver=$1 include_dir=$2 work=$3/headers
mkdir -p "$work"
status=0
for header in "$include_dir"/*; do
  [ -f "$header" ] || continue
  name=$(basename "$header")
  printf '#include <%s>\n#include <%s>\nint main() { return 0; }\n' "$name" "$name" > "$work/$name.cpp"
  for mode in 98 11 17; do
    if ! "$driver" -std=c++$mode -Wall -Wextra -Werror -fsyntax-only "$work/$name.cpp" 2> "$work/$name.$mode.err"; then
      echo "<$name> does not compile cleanly with -std=c++$mode:"
      head -5 "$work/$name.$mode.err"
      status=1
    fi
  done
done
[ $status = 0 ] && echo "all headers compile in c++98, c++11 and c++17"
exit $status
