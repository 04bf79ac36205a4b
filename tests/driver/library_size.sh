#!/bin/sh
# The shared object, stripped, stays within its size budget: 330 KB, 15% of the GNU library's.
library=$1 work=$2/size
mkdir -p "$work"
budget=330000
strip -o "$work/stripped.so" "$library" || exit 1
size=$(wc -c < "$work/stripped.so")
if [ "$size" -gt "$budget" ]; then
  echo "the stripped library is $size bytes, over its budget of $budget"
  exit 1
fi
# No unwind tables of the library's own: nothing unwinds through it. (The few bytes left come
# with the start files and libgcc's helpers.)
eh_frame=$(readelf -S -W "$work/stripped.so" | sed -n 's/.*\] \.eh_frame  *PROGBITS  *[0-9a-f]*  *[0-9a-f]*  *\([0-9a-f]*\).*/\1/p')
if [ -n "$eh_frame" ] && [ $((0x$eh_frame)) -gt 1024 ]; then
  echo "the library carries unwind tables ($((0x$eh_frame)) bytes)"; exit 1
fi
echo "stripped library: $size bytes (budget $budget)"
