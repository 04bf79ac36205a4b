#!/bin/sh
# Runs one test program; under `make memcheck` (LORB_MEMCHECK=1) it runs under valgrind memcheck,
# each process (forked children included) logging apart, and fails on any error in any log.
[ "${LORB_MEMCHECK:-0}" = 1 ] || exec "$@"
logs=${LORB_MEMCHECK_LOGS:-/tmp/lorb-memcheck}/$(basename "$1").$$
mkdir -p "$logs"
# Allocation functions a test program defines for itself stay its own under valgrind too.
valgrind --tool=memcheck --leak-check=full --errors-for-leak-kinds=definite \
  --soname-synonyms=somalloc=nouserintercepts \
  --log-file="$logs/%p.log" "$@"
status=$?
if grep -L 'ERROR SUMMARY: 0 errors' "$logs"/*.log | grep -q .; then
  echo "memcheck found errors:"
  for log in $(grep -L 'ERROR SUMMARY: 0 errors' "$logs"/*.log); do cat "$log"; done
  exit 1
fi
exit $status
